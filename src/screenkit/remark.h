#pragma once

#include <QLabel>

namespace screenkit {

/// A remark in small on what stands in the field before it: two lines of some sixteen characters, more where the line
/// of fields leaves more room.
class Remark : public QLabel {
    Q_OBJECT
public:
    explicit Remark(const QString& name);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }
    bool hasHeightForWidth() const override { return false; } // it wraps, but asks for no more height than its field
};

} // namespace screenkit
