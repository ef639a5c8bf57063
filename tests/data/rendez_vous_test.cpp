// The appointment files: the header repaired by the file's length and the day scan, on files
// laid by hand. (The note scan is read through the week's note.)

#include "data/dossier.h"
#include "data/fichier_records.h"
#include "data/rendez_vous.h"
#include "support/support.h"
#include "ui/dates.h"

#include <algorithm>
#include <vector>

using namespace agenda;
using agenda::test::rv;
using agenda::test::rv_entete;

namespace {

const QString fichier = QStringLiteral("tf_r0000.wdo");

class Rendezvous : public agenda::test::DossierDonnees {
protected:
    void SetUp() override {
        DossierDonnees::SetUp();
        etat.date_courante = ui::date_de(QDate(2004, 3, 3));
    }
    QStringList jour(const QByteArray& octets) {
        ecrit(fichier, octets);
        ouvre_rv();
        charge_journee(records);
        return etat.liste_jour;
    }
    std::vector<RecRv> records; // the day's records, as the scan gives them to the labels
};

} // namespace

TEST_F(Rendezvous, EnTeteRepareParLaLongueurSeulementSIlRetarde) {
    for (const auto& [records, dernier, attendu] :
         {std::tuple{5, 2, 4}, {3, 9, 9}, {4, 3, 3}, {1, 0, 0}}) {
        QByteArray octets = rv_entete(dernier);
        for (int i = 1; i < records; ++i)
            octets += rv("----------");
        EXPECT_TRUE(jour(octets).isEmpty());
        EXPECT_EQ(contenu(fichier), rv_entete(attendu) + octets.mid(512)) << records << dernier;
    }
    EXPECT_TRUE(jour({}).isEmpty()); // an empty file stays empty
    EXPECT_EQ(contenu(fichier).size(), 0);
}

TEST_F(Rendezvous, LeBalayageDuJourPasseSurLesAnnulesEtLesClesAbimees) {
    // A header that says 250 over a file cut in the middle of its last record. Its records stay
    // in the vector for the next day's scan to replace.
    QByteArray plein = rv_entete(250);
    for (int i = 0; i < 250; ++i)
        plein += rv("040303:10H00:11H00");
    EXPECT_EQ(jour(plein.left(plein.size() - 400)).size(), 250);

    QByteArray octets = rv_entete(9) + rv("040303:14H00:15H00", "", 0xC0C0FF) + rv("----------") +
                        rv("--------------------") + rv("") + rv("040304:09H00:09H30") +
                        rv("0403xx:09H00:09H30") + rv("040303:09H30:10H15", "", 12632256) +
                        rv("040303garbage") + rv("040303:09H30:10H15");
    octets[512 + 450] = 1; // the first one framed
    const QStringList liste = jour(octets);
    ASSERT_EQ(liste.size(), 4);
    EXPECT_EQ(liste[0], QStringLiteral("040303:14H00:15H00 000001:1xxxxxxxxx:12632319"));
    EXPECT_EQ(liste[1], QStringLiteral("040303:09H30:10H15 000007:0xxxxxxxxx:12632256"));
    EXPECT_EQ(liste[2].left(26), QStringLiteral("040303garbage      000008:"));
    EXPECT_EQ(entree_jour::numero(liste[3]), 9);
    ASSERT_EQ(records.size(), std::size_t(liste.size()));
    for (std::size_t k = 0; k < records.size(); ++k) // each entry with the bytes of its record
        EXPECT_EQ(QByteArray(reinterpret_cast<const char*>(records[k].octets.data()), 512),
                  octets.mid(qsizetype(entree_jour::numero(liste[qsizetype(k)])) * 512, 512));
}

TEST_F(Rendezvous, LeBalayageTraverseLesBlocsJusquAuBoutDuFichier) {
    // The day's appointments around the ends of the blocks a scan reads, the first of which
    // also holds the header.
    const std::vector<int> du_jour = {1, 510, 511, 512, 513, 1023, 1024, 1099};
    QByteArray corps;
    for (int i = 1; i <= 1099; ++i)
        corps += rv(std::count(du_jour.begin(), du_jour.end(), i) ? "040303:10H00:11H00"
                                                                  : "040304:10H00:11H00");
    const auto numeros = [](const QStringList& liste) {
        std::vector<int> n;
        for (const QString& e : liste)
            n.push_back(entree_jour::numero(e));
        return n;
    };
    // Whatever the header says, lagging, right, or too high, the scan goes to the file's end.
    for (const int dernier : {1099, 3, 0, 5000})
        EXPECT_EQ(numeros(jour(rv_entete(dernier) + corps)), du_jour) << dernier;
    EXPECT_EQ(numeros(jour(rv_entete(1099) + corps.left(corps.size() - 100))), du_jour);
    // Under a lagging header, a last record cut short counts, and is read, from its half on.
    EXPECT_EQ(numeros(jour(rv_entete(3) + corps.left(corps.size() - 200))), du_jour);
    EXPECT_EQ(numeros(jour(rv_entete(3) + corps.left(corps.size() - 300))),
              std::vector<int>(du_jour.begin(), du_jour.end() - 1));
    EXPECT_EQ(numeros(jour(rv_entete(1099).left(300))), std::vector<int>{});
}
