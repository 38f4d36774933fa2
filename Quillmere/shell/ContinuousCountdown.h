#pragma once

#include "Platform/base/UniqueFd.h"
#include "Quillmere/shell/Countdown.h"

#include <QtCore/QSocketNotifier>

namespace quillmere {

/// Counts on the clock that no one sets and that goes on while the machine sleeps.
class ContinuousCountdown final : public Countdown {
    Q_OBJECT

public:
    explicit ContinuousCountdown(QObject* parent = nullptr);

    void start(std::chrono::milliseconds length) override;
    void cancel() override;

private:
    void onReadable();

    platform::UniqueFd timer_;
    QSocketNotifier notifier_;
};

} // namespace quillmere
