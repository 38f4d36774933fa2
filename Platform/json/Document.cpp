#include "Platform/json/Document.h"

#include "Platform/json/LongIntegers.h"
#include "Platform/json/SimdjsonAccess.h"

#include <algorithm>
#include <span>
#include <string>
#include <vector>

namespace platform::json {

namespace dom = simdjson::dom;

struct Document::Storage {
    dom::document document;
};

namespace {

simdjson::error_code parseInto(dom::document& document, std::string_view text) {
    dom::parser parser;
    // The library wants some capacity even for an empty text; less would make it allocate again.
    constexpr std::size_t smallestCapacity = 64;
    const std::size_t capacity = std::max(text.size(), smallestCapacity);
    if (const auto error = parser.allocate(capacity, maximumDepth); error != simdjson::SUCCESS) {
        return error;
    }
    return parser.parse_into_document(document, text.data(), text.size()).error();
}

bool hasDuplicates(std::span<std::string_view> keys) {
    // Comparing pairs is fastest for records; sorting bounds what a hostile text can cost.
    if (keys.size() > 16) {
        std::sort(keys.begin(), keys.end());
        return std::adjacent_find(keys.begin(), keys.end()) != keys.end();
    }
    for (auto key = keys.begin(); key != keys.end(); ++key) {
        if (std::find(keys.begin(), key, *key) != key) {
            return true;
        }
    }
    return false;
}

/// Finds objects that repeat a key. Keeps the keys of all objects it is in on one stack.
class KeyCheck {
public:
    void visit(dom::element element) {
        switch (element.type()) {
        case dom::element_type::OBJECT:
            visitObject(handleAt<dom::object>(positionOf(element)));
            break;
        case dom::element_type::ARRAY:
            for (const auto child : handleAt<dom::array>(positionOf(element))) {
                visit(child);
            }
            break;
        default:
            break;
        }
    }

private:
    void visitObject(dom::object object) {
        const std::size_t outer = keys_.size();
        for (const auto& [key, value] : object) {
            keys_.push_back(key);
            visit(value);
        }
        if (hasDuplicates(std::span(keys_).subspan(outer))) {
            throw JsonError("a key occurs twice in one object");
        }
        keys_.resize(outer);
    }

    std::vector<std::string_view> keys_;
};

} // namespace

Document::Document(std::unique_ptr<Storage> storage) : storage_(std::move(storage)) {
}
Document::Document(Document&&) noexcept = default;
Document& Document::operator=(Document&&) noexcept = default;
Document::~Document() = default;

Value Document::root() const {
    return Value(positionOf(storage_->document.root()));
}

Document parse(std::string_view text) {
    if (text.starts_with("\xEF\xBB\xBF")) {
        throw JsonError("the text begins with a byte order mark");
    }
    auto storage = std::make_unique<Document::Storage>();
    if (const auto error = parseInto(storage->document, text); error != simdjson::SUCCESS) {
        // The library refuses whole numbers beyond 64 bits, which are good enough as doubles.
        const std::string amended = withLongIntegersAsDoubles(text);
        if (amended.empty() || parseInto(storage->document, amended) != simdjson::SUCCESS) {
            throw JsonError(simdjson::error_message(error));
        }
    }
    KeyCheck().visit(storage->document.root());
    return Document(std::move(storage));
}

} // namespace platform::json
