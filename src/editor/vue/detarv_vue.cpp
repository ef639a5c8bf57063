#include "editor/vue/detarv_vue.h"

#include "data/etat.h"
#include "ui/vue/echelle.h"
#include "ui/vue/icc.h"
#include "ui/vue/style.h"
#include "ui/vue/widgets.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCompleter>
#include <QDialog>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QToolButton>
#include <QToolTip>

namespace agenda {

namespace {

using ui::RectTwips;

using ui::crlf_vers_ecran;
using ui::ecran_vers_crlf;

} // namespace

DetarvVue::DetarvVue(Detarv& l) : VueModale(l, Detarv::largeur, Detarv::hauteur), l_(l) {
    const auto police = [](double pts, bool gras = false) {
        return ui::police(QStringLiteral("DejaVu Sans"), pts, gras);
    };
    // The selectors' font, which they take from the window as they are made: given to each
    // afterwards, it made each build at once the popup of its list.
    setFont(police(10));
    const auto label = [&](const RectTwips& r, const QString& t, double pts, bool gras = false) {
        auto* w = new QLabel(t, this);
        ui::place(*w, r);
        ui::pose_sol_uni(*w, ui::icc::papier);
        ui::encre_libelle(*w);
        // Given only where it is not the window's, which each takes as it is made.
        if (const QFont f = police(pts, gras); f != font()) w->setFont(f);
        w->setWordWrap(true);
        return w;
    };

    label4_ = label(Detarv::Label4_rect, {}, 16, true);
    label4_->setFont(ui::police(QStringLiteral("DejaVu Serif"), 16, true));
    label13_ = label(Detarv::Label13_rect, {}, 14, true);
    label13_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    label(Detarv::Label10_rect,
          QStringLiteral("<-- Saisisez le nom du client et les éventuelles prestations"), 8);
    label(Detarv::Label11_rect,
          QStringLiteral("Cliquez sur les heures pour saisir l'heure de départ et sur "
                         "les points gris pour saisir les minutes --->"),
          8);
    label(Detarv::Label12_rect,
          QStringLiteral("<-- Cliquez sur les prestations pour les ajouter dans le "
                         "texte et pour calculer le temps total des prestations."),
          8);
    label(Detarv::Label6_rect, QStringLiteral("Durée du rendez-vous"), 8);

    text1_ = new QPlainTextEdit(this);
    ui::place(*text1_, Detarv::Text1_rect);
    text1_->setFont(police(11));
    connect(text1_, &QPlainTextEdit::textChanged, this,
            [this] { l_.Text1 = ecran_vers_crlf(text1_->toPlainText()); });
    l_.focus_texte = [this] { text1_->setFocus(); };
    text1_->viewport()->installEventFilter(this);

    ui::palette(*this, Detarv::Picture1_rect,
                [this](std::int32_t c) { appelle([&] { l_.Picture1_MouseDown(c); }); });

    check1_ = new QCheckBox(QStringLiteral("Encadrement"), this);
    ui::place(*check1_, Detarv::Check1_rect);
    ui::pose_sol_uni(*check1_, ui::icc::papier);
    connect(check1_, &QCheckBox::toggled, this, [this](bool oui) { l_.Check1 = oui ? 1 : 0; });

    label15_ = label(Detarv::Label15_rect, {}, 10);
    label15_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    text2_ = new QLineEdit(this);
    ui::place(*text2_, Detarv::Text2_rect);
    connect(text2_, &QLineEdit::textEdited, this, [this](const QString& t) { l_.Text2 = t; });
    text2_->installEventFilter(this);

    // The client: the list, and the card of the one attached.
    const auto image = [&](const RectTwips& r, const QPixmap& p, const QString& aide,
                           std::function<void()> f) {
        auto* b = new QToolButton(this);
        ui::place(*b, r);
        ui::pose_sol_uni(*b, ui::icc::papier);
        b->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        b->setIcon(ui::icc::icone_de(p));
        b->setIconSize(QSize(b->height() * 4 / 5, b->height() * 4 / 5));
        b->setText(aide);
        b->setFont(police(8, true));
        connect(b, &QToolButton::clicked, this, [this, f] { appelle(f); });
        return b;
    };
    const QSize icone(ui::px(500), ui::px(500));
    image(Detarv::Image1_rect, ui::icc::visage(0, icone), QStringLiteral("Client..."), [this] {
        l_.Image1_Click();
    })->setToolTip(QStringLiteral("Sélectionner un client"));
    image2_ = image(Detarv::Image2_rect, ui::icc::visage(2, icone), QStringLiteral("Fiche"),
                    [this] { l_.Image2_Click(); });
    image2_->setToolTip(QStringLiteral("Fiche du client"));

    g1_ = grille(Detarv::g1_rect, int(l_.g1.size()), 2, 9);
    g1_->setColumnWidth(0, ui::px(3000));
    g1_->setColumnWidth(1, ui::px(1100));
    g1_->verticalHeader()->setDefaultSectionSize(ui::px(300));
    // The grid's rows past the catalogue are empty cells: they are drawn and clicked as cells
    // with an empty text are, without the hundred items they would cost to make.
    for (int i = 0; i < int(l_.g1.size()); ++i) {
        const Detarv::LigneService& s = l_.g1[std::size_t(i)];
        if (!s.nom.isEmpty()) g1_->setItem(i, 0, new QTableWidgetItem(s.nom));
        if (!s.minutes.isEmpty()) g1_->setItem(i, 1, new QTableWidgetItem(s.minutes));
    }
    connect(g1_, &QTableWidget::cellClicked, this,
            [this](int ligne, int) { appelle([&] { l_.g1_Click(ligne); }); });

    g2_ = grille(Detarv::g2_rect, 4, 4, 8);
    // "1h30" must show whole in a cell a quarter of the grid wide.
    g2_->setTextElideMode(Qt::ElideNone);
    // Its cells are all in view: at some scales their rounding overflows the frame by a pixel,
    // which must not bring up scroll bars over the last row and column.
    g2_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    g2_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    g2_->verticalHeader()->setDefaultSectionSize(ui::px(410));
    g2_->horizontalHeader()->setDefaultSectionSize(ui::px(490));
    for (int r = 0; r < 4; ++r) {
        for (int c = 0; c < 4; ++c) {
            auto* item = new QTableWidgetItem(QString::fromLatin1(Detarv::g2[r][c]));
            item->setTextAlignment(Qt::AlignCenter);
            g2_->setItem(r, c, item);
        }
    }
    connect(g2_, &QTableWidget::cellClicked, this,
            [this](int r, int c) { appelle([&] { l_.g2_Click(r, c); }); });

    label7_ = new QLineEdit(this);
    ui::place(*label7_, Detarv::Label7_rect);
    label7_->setFont(police(11, true));
    connect(label7_, &QLineEdit::textEdited, this, [this](const QString& t) { l_.Label7 = t; });
    connect(label7_, &QLineEdit::editingFinished, this,
            [this] { appelle([&] { l_.Label7_LostFocus(); }); });
    label9_ = label(Detarv::Label9_rect, {}, 8);

    picture2_ = new ui::VueSurface(this, ui::VueSurface::fond_image([this](QSize t) {
                                       return ui::icc::horloge_sur(l_.face, t, ui::icc::papier);
                                   }));
    ui::place(*picture2_, Detarv::Picture2_rect);
    // Its face covers it whole, on the window's paper: the window need not paint under it.
    picture2_->setAttribute(Qt::WA_OpaquePaintEvent);
    picture2_->sans_image_gardee(); // every move of the hands redraws the face
    // The cells are places on the face's numbers and dots, found under the pointer: two dozen
    // buttons over them, invisible until pressed, were a sixth of the window's widgets.
    picture2_->setMouseTracking(true);
    picture2_->installEventFilter(this);

    const auto bouton = [&](const RectTwips& r, const QString& t, std::function<void()> f) {
        auto* b = new QPushButton(t, this);
        ui::place(*b, r);
        ui::pose_sol_uni(*b, ui::icc::papier);
        b->setFont(police(10, true));
        connect(b, &QPushButton::clicked, this, [this, f] { appelle(f); });
        return b;
    };
    picture3_ =
        bouton(Detarv::Picture3_rect, QStringLiteral("Matin"), [this] { l_.Picture3_Click(); });
    picture3_->setToolTip(QStringLiteral("Horloge avant midi de 0h00 à 11h00"));
    picture4_ = bouton(Detarv::picture4_rect, QStringLiteral("Après-midi"),
                       [this] { l_.picture4_Click(); });
    picture4_->setToolTip(QStringLiteral("Horloge aprés-midi de 12h00 à 23h00"));

    label(Detarv::debut_rect, QStringLiteral("Début"), 9, true);
    label(Detarv::fin_rect, QStringLiteral("Fin"), 9, true);
    combos_ = {combo(Detarv::Combo1_rect, Detarv::heures(), &Detarv::Combo1,
                     [this] { l_.Combo1_Click(); }),
               combo(Detarv::Combo2_rect, Detarv::minutes(), &Detarv::Combo2,
                     [this] { l_.Combo2_Click(); }),
               combo(Detarv::Combo3_rect, Detarv::heures(), &Detarv::Combo3,
                     [this] { l_.Combo3_Click(); }),
               combo(Detarv::Combo4_rect, Detarv::minutes(), &Detarv::Combo4,
                     [this] { l_.Combo4_Click(); })};

    bouton(Detarv::bt_valid_rect, QStringLiteral("Valider le rendez-vous"), [this] {
        l_.bt_valid_Click();
    })->setDefault(false);
    bouton(Detarv::bt_annul_rect, QStringLiteral("Effacer le rendez-vous"),
           [this] { l_.bt_annul_Click(); });
    bouton(Detarv::bt_annull_rect, QStringLiteral("Efface le texte"),
           [this] { l_.bt_annull_Click(); });
    bouton(Detarv::bt_corr_rect, QStringLiteral("Changer de date"), [this] { l_.bt_corr_Click(); });

    montre();
    // Across the middle of the screen, at the top.
    ui::centre_fenetre(*this);
    move(x(), 0);
    pose_cadre(ui::coin_fin);
    text1_->setFocus();
}

DetarvVue::~DetarvVue() {
    l_.focus_texte = nullptr;
}

bool DetarvVue::eventFilter(QObject* o, QEvent* e) {
    if (o == picture2_) return evenement_horloge(e);
    // On a touch screen the text and the SMS number are typed on the on-screen keyboard.
    const bool texte = o == text1_->viewport(), sms = o == text2_;
    if ((texte || sms) && etat.clavier_ecran != 0 &&
        (e->type() == QEvent::MouseButtonPress || e->type() == QEvent::MouseButtonRelease)) {
        if (e->type() == QEvent::MouseButtonRelease)
            apres_le_clic([this, texte] { texte ? l_.Text1_Click() : l_.Text2_Click(); });
        return true;
    }
    return QDialog::eventFilter(o, e);
}

bool DetarvVue::evenement_horloge(QEvent* e) {
    const auto sous = [this](QPointF p) {
        return l_.cellule(ui::twips(int(p.x())), ui::twips(int(p.y())));
    };
    switch (e->type()) {
    case QEvent::MouseButtonPress: {
        // A click is a press and a release of the left button on the same cell.
        const auto* m = static_cast<QMouseEvent*>(e);
        pressee_ = m->button() == Qt::LeftButton ? sous(m->position()) : std::nullopt;
        return false;
    }
    case QEvent::MouseButtonRelease: {
        const auto* m = static_cast<QMouseEvent*>(e);
        const auto c = std::exchange(pressee_, std::nullopt);
        const auto ici = sous(m->position());
        if (m->button() == Qt::LeftButton && c && ici && c->heure == ici->heure &&
            c->index == ici->index)
            appelle([&] { c->heure ? l_.sheur_Click(c->index) : l_.sminu_Click(c->index); });
        return false;
    }
    case QEvent::MouseMove: {
        const Qt::CursorShape forme = sous(static_cast<QMouseEvent*>(e)->position())
                                          ? Qt::PointingHandCursor
                                          : Qt::ArrowCursor;
        if (picture2_->cursor().shape() != forme) picture2_->setCursor(forme);
        return false;
    }
    case QEvent::ToolTip: {
        const auto* h = static_cast<QHelpEvent*>(e);
        if (const auto c = sous(h->pos()))
            QToolTip::showText(h->globalPos(),
                               c->heure ? QStringLiteral("%1 h").arg(c->index)
                                        : QStringLiteral("%1 mn").arg(5 * c->index),
                               picture2_);
        else
            QToolTip::hideText();
        return true;
    }
    default:
        return false;
    }
}

// A grid of cells to click, without headers, editing or selection.
QTableWidget* DetarvVue::grille(const RectTwips& r, int lignes, int colonnes, double points) {
    // Made empty and then given its cells: its headers are not laid out twice.
    auto* g = new QTableWidget(this);
    ui::place(*g, r);
    g->horizontalHeader()->hide();
    g->verticalHeader()->hide();
    g->setEditTriggers(QAbstractItemView::NoEditTriggers);
    g->setSelectionMode(QAbstractItemView::NoSelection);
    g->setFont(ui::police(QStringLiteral("DejaVu Sans"), points));
    ui::garde_cellules(*g);
    g->setColumnCount(colonnes);
    g->setRowCount(lignes);
    return g;
}

QComboBox* DetarvVue::combo(const RectTwips& r, const QStringList& liste, QString Detarv::*champ,
                            std::function<void()> clic) {
    auto* c = new QComboBox(this);
    ui::place(*c, r);
    // Editable through a line of its own rather than setEditable, which builds the popup of the
    // list at once: the popup is made, the same, when the list is first opened.
    auto* saisie = new QLineEdit(c);
    saisie->setPalette(c->palette());
    // A time is taken as typed: the combo's own inline completer would turn a 5 typed in the
    // minutes into 50. The four lines share one completer without a list, which keeps the
    // combo from making its own.
    if (!sans_completion_) {
        sans_completion_ = new QCompleter(this);
        sans_completion_->setCompletionMode(QCompleter::InlineCompletion);
    }
    saisie->setCompleter(sans_completion_);
    c->setLineEdit(saisie);
    c->setInsertPolicy(QComboBox::NoInsert); // typed times do not join the lists
    c->addItems(liste);
    connect(c, &QComboBox::editTextChanged, this,
            [this, champ](const QString& t) { l_.*champ = t; });
    connect(c, &QComboBox::activated, this, [this, c, champ, clic](int i) {
        l_.*champ = c->itemText(i);
        appelle(clic);
    });
    champs_.push_back(champ);
    return c;
}

void DetarvVue::montre() {
    const QSignalBlocker b1(text1_), b2(text2_), b3(label7_), b4(check1_);
    label4_->setText(l_.Label4);
    label13_->setText(l_.Label13);
    if (ecran_vers_crlf(text1_->toPlainText()) != l_.Text1) {
        text1_->setPlainText(crlf_vers_ecran(l_.Text1));
        text1_->moveCursor(QTextCursor::End);
    }
    // The text's colour by its palette rather than a style sheet, whose polish slowed the
    // opening; the frame takes its line from the Window colour, as it did from the sheet.
    QPalette p = text1_->palette();
    for (const QPalette::ColorRole r : {QPalette::Base, QPalette::Window})
        p.setColor(r, ui::couleur(l_.Text1_couleur));
    p.setColor(QPalette::Text, Qt::black);
    text1_->setPalette(p);
    check1_->setChecked(l_.Check1 != 0);
    label15_->setText(crlf_vers_ecran(l_.Label15));
    label15_->setVisible(!l_.Label15.isEmpty());
    text2_->setText(l_.Text2);
    text2_->setVisible(!l_.Label15.isEmpty() || !l_.Text2.isEmpty());
    image2_->setVisible(l_.Image2_visible);
    label7_->setText(l_.Label7);
    label9_->setText(l_.Label9);
    for (std::size_t i = 0; i < combos_.size(); ++i) {
        const QSignalBlocker b(combos_[i]);
        combos_[i]->setEditText(l_.*champs_[i]);
    }
    const auto fond = [](QPushButton* b, std::int32_t c) {
        ui::pose_feuille_empruntee(*b, ui::feuille_arrondie(ui::couleur(c).name(), 4));
    };
    fond(picture3_, l_.Picture3_fond);
    fond(picture4_, l_.picture4_fond);
    aiguilles_.efface();
    for (const auto& [a, epaisseur] : {std::pair{&l_.aiguilh, 110}, {&l_.aiguilm, 60}}) {
        aiguilles_.epaisseur(epaisseur);
        aiguilles_.ligne(int(a->x1), int(a->y1), int(a->x2), int(a->y2), a->couleur);
    }
    picture2_->montre(&aiguilles_);
}

} // namespace agenda
