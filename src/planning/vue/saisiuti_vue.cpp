#include "planning/vue/saisiuti_vue.h"

#include "ui/vue/echelle.h"
#include "ui/vue/icc.h"
#include "ui/vue/widgets.h"

#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>

namespace agenda {

SaisiutiVue::SaisiutiVue(Saisiuti& l) : VueModale(l, Saisiuti::largeur, Saisiuti::hauteur), l_(l) {
    setWindowTitle(QStringLiteral("Collaborateurs"));
    auto* label1 = new QLabel(Saisiuti::Label1, this);
    ui::place(*label1, Saisiuti::Label1_rect);
    label1->setWordWrap(true);
    label1->setFont(ui::police(QStringLiteral("DejaVu Serif"), 10, true));

    g1_ = new QTableWidget(Saisiuti::lignes, 2, this);
    ui::place(*g1_, Saisiuti::g1_rect);
    g1_->horizontalHeader()->hide();
    g1_->verticalHeader()->hide();
    g1_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    g1_->verticalHeader()->setDefaultSectionSize(ui::px(Saisiuti::hauteur_ligne));
    g1_->setShowGrid(false);
    g1_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    g1_->setSelectionMode(QAbstractItemView::NoSelection);
    g1_->setFocusPolicy(Qt::NoFocus);
    g1_->setFrameStyle(QFrame::Box | QFrame::Plain);
    g1_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    g1_->setColumnHidden(1, true); // the line of the list, out of sight
    g1_->setFont(ui::police(QStringLiteral("DejaVu Sans"), 11, true));
    g1_->setCursor(Qt::PointingHandCursor);
    connect(g1_, &QTableWidget::cellClicked, this,
            [this](int ligne, int) { appelle([&] { l_.g1_Click(ligne); }); });

    auto* annuler = new QPushButton(QStringLiteral("Annuler"), this);
    ui::place(*annuler, Saisiuti::bt_annull_rect);
    annuler->setFont(ui::police(QStringLiteral("DejaVu Sans"), 10, true));
    connect(annuler, &QPushButton::clicked, this,
            [this] { appelle([&] { l_.bt_annull_Click(); }); });

    pose_cadre(ui::coin_fin);
    ui::centre_fenetre(*this);
    montre();
}

void SaisiutiVue::montre() {
    g1_->setVerticalScrollBarPolicy(l_.barre_defilement ? Qt::ScrollBarAsNeeded
                                                        : Qt::ScrollBarAlwaysOff);
    g1_->setColumnWidth(0, ui::px(l_.largeur_colonne0) - 2 * g1_->frameWidth());
    const QSize bande(g1_->columnWidth(0), ui::px(Saisiuti::hauteur_ligne));
    for (int i = 0; i < Saisiuti::lignes; ++i) {
        // The stripes alternate by the row's number from 1.
        auto* nom = new QTableWidgetItem(l_.g1_nom[std::size_t(i)]);
        nom->setTextAlignment(Qt::AlignCenter);
        nom->setData(Qt::BackgroundRole, QBrush(ui::icc::barre((i + 1) % 2 == 0, bande)));
        g1_->setItem(i, 0, nom);
        g1_->setItem(i, 1, new QTableWidgetItem(l_.g1_ligne[std::size_t(i)]));
    }
}

} // namespace agenda
