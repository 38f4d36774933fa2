#include "QuillmereKit/widget/WidgetRefreshSignature.h"

#include "tests/QuillmereKit/KitTest.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <utility>
#include <vector>

namespace quillmere::test {

namespace {

using Revisions = std::vector<WidgetRecordRevision>;

WidgetRecordRevisions digestOf(const Revisions& revisions) {
    WidgetRecordRevisions digest;
    for (const WidgetRecordRevision& revision : revisions) {
        digest.add(revision);
    }
    return digest;
}

Revisions sortedById(Revisions revisions) {
    std::ranges::sort(revisions, {}, [](const WidgetRecordRevision& revision) {
        return std::pair(revision.id.text(), revision.modifiedAt);
    });
    return revisions;
}

Revisions some(std::size_t count) {
    Revisions revisions;
    for (std::size_t i = 0; i < count; ++i) {
        revisions.push_back({platform::Uuid::random(), {1e9 + static_cast<double>(i)}});
    }
    return revisions;
}

TEST(WidgetRefreshSignature, TellsApartWhatSortedListsTellApart) {
    const Revisions before = some(50);
    const double next = std::nextafter(before[7].modifiedAt.secondsSince1970,
                                       std::numeric_limits<double>::infinity());
    const struct {
        const char* name;
        std::function<void(Revisions&)> change;
    } rows[] = {
        {"nothing", [](Revisions&) {}},
        {"the order", [](Revisions& all) { std::ranges::reverse(all); }},
        {"a version", [&](Revisions& all) { all[7].modifiedAt = {next}; }},
        {"versions that change places",
         [](Revisions& all) { std::swap(all[1].modifiedAt, all[2].modifiedAt); }},
        {"an identifier", [](Revisions& all) { all[9].id = platform::Uuid::random(); }},
        {"one less", [](Revisions& all) { all.pop_back(); }},
        {"one more", [](Revisions& all) { all.push_back({}); }},
        {"one twice", [](Revisions& all) { all.push_back(all.front()); }},
        {"one in the place of another", [](Revisions& all) { all[3] = all[4]; }},
        {"none at all", [](Revisions& all) { all.clear(); }},
    };
    for (const auto& row : rows) {
        Revisions after = before;
        row.change(after);
        EXPECT_EQ(digestOf(after) == digestOf(before), sortedById(after) == sortedById(before))
            << row.name;
    }
}

} // namespace

} // namespace quillmere::test
