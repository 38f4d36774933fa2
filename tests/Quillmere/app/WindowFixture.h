#pragma once

#include "Platform/log/MemoryLogSink.h"
#include "Platform/preferences/MemoryPreferences.h"
#include "Quillmere/app/WindowModel.h"
#include "Quillmere/shell/TimeFollower.h"
#include "tests/Quillmere/shell/FakeStoreOpener.h"
#include "tests/Quillmere/shell/NoDesktop.h"
#include "tests/Quillmere/support/FindItem.h"
#include "tests/Quillmere/widget/CountingWidgetCenter.h"

#include <QtQml/QQmlApplicationEngine>
#include <QtQuick/QQuickItem>
#include <QtQuick/QQuickWindow>
#include <QtTest/QTest>

#include <gtest/gtest.h>

#include <optional>

namespace quillmere {

/// What every window of the program needs, on stores in memory.
class WindowFixture : public testing::Test {
protected:
    WindowFixture() {
        QObject::connect(&engine_, &QQmlEngine::warnings, [](const QList<QQmlError>& warnings) {
            ADD_FAILURE() << warnings.first().toString().toStdString();
        });
        engine_.addImportPath(QStringLiteral("qrc:/qt/qml"));
    }

    void openStore() { storage_.emplace(container_, container_.make(), time_); }

    WindowModel::Application windows() {
        return {appState_, *storage_, appearance_, routes_, {log_, {widget_, widgets_}}};
    }

    static bool shows(const QQuickWindow& window, const char* objectName) {
        const QString name = QLatin1String(objectName);
        return QTest::qWaitFor([&] { return findItem(*window.contentItem(), name) != nullptr; },
                               30'000);
    }

    platform::MemoryLogSink log_;
    platform::MemoryPreferences preferences_;
    platform::MemoryPreferences widget_;
    CountingWidgetCenter widgets_;
    platform::SystemClock clock_;
    TimeFollower time_{clock_};
    NoDesktop desktop_;
    AppearanceModel appearance_{preferences_, desktop_};
    FakeStoreOpener opener_;
    AppModelContainer container_{opener_, log_};
    AppState appState_{log_};
    RouteSelection routes_{preferences_};
    std::optional<AppStorageController> storage_;
    QQmlApplicationEngine engine_;
};

} // namespace quillmere
