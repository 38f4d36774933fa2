#pragma once

#include "Platform/base/Clock.h"
#include "Platform/calendar/Calendar.h"
#include "Platform/calendar/DateText.h"
#include "Platform/calendar/MonthGrid.h"

#include <QtCore/QAbstractListModel>
#include <QtCore/QStringList>
#include <QtQml/qqmlregistration.h>

namespace quillmere {

/// A chosen day and a month of days to choose it from, none of them in the future. The rows are the
/// cells of a grid of seven columns that begin with the region's first weekday: the empty ones in
/// front of the month, then its days. The cursor is the day the keyboard is on; the month on show
/// is the cursor's. Main thread.
///
/// Roles: `number` (day of the month, 0 for an empty cell), `spoken` (the day in words),
/// `selectable`, `selected`, `today`.
class DatePickerModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the view model of a form")
    /// The chosen day, short and in words.
    Q_PROPERTY(QString text READ text NOTIFY selectedChanged)
    Q_PROPERTY(QString spokenText READ spokenText NOTIFY selectedChanged)
    Q_PROPERTY(QString monthTitle READ monthTitle NOTIFY monthChanged)
    Q_PROPERTY(bool hasNextMonth READ hasNextMonth NOTIFY monthChanged)
    /// The names of the columns.
    Q_PROPERTY(QStringList weekdays READ weekdays NOTIFY monthChanged)
    /// The cursor's row.
    Q_PROPERTY(int cursorRow READ cursorRow NOTIFY cursorRowChanged)

public:
    enum Role { NumberRole = Qt::UserRole, SpokenRole, SelectableRole, SelectedRole, TodayRole };

    /// `selected` is the chosen day and the time of day that every later choice keeps. Clock and
    /// calendars must outlive the object.
    DatePickerModel(const platform::Clock& clock, const platform::CalendarSource& calendars,
                    platform::Instant selected, QObject* parent = nullptr);

    /// The chosen day at the time of day first given; a time that does not exist on that day is
    /// moved forward by what is missing.
    [[nodiscard]] platform::Instant selected() const { return selected_; }

    [[nodiscard]] QString text() const;
    [[nodiscard]] QString spokenText() const;
    [[nodiscard]] QString monthTitle() const;
    [[nodiscard]] bool hasNextMonth() const;
    [[nodiscard]] QStringList weekdays() const;
    [[nodiscard]] int cursorRow() const;

    /// Puts the cursor on the chosen day.
    Q_INVOKABLE void showSelected();
    /// Moves the cursor; a move into the future leaves it where it is.
    Q_INVOKABLE void moveDays(int days);
    /// Moves the cursor to the same day of another month, or the last one before it that can be
    /// chosen.
    Q_INVOKABLE void moveMonths(int months);
    Q_INVOKABLE void moveToWeekStart();
    Q_INVOKABLE void moveToWeekEnd();
    /// Chooses the day of a row and moves the cursor there. False when it cannot be chosen.
    Q_INVOKABLE bool pick(int row);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

public slots:
    /// Looks at clock and calendar again: the day, the zone or the region may have changed.
    void refresh();

signals:
    void selectedChanged();
    void monthChanged();
    void cursorRowChanged();

private:
    [[nodiscard]] platform::Instant today() const;
    [[nodiscard]] const platform::MonthGrid::Day* dayAt(int row) const;
    [[nodiscard]] bool isSelectable(const platform::MonthGrid::Day& day) const;
    [[nodiscard]] QVariant dayData(const platform::MonthGrid::Day& day, int role) const;
    /// How many columns of the grid are before the cursor's.
    [[nodiscard]] int cursorColumn() const;
    void setCursor(platform::Instant startOfDay);
    void resetMonth();

    const platform::Clock& clock_;
    const platform::CalendarSource& calendars_;
    platform::Calendar calendar_;
    platform::DateText dates_;
    platform::Instant given_;
    platform::Instant selected_;
    platform::Instant cursor_; ///< a start of day
    platform::MonthGrid month_;
};

} // namespace quillmere
