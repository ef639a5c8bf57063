#pragma once
// What the program asks of the platform outside windows: the time, yielding to the event loop,
// the mouse pointer and starting another program. Tests set the clock.

#include <functional>
#include <future>
#include <QDateTime>
#include <QString>

namespace agenda::ui {

// The one clock of the program.
QDateTime maintenant();
// Seconds since midnight, as the clock says.
double secondes_depuis_minuit();
// Replaces the clock (tests); an empty function gives the system's clock back.
void fixe_horloge(std::function<QDateTime()> horloge);

// Lets the other events of this workstation run.
void cede();

enum class Pointeur { fleche, sablier };
void pose_pointeur(Pointeur p);

// Starts a command line in a normal window without waiting and without a shell: the first
// word is the program, the rest its arguments.
bool lance_commande(const QString& ligne);
// Where no session bus can be found, tells the bus library so before it looks for one: looking,
// it forks the whole program to run its launcher (dbus-launch), even where none is installed,
// which cost the book's opening two milliseconds and more. To call before any thread starts. The
// programs lance_commande starts look for their own bus.
void annonce_le_bus_absent();
// Replaces the launcher (tests); an empty function gives the real one back.
void fixe_lanceur(std::function<bool(const QString&)> lanceur);

// Opens an address in the desktop's browser, without waiting; tests see it through the
// launcher above.
bool ouvre_adresse(const QString& adresse);

// The system's input box: a title, a prompt and a default; the empty text when cancelled.
QString saisie(const QString& titre, const QString& invite, const QString& defaut);
// Set by the program where it has widgets, and by tests.
void fixe_saisie(std::function<QString(const QString&, const QString&, const QString&)> boite);

// Tells the operator why the program ends: on the error output, and in a window where the
// program has set one up.
void message_fatal(const QString& message);
void fixe_message_fatal(std::function<void(const QString&)> montre);

// What must be done before any end of the program (closing the files), in the order given.
void avant_la_fin(std::function<void()> action);
// Work given to another thread, which every end of the program waits for: it draws or asks
// through the toolkit, whose globals go with the program. Its owner waits for it too, before
// going or before taking another.
class ACote {
public:
    // The thread the work runs on. The toolkit's painter splits each large fill across the
    // threads of the toolkit's pool and waits for them, unless it paints on one of them: a
    // drawing given to the pool keeps its fills on its own thread rather than waking the others,
    // which the window being built needs. The pool has a thread per core: work that may wait
    // (for a bus, a disk) keeps a thread of its own.
    enum class Fil { propre, dessin };
    ACote() = default;
    explicit ACote(std::function<void()> travail, Fil fil = Fil::propre);
    ACote(const ACote&) = delete;
    ACote& operator=(ACote&& autre) noexcept {
        attends();
        fait_ = std::move(autre.fait_);
        return *this;
    }
    ~ACote() { attends(); }
    void attends() const {
        if (fait_.valid()) fait_.wait();
    }

private:
    std::shared_future<void> fait_;
};
// Ends the program at once with this status, after the actions above.
[[noreturn]] void termine(int code);
// Replaces the end (tests): the function must not return, it throws.
void fixe_fin(std::function<void(int)> fin);

} // namespace agenda::ui
