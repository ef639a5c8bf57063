#pragma once
// The two small files shared with the point-of-sale program: W_intlog.wdo, named texts left by
// and for the calling program, and wrv181ff.wdo, the slip of the last validated appointment.

#include "data/record.h"

#include <cstdint>
#include <QString>

namespace agenda {

struct RecInter : Record<128> {
    static constexpr Texte cle_inter{0, 15};
    static constexpr Texte zone_15{15, 8};
    static constexpr Texte valeur_inter{23, 40};
    static constexpr Texte zone_63{63, 1};
    static constexpr Texte zone_64{64, 60};
    static constexpr Entier32 nb_inter{124};

    RecInter() { zeros(nb_inter.offset, 4); }
};
static_assert(RecInter::zone_15.offset == RecInter::cle_inter.fin());
static_assert(RecInter::valeur_inter.offset == RecInter::zone_15.fin());
static_assert(RecInter::zone_63.offset == RecInter::valeur_inter.fin());
static_assert(RecInter::zone_64.offset == RecInter::zone_63.fin());
static_assert(RecInter::nb_inter.offset == RecInter::zone_64.fin());
static_assert(RecInter::nb_inter.fin() == RecInter::longueur);

// W_intlog.wdo, on the first free channel, initialised when its mark is missing.
void ouvre_inter();
// Adds an entry behind the header's count; returns its number.
std::int32_t ajoute_inter();
// The number of the entry whose key is `cle_recherche` (15 characters), or -1.
std::int32_t cherche_inter(const QString& cle_recherche);
// The 40 characters of the value, blanks included, or the empty text.
QString lit_inter(const QString& cle);
void ecrit_inter(const QString& cle, const QString& valeur);

// The slip file, with its ten default lines on a new file; it stays open. Returns the record
// buffer as the opening left it.
RecInter ouvre_rvv_181();
// The two variable lines of the slip: the date in words, and "à : HH H MM".
void ecrit_rendez_vous(const QString& date_en_lettres, const QString& heure, const QString& minute);

} // namespace agenda
