#include "tour/journal.h"

#include <QDir>
#include <QPixmap>
#include <QTest>
#include <cstdio>
#include <set>
#include <stdexcept>

namespace tour {

namespace {

constexpr int patience = 5000; // milliseconds to wait for a window

bool showsSomething(const QImage& image) {
    constexpr std::size_t enough = 8; // colours; an unpainted window has one or two
    std::set<QRgb> seen;
    for (int y = 0; y < image.height(); y += 3)
        for (int x = 0; x < image.width(); x += 3)
            if (seen.insert(image.pixel(x, y)); seen.size() >= enough) return true;
    return false;
}

} // namespace

void say(const QString& line) {
    std::printf("%s\n", line.toUtf8().constData());
    std::fflush(stdout);
}

void fail(const QString& why) { throw std::runtime_error(why.toStdString()); }

void check(bool holds, const QString& otherwise) {
    if (!holds) fail(otherwise);
}

void picture(const QPixmap& pixels, const QString& name) {
    const auto number = QDir().entryList({"[0-9]*-*.png"}).size() + 1;
    const QString file = QString("%1-%2.png").arg(number, 2, 10, QChar('0')).arg(name);
    check(showsSomething(pixels.toImage()), "the picture " + file + " is empty");
    check(pixels.save(file), "the picture " + file + " cannot be written");
    say("  picture " + file);
}

void picture(QWidget* window, const QString& name) {
    check(QTest::qWaitForWindowExposed(window, patience), "the window for the picture " + name + " does not show");
    picture(window->grab(), name);
}

} // namespace tour
