#pragma once

#include "Quillmere/shell/QuillmereMacAppDelegate.h"

#include <QtCore/QMargins>
#include <QtCore/QObject>
#include <QtCore/QRect>

#include <functional>
#include <optional>

class QWindow;

namespace quillmere {

/// What closing windows means: the end of the program, or that it runs on behind its tray item. It
/// sees to it that nobody is left with a program that runs out of reach. Main thread.
class WindowKeeper : public QObject {
    Q_OBJECT

public:
    /// `isOutOfReach` answers whether a program without windows would have nothing to come back
    /// from although the user wants an item in the tray. `delegate` must outlive the object.
    WindowKeeper(const QuillmereMacAppDelegate& delegate, std::function<bool()> isOutOfReach,
                 QObject* parent = nullptr);

    /// The window that is kept. It must outlive the object.
    void keep(QWindow& mainWindow);

    /// Called when `isOutOfReach` may answer differently.
    void check();

    /// Called when the start is over: asks for the main window, unless the user has gone to another
    /// one meanwhile or put this one out of the way.
    void finishStart();

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    void mainWindowRequested();
    void quitRequested();

private:
    struct Place {
        QRect content;
        QMargins frame;
    };

    void onLastWindowClosed();
    void onMainWindowEvent(const QEvent& event);
    [[nodiscard]] bool refusesToClose() const;
    void rememberPlace();
    void putBack();

    const QuillmereMacAppDelegate& delegate_;
    std::function<bool()> isOutOfReach_;
    QWindow* mainWindow_ = nullptr;
    std::optional<Place> place_; ///< of the main window when it last was an ordinary one
    bool isHidden_ = false;      ///< runs on without a window; the panel counts for none
    bool isLeaving_ = false;
};

} // namespace quillmere
