// What an operator waits for in the open book, each against a bare Qt counterpart in the same
// run: a day step (the arrow, the scan, the labels, until the window has repainted) against a
// plain read of the same file and a bare window's full repaint, at three file sizes; and the
// editor's opening until it is painted, against a bare dialog of the same size. The pairs are
// repeated and interleaved at random (give --benchmark_repetitions to change the count). Run it
// in an X server (xvfb-run): offscreen, a bare window costs nothing and the ratios mean little.
// The whole program's start is measured apart (demarrage_bench.cpp), each run a new process.

#include "banc.h"
#include "book/torva1.h"
#include "book/vue/torva1_vue.h"
#include "data/dossier.h"
#include "data/etat.h"
#include "data/fichier_records.h"
#include "editor/vue/detarv_vue.h"
#include "generateur.h"
#include "ui/geometrie.h"
#include "ui/modale.h"
#include "ui/vue/echelle.h"
#include "ui/vue/style.h"

#include <algorithm>
#include <array>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QToolButton>

using namespace agenda;

namespace {

// The day step's file sizes, one collaborator's file each (collaborator k + 1), a dozen on the day.
constexpr std::array<int, 3> tailles = {1000, 32767, 1000000};

std::int16_t collab_de(std::int64_t records) {
    return std::int16_t(1 + std::find(tailles.begin(), tailles.end(), records) - tailles.begin());
}

void repeint() {
    QCoreApplication::processEvents(); // the update requests: paint and flush to the server
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
        repeint();
    }
    ~LivreOuvert() {
        vue.reset();
        livre.reset();
        ferme_tous_les_canaux();
    }
    std::unique_ptr<Torva1> livre;
    std::unique_ptr<Torva1Vue> vue;
};

QSize taille_du_livre() {
    return {ui::px(ui::largeur_livre), ui::px(ui::hauteur_livre)};
}

void BM_pas_de_jour(benchmark::State& state) {
    LivreOuvert l;
    etat.num_collab = collab_de(state.range(0));
    ouvre_rv();
    // Back and forth between the day with a dozen appointments and the day before: every step
    // changes the day's labels, as a real one does.
    QToolButton *suivant = nullptr, *precedent = nullptr;
    for (auto* b : l.vue->findChildren<QToolButton*>()) {
        if (b->toolTip() == QStringLiteral("Jour suivant")) suivant = b;
        if (b->toolTip() == QStringLiteral("Jour précédent")) precedent = b;
    }
    bool avant = false; // the book opens on the day with appointments
    for (auto _ : state) {
        (avant ? suivant : precedent)->click();
        repeint();
        if (avant && etat.nb_jour() != 12) state.SkipWithError("not on the day with appointments");
        avant = !avant;
    }
}
BENCHMARK(BM_pas_de_jour)->Arg(1000)->Arg(32767)->Arg(1000000)->Unit(benchmark::kMillisecond);

// A plain read of the same file, then a full repaint of a bare window of the book's size.
void BM_pas_nu(benchmark::State& state) {
    QWidget w;
    w.resize(taille_du_livre());
    QLabel l(QStringLiteral("Agenda"), &w);
    w.show();
    repeint();
    const QByteArray nom = nom_fichier_rv(collab_de(state.range(0)), false).toLatin1();
    for (auto _ : state) {
        benchmark::DoNotOptimize(bench::lit_tout(nom.constData()));
        l.setText(l.text() == QStringLiteral("Agenda") ? QStringLiteral("Agenda.")
                                                       : QStringLiteral("Agenda"));
        w.update();
        repeint();
    }
}
BENCHMARK(BM_pas_nu)->Arg(1000)->Arg(32767)->Arg(1000000)->Unit(benchmark::kMillisecond);

// Once the modal window has been painted for the first time (its load may yield to the event
// loop before), notes the time since `debut` and presses its way out: the time is the wait from
// the click to the painted window, not the window's closing.
void une_fois_peinte(const char* bouton, QElapsedTimer debut, double& secondes) {
    auto* attente = new QTimer;
    QObject::connect(attente, &QTimer::timeout, [attente, bouton, debut, &secondes] {
        auto* d = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!d) return;
        attente->stop();
        attente->deleteLater();
        struct Peinte : QObject {
            Peinte(QDialog* d, const char* bouton, QElapsedTimer debut, double& secondes)
                : QObject(d), d_(d), bouton_(bouton), debut_(debut), secondes_(secondes) {}
            bool eventFilter(QObject*, QEvent* e) override {
                if (e->type() == QEvent::Paint && !fait_) {
                    fait_ = true;
                    QTimer::singleShot(0, d_, [this] { sort(); });
                }
                return false;
            }
            void sort() {
                secondes_ = double(debut_.nsecsElapsed()) / 1e9;
                if (!bouton_) return d_->accept();
                for (auto* b : d_->findChildren<QPushButton*>())
                    if (b->text() == QString::fromUtf8(bouton_)) return b->click();
            }
            QDialog* d_;
            const char* bouton_;
            QElapsedTimer debut_;
            double& secondes_;
            bool fait_ = false;
        };
        d->installEventFilter(new Peinte(d, bouton, debut, secondes));
    });
    attente->start(0);
}

void BM_ouverture_editeur(benchmark::State& state) {
    LivreOuvert l;
    for (auto _ : state) {
        QElapsedTimer debut;
        debut.start();
        double secondes = 0;
        une_fois_peinte("Effacer le rendez-vous", debut, secondes); // a new one: the way out
        l.livre->pageg_MouseDown(2000, 3700 + 10);
        state.SetIterationTime(secondes);
        repeint();
    }
}
BENCHMARK(BM_ouverture_editeur)->UseManualTime()->Unit(benchmark::kMillisecond);

void BM_dialogue_nu(benchmark::State& state) {
    for (auto _ : state) {
        QElapsedTimer debut;
        debut.start();
        double secondes = 0;
        QDialog d;
        d.resize(ui::px(Detarv::largeur), ui::px(Detarv::hauteur));
        une_fois_peinte(nullptr, debut, secondes);
        d.exec();
        state.SetIterationTime(secondes);
    }
}
BENCHMARK(BM_dialogue_nu)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    if (qgetenv("DISPLAY").isEmpty()) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QApplication::setStyle(new ui::StyleDuLivre); // the widgets drawn as the program draws them
    // Fifteen pairs: a window's step swings by a fifth from one repetition to the next here.
    return bench::dans_un_dossier(
        argc, argv, 15,
        [] {
            bench::prepare_dossier_livre(1000);
            for (const int records : tailles)
                bench::genere_rendez_vous(collab_de(records), records, 12);
            ui::enregistre_vue<Detarv, DetarvVue>();
        },
        [](const bench::Medianes& rapport) {
            const std::string nue = " × la fenêtre nue (médianes)";
            for (const int records : tailles)
                bench::imprime_ratio(rapport, "BM_pas_de_jour" + std::to_string(records),
                                     "BM_pas_nu" + std::to_string(records),
                                     "pas d'un jour (" + std::to_string(records) + " records)",
                                     nue);
            bench::imprime_ratio(rapport, "BM_ouverture_editeur", "BM_dialogue_nu",
                                 "ouverture de l'éditeur", nue);
        });
}
