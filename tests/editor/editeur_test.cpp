// The editor's flows from the book: a click on the page or on a label opens it, scripted through
// the modal seam as an operator would work it, and the file is checked byte by byte.

#include "clients/cclifa.h"
#include "clients/lit_cli.h"
#include "data/dossier.h"
#include "data/param.h"
#include "editor/detarv.h"
#include "editor/inter.h"
#include "input/date_97.h"
#include "input/mini_97.h"
#include "support/support.h"
#include "ui/dates.h"

using namespace agenda;
using agenda::test::Gabarit;
using agenda::test::rv_entete;

namespace {

const QString rv = QStringLiteral("tf_r0001.wdo");

class Editeur : public agenda::test::Livre {
protected:
    void SetUp() override {
        Livre::SetUp();
        ecrit_inter(QStringLiteral("TORVA:NUMUSER"), QStringLiteral("0001 Sophie"));
        ecrit_param(QStringLiteral("TORVA:HEURE"), QStringLiteral("07:12:19:030"));
        ecrit(QStringLiteral("w_arr104.wdo"),
              Gabarit(256, 0).i32(105, 2).octets() +
                  Gabarit(256, 0).texte(15, 40, "Coupe femme").texte(113, 101, "045").octets() +
                  Gabarit(256, 0).texte(15, 40, "Soin").texte(113, 101, "7.5").octets());
        const QByteArray marie = Gabarit(1024)
                                     .texte({{15, 40, "DURAND Marie"},
                                             {55, 40, "3 rue Haute"},
                                             {135, 40, "75011 Paris"},
                                             {205, 15, "01.02.03.04.05"}})
                                     .octets();
        ecrit(QStringLiteral("W_CAI038.WDO"),
              Gabarit(1024).i32(254, 2).octets() + Gabarit(1024).octets() + marie);
        charge();
    }
    // The editor as the operator works it; the prompt box answers with this button.
    void editeur(std::function<void(Detarv&)> script) { ui::scenario<Detarv>(script); }
    void repond(int bouton) {
        ui::scenario<Mini97>([this, bouton](Mini97& b) {
            questions << b.Label1;
            b.btc_Click(bouton);
        });
    }
    void clic_14h() { livre->paged_MouseDown(2000, 1100 + 2 * 1300 + 10); }
    void nouveau_14h(const QString& texte) {
        editeur([texte](Detarv& d) {
            d.Text1 = texte;
            d.bt_valid_Click();
        });
        clic_14h();
    }
    QStringList questions;
};

} // namespace

TEST_F(Editeur, UnNouveauRendezVousOctetParOctet) {
    editeur([](Detarv& d) {
        EXPECT_EQ(d.Label4 + d.Label13, QStringLiteral("Mercredi 03 mars 2004Sophie"));
        EXPECT_EQ(d.Combo1 + d.Combo2 + d.Combo3 + d.Combo4 + d.Label7,
                  QStringLiteral("1400143030"));
        EXPECT_EQ(d.g1.size(), 50u); // two services, then filler rows without an index
        EXPECT_EQ(d.g1[1].nom + d.g1[1].minutes + d.g1[2].index, QStringLiteral("Soin8 mn  "));
        d.Text1 = QStringLiteral("  Mme Durand ");
        d.g1_Click(0); // Coupe femme: the standard duration gives way to its 45 minutes
        d.bt_valid_Click();
        EXPECT_TRUE(d.fermee());
    });
    clic_14h();
    EXPECT_EQ(contenu(rv),
              rv_entete(1) +
                  agenda::test::rv_vierge()
                      .texte(0, 20, "040303:14H00:14H45")
                      .texte(20, 402, "Mme Durand\r\nCoupe femme")
                      .i32({{434, 45}, {442, 3 + 31 * 3}, {446, std::int32_t(0x80000005u)}})
                      .texte(510, 2, "\r\n")
                      .octets());
    ASSERT_EQ(livre->lrvd.size(), 1u); // shown at once, at 14 h, three quarters of an hour
    EXPECT_EQ(livre->lrvd.at(1).top, 1100 + 2 * 1300);
    EXPECT_EQ(livre->lrvd.at(1).height, 975);
    EXPECT_EQ(contenu(QStringLiteral("wrv181ff.wdo")).mid(8 * 128 + 23, 11),
              QByteArray("\xE0 : 14 H 00")); // the slip
}

