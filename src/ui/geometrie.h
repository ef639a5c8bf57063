#pragma once
// Where windows and their frames stand, in twips.

#include <array>

namespace agenda::ui {

struct RectTwips {
    int left = 0, top = 0, width = 0, height = 0;
    bool operator==(const RectTwips&) const = default;
    // Left and top edges in, right and bottom out, as a control's area.
    bool contient(int x, int y) const {
        return x >= left && x < left + width && y >= top && y < top + height;
    }
};

// The height of the open book: windows centred on it rather than on the screen.
inline constexpr int hauteur_livre = 11070;
inline constexpr int largeur_livre = 15360;

inline RectTwips centre(int ecran_w, int ecran_h, int w, int h) {
    return {(ecran_w - w) / 2, (ecran_h - h) / 2, w, h};
}
inline RectTwips centre_haut(int ecran_w, int w, int h) {
    return {(ecran_w - w) / 2, (hauteur_livre - h) / 2, w, h};
}
inline RectTwips taille_livre(int ecran_w) {
    return {(ecran_w - largeur_livre) / 2, 0, largeur_livre, hauteur_livre};
}

// The corner size of the fine and of the wide frame.
inline constexpr int coin_fin = 180, coin_large = 480;

// The eight pieces round a window of W x H: four corners from the top-left clockwise, then
// the left, top, right and bottom edges.
inline std::array<RectTwips, 8> pieces_cadre(int W, int H, int s) {
    return {{{0, 0, s, s},
             {W - s, 0, s, s},
             {W - s, H - s, s, s},
             {0, H - s, s, s},
             {0, s, s, H - 2 * s},
             {s, 0, W - 2 * s, s},
             {W - s, s, s, H - 2 * s},
             {s, H - s, W - 2 * s, s}}};
}

// The clock faces 0 to 6 of the picture store, 5030 x 5040 twips: their centre, and the rings
// on which the hour and the minute cells lie. The store draws the numbers and the dots on these
// rings; the editor lays its cells there.
inline constexpr int horloge_largeur = 5030, horloge_hauteur = 5040;
inline constexpr int horloge_centre_x = 2515, horloge_centre_y = 2520;
struct AnneauxHorloge {
    int heures, minutes;
};
inline constexpr std::array<AnneauxHorloge, 7> anneaux_horloge = {{{1700, 2300},
                                                                   {1500, 2060},
                                                                   {1450, 2260},
                                                                   {1720, 2320},
                                                                   {1700, 2300},
                                                                   {1700, 2300},
                                                                   {1700, 2300}}};

} // namespace agenda::ui
