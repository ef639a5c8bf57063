// The client list's opening against a plain read of the client file, in the same run: the list
// has no index by design, so an opening should cost the reading of the file and the sort of the
// names. A letter tapped refilters in memory, without the file.

#include "banc.h"
#include "clients/client.h"
#include "clients/lit_cli.h"
#include "clients/rec_cli.h"
#include "data/fichier_records.h"
#include "data/record.h"
#include "data/texte.h"

#include <array>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <QCoreApplication>
#include <QFile>
#include <QRandomGenerator>
#include <string>
#include <vector>

using namespace agenda;

namespace {

constexpr int clients = 32767;
const char* const fichier = "W_CAI038.WDO";

// Names as a shop's file holds them: surnames and first names drawn from short lists, a few
// voided or never named.
void genere_clients() {
    const std::array<const char*, 16> noms = {
        "DURAND",  "MARTIN", "BERNARD", "PETIT",   "ROBERT", "RICHARD", "DUBOIS",   "MOREAU",
        "LAURENT", "SIMON",  "MICHEL",  "LEFÈVRE", "GARCIA", "DAVID",   "BERTRAND", "ROUX"};
    const std::array<const char*, 8> prenoms = {"Marie", "Jean", "Sophie", "Luc",
                                                "Chloé", "Paul", "Élodie", "Marc"};
    const std::array<const char*, 6> villes = {"75011 Paris",     "69000 Lyon",
                                               "13001 Marseille", "59140 Dunkerque",
                                               "92100 Boulogne",  "94300 Vincennes"};
    QRandomGenerator g(20261123);
    RecCli entete;
    entete.pose(RecCli::dernier_client, clients);
    std::vector<std::uint8_t> octets(entete.octets.begin(), entete.octets.end());
    for (int n = 1; n <= clients; ++n) {
        RecCli r;
        r.pose(RecCli::code_client, motif_zeros(n, 4));
        const int tirage = int(g.bounded(100));
        if (tirage > 1) {
            const QString nom = QString::fromUtf8(noms[g.bounded(int(noms.size()))]) +
                                QLatin1Char(' ') +
                                QString::fromUtf8(prenoms[g.bounded(int(prenoms.size()))]);
            r.pose(RecCli::nom_client, tirage == 2 ? QStringLiteral("(NUL)") + nom : nom);
        }
        r.pose(RecCli::code_ville, QString::fromUtf8(villes[g.bounded(int(villes.size()))]));
        octets.insert(octets.end(), r.octets.begin(), r.octets.end());
    }
    QFile f(QString::fromLatin1(fichier));
    if (!f.open(QIODevice::WriteOnly) || f.write(reinterpret_cast<const char*>(octets.data()),
                                                 qint64(octets.size())) != qint64(octets.size()))
        std::abort();
}

void BM_lecture_sequentielle(benchmark::State& state) {
    for (auto _ : state)
        benchmark::DoNotOptimize(bench::lit_tout(fichier));
}
BENCHMARK(BM_lecture_sequentielle);

void BM_ouverture_liste(benchmark::State& state) {
    for (auto _ : state) {
        LitCli l;
        l.Form_Load();
        benchmark::DoNotOptimize(l.List2.size());
    }
}
BENCHMARK(BM_ouverture_liste);

void BM_deux_lettres(benchmark::State& state) {
    LitCli l;
    l.Form_Load();
    for (auto _ : state) {
        l.Text1_Change(QStringLiteral("D"));
        l.Text1_Change(QStringLiteral("DU"));
        benchmark::DoNotOptimize(l.List1.size());
    }
}
BENCHMARK(BM_deux_lettres);

} // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    return bench::dans_un_dossier(argc, argv, 5, genere_clients, [](const bench::Medianes& r) {
        bench::imprime_ratio(r, "BM_ouverture_liste", "BM_lecture_sequentielle",
                             "ouverture de la liste / lecture séquentielle (" +
                                 std::to_string(clients) + " clients)");
    });
}
