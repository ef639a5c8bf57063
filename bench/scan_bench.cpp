// The day scan against a plain sequential read of the same bytes, in the same run. The scan
// has no index by design, so it should cost what reading the file costs.

#include "data/dossier.h"
#include "data/etat.h"
#include "data/fichier_records.h"
#include "data/formats.h"
#include "data/record.h"
#include "data/rendez_vous.h"
#include "generateur.h"
#include "ui/dates.h"

#include <benchmark/benchmark.h>
#include <cstdio>
#include <fcntl.h>
#include <map>
#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>
#include <unistd.h>
#include <vector>

using namespace agenda;

namespace {

constexpr int records = 32767; // the header and 32,766 appointments
constexpr int du_jour = 200;
using bench::jour;

void BM_lecture_sequentielle(benchmark::State& state) {
    std::vector<char> bloc(1 << 17);
    for (auto _ : state) {
        const int fd = ::open("tf_r0000.wdo", O_RDONLY);
        std::size_t total = 0;
        for (ssize_t n; (n = ::read(fd, bloc.data(), bloc.size())) > 0;)
            total += std::size_t(n);
        ::close(fd);
        benchmark::DoNotOptimize(total);
    }
    state.SetBytesProcessed(state.iterations() * std::int64_t(records) * RecRv::longueur);
}
BENCHMARK(BM_lecture_sequentielle)->Unit(benchmark::kMicrosecond);

void BM_charge_journee(benchmark::State& state) {
    ouvre_rv();
    etat.date_courante = jour;
    for (auto _ : state) {
        charge_journee();
        if (etat.nb_jour() != du_jour) state.SkipWithError("wrong day count");
    }
    state.SetBytesProcessed(state.iterations() * std::int64_t(records) * RecRv::longueur);
}
BENCHMARK(BM_charge_journee)->Unit(benchmark::kMicrosecond);

// Keeps each benchmark's time per iteration, for the ratio.
class Rapport : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& r : runs)
            if (r.run_type == Run::RT_Iteration)
                temps[r.benchmark_name()] = r.GetAdjustedRealTime();
        ConsoleReporter::ReportRuns(runs);
    }
    std::map<std::string, double> temps;
};

} // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    QTemporaryDir dossier;
    QDir::setCurrent(dossier.path());
    bench::genere_rendez_vous(0, records, du_jour);
    benchmark::Initialize(&argc, argv);
    Rapport rapport;
    benchmark::RunSpecifiedBenchmarks(&rapport);
    ferme_tous_les_canaux();
    const double scan = rapport.temps["BM_charge_journee"];
    const double lecture = rapport.temps["BM_lecture_sequentielle"];
    if (scan > 0 && lecture > 0)
        std::printf("charge_journee / lecture séquentielle (%d records, %d du jour) : %.2f\n",
                    records, du_jour, scan / lecture);
    benchmark::Shutdown();
    return 0;
}
