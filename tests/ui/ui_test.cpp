// The files' colours. (The dates in French are read in every book and editor test: "Mercredi
// 03 mars 2004", the keys' yymmdd, today with its time as fraction.) Work on the side that the
// end waits for. The session bus said absent where none can be found, but not to the programs
// the book starts.

#include "ui/surface.h"
#include "ui/systeme.h"

#include <atomic>
#include <chrono>
#include <gtest/gtest.h>
#include <optional>
#include <QDeadlineTimer>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QPalette>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QThread>
#include <QThreadPool>
#include <thread>
#include <tuple>
#include <utility>
#include <vector>

using namespace agenda::ui;

TEST(Ui, Couleurs) {
    // 0x00BBGGRR, and back; the system's window colour, which a new appointment keeps.
    EXPECT_EQ(couleur(0x0080FF), QColor(0xFF, 0x80, 0x00));
    EXPECT_EQ(bbggrr(QColor(0xFF, 0x80, 0x00)), 0x0080FF);
    EXPECT_EQ(couleur(std::int32_t(0x80000005u)), QGuiApplication::palette().color(QPalette::Base));
}

TEST(Ui, LaFinAttendLeTravailACote) {
    // Work still running when the program ends, as a thread drawing with the toolkit would be. A
    // drawing runs on a thread of the toolkit's pool, whose painter then keeps its fills there.
    for (const ACote::Fil fil : {ACote::Fil::propre, ACote::Fil::dessin}) {
        std::atomic<bool> fini = false, fini_a_la_fin = false, dans_le_pool = false;
        const ACote fait(
            [&] {
                dans_le_pool = QThreadPool::globalInstance()->contains(QThread::currentThread());
                std::this_thread::sleep_for(std::chrono::milliseconds(50));
                fini = true;
            },
            fil);
        fixe_fin([&](int) {
            fini_a_la_fin = fini.load();
            throw 0;
        });
        EXPECT_THROW(termine(1), int);
        fixe_fin({});
        EXPECT_TRUE(fini_a_la_fin);
        EXPECT_EQ(dans_le_pool, fil == ACote::Fil::dessin);
    }
}

TEST(Ui, LeBusDeSessionAbsentEstAnnonceAvantQuOnLeCherche) {
    constexpr char adresse[] = "DBUS_SESSION_BUS_ADDRESS";
    // The test's environment, given back at the end.
    std::vector<std::pair<const char*, std::optional<QByteArray>>> avant;
    for (const char* nom : {adresse, "PATH", "XDG_RUNTIME_DIR"})
        avant.emplace_back(nom, qEnvironmentVariableIsSet(nom) ? std::optional(qgetenv(nom))
                                                               : std::nullopt);
    const auto remet = qScopeGuard([&] {
        for (const auto& [nom, valeur] : avant)
            valeur ? qputenv(nom, *valeur) : qunsetenv(nom);
    });
    QTemporaryDir lanceur, session;
    QFile script(lanceur.filePath(QStringLiteral("dbus-launch")));
    ASSERT_TRUE(script.open(QIODevice::WriteOnly));
    script.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    QFile(session.filePath(QStringLiteral("bus"))).open(QIODevice::WriteOnly);
    // An address given, the user's bus in the runtime folder, the launcher on the path: the
    // library finds its bus, or starts one. Nothing of them: it is told there is none.
    for (const auto& [donnee, runtime, launcher, attendue] :
         {std::tuple{"unix:path=/run/bus", false, false, "unix:path=/run/bus"},
          {"", true, false, ""},
          {"", false, true, ""},
          {"", false, false, "disabled:"}}) {
        if (*donnee)
            qputenv(adresse, donnee);
        else
            qunsetenv(adresse);
        qputenv("XDG_RUNTIME_DIR", (runtime ? session : lanceur).path().toLocal8Bit());
        qputenv("PATH", launcher ? lanceur.path().toLocal8Bit() : QByteArray("/nulle/part"));
        if (!launcher && QFileInfo(QStringLiteral("/usr/bin/dbus-launch")).isExecutable())
            continue; // this machine has the launcher where the library looks first
        annonce_le_bus_absent();
        EXPECT_EQ(qgetenv(adresse), QByteArray(attendue)) << donnee << runtime << launcher;
    }
    if (qgetenv(adresse) != "disabled:") return;
    qputenv("PATH", avant[1].second.value_or("/usr/bin:/bin"));
    // A program the book starts looks for its own bus.
    const QString trace = session.filePath(QStringLiteral("adresse"));
    ASSERT_TRUE(
        lance_commande(QStringLiteral("sh -c \"echo ${%1-aucune} > %2.tmp && mv %2.tmp %2\"")
                           .arg(QLatin1String(adresse), trace)));
    const QDeadlineTimer delai(10000);
    while (!QFileInfo::exists(trace) && !delai.hasExpired())
        QThread::msleep(5);
    QFile lue(trace);
    ASSERT_TRUE(lue.open(QIODevice::ReadOnly));
    EXPECT_EQ(lue.readAll().trimmed(), "aucune");
}
