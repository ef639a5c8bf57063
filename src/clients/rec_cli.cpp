#include "clients/rec_cli.h"

#include <algorithm>

namespace agenda {

RecCli::RecCli() {
    // Blank texts and zero numbers, as a read past the end delivers them.
    octets_.fill(' ');
    for (const auto& [offset, largeur] : {std::pair{off_nombre_250, 4},
                                          {off_dernier_client, 4},
                                          {off_marque_258, 2},
                                          {off_nombres_270, lg_nombres_270},
                                          {off_sexe, 2}})
        std::fill_n(octets_.begin() + offset, largeur, 0);
}

RecCli RecCli::charge(octets::TamponLu buf) {
    RecCli r;
    std::copy_n(buf.begin(), longueur, r.octets_.begin());
    return r;
}

void RecCli::range(octets::Tampon buf) const {
    std::copy(octets_.begin(), octets_.end(), buf.begin());
}

QString RecCli::texte(int offset, int largeur) const {
    return octets::texte(octets_, offset, largeur);
}

void RecCli::pose_texte(int offset, int largeur, const QString& s) {
    octets::pose_texte(octets_, offset, largeur, s);
}

std::int32_t RecCli::entier(int offset) const {
    return octets::i32(octets_, offset);
}

void RecCli::pose_entier(int offset, std::int32_t v) {
    octets::pose_i32(octets_, offset, v);
}

std::int16_t RecCli::court(int offset) const {
    return octets::i16(octets_, offset);
}

void RecCli::pose_court(int offset, std::int16_t v) {
    octets::pose_i16(octets_, offset, v);
}

} // namespace agenda
