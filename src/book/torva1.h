#pragma once
// The main window: the open book. This is its logic, free of widgets; Torva1Vue shows it.
// Handlers keep the names of the window's controls and events.

#include "data/etat.h"
#include "data/formats.h"
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

    // Week view: seven strips, Monday to Sunday, and the week's note under the Sunday.
    void decod_semaine();
    void affiche_nom_jour(int k);
    void dessine_semaine(ui::Surface& surface);
    // jour_s_0 to jour_s_6: the labels of strip k from its day list. Skips a failing statement.
    void jour_s(int k, const QStringList& jour);
    void picture4_Click(); // the week before
    void Picture5_Click(); // the week after
    void pages_Click(int k);
    void lrvs_Click(int k, int i); // a label of strip k: that day
    void Text3_Click();

    // Year view: twelve month grids on Picture6.
    void decod_annee();
    void Picture7_Click() { change_annee(-1); } // the year before, as Label9_Click
    void Picture8_Click() { change_annee(1); }  // the year after, as Label8_Click
    void g1_Click(int mois, int ligne, int colonne);
    void Label5_Click(); // the holidays' colour
    void Label6_Click(); // the appointment days' colour

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
        Picture3_rect{5600, 10300, 600, 500}, bt_out_rect{800, 10300, 500, 500},
        bt_imprime_rect{1400, 10300, 500, 500};

    // The week view: strips 0 to 3 on the left page, 4 to 6 on the right, each under its
    // heading; the note under the Sunday, the week arrows and the note's caption above it.
    static constexpr int nb_bandes = 7;
    static constexpr ui::RectTwips pages_rect(int k) {
        constexpr std::array<int, 7> gauche{210, 210, 210, 210, 240, 240, 270},
            haut{390, 3060, 5730, 8400, 390, 3060, 5760};
        return {gauche[std::size_t(k)], haut[std::size_t(k)], 6135, 2300};
    }
    static constexpr ui::RectTwips njours_rect(int k) {
        constexpr std::array<int, 7> haut{90, 2760, 5430, 8100, 90, 2760, 5430};
        return {pages_rect(k).left, haut[std::size_t(k)], 6135, 255};
    }
    static constexpr bool bande_a_gauche(int k) { return k < 4; }
    static constexpr ui::RectTwips Text3_rect{420, 8550, 5805, 2115};
    static constexpr std::int32_t Text3_fond_dessin = 0xC0FFFF;
    static constexpr ui::RectTwips picture4_rect{420, 8070, 450, 450},
        Picture5_rect{5775, 8070, 450, 450}, Label10_rect{900, 8110, 4845, 400};
    // The week on paper: at the end of the first heading of the right page.
    static constexpr ui::RectTwips bt_imprime_semaine_rect{6000, 20, 360, 360};

    // The year view: Picture6 over both pages, the months four to a row.
    static constexpr ui::RectTwips Picture6_rect{600, 0, 14100, 10950};
    static constexpr int g1_colonne0 = 1075, g1_colonne = 330, g1_ligne = 300;
    static constexpr ui::RectTwips g1_rect(int m) {
        return {400 + 3400 * (m % 4), 1800 + 3000 * (m / 4), g1_colonne0 + 6 * g1_colonne,
                7 * g1_ligne};
    }
    static constexpr ui::RectTwips Label111_rect(int m) {
        const ui::RectTwips g = g1_rect(m);
        return {g.left, g.top - 300, g.width, 300};
    }
    static constexpr ui::RectTwips Label222_rect{5950, 350, 2200, 800},
        Label9_rect{4150, 550, 1300, 450}, Label8_rect{8650, 550, 1300, 450},
        Picture7_rect{3500, 550, 600, 450}, Picture8_rect{10000, 550, 600, 450},
        Label5_rect{4400, 10450, 2400, 330}, Label6_rect{7300, 10450, 2400, 330};
    static constexpr std::int32_t Label5_dessin = 0x0080FF, Label6_dessin = 0x00FFFF;

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

    // The week view.
    std::array<ui::Surface, nb_bandes> pages;
    std::array<QString, nb_bandes> njours;
    std::array<std::map<int, EtiquetteRv>, nb_bandes> lrvs; // lrv0 to lrv6, from 1
    std::array<Date, 8> semaine_dates{};
    QString Text3;
    std::int32_t Text3_fond = Text3_fond_dessin, Text3_encre = 0;

    // The year view. A cell's background is -1 where none was given.
    struct Mois {
        std::array<std::array<QString, 7>, 7> texte; // [row][column]
        std::array<std::array<std::int32_t, 7>, 7> fond;
    };
    bool Picture6_visible = false;
    std::array<Mois, 12> g1;
    std::array<QString, 12> Label111;
    QString Label222, Label8, Label9;
    std::int32_t Label5_fond = Label5_dessin, Label6_fond = Label6_dessin;
    int dessins_annee = 0; // counts the drawings, so that a view rebuilds the grids only then

signals:
    // The book leaves the screen to the settings, and comes back.
    void cache(bool oui);
    // Timer3: the window comes to the front.
    void au_premier_plan();
    // The banner sepaffic is loaded, hidden, once for the life of the program.
    void charge_banniere();

private:
    void pleine_page(ui::FenetreModale& fenetre);
    // Places a label for an entry of a day list at the scale and origin of page base `b`.
    void place_etiquette(EtiquetteRv& et, const QString& entree, int b);
    void clic_page(int base, int x, int y);
    // So many days on, and a view shown: the day and week arrows.
    void avance(int jours, int vue);
    // A year before or after: its 1 January, and the year drawn.
    void change_annee(int ecart);
    // The note of the key in the note file into Text3; blank, it shows in the design colours.
    void lit_note_semaine();
    // The colour of a sample from the parameter store, where it holds one.
    static void lit_couleur(const QString& cle, std::int32_t& couleur);
    void change_couleur(std::int32_t& couleur, const QString& cle);

    // The records of the day's labels, from the last scan's bytes; kept for its room only.
    std::vector<RecRv> records_du_jour_;
};

} // namespace agenda
