// Scroll bars and grid cells copied from pictures kept for their looks give the pixels the
// toolkit's style draws: for every look in turn, first drawn and then copied, at every scale and
// wherever they stand, on whole device pixels or between them. A button drawn under a borrowed
// style sheet gives the pixels of one that holds it.

#include "ui/vue/style.h"

#include <functional>
#include <gtest/gtest.h>
#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QPainter>
#include <QProxyStyle>
#include <QPushButton>
#include <QStyledItemDelegate>
#include <QStyleOptionSlider>
#include <QTableWidget>
#include <QToolButton>
#include <typeinfo>

using namespace agenda::ui;

namespace {

// Look after look, what `dessine` draws the toolkit's way and the program's, cut to the widget's
// rectangle as its window cuts it, at scales and places where the widget's corner falls on a
// whole device pixel and where it does not.
void memes_pixels(int looks, const QRect& cadre,
                  const std::function<void(int look, QPainter& g, bool livre)>& dessine) {
    const auto dessin = [&](int look, qreal echelle, QPoint origine, bool livre) {
        QImage image(QSize(300, 300) * echelle, QImage::Format_RGB32);
        image.setDevicePixelRatio(echelle);
        image.fill(Qt::white);
        QPainter g(&image);
        g.translate(origine);
        g.setClipRect(cadre);
        dessine(look, g, livre);
        return image;
    };
    for (int look = 0; look < looks; ++look)
        for (const qreal echelle : {1.0, 1.5, 2.0})
            for (const QPoint origine : {QPoint(0, 0), QPoint(17, 31), QPoint(18, 32)})
                for (int fois = 0; fois < 2; ++fois)
                    ASSERT_EQ(dessin(look, echelle, origine, true),
                              dessin(look, echelle, origine, false))
                        << "look " << look << " scale " << echelle << " at " << origine.x() << ","
                        << origine.y() << " time " << fois;
}

} // namespace

TEST(StyleDuLivre, UneBarreCopieeDonneLesPixelsDuStyle) {
    QProxyStyle qt;
    StyleDuLivre livre;
    QStyleOptionSlider o;
    o.rect = QRect(0, 0, 14, 245);
    o.state = QStyle::State_Enabled;
    o.subControls = QStyle::SC_All;
    o.orientation = Qt::Vertical;
    o.maximum = 38;
    o.pageStep = 12;
    // Each look changes what the one before showed: a key that missed it gives the old picture.
    const std::vector<std::function<void(QStyleOptionSlider&)>> looks = {
        [](QStyleOptionSlider&) {},
        [](QStyleOptionSlider& o) { o.sliderPosition = o.sliderValue = 20; },
        [](QStyleOptionSlider& o) { o.maximum = 80; },
        [](QStyleOptionSlider& o) { o.activeSubControls = QStyle::SC_ScrollBarAddLine; },
        [](QStyleOptionSlider& o) { o.state |= QStyle::State_Sunken; },
        [](QStyleOptionSlider& o) { o.palette.setColor(QPalette::Button, Qt::darkRed); },
        [](QStyleOptionSlider& o) { o.rect.setHeight(180); },
    };
    memes_pixels(int(looks.size()), o.rect, [&](int look, QPainter& g, bool copiee) {
        QStyleOptionSlider c = o;
        for (int j = 0; j <= look; ++j)
            looks[std::size_t(j)](c);
        (copiee ? static_cast<QStyle&>(livre) : qt)
            .drawComplexControl(QStyle::CC_ScrollBar, &c, &g);
    });
}

TEST(StyleDuLivre, UneGrilleAuxCellulesGardeesDonneLesPixelsDuStyle) {
    QTableWidget grille(2, 3);
    grille.resize(260, 130);
    garde_cellules(grille);
    const char* textes[] = {"-10", "1h30", "", "Brushing long", "é€œ", "2h00"};
    for (int i = 0; i < 6; ++i) {
        auto* item = new QTableWidgetItem(QString::fromUtf8(textes[i]));
        item->setTextAlignment(i % 2 ? Qt::AlignCenter : Qt::AlignLeft | Qt::AlignVCenter);
        grille.setItem(i / 3, i % 3, item);
    }
    struct Cellule : QStyledItemDelegate {
        using QStyledItemDelegate::initStyleOption;
    } cellule;
    QProxyStyle qt;
    StyleDuLivre livre;
    QStyleOptionViewItem o;
    o.initFrom(&grille);
    o.widget = &grille;
    o.rect = QRect(0, 0, 62, 24);
    // Every cell in turn, then as the current one, then in another font.
    memes_pixels(8, o.rect, [&](int look, QPainter& g, bool copiee) {
        QStyleOptionViewItem c = o;
        cellule.initStyleOption(&c, grille.model()->index(look % 6 / 3, look % 3));
        if (look == 6) c.state |= QStyle::State_HasFocus;
        if (look == 7) c.font = QFont(QStringLiteral("DejaVu Serif"), 11);
        g.fillRect(c.rect, grille.viewport()->palette().base());
        (copiee ? static_cast<QStyle&>(livre) : qt)
            .drawControl(QStyle::CE_ItemViewItem, &c, &g, &grille);
    });
}

