#include "editor/detarv.h"

#include "clients/cclifa.h"
#include "clients/client.h"
#include "clients/lit_cli.h"
#include "data/etat.h"
#include "data/fichier_records.h"
#include "data/formats.h"
#include "data/param.h"
#include "data/record.h"
#include "data/rendez_vous.h"
#include "data/texte.h"
#include "editor/inter.h"
#include "input/clavv.h"
#include "input/date_97.h"
#include "input/mini_97.h"
#include "sms/sms.h"
#include "sms/verifsmss.h"
#include "ui/dates.h"
#include "ui/erreur.h"
#include "ui/systeme.h"

#include <cmath>

namespace agenda {

namespace {

constexpr double pi = 3.1415926;
constexpr double une_minute = 0.016666;
constexpr double centre_x = ui::horloge_centre_x, centre_y = ui::horloge_centre_y;
constexpr double longueur_h = 1300, longueur_m = 1800;
constexpr std::int32_t orange = 33023, blanc = 0xFFFFFF;

// Face 0, as placed on its picture.
constexpr std::array<ui::RectTwips, 12> heures_face0 = {{
    {2190, 510, 615, 585},
    {3060, 750, 615, 585},
    {3600, 1350, 615, 585},
    {3900, 2190, 615, 585},
    {3600, 3090, 615, 585},
    {3000, 3750, 615, 585},
    {2190, 3990, 615, 585},
    {1320, 3750, 615, 585},
    {720, 3090, 615, 645},
    {420, 2250, 645, 585},
    {750, 1440, 675, 585},
    {1350, 750, 675, 555},
}};
constexpr std::array<ui::RectTwips, 12> minutes_face0 = {{
    {2220, 60, 525, 345},
    {3390, 330, 465, 375},
    {4290, 1170, 345, 435},
    {4590, 2280, 405, 465},
    {4320, 3450, 345, 465},
    {3420, 4350, 465, 405},
    {2280, 4620, 435, 375},
    {1170, 4320, 345, 405},
    {300, 3420, 375, 465},
    {30, 2310, 375, 495},
    {300, 1170, 405, 465},
    {1110, 300, 465, 435},
}};

// Faces 1 to 3 lay each cell's centre on the face's rings, at 30 degrees a cell; the others
// keep face 0's cells, as the window has them.
constexpr int faces_sur_anneaux = 4;

std::array<ui::RectTwips, 12> sur_l_anneau(const std::array<ui::RectTwips, 12>& tailles,
                                           int rayon) {
    std::array<ui::RectTwips, 12> cellules{};
    for (int i = 0; i < 12; ++i) {
        const double a = i * pi / 6;
        const auto& t = tailles[std::size_t(i)];
        cellules[std::size_t(i)] = {
            int(std::lround(centre_x + rayon * std::sin(a) - t.width / 2.0)),
            int(std::lround(centre_y - rayon * std::cos(a) - t.height / 2.0)), t.width, t.height};
    }
    return cellules;
}

QString chiffres(const QString& texte) {
    QString r;
    for (const QChar c : texte)
        if (c >= QLatin1Char('0') && c <= QLatin1Char('9')) r += c;
    return r;
}

} // namespace

const std::array<std::array<const char*, 4>, 4> Detarv::g2 = {{
    {"-10", "-5", "+5", "+10"},
    {"15", "20", "25", "30"},
    {"35", "40", "45", "50"},
    {"1h00", "1h15", "1h30", "2h00"},
}};

namespace {
QStringList de_pas(int fin, int pas) {
    QStringList l;
    for (int v = 0; v < fin; v += pas)
        l << motif_zeros(v, 2);
    return l;
}
} // namespace

const QStringList& Detarv::heures() {
    static const QStringList l = de_pas(24, 1);
    return l;
}

const QStringList& Detarv::minutes() {
    static const QStringList l = de_pas(60, 5);
    return l;
}

void Detarv::Form_Load() {
    etape([&] { jours_sms = lit_valeur_param(QStringLiteral("DCA:JOUR:PLA")); });
    etape([&] { lit_horloge(); });
    etape([&] { charge_horloge(); });
    etape([&] { ref_sms_chargee.clear(); });
    etape([&] { ouvre_clients(); });
    etape([&] {
        for (int i = 1; i <= etat.nb_collab; ++i) {
            const QString& entree = etat.noms_collab[std::size_t(i)];
            if (val(entree.left(2)) == etat.num_collab) {
                Label13 = sans_blancs(mid1(entree, 5));
                break;
            }
        }
    });
    etape([&] { Label4 = jour_en_lettres(etat.date_courante); });
    etape([&] { Label7 = nombre(etat.duree_defaut); });
    etape([&] { etat.num_rv != 0 ? charge_rv() : init_rv(); });
    etape([&] { analyse_per(); });
    etape([&] { affiche_heure(); });
    etape([&] { remplit_services(); });
}

void Detarv::lit_horloge() {
    const QString horl = lit_valeur_param(QStringLiteral("TORVA:HORL"));
    Label16 = nombre(val(horl));
    // A hand whose mark is missing keeps its designed colour; a colour that is no 32-bit
    // number fails its own statement only.
    if (const qsizetype p = horl.indexOf(QLatin1String("|H|")); p >= 0)
        etape([&] { aiguilh.couleur = en_i32(val(horl.mid(p + 3, 10))); });
    if (const qsizetype p = horl.indexOf(QLatin1String("|M|")); p >= 0)
        etape([&] { aiguilm.couleur = en_i32(val(horl.mid(p + 3, 10))); });
}

void Detarv::init_rv() {
    const int h = etat.heure_clic;
    const QStringList& liste = heures();
    etape([&] { Check2 = h >= 12 ? 1 : 0; });
    // An hour past the list (23 + 1) leaves the end empty; the end is computed again anyway.
    etape([&] { Combo1 = liste.value(h); });
    etape([&] { Combo3 = liste.value(h + 1); });
    etape([&] { Combo2 = Combo4 = QStringLiteral("00"); });
}

void Detarv::charge_rv() {
    // A record that cannot be read leaves the blank one: each later step takes what it finds.
    RecRv r;
    etape([&] { r = lit_record<RecRv>(canal::rv, std::int64_t(etat.num_rv) + 1); });
    const QString cle = r.lit(RecRv::cle_rv);
    etape([&] { Text1 = sans_blancs(r.lit(RecRv::texte_rv)); });
    etape([&] {
        Combo1 = mid1(cle, 8, 2);
        Check2 = val(Combo1) < 12 ? 0 : 1;
    });
    etape([&] {
        Combo2 = mid1(cle, 11, 2);
        Combo3 = mid1(cle, 14, 2);
        Combo4 = mid1(cle, 17, 2);
    });
    etape([&] { Check1 = r.lit(RecRv::encadre_rv); });
    std::int32_t duree = r.lit(RecRv::duree_rv);
    etape([&] {
        if (duree == 0)
            duree = en_i32((val(Combo3) * 60 + val(Combo4)) - (val(Combo1) * 60 + val(Combo2)));
    });
    etape([&] {
        if (const std::int32_t client = r.lit(RecRv::num_client); client != 0) {
            Label14 = QString::number(client);
            affiche_client();
        }
    });
    etape([&] {
        ref_sms_chargee = r.lit(RecRv::ref_sms);
        Label8 = ref_sms_chargee;
    });
    etape([&] { Label7 = QString::number(duree); });
    etape([&] { Text1_couleur = r.lit(RecRv::couleur_rv); });
}

void Detarv::sauve_rv() {
    auto& f = canal_fichier(canal::rv);
    if (etat.num_rv == 0) etat.num_rv = alloue_numero(f);
    RecRv r = lit_record<RecRv>(f, std::int64_t(etat.num_rv) + 1);
    r.pose(RecRv::cle_rv, cle_rendez_vous(etat.date_courante, Combo1, Combo2, Combo3, Combo4));
    r.pose(RecRv::texte_rv, sans_blancs(Text1));
    r.pose(RecRv::couleur_rv, Text1_couleur);
    r.pose(RecRv::encadre_rv, Check1);
    r.pose(RecRv::code_jour, code_jour(etat.date_courante));
    // Compared before it is stored, so that no typed figure can overflow the field.
    const double duree = std::nearbyint(val(Label7));
    r.pose(RecRv::duree_rv, duree < 0 || duree > duree_maximum ? std::int32_t(etat.duree_defaut)
                                                               : std::int32_t(duree));
    r.pose(RecRv::ref_sms, {});
    r.pose(RecRv::num_client, en_i32(val(Label14)));
    ref_sms_nouvelle.clear();
    if (!sans_blancs(Text2).isEmpty()) {
        ref_sms_nouvelle =
            cadre(sans_blancs(Text2), 10) + motif_jour(etat.date_courante) + Combo1 + Combo2;
        r.pose(RecRv::ref_sms, ref_sms_nouvelle);
    }
    ecrit_record(f, std::int64_t(etat.num_rv) + 1, r);
    // The reminder, and the client's waiting reminders at once, where a duplicate shows.
    if (!etat.sms_actif || ref_sms_nouvelle.isEmpty()) return;
    if (queue_rappel({Text2, ref_sms_nouvelle, etat.date_courante, Combo1, Combo2}, jours_sms)) {
        Verifsmss gestionnaire;
        ui::montre_modal(gestionnaire);
    }
}

namespace {

// The on-screen keyboard on a question and a text; its answer, or the text as it was.
QString au_clavier(std::int32_t mode, const QString& question, const QString& texte) {
    etat.mini_mode = mode;
    etat.mini_texte = question + QLatin1Char('|') + sans_blancs(texte);
    Clavv clavier;
    ui::montre_modal(clavier);
    return etat.mini_texte;
}

} // namespace

void Detarv::Text1_Click() {
    if (etat.clavier_ecran != 0)
        Text1 = au_clavier(Clavv::mode_texte, QStringLiteral("Détail du rendez vous ?"), Text1);
}

void Detarv::Text2_Click() {
    if (etat.clavier_ecran != 0)
        Text2 = au_clavier(Clavv::mode_nombre, QStringLiteral("N° de portable valide ?"), Text2);
}

void Detarv::bt_valid_Click() {
    // An empty text saves nothing, not even over an existing appointment.
    if (!sans_blancs(Text1).isEmpty()) sauve_rv();
    etat.num_rv = 0;
    ecrit_rendez_vous(Label4, Combo1, Combo2);
    ferme();
}

void Detarv::bt_annul_Click() {
    if (etat.num_rv == 0) {
        ferme(); // a new appointment: the way out without saving
        return;
    }
    if (demande(QStringLiteral("Confirmez l'effacement du rendez-vous ?"), 4) != 6) return;
    auto& f = canal_fichier(canal::rv);
    const std::int64_t numero = std::int64_t(etat.num_rv) + 1;
    RecRv r = lit_record<RecRv>(f, numero);
    r.pose(RecRv::cle_rv, u"----------");
    ecrit_record(f, numero, r);
    ui::cede();
    etat.num_rv = 0;
    if (etat.sms_actif && !ref_sms_chargee.isEmpty()) annule_sms(ref_sms_chargee);
    ferme();
}

void Detarv::bt_annull_Click() {
    if (demande(QStringLiteral("Confirmez l'effacement du texte et du détail des prestations ?"),
                4) != 6)
        return;
    Text1.clear();
    Label9 = QStringLiteral("NO");
    Label7 = nombre(etat.duree_defaut);
    if (focus_texte) focus_texte();
    ui::cede();
}

void Detarv::bt_corr_Click() {
    Date97 choix;
    ui::montre_modal(choix);
    if (!sans_blancs(etat.texte_retour).isEmpty()) Label4 = jour_en_lettres(etat.date_courante);
}

void Detarv::affiche_client() {
    // A number out of the 16-bit range is an overflow error: the caller's trap, if any, takes it.
    etat.num_client_courant = en_i16(val(Label14));
    lit_client(etat.num_client_courant);
    const QString nom_client = sans_blancs(rec_cli.lit(RecCli::nom_client));
    const QString fin_de_ligne = QStringLiteral("\r\n");
    Label15 = nom_client + fin_de_ligne + sans_blancs(rec_cli.lit(RecCli::adresse1)) +
              fin_de_ligne + sans_blancs(rec_cli.lit(RecCli::code_ville)) + fin_de_ligne +
              QStringLiteral("Téléphone : --------------------------------------");
    Text2 = chiffres(rec_cli.lit(RecCli::telephone));
    Image2_visible = true;
    if (sans_blancs(Text1).isEmpty()) Text1 = nom_client;
}

void Detarv::Image1_Click() {
    LitCli liste;
    ui::montre_modal(liste);
    if (etat.texte_retour == QLatin1String("#CRE#")) {
        // The record exists from here on, whatever the operator does on the card.
        etat.num_client_courant = 0;
        cree_client();
        etat.num_client_courant = en_i16(client_alloue);
        Cclifa fiche;
        ui::montre_modal(fiche);
        etat.texte_retour =
            QString(80, QLatin1Char(' ')) + QLatin1Char(':') + QString::number(client_alloue);
    }
    // Left without a choice: the appointment keeps its client.
    const double numero = val(mid1(etat.texte_retour, 82, 15));
    if (numero < 1) return;
    Label14 = motif_zeros(numero, 1);
    affiche_client();
}

void Detarv::Image2_Click() {
    if (val(Label14) < 1) return;
    etat.num_client_courant = en_i16(val(Label14));
    Cclifa fiche;
    ui::montre_modal(fiche);
    affiche_client();
}

void Detarv::Picture1_MouseDown(std::int32_t couleur) {
    if (couleur != 0) // pure black cannot be picked
        Text1_couleur = couleur;
}

void Detarv::charge_horloge() {
    face = en_i16(val(Label16));
    if (face < 0 || face >= faces_sur_anneaux) {
        sheur = heures_face0; // the cells stay where the window has them
        sminu = minutes_face0;
        return;
    }
    if (face == 0) {
        sheur = heures_face0;
        sminu = minutes_face0;
    } else {
        const auto anneaux = ui::anneaux_horloge[std::size_t(face)];
        sheur = sur_l_anneau(heures_face0, anneaux.heures);
        sminu = sur_l_anneau(minutes_face0, anneaux.minutes);
    }
}

void Detarv::ajuste_heure() {
    const double h = std::fmod(std::nearbyint(val(Combo1)), 12.0);
    const double m = val(Combo2);
    const float t = float(h + m * une_minute);
    const double a = (t / 6.0 + 1) * -pi;
    const double b = (m / 30.0 + 1) * -pi;
    aiguilh.x1 = aiguilm.x1 = centre_x;
    aiguilh.y1 = aiguilm.y1 = centre_y;
    aiguilh.x2 = longueur_h * std::sin(a) + centre_x;
    aiguilh.y2 = longueur_h * std::cos(a) + centre_y;
    aiguilm.x2 = longueur_m * std::sin(b) + centre_x;
    aiguilm.y2 = longueur_m * std::cos(b) + centre_y;
}

void Detarv::affiche_heure() {
    ajuste_heure();
    calcul_fin();
}

void Detarv::analyse_per() {
    Picture3_fond = Check2 == 0 ? orange : blanc;
    picture4_fond = Check2 == 0 ? blanc : orange;
}

std::optional<Detarv::Cellule> Detarv::cellule(int x, int y) const {
    for (int i = int(sheur.size()) - 1; i >= 0; --i) {
        if (sminu[std::size_t(i)].contient(x, y)) return Cellule{false, i};
        if (sheur[std::size_t(i)].contient(x, y)) return Cellule{true, i};
    }
    return std::nullopt;
}

void Detarv::sheur_Click(int i) {
    int v = Check2 * 12 + i;
    if (v < etat.heure_debut) v = etat.heure_debut;
    if (v > etat.heure_fin) v = etat.heure_fin;
    Combo1 = motif_zeros(v, 2);
    ajuste_heure();
    calcul_fin();
}

void Detarv::sminu_Click(int i) {
    Combo2 = motif_zeros(5 * i, 2);
    ajuste_heure();
    calcul_fin();
}

void Detarv::Picture3_Click() {
    Check2 = 0;
    analyse_per();
}

void Detarv::picture4_Click() {
    Check2 = 1;
    analyse_per();
}

void Detarv::calcul_fin() {
    // The standard duration is also the shortest.
    if (val(Label7) < etat.duree_defaut) Label7 = nombre(etat.duree_defaut);
    double h = val(Combo1);
    double m = val(Combo2) + val(Label7);
    while (m >= 60) {
        h += 1;
        m -= 60;
    }
    Combo3 = motif_zeros(h, 2);
    Combo4 = motif_zeros(m, 2);
}

void Detarv::calcul_duree() {
    Label7 = nombre((val(Combo3) * 60 + val(Combo4)) - (val(Combo1) * 60 + val(Combo2)));
}

void Detarv::g1_Click(int ligne) {
    if (Label9 == QLatin1String("NO")) {
        Label9.clear();
        Label7.clear();
    }
    if (ligne < 0 || ligne >= int(g1.size()) || g1[std::size_t(ligne)].index.isEmpty()) return;
    const LigneService& s = g1[std::size_t(ligne)];
    Text1 = sans_blancs(Text1) + QStringLiteral("\r\n") + sans_blancs(s.nom);
    Label7 = nombre(val(Label7) + val(s.minutes));
    calcul_fin();
}

void Detarv::g2_Click(int ligne, int colonne) {
    const QString texte = QString::fromLatin1(g2.at(std::size_t(ligne)).at(std::size_t(colonne)));
    if (texte.startsWith(QLatin1Char('+')) || texte.startsWith(QLatin1Char('-')))
        Label7 = motif_zeros(val(Label7) + val(texte), 1);
    else if (texte.contains(QLatin1Char('h')))
        Label7 = motif_zeros(val(texte.left(1)) * 60 + val(mid1(texte, 3)), 1);
    else
        Label7 = texte;
    calcul_fin();
}

void Detarv::remplit_services() {
    g1.clear();
    const auto ligne = [this](std::int32_t i, const RecArr& s) {
        g1.push_back(
            {sans_blancs(s.lit(RecArr::nom_arr)),
             motif_zeros(val(s.lit(RecArr::info_arr).left(3)), 1) + QStringLiteral(" mn  "),
             QString::number(i)});
    };
    parcourt<RecArr>(canal_fichier(canal::arr), etat.nb_services,
                     [&](std::int32_t i, std::span<const std::uint8_t> rec) {
                         ligne(i, record_de<RecArr>(rec));
                         return true;
                     });
    // Services past the catalogue's end read blank: they are shown, as rows of the grid's
    // minimum, but a count far past the end costs no more than the file holds.
    for (auto i = std::int32_t(g1.size()) + 1; i <= std::min(etat.nb_services, lignes_services);
         ++i)
        ligne(i, RecArr{});
    while (g1.size() < std::size_t(lignes_services))
        g1.push_back({});
}

} // namespace agenda
