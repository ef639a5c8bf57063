// The book's window built once its day is loaded, as the program opens: it shows that day at
// once, its children cover the whole window, which paints no background of its own, and it
// takes a leather drawn beforehand only where it fits the window.

#include "book/vue/torva1_vue.h"
#include "support/support.h"
#include "ui/vue/echelle.h"

#include <QLabel>
#include <vector>

using namespace agenda;
using agenda::test::rv;
using agenda::test::rv_entete;

namespace {

class VueDuLivre : public agenda::test::Livre {
protected:
    void SetUp() override {
        Livre::SetUp();
        // Wednesday 3 March 2004, and the day after.
        ecrit(QStringLiteral("tf_r0000.wdo"), rv_entete(2) +
                                                  rv("040303:09H30:10H15", "Balayage DURAND") +
                                                  rv("040304:09H00:10H00", "Demain BERNARD"));
        ASSERT_EQ(charge(), -1);
    }
};

TEST_F(VueDuLivre, UneCouvertureDessineeDAvanceNEstPriseQueSiElleVaALaFenetre) {
    const double echelle = ui::px_par_twip();
    const QImage attendu = Torva1Vue(*livre).grab().toImage();
    // Drawn for this window; at another scale of the screen, whose window is larger; for a
    // screen of twice the pixels.
    for (const auto& [px_par_twip, pixels] :
         {std::pair{echelle, 1.0}, {echelle * 1.25, 1.0}, {echelle, 2.0}}) {
        ui::fixe_echelle(px_par_twip);
        auto couverture = std::make_shared<CouvertureDessinee>(pixels);
        ui::fixe_echelle(echelle);
        EXPECT_EQ(Torva1Vue(*livre, couverture).grab().toImage(), attendu)
            << px_par_twip << " " << pixels;
    }
}

TEST_F(VueDuLivre, BatieApresLeChargementElleMontreSaVueEtLaCouvreToute) {
    // Built once the day, the week or the year is loaded, it shows it at once; the window has
    // no background of its own: its children, drawn over two grounds, leave nothing of either.
    std::vector<QImage> vues;
    for (const int onglet : {0, 1, 2}) {
        livre->sel_onglet(onglet);
        Torva1Vue vue(*livre);
        if (onglet == 0) {
            QString textes = QStringLiteral("|");
            for (const QLabel* l : vue.findChildren<QLabel*>())
                textes += l->text() + u'|';
            EXPECT_TRUE(textes.contains(u"|Mercredi|") && textes.contains(u"Balayage DURAND"));
            EXPECT_FALSE(textes.contains(u"BERNARD"));
        }
        QImage sur[2];
        for (const QColor sol : {Qt::red, Qt::green}) {
            QImage& image = sur[sol == Qt::green];
            image = QImage(vue.size(), QImage::Format_ARGB32_Premultiplied);
            image.fill(sol);
            vue.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
        }
        EXPECT_EQ(sur[0], sur[1]) << onglet;
        vues.push_back(sur[0]);
    }
    EXPECT_TRUE(vues[0] != vues[1] && vues[1] != vues[2]);
}

} // namespace
