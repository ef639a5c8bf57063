// The widgets of the prompt box and the date chooser.

#include "data/erreur.h"
#include "input/date_97.h"
#include "input/mini_97.h"
#include "ui/dates.h"
#include "ui/echelle.h"
#include "ui/icc.h"
#include "ui/vues.h"
#include "ui/widgets.h"

#include <QCalendarWidget>
#include <QDialog>
#include <QDir>
#include <QLabel>
#include <QPlainTextEdit>
#include <QToolButton>

namespace agenda {

namespace {

// A window with no border of its own, at the logic's size, in the book's paper colour.
void prepare(QDialog& d, int largeur, int hauteur) {
    d.setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
    d.setFixedSize(ui::px(largeur), ui::px(hauteur));
    d.setStyleSheet(QStringLiteral("QDialog { background: #fbf6e8; }"));
}

QToolButton* bouton(QDialog& d, const ui::RectTwips& r, bool oui, std::function<void()> clic) {
    auto* b = new QToolButton(&d);
    ui::place(*b, r);
    b->setAutoRaise(true);
    b->setIcon(ui::icc::bouton(oui, b->size()));
    b->setIconSize(b->size());
    b->setToolTip(oui ? QStringLiteral("Oui") : QStringLiteral("Non"));
    QObject::connect(b, &QToolButton::clicked, &d, [clic] { protege(clic); });
    return b;
}

void montre_mini_97(ui::FenetreModale& f) {
    auto& l = static_cast<Mini97&>(f);
    QDialog d;
    prepare(d, l.largeur, l.hauteur);

    auto* label = new QLabel(l.Label1, &d);
    ui::place(*label, l.Label1_rect);
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignCenter);
    label->setFont(ui::police(QStringLiteral("DejaVu Sans"), 11));

    auto* texte = new QPlainTextEdit(&d);
    ui::place(*texte, l.Text1_rect);
    texte->setPlainText(l.Text1);
    texte->setVisible(l.Text1_visible);
    texte->setFont(ui::police(QStringLiteral("DejaVu Sans"), 11));
    QObject::connect(texte, &QPlainTextEdit::textChanged, &d, [&l, texte] {
        l.Text1_Change(texte->toPlainText());
        if (texte->toPlainText() != l.Text1) {
            const QSignalBlocker bloque(texte);
            const int curseur = texte->textCursor().position();
            texte->setPlainText(l.Text1);
            QTextCursor c = texte->textCursor();
            c.setPosition(std::min<int>(curseur, int(l.Text1.size())));
            texte->setTextCursor(c);
        }
    });

    // The decorative picture, when the working folder has it.
    const QPixmap image(QDir::current().filePath(QStringLiteral("kp_img_024.gif")));
    if (!image.isNull()) {
        auto* i = new QLabel(&d);
        ui::place(*i, l.Image1_rect);
        i->setPixmap(image.scaled(i->size(), Qt::KeepAspectRatio, Qt::SmoothTransformation));
    }

    bouton(d, l.btc2_rect, true, [&l] { l.btc_Click(2); });
    bouton(d, l.btc3_rect, false, [&l] { l.btc_Click(3); });
    l.sur_fermeture = [&d] { d.accept(); };
    ui::centre_fenetre(d);
    ui::pose_cadre_fin(d);
    if (l.Text1_visible) texte->setFocus();
    d.exec();
    l.sur_fermeture = nullptr;
}

void montre_date_97(ui::FenetreModale& f) {
    auto& l = static_cast<Date97&>(f);
    QDialog d;
    prepare(d, l.largeur, l.hauteur);

    auto* mois = new QCalendarWidget(&d);
    ui::place(*mois, l.MonthView1_rect);
    mois->setLocale(QLocale(QLocale::French, QLocale::France));
    mois->setFirstDayOfWeek(Qt::Monday);
    mois->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    mois->setSelectedDate(ui::jour_de(l.MonthView1));
    mois->setFocus();

    auto* label = new QLabel(&d);
    ui::place(*label, l.Label1_rect);
    label->setAlignment(Qt::AlignCenter);
    label->setFont(ui::police(QStringLiteral("DejaVu Serif"), 12, true));

    QObject::connect(mois, &QCalendarWidget::clicked, &d, [&l, label](QDate j) {
        protege([&] { l.MonthView1_DateClick(ui::date_de(j)); });
        label->setText(l.Label1);
    });
    // A double click, or Enter, on a day.
    QObject::connect(mois, &QCalendarWidget::activated, &d, [&l](QDate j) {
        protege([&] { l.MonthView1_DateDblClick(ui::date_de(j)); });
    });
    bouton(d, l.btc2_rect, true, [&l] { l.btc_Click(2); });
    bouton(d, l.btc3_rect, false, [&l] { l.btc_Click(3); });
    l.sur_fermeture = [&d] { d.accept(); };
    ui::pose_cadre_fin(d);
    ui::centre_fenetre(d);
    d.exec();
    l.sur_fermeture = nullptr;
}

} // namespace

void enregistre_vues_input() {
    ui::enregistre_vue(QStringLiteral("mini_97"), montre_mini_97);
    ui::enregistre_vue(QStringLiteral("date_97"), montre_date_97);
}

} // namespace agenda
