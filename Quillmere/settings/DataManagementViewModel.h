#pragma once

#include "Quillmere/settings/ArchiveImportNotice.h"
#include "Quillmere/settings/PendingArchiveImport.h"
#include "Quillmere/share/FileShare.h"
#include "QuillmereKit/widget/WidgetPublisher.h"

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QUrl>
#include <QtQml/qqmlregistration.h>

#include <functional>
#include <optional>

namespace platform {
class Preferences;
class UserFolders;
} // namespace platform

namespace platform::store {
class Context;
}

namespace quillmere {

class AppState;
class AppStorageController;
class StoreSession;

/// Exporting all data, merging an archive, and erasing everything. The work itself is done on a
/// worker (`BackgroundWork`) and goes on when the object is gone meanwhile; failures are reported
/// as issues in any case. Main thread.
class DataManagementViewModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(quillmere::FileShare* archiveShare READ archiveShare CONSTANT)
    Q_PROPERTY(QString footer READ footer NOTIFY modeChanged)
    /// The file dialog is open.
    Q_PROPERTY(bool showingArchiveImporter READ showingArchiveImporter NOTIFY importChanged)
    /// An archive was read and waits for the user's word.
    Q_PROPERTY(bool hasPendingImport READ hasPendingImport NOTIFY importChanged)
    Q_PROPERTY(QString importTitle READ importTitle NOTIFY importChanged)
    Q_PROPERTY(QString importMessage READ importMessage NOTIFY modeChanged)
    /// What the last import did; each notice has an identity of its own. Empty while there is none.
    Q_PROPERTY(QString noticeId READ noticeId NOTIFY noticeChanged)
    Q_PROPERTY(QString noticeMessage READ noticeMessage NOTIFY noticeChanged)
    Q_PROPERTY(bool showingEraseConfirmation READ showingEraseConfirmation NOTIFY eraseChanged)
    Q_PROPERTY(QString eraseMessage READ eraseMessage NOTIFY modeChanged)

public:
    /// What outlives every session.
    struct Services {
        AppState& appState;
        AppStorageController& storage;
        const platform::UserFolders& folders;
        WidgetPublisher widgets;
    };

    /// Everything given must outlive the object, the services its work as well.
    DataManagementViewModel(StoreSession& session, const Services& services,
                            QObject* parent = nullptr);

    [[nodiscard]] FileShare* archiveShare() { return &archiveShare_; }
    [[nodiscard]] QString footer() const;
    [[nodiscard]] bool showingArchiveImporter() const { return showingArchiveImporter_; }
    [[nodiscard]] bool hasPendingImport() const { return pendingArchiveImport_.has_value(); }
    [[nodiscard]] QString importTitle() const;
    [[nodiscard]] QString importMessage() const;
    [[nodiscard]] QString noticeId() const;
    [[nodiscard]] QString noticeMessage() const;
    [[nodiscard]] bool showingEraseConfirmation() const { return showingEraseConfirmation_; }
    [[nodiscard]] QString eraseMessage() const;

    Q_INVOKABLE void selectArchive();
    /// The dialog was closed. Reads the first of the files on a worker; with none, nothing happens.
    /// The archive is pending when it is valid, else an issue says that it is not.
    Q_INVOKABLE void readArchive(const QList<QUrl>& files);
    Q_INVOKABLE void cancelImport();
    /// Merges the pending archive, in one transaction; ends with a notice or an issue.
    Q_INVOKABLE void mergeArchive();
    Q_INVOKABLE void dismissNotice();

    Q_INVOKABLE void askToErase();
    Q_INVOKABLE void cancelErase();
    /// Deletes every record. The first-run screen follows, for there are no settings left.
    Q_INVOKABLE void eraseAll();

signals:
    void modeChanged();
    void importChanged();
    void noticeChanged();
    void eraseChanged();

private:
    /// Runs on a worker with a context of its own.
    using StoreWork = std::function<void(platform::store::Context&)>;
    [[nodiscard]] std::function<void()> onStore(StoreWork work) const;
    [[nodiscard]] FileShare::Write prepareExport() const;
    void setImporterShown(bool shown);
    void setPending(std::optional<PendingArchiveImport> pending);
    void setNotice(std::optional<ArchiveImportNotice> notice);
    void setEraseShown(bool shown);

    StoreSession& session_;
    Services services_;
    FileShare archiveShare_;
    bool showingArchiveImporter_ = false;
    std::optional<PendingArchiveImport> pendingArchiveImport_;
    std::optional<ArchiveImportNotice> importNotice_;
    bool showingEraseConfirmation_ = false;
};

} // namespace quillmere
