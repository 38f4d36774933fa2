#include "Quillmere/menubar/TrayHost.h"

#include <utility>

namespace quillmere {

TrayHost::TrayHost(const QDBusConnection& bus, QObject* parent) : QObject(parent), notifier_(bus) {
    connect(&notifier_, &TrayNotifierHost::changed, this, &TrayHost::decide);
    connect(&embedder_, &TrayEmbedder::changed, this, &TrayHost::decide);
}

void TrayHost::decide() {
    if (kind_ == Kind::undecided) {
        kind_ = present();
    }
    const bool isPresent = kind_ == Kind::notifier   ? notifier_.isPresent()
                           : kind_ == Kind::embedder ? embedder_.isPresent()
                                                     : false;
    if (std::exchange(isPresent_, isPresent) != isPresent) {
        emit changed();
    }
}

TrayHost::Kind TrayHost::present() const {
    if (notifier_.isPresent()) {
        return Kind::notifier;
    }
    const bool noHostWillCome = notifier_.isKnown() && !notifier_.isExpected();
    return noHostWillCome && embedder_.isPresent() ? Kind::embedder : Kind::undecided;
}

} // namespace quillmere
