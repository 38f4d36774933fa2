#pragma once

#include "Platform/calendar/Calendar.h"
#include "Platform/calendar/DateText.h"
#include "QuillmereKit/calculation/DayBalance.h"

#include <QtCore/QAbstractListModel>
#include <QtQml/qqmlregistration.h>

#include <optional>
#include <span>
#include <vector>

namespace quillmere {

/// The days of a period as the cells of a grid of seven columns that begin with the calendar's
/// first weekday: the empty ones in front of the first day, then the days. The cursor is the day
/// the keyboard is on. Main thread.
///
/// Roles: `row`, `number` (day of the month, 0 for an empty cell), `changed` (the day's sum is not
/// zero), `takesTime`, `today`, `dateText` (short), `spokenDate`, `amountText` (clock text without
/// sign), `signedText` and `spokenAmount`.
class ReportDaysModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("part of the report's view model")
    /// The cursor's row; -1 without days.
    Q_PROPERTY(int cursorRow READ cursorRow NOTIFY cursorRowChanged)

public:
    enum Role {
        RowRole = Qt::UserRole,
        NumberRole,
        ChangedRole,
        TakesTimeRole,
        TodayRole,
        DateTextRole,
        SpokenDateRole,
        AmountTextRole,
        SignedTextRole,
        SpokenAmountRole,
    };

    using QAbstractListModel::QAbstractListModel;

    /// Moves to other days by inserting and removing at the end and updating what differs, so that
    /// views keep their cells. The cursor keeps its place in the period.
    void setDays(std::span<const DayBalance> days, const platform::Calendar& calendar,
                 platform::Instant now);
    /// Puts the cursor on the day that contains the instant, if it is one of the period.
    void setCursor(platform::Instant instant);

    [[nodiscard]] int cursorRow() const;
    /// Start of the day at a row; nothing where its sum is zero and for empty cells.
    [[nodiscard]] std::optional<platform::Instant> changedDay(int row) const;

    /// Move the cursor; it stays within the period, and with the last two within its row.
    Q_INVOKABLE void moveDays(int days);
    Q_INVOKABLE void moveToWeekStart();
    Q_INVOKABLE void moveToWeekEnd();

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

signals:
    void cursorRowChanged();

private:
    struct Cell {
        platform::Instant date;
        double seconds = 0;
        int number = 0;
        bool isToday = false;

        friend bool operator==(const Cell&, const Cell&) = default;
    };

    [[nodiscard]] static std::vector<Cell> cellsOf(std::span<const DayBalance> days,
                                                   const platform::Calendar& calendar,
                                                   platform::Instant now);
    [[nodiscard]] QVariant dayData(const Cell& cell, int role) const;
    void setCells(std::vector<Cell> cells);
    void moveTo(int place);

    std::optional<platform::Calendar> calendar_; ///< nothing before the first days
    std::optional<platform::DateText> dates_;
    std::vector<Cell> cells_;
    int blanks_ = 0; ///< empty cells in front
    int place_ = 0;  ///< the cursor's day, counted from the first of the period
};

} // namespace quillmere
