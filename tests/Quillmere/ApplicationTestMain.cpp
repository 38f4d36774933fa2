#include <QtGui/QGuiApplication>
#ifdef QT_WIDGETS_LIB
#include <QtWidgets/QApplication>
#endif

#include <gtest/gtest.h>

// What is built with Qt Widgets takes every application for one of theirs.
#ifdef QT_WIDGETS_LIB
using Application = QApplication;
#else
using Application = QGuiApplication;
#endif

// Tests of Qt objects need an application object around them.
int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    Application application(argc, argv);
    return RUN_ALL_TESTS();
}
