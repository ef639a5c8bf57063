// The prompt box and the date chooser as their callers see them: what goes in through the
// globals, what every way out leaves there.

#include "input/date_97.h"
#include "input/mini_97.h"
#include "support/support.h"
#include "ui/dates.h"

using namespace agenda;

namespace {

class Boites : public agenda::test::DossierDonnees {
protected:
    void SetUp() override {
        DossierDonnees::SetUp();
        etat.date_courante = ui::date_de(QDate(1999, 1, 1)); // what the book showed
        etat.texte_retour = QStringLiteral("ancien");
    }
    void TearDown() override {
        ui::scenario<Mini97>({});
        ui::scenario<Date97>({});
        DossierDonnees::TearDown();
    }
    void choisit(std::function<void(Date97&)> script) {
        ui::scenario<Date97>(script);
        Date97 d;
        ui::montre_modal(d);
    }
    const Date mercredi = ui::date_de(QDate(2004, 3, 3)); // today by the test clock
    const Date jeudi = ui::date_de(QDate(2004, 3, 4));
};

} // namespace

TEST_F(Boites, InviteSelonLeModeEtLaSortie) {
    struct Cas {
        std::int32_t mode;
        const char* texte;
        const char* saisie; // typed into Text1, or nullptr
        int sortie;         // 2 or 3 for the buttons, 0 for Escape or the window's close
        bool champ;
        int hauteur;
        const char* label;
        std::int32_t retour;
        const char* rendu;
    };
    for (const Cas c : {
             Cas{129, "Nom du client ?|Dupont", "  Dupont  ", 2, true, 4000, "Nom du client ?", 6,
                 "Dupont"},
             {129, "Modification du message ?|Bonjour", nullptr, 3, true, 4000,
              "Modification du message ?", 7, "Bonjour"},
             {129, "Nom ?|Dupont", "Du\npont\t", 0, true, 4000, "Nom ?", 7, "Du pont"},
             {4, "Confirmez l'effacement du rendez-vous ?", nullptr, 2, false, 2500,
              "Confirmez l'effacement du rendez-vous ?", 6, ""},
             {4, "Confirmez ?", nullptr, 0, false, 2500, "Confirmez ?", 7, ""},
             {0, "Détail du rendez vous ?|", nullptr, 2, false, 2500, "Détail du rendez vous ?", 6,
              ""},
             {1129, "Texte caché|derrière la barre", nullptr, 2, false, 2500, "Texte caché", 6,
              "derrière la barre"},
         }) {
        SCOPED_TRACE(c.texte);
        etat.mini_texte = QStringLiteral("reste d'un appel précédent");
        ui::scenario<Mini97>([&](Mini97& b) {
            EXPECT_EQ(b.Text1_visible, c.champ);
            EXPECT_EQ(b.hauteur, c.hauteur);
            EXPECT_EQ(b.btc2_rect.top, c.hauteur - 750);
            EXPECT_EQ(b.Label1, QString::fromUtf8(c.label));
            if (c.saisie) b.Text1_Change(QString::fromUtf8(c.saisie));
            c.sortie ? b.btc_Click(c.sortie) : b.sortie();
            EXPECT_TRUE(b.fermee());
        });
        EXPECT_EQ(demande(QString::fromUtf8(c.texte), c.mode), c.retour);
        EXPECT_EQ(etat.mini_texte, QString::fromUtf8(c.rendu));
    }
}

TEST_F(Boites, LesCaracteresDeControleDeviennentDesBlancsSaufLeRetourArriere) {
    Mini97 b;
    b.Text1_Change(QStringLiteral("a\nb\tc\x01\x1f") + QChar(8) + QStringLiteral("é"));
    EXPECT_EQ(b.Text1, QStringLiteral("a b c  ") + QChar(8) + QStringLiteral("é"));
}

TEST_F(Boites, ChoixDeDateSelonLaSortie) {
    struct Cas {
        const char* nom;
        std::function<void(Date97&, Date)> geste;
        Date date; // date_courante afterwards
        const char* retour;
    };
    const Date livre = etat.date_courante;
    for (const Cas& c : std::vector<Cas>{
             {"confirmer sans choisir donne aujourd'hui", [](Date97&d, Date) { d.btc_Click(2); },
              mercredi, "Mercredi 03 mars 2004"},
             {"un clic puis confirmer",
              [](Date97&d, Date j) {
                  d.MonthView1_DateClick(j);
                  EXPECT_EQ(d.Label1, QStringLiteral("Jeudi 04 mars 2004"));
                  EXPECT_EQ(etat.texte_retour, d.Label1);
                  d.btc_Click(2);
              },
              jeudi, "Jeudi 04 mars 2004"},
             {"un jour choisi au clavier puis confirmer",
              [](Date97&d, Date j) {
                  d.MonthView1_SelChange(j);
                  d.btc_Click(2);
              },
              jeudi, "Jeudi 04 mars 2004"},
             {"le double clic confirme", [](Date97&d, Date j) { d.MonthView1_DateDblClick(j); },
              jeudi, "Jeudi 04 mars 2004"},
             {"annuler laisse le jour cliqué",
              [](Date97&d, Date j) {
                  d.MonthView1_DateClick(j);
                  d.btc_Click(3);
              },
              jeudi, ""},
             {"Échap annule", [](Date97&d, Date) { d.sortie(); }, livre, ""},
         }) {
        SCOPED_TRACE(c.nom);
        etat.date_courante = livre;
        choisit([&](Date97& d) {
            EXPECT_EQ(d.MonthView1, mercredi);
            c.geste(d, jeudi);
            EXPECT_TRUE(d.fermee());
        });
        EXPECT_EQ(etat.date_courante, c.date);
        EXPECT_EQ(etat.texte_retour, QString::fromUtf8(c.retour));
    }
}
