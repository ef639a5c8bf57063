// The client card over records laid by hand: what it shows of a record, what typing may do,
// and the bytes of its save, which changes the eight fields it owns and nothing else.

#include "clients/cclifa.h"
#include "data/etat.h"
#include "support/support.h"

#include <QFile>
#include <QRandomGenerator>

using namespace agenda;
using agenda::test::Gabarit;

namespace {

const QString fichier = QStringLiteral("W_CAI038.WDO");

// Blank-padded Latin-1 text over bytes, at an offset.
QByteArray& pose(QByteArray& r, int offset, int largeur, const char* texte) {
    return r.replace(offset, largeur, QByteArray(texte).leftJustified(largeur, ' ', true));
}

class Fiche : public agenda::test::DossierDonnees {
protected:
    // Client 2 is `r`; the card opens on it.
    void client(const QByteArray& r) {
        ecrit(fichier, Gabarit(1024).i32(254, 2).octets() + Gabarit(1024).octets() + r);
        etat.num_client_courant = 2;
    }
    QByteArray enregistre() const { return contenu(fichier).mid(2048, 1024); }
};

} // namespace

TEST_F(Fiche, CeQuUneFicheMontre) {
    const QByteArray quarante = "DE LA TOUR D'AUVERGNE Marie-Christine Ja"; // 40, from the till
    // The record, then the fields, the title and the class the card shows.
    for (const auto& [r, textes, titre, classe] :
         std::vector<std::tuple<QByteArray, QStringList, QString, int>>{
             {Gabarit(1024).i16(258, 9).zeros(430, 2).octets(), // a client just created
              {{}, {}, {}, {}, {}, {}},
              QStringLiteral("Madame"),
              1},
             {Gabarit(1024)
                  .texte({{15, 40, quarante.constData()},
                          {55, 40, "  3 rue Haute  "},
                          {95, 40, "B\xe2t. B"},
                          {135, 40, "75011 Paris"},
                          {205, 15, "01.02.03.04.05"},
                          {374, 15, " Melle"},
                          {682, 10, "12/03"}})
                  .i16(430, 2)
                  .octets(),
              {QString::fromLatin1(quarante), QStringLiteral("3 rue Haute"),
               QStringLiteral("Bât. B"), QStringLiteral("75011 Paris"),
               QStringLiteral("01.02.03.04.05"), QStringLiteral("12/03")},
              QStringLiteral("Melle"),
              2},
             {Gabarit(1024).i16(430, 7).texte(374, 15, "Monsieur").octets(),
              {{}, {}, {}, {}, {}, {}},
              QStringLiteral("Monsieur"),
              1},
         }) {
        client(r);
        Cclifa f;
        f.Form_Load();
        EXPECT_EQ(QStringList(f.Text.begin(), f.Text.end()), textes);
        EXPECT_EQ(f.Combo11, titre);
        EXPECT_EQ(f.Label3, QString::number(classe));
        for (int i = 0; i < 4; ++i) {
            const auto& c = f.Shape2[std::size_t(i)];
            EXPECT_EQ(std::tuple(c.largeur, c.couleur, c.pointille),
                      i == classe - 1 ? std::tuple(5, 0x000080, false) : std::tuple(1, 0, true));
        }
        // Saved as it shows: a class out of range becomes 1, the long name stays whole.
        f.picture4_Click();
        EXPECT_TRUE(f.fermee());
        const QByteArray apres = enregistre();
        EXPECT_EQ(apres.mid(430, 2), Gabarit(2, 0).i16(0, std::int16_t(classe)).octets());
        EXPECT_EQ(apres.mid(15, 40), r.mid(15, 40).trimmed().leftJustified(40, ' '));
    }
}

