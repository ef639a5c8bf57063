#include "data/fichier_records.h"
#include "data/param.h"
#include "editor/inter.h"
#include "support/livre.h"
#include "ui/dates.h"
#include "ui/erreur.h"
#include "ui/systeme.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>

using namespace agenda;
using agenda::test::FinDemandee;

namespace {

class Chargement : public agenda::test::Livre {};

void attend(int ms) {
    QElapsedTimer t;
    t.start();
    while (t.elapsed() < ms)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
}

} // namespace

TEST_F(Chargement, PremierDemarrageDansUnDossierVide) {
    int banniere = 0;
    QObject::connect(livre.get(), &Torva1::charge_banniere, [&] { ++banniere; });
    EXPECT_EQ(charge(), -1);
    EXPECT_EQ(charge(), -1);
    EXPECT_EQ(banniere, 1); // loaded once, hidden
    EXPECT_EQ(lit_valeur_param(QStringLiteral("TORVA:HEURE")), QStringLiteral("07:12:19:020"));
    EXPECT_EQ(etat.heure_debut, 7);
    EXPECT_EQ(etat.heure_rupture, 12);
    EXPECT_EQ(etat.heure_fin, 19);
    EXPECT_EQ(etat.duree_defaut, 20);
    EXPECT_EQ(etat.num_collab, 0);
    EXPECT_EQ(livre->Label7, QStringLiteral("Agenda"));
    // Today, with the time of day as fraction.
    EXPECT_DOUBLE_EQ(etat.date_courante, ui::date_de(QDate(2004, 3, 3)) + 10.0 / 24);
    EXPECT_EQ(livre->Label2, QStringLiteral("Mercredi"));
    EXPECT_EQ(etat.nb_collab, 2);
    EXPECT_TRUE(livre->lrv.empty() && livre->lrvd.empty());
    EXPECT_TRUE(canal_fichier(canal::rv).ouvert());
    EXPECT_TRUE(canal_fichier(canal::arr).ouvert());
    EXPECT_FALSE(canal_fichier(canal::param).ouvert());
}

TEST_F(Chargement, LeCollaborateurDuFichierDeMessages) {
    ecrit_inter(QStringLiteral("TORVA:NUMUSER"), QStringLiteral("0007 Marie Dupont"));
    ecrit_param(QStringLiteral("TORVA:HEURE"), QStringLiteral("08:13:20:045"));
    rendez_vous(QStringLiteral("tf_r0007.wdo"), {"040303:09H00:10H00"});
    charge();
    EXPECT_EQ(etat.num_collab, 7);
    EXPECT_EQ(livre->Label7, QStringLiteral("Marie Dupont"));
    EXPECT_EQ(canal_fichier(canal::rv).chemin(), QStringLiteral("tf_r0007.wdo"));
    EXPECT_EQ(etat.heure_debut, 8);
    EXPECT_EQ(etat.duree_defaut, 45);
    EXPECT_EQ(livre->lrv.size(), 1u);
}

TEST_F(Chargement, UnRechargementGardeLaDate) {
    charge();
    etat.date_courante = ui::date_de(QDate(2010, 6, 1));
    ecrit_inter(QStringLiteral("TORVA:NUMUSER"), QStringLiteral("0002 Julien"));
    livre->Timer1.start(1);
    attend(50);
    EXPECT_DOUBLE_EQ(etat.date_courante, ui::date_de(QDate(2010, 6, 1)));
    EXPECT_EQ(etat.num_collab, 2);
    EXPECT_EQ(livre->Label3, QStringLiteral("01"));
    EXPECT_EQ(livre->Label4, QStringLiteral("Juin"));
    EXPECT_FALSE(livre->Timer1.isActive()); // fired once
}

TEST_F(Chargement, GeneOuvreLePlanningDeuxCentsMillisecondesPlusTard) {
    ecrit_inter(QStringLiteral("TORVA:NUMUSER"), QStringLiteral("#GENE#"));
    charge();
    EXPECT_EQ(etat.num_collab, 0);
    ASSERT_TRUE(livre->Timer2.isActive());
    EXPECT_EQ(livre->Timer2.interval(), 200);
    attend(300);
    EXPECT_FALSE(livre->Timer2.isActive());
    EXPECT_TRUE(livre->ongletg_visible[3]); // the planning's tab laid over to the left
    EXPECT_EQ(livre->vue_visible, 3);
}

TEST_F(Chargement, CeQuiArreteLeProgrammeAuChargement) {
    struct Cas {
        const char* heures; // "TORVA:HEURE", or nullptr for a folder without its list
        const char* message;
    };
    for (const Cas c : {Cas{nullptr, "lien_agenda.txt"},
                        {"12:12:19:020", "la page du matin n'a aucune heure"},
                        {"07:19:19:020", "la page de l'après-midi n'a aucune heure"}}) {
        if (c.heures)
            ecrit_param(QStringLiteral("TORVA:HEURE"), QString::fromLatin1(c.heures));
        else
            QFile::rename(QStringLiteral("lien_agenda.txt"), QStringLiteral("lien.bak"));
        try {
            livre->charge();
            ADD_FAILURE() << c.message;
        } catch (const Erreur& e) {
            EXPECT_TRUE(e.message().contains(QString::fromUtf8(c.message))) << e.what();
        }
        QFile::rename(QStringLiteral("lien.bak"), QStringLiteral("lien_agenda.txt"));
    }
}

TEST_F(Chargement, UnFichierIlliblePasseSonEtapeDansLaVueDuJour) {
    charge();
    canal_fichier(canal::rv).ferme(); // the scan and the labels fail
    etat.date_courante += 1;
    EXPECT_NO_THROW(livre->sel_onglet(0));
    EXPECT_EQ(livre->Label3, QStringLiteral("04")); // the date panel was still written
    EXPECT_TRUE(livre->lrv.empty());
}

TEST_F(Chargement, LaFinFermeLesFichiersEtLanceLeRetour) {
    struct Cas {
        const char* retour;
        int lancements;
    };
    for (const Cas c : {Cas{"", 0}, {"/usr/bin/caisse --menu", 1}}) {
        ecrit_inter(QStringLiteral("TORVA:RETOUR"), QString::fromLatin1(c.retour));
        charge();
        EXPECT_NO_THROW(livre->Form_KeyPress('a')); // any other key does nothing
        QStringList lances;
        ui::fixe_lanceur([&](const QString& l) {
            lances << l;
            return true;
        });
        try {
            livre->Form_KeyPress(27);
            FAIL() << "Escape must end the program";
        } catch (const FinDemandee& f) {
            EXPECT_EQ(f.code, 0);
        }
        ASSERT_EQ(lances.size(), c.lancements);
        if (c.lancements) {
            EXPECT_EQ(lances[0], QStringLiteral("/usr/bin/caisse --menu"));
        }
        EXPECT_FALSE(canal_fichier(canal::rv).ouvert());
        EXPECT_FALSE(canal_fichier(canal::arr).ouvert());
    }
}
