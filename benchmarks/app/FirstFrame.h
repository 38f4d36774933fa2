#pragma once

#include <QtCore/QObject>

#include <functional>

class QQuickWindow;

namespace quillmere {

/// Prints how long after the start of the process a window showed its first frame that counts, how
/// much memory the process then holds, and how long processors have worked for it on all threads
/// ("MILLISECONDS KIBIBYTES MILLISECONDS"), and ends the program.
/// The start is what QUILLMERE_BENCH_STARTED says, nanoseconds of the steady clock.
class FirstFrame : public QObject {
public:
    /// `counts` is asked while a frame is being put together, on the thread that renders, with the
    /// main thread waiting.
    FirstFrame(QQuickWindow& window, std::function<bool()> counts);

private:
    void onSwapped();

    std::function<bool()> counts_;
    bool frameCounts_ = false;
    bool done_ = false;
};

} // namespace quillmere
