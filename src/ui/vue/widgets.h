#pragma once
// The widgets the windows are built of, at the book's scale, and the routines that place
// windows on the screen.

#include "ui/geometrie.h"
#include "ui/surface.h"

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <QImage>
#include <QPixmap>
#include <QWidget>

class QCalendarWidget;
class QFont;
class QLabel;
class QPainter;

namespace agenda::ui {

// A picture surface: a background picture under what a Surface recorded, in twips. The picture
// with its drawing is made once and shown again until the drawing changes: a day step that
// keeps the same hours repaints nothing under its labels.
class VueSurface : public QWidget {
public:
    // Draws the background at a size in device pixels.
    using Fond = std::function<void(QPainter&, QSize)>;
    VueSurface(QWidget* parent, Fond fond);
    // A background that is a picture of the store, asked at the surface's logical size and laid
    // on its device pixels one to one.
    static Fond fond_image(std::function<QPixmap(QSize)> image);
    // The background alone, as the surface makes it at `pixels` device pixels: for a background
    // made beforehand, on another thread say. An opaque one, which covers every pixel, is kept
    // without alpha, in three bytes a pixel.
    static QImage image_du_fond(const Fond& fond, QSize pixels, qreal echelle, bool opaque = false);
    // The background the surface takes, once, in place of drawing its own: what `pret` gives,
    // if it has the size of the surface's device pixels then.
    void fond_pret(std::function<QImage()> pret) { fond_pret_ = std::move(pret); }
    void montre(const Surface* surface);
    // Changes whenever the picture under the drawing may be made anew.
    int version() const { return version_; }
    // A click of any button, in twips of the surface.
    std::function<void(int x, int y)> sur_clic;
    // Every move of the pointer over the surface, a button pressed or not.
    void suit_la_souris(std::function<void(int x, int y)> mouvement);
    // Drawn straight on the window at every paint, without the picture kept between paints: for
    // a small surface whose every change redraws it all anyway.
    void sans_image_gardee() { gardee_ = false; }

protected:
    void paintEvent(QPaintEvent*) override;
    void mousePressEvent(QMouseEvent* e) override;
    void mouseReleaseEvent(QMouseEvent* e) override;
    void mouseMoveEvent(QMouseEvent* e) override;

private:
    Fond fond_;
    std::function<QImage()> fond_pret_;
    std::function<void(int x, int y)> sur_mouvement;
    std::optional<Surface> surface_; // what is shown, kept as it was when shown
    QImage rendu_;                   // the background with the drawing on it
    int version_ = 0;
    bool gardee_ = true;
};

// A caption on a picture surface, shown as the picture of its text on the surface beneath it.
// The toolkit draws glyphs too big for its glyph cache from their outlines at every paint: the
// day's number cost a day step more than the whole scan of a small file. Each text's picture is
// drawn once, by a caption like this one, and kept; opaque, the caption leaves the surface
// beneath it alone when it changes. The texts are few: days, months, years. A caption off the
// screen is its text alone.
class LegendeGravee {
public:
    // `legende` is a child of `surface`, with its font, palette and alignment already given.
    LegendeGravee(VueSurface& surface, QLabel& legende);
    void montre(const QString& texte);

private:
    VueSurface& surface_;
    QLabel& legende_;
    std::map<QString, QPixmap> images_;
    std::pair<int, qreal> images_de_{-1, 0}; // the surface's version and scale they were made at
};

// A month calendar at a rectangle in twips, in French, its weeks from Monday, without week
// numbers, in this font. Its days are headed by their initials: the short names ("sam.") were
// cut short in the book's narrow columns.
QCalendarWidget* calendrier(QWidget& parent, const RectTwips& r, const QFont& police);

// The picture store's colour swatches at a rectangle in twips: a press on one gives its colour,
// read from the pixel under the pointer, as the files keep colours.
QLabel* palette(QWidget& parent, const RectTwips& r, std::function<void(std::int32_t)> clic);

// Line breaks as the files keep them (CR LF) and as a text widget holds them (LF).
QString crlf_vers_ecran(QString s);
QString ecran_vers_crlf(QString s);

// What a surface recorded, on a painter whose unit is the twip.
void dessine_surface(QPainter& g, const Surface& surface);

// Writes a caption in the book's ink, unless it already does. Given as the caption is made,
// before its window shows it, the ink costs a third of what it costs at the show.
void encre_libelle(QLabel& l);

// A caption at a rectangle in twips, wrapped to its width.
QLabel* libelle(QWidget& parent, const RectTwips& r, const QString& texte, const QFont& police);

// Left and top that centre a window on the screen.
void centre_fenetre(QWidget& fenetre);
// Centred across the screen, and on the book's height.
void centre_fenetre_haut(QWidget& fenetre);
// The book's size, centred across the screen at the top, in front.
void taille_fenetre(QWidget& fenetre);

} // namespace agenda::ui
