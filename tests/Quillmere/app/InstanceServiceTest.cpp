#include "Quillmere/app/InstanceService.h"

#include <QtDBus/QDBusConnection>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <gtest/gtest.h>

#include <future>

namespace quillmere {
namespace {

using Claim = InstanceService::Claim;

QDBusConnection connectAs(const char* name) {
    return QDBusConnection::connectToBus(QDBusConnection::SessionBus, QLatin1String(name));
}

struct HandOver {
    const char* name;
    QList<QUrl> urls;
    QVariantMap request;
    QString token;
};

TEST(InstanceServiceTest, SecondStartHandsOverToTheFirst) {
    InstanceService first(connectAs("first"));
    ASSERT_EQ(first.claim(), Claim::first);
    QSignalSpy opened(&first, &InstanceService::opened);
    QSignalSpy activated(&first, &InstanceService::activated);

    const QUrl history(QStringLiteral("quillmere://history"));
    const QUrl settings(QStringLiteral("quillmere://settings"));
    const std::vector<HandOver> rows{
        {"nothing", {}, {}, QString()},
        {"links",
         {history, settings},
         {{QStringLiteral("desktop-startup-id"), QStringLiteral("id")}},
         QStringLiteral("id")},
        {"both tokens",
         {},
         {{QStringLiteral("desktop-startup-id"), QStringLiteral("id")},
          {QStringLiteral("activation-token"), QStringLiteral("token")}},
         QStringLiteral("token")},
    };
    for (const HandOver& row : rows) {
        SCOPED_TRACE(row.name);
        opened.clear();
        activated.clear();
        auto handedOver = std::async(std::launch::async, [&row] {
            InstanceService second(connectAs("second"));
            return second.claim() == Claim::second && second.handOver(row.urls, {row.request});
        });
        ASSERT_TRUE(QTest::qWaitFor([&] { return activated.count() == 1; }, 30'000));
        EXPECT_TRUE(handedOver.get());
        EXPECT_EQ(activated[0][0].toString(), row.token);
        ASSERT_EQ(opened.count(), row.urls.size());
        for (qsizetype i = 0; i < row.urls.size(); ++i) {
            EXPECT_EQ(opened[i][0].toUrl(), row.urls[i]);
        }
    }
}

TEST(InstanceServiceTest, RunsAloneWithoutABus) {
    InstanceService service(QDBusConnection(QStringLiteral("never connected")));
    EXPECT_EQ(service.claim(), Claim::alone);
}

} // namespace
} // namespace quillmere
