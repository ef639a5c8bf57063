#pragma once
// The collaborator choice: the collaborators of lien_agenda.txt on a striped grid of 20 rows.
// A click on a row leaves its line in texte_retour; "Annuler" leaves it empty.

#include "ui/geometrie.h"
#include "ui/modale.h"

#include <array>
#include <QString>

namespace agenda {

class Saisiuti : public ui::FenetreModale {
public:
    static constexpr int lignes = 20;
    // From so many entries on, the grid scrolls: it shows 11 rows.
    static constexpr int lignes_visibles = 11;

    void Form_Load() override;
    // Escape or the window's close: the cancel button.
    void sortie() override { bt_annull_Click(); }
    void g1_Click(int ligne); // rows 0 to 19
    void bt_annull_Click();

    // The grid: the name in column 0 over its stripe, the line of lien_agenda.txt in column 1,
    // out of sight.
    std::array<QString, lignes> g1_nom, g1_ligne;
    bool barre_defilement = false;
    int largeur_colonne0 = 0;

    static constexpr int largeur = 6800, hauteur = 6500, hauteur_ligne = 400;
    static constexpr int barre = 280; // the scroll bar's room
    static constexpr ui::RectTwips Label1_rect{400, 300, 6000, 700};
    static constexpr ui::RectTwips g1_rect{400, 1050, 6000, lignes_visibles* hauteur_ligne + 30};
    static constexpr ui::RectTwips bt_annull_rect{2600, 5700, 1600, 520};
    static inline const QString Label1 = QStringLiteral(
        "Sélectionnez le collaborateur ou cliuqez sur 'Annuler' pour garder le même ");
};

} // namespace agenda
