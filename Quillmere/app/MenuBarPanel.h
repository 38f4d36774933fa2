#pragma once

#include "Quillmere/app/WindowModel.h"
#include "Quillmere/composer/TransactionComposerMode.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QRect>
#include <QtCore/QSizeF>
#include <QtQml/qqmlregistration.h>

#include <memory>

class QQmlEngine;
class QQuickWindow;

namespace quillmere {

/// The window under the tray item. It and everything in it is made when it is opened and gone when
/// it is closed; it closes by itself when the focus leaves it. Where the display system lets no
/// window be placed (Wayland) it opens wherever that puts it. Main thread.
class MenuBarPanel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    /// The content's size; the window follows it.
    Q_PROPERTY(QSizeF contentSize READ contentSize WRITE setContentSize NOTIFY contentSizeChanged)
    /// How high the content may become on this screen.
    Q_PROPERTY(int maximumHeight READ maximumHeight NOTIFY placeChanged)
    /// Whether the panel stands over the tray item and grows upwards.
    Q_PROPERTY(bool opensUpwards READ opensUpwards NOTIFY placeChanged)

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
    Q_INVOKABLE void close();
    /// Closes the panel and asks for the main window.
    Q_INVOKABLE void openMainWindow();

    [[nodiscard]] bool isOpen() const { return window_ != nullptr; }
    /// The window, or null while the panel is closed.
    [[nodiscard]] QQuickWindow* window() const { return window_; }

    [[nodiscard]] QSizeF contentSize() const { return contentSize_; }
    void setContentSize(const QSizeF& size);
    [[nodiscard]] int maximumHeight() const;
    [[nodiscard]] bool opensUpwards() const;

signals:
    /// The user wants the main window; the panel has closed.
    void mainWindowRequested();
    void settingsRequested();
    /// The user wants the program to end, whatever closing a window means.
    void quitRequested();
    void contentSizeChanged();
    void placeChanged();

private:
    void openAt(const QRect& iconGeometry);
    void setAnchor(const QRect& iconGeometry);
    [[nodiscard]] QQuickWindow* make();
    void place();
    void onActiveChanged();
    void onVisibleChanged(bool isVisible);

    QQmlEngine& engine_;
    WindowModel::Application application_;
    std::unique_ptr<WindowModel> model_;
    QQuickWindow* window_ = nullptr;
    QPointer<QQuickWindow> closed_; ///< until it is deleted
    QRect anchor_;
    QRect available_;
    QSizeF contentSize_;
    QElapsedTimer sinceFocusLeft_;
};

} // namespace quillmere
