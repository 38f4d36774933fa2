#include "tests/Quillmere/support/StoreFixture.h"

#include "QuillmereKit/persistence/QuillmerePersistence.h"

namespace quillmere {

StoreFixture::StoreFixture()
    : session_(std::make_unique<StoreSession>(
          platform::store::Store::open(QuillmerePersistence::schema(),
                                       {.file = {}, .inMemory = true}),
          time_)) {
}

StoreFixture::~StoreFixture() = default;

void StoreFixture::report(const QString& title, const QString& message) {
    appState_.report(std::runtime_error("test"), title, message);
}

} // namespace quillmere
