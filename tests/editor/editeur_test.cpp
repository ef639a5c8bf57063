// The editor's flows from the book: a click on the page or on a label opens it, scripted
// through the modal seam as an operator would work it, and the file is checked byte by byte.

#include "data/dossier.h"
#include "data/fichier_records.h"
#include "data/param.h"
#include "editor/detarv.h"
#include "editor/inter.h"
#include "input/date_97.h"
#include "input/mini_97.h"
#include "support/livre.h"
#include "ui/dates.h"
#include "ui/surface.h"

#include <QGuiApplication>
#include <QPalette>

using namespace agenda;
using agenda::test::Gabarit;
using agenda::test::rv_entete;
using agenda::test::rv_vierge;

namespace {

const QString rv = QStringLiteral("tf_r0001.wdo");

class Editeur : public agenda::test::Livre {
protected:
    void SetUp() override {
        Livre::SetUp();
        ecrit_inter(QStringLiteral("TORVA:NUMUSER"), QStringLiteral("0001 Sophie"));
        ecrit_param(QStringLiteral("TORVA:HEURE"), QStringLiteral("07:12:19:030"));
        Gabarit services(256, 0);
        services.i32(105, 2);
        ecrit(QStringLiteral("w_arr104.wdo"),
              services.octets() +
                  Gabarit(256, 0).texte(15, 40, "Coupe femme").texte(113, 101, "045").octets() +
                  Gabarit(256, 0).texte(15, 40, "Brushing").texte(113, 101, "020").octets());
        Gabarit clients(1024);
        clients.i32(254, 2);
        ecrit(QStringLiteral("W_CAI038.WDO"),
              clients.octets() + Gabarit(1024).texte(15, 40, "Clients Divers").octets() +
                  Gabarit(1024)
                      .texte(15, 40, "DURAND Marie")
                      .texte(55, 40, "3 rue de la Roquette")
                      .texte(135, 40, "75011 Paris")
                      .texte(205, 15, "01.02.03.04.05")
                      .octets());
        charge();
    }
    void TearDown() override {
        ui::scenario<Detarv>({});
        ui::scenario<Mini97>({});
        ui::scenario<Date97>({});
        Livre::TearDown();
    }
    // The editor as the operator works it.
    void editeur(std::function<void(Detarv&)> script) { ui::scenario<Detarv>(script); }
    // The prompt box answers with this button.
    void repond(int bouton) {
        ui::scenario<Mini97>([this, bouton](Mini97& b) {
            questions << b.Label1;
            b.btc_Click(bouton);
        });
    }
    // A click at 14 h on the right page, and a new appointment written there.
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
        EXPECT_EQ(d.Label4, QStringLiteral("Mercredi 03 mars 2004"));
        EXPECT_EQ(d.Label13, QStringLiteral("Sophie"));
        EXPECT_EQ(d.Combo1, QStringLiteral("14"));
        EXPECT_EQ(d.Combo2, QStringLiteral("00"));
        EXPECT_EQ(d.Check2, 1);
        EXPECT_EQ(d.Label7, QStringLiteral("30"));
        EXPECT_EQ(d.Combo3 + d.Combo4, QStringLiteral("1430"));
        EXPECT_EQ(d.Text1_couleur, Detarv::couleur_fenetre);
        EXPECT_EQ(d.g1.size(), 50u);
        EXPECT_EQ(d.g1[0].nom, QStringLiteral("Coupe femme"));
        EXPECT_EQ(d.g1[0].minutes, QStringLiteral("45 mn  "));
        EXPECT_EQ(d.g1[2].index, QString());
        d.Text1 = QStringLiteral("  Mme Durand ");
        d.bt_valid_Click();
        EXPECT_TRUE(d.fermee());
    });
    clic_14h();
    EXPECT_EQ(etat.num_rv, 0);
    const QByteArray attendu = rv_entete(1) + rv_vierge()
                                                  .texte(0, 20, "040303:14H00:14H30")
                                                  .texte(20, 402, "Mme Durand")
                                                  .i32(434, 30)
                                                  .i32(442, 3 + 31 * 3)
                                                  .i32(446, std::int32_t(0x80000005u))
                                                  .texte(510, 2, "\r\n")
                                                  .octets();
    EXPECT_EQ(contenu(rv), attendu);
    // The book shows it at once, drawn in the system's window colour.
    ASSERT_EQ(livre->lrvd.size(), 1u);
    EXPECT_EQ(livre->lrvd.at(1).top, 1100 + 2 * 1300);
    EXPECT_EQ(livre->lrvd.at(1).height, 650);
    EXPECT_EQ(ui::couleur(livre->lrvd.at(1).couleur),
              QGuiApplication::palette().color(QPalette::Base));
    // The slip carries its date and time.
    EXPECT_EQ(contenu(QStringLiteral("wrv181ff.wdo")).mid(8 * 128 + 23, 11),
              QByteArray("\xE0 : 14 H 00"));
}

