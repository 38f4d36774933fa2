#include "Quillmere/app/WindowKeeper.h"

#include <QtCore/QEvent>
#include <QtGui/QGuiApplication>
#include <QtGui/QWindow>

#include <utility>

namespace quillmere {

namespace {

// Neither panel nor menu.
bool isWindowOfItsOwn(QObject* object) {
    const auto* window = qobject_cast<QWindow*>(object);
    return window != nullptr && (window->type() == Qt::Window || window->type() == Qt::Dialog);
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
        if (watched == mainWindow_) {
            putBack();
        }
    } else if (event->type() == QEvent::Close && watched == mainWindow_) {
        if (refusesToClose()) {
            event->ignore();
            return true;
        }
        place_ = mainWindow_->framePosition();
    }
    return false;
}

// Otherwise window managers look for a new place, as for any window that appears.
void WindowKeeper::putBack() {
    const auto place = std::exchange(place_, std::nullopt);
    const bool isOrdinary =
        (mainWindow_->windowStates() & (Qt::WindowMaximized | Qt::WindowFullScreen)) == 0;
    if (place && isOrdinary && QGuiApplication::screenAt(*place) != nullptr) {
        mainWindow_->setFramePosition(*place);
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
