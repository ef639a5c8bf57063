#pragma once
// The day on paper: on one A4 page, landscape, the collaborator and the date in words above the
// two pages of the day, drawn from the book's state: hours, labels in their colours, texts.

#include <QString>

class QPrinter;

namespace agenda {

class Torva1;

void imprime_jour(QPrinter& imprimante, const Torva1& livre, const QString& titre);

} // namespace agenda
