#pragma once
// The widgets of the client card.

#include "clients/cclifa.h"
#include "ui/vue/vue.h"

#include <array>

class QComboBox;
class QFrame;
class QLineEdit;

namespace agenda {

class CclifaVue : public ui::VueModale {
public:
    explicit CclifaVue(Cclifa& logique);

private:
    void montre() override;

    Cclifa& l_;
    std::array<QLineEdit*, Cclifa::nb_champs> text_{};
    QComboBox* combo11_;
    std::array<QFrame*, 4> shape2_{};
};

} // namespace agenda
