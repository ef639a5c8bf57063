// The client list and card through their real widgets, offscreen: letters typed or tapped, the
// keys of the criterion, and Escape on the card, which saves.

#include "clients/vue/cclifa_vue.h"
#include "clients/vue/lit_cli_vue.h"
#include "data/etat.h"
#include "support/support.h"
#include "support/vues.h"
#include "ui/vue/echelle.h"

#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

using namespace agenda;
using agenda::test::Gabarit;
using agenda::test::puis;
using agenda::test::touche;

namespace {

class FenetresClients : public agenda::test::DossierDonnees {
protected:
    void SetUp() override {
        DossierDonnees::SetUp();
        ui::enregistre_vue<LitCli, LitCliVue>();
        ui::enregistre_vue<Cclifa, CclifaVue>();
        const auto client = [](const char* nom, const char* ville) {
            return Gabarit(1024).texte({{15, 40, nom}, {135, 40, ville}}).octets();
        };
        ecrit(QStringLiteral("W_CAI038.WDO"),
              Gabarit(1024).i32(254, 3).octets() + client("Clients Divers", "") +
                  client("DUPONT Jean", "69000 Lyon") + client("DURAND Marie", "75011 Paris"));
    }
    static void tape(QWidget& w, const QString& texte) {
        for (const QChar c : texte)
            touche(w, 0, c);
    }
    // The row texts on show, the empty ones left out.
    static QStringList rangs(QDialog& d) {
        QStringList r;
        for (int i = 1; i <= LitCli::lignes; ++i)
            for (auto* l : d.findChildren<QLabel*>())
                if (l->geometry() == ui::px(LitCli::zlis_rect(i)) && !l->text().isEmpty())
                    r << l->text();
        return r;
    }
};

} // namespace

TEST_F(FenetresClients, LesLettresTapeesOuTouchees) {
    QStringList vus;
    puis([&](QDialog& d) {
        auto* critere = d.findChild<QLineEdit*>();
        EXPECT_EQ(d.focusWidget(), critere); // the criterion takes the typing
        tape(*critere, QStringLiteral("du"));
        vus << rangs(d).join(QLatin1Char(','));
        for (auto* b : d.findChildren<QToolButton*>())
            if (b->geometry() == ui::px(LitCli::touche(18))) b->click(); // R
        vus << critere->text() + QLatin1Char('>') + rangs(d).join(QLatin1Char(','));
        touche(*critere, Qt::Key_Return);
    });
    LitCli liste;
    ui::montre_modal(liste);
    EXPECT_EQ(vus, (QStringList{QStringLiteral("DUPONT Jean 69000 Lyon,DURAND Marie 75011 Paris"),
                                QStringLiteral("duR>DURAND Marie 75011 Paris")}));
    EXPECT_EQ(etat.texte_retour,
              QStringLiteral("DURAND Marie 75011 Paris").leftJustified(80) + QStringLiteral(":3"));

    puis([](QDialog& d) { touche(*d.findChild<QLineEdit*>(), Qt::Key_Escape); });
    LitCli encore;
    ui::montre_modal(encore);
    EXPECT_EQ(etat.texte_retour, QString(85, QLatin1Char(' ')));
}

TEST_F(FenetresClients, LaFicheRefuseLeTropLongEtEchapEnregistre) {
    etat.num_client_courant = 2;
    QString vu;
    puis([&](QDialog& d) {
        auto* nom = d.findChild<QLineEdit*>();
        EXPECT_EQ(d.focusWidget(), nom);
        nom->selectAll();
        tape(*nom, QString(31, QLatin1Char('N')));
        vu = nom->text();
        touche(d, Qt::Key_Escape);
    });
    Cclifa fiche;
    ui::montre_modal(fiche);
    EXPECT_EQ(vu, QString(30, QLatin1Char('N')));
    EXPECT_EQ(contenu(QStringLiteral("W_CAI038.WDO")).mid(2 * 1024 + 15, 40),
              QByteArray(30, 'N').leftJustified(40));
}
