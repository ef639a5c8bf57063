#include "book/vue/torva1_vue.h"

#include "planning/vue/sepaffic.h"
#include "ui/erreur.h"
#include "ui/vue/boutons.h"
#include "ui/vue/echelle.h"
#include "ui/vue/icc.h"
#include "ui/vue/widgets.h"

#include <QCalendarWidget>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QTimer>
#include <QToolButton>

namespace agenda {

namespace {

QString teinte(std::int32_t bbggrr) {
    return ui::couleur(bbggrr).name();
}

} // namespace

Torva1Vue::Torva1Vue(Torva1& logique) : ui::Vue(logique), l_(logique) {
    ui::pose_fenetre_principale(this);
    setWindowTitle(QStringLiteral("Agenda"));
    setFixedSize(ui::px(ui::largeur_livre), ui::px(ui::hauteur_livre));
    setAutoFillBackground(false);

    auto* fond = new QLabel(this);
    fond->setGeometry(rect());
    fond->setPixmap(ui::icc::couverture(size()));

    // Each page's picture carries the boards beneath its rounded corners, so that the page is
    // opaque: a repaint over a page does not paint the boards first.
    const auto page_sur_la_couverture = [this, fond](bool gauche) {
        return [this, fond, gauche](QPainter& g, QSize s) {
            const QWidget* page = gauche ? pageg_ : paged_;
            g.drawPixmap(QRectF(QPointF(0, 0), QSizeF(s)), fond->pixmap(),
                         QRectF(page->geometry()));
            g.drawPixmap(0, 0, ui::icc::page(s, gauche));
        };
    };
    pageg_ = new ui::VueSurface(this, page_sur_la_couverture(true));
    paged_ = new ui::VueSurface(this, page_sur_la_couverture(false));
    for (ui::VueSurface* page : {pageg_, paged_})
        page->setAttribute(Qt::WA_OpaquePaintEvent);
    ui::place(*pageg_, Torva1::pageg_rect);
    ui::place(*paged_, Torva1::paged_rect);
    pageg_->sur_clic = [this](int x, int y) {
        if (l_.vue_visible == 0) apres_le_clic([this, x, y] { l_.pageg_MouseDown(x, y); });
    };
    paged_->sur_clic = [this](int x, int y) {
        if (l_.vue_visible == 0) apres_le_clic([this, x, y] { l_.paged_MouseDown(x, y); });
    };
    auto* picture1 = new QLabel(this);
    ui::place(*picture1, Torva1::Picture1_rect);
    picture1->setPixmap(ui::icc::reliure(picture1->size()));

    for (int i = 0; i < Torva1::nb_onglets; ++i) {
        for (const bool gauche : {true, false}) {
            auto* b = new QPushButton(this);
            ui::place(*b, Torva1::onglet_rect(gauche, i));
            b->setFlat(true);
            b->setCursor(Qt::PointingHandCursor);
            b->setIcon(gauche ? ui::icc::p11g(i, b->size()) : ui::icc::p11d(i, b->size()));
            b->setIconSize(b->size());
            connect(b, &QPushButton::clicked, this, [this, i, gauche] {
                appelle([&] { gauche ? l_.ongletg_Click(i) : l_.ongletd_Click(i); });
            });
            (gauche ? ongletg_ : ongletd_)[std::size_t(i)] = b;
        }
    }

    const auto gauche_haut = Qt::AlignLeft | Qt::AlignVCenter;
    label2_ = texte(pageg_, Torva1::Label2_rect, 18, false, gauche_haut);
    label3_ = texte(pageg_, Torva1::Label3_rect, 54, true, gauche_haut);
    label4_ = texte(pageg_, Torva1::Label4_rect, 18, false, gauche_haut);
    label1_ = texte(pageg_, Torva1::Label1_rect, 14, false, gauche_haut);
    label7_ = texte(paged_, Torva1::Label7_rect, 20, true, Qt::AlignCenter);
    label7_->setCursor(Qt::PointingHandCursor);
    label7_->setToolTip(QStringLiteral("Changer de collaborateur"));
    label7_->installEventFilter(this);

    calend_ = new QCalendarWidget(pageg_);
    ui::place(*calend_, Torva1::calend_rect);
    calend_->setLocale(QLocale(QLocale::French, QLocale::France));
    calend_->setFirstDayOfWeek(Qt::Monday);
    calend_->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    calend_->setGridVisible(false);
    calend_->setFont(ui::police(QStringLiteral("Arial"), 8));
    connect(calend_, &QCalendarWidget::clicked, this,
            [this](QDate d) { appelle([&] { l_.calend_Click(ui::date_de(d)); }); });

    picture2_ = ui::fleche_jour(*pageg_, Torva1::Picture2_rect, true,
                                [this] { appelle([&] { l_.Picture2_Click(); }); });
    picture3_ = ui::fleche_jour(*paged_, Torva1::Picture3_rect, false,
                                [this] { appelle([&] { l_.Picture3_Click(); }); });

    auto* bt_out = new QToolButton(paged_);
    ui::place(*bt_out, Torva1::bt_out_rect);
    bt_out->setAutoRaise(true);
    bt_out->setCursor(Qt::PointingHandCursor);
    bt_out->setIcon(ui::icc::reglages(bt_out->size()));
    bt_out->setIconSize(bt_out->size());
    bt_out->setToolTip(QStringLiteral("Paramétrage de l'Agenda"));
    connect(bt_out, &QToolButton::clicked, this,
            [this] { apres_le_clic([this] { l_.bt_out_Click(); }); });
    connect(&l_, &Torva1::cache, this, [this](bool oui) { setVisible(!oui); });

    vue_jour_ = {label1_, label2_, label3_, label4_, calend_, picture2_, picture3_};

    connect(&l_, &Torva1::charge_banniere, this,
            [this] { sepaffic_ = std::make_unique<Sepaffic>(); });
    // Timer3 never puts the book above a window it opened.
    connect(&l_, &Torva1::au_premier_plan, this, [] { ui::au_premier_plan(); });
}

Torva1Vue::~Torva1Vue() {
    ui::pose_fenetre_principale(nullptr);
}

QLabel* Torva1Vue::texte(QWidget* parent, const ui::RectTwips& r, double points, bool gras,
                         Qt::Alignment a) {
    auto* l = new QLabel(parent);
    ui::place(*l, r);
    l->setFont(ui::police(QStringLiteral("DejaVu Serif"), points, gras));
    l->setAlignment(a);
    l->setStyleSheet(QStringLiteral("color: #4a2c1a; background: transparent;"));
    return l;
}

void Torva1Vue::montre() {
    for (int i = 0; i < Torva1::nb_onglets; ++i) {
        for (const bool gauche : {true, false}) {
            QPushButton* b = (gauche ? ongletg_ : ongletd_)[std::size_t(i)];
            b->setVisible(gauche ? l_.ongletg_visible[std::size_t(i)]
                                 : l_.ongletd_visible[std::size_t(i)]);
            // The colours change only with the load: a style sheet is parsed only when it does.
            const QString style = QStringLiteral("QPushButton { background: %1; border: 1px "
                                                 "solid #5a3a22; border-radius: 6px; }")
                                      .arg(teinte(l_.couleurs_onglet[std::size_t(i)]));
            if (b->styleSheet() != style) b->setStyleSheet(style);
        }
    }

    const bool jour = l_.vue_visible == 0;
    for (QWidget* w : vue_jour_)
        w->setVisible(jour);
    pageg_->montre(jour ? &l_.pageg : nullptr);
    paged_->montre(jour ? &l_.paged : nullptr);
    label1_->setText(l_.Label1);
    label2_->setText(l_.Label2);
    label3_->setText(l_.Label3);
    label4_->setText(l_.Label4);
    label7_->setText(l_.Label7);
    setWindowTitle(l_.Label7 == QLatin1String("Agenda") ? QStringLiteral("Agenda")
                                                        : QStringLiteral("Agenda — ") + l_.Label7);
    {
        const QSignalBlocker bloque(calend_);
        calend_->setSelectedDate(ui::jour_de(l_.calend));
    }

    // The labels are kept from one day to the next and only hidden when fewer are needed: no
    // label is deleted while its own click may be running, and no style sheet is parsed.
    for (const bool gauche : {true, false}) {
        auto& reserve = gauche ? etiquettes_g_ : etiquettes_d_;
        const auto& page = gauche ? l_.lrv : l_.lrvd;
        std::size_t k = 0;
        if (jour) {
            for (const auto& [i, et] : page) {
                if (k == reserve.size()) reserve.push_back(nouvelle_etiquette(gauche));
                QLabel* e = reserve[k++];
                ui::place(*e, {et.left, et.top, et.width, et.height});
                e->setText(et.legende);
                QPalette p = e->palette();
                p.setColor(QPalette::Window, ui::couleur(et.couleur));
                e->setPalette(p);
                e->setFrameStyle(et.bordure ? QFrame::Box | QFrame::Plain : QFrame::NoFrame);
                e->setProperty("indice", i);
                e->show();
            }
        }
        for (; k < reserve.size(); ++k)
            reserve[k]->hide();
    }
}

QLabel* Torva1Vue::nouvelle_etiquette(bool gauche) {
    auto* e = new QLabel(gauche ? static_cast<QWidget*>(pageg_) : paged_);
    e->setWordWrap(true);
    e->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    e->setFont(ui::police(QStringLiteral("Arial"), 8));
    e->setAutoFillBackground(true);
    QPalette p = e->palette();
    p.setColor(QPalette::WindowText, Qt::black);
    e->setPalette(p);
    // The text where a style sheet's box put it: one pixel in, and half an "x" from the edge.
    e->setLineWidth(1);
    e->setMargin(1);
    e->setIndent(QFontMetrics(e->font()).horizontalAdvance(QLatin1Char('x')) / 2);
    e->setCursor(Qt::PointingHandCursor);
    e->installEventFilter(this);
    return e;
}

bool Torva1Vue::eventFilter(QObject* o, QEvent* e) {
    if (o == label7_ && e->type() == QEvent::MouseButtonRelease) {
        apres_le_clic([this] { l_.Label7_Click(); });
        return true;
    }
    // A click on a label is the label's, not the page's beneath it.
    if (!o->property("indice").isValid()) return QWidget::eventFilter(o, e);
    if (e->type() == QEvent::MouseButtonPress) return true;
    if (e->type() == QEvent::MouseButtonRelease) {
        const auto* w = static_cast<QWidget*>(o);
        if (w->rect().contains(static_cast<QMouseEvent*>(e)->position().toPoint())) {
            const int i = o->property("indice").toInt();
            const bool gauche = o->parent() == pageg_;
            apres_le_clic([this, i, gauche] { gauche ? l_.lrv_Click(i) : l_.lrvd_Click(i); });
        }
        return true;
    }
    return QWidget::eventFilter(o, e);
}

void Torva1Vue::keyPressEvent(QKeyEvent* e) {
    if (e->key() == Qt::Key_Escape) {
        appelle([&] { l_.Form_KeyPress(27); });
        return;
    }
    QWidget::keyPressEvent(e);
}

void Torva1Vue::closeEvent(QCloseEvent* e) {
    // The window manager's close ends the book as every other way out does.
    e->ignore();
    appelle([&] { l_.Form_Unload(); });
}

} // namespace agenda
