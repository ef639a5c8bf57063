#include "ui/dates.h"

#include "ui/systeme.h"

#include <array>
#include <cmath>

namespace agenda::ui {

namespace {
// Made at its first use: dates of other files' static objects may be computed before this
// file's statics are.
QDate origine() {
    static const QDate o(1899, 12, 30);
    return o;
}

const std::array<const char*, 7> jours = {"dimanche", "lundi",    "mardi", "mercredi",
                                          "jeudi",    "vendredi", "samedi"};
const std::array<const char*, 12> mois = {"janvier",   "février", "mars",     "avril",
                                          "mai",       "juin",    "juillet",  "août",
                                          "septembre", "octobre", "novembre", "décembre"};
} // namespace

Date date_de(QDate jour) {
    return static_cast<Date>(origine().daysTo(jour));
}

Date date_de(const QDateTime& instant) {
    return date_de(instant.date()) + instant.time().msecsSinceStartOfDay() / 86'400'000.0;
}

QDate jour_de(Date d) {
    return origine().addDays(static_cast<qint64>(std::floor(d)));
}

Date date_maintenant() {
    return date_de(maintenant());
}

int jour_semaine(Date d) {
    return jour_de(d).dayOfWeek() % 7 + 1;
}

QString nom_jour(int js) {
    return QString::fromUtf8(jours.at(static_cast<std::size_t>(js - 1)));
}

QString nom_mois(int m) {
    return QString::fromUtf8(mois.at(static_cast<std::size_t>(m - 1)));
}

QString format_date(Date d, QStringView motif) {
    const QDate j = jour_de(d);
    QString r;
    r.reserve(motif.size() + 8);
    // Two digits straight into the text: every day scan's key pattern is three of them.
    const auto deux = [&r](int n) {
        if (n < 0 || n > 99) {
            r += QString::number(n).rightJustified(2, QLatin1Char('0'));
            return;
        }
        r += QLatin1Char(char('0' + n / 10));
        r += QLatin1Char(char('0' + n % 10));
    };
    for (qsizetype i = 0; i < motif.size();) {
        const QChar c = motif[i];
        qsizetype n = 1;
        while (i + n < motif.size() && motif[i + n] == c)
            ++n;
        if (c == QLatin1Char('d')) {
            if (n >= 4)
                r += nom_jour(jour_semaine(d));
            else if (n == 2)
                deux(j.day());
            else
                r += QString::number(j.day());
        } else if (c == QLatin1Char('m')) {
            if (n >= 4)
                r += nom_mois(j.month());
            else if (n == 2)
                deux(j.month());
            else
                r += QString::number(j.month());
        } else if (c == QLatin1Char('y')) {
            if (n >= 4)
                r += QString::number(j.year());
            else
                deux(j.year() % 100);
        } else {
            r += motif.mid(i, n);
        }
        i += n;
    }
    return r;
}

} // namespace agenda::ui
