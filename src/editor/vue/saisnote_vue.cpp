#include "editor/vue/saisnote_vue.h"

#include "ui/vue/boutons.h"
#include "ui/vue/echelle.h"
#include "ui/vue/widgets.h"

#include <QPlainTextEdit>
#include <QToolButton>

namespace agenda {

SaisnoteVue::SaisnoteVue(Saisnote& l) : VueModale(l, Saisnote::largeur, Saisnote::hauteur), l_(l) {
    setWindowTitle(QStringLiteral("Note"));
    const QFont police = ui::police(QStringLiteral("DejaVu Sans"), 9, true);
    text1_ = new QPlainTextEdit(this);
    ui::place(*text1_, Saisnote::Text1_rect);
    text1_->setFont(ui::police(QStringLiteral("DejaVu Sans"), 11));
    text1_->setPlainText(ui::crlf_vers_ecran(l.Text1));
    connect(text1_, &QPlainTextEdit::textChanged, this,
            [this] { l_.Text1 = ui::ecran_vers_crlf(text1_->toPlainText()); });

    ui::libelle(*this, Saisnote::Label1_rect, QStringLiteral("Fond"), police);
    ui::palette(*this, Saisnote::Picture1_rect,
                [this](std::int32_t c) { appelle([&] { l_.Picture1_MouseDown(c); }); });
    ui::libelle(*this, Saisnote::Label2_rect, QStringLiteral("Ecriture"), police);
    ui::palette(*this, Saisnote::Picture2_rect,
                [this](std::int32_t c) { appelle([&] { l_.Picture2_MouseDown(c); }); });

    ui::bouton_image(*this, Saisnote::bt_ok_rect, true, [this] {
        appelle([this] { l_.bt_ok_Click(); });
    })->setToolTip(QStringLiteral("Enregistrer la note"));
    ui::bouton_image(*this, Saisnote::bt_annul_rect, false, [this] {
        apres_le_clic([this] { l_.bt_annul_Click(); });
    })->setToolTip(QStringLiteral("Annuler la note"));

    pose_cadre(ui::coin_fin);
    ui::place_sur_le_livre(*this, l.left, l.top);
    montre();
    text1_->setFocus();
}

void SaisnoteVue::montre() {
    QPalette p = text1_->palette();
    p.setColor(QPalette::Base, ui::couleur(l_.Text1_fond));
    p.setColor(QPalette::Text, ui::couleur(l_.Text1_encre));
    text1_->setPalette(p);
    if (ui::ecran_vers_crlf(text1_->toPlainText()) != l_.Text1) {
        const QSignalBlocker bloque(text1_);
        text1_->setPlainText(ui::crlf_vers_ecran(l_.Text1));
    }
}

} // namespace agenda
