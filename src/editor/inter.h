#pragma once
// The two small files shared with the point-of-sale program: W_intlog.wdo, named texts left by
// and for the calling program, and wrv181ff.wdo, the slip of the last validated appointment.

#include "data/octets.h"

#include <cstdint>
#include <QString>

namespace agenda {

struct RecInter {
    static constexpr int longueur = 128;
    static constexpr int off_cle = 0, lg_cle = 15;
    static constexpr int off_zone_15 = 15, lg_zone_15 = 8;
    static constexpr int off_valeur = 23, lg_valeur = 40;
    static constexpr int off_zone_63 = 63, lg_zone_63 = 1;
    static constexpr int off_zone_64 = 64, lg_zone_64 = 60;
    static constexpr int off_nb = 124;

    QString cle_inter;
    QString zone_15;
    QString valeur_inter;
    QString zone_63;
    QString zone_64;
    std::int32_t nb_inter = 0;

    static RecInter charge(octets::TamponLu buf);
    void range(octets::Tampon buf) const;
};
static_assert(RecInter::off_zone_15 == RecInter::off_cle + RecInter::lg_cle);
static_assert(RecInter::off_valeur == RecInter::off_zone_15 + RecInter::lg_zone_15);
static_assert(RecInter::off_zone_63 == RecInter::off_valeur + RecInter::lg_valeur);
static_assert(RecInter::off_zone_64 == RecInter::off_zone_63 + RecInter::lg_zone_63);
static_assert(RecInter::off_nb == RecInter::off_zone_64 + RecInter::lg_zone_64);
static_assert(RecInter::off_nb + 4 == RecInter::longueur);

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
