#pragma once

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QTimer>
#include <QtQml/qqmlregistration.h>

#include <deque>
#include <exception>
#include <functional>
#include <thread>

namespace quillmere {

/// Long work on worker threads, one piece after the other, and what the windows show of it. Part of
/// `AppState`; main thread.
///
/// A piece of work that uses the store opens a context of its own; the screens' context learns of
/// its commit like of any other. It takes with it what it needs, for whoever started it may be gone
/// before it ends.
class BackgroundWork : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the application's state")
    /// What is under way, in words; empty when nothing is.
    Q_PROPERTY(QString title READ title NOTIFY changed)
    /// The work, or work that waits, writes records: until it ends, every window holds the user's
    /// input back.
    Q_PROPERTY(bool isHoldingInput READ isHoldingInput NOTIFY changed)
    /// The work has taken half a second: every window shows that it is under way.
    Q_PROPERTY(bool isShown READ isShown NOTIFY changed)

public:
    enum class Kind {
        reading, ///< leaves the records alone
        writing,
    };

    explicit BackgroundWork(QObject* parent = nullptr);
    /// Waits for all work, whose `done` is then not called.
    ~BackgroundWork() override;

    /// Called on the main thread when work has ended: with what it has thrown, or null. What a
    /// commit of the work changes has reached the screens by then.
    using Done = std::function<void(const std::exception* problem)>;

    /// Runs `work` on a worker, once all that was started before has ended.
    void start(Kind kind, const QString& title, std::function<void()> work, Done done);

    [[nodiscard]] QString title() const;
    [[nodiscard]] bool isRunning() const { return !pieces_.empty(); }
    [[nodiscard]] bool isHoldingInput() const;
    [[nodiscard]] bool isShown() const { return isShown_; }

signals:
    void changed();

private:
    struct Piece {
        Kind kind;
        QString title;
    };

    void show();
    void finish(const Done& done, const std::exception_ptr& problem);

    std::deque<Piece> pieces_; ///< under way, and behind it what waits
    bool isShown_ = false;
    QTimer showing_;
    std::jthread worker_;
};

} // namespace quillmere
