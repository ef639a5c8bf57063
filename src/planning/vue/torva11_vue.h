#pragma once
// The widgets of the planning: the drawn day of every collaborator, the heading, the buttons
// and the labels that follow the pointer. The pointer's shape tells where a transfer stands.

#include "planning/torva11.h"
#include "ui/vue/vue.h"

#include <map>

class QFrame;
class QLabel;

namespace agenda {

namespace ui {
class VueSurface;
} // namespace ui

class Torva11Vue : public ui::VueModale {
public:
    explicit Torva11Vue(Torva11& logique);
    // The day of every collaborator on one A4 page, through the print dialog.
    void imprime();

protected:
    void mouseMoveEvent(QMouseEvent* e) override;

private:
    void montre() override;

    Torva11& l_;
    ui::VueSurface* p1_;
    std::map<int, QFrame*> cadnom_;
    QLabel *label1_, *label2_, *label3_, *label4_, *label5_, *label6_, *label7_, *label8_;
};

} // namespace agenda
