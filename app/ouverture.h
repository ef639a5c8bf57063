#pragma once
// The program's opening, shared by the executable and the start-up benchmark: the windows
// registered, the book loaded, placed and shown.

#include "book/torva1.h"
#include "book/vue/torva1_vue.h"

#include <future>
#include <memory>

namespace agenda {

struct Programme {
    ~Programme() {
        if (bus_de_session.valid()) bus_de_session.wait();
    }
    std::shared_future<void> bus_de_session; // looked up on the side while the book is built
    Torva1 livre;
    Torva1Vue vue{livre};
};

// Needs the QApplication made; the book is shown when it returns.
std::unique_ptr<Programme> ouvre_programme();

} // namespace agenda