TEST_F(Editeur, UnServiceDonneSaDuree) {
    editeur([](Detarv& d) {
        d.Text1 = QStringLiteral("Mme Durand");
        d.g1_Click(0);
        EXPECT_EQ(d.Label9, QString());
        d.bt_valid_Click();
    });
    clic_14h();
    EXPECT_EQ(contenu(rv).mid(512, 20), QByteArray("040303:14H00:14H45  "));
    EXPECT_EQ(contenu(rv).mid(512 + 20, 25), QByteArray("Mme Durand\r\nCoupe femme  "));
    EXPECT_EQ(livre->lrvd.at(1).height, 975);
}

TEST_F(Editeur, ChangerPuisEffacerGardeLaLongueur) {
    nouveau_14h(QStringLiteral("Mme Durand"));
    // Changed: the hour on the clock, the frame and the colour.
    editeur([](Detarv& d) {
        EXPECT_EQ(d.Text1, QStringLiteral("Mme Durand"));
        EXPECT_EQ(d.Label7, QStringLiteral("30"));
        d.sheur_Click(3); // afternoon: 15 h
        d.Check1 = 1;
        d.Picture1_MouseDown(0);        // black: no change
        d.Picture1_MouseDown(0xC0FFC0); // a green
        d.bt_valid_Click();
    });
    livre->lrvd_Click(1);
    QByteArray octets = contenu(rv);
    ASSERT_EQ(octets.size(), 2 * 512);
    EXPECT_EQ(octets.mid(512, 20), QByteArray("040303:15H00:15H30  "));
    EXPECT_EQ(octets.mid(512 + 446, 8), Gabarit(8, 0).i32(0, 0xC0FFC0).i32(4, 1).octets());
    EXPECT_TRUE(livre->lrvd.at(1).bordure);

    // Asked and refused: the window stays open, nothing written.
    repond(3);
    editeur([](Detarv& d) {
        d.bt_annul_Click();
        EXPECT_FALSE(d.fermee());
        d.bt_valid_Click();
    });
    livre->lrvd_Click(1);
    EXPECT_EQ(contenu(rv), octets);

    repond(2);
    editeur([](Detarv& d) { d.bt_annul_Click(); });
    livre->lrvd_Click(1);
    EXPECT_EQ(questions.last(), QStringLiteral("Confirmez l'effacement du rendez-vous ?"));
    octets.replace(512, 20, "----------          ");
    EXPECT_EQ(contenu(rv), octets);
    EXPECT_TRUE(livre->lrvd.empty());
    EXPECT_EQ(etat.num_rv, 0);

    // The next appointment takes a new number.
    nouveau_14h(QStringLiteral("M. Leroy"));
    EXPECT_EQ(contenu(rv).size(), 3 * 512);
    EXPECT_EQ(livre->num_rv_label[1], 2);
}

TEST_F(Editeur, SortirSansEnregistrer) {
    // Without a text "Valider" writes nothing but the slip; "Effacer" on a new one asks nothing.
    repond(2);
    for (const bool valider : {true, false}) {
        editeur([valider](Detarv& d) {
            if (!valider) d.Text1 = QStringLiteral("pas enregistré");
            valider ? d.bt_valid_Click() : d.bt_annul_Click();
            EXPECT_TRUE(d.fermee());
        });
        clic_14h();
        EXPECT_EQ(etat.num_rv, 0);
    }
    EXPECT_TRUE(questions.isEmpty());
    EXPECT_EQ(contenu(rv).size(), 0);
    EXPECT_EQ(contenu(QStringLiteral("wrv181ff.wdo")).size(), 11 * 128);
}

