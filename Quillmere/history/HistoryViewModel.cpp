#include "Quillmere/history/HistoryViewModel.h"

#include "Platform/store/Context.h"
#include "Platform/store/Store.h"
#include "Quillmere/shell/AppState.h"
#include "Quillmere/shell/StoreSession.h"
#include "Quillmere/shell/TimeFollower.h"

#include <utility>

namespace quillmere {

namespace {

using platform::store::Context;
using platform::store::RowRef;
using platform::store::Store;
using platform::store::StoreError;

void reportUndeleted(AppState& appState, const std::exception& error, std::size_t count) {
    appState.report(error,
                    count == 1 ? HistoryViewModel::tr("Couldn't delete the item")
                               : HistoryViewModel::tr("Couldn't delete the items"),
                    HistoryViewModel::tr("Nothing was deleted. Please try again."));
}

void remove(Context& context, const std::vector<RowRef>& refs) {
    for (const RowRef ref : refs) {
        if (auto* adjustment = context.find<BalanceAdjustment>(ref)) {
            context.remove(*adjustment);
        }
    }
    context.save();
}

} // namespace

HistoryViewModel::HistoryViewModel(StoreSession& session, AppState& appState, PersistenceMode mode,
                                   QObject* parent)
    : QObject(parent), session_(session), appState_(appState), mode_(mode), items_(session) {
    connect(&session, &StoreSession::adjustmentsChanged, this, &HistoryViewModel::contentChanged);
}

HistoryViewModel::~HistoryViewModel() = default;

bool HistoryViewModel::isLoading() const {
    return session_.isLoading();
}

bool HistoryViewModel::isEmpty() const {
    return !isLoading() && items_.rowCount() == 0;
}

QString HistoryViewModel::deletionTitle() const {
    return pendingDeletion_.size() == 1 ? tr("Delete this time-bank change?")
                                        : tr("Delete %1 items?").arg(pendingDeletion_.size());
}

QString HistoryViewModel::deletionMessage() const {
    return mode_ == PersistenceMode::iCloud
               ? tr("This deletion syncs to your other devices and can't be undone.")
               : tr("This deletion can't be undone.");
}

QString HistoryViewModel::deleteTitle() const {
    return pendingDeletion_.size() == 1 ? tr("Delete item") : tr("Delete items");
}

void HistoryViewModel::open(int row) {
    if (editor_) {
        return;
    }
    items_.clearSelection();
    try {
        if (BalanceAdjustment* adjustment = items_.adjustment(row)) {
            editor_ = std::make_unique<AdjustmentEditorViewModel>(session_, appState_, adjustment);
            emit editorChanged();
        }
    } catch (const StoreError&) {
        // The session tells of a store that cannot be read; there is nothing to open.
    }
}

// The form may be closing from within its own save.
void HistoryViewModel::closeEditor() {
    if (auto closed = std::exchange(editor_, nullptr)) {
        emit editorChanged();
        closed.release()->deleteLater();
    }
}

void HistoryViewModel::requestDeletion(int row) {
    if (!isDeletionPending() && row < items_.rowCount()) {
        setPendingDeletion({items_.ref(row)});
    }
}

void HistoryViewModel::requestDeletionOfSelection(int row) {
    if (items_.selectedCount() == 0) {
        requestDeletion(row);
    } else if (!isDeletionPending()) {
        setPendingDeletion(items_.selectedRefs());
    }
}

void HistoryViewModel::dismissDeletion() {
    setPendingDeletion({});
}

void HistoryViewModel::confirmDeletion() {
    Refs refs = std::exchange(pendingDeletion_, {});
    emit pendingDeletionChanged();
    if (refs.size() == 1) {
        deleteOne(refs.front());
    } else if (!refs.empty()) {
        deleteSeveral(std::move(refs));
    }
}

void HistoryViewModel::setPendingDeletion(Refs refs) {
    if (pendingDeletion_ != refs) {
        pendingDeletion_ = std::move(refs);
        emit pendingDeletionChanged();
    }
}

void HistoryViewModel::deleteOne(RowRef ref) {
    try {
        remove(session_.context(), {ref});
    } catch (const std::exception& error) {
        session_.context().rollback();
        reportUndeleted(appState_, error, 1);
    }
}

// In a context of its own, so that the list hears of all of them at once.
void HistoryViewModel::deleteSeveral(Refs refs) {
    const std::size_t count = refs.size();
    auto work = [store = session_.context().store().shared_from_this(), &time = session_.time(),
                 refs = std::move(refs)] {
        remove(*store->makeContext({time.clock(), time}), refs);
    };
    const auto done = [&appState = appState_, count](const std::exception* problem) {
        if (problem) {
            reportUndeleted(appState, *problem, count);
        }
    };
    const QString title = tr("Deleting %1 items…").arg(count);
    appState_.work()->start(BackgroundWork::Kind::writing, title, std::move(work), done);
}

} // namespace quillmere
