// The same through Qt: one method on the bus, which answers a text.

#include <QtCore/QCoreApplication>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusVirtualObject>

#include <cstdlib>

namespace {

class Service : public QDBusVirtualObject {
public:
    using QDBusVirtualObject::QDBusVirtualObject;

    [[nodiscard]] QString introspect(const QString& /*path*/) const override { return {}; }
    bool handleMessage(const QDBusMessage& call, const QDBusConnection& bus) override {
        return bus.send(call.createReply(QStringLiteral("Done.")));
    }
};

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    QDBusConnection bus = QDBusConnection::sessionBus();
    Service service;
    if (!bus.registerVirtualObject(QStringLiteral("/bare"), &service) ||
        !bus.registerService(QStringLiteral("bare.QtDBus"))) {
        return EXIT_FAILURE;
    }
    return QCoreApplication::exec();
}
