#pragma once
// The widgets of the note entry: the note, two palettes and two picture buttons.

#include "editor/saisnote.h"
#include "ui/vue/vue.h"

class QPlainTextEdit;

namespace agenda {

class SaisnoteVue : public ui::VueModale {
public:
    explicit SaisnoteVue(Saisnote& logique);

private:
    void montre() override;

    Saisnote& l_;
    QPlainTextEdit* text1_;
};

} // namespace agenda
