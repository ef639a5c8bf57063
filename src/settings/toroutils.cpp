#include "settings/toroutils.h"

#include "data/etat.h"
#include "data/fichier_records.h"
#include "data/formats.h"
#include "data/param.h"
#include "data/record.h"
#include "data/texte.h"
#include "input/mini_97.h"
#include "sms/sms.h"
#include "ui/dates.h"
#include "ui/erreur.h"
#include "ui/liste_triee.h"
#include "ui/systeme.h"

#include <algorithm>
#include <cmath>

namespace agenda {

namespace {

const QString heure_vide = QStringLiteral("07:12:19:");
// The help of the SMS module, on the team's server.
const QString serveur_aide = QStringLiteral("https://www.vigi-sms.fr");

} // namespace

QString Toroutils::adresse_aide() {
    return serveur_aide + QStringLiteral("/Vigi_sms/") + QStringLiteral("aide_cai_00001.htm");
}

void Toroutils::Form_Load() {
    jours_sms = lit_valeur_param(QStringLiteral("DCA:JOUR:PLA"));
    for (int i = 0; i < 7; ++i) {
        g1[0][std::size_t(i)] = initiale_majuscule(ui::nom_jour(i + 1));
        g1[1][std::size_t(i)] = motif_zeros(val(mid1(jours_sms, 2 * i + 1, 2)), 1);
    }
    Combo1_liste.clear();
    for (int h = 0; h < 24; ++h)
        Combo1_liste << motif_zeros(h, 2) + QStringLiteral(" heure");
    Combo3_liste = {QStringLiteral("Le jour même"), QStringLiteral("la Veille"),
                    QStringLiteral("2 jours avant"), QStringLiteral("3 jours avant")};
    Combo3_index = 0;

    QString heures = lit_valeur_param(QStringLiteral("TORVA:HEURE"));
    if (sans_blancs(heures).isEmpty()) {
        heures = heure_vide;
        ecrit_param(QStringLiteral("TORVA:HEURE"), heures);
    }
    Combo1[0] = mid1(heures, 1, 2) + QStringLiteral(" heure");
    Combo1[2] = mid1(heures, 7, 2) + QStringLiteral(" heure");
    Combo1[1] = mid1(heures, 4, 2) + QStringLiteral(" heure");
    Combo2 = mid1(heures, 10, 3);

    // Without the SMS module its settings are neither loaded nor saved.
    if (etat.sms_actif) {
        const QString rappel = lit_slot_sms(slot_sms::rappel);
        Check1 = int(val(rappel.left(2)));
        Combo3_index = int(val(mid1(rappel, 5, 1)));
        Text1 = motif_zeros(val(mid1(rappel, 10)), 1);
        QString modele;
        for (int s = slot_sms::modele; s < slot_sms::modele + slot_sms::pieces_modele; ++s)
            modele += lit_slot_sms(s);
        Text2_Change(sans_blancs(modele));
    }

    Label5 = motif_zeros(aiguilh, 1);
    Label8 = motif_zeros(aiguilm, 1);
    const QString horl = lit_valeur_param(QStringLiteral("TORVA:HORL"));
    Label4 = nombre(val(horl));
    if (const qsizetype p = horl.indexOf(QLatin1String("|H|")); p >= 0)
        Label5 = horl.mid(p + 3, 10);
    if (const qsizetype p = horl.indexOf(QLatin1String("|M|")); p >= 0)
        Label8 = horl.mid(p + 3, 10);
    sel_horloge();
}

void Toroutils::sel_horloge() {
    const int n = int(std::clamp(val(Label4), 0.0, double(horloges - 1)));
    const ui::RectTwips image = Image1_rect(n);
    Shape2_rect = {image.left - 120, image.top - 120, image.width + 240, image.height + 240};
    // A colour that is no 32-bit number, written by hand, leaves its hand as it was.
    etape([&] { aiguilh = en_i32(val(Label5)); });
    etape([&] { aiguilm = en_i32(val(Label8)); });
}

void Toroutils::Image1_Click(int index) {
    Label4 = motif_zeros(index, 1);
    sel_horloge();
}

void Toroutils::Picture1_MouseDown(std::int32_t couleur) {
    aiguilh = couleur;
    Label5 = motif_zeros(couleur, 1);
}

void Toroutils::Picture2_MouseDown(std::int32_t couleur) {
    aiguilm = couleur;
    Label8 = motif_zeros(couleur, 1);
}

void Toroutils::Text2_Change(const QString& texte) {
    Text2 = texte.left(150); // the control's own limit
    Label7 = QString::number(Text2.size());
}

void Toroutils::g1_DblClick(int ligne, int colonne) {
    if (ligne < 0 || ligne > 1 || colonne < 0 || colonne > 6) return;
    QString& cellule = g1[std::size_t(ligne)][std::size_t(colonne)];
    // A cancelled box answers nothing, which reads as 0.
    cellule = motif_zeros(
        val(ui::saisie(QStringLiteral("Agenda"),
                       QStringLiteral("Entrez le nb de jours de décalage en plus ou en moins pour "
                                      "'lenvoi du sms"),
                       cellule)),
        1);
}

void Toroutils::command1_Click() {
    constexpr std::array<int, 3> par_defaut = {7, 12, 19};
    QString heures;
    for (std::size_t i = 0; i < 3; ++i) {
        const double h = val(Combo1[i]);
        heures += motif_zeros(h < 0 || h > 23 ? par_defaut[i] : h, 2) + QLatin1Char(':');
    }
    ecrit_param(QStringLiteral("TORVA:HEURE"), heures + Combo2.left(3) + QStringLiteral("   "));
    ecrit_param(QStringLiteral("TORVA:HORL"),
                Label4 + QStringLiteral("    |H|") + motif_zeros(val(Label5), 1) +
                    QStringLiteral("          +|M|") + motif_zeros(val(Label8), 1));

    QString jours(34, QLatin1Char(' '));
    for (int i = 0; i < 7; ++i)
        jours.replace(2 * i, 2,
                      (motif_zeros(val(g1[1][std::size_t(i)]), 1) + QLatin1Char(' ')).left(2));
    ecrit_param(QStringLiteral("DCA:JOUR:PLA"), jours);
    jours_sms = jours;

    if (etat.sms_actif) {
        QString rappel(20, QLatin1Char(' '));
        const auto pose = [&rappel](int position, int largeur, const QString& v) {
            rappel.replace(position - 1, std::min<int>(largeur, int(v.size())), v.left(largeur));
        };
        pose(1, 2, motif_zeros(std::abs(Check1), 1) + QStringLiteral("  "));
        pose(5, 1, motif_zeros(Combo3_index, 1));
        pose(10, 11, motif_zeros(val(Text1), 1) + QString(13, QLatin1Char(' ')));
        RecTxt20 r;
        r.pose(RecTxt20::texte, rappel);
        ecrit_record(canal::sms_init, slot_sms::rappel, r);
        QString modele = sans_blancs(Text2 + QString(200, QLatin1Char(' ')));
        for (int i = 0; i < slot_sms::pieces_modele; ++i) {
            r.pose(RecTxt20::texte, modele.left(20));
            ecrit_record(canal::sms_init, slot_sms::modele + i, r);
            modele = modele.mid(20);
        }
    }
    ferme();
}

void Toroutils::Image2_Click() {
    ui::ouvre_adresse(adresse_aide()); // a failure to start is harmless
}

void Toroutils::liste_rv() {
    List1_visible = true;
    FichierRecords& f = canal_fichier(canal::rv);
    List1.clear();
    parcourt_depuis_entete<RecRv>(f, RecRv::dernier_num,
                                  [&](std::int32_t n, std::span<const std::uint8_t> rec) {
                                      const QString cle = RecRv::cle_rv.dans(rec);
                                      if (!cle.startsWith(QLatin1String("------")))
                                          List1.push_back({cle + RecRv::texte_rv.dans(rec), n});
                                      return true;
                                  });
    // By text, so by date and hour.
    ui::trie_comme_une_liste(List1, [](const Entree& e) -> const QString& { return e.texte; });
}

void Toroutils::List1_DblClick(int index) {
    if (index < 0 || index >= int(List1.size())) return;
    const std::int64_t r = std::int64_t(List1[std::size_t(index)].numero) + 1;
    const QString cle = lit_record<RecRv>(canal::rv, r).lit(RecRv::cle_rv);
    if (demande(QStringLiteral("Confirmez l'annulation du rendez vous '") + cle +
                    QStringLiteral("' ?"),
                4) != 6)
        return;
    RecRv rec = lit_record<RecRv>(canal::rv, r);
    rec.pose(RecRv::cle_rv, QString(24, QLatin1Char('-')));
    ecrit_record(canal::rv, r, rec);
    liste_rv();
}

} // namespace agenda
