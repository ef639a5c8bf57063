#pragma once
// Run-time errors and the three ways the program takes them. An error is thrown where the
// failure happens. Then, explicitly where each applies:
// - a trap skips the failing step and the routine goes on (`etape`): drawing and set-up;
// - a feature whose files cannot be had switches itself off (it catches the error itself);
// - anything that no trap takes ends the program (`protege`, at the event loop's edge): the
//   files are closed, the operator told in French, and the status is 1.

#include <QString>
#include <stdexcept>

namespace agenda {

class Erreur : public std::runtime_error {
public:
    explicit Erreur(const QString& message)
        : std::runtime_error(message.toStdString()), message_(message) {}
    const QString& message() const { return message_; }

    // An error that ends the program whatever trap stands around it.
    static Erreur sans_piege(const QString& message) {
        Erreur e(message);
        e.sans_piege_ = true;
        return e;
    }
    bool sans_piege() const { return sans_piege_; }

private:
    QString message_;
    bool sans_piege_ = false;
};

// The French text of a system error number.
QString texte_systeme(int numero);

// One step under a trap: an error skips the step and the routine goes on. Returns whether the
// step ran to its end.
template <class F>
bool etape(F&& pas) {
    try {
        pas();
        return true;
    } catch (const Erreur& e) {
        if (e.sans_piege()) throw;
        return false;
    }
}

// Tells the operator, closes every file and ends with status 1.
[[noreturn]] void fin_sur_erreur(const Erreur& erreur);

// Runs a handler reached from the event loop: an error that nothing took ends the program here,
// before it could cross the toolkit's frames.
template <class F>
void protege(F&& handler) {
    try {
        handler();
    } catch (const Erreur& e) {
        fin_sur_erreur(e);
    }
}

} // namespace agenda
