#pragma once
// The appointment search: every appointment of the shop, all collaborators and all dates, found
// by a word of its text or by its client, in date order; a double click opens one in the editor.

#include "ui/geometrie.h"
#include "ui/modale.h"

#include <array>
#include <cstdint>
#include <QString>
#include <vector>

namespace agenda {

// The word sought, in lower case; empty, no test on the text. It outlives the window.
inline QString critere_rv;

class Torvar : public ui::FenetreModale {
public:
    static constexpr int lignes_dessin = 200; // result rows as designed; more rows are added
    static constexpr int lignes_fond = 50;    // rows with a background picture
    static constexpr int collaborateurs = 20;

    void Form_Load() override;
    // Escape or the window's close: the close button.
    void sortie() override { btc_fin_Click(); }

    void vide_tableau();
    void analyse_switch();
    // Scans the twenty collaborators' files into List1, then shows it.
    void recherche_rv();
    void affiche_tableau();

    void btc_rech_Click();
    void btcli_Click();
    void oui_Click(int index);
    void btc_fin_Click() { ferme(); }
    void g1_DblClick(int ligne); // rows from 1
    void Text1_Change(const QString& t) { Text1 = t; }

    QString Text1;
    std::array<int, 1> Check1{}; // 1: past appointments hidden
    std::array<bool, 1> oui{};   // the switch's picture: on or off
    std::vector<QString> List1;  // the result lines, sorted

    struct Ligne {
        QString date, heure, rendez_vous, coll; // columns 0 to 3
        QString cle;                            // column 8: the line's first 100 characters
    };
    std::vector<Ligne> g1; // rows 1 to the last

    // Where things stand, in twips of a window of the book's size.
    static constexpr ui::RectTwips titre_rect{400, 250, 6000, 600}, Text1_rect{400, 950, 5000, 560},
        btc_rech_rect{5600, 900, 1900, 660}, btcli_rect{7700, 900, 1900, 660},
        oui_rect{9900, 950, 900, 560}, Check1_libelle_rect{10900, 880, 4100, 700},
        g1_rect{400, 1750, 14560, 8100}, note_rect{400, 10000, 12000, 650},
        btc_fin_rect{13400, 9950, 1560, 800};
    static constexpr int largeurs[] = {1500, 1200, 0, 1500}; // column 2 takes the rest
    static int largeur_rendez_vous() { return g1_rect.width - 280 - 1500 - 1200 - 1500; }
};

} // namespace agenda
