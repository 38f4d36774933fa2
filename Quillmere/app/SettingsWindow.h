#pragma once

#include "Quillmere/app/WindowModel.h"

#include <QtCore/QObject>

#include <memory>

class QQmlEngine;
class QQuickWindow;

namespace quillmere {

/// The settings window: there is one at most, made when it is opened and gone when it is closed.
/// Main thread.
class SettingsWindow : public QObject {
    Q_OBJECT

public:
    /// `makeScene` makes the settings' view model. Everything given must outlive the object.
    SettingsWindow(QQmlEngine& engine, const WindowModel::Application& application,
                   WindowModel::MakeScene makeScene, QObject* parent = nullptr);
    ~SettingsWindow() override;

    /// Shows the window, or brings it to the front.
    void open();
    /// The window, or null while it is closed.
    [[nodiscard]] QQuickWindow* window() const { return window_; }

private:
    [[nodiscard]] QQuickWindow* make();
    void onVisibleChanged(bool isVisible);

    QQmlEngine& engine_;
    WindowModel::Application application_;
    WindowModel::MakeScene makeScene_;
    std::unique_ptr<WindowModel> model_;
    QQuickWindow* window_ = nullptr;
};

} // namespace quillmere
