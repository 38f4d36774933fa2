#include "Platform/store/Context.h"

#include "Platform/store/LiveQueryBase.h"
#include "Platform/store/SchemaSetup.h"
#include "Platform/store/Store.h"
#include "Platform/store/Transaction.h"

#include <algorithm>
#include <map>
#include <utility>

namespace platform::store {

class Context::Impl {
public:
    Impl(std::shared_ptr<Store> of, ContextEnvironment with, std::unique_ptr<Database> connection)
        : store(std::move(of)), environment(with), database(std::move(connection)) {}

    [[nodiscard]] std::int64_t dataVersion() { return database->integer("PRAGMA data_version"); }

    /// Takes in what others committed. A transaction is open.
    void takeIn() {
        const Revision newest{database->integer("SELECT revision FROM store_meta")};
        if (newest == seen) {
            return;
        }
        for (const auto& storage : storages) {
            storage->takeIn(seen);
        }
        seen = newest;
    }

    [[nodiscard]] Revision nextRevision() {
        return Revision{
            database->integer("UPDATE store_meta SET revision = revision + 1 RETURNING revision")};
    }

    void writeNotes() {
        for (const auto& [name, text] : notes) {
            Statement write =
                database->prepare("INSERT OR REPLACE INTO store_note (name, text) VALUES (?, ?)");
            write.bindText(1, name);
            write.bindText(2, text);
            write.run();
        }
    }

    /// What keeps the pending changes from being written, or would take them with it afterwards.
    void checkWritable() {
        store->checkSound();
        if (database->hasMoved()) {
            throw StoreError(StoreFault::io, "the store's file was moved, deleted or replaced");
        }
        settleFailedCommit(*database);
    }

    [[nodiscard]] bool hasChanges() const {
        return !notes.empty() || std::ranges::any_of(storages, [](const auto& storage) {
            return storage->hasChanges();
        });
    }

    void runUnobserved(const std::function<void()>& prepare) {
        struct Restorer {
            bool& flag;
            const bool before;
            ~Restorer() { flag = before; }
        } const restorer{isPublishing, std::exchange(isPublishing, true)};
        prepare();
    }

    /// The pending changes as one durable transaction, on top of what others committed. Answers
    /// nothing when there was nothing to write.
    [[nodiscard]] std::optional<Revision> write(const Schema& schema,
                                                const std::function<void()>& prepare) {
        Transaction transaction(*database, Transaction::Kind::write);
        checkNotNewer(*database, schema);
        takeIn();
        runUnobserved(prepare);
        if (!hasChanges()) {
            return std::nullopt;
        }
        const Revision revision = nextRevision();
        for (const auto& storage : storages) {
            storage->write(revision);
        }
        writeNotes();
        transaction.commit();
        return revision;
    }

    void settle(Revision written) {
        seen = written;
        for (const auto& storage : storages) {
            storage->settle(written);
        }
        notes.clear();
    }

    void tryToSettleFailedCommit() noexcept {
        try {
            settleFailedCommit(*database);
        } catch (const StoreError&) {
            // The next save tries again, and tells.
        }
    }

