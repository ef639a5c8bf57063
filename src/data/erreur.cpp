#include "data/erreur.h"

#include "data/fichier_records.h"
#include "ui/systeme.h"

namespace agenda {

void fin_sur_erreur(const ErreurFatale& erreur) {
    ferme_tous_les_canaux();
    ui::message_fatal(erreur.message());
    ui::termine(1);
}

} // namespace agenda
