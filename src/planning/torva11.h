#pragma once
// The planning: one day of every collaborator side by side, a column each, each appointment a
// box at its hours. A click opens an appointment, or makes a free place's collaborator the
// book's own; the transfer button moves an appointment to another hour, collaborator or day.

#include "data/etat.h"
#include "ui/geometrie.h"
#include "ui/modale.h"
#include "ui/surface.h"

#include <array>
#include <cstdint>
#include <map>
#include <QString>
#include <QStringList>
#include <vector>

namespace agenda {

// Where a transfer stands. It outlives the window, as the screen's pointer that shows it does:
// a transfer goes on across reloads, and across a close of the planning.
enum class Transfert { repos, attente_prise, attente_depot };
inline Transfert transfert = Transfert::repos;

// A box of the drawing, for the mouse: edges in twips of the surface, all four inclusive.
struct BoiteRv {
    std::int32_t collab = 0;
    int gauche = 0, haut = 0, droite = 0, bas = 0;
    std::int32_t numero = 0;
    int texte = 0; // the entry of liste_texte, from 1
    bool contient(int x, int y) const {
        return gauche <= x && x <= droite && haut <= y && y <= bas;
    }
};

class Torva11 : public ui::FenetreModale {
public:
    static constexpr int largeur_planning = 15000, hauteur_planning = 8000;
    static constexpr int marge_gauche = 100, marge_haut = 1000;
    // Past these the values are not kept: the day of one collaborator, the texts of the whole
    // day, the boxes the mouse can find.
    static constexpr int max_jour = 200, max_texte = 500, max_boites = 250;

    // The only way to redraw: at the opening, and whenever the day or the files may have changed.
    void Form_Load() override;
    // Escape or the window's close: the exit button.
    void sortie() override { command1_Click(); }

    // The day of one collaborator into liste_jour, its texts appended to liste_texte.
    void charge_journee(std::int16_t numero);
    // Every step under a trap: a failing one is passed over and the drawing goes on.
    void dessine_planning();

    // The surface's mouse, in twips of p1.
    void p1_MouseDown(int x, int y);
    void p1_MouseMove(int x, int y);
    void Form_MouseMove();
    void bt_trans_Click();
    void bt_date_Click();
    void Picture2_Click(); // the day before
    void Picture3_Click(); // the day after
    void command1_Click();
    // An empty appointment for num_collab; its number in nouveau_num.
    void cre_rv_utilis();

    // The geometry of the last drawing.
    int heure_ouverture = 0, heure_fermeture = 0;
    int nb_collabs = 0, largeur_colonne = 0, nb_heures = 0, hauteur_heure = 0;
    std::array<int, 21> col_x{};
    int L(int i) const { return marge_gauche + col_x[std::size_t(i - 1)]; }
    int R(int i) const { return marge_gauche + col_x[std::size_t(i)]; }

    // The collaborator being read: its appointments, as the day list's entries followed by
    // "#JJ#", the entry of liste_texte in "000000", ":" and the start time.
    QStringList liste_jour;
    // The day's texts over all collaborators: the start time, 15 blanks, the text on one line.
    QStringList liste_texte;
    std::vector<BoiteRv> table_rv;
    int nb_boites() const { return int(table_rv.size()); }

    std::int16_t prise_collab = 0;
    std::int32_t prise_num = 0, nouveau_num = 0;

    // What the window shows.
    ui::Surface p1;
    std::map<int, ui::RectTwips> cadnom; // the frames round the names, kept once made
    QString Label1;                      // the transfer's instruction
    bool Label1_visible = false;
    QString Label2, Label3, Label4; // weekday, day, month
    QString Label5, Label6, Label8; // the appointment under the pointer: number, text, time
    std::int32_t Label7 = 0xFFFFFF; // and its colour

    // Where things stand, in twips of a window of the book's size.
    static constexpr ui::RectTwips p1_rect{130, 0, 15200, 9300};
    static constexpr ui::RectTwips Label2_rect{400, 9350, 2000, 450},
        Label3_rect{400, 9750, 1200, 950}, Label4_rect{1550, 9950, 2000, 550};
    static constexpr ui::RectTwips Picture2_rect{3300, 9550, 650, 600},
        Picture3_rect{4000, 9550, 650, 600}, bt_date_rect{4800, 9450, 1900, 900};
    static constexpr ui::RectTwips bt_trans_rect{6850, 9450, 3000, 900},
        Label1_rect{6850, 10420, 6000, 400};
    static constexpr ui::RectTwips Label8_rect{10000, 9450, 900, 420},
        Label5_rect{10000, 9900, 900, 420}, Label7_rect{10950, 9450, 400, 870},
        Label6_rect{11450, 9450, 1900, 870};
    static constexpr ui::RectTwips command1_rect{13450, 9450, 1750, 900};
    // The planning on paper, under the date button.
    static constexpr ui::RectTwips bt_imprime_rect{4800, 10420, 1900, 560};

private:
    void dessine_rv(int colonne, std::int32_t collab, const QString& entree);
    void depose(int y, std::int16_t cible);
    void lit_colonnes(); // the columns' geometry
};

} // namespace agenda
