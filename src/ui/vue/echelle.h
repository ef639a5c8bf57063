#pragma once
// Twips to device-independent pixels. The book is designed in twips; the factor is chosen once
// so that it fills the screen, and Qt takes device pixels from there on HiDPI screens.

#include "ui/geometrie.h"

#include <QFont>
#include <QRect>

class QPainter;
class QPointF;
class QScreen;
class QWidget;

namespace agenda::ui {

// The book as drawn: 15 twips a pixel at 96 dpi.
inline constexpr double twips_par_pixel = 15;

double px_par_twip();
void fixe_echelle(double px_par_twip);
// How much smaller than drawn the book is shown: below 1 on a screen too small for it, 1
// otherwise. The style's fixed sizes follow it.
double retrait();
// The largest factor at which the book fits the screen's free area.
void echelle_pour_ecran(const QScreen* ecran);

int px(double twips);
int twips(int pixels);
QRect px(const RectTwips& r);

// Places a widget at a rectangle given in twips of its parent.
void place(QWidget& w, const RectTwips& r);
// A font of so many points at the book's scale.
QFont police(const QString& nom, double points, bool gras = false);

// Whether a picture made at the painter's device pixels and copied at `p` gives the pixels the
// painter would draw there: `p` falls on a whole device pixel and nothing scales but the screen.
bool copie_exacte(const QPainter& g, QPointF p);

} // namespace agenda::ui
