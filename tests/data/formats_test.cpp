// The formats that no other test reads field by field, against bytes laid by hand from their
// layout tables: the named fields are where the table puts them, and a record past the end of a
// file is the table's blank one. (The parameter, message and slip records are compared whole
// with their fixtures in their own tests.)

#include "clients/rec_cli.h"
#include "data/formats.h"
#include "support/support.h"

using namespace agenda;
using agenda::test::Gabarit;

namespace {

class Formats : public agenda::test::DossierDonnees {
protected:
    // Record 1 of the laid bytes, and record 3 of that one-record file: the blank.
    template <class Rec>
    std::pair<Rec, QByteArray> lit(const QByteArray& octets) {
        ecrit(QStringLiteral("f.wdo"), octets);
        FichierRecords f;
        f.ouvre(QStringLiteral("f.wdo"), Rec::longueur);
        const Rec vierge = lit_record<Rec>(f, 3);
        return {lit_record<Rec>(f, 1),
                QByteArray(reinterpret_cast<const char*>(vierge.octets.data()), Rec::longueur)};
    }
};

} // namespace

TEST_F(Formats, ChampsAuxOffsetsDesTables) {
    const auto [r, rv_blanc] =
        lit<RecRv>(agenda::test::rv_vierge()
                       .texte({{0, 20, "040303:09H30:10H15"},
                               {20, 402, "Coupe \x80 Mme No\x9C"},
                               {490, 20, "0611223344040303"}})
                       .i32({{434, 45}, {438, 17}, {442, 96}, {446, 0xC0FFC0}, {450, 1}, {466, 9}})
                       .octets());
    EXPECT_EQ(r.lit(RecRv::texte_rv).trimmed(), QStringLiteral("Coupe € Mme Noœ"));
    EXPECT_EQ(
        (std::array{r.lit(RecRv::duree_rv), r.lit(RecRv::num_client), r.lit(RecRv::code_jour),
                    r.lit(RecRv::couleur_rv), r.lit(RecRv::encadre_rv), r.lit(RecRv::dernier_num)}),
        (std::array{45, 17, 96, 0xC0FFC0, 1, 9}));
    EXPECT_EQ(r.lit(RecRv::ref_sms), QStringLiteral("0611223344040303    "));
    EXPECT_EQ(rv_blanc, agenda::test::rv_vierge().octets());
}

TEST_F(Formats, LesOctetsDuPointDeVenteRestentTelsQuels) {
    // Catalogue and client records full of the other program's bytes: the named fields read
    // where they are (the format fuzzer holds that a record written back is the same bytes).
    const QByteArray service = Gabarit(256, 0xCD)
                                   .texte({{15, 40, "Coupe femme"}, {113, 101, "045 et le reste"}})
                                   .i32(105, 12)
                                   .octets();
    const auto [s, s_blanc] = lit<RecArr>(service);
    EXPECT_EQ(s.lit(RecArr::nom_arr).trimmed() + s.lit(RecArr::info_arr).left(3),
              QStringLiteral("Coupe femme045"));
    EXPECT_EQ(s.lit(RecArr::nb_arr), 12);
    EXPECT_EQ(s_blanc, Gabarit(256).zeros(55, 28).zeros(105, 8).zeros(214, 42).octets());

    const QByteArray client = Gabarit(1024, 0xEE)
                                  .texte({{15, 40, "DURAND Marie"}, {205, 15, "01.02.03.04.05"}})
                                  .i32(254, 41)
                                  .i16(430, 1)
                                  .octets();
    const auto [c, c_blanc] = lit<RecCli>(client);
    EXPECT_EQ(c.lit(RecCli::nom_client).trimmed() + c.lit(RecCli::telephone),
              QStringLiteral("DURAND Marie01.02.03.04.05 "));
    EXPECT_EQ(c.lit(RecCli::dernier_client) + c.lit(RecCli::sexe), 42);
    EXPECT_EQ(c_blanc, Gabarit(1024).zeros(250, 10).zeros(270, 16).zeros(430, 2).octets());
}
