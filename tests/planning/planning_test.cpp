// The planning: its columns and boxes at their twips, the mouse over them, the transfer's states
// and the bytes of a drop; the collaborator choice and the book's change of collaborator.

#include "editor/detarv.h"
#include "editor/inter.h"
#include "input/mini_97.h"
#include "planning/saisiuti.h"
#include "planning/torva11.h"
#include "support/support.h"

using namespace agenda;
using agenda::test::FinDemandee;
using agenda::test::Gabarit;

namespace {

// 14H30 to 15H00 in column 1 of two: from 1000 + 667 * 7.5 (half to even) to 1000 + 667 * 8.
constexpr int x_boite = 400, y_boite = 6100;

class Planning : public agenda::test::Livre {
protected:
    void SetUp() override {
        Livre::SetUp();
        ui::scenario<Detarv>([this](Detarv&) { editeurs << etat.num_collab * 1000 + etat.num_rv; });
        ui::scenario<Mini97>([this](Mini97& b) {
            messages << b.Label1;
            b.btc_Click(2);
        });
        fichiers_du_jour();
        charge(); // 07:12:19, on 3 March 2004
        transfert = Transfert::repos;
        planning.Form_Load();
    }
    static Gabarit rendez_vous_1() {
        return agenda::test::rv_vierge()
            .texte({{0, 20, "040303:09H30:10H15"},
                    {20, 402, "Coupe\r\nMarie"},
                    {490, 20, "0612345678040303930"},
                    {510, 2, "\r\n"}})
            .i32({{434, 45}, {438, 7}, {442, 96}, {446, 0x123456}, {450, 1}});
    }
    void fichiers_du_jour() {
        ecrit(QStringLiteral("tf_r0001.wdo"),
              agenda::test::rv_entete(2) + rendez_vous_1().octets() +
                  agenda::test::rv("040303:14H30:15H00", "Brushing"));
        ecrit(QStringLiteral("tf_r0002.wdo"),
              agenda::test::rv_entete(1) + agenda::test::rv("040303:11H00:12H00"));
    }
    QByteArray fichiers() const {
        return contenu(QStringLiteral("tf_r0001.wdo")) + contenu(QStringLiteral("tf_r0002.wdo"));
    }

    Torva11 planning;
    QList<int> editeurs; // collaborator * 1000 + appointment, at each opening
    QStringList messages;
};

} // namespace

TEST_F(Planning, ColonnesEtHeuresSelonLeReglageEtLesCollaborateurs) {
    struct Cas {
        const char* lignes;
        int debut, fin;
        int largeur, hauteur, x1_colonne2, x2_colonne2;
    } const cas[] = {
        {"01 : A\r\n", 7, 19, 15000, 667, 0, 0},
        {"01 : A\r\n02 : B\r\n03 : C\r\n", 7, 19, 5000, 667, 5350, 10085},
        {"01 : A\r\n02 : B\r\n03 : C\r\n04 : D\r\n", 8, 19, 3750, 727, 4100, 7585},
    };
    for (const Cas& c : cas) {
        ecrit(QStringLiteral("lien_agenda.txt"), c.lignes);
        charge();
        etat.heure_debut = std::int16_t(c.debut);
        etat.heure_fin = std::int16_t(c.fin);
        Torva11 p;
        p.Form_Load();
        EXPECT_EQ(p.largeur_colonne, c.largeur);
        EXPECT_EQ(p.hauteur_heure, c.hauteur);
        const int colonnes = etat.nb_collab, heures = c.fin - c.debut;
        // A line and a number for each hour but the opening one, in every column.
        ASSERT_EQ(int(p.p1.traits().size()), colonnes * heures);
        const auto& premier = p.p1.textes().front();
        EXPECT_EQ(premier.texte, QString::number(c.debut + 1));
        EXPECT_EQ(premier.x + p.p1.largeur_texte(premier.texte), 100 + 200);
        if (colonnes > 1) {
            const auto& t = p.p1.traits()[std::size_t(heures)];
            EXPECT_EQ(std::tuple(t.x1, t.x2, t.y1),
                      std::tuple(c.x1_colonne2, c.x2_colonne2, 1000 + c.hauteur));
        }
    }
}

