#include "calendar/calendrier.h"

#include "data/texte.h"
#include "ui/dates.h"

namespace agenda {

float heure_centieme(const QString& heure) {
    const double minutes = val(mid1(heure, 4, 2));
    const QString centiemes = motif_zeros(minutes * 1.666666, 2);
    return static_cast<float>(val(mid1(heure, 1, 2) + centiemes));
}

Date date_paques(std::int16_t annee) {
    const int a = annee % 19, b = annee / 100, c = annee % 100;
    const int d = b / 4, e = b % 4, f = (b + 8) / 25, g = (b - f + 1) / 3;
    const int h = (19 * a + b - d - g + 15) % 30;
    const int i = c / 4, k = c % 4;
    const int l = (32 + 2 * e + 2 * i - h - k) % 7;
    const int m = (a + 11 * h + 22 * l) / 451;
    const int mois = (h + l - 7 * m + 114) / 31;
    const int jour = (h + l - 7 * m + 114) % 31 + 1;
    return ui::date_de(QDate(annee, mois, jour));
}

QString liste_feries_de(std::int16_t annee) {
    QString liste = QStringLiteral("0101/0105/0805/1407/1508/0111/1111/2512/");
    const Date p = date_paques(annee);
    for (const int ecart : {1, 39, 50})
        liste += ui::format_date(p + ecart, u"ddmm") + QLatin1Char(':');
    return liste;
}

void jours_feries() {
    etat.liste_feries = liste_feries_de(
        static_cast<std::int16_t>(val(ui::format_date(etat.date_courante, u"yyyy"))));
}

bool est_ferie(const QString& liste, Date jour) {
    return liste.contains(ui::format_date(jour, u"ddmm"));
}

bool est_ferie(Date jour) {
    return est_ferie(etat.liste_feries, jour);
}

} // namespace agenda
