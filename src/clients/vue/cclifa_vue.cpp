#include "clients/vue/cclifa_vue.h"

#include "ui/surface.h"
#include "ui/vue/boutons.h"
#include "ui/vue/echelle.h"
#include "ui/vue/icc.h"
#include "ui/vue/widgets.h"

#include <algorithm>
#include <QComboBox>
#include <QDir>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

namespace agenda {

CclifaVue::CclifaVue(Cclifa& l) : VueModale(l, Cclifa::largeur, Cclifa::hauteur), l_(l) {
    setWindowTitle(QStringLiteral("Fiche Client"));
    const auto label = [&](const ui::RectTwips& r, const QString& t, double pts, bool gras) {
        auto* w = new QLabel(t, this);
        ui::place(*w, r);
        w->setFont(ui::police(QStringLiteral("DejaVu Sans"), pts, gras));
        w->setWordWrap(true);
        return w;
    };
    label(Cclifa::titre_rect, QStringLiteral("Fiche Client"), 18, true)
        ->setFont(ui::police(QStringLiteral("DejaVu Serif"), 18, true));
    // The decorative picture, when the working folder has it.
    const QPixmap image(QDir::current().filePath(QStringLiteral("kp_img_066.gif")));
    if (!image.isNull()) {
        auto* i = new QLabel(this);
        ui::place(*i, Cclifa::Image3_rect);
        i->setPixmap(image.scaled(i->size(), Qt::KeepAspectRatio, Qt::SmoothTransformation));
    }

    for (int c = 0; c < Cclifa::nb_champs; ++c) {
        const Cclifa::Saisie& s = Cclifa::saisies[std::size_t(c)];
        label({700, s.rect.top, 2100, s.rect.height}, QString::fromUtf8(s.libelle), 10, true);
        auto* t = new QLineEdit(this);
        ui::place(*t, s.rect);
        t->setFont(ui::police(QStringLiteral("DejaVu Sans"), 11));
        connect(t, &QLineEdit::textEdited, this, [this, c](const QString& texte) {
            appelle([&] { l_.Text_Change(Cclifa::Champ(c), texte); });
        });
        text_[std::size_t(c)] = t;
    }
    label(Cclifa::note_naissance,
          QStringLiteral("Vous pouvez laisser l'année de naissance vide et saisir juste le jour "
                         "et le mois "),
          8, false);

    label(Cclifa::Combo11_label, QStringLiteral(" Titre "), 10, true);
    combo11_ = new QComboBox(this);
    ui::place(*combo11_, Cclifa::Combo11_rect);
    combo11_->setEditable(true);
    combo11_->setInsertPolicy(QComboBox::NoInsert);
    combo11_->addItems(Cclifa::Combo11_liste());
    combo11_->setFont(ui::police(QStringLiteral("DejaVu Sans"), 11));
    connect(combo11_, &QComboBox::editTextChanged, this,
            [this](const QString& t) { l_.Combo11 = t; });

    label(Cclifa::note_icones,
          QStringLiteral("Cliquez sur un des icones ci-dessous pour les Répartitions "
                         "Statistqiues"),
          9, false);
    for (int i = 0; i < 4; ++i) {
        shape2_[std::size_t(i)] = new QFrame(this);
        ui::place(*shape2_[std::size_t(i)], Cclifa::Shape2_rect(i));
        auto* b = new QToolButton(this);
        ui::place(*b, Cclifa::sexe(i));
        b->setAutoRaise(true);
        b->setIcon(ui::icc::visage(i, b->size()));
        b->setIconSize(b->size());
        connect(b, &QToolButton::clicked, this, [this, i] { appelle([&] { l_.sexe_Click(i); }); });
    }

    ui::bouton_image(*this, Cclifa::picture4_rect, true, [this] {
        appelle([&] { l_.picture4_Click(); });
    })->setToolTip(QStringLiteral("Valider ce nom"));

    pose_cadre(ui::coin_large);
    ui::centre_fenetre_haut(*this);
    montre();
    text_[0]->setFocus();
}

void CclifaVue::montre() {
    for (std::size_t c = 0; c < text_.size(); ++c) {
        QLineEdit* t = text_[c];
        if (t->text() == l_.Text[c]) continue;
        // A character refused past the limit: the cursor stays where it was.
        const QSignalBlocker bloque(t);
        const int curseur = t->cursorPosition();
        t->setText(l_.Text[c]);
        t->setCursorPosition(std::min<int>(curseur, int(l_.Text[c].size())));
    }
    if (combo11_->currentText() != l_.Combo11) {
        const QSignalBlocker bloque(combo11_);
        combo11_->setEditText(l_.Combo11);
    }
    for (std::size_t i = 0; i < shape2_.size(); ++i) {
        const Cclifa::Cadre& c = l_.Shape2[i];
        // Border widths are screen pixels, at the book's scale.
        const QString style =
            QStringLiteral("QFrame { border: %1px %2 %3; }")
                .arg(std::max(1, ui::px(15.0 * c.largeur)))
                .arg(c.pointille ? QStringLiteral("dotted") : QStringLiteral("solid"))
                .arg(ui::couleur(c.couleur).name());
        if (shape2_[i]->styleSheet() != style) shape2_[i]->setStyleSheet(style);
    }
}

} // namespace agenda
