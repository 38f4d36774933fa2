#include "tests/Quillmere/settings/SettingsFixture.h"

#include "tests/Quillmere/support/QmlFixture.h"

#include <QtQml/QQmlEngine>

namespace quillmere {

SettingsFixture::SettingsFixture() {
    opener_.failing = {"cloud"};
    storage_ =
        std::make_unique<AppStorageController>(container_, container_.make(), session().time());
}

SettingsFixture::~SettingsFixture() = default;

SettingsViewModel* SettingsFixture::open() {
    model_ = std::make_unique<SettingsViewModel>(
        session(), SettingsViewModel::Services{appState(),
                                               *storage_,
                                               follower_,
                                               loginItem_,
                                               folders_,
                                               {preferences(), widgets_},
                                               QStringLiteral("1.2 (45)")});
    QQmlEngine::setObjectOwnership(model_.get(), QQmlEngine::CppOwnership);
    return model_.get();
}

QString SettingsFixture::preference(const QString& key) {
    return QString::fromStdString(preferences().string(key.toStdString()).value_or(""));
}

std::unique_ptr<QObject> makeFixture() {
    return std::make_unique<SettingsFixture>();
}

} // namespace quillmere
