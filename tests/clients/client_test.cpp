#include "clients/client.h"
#include "data/fichier_records.h"
#include "support/support.h"

#include <QFile>
#include <QRandomGenerator>

using namespace agenda;
using agenda::test::Gabarit;

namespace {

const QString fichier = QStringLiteral("W_CAI038.WDO");

// A new client as laid out in the table, over what the read gave for zone_260, zone_265 and
// dernier_client.
Gabarit nouveau(const char* code, const char* nom, const char* zone_260 = "",
                const char* zone_265 = "", std::int32_t dernier = 0) {
    Gabarit g(1024);
    g.texte(0, 15, code).texte(15, 40, nom);
    g.zeros(250, 4).i32(254, dernier).i16(258, 9);
    g.texte(260, 5, zone_260).texte(265, 5, zone_265);
    g.zeros(270, 16).zeros(430, 2);
    return g;
}

class Clients : public agenda::test::DossierDonnees {};

} // namespace

TEST_F(Clients, PremierUsageDonneClientsDivers) {
    ouvre_clients();
    const QByteArray octets = contenu(fichier);
    ASSERT_EQ(octets.size(), 2048);
    Gabarit entete(1024);
    entete.zeros(250, 4).i32(254, 1).zeros(258, 2).zeros(270, 16).zeros(430, 2);
    EXPECT_EQ(octets.left(1024), entete.octets());
    EXPECT_EQ(octets.mid(1024), nouveau("0001", "Clients Divers").octets());
    EXPECT_EQ(client_alloue, 1);
}

TEST_F(Clients, UnEnTeteAZeroRecommenceLeFichier) {
    Gabarit entete(1024, 0x5A);
    entete.i32(254, 0);
    Gabarit ancien(1024, 'Q');
    ecrit(fichier, entete.octets() + ancien.octets() + ancien.octets());
    ouvre_clients();
    const QByteArray octets = contenu(fichier);
    EXPECT_EQ(octets.size(), 3 * 1024);
    EXPECT_EQ(octets.left(1024), Gabarit(entete).i32(254, 1).octets()); // the rest as found
    EXPECT_EQ(octets.mid(1024, 1024),
              nouveau("0001", "Clients Divers", "QQQQQ", "QQQQQ", 0x51515151).octets());
    EXPECT_EQ(octets.mid(2048), ancien.octets());
}

TEST_F(Clients, CreerUnClientSelonLEnTete) {
    struct Cas {
        std::int32_t dernier;
        int records; // the file's length, in records
        std::int32_t alloue;
        const char* code;
    };
    for (const Cas c : {Cas{41, 42, 42, "0042"},
                        {41, 30, 42, "0042"}, // a few ahead: honoured
                        {12344, 12345, 12345, "12345"},
                        {0x20202020, 3, 3, "0003"},
                        {-1, 2, 2, "0002"}}) { // damage, first use
        ecrit(fichier, Gabarit(1024).i32(254, c.dernier).octets());
        QFile(chemin(fichier)).resize(qint64(c.records) * 1024);
        ouvre_clients();
        cree_client();
        EXPECT_EQ(client_alloue, c.alloue) << c.dernier;
        const QByteArray octets = contenu(fichier);
        ASSERT_EQ(octets.size(), qint64(c.alloue + 1) * 1024);
        EXPECT_EQ(octets.mid(254, 4), Gabarit(4).i32(0, c.alloue).octets());
        EXPECT_EQ(octets.right(1024), nouveau(c.code, "").octets());
    }
}

TEST_F(Clients, LesOctetsDuPointDeVenteSontPortesTelsQuels) {
    // Random records as the point-of-sale side may have left them: read and written back,
    // every byte stays.
    QRandomGenerator rng(38);
    QByteArray octets = Gabarit(1024).i32(254, 12).octets();
    for (int i = 0; i < 12; ++i) {
        QByteArray r(1024, Qt::Uninitialized);
        for (char& c : r)
            c = char(rng.bounded(256));
        octets += r;
    }
    ecrit(fichier, octets);
    ouvre_clients();
    for (int n = 1; n <= 12; ++n) {
        lit_client(n);
        ecrit_client(n);
    }
    EXPECT_EQ(contenu(fichier), octets);
    lit_client(200); // past the end: blank, no error
    EXPECT_EQ(rec_cli.lit(RecCli::nom_client).trimmed(), QString());
}
