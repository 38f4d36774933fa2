#pragma once

#include <QtCore/QAbstractNativeEventFilter>
#include <QtCore/QObject>

#include <xcb/xcb.h>

namespace quillmere {

/// Whether there is a tray that takes windows in (freedesktop.org's System Tray Protocol 0.3), now
/// and whenever that changes. Small X11 panels know no other kind. Never elsewhere than on X11.
/// Main thread.
class TrayEmbedder : public QObject, public QAbstractNativeEventFilter {
    Q_OBJECT

public:
    explicit TrayEmbedder(QObject* parent = nullptr);
    ~TrayEmbedder() override;

    [[nodiscard]] bool isPresent() const { return tray_ != XCB_WINDOW_NONE; }

    bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result) override;

signals:
    void changed();

private:
    void look();
    [[nodiscard]] xcb_atom_t atom(const char* name) const;
    [[nodiscard]] xcb_window_t selectionOwner() const;

    xcb_connection_t* display_ = nullptr; ///< Qt's; null where there is no X11
    xcb_atom_t manager_ = XCB_ATOM_NONE;
    xcb_atom_t selection_ = XCB_ATOM_NONE;
    xcb_window_t tray_ = XCB_WINDOW_NONE;
};

} // namespace quillmere
