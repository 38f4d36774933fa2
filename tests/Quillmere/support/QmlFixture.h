#pragma once

#include <QtCore/QObject>

#include <memory>

namespace quillmere {

/// Every program of Qt Quick Tests defines it: the object that its QML files know as `Fixture`.
[[nodiscard]] std::unique_ptr<QObject> makeFixture();

} // namespace quillmere
