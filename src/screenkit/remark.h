#pragma once

#include <QLabel>

namespace screenkit {

/// A small remark on the content of the field before it: two lines of about sixteen characters, longer ones if there is
/// space.
class Remark : public QLabel {
    Q_OBJECT
public:
    explicit Remark(const QString& name);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }
    bool hasHeightForWidth() const override { return false; } // its text wraps without asking for more height
};

} // namespace screenkit
