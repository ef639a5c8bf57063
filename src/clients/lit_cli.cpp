#include "clients/lit_cli.h"

#include "clients/client.h"
#include "data/etat.h"
#include "data/texte.h"
#include "input/mini_97.h"

#include <algorithm>
#include <limits>

namespace agenda {

namespace {

constexpr int touches_par_rang = 3;
constexpr int touche_x = 11800, touche_y = 330, pas_x = 1100, pas_y = 200, saut_de_rang = 500;

// The order of names as a reader expects it, without regard to case, accents with their letters:
// the upper-case text without its accents, compared character by character. A collator
// comparing the texts themselves cost most of an opening.
QString de_tri(const QString& majuscules) {
    bool accents = false;
    for (const QChar c : majuscules)
        accents |= c.unicode() >= 0x80;
    if (!accents) return majuscules;
    QString sans;
    for (const QChar c : majuscules.normalized(QString::NormalizationForm_D))
        if (c.category() != QChar::Mark_NonSpacing) sans += c;
    return sans;
}

} // namespace

ui::RectTwips LitCli::touche(int i) {
    const int k = i - 1, rang = k / touches_par_rang, colonne = k % touches_par_rang;
    const int rangs = rang * (touches_par_rang * pas_y + saut_de_rang);
    return {touche_x + colonne * pas_x, touche_y + rangs + colonne * pas_y, touche_largeur,
            touche_hauteur};
}

ui::RectTwips LitCli::toucc_rect(int i) {
    const ui::RectTwips t = touche(i);
    return {t.left, t.top + 120, t.width, t.height - 240};
}

QString LitCli::toucc(int i) {
    return i == touche_annuler ? QStringLiteral("Annuler la dernière lettre")
                               : QString(QChar(64 + i));
}

void LitCli::Form_Load() {
    ouvre_clients();
    List1.clear();
    List2.clear();
    parcourt_clients([&](std::int32_t n, std::span<const std::uint8_t> client) {
        const QString nom = RecCli::nom_client.dans(client);
        if (nom.startsWith(QLatin1String("(NUL)")) || sans_blancs(nom).isEmpty()) return;
        QString texte =
            sans_blancs(nom) + QLatin1Char(' ') + sans_blancs(RecCli::code_ville.dans(client));
        QString cle = texte.toUpper();
        QString tri = de_tri(cle);
        List2.push_back({std::move(texte), n, std::move(cle), std::move(tri)});
    });
    // Stable, as a sorted list places each new entry after its equals.
    std::stable_sort(List2.begin(), List2.end(),
                     [](const Entree& a, const Entree& b) { return a.cle_de_tri < b.cle_de_tri; });
    List1 = List2;
    affiche_liste();
}

void LitCli::Text1_Change(const QString& texte) {
    Text1 = texte;
    const QString c = Text1.toUpper(); // blanks count: not trimmed
    List1.clear();
    List1_index = -1;
    if (c.size() < 2) {
        List1 = List2;
    } else {
        for (const Entree& e : List2)
            if (e.cle.contains(c)) List1.push_back(e);
    }
    page_liste = 0;
    affiche_liste();
    if (!List1.empty()) List1_index = 0;
}

void LitCli::Text1_KeyDown(int touche) {
    switch (touche) {
    case bas:
        if (List1_index < int(List1.size()) - 1) ++List1_index;
        break;
    case haut:
        if (List1_index > 0) --List1_index;
        break;
    case echap:
        etat.texte_retour = QString(85, QLatin1Char(' '));
        ferme();
        break;
    case entree:
        if (List1_index >= 0 && !sans_blancs(List1[std::size_t(List1_index)].texte).isEmpty())
            choisit(List1[std::size_t(List1_index)].texte, List1[std::size_t(List1_index)].numero);
        break;
    default:
        break;
    }
}

void LitCli::toucc_Click(int i) {
    if (i >= 1 && i <= 26)
        Text1_Change(Text1 + QChar(64 + i));
    else if (i == touche_annuler && !Text1.isEmpty())
        Text1_Change(Text1.chopped(1));
}

void LitCli::zlis_Click(int i) {
    const std::int64_t k = std::int64_t(page_liste) * lignes + i - 1;
    // An empty row has no entry behind it: the tap does nothing.
    if (i < 1 || i > lignes || k < 0 || k >= std::int64_t(List1.size())) return;
    choisit(zlis[std::size_t(i)], List1[std::size_t(k)].numero);
}

void LitCli::Picture1_Click() {
    if (page_liste > 0) --page_liste;
    affiche_liste();
}

void LitCli::Picture2_Click() {
    // Past the last page the rows are empty; a page number that would overflow stays.
    if (page_liste < std::numeric_limits<std::int16_t>::max()) ++page_liste;
    affiche_liste();
}

void LitCli::Picture3_Click() {
    if (demande(QStringLiteral("Confirmez la création d'une nouvelle fiche client ?"), 4) != 6)
        return;
    etat.texte_retour = QStringLiteral("#CRE#");
    ferme();
}

void LitCli::Image1_Click() {
    etat.texte_retour.clear();
    ferme();
}

void LitCli::bt_ok_Click() {
    if (List1_index >= 0 && List1_index < int(List1.size()))
        choisit(List1[std::size_t(List1_index)].texte, List1[std::size_t(List1_index)].numero);
    else
        ferme(); // nothing selected: texte_retour as it was
}

void LitCli::affiche_liste() {
    for (int i = 1; i <= lignes; ++i) {
        const std::int64_t k = std::int64_t(page_liste) * lignes + i - 1;
        zlis[std::size_t(i)] =
            k < std::int64_t(List1.size()) ? List1[std::size_t(k)].texte : QString();
    }
}

void LitCli::choisit(const QString& texte, std::int32_t numero) {
    etat.texte_retour = cadre(texte, 80) + QLatin1Char(':') + QString::number(numero);
    ferme();
}

} // namespace agenda
