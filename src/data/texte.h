#pragma once
// Values pass through texts read by position in fixed layouts; these are the readings and
// patterns they use.

#include <cstdint>
#include <QString>

namespace agenda {

// A number stored into a 16-bit or 32-bit integer, rounded half to even as the language does.
// Out of range, or not a number, it is an overflow error (Erreur).
// `quoi` names the value for the operator, where the error ends the program.
std::int16_t en_i16(double v, const QString& quoi = {});
std::int32_t en_i32(double v, const QString& quoi = {});
// A count read from a file, plus one; past the largest 32-bit value it is an overflow error.
std::int32_t plus_un(std::int32_t n);

// The numeric reading of a text: leading blanks skipped, an optional sign, digits and a
// decimal part, up to the first character that does not fit; 0 for nothing.
double val(QStringView s);

// Characters `debut` (from 1) to `debut + longueur - 1`, as far as the text goes.
inline QString mid1(const QString& s, int debut, int longueur) {
    return s.mid(debut - 1, longueur);
}
inline QString mid1(const QString& s, int debut) {
    return s.mid(debut - 1);
}

// A number in the pattern "0", "00", "0000"...: rounded half away from zero, padded with
// leading zeros to the width, never cut.
QString motif_zeros(double valeur, int chiffres);

// Blanks added and the text cut to exactly `largeur` characters.
inline QString cadre(const QString& s, int largeur) {
    return s.leftJustified(largeur, QLatin1Char(' '), true);
}

// Blanks removed from both ends, and only blanks: a line break at the edge of a text stays.
QString sans_blancs(const QString& s);

// A number in the general format: no decimals when it has none.
QString nombre(double v);

// Each carriage return, and the character behind it (its line feed), replaced by `par`.
QString remplace_retours(const QString& t, QStringView par);

// The first letter in upper case, the rest as is.
QString initiale_majuscule(const QString& s);

} // namespace agenda
