// The week's load (seven strips, their labels, the note) and the year's, as the book does them,
// against a plain read of the book's file of 32,767 records, in the same run.

#include "banc.h"
#include "book/torva1.h"
#include "data/dossier.h"
#include "data/etat.h"
#include "data/formats.h"
#include "generateur.h"

#include <benchmark/benchmark.h>
#include <memory>
#include <QGuiApplication>

using namespace agenda;

namespace {

constexpr int records = 32767;
std::unique_ptr<Torva1> livre;

void BM_lecture_sequentielle(benchmark::State& state) {
    const QByteArray nom = nom_fichier_rv(0, false).toLatin1();
    for (auto _ : state)
        benchmark::DoNotOptimize(bench::lit_tout(nom.constData()));
    state.SetBytesProcessed(state.iterations() * records * RecRv::longueur);
}
BENCHMARK(BM_lecture_sequentielle);

void BM_decod_semaine(benchmark::State& state) {
    for (auto _ : state) {
        etat.date_courante = bench::jour;
        livre->decod_semaine();
        benchmark::DoNotOptimize(livre->lrvs[6].size());
    }
    if (livre->lrvs[6].size() < 12) state.SkipWithError("the Sunday lacks its appointments");
    state.SetBytesProcessed(state.iterations() * records * RecRv::longueur);
}
BENCHMARK(BM_decod_semaine);

void BM_decod_annee(benchmark::State& state) {
    for (auto _ : state) {
        etat.date_courante = bench::jour;
        livre->decod_annee();
        benchmark::DoNotOptimize(livre->g1[11].texte[0][1]);
    }
}
BENCHMARK(BM_decod_annee);

} // namespace

int main(int argc, char** argv) {
    // The strips measure their hours' numbers in real fonts: a platform with no display will do.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    return bench::dans_un_dossier(
        argc, argv, 7,
        [] {
            bench::prepare_dossier_livre(records);
            livre = std::make_unique<Torva1>();
            livre->charge();
        },
        [](const bench::Medianes& rapport) {
            livre.reset();
            bench::imprime_ratio(rapport, "BM_decod_semaine", "BM_lecture_sequentielle",
                                 "semaine (7 jours, étiquettes, note) / lecture séquentielle "
                                 "(32767 records)");
            bench::imprime_ratio(rapport, "BM_decod_annee", "BM_lecture_sequentielle",
                                 "année (12 mois, fériés) / lecture séquentielle (32767 records)");
        });
}
