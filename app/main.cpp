// Agenda: the appointment book of the shop, started in its data folder.

#include "ouverture.h"
#include "ui/systeme.h"

#include <cstdio>
#include <cstdlib>
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

QtMessageHandler messages_de_qt = nullptr;

// Qt ends a program that cannot reach its screen by abort(): while the application connects, its
// fatal message ends Agenda with a French one and status 1 instead. No file is open yet.
void sans_ecran(QtMsgType type, const QMessageLogContext& contexte, const QString& texte) {
    if (type != QtFatalMsg) return messages_de_qt(type, contexte, texte);
    agenda::ui::message_fatal(QStringLiteral("l'écran est inaccessible (DISPLAY=%1).")
                                  .arg(qEnvironmentVariable("DISPLAY")));
    std::_Exit(1);
}

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
    agenda::ui::annonce_le_bus_absent();
    agenda::ui::ACote polices = agenda::lit_les_polices_a_cote();
    messages_de_qt = qInstallMessageHandler(sans_ecran);
    QApplication app(argc, argv);
    qInstallMessageHandler(messages_de_qt);
    polices.attends();
    const auto programme = agenda::ouvre_programme();
    return QApplication::exec();
}
