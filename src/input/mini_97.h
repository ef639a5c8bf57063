#pragma once
// The prompt box: a message, a yes or no, or a line of text to edit. The caller sets mini_mode
// and mini_texte, shows the box, and reads mini_mode (6 first button, 7 second) and
// mini_texte.

#include "ui/geometrie.h"
#include "ui/modale.h"

#include <cstdint>
#include <QString>

namespace agenda {

class Mini97 : public ui::FenetreModale {
public:
    static constexpr int mode_texte = 129;
    static constexpr int agrandissement = 1500; // twips added in text mode
    static constexpr QChar barre = QLatin1Char('|');

    void Form_Load() override;
    // Escape or the window's close: the second button.
    void sortie() override { btc_Click(3); }

    // What the operator typed or pasted into Text1: control characters become blanks.
    void Text1_Change(const QString& texte);
    void btc_Click(int index);

    // What the box shows, in twips.
    int largeur = 6600, hauteur = 2500;
    ui::RectTwips Label1_rect{1000, 250, 5300, 1300};
    ui::RectTwips Text1_rect{300, 1650, 6000, 1250};
    ui::RectTwips btc2_rect{1700, 1750, 1300, 520}, btc3_rect{3600, 1750, 1300, 520};
    ui::RectTwips Image1_rect{250, 300, 650, 650};
    bool Text1_visible = false;
    QString Label1;
    QString Text1;
};

// Shows the prompt box with this message and mode; returns mini_mode.
std::int32_t demande(const QString& message, std::int32_t mode);

} // namespace agenda
