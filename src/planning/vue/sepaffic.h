#pragma once
// The banner: loaded once with the book, hidden, and kept for the life of the program.

#include <QWidget>

namespace agenda {

class Sepaffic : public QWidget {
public:
    // Centred across the screen, and in the book's height.
    Sepaffic();

protected:
    void paintEvent(QPaintEvent*) override;
};

} // namespace agenda
