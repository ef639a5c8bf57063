// Agenda: the appointment book of the shop, started in its data folder.

#include "book/torva1.h"
#include "book/torva1_vue.h"
#include "data/erreur.h"
#include "ui/echelle.h"
#include "ui/systeme.h"
#include "ui/vues.h"
#include "ui/widgets.h"

#include <QApplication>
#include <QMessageBox>
#include <QScreen>

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Agenda"));
    agenda::ui::echelle_pour_ecran(QGuiApplication::primaryScreen());
    // Where a screen can show it: on the offscreen platform nobody could close the window.
    if (QGuiApplication::platformName() != QLatin1String("offscreen"))
        agenda::ui::fixe_message_fatal([](const QString& message) {
            QMessageBox::critical(nullptr, QStringLiteral("Agenda"), message);
        });

    agenda::enregistre_vues();

    agenda::Torva1 livre;
    agenda::Torva1Vue vue(livre);
    agenda::protege([&] { livre.charge(); });
    // Across the middle of the screen, at the top.
    if (const QScreen* ecran = QGuiApplication::primaryScreen()) {
        const QRect libre = ecran->availableGeometry();
        vue.move(libre.left() + libre.width() / 2 - vue.width() / 2, libre.top());
    }
    vue.show();
    return QApplication::exec();
}
