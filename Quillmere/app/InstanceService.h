#pragma once

#include "Quillmere/app/StartRequest.h"

#include <QtCore/QObject>
#include <QtCore/QStringList>
#include <QtCore/QUrl>
#include <QtCore/QVariant>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusContext>

class QDBusPendingCall;

namespace quillmere {

/// Makes the program the only one of its user's session: it owns the bus name
/// `dev.vantor.quillmere` and answers org.freedesktop.Application (the Desktop Entry format 1.5,
/// "D-Bus Activation") on /dev/vantor/quillmere. Main thread.
class InstanceService : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    explicit InstanceService(QDBusConnection bus, QObject* parent = nullptr);

    enum class Claim {
        first,  ///< this program is the one; calls of others arrive as signals
        second, ///< another program has the name
        alone,  ///< there is no bus to ask
    };
    [[nodiscard]] Claim claim();

    /// Gives the name up again: the bus starts the program anew for calls that come later. Those
    /// that came before have been delivered when this returns.
    void release();

    /// Asks the first program to open the links, or to come forward when there are none, on behalf
    /// of the request that this program was started with. False when it did not answer.
    [[nodiscard]] bool handOver(const QList<QUrl>& urls, const StartRequest& request);

    /// Whether an action is being performed.
    [[nodiscard]] bool isPerforming() const { return performing_ > 0; }

public slots:
    Q_SCRIPTABLE void Activate(const QVariantMap& platformData);
    Q_SCRIPTABLE void Open(const QStringList& uris, const QVariantMap& platformData);
    /// The actions are the shortcuts, which the action program performs. Answers as it does, and
    /// brings nothing forward.
    Q_SCRIPTABLE void ActivateAction(const QString& name, const QVariantList& parameter,
                                     const QVariantMap& platformData);

signals:
    /// Come forward. `token` is the desktop's permission to do so (xdg-activation), often empty.
    void activated(const QString& token);
    void opened(const QUrl& url);
    /// An action has been performed, or has failed, and its caller has the answer.
    void performed();

private:
    void answerWhenPerformed(const QDBusPendingCall& call);

    QDBusConnection bus_;
    int performing_ = 0;
};

} // namespace quillmere
