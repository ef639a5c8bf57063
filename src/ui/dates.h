#pragma once
// Dates as the program keeps them: 64-bit floats counting days since 30 December 1899, the time
// of day as fraction. Formatting uses French day and month names.

#include <QDate>
#include <QDateTime>
#include <QString>

namespace agenda::ui {

using Date = double;

Date date_de(QDate jour);
Date date_de(const QDateTime& instant);
QDate jour_de(Date d); // the whole day, time dropped
// The present date and time, from the program's clock.
Date date_maintenant();

// 1 for Sunday to 7 for Saturday.
int jour_semaine(Date d);

// Patterns of tokens "dddd" (day name), "dd", "d", "mmmm" (month name), "mm", "yyyy", "yy";
// any other character stands as it is. Names are French and lower case.
QString format_date(Date d, QStringView motif);

QString nom_jour(int jour_semaine); // "dimanche" for 1
QString nom_mois(int mois);         // "janvier" for 1

} // namespace agenda::ui
