#pragma once
// The widgets of every modal window, registered once at start.

namespace agenda {

void enregistre_vues_input();
void enregistre_vues_editeur();

inline void enregistre_vues() {
    enregistre_vues_input();
    enregistre_vues_editeur();
}

} // namespace agenda
