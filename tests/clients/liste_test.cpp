// The client list over a client file laid by hand: what the criterion keeps and in what order,
// the pages, the keys, and texte_retour for every way out.

#include "clients/lit_cli.h"
#include "data/etat.h"
#include "input/mini_97.h"
#include "support/support.h"

using namespace agenda;
using agenda::test::Gabarit;

namespace {

QByteArray client(const char* nom, const char* ville = "") {
    return Gabarit(1024).texte({{15, 40, nom}, {135, 40, ville}}).octets();
}

const QString zz = QStringLiteral("ZZ ABONNÉ %1");

class Liste : public agenda::test::DossierDonnees {
protected:
    void SetUp() override {
        DossierDonnees::SetUp();
        QByteArray f = client("Clients Divers") +                 // 1
                       client("DUPONT Jean", "69000 Lyon") +      // 2
                       client("MARTIN Paul", "59140 Dunkerque") + // 3
                       client("(NUL)DUVAL Rose", "Paris") +       // 4: voided
                       client("", "75001 Paris") +                // 5: never named
                       client("\xc9LODIE Bernard", "Paris") +     // 6
                       client("Durand Marie", "Paris");           // 7
        for (int i = 1; i <= 15; ++i)                             // 8 to 22
            f += client(zz.arg(i, 2, 10, QLatin1Char('0')).toLatin1().constData());
        // The longest name and town: 81 characters with the blank between them.
        f += client("LONGUENOMDECLIENTQUIREMPLITTOUTELALARGEU",
                    "74000 SAINT-JULIEN-DES-QUATRE-CHEMINS-NE");
        ecrit(QStringLiteral("W_CAI038.WDO"), Gabarit(1024).i32(254, 23).octets() + f);
        etat.texte_retour = QStringLiteral("AVANT");
    }
    static std::vector<std::int32_t> numeros(const LitCli& l) {
        std::vector<std::int32_t> n;
        for (const auto& e : l.List1)
            n.push_back(e.numero);
        return n;
    }
    static QString retour(const QString& texte, int numero) {
        return texte.leftJustified(80, QLatin1Char(' '), true) + QLatin1Char(':') +
               QString::number(numero);
    }
};

} // namespace

TEST_F(Liste, LeCritereGardeNomEtVilleSansPliageDAccents) {
    const std::vector<std::int32_t> tous = {1,  2,  7,  6,  23, 3,  8,  9,  10, 11, 12,
                                            13, 14, 15, 16, 17, 18, 19, 20, 21, 22};
    for (const auto& [critere, attendus] :
         std::vector<std::pair<QString, std::vector<std::int32_t>>>{
             {{}, tous},
             {QStringLiteral("d"), tous},       // one letter filters nothing
             {QStringLiteral("du"), {2, 7, 3}}, // Dunkerque is a town
             {QStringLiteral(" D"), {1, 3}},    // not trimmed: "Clients Divers", "59140 Dunkerque"
             {QStringLiteral("élo"), {6}},
             {QStringLiteral("ELO"), {}}, // É is not E
             {QStringLiteral("(NUL"), {}},
             {QStringLiteral("PARIS"), {7, 6}}, // not the voided client, nor the blank name
         }) {
        LitCli l;
        l.Form_Load();
        l.Text1_Change(critere);
        EXPECT_EQ(numeros(l), attendus) << critere.toStdString();
        EXPECT_EQ(l.List1_index, attendus.empty() ? -1 : 0) << critere.toStdString();
        EXPECT_EQ(page_liste, 0);
    }
}

