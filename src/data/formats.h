#pragma once
// The record formats of the data files: the appointment and note record, the parameter store,
// and the two read-only files of the point-of-sale side. Offsets are the bytes on disk.

#include "data/octets.h"

#include <array>
#include <cstdint>
#include <QString>

namespace agenda {

// Appointments (tf_r) and notes (tf_a), 512 bytes.
struct RecRv {
    static constexpr int longueur = 512;
    static constexpr int off_cle = 0, lg_cle = 20;
    static constexpr int off_texte = 20, lg_texte = 402;
    static constexpr int off_reserve1 = 422; // three integers
    static constexpr int off_duree = 434;
    static constexpr int off_num_client = 438;
    static constexpr int off_code_jour = 442;
    static constexpr int off_couleur = 446;
    static constexpr int off_encadre = 450;
    static constexpr int off_reserve2 = 454; // three integers
    static constexpr int off_dernier_num = 466;
    static constexpr int off_zone_libre = 470, lg_zone_libre = 20;
    static constexpr int off_ref_sms = 490, lg_ref_sms = 20;
    static constexpr int off_fin_rec = 510, lg_fin_rec = 2;

    QString cle_rv;
    QString texte_rv;
    std::array<std::int32_t, 3> reserve1{};
    std::int32_t duree_rv = 0;
    std::int32_t num_client = 0;
    std::int32_t code_jour = 0;
    std::int32_t couleur_rv = 0;
    std::int32_t encadre_rv = 0; // in a note: the text colour
    std::array<std::int32_t, 3> reserve2{};
    std::int32_t dernier_num = 0;
    QString zone_libre;
    QString ref_sms;
    QString fin_rec;

    static RecRv charge(octets::TamponLu buf);
    void range(octets::Tampon buf) const;
};
static_assert(RecRv::off_texte == RecRv::off_cle + RecRv::lg_cle);
static_assert(RecRv::off_reserve1 == RecRv::off_texte + RecRv::lg_texte);
static_assert(RecRv::off_duree == RecRv::off_reserve1 + 12);
static_assert(RecRv::off_reserve2 == RecRv::off_encadre + 4);
static_assert(RecRv::off_dernier_num == RecRv::off_reserve2 + 12);
static_assert(RecRv::off_zone_libre == RecRv::off_dernier_num + 4);
static_assert(RecRv::off_ref_sms == RecRv::off_zone_libre + RecRv::lg_zone_libre);
static_assert(RecRv::off_fin_rec + RecRv::lg_fin_rec == RecRv::longueur);

// The parameter store WTORV_IA.WDO, 144 bytes.
struct RecParam {
    static constexpr int longueur = 144;
    static constexpr int off_valeur = 0, lg_valeur = 106;
    static constexpr int off_num1 = 106;
    static constexpr int off_nb = 110;
    static constexpr int off_num3 = 114;
    static constexpr int off_cle = 118, lg_cle = 25;
    static constexpr int off_fin = 143, lg_fin = 1;

    QString valeur_param;
    std::int32_t num1_param = 0;
    std::int32_t nb_param = 0;
    std::int32_t num3_param = 0;
    QString cle_param;
    std::uint8_t fin_param = ' ';

    static RecParam charge(octets::TamponLu buf);
    void range(octets::Tampon buf) const;
};
static_assert(RecParam::off_num1 == RecParam::off_valeur + RecParam::lg_valeur);
static_assert(RecParam::off_cle == RecParam::off_num3 + 4);
static_assert(RecParam::off_fin + RecParam::lg_fin == RecParam::longueur);

// A service of the catalogue w_arr104.wdo, 256 bytes, read only: the bytes the agenda does not
// use are kept as read.
struct RecArr {
    static constexpr int longueur = 256;
    static constexpr int off_code = 0, lg_code = 15;
    static constexpr int off_nom = 15, lg_nom = 40;
    static constexpr int off_nb = 105;
    static constexpr int off_info = 113, lg_info = 101;

    QString code_arr;
    QString nom_arr;
    std::int32_t nb_arr = 0;
    QString info_arr;
    // The point-of-sale side's other fields: offsets 55-104 (numbers, then 22 text
    // characters), 109-112 and 214-255.
    std::array<std::uint8_t, 50> zone_55{};
    std::array<std::uint8_t, 4> zone_109{};
    std::array<std::uint8_t, 42> zone_214{};

    RecArr();
    static RecArr charge(octets::TamponLu buf);
    void range(octets::Tampon buf) const;
};
static_assert(RecArr::off_nom == RecArr::off_code + RecArr::lg_code);
static_assert(RecArr::off_nb == 55 + 50);
static_assert(RecArr::off_info == RecArr::off_nb + 4 + 4);
static_assert(RecArr::off_info + RecArr::lg_info + 42 == RecArr::longueur);

// A numbered setting of w_cai020.wdo, 20 bytes.
struct RecTxt20 {
    static constexpr int longueur = 20;
    QString texte;

    static RecTxt20 charge(octets::TamponLu buf);
    void range(octets::Tampon buf) const;
};

} // namespace agenda
