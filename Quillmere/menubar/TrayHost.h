#pragma once

#include "Quillmere/menubar/TrayEmbedder.h"
#include "Quillmere/menubar/TrayNotifierHost.h"

#include <QtCore/QObject>

namespace quillmere {

/// Whether the desktop has a tray that would show an item now. Qt decides once a process how it
/// talks to trays, by what is there when the first item is made; so does this. A status notifier
/// host goes before a tray that embeds, which on desktops with both is there for old programs
/// only. Main thread.
class TrayHost : public QObject {
    Q_OBJECT

public:
    explicit TrayHost(const QDBusConnection& bus, QObject* parent = nullptr);

    /// False also before the desktop has answered.
    [[nodiscard]] bool isPresent() const { return isPresent_; }

signals:
    void changed();

private:
    enum class Kind { undecided, notifier, embedder };

    void decide();
    [[nodiscard]] Kind present() const;

    TrayNotifierHost notifier_;
    TrayEmbedder embedder_;
    Kind kind_ = Kind::undecided;
    bool isPresent_ = false;
};

} // namespace quillmere
