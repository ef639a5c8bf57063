// The editor's durations and clock, on the window's logic alone.

#include "editor/detarv.h"
#include "support/support.h"

#include <cmath>

using namespace agenda;

namespace {

class Durees : public agenda::test::DossierDonnees {
protected:
    void SetUp() override {
        DossierDonnees::SetUp();
        etat.duree_defaut = 30;
        etat.heure_debut = 8;
        etat.heure_fin = 19;
        d.Combo1 = QStringLiteral("09");
        d.Combo2 = QStringLiteral("00");
        d.Label7 = QStringLiteral("30");
        d.g1 = {{QStringLiteral("Brushing"), QStringLiteral("15 mn  "), QStringLiteral("1")},
                {QStringLiteral("Coupe"), QStringLiteral("20 mn  "), QStringLiteral("2")},
                {}};
    }
    Detarv d;
};

// Degrees clockwise from the top of the face.
double angle(const Detarv::Aiguille& a) {
    const double deg = std::atan2(a.x2 - a.x1, -(a.y2 - a.y1)) * 180 / 3.1415926;
    return deg < -0.01 ? deg + 360 : deg;
}

} // namespace

TEST_F(Durees, ChaqueGesteSurLEtatLaisseParLePrecedent) {
    // The duration and the end after each step.
    const std::vector<std::tuple<std::function<void()>, const char*, const char*>> pas = {
        {[&] { d.g2_Click(0, 2); }, "35", "0935"}, // +5
        {[&] { d.g2_Click(0, 0); }, "30", "0930"}, // -10, floored at the standard
        {[&] { d.g1_Click(0); }, "30", "0930"},    // 15, up to the floor
        {[&] { d.g1_Click(1); }, "50", "0950"},    // + 20
        {[&] { d.g2_Click(3, 1); }, "75", "1015"}, // 1h15
        {[&] { d.Label7 = QStringLiteral("5"), d.Label7_LostFocus(); }, "30", "0930"}, // floor
        {[&] { d.Combo2 = QStringLiteral("45"), d.calcul_fin(); }, "30", "1015"},
        {[&] { d.Label7 = QStringLiteral("45"), d.Label7_LostFocus(); }, "45", "1030"},
        {[&] {
             d.Combo3 = QStringLiteral("09"), d.Combo4 = QStringLiteral("55"), d.Combo4_Click();
         },
         "10", "0955"}, // the end chosen: the duration as it is
        {[&] { d.Combo3 = QStringLiteral("08"), d.Combo3_Click(); }, "-50", "0855"},
        {[&] {
             d.Combo1 = QStringLiteral("23"), d.Combo2 = QStringLiteral("00"), d.g2_Click(3, 3);
         },
         "120", "2500"}, // no day change
    };
    for (std::size_t i = 0; i < pas.size(); ++i) {
        std::get<0>(pas[i])();
        EXPECT_EQ(d.Label7, QString::fromLatin1(std::get<1>(pas[i]))) << "step " << i;
        EXPECT_EQ(d.Combo3 + d.Combo4, QString::fromLatin1(std::get<2>(pas[i]))) << "step " << i;
    }
    EXPECT_EQ(d.Text1, QStringLiteral("\r\nBrushing\r\nCoupe"));
    Detarv neuf; // a filler row, while the standard duration stands: only the duration goes
    neuf.g1 = d.g1;
    neuf.Label7 = QStringLiteral("30");
    neuf.g1_Click(2);
    EXPECT_EQ(neuf.Label9 + neuf.Label7 + neuf.Text1, QString());
}

TEST_F(Durees, LeCadranDansLesHeuresDuMagasinEtSesAiguilles) {
    // Half of the day, cell, hour; the switch shows its half in orange.
    for (const auto& [apres_midi, cellule, heure] :
         {std::tuple{0, 6, "08"}, {1, 10, "19"}, {1, 2, "14"}, {0, 11, "11"}, {1, 0, "12"}}) {
        apres_midi ? d.picture4_Click() : d.Picture3_Click();
        EXPECT_EQ(apres_midi ? d.picture4_fond : d.Picture3_fond, 33023);
        EXPECT_EQ(apres_midi ? d.Picture3_fond : d.picture4_fond, 0xFFFFFF);
        d.sheur_Click(cellule);
        EXPECT_EQ(d.Combo1, QString::fromLatin1(heure)) << cellule;
    }
    d.sminu_Click(7);
    EXPECT_EQ(d.Combo2 + d.Combo3 + d.Combo4, QStringLiteral("351305"));
    for (const auto& [h, m, angle_h, angle_m] : {std::tuple{"12", "00", 0.0, 0.0},
                                                 {"15", "30", 105.0, 180.0},
                                                 {"09", "07", 273.5, 42.0}}) {
        d.Combo1 = QString::fromLatin1(h);
        d.Combo2 = QString::fromLatin1(m);
        d.ajuste_heure();
        EXPECT_NEAR(angle(d.aiguilh), angle_h, 0.01) << h << ":" << m;
        EXPECT_NEAR(angle(d.aiguilm), angle_m, 0.01) << h << ":" << m;
    }
}

TEST_F(Durees, UnClicSurLeCadranTrouveSaCellule) {
    // On every face, the middle of each cell finds that cell, hours and minutes apart; the hub
    // and the corners of the picture find none.
    for (const char* face : {"0", "1", "3"}) {
        d.Label16 = QString::fromLatin1(face);
        d.charge_horloge();
        for (int i = 0; i < 24; ++i) {
            const ui::RectTwips& r = (i < 12 ? d.sheur : d.sminu)[std::size_t(i % 12)];
            const auto c = d.cellule(r.left + r.width / 2, r.top + r.height / 2);
            EXPECT_TRUE(c && c->heure == (i < 12) && c->index == i % 12) << face << " " << i;
        }
        for (const auto& [x, y] : {std::pair{ui::horloge_centre_x, ui::horloge_centre_y},
                                   {0, 0},
                                   {ui::horloge_largeur - 1, ui::horloge_hauteur - 1}})
            EXPECT_FALSE(d.cellule(x, y)) << face << " " << x << "," << y;
    }
}
