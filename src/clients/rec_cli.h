#pragma once
// A client of W_CAI038.WDO, 1024 bytes. The file belongs to the point-of-sale program: the
// record is its bytes, and the fields this program does not name are written back as read.

#include "data/record.h"

namespace agenda {

struct RecCli : Record<1024> {
    static constexpr Texte code_client{0, 15};
    static constexpr Texte nom_client{15, 40};
    static constexpr Texte adresse1{55, 40};
    static constexpr Texte adresse2{95, 40};
    static constexpr Texte code_ville{135, 40};
    static constexpr Texte zone_175{175, 30};
    static constexpr Texte telephone{205, 15};
    static constexpr Texte zone_220{220, 15};
    static constexpr Texte zone_235{235, 15};
    static constexpr Entier32 nombre_250{250};
    static constexpr Entier32 dernier_client{254}; // in record 1: the last number given out
    static constexpr Entier16 marque_258{258};
    static constexpr Texte zone_260{260, 5};
    static constexpr Texte zone_265{265, 5};
    static constexpr int nombres_270 = 270, lg_nombres_270 = 16;
    static constexpr Texte zone_286{286, 18};
    static constexpr Texte bloc_304{304, 126};
    static constexpr Texte titre{374, 15}; // inside bloc_304
    static constexpr Entier16 sexe{430};
    static constexpr Texte bloc_432{432, 250};
    static constexpr Texte bloc_682{682, 62};
    static constexpr Texte date_naiss{682, 10}; // inside bloc_682
    static constexpr Texte bloc_744{744, 280};

    RecCli() {
        zeros(nombre_250.offset, marque_258.fin() - nombre_250.offset);
        zeros(nombres_270, lg_nombres_270);
        zeros(sexe.offset, 2);
    }
    void zeros_270() { zeros(nombres_270, lg_nombres_270); }
};
static_assert(RecCli::nom_client.offset == RecCli::code_client.fin());
static_assert(RecCli::adresse1.offset == RecCli::nom_client.fin());
static_assert(RecCli::adresse2.offset == RecCli::adresse1.fin());
static_assert(RecCli::code_ville.offset == RecCli::adresse2.fin());
static_assert(RecCli::zone_175.offset == RecCli::code_ville.fin());
static_assert(RecCli::telephone.offset == RecCli::zone_175.fin());
static_assert(RecCli::zone_220.offset == RecCli::telephone.fin());
static_assert(RecCli::zone_235.offset == RecCli::zone_220.fin());
static_assert(RecCli::nombre_250.offset == RecCli::zone_235.fin());
static_assert(RecCli::dernier_client.offset == RecCli::nombre_250.fin());
static_assert(RecCli::marque_258.offset == RecCli::dernier_client.fin());
static_assert(RecCli::zone_260.offset == RecCli::marque_258.fin());
static_assert(RecCli::zone_265.offset == RecCli::zone_260.fin());
static_assert(RecCli::nombres_270 == RecCli::zone_265.fin());
static_assert(RecCli::zone_286.offset == RecCli::nombres_270 + RecCli::lg_nombres_270);
static_assert(RecCli::bloc_304.offset == RecCli::zone_286.fin());
static_assert(RecCli::titre.offset == RecCli::bloc_304.offset + 70);
static_assert(RecCli::sexe.offset == RecCli::bloc_304.fin());
static_assert(RecCli::bloc_432.offset == RecCli::sexe.fin());
static_assert(RecCli::bloc_682.offset == RecCli::bloc_432.fin());
static_assert(RecCli::bloc_744.offset == RecCli::bloc_682.fin());
static_assert(RecCli::bloc_744.fin() == RecCli::longueur);

} // namespace agenda
