#include <QGuiApplication>
#include <QQmlApplicationEngine>
int main(int argc, char** argv) {
    QGuiApplication app(argc, argv);
    QQmlApplicationEngine e;
    e.addImportPath("qrc:/qt/qml");
    e.load(QUrl("qrc:/qt/qml/Quillmere/app/Main.qml"));
    return app.exec();
}
