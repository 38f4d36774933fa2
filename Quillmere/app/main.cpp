#include "Quillmere/app/InstanceService.h"
#include "Quillmere/app/QuillmereMacApp.h"
#include "Quillmere/app/StartRequest.h"
#include "Quillmere/app/Version.h"

#include <QtCore/QCommandLineParser>
#include <QtDBus/QDBusConnection>
#include <QtGui/QGuiApplication>
#include <QtQuickControls2/QQuickStyle>

#include <cstdlib>

namespace {

QList<QUrl> urlsOf(const QStringList& arguments) {
    QList<QUrl> urls;
    for (const QString& argument : arguments) {
        urls.append(QUrl(argument));
    }
    return urls;
}

QList<QUrl> parseCommandLine(const QGuiApplication& application) {
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("A manual time bank"));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument(QStringLiteral("urls"),
                                 QStringLiteral("quillmere:// links to open"),
                                 QStringLiteral("[urls…]"));
    parser.process(application);
    return urlsOf(parser.positionalArguments());
}

} // namespace

int main(int argc, char** argv) {
    const auto request = quillmere::StartRequest::ofEnvironment();
    QGuiApplication::setApplicationName(QStringLiteral("quillmere"));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Quillmere"));
    QGuiApplication::setApplicationVersion(QString::fromUtf8(quillmere::versionText));
    QGuiApplication::setDesktopFileName(QStringLiteral("dev.vantor.quillmere"));
    QQuickStyle::setStyle(QStringLiteral("Basic"));
    const QGuiApplication application(argc, argv);
    const QList<QUrl> urls = parseCommandLine(application);

    const QDBusConnection bus = QDBusConnection::sessionBus();
    quillmere::InstanceService instance(bus);
    if (instance.claim() == quillmere::InstanceService::Claim::second) {
        return instance.handOver(urls, request) ? EXIT_SUCCESS : EXIT_FAILURE;
    }

    quillmere::QuillmereMacApp app(bus);
    QObject::connect(&instance, &quillmere::InstanceService::opened, &app,
                     &quillmere::QuillmereMacApp::open);
    QObject::connect(&instance, &quillmere::InstanceService::activated, &app,
                     &quillmere::QuillmereMacApp::raise);
    for (const QUrl& url : urls) {
        app.open(url);
    }
    return app.show() ? QGuiApplication::exec() : EXIT_FAILURE;
}
