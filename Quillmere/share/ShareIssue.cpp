#include "Quillmere/share/ShareIssue.h"

#include "Platform/files/FileError.h"
#include "Quillmere/shell/AppState.h"

#include <QtCore/QCoreApplication>

namespace quillmere::ShareIssue {

namespace {

using platform::FileError;

QString tr(const char* text) {
    return QCoreApplication::translate("ShareIssue", text);
}

bool isOfKind(const std::exception& error, FileError::Kind kind) {
    const auto* failure = dynamic_cast<const FileError*>(&error);
    return failure != nullptr && failure->kind() == kind;
}

QString unsavedMessage(const std::exception& error) {
    if (isOfKind(error, FileError::Kind::diskFull)) {
        return tr("There isn't enough space in the place you chose. Nothing there was changed.");
    }
    if (isOfKind(error, FileError::Kind::noPermission)) {
        return tr("The place you chose can't be written to. Nothing there was changed.");
    }
    return tr("The file couldn't be written to the place you chose. Nothing there was changed.");
}

} // namespace

void reportUnwritten(AppState& appState, const std::exception& error) {
    const bool isFull = isOfKind(error, FileError::Kind::diskFull);
    appState.report(error, tr("Couldn't prepare the export"),
                    isFull
                        ? tr("There isn't enough space for temporary files. Nothing was exported.")
                        : tr("Nothing was exported. Please try again."));
}

void reportUnsaved(AppState& appState, const std::exception& error) {
    appState.report(error, tr("Couldn't save the export"), unsavedMessage(error));
}

} // namespace quillmere::ShareIssue