    const std::shared_ptr<Store> store;
    const ContextEnvironment environment;
    const std::unique_ptr<Database> database;
    std::vector<std::unique_ptr<TypeStorage>> storages;
    std::map<std::string, std::string, std::less<>> notes; ///< unsaved
    Revision seen = Revision::none;
    std::int64_t seenDataVersion = 0;
    std::int64_t nextProvisional = static_cast<std::int64_t>(firstProvisionalKey);
    std::vector<LiveQueryBase*> queries; ///< null where one has gone during a publication
    bool isPublishing = false;
    bool hasMoreToPublish = false;
};

Context::Context(std::shared_ptr<Store> store, ContextEnvironment environment) {
    std::unique_ptr<Database> database = store->connect();
    impl_ = std::make_unique<Impl>(std::move(store), environment, std::move(database));
    for (const Schema::Type& type : impl_->store->schema().types()) {
        impl_->storages.push_back(type.makeStorage(*impl_->database));
    }
    impl_->seenDataVersion = impl_->dataVersion();
    impl_->seen = Revision{impl_->database->integer("SELECT revision FROM store_meta")};
}

Context::~Context() = default;

const Clock& Context::clock() const {
    return impl_->environment.clock;
}

Calendar Context::calendar() const {
    return impl_->environment.calendars.current();
}

Store& Context::store() const {
    return *impl_->store;
}

Revision Context::revision() const {
    return impl_->seen;
}

RowKey Context::nextProvisionalKey() {
    return RowKey{impl_->nextProvisional++};
}

TypeStorage& Context::storage(std::string_view table) {
    for (const auto& storage : impl_->storages) {
        if (storage->table().name == table) {
            return *storage;
        }
    }
    throw StoreError(StoreFault::misuse, "the store's schema does not have this record type");
}

void Context::remove(RecordBase& record) {
    if (!record.isAlive()) {
        return;
    }
    for (const auto& storage : impl_->storages) {
        if (storage->owns(record)) {
            storage->remove(record);
            publish();
            return;
        }
    }
    throw StoreError(StoreFault::misuse, "the record belongs to another context");
}

bool Context::hasChanges() const {
    return impl_->hasChanges();
}

void Context::save() {
    if (hasChanges()) {
        save([] {});
    }
}

void Context::save(const std::function<void()>& prepare) {
    impl_->checkWritable();
    std::optional<Revision> written;
    try {
        written = impl_->write(impl_->store->schema(), prepare);
    } catch (...) {
        publish(); // what others committed was taken in all the same
        throw;
    }
    if (written) {
        impl_->settle(*written);
    }
    publish();
    if (written) {
        impl_->store->notifyCommitted();
    }
}

void Context::rollback() noexcept {
    for (const auto& storage : impl_->storages) {
        storage->rollback();
    }
    impl_->notes.clear();
    publish();
}

void Context::refresh() {
    impl_->tryToSettleFailedCommit();
    const std::int64_t dataVersion = impl_->dataVersion();
    if (dataVersion == impl_->seenDataVersion) {
        return;
    }
    {
        const Transaction read(*impl_->database, Transaction::Kind::read);
        impl_->takeIn();
    }
    impl_->seenDataVersion = dataVersion;
    publish();
}

std::optional<std::string> Context::note(std::string_view name) {
    if (const auto unsaved = impl_->notes.find(name); unsaved != impl_->notes.end()) {
        return unsaved->second;
    }
    Statement row = impl_->database->prepare("SELECT text FROM store_note WHERE name = ?");
    row.bindText(1, name);
    return row.step() ? std::optional<std::string>(row.text(0)) : std::nullopt;
}

void Context::setNote(std::string_view name, std::string_view text) {
    if (note(name) != text) {
        impl_->notes.insert_or_assign(std::string(name), std::string(text));
    }
}

void Context::attach(LiveQueryBase& query) {
    impl_->queries.push_back(&query);
}

void Context::detach(LiveQueryBase& query) {
    std::ranges::replace(impl_->queries, &query, nullptr);
}

void Context::publish() noexcept {
    impl_->hasMoreToPublish = true;
    if (std::exchange(impl_->isPublishing, true)) {
        return;
    }
    while (std::exchange(impl_->hasMoreToPublish, false)) {
        // By index: observers may add and destroy queries.
        for (std::size_t i = 0; i < impl_->queries.size(); ++i) {
            if (impl_->queries[i] != nullptr) {
                impl_->queries[i]->applyStaged();
            }
        }
        for (std::size_t i = 0; i < impl_->queries.size(); ++i) {
            if (impl_->queries[i] != nullptr) {
                impl_->queries[i]->notify();
            }
        }
    }
    std::erase(impl_->queries, nullptr);
    impl_->isPublishing = false;
}

} // namespace platform::store
