#include "data/etat.h"
#include "data/fichier_records.h"
#include "editor/inter.h"
#include "support/support.h"

using namespace agenda;
using agenda::test::Gabarit;

namespace {

const QString intlog = QStringLiteral("W_intlog.wdo");
const QString fiche = QStringLiteral("wrv181ff.wdo");

QByteArray inter(const char* cle, const char* valeur, std::int32_t nb) {
    return Gabarit(128).texte(0, 15, cle).texte(23, 40, valeur).i32(124, nb).octets();
}

class Messages : public agenda::test::DossierDonnees {};

} // namespace

TEST_F(Messages, PremiereLectureCreeLeFichier) {
    EXPECT_EQ(lit_inter(QStringLiteral("TORVA:NUMUSER")), QString());
    // The mark behind a count of 0, and the blank record its first initialisation left.
    EXPECT_EQ(contenu(intlog), inter("#INIT#", "", 0) + inter("", "", 0));
}

TEST_F(Messages, EcrireUneCleNouvellePuisLaRelireSansCasse) {
    const int libre = canal_libre();
    ecrit_inter(QStringLiteral("torva:numuser"), QStringLiteral("0007 L\u00e9a"));
    EXPECT_EQ(contenu(intlog),
              inter("#INIT#", "", 1) + inter("TORVA:NUMUSER", "0007 L\xE9\x61", 0));
    const QString v = lit_inter(QStringLiteral("TORVA:NUMUSER"));
    EXPECT_EQ(v.size(), 40);
    EXPECT_EQ(v.trimmed(), QStringLiteral("0007 Léa"));
    EXPECT_EQ(lit_inter(QStringLiteral(" torva:numuser ")).trimmed(), QStringLiteral("0007 Léa"));
    EXPECT_EQ(canal_libre(), libre); // each operation gives its channel back
}

TEST_F(Messages, ReecrireGardeLEntreeEtCoupeLaValeur) {
    ecrit(intlog, inter("#INIT#", "", 2) + inter("TORVA:RETOUR", "caisse.exe", 0) +
                      inter("TORVA:NUMUSER", "0001 A", 0));
    ecrit_inter(QStringLiteral("TORVA:NUMUSER"), QString(50, QLatin1Char('x')));
    const QByteArray apres = contenu(intlog);
    EXPECT_EQ(apres.size(), 3 * 128);
    EXPECT_EQ(apres.mid(256 + 23, 40), QByteArray(40, 'x'));
    EXPECT_EQ(lit_inter(QStringLiteral("TORVA:RETOUR")).trimmed(), QStringLiteral("caisse.exe"));
}

TEST_F(Messages, FicheDuRendezVousAuPremierUsage) {
    ecrit_rendez_vous(QStringLiteral("Mercredi 03 mars 2004"), QStringLiteral("14"),
                      QStringLiteral("05"));
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
    // The date of the initialisation stands in every key, cut to 15 characters.
    QByteArray attendu = inter("#INIT#03/03/200", "", 0);
    for (const char* l : lignes)
        attendu += inter("#INIT#03/03/200", l, 0);
    EXPECT_EQ(contenu(fiche), attendu);
}

TEST_F(Messages, LesLignesFixesDeLAutreProgrammeRestent) {
    QByteArray avant = inter("#INIT#01/01/200", "", 0);
    for (int i = 0; i < 10; ++i)
        avant += inter("#INIT#01/01/200", i == 0 ? "Bonjour" : "", 0);
    ecrit(fiche, avant);
    ecrit_rendez_vous(QStringLiteral("Jeudi 04 mars 2004"), QStringLiteral("09"),
                      QStringLiteral("30"));
    const QByteArray apres = contenu(fiche);
    EXPECT_EQ(apres.left(7 * 128), avant.left(7 * 128));
    EXPECT_EQ(apres.mid(7 * 128, 128), inter("#INIT#01/01/200", "Jeudi 04 mars 2004", 0));
    EXPECT_EQ(apres.mid(8 * 128, 128), inter("#INIT#01/01/200", "\xE0 : 09 H 30", 0));
    EXPECT_EQ(apres.mid(9 * 128), avant.mid(9 * 128));
}
