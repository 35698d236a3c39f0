#include "screenkit/look.h"

#include <QApplication>
#include <QLineEdit>
#include <QStyle>
#include <gtest/gtest.h>

#include "screenkit/contrast.h"

namespace screenkit {
namespace {

TEST(Look, DisabledTextIsPalerButReadableInLightAndDark) {
    EXPECT_NEAR(contrast(Qt::black, Qt::white), 21, 1e-9);
    EXPECT_NEAR(contrast(QColor(119, 119, 119), Qt::white), 4.48, 0.005);
    const QPalette palettes[] = {QApplication::style()->standardPalette(), QPalette(QColor(239, 239, 239)),
                                 QPalette(QColor(53, 53, 53)), QPalette(QColor(20, 24, 30))};
    for (const QPalette& palette : palettes) {
        QApplication::setPalette(palette);
        QCoreApplication::processEvents();
        const QPalette now = QLineEdit().palette();
        for (const auto& [ink, paper] :
             {std::pair{QPalette::WindowText, QPalette::Window}, std::pair{QPalette::Text, QPalette::Base},
              std::pair{QPalette::Text, QPalette::Window}, // of menus
              std::pair{QPalette::ButtonText, QPalette::Button}}) {
            const double grey = contrast(now.color(QPalette::Disabled, ink), now.color(QPalette::Disabled, paper));
            EXPECT_GE(grey, 3) << now.color(paper).name().toStdString() << ' ' << ink;
            EXPECT_LT(grey, 0.7 * contrast(now.color(QPalette::Active, ink), now.color(QPalette::Active, paper)));
        }
        QLineEdit result;
        look::setResult(&result, true);
        EXPECT_EQ(result.palette().color(QPalette::Base), QColor(255, 255, 0));
        EXPECT_GE(contrast(result.palette().color(QPalette::Text), Qt::yellow), 7);
    }
    QApplication::setPalette(QPalette());
}

} // namespace
} // namespace screenkit
