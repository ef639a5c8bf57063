#pragma once
// Data for the benchmarks, made in the working folder.

#include "ui/dates.h"

#include <cstdint>

namespace agenda::bench {

inline const ui::Date jour = ui::date_de(QDate(2026, 11, 22));

// One collaborator's appointment file over ten years: `records` records (the header
// included), `du_jour` of them on `jour`, spread over the day's hours.
void genere_rendez_vous(std::int16_t collab, int records, int du_jour);

} // namespace agenda::bench
