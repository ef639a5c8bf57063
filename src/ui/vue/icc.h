#pragma once
// The picture store: the program's own pictures, drawn in code at the size asked, by their
// roles in the windows. A size is in logical pixels; the pictures made by the store carry the
// finest screen's device pixels for it.

#include <QColor>
#include <QIcon>
#include <QImage>
#include <QPicture>
#include <QPixmap>
#include <QRect>
#include <QRectF>
#include <QSize>
#include <QString>
#include <vector>

class QPainter;

namespace agenda::ui::icc {

// The book's paper, its shade towards the edges, and the ink of its captions.
inline const QColor papier(0xfb, 0xf6, 0xe8), papier_ombre(0xe2, 0xd6, 0xbb),
    encre(0x4a, 0x2c, 0x1a);

QPixmap couverture(QSize taille); // the leather under the open book
// The same leather in parts of the whole only, where it shows between what lies on it: each
// part's picture as the whole has it there. Images, which another thread may make.
std::vector<QImage> couverture(QSize taille, const std::vector<QRect>& parties);
QPixmap icone(QSize taille); // the program's own: the bound book, open
// A page, its gutter towards the spine, drawn straight on the painter: the page surfaces keep
// what they show, so the picture is kept nowhere else.
void page(QPainter& g, QSize taille, bool gauche);
// Picture1, the spine between the pages: a few strokes, replayed at each painting rather than
// kept as pixels, sharp at any scale.
QPicture reliure(QSize taille);
QPixmap feuille(QSize taille); // a sheet laid on the pages: a week's day, the year

QPixmap p11g(int i, QSize taille); // a tab title on the left edge (0 to 5)
QPixmap p11d(int i, QSize taille); // the same on the right edge
QPixmap fleche(bool vers_la_gauche, QSize taille);
QPixmap piece_cadre(int coin, int i, QSize taille); // frame piece i (0-7) of a set
QPixmap bouton(bool oui, QSize taille);             // the two picture buttons of the small windows

// Clock face n (0 to 6) for a face of 5030 x 5040 twips at this size: numbers on the ring of
// the hour cells, grey dots on the ring of the minute cells.
QPixmap horloge(int n, QSize taille);
// The same on an opaque ground, as it shows there: a window copies it rather than blends it.
QPixmap horloge_sur(int n, QSize taille, const QColor& fond);
// Colour swatches; the colour is read from the pixel under the pointer.
QPixmap palette(QSize taille);

// The client list: a row's bar (even and odd rows alternate), a key of its keyboard, and the
// new-client button.
QPixmap barre(bool paire, QSize taille);
QPixmap touche(QSize taille);
QPixmap nouveau_client(QSize taille);
// The client card's four classes: a lady, a young lady, a man, an older man with a beard.
QPixmap visage(int i, QSize taille);
// The icon of one of the store's pictures, kept with it: a button showing it is then known by its
// icon from one window to the next, and the style's copy of the button serves again.
QIcon icone_de(const QPixmap& image);

// The planning's buttons: the transfer, the date chooser, the way out.
QPixmap transfert(QSize taille);
QPixmap calendrier(QSize taille);
QPixmap sortie(QSize taille);

// The SMS manager's pair: a message kept, a message marked for cancelling.
QPixmap marque_sms(bool annulee, QSize taille);

// The on-screen keyboard: a cap for each key at its place in pixels, with the face of a key
// that does something rather than type.
struct Touche {
    QRectF rect;
    QString face;
};
QPixmap clavier(QSize taille, const std::vector<Touche>& touches);

// The book's way to its settings: a cog.
QPixmap reglages(QSize taille);
// The day on paper: a printer.
QPixmap imprimante(QSize taille);

// A globe: a page on the Internet.
QPixmap internet(QSize taille);

// A switch, on or off.
QPixmap interrupteur(bool oui, QSize taille);

// A grain so that leather and paper do not look like plastic, the same at every drawing: points
// of the colour at alphas from 10 to 39, one per `densite` pixels. On an ARGB32 premultiplied
// or RGB888 image of the grain's size, drawn at its pixels, the points are blended as
// `grain_dans` does.
void grain(QPainter& g, QSize taille, int densite, QColor c);
// The same grain blended straight into the pixels of ARGB32 premultiplied or RGB888 images, as
// the painter's source over blends it: for the cover's 126,000 points and the pages', where the
// painter's path per point was a third of the start-up. The grain is that of a whole of size
// `entiere`; each image is the part of the whole at its origin.
struct Partie {
    QImage* image;
    QPoint origine;
};
void grain_dans(std::vector<Partie>& parties, QSize entiere, int densite, QColor c);

} // namespace agenda::ui::icc