TEST_F(Planning, LesRendezVousDuJourEnBoites) {
    EXPECT_EQ(planning.Label2 + planning.Label3 + planning.Label4,
              QStringLiteral("Mercredi03Mars"));
    // The texts of the whole day, on one line, and the last column's list.
    EXPECT_EQ(planning.liste_texte, (QStringList{QStringLiteral("09H30               Coupe  Marie"),
                                                 QStringLiteral("14H30               Brushing"),
                                                 QStringLiteral("11H00               Coupe")}));
    EXPECT_EQ(planning.liste_jour,
              QStringList{QStringLiteral("040303:11H00:12H00 000001:0xxxxxxxxx:16777215#JJ#"
                                         "000003:11H00")});
    // 10H15 is 10.25 by text, and 7.5 hours below the opening is 6002 half to even.
    ASSERT_EQ(planning.nb_boites(), 3);
    const auto ligne = [](const BoiteRv& b) {
        return std::vector{int(b.collab), b.gauche,      b.haut, b.droite,
                           b.bas,         int(b.numero), b.texte};
    };
    EXPECT_EQ(ligne(planning.table_rv[0]), (std::vector{1, 370, 2668, 7570, 3168, 1, 1}));
    EXPECT_EQ(ligne(planning.table_rv[1]), (std::vector{1, 370, 6002, 7570, 6336, 2, 2}));
    EXPECT_EQ(ligne(planning.table_rv[2]), (std::vector{2, 7870, 3668, 15070, 4335, 1, 3}));
    const auto& corps = planning.p1.boites()[0];
    EXPECT_EQ(std::vector({corps.x1, corps.y1, corps.x2, corps.y2, int(corps.couleur)}),
              std::vector({370, 2668, 7540, 3123, 0x123456}));
    // In the box, a carriage return and its line feed read ". ".
    EXPECT_TRUE(
        std::any_of(planning.p1.textes().begin(), planning.p1.textes().end(),
                    [](const auto& t) { return t.texte == QStringLiteral("Coupe. Marie"); }));
}

TEST_F(Planning, UnMotLongCoupeEtDesHeuresALEnvers) {
    ecrit(QStringLiteral("tf_r0001.wdo"),
          agenda::test::rv_entete(2) +
              agenda::test::rv("040303:08H00:12H00", QByteArray(60, 'W').constData()) +
              agenda::test::rv("040303:09H05:09H30", "Rien"));
    planning.Form_Load();
    // 09H05 is 9.8 by text, below 09H30: the body is drawn upside down, and no text.
    const auto& envers = planning.p1.boites()[3];
    EXPECT_GT(envers.y1, envers.y2);
    QStringList lignes;
    for (const auto& t : planning.p1.textes()) {
        EXPECT_NE(t.texte, QStringLiteral("Rien"));
        if (t.texte.startsWith(QLatin1Char('W'))) lignes << t.texte;
    }
    // The character that overflows stays on the line it overflowed.
    ASSERT_EQ(lignes.size(), 2);
    EXPECT_GT(planning.p1.largeur_texte(lignes[0]), 7500 - 400);
    EXPECT_LE(planning.p1.largeur_texte(lignes[0].chopped(1)), 7500 - 400);
    EXPECT_EQ(lignes.join(QString()), QString(60, QLatin1Char('W')));
}

TEST_F(Planning, LaSourisSurLesBoites) {
    // Two boxes that share an edge: the first row wins a click, the last one the hover.
    ecrit(QStringLiteral("tf_r0001.wdo"),
          agenda::test::rv_entete(2) + agenda::test::rv("040303:09H00:10H00", "Un", 0x0000FF) +
              agenda::test::rv("040303:10H00:11H00", "Deux", 0x00FF00));
    planning.Form_Load();
    const int bord = planning.table_rv[0].bas;
    ASSERT_EQ(bord, planning.table_rv[1].haut);
    planning.p1_MouseMove(7000, bord);
    EXPECT_EQ(planning.Label5 + planning.Label6 + planning.Label8, QStringLiteral("2Deux10H00"));
    EXPECT_EQ(planning.Label7, 0x00FF00); // the colour drawn last at the point
    planning.p1_MouseMove(x_boite, 9990); // a free place changes nothing
    EXPECT_EQ(etat.num_rv, 2);
    planning.Form_MouseMove();
    EXPECT_EQ(planning.Label5 + planning.Label6 + planning.Label8, QString());
    EXPECT_EQ(planning.Label7, 0xFFFFFF);
    planning.p1_MouseDown(370, bord);
    EXPECT_EQ(editeurs, QList<int>{1001});
}

TEST_F(Planning, LesEtatsDuTransfert) {
    using T = Transfert;
    enum Evenement { bouton, boite, libre, jour };
    struct Cas {
        T avant;
        Evenement e;
        T apres;
        int editeurs, messages;
        bool ferme, fichiers_changes;
    } const cas[] = {
        {T::repos, bouton, T::attente_prise, 0, 0, false, false},
        {T::attente_prise, bouton, T::repos, 0, 0, false, false},
        {T::attente_depot, bouton, T::repos, 0, 0, false, false},
        {T::repos, boite, T::repos, 1, 0, false, false},
        {T::attente_prise, boite, T::attente_depot, 0, 0, false, false},
        {T::attente_depot, boite, T::repos, 0, 1, false, false},
        {T::attente_depot, libre, T::repos, 1, 0, false, true},
        {T::repos, libre, T::repos, 0, 0, true, false},
        {T::attente_prise, libre, T::attente_prise, 0, 0, true, false},
        {T::repos, jour, T::repos, 0, 0, false, false},
        {T::attente_depot, jour, T::attente_depot, 0, 0, false, false},
    };
    for (const Cas& c : cas) {
        SCOPED_TRACE(int(&c - cas));
        fichiers_du_jour();
        ecrit_inter(QStringLiteral("TORVA:NUMUSER"), QString());
        editeurs.clear();
        messages.clear();
        Torva11 p;
        p.Form_Load();
        p.p1_MouseMove(x_boite, y_boite);
        transfert = c.avant;
        const QByteArray avant = fichiers();
        switch (c.e) {
        case bouton:
            p.bt_trans_Click();
            break;
        case boite:
            p.p1_MouseDown(x_boite, y_boite);
            break;
        case libre:
            p.p1_MouseDown(9000, 3100);
            break;
        case jour:
            p.Picture3_Click();
            break;
        }
        EXPECT_EQ(transfert, c.apres);
        EXPECT_EQ(int(editeurs.size()), c.editeurs);
        EXPECT_EQ(messages,
                  c.messages
                      ? QStringList{QStringLiteral("il y a deja un rendez vous a cet heure !")}
                      : QStringList());
        EXPECT_EQ(p.fermee(), c.ferme);
        EXPECT_EQ(fichiers() != avant, c.fichiers_changes);
        EXPECT_EQ(lit_inter(QStringLiteral("TORVA:NUMUSER")).trimmed(),
                  c.ferme ? QStringLiteral("0002 Julien") : QString());
    }
}

