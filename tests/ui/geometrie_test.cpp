#include "ui/geometrie.h"

#include <gtest/gtest.h>

using namespace agenda::ui;

TEST(Cadre, HuitPiecesAutourDeLaFenetre) {
    const auto p = pieces_cadre(6000, 3000, coin_fin);
    EXPECT_EQ(p[0], (RectTwips{0, 0, 180, 180}));
    EXPECT_EQ(p[1], (RectTwips{5820, 0, 180, 180}));
    EXPECT_EQ(p[2], (RectTwips{5820, 2820, 180, 180}));
    EXPECT_EQ(p[3], (RectTwips{0, 2820, 180, 180}));
    EXPECT_EQ(p[4], (RectTwips{0, 180, 180, 2640}));
    EXPECT_EQ(p[5], (RectTwips{180, 0, 5640, 180}));
    EXPECT_EQ(p[6], (RectTwips{5820, 180, 180, 2640}));
    EXPECT_EQ(p[7], (RectTwips{180, 2820, 5640, 180}));
    EXPECT_EQ(pieces_cadre(6000, 3000, coin_large)[7], (RectTwips{480, 2520, 5040, 480}));
}

TEST(Placement, CentreSurLEcranOuSurLeLivre) {
    EXPECT_EQ(centre(19200, 14400, 6000, 3000), (RectTwips{6600, 5700, 6000, 3000}));
    EXPECT_EQ(centre_haut(19200, 6000, 3000), (RectTwips{6600, 4035, 6000, 3000}));
    EXPECT_EQ(taille_livre(19200), (RectTwips{1920, 0, 15360, 11070}));
}
