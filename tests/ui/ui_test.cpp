// The platform seams without widgets: dates in French, the files' colours, the frame pieces.

#include "ui/dates.h"
#include "ui/geometrie.h"
#include "ui/surface.h"

#include <gtest/gtest.h>
#include <QGuiApplication>
#include <QPalette>

using namespace agenda::ui;

TEST(Ui, DatesCouleursEtCadre) {
    EXPECT_DOUBLE_EQ(date_de(QDateTime(QDate(2004, 3, 3), QTime(18, 0))), 38049.75);
    EXPECT_EQ(jour_de(38049.75), QDate(2004, 3, 3));
    EXPECT_EQ(jour_semaine(date_de(QDate(2004, 3, 7))), 1); // Sunday
    EXPECT_EQ(format_date(date_de(QDate(2004, 3, 3)), u"yymmdd:dd/mm/yyyy:d"),
              QStringLiteral("040303:03/03/2004:3"));
    EXPECT_EQ(format_date(date_de(QDate(2026, 8, 15)), u"dddd dd mmmm, ") +
                  format_date(date_de(QDate(2026, 2, 1)), u"mmmm"),
              QStringLiteral("samedi 15 août, février"));
    // 0x00BBGGRR, and back; the system's window colour, which a new appointment keeps.
    EXPECT_EQ(couleur(0x0080FF), QColor(0xFF, 0x80, 0x00));
    EXPECT_EQ(bbggrr(QColor(0xFF, 0x80, 0x00)), 0x0080FF);
    EXPECT_EQ(couleur(std::int32_t(0x80000005u)), QGuiApplication::palette().color(QPalette::Base));
    // The frame's pieces round a 6000 x 3000 window: corners, then left, top, right, bottom.
    const auto p = pieces_cadre(6000, 3000, coin_fin);
    EXPECT_EQ(p[2], (RectTwips{5820, 2820, 180, 180}));
    EXPECT_EQ(p[4], (RectTwips{0, 180, 180, 2640}));
    EXPECT_EQ(p[7], (RectTwips{180, 2820, 5640, 180}));
    EXPECT_EQ(centre_haut(19200, 6000, 3000), (RectTwips{6600, 4035, 6000, 3000}));
}
