#pragma once
// The widgets of the on-screen keyboard: the question, the field, and the drawn keyboard with
// its 58 keys to tap.

#include "input/clavv.h"
#include "ui/vue/vue.h"

#include <array>

class QLabel;
class QLineEdit;
class QToolButton;

namespace agenda {

class ClavvVue : public ui::VueModale {
public:
    explicit ClavvVue(Clavv& logique);

private:
    void montre() override;

    Clavv& l_;
    QLabel* label1_;
    QLineEdit* text1_;
    std::array<QToolButton*, Clavv::touches> ttoc_{};
};

} // namespace agenda
