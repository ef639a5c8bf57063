#pragma once
// The record formats of the data files: the appointment and note record, the parameter store,
// and the two read-only files of the point-of-sale side. Offsets are the bytes on disk.

#include "data/record.h"

namespace agenda {

// Appointments (tf_r) and notes (tf_a), 512 bytes.
struct RecRv : Record<512> {
    static constexpr Texte cle_rv{0, 20};
    static constexpr Texte texte_rv{20, 402};
    static constexpr int reserve1 = 422; // three integers
    static constexpr Entier32 duree_rv{434};
    static constexpr Entier32 num_client{438};
    static constexpr Entier32 code_jour{442};
    static constexpr Entier32 couleur_rv{446};
    static constexpr Entier32 encadre_rv{450}; // in a note: the text colour
    static constexpr int reserve2 = 454;       // three integers
    static constexpr Entier32 dernier_num{466};
    static constexpr Texte zone_libre{470, 20};
    static constexpr Texte ref_sms{490, 20};
    static constexpr Texte fin_rec{510, 2};

    RecRv() { zeros(reserve1, dernier_num.fin() - reserve1); }
};
static_assert(RecRv::texte_rv.offset == RecRv::cle_rv.fin());
static_assert(RecRv::reserve1 == RecRv::texte_rv.fin());
static_assert(RecRv::duree_rv.offset == RecRv::reserve1 + 12);
static_assert(RecRv::num_client.offset == RecRv::duree_rv.fin());
static_assert(RecRv::code_jour.offset == RecRv::num_client.fin());
static_assert(RecRv::couleur_rv.offset == RecRv::code_jour.fin());
static_assert(RecRv::encadre_rv.offset == RecRv::couleur_rv.fin());
static_assert(RecRv::reserve2 == RecRv::encadre_rv.fin());
static_assert(RecRv::dernier_num.offset == RecRv::reserve2 + 12);
static_assert(RecRv::zone_libre.offset == RecRv::dernier_num.fin());
static_assert(RecRv::ref_sms.offset == RecRv::zone_libre.fin());
static_assert(RecRv::fin_rec.offset == RecRv::ref_sms.fin());
static_assert(RecRv::fin_rec.fin() == RecRv::longueur);

// The parameter store WTORV_IA.WDO, 144 bytes.
struct RecParam : Record<144> {
    static constexpr Texte valeur_param{0, 106};
    static constexpr Entier32 num1_param{106};
    static constexpr Entier32 nb_param{110};
    static constexpr Entier32 num3_param{114};
    static constexpr Texte cle_param{118, 25};
    static constexpr Texte fin_param{143, 1}; // carried over from record 1, never read

    RecParam() { zeros(num1_param.offset, num3_param.fin() - num1_param.offset); }
};
static_assert(RecParam::num1_param.offset == RecParam::valeur_param.fin());
static_assert(RecParam::nb_param.offset == RecParam::num1_param.fin());
static_assert(RecParam::num3_param.offset == RecParam::nb_param.fin());
static_assert(RecParam::cle_param.offset == RecParam::num3_param.fin());
static_assert(RecParam::fin_param.offset == RecParam::cle_param.fin());
static_assert(RecParam::fin_param.fin() == RecParam::longueur);

// A service of the catalogue w_arr104.wdo, 256 bytes, read only. Between the named fields lie
// the point-of-sale side's numbers (55-82, 109-112, 214-255) and texts (83-104).
struct RecArr : Record<256> {
    static constexpr Texte code_arr{0, 15};
    static constexpr Texte nom_arr{15, 40};
    static constexpr int nombres_55 = 55, lg_nombres_55 = 28;
    static constexpr int textes_83 = 83;
    static constexpr Entier32 nb_arr{105};
    static constexpr int nombre_109 = 109;
    static constexpr Texte info_arr{113, 101};
    static constexpr int nombres_214 = 214;

    RecArr() {
        zeros(nombres_55, lg_nombres_55);
        zeros(nb_arr.offset, info_arr.offset - nb_arr.offset);
        zeros(nombres_214, longueur - nombres_214);
    }
};
static_assert(RecArr::nom_arr.offset == RecArr::code_arr.fin());
static_assert(RecArr::nombres_55 == RecArr::nom_arr.fin());
static_assert(RecArr::textes_83 == RecArr::nombres_55 + RecArr::lg_nombres_55);
static_assert(RecArr::nb_arr.offset == RecArr::textes_83 + 10 + 10 + 2);
static_assert(RecArr::nombre_109 == RecArr::nb_arr.fin());
static_assert(RecArr::info_arr.offset == RecArr::nombre_109 + 4);
static_assert(RecArr::nombres_214 == RecArr::info_arr.fin());

// A numbered setting of w_cai020.wdo, 20 bytes.
struct RecTxt20 : Record<20> {
    static constexpr Texte texte{0, 20};
};
static_assert(RecTxt20::texte.fin() == RecTxt20::longueur);

} // namespace agenda
