#include "ui/vue/echelle.h"

#include "ui/surface.h"

#include <algorithm>
#include <cmath>
#include <QPainter>
#include <QScreen>
#include <QWidget>

namespace agenda::ui {

namespace {
double facteur = 1.0 / twips_par_pixel;
} // namespace

double px_par_twip() {
    return facteur;
}

double retrait() {
    return std::min(1.0, facteur * twips_par_pixel);
}

void fixe_echelle(double f) {
    facteur = f;
}

void echelle_pour_ecran(const QScreen* ecran) {
    if (!ecran) return;
    const QRect libre = ecran->availableGeometry();
    // Room for the window's title bar.
    const double f = std::min(double(libre.width()) / largeur_livre,
                              double(libre.height() - 40) / hauteur_livre);
    fixe_echelle(std::clamp(f, 1.0 / 30, 2.0 / 15));
}

int px(double t) {
    return int(std::lround(t * facteur));
}

int twips(int p) {
    return int(std::lround(p / facteur));
}

QRect px(const RectTwips& r) {
    const int x = px(r.left), y = px(r.top);
    return {x, y, px(r.left + r.width) - x, px(r.top + r.height) - y};
}

void place(QWidget& w, const RectTwips& r) {
    w.setGeometry(px(r));
}

QFont police(const QString& nom, double points, bool gras) {
    QFont f(nom);
    f.setPixelSize(std::max(1, px(points * twips_par_point)));
    f.setBold(gras);
    return f;
}

bool copie_exacte(const QPainter& g, QPointF p) {
    if (!g.device()) return false;
    const qreal echelle = g.device()->devicePixelRatio();
    const QTransform t = g.deviceTransform();
    const QPointF o = t.map(p);
    const auto entier = [](qreal v) { return std::abs(v - std::round(v)) < 1e-6; };
    return t.type() <= QTransform::TxScale && qFuzzyCompare(t.m11(), echelle) &&
           qFuzzyCompare(t.m22(), echelle) && entier(o.x()) && entier(o.y());
}

} // namespace agenda::ui
