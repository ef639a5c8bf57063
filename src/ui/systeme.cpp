#include "ui/systeme.h"

#include <cstdio>
#include <cstdlib>
#include <QCoreApplication>
#include <QCursor>
#include <QDesktopServices>
#include <QFileInfo>
#include <QGuiApplication>
#include <QProcess>
#include <QStandardPaths>
#include <QThreadPool>
#include <QUrl>
#include <thread>
#include <vector>

namespace agenda::ui {

namespace {
std::function<QDateTime()>& horloge() {
    static std::function<QDateTime()> h;
    return h;
}
std::function<void(int)>& fin() {
    static std::function<void(int)> f;
    return f;
}
std::function<bool(const QString&)>& lanceur() {
    static std::function<bool(const QString&)> l;
    return l;
}
constexpr char adresse_du_bus[] = "DBUS_SESSION_BUS_ADDRESS";
bool bus_annonce_absent = false;
} // namespace

QDateTime maintenant() {
    return horloge() ? horloge()() : QDateTime::currentDateTime();
}

double secondes_depuis_minuit() {
    const QTime t = maintenant().time();
    return t.msecsSinceStartOfDay() / 1000.0;
}

void fixe_horloge(std::function<QDateTime()> h) {
    horloge() = std::move(h);
}

void cede() {
    if (QCoreApplication::instance()) QCoreApplication::processEvents();
}

void pose_pointeur(Pointeur p) {
    if (!qobject_cast<QGuiApplication*>(QCoreApplication::instance())) return;
    QGuiApplication::restoreOverrideCursor();
    if (p == Pointeur::sablier) QGuiApplication::setOverrideCursor(QCursor(Qt::WaitCursor));
}

bool lance_commande(const QString& ligne) {
    if (lanceur()) return lanceur()(ligne);
    QStringList mots = QProcess::splitCommand(ligne);
    if (mots.isEmpty()) return false;
    QProcess programme;
    programme.setProgram(mots.takeFirst());
    programme.setArguments(mots);
    if (bus_annonce_absent) {
        QProcessEnvironment environnement = QProcessEnvironment::systemEnvironment();
        environnement.remove(QLatin1String(adresse_du_bus));
        programme.setProcessEnvironment(environnement);
    }
    return programme.startDetached();
}

void annonce_le_bus_absent() {
    if (qEnvironmentVariableIsSet(adresse_du_bus)) return;
    // Where the library looks after the address: the user's bus in the runtime folder, then its
    // launcher, at its own place or on the path.
    const QString dossier = qEnvironmentVariable("XDG_RUNTIME_DIR");
    if (!dossier.isEmpty() && QFileInfo::exists(dossier + QStringLiteral("/bus"))) return;
    if (QFileInfo(QStringLiteral("/usr/bin/dbus-launch")).isExecutable() ||
        !QStandardPaths::findExecutable(QStringLiteral("dbus-launch")).isEmpty())
        return;
    qputenv(adresse_du_bus, "disabled:");
    bus_annonce_absent = true;
}

void fixe_lanceur(std::function<bool(const QString&)> l) {
    lanceur() = std::move(l);
}

bool ouvre_adresse(const QString& adresse) {
    if (lanceur()) return lanceur()(adresse);
    return QDesktopServices::openUrl(QUrl(adresse));
}

namespace {
std::function<QString(const QString&, const QString&, const QString&)>& boite_de_saisie() {
    static std::function<QString(const QString&, const QString&, const QString&)> b;
    return b;
}
} // namespace

QString saisie(const QString& titre, const QString& invite, const QString& defaut) {
    return boite_de_saisie() ? boite_de_saisie()(titre, invite, defaut) : defaut;
}

void fixe_saisie(std::function<QString(const QString&, const QString&, const QString&)> boite) {
    boite_de_saisie() = std::move(boite);
}

} // namespace agenda::ui

namespace agenda::ui {

namespace {
std::function<void(const QString&)>& montre_message() {
    static std::function<void(const QString&)> m;
    return m;
}
} // namespace

void message_fatal(const QString& message) {
    std::fprintf(stderr, "Agenda : %s\n", message.toLocal8Bit().constData());
    if (montre_message()) montre_message()(message);
}

void fixe_message_fatal(std::function<void(const QString&)> m) {
    montre_message() = std::move(m);
}

namespace {
std::vector<std::function<void()>>& actions_finales() {
    static std::vector<std::function<void()>> a;
    return a;
}
} // namespace

void avant_la_fin(std::function<void()> action) {
    actions_finales().push_back(std::move(action));
}

ACote::ACote(std::function<void()> travail, Fil fil) {
    // The work is let go once done: the wait kept for the end would otherwise keep what it holds
    // (a view's pictures) for the rest of the program.
    auto tache =
        std::make_shared<std::packaged_task<void()>>([travail = std::move(travail)]() mutable {
            travail();
            travail = nullptr;
        });
    fait_ = tache->get_future().share();
    if (fil == Fil::dessin)
        QThreadPool::globalInstance()->start([tache] { (*tache)(); });
    else
        std::thread([tache] { (*tache)(); }).detach();
    avant_la_fin([fait = fait_] { fait.wait(); });
}

void termine(int code) {
    for (const auto& a : actions_finales())
        a();
    if (fin()) fin()(code);
    std::fflush(nullptr);
    std::exit(code);
}

void fixe_fin(std::function<void(int)> f) {
    fin() = std::move(f);
}

} // namespace agenda::ui
