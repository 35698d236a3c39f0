#include "screenkit/look.h"

#include <QApplication>
#include <QFontDatabase>
#include <QIcon>
#include <QLineEdit>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOptionFrame>

// A library's resources are linked in only where they are named; the macro wants the global namespace.
static void nameResources() { Q_INIT_RESOURCE(marlowbeck); }

namespace screenkit::look {

namespace {

/// Fusion without pictures on the buttons of boxes: the toolkit's own are of another style than ours.
class Style : public QProxyStyle {
public:
    Style() : QProxyStyle(QStyleFactory::create("Fusion")) {}
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* answer) const override {
        if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
        return QProxyStyle::styleHint(hint, option, widget, answer);
    }
};

} // namespace

void apply(QApplication& application) {
    nameResources();
    QApplication::setStyle(new Style);
    QFont font("Open Sans", application.font().pointSize() > 0 ? application.font().pointSize() : 10);
    font.setStyleHint(QFont::SansSerif);
    QApplication::setFont(font);
    QApplication::setWindowIcon(QIcon(":/icons/marlowbeck.svg"));
}

QSize fieldSize(const QLineEdit* field, int characters) {
    field->ensurePolished();
    const QFontMetrics metrics = field->fontMetrics();
    QStyleOptionFrame option;
    option.initFrom(field);
    option.lineWidth = field->style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, field);
    const QSize text(metrics.horizontalAdvance('0') * characters + metrics.averageCharWidth(), metrics.height());
    return field->style()
        ->sizeFromContents(QStyle::CT_LineEdit, &option, text + QSize(4, 4), field)
        .expandedTo(QSize(0, field->QLineEdit::minimumSizeHint().height()));
}

void setResult(QLineEdit* field, bool result) {
    field->setReadOnly(result);
    field->setFocusPolicy(result ? Qt::ClickFocus : Qt::StrongFocus); // a click still lets the user copy it
    QPalette palette;
    if (result) {
        palette.setColor(QPalette::Base, Qt::yellow);
        palette.setColor(QPalette::Text, Qt::black);
    }
    field->setPalette(palette);
}

int lineHeight(const QWidget* widget) { return widget->fontMetrics().height(); }

} // namespace screenkit::look
