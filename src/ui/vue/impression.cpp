#include "ui/vue/impression.h"

#include "ui/surface.h"
#include "ui/vue/icc.h"

#include <algorithm>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>

namespace agenda::ui {

namespace {

std::function<bool(QPrinter&)>& dialogue_remplace() {
    static std::function<bool(QPrinter&)> d;
    return d;
}

constexpr int hauteur_titre = 900;

} // namespace

void fixe_dialogue_impression(std::function<bool(QPrinter&)> dialogue) {
    dialogue_remplace() = std::move(dialogue);
}

void texte_imprime(QPainter& g, const QRectF& r, const QString& texte, const QFont& police,
                   int alignement) {
    g.setFont(police);
    g.setPen(icc::encre);
    g.drawText(r, alignement | Qt::TextWordWrap, texte);
}

bool imprime(QWidget* parent, const QString& commande, const QString& titre, QSize taille,
             const std::function<void(QPainter&)>& dessin) {
    QPrinter imprimante(QPrinter::HighResolution);
    imprimante.setPageOrientation(QPageLayout::Landscape);
    imprimante.setPageSize(QPageSize(QPageSize::A4));
    imprimante.setDocName(titre);
    if (dialogue_remplace()) {
        if (!dialogue_remplace()(imprimante)) return false;
    } else {
        QPrintDialog dialogue(&imprimante, parent);
        dialogue.setWindowTitle(commande);
        if (dialogue.exec() != QDialog::Accepted) return false;
    }

    QPainter g(&imprimante);
    const QRectF papier = imprimante.pageLayout().paintRectPixels(imprimante.resolution());
    const int largeur = taille.width(), hauteur = hauteur_titre + taille.height();
    const qreal echelle = std::min(papier.width() / largeur, papier.height() / hauteur);
    g.translate((papier.width() - largeur * echelle) / 2, 0);
    g.scale(echelle, echelle);
    g.setRenderHint(QPainter::Antialiasing);
    texte_imprime(g, QRectF(0, 0, largeur, hauteur_titre), titre,
                  police_twips(QStringLiteral("DejaVu Serif"), 18, true), Qt::AlignCenter);
    g.translate(0, hauteur_titre);
    dessin(g);
    return true;
}

} // namespace agenda::ui
