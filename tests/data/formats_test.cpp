// Each format against bytes laid by hand from its layout table.

#include "data/fichier_records.h"
#include "data/formats.h"
#include "data/record.h"
#include "editor/inter.h"
#include "support/support.h"

using namespace agenda;
using agenda::test::Gabarit;
using agenda::test::rv_vierge;

namespace {

class Formats : public agenda::test::DossierDonnees {
protected:
    template <class Rec>
    Rec lit(const QString& nom, std::int64_t r) {
        FichierRecords f;
        f.ouvre(nom, Rec::longueur);
        return lit_record<Rec>(f, r);
    }
    template <class Rec>
    void ecrit_rec(const QString& nom, std::int64_t r, const Rec& rec) {
        FichierRecords f;
        f.ouvre(nom, Rec::longueur);
        ecrit_record(f, r, rec);
    }
};

} // namespace

TEST_F(Formats, RendezVousOctetParOctet) {
    const QByteArray attendu = rv_vierge()
                                   .texte(0, 20, "040303:09H30:10H15")
                                   .texte(20, 402, "Coupe \x80 Mme No\x9C")
                                   .i32(422, 11)
                                   .i32(430, -1)
                                   .i32(434, 45)
                                   .i32(438, 17)
                                   .i32(442, 3 + 31 * 3)
                                   .i32(446, 0xC0FFC0)
                                   .i32(450, 1)
                                   .i32(462, 7)
                                   .texte(470, 20, "")
                                   .texte(490, 20, "0612345678040303")
                                   .texte(510, 2, "\r\n")
                                   .octets();
    ecrit(QStringLiteral("tf_r0000.wdo"), attendu);
    const auto r = lit<RecRv>(QStringLiteral("tf_r0000.wdo"), 1);
    EXPECT_EQ(r.cle_rv, QStringLiteral("040303:09H30:10H15  "));
    EXPECT_EQ(r.texte_rv.trimmed(), QStringLiteral("Coupe € Mme Noœ"));
    EXPECT_EQ(r.reserve1[0], 11);
    EXPECT_EQ(r.reserve1[2], -1);
    EXPECT_EQ(r.duree_rv, 45);
    EXPECT_EQ(r.num_client, 17);
    EXPECT_EQ(r.code_jour, 96);
    EXPECT_EQ(r.couleur_rv, 0xC0FFC0);
    EXPECT_EQ(r.encadre_rv, 1);
    EXPECT_EQ(r.reserve2[2], 7);
    EXPECT_EQ(r.fin_rec, QStringLiteral("\r\n"));

    // Written back whole, the record is the same bytes.
    ecrit_rec(QStringLiteral("copie.wdo"), 1, r);
    EXPECT_EQ(contenu(QStringLiteral("copie.wdo")), attendu);
}

TEST_F(Formats, LectureAuDelaDeLaFinDonneBlancsEtZeros) {
    ecrit(QStringLiteral("tf_r0000.wdo"), rv_vierge().i32(466, 3).octets());
    const auto r = lit<RecRv>(QStringLiteral("tf_r0000.wdo"), 5);
    EXPECT_EQ(r.cle_rv, QString(20, QLatin1Char(' ')));
    EXPECT_EQ(r.dernier_num, 0);
    EXPECT_EQ(r.fin_rec, QStringLiteral("  "));

    // A record cut short reads its missing bytes as blanks and zeros.
    ecrit(QStringLiteral("court.wdo"), QByteArray("050101:08H00", 12));
    const auto c = lit<RecRv>(QStringLiteral("court.wdo"), 1);
    EXPECT_EQ(c.cle_rv, QStringLiteral("050101:08H00        "));
    EXPECT_EQ(c.duree_rv, 0);
}

