#pragma once
// The SMS manager: the messages queued for one SMS number, by send time, opened after each
// message queued. A duplicate of an earlier message at the same time comes marked for
// cancelling; a double click changes a mark or a message's text, and the button applies the
// marks.

#include "ui/geometrie.h"
#include "ui/modale.h"

#include <cstdint>
#include <QString>
#include <vector>

namespace agenda {

class Verifsmss : public ui::FenetreModale {
public:
    static constexpr int lignes_dessin = 51; // rows of the grid as designed, header included

    // The messages whose number is the first ten characters of ref_sms_nouvelle.
    void Form_Load() override;
    // Escape or the window's close: the button, the only way out.
    void sortie() override { Image1_Click(); }
    // Rows from 1 (0 is the header); column 0 is the mark.
    void g1_DblClick(int ligne, int colonne);
    void Image1_Click();

    struct Ligne {
        QString date, heure, message; // columns 1 to 3
        std::int32_t numero = 0;      // column 6: the message's number in the queue
        bool marque_annul = false;    // column 7, and the picture of column 0
    };
    std::vector<Ligne> g1; // rows 1 to the count
    int lignes_grille = lignes_dessin;

    static constexpr int largeur_colonnes[] = {600, 1500, 1500};
    static constexpr int hauteur_entete = 330;
    static constexpr ui::RectTwips titre_rect{400, 250, 9000, 600}, g1_rect{400, 1000, 14560, 8300},
        Label1_rect{400, 9450, 6000, 350}, Label2_rect{400, 9800, 6000, 350},
        Image1_rect{13600, 9500, 1300, 900};
    static int largeur_message() {
        return g1_rect.width - 280 - largeur_colonnes[0] - largeur_colonnes[1] -
               largeur_colonnes[2];
    }
};

} // namespace agenda
