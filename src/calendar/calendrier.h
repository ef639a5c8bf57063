#pragma once
// How a clock time of a key becomes a position on a page, and which days are French public
// holidays.

#include "data/etat.h"

#include <cstdint>
#include <QString>

namespace agenda {

// "09H30" as hundredths of an hour (950). The minutes are scaled by 1.666666 and rounded to
// two digits that are joined to the hour as text, so "09H60" reads 9100: keys are taken as
// they stand.
float heure_centieme(const QString& heure);

// Easter Sunday of a year (Meeus, Jones and Butcher).
Date date_paques(std::int16_t annee);

// The holidays of a year as liste_feries holds them.
QString liste_feries_de(std::int16_t annee);
// liste_feries for the year of date_courante: the fixed days "ddmm/", then Easter Monday,
// Ascension and Whit Monday as "ddmm:".
void jours_feries();
// Whether a day is in liste_feries, or in such a list.
bool est_ferie(Date jour);
bool est_ferie(const QString& liste, Date jour);

} // namespace agenda
