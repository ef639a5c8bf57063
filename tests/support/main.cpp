// The tests run on the offscreen platform: fonts and text measures are real, no display is
// needed. The logic's tests need no widget; the widgets' tests are built with AGENDA_VUES.

#include <gtest/gtest.h>
#ifdef AGENDA_VUES
#include <QApplication>
using Application = QApplication;
#else
#include <QGuiApplication>
using Application = QGuiApplication;
#endif

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    Application app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
