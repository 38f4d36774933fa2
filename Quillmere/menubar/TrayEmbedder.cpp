#include "Quillmere/menubar/TrayEmbedder.h"

#include <QtGui/QGuiApplication>

#include <cstdlib>
#include <cstring>
#include <memory>
#include <utility>

namespace quillmere {

namespace {

struct Free {
    void operator()(void* reply) const { std::free(reply); }
};

template <typename Reply>
std::unique_ptr<Reply, Free> owned(Reply* reply) {
    return std::unique_ptr<Reply, Free>(reply);
}

constexpr std::uint8_t sentBit = 0x80; // of an event's type, when a program sent it
constexpr int selectionField = 1;      // of a MANAGER message

} // namespace

TrayEmbedder::TrayEmbedder(QObject* parent) : QObject(parent) {
    if (const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>()) {
        display_ = x11->connection();
        manager_ = atom("MANAGER");
        selection_ = atom("_NET_SYSTEM_TRAY_S0");
        qGuiApp->installNativeEventFilter(this);
        look();
    }
}

TrayEmbedder::~TrayEmbedder() {
    if (display_ != nullptr) {
        qGuiApp->removeNativeEventFilter(this);
    }
}

// Qt listens at the root window for managers that announce themselves.
bool TrayEmbedder::nativeEventFilter(const QByteArray& eventType, void* message,
                                     qintptr* /*result*/) {
    if (eventType != "xcb_generic_event_t") {
        return false;
    }
    const auto* event = static_cast<const xcb_generic_event_t*>(message);
    const int type = event->response_type & ~sentBit;
    if (type == XCB_CLIENT_MESSAGE) {
        const auto* sent = static_cast<const xcb_client_message_event_t*>(message);
        if (sent->type == manager_ && sent->data.data32[selectionField] == selection_) {
            look();
        }
    } else if (type == XCB_DESTROY_NOTIFY &&
               static_cast<const xcb_destroy_notify_event_t*>(message)->window == tray_) {
        look();
    }
    return false;
}

void TrayEmbedder::look() {
    const xcb_window_t tray = selectionOwner();
    if (tray != XCB_WINDOW_NONE) {
        const std::uint32_t destruction = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
        xcb_change_window_attributes(display_, tray, XCB_CW_EVENT_MASK, &destruction);
    }
    if (std::exchange(tray_, tray) != tray) {
        emit changed();
    }
}

xcb_atom_t TrayEmbedder::atom(const char* name) const {
    const auto length = static_cast<std::uint16_t>(std::strlen(name));
    const auto reply = owned(
        xcb_intern_atom_reply(display_, xcb_intern_atom(display_, false, length, name), nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

xcb_window_t TrayEmbedder::selectionOwner() const {
    const auto reply = owned(xcb_get_selection_owner_reply(
        display_, xcb_get_selection_owner(display_, selection_), nullptr));
    return reply ? reply->owner : xcb_window_t{XCB_WINDOW_NONE};
}

} // namespace quillmere
