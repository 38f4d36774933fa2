#include "Quillmere/app/SettingsWindow.h"

#include <QtQml/QQmlComponent>
#include <QtQml/QQmlEngine>
#include <QtQuick/QQuickWindow>

#include <utility>

namespace quillmere {

SettingsWindow::SettingsWindow(QQmlEngine& engine, const WindowModel::Application& application,
                               WindowModel::MakeScene makeScene, QObject* parent)
    : QObject(parent),
      engine_(engine),
      application_(application),
      makeScene_(std::move(makeScene)) {
}

SettingsWindow::~SettingsWindow() {
    if (window_ != nullptr) {
        window_->disconnect(this);
        delete window_;
    }
}

void SettingsWindow::open() {
    if (window_ == nullptr) {
        window_ = make();
    }
    if (window_ != nullptr) {
        window_->raise();
        window_->requestActivate();
    }
}

QQuickWindow* SettingsWindow::make() {
    model_ = std::make_unique<WindowModel>(application_, makeScene_);
    QQmlComponent component(&engine_,
                            QUrl(QStringLiteral("qrc:/qt/qml/Quillmere/app/SettingsWindow.qml")));
    auto* window = qobject_cast<QQuickWindow*>(component.createWithInitialProperties(
        {{QStringLiteral("model"), QVariant::fromValue(model_.get())}}));
    if (window != nullptr) {
        connect(window, &QWindow::visibleChanged, this, &SettingsWindow::onVisibleChanged);
    }
    return window;
}

// The model goes after what is shown in it.
void SettingsWindow::onVisibleChanged(bool isVisible) {
    if (!isVisible) {
        QQuickWindow* closed = std::exchange(window_, nullptr);
        connect(closed, &QObject::destroyed, model_.release(), &QObject::deleteLater);
        closed->deleteLater();
    }
}

} // namespace quillmere
