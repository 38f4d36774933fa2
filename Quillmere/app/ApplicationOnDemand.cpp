#include "Quillmere/app/ApplicationOnDemand.h"

#include <QtCore/QCoreApplication>

#include <chrono>
#include <cstdlib>
#include <utility>

namespace quillmere {

namespace {

// The call that the bus started the program for waits already; this is for a start without one.
constexpr std::chrono::seconds firstCallLimit{10};

} // namespace

ApplicationOnDemand::ApplicationOnDemand(InstanceService& instance, const QDBusConnection& bus)
    : instance_(instance), bus_(bus) {
    connect(&instance_, &InstanceService::opened, this, &ApplicationOnDemand::open);
    connect(&instance_, &InstanceService::activated, this, &ApplicationOnDemand::activate);
}

void ApplicationOnDemand::endWhenNotNeeded() {
    connect(&instance_, &InstanceService::performed, this, &ApplicationOnDemand::endIfNotNeeded);
    connect(&firstCallTimer_, &QTimer::timeout, this, &ApplicationOnDemand::endIfNotNeeded);
    firstCallTimer_.setSingleShot(true);
    firstCallTimer_.start(firstCallLimit);
}

void ApplicationOnDemand::open(const QUrl& url) {
    application().open(url);
}

bool ApplicationOnDemand::activate(const QString& token) {
    const bool wasShown = std::exchange(isShown_, true);
    if (!wasShown && !application().show()) {
        QCoreApplication::exit(EXIT_FAILURE);
        return false;
    }
    if (wasShown || !token.isEmpty()) {
        application().raise(token);
    }
    return true;
}

QuillmereMacApp& ApplicationOnDemand::application() {
    if (!application_) {
        application_.emplace(bus_);
    }
    return *application_;
}

void ApplicationOnDemand::endIfNotNeeded() {
    if (isNeeded()) {
        return;
    }
    instance_.release();
    if (!isNeeded()) {
        QCoreApplication::quit();
    } else {
        // A call came between; whether this is still the first makes no difference to it.
        static_cast<void>(instance_.claim());
    }
}

bool ApplicationOnDemand::isNeeded() const {
    return application_ || instance_.isPerforming();
}

} // namespace quillmere
