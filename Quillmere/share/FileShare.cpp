#include "Quillmere/share/FileShare.h"

#include "Platform/files/ExportFile.h"
#include "Platform/files/Files.h"
#include "Quillmere/share/ShareIssue.h"
#include "Quillmere/shell/AppState.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QPointer>
#include <QtCore/QStandardPaths>

#include <limits>
#include <memory>
#include <stdexcept>
#include <utility>

namespace quillmere {

namespace {

namespace fs = std::filesystem;

QString textOf(const fs::path& path) {
    return QFile::decodeName(QByteArray::fromStdString(path.native()));
}

fs::path pathOf(const QUrl& url) {
    return QFile::encodeName(url.toLocalFile()).toStdString();
}

/// Empty for what is none. Qt 6.4's own dialog leaves the scheme away from a path that was typed.
QUrl localFile(const QUrl& url) {
    const QString path = url.scheme().isEmpty() ? url.path() : url.toLocalFile();
    return QDir::isAbsolutePath(path) ? QUrl::fromLocalFile(path) : QUrl();
}

QUrl withSuffix(const QUrl& file, const fs::path& exported) {
    const QString path = file.toLocalFile();
    const QString suffix = QFileInfo(path).suffix();
    const bool isComplete = path.isEmpty() || (!suffix.isEmpty() && suffix.front().isLetter());
    return isComplete ? file : QUrl::fromLocalFile(path + textOf(exported.extension()));
}

std::shared_ptr<QFile> opened(const fs::path& path) {
    auto file = std::make_shared<QFile>(textOf(path));
    if (!file->open(QIODevice::ReadOnly)) {
        throw std::runtime_error("open the export: " + file->errorString().toStdString());
    }
    return file;
}

void putCopy(const QFile& file, const fs::path& target) {
    platform::saveForUser(target, platform::readFile(file.handle(), target,
                                                     std::numeric_limits<std::size_t>::max() / 2));
}

} // namespace

FileShare::FileShare(Prepare prepare, QString title, AppState& appState, QObject* parent)
    : QObject(parent), prepare_(std::move(prepare)), title_(std::move(title)), appState_(appState) {
}

QUrl FileShare::draggedFile() const {
    return step_ == Dragging ? QUrl::fromLocalFile(textOf(exported_.path)) : QUrl();
}

QUrl FileShare::suggestedFolder() const {
    if (lastFolder_.isValid()) {
        return lastFolder_;
    }
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QUrl::fromLocalFile(QFileInfo(documents).isDir() ? documents : QDir::homePath());
}

QUrl FileShare::suggestedTarget() const {
    const QDir folder(suggestedFolder().toLocalFile());
    return QUrl::fromLocalFile(folder.filePath(textOf(exported_.path.filename())));
}

void FileShare::save() {
    write(false);
}

void FileShare::drag() {
    write(true);
}

void FileShare::write(bool isForDrag) {
    if (step_ != Idle) {
        return;
    }
    isForDrag_ = isForDrag;
    isDragOver_ = false;
    auto written = std::make_shared<Written>();
    std::function<void()> work;
    try {
        work = [written, write = prepare_()] {
            written->exported = write();
            written->file = opened(written->exported.path);
        };
    } catch (const std::exception& error) {
        ShareIssue::reportUnwritten(appState_, error);
        return;
    }
    const auto done = [share = QPointer(this), &appState = appState_,
                       written](const std::exception* problem) {
        if (problem) {
            ShareIssue::reportUnwritten(appState, *problem);
        }
        if (share) {
            problem ? share->go(Idle) : share->onWritten(*written);
        }
    };
    appState_.work()->start(BackgroundWork::Kind::reading, title_, std::move(work), done);
    go(Writing);
}

void FileShare::onWritten(const Written& written) {
    exported_ = written.exported;
    file_ = written.file;
    if (isForDrag_) {
        go(isDragOver_ ? Idle : Dragging);
    } else {
        go(exported_.remark.isEmpty() ? Choosing : Remarking);
    }
}

void FileShare::endDrag() {
    isDragOver_ = true;
    if (step_ == Dragging) {
        go(exported_.remark.isEmpty() ? Idle : Remarking);
    }
}

void FileShare::acceptRemark() {
    if (step_ == Remarking) {
        go(isForDrag_ ? Idle : Choosing);
    }
}

void FileShare::choose(const QUrl& target) {
    if (step_ != Choosing) {
        return;
    }
    target_ = withSuffix(localFile(target), exported_.path);
    if (target_.isEmpty()) {
        ShareIssue::reportUnsaved(appState_, std::runtime_error("not a local file"));
        go(Idle);
    } else if (const QFileInfo there(target_.toLocalFile()); there.exists() && !there.isDir()) {
        go(Replacing);
    } else {
        copy();
    }
}

void FileShare::replace() {
    if (step_ == Replacing) {
        copy();
    }
}

void FileShare::cancel() {
    if (step_ == Choosing || step_ == Replacing) {
        go(Idle);
    }
}

void FileShare::copy() {
    const auto done = [share = QPointer(this),
                       &appState = appState_](const std::exception* problem) {
        if (problem) {
            ShareIssue::reportUnsaved(appState, *problem);
        }
        if (share) {
            problem ? share->go(Idle) : share->onCopied();
        }
    };
    const auto work = [file = file_, target = pathOf(target_)] { putCopy(*file, target); };
    appState_.work()->start(BackgroundWork::Kind::reading, title_, work, done);
    go(Copying);
}

void FileShare::onCopied() {
    lastFolder_ = target_.adjusted(QUrl::RemoveFilename);
    go(Idle);
    emit saved(target_);
}

void FileShare::go(Step step) {
    step_ = step;
    if (step == Idle) {
        file_.reset();
    }
    emit stepChanged();
}

} // namespace quillmere
