#pragma once
// A client of W_CAI038.WDO, 1024 bytes. The file belongs to the point-of-sale program: the
// fields this program does not use are kept as raw bytes and written back as they were read.

#include "data/octets.h"

#include <array>
#include <cstdint>
#include <QString>

namespace agenda {

struct RecCli {
    static constexpr int longueur = 1024;
    static constexpr int off_code = 0, lg_code = 15;
    static constexpr int off_nom = 15, lg_nom = 40;
    static constexpr int off_adresse1 = 55, lg_adresse1 = 40;
    static constexpr int off_adresse2 = 95, lg_adresse2 = 40;
    static constexpr int off_code_ville = 135, lg_code_ville = 40;
    static constexpr int off_zone_175 = 175, lg_zone_175 = 30;
    static constexpr int off_telephone = 205, lg_telephone = 15;
    static constexpr int off_zone_220 = 220, lg_zone_220 = 15;
    static constexpr int off_zone_235 = 235, lg_zone_235 = 15;
    static constexpr int off_nombre_250 = 250;
    static constexpr int off_dernier_client = 254;
    static constexpr int off_marque_258 = 258;
    static constexpr int off_zone_260 = 260, lg_zone_260 = 5;
    static constexpr int off_zone_265 = 265, lg_zone_265 = 5;
    static constexpr int off_nombres_270 = 270, lg_nombres_270 = 16;
    static constexpr int off_zone_286 = 286, lg_zone_286 = 18;
    static constexpr int off_bloc_304 = 304, lg_bloc_304 = 126;
    static constexpr int off_titre = 374, lg_titre = 15; // inside bloc_304
    static constexpr int off_sexe = 430;
    static constexpr int off_bloc_432 = 432, lg_bloc_432 = 250;
    static constexpr int off_bloc_682 = 682, lg_bloc_682 = 62;
    static constexpr int off_date_naiss = 682, lg_date_naiss = 10; // inside bloc_682
    static constexpr int off_bloc_744 = 744, lg_bloc_744 = 280;

    // Every byte, as read; the accessors below read and write the named fields in place.
    std::array<std::uint8_t, longueur> octets_{};

    RecCli();
    static RecCli charge(octets::TamponLu buf);
    void range(octets::Tampon buf) const;

    QString texte(int offset, int largeur) const;
    void pose_texte(int offset, int largeur, const QString& s);
    std::int32_t entier(int offset) const;
    void pose_entier(int offset, std::int32_t v);
    std::int16_t court(int offset) const;
    void pose_court(int offset, std::int16_t v);
};
static_assert(RecCli::off_nom == RecCli::off_code + RecCli::lg_code);
static_assert(RecCli::off_telephone == RecCli::off_zone_175 + RecCli::lg_zone_175);
static_assert(RecCli::off_nombre_250 == RecCli::off_zone_235 + RecCli::lg_zone_235);
static_assert(RecCli::off_marque_258 == RecCli::off_dernier_client + 4);
static_assert(RecCli::off_zone_286 == RecCli::off_nombres_270 + RecCli::lg_nombres_270);
static_assert(RecCli::off_sexe == RecCli::off_bloc_304 + RecCli::lg_bloc_304);
static_assert(RecCli::off_titre == RecCli::off_bloc_304 + 70);
static_assert(RecCli::off_bloc_682 == RecCli::off_bloc_432 + RecCli::lg_bloc_432);
static_assert(RecCli::off_bloc_744 + RecCli::lg_bloc_744 == RecCli::longueur);

} // namespace agenda
