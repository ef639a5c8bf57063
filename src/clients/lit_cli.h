#pragma once
// The client list, built for a touch screen: letters tapped on the window's own keyboard narrow
// the list, one tap on a row picks the client. The answer goes to texte_retour: the row's text
// cut or padded to 80, ":" and the number; "#CRE#" when a new client is wanted (the caller
// creates it); empty or blank when the operator left without a choice.

#include "ui/geometrie.h"
#include "ui/modale.h"

#include <array>
#include <cstdint>
#include <QString>
#include <vector>

namespace agenda {

// The list's page outlives the window: an opening shows the page the last one left, until the
// criterion changes.
inline std::int16_t page_liste = 0;

class LitCli : public ui::FenetreModale {
public:
    static constexpr int lignes = 14, touches = 27;
    static constexpr int touche_annuler = 27;
    static constexpr int haut = 38, bas = 40, entree = 13, echap = 27; // key codes of Text1

    // Reads the whole client file once; no list is kept from an opening to the next.
    void Form_Load() override;
    // Escape, or the window's close.
    void sortie() override { Text1_KeyDown(echap); }

    // The criterion, at every change of Text1: typed, pasted or tapped.
    void Text1_Change(const QString& texte);
    void Text1_KeyDown(int touche);
    void toucc_Click(int i); // keys 1 to 27
    void zlis_Click(int i);  // rows 1 to 14
    void Picture1_Click();   // previous page
    void Picture2_Click();   // next page, with no upper limit
    void Picture3_Click();   // a new client, after a question
    void Image1_Click();     // out, with an empty answer
    void bt_ok_Click();
    void affiche_liste();

    struct Entree {
        QString texte;       // name and town
        std::int32_t numero; // the client number
        QString cle;         // the text in upper case, for the criterion
        QString cle_de_tri;  // and without its accents, for the order
    };
    // Both sorted by text: every live client, and those the criterion keeps.
    std::vector<Entree> List2, List1;
    int List1_index = -1;                 // the selection, which no row shows
    std::array<QString, lignes + 1> zlis; // rows 1 to 14
    QString Text1;

    // Where things stand, in twips of a window of the book's size.
    static constexpr int largeur = 15360, hauteur = 11070;
    static constexpr ui::RectTwips titre_rect{330, 60, 9000, 520};
    static constexpr ui::RectTwips lisbar(int i) { return {330, 620 * i, 11000, 560}; }
    static constexpr ui::RectTwips zlis_rect(int i) { return {380, 620 * i, 10900, 560}; }
    static constexpr ui::RectTwips Label1_rect{330, 9330, 5000, 300},
        Text1_rect{330, 9650, 5000, 560};
    static constexpr ui::RectTwips Picture1_rect{5550, 9450, 900, 760},
        Picture2_rect{6550, 9450, 900, 760}, Picture3_rect{7650, 9450, 1500, 760},
        Image1_rect{9250, 9450, 1100, 760}, bt_ok_rect{10450, 9450, 880, 760};
    // Keys 1 to 27 and their captions: rows of three, each key 200 twips lower than the one to
    // its left.
    static constexpr int touche_largeur = 1000, touche_hauteur = 960;
    static ui::RectTwips touche(int i);
    static ui::RectTwips toucc_rect(int i);
    static QString toucc(int i);

private:
    void choisit(const QString& texte, std::int32_t numero);
};

} // namespace agenda
