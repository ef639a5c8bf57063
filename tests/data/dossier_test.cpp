// The data folder: file names, the touch-screen flag, the collaborators and the wait.

#include "data/dossier.h"
#include "data/etat.h"
#include "data/fichier_records.h"
#include "support/support.h"
#include "ui/erreur.h"
#include "ui/systeme.h"

#include <QFile>

using namespace agenda;
using agenda::test::Gabarit;

namespace {
class Dossier : public agenda::test::DossierDonnees {};
} // namespace

TEST_F(Dossier, FichiersDuCollaborateurCreesALOuverture) {
    EXPECT_EQ(nom_fichier_rv(7, true), QStringLiteral("tf_z0007.wdo"));
    EXPECT_EQ(nom_fichier_notes(12), QStringLiteral("tf_a0012.wdo"));
    etat.num_collab = 7;
    ouvre_rv();
    ouvre_arr();
    lit_nb_services();
    EXPECT_TRUE(QFile::exists(QStringLiteral("tf_r0007.wdo")));
    EXPECT_EQ(etat.nb_services, 0);
}

TEST_F(Dossier, DrapeauEcranTactileDuRecord42) {
    for (const auto& [texte, records, attendu] :
         {std::tuple{"1", 42, 1},
          {"12abc", 42, 12},
          {"", 42, 0},
          {"5", 41, 0},
          {"99999", 42, -1}}) { // -1: an overflow, which ends the program
        QByteArray octets;
        for (int r = 1; r < records; ++r)
            octets += Gabarit(20).texte(0, 20, "99").octets();
        if (records == 42) octets += Gabarit(20).texte(0, 20, texte).octets();
        ecrit(QStringLiteral("w_cai020.wdo"), octets);
        if (attendu < 0) {
            EXPECT_THROW(lit_clavier_ecran(), Erreur);
            continue;
        }
        lit_clavier_ecran();
        EXPECT_EQ(etat.clavier_ecran, attendu) << texte << " " << records;
        EXPECT_EQ(contenu(QStringLiteral("w_cai020.wdo")), octets); // never written
        EXPECT_FALSE(canal_fichier(canal::cai020).ouvert());
    }
}

TEST_F(Dossier, CollaborateursParOrdreEtParNumero) {
    QByteArray vingt;
    for (int i = 1; i <= 19; ++i)
        vingt += QByteArray::number(i).rightJustified(2, '0') + " : Nom\r\n";
    struct Cas {
        QByteArray contenu;
        int nombre;
        int slot;
        const char* au_slot; // in noms_par_num
    };
    for (const Cas& c : {Cas{"02 : Julien\r\n01 : Sophie\r\n03 : L\xE9\x61\r\n", 3, 3, "03 : Léa"},
                         Cas{vingt + "Salon\n", 20, 0, "Salon"}, Cas{"", 0, 1, ""}}) {
        ecrit(QStringLiteral("lien_agenda.txt"), c.contenu);
        charge_collaborateurs();
        EXPECT_EQ(etat.nb_collab, c.nombre);
        EXPECT_EQ(etat.noms_par_num[std::size_t(c.slot)], QString::fromUtf8(c.au_slot));
    }
}

TEST_F(Dossier, CeQuiArreteLeProgramme) {
    QByteArray vingt_et_une;
    for (int i = 1; i <= 21; ++i)
        vingt_et_une += "01 : Nom\r\n";
    for (const auto& [contenu, message] :
         {std::pair<QByteArray, const char*>{{}, "lien_agenda.txt"},
          {vingt_et_une, "20 collaborateurs"},
          {"21 : Nom\r\n", "dépasse 20"}}) {
        QFile::remove(QStringLiteral("lien_agenda.txt"));
        if (!contenu.isEmpty()) ecrit(QStringLiteral("lien_agenda.txt"), contenu);
        try {
            charge_collaborateurs();
            ADD_FAILURE() << message;
        } catch (const Erreur& e) {
            EXPECT_TRUE(e.message().contains(QString::fromUtf8(message))) << message;
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
