#pragma once
// The on-screen keyboard, for touch screens: one text edited with a cursor, in three layers of
// keys (lower case; upper case and digits; accents and symbols). Called like the prompt box:
// mini_texte holds the question, "|" and the text; on return it holds the result, or the text
// as it was when the keyboard was cancelled.

#include "ui/geometrie.h"
#include "ui/modale.h"

#include <array>
#include <cstdint>
#include <QString>

namespace agenda {

class Clavv : public ui::FenetreModale {
public:
    static constexpr int touches = 58;
    static constexpr int mode_texte = 129, mode_nombre = 1129; // a number opens on the digits
    static constexpr QChar fonction = QLatin1Char('|');        // a key that types nothing
    // The keys that do something rather than type.
    static constexpr int efface = 13, efface_tout = 14, verrouillage = 26, valide = 38,
                         majuscule = 39, rien = 51, liste_haut = 52, liste_bas = 53, gauche = 54,
                         droite = 55, alternative = 56, annule = 57;

    void Form_Load() override;
    // Escape or the window's close: cancel.
    void sortie() override { ttoc_Click(annule); }
    // From a physical keyboard: Enter confirms, Escape cancels.
    void Form_KeyPress(int code);
    void ttoc_Click(int index);
    // Typed straight into the field: only the field changes, not the text the keys edit.
    void Text1_Change(const QString& texte) { Text1 = texte; }
    void affiche_clav();

    std::array<QString, 21> couches;
    QString texte_clav;
    std::int16_t pos_clav = 0, couche_clav = 0, un_coup_clav = 0;

    QString Text1, Label1, Label2;
    int Text1_curseur = 0;
    std::array<QString, touches> ttoc; // the captions; the window's design until the first redraw

    // Where things stand, in twips: the keys relative to the keyboard's panel.
    static constexpr int largeur = 14900, hauteur = 8200;
    static constexpr ui::RectTwips Label1_rect{700, 550, 13500, 500},
        Text1_rect{700, 1100, 13500, 800}, Picture2_rect{480, 2250, 14000, 5400};
    static ui::RectTwips touche(int i);
};

} // namespace agenda
