#pragma once
// The note entry: the note of a day or of a week, with its own background and text colours, in
// the note file of the book's collaborator. The book sets cle_note and where the window opens;
// the text comes back in texte_note. The window is left through bt_ok only, which saves.

#include "ui/geometrie.h"
#include "ui/modale.h"

#include <cstdint>
#include <QString>

namespace agenda {

class Saisnote : public ui::FenetreModale {
public:
    static constexpr std::int32_t fond_dessin = 0xC0FFFF, encre_dessin = 0;

    void Form_Load() override;
    // Escape or the window's close: the one way out, which saves.
    void sortie() override { bt_ok_Click(); }
    void Picture1_MouseDown(std::int32_t couleur) { Text1_fond = couleur; }  // "Fond"
    void Picture2_MouseDown(std::int32_t couleur) { Text1_encre = couleur; } // "Ecriture"
    void bt_ok_Click();
    // Cancelling a note empties its text, after a question, and saves.
    void bt_annul_Click();

    QString Text1; // line breaks as CR LF, as the file keeps them
    std::int32_t Text1_fond = fond_dessin, Text1_encre = encre_dessin;
    int left = 0, top = 0; // in twips of the book

    static constexpr int largeur = 6400, hauteur = 3800;
    static constexpr ui::RectTwips Text1_rect{240, 240, 5920, 1900},
        Label1_rect{240, 2230, 2900, 260}, Picture1_rect{240, 2500, 2900, 420},
        Label2_rect{3260, 2230, 2900, 260}, Picture2_rect{3260, 2500, 2900, 420},
        bt_ok_rect{1900, 3080, 1200, 520}, bt_annul_rect{3300, 3080, 1200, 520};
};

} // namespace agenda
