// The data folder: the touch-screen flag, the collaborators and the wait.

#include "data/dossier.h"
#include "data/fichier_records.h"
#include "support/support.h"
#include "ui/erreur.h"

#include <QFile>

using namespace agenda;
using agenda::test::Gabarit;

namespace {
class Dossier : public agenda::test::DossierDonnees {};
} // namespace

TEST_F(Dossier, DrapeauEcranTactileDuRecord42) {
    // -1: an overflow, which ends the program.
    for (const auto& [texte, records, attendu] : {std::tuple{"1", 42, 1},
                                                  {"12abc", 42, 12},
                                                  {"", 42, 0},
                                                  {"5", 41, 0},
                                                  {"99999", 42, -1}}) {
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

TEST_F(Dossier, CollaborateursEtCeQuiArreteLeProgramme) {
    QByteArray vingt, vingt_et_une;
    for (int i = 1; i <= 19; ++i)
        vingt += QByteArray::number(i).rightJustified(2, '0') + " : Nom\r\n";
    vingt_et_une = vingt + "20 : Nom\r\n21 : Nom\r\n";
    // The count, and which line stands at which slot by its number; or the error's words.
    struct Cas {
        QByteArray contenu; // empty: no file
        int nombre, slot;
        const char* attendu;
    };
    for (const Cas& c :
         {Cas{"02 : Julien\r\n03 : L\xE9\x61\r\n", 2, 3, "03 : Léa"},
          Cas{vingt + "Salon\n", 20, 0, "Salon"}, Cas{"\r\n", 0, 0, ""},
          Cas{{}, -1, 0, "lien_agenda.txt"}, Cas{vingt_et_une, -1, 0, "20 collaborateurs"},
          Cas{"21 : Nom\r\n", -1, 0, "dépasse 20"}}) {
        QFile::remove(QStringLiteral("lien_agenda.txt"));
        if (!c.contenu.isEmpty()) ecrit(QStringLiteral("lien_agenda.txt"), c.contenu);
        try {
            charge_collaborateurs();
            EXPECT_EQ(etat.nb_collab, c.nombre);
            EXPECT_EQ(etat.noms_par_num[std::size_t(c.slot)], QString::fromUtf8(c.attendu));
        } catch (const Erreur& e) {
            EXPECT_LT(c.nombre, 0);
            EXPECT_TRUE(e.message().contains(QString::fromUtf8(c.attendu))) << c.attendu;
        }
    }
}
