#pragma once

#include "Platform/store/LiveQuery.h"
#include "Platform/store/Store.h"
#include "QuillmereKit/records/BalanceAdjustment.h"
#include "QuillmereKit/records/LedgerRow.h"
#include "QuillmereKit/records/SettingsRow.h"
#include "QuillmereKit/records/TimeBankSettings.h"

#include <QtCore/QObject>
#include <QtCore/QString>

#include <cstdint>
#include <memory>
#include <stop_token>
#include <vector>

namespace quillmere {

class TimeFollower;

/// The opened store as the screens use it: the main context and the live queries they share. Lives
/// from the opening of a store to its closing; a retry of private sync ends one and starts another.
/// Main thread.
///
/// The settings query is loaded when the session starts. The history is read on a worker; until it
/// has arrived the adjustments query is loading. What other contexts and other programs commit is
/// taken in within a second.
///
/// View models are constructed with a reference to the session and never outlive it: the
/// application makes them when a session starts, and when a session ends the QML objects go first,
/// then the view models, then the session (see `AppStorageController`, `Screen`). A view model
/// therefore may use context and queries in its destructor, and disconnects nothing by hand.
class StoreSession : public QObject {
    Q_OBJECT

public:
    using SettingsQuery = platform::store::LiveQuery<TimeBankSettings, SettingsRow>;
    using AdjustmentsQuery = platform::store::LiveQuery<BalanceAdjustment, LedgerRow>;

    /// When the history is read: from when the program is ready for events, or from `readHistory`.
    enum class Reading { atOnce, whenAsked };

    /// Loads the settings. Throws `StoreError` when the store cannot be read. `time` must outlive
    /// the session.
    StoreSession(std::shared_ptr<platform::store::Store> store, TimeFollower& time,
                 Reading reading = Reading::atOnce, QObject* parent = nullptr);
    ~StoreSession() override;

    [[nodiscard]] platform::store::Context& context();
    [[nodiscard]] TimeFollower& time();
    [[nodiscard]] SettingsQuery& settings();
    [[nodiscard]] AdjustmentsQuery& adjustments();
    /// Starts reading the history. Once, of a session that reads when asked.
    void readHistory();
    /// Whether the history is still missing.
    [[nodiscard]] bool isLoading() const;

    /// The first settings record, or nothing while there is none.
    [[nodiscard]] TimeBankSettings* settingsRecord();
    /// What the first settings record holds; the defaults while there is none.
    [[nodiscard]] TimeBankSettingsValues settingsValues();

    /// The minutes of all changes dated up to now, for as long as the history is being read: from
    /// the store's note of its balance, or else summed in the store. Throws `StoreError`.
    [[nodiscard]] std::int64_t minutesInStore();

signals:
    /// The settings query published.
    void settingsChanged();
    /// The adjustments query published; `steps` tells what moved. Empty steps after loading mean
    /// the whole list is new.
    void adjustmentsChanged(const std::vector<platform::store::ListStep>& steps);
    /// A commit was taken in, by this context or another. Comes after what the queries publish.
    void refreshed();
    /// The store could not be read or is not whole; for the log. Reading the history is tried again
    /// by itself.
    void readingFailed(const QString& reason);

private:
    class Impl;

    void listen();
    void watchOthers();
    void refresh();
    void readAndVerify(const std::stop_token& stop); ///< on the worker
    void adoptHistory(AdjustmentsQuery::Loaded& rows);
    void onHistoryFailed(const QString& reason);

    std::unique_ptr<Impl> impl_;
};

} // namespace quillmere
