#include "support/livre.h"
#include "ui/dates.h"

#include <algorithm>

using namespace agenda;
using agenda::test::FinDemandee;

namespace {

class Pages : public agenda::test::Livre {};

bool a_un_trait(const ui::Surface& s, int y, std::int32_t couleur, bool pointille) {
    return std::any_of(s.traits().begin(), s.traits().end(), [&](const ui::Surface::Trait& t) {
        return t.y1 == y && t.y2 == y && t.x1 == 800 && t.x2 == 6200 && t.couleur == couleur &&
               t.pointille == pointille;
    });
}

} // namespace

TEST_F(Pages, EtiquettesAuxTwipsDeLeursHeures) {
    rendez_vous(QStringLiteral("tf_r0000.wdo"), {
                                                    "040303:09H30:10H15", // left page
                                                    "040303:12H00:13H00", // at the rupture: right
                                                    "040303:11H30:12H30", // starts left, runs over
                                                    "040303:18H45:19H30", // past the last hour
                                                    "040303:10H00:09H00", // damaged: negative
                                                });
    charge();
    ASSERT_EQ(livre->lrv.size(), 3u);
    ASSERT_EQ(livre->lrvd.size(), 2u);
    const EtiquetteRv& a = livre->lrv.at(1);
    EXPECT_EQ(a.top, 6950);
    EXPECT_EQ(a.height, 975);
    EXPECT_EQ(a.left, 845);
    EXPECT_EQ(a.width, 5310);
    EXPECT_EQ(a.legende, QStringLiteral("Coupe"));
    EXPECT_EQ(a.couleur, 0x101010);
    const EtiquetteRv& b = livre->lrvd.at(2);
    EXPECT_EQ(b.top, 1100);
    EXPECT_EQ(b.height, 1300);
    EXPECT_EQ(livre->lrv.at(3).top, 3700 + 4 * 1300 + 650);
    EXPECT_EQ(livre->lrv.at(3).height, 1300);
    EXPECT_EQ(livre->lrvd.at(4).top, 1100 + 6 * 1300 + 975); // below the ruling, not clipped
    EXPECT_EQ(livre->lrv.at(5).height, EtiquetteRv::hauteur_modele); // refused: as designed
    EXPECT_EQ(livre->num_rv_label[2], 2);
    EXPECT_EQ(livre->num_rv_label[4], 4);
}

TEST_F(Pages, RegleDesDeuxPages) {
    charge();
    const auto& t = livre->table_pages;
    EXPECT_EQ((std::array{t[10], t[11], t[8], t[40], t[41], t[42], t[43]}),
              (std::array<std::int16_t, 7>{5, 1300, 3700 - 7 * 1300, 7, 1300, 650, 325}));
    EXPECT_FLOAT_EQ(livre->echelle_d, 13.0f);

    const ui::Surface& g = livre->pageg;
    EXPECT_TRUE(a_un_trait(g, 3700, 0xC0C0C0, false));
    EXPECT_TRUE(a_un_trait(g, 3700 + 650, 0xE0E0E0, false));
    EXPECT_TRUE(a_un_trait(g, 3700 + 325, 0xE0E0E0, true));
    EXPECT_TRUE(a_un_trait(g, 3700 + 975, 0xE0E0E0, true));
    EXPECT_TRUE(a_un_trait(g, 3700 + 4 * 1300, 0xC0C0C0, false));
    EXPECT_FALSE(a_un_trait(g, 3700 + 5 * 1300, 0xC0C0C0, false)); // no closing line
    EXPECT_EQ(g.traits().size(), 5u * 4);

    // The hours stand 100 twips left of the ruling, 200 above their line; "30" in small type.
    ASSERT_EQ(g.textes().size(), 10u);
    for (const auto& [i, texte, y, taille] :
         {std::tuple{0, "7", 3500, 16.0}, {1, "30", 3700 + 650 - 120, 8.0}}) {
        const auto& t = g.textes()[std::size_t(i)];
        EXPECT_EQ(t.texte, QString::fromLatin1(texte));
        EXPECT_EQ(t.y, y);
        EXPECT_DOUBLE_EQ(t.taille, taille);
        EXPECT_EQ(t.police, QStringLiteral("Arial"));
    }
    EXPECT_EQ(livre->paged.textes()[12].texte, QStringLiteral("18"));
}

TEST_F(Pages, LesOngletsSeCouchentCommeDansUnRepertoire) {
    charge();
    // After each click, the tabs in use standing on the left edge (the others stand right).
    struct Cas {
        bool gauche;
        int onglet;
        std::vector<int> a_gauche;
    };
    const std::vector<Cas> table = {{true, 0, {0}},           {true, 1, {0}},
                                    {false, 0, {0}},          {true, 2, {0, 1}},
                                    {false, 1, {0, 1}},       {true, 3, {0, 1, 2}},
                                    {false, 2, {0, 1, 2}},    {true, 4, {0, 1, 2, 3}},
                                    {false, 3, {0, 1, 2, 3}}, {false, 4, {0, 1, 2, 3, 4}}};
    for (const Cas& c : table) {
        c.gauche ? livre->ongletg_Click(c.onglet) : livre->ongletd_Click(c.onglet);
        for (int j = 0; j < 12; ++j) {
            const bool attendu_gauche =
                std::find(c.a_gauche.begin(), c.a_gauche.end(), j) != c.a_gauche.end();
            const bool attendu_droite = j <= 5 && !attendu_gauche;
            EXPECT_EQ(livre->ongletg_visible[j], attendu_gauche) << c.onglet << " tab " << j;
            EXPECT_EQ(livre->ongletd_visible[j], attendu_droite) << c.onglet << " tab " << j;
        }
        EXPECT_EQ(livre->vue_visible, c.onglet);
    }
    // Slots without a page show an empty one; 5 and 11 end the program.
    for (const int n : {6, 10}) {
        livre->sel_onglet(n);
        EXPECT_EQ(livre->vue_visible, n);
    }
    for (const int n : {5, 11})
        EXPECT_THROW(livre->sel_onglet(n), FinDemandee) << n;
}

TEST_F(Pages, DeJourEnJourParLesFlechesEtLeCalendrier) {
    fixe_maintenant(QDateTime(QDate(2004, 12, 31), QTime(9, 0)));
    rendez_vous(QStringLiteral("tf_r0000.wdo"), {"050101:09H30:10H15", "050102:09H30:10H15"});
    charge();
    livre->ongletd_Click(1); // the tabs stay as they are after a step
    livre->Picture3_Click();
    EXPECT_EQ(livre->Label1 + livre->Label2 + livre->Label3 + livre->Label4,
              QStringLiteral("2005Samedi01Janvier"));
    EXPECT_EQ(livre->lrv.size(), 1u);
    EXPECT_EQ(livre->vue_visible, 0);
    EXPECT_TRUE(livre->ongletg_visible[1]);
    livre->Picture3_Click();
    EXPECT_EQ(ui::jour_de(etat.date_courante), QDate(2005, 1, 2));
    EXPECT_EQ(ui::jour_de(livre->calend), QDate(2005, 1, 2));
    livre->Picture2_Click();
    livre->Picture2_Click();
    EXPECT_EQ(livre->Label3, QStringLiteral("31"));
    EXPECT_TRUE(livre->lrv.empty());
    livre->calend_Click(ui::date_de(QDate(2005, 1, 2)));
    EXPECT_EQ(livre->Label2, QStringLiteral("Dimanche"));
    EXPECT_EQ(livre->lrv.size(), 1u);
}