TEST_F(Editeur, ChangerPuisEffacerGardeLaLongueur) {
    nouveau_14h(QStringLiteral("Mme Durand"));
    editeur([](Detarv& d) {
        d.sheur_Click(3); // afternoon: 15 h
        d.Check1 = 1;
        d.Picture1_MouseDown(0);        // black: refused
        d.Picture1_MouseDown(0xC0FFC0); // a green
        d.bt_valid_Click();
    });
    livre->lrvd_Click(1);
    QByteArray octets = contenu(rv);
    EXPECT_EQ(octets.mid(512, 20), QByteArray("040303:15H00:15H30  "));
    EXPECT_EQ(octets.mid(512 + 446, 8), Gabarit(8, 0).i32({{0, 0xC0FFC0}, {4, 1}}).octets());

    for (const int bouton : {3, 2}) { // refused: nothing written; then confirmed
        repond(bouton);
        editeur([](Detarv& d) {
            d.bt_annul_Click();
            if (!d.fermee()) d.bt_valid_Click();
        });
        livre->lrvd_Click(1);
    }
    EXPECT_EQ(questions.last(), QStringLiteral("Confirmez l'effacement du rendez-vous ?"));
    EXPECT_EQ(contenu(rv), octets.replace(512, 20, "----------          "));
    EXPECT_TRUE(livre->lrvd.empty());
    nouveau_14h(QStringLiteral("M. Leroy")); // a new number, the old one never again
    EXPECT_EQ(livre->num_rv_label[1], 2);
}

TEST_F(Editeur, SortirSansEnregistrer) {
    // "Efface le texte" asks, and empties; "Effacer" on a new one leaves without a question;
    // "Valider" without a text writes nothing but the slip.
    repond(2);
    for (const bool valider : {false, true}) {
        editeur([valider](Detarv& d) {
            d.Text1 = QStringLiteral("x");
            d.g1_Click(1);
            d.bt_annull_Click();
            EXPECT_EQ(d.Text1 + d.Label9 + d.Label7, QStringLiteral("NO30"));
            valider ? d.bt_valid_Click() : d.bt_annul_Click();
            EXPECT_TRUE(d.fermee());
        });
        clic_14h();
    }
    EXPECT_EQ(questions.size(), 2);
    EXPECT_EQ(contenu(rv).size(), 0);
    EXPECT_EQ(contenu(QStringLiteral("wrv181ff.wdo")).size(), 11 * 128);
}

TEST_F(Editeur, DureeHorsLimitesRemplaceeParLaDureeStandard) {
    for (const auto& [tapee, gardee] : {std::pair{"801", 30}, {"800", 800}, {"-5", 30}}) {
        editeur([tapee = tapee](Detarv& d) {
            d.Text1 = QStringLiteral("x");
            d.Label7 = QString::fromLatin1(tapee);
            d.sauve_rv();
            d.bt_annul_Click();
        });
        repond(3);
        clic_14h();
        EXPECT_EQ(contenu(rv).right(512).mid(434, 4), Gabarit(4, 0).i32(0, gardee).octets());
    }
}

TEST_F(Editeur, UnClientChoisiCreeOuCorrigeDepuisLEditeur) {
    const auto client_du_rv = [&] { return contenu(rv).right(512).mid(438, 4); };
    const auto numero = [](std::int32_t n) { return Gabarit(4, 0).i32(0, n).octets(); };
    // Two letters and a row.
    ui::scenario<LitCli>([](LitCli& l) {
        l.Text1_Change(QStringLiteral("DU"));
        l.zlis_Click(1);
    });
    editeur([](Detarv& d) {
        d.Image1_Click();
        EXPECT_EQ(d.Label15, QStringLiteral("DURAND Marie\r\n3 rue Haute\r\n75011 Paris\r\n"
                                            "Téléphone : --------------------------------------"));
        // The name, as the text was empty, and the telephone's digits.
        EXPECT_EQ(d.Label14 + d.Text1 + d.Text2, QStringLiteral("2DURAND Marie0102030405"));
        EXPECT_TRUE(d.Image2_visible);
        d.bt_valid_Click();
    });
    clic_14h();
    EXPECT_EQ(client_du_rv(), numero(2));
    EXPECT_EQ(contenu(rv).right(512).mid(490, 20), QByteArray("01020304050403031400"));
    const qint64 longueur = contenu(rv).size();

    // Left without a choice: the client stays. Its card, corrected: the panel shows it at once.
    ui::scenario<LitCli>([](LitCli& l) { l.sortie(); });
    ui::scenario<Cclifa>([](Cclifa& f) {
        EXPECT_EQ(f.Text[Cclifa::nom], QStringLiteral("DURAND Marie"));
        f.Text_Change(Cclifa::telephone, QStringLiteral("06.11.22.33.44"));
        f.picture4_Click();
    });
    editeur([](Detarv& d) {
        d.Image1_Click();
        EXPECT_EQ(d.Label14, QStringLiteral("2"));
        d.Image2_Click();
        EXPECT_EQ(d.Text2, QStringLiteral("0611223344"));
        d.bt_valid_Click();
    });
    livre->lrvd_Click(1);
    EXPECT_EQ(client_du_rv(), numero(2));

    // A new client: created on the yes, named on its card, attached at once.
    repond(2);
    ui::scenario<LitCli>([](LitCli& l) { l.Picture3_Click(); });
    ui::scenario<Cclifa>([](Cclifa& f) {
        EXPECT_EQ(etat.num_client_courant, 3);
        f.Text_Change(Cclifa::nom, QStringLiteral("ZOLA Emile"));
        f.sortie();
    });
    editeur([](Detarv& d) {
        d.Image1_Click();
        EXPECT_EQ(d.Label14 + d.Text1, QStringLiteral("3DURAND Marie")); // the text stays
        EXPECT_TRUE(d.Label15.startsWith(QStringLiteral("ZOLA Emile\r\n")));
        d.bt_valid_Click();
    });
    livre->lrvd_Click(1);
    EXPECT_EQ(client_du_rv(), numero(3));
    EXPECT_EQ(contenu(rv).size(), longueur); // the same appointment all along
}

