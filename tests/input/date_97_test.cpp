#include "input/date_97.h"
#include "support/support.h"
#include "ui/dates.h"
#include "ui/vues.h"

#include <QApplication>
#include <QCalendarWidget>
#include <QDialog>
#include <QTimer>

using namespace agenda;

namespace {

class ChoixDate : public agenda::test::DossierDonnees {
protected:
    void SetUp() override {
        DossierDonnees::SetUp();
        etat.date_courante = ui::date_de(QDate(1999, 1, 1)); // what the book showed
        etat.texte_retour = QStringLiteral("ancien");
    }
    void TearDown() override {
        ui::scenario(QStringLiteral("date_97"), {});
        DossierDonnees::TearDown();
    }
    void montre(std::function<void(Date97&)> script) {
        ui::scenario(QStringLiteral("date_97"),
                     [script](ui::FenetreModale& f) { script(static_cast<Date97&>(f)); });
        Date97 d;
        ui::montre_modal(d);
    }
    const Date aujourdhui = ui::date_de(QDate(2004, 3, 3));
    const Date jeudi = ui::date_de(QDate(2004, 3, 4));
};

} // namespace

TEST_F(ChoixDate, ConfirmerSansCliquerDonneAujourdhui) {
    montre([&](Date97& d) {
        EXPECT_EQ(d.MonthView1, aujourdhui);
        EXPECT_TRUE(d.Label1.isEmpty());
        d.btc_Click(2);
    });
    EXPECT_EQ(etat.date_courante, aujourdhui);
    EXPECT_EQ(etat.texte_retour, QStringLiteral("Mercredi 03 mars 2004"));
}

TEST_F(ChoixDate, UnClicEcritLeJourAussitot) {
    montre([&](Date97& d) {
        d.MonthView1_DateClick(jeudi);
        EXPECT_EQ(d.Label1, QStringLiteral("Jeudi 04 mars 2004"));
        EXPECT_EQ(etat.texte_retour, QStringLiteral("Jeudi 04 mars 2004"));
        EXPECT_EQ(etat.date_courante, jeudi);
        EXPECT_FALSE(d.fermee());
        d.btc_Click(2);
    });
    EXPECT_EQ(etat.date_courante, jeudi);
}

TEST_F(ChoixDate, LeDoubleClicConfirmeEtFerme) {
    montre([&](Date97& d) {
        d.MonthView1_DateDblClick(jeudi);
        EXPECT_TRUE(d.fermee());
    });
    EXPECT_EQ(etat.texte_retour, QStringLiteral("Jeudi 04 mars 2004"));
    EXPECT_EQ(etat.date_courante, jeudi);
}

TEST_F(ChoixDate, AnnulerVideLeTexteMaisLaisseLeJourClique) {
    montre([&](Date97& d) {
        d.MonthView1_DateClick(jeudi);
        d.btc_Click(3);
    });
    EXPECT_TRUE(etat.texte_retour.isEmpty());
    EXPECT_EQ(etat.date_courante, jeudi);
}

TEST_F(ChoixDate, LeVraiCalendrierAuDoubleClic) {
    enregistre_vues_input();
    QTimer::singleShot(0, [&] {
        auto* d = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(d, nullptr);
        auto* mois = d->findChild<QCalendarWidget*>();
        ASSERT_NE(mois, nullptr);
        EXPECT_EQ(mois->selectedDate(), QDate(2004, 3, 3));
        emit mois->activated(QDate(2004, 2, 29));
    });
    Date97 d;
    ui::montre_modal(d);
    EXPECT_TRUE(d.fermee());
    EXPECT_EQ(etat.texte_retour, QStringLiteral("Dimanche 29 février 2004"));
}
