// What any Qt Quick Controls program takes for its first frame: an empty window of the same size.

#include "benchmarks/app/FirstFrame.h"

#include <QtGui/QGuiApplication>
#include <QtQml/QQmlApplicationEngine>
#include <QtQuick/QQuickWindow>
#include <QtQuickControls2/QQuickStyle>

#include <cstdlib>

int main(int argc, char** argv) {
    QQuickStyle::setStyle(QStringLiteral("Basic"));
    const QGuiApplication application(argc, argv);
    QQmlApplicationEngine engine;
    engine.loadData("import QtQuick.Controls\n"
                    "ApplicationWindow { visible: true; width: 980; height: 700 }");
    auto* window = qobject_cast<QQuickWindow*>(engine.rootObjects().value(0));
    if (window == nullptr) {
        return EXIT_FAILURE;
    }
    new quillmere::FirstFrame(*window, [] { return true; });
    return QGuiApplication::exec();
}
