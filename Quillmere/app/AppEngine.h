#pragma once

#include <QtCore/QUrl>
#include <QtQml/QQmlComponent>
#include <QtQml/QQmlEngine>

#include <map>
#include <memory>

namespace quillmere {

/// The QML engine of the application's windows. It has a thread for reading, which begins with the
/// main window as soon as the engine is made: meanwhile the main thread makes what will be shown.
/// Main thread.
class AppEngine : public QQmlEngine {
public:
    AppEngine();

    /// Begins to read a file that will be wanted soon, and what it imports. Whoever wants it before
    /// it is there waits for the rest only.
    void readAhead(const QUrl& file);

private:
    std::map<QUrl, std::unique_ptr<QQmlComponent>> ahead_; ///< keep what nobody uses yet
};

} // namespace quillmere
