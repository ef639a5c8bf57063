#pragma once
// The widgets of the client list: fourteen bars with their rows' texts, the painted keyboard,
// the criterion and the buttons.

#include "clients/lit_cli.h"
#include "ui/vue/vue.h"

#include <array>

class QLabel;
class QLineEdit;

namespace agenda {

class LitCliVue : public ui::VueModale {
public:
    explicit LitCliVue(LitCli& logique);

protected:
    bool eventFilter(QObject* o, QEvent* e) override;

private:
    void montre() override;

    LitCli& l_;
    QLineEdit* text1_;
    std::array<QLabel*, LitCli::lignes + 1> zlis_{};
};

} // namespace agenda
