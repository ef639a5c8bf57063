#pragma once
// What every view does, for the main window and the modal ones alike: it shows the state of
// its logic, and forwards each event to the handler of the same name.

#include "ui/modale.h"

#include <functional>
#include <QDialog>

namespace agenda::ui {

class Vue {
public:
    explicit Vue(Fenetre& logique);
    virtual ~Vue();
    Vue(const Vue&) = delete;
    Vue& operator=(const Vue&) = delete;

protected:
    // An event: the logic's handler, under the program's end on error, then the state shown
    // again if the window is still open.
    void appelle(const std::function<void()>& handler);
    // Renders the logic's state.
    virtual void montre() = 0;
    // A click's handler that may open a window, run once the click's events have been
    // delivered, so that the window's modal loop does not start inside the toolkit's mouse
    // handling.
    void apres_le_clic(std::function<void()> handler);

private:
    Fenetre& logique_;
    QObject garde_; // a handler still waiting is dropped with the view
};

// The main window: the bottom of the windows on show.
void pose_fenetre_principale(QWidget* fenetre);
// Moves a window to a point given in twips of the main window.
void place_sur_le_livre(QWidget& fenetre, int x, int y);
// The main window to the front, and every modal window it opened still above it.
void au_premier_plan();

// A modal window's widgets: a dialog with no border of its own, at the logic's size in twips,
// belonging to the window that opens it, so that nothing can put that window above it. Escape
// and the window manager's close go to the logic's sortie().
class VueModale : public QDialog, public Vue {
public:
    VueModale(FenetreModale& logique, int largeur, int hauteur);
    ~VueModale() override;
    // Runs the window until its logic closes it.
    void ouvre();

protected:
    void reject() override;
    // Eight picture pieces round the window, which has no border of its own, with corners of
    // `coin` twips (coin_fin or coin_large).
    void pose_cadre(int coin);
    // The windows' paper and frame, and their captions in the book's ink. Set by hand rather
    // than by a style sheet on the window, which would style every widget in it and make each
    // opening slower by half.
    void paintEvent(QPaintEvent* e) override;
    void showEvent(QShowEvent* e) override;

private:
    FenetreModale& modale_;
    int coin_cadre_ = 0; // no frame
    bool memoire_prise_ = false;
};

// The one registration of a window: its logic's type and its view.
template <class Logique, class V>
void enregistre_vue() {
    enregistre_presentation(typeid(Logique), [](FenetreModale& f) {
        V vue(static_cast<Logique&>(f));
        vue.ouvre();
    });
}

} // namespace agenda::ui
