#include "ui/vue/style.h"

#include "ui/vue/echelle.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <memory>
#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QIconEngine>
#include <QImageReader>
#include <QLabel>
#include <QPainter>
#include <QPixmapCache>
#include <QPushButton>
#include <QStringBuilder>
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

// The colours of a palette, for a key: its own key changes with every widget's copy of it. The
// last palette's is kept, as a grid's cells share their grid's.
std::size_t empreinte(const QPalette& p) {
    static std::pair<qint64, std::size_t> derniere{-1, 0};
    if (derniere.first == p.cacheKey()) return derniere.second;
    std::size_t h = 0;
    for (int groupe = 0; groupe < QPalette::NColorGroups; ++groupe)
        for (int role = 0; role < QPalette::NColorRoles; ++role)
            h = qHashMulti(h, p.color(QPalette::ColorGroup(groupe), QPalette::ColorRole(role))
                                  .rgba64()
                                  .toArgb32());
    derniere = {p.cacheKey(), h};
    return h;
}

// Draws `r` by `dessine`: straight on `g` where there is no plain ground `fond` or `r` is not on
// whole device pixels, and otherwise through the picture kept for its look, made the first time
// on `fond` at its own corner and then copied pixel for pixel. The look is `sorte`, `texte` and
// `valeurs`, with the size and the screen's scale. Smoothing, which a widget's painter may ask
// for, would send the copy down the slow way, through the raster engine's threads.
template <class Dessin, class... T>
void garde_ou_dessine(QPainter& g, const QRect& r, const QColor& fond, Dessin&& dessine,
                      QLatin1StringView sorte, const QString& texte, const T&... valeurs) {
    if (!fond.isValid() || !copie_exacte(g, r.topLeft())) return dessine(g);
    const qreal echelle = g.device()->devicePixelRatio();
    const QString cle = sorte % QString::number(qHashMulti(0, r.size(), echelle, valeurs...), 36) %
                        QLatin1Char('|') % texte;
    QPixmap image;
    if (!QPixmapCache::find(cle, &image)) {
        image = QPixmap(r.size() * echelle);
        image.setDevicePixelRatio(echelle);
        image.fill(fond);
        QPainter p(&image);
        // It starts as the window's painter does, with its font, pen and direction.
        p.setFont(g.font());
        p.setPen(g.pen());
        p.setLayoutDirection(g.layoutDirection());
        p.translate(-r.topLeft());
        dessine(p);
        p.end();
        QPixmapCache::insert(cle, image);
    }
    const bool lisse = g.testRenderHint(QPainter::SmoothPixmapTransform);
    g.setRenderHint(QPainter::SmoothPixmapTransform, false);
    g.drawPixmap(r.topLeft(), image);
    g.setRenderHint(QPainter::SmoothPixmapTransform, lisse);
}

constexpr char feuille_empruntee[] = "agenda-feuille-empruntee", sol_uni[] = "agenda-sol-uni",
               cellules_gardees[] = "agenda-cellules-gardees";

// The plain colour under `w`, where it has been told.
QColor sol_de(const QWidget* w) {
    return w ? w->property(sol_uni).value<QColor>() : QColor();
}

// The widget a text is drawn on, where that text lies straight on the widget's ground: a
// caption's or a check box's, not a button's, which lies on its bevel.
const QWidget* texte_sur_son_sol(QPaintDevice* d) {
    auto* w = dynamic_cast<QWidget*>(d);
    return qobject_cast<const QLabel*>(w) || qobject_cast<const QCheckBox*>(w) ? w : nullptr;
}

