#include "Quillmere/app/AppEngine.h"

namespace quillmere {

AppEngine::AppEngine() {
    addImportPath(QStringLiteral("qrc:/qt/qml"));
    readAhead(QUrl(QStringLiteral("qrc:/qt/qml/Quillmere/app/MainWindow.qml")));
    readAhead(QUrl(QStringLiteral("qrc:/qt/qml/Quillmere/app/MainScene.qml")));
}

void AppEngine::readAhead(const QUrl& file) {
    auto& component = ahead_[file];
    if (!component) {
        component = std::make_unique<QQmlComponent>(this, file, QQmlComponent::Asynchronous);
    }
}

} // namespace quillmere
