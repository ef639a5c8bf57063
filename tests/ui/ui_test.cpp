// The files' colours. (The dates in French are read in every book and editor test: "Mercredi
// 03 mars 2004", the keys' yymmdd, today with its time as fraction.) Work on the side that the
// end waits for. The session bus said absent where none can be found, but not to the programs
// the book starts.

#include "ui/surface.h"
#include "ui/systeme.h"

#include <atomic>
#include <chrono>
#include <gtest/gtest.h>
#include <QDeadlineTimer>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QPalette>
#include <QProcessEnvironment>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QThread>
#include <QThreadPool>
#include <thread>
#include <tuple>

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
    if (QFileInfo(QStringLiteral("/usr/bin/dbus-launch")).isExecutable())
        GTEST_SKIP() << "the bus library's launcher is installed here";
    const QProcessEnvironment avant = QProcessEnvironment::systemEnvironment();
    const auto remet = qScopeGuard([&] {
        for (const char* nom : {"DBUS_SESSION_BUS_ADDRESS", "PATH", "XDG_RUNTIME_DIR"})
            avant.contains(QLatin1String(nom))
                ? qputenv(nom, avant.value(QLatin1String(nom)).toLocal8Bit())
                : qunsetenv(nom);
    });
    QTemporaryDir lanceur, session;
    QFile script(lanceur.filePath(QStringLiteral("dbus-launch")));
    ASSERT_TRUE(script.open(QIODevice::WriteOnly));
    script.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    QFile(session.filePath(QStringLiteral("bus"))).open(QIODevice::WriteOnly);
    // An address given, the user's bus in the runtime folder, the launcher on the path: the
    // library finds its bus, or starts one. Nothing of them: it is told there is none.
    for (const auto& [donnee, runtime, sur_le_chemin, attendue] :
         {std::tuple{"unix:path=/run/bus", false, false, "unix:path=/run/bus"},
          {"", true, false, ""},
          {"", false, true, ""},
          {"", false, false, "disabled:"}}) {
        *donnee ? qputenv("DBUS_SESSION_BUS_ADDRESS", donnee)
                : qunsetenv("DBUS_SESSION_BUS_ADDRESS");
        qputenv("XDG_RUNTIME_DIR", (runtime ? session : lanceur).path().toLocal8Bit());
        qputenv("PATH", sur_le_chemin ? lanceur.path().toLocal8Bit() : QByteArray("/nulle/part"));
        annonce_le_bus_absent();
        EXPECT_EQ(qgetenv("DBUS_SESSION_BUS_ADDRESS"), QByteArray(attendue)) << donnee << runtime;
    }
    // A program the book starts looks for its own bus.
    qputenv("PATH",
            avant.value(QStringLiteral("PATH"), QStringLiteral("/usr/bin:/bin")).toLocal8Bit());
    const QString trace = session.filePath(QStringLiteral("adresse"));
    ASSERT_TRUE(lance_commande(
        QStringLiteral("sh -c \"echo ${DBUS_SESSION_BUS_ADDRESS-aucune} > %1.tmp && mv %1.tmp %1\"")
            .arg(trace)));
    for (const QDeadlineTimer delai(10000); !QFileInfo::exists(trace) && !delai.hasExpired();)
        QThread::msleep(5);
    QFile lue(trace);
    ASSERT_TRUE(lue.open(QIODevice::ReadOnly));
    EXPECT_EQ(lue.readAll().trimmed(), "aucune");
}
