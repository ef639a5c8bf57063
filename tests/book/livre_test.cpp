// The book: its load, its end, the day pages at the twips of their hours, the tabs and the steps
// from day to day.

#include "data/fichier_records.h"
#include "data/param.h"
#include "editor/inter.h"
#include "support/support.h"
#include "ui/dates.h"
#include "ui/erreur.h"
#include "ui/systeme.h"

#include <algorithm>
#include <QCoreApplication>

using namespace agenda;
using agenda::test::FinDemandee;

namespace {

class Livre : public agenda::test::Livre {
protected:
    // A timer of the book fires now, once.
    static void declenche(QTimer& t) {
        t.start(0);
        for (int i = 0; i < 100 && t.isActive(); ++i)
            QCoreApplication::processEvents();
    }
};

} // namespace

TEST_F(Livre, ChargementSelonLeFichierDeMessages) {
    int banniere = 0;
    QObject::connect(livre.get(), &Torva1::charge_banniere, [&] { ++banniere; });
    EXPECT_EQ(charge(), -1); // an empty folder: the default hours are stored, the general book
    EXPECT_EQ(lit_valeur_param(QStringLiteral("TORVA:HEURE")), QStringLiteral("07:12:19:020"));
    EXPECT_EQ((std::array{etat.heure_debut, etat.heure_rupture, etat.heure_fin, etat.duree_defaut,
                          etat.num_collab}),
              (std::array<std::int16_t, 5>{7, 12, 19, 20, 0}));
    EXPECT_EQ(livre->Label7 + livre->Label2, QStringLiteral("AgendaMercredi"));
    EXPECT_DOUBLE_EQ(etat.date_courante, ui::date_de(QDate(2004, 3, 3)) + 10.0 / 24); // now
    EXPECT_FALSE(canal_fichier(canal::param).ouvert());

    // Another collaborator, on a date of the past: a reload keeps the date.
    ecrit_inter(QStringLiteral("TORVA:NUMUSER"), QStringLiteral("0002 Julien Bernard"));
    rendez_vous(QStringLiteral("tf_r0002.wdo"), {"100601:09H00:10H00"});
    etat.date_courante = ui::date_de(QDate(2010, 6, 1));
    declenche(livre->Timer1);
    EXPECT_EQ(etat.num_collab, 2);
    EXPECT_EQ(livre->Label7 + livre->Label3 + livre->Label4,
              QStringLiteral("Julien Bernard01Juin"));
    EXPECT_EQ(livre->lrv.size(), 1u);
    EXPECT_EQ(banniere, 1); // loaded once, hidden

    // "#GENE#": the general book, and the planning's tab laid over 200 ms after the load.
    ecrit_inter(QStringLiteral("TORVA:NUMUSER"), QStringLiteral("#GENE#"));
    charge();
    EXPECT_EQ(livre->Timer2.interval(), 200);
    declenche(livre->Timer2);
    EXPECT_EQ(etat.num_collab, 0);
    EXPECT_TRUE(livre->ongletg_visible[3]);
}

TEST_F(Livre, CeQuiArreteLeProgrammeOuSeulementUneEtape) {
    // The right page without hours divides by zero even under the day view's traps (the left
    // page's case and a folder without its list are run on the real program).
    ecrit_param(QStringLiteral("TORVA:HEURE"), QStringLiteral("07:19:19:020"));
    try {
        livre->charge();
        ADD_FAILURE();
    } catch (const Erreur& e) {
        EXPECT_TRUE(
            e.message().contains(QStringLiteral("la page de l'après-midi n'a aucune heure")));
    }
    // An unreadable book file costs the day view its scan, not its date.
    ecrit_param(QStringLiteral("TORVA:HEURE"), QStringLiteral("07:12:19:020"));
    charge();
    canal_fichier(canal::rv).ferme();
    etat.date_courante += 1;
    EXPECT_NO_THROW(livre->sel_onglet(0));
    EXPECT_EQ(livre->Label3, QStringLiteral("04"));
}

TEST_F(Livre, LaFinLanceLeRetourEtFermeLesFichiers) {
    // Escape, and the "Sortie" tab in its two slots; each ends with status 0.
    for (const auto& [retour, geste] : std::vector<std::pair<const char*, std::function<void()>>>{
             {"", [&] { livre->Form_KeyPress(27); }},
             {"/usr/bin/caisse --menu", [&] { livre->sel_onglet(5); }},
             {"caisse", [&] { livre->sel_onglet(11); }}}) {
        ecrit_inter(QStringLiteral("TORVA:RETOUR"), QString::fromLatin1(retour));
        charge();
        livre->Form_KeyPress('a'); // any other key does nothing
        QStringList lances;
        ui::fixe_lanceur([&](const QString& l) { return lances << l, true; });
        try {
            geste();
            ADD_FAILURE() << retour;
        } catch (const FinDemandee& f) {
            EXPECT_EQ(f.code, 0);
        }
        EXPECT_EQ(lances.join(QString()), QString::fromLatin1(retour));
        EXPECT_FALSE(canal_fichier(canal::rv).ouvert());
    }
}

