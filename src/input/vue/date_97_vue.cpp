#include "input/vue/date_97_vue.h"

#include "ui/dates.h"
#include "ui/vue/boutons.h"
#include "ui/vue/echelle.h"
#include "ui/vue/widgets.h"

#include <QCalendarWidget>
#include <QLabel>

namespace agenda {

Date97Vue::Date97Vue(Date97& l) : VueModale(l, l.largeur, l.hauteur), l_(l) {
    monthview1_ = ui::calendrier(*this, l.MonthView1_rect, font());

    label1_ = new QLabel(this);
    ui::place(*label1_, l.Label1_rect);
    label1_->setAlignment(Qt::AlignCenter);
    label1_->setFont(ui::police(QStringLiteral("DejaVu Serif"), 12, true));

    connect(monthview1_, &QCalendarWidget::selectionChanged, this, [this] {
        const Date jour = ui::date_de(monthview1_->selectedDate());
        appelle([this, jour] { l_.MonthView1_SelChange(jour); });
    });
    connect(monthview1_, &QCalendarWidget::clicked, this,
            [this](QDate j) { appelle([this, j] { l_.MonthView1_DateClick(ui::date_de(j)); }); });
    // A double click, or Enter, on a day.
    connect(monthview1_, &QCalendarWidget::activated, this, [this](QDate j) {
        appelle([this, j] { l_.MonthView1_DateDblClick(ui::date_de(j)); });
    });
    ui::bouton_image(*this, l.btc2_rect, true, [this] { appelle([this] { l_.btc_Click(2); }); });
    ui::bouton_image(*this, l.btc3_rect, false, [this] { appelle([this] { l_.btc_Click(3); }); });
    pose_cadre(ui::coin_fin);
    ui::centre_fenetre(*this);
    montre();
    monthview1_->setFocus();
}

void Date97Vue::montre() {
    const QSignalBlocker bloque(monthview1_);
    monthview1_->setSelectedDate(ui::jour_de(l_.MonthView1));
    label1_->setText(l_.Label1);
}

} // namespace agenda
