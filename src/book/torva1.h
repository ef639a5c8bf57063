#pragma once
// The main window: the open book. This is its logic, free of widgets; Torva1Vue shows it.
// Handlers keep the names of the window's controls and events.

#include "data/etat.h"
#include "ui/geometrie.h"
#include "ui/modale.h"
#include "ui/surface.h"

#include <array>
#include <cstdint>
#include <map>
#include <QObject>
#include <QString>
#include <QTimer>
#include <vector>

namespace agenda {

// An appointment laid on a page, in twips of the page surface.
struct EtiquetteRv {
    // The height the label keeps when a damaged key gives it one it cannot take.
    static constexpr int hauteur_modele = 300;

    int left = 0, top = 0, width = 0, height = 0;
    bool bordure = false;
    std::int32_t couleur = 0;
    QString legende;
};

// Slots of table_pages, from the base of a page (0 left, 30 right).
namespace slot_page {
inline constexpr int heure_premiere = 1, heure_fin = 2, divisions = 3, haut = 4, hauteur = 5,
                     gauche = 6, largeur = 7, origine = 8, nb_heures = 10, hauteur_heure = 11,
                     demi_heure = 12, quart_heure = 13;
inline constexpr int base_gauche = 0, base_droite = 30;
} // namespace slot_page

class Torva1 : public QObject, public ui::Fenetre {
    Q_OBJECT
public:
    static constexpr int nb_onglets = 12;
    static constexpr int nb_vues = 11; // page slots pageg(0..10), paged(0..10)

    Torva1();

    // The load, run at start and again on reload; each step bears being run again.
    void charge();
    void lit_param();
    // Starts the return command and ends the program, without confirmation: the only way the
    // book ends, whichever way the operator leaves it.
    [[noreturn]] void appel_menu();

    // Tabs and views. sel_onglet skips a failing statement and goes on.
    void sel_click_g(int n);
    void sel_click_d(int n);
    void sel_onglet(int n);

    // Day view.
    void lit_param_jour();
    void dessine_agenda(ui::Surface& surface);
    void decod_date();
    // Skips a failing statement and goes on: a damaged record costs its own label only.
    void affiche_rv();

    // Handlers.
    void Form_KeyPress(int code);
    // The window manager closes the book.
    void Form_Unload() { appel_menu(); }
    void ongletg_Click(int i) { sel_click_g(i), sel_onglet(i); }
    void ongletd_Click(int i) { sel_click_d(i), sel_onglet(i); }
    void calend_Click(Date jour);
    void Picture2_Click(); // the day before
    void Picture3_Click(); // the day after
    // A click on the book's title: another collaborator's book, on the same date.
    void Label7_Click();
    // The settings take the book's place, and give it back reloaded.
    void bt_out_Click();
    // A click in the ruling opens a new appointment at that hour; on a label, that appointment.
    // Coordinates are twips of the page.
    void pageg_MouseDown(int x, int y);
    void paged_MouseDown(int x, int y);
    void lrv_Click(int i);
    void lrvd_Click(int i) { lrv_Click(i); }

    // Where the controls stand, in twips: the two pages and the spine between them as the load
    // places them, the tabs on the edges, the date panel and the arrows on the pages.
    static constexpr ui::RectTwips pageg_rect{600, 0, 6600, 10950},
        paged_rect{8100, 0, 6600, 10950}, Picture1_rect{7200, 0, 900, 10950};
    static constexpr ui::RectTwips onglet_rect(bool gauche, int i) {
        return {gauche ? 0 : 14700, 500 + i * 1550, gauche ? 600 : 660, 1450};
    }
    static constexpr ui::RectTwips Label2_rect{800, 300, 2700, 500},
        Label3_rect{800, 800, 2700, 1300}, Label4_rect{800, 2150, 2700, 500},
        Label1_rect{800, 2700, 2700, 450}, calend_rect{3500, 250, 2900, 3100};
    static constexpr ui::RectTwips Label7_rect{800, 250, 5400, 600};
    static constexpr ui::RectTwips Picture2_rect{800, 10300, 600, 500},
        Picture3_rect{5600, 10300, 600, 500}, bt_out_rect{800, 10300, 500, 500};

    // What the window shows.
    std::array<std::int16_t, 51> table_pages{};
    float echelle_page = 0, echelle_g = 0, echelle_d = 0;
    ui::Surface pageg, paged;
    std::map<int, EtiquetteRv> lrv, lrvd; // by place in the day list, from 1
    std::vector<std::int32_t> num_rv_label;
    QString Label1, Label2, Label3, Label4; // year, weekday, day, month
    QString Label7;                         // the book's title
    Date calend = 0;                        // the month control's day
    std::array<bool, nb_onglets> ongletg_visible{}, ongletd_visible{};
    int vue_visible = 0; // the page slot on show; -1 none
    std::array<std::int32_t, 16> couleurs_onglet{};
    std::array<QString, 21> motifs_g, motifs_d;
    QTimer Timer1, Timer2, Timer3;

signals:
    // The book leaves the screen to the settings, and comes back.
    void cache(bool oui);
    // Timer3: the window comes to the front.
    void au_premier_plan();
    // The banner sepaffic is loaded, hidden, once for the life of the program.
    void charge_banniere();

private:
    void pleine_page(ui::FenetreModale& fenetre);
    void place_etiquette(int i, const QString& entree);
    void clic_page(int base, int x, int y);
};

} // namespace agenda
