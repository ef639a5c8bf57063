// The program's style copies a scroll bar from a picture made once for its look: the copy gives
// the pixels the toolkit's style draws, for every look in turn and again from the kept pictures,
// wherever the bar stands.

#include "ui/vue/style.h"

#include <gtest/gtest.h>
#include <memory>
#include <QPainter>
#include <QProxyStyle>
#include <QScrollBar>
#include <QStyleOptionSlider>
#include <QTableWidget>

using namespace agenda::ui;

namespace {

// The bar as `style` draws it in its widget, at `origine` in a picture of `echelle` device
// pixels a pixel: the toolkit's lines reach a pixel past the bar, which its widget cuts off.
QImage dessin(QStyle& style, const QStyleOptionSlider& option, QPoint origine, qreal echelle) {
    QImage image(QSize(60, 300) * echelle, QImage::Format_RGB32);
    image.setDevicePixelRatio(echelle);
    image.fill(QColor(0xfb, 0xf6, 0xe8));
    QPainter g(&image);
    g.translate(origine);
    g.setClipRect(option.rect);
    style.drawComplexControl(QStyle::CC_ScrollBar, &option, &g);
    return image;
}

} // namespace

TEST(StyleDuLivre, UneBarreCopieeDonneLesPixelsDuStyle) {
    QProxyStyle toolkit;
    StyleDuLivre livre;
    QScrollBar barre(Qt::Vertical);
    barre.resize(14, 245);
    barre.setRange(0, 38);
    barre.setPageStep(12);
    QStyleOptionSlider option;
    option.initFrom(&barre);
    option.rect = barre.rect();
    option.subControls = QStyle::SC_All;
    option.orientation = Qt::Vertical;
    option.minimum = 0;
    option.maximum = 38;
    option.pageStep = 12;
    option.singleStep = 1;
    // Each look differs from the one before, so that a key missing one of them gives the
    // previous picture.
    const std::vector<std::function<void(QStyleOptionSlider&)>> looks = {
        [](QStyleOptionSlider&) {},
        [](QStyleOptionSlider& o) { o.sliderPosition = o.sliderValue = 20; },
        [](QStyleOptionSlider& o) { o.maximum = 80; },
        [](QStyleOptionSlider& o) { o.activeSubControls = QStyle::SC_ScrollBarAddLine; },
        [](QStyleOptionSlider& o) { o.state |= QStyle::State_Sunken; },
        [](QStyleOptionSlider& o) { o.state &= ~QStyle::State_Enabled; },
        [](QStyleOptionSlider& o) {
            o.palette.setColor(QPalette::Button, QColor(0x9e, 0x1b, 0x1b));
        },
        [](QStyleOptionSlider& o) { o.rect.setHeight(180); },
    };
    for (const qreal echelle : {1.0, 1.5, 2.0}) {
        QStyleOptionSlider o = option;
        for (std::size_t i = 0; i < looks.size(); ++i) {
            looks[i](o);
            for (const QPoint origine : {QPoint(0, 0), QPoint(17, 31), QPoint(17, 32)}) {
                const QImage attendue = dessin(toolkit, o, origine, echelle);
                for (int fois = 0; fois < 2; ++fois)
                    EXPECT_EQ(dessin(livre, o, origine, echelle), attendue)
                        << "look " << i << " at " << origine.x() << "," << origine.y() << " scale "
                        << echelle << " time " << fois;
            }
        }
    }
}

TEST(CellulesGardees, UneGrilleDonneLesPixelsDuStyle) {
    // Two grids alike, one with its cells copied: the same pixels, drawn first and again from the
    // kept pictures, whatever the cells hold and wherever the current cell stands.
    const auto grille = [](bool gardees) {
        auto* g = new QTableWidget(4, 3);
        g->resize(260, 130);
        if (gardees) g->setItemDelegate(new CellulesGardees(g));
        const char* textes[] = {"-10", "1h30", "", "Brushing long", "é€œ", "2h00"};
        for (int i = 0; i < 12; ++i) {
            auto* item = new QTableWidgetItem(QString::fromUtf8(textes[i % 6]));
            item->setTextAlignment(i % 2 ? Qt::AlignCenter : Qt::AlignLeft | Qt::AlignVCenter);
            g->setItem(i / 3, i % 3, item);
        }
        g->show();
        return std::unique_ptr<QTableWidget>(g);
    };
    const auto toolkit = grille(false), livre = grille(true);
    const std::vector<std::function<void(QTableWidget&)>> gestes = {
        [](QTableWidget&) {},
        [](QTableWidget& g) { g.setCurrentCell(1, 2); },
        [](QTableWidget& g) { g.item(2, 0)->setText(QStringLiteral("Couleur")); },
        [](QTableWidget& g) { g.setFont(QFont(QStringLiteral("DejaVu Serif"), 11)); },
        [](QTableWidget& g) { g.setEnabled(false); },
    };
    for (std::size_t i = 0; i < gestes.size(); ++i) {
        gestes[i](*toolkit);
        gestes[i](*livre);
        const QImage attendue = toolkit->grab().toImage();
        for (int fois = 0; fois < 2; ++fois)
            EXPECT_EQ(livre->grab().toImage(), attendue) << "step " << i << " time " << fois;
    }
}
