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
    QString fin() const { return d.Combo3 + QLatin1Char(':') + d.Combo4; }
    Detarv d;
};

// Degrees clockwise from the top of the face.
double angle(const Detarv::Aiguille& a) {
    const double deg = std::atan2(a.x2 - a.x1, -(a.y2 - a.y1)) * 180 / 3.1415926;
    return deg < -0.01 ? deg + 360 : deg;
}

} // namespace

TEST_F(Durees, ExemplesDeDurees) {
    // Each line acts on the state the line before left.
    struct Pas {
        std::function<void(Detarv&)> action;
        const char* duree;
        const char* fin;
    };
    const std::vector<Pas> pas = {
        {[](Detarv& x) { x.g2_Click(0, 2); }, "35", "09:35"}, // +5
        {[](Detarv& x) { x.g2_Click(0, 0); }, "30", "09:30"}, // -10, floored
        {[](Detarv& x) { x.g1_Click(0); }, "30", "09:30"},    // 15 up to the floor
        {[](Detarv& x) { x.g1_Click(1); }, "50", "09:50"},    // + 20
        {[](Detarv& x) { x.g2_Click(3, 1); }, "75", "10:15"}, // 1h15
        {[](Detarv& x) { x.g2_Click(1, 3); }, "30", "09:30"}, // 30
        {[](Detarv& x) { x.Combo2 = QStringLiteral("45"), x.calcul_fin(); }, "30", "10:15"},
        {[](Detarv& x) { x.Label7 = QStringLiteral("5"), x.Label7_LostFocus(); }, "30", "10:15"},
        {[](Detarv& x) { x.Label7 = QStringLiteral("45"), x.Label7_LostFocus(); }, "45", "10:30"},
        {[](Detarv& x) {
             x.Combo1 = QStringLiteral("23"), x.Combo2 = QStringLiteral("00"), x.g2_Click(3, 3);
         },
         "120", "25:00"}, // no day change
    };
    for (std::size_t i = 0; i < pas.size(); ++i) {
        pas[i].action(d);
        EXPECT_EQ(d.Label7, QString::fromLatin1(pas[i].duree)) << "step " << i;
        EXPECT_EQ(fin(), QString::fromLatin1(pas[i].fin)) << "step " << i;
    }
    EXPECT_EQ(d.Text1, QStringLiteral("\r\nBrushing\r\nCoupe"));
}

TEST_F(Durees, RemplissageEtFinChoisieLaissentLaDureeTelleQuelle) {
    d.Text1 = QStringLiteral("Texte");
    d.g1_Click(2); // a filler row: the duration goes blank, nothing else
    EXPECT_EQ(d.Label9 + d.Label7 + d.Text1, QStringLiteral("Texte"));

    d.Combo3 = QStringLiteral("09");
    d.Combo4 = QStringLiteral("10");
    d.Combo4_Click();
    EXPECT_EQ(d.Label7, QStringLiteral("10"));
    d.Combo3 = QStringLiteral("08");
    d.Combo3_Click();
    EXPECT_EQ(d.Label7, QStringLiteral("-50"));
}

TEST_F(Durees, AiguillesAuxAnglesDeLHeure) {
    struct Cas {
        const char *heure, *minute;
        double angle_h, angle_m;
    };
    for (const Cas c : {Cas{"00", "00", 0, 0},
                        {"12", "00", 0, 0},
                        {"15", "30", 105, 180},
                        {"09", "07", 273.5, 42},
                        {"06", "45", 202.5, 270}}) {
        d.Combo1 = QString::fromLatin1(c.heure);
        d.Combo2 = QString::fromLatin1(c.minute);
        d.ajuste_heure();
        EXPECT_NEAR(angle(d.aiguilh), c.angle_h, 0.01) << c.heure << ":" << c.minute;
        EXPECT_NEAR(angle(d.aiguilm), c.angle_m, 0.01) << c.heure << ":" << c.minute;
        EXPECT_NEAR(std::hypot(d.aiguilh.x2 - 2515, d.aiguilh.y2 - 2520), 1300, 0.01);
        EXPECT_NEAR(std::hypot(d.aiguilm.x2 - 2515, d.aiguilm.y2 - 2520), 1800, 0.01);
    }
}

TEST_F(Durees, LesHeuresDuCadranRestentDansLesHeuresDuMagasin) {
    struct Cas {
        int demi_journee; // 0 morning, 1 afternoon
        int cellule;
        const char* heure;
    };
    for (const Cas c :
         {Cas{0, 6, "08"}, {1, 10, "19"}, {1, 2, "14"}, {0, 11, "11"}, {1, 0, "12"}}) {
        c.demi_journee ? d.picture4_Click() : d.Picture3_Click();
        // The switch shows the half of the day in orange.
        EXPECT_EQ(c.demi_journee ? d.picture4_fond : d.Picture3_fond, 33023);
        EXPECT_EQ(c.demi_journee ? d.Picture3_fond : d.picture4_fond, 0xFFFFFF);
        d.sheur_Click(c.cellule);
        EXPECT_EQ(d.Combo1, QString::fromLatin1(c.heure)) << c.cellule;
    }
    d.sminu_Click(7);
    EXPECT_EQ(d.Combo2, QStringLiteral("35"));
    EXPECT_EQ(fin(), QStringLiteral("13:05"));
}
