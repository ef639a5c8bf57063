#include "data/formats.h"

#include <algorithm>

namespace agenda {

using namespace octets;

RecRv RecRv::charge(TamponLu b) {
    RecRv r;
    r.cle_rv = texte(b, off_cle, lg_cle);
    r.texte_rv = texte(b, off_texte, lg_texte);
    for (int i = 0; i < 3; ++i) {
        r.reserve1[i] = i32(b, off_reserve1 + 4 * i);
        r.reserve2[i] = i32(b, off_reserve2 + 4 * i);
    }
    r.duree_rv = i32(b, off_duree);
    r.num_client = i32(b, off_num_client);
    r.code_jour = i32(b, off_code_jour);
    r.couleur_rv = i32(b, off_couleur);
    r.encadre_rv = i32(b, off_encadre);
    r.dernier_num = i32(b, off_dernier_num);
    r.zone_libre = texte(b, off_zone_libre, lg_zone_libre);
    r.ref_sms = texte(b, off_ref_sms, lg_ref_sms);
    r.fin_rec = texte(b, off_fin_rec, lg_fin_rec);
    return r;
}

void RecRv::range(Tampon b) const {
    pose_texte(b, off_cle, lg_cle, cle_rv);
    pose_texte(b, off_texte, lg_texte, texte_rv);
    for (int i = 0; i < 3; ++i) {
        pose_i32(b, off_reserve1 + 4 * i, reserve1[i]);
        pose_i32(b, off_reserve2 + 4 * i, reserve2[i]);
    }
    pose_i32(b, off_duree, duree_rv);
    pose_i32(b, off_num_client, num_client);
    pose_i32(b, off_code_jour, code_jour);
    pose_i32(b, off_couleur, couleur_rv);
    pose_i32(b, off_encadre, encadre_rv);
    pose_i32(b, off_dernier_num, dernier_num);
    pose_texte(b, off_zone_libre, lg_zone_libre, zone_libre);
    pose_texte(b, off_ref_sms, lg_ref_sms, ref_sms);
    pose_texte(b, off_fin_rec, lg_fin_rec, fin_rec);
}

RecParam RecParam::charge(TamponLu b) {
    RecParam r;
    r.valeur_param = texte(b, off_valeur, lg_valeur);
    r.num1_param = i32(b, off_num1);
    r.nb_param = i32(b, off_nb);
    r.num3_param = i32(b, off_num3);
    r.cle_param = texte(b, off_cle, lg_cle);
    r.fin_param = b[off_fin];
    return r;
}

void RecParam::range(Tampon b) const {
    pose_texte(b, off_valeur, lg_valeur, valeur_param);
    pose_i32(b, off_num1, num1_param);
    pose_i32(b, off_nb, nb_param);
    pose_i32(b, off_num3, num3_param);
    pose_texte(b, off_cle, lg_cle, cle_param);
    b[off_fin] = fin_param;
}

RecArr::RecArr() {
    // Blank texts and zero numbers, field by field, as a read past the end delivers them.
    zone_55.fill(0);
    std::fill(zone_55.begin() + 28, zone_55.end(), ' ');
    zone_214.fill(0);
}

RecArr RecArr::charge(TamponLu b) {
    RecArr r;
    r.code_arr = texte(b, off_code, lg_code);
    r.nom_arr = texte(b, off_nom, lg_nom);
    r.nb_arr = i32(b, off_nb);
    r.info_arr = texte(b, off_info, lg_info);
    std::copy_n(b.begin() + 55, r.zone_55.size(), r.zone_55.begin());
    std::copy_n(b.begin() + 109, r.zone_109.size(), r.zone_109.begin());
    std::copy_n(b.begin() + 214, r.zone_214.size(), r.zone_214.begin());
    return r;
}

void RecArr::range(Tampon b) const {
    pose_texte(b, off_code, lg_code, code_arr);
    pose_texte(b, off_nom, lg_nom, nom_arr);
    std::copy(zone_55.begin(), zone_55.end(), b.begin() + 55);
    pose_i32(b, off_nb, nb_arr);
    std::copy(zone_109.begin(), zone_109.end(), b.begin() + 109);
    pose_texte(b, off_info, lg_info, info_arr);
    std::copy(zone_214.begin(), zone_214.end(), b.begin() + 214);
}

RecTxt20 RecTxt20::charge(TamponLu b) {
    return {octets::texte(b, 0, longueur)};
}

void RecTxt20::range(Tampon b) const {
    pose_texte(b, 0, longueur, this->texte);
}

} // namespace agenda
