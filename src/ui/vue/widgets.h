#pragma once
// The widgets the windows are built of, at the book's scale, and the routines that place
// windows on the screen.

#include "ui/surface.h"

#include <functional>
#include <QPixmap>
#include <QWidget>

namespace agenda::ui {

// A picture surface: a background picture under what a Surface recorded, in twips.
class VueSurface : public QWidget {
public:
    using Fond = std::function<QPixmap(QSize)>;
    VueSurface(QWidget* parent, Fond fond);
    void montre(const Surface* surface);
    // A click of any button, in twips of the surface.
    std::function<void(int x, int y)> sur_clic;

protected:
    void paintEvent(QPaintEvent*) override;
    void mousePressEvent(QMouseEvent* e) override;
    void mouseReleaseEvent(QMouseEvent* e) override;

private:
    Fond fond_;
    QPixmap fond_cache_;
    const Surface* surface_ = nullptr;
};

// Left and top that centre a window on the screen.
void centre_fenetre(QWidget& fenetre);
// Centred across the screen, and on the book's height.
void centre_fenetre_haut(QWidget& fenetre);
// The book's size, centred across the screen at the top, in front.
void taille_fenetre(QWidget& fenetre);
// Eight picture pieces round a window that has no border of its own.
void pose_cadre_fin(QWidget& fenetre);
void pose_cadre_large(QWidget& fenetre);

} // namespace agenda::ui
