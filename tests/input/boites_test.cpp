// The prompt box and the date chooser as their callers see them: what goes in through the
// globals, and what every way out leaves there.

#include "input/date_97.h"
#include "input/mini_97.h"
#include "support/support.h"
#include "ui/dates.h"

using namespace agenda;

using Boites = agenda::test::DossierDonnees;

TEST_F(Boites, InviteSelonLeModeEtLaSortie) {
    struct Cas {
        std::int32_t mode;
        const char *texte, *saisie; // the text typed into Text1, or nullptr
        int sortie;                 // 2 or 3 for the buttons
        const char* label;          // what Label1 shows
        std::int32_t retour;
        const char* rendu; // mini_texte afterwards
    };
    const Cas cas[] = {{129, "Nom ?|Dupont", "  Dupont  ", 2, "Nom ?", 6, "Dupont"},
                       {129, "Message ?|Bonjour", nullptr, 3, "Message ?", 7, "Bonjour"},
                       {4, "Confirmez ?", nullptr, 2, "Confirmez ?", 6, ""},
                       {0, "Détail ?|", nullptr, 2, "Détail ?", 6, ""},
                       {1129, "Caché|derrière", nullptr, 2, "Caché", 6, "derrière"}};
    for (const Cas& c : cas) {
        SCOPED_TRACE(c.texte);
        etat.mini_texte = QStringLiteral("reste d'un appel précédent");
        ui::scenario<Mini97>([&](Mini97& b) {
            EXPECT_EQ(b.Text1_visible, c.mode == 129); // only text mode shows the field
            EXPECT_EQ(b.Label1, QString::fromUtf8(c.label));
            if (c.saisie) b.Text1_Change(QString::fromUtf8(c.saisie));
            b.btc_Click(c.sortie);
            EXPECT_TRUE(b.fermee());
        });
        EXPECT_EQ(demande(QString::fromUtf8(c.texte), c.mode), c.retour);
        EXPECT_EQ(etat.mini_texte, QString::fromUtf8(c.rendu));
    }
    Mini97 b; // a backspace is the one control character kept
    b.Text1_Change(QStringLiteral("a\x01") + QChar(8));
    EXPECT_EQ(b.Text1, QStringLiteral("a ") + QChar(8));
}

TEST_F(Boites, ChoixDeDateSelonLaSortie) {
    const Date livre = ui::date_de(QDate(1999, 1, 1)), jeudi = ui::date_de(QDate(2004, 3, 4));
    // Opens on today, whatever the book shows; returns texte_retour, date_courante stays set.
    const auto choisit = [&](std::function<void(Date97&)> geste) {
        etat.date_courante = livre;
        ui::scenario<Date97>([&](Date97& d) {
            EXPECT_EQ(d.MonthView1, ui::date_de(QDate(2004, 3, 3)));
            geste(d);
            EXPECT_TRUE(d.fermee());
        });
        Date97 choix;
        ui::montre_modal(choix);
        return etat.texte_retour;
    };
    EXPECT_EQ(choisit([](Date97& d) { d.btc_Click(2); }), QStringLiteral("Mercredi 03 mars 2004"));
    EXPECT_EQ(choisit([&](Date97& d) { d.MonthView1_DateDblClick(jeudi); }),
              QStringLiteral("Jeudi 04 mars 2004"));
    EXPECT_EQ(etat.date_courante, jeudi);
    // A click writes the day at once; a cancel then leaves it, though the caller reads nothing.
    EXPECT_EQ(choisit([&](Date97& d) {
                  d.MonthView1_DateClick(jeudi);
                  EXPECT_EQ(d.Label1 + etat.texte_retour,
                            QStringLiteral("Jeudi 04 mars 2004Jeudi 04 mars 2004"));
                  d.btc_Click(3);
              }),
              QString());
    EXPECT_EQ(etat.date_courante, jeudi);
}
