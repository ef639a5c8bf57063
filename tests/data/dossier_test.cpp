#include "data/dossier.h"
#include "data/etat.h"
#include "data/fichier_records.h"
#include "support/support.h"
#include "ui/erreur.h"
#include "ui/systeme.h"

#include <QElapsedTimer>
#include <QFile>

using namespace agenda;
using agenda::test::Gabarit;

namespace {

class Dossier : public agenda::test::DossierDonnees {
protected:
    void lien(const QByteArray& octets) { ecrit(QStringLiteral("lien_agenda.txt"), octets); }
};

} // namespace

TEST_F(Dossier, NomsDesFichiersDuCollaborateur) {
    EXPECT_EQ(nom_fichier_rv(7, false), QStringLiteral("tf_r0007.wdo"));
    EXPECT_EQ(nom_fichier_rv(0, false), QStringLiteral("tf_r0000.wdo"));
    EXPECT_EQ(nom_fichier_rv(7, true), QStringLiteral("tf_z0007.wdo"));
    EXPECT_EQ(nom_fichier_notes(12), QStringLiteral("tf_a0012.wdo"));
    etat.num_collab = 7;
    ouvre_rv();
    EXPECT_TRUE(QFile::exists(QStringLiteral("tf_r0007.wdo")));
}

TEST_F(Dossier, DrapeauEcranTactileDuRecord42) {
    struct Cas {
        const char* texte;
        int records;
        std::int16_t attendu;
    };
    for (const Cas c : {Cas{"1", 42, 1}, {"12abc", 42, 12}, {"", 42, 0}, {"5", 41, 0}}) {
        QByteArray octets;
        for (int r = 1; r < c.records; ++r)
            octets += Gabarit(20).texte(0, 20, "99").octets();
        if (c.records == 42) octets += Gabarit(20).texte(0, 20, c.texte).octets();
        ecrit(QStringLiteral("w_cai020.wdo"), octets);
        etat.clavier_ecran = -1;
        lit_clavier_ecran();
        EXPECT_EQ(etat.clavier_ecran, c.attendu) << c.texte << " " << c.records;
        EXPECT_EQ(contenu(QStringLiteral("w_cai020.wdo")), octets); // never written
        EXPECT_FALSE(canal_fichier(canal::cai020).ouvert());
    }
}

TEST_F(Dossier, CatalogueAbsentDonneZeroService) {
    ouvre_arr();
    lit_nb_services();
    EXPECT_EQ(etat.nb_services, 0);
    EXPECT_TRUE(QFile::exists(QStringLiteral("w_arr104.wdo")));
}

TEST_F(Dossier, CollaborateursParOrdreEtParNumero) {
    lien("02 : Julien\r\n01 : Sophie\r\n03 : L\xE9\x61\r\n");
    charge_collaborateurs();
    EXPECT_EQ(etat.nb_collab, 3);
    EXPECT_EQ(etat.noms_collab[1], QStringLiteral("02 : Julien"));
    EXPECT_EQ(etat.noms_par_num[3], QStringLiteral("03 : Léa"));
    EXPECT_EQ(etat.noms_par_num[1], QStringLiteral("01 : Sophie"));
}

TEST_F(Dossier, VingtLignesPassentEtUneLigneSansNumeroVaAuSlotZero) {
    QByteArray octets;
    for (int i = 1; i <= 19; ++i)
        octets += QByteArray::number(i).rightJustified(2, '0') + " : Nom\r\n";
    octets += "Salon\n"; // a bare line feed, too
    lien(octets);
    charge_collaborateurs();
    EXPECT_EQ(etat.nb_collab, 20);
    EXPECT_EQ(etat.noms_par_num[0], QStringLiteral("Salon"));
    EXPECT_EQ(etat.noms_par_num[19], QStringLiteral("19 : Nom"));
}

TEST_F(Dossier, FichierVideDonneZeroCollaborateur) {
    lien("");
    charge_collaborateurs();
    EXPECT_EQ(etat.nb_collab, 0);
}

TEST_F(Dossier, CeQuiArreteLeProgramme) {
    struct Cas {
        const char* nom;
        QByteArray contenu; // empty name: no file
        const char* dans_le_message;
    };
    QByteArray vingt_et_une;
    for (int i = 1; i <= 21; ++i)
        vingt_et_une += "01 : Nom\r\n";
    for (const Cas& c :
         {Cas{"absent", {}, "lien_agenda.txt"}, Cas{"21 lignes", vingt_et_une, "20 collaborateurs"},
          Cas{"numéro 21", "21 : Nom\r\n", "dépasse 20"}}) {
        QFile::remove(QStringLiteral("lien_agenda.txt"));
        if (!c.contenu.isEmpty()) lien(c.contenu);
        try {
            charge_collaborateurs();
            ADD_FAILURE() << c.nom;
        } catch (const Erreur& e) {
            EXPECT_TRUE(e.message().contains(QString::fromUtf8(c.dans_le_message))) << c.nom;
        }
    }
}

TEST_F(Dossier, LAttenteRendLaMainApresDeuxSecondes) {
    // Each look at the clock moves it a quarter of a second on.
    QDateTime t(QDate(2004, 3, 3), QTime(10, 0));
    int lectures = 0;
    ui::fixe_horloge([&] {
        ++lectures;
        return t = t.addMSecs(250);
    });
    attente_sablier();
    EXPECT_GE(lectures, 8);
    EXPECT_LE(lectures, 10);
}
