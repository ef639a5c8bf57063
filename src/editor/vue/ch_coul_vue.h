#pragma once
// The widgets of the colour picker: a caption and a palette.

#include "editor/ch_coul.h"
#include "ui/vue/vue.h"

namespace agenda {

class ChCoulVue : public ui::VueModale {
public:
    explicit ChCoulVue(ChCoul& logique);

private:
    void montre() override {}
};

} // namespace agenda
