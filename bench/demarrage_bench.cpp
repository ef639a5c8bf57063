// The whole program's start, as a user waits for it: from starting the process to the book's
// first paint, and the process's peak memory, against a bare Qt Widgets window with one label
// from the same executable. Each run is a new process (this one, started again with --enfant),
// so the pictures, fonts and libraries are made and loaded afresh every time. The child writes
// when its window was first painted on its standard output and ends at once. Run it in an X
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
    if (quoi == "livre") polices = agenda::lit_les_polices_a_cote();
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

void mesure(benchmark::State& state, const char* quoi) {
    double pic = 0;
    for (auto _ : state) {
        const auto [secondes, memoire] = lance(quoi);
        if (secondes < 0) {
            state.SkipWithError("the child did not paint");
            break;
        }
        state.SetIterationTime(secondes);
        pic = std::max(pic, memoire);
    }
    state.counters["Mio"] = pic;
}

void BM_demarrage_livre(benchmark::State& state) {
    mesure(state, "livre");
}
void BM_demarrage_nu(benchmark::State& state) {
    mesure(state, "nu");
}
BENCHMARK(BM_demarrage_livre)->UseManualTime()->Iterations(5)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_demarrage_nu)->UseManualTime()->Iterations(5)->Unit(benchmark::kMillisecond);

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
    // Twenty rounds of five processes each: one round's start swings by a tenth here, and the
    // median of a dozen still moved by a twentieth from one run to the next.
    agenda::bench::lance_bancs(argc, argv, 20, rapport);
    const std::string livre_ = "BM_demarrage_livre", nu_ = "BM_demarrage_nu";
    const double livre = rapport.temps(livre_), nu = rapport.temps(nu_);
    if (livre > 0 && nu > 0)
        std::printf("démarrage jusqu'au livre peint : %.2f × la fenêtre nue (médianes)\n"
                    "mémoire au plus haut : %.0f Mio contre %.0f Mio, %.2f ×\n",
                    livre / nu, rapport.compteur(livre_, "Mio"), rapport.compteur(nu_, "Mio"),
                    rapport.compteur(livre_, "Mio") / rapport.compteur(nu_, "Mio"));
    benchmark::Shutdown();
    return 0;
}
