#include "planning/torva11.h"

#include "data/dossier.h"
#include "data/fichier_records.h"
#include "data/formats.h"
#include "data/record.h"
#include "data/rendez_vous.h"
#include "data/texte.h"
#include "editor/detarv.h"
#include "editor/inter.h"
#include "input/date_97.h"
#include "input/mini_97.h"
#include "ui/dates.h"
#include "ui/erreur.h"
#include "ui/systeme.h"

#include <cmath>

namespace agenda {

namespace {

constexpr std::int32_t gris = 0xC0C0C0, bleu_nuit = 0x000080, ombre = 0x808080, noir = 0;
const QString prise = QStringLiteral("Cliquez sur le rendez-vous à transférer");
const QString depot = QStringLiteral("Cliquez sur le planning ou deplacer le rendez vous !");

// A divisor; zero is an error for the step's trap.
int non_nul(int b) {
    if (b == 0) throw Erreur(QStringLiteral("Division par zéro."));
    return b;
}

// A whole division rounded half to even.
int divise(double a, int b) {
    return en_i32(a / non_nul(b));
}

// Hours and minutes as decimal hours, by text: the minutes times 1.66666 in pattern "0" behind
// the point, so that 09:05 gives 9.8 and lies below 09:45. That is how the planning has always
// placed them.
double heure_decimale(const QString& heure, const QString& minute) {
    return val(heure + QLatin1Char('.') + motif_zeros(val(minute) * 1.66666, 1));
}

// A text on one line: each carriage return or line feed a blank.
QString sur_une_ligne(QString t) {
    for (QChar& c : t)
        if (c == QLatin1Char('\r') || c == QLatin1Char('\n')) c = QLatin1Char(' ');
    return t;
}

// The characters of a line laid one by one until it overflows the width, the overflowing one
// included; the whole text when it never does. A text grows wider with each character, so the
// first overflow is found by halving rather than by measuring every prefix.
qsizetype premiere_ligne(const ui::Surface& s, QStringView t, int largeur) {
    qsizetype tient = 0, deborde = t.size() + 1; // prefixes known to fit, and to overflow
    while (deborde - tient > 1) {
        const qsizetype milieu = tient + (deborde - tient) / 2;
        (s.largeur_texte(t.left(milieu).toString()) > largeur ? deborde : tient) = milieu;
    }
    return std::min(deborde, t.size());
}

} // namespace

void Torva11::Form_Load() {
    // A planning opened again while a transfer runs says where it stands.
    if (transfert != Transfert::repos) {
        Label1 = transfert == Transfert::attente_prise ? prise : depot;
        Label1_visible = true;
    }
    ui::cede();
    if (etat.date_courante == 0) etat.date_courante = ui::date_maintenant();
    liste_texte.clear();
    heure_ouverture = etat.heure_debut;
    heure_fermeture = etat.heure_fin;
    dessine_planning();
    ui::cede();
    modifie();
}

void Torva11::lit_colonnes() {
    nb_collabs = std::clamp<int>(etat.nb_collab, 0, 20);
    largeur_colonne = divise(largeur_planning, nb_collabs);
    for (int i = 1; i <= nb_collabs; ++i)
        col_x[std::size_t(i)] = i * largeur_colonne;
}

void Torva11::dessine_planning() {
    table_rv.clear();
    etape([&] { lit_colonnes(); });
    etape([&] {
        nb_heures = heure_fermeture - heure_ouverture;
        hauteur_heure = divise(hauteur_planning, nb_heures);
    });
    const Date d = etat.date_courante;
    etape([&] { Label2 = initiale_majuscule(ui::nom_jour(ui::jour_semaine(d))); });
    etape([&] { Label3 = ui::format_date(d, u"dd"); });
    etape([&] { Label4 = initiale_majuscule(ui::format_date(d, u"mmmm")); });

    p1.efface();
    p1.police(QStringLiteral("Arial"));
    p1.taille_police(7);
    p1.couleur_texte(gris);
    // Each column has its hour lines and numbers; there is none at the opening hour.
    for (int i = 1; i <= nb_collabs; ++i) {
        for (int k = 1; k <= nb_heures; ++k) {
            etape([&] {
                const int y = en_i32(double(k) * hauteur_heure + marge_haut);
                p1.ligne(L(i) + 250, y, R(i) - 15, y, gris);
                const QString h = QString::number(k + heure_ouverture);
                p1.ecrit(L(i) + 200 - p1.largeur_texte(h), y - p1.hauteur_texte(h) / 2, h);
            });
        }
    }

    for (int i = 1; i <= nb_collabs; ++i) {
        const QString& entree = etat.noms_collab[std::size_t(i)];
        const QString nom = sans_blancs(mid1(entree, 6));
        std::int16_t numero = 0;
        etape([&] { numero = en_i16(val(entree)); });
        p1.taille_police(16);
        p1.couleur_texte(bleu_nuit);
        cadnom[i] = {L(i) + 100, 200, largeur_colonne - 200, 600};
        etape([&] {
            const double x = R(i) - largeur_colonne / 2.0 - p1.largeur_texte(nom) / 2.0;
            p1.ecrit(en_i32(x), marge_haut - 700, nom);
        });
        etape([&] { charge_journee(numero); });
        p1.taille_police(7);
        for (const QString& e : liste_jour)
            etape([&] { dessine_rv(i, numero, e); });
    }
}

void Torva11::charge_journee(std::int16_t numero) {
    // Emptied first: a file that cannot be opened shows an empty column, not the one before.
    liste_jour.clear();
    FichierRecords& f = canal_fichier(canal::planning);
    f.ferme();
    f.ouvre(nom_fichier_rv(numero, etat.mode_salle), RecRv::longueur);
    parcourt_jour(
        f, etat.date_courante, [](const RecRv& entete) { return entete.lit(RecRv::dernier_num); },
        [&](std::int32_t n, std::span<const std::uint8_t> rec) {
            if (liste_jour.size() >= max_jour || liste_texte.size() >= max_texte) return false;
            const QString debut = RecRv::cle_rv.dans(rec).mid(7, 5);
            liste_texte.append(debut + QString(15, QLatin1Char(' ')) +
                               sur_une_ligne(RecRv::texte_rv.sans_blancs_dans(rec)));
            liste_jour.append(entree_du_jour(n, rec) + QLatin1String("#JJ#") +
                              motif_zeros(double(liste_texte.size()), 6) + QLatin1Char(':') +
                              debut);
            return true;
        });
}

void Torva11::dessine_rv(int i, std::int32_t collab, const QString& e) {
    const double debut = heure_decimale(mid1(e, 8, 2), mid1(e, 11, 2)) - heure_ouverture;
    const double fin = heure_decimale(mid1(e, 14, 2), mid1(e, 17, 2)) - heure_ouverture;
    const std::int32_t numero = en_i32(val(mid1(e, 20, 6)));
    const std::int32_t couleur = en_i32(val(mid1(e, 38)));
    const int texte = en_i32(val(e.mid(e.indexOf(QLatin1String("#JJ#")) + 4)));

    const int y0 = en_i32(hauteur_heure * debut + marge_haut);
    const int y1 = en_i32(hauteur_heure * fin + marge_haut);
    // Past the table's bound the box is drawn, but the mouse does not find it.
    if (nb_boites() < max_boites)
        table_rv.push_back({collab, L(i) + 270, y0, R(i) - 30, y1, numero, texte});

    // The body, and its shadow below and on the right. Boxes overdraw, the later on top; times
    // that run backwards draw the body upside down.
    p1.boite(L(i) + 270, y0, R(i) - 60, y1 - 45, couleur);
    p1.boite(L(i) + 300, y1 - 45, R(i) - 30, y1 - 15, ombre);
    p1.boite(R(i) - 30, y0 + 60, R(i) - 60, y1 - 15, ombre);

    // The text, broken at the box's width character by character, and stopped 200 twips above
    // its bottom whatever is left.
    const RecRv rec = lit_record<RecRv>(canal::planning, std::int64_t(numero) + 1);
    const QString t = remplace_retours(RecRv::texte_rv.sans_blancs_dans(rec.octets), u". ");
    p1.couleur_texte(noir);
    p1.taille_police(7);
    std::int16_t dy = en_i16(hauteur_heure * debut);
    const std::int16_t dy_fin = en_i16(hauteur_heure * fin);
    const int x = marge_gauche + col_x[std::size_t(i - 1)] + 280;
    const int largeur_texte = largeur_colonne - 400;
    qsizetype pos = 0;
    while (dy < dy_fin - 200 && pos < t.size()) {
        const qsizetype n = premiere_ligne(p1, QStringView(t).mid(pos), largeur_texte);
        const QString ligne = t.mid(pos, n);
        pos += n;
        if (p1.largeur_texte(ligne) <= largeur_texte) { // the end of the text, not overflowing
            if (!sans_blancs(ligne).isEmpty()) p1.ecrit(x, marge_haut + dy, ligne);
            break;
        }
        p1.ecrit(x, marge_haut + dy, ligne);
        dy = en_i16(double(dy) + p1.hauteur_texte(ligne));
    }
}

void Torva11::p1_MouseDown(int x, int y) {
    for (const BoiteRv& b : table_rv) {
        if (!b.contient(x, y)) continue;
        etat.num_collab = static_cast<std::int16_t>(b.collab);
        etat.num_rv = b.numero;
        switch (transfert) {
        case Transfert::repos: {
            etape([] { ouvre_rv(); });
            Detarv editeur;
            etape([&] { ui::montre_modal(editeur); });
            Form_Load();
            break;
        }
        case Transfert::attente_prise:
            prise_collab = etat.num_collab;
            prise_num = etat.num_rv;
            Label1 = depot;
            Label1_visible = true;
            transfert = Transfert::attente_depot;
            break;
        case Transfert::attente_depot:
            // The place is taken: the transfer ends, nothing written.
            transfert = Transfert::repos;
            demande(QStringLiteral("il y a deja un rendez vous a cet heure !"), 0);
            Label1_visible = false;
            break;
        }
        return;
    }

    // A free place: its column, without the margin.
    int i = 1;
    while (i <= nb_collabs && !(col_x[std::size_t(i - 1)] <= x && x <= col_x[std::size_t(i)]))
        ++i;
    if (i > nb_collabs) return;
    const QString& entree = etat.noms_collab[std::size_t(i)];
    std::int16_t cible = 0;
    etape([&] { cible = en_i16(val(entree)); });
    if (transfert == Transfert::attente_depot) {
        depose(y, cible);
        return;
    }
    // The collaborator of the place becomes the book's own, and the planning closes.
    etat.num_rv = 0;
    etape([&] {
        ecrit_inter(QStringLiteral("TORVA:NUMUSER"),
                    motif_zeros(cible, 4) + QLatin1Char(' ') + sans_blancs(mid1(entree, 6)));
    });
    ferme();
}

void Torva11::depose(int y, std::int16_t cible) {
    transfert = Transfert::repos;
    Label1.clear();
    Label1_visible = false;
    // Between the voiding and the new record the appointment lives only in `copie`: the old
    // record goes first, so that no moment shows it twice.
    etape([] { ouvre_rv(); });
    RecRv copie;
    etape([&] { copie = lit_record<RecRv>(canal::rv, std::int64_t(etat.num_rv) + 1); });
    etape([&] {
        RecRv rec = lit_record<RecRv>(canal::rv, std::int64_t(etat.num_rv) + 1);
        rec.pose(RecRv::cle_rv, QString());
        ecrit_record(canal::rv, std::int64_t(etat.num_rv) + 1, rec);
    });
    etat.num_collab = cible;
    etape([&] { cre_rv_utilis(); });
    etat.num_rv = nouveau_num;
    // Only the start hour changes; the editor, opened at once, sets the rest.
    etape([&] {
        const double heure =
            std::floor(double(y - marge_haut) / non_nul(hauteur_heure)) + double(heure_ouverture);
        QString cle = copie.lit(RecRv::cle_rv);
        cle.replace(7, 2, motif_zeros(double(en_i16(heure)), 2).left(2));
        copie.pose(RecRv::cle_rv, cle);
    });
    etape([&] { ecrit_record(canal::rv, std::int64_t(nouveau_num) + 1, copie); });
    Detarv editeur;
    etape([&] { ui::montre_modal(editeur); });
    Form_Load();
}

void Torva11::cre_rv_utilis() {
    ouvre_rv();
    nouveau_num = alloue_numero(canal_fichier(canal::rv));
}

void Torva11::p1_MouseMove(int x, int y) {
    // Every row under the pointer, the last one winning: the appointment that a drop would
    // move is the one the pointer last passed over.
    for (const BoiteRv& b : table_rv) {
        if (!b.contient(x, y)) continue;
        etat.num_collab = static_cast<std::int16_t>(b.collab);
        etat.num_rv = b.numero;
        const QString t = liste_texte.value(b.texte - 1);
        Label5 = QString::number(b.numero);
        Label6 = mid1(t, 21);
        Label7 = p1.couleur_point(x, y);
        Label8 = t.left(5);
    }
}

void Torva11::Form_MouseMove() {
    Label5.clear();
    Label6.clear();
    Label8.clear();
    Label7 = 0xFFFFFF;
}

void Torva11::bt_trans_Click() {
    if (transfert != Transfert::repos) {
        transfert = Transfert::repos;
        Label1_visible = false;
        return;
    }
    transfert = Transfert::attente_prise;
    Label1 = prise;
    Label1_visible = true;
}

void Torva11::bt_date_Click() {
    Date97 choix;
    ui::montre_modal(choix);
    Form_Load();
}

void Torva11::Picture2_Click() {
    etat.date_courante -= 1;
    Form_Load();
}

void Torva11::Picture3_Click() {
    etat.date_courante += 1;
    Form_Load();
}

void Torva11::command1_Click() {
    // A workstation that started in the planning ends with it.
    if (lit_inter(QStringLiteral("TORVA:NUMUSER")).left(6) == QLatin1String("#GENE#"))
        ui::termine(0);
    ferme();
}

} // namespace agenda
