#include "data/octets.h"
#include "data/texte.h"

#include <array>
#include <gtest/gtest.h>

using namespace agenda;

TEST(Cp1252, CaracteresDeLaPlage80a9FEtLatin1) {
    struct Cas {
        std::uint8_t octet;
        char16_t car;
    };
    for (const Cas c : {Cas{0x80, u'€'},
                        {0x9C, u'œ'},
                        {0x8C, u'Œ'},
                        {0x92, u'’'},
                        {0x85, u'…'},
                        {0xE9, u'é'},
                        {0xE0, u'à'},
                        {0xC7, u'Ç'},
                        {'A', u'A'}}) {
        EXPECT_EQ(octets::car_cp1252(c.octet), QChar(c.car)) << int(c.octet);
        EXPECT_EQ(octets::octet_cp1252(QChar(c.car)), c.octet) << int(c.octet);
    }
    EXPECT_EQ(octets::octet_cp1252(QChar(u'日')), '?');
}

TEST(Cp1252, ChaqueOctetRevientTelQuel) {
    // Fields carried for the point-of-sale side must survive a read and a write.
    for (int o = 0; o < 256; ++o)
        EXPECT_EQ(octets::octet_cp1252(octets::car_cp1252(std::uint8_t(o))), o);
}

TEST(ChampTexte, ComplateDeBlancsEtCoupeALaLargeur) {
    std::array<std::uint8_t, 8> buf{};
    buf.fill('#');
    octets::pose_texte(buf, 1, 4, u"é€");
    EXPECT_EQ(QByteArray(reinterpret_cast<const char*>(buf.data()), 8),
              QByteArray("#\xE9\x80  ###"));
    octets::pose_texte(buf, 1, 4, u"abcdefgh");
    EXPECT_EQ(QByteArray(reinterpret_cast<const char*>(buf.data()), 8), QByteArray("#abcd###"));
    EXPECT_EQ(octets::texte(buf, 1, 6), QStringLiteral("abcd##"));
}

TEST(Entiers, PetitBoutisteSigne) {
    std::array<std::uint8_t, 6> buf{};
    octets::pose_i32(buf, 1, -2);
    EXPECT_EQ(buf[1], 0xFE);
    EXPECT_EQ(buf[4], 0xFF);
    EXPECT_EQ(octets::i32(buf, 1), -2);
    octets::pose_i32(buf, 0, 0x01020304);
    EXPECT_EQ(buf[0], 4);
    EXPECT_EQ(buf[3], 1);
    octets::pose_i16(buf, 4, 9);
    EXPECT_EQ(octets::i16(buf, 4), 9);
    EXPECT_EQ(buf[5], 0);
}

TEST(LectureNumerique, SArreteAuPremierCaractereQuiNEstPasUnChiffre) {
    struct Cas {
        const char* texte;
        double valeur;
    };
    for (const Cas c : {Cas{"12abc", 12},
                        {"", 0},
                        {"   ", 0},
                        {"  7", 7},
                        {"0007 Nom", 7},
                        {"-3", -3},
                        {"09", 9},
                        {"1.5x", 1.5},
                        {"x12", 0},
                        {"#GENE#", 0}})
        EXPECT_DOUBLE_EQ(val(QString::fromLatin1(c.texte)), c.valeur) << c.texte;
}

TEST(Motifs, ZerosEnTeteEtArrondi) {
    EXPECT_EQ(motif_zeros(7, 4), QStringLiteral("0007"));
    EXPECT_EQ(motif_zeros(12345, 4), QStringLiteral("12345"));
    EXPECT_EQ(motif_zeros(49.99998, 2), QStringLiteral("50"));
    EXPECT_EQ(motif_zeros(99.99996, 2), QStringLiteral("100"));
    EXPECT_EQ(cadre(QStringLiteral("abc"), 5), QStringLiteral("abc  "));
    EXPECT_EQ(cadre(QStringLiteral("abcdef"), 5), QStringLiteral("abcde"));
}

TEST(SansBlancs, NOteQueLesBlancs) {
    struct Cas {
        const char *texte, *attendu;
    };
    for (const Cas c : {Cas{"  a b  ", "a b"},
                        {"\r\nCoupe ", "\r\nCoupe"},
                        {"   ", ""},
                        {"\tx\t", "\tx\t"},
                        {"", ""}})
        EXPECT_EQ(sans_blancs(QString::fromLatin1(c.texte)), QString::fromLatin1(c.attendu));
}
