// The SMS queue as the sending module reads it: records against hand-laid bytes, reminders built
// from the settings, the first use of the settings file, the cancelling and the manager.

#include "data/formats.h"
#include "editor/detarv.h"
#include "editor/inter.h"
#include "input/mini_97.h"
#include "sms/sms.h"
#include "sms/verifsmss.h"
#include "support/support.h"

#include <QDir>

using namespace agenda;
using agenda::test::Gabarit;

namespace {

// The sending module, written apart from the program: one queue record, by the layout.
struct Envoi {
    QByteArray date, tel, ref, minute, affiche, message;
    std::int32_t etat;
    bool annule;
    explicit Envoi(const QByteArray& r)
        : date(r.mid(0, 12)), tel(r.mid(19, 15)), ref(r.mid(49, 20)), minute(r.mid(69, 5)),
          affiche(r.mid(79, 18)), message(r.mid(99, 150).trimmed()),
          etat(r.size() < 508 ? 0 : std::int32_t(quint8(r[506]) | quint8(r[507]) << 8)),
          annule(r.startsWith("**")) {}
};

class Sms : public agenda::test::Livre {
protected:
    void SetUp() override {
        Livre::SetUp();
        QDir(dossier_.path()).mkdir(QStringLiteral("vigi_sms"));
        fixe_dossier_sms(chemin(QStringLiteral("vigi_sms/")));
        ui::scenario<Verifsmss>([this](Verifsmss& v) { gestionnaires << int(v.g1.size()); });
        ui::scenario<Mini97>([](Mini97& b) { b.btc_Click(2); });
    }
    QByteArray file() const { return contenu(QStringLiteral("vigi_sms/wmesanev.wdo")); }
    std::vector<Envoi> envois() const {
        std::vector<Envoi> e;
        for (qsizetype r = 512; r + 512 <= file().size(); r += 512)
            e.emplace_back(file().mid(r, 512));
        return e;
    }
    // Reminders on, `minutes` before, the day before or not; the model in slots 1101-1110.
    void reglages(const char* rappel, const QString& modele) {
        ouvre_sms();
        RecTxt20 r;
        r.pose(RecTxt20::texte, QString::fromLatin1(rappel));
        ecrit_record(canal::sms_init, slot_sms::rappel, r);
        for (int i = 0; i < slot_sms::pieces_modele; ++i) {
            r.pose(RecTxt20::texte, modele.mid(i * 20, 20));
            ecrit_record(canal::sms_init, slot_sms::modele + i, r);
        }
    }
    QList<int> gestionnaires; // the manager's rows at each opening
};

} // namespace

TEST_F(Sms, LeRecordDeLaFileOctetParOctet) {
    ajoute_sms(QStringLiteral("202603031000      0612"));
    EXPECT_EQ(file(), Gabarit(512).zeros(502, 8).i32(502, 1).octets() +
                          Gabarit(512)
                              .texte(0, 502, "202603031000      0612")
                              .zeros(502, 8)
                              .texte(510, 2, "\r\n")
                              .octets());
}

TEST_F(Sms, PremiereOuvertureSeconde) {
    ouvre_sms();
    EXPECT_TRUE(etat.sms_actif);
    const QByteArray reglages = contenu(QStringLiteral("vigi_sms/winit20v.wdo"));
    EXPECT_EQ(reglages.size(), 2001 * 20);
    EXPECT_EQ(reglages.left(20) + reglages.mid(80, 20),
              QByteArray("#INIT#03-03-2004    60                  "));
    // "#INIT#" is all that is looked at: a second opening writes nothing.
    RecTxt20 r;
    r.pose(RecTxt20::texte, u"#INIT#autre chose");
    ecrit_record(canal::sms_init, 1, r);
    const QByteArray avant = contenu(QStringLiteral("vigi_sms/winit20v.wdo"));
    ouvre_sms();
    EXPECT_EQ(contenu(QStringLiteral("vigi_sms/winit20v.wdo")), avant);
    // Without the folder SMS is off, silently, and no file is made anywhere.
    fixe_dossier_sms(chemin(QStringLiteral("absent/")));
    const QStringList fichiers = QDir(dossier_.path()).entryList(QDir::Files);
    ouvre_sms();
    EXPECT_FALSE(etat.sms_actif);
    EXPECT_EQ(QDir(dossier_.path()).entryList(QDir::Files), fichiers);
}

