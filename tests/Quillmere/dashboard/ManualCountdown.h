#pragma once

#include "Quillmere/shell/Countdown.h"

#include <optional>

namespace quillmere {

/// A countdown whose time passes when the test says so.
class ManualCountdown final : public Countdown {
public:
    void start(std::chrono::milliseconds length) override { left_ = length; }
    void cancel() override { left_.reset(); }

    void advance(std::chrono::milliseconds passed) {
        if (left_ && (*left_ -= passed) <= std::chrono::milliseconds(0)) {
            left_.reset();
            emit finished();
        }
    }

private:
    std::optional<std::chrono::milliseconds> left_;
};

} // namespace quillmere
