#pragma once
// The widgets of the settings window.

#include "settings/toroutils.h"
#include "ui/vue/vue.h"

#include <array>

class QCheckBox;
class QComboBox;
class QFrame;
class QLabel;
class QLineEdit;
class QListWidget;
class QPlainTextEdit;
class QTableWidget;

namespace agenda {

class ToroutilsVue : public ui::VueModale {
public:
    explicit ToroutilsVue(Toroutils& logique);

private:
    void montre() override;

    Toroutils& l_;
    std::array<QComboBox*, 3> combo1_{};
    QComboBox *combo2_, *combo3_;
    QLabel *label4_, *label5_, *label8_, *label7_;
    QFrame *shape2_, *aiguilh_, *aiguilm_;
    QTableWidget* g1_;
    QCheckBox* check1_;
    QLineEdit* text1_;
    QPlainTextEdit* text2_;
    QListWidget* list1_;
};

} // namespace agenda
