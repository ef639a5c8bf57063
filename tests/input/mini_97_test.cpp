#include "input/mini_97.h"
#include "support/support.h"
#include "ui/echelle.h"
#include "ui/vues.h"

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QPlainTextEdit>
#include <QTimer>
#include <QToolButton>

using namespace agenda;

namespace {

class BoiteInvite : public agenda::test::DossierDonnees {
protected:
    void TearDown() override {
        ui::scenario(QStringLiteral("mini_97"), {});
        DossierDonnees::TearDown();
    }
    // Shows the box; the script looks at it and presses its controls.
    void montre(std::int32_t mode, const QString& texte, std::function<void(Mini97&)> script) {
        ui::scenario(QStringLiteral("mini_97"),
                     [script](ui::FenetreModale& f) { script(static_cast<Mini97&>(f)); });
        demande(texte, mode);
    }
};

} // namespace

TEST_F(BoiteInvite, ModeTexteAvecLaBarre) {
    montre(129, QStringLiteral("Nom du client ?|Dupont"), [](Mini97& b) {
        EXPECT_EQ(b.Label1, QStringLiteral("Nom du client ?"));
        EXPECT_EQ(b.Text1, QStringLiteral("Dupont"));
        EXPECT_TRUE(b.Text1_visible);
        EXPECT_EQ(b.hauteur, 2500 + 1500);
        EXPECT_EQ(b.btc2_rect.top, 1750 + 1500);
        EXPECT_EQ(b.btc3_rect.top, 1750 + 1500);
        b.Text1_Change(QStringLiteral("  Dupont  "));
        b.btc_Click(2);
        EXPECT_TRUE(b.fermee());
    });
    EXPECT_EQ(etat.mini_mode, 6);
    EXPECT_EQ(etat.mini_texte, QStringLiteral("Dupont"));
}

TEST_F(BoiteInvite, LesAutresModesMontrentLesDeuxBoutonsSansChamp) {
    struct Cas {
        std::int32_t mode;
        const char* texte;
        int bouton;
        std::int32_t retour;
        const char* texte_rendu;
    };
    for (const Cas c : {Cas{4, "Confirmez l'effacement du rendez-vous ?", 2, 6, ""},
                        {4, "Confirmez ?", 3, 7, ""},
                        {0, "Enregistré.", 3, 7, ""},
                        {0, "Détail du rendez vous ?|", 2, 6, ""},
                        {1129, "Texte caché|derrière la barre", 2, 6, "derrière la barre"}}) {
        montre(c.mode, QString::fromUtf8(c.texte), [&](Mini97& b) {
            EXPECT_FALSE(b.Text1_visible) << c.texte;
            EXPECT_EQ(b.hauteur, 2500) << c.texte;
            EXPECT_FALSE(b.Label1.contains(QLatin1Char('|')));
            b.btc_Click(c.bouton);
        });
        EXPECT_EQ(etat.mini_mode, c.retour) << c.texte;
        EXPECT_EQ(etat.mini_texte, QString::fromUtf8(c.texte_rendu)) << c.texte;
    }
}

TEST_F(BoiteInvite, UnAnnulerRendAussiLeTexte) {
    montre(129, QStringLiteral("Modification du message ?|Bonjour"),
           [](Mini97& b) { b.btc_Click(3); });
    EXPECT_EQ(etat.mini_mode, 7);
    EXPECT_EQ(etat.mini_texte, QStringLiteral("Bonjour"));
}

TEST_F(BoiteInvite, LesCaracteresDeControleDeviennentDesBlancs) {
    Mini97 b;
    b.Text1_Change(QStringLiteral("a\nb\tc\x01\x1f") + QChar(8) + QStringLiteral("é"));
    EXPECT_EQ(b.Text1, QStringLiteral("a b c  ") + QChar(8) + QStringLiteral("é"));
}

TEST_F(BoiteInvite, ChaqueAppelPartDUneFenetreNeuve) {
    for (int i = 0; i < 2; ++i)
        montre(129, QStringLiteral("?|x"), [](Mini97& b) {
            EXPECT_EQ(b.hauteur, 4000);
            b.btc_Click(2);
        });
}

TEST_F(BoiteInvite, LaVraieBoiteSansImageDecorative) {
    enregistre_vues_input();
    ui::scenario(QStringLiteral("mini_97"), {});
    bool vue = false;
    QTimer::singleShot(0, [&] {
        auto* d = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(d, nullptr);
        vue = true;
        EXPECT_EQ(d->height(), ui::px(4000));
        auto* texte = d->findChild<QPlainTextEdit*>();
        ASSERT_NE(texte, nullptr);
        EXPECT_EQ(texte->toPlainText(), QStringLiteral("Dupont"));
        texte->setPlainText(QStringLiteral("Du\npont"));
        EXPECT_EQ(texte->toPlainText(), QStringLiteral("Du pont"));
        const auto boutons = d->findChildren<QToolButton*>();
        ASSERT_EQ(boutons.size(), 2);
        boutons[0]->click();
    });
    EXPECT_EQ(demande(QStringLiteral("Nom ?|Dupont"), 129), 6);
    EXPECT_TRUE(vue);
    EXPECT_EQ(etat.mini_texte, QStringLiteral("Du pont"));
}

TEST(Vues, ChaqueFenetreModaleASesWidgets) {
    enregistre_vues();
    for (const char* nom : {"mini_97", "date_97", "detarv"})
        EXPECT_TRUE(ui::vue_enregistree(QString::fromLatin1(nom))) << nom;
}
