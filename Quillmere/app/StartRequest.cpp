#include "Quillmere/app/StartRequest.h"

namespace quillmere {

namespace {

const QString tokenKey = QStringLiteral("activation-token");
const QString startupKey = QStringLiteral("desktop-startup-id");

void take(QVariantMap& data, const QString& key, const char* variable) {
    if (const QString value = qEnvironmentVariable(variable); !value.isEmpty()) {
        data.insert(key, value);
    }
}

} // namespace

StartRequest StartRequest::ofEnvironment() {
    StartRequest request;
    take(request.platformData, tokenKey, "XDG_ACTIVATION_TOKEN");
    take(request.platformData, startupKey, "DESKTOP_STARTUP_ID");
    return request;
}

QString activationToken(const QVariantMap& platformData) {
    return platformData.value(tokenKey, platformData.value(startupKey)).toString();
}

} // namespace quillmere
