// Agenda: the appointment book of the shop, started in its data folder.

#include "ouverture.h"

#include <QApplication>

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    const auto programme = agenda::ouvre_programme();
    return QApplication::exec();
}
