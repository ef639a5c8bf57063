#include "ui/vue/style.h"

#include <array>
#include <cmath>
#include <QIconEngine>
#include <QImageReader>
#include <QPainter>
#include <QPixmapCache>
#include <QStyleOptionSlider>

namespace agenda::ui {

namespace {

// A picture of the toolkit's, read as the PNG it is: left to guess, the reader would first load
// every image plug-in installed to ask each whether it knows the bytes.
QPixmap png(const QString& chemin) {
    QImageReader lecteur(chemin, "png");
    lecteur.setAutoDetectImageFormat(false);
    return QPixmap::fromImage(lecteur.read());
}

// An arrow at 16, 32 and 128 pixels, as the toolkit's icon of those three files, but each file
// read only when a size asked first needs it: their decoding was a millisecond of every start,
// and the larger two serve on screens of higher density only. The icon of pixmaps picks the
// smallest at least as large as the size asked, so that the files read so far give what the
// three would.
class Fleche : public QIconEngine {
public:
    explicit Fleche(QString nom) : nom_(std::move(nom)) {}
    QPixmap pixmap(const QSize& taille, QIcon::Mode mode, QIcon::State etat) override {
        return icone(taille).pixmap(taille, 1.0, mode, etat);
    }
    void paint(QPainter* g, const QRect& r, QIcon::Mode mode, QIcon::State etat) override {
        const qreal dpr = g->device() ? g->device()->devicePixelRatio() : 1.0;
        g->drawPixmap(r, pixmap(r.size() * dpr, mode, etat));
    }
    QSize actualSize(const QSize& taille, QIcon::Mode, QIcon::State) override {
        // The picture chosen, scaled down to fit.
        const int cote = cotes[choisie(taille)];
        QSize reelle(cote, cote);
        if (reelle.width() > taille.width() || reelle.height() > taille.height())
            reelle.scale(taille, Qt::KeepAspectRatio);
        return reelle;
    }
    QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State etat) override {
        if (mode != QIcon::Normal || etat != QIcon::Off) return {};
        return {{16, 16}, {32, 32}, {128, 128}};
    }
    bool isNull() override { return false; }
    QIconEngine* clone() const override { return new Fleche(*this); }

private:
    static constexpr std::array<int, 3> cotes = {16, 32, 128};

    // The smallest picture at least as large as the size asked, or the largest.
    static std::size_t choisie(QSize taille) {
        std::size_t i = 0;
        while (i + 1 < cotes.size() && cotes[i] * cotes[i] < taille.width() * taille.height())
            ++i;
        return i;
    }
    // The files up to the one chosen, each read the first time it is needed.
    QIcon& icone(QSize taille) {
        for (const std::size_t besoin = choisie(taille) + 1; lues_ < besoin; ++lues_)
            icone_.addPixmap(
                png(QStringLiteral(":/qt-project.org/styles/commonstyle/images/%1-%2.png")
                        .arg(nom_)
                        .arg(cotes[lues_])));
        return icone_;
    }
    QString nom_;
    QIcon icone_;
    std::size_t lues_ = 0;
};

// The colours of a palette, for a key: its own key changes with every widget's copy of it.
std::size_t empreinte(const QPalette& p) {
    std::size_t h = 0;
    for (int groupe = 0; groupe < QPalette::NColorGroups; ++groupe)
        for (int role = 0; role < QPalette::NColorRoles; ++role)
            h = qHashMulti(h, p.color(QPalette::ColorGroup(groupe), QPalette::ColorRole(role))
                                  .rgba64()
                                  .toArgb32());
    return h;
}

} // namespace

QIcon StyleDuLivre::standardIcon(StandardPixmap icone, const QStyleOption* option,
                                 const QWidget* widget) const {
    // Asked of the icon theme first, they cost the search of its folders at every start, for
    // the month control's first arrow; where the theme has none, these are what it falls back on.
    if (icone != SP_ArrowLeft && icone != SP_ArrowRight)
        return QProxyStyle::standardIcon(icone, option, widget);
    return QIcon(
        new Fleche(icone == SP_ArrowLeft ? QStringLiteral("left") : QStringLiteral("right")));
}

void StyleDuLivre::drawComplexControl(ComplexControl controle, const QStyleOptionComplex* option,
                                      QPainter* g, const QWidget* widget) const {
    // A scroll bar's lines and gradients are hundreds of lines tall, each of which the raster
    // engine hands to other threads and waits for: two tenths of a millisecond for the services'
    // bar at every opening of the editor. Its look depends on nothing but what the key holds.
    // Copied only where the bar starts on a whole device pixel, as its picture does, and is not
    // scaled: elsewhere, its lines would fall on other pixels than the bar's own.
    const auto* barre = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (controle != CC_ScrollBar || !barre || !g->device())
        return QProxyStyle::drawComplexControl(controle, option, g, widget);
    const qreal echelle = g->device()->devicePixelRatio();
    const QTransform t = g->deviceTransform();
    const QPointF origine = t.map(QPointF(barre->rect.topLeft()));
    const auto entier = [](qreal v) { return std::abs(v - std::round(v)) < 1e-6; };
    if (t.type() > QTransform::TxScale || !qFuzzyCompare(t.m11(), echelle) ||
        !qFuzzyCompare(t.m22(), echelle) || !entier(origine.x()) || !entier(origine.y()))
        return QProxyStyle::drawComplexControl(controle, option, g, widget);
    const QString cle = QStringLiteral("agenda-barre-%1x%2@%3-%4-%5-%6-%7-%8")
                            .arg(barre->rect.width())
                            .arg(barre->rect.height())
                            .arg(echelle)
                            .arg(int(barre->state))
                            .arg(int(barre->subControls) * 65536 + int(barre->activeSubControls))
                            .arg(QStringLiteral("%1.%2.%3.%4.%5.%6.%7")
                                     .arg(barre->minimum)
                                     .arg(barre->maximum)
                                     .arg(barre->sliderPosition)
                                     .arg(barre->sliderValue)
                                     .arg(barre->pageStep)
                                     .arg(barre->singleStep)
                                     .arg(int(barre->orientation) * 2 + int(barre->upsideDown)))
                            .arg(empreinte(barre->palette))
                            .arg(int(barre->direction));
    QPixmap image;
    if (!QPixmapCache::find(cle, &image)) {
        image = QPixmap(barre->rect.size() * echelle);
        image.setDevicePixelRatio(echelle);
        image.fill(Qt::transparent);
        QStyleOptionSlider a_zero = *barre;
        a_zero.rect.moveTo(0, 0);
        QPainter p(&image);
        QProxyStyle::drawComplexControl(controle, &a_zero, &p, widget);
        p.end();
        QPixmapCache::insert(cle, image);
    }
    // Pixel for pixel: smoothing, which the widget's painter asks for, would send the copy
    // down the slow way, through the same threads.
    const bool lisse = g->testRenderHint(QPainter::SmoothPixmapTransform);
    g->setRenderHint(QPainter::SmoothPixmapTransform, false);
    g->drawPixmap(barre->rect.topLeft(), image);
    g->setRenderHint(QPainter::SmoothPixmapTransform, lisse);
}

} // namespace agenda::ui
