#include "book/vue/impression.h"

#include "book/torva1.h"
#include "ui/surface.h"
#include "ui/vue/impression.h"
#include "ui/vue/widgets.h"

#include <QPainter>

namespace agenda {

namespace {

const QColor bord(0xc8, 0xb8, 0x98);
const QString serif = QStringLiteral("DejaVu Serif");

QRectF rect(const ui::RectTwips& r) {
    return {qreal(r.left), qreal(r.top), qreal(r.width), qreal(r.height)};
}

void bordure(QPainter& g, const QRectF& r, int rayon) {
    g.setPen(QPen(bord, 15));
    g.setBrush(Qt::NoBrush);
    g.drawRoundedRect(r, rayon, rayon);
}

// Labels as the screen shows them: a day's wrap their text from the top; a week strip's keep
// one line, centred on their height.
void etiquettes(QPainter& g, const std::map<int, EtiquetteRv>& liste, bool une_ligne) {
    g.setFont(ui::police_twips(QStringLiteral("Arial"), une_ligne ? 7 : 8));
    const int alignement =
        Qt::AlignLeft | (une_ligne ? Qt::AlignVCenter : (Qt::AlignTop | Qt::TextWordWrap));
    for (const auto& [i, e] : liste) {
        const QRectF boite(e.left, e.top, e.width, e.height);
        g.fillRect(boite, ui::couleur(e.couleur));
        if (e.bordure) {
            g.setPen(QPen(Qt::black, 15));
            g.drawRect(boite);
        }
        g.setPen(Qt::black);
        g.drawText(boite.adjusted(60, 15, -60, -15), alignement, e.legende);
    }
}

// A page with its edge, its ruling and its labels, the painter at its top-left corner.
void page(QPainter& g, const ui::RectTwips& r, const ui::Surface& regle,
          const std::map<int, EtiquetteRv>& liste) {
    bordure(g, QRectF(0, 0, r.width, r.height), 110);
    ui::dessine_surface(g, regle);
    etiquettes(g, liste, false);
}

// Strip k of the week under its day's name, on its page.
void bande(QPainter& g, const Torva1& l, int k) {
    const auto i = std::size_t(k);
    const ui::RectTwips n = Torva1::njours_rect(k), b = Torva1::pages_rect(k);
    ui::texte_imprime(g, rect(n), l.njours[i], ui::police_twips(serif, 10, true),
                      Qt::AlignLeft | Qt::AlignBottom);
    g.setPen(QPen(bord, 15));
    g.drawLine(n.left, n.top + n.height + 10, n.left + n.width, n.top + n.height + 10);
    g.save();
    g.translate(b.left, b.top);
    bordure(g, QRectF(0, 0, b.width, b.height), 60);
    ui::dessine_surface(g, l.pages[i]);
    etiquettes(g, l.lrvs[i], true);
    g.restore();
}

} // namespace

QSize taille_livre_ouvert() {
    const ui::RectTwips &gauche = Torva1::pageg_rect, &droite = Torva1::paged_rect;
    return {droite.left + droite.width - gauche.left, std::max(gauche.height, droite.height)};
}

void dessine_jour(QPainter& g, const Torva1& l) {
    const ui::RectTwips &gauche = Torva1::pageg_rect, &droite = Torva1::paged_rect;
    page(g, gauche, l.pageg, l.lrv);
    const auto date = Qt::AlignLeft | Qt::AlignVCenter;
    ui::texte_imprime(g, rect(Torva1::Label2_rect), l.Label2, ui::police_twips(serif, 18), date);
    ui::texte_imprime(g, rect(Torva1::Label3_rect), l.Label3, ui::police_twips(serif, 54, true),
                      date);
    ui::texte_imprime(g, rect(Torva1::Label4_rect), l.Label4, ui::police_twips(serif, 18), date);
    ui::texte_imprime(g, rect(Torva1::Label1_rect), l.Label1, ui::police_twips(serif, 14), date);
    g.translate(droite.left - gauche.left, 0);
    page(g, droite, l.paged, l.lrvd);
    ui::texte_imprime(g, rect(Torva1::Label7_rect), l.Label7, ui::police_twips(serif, 20, true),
                      Qt::AlignCenter);
}

void dessine_semaine(QPainter& g, const Torva1& l) {
    const ui::RectTwips &gauche = Torva1::pageg_rect, &droite = Torva1::paged_rect;
    for (const bool a_gauche : {true, false}) {
        const ui::RectTwips& r = a_gauche ? gauche : droite;
        g.save();
        g.translate(r.left - gauche.left, 0);
        bordure(g, QRectF(0, 0, r.width, r.height), 110);
        for (int k = 0; k < Torva1::nb_bandes; ++k)
            if (Torva1::bande_a_gauche(k) == a_gauche) bande(g, l, k);
        g.restore();
    }

    g.translate(droite.left - gauche.left, 0);
    ui::texte_imprime(g, rect(Torva1::Label10_rect), QStringLiteral("Note de la semaine"),
                      ui::police_twips(serif, 11), Qt::AlignCenter);
    const QRectF note = rect(Torva1::Text3_rect);
    g.fillRect(note, ui::couleur(l.Text3_fond));
    g.setPen(QPen(Qt::black, 15));
    g.drawRect(note);
    g.setFont(ui::police_twips(QStringLiteral("DejaVu Sans"), 10));
    g.setPen(ui::couleur(l.Text3_encre));
    g.drawText(note.adjusted(60, 60, -60, -60), Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap,
               ui::crlf_vers_ecran(l.Text3));
}

} // namespace agenda
