// The week's strips and note, and the year's twelve grids: dates, twips, the note file's bytes
// and the clicks that lead back to a day.

#include "data/param.h"
#include "editor/ch_coul.h"
#include "editor/saisnote.h"
#include "input/mini_97.h"
#include "support/support.h"
#include "ui/dates.h"
#include "ui/erreur.h"

using namespace agenda;

namespace {

Date jour(int a, int m, int j) {
    return ui::date_de(QDate(a, m, j));
}

class Semaine : public agenda::test::Livre {
protected:
    void SetUp() override {
        Livre::SetUp();
        charge();
    }
    void montre_semaine(Date d) {
        etat.date_courante = d;
        livre->ongletd_Click(1);
    }
    // The note written through the window, as an operator would.
    void ecrit_note(const QString& texte, std::int32_t fond, std::int32_t encre) {
        ui::scenario<Saisnote>([&](Saisnote& f) {
            f.Text1 = texte;
            f.Picture1_MouseDown(fond);
            f.Picture2_MouseDown(encre);
            f.bt_ok_Click();
        });
        livre->Text3_Click();
    }
    static QByteArray note(const char* cle, const char* texte, std::int32_t fond,
                           std::int32_t encre) {
        return agenda::test::rv_vierge()
            .texte({{0, 20, cle}, {20, 402, texte}, {510, 2, "\r\n"}})
            .i32({{446, fond}, {450, encre}})
            .octets();
    }
};

TEST_F(Semaine, LaSemaineVaDuLundiAuDimanche) {
    // From any day, the Monday of its week; Sunday closes the week that began six days before.
    const std::tuple<Date, Date, Date, QString> cas[] = {
        {jour(2004, 12, 30), jour(2004, 12, 27), jour(2005, 1, 2),
         QStringLiteral("Lundi 27 décembre 2004")},
        {jour(2005, 1, 2), jour(2004, 12, 27), jour(2005, 1, 2), {}},
        {jour(2004, 3, 1), jour(2004, 3, 1), jour(2004, 3, 7),
         QStringLiteral("Lundi 01 mars 2004")},
        {jour(2004, 2, 29) + 0.75, jour(2004, 2, 23), jour(2004, 2, 29), {}},
    };
    for (const auto& [depart, lundi, dimanche, titre] : cas) {
        montre_semaine(depart);
        EXPECT_EQ(ui::jour_de(etat.date_courante), ui::jour_de(lundi));
        EXPECT_EQ(ui::jour_de(livre->semaine_dates[0]), ui::jour_de(lundi));
        EXPECT_EQ(ui::jour_de(livre->semaine_dates[6]), ui::jour_de(dimanche));
        EXPECT_EQ(livre->semaine_dates[7], 0);
        if (!titre.isEmpty()) {
            EXPECT_EQ(livre->njours[0], titre);
        }
        EXPECT_EQ(livre->vue_visible, 1);
    }
}

TEST_F(Semaine, BandesAuxTwipsDesHeuresDeLaBoutique) {
    // The shop's hours, an appointment of the Wednesday, and where the strips put it.
    struct Cas {
        const char* heures;
        const char* cle;
        std::int16_t hauteur_heure, origine;
        std::array<int, 4> etiquette; // left, top, width, height
    };
    const Cas cas[] = {
        {"07:12:19:020", "040303:09H30:10H15", 175, 150 - 7 * 175, {845, 588, 5210, 131}},
        {"08:12:15:020", "040303:09H30:10H15", 300, 150 - 8 * 300, {845, 600, 5210, 225}},
        {"10:13:16:030", "040303:12H00:13H00", 350, 150 - 10 * 350, {845, 850, 5210, 350}},
    };
    for (const Cas& c : cas) {
        ecrit_param(QStringLiteral("TORVA:HEURE"), QString::fromLatin1(c.heures));
        rendez_vous(QStringLiteral("tf_r0000.wdo"), {"040302:09H00:10H00", c.cle});
        charge();
        montre_semaine(jour(2004, 3, 3));
        const auto& t = livre->table_pages;
        EXPECT_EQ((std::array{t[4], t[5], t[6], t[7], t[11], t[8]}),
                  (std::array<std::int16_t, 6>{150, 2100, 800, 5300, c.hauteur_heure, c.origine}))
            << c.heures;
        ASSERT_EQ(livre->lrvs[2].size(), 1u) << c.heures;
        const EtiquetteRv& e = livre->lrvs[2].at(1);
        EXPECT_EQ((std::array{e.left, e.top, e.width, e.height}), c.etiquette) << c.heures;
        EXPECT_EQ(e.legende + QString::number(e.couleur),
                  QStringLiteral("Coupe") + QString::number(0x101011));
        EXPECT_EQ(livre->lrvs[1].size() + livre->lrvs[3].size() + livre->lrvs[6].size(), 1u);

        // Each hour a grey line the ruling's width, its number right-aligned at 700, 50 above.
        const ui::Surface& s = livre->pages[4];
        ASSERT_EQ(s.traits().size(), std::size_t(etat.heure_fin - etat.heure_debut));
        const ui::Surface::Trait& h = s.traits()[1];
        EXPECT_EQ((std::array{h.x1, h.y1, h.x2, h.y2, h.couleur}),
                  (std::array{800, 150 + c.hauteur_heure, 6100, 150 + c.hauteur_heure, 0xC0C0C0}));
        const ui::Surface::Texte& n = s.textes()[1];
        EXPECT_EQ(n.texte, QString::number(etat.heure_debut + 1));
        EXPECT_EQ(n.x + s.largeur_texte(n.texte), 700);
        EXPECT_EQ(n.y, 100 + c.hauteur_heure);
    }
    // A day without hours ends the program, whatever trap stands around the week.
    ecrit_param(QStringLiteral("TORVA:HEURE"), QStringLiteral("09:12:09:020"));
    charge();
    EXPECT_THROW(montre_semaine(jour(2004, 3, 3)), Erreur);
}

TEST_F(Semaine, UnClicSurUneBandeOuneEtiquetteOuvreLeJour) {
    rendez_vous(QStringLiteral("tf_r0000.wdo"), {"040305:09H00:10H00"});
    for (const auto& clic : std::vector<std::function<void()>>{[&] { livre->pages_Click(4); },
                                                               [&] { livre->lrvs_Click(4, 1); }}) {
        montre_semaine(jour(2004, 3, 3));
        clic();
        EXPECT_EQ(ui::jour_de(etat.date_courante), QDate(2004, 3, 5));
        EXPECT_EQ(livre->vue_visible, 0);
        EXPECT_EQ(livre->lrv.size(), 1u);
        EXPECT_TRUE(livre->ongletg_visible[1]); // the tabs as they stood
    }
    // The template label is no label on show; the week arrows step by seven days.
    montre_semaine(jour(2004, 3, 3));
    livre->lrvs_Click(4, 0);
    EXPECT_EQ(livre->vue_visible, 1);
    livre->Picture5_Click();
    EXPECT_EQ(ui::jour_de(livre->semaine_dates[0]), QDate(2004, 3, 8));
    livre->picture4_Click();
    livre->picture4_Click();
    EXPECT_EQ(ui::jour_de(livre->semaine_dates[6]), QDate(2004, 2, 29));
}

TEST_F(Semaine, LaNoteDeLaSemaineDansLeFichierDesNotes) {
    const QString fichier = QStringLiteral("tf_a0000.wdo");
    // No note and nothing written: the file is opened, no record appears.
    montre_semaine(jour(2004, 3, 4));
    ecrit_note(QStringLiteral("   "), 0xFFFFFF, 0);
    EXPECT_EQ(contenu(fichier), QByteArray());
    EXPECT_TRUE(livre->Text3.isEmpty());

    // A new note: the header's count, then the record in one piece; the window opened by Text3.
    ui::scenario<Saisnote>([&](Saisnote& f) {
        EXPECT_EQ((std::array{f.left, f.top, f.Text1_fond}),
                  (std::array{420 + 7910, 8550 - 1370, 0xC0FFFF}));
        f.Text1 = QStringLiteral("  Fermé l'après-midi\r\nInventaire ");
        f.Picture1_MouseDown(0xC0C0FF);
        f.Picture2_MouseDown(0);
        f.bt_ok_Click();
    });
    livre->Text3_Click();
    const QByteArray premiere =
        note("SE:040301", "Ferm\xe9 l'apr\xe8s-midi\r\nInventaire", 0xC0C0FF, 0);
    EXPECT_EQ(contenu(fichier), agenda::test::rv_entete(1) + premiere);
    EXPECT_EQ(livre->Text3 + QString::number(livre->Text3_fond),
              QStringLiteral("Fermé l'après-midi\r\nInventaire") + QString::number(0xC0C0FF));
    EXPECT_EQ(etat.num_note, 0);

    // Any day of the week finds it, the Sunday too; the next week has none.
    montre_semaine(jour(2004, 3, 7));
    EXPECT_EQ(livre->Text3, QStringLiteral("Fermé l'après-midi\r\nInventaire"));
    montre_semaine(jour(2004, 3, 8));
    EXPECT_TRUE(livre->Text3.isEmpty());

    // Changed: only the text and the colours; the bytes the window does not know stay.
    QByteArray octets = contenu(fichier);
    octets.replace(512 + 470, 20, QByteArray("caisse:1234").leftJustified(20, ' '));
    ecrit(fichier, octets);
    montre_semaine(jour(2004, 3, 2));
    ui::scenario<Saisnote>([&](Saisnote& f) {
        EXPECT_EQ(f.Text1 + QString::number(f.Text1_fond) + QString::number(etat.num_note),
                  QStringLiteral("Fermé l'après-midi\r\nInventaire") + QString::number(0xC0C0FF) +
                      QStringLiteral("1"));
        f.Text1 = QStringLiteral("Ouvert");
        f.Picture2_MouseDown(0x800000);
        f.bt_ok_Click();
    });
    livre->Text3_Click();
    EXPECT_EQ(contenu(fichier),
              agenda::test::rv_entete(1) +
                  note("SE:040301", "Ouvert", 0xC0C0FF, 0x800000).replace(470, 11, "caisse:1234"));
    EXPECT_EQ(livre->Text3_encre, 0x800000);

    // Cancelled: "no" keeps the window open; "yes" empties the text, and the record stays,
    // blank, found again later; the book shows it empty in its own colours.
    int questions = 0;
    ui::scenario<Mini97>([&](Mini97& q) {
        EXPECT_EQ(q.Label1, QStringLiteral("Confirmez l'annulation de cette note ?"));
        q.btc_Click(++questions == 1 ? 3 : 2);
    });
    ui::scenario<Saisnote>([&](Saisnote& f) {
        f.bt_annul_Click();
        EXPECT_FALSE(f.fermee());
        f.bt_annul_Click();
        EXPECT_TRUE(f.fermee());
    });
    livre->Text3_Click();
    EXPECT_EQ(contenu(fichier).mid(512 + 20, 402), QByteArray(402, ' '));
    EXPECT_EQ(contenu(fichier).size(), 1024);
    EXPECT_EQ(livre->Text3 + QString::number(livre->Text3_fond),
              QString::number(Torva1::Text3_fond_dessin));

    // Another week's note goes after it. (A hostile count in the header is the appointment
    // files' numbering, tested with them.)
    montre_semaine(jour(2004, 3, 10));
    ecrit_note(QStringLiteral("Salon"), 0xFFFFFF, 0);
    EXPECT_EQ(contenu(fichier).mid(466, 4), QByteArray("\x02\x00\x00\x00", 4));
    EXPECT_EQ(contenu(fichier).mid(1024), note("SE:040308", "Salon", 0xFFFFFF, 0));
}

TEST_F(Semaine, LAnneeEnDouzeMois) {
    struct Cas {
        int annee;
        int ligne_du_1er; // row of 1 January, Monday 0
        int jours;        // cells with a day
        QString fin;      // where 31 December stands: row, column
    };
    const Cas cas[] = {
        {2023, 6, 365, QStringLiteral("6 5")}, // 1 January on a Sunday: column 1, row 6
        {2024, 0, 366, QStringLiteral("1 6")}, // leap: 29 February; December's sixth column
    };
    for (const Cas& c : cas) {
        etat.date_courante = jour(c.annee, 6, 15);
        livre->ongletg_Click(2);
        EXPECT_TRUE(livre->Picture6_visible);
        EXPECT_EQ(etat.annee_courante, c.annee);
        EXPECT_EQ(livre->Label222 + livre->Label9 + livre->Label8,
                  QString::number(c.annee) + QString::number(c.annee - 1) +
                      QString::number(c.annee + 1));
        EXPECT_EQ(livre->g1[0].texte[std::size_t(c.ligne_du_1er)][1], QStringLiteral("1"));
        int jours = 0, feries = 0;
        QString fin;
        for (const auto& mois : livre->g1)
            for (std::size_t r = 0; r < 7; ++r)
                for (std::size_t k = 1; k < 7; ++k)
                    if (!mois.texte[r][k].isEmpty()) {
                        ++jours;
                        feries += mois.fond[r][k] == Torva1::Label5_dessin;
                        if (&mois == &livre->g1[11] && mois.texte[r][k] == QLatin1String("31"))
                            fin = QStringLiteral("%1 %2").arg(r).arg(k);
                    }
        EXPECT_EQ(jours, c.jours) << c.annee;
        EXPECT_EQ(feries, 11) << c.annee;
        EXPECT_EQ(fin, c.fin) << c.annee;
    }
    EXPECT_EQ(livre->g1[1].texte[6][0] + livre->g1[5].texte[5][0] + livre->Label111[7],
              QStringLiteral("DimanchesamediAout"));
    EXPECT_EQ(livre->g1[1].fond[0][2], -1);

    // Every fourth year is a leap year here: 2100 has no place for its 366th day.
    etat.date_courante = jour(2100, 3, 1);
    EXPECT_THROW(livre->decod_annee(), Erreur);
}

TEST_F(Semaine, DeLAnneeAUnJour) {
    etat.date_courante = jour(2026, 11, 23);
    livre->ongletg_Click(2);
    // Weekday names and empty cells do nothing; 14 July, a Tuesday, opens that day.
    for (const auto& [mois, ligne, colonne] :
         std::vector<std::tuple<int, int, int>>{{6, 1, 0}, {6, 0, 1}, {6, 6, 6}, {12, 0, 1}})
        livre->g1_Click(mois, ligne, colonne);
    EXPECT_TRUE(livre->Picture6_visible);
    livre->g1_Click(6, 1, 3);
    EXPECT_EQ(ui::jour_de(etat.date_courante), QDate(2026, 7, 14));
    EXPECT_EQ(livre->vue_visible, 0);
    EXPECT_FALSE(livre->Picture6_visible);
    EXPECT_TRUE(livre->ongletg_visible[1] && livre->ongletd_visible[2]); // tabs unchanged

    // The year arrows: 1 January of the year before or after.
    livre->ongletd_Click(2);
    livre->Picture7_Click();
    EXPECT_EQ(ui::jour_de(etat.date_courante), QDate(2025, 1, 1));
    EXPECT_EQ(livre->Label222, QStringLiteral("2025"));
    livre->Picture8_Click();
    livre->Picture8_Click();
    EXPECT_EQ(etat.annee_courante, 2027);
    // 2027's Easter Monday (29 March) is coloured: the holidays follow the year shown. March
    // begins on a Monday, so in column 2: the row wraps after the new month resets the column.
    EXPECT_EQ(livre->g1[2].texte[0][1] + livre->g1[2].texte[0][2], QStringLiteral("1"));
    EXPECT_EQ(livre->g1[2].texte[0][6] + QString::number(livre->g1[2].fond[0][6]),
              QStringLiteral("29") + QString::number(Torva1::Label5_dessin));

    // A sample's colour from the picker, stored in the parameter store and used at once.
    ui::scenario<ChCoul>([](ChCoul& p) {
        p.sortie(); // the palette is the only way out
        EXPECT_FALSE(p.fermee());
        p.Picture1_MouseDown(0x00C000);
    });
    livre->Label5_Click();
    EXPECT_EQ(lit_valeur_param(QStringLiteral("COUL_FERIE")), QString::number(0x00C000));
    EXPECT_EQ(livre->g1[11].fond[5][4], 0x00C000); // 25 December 2027, a Saturday
    livre->Label6_Click();
    EXPECT_EQ(lit_valeur_param(QStringLiteral("COUL_RV")), QString::number(0x00C000));
    // A stored colour damaged by hand leaves the sample as it was.
    ecrit_param(QStringLiteral("COUL_RV"), QStringLiteral("99999999999"));
    livre->decod_annee();
    EXPECT_EQ(livre->Label6_fond, 0x00C000);
}

} // namespace
