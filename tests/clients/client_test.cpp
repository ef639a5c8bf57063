// The client file: its first use and the creation of a client, against records laid by hand;
// the fields the point-of-sale program owns keep what was read.

#include "clients/client.h"
#include "support/support.h"

#include <QFile>

using namespace agenda;
using agenda::test::Gabarit;

namespace {

const QString fichier = QStringLiteral("W_CAI038.WDO");

// A new client as its table lays it, over what the read gave for zone_260, zone_265 and
// dernier_client.
QByteArray nouveau(const char* code, const char* nom, const char* zones = "",
                   std::int32_t dernier = 0) {
    return Gabarit(1024)
        .texte({{0, 15, code}, {15, 40, nom}, {260, 5, zones}, {265, 5, zones}})
        .zeros(250, 4)
        .i32(254, dernier)
        .i16(258, 9)
        .zeros(270, 16)
        .zeros(430, 2)
        .octets();
}

class Clients : public agenda::test::DossierDonnees {};

} // namespace

TEST_F(Clients, PremierUsageDonneClientsDivers) {
    ouvre_clients();
    EXPECT_EQ(contenu(fichier), Gabarit(1024)
                                        .zeros(250, 4)
                                        .i32(254, 1)
                                        .zeros(258, 2)
                                        .zeros(270, 16)
                                        .zeros(430, 2)
                                        .octets() +
                                    nouveau("0001", "Clients Divers"));
    // A header at zero over old records starts again; the rest of them stays as found.
    const QByteArray entete = Gabarit(1024, 0x5A).i32(254, 0).octets();
    const QByteArray ancien(1024, 'Q');
    ecrit(fichier, entete + ancien + ancien);
    ouvre_clients();
    EXPECT_EQ(contenu(fichier), Gabarit(1024, 0x5A).i32(254, 1).octets() +
                                    nouveau("0001", "Clients Divers", "QQQQQ", 0x51515151) +
                                    ancien);
}

TEST_F(Clients, CreerUnClientSelonLEnTete) {
    // The header's count, the file's length in records, the number given and its code.
    for (const auto& [dernier, records, alloue, code] :
         {std::tuple{41, 42, 42, "0042"},
          {41, 30, 42, "0042"}, // a few ahead: honoured
          {12344, 12345, 12345, "12345"},
          {0x20202020, 3, 3, "0003"}, // damage: repaired
          {-1, 2, 2, "0002"}}) {      // first use
        ecrit(fichier, Gabarit(1024).i32(254, dernier).octets());
        QFile(chemin(fichier)).resize(qint64(records) * 1024);
        ouvre_clients();
        cree_client();
        EXPECT_EQ(client_alloue, alloue) << dernier;
        const QByteArray octets = contenu(fichier);
        ASSERT_EQ(octets.size(), qint64(alloue + 1) * 1024);
        EXPECT_EQ(octets.mid(254, 4), Gabarit(4).i32(0, alloue).octets());
        EXPECT_EQ(octets.right(1024), nouveau(code, ""));
    }
}
