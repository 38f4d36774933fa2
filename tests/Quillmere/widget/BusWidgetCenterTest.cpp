#include "Quillmere/widget/BusWidgetCenter.h"

#include <QtCore/QEventLoop>
#include <QtCore/QTimer>

#include <gtest/gtest.h>

namespace quillmere {

// The listener has a connection of its own, as another program does.
TEST(BusWidgetCenter, AsksWhoeverListensOnTheBus) {
    QDBusConnection bus =
        QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("listener"));
    ASSERT_TRUE(bus.isConnected());
    QEventLoop listening;
    ASSERT_TRUE(bus.connect(QString(), QStringLiteral("/dev/vantor/quillmere/Widgets"),
                            QStringLiteral("dev.vantor.quillmere.Widgets"),
                            QStringLiteral("ReloadAllTimelines"), &listening, SLOT(quit())));
    BusWidgetCenter(QDBusConnection(QStringLiteral("none"))).reloadAllTimelines();
    BusWidgetCenter(QDBusConnection::sessionBus()).reloadAllTimelines();
    QTimer::singleShot(30'000, &listening, [&] { listening.exit(EXIT_FAILURE); });
    EXPECT_EQ(listening.exec(), EXIT_SUCCESS);
}

} // namespace quillmere
