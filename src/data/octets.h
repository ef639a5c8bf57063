#pragma once
// The two encodings of the shared record files: little-endian integers and blank-padded
// CP1252 text fields. Every record format loads and stores its fields through these.

#include <cstdint>
#include <QString>
#include <span>

namespace agenda::octets {

using Tampon = std::span<std::uint8_t>;
using TamponLu = std::span<const std::uint8_t>;

std::int32_t i32(TamponLu buf, int offset);
std::int16_t i16(TamponLu buf, int offset);
void pose_i32(Tampon buf, int offset, std::int32_t valeur);
void pose_i16(Tampon buf, int offset, std::int16_t valeur);

// One CP1252 byte to its character and back. Every byte round-trips: the five bytes that
// CP1252 leaves undefined map to the C1 control of the same code, as Windows does.
QChar car_cp1252(std::uint8_t octet);
std::uint8_t octet_cp1252(QChar c); // '?' for a character CP1252 cannot hold

// A text field, with its padding blanks, as stored.
QString texte(TamponLu buf, int offset, int largeur);
// The same without its outer blanks, which are never decoded: a field of 402 characters is
// mostly blanks.
QString texte_sans_blancs(TamponLu buf, int offset, int largeur);
// Stores a text left-justified, padded with blanks and cut to the field's width.
void pose_texte(Tampon buf, int offset, int largeur, QStringView s);
// Fills a field with blanks.
void blanchit(Tampon buf, int offset, int largeur);

QByteArray vers_cp1252(QStringView s);
QString depuis_cp1252(TamponLu octets);
// The same into characters already allocated; gives the end of those written.
QChar* decode_cp1252(TamponLu octets, QChar* dans);

} // namespace agenda::octets
