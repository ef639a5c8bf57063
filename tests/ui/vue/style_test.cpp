// Scroll bars and grid cells copied from pictures kept for their looks give the pixels the
// toolkit's style draws: for every look in turn, first drawn and then copied, at every scale and
// wherever they stand, on whole device pixels or between them. A button drawn under a borrowed
// style sheet gives the pixels of one that holds it.

#include "ui/vue/style.h"

#include <functional>
#include <gtest/gtest.h>
#include <QApplication>
#include <QLabel>
#include <QPainter>
#include <QProxyStyle>
#include <QPushButton>
#include <QStyleOptionSlider>
#include <QTableWidget>

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

TEST(CellulesGardees, UneGrilleDonneLesPixelsDuStyle) {
    QTableWidget grille(2, 3);
    grille.resize(260, 130);
    const char* textes[] = {"-10", "1h30", "", "Brushing long", "é€œ", "2h00"};
    for (int i = 0; i < 6; ++i) {
        auto* item = new QTableWidgetItem(QString::fromUtf8(textes[i]));
        item->setTextAlignment(i % 2 ? Qt::AlignCenter : Qt::AlignLeft | Qt::AlignVCenter);
        grille.setItem(i / 3, i % 3, item);
    }
    QStyledItemDelegate qt;
    CellulesGardees livre;
    QStyleOptionViewItem o;
    o.initFrom(&grille);
    o.widget = &grille;
    o.rect = QRect(0, 0, 62, 24);
    // Every cell in turn, then as the current one, then in another font.
    memes_pixels(8, o.rect, [&](int look, QPainter& g, bool copiee) {
        QStyleOptionViewItem c = o;
        if (look == 6) c.state |= QStyle::State_HasFocus;
        if (look == 7) c.font = QFont(QStringLiteral("DejaVu Serif"), 11);
        const QModelIndex i = grille.model()->index(look % 6 / 3, look % 3);
        g.fillRect(c.rect, grille.viewport()->palette().base());
        (copiee ? static_cast<QAbstractItemDelegate&>(livre) : qt).paint(&g, c, i);
    });
}

TEST(StyleDuLivre, UnBoutonQuiEmprunteUneFeuilleDonneSesPixels) {
    QApplication::setStyle(new StyleDuLivre);
    const auto feuille = [](const char* fond, int rayon) {
        return QStringLiteral("QPushButton { background: %1; border: 1px solid #5a3a22; "
                              "border-radius: %2px; }")
            .arg(QLatin1String(fond))
            .arg(rayon);
    };
    // The second sheet follows the first on the same button, as a switch's colour changes.
    const QString feuilles[] = {feuille("#ff8000", 4), feuille("#ffffff", 4),
                                feuille("#c0ffc0", 6)};
    // Side by side on one window, whose ground shows round their corners.
    const QColor sol(0xfb, 0xf6, 0xe8);
    QWidget fenetre;
    fenetre.resize(240, 40);
    QPalette p = fenetre.palette();
    p.setColor(QPalette::Window, sol);
    fenetre.setPalette(p);
    fenetre.setAutoFillBackground(true);
    QPushButton tenant(QStringLiteral("Après-midi"), &fenetre),
        emprunteur(QStringLiteral("Après-midi"), &fenetre);
    for (QPushButton* b : {&tenant, &emprunteur}) {
        b->setGeometry(b == &tenant ? 1 : 121, 1, 110, 38);
        b->setFont(QFont(QStringLiteral("DejaVu Sans"), 10, QFont::Bold));
    }
    // Drawn each time, then kept on the ground it stands on, drawn once and copied.
    for (const bool garde : {false, true})
        for (const QString& f : feuilles)
            for (const bool enfonce : {false, true}) {
                tenant.setStyleSheet(f);
                pose_feuille_empruntee(emprunteur, f);
                pose_sol_uni(emprunteur, garde ? sol : QColor());
                tenant.setDown(enfonce);
                emprunteur.setDown(enfonce);
                const QImage image = fenetre.grab().toImage();
                EXPECT_EQ(image.copy(tenant.geometry()), image.copy(emprunteur.geometry()))
                    << f.toStdString() << (enfonce ? " pressed" : "") << (garde ? " kept" : "");
            }
}

TEST(StyleDuLivre, UnLibelleSurSolUniDonneLesPixelsDuStyle) {
    QApplication::setStyle(new StyleDuLivre);
    const QColor sol(0xfb, 0xf6, 0xe8);
    QWidget fenetre;
    fenetre.resize(400, 60);
    QPalette p = fenetre.palette();
    p.setColor(QPalette::Window, sol);
    p.setColor(QPalette::WindowText, QColor(0x4a, 0x2c, 0x17));
    fenetre.setPalette(p);
    fenetre.setAutoFillBackground(true);
    QLabel dessine(&fenetre), copie(&fenetre);
    pose_sol_uni(copie, sol);
    for (QLabel* l : {&dessine, &copie}) {
        l->setGeometry(l == &dessine ? 0 : 200, 3, 190, 50);
        l->setWordWrap(true);
    }
    // Each look changes what the one before showed: a key that missed it gives the old picture.
    const std::vector<std::function<void(QLabel&)>> looks = {
        [](QLabel& l) { l.setText(QStringLiteral("Jeudi 26 novembre 2026")); },
        [](QLabel& l) {
            l.setText(QStringLiteral("Cliquez sur les prestations pour les ajouter"));
        },
        [](QLabel& l) { l.setFont(QFont(QStringLiteral("DejaVu Serif"), 12, QFont::Bold)); },
        [](QLabel& l) { l.setAlignment(Qt::AlignRight | Qt::AlignVCenter); },
        [](QLabel& l) { l.setEnabled(false); },
        [](QLabel& l) { l.resize(150, 50); },
    };
    for (std::size_t look = 0; look < looks.size(); ++look) {
        looks[look](dessine);
        looks[look](copie);
        for (int fois = 0; fois < 2; ++fois) {
            const QImage image = fenetre.grab().toImage();
            ASSERT_EQ(image.copy(dessine.geometry()), image.copy(copie.geometry()))
                << "look " << look << " time " << fois;
        }
    }
    // A button's text lies on its bevel, not on the ground it stands on; the button is kept whole.
    dessine.hide();
    copie.hide();
    QPushButton bouton(QStringLiteral("Valider"), &fenetre),
        autre(QStringLiteral("Valider"), &fenetre);
    bouton.setGeometry(0, 5, 120, 40);
    autre.setGeometry(200, 5, 120, 40);
    pose_sol_uni(autre, sol);
    for (const bool enfonce : {false, true, false}) {
        bouton.setDown(enfonce);
        autre.setDown(enfonce);
        const QImage image = fenetre.grab().toImage();
        EXPECT_EQ(image.copy(bouton.geometry()), image.copy(autre.geometry())) << enfonce;
    }
}
