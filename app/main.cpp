// Agenda: the appointment book of the shop, started in its data folder.

#include "ouverture.h"

#include <cstdio>
#include <cstring>
#include <QApplication>

namespace {

constexpr const char* aide =
    "Usage : agenda [--version | --help]\n"
    "\n"
    "Agenda est le carnet de rendez-vous de la boutique : la journée d'un collaborateur est un\n"
    "livre ouvert, chaque rendez-vous une étiquette de couleur à ses heures ; le planning, la\n"
    "recherche et les rappels SMS en font partie.\n"
    "\n"
    "Agenda travaille dans le dossier courant : c'est le dossier de données qu'il partage avec\n"
    "le programme de caisse et les autres postes (lien_agenda.txt, tf_r*.wdo, W_CAI038.WDO...).\n"
    "Lancé depuis le menu, il travaille dans le dossier Agenda du dossier personnel.\n"
    "\n"
    "  --version  affiche la version et s'arrête\n"
    "  --help     affiche cette aide et s'arrête\n";

} // namespace

int main(int argc, char** argv) {
    // Answered before any window or file is touched.
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--version") == 0) {
            std::printf("Agenda %s\n", AGENDA_VERSION);
            return 0;
        }
        if (std::strcmp(argv[i], "--help") == 0) {
            std::fputs(aide, stdout);
            return 0;
        }
    }
    agenda::ui::ACote polices = agenda::lit_les_polices_a_cote();
    QApplication app(argc, argv);
    polices.attends();
    const auto programme = agenda::ouvre_programme();
    return QApplication::exec();
}
