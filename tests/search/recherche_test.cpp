// The appointment search over every collaborator's file: which records are results, the result
// line and the table's columns, the order, and the editor opened from a row.

#include "data/fichier_records.h"
#include "editor/detarv.h"
#include "input/mini_97.h"
#include "search/torvar.h"
#include "support/support.h"

using namespace agenda;
using agenda::test::rv;

namespace {

class Recherche : public agenda::test::Livre {
protected:
    void SetUp() override {
        Livre::SetUp();
        charge(); // 3 March 2004, Sophie and Julien
        ecrit(QStringLiteral("tf_r0001.wdo"),
              agenda::test::rv_entete(6) + rv("040303:09H30:10H00", "Coupe DUPONT", 0, 7) +
                  rv("040302:09H00:09H30", "dupont hier") + rv("----------", "Dupont efface") +
                  rv("", "Dupont transfere") + rv("040304:08H00:09H00", "  Marie\r\nDupont  ") +
                  rv("040305:10H00", "d\xfbpont"));
        // The word far into the text, after a long run of blanks: at the field's very end, and
        // with blanks behind it.
        const std::string fin = "Note" + std::string(387, ' ') + "Dupont Paul";
        const std::string milieu = "Note" + std::string(300, ' ') + "dupont";
        ecrit(QStringLiteral("tf_r0002.wdo"),
              agenda::test::rv_entete(3) + rv("040303:09H30:10H00", "Dupont aussi", 0, 7) +
                  rv("040306:10H00", fin.c_str()) + rv("040306:09H00", milieu.c_str()));
        critere_rv.clear();
    }
    // The results as "collaborator|number".
    QStringList trouves() const {
        QStringList r;
        for (const QString& l : t.List1)
            r << l.mid(14, 9);
        return r;
    }
    Torvar t;
};

} // namespace

TEST_F(Recherche, CeQuiEstUnResultatEtDansQuelOrdre) {
    struct Cas {
        const char* mot;
        std::int16_t client;
        int cache_le_passe;
        QStringList attendus;
    } const cas[] = {
        // Any case; never a voided or transferred record; an accent is not folded.
        {"dup",
         0,
         0,
         {"01|000002", "01|000001", "02|000001", "01|000005", "02|000003", "02|000002"}},
        {"dup",
         0,
         1,
         {"01|000001", "02|000001", "01|000005", "02|000003",
          "02|000002"}}, // today stays, yesterday goes
        {"", 7, 0, {"01|000001", "02|000001"}},
        {"dû", 0, 0, {"01|000006"}},
        {"paul", 0, 0, {"02|000002"}},
        {"ie\r\ndu", 0, 0, {"01|000005"}}, // the text as stored, line break and all
        {"ω", 0, 0, {}},
    };
    for (const Cas& c : cas) {
        critere_rv = QString::fromUtf8(c.mot);
        etat.num_client_courant = c.client;
        t.Check1[0] = c.cache_le_passe;
        t.recherche_rv();
        EXPECT_EQ(trouves(), c.attendus) << c.mot;
    }
    EXPECT_EQ(etat.num_collab, 0); // the files were opened without changing the book's own
}

TEST_F(Recherche, LaLigneEtLesColonnes) {
    critere_rv = QStringLiteral("marie");
    t.recherche_rv();
    ASSERT_EQ(t.List1.size(), 1u);
    EXPECT_EQ(t.List1[0], QStringLiteral("040304:08H00:|01|000005|") +
                              QString(75, QLatin1Char(' ')) + QStringLiteral("Marie Dupont"));
    const Torvar::Ligne& l = t.g1[0];
    EXPECT_EQ(QStringList({l.date, l.heure, l.rendez_vous, l.coll, l.cle}),
              QStringList({QStringLiteral("04-03-2004"), QStringLiteral("08H00"),
                           QStringLiteral(" Marie Dupont"), QStringLiteral("Sophie"),
                           t.List1[0].left(100)}));
    EXPECT_EQ(t.g1.size(), std::size_t(Torvar::lignes_dessin));
}

TEST_F(Recherche, BoutonsEtEditeur) {
    QStringList messages;
    ui::scenario<Mini97>([&](Mini97& b) {
        messages << b.Label1;
        b.btc_Click(2);
    });
    t.Text1 = QStringLiteral("   ");
    t.btc_rech_Click();
    EXPECT_EQ(messages,
              QStringList{QStringLiteral(
                  "Vous devez préciser un crière de recherche d'au poins trois lettres !")});
    t.Text1 = QStringLiteral(" DUP ");
    t.btc_rech_Click();
    ASSERT_EQ(t.List1.size(), 6u);
    // A row opens its appointment, on its collaborator's file and date; deleted there, it is gone
    // from the search that follows, which keeps to the client the editor showed.
    ui::scenario<Detarv>([&](Detarv& d) {
        EXPECT_EQ(std::tuple(etat.num_rv, canal_fichier(canal::rv).chemin().endsWith(
                                              QLatin1String("tf_r0002.wdo"))),
                  std::tuple(1, true));
        EXPECT_EQ(etat.date_courante, ui::date_de(QDate(2004, 3, 3)));
        d.bt_annul_Click();
    });
    t.g1_DblClick(3);
    t.g1_DblClick(40); // an empty row
    EXPECT_EQ(trouves(), QStringList{"01|000001"});
    EXPECT_EQ(messages.size(), 2); // the delete's question
}
