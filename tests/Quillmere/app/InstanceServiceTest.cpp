#include "Quillmere/app/InstanceService.h"

#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusConnectionInterface>
#include <QtDBus/QDBusContext>
#include <QtDBus/QDBusPendingCallWatcher>
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
    first.release();
}

/// The action program in the test's own words.
class Actions final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "dev.vantor.quillmere.Actions")

public slots:
    Q_SCRIPTABLE QString RunShortcut(const QString& id) {
        if (id == QStringLiteral("unknown")) {
            sendErrorReply(QDBusError::InvalidArgs, QStringLiteral("no such shortcut"));
            return {};
        }
        performed.append(id);
        return QStringLiteral("Done.");
    }

public:
    QStringList performed;
};

TEST(InstanceServiceTest, HasTheActionProgramPerformActionsAndAnswersAsItDoes) {
    Actions actions;
    auto bus = connectAs("actions");
    ASSERT_TRUE(bus.registerObject(QStringLiteral("/dev/vantor/quillmere/Actions"), &actions,
                                   QDBusConnection::ExportScriptableSlots));
    ASSERT_TRUE(bus.registerService(QStringLiteral("dev.vantor.quillmere.Actions")));
    InstanceService instance(connectAs("instance"));
    ASSERT_EQ(instance.claim(), Claim::first);
    QSignalSpy activated(&instance, &InstanceService::activated);
    QSignalSpy performed(&instance, &InstanceService::performed);

    const auto activate = [](const char* action) {
        auto call = QDBusMessage::createMethodCall(
            QStringLiteral("dev.vantor.quillmere"), QStringLiteral("/dev/vantor/quillmere"),
            QStringLiteral("org.freedesktop.Application"), QStringLiteral("ActivateAction"));
        call << QString::fromLatin1(action) << QVariantList() << QVariantMap();
        QDBusPendingCallWatcher answer(connectAs("shell").asyncCall(call));
        QSignalSpy answered(&answer, &QDBusPendingCallWatcher::finished);
        EXPECT_TRUE(answered.wait(30'000));
        return answer.error().name();
    };
    EXPECT_EQ(activate("add-30-minutes"), QString());
    EXPECT_EQ(actions.performed, QStringList{QStringLiteral("add-30-minutes")});
    EXPECT_EQ(activate("unknown"), QDBusError::errorString(QDBusError::InvalidArgs));
    EXPECT_EQ(performed.count(), 2);
    EXPECT_FALSE(instance.isPerforming());
    EXPECT_EQ(activated.count(), 0);
    instance.release();
}

TEST(InstanceServiceTest, DeliversWhatCameBeforeItGaveTheNameUp) {
    InstanceService first(connectAs("first"));
    ASSERT_EQ(first.claim(), Claim::first);
    QSignalSpy activated(&first, &InstanceService::activated);
    auto call = QDBusMessage::createMethodCall(
        QStringLiteral("dev.vantor.quillmere"), QStringLiteral("/dev/vantor/quillmere"),
        QStringLiteral("org.freedesktop.Application"), QStringLiteral("Activate"));
    auto shell = connectAs("shell");
    const auto answer = shell.asyncCall(call << QVariantMap());
    // The bus has sent the call on when it answers this one.
    ASSERT_TRUE(shell.interface()->isServiceRegistered(QStringLiteral("dev.vantor.quillmere")));
    first.release();
    EXPECT_EQ(activated.count(), 1);
    InstanceService second(connectAs("second"));
    EXPECT_EQ(second.claim(), Claim::first);
}

TEST(InstanceServiceTest, RunsAloneWithoutABus) {
    InstanceService service(QDBusConnection(QStringLiteral("never connected")));
    EXPECT_EQ(service.claim(), Claim::alone);
}

} // namespace
} // namespace quillmere

#include "InstanceServiceTest.moc"