TEST_F(Liste, PagesTouchesEtLignesVides) {
    LitCli l;
    l.Form_Load();
    // Each gesture, then the first row, how many rows are filled, and the page.
    for (const auto& [geste, premier, pleins, page] :
         std::vector<std::tuple<std::function<void()>, const char*, int, int>>{
             {[&] { l.toucc_Click(LitCli::touche_annuler); }, "Clients Divers ", 14, 0}, // nothing
             {[&] { l.toucc_Click(26), l.toucc_Click(26); }, "ZZ ABONNÉ 01 ", 14, 0},
             {[&] { l.Picture2_Click(); }, "ZZ ABONNÉ 15 ", 1, 1},
             {[&] { l.Picture2_Click(); }, "", 0, 2}, // no upper limit
             {[&] { l.zlis_Click(1); }, "", 0, 2},    // an empty row: nothing
             {[&] { l.Picture1_Click(), l.Picture1_Click(), l.Picture1_Click(); }, "ZZ ABONNÉ 01 ",
              14, 0},
             {[&] { l.Picture2_Click(), l.toucc_Click(LitCli::touche_annuler); }, // one letter
              "Clients Divers ", 14, 0},
         }) {
        geste();
        EXPECT_EQ(l.zlis[1], QString::fromUtf8(premier));
        EXPECT_EQ(std::count_if(l.zlis.begin(), l.zlis.end(), [](auto& z) { return !z.isEmpty(); }),
                  pleins);
        EXPECT_EQ(page_liste, page);
        EXPECT_FALSE(l.fermee());
    }
    EXPECT_EQ(l.Text1, QStringLiteral("Z"));
    EXPECT_EQ(etat.texte_retour, QStringLiteral("AVANT"));

    // The page outlives the window, until the criterion changes.
    page_liste = 1;
    LitCli suivante;
    suivante.Form_Load();
    EXPECT_EQ(suivante.zlis[1], QStringLiteral("ZZ ABONNÉ 09 "));
}

TEST_F(Liste, CeQueRenvoieChaqueSortie) {
    const QString avant = QStringLiteral("AVANT"), blancs(85, QLatin1Char(' '));
    const QString dupont = retour(QStringLiteral("DUPONT Jean 69000 Lyon"), 2);
    const QString durand = retour(QStringLiteral("Durand Marie Paris"), 7);
    using G = std::function<void(LitCli&)>;
    const auto touches = [](std::initializer_list<int> t) {
        return G([t = std::vector<int>(t)](LitCli& l) {
            for (const int k : t)
                l.Text1_KeyDown(k);
        });
    };
    QStringList questions;
    // The criterion, a gesture, whether the prompt box says yes, then texte_retour and whether
    // the list closed.
    for (const auto& [critere, geste, oui, attendu, fermee] :
         std::vector<std::tuple<const char*, G, bool, QString, bool>>{
             {"DU", [](LitCli& l) { l.zlis_Click(2); }, false, durand, true},
             {"DU", touches({LitCli::entree}), false, dupont, true},
             {"DU",
              touches({LitCli::bas, LitCli::bas, LitCli::haut, LitCli::haut, LitCli::bas,
                       LitCli::entree}),
              false, durand, true},
             {"XYZ", touches({LitCli::entree}), false, avant, false}, // nothing selected
             {"DU", &LitCli::bt_ok_Click, false, dupont, true},
             {"", &LitCli::bt_ok_Click, false, avant, true},
             {"", &LitCli::Image1_Click, false, QString(), true},
             {"", touches({LitCli::echap}), false, blancs, true},
             {"", &LitCli::Picture3_Click, true, QStringLiteral("#CRE#"), true},
             {"", &LitCli::Picture3_Click, false, avant, false},
             {"LONGUE", [](LitCli& l) { l.zlis_Click(1); }, false,
              QStringLiteral("LONGUENOMDECLIENTQUIREMPLITTOUTELALARGEU 74000 "
                             "SAINT-JULIEN-DES-QUATRE-CHEMINS-N:23"),
              true},
         }) {
        ui::scenario<Mini97>([&, oui = oui](Mini97& b) {
            questions << b.Label1;
            b.btc_Click(oui ? 2 : 3);
        });
        etat.texte_retour = avant;
        LitCli l;
        l.Form_Load();
        if (*critere) l.Text1_Change(QString::fromLatin1(critere));
        geste(l);
        EXPECT_EQ(etat.texte_retour, attendu) << critere;
        EXPECT_EQ(l.fermee(), fermee) << critere;
    }
    // Asked by the new-client button only, both times.
    EXPECT_EQ(
        questions,
        QStringList(2, QStringLiteral("Confirmez la création d'une nouvelle fiche client ?")));
}
