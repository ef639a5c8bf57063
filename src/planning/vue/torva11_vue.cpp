#include "planning/vue/torva11_vue.h"

#include "input/date_97.h"
#include "ui/vue/boutons.h"
#include "ui/vue/echelle.h"
#include "ui/vue/icc.h"
#include "ui/vue/impression.h"
#include "ui/vue/widgets.h"

#include <QFrame>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QToolButton>

namespace agenda {

namespace {

QLabel* etiquette(QWidget& parent, const ui::RectTwips& r, double points, bool gras,
                  Qt::Alignment a = Qt::AlignLeft | Qt::AlignVCenter) {
    auto* l = new QLabel(&parent);
    ui::place(*l, r);
    l->setFont(ui::police(QStringLiteral("DejaVu Serif"), points, gras));
    l->setAlignment(a);
    return l;
}

// A picture button with its caption beside the picture, wrapped when it is long.
QPushButton* bouton(QWidget& parent, const ui::RectTwips& r, const QPixmap& image,
                    const QString& legende) {
    auto* b = new QPushButton(&parent);
    ui::place(*b, r);
    b->setCursor(Qt::PointingHandCursor);
    b->setToolTip(legende);
    const int cote = image.height();
    auto* img = new QLabel(b);
    img->setPixmap(image);
    img->setGeometry(ui::px(100), (b->height() - cote) / 2, cote, cote);
    auto* texte = new QLabel(legende, b);
    texte->setWordWrap(true);
    texte->setFont(ui::police(QStringLiteral("DejaVu Sans"), 8, true));
    texte->setGeometry(cote + ui::px(180), 0, b->width() - cote - ui::px(240), b->height());
    for (QLabel* l : {img, texte})
        l->setAttribute(Qt::WA_TransparentForMouseEvents);
    return b;
}

Qt::CursorShape pointeur(Transfert t) {
    switch (t) {
    case Transfert::attente_prise:
        return Qt::UpArrowCursor;
    case Transfert::attente_depot:
        return Qt::WhatsThisCursor; // the arrow with its question mark
    case Transfert::repos:
        break;
    }
    return Qt::ArrowCursor;
}

} // namespace

Torva11Vue::Torva11Vue(Torva11& l) : VueModale(l, ui::largeur_livre, ui::hauteur_livre), l_(l) {
    setWindowTitle(QStringLiteral("Planning"));
    ui::taille_fenetre(*this);
    setMouseTracking(true);

    // A white sheet with a soft edge: the colour under the pointer is the surface's own.
    p1_ = new ui::VueSurface(this, [](QPainter& g, QSize s) {
        g.setRenderHint(QPainter::Antialiasing);
        g.setPen(QPen(ui::icc::papier_ombre, 2));
        g.setBrush(Qt::white);
        g.drawRoundedRect(QRectF(1, 1, s.width() - 2, s.height() - 2), 10, 10);
    });
    ui::place(*p1_, Torva11::p1_rect);
    p1_->sur_clic = [this](int x, int y) {
        apres_le_clic([this, x, y] { l_.p1_MouseDown(x, y); });
    };
    p1_->suit_la_souris([this](int x, int y) { appelle([&] { l_.p1_MouseMove(x, y); }); });

    label2_ = etiquette(*this, Torva11::Label2_rect, 14, false);
    label3_ = etiquette(*this, Torva11::Label3_rect, 36, true);
    label4_ = etiquette(*this, Torva11::Label4_rect, 14, false);
    label1_ = etiquette(*this, Torva11::Label1_rect, 10, true);
    label1_->setStyleSheet(QStringLiteral("color: #a0102a;"));
    label8_ = etiquette(*this, Torva11::Label8_rect, 11, true);
    label5_ = etiquette(*this, Torva11::Label5_rect, 9, false);
    label6_ = etiquette(*this, Torva11::Label6_rect, 8, false, Qt::AlignLeft | Qt::AlignTop);
    label6_->setWordWrap(true);
    label7_ = new QLabel(this);
    ui::place(*label7_, Torva11::Label7_rect);
    label7_->setAutoFillBackground(true);
    label7_->setFrameStyle(QFrame::Box | QFrame::Plain);

    ui::fleche_jour(*this, Torva11::Picture2_rect, true,
                    [this] { appelle([&] { l_.Picture2_Click(); }); });
    ui::fleche_jour(*this, Torva11::Picture3_rect, false,
                    [this] { appelle([&] { l_.Picture3_Click(); }); });

    const QSize image(ui::px(600), ui::px(600));
    auto* bt_date = bouton(*this, Torva11::bt_date_rect, ui::icc::calendrier(image),
                           QStringLiteral("Choisir une date"));
    auto* bt_trans = bouton(
        *this, Torva11::bt_trans_rect, ui::icc::transfert(image),
        QStringLiteral("Transfert du rendez-vous sur un autre collaborateur ou à une autre date"));
    auto* command1 = bouton(*this, Torva11::command1_rect, ui::icc::sortie(image),
                            QStringLiteral("Sortie du planning"));
    auto* bt_imprime = bouton(*this, Torva11::bt_imprime_rect,
                              ui::icc::imprimante(QSize(ui::px(420), ui::px(420))),
                              QStringLiteral("Imprimer le planning"));
    connect(bt_imprime, &QPushButton::clicked, this,
            [this] { apres_le_clic([this] { imprime(); }); });
    // The windows these open belong to the planning; their clicks are done first.
    connect(bt_date, &QPushButton::clicked, this,
            [this] { apres_le_clic([this] { l_.bt_date_Click(); }); });
    connect(bt_trans, &QPushButton::clicked, this,
            [this] { appelle([&] { l_.bt_trans_Click(); }); });
    connect(command1, &QPushButton::clicked, this,
            [this] { appelle([&] { l_.command1_Click(); }); });
    montre();
}

void Torva11Vue::imprime() {
    const ui::RectTwips p1 = Torva11::p1_rect;
    ui::imprime(this, QStringLiteral("Imprimer le planning"),
                QStringLiteral("Planning — ") + jour_en_lettres(etat.date_courante),
                QSize(p1.width, p1.height), [this, p1](QPainter& g) {
                    g.setPen(QPen(ui::icc::papier_ombre, 30));
                    g.drawRoundedRect(QRectF(15, 15, p1.width - 30, p1.height - 30), 150, 150);
                    ui::dessine_surface(g, l_.p1);
                    g.setPen(QPen(QColor(0x00, 0x00, 0x80), 30));
                    for (const auto& [i, r] : l_.cadnom)
                        g.drawRoundedRect(QRectF(r.left, r.top, r.width, r.height), 120, 120);
                });
}

void Torva11Vue::mouseMoveEvent(QMouseEvent* e) {
    appelle([&] { l_.Form_MouseMove(); });
    QDialog::mouseMoveEvent(e);
}

void Torva11Vue::montre() {
    setCursor(pointeur(transfert));
    p1_->montre(&l_.p1);
    for (const auto& [i, r] : l_.cadnom) {
        QFrame*& f = cadnom_[i];
        if (!f) {
            f = new QFrame(p1_);
            f->setAttribute(Qt::WA_TransparentForMouseEvents);
            f->setStyleSheet(QStringLiteral("QFrame { border: 2px solid #000080; border-radius: "
                                            "8px; background: transparent; }"));
            f->show();
        }
        ui::place(*f, r);
    }
    label1_->setText(l_.Label1);
    label1_->setVisible(l_.Label1_visible);
    label2_->setText(l_.Label2);
    label3_->setText(l_.Label3);
    label4_->setText(l_.Label4);
    label5_->setText(l_.Label5);
    label6_->setText(l_.Label6);
    label8_->setText(l_.Label8);
    QPalette p = label7_->palette();
    p.setColor(QPalette::Window, ui::couleur(l_.Label7));
    label7_->setPalette(p);
}

} // namespace agenda
