#pragma once
// The widgets of the appointment editor.

#include "editor/detarv.h"
#include "ui/surface.h"
#include "ui/vue/vue.h"

#include <functional>
#include <optional>
#include <vector>

class QCheckBox;
class QComboBox;
class QCompleter;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QTableWidget;
class QToolButton;

namespace agenda {

namespace ui {
class VueSurface;
struct RectTwips;
} // namespace ui

class DetarvVue : public ui::VueModale {
public:
    explicit DetarvVue(Detarv& logique);
    ~DetarvVue() override;

protected:
    bool eventFilter(QObject* o, QEvent* e) override;

private:
    void montre() override;
    // A click, the pointer's shape and the tool tip over the clock's cells.
    bool evenement_horloge(QEvent* e);
    QTableWidget* grille(const ui::RectTwips& r, int lignes, int colonnes, double points);
    QComboBox* combo(const ui::RectTwips& r, const QStringList& liste, QString Detarv::*champ,
                     std::function<void()> clic);

    Detarv& l_;
    ui::Surface aiguilles_;
    QLabel *label4_, *label13_, *label15_, *label9_;
    QPlainTextEdit* text1_;
    QCheckBox* check1_;
    QLineEdit *text2_, *label7_;
    QTableWidget *g1_, *g2_;
    ui::VueSurface* picture2_;
    QPushButton *picture3_, *picture4_;
    QToolButton* image2_;
    QCompleter* sans_completion_ = nullptr;
    std::optional<Detarv::Cellule> pressee_; // the clock's cell under the left button
    std::vector<QComboBox*> combos_;
    std::vector<QString Detarv::*> champs_;
};

} // namespace agenda
