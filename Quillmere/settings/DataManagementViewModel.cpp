#include "Quillmere/settings/DataManagementViewModel.h"

#include "Platform/files/UserFolders.h"
#include "Platform/store/Context.h"
#include "Platform/store/Store.h"
#include "Quillmere/settings/ArchiveFile.h"
#include "Quillmere/settings/DataManagementTexts.h"
#include "Quillmere/shell/AppState.h"
#include "Quillmere/shell/AppStorageController.h"
#include "Quillmere/shell/StoreSession.h"
#include "Quillmere/shell/TimeFollower.h"
#include "QuillmereKit/archive/TimeBankArchiveExport.h"
#include "QuillmereKit/maintenance/DataStoreMaintenance.h"
#include "QuillmereKit/maintenance/StorePreparation.h"
#include "QuillmereKit/widget/WidgetSnapshotStore.h"

#include <QtCore/QFile>
#include <QtCore/QPointer>

#include <stdexcept>
#include <utility>

namespace quillmere {

namespace {

using platform::store::Context;

ExportedFile exportedFile(const TimeBankArchiveExport::File& file) {
    if (!file.importObstacle) {
        return {file.path, {}, {}};
    }
    return {file.path, DataManagementViewModel::tr("Quillmere can't import this archive"),
            DataManagementViewModel::tr("%1 You can keep it as a copy of your data, but it can't "
                                        "be merged back.")
                .arg(QString::fromStdString(*file.importObstacle))};
}

/// Has the repairs see many merged records here, so that the next screen need not. What fails is
/// left to that screen: the merge is done.
void lookThrough(Context& context) {
    try {
        StorePreparation::prepare(context);
    } catch (const platform::store::StoreError&) { // NOLINT(bugprone-empty-catch)
    }
}

void reportUnreadable(AppState& appState, const std::exception& error) {
    appState.report(
        error, DataManagementViewModel::tr("Couldn't read the archive"),
        DataManagementViewModel::tr("Choose a valid Quillmere JSON data archive up to 20 MB."));
}

void reportUnmerged(AppState& appState, const std::exception& error) {
    appState.report(error, DataManagementViewModel::tr("Couldn't import the archive"),
                    DataManagementViewModel::tr("The archive couldn't be fully imported. Reopen "
                                                "Quillmere before trying again."));
}

void reportUnerased(AppState& appState, const std::exception& error) {
    appState.report(error, DataManagementViewModel::tr("Couldn't erase your data"),
                    DataManagementViewModel::tr("No deletion was completed. Please try again."));
}

} // namespace

DataManagementViewModel::DataManagementViewModel(StoreSession& session, const Services& services,
                                                 QObject* parent)
    : QObject(parent),
      session_(session),
      services_(services),
      archiveShare_([this] { return prepareExport(); }, tr("Exporting your data…"),
                    services.appState) {
    connect(&services.storage, &AppStorageController::resultChanged, this,
            &DataManagementViewModel::modeChanged);
}

QString DataManagementViewModel::footer() const {
    return DataManagementTexts::footer(services_.storage.mode());
}

QString DataManagementViewModel::importTitle() const {
    return DataManagementTexts::importTitle(
        pendingArchiveImport_ ? std::optional(pendingArchiveImport_->archive->recordCount())
                              : std::nullopt);
}

QString DataManagementViewModel::importMessage() const {
    return DataManagementTexts::importMessage(services_.storage.mode());
}

QString DataManagementViewModel::noticeId() const {
    return importNotice_ ? importNotice_->id.toString() : QString();
}

QString DataManagementViewModel::noticeMessage() const {
    return importNotice_ ? importNotice_->message : QString();
}

QString DataManagementViewModel::eraseMessage() const {
    return DataManagementTexts::eraseMessage(services_.storage.mode());
}

std::function<void()> DataManagementViewModel::onStore(StoreWork work) const {
    const TimeFollower& time = session_.time();
    return [store = session_.context().store().shared_from_this(), &time, work = std::move(work)] {
        const auto context = store->makeContext({time.clock(), time});
        work(*context);
    };
}

FileShare::Write DataManagementViewModel::prepareExport() const {
    auto exported = std::make_shared<ExportedFile>();
    auto run = onStore(
        [exported, folder = services_.folders.temporary(temporaryFolderName)](Context& context) {
            *exported = exportedFile(TimeBankArchiveExport::ofStore(context).write(folder));
        });
    return [run = std::move(run), exported] {
        run();
        return *exported;
    };
}

void DataManagementViewModel::selectArchive() {
    setImporterShown(true);
}

void DataManagementViewModel::readArchive(const QList<QUrl>& files) {
    setImporterShown(false);
    if (files.isEmpty()) {
        return;
    }
    if (!files.first().isLocalFile()) {
        reportUnreadable(services_.appState, std::runtime_error("not a local file"));
        return;
    }
    auto archive = std::make_shared<TimeBankArchive>();
    const auto work = [archive, file = QFile::encodeName(files.first().toLocalFile())] {
        *archive = ArchiveFile::read(file.toStdString());
    };
    const auto done = [model = QPointer(this), &appState = services_.appState,
                       archive](const std::exception* problem) {
        if (problem) {
            reportUnreadable(appState, *problem);
        } else if (model) {
            model->setPending(PendingArchiveImport{archive});
        }
    };
    services_.appState.work()->start(BackgroundWork::Kind::reading, tr("Reading the archive…"),
                                     work, done);
}

void DataManagementViewModel::cancelImport() {
    setPending({});
}

void DataManagementViewModel::mergeArchive() {
    if (!pendingArchiveImport_) {
        return;
    }
    const auto archive = std::exchange(pendingArchiveImport_, {})->archive;
    emit importChanged();
    auto result = std::make_shared<TimeBankArchiveMergeResult>();
    auto work = onStore([archive, result](Context& context) {
        *result = archive->merge(context, context.clock().now());
        lookThrough(context);
    });
    const auto done = [model = QPointer(this), &appState = services_.appState,
                       result](const std::exception* problem) {
        if (problem) {
            reportUnmerged(appState, *problem);
        } else if (model) {
            model->setNotice(
                ArchiveImportNotice{.message = DataManagementTexts::importedMessage(*result)});
        }
    };
    services_.appState.work()->start(BackgroundWork::Kind::writing, tr("Importing the archive…"),
                                     std::move(work), done);
}

void DataManagementViewModel::dismissNotice() {
    setNotice({});
}

void DataManagementViewModel::askToErase() {
    setEraseShown(true);
}

void DataManagementViewModel::cancelErase() {
    setEraseShown(false);
}

void DataManagementViewModel::eraseAll() {
    setEraseShown(false);
    const auto done = [services = services_,
                       &clock = session_.time().clock()](const std::exception* problem) {
        if (problem) {
            reportUnerased(services.appState, *problem);
        } else {
            services.widgets.publish(WidgetSnapshot::empty(clock));
        }
    };
    services_.appState.work()->start(
        BackgroundWork::Kind::writing, tr("Erasing your data…"),
        onStore([](Context& context) { DataStoreMaintenance::eraseAll(context); }), done);
}

void DataManagementViewModel::setImporterShown(bool shown) {
    showingArchiveImporter_ = shown;
    emit importChanged();
}

void DataManagementViewModel::setPending(std::optional<PendingArchiveImport> pending) {
    pendingArchiveImport_ = std::move(pending);
    emit importChanged();
}

void DataManagementViewModel::setNotice(std::optional<ArchiveImportNotice> notice) {
    importNotice_ = std::move(notice);
    emit noticeChanged();
}

void DataManagementViewModel::setEraseShown(bool shown) {
    showingEraseConfirmation_ = shown;
    emit eraseChanged();
}

} // namespace quillmere
