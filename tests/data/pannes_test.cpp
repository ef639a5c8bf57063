// The disk under the record files: the order of the writes that the shared files depend on, and
// what a failing or short read or write leaves.

#include "clients/client.h"
#include "data/dossier.h"
#include "data/fichier_records.h"
#include "data/formats.h"
#include "data/param.h"
#include "data/rendez_vous.h"
#include "editor/inter.h"
#include "support/support.h"
#include "ui/erreur.h"

#include <cerrno>

using namespace agenda;

namespace {

int longueur_record(const QString& chemin) {
    for (const auto& [debut, longueur] :
         {std::pair{"WTORV_IA", 144}, {"W_CAI038", 1024}, {"W_intlog", 128}})
        if (chemin.startsWith(QLatin1String(debut))) return longueur;
    return 512;
}

// Passes every call to the system, but records the writes as "file:record" and makes the Nth
// write (from 1) fail with an error, or take only part of the bytes.
class DisqueEspion : public Disque {
public:
    ssize_t ecrit(int fd, const void* o, std::size_t n, off_t pos, const QString& chemin) override {
        ++ecritures;
        if (ecritures == panne_ecriture) {
            if (court) return Disque::ecrit(fd, o, n / 2, pos, chemin);
            errno = erreur;
            return -1;
        }
        const int longueur = longueur_record(chemin);
        if (pos % longueur == 0)
            ordre << QStringLiteral("%1:%2").arg(chemin).arg(pos / longueur + 1);
        return Disque::ecrit(fd, o, n, pos, chemin);
    }
    ssize_t ajoute(int fd, const void* o, std::size_t n, const QString& chemin) override {
        ++ecritures;
        ordre << chemin + QStringLiteral(":fin");
        return Disque::ajoute(fd, o, n, chemin);
    }
    ssize_t lit(int fd, void* o, std::size_t n, off_t pos, const QString& chemin) override {
        if (++lectures == panne_lecture) {
            errno = EIO;
            return -1;
        }
        return Disque::lit(fd, o, n, pos, chemin);
    }

    QStringList ordre;
    int ecritures = 0, lectures = 0;
    int panne_ecriture = 0, panne_lecture = 0;
    bool court = false;
    int erreur = ENOSPC;
};

class Pannes : public agenda::test::DossierDonnees {
protected:
    void SetUp() override {
        DossierDonnees::SetUp();
        fixe_disque(&disque);
    }
    void TearDown() override {
        fixe_disque(nullptr);
        DossierDonnees::TearDown();
    }
    DisqueEspion disque;
};

} // namespace

TEST_F(Pannes, LesEcrituresDansLOrdreQueLesAutresPostesAttendent) {
    struct Cas {
        const char* nom;
        std::function<void()> action;
        QStringList ordre;
    };
    for (const Cas& c : std::vector<Cas>{
             {"un numéro : l'en-tête, puis l'enregistrement vide à la fin",
              [] {
                  canal_fichier(canal::rv).ouvre(QStringLiteral("tf_r0000.wdo"), 512);
                  alloue_numero(canal_fichier(canal::rv));
              },
              {"tf_r0000.wdo:1", "tf_r0000.wdo:fin"}},
             {"une clé nouvelle : l'en-tête compté, puis la clé",
              [] { ecrit_param(QStringLiteral("COUL_RV"), QStringLiteral("255")); },
              {"WTORV_IA.WDO:1", "WTORV_IA.WDO:2"}},
             {"un client : l'en-tête, puis sa fiche",
              [] {
                  ouvre_clients();
                  cree_client();
              },
              {"W_CAI038.WDO:1", "W_CAI038.WDO:2", "W_CAI038.WDO:1", "W_CAI038.WDO:3"}},
             {"le fichier de messages neuf : compte, entrée vide, marque, puis la valeur "
              "par-dessus",
              [] { ecrit_inter(QStringLiteral("TORVA:NUMUSER"), QStringLiteral("0001")); },
              {"W_intlog.wdo:1", "W_intlog.wdo:2", "W_intlog.wdo:1", "W_intlog.wdo:1",
               "W_intlog.wdo:2", "W_intlog.wdo:2"}},
         }) {
        SCOPED_TRACE(c.nom);
        disque.ordre.clear();
        c.action();
        EXPECT_EQ(disque.ordre, c.ordre);
    }
}

