#include "data/param.h"
#include "support/support.h"

using namespace agenda;
using agenda::test::Gabarit;

namespace {

const QString store = QStringLiteral("WTORV_IA.WDO");

QByteArray record_param(const char* cle, const char* valeur, std::int32_t nb, char fin = ' ') {
    const char fin_texte[2] = {fin, 0};
    return Gabarit(144)
        .texte(0, 106, valeur)
        .i32(106, 0)
        .i32(110, nb)
        .i32(114, 0)
        .texte(118, 25, cle)
        .texte(143, 1, fin_texte)
        .octets();
}

class Parametres : public agenda::test::DossierDonnees {};

} // namespace

TEST_F(Parametres, PremiereEcritureReecritureEtNouvelleCle) {
    EXPECT_EQ(lit_valeur_param(QStringLiteral("TORVA:HEURE")), QString());
    EXPECT_EQ(contenu(store).size(), 0);
    ecrit_param(QStringLiteral("COUL_RV"), QStringLiteral("255"));
    EXPECT_EQ(contenu(store), record_param("", "", 1) + record_param("COUL_RV", "255", 0));
    ecrit_param(QStringLiteral("COUL_RV"), QStringLiteral("  65280"));
    EXPECT_EQ(contenu(store), record_param("", "", 1) + record_param("COUL_RV", "  65280", 0));
    EXPECT_EQ(lit_valeur_param(QStringLiteral("COUL_RV")), QStringLiteral("65280"));

    // A new record carries the last byte of record 1 over.
    ecrit(store, record_param("", "", 1, 'Q') + record_param("TORVA:HORL", "1", 0, 'Q'));
    ecrit_param(QStringLiteral("COUL_FERIE"), QStringLiteral("12632256"));
    EXPECT_EQ(contenu(store), record_param("", "", 2, 'Q') +
                                  record_param("TORVA:HORL", "1", 0, 'Q') +
                                  record_param("COUL_FERIE", "12632256", 0, 'Q'));
}

TEST_F(Parametres, CleA25CaracteresValeurVideOuCoupee) {
    ecrit_param(QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXY-un"), QStringLiteral("1"));
    EXPECT_EQ(lit_valeur_param(QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXY-deux")),
              QStringLiteral("1"));
    EXPECT_EQ(lit_valeur_param(QStringLiteral("abcdefghijklmnopqrstuvwxy")), QString());
    ecrit_param(QStringLiteral("DCA:JOUR:PLA"), QString());
    EXPECT_EQ(contenu(store).mid(2 * 144, 106), QByteArray(106, ' '));
    EXPECT_EQ(lit_valeur_param(QStringLiteral("DCA:JOUR:PLA")), QString());
    ecrit_param(QStringLiteral("DCA:JOUR:PLA"), QString(120, QLatin1Char('7')));
    EXPECT_EQ(lit_valeur_param(QStringLiteral("DCA:JOUR:PLA")).size(), 106);
}

TEST_F(Parametres, UnEnTeteTropHautLitDesBlancs) {
    ecrit(store, record_param("", "", 4) + record_param("TORVA:HEURE", "08:12:19:030", 0));
    EXPECT_EQ(lit_valeur_param(QStringLiteral("TORVA:HEURE")), QStringLiteral("08:12:19:030"));
    EXPECT_EQ(lit_valeur_param(QStringLiteral("COUL_RV")), QString());
    // The insert writes behind the count, past the end.
    ecrit_param(QStringLiteral("COUL_RV"), QStringLiteral("1"));
    EXPECT_EQ(contenu(store).size(), 6 * 144);
    EXPECT_EQ(lit_valeur_param(QStringLiteral("COUL_RV")), QStringLiteral("1"));
}
