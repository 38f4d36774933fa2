#include "Quillmere/app/WindowKeeper.h"

#include <QtCore/QEvent>
#include <QtGui/QGuiApplication>
#include <QtGui/QWindow>

#include <utility>

namespace quillmere {

WindowKeeper::WindowKeeper(const QuillmereMacAppDelegate& delegate,
                           std::function<bool()> isOutOfReach, QObject* parent)
    : QObject(parent), delegate_(delegate), isOutOfReach_(std::move(isOutOfReach)) {
    QGuiApplication::setQuitOnLastWindowClosed(false);
    connect(qGuiApp, &QGuiApplication::lastWindowClosed, this, &WindowKeeper::onLastWindowClosed);
    qGuiApp->installEventFilter(this);
}

void WindowKeeper::keep(QWindow& mainWindow) {
    mainWindow_ = &mainWindow;
    connect(mainWindow_, &QWindow::visibleChanged, this,
            [this](bool isVisible) { isHidden_ = isHidden_ && !isVisible; });
}

void WindowKeeper::check() {
    if (isHidden_ && isOutOfReach_()) {
        emit mainWindowRequested();
    }
}

// Quitting closes every window first, and one that refuses would prevent it.
bool WindowKeeper::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Quit && watched == qGuiApp) {
        isLeaving_ = true;
    } else if (event->type() == QEvent::Close && watched == mainWindow_ && refusesToClose()) {
        event->ignore();
        return true;
    }
    return false;
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
