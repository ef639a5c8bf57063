// The files' colours and the frame pieces. (The dates in French are read in every book and
// editor test: "Mercredi 03 mars 2004", the keys' yymmdd, today with its time as fraction.)

#include "ui/geometrie.h"
#include "ui/surface.h"
#include "ui/systeme.h"

#include <atomic>
#include <chrono>
#include <gtest/gtest.h>
#include <QGuiApplication>
#include <QPalette>
#include <thread>

using namespace agenda::ui;

TEST(Ui, CouleursEtCadre) {
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

TEST(Ui, LaFinAttendLeTravailACote) {
    // Work still running when the program ends, as a thread drawing with the toolkit would be.
    std::atomic<bool> fini = false, fini_a_la_fin = false;
    const ACote fait([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
        fini = true;
    });
    fixe_fin([&](int) {
        fini_a_la_fin = fini.load();
        throw 0;
    });
    EXPECT_THROW(termine(1), int);
    fixe_fin({});
    EXPECT_TRUE(fini_a_la_fin);
}
