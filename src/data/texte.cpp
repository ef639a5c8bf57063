#include "data/texte.h"

#include "ui/erreur.h"

#include <cmath>
#include <limits>

namespace agenda {

namespace {

template <class Entier>
Entier en_entier(double v, const QString& quoi) {
    const double r = std::nearbyint(v);
    // Written so that a NaN fails too.
    if (!(r >= double(std::numeric_limits<Entier>::min()) &&
          r <= double(std::numeric_limits<Entier>::max())))
        throw Erreur(quoi.isEmpty()
                         ? QStringLiteral("Dépassement de capacité (%1).").arg(v)
                         : QStringLiteral("Dépassement de capacité : %1 (%2).").arg(quoi).arg(v));
    return static_cast<Entier>(r);
}

} // namespace

std::int16_t en_i16(double v, const QString& quoi) {
    return en_entier<std::int16_t>(v, quoi);
}

std::int32_t en_i32(double v, const QString& quoi) {
    return en_entier<std::int32_t>(v, quoi);
}

std::int32_t plus_un(std::int32_t n) {
    if (n == std::numeric_limits<std::int32_t>::max())
        throw Erreur(QStringLiteral("Dépassement de capacité (%1 + 1).").arg(n));
    return n + 1;
}

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
    QString t =
        QString::number(std::fabs(arrondi), 'f', 0).rightJustified(chiffres, QLatin1Char('0'));
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

QString nombre(double v) {
    return QString::number(v, 'g', 15);
}

QString remplace_retours(const QString& t, QStringView par) {
    QString r;
    r.reserve(t.size());
    for (qsizetype i = 0; i < t.size(); ++i) {
        if (t[i] != QLatin1Char('\r')) {
            r += t[i];
            continue;
        }
        r += par;
        ++i;
    }
    return r;
}

QString initiale_majuscule(const QString& s) {
    if (s.isEmpty()) return s;
    return s.left(1).toUpper() + s.mid(1);
}

} // namespace agenda
