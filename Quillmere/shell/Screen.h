#pragma once

#include <QtCore/QObject>
#include <QtCore/QUrl>

#include <functional>
#include <memory>

namespace quillmere {

/// How a route's screen is made: the QML type that draws it, which has one required property
/// `model`, and the view model to give it. A screen leads to another route by opening its link,
/// `Qt.openUrlExternally(url)` with the `quillmere://` URL, which the main window receives like any
/// other deep link.
struct Screen {
    QUrl view;
    std::function<std::unique_ptr<QObject>()> makeModel;
};

} // namespace quillmere
