#pragma once
// Paper: one A4 sheet, landscape, through the system's print dialog, which also offers a PDF
// file. The drawing is made in twips, the windows' own unit, and scaled to the paper.

#include <functional>
#include <QRectF>
#include <QSize>
#include <QString>

class QFont;
class QPainter;
class QPrinter;
class QWidget;

namespace agenda::ui {

// The dialog titled `commande`, then the sheet: `titre` centred on its line, and under it the
// drawing of `taille` twips, as large as the paper allows. Whether the operator printed.
bool imprime(QWidget* parent, const QString& commande, const QString& titre, QSize taille,
             const std::function<void(QPainter&)>& dessin);

// Replaces the dialog (tests): it answers for the operator and may send the sheet to a PDF
// file. An empty function gives the system's dialog back.
void fixe_dialogue_impression(std::function<bool(QPrinter&)> dialogue);

// A text in the brown ink of the book, in a rectangle of twips, wrapped to its width.
void texte_imprime(QPainter& g, const QRectF& r, const QString& texte, const QFont& police,
                   int alignement);

} // namespace agenda::ui
