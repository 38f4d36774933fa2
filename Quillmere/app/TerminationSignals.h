#pragma once

#include "Platform/base/UniqueFd.h"

#include <QtCore/QObject>
#include <QtCore/QSocketNotifier>

namespace quillmere {

/// Lets the program end in order when the system asks it to (SIGTERM, SIGINT, SIGHUP): what has a
/// place elsewhere, in the tray and on the bus, is taken back. One per process, main thread.
class TerminationSignals : public QObject {
    Q_OBJECT

public:
    explicit TerminationSignals(QObject* parent = nullptr);
    ~TerminationSignals() override;

private:
    platform::UniqueFd event_;
    QSocketNotifier notifier_;
};

} // namespace quillmere
