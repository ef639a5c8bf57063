#include "settings/vue/toroutils_vue.h"

#include "ui/surface.h"
#include "ui/vue/echelle.h"
#include "ui/vue/icc.h"
#include "ui/vue/widgets.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFontDatabase>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QToolButton>

namespace agenda {

namespace {

QComboBox* combo(QWidget& parent, const ui::RectTwips& r, bool editable) {
    auto* c = new QComboBox(&parent);
    ui::place(*c, r);
    c->setEditable(editable);
    c->setFont(ui::police(QStringLiteral("DejaVu Sans"), 10));
    return c;
}

// A hand's colour, shown as a thick line.
QFrame* aiguille(QWidget& parent, const ui::RectTwips& r) {
    auto* f = new QFrame(&parent);
    ui::place(*f, r);
    f->setAutoFillBackground(true);
    return f;
}

} // namespace

ToroutilsVue::ToroutilsVue(Toroutils& l)
    : VueModale(l, ui::largeur_livre, ui::hauteur_livre), l_(l) {
    setWindowTitle(QStringLiteral("Paramétrage de l'Agenda"));
    ui::taille_fenetre(*this);
    ui::libelle(*this, {400, 200, 9000, 600}, QStringLiteral("Paramétrage de l'Agenda"),
                ui::police(QStringLiteral("DejaVu Sans"), 18, true));

    const QString libelles[] = {QStringLiteral("Heure d'ouverture"),
                                QStringLiteral("Heure de rupture de l'agenda"),
                                QStringLiteral("Heure de fermeture")};
    for (int i = 0; i < 3; ++i) {
        ui::libelle(*this, {400, 1050 + i * 500, 3300, 400}, libelles[i],
                    ui::police(QStringLiteral("DejaVu Sans"), 10, false));
        combo1_[std::size_t(i)] = combo(*this, {3800, 1000 + i * 500, 1450, 420}, false);
        connect(combo1_[std::size_t(i)], &QComboBox::currentTextChanged, this,
                [this, i](const QString& t) { l_.Combo1[std::size_t(i)] = t; });
    }
    ui::libelle(*this, {400, 2550, 3400, 400}, QStringLiteral("Temps standard pour un rendez-vous"),
                ui::police(QStringLiteral("DejaVu Sans"), 9, false));
    combo2_ = combo(*this, {3800, 2500, 1000, 420}, true);
    combo2_->addItems({QStringLiteral("15"), QStringLiteral("20"), QStringLiteral("30"),
                       QStringLiteral("45"), QStringLiteral("60")});
    connect(combo2_, &QComboBox::editTextChanged, this,
            [this](const QString& t) { l_.Combo2 = t; });
    ui::libelle(
        *this, {5400, 1000, 2700, 1900},
        QStringLiteral("L'heure de rupture permet de couper l'affichage de l'agenda pour le "
                       "visualiser sur les deux pages ouvertes. ( exemple 7h-12h  et 12h-19h) "
                       "l'heure de rupture est donc 12h"),
        ui::police(QStringLiteral("DejaVu Sans"), 8, false));

    // The clock's model: seven faces, the chosen one framed.
    shape2_ = new QFrame(this);
    shape2_->setStyleSheet(QStringLiteral("border: 3px solid #7a222a; border-radius: 10px;"));
    for (int i = 0; i < Toroutils::horloges; ++i) {
        auto* b = new QToolButton(this);
        ui::place(*b, Toroutils::Image1_rect(i));
        b->setAutoRaise(true);
        b->setIcon(ui::icc::horloge(i, b->size()));
        b->setIconSize(b->size());
        b->setCursor(Qt::PointingHandCursor);
        connect(b, &QToolButton::clicked, this,
                [this, i] { appelle([&] { l_.Image1_Click(i); }); });
    }
    label4_ = ui::libelle(*this, {5400, 2950, 2500, 330}, {},
                          ui::police(QStringLiteral("DejaVu Sans"), 9, true));
    aiguilh_ = aiguille(*this, {400, 4500, 3600, 120});
    aiguilm_ = aiguille(*this, {4400, 4500, 3600, 60});
    ui::libelle(*this, {400, 4650, 3600, 600},
                QStringLiteral("Couleur de la petite aiguille  (heures) "),
                ui::police(QStringLiteral("DejaVu Sans"), 9, false));
    ui::libelle(*this, {4400, 4650, 3600, 600},
                QStringLiteral("Couleur de la grande aiguille  (minutes) "),
                ui::police(QStringLiteral("DejaVu Sans"), 9, false));
    ui::palette(*this, Toroutils::Picture1_rect,
                [this](std::int32_t c) { appelle([&] { l_.Picture1_MouseDown(c); }); });
    ui::palette(*this, Toroutils::Picture2_rect,
                [this](std::int32_t c) { appelle([&] { l_.Picture2_MouseDown(c); }); });
    label5_ = ui::libelle(*this, {400, 6350, 3600, 350}, {},
                          ui::police(QStringLiteral("DejaVu Sans"), 8, false));
    label8_ = ui::libelle(*this, {4400, 6350, 3600, 350}, {},
                          ui::police(QStringLiteral("DejaVu Sans"), 8, false));

    ui::libelle(*this, {400, 6700, 7700, 300},
                QStringLiteral("Cliquez deux fois pour modifier le décalage du jour de fermeture"),
                ui::police(QStringLiteral("DejaVu Sans"), 8, false));
    g1_ = new QTableWidget(2, 7, this);
    ui::place(*g1_, Toroutils::g1_rect);
    g1_->horizontalHeader()->hide();
    g1_->verticalHeader()->hide();
    g1_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    g1_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    g1_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    g1_->verticalHeader()->setDefaultSectionSize(ui::px(Toroutils::g1_rect.height / 2) - 1);
    for (int c = 0; c < 7; ++c)
        g1_->setColumnWidth(c, ui::px(Toroutils::g1_rect.width / 7) - 1);
    connect(g1_, &QTableWidget::cellDoubleClicked, this, [this](int ligne, int colonne) {
        apres_le_clic([this, ligne, colonne] { l_.g1_DblClick(ligne, colonne); });
    });

    // The SMS module.
    ui::libelle(*this, {8600, 1000, 6300, 400},
                QStringLiteral("Module Vigi-SMS (Envoi de sms pour rappel de rendez-vous)"),
                ui::police(QStringLiteral("DejaVu Sans"), 11, true));
    check1_ = new QCheckBox(QStringLiteral("Activer un rappel de rendez vous"), this);
    ui::place(*check1_, {8600, 1500, 6000, 400});
    connect(check1_, &QCheckBox::clicked, this, [this](bool oui) { l_.Check1 = oui ? 1 : 0; });
    ui::libelle(*this, {8600, 2050, 2600, 350}, QStringLiteral("Date d'envoi du SMS"),
                ui::police(QStringLiteral("DejaVu Sans"), 10, false));
    combo3_ = combo(*this, {11300, 2000, 2600, 420}, false);
    connect(combo3_, &QComboBox::currentIndexChanged, this, [this](int i) { l_.Combo3_index = i; });
    ui::libelle(*this, {8600, 2550, 2600, 400},
                QStringLiteral("Nb de minutes avant le rendez-vous"),
                ui::police(QStringLiteral("DejaVu Sans"), 10, false));
    text1_ = new QLineEdit(this);
    ui::place(*text1_, {11300, 2500, 1200, 420});
    connect(text1_, &QLineEdit::textEdited, this, [this](const QString& t) { l_.Text1 = t; });
    ui::libelle(*this, {8600, 3100, 5000, 350},
                QStringLiteral("Message a envoyer 'max 150 caractères' "),
                ui::police(QStringLiteral("DejaVu Sans"), 10, false));
    label7_ = ui::libelle(*this, {14200, 3100, 700, 350}, {},
                          ui::police(QStringLiteral("DejaVu Sans"), 9, true));
    text2_ = new QPlainTextEdit(this);
    ui::place(*text2_, Toroutils::Text2_rect);
    connect(text2_, &QPlainTextEdit::textChanged, this,
            [this] { appelle([&] { l_.Text2_Change(text2_->toPlainText()); }); });
    ui::libelle(*this, {8600, 4900, 6300, 1000},
                QStringLiteral("Tapez le message en intégrant les codes :\n#HEU# pour l'heure du "
                               "rendez-vous\n#DAT# pour la date du rendez-vous"),
                ui::police(QStringLiteral("DejaVu Sans"), 9, false));
    ui::libelle(*this, {8600, 6000, 5300, 900},
                QStringLiteral("Si vous n'avez pas encore téléchargé le module d'envoi de SMS "
                               "cliquez sur l'icône Internet, puis installez et paramètrez "
                               "Vigi_SMS."),
                ui::police(QStringLiteral("DejaVu Sans"), 8));
    auto* image2 = new QToolButton(this);
    ui::place(*image2, {14100, 6000, 800, 800});
    image2->setAutoRaise(true);
    image2->setIcon(ui::icc::internet(image2->size()));
    image2->setIconSize(image2->size());
    image2->setToolTip(Toroutils::adresse_aide());
    connect(image2, &QToolButton::clicked, this, [this] { appelle([&] { l_.Image2_Click(); }); });

    // The appointments of the file, to void a stray one.
    auto* image3 = new QPushButton(QStringLiteral("Liste des rendez-vous de l'agenda..."), this);
    ui::place(*image3, {8600, 7100, 4000, 550});
    connect(image3, &QPushButton::clicked, this, [this] { appelle([&] { l_.Image3_Click(); }); });
    list1_ = new QListWidget(this);
    ui::place(*list1_, Toroutils::List1_rect);
    list1_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    connect(list1_, &QListWidget::itemDoubleClicked, this, [this](QListWidgetItem* item) {
        const int i = list1_->row(item);
        apres_le_clic([this, i] { l_.List1_DblClick(i); });
    });

    auto* retour = new QPushButton(QStringLiteral("Retour à l'agenda"), this);
    ui::place(*retour, {12200, 10200, 2700, 650});
    retour->setFont(ui::police(QStringLiteral("DejaVu Sans"), 11, true));
    connect(retour, &QPushButton::clicked, this, [this] { appelle([&] { l_.command1_Click(); }); });

    {
        const QSignalBlocker b0(combo1_[0]), b1(combo1_[1]), b2(combo1_[2]), b3(combo3_);
        for (QComboBox* c : combo1_)
            c->addItems(l_.Combo1_liste);
        combo3_->addItems(l_.Combo3_liste);
    }
    montre();
}

void ToroutilsVue::montre() {
    for (std::size_t i = 0; i < 3; ++i) {
        const QSignalBlocker b(combo1_[i]);
        combo1_[i]->setCurrentText(l_.Combo1[i]);
    }
    {
        const QSignalBlocker b2(combo2_), b3(combo3_), b7(text2_);
        if (combo2_->currentText() != l_.Combo2) combo2_->setEditText(l_.Combo2);
        combo3_->setCurrentIndex(l_.Combo3_index);
        if (text2_->toPlainText() != l_.Text2) text2_->setPlainText(l_.Text2);
    }
    check1_->setChecked(l_.Check1 != 0);
    if (text1_->text() != l_.Text1) text1_->setText(l_.Text1);
    label7_->setText(l_.Label7);
    label4_->setText(QStringLiteral("Horloge n° ") + l_.Label4);
    label5_->setText(l_.Label5);
    label8_->setText(l_.Label8);
    ui::place(*shape2_, l_.Shape2_rect);
    for (auto [f, c] : {std::pair(aiguilh_, l_.aiguilh), std::pair(aiguilm_, l_.aiguilm)}) {
        QPalette p = f->palette();
        p.setColor(QPalette::Window, ui::couleur(c));
        f->setPalette(p);
    }
    for (int r = 0; r < 2; ++r)
        for (int c = 0; c < 7; ++c) {
            auto* item = new QTableWidgetItem(l_.g1[std::size_t(r)][std::size_t(c)]);
            item->setTextAlignment(Qt::AlignCenter);
            if (r == 0) item->setFont(ui::police(QStringLiteral("DejaVu Sans"), 8, true));
            g1_->setItem(r, c, item);
        }
    list1_->setVisible(l_.List1_visible);
    if (l_.List1_visible) {
        list1_->raise();
        list1_->clear();
        for (const auto& e : l_.List1)
            list1_->addItem(e.texte);
    }
}

} // namespace agenda
