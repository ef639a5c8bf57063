#include "data/octets.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace agenda::octets {

namespace {

// 0x80-0x9F, where CP1252 departs from Latin-1 (the euro sign, the oe ligature, quotes...).
constexpr std::array<char16_t, 32> table_80_9f = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

} // namespace

std::int32_t i32(TamponLu buf, int offset) {
    const auto* p = buf.data() + offset;
    const std::uint32_t v = std::uint32_t(p[0]) | std::uint32_t(p[1]) << 8 |
                            std::uint32_t(p[2]) << 16 | std::uint32_t(p[3]) << 24;
    return static_cast<std::int32_t>(v);
}

std::int16_t i16(TamponLu buf, int offset) {
    const auto* p = buf.data() + offset;
    return static_cast<std::int16_t>(std::uint16_t(p[0]) | std::uint16_t(p[1]) << 8);
}

void pose_i32(Tampon buf, int offset, std::int32_t valeur) {
    const auto v = static_cast<std::uint32_t>(valeur);
    auto* p = buf.data() + offset;
    for (int i = 0; i < 4; ++i)
        p[i] = static_cast<std::uint8_t>(v >> (8 * i));
}

void pose_i16(Tampon buf, int offset, std::int16_t valeur) {
    const auto v = static_cast<std::uint16_t>(valeur);
    buf[offset] = static_cast<std::uint8_t>(v);
    buf[offset + 1] = static_cast<std::uint8_t>(v >> 8);
}

namespace {

// Inlined into the loops that decode whole texts: they run on every text a scan reads.
constexpr char16_t point_cp1252(std::uint8_t octet) {
    return octet >= 0x80 && octet <= 0x9F ? table_80_9f[octet - 0x80] : char16_t(octet);
}

} // namespace

QChar car_cp1252(std::uint8_t octet) {
    return QChar(point_cp1252(octet));
}

std::uint8_t octet_cp1252(QChar c) {
    const char16_t u = c.unicode();
    if (u < 0x80 || (u >= 0xA0 && u <= 0xFF)) return static_cast<std::uint8_t>(u);
    const auto it = std::find(table_80_9f.begin(), table_80_9f.end(), u);
    if (it != table_80_9f.end())
        return static_cast<std::uint8_t>(0x80 + (it - table_80_9f.begin()));
    return '?';
}

QChar* decode_cp1252(TamponLu octets, QChar* dans) {
    for (const std::uint8_t o : octets)
        *dans++ = QChar(point_cp1252(o));
    return dans;
}

QString depuis_cp1252(TamponLu octets) {
    QString s(static_cast<qsizetype>(octets.size()), Qt::Uninitialized);
    decode_cp1252(octets, s.data());
    return s;
}

QByteArray vers_cp1252(QStringView s) {
    QByteArray b(s.size(), Qt::Uninitialized);
    for (qsizetype i = 0; i < s.size(); ++i)
        b[i] = static_cast<char>(octet_cp1252(s[i]));
    return b;
}

QString texte(TamponLu buf, int offset, int largeur) {
    return depuis_cp1252(buf.subspan(offset, largeur));
}

QString texte_sans_blancs(TamponLu buf, int offset, int largeur) {
    TamponLu t = buf.subspan(offset, largeur);
    while (!t.empty() && t.front() == ' ')
        t = t.subspan(1);
    while (!t.empty() && t.back() == ' ')
        t = t.first(t.size() - 1);
    return depuis_cp1252(t);
}

void pose_texte(Tampon buf, int offset, int largeur, QStringView s) {
    auto* p = buf.data() + offset;
    const auto n = std::min<qsizetype>(s.size(), largeur);
    for (qsizetype i = 0; i < n; ++i)
        p[i] = octet_cp1252(s[i]);
    std::memset(p + n, ' ', largeur - n);
}

void blanchit(Tampon buf, int offset, int largeur) {
    std::memset(buf.data() + offset, ' ', largeur);
}

} // namespace agenda::octets
