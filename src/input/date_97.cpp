#include "input/date_97.h"

#include "data/texte.h"
#include "ui/dates.h"

#include <cmath>

namespace agenda {

QString jour_en_lettres(Date jour) {
    return initiale_majuscule(ui::format_date(jour, u"dddd dd mmmm yyyy"));
}

void Date97::Form_Load() {
    // Today, whatever the book shows.
    MonthView1 = std::floor(ui::date_maintenant());
}

void Date97::MonthView1_DateClick(Date jour) {
    MonthView1 = jour;
    Label1 = jour_en_lettres(jour);
    etat.texte_retour = Label1;
    etat.date_courante = jour;
}

void Date97::MonthView1_DateDblClick(Date jour) {
    MonthView1_DateClick(jour);
    btc_Click(2);
}

void Date97::btc_Click(int index) {
    if (index == 2) {
        etat.date_courante = MonthView1;
        etat.texte_retour = jour_en_lettres(MonthView1);
    } else {
        // date_courante keeps a day clicked before the cancel.
        etat.texte_retour.clear();
    }
    ferme();
}

} // namespace agenda