TEST_F(Formats, EcrireAuDelaDeLaFinAllongeLeFichier) {
    RecRv r;
    r.cle_rv = QStringLiteral("JO:040303");
    ecrit_rec(QStringLiteral("tf_a0000.wdo"), 3, r);
    const QByteArray octets = contenu(QStringLiteral("tf_a0000.wdo"));
    ASSERT_EQ(octets.size(), 3 * 512);
    EXPECT_EQ(octets.mid(1024, 9), QByteArray("JO:040303"));
    EXPECT_EQ(octets.at(0), '\0'); // the hole before it is the system's
}

TEST_F(Formats, ParametreOctetParOctet) {
    const QByteArray attendu = Gabarit(144)
                                   .texte(0, 106, "07:12:19:020")
                                   .i32(106, 0)
                                   .i32(110, 5)
                                   .i32(114, 0)
                                   .texte(118, 25, "TORVA:HEURE")
                                   .texte(143, 1, "Z")
                                   .octets();
    ecrit(QStringLiteral("p.wdo"), attendu);
    const auto p = lit<RecParam>(QStringLiteral("p.wdo"), 1);
    EXPECT_EQ(p.valeur_param.trimmed(), QStringLiteral("07:12:19:020"));
    EXPECT_EQ(p.nb_param, 5);
    EXPECT_EQ(p.cle_param, QStringLiteral("TORVA:HEURE              "));
    EXPECT_EQ(p.fin_param, 'Z');
    ecrit_rec(QStringLiteral("q.wdo"), 1, p);
    EXPECT_EQ(contenu(QStringLiteral("q.wdo")), attendu);
}

TEST_F(Formats, MessageOctetParOctet) {
    const QByteArray attendu = Gabarit(128)
                                   .texte(0, 15, "TORVA:NUMUSER")
                                   .texte(23, 40, "0007 L\xE9\x61")
                                   .i32(124, 3)
                                   .octets();
    ecrit(QStringLiteral("i.wdo"), attendu);
    const auto r = lit<RecInter>(QStringLiteral("i.wdo"), 1);
    EXPECT_EQ(r.cle_inter, QStringLiteral("TORVA:NUMUSER  "));
    EXPECT_EQ(r.valeur_inter.trimmed(), QStringLiteral("0007 Léa"));
    EXPECT_EQ(r.nb_inter, 3);
    ecrit_rec(QStringLiteral("j.wdo"), 1, r);
    EXPECT_EQ(contenu(QStringLiteral("j.wdo")), attendu);
}

TEST_F(Formats, CatalogueEnLectureSeule) {
    Gabarit entete(256, 0xAB); // bytes of the point-of-sale side, whatever they are
    entete.i32(105, 12);
    Gabarit service(256, 0xCD);
    service.texte(15, 40, "Coupe femme").texte(113, 101, "045 et le reste");
    ecrit(QStringLiteral("w_arr104.wdo"), entete.octets() + service.octets());
    EXPECT_EQ(lit<RecArr>(QStringLiteral("w_arr104.wdo"), 1).nb_arr, 12);
    const auto s = lit<RecArr>(QStringLiteral("w_arr104.wdo"), 2);
    EXPECT_EQ(s.nom_arr.trimmed(), QStringLiteral("Coupe femme"));
    EXPECT_EQ(s.info_arr.left(3), QStringLiteral("045"));
    const auto absent = lit<RecArr>(QStringLiteral("w_arr104.wdo"), 14);
    EXPECT_EQ(absent.nom_arr.trimmed(), QString());
    EXPECT_EQ(absent.nb_arr, 0);
    // The bytes the agenda does not use come back as they were.
    ecrit_rec(QStringLiteral("copie.wdo"), 1, s);
    EXPECT_EQ(contenu(QStringLiteral("copie.wdo")), service.octets());
}

TEST_F(Formats, ReglageVingtCaracteres) {
    ecrit(QStringLiteral("w_cai020.wdo"), Gabarit(20).texte(0, 20, "12abc").octets());
    EXPECT_EQ(lit<RecTxt20>(QStringLiteral("w_cai020.wdo"), 1).texte,
              QStringLiteral("12abc               "));
}
