#include "input/vue/mini_97_vue.h"

#include "ui/vue/boutons.h"
#include "ui/vue/echelle.h"
#include "ui/vue/widgets.h"

#include <QDir>
#include <QLabel>
#include <QPlainTextEdit>

namespace agenda {

Mini97Vue::Mini97Vue(Mini97& l) : VueModale(l, l.largeur, l.hauteur), l_(l) {
    label1_ = new QLabel(this);
    ui::place(*label1_, l.Label1_rect);
    label1_->setWordWrap(true);
    label1_->setAlignment(Qt::AlignCenter);
    label1_->setFont(ui::police(QStringLiteral("DejaVu Sans"), 11));

    text1_ = new QPlainTextEdit(this);
    ui::place(*text1_, l.Text1_rect);
    text1_->setVisible(l.Text1_visible);
    text1_->setFont(ui::police(QStringLiteral("DejaVu Sans"), 11));
    connect(text1_, &QPlainTextEdit::textChanged, this,
            [this] { appelle([this] { l_.Text1_Change(text1_->toPlainText()); }); });

    // The decorative picture, when the working folder has it.
    const QPixmap image(QDir::current().filePath(QStringLiteral("kp_img_024.gif")));
    if (!image.isNull()) {
        auto* i = new QLabel(this);
        ui::place(*i, l.Image1_rect);
        i->setPixmap(image.scaled(i->size(), Qt::KeepAspectRatio, Qt::SmoothTransformation));
    }

    ui::bouton_image(*this, l.btc2_rect, true, [this] { appelle([this] { l_.btc_Click(2); }); });
    ui::bouton_image(*this, l.btc3_rect, false, [this] { appelle([this] { l_.btc_Click(3); }); });
    ui::centre_fenetre(*this);
    pose_cadre(ui::coin_fin);
    montre();
    if (l.Text1_visible) text1_->setFocus();
}

void Mini97Vue::montre() {
    label1_->setText(l_.Label1);
    if (text1_->toPlainText() == l_.Text1) return;
    // A control character typed became a blank: the cursor stays where it was.
    const QSignalBlocker bloque(text1_);
    const int curseur = text1_->textCursor().position();
    text1_->setPlainText(l_.Text1);
    QTextCursor c = text1_->textCursor();
    c.setPosition(std::min<int>(curseur, int(l_.Text1.size())));
    text1_->setTextCursor(c);
}

} // namespace agenda
