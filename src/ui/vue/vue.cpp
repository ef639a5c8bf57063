#include "ui/vue/vue.h"

#include "ui/erreur.h"
#include "ui/geometrie.h"
#include "ui/vue/echelle.h"
#include "ui/vue/icc.h"
#include "ui/vue/widgets.h"

#include <cstdint>
#include <QImage>
#include <QLabel>
#include <QPaintEngine>
#include <QPainter>
#include <QTimer>
#include <sys/mman.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace agenda::ui {

namespace {
// The main window, then each modal window in the order they were opened.
std::vector<QWidget*>& pile() {
    static std::vector<QWidget*> p{nullptr};
    return p;
}
QWidget* dessus() {
    for (auto it = pile().rbegin(); it != pile().rend(); ++it)
        if (*it) return *it;
    return nullptr;
}

// A new window's picture is fresh memory, which its first paint touched page by page, a fault
// for each: a fifth of the editor's opening. Asked of the system in one call, the pages come at
// once. Where the system cannot, the paint touches them as before.
void prend_la_memoire(const QPainter& g) {
#ifdef MADV_POPULATE_WRITE
    const QPaintEngine* moteur = g.paintEngine();
    const QPaintDevice* d = moteur ? moteur->paintDevice() : nullptr;
    if (!d || d->devType() != QInternal::Image) return;
    const auto& image = *static_cast<const QImage*>(d);
    const auto page = std::uintptr_t(sysconf(_SC_PAGESIZE));
    const auto debut = reinterpret_cast<std::uintptr_t>(image.constBits());
    // The whole pages of the picture: the paint touches those it shares with other memory.
    const std::uintptr_t a = (debut + page - 1) / page * page,
                         b = (debut + std::uintptr_t(image.sizeInBytes())) / page * page;
    if (b > a) madvise(reinterpret_cast<void*>(a), b - a, MADV_POPULATE_WRITE);
#else
    Q_UNUSED(g);
#endif
}
} // namespace

Vue::Vue(Fenetre& logique) : logique_(logique) {
    logique_.sur_modification = [this] { montre(); };
}

Vue::~Vue() {
    logique_.sur_modification = nullptr;
}

void Vue::appelle(const std::function<void()>& handler) {
    protege(handler);
    if (!logique_.fermee()) montre();
}

void Vue::apres_le_clic(std::function<void()> handler) {
    QTimer::singleShot(0, &garde_, [this, handler = std::move(handler)] { appelle(handler); });
}

void pose_fenetre_principale(QWidget* fenetre) {
    pile().front() = fenetre;
}

void place_sur_le_livre(QWidget& fenetre, int x, int y) {
    const QWidget* livre = pile().front();
    const QPoint origine = livre ? livre->mapToGlobal(QPoint(0, 0)) : QPoint(0, 0);
    fenetre.move(origine + QPoint(px(x), px(y)));
}

void au_premier_plan() {
    for (QWidget* w : pile())
        if (w) w->raise();
    if (QWidget* w = dessus()) w->activateWindow();
}

VueModale::VueModale(FenetreModale& logique, int largeur, int hauteur)
    : QDialog(dessus(), Qt::Dialog | Qt::FramelessWindowHint), Vue(logique), modale_(logique) {
    setFixedSize(px(largeur), px(hauteur));
    // Its paper covers it whole: the toolkit's own ground under it would be painted for nothing.
    setAttribute(Qt::WA_OpaquePaintEvent);
    modale_.sur_fermeture = [this] { accept(); };
}

VueModale::~VueModale() {
    modale_.sur_fermeture = nullptr;
}

void VueModale::ouvre() {
    pile().push_back(this);
    exec();
    pile().pop_back();
}

void VueModale::pose_cadre(int coin) {
    coin_cadre_ = coin;
    update();
}

void VueModale::paintEvent(QPaintEvent*) {
    QPainter g(this);
    if (!std::exchange(memoire_prise_, true)) prend_la_memoire(g);
    g.fillRect(rect(), icc::papier);
    if (coin_cadre_ == 0) return;
    // Painted on the paper rather than held by eight widgets under the others: a window opens
    // with a fifth fewer widgets to make, show and paint. Each piece under a clip of its own
    // rectangle, which lets the raster engine copy its lines rather than hand the blend of a
    // side's hundreds of lines, cut round the window's opaque widgets, to other threads.
    const auto pieces = pieces_cadre(twips(width()), twips(height()), coin_cadre_);
    for (int i = 0; i < int(pieces.size()); ++i) {
        const QRect r = px(pieces[std::size_t(i)]);
        g.setClipRect(r);
        g.drawPixmap(r.topLeft(), icc::piece_cadre(coin_cadre_, i, r.size()));
    }
}

void VueModale::showEvent(QShowEvent* e) {
    // Every caption the window holds is made by now. One with a style sheet of its own keeps
    // the ink that sheet gives it.
    for (QLabel* l : findChildren<QLabel*>())
        encre_libelle(*l);
    QDialog::showEvent(e);
}

void VueModale::reject() {
    // Escape, or QDialog's close event: the window stays open unless sortie() closes it.
    appelle([this] { modale_.sortie(); });
}

} // namespace agenda::ui
