// A caption shown as a picture gives the pixels of the caption drawing its own text over the
// same surface, for glyphs from the glyph cache and from their outlines, and follows the surface;
// so does a caption given its text before its window shows.
// A surface's background made beforehand gives the pixels of the surface's own.

#include "ui/surface.h"
#include "ui/vue/widgets.h"

#include <gtest/gtest.h>
#include <QLabel>
#include <QLinearGradient>
#include <QPainter>
#include <utility>

using namespace agenda::ui;

namespace {

// A graded background under a caption at the place of the book's day number: there the outlines
// of its glyphs round to other pixels when drawn elsewhere.
void degrade(QPainter& g, QSize s) {
    QLinearGradient lg(0, 0, s.width(), s.height());
    lg.setColorAt(0, QColor(0xfb, 0xf6, 0xe8));
    lg.setColorAt(1, QColor(0x90, 0xc0, 0x40));
    g.fillRect(QRect(QPoint(), s), lg);
}

struct Page {
    QWidget fenetre;
    VueSurface surface{&fenetre, degrade};
    QLabel legende{&surface};
    explicit Page(int pixels) {
        fenetre.resize(400, 300);
        surface.setGeometry(37, 11, 300, 250);
        legende.setGeometry(56, 42, 180, 87);
        QFont f(QStringLiteral("DejaVu Serif"));
        f.setPixelSize(pixels);
        f.setBold(true);
        legende.setFont(f);
        QPalette p = legende.palette();
        p.setColor(QPalette::WindowText, QColor(0x4a, 0x2c, 0x1a));
        legende.setPalette(p);
    }
    QImage vue() { return fenetre.grab().toImage(); }
};

} // namespace

TEST(LegendeGravee, LesPixelsDeLaLegendeElleMeme) {
    Surface trait; // a drawing under the caption, for the picture to follow
    trait.boite(400, 700, 2400, 1400, 0x3050A0);
    for (const int pixels : {24, 72}) { // in the glyph cache, and too big for it
        Page texte(pixels), image(pixels);
        LegendeGravee gravee(image.surface, image.legende);
        // Given before the window shows, as the book gives its date.
        gravee.montre(QStringLiteral("Mercredi"));
        image.fenetre.show();
        texte.legende.setText(QStringLiteral("Mercredi"));
        ASSERT_EQ(image.vue(), texte.vue()) << pixels;
        for (const Surface* dessin :
             {static_cast<const Surface*>(nullptr), &std::as_const(trait)}) {
            texte.surface.montre(dessin);
            image.surface.montre(dessin);
            texte.legende.clear();
            const QImage vide = texte.vue();
            for (const QString& t : {QStringLiteral("25"), QStringLiteral("Mercredi"),
                                     QStringLiteral("25"), QString()}) {
                texte.legende.setText(t);
                gravee.montre(t);
                const QImage attendu = texte.vue();
                ASSERT_EQ(image.vue(), attendu) << pixels << " " << t.toStdString() << dessin;
                EXPECT_EQ(attendu == vide, t.isEmpty()) << pixels << " " << t.toStdString();
            }
        }
    }
}

TEST(VueSurface, UnFondFaitDAvanceDonneLesPixelsDuSien) {
    Surface trait;
    trait.boite(400, 700, 2400, 1400, 0x3050A0);
    Page propre(24);
    propre.surface.montre(&trait);
    const QImage attendu = propre.vue();
    const QSize pixels = propre.surface.size() * propre.surface.devicePixelRatioF();
    const qreal echelle = propre.surface.devicePixelRatioF();
    QImage rouge(pixels, QImage::Format_ARGB32_Premultiplied);
    rouge.fill(Qt::red);
    // An opaque surface keeps its picture without alpha, and shows the same pixels.
    for (const bool opaque : {false, true}) {
        // The surface's own background made elsewhere, a picture of another size or with alpha
        // where none is wanted, one it takes.
        for (const auto& [pret, pris] :
             {std::pair{VueSurface::image_du_fond(degrade, pixels, echelle, opaque), false},
              {rouge.scaled(pixels / 2), false},
              {rouge, !opaque},
              {rouge.convertToFormat(QImage::Format_RGB888), opaque}}) {
            Page page(24);
            page.surface.setAttribute(Qt::WA_OpaquePaintEvent, opaque);
            int appels = 0;
            page.surface.fond_pret([&, pret = pret] { return ++appels, pret; });
            page.surface.montre(&trait);
            EXPECT_EQ(page.vue() != attendu, pris) << opaque;
            page.surface.montre(nullptr); // given once: the next drawing has the surface's own
            page.surface.montre(&trait);
            EXPECT_EQ(page.vue(), attendu) << opaque;
            EXPECT_EQ(appels, 1);
        }
    }
}

TEST(VueSurface, SansImageGardeeLesMemesPixels) {
    // A face with see-through corners under a thick hand, as the editor's clock, drawn straight on
    // the window or through the picture kept between paints.
    const auto cadran = VueSurface::fond_image([](QSize t) {
        QPixmap p(t);
        p.fill(Qt::transparent);
        QPainter g(&p);
        g.setRenderHint(QPainter::Antialiasing);
        g.setBrush(QColor(0xfb, 0xf6, 0xe8));
        g.drawEllipse(QRect(QPoint(), t).adjusted(4, 4, -4, -4));
        return p;
    });
    Surface aiguille;
    aiguille.epaisseur(110);
    aiguille.ligne(2500, 2500, 3900, 3200, 0x000080);
    QWidget gardee, directe;
    VueSurface a(&gardee, cadran), b(&directe, cadran);
    b.sans_image_gardee();
    for (const Surface* dessin : {static_cast<const Surface*>(nullptr), &std::as_const(aiguille)}) {
        for (VueSurface* s : {&a, &b})
            s->setGeometry(37, 11, 335, 336), s->montre(dessin);
        EXPECT_EQ(directe.grab().toImage(), gardee.grab().toImage()) << (dessin != nullptr);
    }
}
