// Each format against bytes laid by hand from its layout table: the named fields read where the
// table puts them, and a record written back is the same bytes, those it does not name included.

#include "clients/rec_cli.h"
#include "data/fichier_records.h"
#include "data/formats.h"
#include "editor/inter.h"
#include "support/support.h"

#include <QFile>

using namespace agenda;
using agenda::test::Gabarit;
using agenda::test::rv_vierge;

namespace {

class Formats : public agenda::test::DossierDonnees {
protected:
    // Reads record r of the hand-laid bytes, checks it, writes it back elsewhere.
    template <class Rec>
    void aller_retour(const QByteArray& octets, std::function<void(const Rec&)> verifie) {
        ecrit(QStringLiteral("a.wdo"), octets);
        QFile::remove(chemin(QStringLiteral("b.wdo")));
        FichierRecords a, b;
        a.ouvre(QStringLiteral("a.wdo"), Rec::longueur);
        b.ouvre(QStringLiteral("b.wdo"), Rec::longueur);
        const Rec r = lit_record<Rec>(a, 1);
        verifie(r);
        ecrit_record(b, 1, r);
        EXPECT_EQ(contenu(QStringLiteral("b.wdo")), octets);
    }
    // A record past the end of a file is the format's blank record.
    template <class Rec>
    void vierge(const QByteArray& attendu) {
        FichierRecords f;
        f.ouvre(QStringLiteral("vide.wdo"), Rec::longueur);
        const Rec r = lit_record<Rec>(f, 3);
        EXPECT_EQ(QByteArray(reinterpret_cast<const char*>(r.octets.data()), Rec::longueur),
                  attendu);
    }
};

} // namespace

TEST_F(Formats, RendezVous) {
    aller_retour<RecRv>(
        rv_vierge()
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
            .i32(466, 9)
            .texte(490, 20, "0612345678040303")
            .texte(510, 2, "\r\n")
            .octets(),
        [](const RecRv& r) {
            EXPECT_EQ(r.lit(RecRv::cle_rv), QStringLiteral("040303:09H30:10H15  "));
            EXPECT_EQ(r.lit(RecRv::texte_rv).trimmed(), QStringLiteral("Coupe € Mme Noœ"));
            EXPECT_EQ(r.lit(RecRv::duree_rv), 45);
            EXPECT_EQ(r.lit(RecRv::num_client), 17);
            EXPECT_EQ(r.lit(RecRv::code_jour), 96);
            EXPECT_EQ(r.lit(RecRv::couleur_rv), 0xC0FFC0);
            EXPECT_EQ(r.lit(RecRv::encadre_rv), 1);
            EXPECT_EQ(r.lit(RecRv::dernier_num), 9);
            EXPECT_EQ(r.lit(RecRv::ref_sms), QStringLiteral("0612345678040303    "));
            EXPECT_EQ(r.lit(RecRv::fin_rec), QStringLiteral("\r\n"));
        });
    vierge<RecRv>(rv_vierge().octets());
}

TEST_F(Formats, Parametre) {
    aller_retour<RecParam>(
        Gabarit(144)
            .texte(0, 106, "07:12:19:020")
            .i32(106, 0)
            .i32(110, 5)
            .i32(114, 0)
            .texte(118, 25, "TORVA:HEURE")
            .texte(143, 1, "Z")
            .octets(),
        [](const RecParam& p) {
            EXPECT_EQ(p.lit(RecParam::valeur_param).trimmed(), QStringLiteral("07:12:19:020"));
            EXPECT_EQ(p.lit(RecParam::nb_param), 5);
            EXPECT_EQ(p.lit(RecParam::cle_param), QStringLiteral("TORVA:HEURE              "));
        });
    vierge<RecParam>(Gabarit(144).zeros(106, 12).octets());
}

TEST_F(Formats, MessageEtFiche) {
    aller_retour<RecInter>(
        Gabarit(128)
            .texte(0, 15, "TORVA:NUMUSER")
            .texte(15, 8, "autre")
            .texte(23, 40, "0007 L\xE9\x61")
            .texte(64, 60, "reste")
            .i32(124, 3)
            .octets(),
        [](const RecInter& r) {
            EXPECT_EQ(r.lit(RecInter::cle_inter), QStringLiteral("TORVA:NUMUSER  "));
            EXPECT_EQ(r.lit(RecInter::valeur_inter).trimmed(), QStringLiteral("0007 Léa"));
            EXPECT_EQ(r.lit(RecInter::nb_inter), 3);
        });
    vierge<RecInter>(Gabarit(128).zeros(124, 4).octets());
}

TEST_F(Formats, CatalogueEtReglages) {
    Gabarit service(256, 0xCD); // the point-of-sale side's bytes, whatever they are
    service.texte(15, 40, "Coupe femme").i32(105, 12).texte(113, 101, "045 et le reste");
    aller_retour<RecArr>(service.octets(), [](const RecArr& s) {
        EXPECT_EQ(s.lit(RecArr::nom_arr).trimmed(), QStringLiteral("Coupe femme"));
        EXPECT_EQ(s.lit(RecArr::nb_arr), 12);
        EXPECT_EQ(s.lit(RecArr::info_arr).left(3), QStringLiteral("045"));
    });
    vierge<RecArr>(Gabarit(256).zeros(55, 28).zeros(105, 8).zeros(214, 42).octets());
    aller_retour<RecTxt20>(Gabarit(20).texte(0, 20, "12abc").octets(), [](const RecTxt20& r) {
        EXPECT_EQ(r.lit(RecTxt20::texte), QStringLiteral("12abc               "));
    });
}

TEST_F(Formats, Client) {
    Gabarit c(1024, 0xEE);
    c.texte(15, 40, "DURAND Marie").texte(205, 15, "01.02.03.04.05").i32(254, 41).i16(430, 1);
    aller_retour<RecCli>(c.octets(), [](const RecCli& r) {
        EXPECT_EQ(r.lit(RecCli::nom_client).trimmed(), QStringLiteral("DURAND Marie"));
        EXPECT_EQ(r.lit(RecCli::telephone), QStringLiteral("01.02.03.04.05 "));
        EXPECT_EQ(r.lit(RecCli::dernier_client), 41);
        EXPECT_EQ(r.lit(RecCli::sexe), 1);
    });
    vierge<RecCli>(Gabarit(1024).zeros(250, 10).zeros(270, 16).zeros(430, 2).octets());
}
