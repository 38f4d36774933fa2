#pragma once

#include "QuillmereKit/archive/ArchiveProgress.h"

#include <cstddef>

namespace quillmere {

/// Counts the steps of one piece of work and tells of some of them.
class ArchiveProgressMeter {
public:
    /// `progress` must outlive the meter.
    ArchiveProgressMeter(const ArchiveProgress& progress, std::size_t total)
        : progress_(progress), total_(total) {
        report();
    }

    void step() {
        if (++done_ % stepsBetweenReports == 0 || done_ == total_) {
            report();
        }
    }

private:
    static constexpr std::size_t stepsBetweenReports = 1000;

    void report() const {
        if (progress_) {
            progress_(done_, total_);
        }
    }

    const ArchiveProgress& progress_;
    std::size_t total_;
    std::size_t done_ = 0;
};

} // namespace quillmere
