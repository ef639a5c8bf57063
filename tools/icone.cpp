// Writes the program's icon at the sizes of the desktop's icon theme: FOLDER/NxN/apps/NAME.png.

#include "ui/vue/icc.h"

#include <cstdio>
#include <QApplication>
#include <QDir>

int main(int argc, char** argv) {
    if (argc != 3) {
        std::fprintf(stderr, "usage : agenda_icone DOSSIER NOM\n");
        return 2;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    for (const int n : {16, 24, 32, 48, 64, 128, 256}) {
        const QString dossier =
            QStringLiteral("%1/%2x%2/apps").arg(QString::fromLocal8Bit(argv[1])).arg(n);
        if (!QDir().mkpath(dossier) ||
            !agenda::ui::icc::icone(QSize(n, n))
                 .save(dossier + QLatin1Char('/') + QString::fromLocal8Bit(argv[2]) + ".png"))
            return 1;
    }
    return 0;
}