TEST_F(Pannes, UneEcritureQuiEchoueFinitAvecLeFichierEtLaVraieRaison) {
    struct Cas {
        int erreur;
        bool court;
        const char* raison;
    };
    for (const Cas c : {Cas{ENOSPC, false, "plus de place sur le disque"},
                        {EROFS, false, "disque en lecture seule"},
                        {EIO, false, "erreur d'entrée-sortie du disque"}}) {
        disque = {};
        disque.panne_ecriture = 1;
        disque.erreur = c.erreur;
        try {
            ecrit_param(QStringLiteral("COUL_RV"), QStringLiteral("255"));
            ADD_FAILURE() << c.raison;
        } catch (const Erreur& e) {
            EXPECT_EQ(e.message(), QStringLiteral("Erreur d'accès au fichier WTORV_IA.WDO "
                                                  "(écriture) : %1.")
                                       .arg(QString::fromUtf8(c.raison)));
        }
    }
}

TEST_F(Pannes, UneEcritureCourteEstCompleteeEtUneLectureQuiEchoueSeDit) {
    disque.panne_ecriture = 2;
    disque.court = true;
    auto& f = canal_fichier(canal::rv);
    f.ouvre(QStringLiteral("tf_r0000.wdo"), 512);
    EXPECT_EQ(alloue_numero(f), 1);
    EXPECT_EQ(contenu(QStringLiteral("tf_r0000.wdo")),
              agenda::test::rv_entete(1) +
                  agenda::test::rv_vierge().texte(510, 2, "\r\n").octets());

    disque.panne_lecture = disque.lectures + 1;
    try {
        charge_journee();
        ADD_FAILURE();
    } catch (const Erreur& e) {
        EXPECT_TRUE(e.message().endsWith(QStringLiteral("(lecture) : erreur d'entrée-sortie du "
                                                        "disque.")))
            << e.message().toStdString();
    }
}

TEST_F(Pannes, UnCompteHostileNeCouteRienEtNAllongeQueDUnRecord) {
    struct Fichier {
        const char* nom;
        int longueur, offset_compte;
        std::function<void()> operation;
    };
    const std::vector<Fichier> fichiers = {
        {"tf_r0000.wdo", 512, 466,
         [] {
             ouvre_rv();
             charge_journee();
             alloue_numero(canal_fichier(canal::rv));
         }},
        {"WTORV_IA.WDO", 144, 110,
         [] {
             lit_valeur_param(QStringLiteral("TORVA:HEURE"));
             ecrit_param(QStringLiteral("COUL_RV"), QStringLiteral("1"));
         }},
        {"W_intlog.wdo", 128, 124,
         [] { ecrit_inter(QStringLiteral("TORVA:RETOUR"), QStringLiteral("x")); }},
        {"W_CAI038.WDO", 1024, 254,
         [] {
             ouvre_clients();
             cree_client();
         }},
    };
    for (const std::int32_t compte : {0x7FFFFFFF, std::int32_t(0x80000000), -1, 0x20202020}) {
        for (const Fichier& f : fichiers) {
            SCOPED_TRACE(QStringLiteral("%1 %2").arg(f.nom).arg(compte).toStdString());
            agenda::test::Gabarit entete(f.longueur);
            entete.i32(f.offset_compte, compte);
            if (QByteArray(f.nom) == "W_intlog.wdo") entete.texte(0, 15, "#INIT#");
            const QByteArray avant =
                entete.octets() + QByteArray(f.longueur, 'x') + QByteArray(f.longueur, 'y');
            ecrit(QString::fromLatin1(f.nom), avant);
            etape([&] { f.operation(); }); // a clean error (an overflow) is a result too
            EXPECT_LE(contenu(QString::fromLatin1(f.nom)).size(), avant.size() + f.longueur);
            ferme_tous_les_canaux();
        }
    }
}
