// The parameter store against records laid by hand.

#include "data/param.h"
#include "support/support.h"

using namespace agenda;
using agenda::test::Gabarit;

namespace {

const QString store = QStringLiteral("WTORV_IA.WDO");

QByteArray rec(const char* cle, const char* valeur, std::int32_t nb, const char* fin = " ") {
    return Gabarit(144)
        .texte(0, 106, valeur)
        .zeros(106, 12)
        .i32(110, nb)
        .texte(118, 25, cle)
        .texte(143, 1, fin)
        .octets();
}

class Parametres : public agenda::test::DossierDonnees {};

} // namespace

TEST_F(Parametres, LireEcrireEtAjouterUneCle) {
    EXPECT_EQ(lit_valeur_param(QStringLiteral("TORVA:HEURE")), QString());
    EXPECT_EQ(contenu(store).size(), 0);
    ecrit_param(QStringLiteral("COUL_RV"), QStringLiteral("255"));
    ecrit_param(QStringLiteral("COUL_RV"), QStringLiteral("  65280"));
    EXPECT_EQ(contenu(store), rec("", "", 1) + rec("COUL_RV", "  65280", 0));
    EXPECT_EQ(lit_valeur_param(QStringLiteral("COUL_RV")), QStringLiteral("65280"));

    // A new key takes the last byte of record 1; a header that says too much reads blanks and
    // the insert goes behind its count.
    ecrit(store, rec("", "", 3, "Q") + rec("TORVA:HORL", "1", 0, "Q"));
    ecrit_param(QStringLiteral("COUL_FERIE"), QStringLiteral("12632256"));
    EXPECT_EQ(contenu(store), rec("", "", 4, "Q") + rec("TORVA:HORL", "1", 0, "Q") +
                                  Gabarit(2 * 144, 0).octets() +
                                  rec("COUL_FERIE", "12632256", 0, "Q"));
    EXPECT_EQ(lit_valeur_param(QStringLiteral("COUL_FERIE")), QStringLiteral("12632256"));
}

TEST_F(Parametres, CleA25CaracteresValeurVideOuCoupee) {
    ecrit_param(QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXY-un"), QStringLiteral("1"));
    EXPECT_EQ(lit_valeur_param(QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXY-deux")),
              QStringLiteral("1"));
    EXPECT_EQ(lit_valeur_param(QStringLiteral("abcdefghijklmnopqrstuvwxy")), QString());
    ecrit_param(QStringLiteral("DCA:JOUR:PLA"), QString());
    EXPECT_EQ(contenu(store).mid(2 * 144, 106), QByteArray(106, ' '));
    ecrit_param(QStringLiteral("DCA:JOUR:PLA"), QString(120, QLatin1Char('7')));
    EXPECT_EQ(lit_valeur_param(QStringLiteral("DCA:JOUR:PLA")).size(), 106);
}