// The plain ground a grid's cell lies on, where the grid keeps its cells' pictures and the cell
// is plain text: no ground, mark or picture of its own over the grid's.
QColor sol_de_cellule(const QStyleOptionViewItem& o, const QWidget* w) {
    const auto* vue = qobject_cast<const QAbstractItemView*>(w);
    if (!vue || !vue->property(cellules_gardees).toBool()) return {};
    const QWidget* sol = vue->viewport();
    const QBrush fond = sol->palette().brush(sol->backgroundRole());
    constexpr auto propres = QStyleOptionViewItem::HasCheckIndicator |
                             QStyleOptionViewItem::HasDecoration | QStyleOptionViewItem::Alternate;
    if (!sol->autoFillBackground() || fond.style() != Qt::SolidPattern || !fond.isOpaque() ||
        (o.features & propres) || !o.icon.isNull() || o.backgroundBrush.style() != Qt::NoBrush)
        return {};
    return fond.color();
}

// The button holding `feuille`, made when a button first borrows it. They go with the
// application, whose widgets they are.
using Modeles = std::map<QString, std::unique_ptr<QPushButton>>;
Modeles& modeles() {
    static auto* const m = [] {
        qAddPostRoutine([] { modeles().clear(); });
        return new Modeles;
    }();
    return *m;
}

const QPushButton* modele(const QString& feuille) {
    auto& m = modeles()[feuille];
    if (!m) {
        m = std::make_unique<QPushButton>();
        m->setStyleSheet(feuille);
        m->ensurePolished();
    }
    return m.get();
}

} // namespace

QString feuille_arrondie(const QString& fond, int rayon) {
    return QStringLiteral("QPushButton { background: %1; border: 1px solid #5a3a22; "
                          "border-radius: %2px; }")
        .arg(fond)
        .arg(rayon);
}

void pose_feuille_empruntee(QPushButton& bouton, const QString& feuille) {
    if (bouton.property(feuille_empruntee).toString() == feuille) return;
    // An empty sheet: drawn as its own again.
    bouton.setProperty(feuille_empruntee, feuille.isEmpty() ? QVariant() : QVariant(feuille));
    bouton.update();
}

void pose_sol_uni(QWidget& w, const QColor& sol) {
    w.setProperty(sol_uni, sol);
}

void garde_cellules(QAbstractItemView& grille) {
    grille.setProperty(cellules_gardees, true);
}

void StyleDuLivre::drawControl(ControlElement element, const QStyleOption* option, QPainter* g,
                               const QWidget* widget) const {
    const auto* cellule = qstyleoption_cast<const QStyleOptionViewItem*>(option);
    const auto* b = qstyleoption_cast<const QStyleOptionButton*>(option);
    if (element == CE_ItemViewItem && cellule) {
        const QColor fond = sol_de_cellule(*cellule, widget);
        return garde_ou_dessine(
            *g, cellule->rect, fond,
            [&](QPainter& p) { QProxyStyle::drawControl(element, option, &p, widget); },
            QLatin1StringView("agenda-cellule-"), cellule->text, int(cellule->state),
            int(cellule->features), int(cellule->displayAlignment), int(cellule->textElideMode),
            cellule->font, empreinte(cellule->palette), fond.rgba(), int(cellule->direction));
    }
    if (element != CE_PushButton || !widget || !b)
        return QProxyStyle::drawControl(element, option, g, widget);
    const QVariant feuille = widget->property(feuille_empruntee);
    const QWidget* m = feuille.isValid() ? modele(feuille.toString()) : nullptr;
    const QColor fond = sol_de(widget);
    garde_ou_dessine(
        *g, b->rect, fond,
        [&](QPainter& p) {
            m ? m->style()->drawControl(element, option, &p, m)
              : QProxyStyle::drawControl(element, option, &p, widget);
        },
        QLatin1StringView("agenda-bouton-"), b->text, int(b->state), int(b->features),
        b->icon.cacheKey(), b->iconSize, g->font(), empreinte(b->palette), fond.rgba(),
        int(b->direction), qHash(feuille.toString()));
}

