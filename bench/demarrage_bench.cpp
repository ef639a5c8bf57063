// The whole program's start, as a user waits for it: from starting the process to the book's
// first paint, and the process's peak memory, against a bare Qt Widgets window with one label
// from the same executable, in pairs. Each run is a new process (this one, started again with
// --enfant), so the pictures, fonts and libraries are made and loaded afresh every time. The child
// writes when its window was first painted on its standard output and ends at once. Run it in an X
// server (xvfb-run).

#include "banc.h"
#include "generateur.h"
#include "ouverture.h"
#include "ui/geometrie.h"
#include "ui/vue/echelle.h"

#include <benchmark/benchmark.h>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QTemporaryDir>
#include <QTimer>
#include <spawn.h>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

extern char** environ;

namespace {

constexpr int records = 32767;
std::string executable;

std::int64_t maintenant_ns() {
    timespec t{};
    clock_gettime(CLOCK_MONOTONIC, &t);
    return std::int64_t(t.tv_sec) * 1'000'000'000 + t.tv_nsec;
}

// In the child: once the window's first paint is done, tells when and ends.
class PremierePeinture : public QObject {
    bool eventFilter(QObject*, QEvent* e) override {
        if (e->type() == QEvent::Paint)
            QTimer::singleShot(0, [] {
                std::printf("%lld\n", static_cast<long long>(maintenant_ns()));
                std::fflush(stdout);
                std::_Exit(0);
            });
        return false;
    }
};

int enfant(int argc, char** argv, const std::string& quoi) {
    // As the program starts; the bare window is Qt's alone.
    agenda::ui::ACote polices;
    if (quoi == "livre") {
        agenda::ui::annonce_le_bus_absent();
        polices = agenda::lit_les_polices_a_cote();
    }
    QApplication app(argc, argv);
    polices.attends();
    PremierePeinture peinture;
    if (quoi == "livre") {
        const auto programme = agenda::ouvre_programme();
        programme->vue->installEventFilter(&peinture);
        return QApplication::exec();
    }
    QWidget w;
    // The book's size on this screen, as the program scales it; nothing of the book is made.
    agenda::ui::echelle_pour_ecran(QGuiApplication::primaryScreen());
    w.resize(agenda::ui::px(agenda::ui::largeur_livre), agenda::ui::px(agenda::ui::hauteur_livre));
    QLabel l(QStringLiteral("Agenda"), &w);
    w.installEventFilter(&peinture);
    w.show();
    return QApplication::exec();
}

// Starts the child, returns the time to its first paint (s) and its peak memory (MiB).
std::pair<double, double> lance(const char* quoi) {
    int tube[2];
    if (::pipe(tube) != 0) std::abort();
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, tube[1], STDOUT_FILENO);
    posix_spawn_file_actions_addclose(&actions, tube[0]);
    std::string option = std::string("--enfant=") + quoi;
    char* args[] = {executable.data(), option.data(), nullptr};
    const std::int64_t debut = maintenant_ns();
    pid_t pid = 0;
    if (posix_spawn(&pid, executable.c_str(), &actions, nullptr, args, environ) != 0) std::abort();
    posix_spawn_file_actions_destroy(&actions);
    ::close(tube[1]);
    char texte[64] = {};
    std::size_t lus = 0;
    for (ssize_t n;
         lus < sizeof texte - 1 && (n = ::read(tube[0], texte + lus, sizeof texte - 1 - lus)) > 0;)
        lus += std::size_t(n);
    ::close(tube[0]);
    int statut = 0;
    rusage usage{};
    ::wait4(pid, &statut, 0, &usage);
    if (!WIFEXITED(statut) || WEXITSTATUS(statut) != 0 || lus == 0) return {-1, 0};
    const double secondes = double(std::atoll(texte) - debut) / 1e9;
    return {secondes, double(usage.ru_maxrss) / 1024.0};
}

// The ratio of each pair, the book's start over the bare window's, and each one's peak memory.
// Started back to back, in turn first, the two of a pair see the same machine: in separate
// rounds, even interleaved, one of the two could meet a slower machine than the other, and the
// bare window's median moved by a tenth from one run to the next.
std::vector<double> rapports;
double pic_livre = 0, pic_nu = 0;

void BM_demarrage(benchmark::State& state) {
    bool nu_d_abord = false;
    for (auto _ : state) {
        std::pair<double, double> livre, nu;
        if (nu_d_abord)
            nu = lance("nu"), livre = lance("livre");
        else
            livre = lance("livre"), nu = lance("nu");
        nu_d_abord = !nu_d_abord;
        if (livre.first < 0 || nu.first < 0) {
            state.SkipWithError("a child did not paint");
            break;
        }
        state.SetIterationTime(livre.first);
        rapports.push_back(livre.first / nu.first);
        pic_livre = std::max(pic_livre, livre.second);
        pic_nu = std::max(pic_nu, nu.second);
    }
}
BENCHMARK(BM_demarrage)->UseManualTime()->Iterations(5)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    if (argc > 1 && std::strncmp(argv[1], "--enfant=", 9) == 0)
        return enfant(argc, argv, argv[1] + 9);
    executable = QDir(QString::fromLocal8Bit(argv[0])).absolutePath().toStdString();
    QTemporaryDir dossier;
    QDir::setCurrent(dossier.path());
    {
        QCoreApplication app(argc, argv); // for the generator's texts
        agenda::bench::prepare_dossier_livre(records);
    }
    agenda::bench::Medianes rapport;
    // Twenty rounds of five pairs each: one start swings by a tenth here.
    agenda::bench::lance_bancs(argc, argv, 20, rapport);
    if (const double ratio = agenda::bench::mediane(rapports); ratio > 0 && pic_nu > 0) {
        std::printf("démarrage jusqu'au livre peint : %.2f × la fenêtre nue (médiane de %zu "
                    "paires)\n"
                    "mémoire au plus haut : %.0f Mio contre %.0f Mio, %.2f ×\n",
                    ratio, rapports.size(), pic_livre, pic_nu, pic_livre / pic_nu);
    }
    benchmark::Shutdown();
    return 0;
}
