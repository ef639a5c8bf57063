#pragma once
// The widgets of the prompt box.

#include "input/mini_97.h"
#include "ui/vue/vue.h"

class QLabel;
class QPlainTextEdit;

namespace agenda {

class Mini97Vue : public ui::VueModale {
public:
    explicit Mini97Vue(Mini97& logique);

private:
    void montre() override;

    Mini97& l_;
    QLabel* label1_;
    QPlainTextEdit* text1_;
};

} // namespace agenda