// Two widgets side by side on a window of a plain ground, which shows round their corners:
// the one drawn as Qt draws it, the other as the program does, pixel for pixel.
class SurSolUni : public ::testing::Test {
protected:
    void SetUp() override {
        QApplication::setStyle(new StyleDuLivre);
        fenetre_.resize(400, 60);
        QPalette p = fenetre_.palette();
        p.setColor(QPalette::Window, sol_);
        p.setColor(QPalette::WindowText, QColor(0x4a, 0x2c, 0x17));
        fenetre_.setPalette(p);
        fenetre_.setAutoFillBackground(true);
    }
    void memes_pixels(const QWidget& qt, const QWidget& livre, const std::string& cas) {
        const QImage image = fenetre_.grab().toImage();
        EXPECT_EQ(image.copy(qt.geometry()), image.copy(livre.geometry())) << cas;
    }
    // A widget of Qt's and one told its ground, through looks that each change what the one
    // before showed: a key that missed a look gives the old picture, drawn or copied.
    template <class W>
    void memes_looks(const std::vector<std::function<void(W&)>>& looks) {
        W qt(&fenetre_), livre(&fenetre_);
        pose_sol_uni(livre, sol_);
        qt.setGeometry(1, 3, 190, 50);
        livre.setGeometry(201, 3, 190, 50);
        for (std::size_t look = 0; look < looks.size(); ++look) {
            looks[look](qt);
            looks[look](livre);
            for (int fois = 0; fois < 2; ++fois)
                memes_pixels(qt, livre, typeid(W).name() + (" look " + std::to_string(look)));
        }
    }
    const QColor sol_{0xfb, 0xf6, 0xe8};
    QWidget fenetre_;
};

TEST_F(SurSolUni, UnBoutonQuiEmprunteUneFeuilleOuGardeSonDessinDonneSesPixels) {
    // A sheet follows another on the same button, as a switch's colour changes; then buttons of
    // no sheet, whose text lies on their bevel, not on the ground.
    QPushButton qt(QStringLiteral("Après-midi"), &fenetre_), livre(qt.text(), &fenetre_),
        nu(qt.text(), &fenetre_), nu_livre(qt.text(), &fenetre_);
    for (QPushButton* b : {&qt, &livre, &nu, &nu_livre}) // two shown at a time
        b->setGeometry(b == &qt || b == &nu ? 1 : 201, 1, 110, 38);
    const std::pair<QPushButton*, QPushButton*> paires[] = {{&qt, &livre}, {&nu, &nu_livre}};
    for (const bool garde : {false, true})
        for (const QString& f : {feuille_arrondie(QStringLiteral("#ff8000"), 4),
                                 feuille_arrondie(QStringLiteral("#ffffff"), 4),
                                 feuille_arrondie(QStringLiteral("#c0ffc0"), 6), QString()})
            for (const bool enfonce : {false, true}) {
                const auto [a, b] = paires[f.isEmpty() ? 1 : 0];
                for (QPushButton* x : {&qt, &livre, &nu, &nu_livre})
                    x->setVisible(x == a || x == b);
                if (!f.isEmpty()) a->setStyleSheet(f);
                pose_feuille_empruntee(*b, f);
                pose_sol_uni(*b, garde ? sol_ : QColor());
                a->setDown(enfonce);
                b->setDown(enfonce);
                memes_pixels(
                    *a, *b, f.toStdString() + (enfonce ? " pressed" : "") + (garde ? " kept" : ""));
            }
}

TEST_F(SurSolUni, UnTexteOuUnOutilGardeSurSonSolDonneSesPixels) {
    QPixmap visage(24, 24), autre(24, 24);
    visage.fill(Qt::darkGreen);
    autre.fill(Qt::darkRed);
    memes_looks<QLabel>({
        [](QLabel& l) { l.setWordWrap(true), l.setText(QStringLiteral("Jeudi 26 novembre 2026")); },
        [](QLabel& l) { l.setText(QStringLiteral("Cliquez sur les prestations et le temps")); },
        [](QLabel& l) { l.setFont(QFont(QStringLiteral("DejaVu Serif"), 12, QFont::Bold)); },
        [](QLabel& l) { l.setAlignment(Qt::AlignRight | Qt::AlignVCenter); },
        [](QLabel& l) { l.setEnabled(false); },
        [](QLabel& l) { l.resize(150, 50); },
    });
    memes_looks<QCheckBox>({
        [](QCheckBox& c) { c.setText(QStringLiteral("Encadrement")); },
        [](QCheckBox& c) { c.setChecked(true); },
        [](QCheckBox& c) { c.setText(QStringLiteral("Après-midi")); },
        [](QCheckBox& c) { c.setEnabled(false); },
    });
    memes_looks<QToolButton>({
        [&](QToolButton& b) {
            b.setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
            b.setIcon(visage);
            b.setText(QStringLiteral("Client..."));
        },
        [](QToolButton& b) { b.setDown(true); },
        [](QToolButton& b) { b.setText(QStringLiteral("Fiche")); },
        [&](QToolButton& b) { b.setIcon(autre); },
        [](QToolButton& b) { b.setIconSize(QSize(16, 16)); },
        [](QToolButton& b) { b.setFont(QFont(QStringLiteral("DejaVu Sans"), 8, QFont::Bold)); },
        [](QToolButton& b) { b.setEnabled(false); },
    });
}