TEST_F(Sms, HeureEtJourDEnvoiEtModele) {
    struct Cas {
        int jour;
        const char *heure, *minute, *reglage, *decalages, *modele;
        const char *date, *minute_envoi, *affiche, *message;
    } const cas[] = {
        {3, "09", "15", "1   0    30", "", "RDV #HEU# le #DAT# #HEU#", "200403030845", "525  ",
         "03/03/2004   08:45", "RDV 09:15 le 03-03-2004 #HEU#"},
        // Once only: 90 minutes before 09:00 leaves the minute negative, cut by the field.
        {3, "09", "00", "1   0    90", "", "", "2004030308-3", "450  ", "03/03/2004   08:-3", ""},
        // The day before Monday the 1st is a Sunday, which takes the cell at position 3.
        {1, "10", "00", "1   1    0", "9 -1", "", "200402281000", "600  ", "28/02/2004   10:00",
         ""},
    };
    for (const Cas& c : cas) {
        const Rappel r{QStringLiteral("06 12"), QStringLiteral("0612      0403031000"),
                       ui::date_de(QDate(2004, 3, c.jour)), QString::fromLatin1(c.heure),
                       QString::fromLatin1(c.minute)};
        const Envoi e(message_rappel(r, QString::fromLatin1(c.reglage),
                                     QString::fromLatin1(c.modele),
                                     QString::fromLatin1(c.decalages))
                          .toLatin1());
        EXPECT_EQ(std::tuple(e.date, e.minute, e.affiche, e.message, e.tel, e.ref),
                  std::tuple(QByteArray(c.date), QByteArray(c.minute_envoi), QByteArray(c.affiche),
                             QByteArray(c.message), QByteArray("06 12          "),
                             QByteArray("0612      0403031000")));
    }
    const Envoi long_(
        message_rappel({}, QStringLiteral("1"), QString(200, QLatin1Char('x')), {}).toLatin1());
    EXPECT_EQ(long_.message, QByteArray(150, 'x'));
}

TEST_F(Sms, LEditeurMetEnFileEtAnnuleAvecLeRendezVous) {
    ecrit_inter(QStringLiteral("TORVA:NUMUSER"), QStringLiteral("0001 Sophie"));
    const auto sauve = [](const char* minute) {
        Detarv d;
        d.Form_Load();
        d.Text1 = QStringLiteral("Coupe");
        d.Text2 = QStringLiteral("0612345678");
        d.Combo1 = QStringLiteral("10");
        d.Combo2 = QString::fromLatin1(minute);
        d.sauve_rv();
        etat.num_rv = 1;
    };
    // Without the folder: nothing queued, no manager, no file.
    fixe_dossier_sms(chemin(QStringLiteral("absent/")));
    charge();
    sauve("00");
    EXPECT_TRUE(gestionnaires.isEmpty());
    EXPECT_FALSE(QDir(chemin(QStringLiteral("absent"))).exists());
    fixe_dossier_sms(chemin(QStringLiteral("vigi_sms/")));
    charge();
    reglages("1   0    30", QStringLiteral("Bonjour, RDV a #HEU#"));
    // Two saves of one appointment, then a third at another hour: three messages, the manager
    // after each.
    for (const char* minute : {"00", "00", "30"})
        sauve(minute);
    EXPECT_EQ(gestionnaires, (QList<int>{1, 2, 3}));
    ASSERT_EQ(envois().size(), 3u);
    EXPECT_EQ(envois()[0].message, QByteArray("Bonjour, RDV a 10:00"));
    // The delete cancels the entries of the reference it loaded, and leaves etat_sms.
    etat.num_rv = 1;
    Detarv d;
    d.Form_Load();
    d.bt_annul_Click();
    const auto e = envois();
    EXPECT_EQ(std::tuple(e[0].annule, e[1].annule, e[2].annule), std::tuple(false, false, true));
    EXPECT_EQ(e[2].etat, 0);
    EXPECT_EQ(file().mid(3 * 512 + 2, 500), QByteArray(500, ' '));
}

TEST_F(Sms, LeGestionnaireFiltreTrieMarqueEtApplique) {
    ouvre_sms();
    for (const auto& [envoi, affiche, tel] :
         {std::tuple("202603041000", "04/03/2026   10:00", "0612345678"),
          {"202603040900", "04/03/2026   09:00", "0612345678"},
          {"202603041000", "04/03/2026   10:00", "0612345678"},
          {"202603040800", "04/03/2026   08:00", "0699999999"}})
        ajoute_sms(QString::fromLatin1(envoi).leftJustified(19) +
                   QString::fromLatin1(tel).leftJustified(60) + QString::fromLatin1(affiche));
    ref_sms_nouvelle = QStringLiteral("06123456780403041000");
    Verifsmss v;
    v.Form_Load();
    ASSERT_EQ(v.g1.size(), 3u);
    EXPECT_EQ(std::tuple(v.g1[0].numero, v.g1[1].numero, v.g1[2].numero), std::tuple(2, 1, 3));
    EXPECT_EQ(std::tuple(v.g1[0].marque_annul, v.g1[1].marque_annul, v.g1[2].marque_annul),
              std::tuple(false, false, true));
    v.g1_DblClick(0, 0); // the header
    v.g1_DblClick(4, 0); // below the messages
    v.g1_DblClick(1, 0);
    ui::scenario<Mini97>([](Mini97& b) {
        b.Text1_Change(QStringLiteral("Nouveau"));
        b.btc_Click(2);
    });
    v.g1_DblClick(2, 3);
    v.Image1_Click();
    const auto e = envois();
    EXPECT_EQ(std::tuple(e[0].annule, e[1].annule, e[2].annule, e[3].annule),
              std::tuple(false, true, true, false));
    EXPECT_EQ(std::tuple(e[0].etat, e[1].etat, e[2].etat), std::tuple(0, 3, 3));
    EXPECT_EQ(std::tuple(e[0].message, e[0].date),
              std::tuple(QByteArray("Nouveau"), QByteArray("202603041000")));
}
