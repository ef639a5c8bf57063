#pragma once
// The picture store: the program's own pictures, drawn in code at the size asked, by their
// roles in the windows.

#include <QPixmap>
#include <QSize>

namespace agenda::ui::icc {

QPixmap couverture(QSize taille);        // the leather under the open book
QPixmap page(QSize taille, bool gauche); // a page, its gutter towards the spine
QPixmap reliure(QSize taille);           // Picture1, the spine between the pages
QPixmap p11g(int i, QSize taille);       // a tab title on the left edge (0 to 5)
QPixmap p11d(int i, QSize taille);       // the same on the right edge
QPixmap fleche(bool vers_la_gauche, QSize taille);
QPixmap piece_cadre(int coin, int i, QSize taille); // frame piece i (0-7) of a set
QPixmap bouton(bool oui, QSize taille);             // the two picture buttons of the small windows

// Clock face n (0 to 6) for a face of 5030 x 5040 twips at this size: numbers on the ring of
// the hour cells, grey dots on the ring of the minute cells.
QPixmap horloge(int n, QSize taille);
// Colour swatches; the colour is read from the pixel under the pointer.
QPixmap palette(QSize taille);

} // namespace agenda::ui::icc
