#pragma once
// The one way the program ends on an error: a French message for the operator. It is thrown
// where the failure happens and caught at the event loop's edge, which closes every file and
// leaves with a non-zero status.

#include <QString>
#include <stdexcept>

namespace agenda {

class ErreurFatale : public std::runtime_error {
public:
    explicit ErreurFatale(const QString& message)
        : std::runtime_error(message.toStdString()), message_(message) {}
    const QString& message() const { return message_; }

private:
    QString message_;
};

} // namespace agenda

namespace agenda {

// Closes every file, tells the operator and ends with status 1.
[[noreturn]] void fin_sur_erreur(const ErreurFatale& erreur);

// Runs a handler reached from the event loop: an error that ends the program ends it here,
// before it could cross the toolkit's frames.
template <class F>
void protege(F&& handler) {
    try {
        handler();
    } catch (const ErreurFatale& e) {
        fin_sur_erreur(e);
    }
}

} // namespace agenda
