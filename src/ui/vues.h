#pragma once
// The widgets of every modal window, registered once at start.

namespace agenda {

void enregistre_vues_input();

inline void enregistre_vues() {
    enregistre_vues_input();
}

} // namespace agenda
