#pragma once
// The widgets of the open book, shown from the state of Torva1.

#include "book/torva1.h"
#include "ui/geometrie.h"
#include "ui/vue/vue.h"

#include <array>
#include <functional>
#include <memory>
#include <QWidget>
#include <vector>

class QCalendarWidget;
class QLabel;
class QPushButton;
class QToolButton;

namespace agenda {

class Sepaffic;
namespace ui {
class VueSurface;
} // namespace ui

class Torva1Vue : public QWidget, public ui::Vue {
public:
    explicit Torva1Vue(Torva1& logique);
    ~Torva1Vue() override;

protected:
    void keyPressEvent(QKeyEvent* e) override;
    void closeEvent(QCloseEvent* e) override;
    bool eventFilter(QObject* o, QEvent* e) override;

private:
    void montre() override;
    QLabel* texte(QWidget* parent, const ui::RectTwips& r, double points, bool gras,
                  Qt::Alignment a);

    Torva1& l_;
    std::unique_ptr<Sepaffic> sepaffic_;
    ui::VueSurface* pageg_;
    ui::VueSurface* paged_;
    std::array<QPushButton*, Torva1::nb_onglets> ongletg_{}, ongletd_{};
    QLabel *label1_, *label2_, *label3_, *label4_, *label7_;
    QCalendarWidget* calend_;
    QToolButton *picture2_, *picture3_;
    std::vector<QWidget*> vue_jour_; // what only the day view shows
    QLabel* nouvelle_etiquette(bool gauche);
    std::vector<QLabel*> etiquettes_g_, etiquettes_d_; // lrv and lrvd, kept from day to day
};

} // namespace agenda
