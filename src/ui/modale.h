#pragma once
// Modal windows. Each is a logic object with its handlers, shown by montre_modal: its load runs,
// then its widgets until it closes itself. Tests script a window by its name instead, and
// call the handlers as an operator would press the controls.

#include <functional>
#include <QString>

namespace agenda::ui {

class FenetreModale {
public:
    virtual ~FenetreModale() = default;
    virtual QString nom() const = 0;
    virtual void Form_Load() = 0;

    // The window closes: a button or a double click decided it.
    void ferme();
    bool fermee() const { return fermee_; }

    // Set by the widgets that show the window.
    std::function<void()> sur_fermeture;

private:
    bool fermee_ = false;
};

// Runs the load, then the window until it closes.
void montre_modal(FenetreModale& fenetre);

// What shows a window by that name: its widgets (set once by the program), or a test's script.
using Presentation = std::function<void(FenetreModale&)>;
void enregistre_vue(const QString& nom, Presentation vue);
void scenario(const QString& nom, Presentation script); // an empty script removes it
bool vue_enregistree(const QString& nom);

} // namespace agenda::ui
