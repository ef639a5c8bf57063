#include "book/torva1.h"

#include "calendar/calendrier.h"
#include "data/dossier.h"
#include "data/fichier_records.h"
#include "data/formats.h"
#include "data/param.h"
#include "data/record.h"
#include "data/rendez_vous.h"
#include "data/texte.h"
#include "editor/detarv.h"
#include "editor/inter.h"
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
    etape([&] { vue_visible = n >= 0 && n < nb_vues ? n : -1; });
    ui::cede();
    switch (n) {
    case 0:
        etape([&] { lit_param_jour(); });
        etape([&] { decod_date(); });
        etape([&] { affiche_rv(); });
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
        // The week and year views are not in the book yet: their page slot shows empty.
        break;
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

void Torva1::Picture2_Click() {
    etat.date_courante -= 1;
    sel_onglet(0);
}

void Torva1::Picture3_Click() {
    etat.date_courante += 1;
    sel_onglet(0);
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
    etape([] { charge_journee(); });
    num_rv_label.assign(std::size_t(etat.nb_jour()) + 1, 0);
    for (int i = 1; i <= etat.nb_jour(); ++i)
        etape([&] { place_etiquette(i, etat.liste_jour[i - 1]); });
    ui::cede();
}

void Torva1::place_etiquette(int i, const QString& e) {
    using namespace slot_page;
    const std::int32_t numero = entree_jour::numero(e);
    const RecRv rec = lit_record<RecRv>(canal::rv, std::int64_t(numero) + 1);
    const bool a_gauche =
        val(mid1(rec.lit(RecRv::cle_rv), 8, 2)) < table_pages[base_gauche + heure_fin];
    echelle_page = a_gauche ? echelle_g : echelle_d;
    etat.page_base = a_gauche ? base_gauche : base_droite;
    const int b = etat.page_base;

    EtiquetteRv& et = (a_gauche ? lrv : lrvd)[i];
    et.left = table_pages[b + gauche] + 45;
    et.width = table_pages[b + largeur] - 90;
    et.bordure = entree_jour::encadre(e);
    et.couleur = rec.lit(RecRv::couleur_rv);
    et.legende = sans_blancs(rec.lit(RecRv::texte_rv));
    num_rv_label[std::size_t(i)] = numero;
    const float debut = heure_centieme(entree_jour::heure_debut(e));
    et.top = en_i32(debut * echelle_page + table_pages[b + origine]);
    // A key damaged by hand may give a height a label refuses (negative, or beyond any
    // screen): the label keeps the height it was designed with.
    const double h = (heure_centieme(entree_jour::heure_fin(e)) - debut) * echelle_page;
    et.height = h >= 0 && h <= INT32_MAX ? en_i32(h) : EtiquetteRv::hauteur_modele;
}

} // namespace agenda