TEST_F(Editeur, ChangerDeDate) {
    ui::scenario<Date97>(
        [](Date97& d) { d.MonthView1_DateDblClick(ui::date_de(QDate(2004, 3, 5))); });
    editeur([](Detarv& d) {
        d.bt_corr_Click();
        EXPECT_EQ(d.Label4, QStringLiteral("Vendredi 05 mars 2004"));
        d.Text1 = QStringLiteral("Déplacé");
        d.bt_valid_Click();
    });
    clic_14h();
    EXPECT_EQ(contenu(rv).mid(512, 6), QByteArray("040305"));
    livre->sel_onglet(0); // the page click redrew only the labels; the day view, the date
    EXPECT_EQ(livre->Label3, QStringLiteral("05"));
}

TEST_F(Editeur, LesClicsDePageEtLeursBornes) {
    int heure = -1;
    editeur([&](Detarv& d) {
        heure = etat.heure_clic;
        d.bt_annul_Click();
    });
    // -1: outside the ruling, refused.
    const std::tuple<int, int, int, int> clics[] = {
        // page (1 left), x, y, hour
        {1, 2000, 3700, 7},   {1, 2000, 4999, 7},  {1, 2000, 5000, 8},
        {1, 600, 4000, 7},    {1, 599, 4000, -1},  {1, 6200, 4000, -1},
        {1, 2000, 10200, -1}, {1, 2000, 3699, -1}, {0, 6199, 10199, 18}};
    for (const auto& [gauche, x, y, attendue] : clics) {
        heure = -1;
        gauche ? livre->pageg_MouseDown(x, y) : livre->paged_MouseDown(x, y);
        EXPECT_EQ(heure, attendue) << x << "," << y;
    }
}

TEST_F(Editeur, UnEnregistrementAbimeNeSauteQueSonEtape) {
    const auto client = [this](std::int32_t n) {
        return [this, n] {
            ecrit(rv, rv_entete(1) + agenda::test::rv("040303:09H00:09H45", "Abime", 0xC0FFC0, n));
            etat.num_rv = 1;
        };
    };
    const auto sans_client = [](Detarv& d) { // the steps after the client's still ran
        EXPECT_EQ(d.Label15 + d.Text1 + d.Label7, QStringLiteral("Abime45"));
        EXPECT_EQ(d.Text1_couleur, 0xC0FFC0);
    };
    for (const auto& [abime, verifie] :
         std::vector<std::pair<std::function<void()>, std::function<void(Detarv&)>>>{
             {client(70000), sans_client},
             {client(-3), sans_client},
             {[] {
                  ecrit_param(QStringLiteral("TORVA:HORL"),
                              QStringLiteral("1    |H|99999999999          +|M|65280"));
              },
              [](Detarv& d) {
                  EXPECT_EQ(d.aiguilh.couleur, 0x000080); // kept as designed
                  EXPECT_EQ(d.aiguilm.couleur + d.face, 65281);
              }},
             {[this] {
                  ecrit(QStringLiteral("w_arr104.wdo"),
                        Gabarit(256, 0).i32(105, INT32_MAX).octets());
                  lit_nb_services();
              },
              [](Detarv& d) { EXPECT_EQ(d.g1.size(), 50u); }},
             {[] { etat.heure_clic = 23; }, // 24 is past the list: the end follows the duration
              [](Detarv& d) {
                  EXPECT_EQ(d.Combo1 + d.Combo3 + d.Combo4, QStringLiteral("232330"));
              }},
         }) {
        etat.num_rv = 0;
        abime();
        Detarv d;
        d.Form_Load();
        verifie(d);
    }
}
