#include "book/vue/torva1_vue.h"

#include "planning/vue/sepaffic.h"
#include "ui/erreur.h"
#include "ui/systeme.h"
#include "ui/vue/boutons.h"
#include "ui/vue/echelle.h"
#include "ui/vue/icc.h"
#include "ui/vue/impression.h"
#include "ui/vue/style.h"
#include "ui/vue/widgets.h"

#include "book/vue/impression.h"
#include "calendar/calendrier.h"
#include "input/date_97.h"
#include "ui/dates.h"

#include <cmath>
#include <memory>
#include <QCalendarWidget>
#include <QFontMetrics>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPaintEvent>
#include <QPushButton>
#include <QRegion>
#include <QTableWidget>
#include <QTextCharFormat>
#include <QTimer>
#include <QToolButton>
#include <utility>

namespace agenda {

namespace {

QString teinte(std::int32_t bbggrr) {
    return ui::couleur(bbggrr).name();
}

// A framed box in colours of its own, whose click goes through the view's event filter.
QLabel* boite(QWidget* parent, const ui::RectTwips& r, double points, Qt::Alignment a,
              const QString& aide, QObject* filtre) {
    auto* l = new QLabel(parent);
    ui::place(*l, r);
    l->setAlignment(a);
    l->setFont(ui::police(QStringLiteral("DejaVu Sans"), points));
    l->setAutoFillBackground(true);
    l->setFrameStyle(QFrame::Box | QFrame::Plain);
    l->setCursor(Qt::PointingHandCursor);
    l->setToolTip(aide);
    l->installEventFilter(filtre);
    return l;
}

void fond_de(QWidget& w, std::int32_t fond, std::int32_t encre) {
    QPalette p = w.palette();
    p.setColor(QPalette::Window, ui::couleur(fond));
    p.setColor(QPalette::WindowText, ui::couleur(encre));
    w.setPalette(p);
}

// The month control's holidays, in the year view's colour. Its page shows a few days of the
// months before and after, so of the years before and after too.
void colore_feries(QCalendarWidget& calend, int annee, int mois, std::int32_t couleur) {
    calend.setDateTextFormat(QDate(), QTextCharFormat());
    QTextCharFormat ferie;
    ferie.setBackground(ui::couleur(couleur));
    const QDate premier(annee, mois, 1);
    std::map<int, QString> listes;
    for (QDate d = premier.addDays(-14); d <= premier.addMonths(1).addDays(14); d = d.addDays(1)) {
        auto [liste, nouvelle] = listes.try_emplace(d.year());
        if (nouvelle) liste->second = liste_feries_de(std::int16_t(d.year()));
        if (est_ferie(liste->second, ui::date_de(d))) calend.setDateTextFormat(d, ferie);
    }
}

// A page's background; `page` its place in the window's pixels, painted over `taille` device
// pixels.
void page_sur_le_cuir(QPainter& g, QSize taille, const std::vector<QRect>& parties,
                      const std::vector<QImage>& cuir, const QRect& page, bool gauche) {
    g.save();
    g.scale(double(taille.width()) / page.width(), double(taille.height()) / page.height());
    for (std::size_t i = 0; i < parties.size(); ++i)
        if (parties[i].intersects(page))
            g.drawImage(parties[i].topLeft() - page.topLeft(), cuir[i]);
    g.restore();
    ui::icc::page(g, taille, gauche);
}

// The leather boards, drawn in the parts of the window where they show.
class Couverture : public QWidget {
public:
    Couverture(QWidget* parent, std::shared_ptr<CouvertureDessinee> dessin)
        : QWidget(parent), dessin_(std::move(dessin)) {
        setGeometry(parent->rect());
    }

protected:
    void paintEvent(QPaintEvent* e) override {
        const std::vector<QRect>& parties = dessin_->parties();
        const std::vector<QImage>& cuir = dessin_->fonds().cuir;
        QPainter g(this);
        for (std::size_t i = 0; i < parties.size(); ++i)
            if (e->region().intersects(parties[i])) g.drawImage(parties[i].topLeft(), cuir[i]);
    }

private:
    const std::shared_ptr<CouvertureDessinee> dessin_;
};

} // namespace

CouvertureDessinee::CouvertureDessinee(qreal echelle)
    : taille_(ui::px(ui::largeur_livre), ui::px(ui::hauteur_livre)), echelle_(echelle) {
    // The leather shows round the pages and under their rounded corners, nowhere else: the
    // pages and the spine lie opaque on it.
    QRegion cuir(QRect(QPoint(), taille_));
    for (const ui::RectTwips& page : {Torva1::pageg_rect, Torva1::paged_rect}) {
        const QRect r = ui::px(page);
        const int c = int(std::ceil(r.width() / 60.0)) + 2; // the corners' radius, and a pixel
        cuir -= r;
        for (const QPoint& coin :
             {r.topLeft(), QPoint(r.right() - c + 1, r.top()), QPoint(r.left(), r.bottom() - c + 1),
              QPoint(r.right() - c + 1, r.bottom() - c + 1)})
            cuir += QRect(coin, QSize(c, c));
    }
    cuir -= ui::px(Torva1::Picture1_rect);
    parties_.assign(cuir.begin(), cuir.end());
    fait_ = ui::ACote(
        [fonds = fonds_, taille = taille_, parties = parties_,
         pages = std::array{ui::px(Torva1::pageg_rect), ui::px(Torva1::paged_rect)}, echelle] {
            fonds->cuir = ui::icc::couverture(taille, parties);
            for (std::size_t i = 0; i < pages.size(); ++i)
                fonds->pages[i] = ui::VueSurface::image_du_fond(
                    [&](QPainter& g, QSize s) {
                        page_sur_le_cuir(g, s, parties, fonds->cuir, pages[i], i == 0);
                    },
                    pages[i].size() * echelle, echelle, true);
        },
        ui::ACote::Fil::dessin);
}

bool CouvertureDessinee::convient(QSize taille, qreal echelle) const {
    return taille == taille_ && echelle == echelle_;
}

const CouvertureDessinee::Fonds& CouvertureDessinee::fonds() {
    fait_.attends();
    return *fonds_;
}

void CouvertureDessinee::page(QPainter& g, const QRect& r, QSize taille, bool gauche) {
    page_sur_le_cuir(g, taille, parties_, fonds().cuir, r, gauche);
}

QImage CouvertureDessinee::page_prete(bool gauche) {
    fait_.attends();
    return std::exchange(fonds_->pages[gauche ? 0 : 1], {});
}

Torva1Vue::Torva1Vue(Torva1& logique, std::shared_ptr<CouvertureDessinee> couverture)
    : ui::Vue(logique), l_(logique) {
    ui::pose_fenetre_principale(this);
    setWindowTitle(QStringLiteral("Agenda"));
    setFixedSize(ui::px(ui::largeur_livre), ui::px(ui::hauteur_livre));
    setAutoFillBackground(false);
    // The leather, the pages and the spine cover every pixel of the window: the toolkit's fill of
    // the whole window beneath them is not done, a millisecond of the opening.
    setAttribute(Qt::WA_OpaquePaintEvent);

    if (!couverture || !couverture->convient(size(), devicePixelRatioF()))
        couverture = std::make_shared<CouvertureDessinee>(devicePixelRatioF());
    new Couverture(this, couverture);

    // Each page's picture carries the boards beneath its rounded corners, so that the page is
    // opaque: a repaint over a page does not paint the boards first.
    const auto page_sur_la_couverture = [this, couverture](bool gauche) {
        return [this, couverture, gauche](QPainter& g, QSize s) {
            couverture->page(g, (gauche ? pageg_ : paged_)->geometry(), s, gauche);
        };
    };
    pageg_ = new ui::VueSurface(this, page_sur_la_couverture(true));
    paged_ = new ui::VueSurface(this, page_sur_la_couverture(false));
    for (ui::VueSurface* page : {pageg_, paged_}) {
        page->setAttribute(Qt::WA_OpaquePaintEvent);
        page->fond_pret(
            [couverture, gauche = page == pageg_] { return couverture->page_prete(gauche); });
    }
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
    picture1->setPicture(ui::icc::reliure(picture1->size()));

    for (int i = 0; i < Torva1::nb_onglets; ++i) {
        for (const bool gauche : {true, false}) {
            auto* b = new QPushButton(this);
            ui::place(*b, Torva1::onglet_rect(gauche, i));
            b->setFlat(true);
            b->setCursor(Qt::PointingHandCursor);
            b->setIconSize(b->size());
            connect(b, &QPushButton::clicked, this, [this, i, gauche] {
                appelle([&] { gauche ? l_.ongletg_Click(i) : l_.ongletd_Click(i); });
            });
            (gauche ? ongletg_ : ongletd_)[std::size_t(i)] = b;
        }
    }

    const auto gauche_haut = Qt::AlignLeft | Qt::AlignVCenter;
    QLabel* label1 = texte(pageg_, Torva1::Label1_rect, 14, false, gauche_haut);
    QLabel* label2 = texte(pageg_, Torva1::Label2_rect, 18, false, gauche_haut);
    QLabel* label3 = texte(pageg_, Torva1::Label3_rect, 54, true, gauche_haut);
    QLabel* label4 = texte(pageg_, Torva1::Label4_rect, 18, false, gauche_haut);
    for (std::size_t i = 0; QLabel * l : {label1, label2, label3, label4})
        date_[i++] = std::make_unique<ui::LegendeGravee>(*pageg_, *l);
    label7_ = texte(paged_, Torva1::Label7_rect, 20, true, Qt::AlignCenter);
    label7_->setCursor(Qt::PointingHandCursor);
    label7_->setToolTip(QStringLiteral("Changer de collaborateur"));
    label7_->installEventFilter(this);

    calend_ = ui::calendrier(*pageg_, Torva1::calend_rect, ui::police(QStringLiteral("Arial"), 8));
    calend_->setGridVisible(false);
    // Its parts cover it whole: said opaque, it is not repainted with the page under it.
    calend_->setAutoFillBackground(true);
    connect(calend_, &QCalendarWidget::clicked, this,
            [this](QDate d) { appelle([&] { l_.calend_Click(ui::date_de(d)); }); });

    picture2_ = ui::fleche_jour(*pageg_, Torva1::Picture2_rect, true,
                                [this] { appelle([&] { l_.Picture2_Click(); }); });
    picture3_ = ui::fleche_jour(*paged_, Torva1::Picture3_rect, false,
                                [this] { appelle([&] { l_.Picture3_Click(); }); });

    // The buttons at the foot of the right page: the settings, the day on paper.
    QToolButton* bt_out =
        bouton_pied(Torva1::bt_out_rect, &ui::icc::reglages,
                    QStringLiteral("Paramétrage de l'Agenda"), [this] { l_.bt_out_Click(); });
    connect(&l_, &Torva1::cache, this, [this](bool oui) { setVisible(!oui); });
    QToolButton* bt_imprime =
        bouton_pied(Torva1::bt_imprime_rect, &ui::icc::imprimante,
                    QStringLiteral("Imprimer la journée"), [this] { imprime(); });

    connect(calend_, &QCalendarWidget::currentPageChanged, this, [this](int, int) { montre(); });

    // The title and the buttons stand where the week lays its strips and its note.
    vue_jour_ = {label1,  label2,    label3,    label4, label7_,
                 calend_, picture2_, picture3_, bt_out, bt_imprime};
    reserves_[reserve_g].parent = pageg_;
    reserves_[reserve_d].parent = paged_;
    // The week and the year are built at their first showing: most days only the day is seen.

    connect(&l_, &Torva1::charge_banniere, this,
            [this] { sepaffic_ = std::make_unique<Sepaffic>(); });
    // Timer3 never puts the book above a window it opened.
    connect(&l_, &Torva1::au_premier_plan, this, [] { ui::au_premier_plan(); });

    // Built after its day was loaded, as the program opens, the book shows it at once.
    if (etat.banniere_chargee) sepaffic_ = std::make_unique<Sepaffic>();
    montre();
}

QToolButton* Torva1Vue::bouton_pied(const ui::RectTwips& r, QPixmap (*image)(QSize),
                                    const QString& aide, std::function<void()> clic) {
    auto* b = new QToolButton(paged_);
    ui::place(*b, r);
    b->setAutoRaise(true);
    b->setCursor(Qt::PointingHandCursor);
    b->setIcon(image(b->size()));
    b->setIconSize(b->size());
    b->setToolTip(aide);
    connect(b, &QToolButton::clicked, this, [this, clic] { apres_le_clic(clic); });
    return b;
}

Torva1Vue::~Torva1Vue() {
    ui::pose_fenetre_principale(nullptr);
}

void Torva1Vue::imprime() {
    const bool semaine = l_.vue_visible == 1;
    const QString quand = semaine ? QStringLiteral("Semaine du ") +
                                        ui::format_date(etat.date_courante, u"dddd dd mmmm yyyy")
                                  : jour_en_lettres(etat.date_courante);
    ui::imprime(this,
                semaine ? QStringLiteral("Imprimer la semaine")
                        : QStringLiteral("Imprimer la journée"),
                l_.Label7 + QStringLiteral(" — ") + quand, taille_livre_ouvert(),
                [this, semaine](QPainter& g) {
                    if (semaine)
                        dessine_semaine(g, l_);
                    else
                        dessine_jour(g, l_);
                });
}

void Torva1Vue::construit_semaine() {
    for (int k = 0; k < Torva1::nb_bandes; ++k) {
        QWidget* page = Torva1::bande_a_gauche(k) ? pageg_ : paged_;
        auto* bande = new ui::VueSurface(page, ui::VueSurface::fond_image(&ui::icc::feuille));
        ui::place(*bande, Torva1::pages_rect(k));
        bande->setCursor(Qt::PointingHandCursor);
        bande->setToolTip(QStringLiteral("Ouvrir ce jour"));
        bande->sur_clic = [this, k](int, int) {
            if (l_.vue_visible == 1) apres_le_clic([this, k] { l_.pages_Click(k); });
        };
        pages_[std::size_t(k)] = bande;
        reserves_[std::size_t(reserve_bande + k)].parent = bande;

        auto* nom = texte(page, Torva1::njours_rect(k), 10, true, Qt::AlignLeft | Qt::AlignBottom);
        njours_[std::size_t(k)] = nom;
        auto* ligne = new QFrame(page); // Line4(k), under the heading
        const ui::RectTwips n = Torva1::njours_rect(k);
        ui::place(*ligne, {n.left, n.top + n.height + 10, n.width, 15});
        ligne->setFrameShape(QFrame::HLine);
        ligne->setStyleSheet(QStringLiteral("color: #b89b72;"));
        vue_semaine_.insert(vue_semaine_.end(), {bande, nom, ligne});
    }

    text3_ = boite(paged_, Torva1::Text3_rect, 10, Qt::AlignLeft | Qt::AlignTop,
                   QStringLiteral("Écrire la note de la semaine"), this);
    text3_->setWordWrap(true);
    text3_->setMargin(ui::px(60));
    text3_->setCursor(Qt::IBeamCursor);
    auto* label10 = texte(paged_, Torva1::Label10_rect, 11, false, Qt::AlignCenter);
    label10->setText(QStringLiteral("Note de la semaine"));
    QToolButton* picture4 = ui::fleche_jour(
        *paged_, Torva1::picture4_rect, true, [this] { appelle([&] { l_.picture4_Click(); }); },
        ui::Pas::semaine);
    QToolButton* picture5 = ui::fleche_jour(
        *paged_, Torva1::Picture5_rect, false, [this] { appelle([&] { l_.Picture5_Click(); }); },
        ui::Pas::semaine);
    // At the end of the Friday's heading, above it.
    QToolButton* imprime_semaine =
        bouton_pied(Torva1::bt_imprime_semaine_rect, &ui::icc::imprimante,
                    QStringLiteral("Imprimer la semaine"), [this] { imprime(); });
    vue_semaine_.insert(vue_semaine_.end(), {text3_, label10, picture4, picture5, imprime_semaine});
}

void Torva1Vue::construit_annee() {
    // A calendar sheet laid over both pages.
    picture6_ = new QLabel(this);
    ui::place(*picture6_, Torva1::Picture6_rect);
    picture6_->setPixmap(ui::icc::feuille(picture6_->size()));

    const QFont police_grille = ui::police(QStringLiteral("DejaVu Sans"), 7);
    for (int m = 0; m < 12; ++m) {
        auto* g = new QTableWidget(7, 7, picture6_);
        ui::place(*g, Torva1::g1_rect(m));
        g->horizontalHeader()->hide();
        g->verticalHeader()->hide();
        g->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
        g->verticalHeader()->setMinimumSectionSize(1);
        g->verticalHeader()->setDefaultSectionSize(ui::px(Torva1::g1_ligne));
        g->horizontalHeader()->setMinimumSectionSize(1);
        g->setColumnWidth(0, ui::px(Torva1::g1_colonne0));
        for (int c = 1; c < 7; ++c)
            g->setColumnWidth(c, ui::px(Torva1::g1_colonne));
        g->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        g->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        g->setEditTriggers(QAbstractItemView::NoEditTriggers);
        g->setSelectionMode(QAbstractItemView::NoSelection);
        g->setFocusPolicy(Qt::NoFocus);
        g->setFrameStyle(QFrame::NoFrame);
        g->setGridStyle(Qt::DotLine);
        g->setFont(police_grille);
        g->setStyleSheet(QStringLiteral("QTableWidget { background: transparent; "
                                        "gridline-color: #d8c9a8; color: #4a2c1a; }"));
        g->setCursor(Qt::PointingHandCursor);
        for (int r = 0; r < 7; ++r)
            for (int c = 0; c < 7; ++c) {
                auto* item = new QTableWidgetItem;
                // Weekday names to the left, the days centred, all on the cell's foot.
                item->setTextAlignment((c == 0 ? Qt::AlignLeft : Qt::AlignHCenter) |
                                       Qt::AlignBottom);
                g->setItem(r, c, item);
            }
        connect(g, &QTableWidget::cellClicked, this, [this, m](int ligne, int colonne) {
            apres_le_clic([this, m, ligne, colonne] { l_.g1_Click(m, ligne, colonne); });
        });
        g1_[std::size_t(m)] = g;
        label111_[std::size_t(m)] =
            texte(picture6_, Torva1::Label111_rect(m), 11, true, Qt::AlignLeft | Qt::AlignBottom);
    }
    label222_ = texte(picture6_, Torva1::Label222_rect, 30, true, Qt::AlignCenter);
    label9_ = texte(picture6_, Torva1::Label9_rect, 14, false, Qt::AlignCenter);
    label8_ = texte(picture6_, Torva1::Label8_rect, 14, false, Qt::AlignCenter);
    for (QLabel* l : {label9_, label8_}) {
        l->setCursor(Qt::PointingHandCursor);
        l->installEventFilter(this);
    }
    ui::fleche_jour(
        *picture6_, Torva1::Picture7_rect, true, [this] { appelle([&] { l_.Picture7_Click(); }); },
        ui::Pas::annee);
    ui::fleche_jour(
        *picture6_, Torva1::Picture8_rect, false, [this] { appelle([&] { l_.Picture8_Click(); }); },
        ui::Pas::annee);

    // The colour samples; a click changes the colour.
    const auto echantillon = [this](const ui::RectTwips& r, const QString& nom) {
        QLabel* l =
            boite(picture6_, r, 9, Qt::AlignCenter, QStringLiteral("Changer la couleur"), this);
        l->setText(nom);
        return l;
    };
    label5_ = echantillon(Torva1::Label5_rect, QStringLiteral("Jours fériés"));
    label6_ = echantillon(Torva1::Label6_rect, QStringLiteral("Rendez-vous"));
}

void Torva1Vue::montre_semaine(bool visible) {
    if (vue_semaine_.empty()) {
        if (!visible) return;
        construit_semaine();
    }
    for (QWidget* w : vue_semaine_)
        w->setVisible(visible);
    for (int k = 0; k < Torva1::nb_bandes; ++k) {
        pages_[std::size_t(k)]->montre(visible ? &l_.pages[std::size_t(k)] : nullptr);
        if (visible) njours_[std::size_t(k)]->setText(l_.njours[std::size_t(k)]);
        montre_etiquettes(reserve_bande + k, visible ? &l_.lrvs[std::size_t(k)] : nullptr);
    }
    if (!visible) return;
    text3_->setText(ui::crlf_vers_ecran(l_.Text3));
    fond_de(*text3_, l_.Text3_fond, l_.Text3_encre);
}

void Torva1Vue::montre_annee() {
    if (!picture6_) {
        if (!l_.Picture6_visible) return;
        construit_annee();
    }
    picture6_->setVisible(l_.Picture6_visible);
    // Everything below changes with a drawing only, a colour sample's too: a day step skips it.
    if (!l_.Picture6_visible || dessin_annee_montre_ == l_.dessins_annee) return;
    dessin_annee_montre_ = l_.dessins_annee;
    fond_de(*label5_, l_.Label5_fond, 0);
    fond_de(*label6_, l_.Label6_fond, 0);
    label222_->setText(l_.Label222);
    label8_->setText(l_.Label8);
    label9_->setText(l_.Label9);
    for (std::size_t m = 0; m < 12; ++m) {
        label111_[m]->setText(l_.Label111[m]);
        QTableWidget* g = g1_[m];
        // Filled with its redrawing held back, as the twelve are filled at once.
        g->setUpdatesEnabled(false);
        for (std::size_t r = 0; r < 7; ++r)
            for (std::size_t c = 0; c < 7; ++c) {
                QTableWidgetItem* item = g->item(int(r), int(c));
                item->setText(l_.g1[m].texte[r][c]);
                const std::int32_t fond = l_.g1[m].fond[r][c];
                item->setBackground(fond < 0 ? QBrush() : QBrush(ui::couleur(fond)));
            }
        g->setUpdatesEnabled(true);
    }
}

QLabel* Torva1Vue::texte(QWidget* parent, const ui::RectTwips& r, double points, bool gras,
                         Qt::Alignment a) {
    auto* l = new QLabel(parent);
    ui::place(*l, r);
    l->setFont(ui::police(QStringLiteral("DejaVu Serif"), points, gras));
    l->setAlignment(a);
    // The book's ink, by the palette: a style sheet would cost each caption a styled polish.
    QPalette p = l->palette();
    p.setColor(QPalette::WindowText, ui::icc::encre);
    l->setPalette(p);
    return l;
}

void Torva1Vue::montre() {
    for (int i = 0; i < Torva1::nb_onglets; ++i) {
        for (const bool gauche : {true, false}) {
            QPushButton* b = (gauche ? ongletg_ : ongletd_)[std::size_t(i)];
            const bool visible =
                gauche ? l_.ongletg_visible[std::size_t(i)] : l_.ongletd_visible[std::size_t(i)];
            b->setVisible(visible);
            // Most tabs stay hidden: a tab's title and colours are given when it is shown.
            if (!visible) continue;
            if (b->icon().isNull())
                b->setIcon(gauche ? ui::icc::p11g(i, b->size()) : ui::icc::p11d(i, b->size()));
            ui::pose_feuille_empruntee(
                *b, ui::feuille_arrondie(teinte(l_.couleurs_onglet[std::size_t(i)]), 6));
        }
    }

    const bool jour = l_.vue_visible == 0;
    for (QWidget* w : vue_jour_)
        w->setVisible(jour);
    pageg_->montre(jour ? &l_.pageg : nullptr);
    paged_->montre(jour ? &l_.paged : nullptr);
    if (jour)
        for (std::size_t i = 0;
             const QString* texte : {&l_.Label1, &l_.Label2, &l_.Label3, &l_.Label4})
            date_[i++]->montre(*texte);
    label7_->setText(l_.Label7);
    setWindowTitle(l_.Label7 == QLatin1String("Agenda") ? QStringLiteral("Agenda")
                                                        : QStringLiteral("Agenda — ") + l_.Label7);
    {
        const QSignalBlocker bloque(calend_);
        calend_->setSelectedDate(ui::jour_de(l_.calend));
    }

    const auto feries = std::tuple(calend_->yearShown(), calend_->monthShown(), l_.Label5_fond);
    if (feries != feries_montres_) {
        feries_montres_ = feries;
        colore_feries(*calend_, calend_->yearShown(), calend_->monthShown(), l_.Label5_fond);
    }

    montre_etiquettes(reserve_g, jour ? &l_.lrv : nullptr);
    montre_etiquettes(reserve_d, jour ? &l_.lrvd : nullptr);
    montre_semaine(l_.vue_visible == 1);
    montre_annee();
}

void Torva1Vue::montre_etiquettes(int r, const std::map<int, EtiquetteRv>* etiquettes) {
    // The labels are kept from one showing to the next: no label is deleted while its own click
    // may be running, and no style sheet is parsed. Those not needed are shrunk to nothing
    // rather than hidden, for showing a widget again asks the X server where the pointer is: a
    // round trip per label at every day step.
    Reserve& reserve = reserves_[std::size_t(r)];
    reserve.indices.clear();
    std::size_t k = 0;
    if (etiquettes) {
        for (const auto& [i, et] : *etiquettes) {
            if (k == reserve.etiquettes.size()) reserve.etiquettes.push_back(nouvelle_etiquette(r));
            QLabel* e = reserve.etiquettes[k++];
            ui::place(*e, {et.left, et.top, et.width, et.height});
            e->setText(et.legende);
            // A palette given again, even the same, is resolved again through the children.
            if (const QColor fond = ui::couleur(et.couleur);
                e->palette().color(QPalette::Window) != fond) {
                QPalette p = e->palette();
                p.setColor(QPalette::Window, fond);
                e->setPalette(p);
            }
            // A frame style, unlike a palette, is laid out again even when it is the same.
            if (const int cadre = et.bordure ? QFrame::Box | QFrame::Plain : QFrame::NoFrame;
                e->frameStyle() != cadre)
                e->setFrameStyle(cadre);
            reserve.indices.push_back(i);
            e->show();
        }
    }
    for (; k < reserve.etiquettes.size(); ++k)
        reserve.etiquettes[k]->setGeometry(QRect());
}

void Torva1Vue::clic_etiquette(int r, int i) {
    if (r == reserve_g)
        l_.lrv_Click(i);
    else if (r == reserve_d)
        l_.lrvd_Click(i);
    else
        l_.lrvs_Click(r - reserve_bande, i);
}

QLabel* Torva1Vue::nouvelle_etiquette(int r) {
    auto* e = new QLabel(reserves_[std::size_t(r)].parent);
    // Which reserve and which of its labels: the appointment it shows changes with the day.
    e->setProperty("reserve", r);
    e->setProperty("place", int(reserves_[std::size_t(r)].etiquettes.size()));
    // A strip gives an hour 175 twips: its labels keep one line, centred on their height.
    const bool bande = r >= reserve_bande;
    e->setWordWrap(!bande);
    e->setAlignment(Qt::AlignLeft | (bande ? Qt::AlignVCenter : Qt::AlignTop));
    e->setFont(ui::police(QStringLiteral("Arial"), bande ? 7 : 8));
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
    if (e->type() == QEvent::MouseButtonRelease) {
        if (o == label7_) {
            apres_le_clic([this] { l_.Label7_Click(); });
            return true;
        }
        if (o == text3_) {
            apres_le_clic([this] { l_.Text3_Click(); });
            return true;
        }
        if (o == label9_ || o == label8_) {
            appelle([&] { o == label9_ ? l_.Picture7_Click() : l_.Picture8_Click(); });
            return true;
        }
        if (o == label5_ || o == label6_) {
            apres_le_clic([this, o] { o == label5_ ? l_.Label5_Click() : l_.Label6_Click(); });
            return true;
        }
    }
    // A click on a label is the label's, not the page's beneath it. Only a click's events look
    // for the label's properties: a day step sends each label many others.
    const bool pression = e->type() == QEvent::MouseButtonPress,
               relache = e->type() == QEvent::MouseButtonRelease;
    if (!(pression || relache) || !o->property("reserve").isValid())
        return QWidget::eventFilter(o, e);
    if (pression) return true;
    const auto* w = static_cast<QWidget*>(o);
    if (w->rect().contains(static_cast<QMouseEvent*>(e)->position().toPoint())) {
        const int r = o->property("reserve").toInt(), k = o->property("place").toInt();
        const std::vector<int>& indices = reserves_[std::size_t(r)].indices;
        if (std::size_t(k) < indices.size()) {
            const int i = indices[std::size_t(k)];
            apres_le_clic([this, r, i] { clic_etiquette(r, i); });
        }
    }
    return true;
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
