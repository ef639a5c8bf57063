#include "book/torva1.h"

#include "calendar/calendrier.h"
#include "data/dossier.h"
#include "data/fichier_records.h"
#include "data/formats.h"
#include "data/param.h"
#include "data/record.h"
#include "data/rendez_vous.h"
#include "data/texte.h"
#include "editor/ch_coul.h"
#include "editor/detarv.h"
#include "editor/inter.h"
#include "editor/saisnote.h"
#include "input/date_97.h"
#include "planning/saisiuti.h"
#include "planning/torva11.h"
#include "search/torvar.h"
#include "settings/toroutils.h"
#include "sms/sms.h"
#include "ui/dates.h"
#include "ui/erreur.h"
#include "ui/systeme.h"

#include <climits>
#include <cmath>

namespace agenda {

namespace {

const QString heure_par_defaut = QStringLiteral("07:12:19:020");

constexpr std::array<std::int32_t, 12> couleurs_des_onglets = {
    0xC0C0FF, 0xC0FFFF, 0xC0FFC0, 0xC0E0FF, 0xC0C0C0, 0xFFC0FF,
    0xFF8080, 0x00C000, 0xFFFFFF, 0x8080FF, 0x0080FF, 0xFFC0FF,
};

// One pattern per tab: 18 characters for the left edge, ":", 21 for the right edge.
constexpr std::array<const char*, 12> motifs_gauche = {
    "100000000000000000:011111100000000000000", "100000000000000000:011111100000000000000",
    "110000000000000000:001111110000000000000", "111000000000000000:000111111000000000000",
    "111100000000000000:000011111100000000000", "111110000000000000:000001111110000000000",
    "111110000000000000:000001111110000000000", "011110100000000000:000000011111000000000",
    "001110110000000000:000000001111000000000", "000110111000000000:000000000111000000000",
    "000010111100000000:000000000011000000000", "xxxxxxxxxxxxxxxxxx:xxxxxxxxxxxxxxxxxxxxx",
};
constexpr std::array<const char*, 12> motifs_droite = {
    "100000000000000000:011111100000000000000", "110000000000000000:001111110000000000000",
    "111000000000000000:000111111000000000000", "111100000000000000:000011111100000000000",
    "111110000000000000:000001111110000000000", "011110100000000000:000000011111000000000",
    "011110100000000000:000000011111000000000", "001110110000000000:000000001111000000000",
    "000110111000000000:000000000111000000000", "000010111100000000:000000000011000000000",
    "000000111110000000:000000000001000000000", "xxxxxxxxxxxxxxxxxx:xxxxxxxxxxxxxxxxxxxxx",
};

// Characters 6 to 16 and 26 to 36 blanked: only the six tabs in use can show.
QString motif_limite(const char* motif) {
    QString m = QString::fromLatin1(motif);
    m.replace(5, 11, QStringLiteral("00000000000"));
    m.replace(25, 11, QStringLiteral("00000000000"));
    return m;
}

void applique_motif(const QString& motif, std::array<bool, 12>& gauche,
                    std::array<bool, 12>& droite) {
    for (int j = 0; j < 12; ++j) {
        gauche[j] = val(mid1(motif, j + 1, 1)) != 0;
        droite[j] = val(mid1(motif, j + 20, 1)) != 0;
    }
}

// Weekday names of the year grids' column 0, Monday first, and the month titles, as they stand.
const std::array<QString, 7> noms_des_jours = {QStringLiteral("Lundi"),    QStringLiteral("Mardi"),
                                               QStringLiteral("Mercredi"), QStringLiteral("Jeudi"),
                                               QStringLiteral("Vendredi"), QStringLiteral("samedi"),
                                               QStringLiteral("Dimanche")};
const std::array<QString, 12> noms_des_mois = {
    QStringLiteral("Janvier"), QStringLiteral("Février"),  QStringLiteral("Mars"),
    QStringLiteral("Avril"),   QStringLiteral("Mai"),      QStringLiteral("Juin"),
    QStringLiteral("Juillet"), QStringLiteral("Aout"),     QStringLiteral("Septembre"),
    QStringLiteral("Octobre"), QStringLiteral("Novembre"), QStringLiteral("Décembre")};

// An hour field out of the 16-bit range is an overflow that nothing traps in the load.
std::int16_t champ_heure(const QString& valeur, int debut, int longueur) {
    return en_i16(val(mid1(valeur, debut, longueur)));
}

} // namespace

Torva1::Torva1() {
    for (QTimer* t : {&Timer1, &Timer2, &Timer3})
        t->setSingleShot(true); // each timer stops itself before acting
    // Timers are handlers too: an error that ends the program ends it here.
    connect(&Timer1, &QTimer::timeout, this, [this] { protege([this] { charge(); }); });
    connect(&Timer2, &QTimer::timeout, this, [this] {
        protege([this] {
            sel_click_d(3);
            sel_onglet(3);
        });
        modifie();
    });
    connect(&Timer3, &QTimer::timeout, this, [this] { emit au_premier_plan(); });
}

void Torva1::charge() {
    if (!etat.banniere_chargee) {
        emit charge_banniere();
        etat.banniere_chargee = true;
    }
    etat.mode_salle = false;
    lit_clavier_ecran();
    lit_param();
    ouvre_arr();
    lit_nb_services();
    ouvre_rv();
    if (etat.mode_salle) {
        etat.nb_collab = 20;
        for (int i = 1; i <= 20; ++i)
            etat.noms_collab[i] =
                motif_zeros(i, 2) + QStringLiteral(" : Salle ") + QString::number(i);
    } else {
        charge_collaborateurs();
    }
    Timer3.start(1500);
    etat.num_note = 0;
    // The month control colours the holidays as the year view does.
    lit_couleur(QStringLiteral("COUL_FERIE"), Label5_fond);
    if (etat.date_courante == 0) etat.date_courante = ui::date_maintenant();
    sel_click_g(0);
    sel_onglet(0);
    if (lit_inter(QStringLiteral("TORVA:NUMUSER")).left(6) == QLatin1String("#GENE#"))
        Timer2.start(200);
    ouvre_sms();
    ui::cede();
    modifie();
}

void Torva1::lit_param() {
    std::copy(couleurs_des_onglets.begin(), couleurs_des_onglets.end(), couleurs_onglet.begin());
    for (std::size_t i = 0; i < motifs_gauche.size(); ++i) {
        motifs_g[i] = motif_limite(motifs_gauche[i]);
        motifs_d[i] = motif_limite(motifs_droite[i]);
    }

    QString heures = lit_valeur_param(QStringLiteral("TORVA:HEURE"));
    if (heures.isEmpty()) {
        heures = heure_par_defaut;
        ecrit_param(QStringLiteral("TORVA:HEURE"), heures);
    }
    etat.heure_debut = champ_heure(heures, 1, 2);
    etat.heure_rupture = champ_heure(heures, 4, 2);
    etat.heure_fin = champ_heure(heures, 7, 2);
    etat.duree_defaut = champ_heure(heures, 10, 3);

    const QString numuser = lit_inter(QStringLiteral("TORVA:NUMUSER"));
    if (!sans_blancs(numuser).isEmpty()) {
        etat.num_collab = en_i16(val(numuser.left(4)));
        Label7 = sans_blancs(mid1(numuser, 6));
    } else {
        etat.num_collab = 0;
        Label7 = QStringLiteral("Agenda");
    }
}

void Torva1::appel_menu() {
    const QString retour = sans_blancs(lit_inter(QStringLiteral("TORVA:RETOUR")));
    if (!retour.isEmpty()) {
        ui::lance_commande(retour);
        ui::cede();
    }
    ui::termine(0); // the files are closed on the way out
}

void Torva1::Form_KeyPress(int code) {
    if (code == 27) appel_menu();
}

void Torva1::sel_click_g(int n) {
    applique_motif(motifs_g.at(n), ongletg_visible, ongletd_visible);
}

void Torva1::sel_click_d(int n) {
    applique_motif(motifs_d.at(n), ongletg_visible, ongletd_visible);
}

void Torva1::sel_onglet(int n) {
    if (n == 5 || n == 11) appel_menu();
    etape([&] { Picture6_visible = false; });
    etape([&] { vue_visible = n >= 0 && n < nb_vues ? n : -1; });
    ui::cede();
    switch (n) {
    case 0:
        etape([&] { lit_param_jour(); });
        etape([&] { decod_date(); });
        etape([&] { affiche_rv(); });
        break;
    case 1:
        etape([&] { decod_semaine(); });
        break;
    case 2:
        etape([&] { etat.annee_courante = ui::jour_de(etat.date_courante).year(); });
        etape([&] { decod_annee(); });
        break;
    case 3: {
        Torva11 planning;
        pleine_page(planning);
        break;
    }
    case 4: {
        Torvar recherche;
        pleine_page(recherche);
        break;
    }
    default:
        break; // slots that hold no view
    }
}

void Torva1::Label7_Click() {
    Saisiuti choix;
    ui::montre_modal(choix);
    const QString& ligne = etat.texte_retour;
    if (sans_blancs(ligne).isEmpty()) return;
    ecrit_inter(QStringLiteral("TORVA:NUMUSER"),
                motif_zeros(val(ligne), 4) + QLatin1Char(' ') + sans_blancs(mid1(ligne, 5)));
    charge();
}

void Torva1::bt_out_Click() {
    emit cache(true);
    Toroutils reglages;
    ui::montre_modal(reglages);
    emit cache(false);
    charge();
}

void Torva1::pleine_page(ui::FenetreModale& fenetre) {
    // The planning and the search may change the date, the collaborator and the open file: the
    // whole load runs again once they have returned.
    etape([&] { ui::montre_modal(fenetre); });
    Timer1.start(250);
}

void Torva1::calend_Click(Date jour) {
    etat.date_courante = jour;
    sel_onglet(0);
}

void Torva1::avance(int jours, int vue) {
    etat.date_courante += jours;
    sel_onglet(vue);
}

void Torva1::Picture2_Click() {
    avance(-1, 0);
}

void Torva1::Picture3_Click() {
    avance(1, 0);
}

void Torva1::pageg_MouseDown(int x, int y) {
    etat.num_rv = 0;
    clic_page(slot_page::base_gauche, x, y);
}

void Torva1::paged_MouseDown(int x, int y) {
    // num_rv is left as the editor left it: 0 after every way out.
    clic_page(slot_page::base_droite, x, y);
}

void Torva1::clic_page(int b, int x, int y) {
    using namespace slot_page;
    etat.page_base = static_cast<std::int16_t>(b);
    const auto& t = table_pages;
    const bool dans_la_regle = x >= t[b + gauche] - 200 && x < t[b + gauche] + t[b + largeur] &&
                               y >= t[b + haut] && y < t[b + haut] + t[b + hauteur];
    if (!dans_la_regle) return;
    // Only the whole hour goes to the editor. Hours out of all reason can leave an hour no
    // height: the division by zero ends the program, as nothing traps the click.
    if (t[b + hauteur_heure] == 0)
        throw Erreur(QStringLiteral("Division par zéro : les heures "
                                    "du réglage « TORVA:HEURE » ne "
                                    "laissent aucune hauteur à une heure."));
    etat.heure_clic = en_i16(t[b + heure_premiere] + (y - t[b + haut]) / t[b + hauteur_heure]);
    Detarv editeur;
    ui::montre_modal(editeur);
    affiche_rv();
}

void Torva1::lrv_Click(int i) {
    if (i <= 0 || std::size_t(i) >= num_rv_label.size()) return;
    etat.num_rv = num_rv_label[std::size_t(i)];
    Detarv editeur;
    ui::montre_modal(editeur);
    decod_date();
    affiche_rv();
}

void Torva1::lit_param_jour() {
    using namespace slot_page;
    const auto remplit = [this](int b, int premiere, int fin, int haut_, int hauteur_) {
        table_pages[b + heure_premiere] = static_cast<std::int16_t>(premiere);
        table_pages[b + heure_fin] = static_cast<std::int16_t>(fin);
        table_pages[b + divisions] = 4;
        table_pages[b + haut] = static_cast<std::int16_t>(haut_);
        table_pages[b + hauteur] = static_cast<std::int16_t>(hauteur_);
        table_pages[b + gauche] = 800;
        table_pages[b + largeur] = 5400;
    };
    remplit(base_gauche, etat.heure_debut, etat.heure_rupture, 3700, 6500);
    remplit(base_droite, etat.heure_rupture, etat.heure_fin, 1100, 9100);
    etat.page_base = base_gauche;
    dessine_agenda(pageg);
    etat.page_base = base_droite;
    dessine_agenda(paged);
}

void Torva1::dessine_agenda(ui::Surface& surface) {
    using namespace slot_page;
    auto& t = table_pages;
    const int b = etat.page_base;
    // Every figure of the table is 16 bits: hours out of all reason overflow, an error that the
    // view's trap takes.
    t[b + nb_heures] = en_i16(t[b + heure_fin] - t[b + heure_premiere]);
    // The division by zero ends the program, even from under the traps of the day view.
    if (t[b + nb_heures] == 0)
        throw Erreur::sans_piege(
            b == base_gauche
                ? QStringLiteral("Réglage « TORVA:HEURE » invalide : la première heure "
                                 "du jour est égale à l'heure de rupture, la page du "
                                 "matin n'a aucune heure.")
                : QStringLiteral("Réglage « TORVA:HEURE » invalide : l'heure de rupture "
                                 "est égale à la dernière heure du jour, la page de "
                                 "l'après-midi n'a aucune heure."));
    t[b + hauteur_heure] = en_i16(double(t[b + hauteur]) / t[b + nb_heures]);
    echelle_page = static_cast<float>(t[b + hauteur_heure] / 100.0);
    t[b + origine] = en_i16(t[b + haut] - t[b + heure_premiere] * 100 * double(echelle_page));
    (b == base_gauche ? echelle_g : echelle_d) = echelle_page;

    constexpr std::int32_t gris = 0xC0C0C0, gris_clair = 0xE0E0E0;
    surface.efface();
    surface.police(QStringLiteral("Arial"));
    const int x1 = t[b + gauche], x2 = t[b + gauche] + t[b + largeur];
    for (int i = 1; i <= t[b + nb_heures]; ++i) {
        const int y = t[b + haut] + (i - 1) * t[b + hauteur_heure];
        surface.taille_police(16);
        surface.couleur_texte(gris);
        surface.ligne(x1, y, x2, y, gris);
        const QString h = QString::number(t[b + heure_premiere] + i - 1);
        surface.ecrit(x1 - 100 - surface.largeur_texte(h), y - 200, h);
        if (t[b + divisions] > 0) {
            const int demi = y + t[b + hauteur_heure] / 2;
            surface.ligne(x1, demi, x2, demi, gris_clair);
            surface.taille_police(8);
            surface.couleur_texte(gris);
            const QString trente = QStringLiteral("30");
            surface.ecrit(x1 - 100 - surface.largeur_texte(trente), demi - 120, trente);
        }
        if (t[b + divisions] > 1) {
            t[b + demi_heure] = en_i16(t[b + hauteur_heure] / 2.0);
            t[b + quart_heure] = en_i16(t[b + hauteur_heure] / 4.0);
            surface.style_pointille(true);
            for (const int q : {y + t[b + demi_heure] - t[b + quart_heure],
                                y + t[b + demi_heure] + t[b + quart_heure]})
                surface.ligne(x1, q, x2, q, gris_clair);
            surface.style_pointille(false);
        }
    }
}

void Torva1::decod_date() {
    const Date d = etat.date_courante;
    calend = d;
    Label1 = ui::format_date(d, u"yyyy");
    Label2 = initiale_majuscule(ui::nom_jour(ui::jour_semaine(d)));
    Label3 = ui::format_date(d, u"dd");
    Label4 = initiale_majuscule(ui::format_date(d, u"mmmm"));
}

void Torva1::affiche_rv() {
    // Labels are made anew at each showing, however many the last day had.
    lrv.clear();
    lrvd.clear();
    num_rv_label.clear();
    // The labels take their records from the scan's own bytes. A failed scan leaves the list as
    // it was, and its labels read their records again.
    const bool scanne = etape([&] { charge_journee(records_du_jour_); });
    num_rv_label.assign(std::size_t(etat.nb_jour()) + 1, 0);
    for (int i = 1; i <= etat.nb_jour(); ++i)
        etape([&] {
            using namespace slot_page;
            const QString& e = etat.liste_jour[i - 1];
            const std::int32_t numero = entree_jour::numero(e);
            const RecRv rec = scanne ? records_du_jour_.at(std::size_t(i) - 1)
                                     : lit_record<RecRv>(canal::rv, std::int64_t(numero) + 1);
            const bool a_gauche =
                val(mid1(rec.lit(RecRv::cle_rv), 8, 2)) < table_pages[base_gauche + heure_fin];
            echelle_page = a_gauche ? echelle_g : echelle_d;
            etat.page_base = a_gauche ? base_gauche : base_droite;
            EtiquetteRv& et = (a_gauche ? lrv : lrvd)[i];
            et.legende = sans_blancs(rec.lit(RecRv::texte_rv));
            et.couleur = rec.lit(RecRv::couleur_rv);
            num_rv_label[std::size_t(i)] = numero;
            place_etiquette(et, e, etat.page_base);
        });
    ui::cede();
}

void Torva1::place_etiquette(EtiquetteRv& et, const QString& e, int b) {
    using namespace slot_page;
    et.left = table_pages[b + gauche] + 45;
    et.width = table_pages[b + largeur] - 90;
    et.bordure = entree_jour::encadre(e);
    const float debut = heure_centieme(entree_jour::heure_debut(e));
    et.top = en_i32(debut * echelle_page + table_pages[b + origine]);
    // A key damaged by hand may give a height a label refuses (negative, or beyond any
    // screen): the label keeps the height it was designed with.
    const double h = (heure_centieme(entree_jour::heure_fin(e)) - debut) * echelle_page;
    et.height = h >= 0 && h <= INT32_MAX ? en_i32(h) : EtiquetteRv::hauteur_modele;
}

void Torva1::decod_semaine() {
    ui::pose_pointeur(ui::Pointeur::sablier);
    // The Monday of the week, Sunday counted as its last day.
    int jour = ui::jour_semaine(etat.date_courante);
    if (jour == 1) jour = 8;
    etat.date_courante = etat.date_courante + 2 - jour;
    const Date lundi = etat.date_courante;

    semaine_dates.fill(0);
    using namespace slot_page;
    const std::array<std::int16_t, 8> tableau{
        0, etat.heure_debut, etat.heure_fin, 0, 150, 2100, 800, 5300};
    std::copy(tableau.begin() + 1, tableau.end(), table_pages.begin() + 1);

    // One pass over the file serves the seven days.
    std::array<QStringList, nb_bandes> jours;
    etape([&] { jours = scan_semaine(canal_fichier(canal::rv), lundi); });
    for (int k = 0; k < nb_bandes; ++k) {
        affiche_nom_jour(k);
        dessine_semaine(pages[std::size_t(k)]);
        jour_s(k, jours[std::size_t(k)]);
        semaine_dates[std::size_t(k)] = etat.date_courante;
        etat.date_courante += 1;
    }
    // The view leaves the book on the Monday.
    etat.date_courante = lundi;

    etat.cle_note = cle_semaine(lundi);
    lit_note_semaine();
    ui::pose_pointeur(ui::Pointeur::fleche);
}

void Torva1::affiche_nom_jour(int k) {
    njours[std::size_t(k)] = jour_en_lettres(etat.date_courante);
}

void Torva1::dessine_semaine(ui::Surface& surface) {
    using namespace slot_page;
    auto& t = table_pages;
    t[nb_heures] = en_i16(t[heure_fin] - t[heure_premiere]);
    // Nothing traps the division by zero: it ends the program.
    if (t[nb_heures] == 0)
        throw Erreur::sans_piege(QStringLiteral("Réglage « TORVA:HEURE » invalide : la première "
                                                "heure du jour est égale à la dernière, les jours "
                                                "de la semaine n'ont aucune heure."));
    t[hauteur_heure] = en_i16(double(t[hauteur]) / t[nb_heures]);
    echelle_page = static_cast<float>(t[hauteur_heure] / 100.0);
    t[origine] = en_i16(t[haut] - t[heure_premiere] * 100 * double(echelle_page));

    constexpr std::int32_t gris = 0xC0C0C0;
    surface.efface();
    surface.police(QStringLiteral("Arial"));
    surface.taille_police(9);
    surface.couleur_texte(gris);
    const int x1 = t[gauche], x2 = t[gauche] + t[largeur];
    for (int i = 1; i <= t[nb_heures]; ++i) {
        const int y = t[haut] + (i - 1) * t[hauteur_heure];
        surface.ligne(x1, y, x2, y, gris);
        const QString h = QString::number(t[heure_premiere] + i - 1);
        surface.ecrit(x1 - 100 - surface.largeur_texte(h), y - 50, h);
    }
}

void Torva1::jour_s(int k, const QStringList& jour) {
    using namespace slot_page;
    etat.liste_jour = jour;
    auto& etiquettes = lrvs[std::size_t(k)];
    etiquettes.clear();
    for (int i = 1; i <= etat.nb_jour(); ++i) {
        const QString& e = etat.liste_jour[i - 1];
        EtiquetteRv& et = etiquettes[i];
        etape([&] {
            const RecRv rec =
                lit_record<RecRv>(canal::rv, std::int64_t(entree_jour::numero(e)) + 1);
            et.legende = sans_blancs(rec.lit(RecRv::texte_rv));
            et.couleur = rec.lit(RecRv::couleur_rv);
        });
        etape([&] { place_etiquette(et, e, base_gauche); });
    }
}

void Torva1::lit_note_semaine() {
    const RecRv note = lit_note(etat.cle_note).rec;
    Text3 = sans_blancs(note.lit(RecRv::texte_rv));
    // A blank note, or none, shows in the design colours.
    Text3_fond = Text3.isEmpty() ? Text3_fond_dessin : note.lit(RecRv::couleur_rv);
    Text3_encre = Text3.isEmpty() ? 0 : note.lit(RecRv::encadre_rv);
}

void Torva1::picture4_Click() {
    avance(-7, 1);
}

void Torva1::Picture5_Click() {
    avance(7, 1);
}

void Torva1::pages_Click(int k) {
    if (k < 0 || k >= nb_bandes) return;
    etat.date_courante = semaine_dates[std::size_t(k)];
    sel_onglet(0);
}

void Torva1::lrvs_Click(int k, int i) {
    if (i > 0) pages_Click(k);
}

void Torva1::Text3_Click() {
    if (!frein_du_clic()) return;
    etat.cle_note = cle_semaine(etat.date_courante);
    etat.note_x = en_i16(Text3_rect.left + 7910);
    etat.note_y = en_i16(Text3_rect.top - 1370);
    Saisnote note;
    ui::montre_modal(note);
    ui::cede();
    Text3 = etat.texte_note;
    Text3_fond = Text3_fond_dessin;
    Text3_encre = 0;
    // The note as written, with its colours; a blank one shows in the design colours.
    if (!sans_blancs(Text3).isEmpty()) lit_note_semaine();
}

void Torva1::lit_couleur(const QString& cle, std::int32_t& couleur) {
    const QString valeur = lit_valeur_param(cle);
    if (valeur.isEmpty()) return;
    // A value that is no 32-bit number, damaged by hand, leaves the sample as it was.
    const double c = val(valeur);
    if (c >= INT32_MIN && c <= INT32_MAX) couleur = std::int32_t(c);
}

void Torva1::decod_annee() {
    ui::pose_pointeur(ui::Pointeur::sablier);
    lit_couleur(QStringLiteral("COUL_FERIE"), Label5_fond);
    lit_couleur(QStringLiteral("COUL_RV"), Label6_fond);
    jours_feries();
    etat.jours_avec_rv.fill(0);
    Picture6_visible = true;

    for (std::size_t m = 0; m < g1.size(); ++m) {
        Mois& mois = g1[m];
        for (std::size_t ligne = 0; ligne < 7; ++ligne) {
            mois.texte[ligne].fill(QString());
            mois.fond[ligne].fill(-1);
            mois.texte[ligne][0] = noms_des_jours[ligne];
        }
        Label111[m] = noms_des_mois[m];
    }

    const int annee = ui::jour_de(etat.date_courante).year();
    etat.annee_courante = annee;
    Label222 = motif_zeros(annee, 4);
    Label8 = QString::number(annee + 1);
    Label9 = QString::number(annee - 1);
    // Every fourth year is a leap year here, 2100 included.
    const int jours = 365 + (annee % 4 == 0 ? 1 : 0);

    const auto pose_jour = [&](int mois, int ligne, int colonne, int code) {
        // A 366th day that runs into the next year has no grid: a subscript error.
        if (mois >= int(g1.size()) || colonne > 6)
            throw Erreur(QStringLiteral("Indice hors limites : le %1 n'a pas de place dans "
                                        "l'année %2.")
                             .arg(ui::format_date(etat.annee_courante, u"dd/mm/yyyy"))
                             .arg(annee));
        const Date d = etat.annee_courante;
        Mois& g = g1[std::size_t(mois)];
        const auto l = std::size_t(ligne - 1), c = std::size_t(colonne);
        g.texte[l][c] = ui::format_date(d, u"d");
        if (est_ferie(d)) g.fond[l][c] = Label5_fond;
        if (etat.jours_avec_rv[std::size_t(code)] == 1) g.fond[l][c] = Label6_fond;
    };
    const auto code = [](Date d, int facteur) {
        const QDate j = ui::jour_de(d);
        return j.day() + facteur * j.month();
    };

    etat.annee_courante = ui::date_de(QDate(annee, 1, 1));
    int ligne = (ui::jour_semaine(etat.annee_courante) + 5) % 7 + 1; // Monday 1 to Sunday 7
    int mois = 0, colonne = 1;
    pose_jour(mois, ligne, colonne, code(etat.annee_courante, 12));
    for (int i = 2; i <= jours; ++i) {
        etat.annee_courante += 1;
        if (ui::jour_de(etat.annee_courante).month() != mois + 1) {
            ++mois;
            colonne = 1;
        }
        if (++ligne > 7) {
            ligne = 1;
            ++colonne;
        }
        pose_jour(mois, ligne, colonne, code(etat.annee_courante, 31));
    }
    etat.annee_courante = annee;
    ++dessins_annee;
    ui::pose_pointeur(ui::Pointeur::fleche);
}

void Torva1::change_annee(int ecart) {
    etat.annee_courante += ecart;
    etat.date_courante = ui::date_de(QDate(int(etat.annee_courante), 1, 1));
    decod_annee();
}

void Torva1::g1_Click(int mois, int ligne, int colonne) {
    if (!frein_du_clic()) return;
    if (mois < 0 || mois >= int(g1.size()) || ligne < 0 || ligne >= 7 || colonne < 0 ||
        colonne >= 7)
        return;
    const double jour = val(g1[std::size_t(mois)].texte[std::size_t(ligne)][std::size_t(colonne)]);
    if (jour == 0) return; // an empty cell, or a weekday's name
    etat.date_courante = ui::date_de(QDate(int(etat.annee_courante), mois + 1, int(jour)));
    sel_onglet(0);
}

void Torva1::change_couleur(std::int32_t& couleur, const QString& cle) {
    ChCoul palette;
    ui::montre_modal(palette);
    couleur = en_i32(etat.couleur_choisie);
    ecrit_param(cle, QString::number(couleur));
    decod_annee();
}

void Torva1::Label5_Click() {
    change_couleur(Label5_fond, QStringLiteral("COUL_FERIE"));
}

void Torva1::Label6_Click() {
    change_couleur(Label6_fond, QStringLiteral("COUL_RV"));
}

} // namespace agenda
