// The message file and the slip, against records laid by hand.

#include "data/fichier_records.h"
#include "editor/inter.h"
#include "support/support.h"

using namespace agenda;
using agenda::test::Gabarit;

namespace {

const QString intlog = QStringLiteral("W_intlog.wdo");
const QString fiche = QStringLiteral("wrv181ff.wdo");

QByteArray inter(const char* cle, const char* valeur, std::int32_t nb = 0) {
    return Gabarit(128).texte(0, 15, cle).texte(23, 40, valeur).i32(124, nb).octets();
}

class Messages : public agenda::test::DossierDonnees {};

} // namespace

TEST_F(Messages, PremierUsageCleSansCasseEtValeurCoupee) {
    const int libre = canal_libre();
    EXPECT_EQ(lit_inter(QStringLiteral("TORVA:NUMUSER")), QString());
    // The mark behind a count of 0, and the blank entry its first initialisation left.
    EXPECT_EQ(contenu(intlog), inter("#INIT#", "") + inter("", ""));
    ecrit_inter(QStringLiteral("torva:numuser"), QStringLiteral("0007 Léa"));
    EXPECT_EQ(contenu(intlog), inter("#INIT#", "", 1) + inter("TORVA:NUMUSER", "0007 L\xE9\x61"));
    EXPECT_EQ(lit_inter(QStringLiteral(" torva:numuser ")),
              QStringLiteral("0007 Léa").leftJustified(40));
    ecrit_inter(QStringLiteral("TORVA:RETOUR"), QString(50, QLatin1Char('x')));
    EXPECT_EQ(contenu(intlog).mid(2 * 128 + 23, 41), QByteArray(40, 'x') + ' ');
    EXPECT_EQ(canal_libre(), libre); // each operation gives its channel back
}

TEST_F(Messages, LaFicheSesLignesParDefautPuisSeulementLaDateEtLHeure) {
    const char* lignes[] = {"Merci de noter",
                            "votre prochain",
                            "rendez-vous",
                            "merci de pr\xE9venir",
                            "en cas d'impossibilit\xE9",
                            "de votre part",
                            "Mercredi 03 mars 2004",
                            "\xE0 : 14 H 05",
                            "",
                            ""};
    ecrit_rendez_vous(QStringLiteral("Mercredi 03 mars 2004"), QStringLiteral("14"),
                      QStringLiteral("05"));
    // The date of the initialisation stands in every key, cut to 15 characters.
    QByteArray attendu = inter("#INIT#03/03/200", "");
    for (const char* l : lignes)
        attendu += inter("#INIT#03/03/200", l);
    EXPECT_EQ(contenu(fiche), attendu);

    attendu.replace(128 + 23, 14, "Bonjour       "); // a line the other program changed stays
    ecrit(fiche, attendu);
    ecrit_rendez_vous(QStringLiteral("Jeudi 04 mars 2004"), QStringLiteral("09"),
                      QStringLiteral("30"));
    attendu.replace(7 * 128, 256,
                    inter("#INIT#03/03/200", "Jeudi 04 mars 2004") +
                        inter("#INIT#03/03/200", "\xE0 : 09 H 30"));
    EXPECT_EQ(contenu(fiche), attendu);
}
