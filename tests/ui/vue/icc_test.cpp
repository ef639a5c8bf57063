// The grain is drawn by hand for speed: its numbers must be QRandomGenerator's and its blend the
// painter's very pixels; and the cover drawn in parts must give, in each, the pixels of the whole.

#include "ui/vue/hasard.h"
#include "ui/vue/icc.h"

#include <gtest/gtest.h>
#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QPixmap>
#include <QRandomGenerator>

using namespace agenda::ui;

TEST(Grain, LesNombresDeQRandomGenerator) {
    for (const std::uint32_t graine : {1u, 20040303u, 0xffffffffu}) {
        QRandomGenerator qt(graine);
        Mt19937 nous(graine);
        for (int bloc = 0; bloc < 3; ++bloc) {
            const auto& nombres = nous.suivants();
            for (int i = 0; i < Mt19937::n; ++i)
                ASSERT_EQ(nombres[std::size_t(i)], qt()) << graine << " " << bloc << " " << i;
        }
    }
}

TEST(Grain, LesPixelsDuPeintre) {
    // With alpha, and opaque in three bytes as a page's picture.
    for (const auto format : {QImage::Format_ARGB32_Premultiplied, QImage::Format_RGB888}) {
        for (const QColor couleur : {QColor(Qt::black), QColor(0x80, 0x60, 0x30)}) {
            for (const QSize taille : {QSize(3, 2), QSize(37, 23), QSize(1024, 738)}) {
                QImage fond(taille, format);
                fond.fill(Qt::transparent);
                {
                    // Every channel value and, where there is alpha, some transparency.
                    QPainter g(&fond);
                    QLinearGradient lg(0, 0, taille.width(), taille.height());
                    lg.setColorAt(0, QColor(255, 0, 128, 255));
                    lg.setColorAt(0.5, QColor(12, 250, 3, 200));
                    lg.setColorAt(1, QColor(0, 40, 255, 90));
                    g.fillRect(fond.rect(), lg);
                }
                // On a pixmap the painter draws each point; on an image they are blended by
                // hand. The pages draw it anti-aliased.
                QPixmap peint = QPixmap::fromImage(fond);
                {
                    QPainter g(&peint);
                    g.setRenderHint(QPainter::Antialiasing);
                    icc::grain(g, taille, 6, couleur);
                }
                QImage a_la_main = fond;
                {
                    QPainter g(&a_la_main);
                    icc::grain(g, taille, 6, couleur);
                }
                const QString cas = couleur.name() + QStringLiteral(" %1x%2 %3")
                                                         .arg(taille.width())
                                                         .arg(taille.height())
                                                         .arg(format);
                EXPECT_EQ(peint.toImage().convertToFormat(format), a_la_main) << cas.toStdString();
                EXPECT_NE(a_la_main, fond) << cas.toStdString();
            }
        }
    }
}

TEST(Couverture, ChaquePartieTelleQueDansLeTout) {
    const QSize tout(1280, 923);
    const QImage entiere = icc::couverture(tout, {QRect(QPoint(), tout)}).front();
    // The margins, a page's corners, a part across the gilt fillet, a pixel, the last corner.
    const std::vector<QRect> parties = {{0, 0, 50, 923},  {1225, 0, 55, 923}, {50, 912, 1175, 11},
                                        {50, 0, 11, 11},  {589, 901, 11, 11}, {4, 300, 9, 40},
                                        {640, 461, 1, 1}, {1279, 922, 1, 1}};
    const std::vector<QImage> images = icc::couverture(tout, parties);
    ASSERT_EQ(images.size(), parties.size());
    for (std::size_t i = 0; i < parties.size(); ++i)
        EXPECT_EQ(images[i], entiere.copy(parties[i]))
            << parties[i].x() << "," << parties[i].y() << " " << parties[i].width() << "x"
            << parties[i].height();
}
