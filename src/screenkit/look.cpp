#include "screenkit/look.h"

#include <QApplication>
#include <QFontDatabase>
#include <QIcon>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOptionFrame>

#include "screenkit/contrast.h"
#include "screenkit/icon.h"

namespace screenkit::look {

namespace {

constexpr int middleGrey = 128; // of 255

// The states of a line are stored with the line, since each may be set and cleared by itself; the colours follow them.
constexpr const char* kindOfLine = "kindOfLine";
constexpr const char* staleLine = "staleLine";
constexpr const char* markedLine = "markedLine";
enum Kind { entry, result, shown, locked };
const QColor amber(255, 213, 128);

/// A colour between two, nearer to the first: paler, but still readable.
QColor between(const QColor& ink, const QColor& paper) {
    const auto mix = [](int near, int far) { return (near * 3 + far * 2) / 5; };
    return {mix(ink.red(), paper.red()), mix(ink.green(), paper.green()), mix(ink.blue(), paper.blue())};
}

/// Watches the palette of the desktop. The style does not hear of a palette that is set on the program itself.
class PaletteWatch : public QObject {
public:
    using QObject::QObject;
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched == qApp && event->type() == QEvent::ApplicationPaletteChange) {
            QPalette palette = QApplication::palette();
            if (makeGreyedReadable(palette)) QApplication::setPalette(palette);
        }
        return false;
    }
};

/// The window's colour with a little of the highlight colour: unlike an entry field or a result, also in dark palettes.
QColor lockedShade(const QPalette& palette) {
    constexpr int share = 5; // one part in this many
    const QColor window = palette.window().color(), tint = palette.highlight().color();
    const auto mixed = [](int of, int with) { return of + (with - of) / share; };
    return {mixed(window.red(), tint.red()), mixed(window.green(), tint.green()), mixed(window.blue(), tint.blue())};
}

void colour(QWidget* line) {
    QPalette palette;
    const int kind = line->property(kindOfLine).toInt();
    const bool marked = line->property(markedLine).toBool();
    if (kind == Kind::shown) palette.setColor(QPalette::Base, palette.window().color());
    if (kind == Kind::locked) palette.setColor(QPalette::Base, lockedShade(palette));
    if (kind == Kind::result) palette.setColor(QPalette::Base, Qt::yellow);
    if (marked) palette.setColor(QPalette::Base, amber);
    if (marked || kind == Kind::result) palette.setColor(QPalette::Text, Qt::black);
    if (line->property(staleLine).toBool())
        palette.setColor(QPalette::Text, between(palette.text().color(), palette.base().color()));
    line->setPalette(palette);
}

void setState(QWidget* line, const char* name, int state) {
    line->setProperty(name, state);
    colour(line);
}

/// Sets the accessible description, and a tip that replaces the line's own until the text is empty again.
void say(QWidget* line, const QString& words) {
    constexpr const char* ownTip = "ownTip";
    if (!line->property(ownTip).isValid()) line->setProperty(ownTip, line->toolTip());
    line->setToolTip(words.isEmpty() ? line->property(ownTip).toString() : words);
    constexpr const char* saidLast = "saidLast";
    const bool isOurs = line->accessibleDescription() == line->property(saidLast).toString();
    if (!words.isEmpty() || isOurs) line->setAccessibleDescription(words);
    line->setProperty(saidLast, words);
}

/// Fusion without icons on the buttons of message boxes, since they do not match ours, and with a plain toolbar. Button
/// captions have space around them.
class Style : public QProxyStyle {
public:
    Style() : QProxyStyle(QStyleFactory::create("Fusion")) {}
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* answer) const override {
        if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
        // The main window opens its menu at Alt itself; Qt would do it only if no field uses the key.
        if (hint == SH_MenuBar_AltKeyNavigation) return qobject_cast<const QMenu*>(widget) != nullptr ? 1 : 0;
        return QProxyStyle::styleHint(hint, option, widget, answer);
    }
    using QProxyStyle::polish;
    void polish(QPalette& palette) override {
        QProxyStyle::polish(palette);
        makeGreyedReadable(palette);
    }
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget) const override {
        const int room = type == CT_PushButton ? option->fontMetrics.averageCharWidth() : 0;
        return QProxyStyle::sizeFromContents(type, option, contents + QSize(room, 0), widget);
    }
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        if (element == PE_IndicatorRadioButton || element == PE_IndicatorCheckBox) outline(element, *option, *painter);
    }
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
        if (element != CE_ToolBar) return QProxyStyle::drawControl(element, option, painter, widget);
        // Fusion's own edges are transparent, so Qt draws them pixel by pixel on several threads: the first paint
        // waited for 36 of those jobs.
        const QRect& bar = option->rect;
        painter->fillRect(bar, option->palette.window());
        painter->fillRect(bar.left(), bar.bottom(), bar.width(), 1, option->palette.mid());
    }

private:
    /// Fusion draws outlines darker than the window: in a dark palette an empty option would be invisible.
    static void outline(PrimitiveElement element, const QStyleOption& option, QPainter& painter) {
        if (option.palette.window().color().lightness() > middleGrey) return;
        QColor ink = option.palette.windowText().color();
        ink.setAlpha(middleGrey);
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(ink);
        painter.setBrush(Qt::NoBrush);
        const QRectF frame = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
        if (element == PE_IndicatorRadioButton)
            painter.drawEllipse(frame);
        else
            painter.drawRoundedRect(frame, 2, 2);
        painter.restore();
    }
};

void setReadOnly(QLineEdit* field, bool readOnly) {
    field->setReadOnly(readOnly);
    field->setFocusPolicy(readOnly ? Qt::ClickFocus : Qt::StrongFocus); // a click still allows copying
}

} // namespace

void apply(QApplication& application) {
    QApplication::setStyle(new Style);
    QFont font(fontFamily, application.font().pointSize() > 0 ? application.font().pointSize() : 10);
    font.setStyleHint(QFont::SansSerif);
    QApplication::setFont(font);
    QApplication::setWindowIcon(icon("marlowbeck"));
    application.installEventFilter(new PaletteWatch(&application));
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
    setReadOnly(field, result);
    setState(field, kindOfLine, result ? Kind::result : Kind::entry);
}

void setLocked(QLineEdit* field, bool locked) {
    setReadOnly(field, locked);
    setState(field, kindOfLine, locked ? Kind::locked : Kind::entry);
}

void setAnswer(QLineEdit* line) {
    setReadOnly(line, true);
    QFont strong = line->font();
    strong.setBold(true);
    strong.setPointSizeF(strong.pointSizeF() * 1.2);
    line->setFont(strong);
}

void setShown(QLineEdit* field) {
    setReadOnly(field, true);
    setState(field, kindOfLine, Kind::shown);
}

void setStale(QWidget* result, bool stale) {
    if (result->property(staleLine).toBool() == stale) return;
    setState(result, staleLine, stale);
    QFont font = result->font();
    font.setItalic(stale);
    result->setFont(font);
    say(result, stale ? QObject::tr("Out of date: press Calculate") : QString());
}

void setMarked(QLineEdit* field, const QString& why) {
    if (field->property(markedLine).toBool() == !why.isEmpty() && field->accessibleDescription() == why) return;
    setState(field, markedLine, !why.isEmpty());
    say(field, why);
}

void followTheme(QLineEdit* line) {
    if (line->property(kindOfLine).toInt() != Kind::entry) colour(line);
}

int lineHeight(const QWidget* widget) { return widget->fontMetrics().height(); }

} // namespace screenkit::look
