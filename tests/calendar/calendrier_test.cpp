// Easter, the public holidays and the hundredths of an hour of a key.

#include "calendar/calendrier.h"
#include "support/support.h"
#include "ui/dates.h"

using namespace agenda;

TEST(Calendrier, PaquesEtJoursFeries) {
    const std::tuple<int, int, int> paques[] = {{2015, 4, 5},  {2016, 3, 27}, {2038, 4, 25},
                                                {2008, 3, 23}, {2000, 4, 23}, {2285, 3, 22}};
    for (const auto& [annee, mois, jour] : paques)
        EXPECT_EQ(ui::jour_de(date_paques(std::int16_t(annee))), QDate(annee, mois, jour));
    etat.date_courante = ui::date_de(QDate(2015, 7, 1)) + 0.5;
    jours_feries();
    EXPECT_EQ(etat.liste_feries,
              QStringLiteral("0101/0105/0805/1407/1508/0111/1111/2512/0604:1405:2505:"));
    // Easter Monday and Whit Monday are; Easter Sunday and Whit Sunday are not.
    const std::tuple<int, int, bool> jours[] = {{4, 6, true},   {5, 25, true},   {4, 5, false},
                                                {5, 24, false}, {12, 26, false}, {7, 14, true}};
    for (const auto& [mois, jour, ferie] : jours)
        EXPECT_EQ(est_ferie(ui::date_de(QDate(2015, mois, jour))), ferie) << jour << "/" << mois;
}

TEST(Calendrier, HeureEnCentiemesJointsCommeTexte) {
    const std::pair<const char*, float> heures[] = {
        {"09H30", 950.f}, {"10H15", 1025.f}, {"12H20", 1233.f}, {"08H10", 817.f},
        {"07H59", 798.f}, {"09H60", 9100.f}, {"09:30", 950.f},  {"  H  ", 0.f}};
    for (const auto& [heure, centiemes] : heures)
        EXPECT_FLOAT_EQ(heure_centieme(QString::fromLatin1(heure)), centiemes) << heure;
}
