#include "ui/surface.h"

#include <gtest/gtest.h>
#include <QGuiApplication>
#include <QPalette>

using agenda::ui::couleur;

TEST(Couleurs, BleuVertRougeDansLOrdreDesFichiers) {
    EXPECT_EQ(couleur(0x0080FF), QColor(0xFF, 0x80, 0x00)); // the orange of the clock's switch
    EXPECT_EQ(couleur(0xC0FFC0), QColor(0xC0, 0xFF, 0xC0));
    EXPECT_EQ(couleur(0xFF0000), QColor(0x00, 0x00, 0xFF));
    EXPECT_EQ(couleur(0), QColor(0, 0, 0));
    // The system's window colour, which a new appointment keeps until one is picked.
    EXPECT_EQ(couleur(std::int32_t(0x80000005u)), QGuiApplication::palette().color(QPalette::Base));
}
