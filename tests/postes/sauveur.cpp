// A workstation saving new appointments through the editor's own save path, as fast as it can:
// agenda_sauveur FOLDER COUNT PREFIX. Each save prints its text once it has returned, so that a
// test that kills this process knows which saves must be in the file.

#include "data/dossier.h"
#include "data/etat.h"
#include "editor/detarv.h"
#include "ui/dates.h"
#include "ui/erreur.h"

#include <cstdio>
#include <QCoreApplication>
#include <QDir>

int main(int argc, char** argv) {
    using namespace agenda;
    QCoreApplication app(argc, argv);
    if (argc != 4 || !QDir::setCurrent(QString::fromLocal8Bit(argv[1]))) {
        std::fprintf(stderr, "usage : agenda_sauveur DOSSIER NOMBRE PREFIXE\n");
        return 2;
    }
    const int nombre = std::atoi(argv[2]);
    const QString prefixe = QString::fromLocal8Bit(argv[3]);
    etat.date_courante = ui::date_de(QDate(2004, 3, 3));
    etat.duree_defaut = 30;
    // A failing save ends the program as the program ends: its French message, status 1.
    protege([&] {
        ouvre_rv();
        for (int i = 1; i <= nombre; ++i) {
            Detarv d; // 09:00 to 10:00, the text names the save
            d.Text1 = QStringLiteral("%1-%2").arg(prefixe).arg(i);
            d.Combo1 = QStringLiteral("09"), d.Combo3 = QStringLiteral("10");
            d.Combo2 = d.Combo4 = QStringLiteral("00");
            etat.num_rv = 0;
            d.sauve_rv();
            std::printf("%s\n", d.Text1.toLatin1().constData());
            std::fflush(stdout);
        }
    });
    return 0;
}
