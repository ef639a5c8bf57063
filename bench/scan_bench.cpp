// The day scan against a plain sequential read of the same bytes, in the same run. The scan
// has no index by design, so it should cost what reading the file costs.

#include "banc.h"
#include "data/dossier.h"
#include "data/etat.h"
#include "data/fichier_records.h"
#include "data/formats.h"
#include "data/record.h"
#include "data/rendez_vous.h"
#include "generateur.h"
#include "ui/dates.h"

#include <algorithm>
#include <array>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <QCoreApplication>
#include <string>

using namespace agenda;

namespace {

using bench::jour;

// The files measured, one collaborator's each: its records (the header included) and how many
// are on the day. A dozen is a full day; 200 on 1,000 records is the stress of the day list.
// 32,767 is the most a 16-bit count can number; beyond it the count is read as 32 bits.
struct Cas {
    int records, du_jour;
};
constexpr std::array<Cas, 5> cas = {
    {{1000, 12}, {32767, 12}, {1000000, 12}, {1000, 200}, {32767, 200}}};

std::int16_t collab_de(const benchmark::State& state) {
    for (std::size_t i = 0; i < cas.size(); ++i)
        if (cas[i].records == state.range(0) && cas[i].du_jour == state.range(1))
            return std::int16_t(i + 1);
    std::abort();
}

void tailles(benchmark::internal::Benchmark* b) {
    for (const Cas& c : cas)
        b->Args({c.records, c.du_jour});
}

void BM_lecture_sequentielle(benchmark::State& state) {
    const QByteArray nom = nom_fichier_rv(collab_de(state), false).toLatin1();
    for (auto _ : state)
        benchmark::DoNotOptimize(bench::lit_tout(nom.constData()));
    state.SetBytesProcessed(state.iterations() * state.range(0) * RecRv::longueur);
}
BENCHMARK(BM_lecture_sequentielle)->Apply(tailles);

void BM_charge_journee(benchmark::State& state) {
    etat.num_collab = collab_de(state);
    ouvre_rv();
    etat.date_courante = jour;
    std::vector<RecRv> records; // as the book keeps it from one day to the next
    for (auto _ : state) {
        charge_journee(records);
        if (etat.nb_jour() != state.range(1)) state.SkipWithError("wrong day count");
    }
    state.SetBytesProcessed(state.iterations() * state.range(0) * RecRv::longueur);
}
BENCHMARK(BM_charge_journee)->Apply(tailles);

} // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    return bench::dans_un_dossier(
        argc, argv, 5,
        [] {
            for (std::size_t i = 0; i < cas.size(); ++i)
                bench::genere_rendez_vous(std::int16_t(i + 1), cas[i].records, cas[i].du_jour);
        },
        [](const bench::Medianes& rapport) {
            for (const auto& [records, du_jour] : cas) {
                const std::string arg = std::to_string(records) + "/" + std::to_string(du_jour);
                bench::imprime_ratio(
                    rapport, "BM_charge_journee" + arg, "BM_lecture_sequentielle" + arg,
                    "charge_journee / lecture séquentielle (" + std::to_string(records) +
                        " records, " + std::to_string(du_jour) + " du jour)");
            }
        });
}
