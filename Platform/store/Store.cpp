#include "Platform/store/Store.h"

#include "Platform/store/ObserverList.h"
#include "Platform/store/SchemaSetup.h"
#include "Platform/store/StoreOpening.h"
#include "Platform/store/Transaction.h"

#include <algorithm>
#include <mutex>
#include <utility>
#include <vector>

namespace platform::store {

namespace {

StoreConfiguration resolved(StoreConfiguration configuration) {
    if (!configuration.inMemory) {
        configuration.file = resolveStoreFile(configuration.file);
    }
    return configuration;
}

} // namespace

class Store::Impl {
public:
    Impl(const Schema& schemaOf, StoreConfiguration with)
        : schema(schemaOf),
          configuration(resolved(std::move(with))),
          memoryUri("file:/" + Uuid::random().text() + "?vfs=memdb"),
          keeper(configuration.inMemory ? openInMemory()
                                        : openStoreFile(schema, configuration, health)) {
        readId();
    }

    [[nodiscard]] std::unique_ptr<Database> connect() const {
        auto database = std::make_unique<Database>(options(), health);
        database->configure();
        database->setCheckpointOnClose(true);
        return database;
    }

    const Schema schema;
    const StoreConfiguration configuration;
    const std::string memoryUri;
    const std::shared_ptr<StoreHealth> health = std::make_shared<StoreHealth>();
    /// Keeps the log open between contexts, and a store in memory in being.
    const std::unique_ptr<Database> keeper;
    Uuid id;
    std::mutex mutex; ///< for the listeners
    ObserverList<> listeners;

private:
    [[nodiscard]] Database::Options options() const {
        const bool inMemory = configuration.inMemory;
        return {inMemory ? memoryUri : configuration.file.string(),
                inMemory ? nullptr : configuration.vfs, configuration.busyTimeoutMilliseconds};
    }

    [[nodiscard]] std::unique_ptr<Database> openInMemory() const {
        auto database = connect();
        setUpSchema(*database, schema);
        return database;
    }

    void readId() {
        Statement row = keeper->prepare("SELECT store_id FROM store_meta");
        Uuid::Bytes bytes{};
        if (!row.step() || row.blob(0).size() != bytes.size()) {
            throw StoreError(StoreFault::damaged, "the store's identity is missing");
        }
        std::ranges::copy(row.blob(0), bytes.begin());
        id = Uuid(bytes);
    }
};

Store::Store(std::unique_ptr<Impl> impl) : impl_(std::move(impl)) {
}

Store::~Store() {
    try {
        settleFailedCommit(*impl_->keeper);
    } catch (const StoreError&) {
        // Closing moves the log into the file, which leaves such a commit behind as well.
    }
}

std::shared_ptr<Store> Store::open(const Schema& schema, const StoreConfiguration& configuration) {
    return std::shared_ptr<Store>(new Store(std::make_unique<Impl>(schema, configuration)));
}

std::unique_ptr<Context> Store::makeContext(ContextEnvironment environment) {
    return std::unique_ptr<Context>(new Context(shared_from_this(), environment));
}

std::shared_ptr<void> Store::onCommit(std::function<void()> listener) {
    const std::lock_guard lock(impl_->mutex);
    return impl_->listeners.add(std::move(listener));
}

void Store::notifyCommitted() const {
    const ObserverList<> listeners = [this] {
        const std::lock_guard lock(impl_->mutex);
        return impl_->listeners;
    }();
    listeners.notify();
}

std::unique_ptr<CommitWatch> Store::watchCommits() const {
    return std::make_unique<CommitWatch>(impl_->configuration.inMemory ? std::filesystem::path()
                                                                       : impl_->configuration.file);
}

void Store::verify() {
    const std::unique_ptr<Database> database = connect();
    Statement report = database->prepare("PRAGMA integrity_check(1)");
    if (!report.step() || report.text(0) != "ok") {
        impl_->health->damaged = true;
        throw StoreError(StoreFault::damaged, std::string(report.text(0)));
    }
}

void Store::checkSound() const {
    if (impl_->health->damaged) {
        throw StoreError(StoreFault::damaged, "the file is damaged and is not written any more");
    }
}

Uuid Store::id() const {
    return impl_->id;
}

const StoreConfiguration& Store::configuration() const {
    return impl_->configuration;
}

const Schema& Store::schema() const {
    return impl_->schema;
}

std::unique_ptr<Database> Store::connect() const {
    return impl_->connect();
}

} // namespace platform::store
