// The settings window: what each setting stores, with and without the SMS module, the voiding
// of a stray record, and the book that gives its place and comes back with the new hours.

#include "data/fichier_records.h"
#include "data/formats.h"
#include "data/param.h"
#include "editor/inter.h"
#include "input/mini_97.h"
#include "settings/toroutils.h"
#include "sms/sms.h"
#include "support/support.h"
#include "ui/systeme.h"

#include <QDir>

using namespace agenda;

namespace {

class Reglages : public agenda::test::Livre {
protected:
    void SetUp() override {
        Livre::SetUp();
        ui::fixe_saisie([this](const QString&, const QString&, const QString&) { return reponse; });
        ui::scenario<Mini97>([](Mini97& b) { b.btc_Click(2); });
    }
    void avec_sms() {
        QDir(dossier_.path()).mkdir(QStringLiteral("vigi_sms"));
        fixe_dossier_sms(chemin(QStringLiteral("vigi_sms/")));
    }
    QByteArray emplacements(int premier, int n) const {
        return contenu(QStringLiteral("vigi_sms/winit20v.wdo")).mid((premier - 1) * 20, n * 20);
    }
    // The value field of the parameter store's record for a key, as the file holds it.
    QByteArray valeur_brute(const char* cle) const {
        const QByteArray store = contenu(QStringLiteral("WTORV_IA.WDO"));
        for (qsizetype r = 0; r + 144 <= store.size(); r += 144)
            if (store.mid(r + 118, 25) == QByteArray(cle).leftJustified(25))
                return store.mid(r, 106);
        return {};
    }
    QString reponse;
};

} // namespace

TEST_F(Reglages, CeQueChaqueReglageEnregistre) {
    avec_sms();
    charge();
    Toroutils r;
    r.Form_Load();
    r.Combo1 = {QStringLiteral("08 heure"), QStringLiteral("24 heure"), QStringLiteral("18 heure")};
    r.Combo2 = QStringLiteral("30");
    r.Image1_Click(3);
    r.Picture1_MouseDown(255);
    r.Picture2_MouseDown(0x00FF00);
    reponse = QStringLiteral("-2");
    r.g1_DblClick(1, 1); // Lundi
    reponse.clear();
    r.g1_DblClick(1, 3); // cancelled: 0
    r.Check1 = 1;
    r.Combo3_index = 2;
    r.Text1 = QStringLiteral("45");
    r.Text2_Change(QString(75, QLatin1Char('a')) + QString(75, QLatin1Char('b')) +
                   QLatin1String("c"));
    EXPECT_EQ(r.Label7, QStringLiteral("150"));
    r.command1_Click();
    EXPECT_TRUE(r.fermee());
    EXPECT_EQ(valeur_brute("TORVA:HEURE"), QByteArray("08:12:18:30").leftJustified(106));
    EXPECT_EQ(valeur_brute("TORVA:HORL"),
              QByteArray("3    |H|255          +|M|65280").leftJustified(106));
    EXPECT_EQ(valeur_brute("DCA:JOUR:PLA"), QByteArray("0 -20 0 0 0 0").leftJustified(106));
    EXPECT_EQ(emplacements(1100, 1), QByteArray("1   2    45").leftJustified(20));
    EXPECT_EQ(emplacements(1101, 10),
              QByteArray(75, 'a') + QByteArray(75, 'b') + QByteArray(50, ' '));

    // Read back as they were saved.
    Toroutils relu;
    relu.Form_Load();
    EXPECT_EQ(std::tuple(relu.Combo1[1], relu.Label4, relu.aiguilh, relu.g1[1][1], relu.Check1,
                         relu.Combo3_index, relu.Text1, relu.Text2.size()),
              std::tuple(QStringLiteral("12 heure"), QStringLiteral("3"), 255, QStringLiteral("-2"),
                         1, 2, QStringLiteral("45"), qsizetype(150)));
    EXPECT_EQ(relu.Shape2_rect.left, Toroutils::Image1_rect(3).left - 120);
}

TEST_F(Reglages, SansModuleSmsEtSansHeures) {
    // A blank "TORVA:HEURE" is stored without a standard duration; without the SMS folder the
    // reminder settings keep their defaults and nothing of SMS is written.
    Toroutils r;
    r.Form_Load();
    EXPECT_EQ(valeur_brute("TORVA:HEURE"), QByteArray("07:12:19:").leftJustified(106));
    EXPECT_EQ(std::tuple(r.Combo2, r.Check1, r.Text1, r.Label5),
              std::tuple(QString(), 0, QStringLiteral("0"), QStringLiteral("128")));
    r.Check1 = 1;
    r.command1_Click();
    EXPECT_FALSE(QDir(chemin(QStringLiteral("sans_sms"))).exists());
    QString adresse;
    ui::fixe_lanceur([&](const QString& a) {
        adresse = a;
        return true;
    });
    r.Image2_Click();
    EXPECT_TRUE(adresse.endsWith(QLatin1String("/Vigi_sms/aide_cai_00001.htm")));
}

TEST_F(Reglages, AnnulerUnRendezVousEgare) {
    ecrit_inter(QStringLiteral("TORVA:NUMUSER"), QStringLiteral("0001 Sophie"));
    charge();
    ecrit(QStringLiteral("tf_r0001.wdo"),
          agenda::test::rv_entete(3) + agenda::test::rv("040310:09H00:10H00", "Tard") +
              agenda::test::rv("", "Sans date") + agenda::test::rv("----------", "Efface"));
    Toroutils r;
    r.Image3_Click();
    ASSERT_EQ(r.List1.size(), 2u); // the blank key first, by text
    EXPECT_EQ(std::tuple(r.List1[0].numero, r.List1[1].numero), std::tuple(2, 1));
    r.List1_DblClick(0);
    EXPECT_EQ(contenu(QStringLiteral("tf_r0001.wdo")).mid(2 * 512, 20), QByteArray(20, '-'));
    EXPECT_EQ(r.List1.size(), 1u);
}

TEST_F(Reglages, LeLivreCedeSaPlaceEtRevientAvecLesNouvellesHeures) {
    charge();
    QList<bool> cache;
    QObject::connect(livre.get(), &Torva1::cache, [&](bool oui) { cache << oui; });
    ui::scenario<Toroutils>([](Toroutils& r) {
        r.Combo1 = {QStringLiteral("09 heure"), QStringLiteral("13 heure"),
                    QStringLiteral("18 heure")};
        r.Combo2 = QStringLiteral("045");
        r.command1_Click();
    });
    livre->bt_out_Click();
    EXPECT_EQ(cache, (QList<bool>{true, false}));
    EXPECT_EQ(std::tuple(etat.heure_debut, etat.heure_rupture, etat.heure_fin, etat.duree_defaut),
              std::tuple(std::int16_t(9), std::int16_t(13), std::int16_t(18), std::int16_t(45)));
}
