#include <QtGui/QGuiApplication>

#include <gtest/gtest.h>

// Tests of Qt objects need an application object around them.
int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    QGuiApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
