// The two encodings of the files and the readings of texts.

#include "data/octets.h"
#include "data/texte.h"
#include "ui/erreur.h"

#include <array>
#include <gtest/gtest.h>

using namespace agenda;

TEST(Octets, Cp1252DansLesDeuxSensEtChaqueOctetRevient) {
    for (const auto& [octet, car] : {std::pair<std::uint8_t, char16_t>{0x80, u'€'},
                                     {0x9C, u'œ'},
                                     {0x8C, u'Œ'},
                                     {0x92, u'’'},
                                     {0x85, u'…'},
                                     {0xE9, u'é'},
                                     {0xC7, u'Ç'},
                                     {'A', u'A'}}) {
        EXPECT_EQ(octets::car_cp1252(octet), QChar(car)) << int(octet);
        EXPECT_EQ(octets::octet_cp1252(QChar(car)), octet) << int(octet);
    }
    EXPECT_EQ(octets::octet_cp1252(QChar(u'日')), '?');
    // Fields carried for the point-of-sale side must survive a read and a write.
    for (int o = 0; o < 256; ++o)
        EXPECT_EQ(octets::octet_cp1252(octets::car_cp1252(std::uint8_t(o))), o);
}

TEST(Octets, TexteCompleteDeBlancsEtEntiersPetitBoutistes) {
    std::array<std::uint8_t, 8> buf{};
    buf.fill('#');
    const auto vu = [&] { return QByteArray(reinterpret_cast<const char*>(buf.data()), 8); };
    octets::pose_texte(buf, 1, 4, u"é€");
    EXPECT_EQ(vu(), QByteArray("#\xE9\x80  ###"));
    octets::pose_texte(buf, 1, 4, u"abcdefgh");
    EXPECT_EQ(vu(), QByteArray("#abcd###"));
    EXPECT_EQ(octets::texte(buf, 1, 6), QStringLiteral("abcd##"));
    octets::pose_i32(buf, 1, -2);
    octets::pose_i16(buf, 6, 0x0109);
    EXPECT_EQ(vu(), QByteArray("#\xFE\xFF\xFF\xFF#\x09\x01", 8));
    EXPECT_EQ(octets::i32(buf, 1), -2);
    EXPECT_EQ(octets::i16(buf, 6), 0x0109);
}

TEST(Textes, LectureNumeriqueMotifsEtBlancs) {
    for (const auto& [texte, valeur] : {std::pair{"12abc", 12.0},
                                        {"", 0.0},
                                        {"   ", 0.0},
                                        {"0007 Nom", 7.0},
                                        {"-3", -3.0},
                                        {"1.5x", 1.5},
                                        {"x12", 0.0},
                                        {"#GENE#", 0.0}})
        EXPECT_DOUBLE_EQ(val(QString::fromLatin1(texte)), valeur) << texte;
    for (const auto& [valeur, chiffres, motif] : {std::tuple{7.0, 4, "0007"},
                                                  {12345.0, 4, "12345"},
                                                  {49.99998, 2, "50"},
                                                  {2.5, 1, "3"},
                                                  {-2.5, 1, "-3"}})
        EXPECT_EQ(motif_zeros(valeur, chiffres), QString::fromLatin1(motif)) << valeur;
    EXPECT_EQ(cadre(QStringLiteral("abcdef"), 5), QStringLiteral("abcde"));
    // Only blanks go: a line break at the edge of a text stays.
    for (const auto& [texte, attendu] :
         {std::pair{"  a b  ", "a b"}, {"\r\nCoupe ", "\r\nCoupe"}, {"\tx\t", "\tx\t"}})
        EXPECT_EQ(sans_blancs(QString::fromLatin1(texte)), QString::fromLatin1(attendu));
}

TEST(Textes, ConversionsEntieresArrondiesOuDepassement) {
    EXPECT_EQ(en_i16(2.5), 2); // half to even
    EXPECT_EQ(en_i16(-32768), -32768);
    EXPECT_EQ(en_i32(2147483647.4), 2147483647);
    EXPECT_EQ(plus_un(41), 42);
    for (const double v : {32768.0, -32769.0, std::nan(""), 1e300})
        EXPECT_THROW(en_i16(v), Erreur) << v;
    EXPECT_THROW(en_i32(2147483648.0), Erreur);
    EXPECT_THROW(plus_un(2147483647), Erreur);
}
