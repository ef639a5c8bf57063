// The files' colours. (The dates in French are read in every book and editor test: "Mercredi
// 03 mars 2004", the keys' yymmdd, today with its time as fraction.)

#include "ui/surface.h"
#include "ui/systeme.h"

#include <atomic>
#include <chrono>
#include <gtest/gtest.h>
#include <QGuiApplication>
#include <QPalette>
#include <QThread>
#include <QThreadPool>
#include <thread>

using namespace agenda::ui;

TEST(Ui, Couleurs) {
    // 0x00BBGGRR, and back; the system's window colour, which a new appointment keeps.
    EXPECT_EQ(couleur(0x0080FF), QColor(0xFF, 0x80, 0x00));
    EXPECT_EQ(bbggrr(QColor(0xFF, 0x80, 0x00)), 0x0080FF);
    EXPECT_EQ(couleur(std::int32_t(0x80000005u)), QGuiApplication::palette().color(QPalette::Base));
}

TEST(Ui, LaFinAttendLeTravailACote) {
    // Work still running when the program ends, as a thread drawing with the toolkit would be. A
    // drawing runs on a thread of the toolkit's pool, whose painter then keeps its fills there.
    for (const ACote::Fil fil : {ACote::Fil::propre, ACote::Fil::dessin}) {
        std::atomic<bool> fini = false, fini_a_la_fin = false, dans_le_pool = false;
        const ACote fait(
            [&] {
                dans_le_pool = QThreadPool::globalInstance()->contains(QThread::currentThread());
                std::this_thread::sleep_for(std::chrono::milliseconds(50));
                fini = true;
            },
            fil);
        fixe_fin([&](int) {
            fini_a_la_fin = fini.load();
            throw 0;
        });
        EXPECT_THROW(termine(1), int);
        fixe_fin({});
        EXPECT_TRUE(fini_a_la_fin);
        EXPECT_EQ(dans_le_pool, fil == ACote::Fil::dessin);
    }
}