TEST_F(Editeur, DureeHorsLimitesRemplaceeParLaDureeStandard) {
    for (const auto& [tapee, gardee] : {std::pair{"801", 30}, {"800", 800}, {"-5", 30}}) {
        editeur([tapee = tapee](Detarv& d) {
            d.Text1 = QStringLiteral("x");
            d.Label7 = QString::fromLatin1(tapee);
            d.sauve_rv();
            d.bt_annul_Click(); // leaves, the record written
        });
        repond(3);
        clic_14h();
        const QByteArray octets = contenu(rv);
        EXPECT_EQ(octets.right(512).mid(434, 4), Gabarit(4, 0).i32(0, gardee).octets()) << tapee;
    }
}

TEST_F(Editeur, LeClientDuRendezVous) {
    ecrit(rv, rv_entete(2) +
                  rv_vierge()
                      .texte(0, 20, "040303:09H00:09H30")
                      .i32(438, 2)
                      .texte(510, 2, "\r\n")
                      .octets() +
                  rv_vierge()
                      .texte(0, 20, "040303:10H00:10H30")
                      .texte(20, 402, "Couleur")
                      .i32(438, 2)
                      .texte(510, 2, "\r\n")
                      .octets());
    livre->sel_onglet(0);
    editeur([](Detarv& d) {
        EXPECT_EQ(d.Label15,
                  QStringLiteral("DURAND Marie\r\n3 rue de la Roquette\r\n75011 Paris\r\n"
                                 "Téléphone : --------------------------------------"));
        EXPECT_EQ(d.Text2, QStringLiteral("0102030405"));
        EXPECT_TRUE(d.Image2_visible);
        EXPECT_EQ(d.Text1, QStringLiteral("DURAND Marie")); // an empty text takes the name
        EXPECT_EQ(etat.num_client_courant, 2);
        d.bt_valid_Click();
    });
    livre->lrv_Click(1);
    const QByteArray octets = contenu(rv);
    EXPECT_EQ(octets.mid(512 + 490, 20), QByteArray("01020304050403030900"));
    EXPECT_EQ(octets.mid(512 + 20, 12), QByteArray("DURAND Marie"));
    editeur([](Detarv& d) {
        EXPECT_EQ(d.Text1, QStringLiteral("Couleur")); // a text there stays
        d.bt_valid_Click();
    });
    livre->lrv_Click(2);
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
    EXPECT_EQ(livre->Label3, QStringLiteral("03")); // the page click redraws only the labels
    livre->sel_onglet(0);
    EXPECT_EQ(livre->Label3, QStringLiteral("05"));
    EXPECT_EQ(livre->lrvd.size(), 1u);
}

TEST_F(Editeur, EffacerLeTexte) {
    repond(2);
    editeur([](Detarv& d) {
        d.Text1 = QStringLiteral("x");
        d.g1_Click(1);
        d.bt_annull_Click();
        EXPECT_EQ(d.Text1, QString());
        EXPECT_EQ(d.Label9, QStringLiteral("NO"));
        EXPECT_EQ(d.Label7, QStringLiteral("30"));
        EXPECT_FALSE(d.fermee());
        d.bt_annul_Click();
    });
    clic_14h();
    EXPECT_EQ(questions, QStringList{QStringLiteral(
                             "Confirmez l'effacement du texte et du détail des prestations ?")});
    EXPECT_EQ(contenu(rv).size(), 0);
}

