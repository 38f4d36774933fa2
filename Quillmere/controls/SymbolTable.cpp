#include "Quillmere/controls/SymbolTable.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace quillmere {

namespace {

struct Drawing {
    std::u16string_view symbol;
    std::u16string_view file;
};

// Files are those of bootstrap-icons, or ours in the folder "symbols" where it has no good match.
constexpr std::array drawings{
    Drawing{u"1.circle", u"1-circle"},
    Drawing{u"archivebox", u"archive"},
    Drawing{u"arrow.clockwise.icloud", u"arrow-clockwise-icloud"},
    Drawing{u"arrow.down.left", u"arrow-down-left"},
    Drawing{u"arrow.down.to.line", u"arrow-down-to-line"},
    Drawing{u"arrow.right.square", u"box-arrow-in-right"},
    Drawing{u"arrow.up.from.line", u"arrow-up-from-line"},
    Drawing{u"arrow.up.right", u"arrow-up-right"},
    Drawing{u"arrow.up.right.square", u"arrow-up-right-square"},
    Drawing{u"bolt.fill", u"lightning-fill"},
    Drawing{u"calendar", u"calendar3"},
    Drawing{u"calendar.badge.checkmark", u"calendar-check"},
    Drawing{u"calendar.badge.clock", u"calendar-badge-clock"},
    Drawing{u"calendar.badge.minus", u"calendar-minus"},
    Drawing{u"checkmark", u"check-lg"},
    Drawing{u"checkmark.circle.fill", u"check-circle-fill"},
    Drawing{u"chevron.down", u"chevron-down"},
    Drawing{u"chevron.left", u"chevron-left"},
    Drawing{u"chevron.right", u"chevron-right"},
    Drawing{u"circle.lefthalf.filled", u"circle-half"},
    Drawing{u"cross.case", u"cross-case"},
    Drawing{u"ellipsis.circle", u"ellipsis-circle"},
    Drawing{u"equal", u"equal"},
    Drawing{u"exclamationmark.circle", u"exclamation-circle"},
    Drawing{u"exclamationmark.triangle", u"exclamation-triangle"},
    Drawing{u"externaldrive.badge.xmark", u"externaldrive-badge-xmark"},
    Drawing{u"figure.walk", u"figure-walk"},
    Drawing{u"fork.knife", u"fork-knife"},
    Drawing{u"hand.raised", u"hand-raised"},
    Drawing{u"icloud", u"cloud"},
    Drawing{u"icloud.slash", u"cloud-slash"},
    Drawing{u"info.circle", u"info-circle"},
    Drawing{u"leaf.circle.fill", u"leaf-circle-fill"},
    Drawing{u"leaf.fill", u"leaf-fill"},
    Drawing{u"list.bullet.rectangle", u"card-list"},
    Drawing{u"macwindow", u"window-desktop"},
    Drawing{u"menubar.rectangle", u"menu-button-wide"},
    Drawing{u"minus", u"dash-lg"},
    Drawing{u"number", u"hash"},
    Drawing{u"plus", u"plus-lg"},
    Drawing{u"plus.forwardslash.minus", u"plus-slash-minus"},
    Drawing{u"power", u"power"},
    Drawing{u"questionmark", u"question"},
    Drawing{u"questionmark.circle", u"question-circle"},
    Drawing{u"rectangle.bottomhalf.inset.filled", u"rectangle-bottomhalf-inset-filled"},
    Drawing{u"slider.horizontal.3", u"sliders"},
    Drawing{u"square.and.arrow.down", u"box-arrow-in-down"},
    Drawing{u"square.and.arrow.up", u"box-arrow-up"},
    Drawing{u"sun.max", u"sun"},
    Drawing{u"tag", u"tag"},
    Drawing{u"text.bubble", u"chat-square-text"},
    Drawing{u"trash", u"trash3"},
};

static_assert(std::ranges::is_sorted(drawings, {}, &Drawing::symbol));

} // namespace

QString symbolResource(QStringView name) {
    const std::u16string_view key(name.utf16(), static_cast<std::size_t>(name.size()));
    const auto* found = std::ranges::lower_bound(drawings, key, {}, &Drawing::symbol);
    const bool known = found != drawings.end() && found->symbol == key;
    const std::u16string_view file = known ? found->file : u"question";
    return QStringLiteral(":/quillmere/symbols/%1.svg").arg(QStringView(file));
}

} // namespace quillmere
