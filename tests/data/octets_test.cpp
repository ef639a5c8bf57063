// The two encodings of the files, and the readings of texts and numbers.

#include "data/octets.h"
#include "data/texte.h"
#include "ui/erreur.h"

#include <array>
#include <gtest/gtest.h>

using namespace agenda;

TEST(Octets, Cp1252EtEntiersPetitBoutistes) {
    const std::pair<std::uint8_t, char16_t> cp1252[] = {
        {0x80, u'€'}, {0x9C, u'œ'}, {0x92, u'’'}, {0xE9, u'é'}, {'A', u'A'}};
    for (const auto& [octet, car] : cp1252)
        EXPECT_EQ(octets::car_cp1252(octet), QChar(car)) << int(octet);
    // Bytes carried for the point-of-sale side survive a read and a write, all 256 of them.
    for (int o = 0; o < 256; ++o)
        EXPECT_EQ(octets::octet_cp1252(octets::car_cp1252(std::uint8_t(o))), o);
    std::array<std::uint8_t, 8> buf;
    buf.fill('#');
    octets::pose_texte(buf, 1, 4, u"é€日xyz");
    octets::pose_i16(buf, 6, 0x0109);
    EXPECT_EQ(QByteArray(reinterpret_cast<const char*>(buf.data()), 8),
              QByteArray("#\xE9\x80?x#\x09\x01", 8));
    octets::pose_i32(buf, 0, -2);
    EXPECT_EQ(octets::i32(buf, 0) * 1000 + buf[3], -2000 + 0xFF);
}

TEST(Textes, LectureNumeriqueMotifsBlancsEtDepassements) {
    const std::pair<const char*, double> valeurs[] = {{"12abc", 12}, {"", 0},       {"0007 Nom", 7},
                                                      {"-3", -3},    {"1.5x", 1.5}, {"#GENE#", 0}};
    for (const auto& [texte, valeur] : valeurs)
        EXPECT_DOUBLE_EQ(val(QString::fromLatin1(texte)), valeur) << texte;
    EXPECT_EQ(motif_zeros(7, 4) + motif_zeros(12345, 4) + motif_zeros(49.99998, 2) +
                  motif_zeros(-2.5, 1),
              QStringLiteral("00071234550-3"));
    // Only blanks go: a line break at the edge of a text stays.
    EXPECT_EQ(sans_blancs(QStringLiteral(" \r\nCoupe  ")), QStringLiteral("\r\nCoupe"));
    EXPECT_EQ(en_i16(2.5) + en_i16(3.5), 2 + 4); // half to even
    for (const double v : {32768.0, std::nan(""), 1e300})
        EXPECT_THROW(en_i16(v), Erreur) << v;
    EXPECT_THROW(plus_un(INT32_MAX), Erreur);
}
