// The on-screen keyboard: sequences of keys as an operator taps them, and the editor's two
// fields that open it on a touch screen.

#include "editor/detarv.h"
#include "input/clavv.h"
#include "support/support.h"

using namespace agenda;

using Clavier = agenda::test::DossierDonnees;

TEST_F(Clavier, SequencesDeTouches) {
    struct Cas {
        std::int32_t mode;
        const char* appel;
        std::vector<int> touches;
        const char* texte; // what the keys made, or the answer once closed
        int curseur, couche;
    } const cas[] = {
        {129, "Question ?|Bonjour", {}, "Bonjour", 7, 0},
        {129, "Tout est question", {}, "", 0, 0},
        {129, "?|", {39, 15}, "A", 1, 0},      // shift, then a
        {129, "?|", {39, 39}, "", 0, 0},       // shift twice: back, nothing typed
        {129, "?|", {26, 15, 16}, "AZ", 2, 1}, // caps lock stays
        {1129, "?|", {1, 2}, "12", 2, 1},      // a number opens on the digits
        {129, "?|", {56, 17, 56, 27}, "€ ", 2, 0},
        {129, "?|ab", {13, 54, 54, 13, 54, 55, 55, 55, 51}, "a", 1, 0},
        {129, "?|ab", {54, 15}, "aab", 2, 0}, // inserted, not overwritten
        {129, "?|ab", {14, 17}, "e", 1, 0},
        {129, "?|ab", {15, 38}, "aba", -1, 0},
        {129, "?|ab", {16, 14, 57}, "ab", -1, 0}, // cancel: the text as it was
    };
    for (const Cas& c : cas) {
        SCOPED_TRACE(c.appel);
        etat.mini_mode = c.mode;
        etat.mini_texte = QString::fromUtf8(c.appel);
        Clavv k;
        k.Form_Load();
        for (const int t : c.touches)
            k.ttoc_Click(t);
        if (k.fermee()) {
            EXPECT_EQ(etat.mini_texte, QString::fromUtf8(c.texte));
            continue;
        }
        EXPECT_EQ(k.Text1, QString::fromUtf8(c.texte));
        EXPECT_EQ(std::tuple(k.Text1_curseur, int(k.couche_clav)), std::tuple(c.curseur, c.couche));
    }
}

TEST_F(Clavier, LEditeurLOuvreSurEcranTactile) {
    // The SMS number opens the keyboard on the digits, with its question; the answer stays.
    QString appel;
    ui::scenario<Clavv>([&](Clavv& c) {
        appel = c.Label1 + QLatin1Char('|') + c.Text1 + QString::number(c.couche_clav);
        c.ttoc_Click(Clavv::efface);
        c.ttoc_Click(9);
        c.ttoc_Click(Clavv::valide);
    });
    Detarv d;
    d.Text2 = QStringLiteral(" 0612 ");
    d.Text2_Click(); // not a touch screen: nothing
    EXPECT_TRUE(appel.isEmpty());
    etat.clavier_ecran = 1;
    d.Text2_Click();
    EXPECT_EQ(appel, QStringLiteral("N° de portable valide ?|06121"));
    EXPECT_EQ(d.Text2, QStringLiteral("0619"));
}
