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
    void TearDown() override {
        ui::scenario<Mini97>({});
        DossierDonnees::TearDown();
    }
    static std::vector<std::int32_t> numeros(const LitCli& l) {
        std::vector<std::int32_t> n;
        for (const auto& e : l.List1)
            n.push_back(e.numero);
        return n;
    }
    // What the fourteen rows show, the empty ones as "-".
    static QString lignes(const LitCli& l) {
        QStringList r;
        for (int i = 1; i <= LitCli::lignes; ++i)
            r << (l.zlis[std::size_t(i)].isEmpty() ? QStringLiteral("-")
                                                   : l.zlis[std::size_t(i)].left(12));
        return r.join(QLatin1Char('|'));
    }
    static QString retour(const QString& texte, int numero) {
        return texte.leftJustified(80, QLatin1Char(' '), true) + QLatin1Char(':') +
               QString::number(numero);
    }
};

} // namespace

TEST_F(Liste, LeCritereGardeNomEtVilleSansPliageDAccents) {
    const std::vector<std::int32_t> zzs = {8,  9,  10, 11, 12, 13, 14, 15,
                                           16, 17, 18, 19, 20, 21, 22};
    std::vector<std::int32_t> tous = {1, 2, 7, 6, 23, 3};
    tous.insert(tous.end(), zzs.begin(), zzs.end());
    for (const auto& [critere, attendus] :
         std::vector<std::pair<QString, std::vector<std::int32_t>>>{
             {{}, tous},
             {QStringLiteral("d"), tous},       // one letter filters nothing
             {QStringLiteral("du"), {2, 7, 3}}, // Dunkerque is a town
             {QStringLiteral(" D"), {1, 3}},    // not trimmed: "Clients Divers", "59140 Dunkerque"
             {QStringLiteral("LYON"), {2}},
             {QStringLiteral("élo"), {6}},
             {QStringLiteral("ELO"), {}}, // É is not E
             {QStringLiteral("(NUL"), {}},
             {QStringLiteral("PARIS"), {7, 6}}, // not the voided client, nor the blank name
             {QStringLiteral("XYZ"), {}},
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
    const QString vide = QStringLiteral("-|-|-|-|-|-|-|-|-|-|-|-|-");
    LitCli l;
    l.Form_Load();
    // Each gesture, then the rows it leaves and the page.
    for (const auto& [geste, rangs, page] :
         std::vector<std::tuple<std::function<void()>, QString, int>>{
             {[&] { l.toucc_Click(LitCli::touche_annuler); }, // nothing to take back
              QStringLiteral("Clients Dive|DUPONT Jean |Durand Marie|ÉLODIE Berna|LONGUENOMDEC|"
                             "MARTIN Paul |ZZ ABONNÉ 01|ZZ ABONNÉ 02|ZZ ABONNÉ 03|ZZ ABONNÉ 04|"
                             "ZZ ABONNÉ 05|ZZ ABONNÉ 06|ZZ ABONNÉ 07|ZZ ABONNÉ 08"),
              0},
             {[&] { l.toucc_Click(26), l.toucc_Click(26); },
              QStringLiteral("ZZ ABONNÉ 01|ZZ ABONNÉ 02|ZZ ABONNÉ 03|ZZ ABONNÉ 04|ZZ ABONNÉ 05|"
                             "ZZ ABONNÉ 06|ZZ ABONNÉ 07|ZZ ABONNÉ 08|ZZ ABONNÉ 09|ZZ ABONNÉ 10|"
                             "ZZ ABONNÉ 11|ZZ ABONNÉ 12|ZZ ABONNÉ 13|ZZ ABONNÉ 14"),
              0},
             {[&] { l.Picture2_Click(); }, QStringLiteral("ZZ ABONNÉ 15|") + vide, 1},
             {[&] { l.Picture2_Click(); }, QStringLiteral("-|") + vide, 2}, // no upper limit
             {[&] { l.zlis_Click(1); }, QStringLiteral("-|") + vide, 2},    // an empty row
             {[&] { l.Picture1_Click(), l.Picture1_Click(), l.Picture1_Click(); },
              QStringLiteral("ZZ ABONNÉ 01|ZZ ABONNÉ 02|ZZ ABONNÉ 03|ZZ ABONNÉ 04|ZZ ABONNÉ 05|"
                             "ZZ ABONNÉ 06|ZZ ABONNÉ 07|ZZ ABONNÉ 08|ZZ ABONNÉ 09|ZZ ABONNÉ 10|"
                             "ZZ ABONNÉ 11|ZZ ABONNÉ 12|ZZ ABONNÉ 13|ZZ ABONNÉ 14"),
              0},
             {[&] { l.Picture2_Click(), l.toucc_Click(LitCli::touche_annuler); }, // one letter
              QStringLiteral("Clients Dive|DUPONT Jean |Durand Marie|ÉLODIE Berna|LONGUENOMDEC|"
                             "MARTIN Paul |ZZ ABONNÉ 01|ZZ ABONNÉ 02|ZZ ABONNÉ 03|ZZ ABONNÉ 04|"
                             "ZZ ABONNÉ 05|ZZ ABONNÉ 06|ZZ ABONNÉ 07|ZZ ABONNÉ 08"),
              0},
         }) {
        geste();
        EXPECT_EQ(lignes(l), rangs);
        EXPECT_EQ(page_liste, page);
        EXPECT_FALSE(l.fermee());
    }
    EXPECT_EQ(l.Text1, QStringLiteral("Z"));
    EXPECT_EQ(etat.texte_retour, QStringLiteral("AVANT"));

    // The page outlives the window, until the criterion changes.
    page_liste = 1;
    LitCli suivante;
    suivante.Form_Load();
    EXPECT_EQ(lignes(suivante).left(26), QStringLiteral("ZZ ABONNÉ 09|ZZ ABONNÉ 10|"));
}

TEST_F(Liste, CeQueRenvoieChaqueSortie) {
    const QString avant = QStringLiteral("AVANT");
    const QString dupont = retour(QStringLiteral("DUPONT Jean 69000 Lyon"), 2);
    const QString durand = retour(QStringLiteral("Durand Marie Paris"), 7);
    const auto du = [](LitCli& l) { l.Text1_Change(QStringLiteral("DU")); };
    // A gesture, whether the prompt box says yes, then texte_retour and whether the list closed.
    for (const auto& [nom, geste, oui, attendu, fermee] :
         std::vector<std::tuple<const char*, std::function<void(LitCli&)>, bool, QString, bool>>{
             {"une ligne", [&](LitCli& l) { du(l), l.zlis_Click(2); }, false, durand, true},
             {"Entrée", [&](LitCli& l) { du(l), l.Text1_KeyDown(LitCli::entree); }, false, dupont,
              true},
             {"bas, bas, haut, Entrée",
              [&](LitCli& l) {
                  du(l);
                  for (const int t : {LitCli::bas, LitCli::bas, LitCli::bas, LitCli::haut,
                                      LitCli::haut, LitCli::haut, LitCli::bas, LitCli::entree})
                      l.Text1_KeyDown(t);
              },
              false, durand, true},
             {"Entrée sans résultat",
              [](LitCli& l) {
                  l.Text1_Change(QStringLiteral("XYZ"));
                  l.Text1_KeyDown(LitCli::entree);
              },
              false, avant, false},
             {"bt_ok", [&](LitCli& l) { du(l), l.bt_ok_Click(); }, false, dupont, true},
             {"bt_ok sans sélection", [](LitCli& l) { l.bt_ok_Click(); }, false, avant, true},
             {"Image1", [](LitCli& l) { l.Image1_Click(); }, false, QString(), true},
             {"Échap", [](LitCli& l) { l.Text1_KeyDown(LitCli::echap); }, false,
              QString(85, QLatin1Char(' ')), true},
             {"fermeture", [](LitCli& l) { l.sortie(); }, false, QString(85, QLatin1Char(' ')),
              true},
             {"nouveau client, oui", [](LitCli& l) { l.Picture3_Click(); }, true,
              QStringLiteral("#CRE#"), true},
             {"nouveau client, non", [](LitCli& l) { l.Picture3_Click(); }, false, avant, false},
             {"nom long",
              [](LitCli& l) {
                  l.Text1_Change(QStringLiteral("LONGUE"));
                  l.zlis_Click(1);
              },
              false,
              QStringLiteral("LONGUENOMDECLIENTQUIREMPLITTOUTELALARGEU 74000 "
                             "SAINT-JULIEN-DES-QUATRE-CHEMINS-N:23"),
              true},
         }) {
        QStringList questions;
        ui::scenario<Mini97>([&, oui = oui](Mini97& b) {
            questions << b.Label1;
            b.btc_Click(oui ? 2 : 3);
        });
        etat.texte_retour = avant;
        LitCli l;
        l.Form_Load();
        geste(l);
        EXPECT_EQ(etat.texte_retour, attendu) << nom;
        EXPECT_EQ(l.fermee(), fermee) << nom;
        if (QByteArray(nom).startsWith("nouveau")) {
            EXPECT_EQ(questions, QStringList{QStringLiteral(
                                     "Confirmez la création d'une nouvelle fiche client ?")});
        }
    }
}

TEST_F(Liste, LeFichierNeufRecoitClientsDivers) {
    QFile::remove(chemin(QStringLiteral("W_CAI038.WDO")));
    LitCli l;
    l.Form_Load();
    ASSERT_EQ(l.List2.size(), 1u);
    EXPECT_EQ(l.List2[0].texte + QString::number(l.List2[0].numero),
              QStringLiteral("Clients Divers 1"));
}

TEST_F(Liste, LesRangsEtLesTouchesALeurPlace) {
    // Rows begin 620 twips apart; keys stand in rows of three, each 200 twips lower than the one
    // to its left, rows 1100 twips apart; a caption 120 twips under the top of its key.
    for (const auto& [i, x, y] : {std::tuple{1, 11800, 330},
                                  {2, 12900, 530},
                                  {3, 14000, 730},
                                  {4, 11800, 1430},
                                  {26, 12900, 9330},
                                  {27, 14000, 9530}}) {
        EXPECT_EQ(std::pair(LitCli::touche(i).left, LitCli::touche(i).top), std::pair(x, y)) << i;
        EXPECT_EQ(LitCli::toucc_rect(i).top, y + 120) << i;
    }
    EXPECT_EQ(LitCli::toucc(1) + LitCli::toucc(26) + LitCli::toucc(27),
              QStringLiteral("AZAnnuler la dernière lettre"));
    for (const auto& [i, top] : {std::pair{1, 620}, {14, 8680}}) {
        EXPECT_EQ(
            std::tuple(LitCli::lisbar(i).left, LitCli::lisbar(i).top, LitCli::lisbar(i).width),
            std::tuple(330, top, 11000));
        EXPECT_EQ(std::pair(LitCli::zlis_rect(i).left, LitCli::zlis_rect(i).top),
                  std::pair(380, top));
    }
}
