#include "data/texte.h"

#include <cmath>

namespace agenda {

double val(QStringView s) {
    qsizetype i = 0;
    while (i < s.size() && s[i] == QLatin1Char(' '))
        ++i;
    double signe = 1;
    if (i < s.size() && (s[i] == QLatin1Char('-') || s[i] == QLatin1Char('+'))) {
        signe = s[i] == QLatin1Char('-') ? -1 : 1;
        ++i;
    }
    double v = 0;
    while (i < s.size() && s[i].isDigit() && s[i].unicode() < 0x80)
        v = v * 10 + (s[i++].unicode() - '0');
    if (i < s.size() && s[i] == QLatin1Char('.')) {
        double poids = 0.1;
        for (++i; i < s.size() && s[i].isDigit() && s[i].unicode() < 0x80; ++i, poids /= 10)
            v += (s[i].unicode() - '0') * poids;
    }
    return signe * v;
}

QString motif_zeros(double valeur, int chiffres) {
    const double arrondi = std::round(valeur);
    const auto absolu = static_cast<long long>(std::fabs(arrondi));
    QString t = QString::number(absolu).rightJustified(chiffres, QLatin1Char('0'));
    return arrondi < 0 ? QLatin1Char('-') + t : t;
}

QString sans_blancs(const QString& s) {
    qsizetype debut = 0, fin = s.size();
    while (debut < fin && s[debut] == QLatin1Char(' '))
        ++debut;
    while (fin > debut && s[fin - 1] == QLatin1Char(' '))
        --fin;
    return s.mid(debut, fin - debut);
}

QString initiale_majuscule(const QString& s) {
    if (s.isEmpty()) return s;
    return s.left(1).toUpper() + s.mid(1);
}

} // namespace agenda
