#include "search/vue/torvar_vue.h"

#include "ui/vue/boutons.h"
#include "ui/vue/echelle.h"
#include "ui/vue/icc.h"
#include "ui/vue/widgets.h"

#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QToolButton>

namespace agenda {

namespace {

QPushButton* bouton(QWidget& parent, const ui::RectTwips& r, const QString& t) {
    auto* b = new QPushButton(t, &parent);
    ui::place(*b, r);
    b->setFont(ui::police(QStringLiteral("DejaVu Sans"), 10, true));
    b->setCursor(Qt::PointingHandCursor);
    return b;
}

} // namespace

TorvarVue::TorvarVue(Torvar& l) : VueModale(l, ui::largeur_livre, ui::hauteur_livre), l_(l) {
    setWindowTitle(QStringLiteral("Recherche de rendez-vous"));
    ui::taille_fenetre(*this);
    ui::libelle(*this, Torvar::titre_rect, QStringLiteral("Recherche de rendez-vous"),
                ui::police(QStringLiteral("DejaVu Serif"), 18, true));
    text1_ = new QLineEdit(this);
    ui::place(*text1_, Torvar::Text1_rect);
    text1_->setFont(ui::police(QStringLiteral("DejaVu Sans"), 13));
    text1_->setPlaceholderText(QStringLiteral("Nom, prestation..."));
    connect(text1_, &QLineEdit::textEdited, this,
            [this](const QString& t) { appelle([&] { l_.Text1_Change(t); }); });
    // Enter searches, as the button does.
    connect(text1_, &QLineEdit::returnPressed, this,
            [this] { apres_le_clic([this] { l_.btc_rech_Click(); }); });
    connect(bouton(*this, Torvar::btc_rech_rect, QStringLiteral("Rechercher")),
            &QPushButton::clicked, this,
            [this] { apres_le_clic([this] { l_.btc_rech_Click(); }); });
    connect(bouton(*this, Torvar::btcli_rect, QStringLiteral("Client...")), &QPushButton::clicked,
            this, [this] { apres_le_clic([this] { l_.btcli_Click(); }); });

    oui0_ = new QToolButton(this);
    ui::place(*oui0_, Torvar::oui_rect);
    oui0_->setAutoRaise(true);
    oui0_->setIconSize(oui0_->size());
    oui0_->setCursor(Qt::PointingHandCursor);
    connect(oui0_, &QToolButton::clicked, this, [this] { appelle([&] { l_.oui_Click(0); }); });
    ui::libelle(*this, Torvar::Check1_libelle_rect,
                QStringLiteral("Cache les rendez- vous dont la date est dépassée"),
                ui::police(QStringLiteral("DejaVu Serif"), 10, false));

    g1_ = new QTableWidget(0, 4, this);
    ui::place(*g1_, Torvar::g1_rect);
    g1_->setHorizontalHeaderLabels({QStringLiteral("Date"), QStringLiteral("Heure"),
                                    QStringLiteral("Rendez-vous"), QStringLiteral("Coll")});
    g1_->horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    g1_->verticalHeader()->hide();
    g1_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    g1_->setSelectionBehavior(QAbstractItemView::SelectRows);
    g1_->setSelectionMode(QAbstractItemView::SingleSelection);
    g1_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    g1_->setFont(ui::police(QStringLiteral("DejaVu Sans"), 9));
    for (int c = 0; c < 4; ++c)
        g1_->setColumnWidth(c,
                            ui::px(c == 2 ? Torvar::largeur_rendez_vous() : Torvar::largeurs[c]));
    connect(g1_, &QTableWidget::cellDoubleClicked, this, [this](int ligne, int) {
        apres_le_clic([this, ligne] { l_.g1_DblClick(ligne + 1); });
    });

    ui::libelle(*this, Torvar::note_rect,
                QStringLiteral("Aprés avoir effectué votre recherche, cliquez deux fois sur un "
                               "rendez-vous affiché pour le modifier ou le supprimer"),
                ui::police(QStringLiteral("DejaVu Serif"), 10, false));
    connect(bouton(*this, Torvar::btc_fin_rect, QStringLiteral("Fermer")), &QPushButton::clicked,
            this, [this] { appelle([&] { l_.btc_fin_Click(); }); });
    montre();
    text1_->setFocus();
}

void TorvarVue::montre() {
    oui0_->setIcon(ui::icc::interrupteur(l_.oui[0], oui0_->size()));
    const int lignes = int(l_.g1.size());
    g1_->setUpdatesEnabled(false);
    g1_->setRowCount(lignes);
    const QSize bande(g1_->columnWidth(2), g1_->verticalHeader()->defaultSectionSize());
    for (int i = 0; i < lignes; ++i) {
        const Torvar::Ligne& l = l_.g1[std::size_t(i)];
        const QString textes[] = {l.date, l.heure, l.rendez_vous, l.coll};
        for (int c = 0; c < 4; ++c) {
            auto* t = new QTableWidgetItem(textes[c]);
            t->setTextAlignment(c < 2 ? Qt::AlignCenter : Qt::AlignLeft | Qt::AlignVCenter);
            // Rows 1 to 50 alternate, by their number from 1.
            if (i < Torvar::lignes_fond)
                t->setBackground(QBrush(ui::icc::barre((i + 1) % 2 == 0, bande)));
            g1_->setItem(i, c, t);
        }
    }
    g1_->setUpdatesEnabled(true);
    if (text1_->text() != l_.Text1) text1_->setText(l_.Text1);
}

} // namespace agenda