TEST_F(Editeur, LesClicsDePageEtLeursBornes) {
    std::vector<int> heures;
    editeur([&](Detarv& d) {
        heures.push_back(etat.heure_clic);
        d.bt_annul_Click();
    });
    struct Cas {
        bool gauche;
        int x, y;
        int heure; // -1: refused
    };
    for (const Cas c : {Cas{true, 2000, 3700, 7},
                        {true, 2000, 4999, 7},
                        {true, 2000, 5000, 8},
                        {true, 600, 4000, 7},
                        {true, 599, 4000, -1},
                        {true, 6200, 4000, -1},
                        {true, 2000, 10200, -1},
                        {true, 2000, 3699, -1},
                        {false, 2000, 1100, 12},
                        {false, 6199, 10199, 18}}) {
        heures.clear();
        c.gauche ? livre->pageg_MouseDown(c.x, c.y) : livre->paged_MouseDown(c.x, c.y);
        if (c.heure < 0)
            EXPECT_TRUE(heures.empty()) << c.x << "," << c.y;
        else
            EXPECT_EQ(heures, std::vector<int>{c.heure}) << c.x << "," << c.y;
        EXPECT_EQ(etat.page_base, c.gauche ? 0 : 30);
    }
    heures.clear();
    livre->lrv_Click(0); // the template is not a label on show
    EXPECT_TRUE(heures.empty());
}

TEST_F(Editeur, UnEnregistrementAbimeNeSauteQueSonEtape) {
    struct Cas {
        const char* nom;
        std::function<void()> abime;
        std::function<void(Detarv&)> verifie;
    };
    const auto rendez_vous_du_client = [this](std::int32_t client) {
        return [this, client] {
            ecrit(rv, rv_entete(1) + rv_vierge()
                                         .texte(0, 20, "040303:09H00:09H45")
                                         .texte(20, 402, "Abime")
                                         .i32(438, client)
                                         .i32(446, 0xC0FFC0)
                                         .texte(490, 20, "0611223344")
                                         .texte(510, 2, "\r\n")
                                         .octets());
            etat.num_rv = 1;
        };
    };
    const auto charge_sans_client = [](Detarv& d) {
        EXPECT_TRUE(d.Label15.isEmpty());
        EXPECT_EQ(d.Text1, QStringLiteral("Abime"));
        EXPECT_EQ(d.Label7, QStringLiteral("45")); // the steps after the client's still ran
        EXPECT_EQ(d.Text1_couleur, 0xC0FFC0);
        EXPECT_EQ(d.Label8, QStringLiteral("0611223344          "));
    };
    for (const Cas& c : std::vector<Cas>{
             {"un client au-delà de 16 bits", rendez_vous_du_client(70000), charge_sans_client},
             {"un client négatif", rendez_vous_du_client(-3), charge_sans_client},
             {"une couleur d'aiguille qui déborde",
              [] {
                  ecrit_param(QStringLiteral("TORVA:HORL"),
                              QStringLiteral("1    |H|99999999999          +|M|65280"));
              },
              [](Detarv& d) {
                  EXPECT_EQ(d.aiguilh.couleur, 0x000080); // as designed
                  EXPECT_EQ(d.aiguilm.couleur, 65280);
                  EXPECT_EQ(d.face, 1);
              }},
             {"un catalogue qui se dit de 2^31 services",
              [this] {
                  ecrit(QStringLiteral("w_arr104.wdo"),
                        Gabarit(256, 0).i32(105, 0x7FFFFFFF).octets());
                  lit_nb_services();
              },
              [](Detarv& d) { EXPECT_EQ(d.g1.size(), 50u); }},
             {"un collaborateur inconnu", [] { etat.num_collab = 9; },
              [](Detarv& d) { EXPECT_EQ(d.Label13, QStringLiteral("Collaborateur")); }},
             {"la dernière heure du jour cliquée", [] { etat.heure_clic = 23; },
              [](Detarv& d) {
                  EXPECT_EQ(d.Combo1, QStringLiteral("23"));
                  EXPECT_EQ(d.Combo3, QStringLiteral("23")); // the end follows the duration
                  EXPECT_EQ(d.Combo4, QStringLiteral("30"));
              }},
         }) {
        SCOPED_TRACE(c.nom);
        etat.num_rv = 0;
        c.abime();
        Detarv d;
        d.Form_Load();
        c.verifie(d);
    }
}

TEST_F(Editeur, LesMinutesDesServicesSontArrondies) {
    ecrit(QStringLiteral("w_arr104.wdo"),
          Gabarit(256, 0).i32(105, 1).octets() +
              Gabarit(256, 0).texte(15, 40, "Soin").texte(113, 101, "7.5").octets());
    lit_nb_services();
    Detarv d;
    d.Form_Load();
    EXPECT_EQ(d.g1.at(0).minutes, QStringLiteral("8 mn  "));
}
