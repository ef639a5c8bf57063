// Agenda: the appointment book of the shop, started in its data folder.

#include "book/torva1.h"
#include "book/vue/torva1_vue.h"
#include "editor/vue/detarv_vue.h"
#include "input/vue/date_97_vue.h"
#include "input/vue/mini_97_vue.h"
#include "ui/erreur.h"
#include "ui/systeme.h"
#include "ui/vue/echelle.h"

#include <QApplication>
#include <QMessageBox>
#include <QScreen>

namespace {

// The one registration of each modal window: its logic and its widgets.
void enregistre_fenetres() {
    using namespace agenda;
    ui::enregistre_vue<Mini97, Mini97Vue>();
    ui::enregistre_vue<Date97, Date97Vue>();
    ui::enregistre_vue<Detarv, DetarvVue>();
}

} // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Agenda"));
    agenda::ui::echelle_pour_ecran(QGuiApplication::primaryScreen());
    // Where a screen can show it: on the offscreen platform nobody could close the window.
    if (QGuiApplication::platformName() != QLatin1String("offscreen"))
        agenda::ui::fixe_message_fatal([](const QString& message) {
            QMessageBox::critical(nullptr, QStringLiteral("Agenda"), message);
        });
    enregistre_fenetres();

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
