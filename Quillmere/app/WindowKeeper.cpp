#include "Quillmere/app/WindowKeeper.h"

#include "Quillmere/app/WindowPlacement.h"

#include <QtCore/QEvent>
#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>
#include <QtGui/QWindow>

#include <utility>

namespace quillmere {

namespace {

constexpr int titleHeight = 24; ///< of a window that has no frame and is grabbed at its own top

// Neither panel nor menu.
bool isWindowOfItsOwn(QObject* object) {
    const auto* window = qobject_cast<QWindow*>(object);
    return window != nullptr && (window->type() == Qt::Window || window->type() == Qt::Dialog);
}

QList<QRect> screens() {
    QList<QRect> areas;
    for (const QScreen* screen : QGuiApplication::screens()) {
        areas.append(screen->availableGeometry());
    }
    return areas;
}

} // namespace

WindowKeeper::WindowKeeper(const QuillmereMacAppDelegate& delegate,
                           std::function<bool()> isOutOfReach, QObject* parent)
    : QObject(parent), delegate_(delegate), isOutOfReach_(std::move(isOutOfReach)) {
    QGuiApplication::setQuitOnLastWindowClosed(false);
    connect(qGuiApp, &QGuiApplication::lastWindowClosed, this, &WindowKeeper::onLastWindowClosed);
    qGuiApp->installEventFilter(this);
}

void WindowKeeper::keep(QWindow& mainWindow) {
    mainWindow_ = &mainWindow;
}

void WindowKeeper::check() {
    if (isHidden_ && isOutOfReach_()) {
        emit mainWindowRequested();
    }
}

void WindowKeeper::finishStart() {
    const bool isAway =
        !mainWindow_->isVisible() || (mainWindow_->windowStates() & Qt::WindowMinimized) != 0;
    if (QGuiApplication::focusWindow() == nullptr && !isAway) {
        emit mainWindowRequested();
    }
}

// Quitting closes every window first, and one that refuses would prevent it.
bool WindowKeeper::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Quit && watched == qGuiApp) {
        isLeaving_ = true;
    } else if (event->type() == QEvent::Show && isWindowOfItsOwn(watched)) {
        isHidden_ = false;
    } else if (event->type() == QEvent::Close && watched == mainWindow_ && refusesToClose()) {
        event->ignore();
        return true;
    }
    if (watched == mainWindow_) {
        onMainWindowEvent(*event);
    }
    return false;
}

void WindowKeeper::onMainWindowEvent(const QEvent& event) {
    switch (event.type()) {
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::Close:
        rememberPlace();
        break;
    case QEvent::Show:
        putBack();
        break;
    default:
        break;
    }
}

void WindowKeeper::rememberPlace() {
    const bool isOrdinary =
        (mainWindow_->windowStates() & (Qt::WindowMaximized | Qt::WindowFullScreen)) == 0;
    if (isOrdinary && mainWindow_->isVisible()) {
        place_ = {mainWindow_->geometry(), mainWindow_->frameMargins()};
    }
}

// Otherwise window managers look for a new place, as for any window that appears. From a maximized
// one they learn here what it is to be when it no longer is.
void WindowKeeper::putBack() {
    if (place_) {
        const auto [content, frame] = *place_;
        mainWindow_->resize(content.size());
        mainWindow_->setFramePosition(WindowPlacement::place(
            content.marginsAdded(frame), frame.top() > 0 ? frame.top() : titleHeight, screens()));
    }
}

bool WindowKeeper::refusesToClose() const {
    return !isLeaving_ && !delegate_.applicationShouldTerminateAfterLastWindowClosed() &&
           isOutOfReach_();
}

// Also comes when the panel closes in front of nothing, which decides nothing anew.
void WindowKeeper::onLastWindowClosed() {
    if (isHidden_) {
        return;
    }
    if (delegate_.applicationShouldTerminateAfterLastWindowClosed()) {
        emit quitRequested();
    } else {
        isHidden_ = true;
        check();
    }
}

} // namespace quillmere
