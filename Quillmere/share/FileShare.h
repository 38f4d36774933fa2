#pragma once

#include "Quillmere/share/ExportedFile.h"

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QUrl>
#include <QtQml/qqmlregistration.h>

#include <functional>
#include <memory>

class QFile;

namespace quillmere {

class AppState;

/// Hands an export to the user as a file: through a save dialog, or dragged out of its control.
/// `ShareButton` is that control; a view model owns the share and makes it a constant property.
/// Main thread.
///
/// Each export is written anew on a worker. A save goes on to a remark where there is one, then to
/// the choice of a place, then to the copy, which needs the written file no longer to have its
/// name: another export may clear it away meanwhile. A drag takes the written file itself. Every
/// step can fail; an issue then says so, and what was in the chosen place is as it was.
class FileShare : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by view models")
    Q_PROPERTY(Step step READ step NOTIFY stepChanged)
    /// Where a save dialog starts: the folder of the last save, else the user's documents, and the
    /// export's own name.
    Q_PROPERTY(QUrl suggestedFolder READ suggestedFolder NOTIFY stepChanged)
    Q_PROPERTY(QUrl suggestedTarget READ suggestedTarget NOTIFY stepChanged)
    /// Name of the file that waits in the chosen place.
    Q_PROPERTY(QString nameToReplace READ nameToReplace NOTIFY stepChanged)
    Q_PROPERTY(QString remarkTitle READ remarkTitle NOTIFY stepChanged)
    Q_PROPERTY(QString remark READ remark NOTIFY stepChanged)

public:
    enum Step {
        Idle,
        Writing,   ///< the export is being written
        Dragging,  ///< it may be dragged; `endDrag` goes on
        Remarking, ///< the user is told of the remark; `acceptRemark` goes on
        Choosing,  ///< the save dialog is open; `choose` and `cancel` go on
        Replacing, ///< a file is in the chosen place; `replace` and `cancel` go on
        Copying,   ///< the file is being put in its place
    };
    Q_ENUM(Step)

    /// Writes the export's file and answers where it is. Runs on a worker, once, and may throw.
    using Write = std::function<ExportedFile()>;
    /// Called on the main thread at the start of each export: gathers what is to be written, as it
    /// is now, and answers how. What it answers must not refer to objects of the main thread that
    /// could go meanwhile. May throw.
    using Prepare = std::function<Write()>;

    /// `title` says in words what is under way when writing takes long ("Exporting …").
    FileShare(Prepare prepare, QString title, AppState& appState, QObject* parent = nullptr);

    [[nodiscard]] Step step() const { return step_; }
    /// The written file, while the step is `Dragging`; else empty.
    [[nodiscard]] QUrl draggedFile() const;
    [[nodiscard]] QUrl suggestedFolder() const;
    [[nodiscard]] QUrl suggestedTarget() const;
    [[nodiscard]] QString nameToReplace() const { return QUrl(target_).fileName(); }
    [[nodiscard]] const QString& remarkTitle() const { return exported_.remarkTitle; }
    [[nodiscard]] const QString& remark() const { return exported_.remark; }

    /// Begins an export that goes through the save dialog. Does nothing unless idle.
    Q_INVOKABLE void save();
    /// Begins an export that is dragged out. Does nothing unless idle.
    void drag();
    /// The drag is over, wherever it led, or was given up before it began.
    void endDrag();
    Q_INVOKABLE void acceptRemark();
    /// The place chosen in the dialog: a local file, which gets the export's suffix when it has
    /// none. What follows the last dot is a suffix when it begins with a letter: "Week 47.2" has
    /// none.
    Q_INVOKABLE void choose(const QUrl& target);
    Q_INVOKABLE void replace();
    Q_INVOKABLE void cancel();

signals:
    void stepChanged();
    /// The file is where the user said.
    void saved(const QUrl& target);

private:
    struct Written {
        ExportedFile exported;
        std::shared_ptr<QFile> file;
    };

    void write(bool isForDrag);
    void onWritten(const Written& written);
    void copy();
    void onCopied();
    void go(Step step);

    Prepare prepare_;
    QString title_;
    AppState& appState_;
    Step step_ = Idle;
    bool isForDrag_ = false;
    bool isDragOver_ = false;
    ExportedFile exported_;
    std::shared_ptr<QFile> file_; ///< the written one, open
    QUrl target_;
    QUrl lastFolder_;
};

} // namespace quillmere
