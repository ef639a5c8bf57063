#include "ui/vue/widgets.h"

#include "ui/geometrie.h"
#include "ui/vue/echelle.h"
#include "ui/vue/icc.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <QCalendarWidget>
#include <QGuiApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>

namespace agenda::ui {

VueSurface::VueSurface(QWidget* parent, Fond fond) : QWidget(parent), fond_(std::move(fond)) {}

void VueSurface::mousePressEvent(QMouseEvent* e) {
    e->accept();
}

void VueSurface::mouseReleaseEvent(QMouseEvent* e) {
    // The click is complete when the button comes up over the surface, so that a window it
    // opens does not take the release of this click.
    if (sur_clic && rect().contains(e->position().toPoint()))
        sur_clic(twips(int(e->position().x())), twips(int(e->position().y())));
}

void VueSurface::mouseMoveEvent(QMouseEvent* e) {
    if (sur_mouvement) sur_mouvement(twips(int(e->position().x())), twips(int(e->position().y())));
}

void VueSurface::suit_la_souris(std::function<void(int x, int y)> mouvement) {
    sur_mouvement = std::move(mouvement);
    setMouseTracking(true);
}

void VueSurface::montre(const Surface* surface) {
    if (surface ? surface_ && surface->meme_dessin(*surface_) : !surface_) return;
    surface_ = surface ? std::optional(*surface) : std::nullopt;
    rendu_ = QImage();
    ++version_;
    // What opaque children cover is not repainted with the drawing: a new drawing of the page
    // leaves the month control's cells alone.
    QRegion a_repeindre(rect());
    for (const QObject* o : children())
        if (const auto* w = qobject_cast<const QWidget*>(o);
            w && !w->isHidden() && w->autoFillBackground())
            a_repeindre -= w->geometry();
    update(a_repeindre);
}

VueSurface::Fond VueSurface::fond_image(std::function<QPixmap(QSize)> image) {
    return [image = std::move(image)](QPainter& g, QSize pixels) {
        // The painter draws in device pixels; the logical size they stand for, at a scale of at
        // least one, is their number over the scale, rounded.
        const QSize logique = (QSizeF(pixels) / g.device()->devicePixelRatioF()).toSize();
        g.drawPixmap(QRect(QPoint(), pixels), image(logique));
    };
}

namespace {

// A background drawn at `pixels` device pixels, on a painter whose unit is the logical pixel.
void peint_fond(QPainter& g, const VueSurface::Fond& fond, QSize pixels, qreal echelle) {
    if (!fond) return;
    g.save();
    g.scale(1 / echelle, 1 / echelle);
    fond(g, pixels);
    g.restore();
}

} // namespace

QImage VueSurface::image_du_fond(const Fond& fond, QSize pixels, qreal echelle, bool opaque) {
    // An image, not a pixmap: a background can then blend its grain straight into it.
    QImage image(pixels, opaque ? QImage::Format_RGB888 : QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(echelle);
    // Transparent, and black without alpha, are zero bytes: cleared at memory speed rather than
    // pixel by pixel, three bytes at a time in an opaque picture.
    std::memset(image.bits(), 0, std::size_t(image.sizeInBytes()));
    if (fond) {
        QPainter g(&image);
        peint_fond(g, fond, pixels, echelle);
    }
    return image;
}

void VueSurface::paintEvent(QPaintEvent* e) {
    const qreal echelle = devicePixelRatioF();
    const QSize voulu = size() * echelle;
    const auto peint_dessin = [this](QPainter& p) {
        if (!surface_) return;
        p.scale(px_par_twip(), px_par_twip());
        dessine_surface(p, *surface_);
    };
    QPainter g(this);
    // Straight on the window where that gives the kept picture's pixels.
    if (!gardee_ && copie_exacte(g, QPointF(0, 0))) {
        peint_fond(g, fond_, voulu, echelle);
        peint_dessin(g);
        return;
    }
    if (rendu_.size() != voulu) {
        // An opaque surface's every pixel is opaque: its picture, a quarter smaller without
        // alpha, is copied to the window rather than blended.
        const bool opaque = testAttribute(Qt::WA_OpaquePaintEvent);
        QImage pret = fond_pret_ ? std::exchange(fond_pret_, nullptr)() : QImage();
        rendu_ = pret.size() == voulu && pret.devicePixelRatio() == echelle &&
                         pret.hasAlphaChannel() != opaque
                     ? std::move(pret)
                     : image_du_fond(fond_, voulu, echelle, opaque);
        if (surface_) {
            QPainter p(&rendu_);
            peint_dessin(p);
        }
    }
    // Rectangle by rectangle of what needs repainting: under a clip of many rectangles (the
    // page round its opaque controls) the raster engine would build a span list of height times
    // rectangles, 400 KiB for a page, rather than copy lines.
    for (const QRect& r : e->region()) {
        g.setClipRect(r);
        g.drawImage(0, 0, rendu_);
    }
}

namespace {

// The last point at or before `p` (in logical pixels, not negative) from which a picture is
// shifted from the window by whole device pixels, by sixteen at a time: its glyphs and blends
// then fall on the same pixels and the same vector lanes as the window's own. The window's corner
// when no small step does.
QPoint origine_entiere(QPoint p, qreal echelle) {
    constexpr int voie = 16; // device pixels: 64 bytes, the widest vector of a blend
    for (int pas = 1; pas <= 64; ++pas)
        if (const qreal d = pas * echelle;
            std::abs(d - std::round(d)) < 1e-6 && std::lround(d) % voie == 0)
            return {p.x() - p.x() % pas, p.y() - p.y() % pas};
    return {};
}

} // namespace

LegendeGravee::LegendeGravee(VueSurface& surface, QLabel& legende)
    : surface_(surface), legende_(legende) {}

void LegendeGravee::montre(const QString& texte) {
    // Off the screen, its text: the surface's first showing paints beneath it anyway, and the
    // picture made now would wait for the surface's background, which the book's cover is
    // still drawing as it opens.
    if (!legende_.isVisible()) {
        legende_.setAttribute(Qt::WA_OpaquePaintEvent, false);
        legende_.setText(texte);
        return;
    }
    const qreal echelle = legende_.devicePixelRatioF();
    if (const std::pair de(surface_.version(), echelle); images_de_ != de) {
        images_.clear();
        images_de_ = de;
    }
    auto [image, nouvelle] = images_.try_emplace(texte);
    // The same picture given again would still be painted again.
    if (!nouvelle && legende_.pixmap().cacheKey() == image->second.cacheKey()) return;
    if (nouvelle) {
        // The surface, then the text over it, where the caption's device pixels have the same
        // fraction as in its window: the glyphs' outlines fall on the very pixels of the
        // caption's own painting.
        const QPoint place = legende_.mapTo(legende_.window(), QPoint());
        const QRect ici(place - origine_entiere(place, echelle), legende_.size());
        QPixmap fenetre(QSize(ici.right() + 1, ici.bottom() + 1) * echelle);
        fenetre.setDevicePixelRatio(echelle);
        surface_.render(&fenetre, ici.topLeft(), QRegion(legende_.geometry()),
                        QWidget::DrawWindowBackground);
        QLabel modele(texte);
        modele.setFont(legende_.font());
        modele.setPalette(legende_.palette());
        modele.setAlignment(legende_.alignment());
        modele.resize(legende_.size());
        modele.render(&fenetre, ici.topLeft(), QRegion(), {});
        image->second = fenetre.copy(QRect(ici.topLeft() * echelle, ici.size() * echelle));
        image->second.setDevicePixelRatio(echelle);
    }
    legende_.setPixmap(image->second);
    legende_.setAttribute(Qt::WA_OpaquePaintEvent); // once it has a picture to cover its place
}

void dessine_surface(QPainter& g, const Surface& surface) {
    g.setRenderHint(QPainter::Antialiasing);
    g.setRenderHint(QPainter::TextAntialiasing);
    for (const auto& t : surface.traits()) {
        QPen pen(couleur(t.couleur), t.epaisseur);
        pen.setStyle(t.pointille ? Qt::DotLine : Qt::SolidLine);
        pen.setCapStyle(Qt::RoundCap);
        g.setPen(pen);
        g.drawLine(t.x1, t.y1, t.x2, t.y2);
    }
    for (const auto& b : surface.boites())
        g.fillRect(QRect(QPoint(std::min(b.x1, b.x2), std::min(b.y1, b.y2)),
                         QPoint(std::max(b.x1, b.x2), std::max(b.y1, b.y2))),
                   couleur(b.couleur));
    for (const auto& t : surface.textes()) {
        g.setFont(police_twips(t.police, t.taille));
        g.setPen(couleur(t.couleur));
        g.drawText(QRectF(t.x, t.y, 20000, 20000), Qt::AlignLeft | Qt::AlignTop, t.texte);
    }
}

namespace {

QSize ecran_twips(const QWidget& w) {
    const QScreen* s = w.screen() ? w.screen() : QGuiApplication::primaryScreen();
    const QRect r = s ? s->availableGeometry() : QRect(0, 0, 1024, 768);
    return {twips(r.width()), twips(r.height())};
}

void pose(QWidget& w, const RectTwips& r) {
    w.resize(px(r.width), px(r.height));
    w.move(px(r.left), px(r.top));
}

class Palette : public QLabel {
public:
    Palette(QWidget& parent, std::function<void(std::int32_t)> clic)
        : QLabel(&parent), clic_(std::move(clic)) {}

protected:
    void mousePressEvent(QMouseEvent* e) override {
        const QImage image = pixmap().toImage();
        const QPoint p = (e->position() * image.devicePixelRatio()).toPoint();
        if (image.valid(p)) clic_(bbggrr(image.pixelColor(p)));
    }

private:
    std::function<void(std::int32_t)> clic_;
};

} // namespace

QCalendarWidget* calendrier(QWidget& parent, const RectTwips& r, const QFont& police) {
    // Its headers measure their text as they are made. Made in a holder of its own font, it
    // loads no other: the application's font alone took a millisecond of the book's start.
    QWidget porteur;
    porteur.setFont(police);
    auto* c = new QCalendarWidget(&porteur);
    c->setFont(police);
    c->setParent(&parent);
    place(*c, r);
    c->setLocale(QLocale(QLocale::French, QLocale::France));
    c->setFirstDayOfWeek(Qt::Monday);
    c->setHorizontalHeaderFormat(QCalendarWidget::SingleLetterDayNames);
    c->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    return c;
}

QLabel* palette(QWidget& parent, const RectTwips& r, std::function<void(std::int32_t)> clic) {
    auto* p = new Palette(parent, std::move(clic));
    place(*p, r);
    p->setPixmap(icc::palette(p->size()));
    p->setCursor(Qt::CrossCursor);
    return p;
}

QString crlf_vers_ecran(QString s) {
    return s.replace(QLatin1String("\r\n"), QLatin1String("\n"));
}

QString ecran_vers_crlf(QString s) {
    return s.replace(QLatin1Char('\n'), QLatin1String("\r\n"));
}

void encre_libelle(QLabel& l) {
    QPalette p = l.palette();
    // A caption on a button writes in the button's text colour.
    const std::array roles = {QPalette::WindowText, l.foregroundRole()};
    if (std::ranges::all_of(roles, [&](QPalette::ColorRole r) { return p.color(r) == icc::encre; }))
        return;
    for (const QPalette::ColorRole r : roles)
        p.setColor(r, icc::encre);
    l.setPalette(p);
}

QLabel* libelle(QWidget& parent, const RectTwips& r, const QString& texte, const QFont& police) {
    auto* l = new QLabel(texte, &parent);
    place(*l, r);
    l->setWordWrap(true);
    l->setFont(police);
    return l;
}

void centre_fenetre(QWidget& w) {
    const QSize e = ecran_twips(w);
    pose(w, centre(e.width(), e.height(), twips(w.width()), twips(w.height())));
}

void centre_fenetre_haut(QWidget& w) {
    pose(w, centre_haut(ecran_twips(w).width(), twips(w.width()), twips(w.height())));
}

void taille_fenetre(QWidget& w) {
    pose(w, taille_livre(ecran_twips(w).width()));
    w.raise();
}

} // namespace agenda::ui
