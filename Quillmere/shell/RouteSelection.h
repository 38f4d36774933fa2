#pragma once

#include "Platform/preferences/Preferences.h"
#include "QuillmereKit/navigation/AppRoute.h"

#include <QtCore/QObject>
#include <QtCore/QUrl>

#include <string>

namespace quillmere {

/// Which of the four routes the main window shows, kept under "main.selectedRoute". One per process,
/// main thread.
class RouteSelection : public QObject {
    Q_OBJECT

public:
    /// `preferences` is the standard domain and must outlive the object.
    explicit RouteSelection(platform::Preferences& preferences, QObject* parent = nullptr);

    /// `overview` when what is stored names no route.
    [[nodiscard]] AppRoute selected() const;
    /// A choice that cannot be stored still holds until the program ends.
    void select(AppRoute route);

public slots:
    /// Takes a deep link. One that names no route changes nothing.
    void open(const QUrl& url);

signals:
    void selectedChanged();

private:
    platform::Preferences& preferences_;
    AppRoute selected_;
};

} // namespace quillmere
