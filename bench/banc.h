#pragma once
// What every benchmark here shares: runs repeated and interleaved at random (one wall-clock run
// on a busy machine swings by a third), and the medians kept for the ratios printed at the end.

#include <benchmark/benchmark.h>
#include <cstddef>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace agenda::bench {

class Medianes : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override;
    // By name and arguments without the slash: "BM_pas_de_jour32767". 0 if it did not run.
    double temps(const std::string& nom) const;

private:
    std::map<std::string, double> temps_;
};

// "libelle : ratio" and the suffix, of two medians, when both ran.
void imprime_ratio(const Medianes& m, const std::string& mesure, const std::string& reference,
                   const std::string& libelle, const std::string& suffixe = {});

// The whole run of a benchmark program, its application made: a temporary working folder that
// `prepare` fills, the benchmarks, the files closed, then `imprime` with the medians.
int dans_un_dossier(int argc, char** argv, int repetitions, const std::function<void()>& prepare,
                    const std::function<void(const Medianes&)>& imprime);

// The plain sequential read that a scan is measured against: the whole file in blocks the size
// of a scan's block of appointments.
std::size_t lit_tout(const char* chemin);

// The median of measures taken in pairs (0 if there are none).
double mediane(std::vector<double> valeurs);

// Runs the benchmarks chosen on the command line, `repetitions` times each unless it says
// otherwise, printing the medians only.
void lance_bancs(int argc, char** argv, int repetitions, Medianes& medianes);

} // namespace agenda::bench
