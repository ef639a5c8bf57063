#pragma once
// The program's widget style: the platform's own, but for the month control's arrows, which are
// the toolkit's built-in ones on every desktop, as the book draws them, for scroll bars, drawn
// once for each look they take and then copied, for the marks of the small controls, which
// shrink with the book, for buttons drawn under a style sheet they borrow, and for captions,
// check boxes, buttons, tool buttons and grids' cells told the plain colour they stand on, drawn
// once for each look and then copied.

#include <QColor>
#include <QProxyStyle>

class QAbstractItemView;
class QPushButton;

namespace agenda::ui {

class StyleDuLivre : public QProxyStyle {
public:
    QIcon standardIcon(StandardPixmap icone, const QStyleOption* option,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* g,
                     const QWidget* widget) const override;
    void drawItemText(QPainter* g, const QRect& r, int flags, const QPalette& pal, bool enabled,
                      const QString& texte,
                      QPalette::ColorRole role = QPalette::NoRole) const override;
    void drawComplexControl(ComplexControl controle, const QStyleOptionComplex* option, QPainter* g,
                            const QWidget* widget) const override;
    // A check box's mark and a list's arrow shrink with a book shown smaller than it is drawn:
    // at their fixed sizes they left the small controls no room for their text.
    int pixelMetric(PixelMetric mesure, const QStyleOption* option,
                    const QWidget* widget) const override;
    QRect subControlRect(ComplexControl controle, const QStyleOptionComplex* option,
                         SubControl partie, const QWidget* widget) const override;
};

// Draws `bouton` as a button holding the style sheet `feuille` is drawn, without giving it the
// sheet: a button's own sheet is parsed, and the button polished by it, each time it is made,
// which was a twentieth of the editor's opening for its two half-day switches. The look is
// drawn by a button that holds the sheet, one for each sheet, never shown and kept.
void pose_feuille_empruntee(QPushButton& bouton, const QString& feuille);
// The book's rounded buttons: a ground of their own, the brown line, corners of `rayon` pixels.
QString feuille_arrondie(const QString& fond, int rayon);

// The plain colour `w` stands on: the style then draws a caption's or a check box's text, or a
// push or tool button, once for each look on that ground, and copies it. A caption's text was laid
// out and shaped again at every paint, a twentieth of a millisecond for the editor's date.
void pose_sol_uni(QWidget& w, const QColor& sol);

// A grid's cells of plain text on its ground, each drawn once for its look and then copied: the
// style lays a cell's text out three times at every paint. Told by a mark on the grid rather than
// by a delegate of its own, whose signals cost a grid as much to connect as it saved to paint.
void garde_cellules(QAbstractItemView& grille);

} // namespace agenda::ui
