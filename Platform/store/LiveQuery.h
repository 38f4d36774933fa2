#pragma once

#include "Platform/store/Context.h"
#include "Platform/store/LiveQueryBase.h"
#include "Platform/store/ObserverList.h"
#include "Platform/store/RowList.h"
#include "Platform/store/RowSink.h"
#include "Platform/store/Snapshot.h"

#include <algorithm>
#include <concepts>
#include <cstddef>
#include <functional>
#include <optional>
#include <span>
#include <utility>
#include <vector>

namespace platform::store {

/// Whether a live query has its answer yet. Loading is never taken for empty.
enum class LiveState { loading, empty, filled };

template <class Row, class Values>
concept LiveRow = std::copyable<Row> &&
    requires(const Row& row, const Row& other, const Values& values) {
    { Row::make(row.ref, values) } -> std::same_as<std::optional<Row>>;
    { row < other } -> std::convertible_to<bool>;
    { row == other } -> std::convertible_to<bool>;
    requires std::same_as<decltype(Row::ref), RowRef>;
};

/// A fetch that stays true: an ordered list of packed rows, kept up on every insert, delete, save,
/// rollback and refresh of its context. Field changes show when they are saved.
///
/// `Row` is a small copyable struct made from a record's values, with
///
///     RowRef ref; // as given to `make`
///     static std::optional<Row> make(RowRef ref, const R::Values& values); // nothing: not listed
///     friend bool operator<(const Row&, const Row&); // the list's order, a strict weak ordering
///     friend bool operator==(const Row&, const Row&); // between equal rows nothing is reported
///
/// so that 100,000 rows cost a few bytes each and no record objects. Equals in the order stand in
/// the order they were inserted. `record(index)` answers the record object behind a row.
///
/// A new query is loading until `load` or `adopt`. Confined to its context's thread, except
/// `readRows`, which is meant for a worker. Must be destroyed before its context.
template <class R, class Row>
class LiveQuery final : private LiveQueryBase, private RowSink<typename R::Values> {
    using Values = typename R::Values;
    static_assert(LiveRow<Row, Values>);

public:
    /// Rows in the list's order, and the revision of the store that they are of.
    struct Loaded {
        std::vector<Row> rows;
        Revision revision = Revision::none;
    };

    explicit LiveQuery(Context& context) : context_(context) {
        context_.storage<R>().attach(*this);
        context_.attach(*this);
    }

    ~LiveQuery() override {
        context_.storage<R>().detach(*this);
        context_.detach(*this);
    }

    LiveQuery(const LiveQuery&) = delete;
    LiveQuery& operator=(const LiveQuery&) = delete;

    /// Reads all rows. Any thread. Throws `StoreError`.
    [[nodiscard]] static Loaded readRows(Store& store) {
        Snapshot snapshot(store);
        Loaded loaded{{}, snapshot.revision()};
        TypedStorage<R>(snapshot.database()).scan({}, [&](RowRef ref, const Values& values) {
            if (std::optional<Row> row = Row::make(ref, values)) {
                loaded.rows.push_back(*row);
            }
        });
        RowList<Row>::sort(loaded.rows);
        return loaded;
    }

    /// Takes rows that `readRows` answered, with everything newer and the unsaved changes on top,
    /// and tells the observers. Refreshes the context. Throws `StoreError`.
    void adopt(Loaded loaded) {
        context_.refresh();
        staged_.clear();
        const Revision revision = loaded.revision;
        incoming_ = std::move(loaded);
        context_.storage<R>().stageNewerThan(revision, *this);
        context_.publish();
    }

    /// Reads the rows here and now. Throws `StoreError`.
    void load() { adopt(readRows(context_.store())); }

    [[nodiscard]] LiveState state() const {
        return !isLoaded_ ? LiveState::loading : isEmpty() ? LiveState::empty : LiveState::filled;
    }

    /// The rows in order; valid until the query publishes again.
    [[nodiscard]] std::span<const Row> rows() const { return list_.rows(); }
    [[nodiscard]] std::size_t size() const { return list_.rows().size(); }
    [[nodiscard]] bool isEmpty() const { return list_.rows().empty(); }
    [[nodiscard]] const Row& operator[](std::size_t index) const { return list_.rows()[index]; }

    /// The record behind a row; null when it was deleted elsewhere and the context has yet to
    /// refresh. Throws `StoreError`.
    [[nodiscard]] R* record(std::size_t index) { return context_.find<R>(list_.rows()[index].ref); }

    /// Where a record is listed. Looks through all rows.
    [[nodiscard]] std::optional<std::size_t> indexOf(RowRef ref) const {
        const auto row = std::ranges::find(list_.rows(), ref, &Row::ref);
        return row == list_.rows().end()
                   ? std::nullopt
                   : std::optional(static_cast<std::size_t>(row - list_.rows().begin()));
    }

    /// Calls `observer` after every publication that changed the rows, until the subscription ends.
    /// No steps mean that the whole list is new. Observers may change and save the context; what
    /// that publishes reaches the queries and their observers when the present round is over. They
    /// may end subscriptions and destroy the query, but not the context.
    [[nodiscard]] Subscription observe(std::function<void(const ListSteps&)> observer) {
        return observers_.add(std::move(observer));
    }

private:
    void stage(RowKey key, RowKey former, const Values* values) override {
        if (isLoaded_ || incoming_) {
            staged_.push_back({key, former, values ? Row::make(key, *values) : std::nullopt});
        }
    }

    void applyStaged() override {
        isReset_ = incoming_.has_value();
        if (incoming_) {
            list_.assign(std::move(incoming_->rows));
            incoming_.reset();
            isLoaded_ = true;
        }
        steps_ = staged_.empty() ? ListSteps{} : list_.apply(std::exchange(staged_, {}));
    }

    void notify() override {
        const ListSteps steps = std::exchange(steps_, {});
        if (std::exchange(isReset_, false)) {
            observers_.notify({});
        } else if (!steps.empty()) {
            observers_.notify(steps);
        }
    }

    Context& context_;
    RowList<Row> list_;
    std::vector<typename RowList<Row>::Change> staged_;
    std::optional<Loaded> incoming_;
    ListSteps steps_;
    bool isLoaded_ = false;
    bool isReset_ = false;
    ObserverList<const ListSteps&> observers_;
};

} // namespace platform::store
