#pragma once

#include "Platform/preferences/Preferences.h"
#include "Quillmere/shell/DesktopSettings.h"

#include <QtCore/QObject>
#include <QtQml/qqmlregistration.h>

namespace quillmere {

/// The look in effect: the user's choice ("appearance"), else the desktop's. The root of each
/// window hands it to the theme. Main thread.
class AppearanceModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the application")
    Q_PROPERTY(bool dark READ dark NOTIFY changed)
    Q_PROPERTY(bool highContrast READ highContrast NOTIFY changed)
    Q_PROPERTY(bool reducedMotion READ reducedMotion NOTIFY changed)

public:
    /// Both must outlive the object.
    AppearanceModel(const platform::Preferences& preferences, const DesktopSettings& desktop,
                    QObject* parent = nullptr);

    [[nodiscard]] bool dark() const;
    [[nodiscard]] bool highContrast() const { return desktop_.look().highContrast; }
    [[nodiscard]] bool reducedMotion() const { return desktop_.look().reducedMotion; }

signals:
    void changed();

private:
    const platform::Preferences& preferences_;
    const DesktopSettings& desktop_;
};

} // namespace quillmere
