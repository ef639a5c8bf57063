#include "planning/saisiuti.h"

#include "data/etat.h"
#include "data/texte.h"

namespace agenda {

void Saisiuti::Form_Load() {
    const int entrees = etat.nb_collab;
    barre_defilement = entrees > lignes_visibles;
    largeur_colonne0 = g1_rect.width - (barre_defilement ? barre : 0);
    for (int i = 1; i <= lignes; ++i) {
        const bool entree = i <= entrees;
        g1_nom[std::size_t(i - 1)] =
            entree ? sans_blancs(mid1(etat.noms_collab[std::size_t(i)], 5)) : QString();
        g1_ligne[std::size_t(i - 1)] = entree ? etat.noms_collab[std::size_t(i)] : QString();
    }
}

void Saisiuti::g1_Click(int ligne) {
    if (ligne < 0 || ligne >= lignes) return;
    const QString& texte = g1_ligne[std::size_t(ligne)];
    if (sans_blancs(texte).isEmpty()) return; // a stripe below the list
    etat.texte_retour = texte;
    ferme();
}

void Saisiuti::bt_annull_Click() {
    etat.texte_retour.clear();
    ferme();
}

} // namespace agenda
