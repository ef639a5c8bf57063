#include "banc.h"

#include <algorithm>

#include "data/fichier_records.h"
#include "data/formats.h"

#include <array>
#include <cstdio>
#include <fcntl.h>
#include <memory>
#include <QDir>
#include <QTemporaryDir>
#include <unistd.h>
#include <vector>

namespace agenda::bench {

void Medianes::ReportRuns(const std::vector<Run>& runs) {
    for (const Run& r : runs) {
        if (r.run_type != Run::RT_Aggregate || r.aggregate_name != "median") continue;
        const std::string nom = r.run_name.function_name + r.run_name.args;
        temps_[nom] = r.GetAdjustedRealTime();
    }
    ConsoleReporter::ReportRuns(runs);
}

double Medianes::temps(const std::string& nom) const {
    const auto it = temps_.find(nom);
    return it == temps_.end() ? 0 : it->second;
}

void imprime_ratio(const Medianes& m, const std::string& mesure, const std::string& reference,
                   const std::string& libelle, const std::string& suffixe) {
    const double a = m.temps(mesure), b = m.temps(reference);
    if (a > 0 && b > 0) std::printf("%s : %.2f%s\n", libelle.c_str(), a / b, suffixe.c_str());
}

int dans_un_dossier(int argc, char** argv, int repetitions, const std::function<void()>& prepare,
                    const std::function<void(const Medianes&)>& imprime) {
    QTemporaryDir dossier;
    QDir::setCurrent(dossier.path());
    prepare();
    Medianes rapport;
    lance_bancs(argc, argv, repetitions, rapport);
    ferme_tous_les_canaux();
    imprime(rapport);
    benchmark::Shutdown();
    return 0;
}

void lance_bancs(int argc, char** argv, int repetitions, Medianes& medianes) {
    std::vector<std::string> options = {"--benchmark_repetitions=" + std::to_string(repetitions),
                                        "--benchmark_enable_random_interleaving=true",
                                        "--benchmark_report_aggregates_only=true"};
    std::vector<char*> args(argv, argv + argc);
    // Before the command line's own, which win.
    for (std::size_t i = 0; i < options.size(); ++i)
        args.insert(args.begin() + std::ptrdiff_t(1 + i), options[i].data());
    int n = int(args.size());
    benchmark::Initialize(&n, args.data());
    benchmark::RunSpecifiedBenchmarks(&medianes);
}

double mediane(std::vector<double> valeurs) {
    if (valeurs.empty()) return 0;
    const auto milieu = valeurs.begin() + std::ptrdiff_t(valeurs.size() / 2);
    std::nth_element(valeurs.begin(), milieu, valeurs.end());
    return *milieu;
}

std::size_t lit_tout(const char* chemin) {
    // A scan's block of appointments, page-aligned as the scans' blocks are: the kernel's copy
    // runs slower into a buffer that is not, and the allocator gives one 16 bytes past a page.
    struct Bloc {
        alignas(4096) std::array<char, records_par_bloc * RecRv::longueur> octets;
    };
    static const auto tampon = std::make_unique<Bloc>();
    auto& bloc = tampon->octets;
    const int fd = ::open(chemin, O_RDONLY);
    std::size_t total = 0;
    for (ssize_t n; fd >= 0 && (n = ::read(fd, bloc.data(), bloc.size())) > 0;)
        total += std::size_t(n);
    if (fd >= 0) ::close(fd);
    return total;
}

} // namespace agenda::bench
