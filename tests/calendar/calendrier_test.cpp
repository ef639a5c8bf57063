#include "calendar/calendrier.h"
#include "support/support.h"
#include "ui/dates.h"

using namespace agenda;

TEST(Paques, DatesConnues) {
    struct Cas {
        std::int16_t annee;
        int mois, jour;
    };
    for (const Cas c : {Cas{2015, 4, 5},
                        {2016, 3, 27},
                        {2019, 4, 21},
                        {2038, 4, 25},
                        {2008, 3, 23},
                        {2004, 4, 11},
                        {2000, 4, 23},
                        {2285, 3, 22}})
        EXPECT_EQ(ui::jour_de(date_paques(c.annee)), QDate(c.annee, c.mois, c.jour)) << c.annee;
}

TEST(JoursFeries, ListeDeLAnneeDeLaDateCourante) {
    etat.date_courante = ui::date_de(QDate(2015, 7, 1)) + 0.5;
    jours_feries();
    EXPECT_EQ(etat.liste_feries,
              QStringLiteral("0101/0105/0805/1407/1508/0111/1111/2512/0604:1405:2505:"));
    struct Cas {
        int mois, jour;
        bool ferie;
    };
    for (const Cas c : {Cas{1, 1, true},
                        {4, 6, true},
                        {5, 14, true},
                        {5, 25, true},
                        {4, 5, false},  // Easter Sunday is not in the list
                        {5, 24, false}, // nor Whit Sunday
                        {12, 25, true},
                        {12, 26, false},
                        {7, 14, true}})
        EXPECT_EQ(est_ferie(ui::date_de(QDate(2015, c.mois, c.jour))), c.ferie)
            << c.jour << "/" << c.mois;
}

TEST(HeureCentieme, MinutesEnCentiemesJointesCommeTexte) {
    struct Cas {
        const char* heure;
        float centiemes;
    };
    for (const Cas c : {Cas{"09H30", 950},
                        {"10H15", 1025},
                        {"00H00", 0},
                        {"19H00", 1900},
                        {"12H20", 1233},
                        {"08H10", 817},
                        {"12H45", 1275},
                        {"07H59", 798},
                        {"09H60", 9100},
                        {"09:30", 950},
                        {"  H  ", 0}})
        EXPECT_FLOAT_EQ(heure_centieme(QString::fromLatin1(c.heure)), c.centiemes) << c.heure;
}
