#pragma once
// The program-wide state that every window reads by name. Windows pass no arguments: a caller
// sets these, shows a window and reads them when it closes.

#include "ui/dates.h"

#include <array>
#include <cstdint>
#include <QString>
#include <QStringList>

namespace agenda {

using ui::Date;

struct Etat {
    Date date_courante = 0;      // the date on show; 0 until the first load
    std::int16_t num_collab = 0; // the NNNN of the tf_ files; 0 is the general book
    std::int32_t num_rv = 0;     // the appointment in work; 0 is a new one
    std::int16_t page_base = 0;
    std::int16_t heure_clic = 0;

    // "TORVA:HEURE"
    std::int16_t heure_debut = 0;
    std::int16_t heure_rupture = 0;
    std::int16_t heure_fin = 0;
    std::int16_t duree_defaut = 0;

    // lien_agenda.txt: slots 1 to 20, slot 0 unused.
    std::array<QString, 21> noms_collab;
    std::array<QString, 21> noms_par_num;
    std::int16_t nb_collab = 0;

    std::int32_t nb_services = 0;
    std::int16_t clavier_ecran = 0;

    // The day list of charge_journee: entry i (from 1) is liste_jour[i - 1].
    QStringList liste_jour;
    int nb_jour() const { return static_cast<int>(liste_jour.size()); }

    std::int16_t num_client_courant = 0;
    bool sms_actif = false;
    QString texte_retour;
    std::int32_t mini_mode = 0;
    QString mini_texte;

    // Room mode: cleared at every load and set by nothing, so tf_z is never opened.
    bool mode_salle = false;
    // The one place a data folder could be put before four file names; nothing assigns it.
    QString prefixe_dossier;
    bool banniere_chargee = false;
    // Built for the year of date_courante by jours_feries.
    QString liste_feries;

    // The note entry's exchange with the book: the key ("SE:" or "JO:" and "yymmdd"), the text
    // on return, the note's number in the file (0 while it has none), and where the window
    // opens, in twips of the book.
    QString cle_note;
    QString texte_note;
    std::int16_t num_note = 0;
    std::int16_t note_x = 0, note_y = 0;
    // The colour picker's answer, 0x00BBGGRR.
    double couleur_choisie = 0;

    // Between drawings of the year view the year on show, as a number; during one, the date
    // being filled in.
    double annee_courante = 0;
    // Indexed by a day code (day + 31 * month): 1 marks a day with appointments in the year
    // view. Erased at each drawing and filled by nothing yet.
    std::array<std::int16_t, 451> jours_avec_rv{};
};

inline Etat etat;

} // namespace agenda
