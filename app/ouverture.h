#pragma once
// The program's opening, shared by the executable and the start-up benchmark: the windows
// registered, the book loaded, placed and shown.

#include "book/torva1.h"
#include "book/vue/torva1_vue.h"
#include "ui/systeme.h"

#include <memory>

namespace agenda {

struct Programme {
    Torva1 livre;
    std::unique_ptr<Torva1Vue> vue; // built once the day is loaded
    ui::ACote bus_de_session;       // looked up on the side while the book is built
};

// Started before the QApplication, waited for once it is made: the font configuration, read on
// the side while the application connects to the display rather than when the first caption is
// measured, which waited for it.
ui::ACote lit_les_polices_a_cote();

// Needs the QApplication made; the book is shown when it returns.
std::unique_ptr<Programme> ouvre_programme();

} // namespace agenda
