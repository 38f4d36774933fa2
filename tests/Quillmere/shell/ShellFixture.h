#pragma once

#include "Quillmere/shell/AppStorageController.h"
#include "Quillmere/shell/MacRootViewModel.h"
#include "Quillmere/shell/RouteSelection.h"
#include "Quillmere/widget/WidgetRefreshObserverViewModel.h"
#include "tests/Quillmere/shell/FakeStoreOpener.h"
#include "tests/Quillmere/support/StoreFixture.h"
#include "tests/Quillmere/widget/CountingWidgetCenter.h"

#include <QtCore/QSemaphore>
#include <QtGui/QDesktopServices>

#include <memory>

namespace quillmere {

/// What the shell's views are given, with storage in any mode.
class ShellFixture : public StoreFixture {
    Q_OBJECT
    Q_PROPERTY(quillmere::AppState* appState READ appStatePointer CONSTANT)
    Q_PROPERTY(quillmere::RouteSelection* routes READ routes CONSTANT)
    Q_PROPERTY(quillmere::MacRootViewModel* root READ root CONSTANT)
    Q_PROPERTY(quillmere::WidgetRefreshObserverViewModel* widgetRefresh READ widgetRefresh CONSTANT)

public:
    ShellFixture();
    ~ShellFixture() override;

    [[nodiscard]] AppState* appStatePointer() { return &appState(); }
    [[nodiscard]] RouteSelection* routes() { return &routes_; }
    [[nodiscard]] MacRootViewModel* root() { return &root_; }
    [[nodiscard]] WidgetRefreshObserverViewModel* widgetRefresh() { return &widgetRefresh_; }

    /// Storage whose attempts named in `failing` fail ("cloud", "local", "memory").
    Q_INVOKABLE quillmere::AppStorageController* storageWithout(const QStringList& failing);
    Q_INVOKABLE QString storedRoute();
    /// Starts work that writes and lasts until `endWork`.
    Q_INVOKABLE void startWork();
    Q_INVOKABLE void endWork() { workEnds_.release(); }

private:
    QSemaphore workEnds_;
    platform::SystemClock systemClock_;
    TimeFollower systemTime_{systemClock_};
    FakeStoreOpener opener_;
    AppModelContainer container_{opener_, log()};
    RouteSelection routes_{preferences()};
    MacRootViewModel root_;
    CountingWidgetCenter widgets_;
    WidgetRefreshObserverViewModel widgetRefresh_;
    std::unique_ptr<AppStorageController> storage_;
};

} // namespace quillmere
