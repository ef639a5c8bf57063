#include "book/vue/impression.h"

#include "book/torva1.h"
#include "ui/surface.h"
#include "ui/vue/widgets.h"

#include <algorithm>
#include <QPainter>
#include <QPainterPath>
#include <QPrinter>

namespace agenda {

namespace {

const QColor encre(0x4a, 0x2c, 0x1a), bord(0xc8, 0xb8, 0x98);

QFont police(const QString& nom, double points, bool gras = false) {
    QFont f(nom);
    f.setPixelSize(std::max(1, int(points * ui::twips_par_point)));
    f.setBold(gras);
    return f;
}

void texte(QPainter& g, const ui::RectTwips& r, const QString& t, const QFont& f, Qt::Alignment a) {
    g.setFont(f);
    g.setPen(encre);
    g.drawText(QRectF(r.left, r.top, r.width, r.height), a | Qt::TextWordWrap, t);
}

// A page of the book, in twips of the page: its edge, its ruling and its labels.
void page(QPainter& g, const ui::RectTwips& r, const ui::Surface& regle,
          const std::map<int, EtiquetteRv>& etiquettes) {
    g.setPen(QPen(bord, 15));
    g.setBrush(Qt::NoBrush);
    g.drawRoundedRect(QRectF(0, 0, r.width, r.height), 110, 110);
    ui::dessine_surface(g, regle);
    const QFont f = police(QStringLiteral("Arial"), 8);
    for (const auto& [i, e] : etiquettes) {
        const QRectF boite(e.left, e.top, e.width, e.height);
        g.fillRect(boite, ui::couleur(e.couleur));
        if (e.bordure) {
            g.setPen(QPen(Qt::black, 15));
            g.drawRect(boite);
        }
        g.setFont(f);
        g.setPen(Qt::black);
        g.drawText(boite.adjusted(60, 15, -60, -15),
                   Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, e.legende);
    }
}

} // namespace

void imprime_jour(QPrinter& imprimante, const Torva1& l, const QString& titre) {
    imprimante.setDocName(titre);
    QPainter g(&imprimante);
    const QRectF papier = imprimante.pageLayout().paintRectPixels(imprimante.resolution());
    // The two pages side by side, the spine's width between them, under a title line.
    const ui::RectTwips &gauche = Torva1::pageg_rect, &droite = Torva1::paged_rect;
    const int titre_h = 900, largeur = droite.left + droite.width - gauche.left;
    const int hauteur = titre_h + std::max(gauche.height, droite.height);
    const qreal echelle = std::min(papier.width() / largeur, papier.height() / hauteur);
    g.translate((papier.width() - largeur * echelle) / 2, 0);
    g.scale(echelle, echelle);
    texte(g, {0, 0, largeur, titre_h}, titre, police(QStringLiteral("DejaVu Serif"), 18, true),
          Qt::AlignCenter);

    g.translate(0, titre_h);
    page(g, gauche, l.pageg, l.lrv);
    const QString serif = QStringLiteral("DejaVu Serif");
    const auto date = Qt::AlignLeft | Qt::AlignVCenter;
    texte(g, Torva1::Label2_rect, l.Label2, police(serif, 18), date);
    texte(g, Torva1::Label3_rect, l.Label3, police(serif, 54, true), date);
    texte(g, Torva1::Label4_rect, l.Label4, police(serif, 18), date);
    texte(g, Torva1::Label1_rect, l.Label1, police(serif, 14), date);
    g.translate(droite.left - gauche.left, 0);
    page(g, droite, l.paged, l.lrvd);
    texte(g, Torva1::Label7_rect, l.Label7, police(serif, 20, true), Qt::AlignCenter);
}

} // namespace agenda
