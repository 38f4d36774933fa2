#pragma once

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtQml/qqmlregistration.h>
#include <QtQuick/QQuickItem>
#include <QtQuick/QQuickWindow>

#include <memory>

namespace quillmere {

class DialogNameField;

/// Makes Qt's own file dialog fit for the keyboard and for assistive technology, to which it gives
/// nameless controls that cannot be pressed. One for each dialog. Main thread.
class DialogAccess : public QObject {
    Q_OBJECT
    QML_ELEMENT

public:
    explicit DialogAccess(QObject* parent = nullptr);
    ~DialogAccess() override;

    /// To be called when the dialog has opened over the window's content, with the Palette for it.
    /// Does nothing when that is the desktop's own.
    Q_INVOKABLE void open(QQuickWindow* window, QObject* palette);
    /// To be called when the dialog shows another folder.
    Q_INVOKABLE void follow();

private:
    void onRowsMade();
    void tendToAll();
    void tendNameField();

    QPointer<QQuickItem> popup_;
    QPointer<QObject> palette_;
    std::unique_ptr<DialogNameField> nameField_;
};

} // namespace quillmere
