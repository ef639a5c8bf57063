#pragma once
// The data folder: the files the book keeps open, the collaborators, the touch-screen flag and
// the catalogue's header. Names are relative to the working folder.

#include <cstdint>
#include <QString>

namespace agenda {

QString nom_fichier_rv(std::int16_t collab, bool salle); // tf_r0007.wdo, or tf_z in room mode
QString nom_fichier_notes(std::int16_t collab);          // tf_a0007.wdo

// The book's appointment file of num_collab on channel 15; stays open.
void ouvre_rv();
// Another collaborator's file on the same channel, num_collab unchanged.
void ouvre_rv_de(std::int16_t collab, bool salle = false);
// The note file of num_collab on channel 16, opened for one note operation.
void ouvre_notes();
// The catalogue on channel 104; stays open.
void ouvre_arr();

// Record 42 of w_cai020.wdo into clavier_ecran; the file is closed at once.
void lit_clavier_ecran();
// nb_arr of the catalogue's record 1 into nb_services (channel 104 must be open).
void lit_nb_services();
// lien_agenda.txt into noms_collab, noms_par_num and nb_collab. A missing file, a 21st line or
// a collaborator number above 20 end the program.
void charge_collaborateurs();

// The two-second brake against repeated clicks: hourglass, yield until the time has passed.
void attente_sablier();
// The click brake of the year grid, the week note and the note entry. The time of the last click
// is a local that starts at zero at each click, so only a click in the first half second after
// midnight is held back (it waits, and is dropped): the working day's clicks are never refused.
// Returns whether the click goes on.
bool frein_du_clic();

} // namespace agenda
