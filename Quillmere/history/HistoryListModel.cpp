#include "Quillmere/history/HistoryListModel.h"

#include "Platform/store/Context.h"
#include "Quillmere/dashboard/LedgerTransaction.h"
#include "Quillmere/shell/StoreSession.h"
#include "Quillmere/shell/TimeFollower.h"
#include "QuillmereKit/rules/DurationFormatting.h"

#include <algorithm>
#include <functional>
#include <span>
#include <utility>

namespace quillmere {

namespace {

using platform::store::ListStep;
using platform::store::ListSteps;
using platform::store::RowRef;

std::span<const LedgerRow> changesOf(StoreSession& session) {
    return session.isLoading() ? std::span<const LedgerRow>() : session.adjustments().rows();
}

QString spoken(const LedgerTransaction& transaction, std::int64_t minutes) {
    const std::string amount = DurationFormatting::accessible(static_cast<double>(minutes) * 60);
    return QStringList{transaction.title, transaction.dateText, QString::fromStdString(amount)}
        .join(QStringLiteral(", "));
}

} // namespace

HistoryListModel::HistoryListModel(StoreSession& session, QObject* parent)
    : QAbstractListModel(parent),
      session_(session),
      calendar_(session.time().current()),
      dates_(calendar_),
      sections_(sections()) {
    connect(&session, &StoreSession::adjustmentsChanged, this,
            &HistoryListModel::onChangesPublished);
    connect(&session.time(), &TimeFollower::changed, this, &HistoryListModel::onTimeChanged);
    reset();
}

BalanceAdjustment* HistoryListModel::adjustment(int row) const {
    return session_.context().find<BalanceAdjustment>(ref(row));
}

RowRef HistoryListModel::ref(int row) const {
    return entries_.at(static_cast<std::size_t>(row)).row.ref;
}

std::vector<RowRef> HistoryListModel::selectedRefs() const {
    std::vector<RowRef> refs;
    for (const Entry& entry : entries_) {
        if (entry.isSelected) {
            refs.push_back(entry.row.ref);
        }
    }
    return refs;
}

void HistoryListModel::toggle(int row) {
    Entry& entry = entries_.at(static_cast<std::size_t>(row));
    entry.isSelected = !entry.isSelected;
    selectedCount_ += entry.isSelected ? 1 : -1;
    anchor_ = row;
    emit dataChanged(index(row), index(row), {SelectedRole});
    emit selectionChanged();
}

void HistoryListModel::selectTo(int row, int origin) {
    if (anchor_ < 0) {
        anchor_ = origin;
    }
    select(std::min(row, anchor_), std::max(row, anchor_));
}

void HistoryListModel::selectAll() {
    select(0, rowCount() - 1);
}

void HistoryListModel::clearSelection() {
    anchor_ = -1;
    select(0, -1);
}

// Selects the rows from the first to the last and no others.
void HistoryListModel::select(int first, int last) {
    std::size_t firstChanged = entries_.size();
    std::size_t endOfChanged = 0;
    for (std::size_t i = 0; i < entries_.size(); ++i) {
        const int row = static_cast<int>(i);
        const bool isSelected = first <= row && row <= last;
        if (std::exchange(entries_[i].isSelected, isSelected) != isSelected) {
            selectedCount_ += isSelected ? 1 : -1;
            firstChanged = std::min(firstChanged, i);
            endOfChanged = i + 1;
        }
    }
    if (firstChanged < endOfChanged) {
        emitChanged(firstChanged, endOfChanged, {SelectedRole});
        emit selectionChanged();
    }
}

int HistoryListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(entries_.size());
}

QVariant HistoryListModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const auto row = static_cast<std::size_t>(index.row());
    switch (role) {
    case DayTitleRole:
        return QString::fromStdString(
            dates_.text(entries_[row].row.day, platform::DateStyle::sectionDay));
    case FirstOfDayRole:
        return isFirstOfDay(row);
    case LastOfDayRole:
        return isLastOfDay(row);
    case SelectedRole:
        return entries_[row].isSelected;
    default:
        return recordData(index.row(), role);
    }
}

// A row whose record cannot be read has no texts; the next publication tries again.
QVariant HistoryListModel::recordData(int row, int role) const {
    LedgerTransaction transaction;
    std::int64_t minutes = 0;
    try {
        if (const BalanceAdjustment* record = adjustment(row)) {
            transaction = LedgerTransaction::of(*record, dates_);
            minutes = record->minutes();
        }
    } catch (const platform::store::StoreError&) {
        minutes = 0;
    }
    switch (role) {
    case TransactionRole:
        return QVariant::fromValue(transaction);
    case SpokenRole:
        return spoken(transaction, minutes);
    default:
        return {};
    }
}