TEST_F(Planning, LeDepotVideLAncienEtNeChangeQueLHeureDeDebut) {
    planning.bt_trans_Click();
    planning.p1_MouseDown(x_boite, 2800);    // picks 09H30
    planning.p1_MouseMove(x_boite, y_boite); // and passes over 14H30, which is the one to move
    planning.p1_MouseDown(9000, 3100);       // (3100 - 1000) / 667 = 3.1: 10 h, column 2
    EXPECT_EQ(editeurs, QList<int>{2002});
    EXPECT_EQ(std::tuple(etat.num_collab, etat.num_rv, planning.nouveau_num),
              std::tuple(std::int16_t(2), 2, 2));
    const QByteArray brushing = agenda::test::rv("040303:14H30:15H00", "Brushing");
    EXPECT_EQ(contenu(QStringLiteral("tf_r0001.wdo")), agenda::test::rv_entete(2) +
                                                           rendez_vous_1().octets() +
                                                           QByteArray(20, ' ') + brushing.mid(20));
    EXPECT_EQ(contenu(QStringLiteral("tf_r0002.wdo")),
              agenda::test::rv_entete(2) + agenda::test::rv("040303:11H00:12H00") +
                  agenda::test::rv("040303:10H30:15H00", "Brushing"));
}

TEST_F(Planning, LePosteGeneralFinitAvecLePlanning) {
    ecrit_inter(QStringLiteral("TORVA:NUMUSER"), QStringLiteral("#GENE#"));
    charge();
    EXPECT_EQ(livre->Timer2.interval(), 200); // which runs the planning's tab
    ui::scenario<Torva11>([](Torva11& p) { p.command1_Click(); });
    try {
        livre->sel_click_d(3);
        livre->sel_onglet(3);
        ADD_FAILURE() << "le programme ne s'est pas arrêté";
    } catch (const FinDemandee& f) {
        EXPECT_EQ(f.code, 0);
    }
    // Elsewhere the exit button closes the planning, and the book reloads 250 ms later.
    ecrit_inter(QStringLiteral("TORVA:NUMUSER"), QStringLiteral("0001 Sophie"));
    livre->sel_onglet(3);
    EXPECT_EQ(livre->Timer1.interval(), 250);
}

TEST_F(Planning, LeChoixDuCollaborateur) {
    // Eleven entries fit; twelve need the scroll bar. Names are read from position 5.
    QByteArray lignes;
    for (int i = 1; i <= 12; ++i) {
        lignes += QByteArray::number(i).rightJustified(2, '0') + " : Nom " + QByteArray::number(i) +
                  "\r\n";
        ecrit(QStringLiteral("lien_agenda.txt"), lignes);
        charge();
        Saisiuti s;
        s.Form_Load();
        EXPECT_EQ(s.barre_defilement, i >= 12);
        EXPECT_EQ(s.largeur_colonne0, i >= 12 ? 6000 - 280 : 6000);
        EXPECT_EQ(s.g1_nom[std::size_t(i - 1)], QStringLiteral("Nom %1").arg(i));
        s.g1_Click(i); // a stripe below the list
        EXPECT_FALSE(s.fermee());
    }
    // Cancel keeps the collaborator; a row makes its line the book's own, on the same date.
    ui::scenario<Saisiuti>([](Saisiuti& s) { s.bt_annull_Click(); });
    livre->Label7_Click();
    EXPECT_EQ(lit_inter(QStringLiteral("TORVA:NUMUSER")).trimmed(), QString());
    ui::scenario<Saisiuti>([](Saisiuti& s) { s.g1_Click(2); });
    const Date jour = etat.date_courante;
    livre->Label7_Click();
    EXPECT_EQ(lit_inter(QStringLiteral("TORVA:NUMUSER")).trimmed(), QStringLiteral("0003 Nom 3"));
    EXPECT_EQ(std::tuple(etat.num_collab, livre->Label7, etat.date_courante),
              std::tuple(std::int16_t(3), QStringLiteral("Nom 3"), jour));
}
