// The cover's grain is blended by hand for speed: it must give the painter's very pixels.

#include "ui/vue/icc.h"

#include <gtest/gtest.h>
#include <QImage>
#include <QLinearGradient>
#include <QPainter>

using namespace agenda::ui;

TEST(Grain, LesPixelsDuPeintre) {
    for (const QSize taille : {QSize(3, 2), QSize(37, 23), QSize(1024, 738)}) {
        QImage fond(taille, QImage::Format_ARGB32_Premultiplied);
        fond.fill(Qt::transparent);
        {
            // Every channel value and some transparency under the points.
            QPainter g(&fond);
            QLinearGradient lg(0, 0, taille.width(), taille.height());
            lg.setColorAt(0, QColor(255, 0, 128, 255));
            lg.setColorAt(0.5, QColor(12, 250, 3, 200));
            lg.setColorAt(1, QColor(0, 40, 255, 90));
            g.fillRect(fond.rect(), lg);
        }
        QImage peint = fond, a_la_main = fond;
        {
            QPainter g(&peint);
            icc::grain(g, taille, 6, Qt::black);
        }
        icc::grain_noir(a_la_main, 6);
        EXPECT_EQ(peint, a_la_main) << taille.width() << "x" << taille.height();
        EXPECT_NE(peint, fond);
    }
}
