// The program itself, until its first frame with the balance that the first argument spells out.

#include "Quillmere/app/QuillmereMacApp.h"
#include "Quillmere/dashboard/BalanceSummary.h"
#include "benchmarks/app/FirstFrame.h"

#include <QtDBus/QDBusConnection>
#include <QtGui/QGuiApplication>
#include <QtQuick/QQuickItem>
#include <QtQuick/QQuickWindow>
#include <QtQuickControls2/QQuickStyle>
#include <QtWidgets/QApplication>

#include <cstdlib>

namespace {

const QQuickItem* itemNamed(const QQuickItem& root, const QString& name) {
    if (root.objectName() == name) {
        return &root;
    }
    for (const QQuickItem* child : root.childItems()) {
        if (const QQuickItem* found = itemNamed(*child, name)) {
            return found;
        }
    }
    return nullptr;
}

QString shownBalance(const QQuickWindow& window) {
    const QQuickItem* card = itemNamed(*window.contentItem(), QStringLiteral("balance.summary"));
    return card != nullptr ? card->property("summary").value<quillmere::BalanceSummary>().text
                           : QString();
}

} // namespace

int main(int argc, char** argv) {
    QQuickStyle::setStyle(QStringLiteral("Basic"));
    const QApplication application(argc, argv);
    const QString balance = QApplication::arguments().value(1);
    quillmere::QuillmereMacApp app(QDBusConnection::sessionBus());
    if (!app.show()) {
        return EXIT_FAILURE;
    }
    auto* window = qobject_cast<QQuickWindow*>(QGuiApplication::topLevelWindows().value(0));
    new quillmere::FirstFrame(*window, [&] { return shownBalance(*window) == balance; });
    return QGuiApplication::exec();
}