TEST_F(Fiche, LEnregistrementNeChangeQueSesHuitChamps) {
    // Bytes of every value, then the fields the card reads.
    QByteArray r(1024, '\0');
    for (QRandomGenerator g(20040303); char& c : r)
        c = char(g.bounded(256));
    pose(r, 15, 40, "DURAND Marie");
    pose(r, 55, 40, "3 rue Haute");
    pose(r, 95, 40, "");
    pose(r, 135, 40, "75011 Paris");
    pose(r, 205, 15, "0102030405");
    pose(r, 374, 15, "Mademoiselle X");
    pose(r, 682, 10, "1970");
    r.replace(430, 2, Gabarit(2, 0).i16(0, 2).octets());
    client(r);

    Cclifa f;
    f.Form_Load();
    f.Text_Change(Cclifa::nom, QStringLiteral("  DURAND-LEROY Marie "));
    f.Text_Change(Cclifa::adresse2, QStringLiteral("Escalier C"));
    f.Text_Change(Cclifa::telephone, QStringLiteral("06 12 34 56 78"));
    f.Text_Change(Cclifa::naissance, QStringLiteral("12/03"));
    f.sexe_Click(3);
    EXPECT_EQ(f.Label3 + f.Combo11, QStringLiteral("4Monsieur"));
    f.Combo11 = QStringLiteral("Madame"); // the title only: the class stays
    // The till changes a field of its own while the card is open.
    QByteArray fichier_modifie = contenu(fichier);
    fichier_modifie.replace(2048 + 175, 6, "CAISSE");
    ecrit(fichier, fichier_modifie);
    f.sortie(); // Escape saves
    EXPECT_TRUE(f.fermee());

    QByteArray attendu = r;
    pose(attendu, 15, 40, "DURAND-LEROY Marie");
    pose(attendu, 95, 40, "Escalier C");
    pose(attendu, 205, 15, "06 12 34 56 78");
    pose(attendu, 374, 15, "Madame"); // no tail of the old title
    pose(attendu, 682, 10, "12/03");
    attendu.replace(430, 2, Gabarit(2, 0).i16(0, 4).octets());
    attendu.replace(175, 6, "CAISSE");
    EXPECT_EQ(enregistre(), attendu);
    EXPECT_EQ(contenu(fichier).size(), 3 * 1024);

    // A title past 15 characters is cut; it is stored untrimmed.
    Cclifa g;
    g.Form_Load();
    g.Combo11 = QStringLiteral(" Monsieur le Directeur");
    g.picture4_Click();
    EXPECT_EQ(enregistre().mid(374, 15), QByteArray(" Monsieur le Di"));
}

TEST_F(Fiche, LaSaisieRespecteLesLimitesSansCouperLeTexteDejaLa) {
    client(Gabarit(1024).texte(15, 40, "DE LA TOUR D'AUVERGNE Marie-Christine Ja").octets());
    Cclifa f;
    f.Form_Load();
    const QString long40 = f.Text[Cclifa::nom];
    // The field, what is typed, and what the field holds after.
    for (const auto& [champ, tape, tient] :
         std::vector<std::tuple<Cclifa::Champ, QString, QString>>{
             {Cclifa::nom, long40 + QLatin1Char('X'), long40},    // no growth past the limit
             {Cclifa::nom, long40.chopped(1), long40.chopped(1)}, // shorter: taken
             {Cclifa::nom, QString(30, QLatin1Char('N')), QString(30, QLatin1Char('N'))},
             {Cclifa::nom, QString(31, QLatin1Char('N')), QString(30, QLatin1Char('N'))},
             {Cclifa::telephone, QString(15, QLatin1Char('0')), QString(15, QLatin1Char('0'))},
             {Cclifa::telephone, QString(16, QLatin1Char('0')), QString(15, QLatin1Char('0'))},
             {Cclifa::naissance, QStringLiteral("12/03/19701"), QString()},
             {Cclifa::ville, QString(31, QLatin1Char('V')), QString()},
         }) {
        f.Text_Change(champ, tape);
        EXPECT_EQ(f.Text[champ], tient) << tape.toStdString();
    }
}
