#pragma once

#include <QLabel>

namespace screenkit {

/// A remark in small on what stands in the field before it. It takes the room that the line leaves and no more: two
/// lines of its type beside a field.
class Remark : public QLabel {
    Q_OBJECT
public:
    explicit Remark(const QString& name);
};

} // namespace screenkit
