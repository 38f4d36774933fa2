#pragma once

#include "Quillmere/shell/DesktopSettings.h"

#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusPendingCall>
#include <QtDBus/QDBusVariant>

namespace quillmere {

/// The desktop's wishes as the desktop portal tells them, now and whenever they change; where it
/// does not name a colour scheme, the lightness of the desktop's palette decides.
///
/// `QUILLMERE_REDUCED_MOTION` and `QUILLMERE_HIGH_CONTRAST` in the environment ("1" or "0") go
/// before what the desktop says.
class PortalDesktopSettings final : public DesktopSettings {
    Q_OBJECT

public:
    /// Asks the portal and returns at once. Without a connection there is only the palette.
    explicit PortalDesktopSettings(QDBusConnection bus, QObject* parent = nullptr);

    /// Waits until the portal has answered, or `firstAnswerMilliseconds` since construction are
    /// over, so that the first frame has the right colours. A later answer arrives as a change.
    void waitForFirstAnswer();

    [[nodiscard]] DesktopLook look() const override;

    static constexpr int firstAnswerMilliseconds = 150;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private slots:
    void onSettingChanged(const QString& space, const QString& key, const QDBusVariant& value);

private:
    [[nodiscard]] QDBusPendingCall readAll(int timeoutMilliseconds);
    void askAgain();
    void takeAnswer(const QDBusPendingCall& call);

    QDBusConnection bus_;
    DesktopLook portal_;
    QDBusPendingCall firstAnswer_;
};

} // namespace quillmere
