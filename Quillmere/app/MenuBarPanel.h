#pragma once

#include "Quillmere/app/WindowModel.h"
#include "Quillmere/composer/TransactionComposerMode.h"

#include <QtCore/QObject>
#include <QtCore/QRect>

#include <memory>
#include <optional>

class QQmlEngine;
class QQuickWindow;

namespace quillmere {

/// The window under the tray item. It and everything in it is made when it is opened and gone when
/// it is closed; it closes by itself when the focus leaves it. Main thread.
class MenuBarPanel : public QObject {
    Q_OBJECT

public:
    /// Everything given must outlive the object.
    MenuBarPanel(QQmlEngine& engine, const WindowModel::Application& application,
                 QObject* parent = nullptr);
    ~MenuBarPanel() override;

    /// For an activation of the tray item: closes the panel that is open, opens it else. An
    /// activation that took the focus from the open panel before it arrives here closes it too.
    /// `iconGeometry` is the item's place on the screen as Qt knows it; where it is empty the panel
    /// opens at the pointer.
    void toggle(const QRect& iconGeometry);
    /// Opens the panel, or keeps the one that is open, with the form for `mode` in it. Before setup
    /// is done, and while no store is open, it shows what it shows otherwise. `iconGeometry` as
    /// above.
    void open(TransactionComposerMode mode, const QRect& iconGeometry);
    void close();

    [[nodiscard]] bool isOpen() const { return window_ != nullptr; }
    /// The window, or null while the panel is closed.
    [[nodiscard]] QQuickWindow* window() const { return window_; }

signals:
    /// The user wants the main window; the panel has closed.
    void mainWindowRequested();
    /// The user wants the program to end, whatever closing a window means.
    void quitRequested();

private:
    QQmlEngine& engine_;
    WindowModel::Application application_;
    std::unique_ptr<WindowModel> model_;
    QQuickWindow* window_ = nullptr;
};

} // namespace quillmere
