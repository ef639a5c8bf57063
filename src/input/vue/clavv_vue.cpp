#include "input/vue/clavv_vue.h"

#include "ui/vue/echelle.h"
#include "ui/vue/icc.h"
#include "ui/vue/widgets.h"

#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

namespace agenda {

namespace {

// The faces of the keys that do something, drawn on the keyboard's picture.
QString face(int i) {
    static const std::pair<int, const char16_t*> faces[] = {
        {Clavv::efface, u"⌫"},
        {Clavv::efface_tout, u"Effacer"},
        {Clavv::verrouillage, u"Verr. maj"},
        {Clavv::valide, u"Valider"},
        {Clavv::majuscule, u"⇧ Maj"},
        {Clavv::liste_haut, u"▲"},
        {Clavv::liste_bas, u"▼"},
        {Clavv::gauche, u"◀"},
        {Clavv::droite, u"▶"},
        {Clavv::alternative, u"Alt Gr"},
        {Clavv::annule, u"Annuler"},
    };
    for (const auto& [touche, texte] : faces)
        if (touche == i) return QString::fromUtf16(texte);
    return {};
}

} // namespace

ClavvVue::ClavvVue(Clavv& l) : VueModale(l, Clavv::largeur, Clavv::hauteur), l_(l) {
    setWindowTitle(QStringLiteral("Clavier"));
    label1_ = ui::libelle(*this, Clavv::Label1_rect, {},
                          ui::police(QStringLiteral("DejaVu Serif"), 13, true));
    text1_ = new QLineEdit(this);
    ui::place(*text1_, Clavv::Text1_rect);
    text1_->setFont(ui::police(QStringLiteral("DejaVu Sans"), 18));
    connect(text1_, &QLineEdit::textEdited, this,
            [this](const QString& t) { appelle([&] { l_.Text1_Change(t); }); });
    connect(text1_, &QLineEdit::returnPressed, this,
            [this] { appelle([&] { l_.Form_KeyPress(13); }); });

    auto* picture2 = new QLabel(this);
    ui::place(*picture2, Clavv::Picture2_rect);
    std::vector<ui::icc::Touche> dessin;
    for (int i = 0; i < Clavv::touches; ++i) {
        const ui::RectTwips r = Clavv::touche(i);
        dessin.push_back({QRectF(ui::px(r)), face(i)});
    }
    picture2->setPixmap(ui::icc::clavier(picture2->size(), dessin));
    setStyleSheet(styleSheet() +
                  QStringLiteral(" QToolButton#ttoc { border: none; background: transparent; "
                                 "color: #2b1a10; } QToolButton#ttoc:pressed { background: "
                                 "rgba(74, 44, 26, 80); border-radius: 6px; }"));
    for (int i = 0; i < Clavv::touches; ++i) {
        auto* t = new QToolButton(picture2);
        t->setObjectName(QStringLiteral("ttoc"));
        ui::place(*t, Clavv::touche(i));
        t->setFocusPolicy(Qt::NoFocus);
        t->setAutoRaise(true); // no panel of its own: the key's cap is the picture's
        t->setFont(ui::police(QStringLiteral("DejaVu Sans"), 16, true));
        connect(t, &QToolButton::clicked, this, [this, i] { appelle([&] { l_.ttoc_Click(i); }); });
        ttoc_[std::size_t(i)] = t;
    }
    pose_cadre(ui::coin_large);
    ui::centre_fenetre(*this);
    montre();
    text1_->setFocus();
}

void ClavvVue::montre() {
    label1_->setText(l_.Label1);
    for (int i = 0; i < Clavv::touches; ++i)
        ttoc_[std::size_t(i)]->setText(
            QString(l_.ttoc[std::size_t(i)]).replace(QLatin1Char('&'), QLatin1String("&&")));
    if (text1_->text() != l_.Text1) text1_->setText(l_.Text1);
    text1_->setCursorPosition(l_.Text1_curseur);
}

} // namespace agenda
