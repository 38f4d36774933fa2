#include "Quillmere/actions/BusNames.h"
#include "Quillmere/app/Application.h"
#include "Quillmere/app/ApplicationOnDemand.h"
#include "Quillmere/app/InstanceService.h"
#include "Quillmere/app/StartRequest.h"
#include "Quillmere/app/Version.h"

#include <QtCore/QCommandLineParser>
#include <QtDBus/QDBusConnection>
#include <QtQuickControls2/QQuickStyle>

#include <cstdlib>

namespace {

using quillmere::InstanceService;
using quillmere::StartRequest;

QList<QUrl> urlsOf(const QStringList& arguments) {
    QList<QUrl> urls;
    for (const QString& argument : arguments) {
        urls.append(QUrl(argument));
    }
    return urls;
}

struct CommandLine {
    QList<QUrl> urls;
    /// The bus started the program: it does what it is called for and shows nothing by itself.
    bool isService = false;
};

CommandLine parseCommandLine(const QGuiApplication& application) {
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("A manual time bank"));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption service(
        QStringLiteral("service"),
        QStringLiteral("Show nothing until called on the session bus; how the bus starts it."));
    parser.addOption(service);
    parser.addPositionalArgument(QStringLiteral("urls"),
                                 QStringLiteral("quillmere:// links to open"),
                                 QStringLiteral("[urls…]"));
    parser.process(application);
    return {urlsOf(parser.positionalArguments()), parser.isSet(service)};
}

int handOver(InstanceService& instance, const CommandLine& line, const StartRequest& request) {
    return line.isService || instance.handOver(line.urls, request) ? EXIT_SUCCESS : EXIT_FAILURE;
}

} // namespace

int main(int argc, char** argv) {
    const auto request = StartRequest::ofEnvironment();
    QGuiApplication::setApplicationName(QStringLiteral("Quillmere"));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Quillmere"));
    QGuiApplication::setApplicationVersion(QString::fromUtf8(quillmere::versionText));
    QGuiApplication::setDesktopFileName(QLatin1String(quillmere::BusNames::application));
    QQuickStyle::setStyle(QStringLiteral("Basic"));
    const quillmere::Application application(argc, argv);
    const CommandLine line = parseCommandLine(application);

    const QDBusConnection bus = QDBusConnection::sessionBus();
    InstanceService instance(bus);
    const InstanceService::Claim claim = instance.claim();
    if (claim == InstanceService::Claim::second) {
        return handOver(instance, line, request);
    }

    quillmere::ApplicationOnDemand demand(instance, bus);
    if (line.isService && claim == InstanceService::Claim::first) {
        demand.endWhenNotNeeded();
    } else {
        for (const QUrl& url : line.urls) {
            demand.open(url);
        }
        if (!demand.activate(QString())) {
            return EXIT_FAILURE;
        }
    }
    return QGuiApplication::exec();
}