TEST_F(Livre, EtiquettesEtRegleAuxTwipsDeLeursHeures) {
    rendez_vous(QStringLiteral("tf_r0000.wdo"),
                {"040303:09H30:10H15",   // left page: 3700 + 2.5 hours * 1300
                 "040303:12H00:13H00",   // at the rupture: the right page's top
                 "040303:11H30:12H30",   // starts left, runs over
                 "040303:18H45:19H30",   // below the ruling, not clipped
                 "040303:10H00:09H00"}); // damaged: the design height
    charge();
    const auto et = [&](int i) {
        const EtiquetteRv& e = livre->lrv.count(i) ? livre->lrv.at(i) : livre->lrvd.at(i);
        return std::array{e.left, e.top, e.width, e.height};
    };
    EXPECT_EQ(et(1), (std::array{845, 6950, 5310, 975}));
    EXPECT_EQ(et(2), (std::array{845, 1100, 5310, 1300}));
    EXPECT_EQ(et(3), (std::array{845, 3700 + 4 * 1300 + 650, 5310, 1300}));
    EXPECT_EQ(et(4), (std::array{845, 1100 + 6 * 1300 + 975, 5310, 975}));
    EXPECT_EQ(et(5)[3], EtiquetteRv::hauteur_modele);
    EXPECT_EQ(livre->lrv.size() + 10 * livre->lrvd.size(), 23u); // three left, two right
    EXPECT_EQ(livre->lrv.at(1).legende + QString::number(livre->lrv.at(1).couleur),
              QStringLiteral("Coupe") + QString::number(0x101010));
    EXPECT_EQ(livre->num_rv_label[4], 4);

    const auto& t = livre->table_pages;
    EXPECT_EQ((std::array{t[10], t[11], t[8], t[40], t[41], t[42], t[43]}),
              (std::array<std::int16_t, 7>{5, 1300, 3700 - 7 * 1300, 7, 1300, 650, 325}));
    // The hours, the half hours (solid) and the quarters (dotted); no line closes a page.
    const ui::Surface& g = livre->pageg;
    const auto trait = [&](int y, std::int32_t c, bool pointille) {
        return std::any_of(g.traits().begin(), g.traits().end(), [&](const ui::Surface::Trait& x) {
            return x.y1 == y && x.y2 == y && x.x1 == 800 && x.x2 == 6200 && x.couleur == c &&
                   x.pointille == pointille;
        });
    };
    EXPECT_TRUE(trait(3700, 0xC0C0C0, false) && trait(3700 + 650, 0xE0E0E0, false) &&
                trait(3700 + 325, 0xE0E0E0, true) && trait(3700 + 975, 0xE0E0E0, true));
    EXPECT_FALSE(trait(3700 + 5 * 1300, 0xC0C0C0, false));
    EXPECT_EQ(g.traits().size(), 5u * 4);
    // The hours 100 twips left of the ruling and 200 above their line.
    EXPECT_EQ(g.textes()[0].texte + QString::number(g.textes()[0].y) + g.textes()[1].texte +
                  QString::number(g.textes()[1].y),
              QStringLiteral("73500304230"));
}

TEST_F(Livre, LesOngletsSeCouchentCommeDansUnRepertoire) {
    charge();
    // After each click, the tabs in use standing on the left edge; the others stand right.
    const std::vector<std::tuple<bool, int, std::vector<int>>> table = {
        {true, 0, {0}},           {true, 1, {0}},
        {false, 0, {0}},          {true, 2, {0, 1}},
        {false, 1, {0, 1}},       {true, 3, {0, 1, 2}},
        {false, 2, {0, 1, 2}},    {true, 4, {0, 1, 2, 3}},
        {false, 3, {0, 1, 2, 3}}, {false, 4, {0, 1, 2, 3, 4}}};
    for (const auto& [gauche, onglet, a_gauche] : table) {
        gauche ? livre->ongletg_Click(onglet) : livre->ongletd_Click(onglet);
        for (int j = 0; j < 12; ++j) {
            const bool g = std::find(a_gauche.begin(), a_gauche.end(), j) != a_gauche.end();
            EXPECT_EQ(livre->ongletg_visible[j], g) << onglet << " tab " << j;
            EXPECT_EQ(livre->ongletd_visible[j], j <= 5 && !g) << onglet << " tab " << j;
        }
        EXPECT_EQ(livre->vue_visible, onglet);
    }
}

TEST_F(Livre, DeJourEnJourParLesFlechesEtLeCalendrier) {
    // The clock sets the first day: 31 December, so a step crosses into the next year.
    ui::fixe_horloge([] { return QDateTime(QDate(2004, 12, 31), QTime(9, 0)); });
    rendez_vous(QStringLiteral("tf_r0000.wdo"), {"050101:09H30:10H15", "050102:09H30:10H15"});
    charge();
    livre->Picture3_Click();
    EXPECT_EQ(livre->Label1 + livre->Label2 + livre->Label3 + livre->Label4,
              QStringLiteral("2005Samedi01Janvier"));
    EXPECT_EQ(livre->lrv.size(), 1u);
    livre->Picture2_Click();
    EXPECT_TRUE(livre->lrv.empty());
    livre->calend_Click(ui::date_de(QDate(2005, 1, 2)));
    EXPECT_EQ(livre->Label2 + QString::number(livre->lrv.size()), QStringLiteral("Dimanche1"));
    EXPECT_EQ(ui::jour_de(livre->calend), QDate(2005, 1, 2));
}
