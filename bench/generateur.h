#pragma once
// Data for the benchmarks, made in the working folder.

#include "ui/dates.h"

#include <cstdint>

namespace agenda::bench {

inline const ui::Date jour = ui::date_de(QDate(2026, 11, 22));

// One collaborator's appointment file over ten years or more (a few dozen a day at most): `records`
// records (the header included), `du_jour` of them on `jour`, spread over the day's hours.
void genere_rendez_vous(std::int16_t collab, int records, int du_jour);

// A data folder the book opens on: 20 collaborators, the first one's file of `records` records
// with a dozen on `jour`.
void prepare_dossier_livre(int records);

} // namespace agenda::bench
