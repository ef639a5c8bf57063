#pragma once
// The widgets of the appointment search: the word, the buttons, the switch and the table.

#include "search/torvar.h"
#include "ui/vue/vue.h"

class QLineEdit;
class QTableWidget;
class QToolButton;

namespace agenda {

class TorvarVue : public ui::VueModale {
public:
    explicit TorvarVue(Torvar& logique);

private:
    void montre() override;

    Torvar& l_;
    QLineEdit* text1_;
    QTableWidget* g1_;
    QToolButton* oui0_;
};

} // namespace agenda
