#include "ouverture.h"

#include "clients/vue/cclifa_vue.h"
#include "clients/vue/lit_cli_vue.h"
#include "editor/vue/ch_coul_vue.h"
#include "editor/vue/detarv_vue.h"
#include "editor/vue/saisnote_vue.h"
#include "input/vue/clavv_vue.h"
#include "input/vue/date_97_vue.h"
#include "input/vue/mini_97_vue.h"
#include "planning/vue/saisiuti_vue.h"
#include "planning/vue/torva11_vue.h"
#include "search/vue/torvar_vue.h"
#include "settings/vue/toroutils_vue.h"
#include "sms/vue/verifsmss_vue.h"
#include "ui/erreur.h"
#include "ui/systeme.h"
#include "ui/vue/echelle.h"
#include "ui/vue/icc.h"
#include "ui/vue/style.h"

#include <fontconfig/fontconfig.h>
#include <QApplication>
#include <QDBusConnection>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QScreen>
#include <QTimer>
#include <utility>

namespace agenda {

namespace {

// The one registration of each modal window: its logic and its widgets.
void enregistre_fenetres() {
    ui::enregistre_vue<Mini97, Mini97Vue>();
    ui::enregistre_vue<Date97, Date97Vue>();
    ui::enregistre_vue<Clavv, ClavvVue>();
    ui::enregistre_vue<Detarv, DetarvVue>();
    ui::enregistre_vue<LitCli, LitCliVue>();
    ui::enregistre_vue<Cclifa, CclifaVue>();
    ui::enregistre_vue<Torva11, Torva11Vue>();
    ui::enregistre_vue<Saisiuti, SaisiutiVue>();
    ui::enregistre_vue<Verifsmss, VerifsmssVue>();
    ui::enregistre_vue<Torvar, TorvarVue>();
    ui::enregistre_vue<Toroutils, ToroutilsVue>();
    ui::enregistre_vue<Saisnote, SaisnoteVue>();
    ui::enregistre_vue<ChCoul, ChCoulVue>();
}

// Does `action` once, as soon as `fenetre` has been painted for the first time, or after half a
// second if it has not been (a window the window manager opens minimised): for what the user
// does not wait for.
class ApresLaPremierePeinture : public QObject {
public:
    ApresLaPremierePeinture(QWidget& fenetre, std::function<void()> action)
        : QObject(&fenetre), action_(std::move(action)) {
        fenetre.installEventFilter(this);
        QTimer::singleShot(500, this, [this] { fais(); });
    }

protected:
    bool eventFilter(QObject*, QEvent* e) override {
        if (e->type() == QEvent::Paint)
            QTimer::singleShot(0, this, [this] { fais(); }); // once it is shown
        return false;
    }

private:
    void fais() {
        if (!action_) return;
        parent()->removeEventFilter(this);
        std::exchange(action_, nullptr)();
    }
    std::function<void()> action_;
};

} // namespace

ui::ACote lit_les_polices_a_cote() {
    // The toolkit asks for it again and finds it read; should it fail here, the toolkit's own
    // reading says so.
    return ui::ACote([] { FcInit(); });
}

std::unique_ptr<Programme> ouvre_programme() {
    // The accessibility layer asks for the session bus as the first widgets are made, and waits
    // for it; where there is none, the bus library first tries to start one. Asked for here on
    // the side, the answer is ready, or nearly, when the book's widgets need it.
    ui::ACote bus([] { QDBusConnection::sessionBus(); });
    QApplication::setApplicationName(QStringLiteral("Agenda"));
    QApplication::setStyle(new ui::StyleDuLivre);
    // The window manager finds the menu entry, and its icon, by this name.
    QGuiApplication::setDesktopFileName(QStringLiteral("fr.agenda.Agenda"));
    ui::echelle_pour_ecran(QGuiApplication::primaryScreen());
    // Where a screen can show it: on the offscreen platform nobody could close the window.
    if (QGuiApplication::platformName() != QLatin1String("offscreen"))
        ui::fixe_message_fatal([](const QString& message) {
            QMessageBox::critical(nullptr, QStringLiteral("Agenda"), message);
        });
    enregistre_fenetres();
    ui::fixe_saisie([](const QString& titre, const QString& invite, const QString& defaut) {
        return QInputDialog::getText(QApplication::activeWindow(), titre, invite, QLineEdit::Normal,
                                     defaut);
    });

    // The leather is drawn on the side while the day is loaded, and the book is built after the
    // load: its month control waits for the session bus, which has most often answered by then.
    auto couverture = std::make_shared<CouvertureDessinee>(
        QGuiApplication::primaryScreen() ? QGuiApplication::primaryScreen()->devicePixelRatio()
                                         : 1.0);
    auto p = std::make_unique<Programme>();
    protege([&] { p->livre.charge(); });
    p->vue = std::make_unique<Torva1Vue>(p->livre, std::move(couverture));
    Torva1Vue& vue = *p->vue;
    // Across the middle of the screen, at the top.
    if (const QScreen* ecran = QGuiApplication::primaryScreen()) {
        const QRect libre = ecran->availableGeometry();
        vue.move(libre.left() + libre.width() / 2 - vue.width() / 2, libre.top());
    }
    // The window's own icon, for the task switcher, once the book is on the screen: drawn
    // before, it held the first paint back. The larger ones of the menu and the dock come from
    // the installed icon theme.
    new ApresLaPremierePeinture(
        vue, [] { QApplication::setWindowIcon(ui::icc::icone(QSize(128, 128))); });
    vue.show();
    p->bus_de_session = std::move(bus);
    return p;
}

} // namespace agenda
