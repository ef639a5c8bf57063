#pragma once
// The book on paper, drawn from the book's state rather than grabbed from the screen: the two
// pages as they stand, in twips from the left page's top-left corner.

#include <QSize>

class QPainter;

namespace agenda {

class Torva1;

// Both pages and the spine between them.
QSize taille_livre_ouvert();
// The day: hours, labels in their colours with their texts, the date panel, the name.
void dessine_jour(QPainter& g, const Torva1& livre);
// The week: seven strips under their days' names, their labels, and the week's note.
void dessine_semaine(QPainter& g, const Torva1& livre);

} // namespace agenda
