#pragma once

#include "Platform/calendar/DateText.h"
#include "Quillmere/history/HistorySections.h"
#include "QuillmereKit/records/BalanceAdjustment.h"

#include <QtCore/QAbstractListModel>
#include <QtQml/qqmlregistration.h>

#include <vector>

namespace quillmere {

class StoreSession;

/// Every listed change, grouped by day, and which of them are selected. Follows the session's live
/// query, the zone and the clock; empty while the history is being read. Main thread.
///
/// Roles: `transaction` (`LedgerTransaction`), `spoken` (all of the row in words), `dayTitle` (the
/// row's day), `firstOfDay`, `lastOfDay`, `selected`.
class HistoryListModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("part of the screen's view model")
    Q_PROPERTY(int selectedCount READ selectedCount NOTIFY selectionChanged)

public:
    enum Role {
        TransactionRole = Qt::UserRole,
        SpokenRole,
        DayTitleRole,
        FirstOfDayRole,
        LastOfDayRole,
        SelectedRole,
    };

    /// The session must outlive the object.
    explicit HistoryListModel(StoreSession& session, QObject* parent = nullptr);

    /// The change of a row; null when it has just been deleted elsewhere. Throws `StoreError`.
    [[nodiscard]] BalanceAdjustment* adjustment(int row) const;
    [[nodiscard]] platform::store::RowRef ref(int row) const;

    [[nodiscard]] int selectedCount() const { return selectedCount_; }
    /// The selected rows' changes, in their order.
    [[nodiscard]] std::vector<platform::store::RowRef> selectedRefs() const;

    /// Selects a row, or no longer; later ranges reach from it.
    Q_INVOKABLE void toggle(int row);
    /// Selects the rows from the one last toggled, or from `origin` when none was, to `row`, and
    /// nothing else.
    Q_INVOKABLE void selectTo(int row, int origin);
    Q_INVOKABLE void selectAll();
    Q_INVOKABLE void clearSelection();

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

signals:
    void selectionChanged();

private:
    struct Entry {
        HistorySections::Row row;
        bool isSelected = false;
    };

    void onChangesPublished(const platform::store::ListSteps& steps);
    void onTimeChanged();
    void reset();
    void apply(const platform::store::ListStep& step);
    void remove(const platform::store::ListStep& step);
    void insert(const platform::store::ListStep& step);
    void select(int first, int last);
    [[nodiscard]] bool isFirstOfDay(std::size_t row) const;
    [[nodiscard]] bool isLastOfDay(std::size_t row) const;
    [[nodiscard]] QVariant recordData(int row, int role) const;
    [[nodiscard]] HistorySections sections() const;
    void emitNeighboursChanged(std::size_t first, std::size_t end);
    void emitChanged(std::size_t first, std::size_t end, const QList<int>& roles = {});

    StoreSession& session_;
    platform::Calendar calendar_;
    platform::DateText dates_;
    HistorySections sections_;
    std::vector<Entry> entries_;
    int selectedCount_ = 0;
    int anchor_ = -1; ///< row from which a range of the selection reaches; −1 for none
};

} // namespace quillmere
