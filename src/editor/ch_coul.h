#pragma once
// The colour picker: a palette; a press on a colour leaves it in couleur_choisie and closes the
// window, which has no other way out.

#include "data/etat.h"
#include "ui/geometrie.h"
#include "ui/modale.h"

#include <cstdint>
#include <QString>

namespace agenda {

class ChCoul : public ui::FenetreModale {
public:
    void Form_Load() override {}
    void Picture1_MouseDown(std::int32_t couleur) {
        etat.couleur_choisie = couleur;
        ferme();
    }

    static constexpr int largeur = 5400, hauteur = 1900;
    static constexpr ui::RectTwips Label1_rect{300, 280, 4800, 400},
        Picture1_rect{300, 800, 4800, 780};
    static inline const QString Label1 = QStringLiteral("Cliquez sur la couleur choisie");
};

} // namespace agenda
