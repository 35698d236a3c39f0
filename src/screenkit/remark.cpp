#include "screenkit/remark.h"

namespace screenkit {

Remark::Remark(const QString& name) {
    constexpr double small = 0.85;
    setObjectName(name);
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored); // must not make its line of fields taller
    QFont font = this->font();
    font.setPointSizeF(font.pointSizeF() * small);
    setFont(font);
}

QSize Remark::sizeHint() const { return {fontMetrics().averageCharWidth() * 16, 0}; }

} // namespace screenkit
