#pragma once
// The appointment and note files (tf_r, tf_a): numbers allotted by appending, the header
// repaired by the file's length, the day scan and the note scan.

#include "data/etat.h"
#include "data/formats.h"

#include <array>
#include <cstdint>
#include <functional>
#include <QString>
#include <span>
#include <vector>

namespace agenda {

class FichierRecords;

// Raises dernier_num of record 1, then writes the record for the new number in one write;
// returns the number.
std::int32_t ajoute_numerote(FichierRecords& f, const RecRv& rec);
// The same with an empty record: an appointment's place, before its fields are written.
std::int32_t alloue_numero(FichierRecords& f);

// Brings a header (record 1, as a scan has just read it) that lags behind the file's length back
// into line; returns the count.
std::int32_t repare_entete(FichierRecords& f, RecRv entete);

// The day pattern "yymmdd" of a date.
QString motif_jour(Date d);
// The key of an appointment: "yymmdd:HHHMM:HHHMM" and two blanks, from the hour and minute texts
// as they stand.
QString cle_rendez_vous(Date jour, const QString& heure, const QString& minute,
                        const QString& heure_fin, const QString& minute_fin);
// The day of the month plus 31 times the month.
std::int32_t code_jour(Date jour);

// The day's scan of any file: `liste` its entries, `records` the records they were made from, in
// the same order. Both are emptied first; a vector kept from one day to the next keeps its room.
// Each entry is the first 19 characters of the key, the number in "000000", ":", the frame flag,
// "xxxxxxxxx", ":" and the colour.
void scan_journee(FichierRecords& f, Date jour, QStringList& liste, std::vector<RecRv>& records);
// Fills liste_jour for date_courante from the book's file (channel 15), and `records` with the
// records of its entries. A scan that fails leaves liste_jour as it was.
void charge_journee(std::vector<RecRv>& records);
// The day lists of the seven days from `lundi`, in one pass over the file.
std::array<QStringList, 7> scan_semaine(FichierRecords& f, Date lundi);
// The day's records among the first of a file, as many as `compte(header)` says, in record
// order: their numbers and bytes, until `rv` answers false.
void parcourt_jour(FichierRecords& f, Date jour,
                   const std::function<std::int32_t(const RecRv&)>& compte,
                   const std::function<bool(std::int32_t, std::span<const std::uint8_t>)>& rv);
// An entry of the day list for appointment `numero` and its record's bytes.
QString entree_du_jour(std::int32_t numero, std::span<const std::uint8_t> rec);

// The key of the week note of the week that begins on `lundi`: "SE:yymmdd".
QString cle_semaine(Date lundi);
// The first note under a key in the note file of num_collab, which is opened for the scan and
// closed after it: its number, 0 when there is none, and its record.
struct Note {
    std::int32_t numero = 0;
    RecRv rec;
};
Note lit_note(const QString& cle);

// The number of the first note whose first nine characters are the key ("JO:yymmdd",
// "SE:yymmdd"), or 0. The note file must be open on channel 16.
std::int32_t cherche_note(const QString& cle);

// Where the fields stand in an entry of liste_jour.
namespace entree_jour {
inline QString heure_debut(const QString& e) {
    return e.mid(7, 5);
} // characters 8 to 12
inline QString heure_fin(const QString& e) {
    return e.mid(13, 5);
} // characters 14 to 18
std::int32_t numero(const QString& e); // characters 20 to 25
inline bool encadre(const QString& e) {
    return e.mid(26, 1) == QLatin1String("1");
}
} // namespace entree_jour

} // namespace agenda
