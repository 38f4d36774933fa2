#include "Platform/preferences/MemoryPreferences.h"
#include "Quillmere/shell/AppearanceModel.h"
#include "Quillmere/shell/QuillmereMacAppDelegate.h"

#include <gtest/gtest.h>

namespace quillmere {
namespace {

class FixedDesktop final : public DesktopSettings {
public:
    DesktopLook value;
    [[nodiscard]] DesktopLook look() const override { return value; }
};

TEST(AppearanceModelTest, TheUsersChoiceGoesBeforeTheDesktops) {
    struct ChoiceRow {
        const char* stored;
        bool desktopDark;
        bool dark;
    };
    for (const ChoiceRow row : {ChoiceRow{"system", true, true}, ChoiceRow{"system", false, false},
                                ChoiceRow{"light", true, false}, ChoiceRow{"dark", false, true},
                                ChoiceRow{"sepia", true, true}}) {
        SCOPED_TRACE(std::string(row.stored) + (row.desktopDark ? " on dark" : " on light"));
        platform::MemoryPreferences preferences;
        preferences.setString("appearance", row.stored);
        FixedDesktop desktop;
        desktop.value.prefersDark = row.desktopDark;
        EXPECT_EQ(AppearanceModel(preferences, desktop).dark(), row.dark);
    }
}

TEST(DesktopLookTest, ReadsWhatThePortalSays) {
    const QString freedesktop = QStringLiteral("org.freedesktop.appearance");
    struct PortalRow {
        QString space;
        const char* key;
        QVariant value;
        DesktopLook look;
    };
    const std::vector<PortalRow> rows{
        {freedesktop, "color-scheme", 1U, {.prefersDark = true}},
        {freedesktop, "color-scheme", 2U, {.prefersDark = false}},
        {freedesktop, "color-scheme", 0U, {}},
        {freedesktop, "color-scheme", 7U, {}},
        {freedesktop, "contrast", 1U, {.prefersDark = {}, .highContrast = true}},
        {freedesktop, "reduced-motion", 1U, {.prefersDark = {}, .reducedMotion = true}},
        {freedesktop, "accent-color", 1U, {}},
        {QStringLiteral("org.gnome.desktop.interface"),
         "enable-animations",
         false,
         {.prefersDark = {}, .reducedMotion = true}},
        {QStringLiteral("org.gnome.desktop.interface"), "enable-animations", true, {}},
        {QStringLiteral("org.gnome.desktop.a11y.interface"),
         "high-contrast",
         true,
         {.prefersDark = {}, .highContrast = true}},
        {QStringLiteral("org.example"), "color-scheme", 1U, {}},
    };
    for (const PortalRow& row : rows) {
        SCOPED_TRACE(row.space.toStdString() + " " + row.key);
        DesktopLook look;
        look.take(row.space, QString::fromUtf8(row.key), row.value);
        EXPECT_EQ(look, row.look);
    }
}

TEST(QuillmereMacAppDelegateTest, TheLastWindowEndsTheProgramUnlessItClosesToTheTray) {
    platform::MemoryPreferences preferences;
    const QuillmereMacAppDelegate delegate(preferences);
    EXPECT_TRUE(delegate.applicationShouldTerminateAfterLastWindowClosed());
    preferences.setBoolean("closeWindowToMenuBar", true);
    EXPECT_FALSE(delegate.applicationShouldTerminateAfterLastWindowClosed());
}

} // namespace
} // namespace quillmere
