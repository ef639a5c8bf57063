// The views over every collaborator's file, against a plain read of the same 20 files in the same
// run: the planning's load and the search both scan the whole files, by design, so they should
// cost the reading of the bytes. And the painting of a full day of 20 columns against a frame's
// time.

#include "banc.h"
#include "data/fichier_records.h"
#include "data/texte.h"
#include "generateur.h"
#include "planning/torva11.h"
#include "search/torvar.h"
#include "ui/vue/echelle.h"
#include "ui/vue/widgets.h"

#include <benchmark/benchmark.h>
#include <cstdio>
#include <QApplication>

using namespace agenda;

namespace {

constexpr int collabs = 20, records = 32767, du_jour = 12;

std::string fichier(int i) {
    return QStringLiteral("tf_r%1.wdo").arg(i, 4, 10, QLatin1Char('0')).toStdString();
}

void prepare() {
    for (int i = 1; i <= collabs; ++i) {
        bench::genere_rendez_vous(std::int16_t(i), records, du_jour);
        etat.noms_collab[std::size_t(i)] =
            motif_zeros(i, 2) + QStringLiteral(" : Collaborateur ") + QString::number(i);
    }
    etat.nb_collab = collabs;
    etat.heure_debut = 8;
    etat.heure_fin = 19;
    etat.date_courante = bench::jour;
}

void BM_lecture_20_fichiers(benchmark::State& state) {
    for (auto _ : state)
        for (int i = 1; i <= collabs; ++i)
            benchmark::DoNotOptimize(bench::lit_tout(fichier(i).c_str()));
}
BENCHMARK(BM_lecture_20_fichiers);

void BM_chargement_planning(benchmark::State& state) {
    for (auto _ : state) {
        Torva11 p;
        p.Form_Load();
        benchmark::DoNotOptimize(p.nb_boites());
    }
}
BENCHMARK(BM_chargement_planning);

// The scans alone, without the drawing.
void BM_scans_seuls(benchmark::State& state) {
    for (auto _ : state) {
        Torva11 p;
        for (int i = 1; i <= collabs; ++i)
            p.charge_journee(std::int16_t(i));
        benchmark::DoNotOptimize(p.liste_texte.size());
    }
}
BENCHMARK(BM_scans_seuls);

// A word that no appointment holds: every record's text is looked at.
void BM_recherche_mot(benchmark::State& state) {
    critere_rv = QStringLiteral("dupont");
    for (auto _ : state) {
        Torvar t;
        t.recherche_rv();
        benchmark::DoNotOptimize(t.List1.size());
    }
}
BENCHMARK(BM_recherche_mot);

// The surface of a loaded planning painted whole at the book's size on this screen.
void BM_peinture_planning(benchmark::State& state) {
    Torva11 p;
    p.Form_Load();
    ui::VueSurface surface(nullptr, {});
    surface.resize(ui::px(Torva11::p1_rect).size());
    for (auto _ : state) {
        surface.montre(nullptr);
        surface.montre(&p.p1);
        benchmark::DoNotOptimize(surface.grab());
    }
}
BENCHMARK(BM_peinture_planning);

} // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    ui::fixe_echelle(1280.0 / ui::largeur_livre);
    return bench::dans_un_dossier(argc, argv, 5, prepare, [](const bench::Medianes& rapport) {
        const std::string fichiers =
            " (" + std::to_string(collabs) + " × " + std::to_string(records) + " records)";
        bench::imprime_ratio(rapport, "BM_chargement_planning", "BM_lecture_20_fichiers",
                             "chargement du planning / lecture séquentielle" + fichiers);
        bench::imprime_ratio(rapport, "BM_recherche_mot", "BM_lecture_20_fichiers",
                             "recherche d'un mot / lecture séquentielle" + fichiers);
        bench::imprime_ratio(rapport, "BM_scans_seuls", "BM_lecture_20_fichiers",
                             "les seules lectures du jour / lecture séquentielle" + fichiers);
        if (const double peinture = rapport.temps("BM_peinture_planning"); peinture > 0)
            std::printf("peinture du planning (%d colonnes) : %.2f ms, une image à 60 Hz : "
                        "16.67 ms\n",
                        collabs, peinture / 1e6);
    });
}
