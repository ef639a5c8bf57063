#include "clients/vue/lit_cli_vue.h"

#include "ui/vue/boutons.h"
#include "ui/vue/echelle.h"
#include "ui/vue/icc.h"
#include "ui/vue/widgets.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>
#include <utility>

namespace agenda {

namespace {

// A picture to tap: no focus, so that the criterion keeps it while the keys are tapped.
QToolButton* a_taper(QWidget& parent, const ui::RectTwips& r, const QPixmap& image) {
    auto* b = new QToolButton(&parent);
    b->setObjectName(QStringLiteral("a_taper"));
    ui::place(*b, r);
    b->setFocusPolicy(Qt::NoFocus);
    b->setIcon(image);
    b->setIconSize(b->size());
    return b;
}

// A caption over its picture; the tap goes through it to the picture.
QLabel* legende(QWidget& parent, const ui::RectTwips& r, const QString& texte, double points,
                Qt::Alignment alignement) {
    auto* l = new QLabel(texte, &parent);
    ui::place(*l, r);
    l->setFont(ui::police(QStringLiteral("DejaVu Sans"), points, points > 10));
    l->setAlignment(alignement);
    l->setWordWrap(true);
    l->setAttribute(Qt::WA_TransparentForMouseEvents);
    return l;
}

} // namespace

LitCliVue::LitCliVue(LitCli& l) : VueModale(l, LitCli::largeur, LitCli::hauteur), l_(l) {
    setWindowTitle(QStringLiteral("Liste des Clients"));
    // The pictures to tap fill their buttons edge to edge, and darken while pressed.
    setStyleSheet(styleSheet() +
                  QStringLiteral(" QToolButton#a_taper { border: none; padding: 0; background: "
                                 "transparent; } QToolButton#a_taper:pressed { background: "
                                 "rgba(74, 44, 26, 70); border-radius: 6px; }"));
    ui::taille_fenetre(*this);
    auto* titre = new QLabel(QStringLiteral("Liste des Clients"), this);
    ui::place(*titre, LitCli::titre_rect);
    titre->setFont(ui::police(QStringLiteral("DejaVu Serif"), 18, true));

    for (int i = 1; i <= LitCli::lignes; ++i) {
        const ui::RectTwips r = LitCli::lisbar(i);
        auto* bar = a_taper(*this, r, ui::icc::barre(i % 2 == 0, ui::px(r).size()));
        connect(bar, &QToolButton::clicked, this,
                [this, i] { appelle([&] { l_.zlis_Click(i); }); });
        zlis_[std::size_t(i)] =
            legende(*this, LitCli::zlis_rect(i), {}, 13, Qt::AlignLeft | Qt::AlignVCenter);
        zlis_[std::size_t(i)]->setWordWrap(false);
    }
    for (int i = 1; i <= LitCli::touches; ++i) {
        const ui::RectTwips r = LitCli::touche(i);
        auto* t = a_taper(*this, r, ui::icc::touche(ui::px(r).size()));
        connect(t, &QToolButton::clicked, this, [this, i] { appelle([&] { l_.toucc_Click(i); }); });
        legende(*this, LitCli::toucc_rect(i), LitCli::toucc(i),
                i == LitCli::touche_annuler ? 7 : 20, Qt::AlignCenter);
    }

    auto* label1 = new QLabel(QStringLiteral("Saisissez un critère de recherche"), this);
    ui::place(*label1, LitCli::Label1_rect);
    label1->setFont(ui::police(QStringLiteral("DejaVu Sans"), 9, true));
    text1_ = new QLineEdit(this);
    ui::place(*text1_, LitCli::Text1_rect);
    text1_->setFont(ui::police(QStringLiteral("DejaVu Sans"), 14, true));
    text1_->setToolTip(
        QStringLiteral("Tapez un critère de recherche d'utilisateur (nom, adresse,..)"));
    text1_->installEventFilter(this);
    connect(text1_, &QLineEdit::textEdited, this,
            [this](const QString& t) { appelle([&] { l_.Text1_Change(t); }); });

    const auto fleche = [&](const ui::RectTwips& r, bool gauche, const QString& aide,
                            void (LitCli::*clic)()) {
        auto* b = a_taper(*this, r, ui::icc::fleche(gauche, ui::px(r).size()));
        b->setToolTip(aide);
        connect(b, &QToolButton::clicked, this, [this, clic] { appelle([&] { (l_.*clic)(); }); });
    };
    fleche(LitCli::Picture1_rect, true, QStringLiteral("Retour dans la liste"),
           &LitCli::Picture1_Click);
    fleche(LitCli::Picture2_rect, false, QStringLiteral("Suite de la liste"),
           &LitCli::Picture2_Click);
    auto* picture3 = a_taper(*this, LitCli::Picture3_rect,
                             ui::icc::nouveau_client(ui::px(LitCli::Picture3_rect).size()));
    picture3->setToolTip(QStringLiteral("Recherche approfondie"));
    connect(picture3, &QToolButton::clicked, this,
            [this] { appelle([&] { l_.Picture3_Click(); }); });
    ui::bouton_image(*this, LitCli::Image1_rect, false, [this] {
        appelle([&] { l_.Image1_Click(); });
    })->setToolTip(QStringLiteral("Fermer la liste sans choisir"));
    ui::bouton_image(*this, LitCli::bt_ok_rect, true, [this] {
        appelle([&] { l_.bt_ok_Click(); });
    })->setToolTip(QStringLiteral("Prendre le client choisi"));

    montre();
    text1_->setFocus();
}

bool LitCliVue::eventFilter(QObject* o, QEvent* e) {
    // The keys the criterion answers, by their codes in the window's logic.
    static constexpr std::pair<int, int> touches[] = {{Qt::Key_Up, LitCli::haut},
                                                      {Qt::Key_Down, LitCli::bas},
                                                      {Qt::Key_Return, LitCli::entree},
                                                      {Qt::Key_Enter, LitCli::entree},
                                                      {Qt::Key_Escape, LitCli::echap}};
    if (o == text1_ && e->type() == QEvent::KeyPress) {
        const int qt = static_cast<QKeyEvent*>(e)->key();
        for (const auto& [touche_qt, touche] : touches) {
            if (touche_qt != qt) continue;
            appelle([&] { l_.Text1_KeyDown(touche); });
            return true;
        }
    }
    return QDialog::eventFilter(o, e);
}

void LitCliVue::montre() {
    for (int i = 1; i <= LitCli::lignes; ++i)
        zlis_[std::size_t(i)]->setText(l_.zlis[std::size_t(i)]);
    if (text1_->text() != l_.Text1) {
        const QSignalBlocker bloque(text1_);
        text1_->setText(l_.Text1);
    }
}

} // namespace agenda
