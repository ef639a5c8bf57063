#pragma once
// The widgets of the SMS manager: the grid of one number's messages and the button that applies
// the marks.

#include "sms/verifsmss.h"
#include "ui/vue/vue.h"

class QTableWidget;

namespace agenda {

class VerifsmssVue : public ui::VueModale {
public:
    explicit VerifsmssVue(Verifsmss& logique);

private:
    void montre() override;

    Verifsmss& l_;
    QTableWidget* g1_;
};

} // namespace agenda
