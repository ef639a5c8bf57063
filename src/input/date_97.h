#pragma once
// The date chooser: a month calendar that opens on today. The chosen day goes to date_courante
// and, as "Mercredi 03 mars 2004", to texte_retour; a cancel leaves texte_retour empty.

#include "data/etat.h"
#include "ui/geometrie.h"
#include "ui/modale.h"

namespace agenda {

class Date97 : public ui::FenetreModale {
public:
    void Form_Load() override;
    // Escape or the window's close: cancel.
    void sortie() override { btc_Click(3); }

    // The selection moved, by the mouse or the keyboard: btc(2) takes it.
    void MonthView1_SelChange(Date jour) { MonthView1 = jour; }
    void MonthView1_DateClick(Date jour);
    void MonthView1_DateDblClick(Date jour);
    void btc_Click(int index);

    int largeur = 5400, hauteur = 5400;
    ui::RectTwips MonthView1_rect{300, 300, 4800, 3500};
    ui::RectTwips Label1_rect{300, 3950, 4800, 450};
    ui::RectTwips btc2_rect{1150, 4600, 1300, 520}, btc3_rect{2950, 4600, 1300, 520};
    Date MonthView1 = 0; // the selected day
    QString Label1;
};

// "Mercredi 03 mars 2004".
QString jour_en_lettres(Date jour);

} // namespace agenda
