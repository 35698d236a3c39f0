#include "screenkit/icon.h"

#include <QApplication>
#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QStyle>
#include <QStyleOption>
#include <QSvgRenderer>

// A library's resources are linked in only if they are named; the macro must be used in the global namespace.
static void nameResources() { Q_INIT_RESOURCE(marlowbeck); }

namespace screenkit {
namespace {

class LineIcon : public QIconEngine {
public:
    explicit LineIcon(QByteArray drawing) : m_drawing(std::move(drawing)) {}

    void paint(QPainter* painter, const QRect& area, QIcon::Mode mode, QIcon::State) override {
        // Reads the palette at each painting, so that a change of theme shows at once.
        const QPalette palette = QGuiApplication::palette();
        const QColor colour = mode == QIcon::Disabled   ? palette.color(QPalette::Disabled, QPalette::ButtonText)
                              : mode == QIcon::Selected ? palette.color(QPalette::HighlightedText)
                                                        : palette.color(QPalette::Active, QPalette::ButtonText);
        QSvgRenderer renderer(QByteArray(m_drawing).replace("currentColor", colour.name().toLatin1()));
        painter->setRenderHint(QPainter::Antialiasing);
        renderer.render(painter, QRectF(area));
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(0, 0), size), mode, state);
        painter.end();
        // A drawing in the text's colour turns grey with the text; one with its own colours is greyed here.
        if (mode != QIcon::Disabled || m_drawing.contains("currentColor")) return pixmap;
        QStyleOption option;
        option.palette = QGuiApplication::palette();
        return QApplication::style()->generatedIconPixmap(mode, pixmap, &option);
    }

    QIconEngine* clone() const override { return new LineIcon(m_drawing); }

private:
    QByteArray m_drawing;
};

} // namespace

QIcon icon(const QString& name) {
    nameResources();
    QFile file(":/icons/" + name + ".svg");
    if (!file.open(QIODevice::ReadOnly)) return {};
    return QIcon(new LineIcon(file.readAll()));
}

} // namespace screenkit
