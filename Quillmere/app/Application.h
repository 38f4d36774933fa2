#pragma once

#include "Quillmere/app/KeyRepeat.h"

#include <QtWidgets/QApplication>

namespace quillmere {

/// The application as Qt knows it. A tray item needs one of Qt Widgets.
class Application : public QApplication {
public:
    using QApplication::QApplication;

    /// Before any event filter, because that of assistive technology delivers copies of the keys.
    bool notify(QObject* receiver, QEvent* event) override;

private:
    KeyRepeat keyRepeat_;
};

} // namespace quillmere
