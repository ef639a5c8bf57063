#pragma once
// The pattern of every window. Its logic is a Fenetre: it owns the state of the controls,
// under the controls' names, and its handlers keep the names of the controls and events. Its
// view renders that state and forwards each event to the handler of the same name, then shows
// the state again; where the state changes outside a handler the view called (a timer, say),
// the logic calls modifie(). Modal windows are shown by montre_modal, which runs their load and
// then their view (registered once by the program), or a test's script in its place.

#include <functional>
#include <typeindex>

namespace agenda::ui {

class Fenetre {
public:
    virtual ~Fenetre() = default;

    // The window closes: a handler decided it.
    void ferme();
    bool fermee() const { return fermee_; }

    // Set by the view.
    std::function<void()> sur_modification;
    std::function<void()> sur_fermeture;

protected:
    void modifie() const {
        if (sur_modification) sur_modification();
    }

private:
    bool fermee_ = false;
};

class FenetreModale : public Fenetre {
public:
    virtual void Form_Load() = 0;
    // Escape, or the window manager's close. Refused unless the window says otherwise: its own
    // buttons are its ways out.
    virtual void sortie() {}
};

// Runs the load, then the window until it closes.
void montre_modal(FenetreModale& fenetre);

// What shows a window of a type: its view, or a test's script.
using Presentation = std::function<void(FenetreModale&)>;
void enregistre_presentation(std::type_index type, Presentation vue);
void pose_scenario(std::type_index type, Presentation script); // an empty script removes it
void oublie_scenarios();                                       // every window has its view back

// A test plays the operator of every window of type F shown from now on; an empty script gives
// the window its view back.
template <class F>
void scenario(std::function<void(F&)> script) {
    pose_scenario(typeid(F),
                  script ? Presentation([script](FenetreModale& f) { script(static_cast<F&>(f)); })
                         : Presentation());
}

} // namespace agenda::ui
