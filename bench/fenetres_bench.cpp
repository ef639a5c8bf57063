// What an operator waits for, each against a bare Qt counterpart in the same run: the book's
// start-up to its first paint, a day step on a 32,767-record file, and the editor's opening.
// The paint is forced with a grab, on both sides of each pair. The pairs are repeated and
// interleaved at random (give --benchmark_repetitions to change the count). Run it in an X server
// (xvfb-run): offscreen, a bare window costs nothing and the ratios mean little. The start-up
// here is in the process; the whole process's start is a separate measure.

#include "book/torva1.h"
#include "book/vue/torva1_vue.h"
#include "data/etat.h"
#include "data/fichier_records.h"
#include "editor/vue/detarv_vue.h"
#include "generateur.h"
#include "ui/modale.h"
#include "ui/vue/echelle.h"

#include <benchmark/benchmark.h>
#include <cstdio>
#include <fcntl.h>
#include <map>
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>
#include <QToolButton>
#include <unistd.h>

using namespace agenda;

namespace {

constexpr int records = 32767;

void prepare_dossier() {
    QFile lien(QStringLiteral("lien_agenda.txt"));
    if (!lien.open(QIODevice::WriteOnly)) std::abort();
    for (int i = 1; i <= 20; ++i)
        lien.write(
            QStringLiteral("%1 : Collaborateur %1\r\n").arg(i, 2, 10, QLatin1Char('0')).toLatin1());
    lien.close();
    bench::genere_rendez_vous(0, records, 12);
}

// A bare window of the book's size with one label, shown and painted.
void fenetre_nue(const QSize& taille) {
    QWidget w;
    w.resize(taille);
    QLabel l(QStringLiteral("Agenda"), &w);
    w.show();
    benchmark::DoNotOptimize(w.grab());
}

// The book as the program opens it, on the day with appointments; its files closed at the end.
struct LivreOuvert {
    LivreOuvert() {
        etat = Etat{};
        etat.date_courante = bench::jour;
        livre = std::make_unique<Torva1>();
        vue = std::make_unique<Torva1Vue>(*livre);
        livre->charge();
        vue->show();
    }
    ~LivreOuvert() {
        vue.reset();
        livre.reset();
        ferme_tous_les_canaux();
    }
    std::unique_ptr<Torva1> livre;
    std::unique_ptr<Torva1Vue> vue;
};

void BM_demarrage_livre(benchmark::State& state) {
    for (auto _ : state) {
        LivreOuvert l;
        benchmark::DoNotOptimize(l.vue->grab());
    }
}
BENCHMARK(BM_demarrage_livre)->Unit(benchmark::kMillisecond);

void BM_demarrage_nu(benchmark::State& state) {
    const QSize taille = Torva1Vue(*std::make_unique<Torva1>()).size();
    for (auto _ : state)
        fenetre_nue(taille);
}
BENCHMARK(BM_demarrage_nu)->Unit(benchmark::kMillisecond);

void BM_pas_de_jour(benchmark::State& state) {
    LivreOuvert l;
    QToolButton* suivant = nullptr;
    for (auto* b : l.vue->findChildren<QToolButton*>())
        if (b->toolTip() == QStringLiteral("Jour suivant")) suivant = b;
    for (auto _ : state) {
        etat.date_courante = bench::jour - 1; // each step lands on the day with appointments
        suivant->click();
        benchmark::DoNotOptimize(l.vue->grab());
    }
}
BENCHMARK(BM_pas_de_jour)->Unit(benchmark::kMillisecond);

void BM_pas_nu(benchmark::State& state) {
    QWidget w;
    w.resize(Torva1Vue(*std::make_unique<Torva1>()).size());
    QLabel l(QStringLiteral("Agenda"), &w);
    w.show();
    std::vector<char> bloc(1 << 18);
    for (auto _ : state) {
        const int fd = ::open("tf_r0000.wdo", O_RDONLY);
        for (ssize_t n; (n = ::read(fd, bloc.data(), bloc.size())) > 0;)
            benchmark::DoNotOptimize(n);
        ::close(fd);
        l.setText(l.text() == QStringLiteral("Agenda") ? QStringLiteral("Agenda.")
                                                       : QStringLiteral("Agenda"));
        benchmark::DoNotOptimize(w.grab());
    }
}
BENCHMARK(BM_pas_nu)->Unit(benchmark::kMillisecond);

// Paints the modal window once it shows (its load may yield to the event loop before), then
// presses its way out.
void puis_ferme(const char* bouton) {
    auto* attente = new QTimer;
    QObject::connect(attente, &QTimer::timeout, [attente, bouton] {
        auto* d = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!d) return;
        attente->stop();
        attente->deleteLater();
        benchmark::DoNotOptimize(d->grab());
        if (!bouton) return d->accept();
        for (auto* b : d->findChildren<QPushButton*>())
            if (b->text() == QString::fromUtf8(bouton)) b->click();
    });
    attente->start(0);
}

void BM_ouverture_editeur(benchmark::State& state) {
    LivreOuvert l;
    for (auto _ : state) {
        puis_ferme("Effacer le rendez-vous"); // a new appointment: the way out
        l.livre->pageg_MouseDown(2000, 3700 + 10);
    }
}
BENCHMARK(BM_ouverture_editeur)->Unit(benchmark::kMillisecond);

void BM_dialogue_nu(benchmark::State& state) {
    for (auto _ : state) {
        QDialog d;
        d.resize(ui::px(Detarv::largeur), ui::px(Detarv::hauteur));
        puis_ferme(nullptr);
        d.exec();
    }
}
BENCHMARK(BM_dialogue_nu)->Unit(benchmark::kMillisecond);

// Keeps each benchmark's mean time, for the ratios.
class Rapport : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& r : runs)
            if (r.run_type == Run::RT_Aggregate && r.aggregate_name == "median")
                temps[r.run_name.function_name] = r.GetAdjustedRealTime();
        ConsoleReporter::ReportRuns(runs);
    }
    std::map<std::string, double> temps;
};

} // namespace

int main(int argc, char** argv) {
    if (qgetenv("DISPLAY").isEmpty()) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QTemporaryDir dossier;
    QDir::setCurrent(dossier.path());
    prepare_dossier();
    ui::enregistre_vue<Detarv, DetarvVue>();
    std::vector<char*> args(argv, argv + argc);
    char repetitions[] = "--benchmark_repetitions=5";
    char melange[] = "--benchmark_enable_random_interleaving=true";
    char agreges[] = "--benchmark_report_aggregates_only=true";
    args.insert(args.begin() + 1, {repetitions, melange, agreges});
    int n = int(args.size());
    benchmark::Initialize(&n, args.data());
    Rapport rapport;
    benchmark::RunSpecifiedBenchmarks(&rapport);
    for (const auto& [a, b, quoi] :
         {std::tuple{"BM_demarrage_livre", "BM_demarrage_nu", "démarrage jusqu'au livre peint"},
          {"BM_pas_de_jour", "BM_pas_nu", "pas d'un jour (32 767 records)"},
          {"BM_ouverture_editeur", "BM_dialogue_nu", "ouverture de l'éditeur"}})
        if (rapport.temps[a] > 0 && rapport.temps[b] > 0)
            std::printf("%s : %.2f × la fenêtre nue (médianes)\n", quoi,
                        rapport.temps[a] / rapport.temps[b]);
    benchmark::Shutdown();
    return 0;
}
