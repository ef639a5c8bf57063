#pragma once
// The widgets of the collaborator choice: a striped grid and a cancel button.

#include "planning/saisiuti.h"
#include "ui/vue/vue.h"

class QTableWidget;

namespace agenda {

class SaisiutiVue : public ui::VueModale {
public:
    explicit SaisiutiVue(Saisiuti& logique);

private:
    void montre() override;

    Saisiuti& l_;
    QTableWidget* g1_;
};

} // namespace agenda
