#include "tests/Quillmere/support/QmlFixture.h"

#include <QtQml/QQmlEngine>
#include <QtQuickTest/quicktest.h>

namespace quillmere {

namespace {

class Setup : public QObject {
    Q_OBJECT

public slots:
    // Called for the engine of each QML file.
    void qmlEngineAvailable(QQmlEngine* engine) {
        engine->addImportPath(QStringLiteral("qrc:/qt/qml"));
        qmlRegisterSingletonType<QObject>(
            "Quillmere.test", 1, 0, "Fixture",
            [](QQmlEngine*, QJSEngine*) { return makeFixture().release(); });
    }
};

} // namespace

} // namespace quillmere

int main(int argc, char** argv) {
    QTEST_SET_MAIN_SOURCE_PATH
    quillmere::Setup setup;
    return quick_test_main_with_setup(argc, argv, "quillmere", nullptr, &setup);
}

#include "QmlTestMain.moc"