void StyleDuLivre::drawItemText(QPainter* g, const QRect& r, int flags, const QPalette& pal,
                                bool enabled, const QString& texte,
                                QPalette::ColorRole role) const {
    const QColor fond = sol_de(texte_sur_son_sol(g->device()));
    garde_ou_dessine(
        *g, r, texte.isEmpty() || r.isEmpty() ? QColor() : fond,
        [&](QPainter& p) { QProxyStyle::drawItemText(&p, r, flags, pal, enabled, texte, role); },
        QLatin1StringView("agenda-texte-"), texte, flags, enabled, int(role), g->font(),
        empreinte(pal), g->pen().color().rgba(), fond.rgba(), int(g->layoutDirection()));
}

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
    // A tool button with its picture and its text, on a plain ground: a twentieth of a
    // millisecond for each of the editor's two at every opening.
    if (const auto* outil = qstyleoption_cast<const QStyleOptionToolButton*>(option);
        controle == CC_ToolButton && outil) {
        const QColor fond = sol_de(widget);
        return garde_ou_dessine(
            *g, outil->rect, fond,
            [&](QPainter& p) { QProxyStyle::drawComplexControl(controle, option, &p, widget); },
            QLatin1StringView("agenda-outil-"), outil->text, int(outil->state),
            int(outil->subControls), int(outil->activeSubControls), int(outil->features),
            outil->icon.cacheKey(), outil->iconSize, int(outil->toolButtonStyle),
            int(outil->arrowType), outil->font, g->font(), empreinte(outil->palette), fond.rgba(),
            int(outil->direction));
    }
    // A scroll bar's lines and gradients are hundreds of lines tall, each of which the raster
    // engine hands to other threads and waits for: two tenths of a millisecond for the services'
    // bar at every opening of the editor. Its look depends on nothing but what the key holds.
    // Copied only where the bar starts on a whole device pixel, as its picture does, and is not
    // scaled: elsewhere, its lines would fall on other pixels than the bar's own.
    const auto* barre = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (controle != CC_ScrollBar || !barre)
        return QProxyStyle::drawComplexControl(controle, option, g, widget);
    garde_ou_dessine(
        *g, barre->rect, Qt::transparent,
        [&](QPainter& p) { QProxyStyle::drawComplexControl(controle, barre, &p, widget); },
        QLatin1StringView("agenda-barre-"), QString(), int(barre->state), int(barre->subControls),
        int(barre->activeSubControls), barre->minimum, barre->maximum, barre->sliderPosition,
        barre->sliderValue, barre->pageStep, barre->singleStep, int(barre->orientation),
        barre->upsideDown, empreinte(barre->palette), int(barre->direction));
}

int StyleDuLivre::pixelMetric(PixelMetric mesure, const QStyleOption* option,
                              const QWidget* widget) const {
    const int n = QProxyStyle::pixelMetric(mesure, option, widget);
    switch (mesure) {
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
    case PM_CheckBoxLabelSpacing:
    case PM_RadioButtonLabelSpacing:
        return std::max(1, int(std::lround(n * retrait())));
    default:
        return n;
    }
}

QRect StyleDuLivre::subControlRect(ComplexControl controle, const QStyleOptionComplex* option,
                                   SubControl partie, const QWidget* widget) const {
    const QRect r = QProxyStyle::subControlRect(controle, option, partie, widget);
    if (controle != CC_ComboBox || retrait() >= 1 ||
        (partie != SC_ComboBoxArrow && partie != SC_ComboBoxEditField))
        return r;
    // The arrow gives up the side it shares with the text, which takes it.
    const QRect fleche = QProxyStyle::subControlRect(controle, option, SC_ComboBoxArrow, widget);
    const int cede = fleche.width() - int(std::lround(fleche.width() * retrait()));
    const bool inverse = option->direction == Qt::RightToLeft;
    if (partie == SC_ComboBoxArrow)
        return inverse ? r.adjusted(0, 0, -cede, 0) : r.adjusted(cede, 0, 0, 0);
    return inverse ? r.adjusted(-cede, 0, 0, 0) : r.adjusted(0, 0, cede, 0);
}

} // namespace agenda::ui
