// The logic's tests run with a GUI application on the offscreen platform: fonts and text
// measures are real, no display and no widget is needed.

#include <gtest/gtest.h>
#include <QGuiApplication>

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