QHash<int, QByteArray> HistoryListModel::roleNames() const {
    return {{TransactionRole, "transaction"}, {SpokenRole, "spoken"},
            {DayTitleRole, "dayTitle"},       {FirstOfDayRole, "firstOfDay"},
            {LastOfDayRole, "lastOfDay"},     {SelectedRole, "selected"}};
}

// Empty steps mean that the whole list is new.
void HistoryListModel::onChangesPublished(const ListSteps& steps) {
    if (steps.empty()) {
        sections_ = sections();
        reset();
        return;
    }
    for (const ListStep& step : sections_.update(changesOf(session_), steps)) {
        apply(step);
    }
}

void HistoryListModel::onTimeChanged() {
    const platform::Calendar calendar = session_.time().current();
    if (calendar_ == calendar) {
        return;
    }
    calendar_ = calendar;
    dates_ = platform::DateText(calendar);
    sections_ = sections();
    const bool isSameOrder =
        std::ranges::equal(sections_.rows(), entries_, {}, &HistorySections::Row::ref,
                           [](const Entry& entry) { return entry.row.ref; });
    if (!isSameOrder) {
        reset();
        return;
    }
    for (std::size_t i = 0; i < entries_.size(); ++i) {
        entries_[i].row = sections_.rows()[i];
    }
    emitChanged(0, entries_.size());
}

HistorySections HistoryListModel::sections() const {
    return HistorySections(changesOf(session_), calendar_);
}

void HistoryListModel::reset() {
    beginResetModel();
    entries_.clear();
    entries_.reserve(sections_.rows().size());
    for (const HistorySections::Row& row : sections_.rows()) {
        entries_.push_back({row});
    }
    selectedCount_ = 0;
    anchor_ = -1;
    endResetModel();
    emit selectionChanged();
}

void HistoryListModel::apply(const ListStep& step) {
    switch (step.kind) {
    case ListStep::Kind::remove:
        remove(step);
        break;
    case ListStep::Kind::insert:
        insert(step);
        break;
    case ListStep::Kind::update:
        for (std::size_t i = step.index; i < step.index + step.count; ++i) {
            entries_[i].row = sections_.rows()[i];
        }
        emitChanged(step.index, step.index + step.count);
        break;
    }
}

void HistoryListModel::remove(const ListStep& step) {
    const auto first = entries_.begin() + static_cast<std::ptrdiff_t>(step.index);
    const auto end = first + static_cast<std::ptrdiff_t>(step.count);
    const auto selected = std::count_if(first, end, std::mem_fn(&Entry::isSelected));
    beginRemoveRows({}, static_cast<int>(step.index),
                    static_cast<int>(step.index + step.count) - 1);
    entries_.erase(first, end);
    anchor_ = -1;
    selectedCount_ -= static_cast<int>(selected);
    endRemoveRows();
    emitNeighboursChanged(step.index, step.index);
    if (selected > 0) {
        emit selectionChanged();
    }
}

void HistoryListModel::insert(const ListStep& step) {
    beginInsertRows({}, static_cast<int>(step.index),
                    static_cast<int>(step.index + step.count) - 1);
    entries_.insert(entries_.begin() + static_cast<std::ptrdiff_t>(step.index), step.count, {});
    for (std::size_t i = step.index; i < step.index + step.count; ++i) {
        entries_[i].row = sections_.rows()[i];
    }
    anchor_ = -1;
    endInsertRows();
    emitNeighboursChanged(step.index, step.index + step.count);
}

// The rows around a place where some came or went may begin or end their day now.
void HistoryListModel::emitNeighboursChanged(std::size_t first, std::size_t end) {
    const QList<int> roles{FirstOfDayRole, LastOfDayRole};
    if (first > 0) {
        emitChanged(first - 1, first, roles);
    }
    if (end < entries_.size()) {
        emitChanged(end, end + 1, roles);
    }
}

void HistoryListModel::emitChanged(std::size_t first, std::size_t end, const QList<int>& roles) {
    if (first < end) {
        emit dataChanged(index(static_cast<int>(first)), index(static_cast<int>(end) - 1), roles);
    }
}

bool HistoryListModel::isFirstOfDay(std::size_t row) const {
    return row == 0 || entries_[row - 1].row.day != entries_[row].row.day;
}

bool HistoryListModel::isLastOfDay(std::size_t row) const {
    return row + 1 == entries_.size() || entries_[row + 1].row.day != entries_[row].row.day;
}

} // namespace quillmere
