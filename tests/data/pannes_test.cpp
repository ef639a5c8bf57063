// The disk under the record files: the order of the writes other workstations depend on, what a
// failing or short write leaves, and hostile counts in every file that has one.

#include "clients/client.h"
#include "data/dossier.h"
#include "data/fichier_records.h"
#include "data/param.h"
#include "data/rendez_vous.h"
#include "editor/inter.h"
#include "support/support.h"
#include "ui/erreur.h"

#include <cerrno>

using namespace agenda;

namespace {

// Passes every call to the system, recording each write as "file@offset" ("file@fin" for an
// append); the Nth write (from 1) fails with `erreur`, or takes half of its bytes.
class DisqueEspion : public Disque {
public:
    ssize_t ecrit(int fd, const void* o, std::size_t n, off_t pos, const QString& chemin) override {
        if (++ecritures == panne) {
            if (court) return Disque::ecrit(fd, o, n / 2, pos, chemin);
            errno = erreur;
            return -1;
        }
        ordre << QStringLiteral("%1@%2").arg(chemin).arg(pos);
        return Disque::ecrit(fd, o, n, pos, chemin);
    }
    ssize_t ajoute(int fd, const void* o, std::size_t n, const QString& chemin) override {
        ordre << chemin + QStringLiteral("@fin");
        return Disque::ajoute(fd, o, n, chemin);
    }
    QStringList ordre;
    int ecritures = 0, panne = 0, erreur = 0;
    bool court = false;
};

class Pannes : public agenda::test::DossierDonnees {
protected:
    void SetUp() override {
        DossierDonnees::SetUp();
        fixe_disque(&disque);
    }
    // One new record in each file that counts its records in a header.
    static void nouveau_rv() {
        ouvre_rv();
        alloue_numero(canal_fichier(canal::rv));
    }
    static void nouvelle_cle() { ecrit_param(QStringLiteral("COUL_RV"), QStringLiteral("1")); }
    static void nouveau_message() { ecrit_inter(QStringLiteral("A"), QStringLiteral("1")); }
    static void nouveau_client() {
        ouvre_clients();
        cree_client();
    }
    DisqueEspion disque;
};

} // namespace

TEST_F(Pannes, LesEcrituresDansLOrdreQueLesAutresPostesAttendent) {
    const std::pair<void (*)(), QStringList> cas[] = {
        {nouveau_rv, {"tf_r0000.wdo@0", "tf_r0000.wdo@fin"}},   // the header, then the record
        {nouvelle_cle, {"WTORV_IA.WDO@0", "WTORV_IA.WDO@144"}}, // the count before the key
        {nouveau_client, // the first use, then a client: the header first each time
         {"W_CAI038.WDO@0", "W_CAI038.WDO@1024", "W_CAI038.WDO@0", "W_CAI038.WDO@2048"}},
        {nouveau_message, // the mark, then the first entry over the blank one
         {"W_intlog.wdo@0", "W_intlog.wdo@128", "W_intlog.wdo@0", "W_intlog.wdo@0",
          "W_intlog.wdo@128", "W_intlog.wdo@128"}}};
    for (const auto& [action, ordre] : cas) {
        disque.ordre.clear();
        action();
        EXPECT_EQ(disque.ordre, ordre);
    }
}

TEST_F(Pannes, UneEcritureQuiEchoueDitLeFichierEtLaVraieRaisonUneCourteEstCompletee) {
    const std::pair<int, const char*> raisons[] = {{ENOSPC, "plus de place sur le disque"},
                                                   {EROFS, "disque en lecture seule"},
                                                   {EIO, "erreur d'entrée-sortie du disque"}};
    for (const auto& [numero, raison] : raisons) {
        disque = {};
        disque.panne = 1;
        disque.erreur = numero;
        try {
            nouvelle_cle();
            ADD_FAILURE() << raison;
        } catch (const Erreur& e) {
            EXPECT_EQ(e.message(),
                      QStringLiteral("Erreur d'accès au fichier WTORV_IA.WDO (écriture) : %1.")
                          .arg(QString::fromUtf8(raison)));
        }
    }
    disque = {};
    disque.panne = 1;
    disque.court = true;
    nouveau_rv();
    EXPECT_EQ(contenu(QStringLiteral("tf_r0000.wdo")),
              agenda::test::rv_entete(1) +
                  agenda::test::rv_vierge().texte(510, 2, "\r\n").octets());
}

TEST_F(Pannes, UnCompteHostileNeCouteRienEtNAllongeQueDUnRecord) {
    const std::tuple<const char*, int, int, void (*)()> fichiers[] = {
        {"tf_r0000.wdo", 512, 466, nouveau_rv},
        {"WTORV_IA.WDO", 144, 110, nouvelle_cle},
        {"W_intlog.wdo", 128, 124, nouveau_message},
        {"W_CAI038.WDO", 1024, 254, nouveau_client}};
    for (const std::int32_t compte : {INT32_MAX, INT32_MIN, -1, 0x20202020}) {
        for (const auto& [nom, longueur, offset, operation] : fichiers) {
            SCOPED_TRACE(QStringLiteral("%1 %2").arg(nom).arg(compte).toStdString());
            agenda::test::Gabarit entete(longueur);
            entete.i32(offset, compte).texte(0, 6, "#INIT#"); // the message file's mark
            const QByteArray avant = entete.octets() + QByteArray(2 * longueur, 'x');
            ecrit(QString::fromLatin1(nom), avant);
            etape(operation); // a clean error (an overflow) is a result too
            EXPECT_LE(contenu(QString::fromLatin1(nom)).size(), avant.size() + longueur);
            ferme_tous_les_canaux();
        }
    }
}
