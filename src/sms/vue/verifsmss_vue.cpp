#include "sms/vue/verifsmss_vue.h"

#include "ui/vue/boutons.h"
#include "ui/vue/echelle.h"
#include "ui/vue/icc.h"
#include "ui/vue/widgets.h"

#include <QHeaderView>
#include <QLabel>
#include <QTableWidget>
#include <QToolButton>

namespace agenda {

namespace {} // namespace

VerifsmssVue::VerifsmssVue(Verifsmss& l)
    : VueModale(l, ui::largeur_livre, ui::hauteur_livre), l_(l) {
    setWindowTitle(QStringLiteral("Gestionnaire de SMS"));
    ui::taille_fenetre(*this);
    ui::libelle(*this, Verifsmss::titre_rect, QStringLiteral("Messages en attente d'envoi"),
                ui::police(QStringLiteral("DejaVu Serif"), 18, true));
    ui::libelle(*this, Verifsmss::Label1_rect,
                QStringLiteral("Cliquez deux fois pour modifier le message "),
                ui::police(QStringLiteral("DejaVu Serif"), 10, false));
    ui::libelle(*this, Verifsmss::Label2_rect,
                QStringLiteral("Cliquez deux fois pour annuler le message"),
                ui::police(QStringLiteral("DejaVu Serif"), 10, false));

    g1_ = new QTableWidget(0, 4, this);
    ui::place(*g1_, Verifsmss::g1_rect);
    g1_->setHorizontalHeaderLabels(
        {QString(), QStringLiteral("Date"), QStringLiteral("Heure"), QStringLiteral("Message")});
    g1_->horizontalHeader()->setFixedHeight(ui::px(Verifsmss::hauteur_entete));
    g1_->horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    g1_->verticalHeader()->hide();
    g1_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    g1_->setSelectionMode(QAbstractItemView::SingleSelection);
    g1_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    g1_->setFont(ui::police(QStringLiteral("DejaVu Sans"), 9));
    for (int c = 0; c < 3; ++c)
        g1_->setColumnWidth(c, ui::px(Verifsmss::largeur_colonnes[c]));
    g1_->setColumnWidth(3, ui::px(Verifsmss::largeur_message()));
    g1_->setIconSize(QSize(ui::px(400), ui::px(400)));
    // The grid's rows from 0 are the manager's from 1: its header is the table's own.
    connect(g1_, &QTableWidget::cellDoubleClicked, this, [this](int ligne, int colonne) {
        apres_le_clic([this, ligne, colonne] { l_.g1_DblClick(ligne + 1, colonne); });
    });

    ui::bouton_image(*this, Verifsmss::Image1_rect, true, [this] {
        appelle([&] { l_.Image1_Click(); });
    })->setToolTip(QStringLiteral("Appliquer les annulations et fermer"));
    montre();
}

void VerifsmssVue::montre() {
    g1_->setRowCount(l_.lignes_grille - 1);
    const QSize image(ui::px(400), ui::px(400));
    for (int i = 0; i < g1_->rowCount(); ++i) {
        const bool message = i < int(l_.g1.size());
        const Verifsmss::Ligne l = message ? l_.g1[std::size_t(i)] : Verifsmss::Ligne{};
        auto* marque = new QTableWidgetItem;
        if (message) marque->setIcon(ui::icc::marque_sms(l.marque_annul, image));
        g1_->setItem(i, 0, marque);
        const QString textes[] = {l.date, l.heure, l.message};
        for (int c = 1; c <= 3; ++c) {
            auto* t = new QTableWidgetItem(textes[c - 1]);
            t->setTextAlignment(c == 3 ? Qt::AlignLeft | Qt::AlignVCenter : Qt::AlignCenter);
            g1_->setItem(i, c, t);
        }
    }
}

} // namespace agenda
