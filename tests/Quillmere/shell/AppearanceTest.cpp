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
    struct Row {
        const char* stored;
        bool desktopDark;
        bool dark;
    };
    for (const Row row :
         {Row{"system", true, true}, Row{"system", false, false}, Row{"light", true, false},
          Row{"dark", false, true}, Row{"sepia", true, true}}) {
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
    struct Row {
        QString space;
        const char* key;
        QVariant value;
        DesktopLook look;
    };
    const std::vector<Row> rows{
        {freedesktop, "color-scheme", 1U, {.prefersDark = true}},
        {freedesktop, "color-scheme", 2U, {.prefersDark = false}},
        {freedesktop, "color-scheme", 0U, {}},
        {freedesktop, "color-scheme", 7U, {}},
        {freedesktop, "contrast", 1U, {.highContrast = true}},
        {freedesktop, "reduced-motion", 1U, {.reducedMotion = true}},
        {freedesktop, "accent-color", 1U, {}},
        {QStringLiteral("org.gnome.desktop.interface"),
         "enable-animations",
         false,
         {.reducedMotion = true}},
        {QStringLiteral("org.gnome.desktop.interface"), "enable-animations", true, {}},
        {QStringLiteral("org.gnome.desktop.a11y.interface"),
         "high-contrast",
         true,
         {.highContrast = true}},
        {QStringLiteral("org.example"), "color-scheme", 1U, {}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.space.toStdString() + " " + row.key);
        DesktopLook look;
        look.take(row.space, QString::fromUtf8(row.key), row.value);
        EXPECT_EQ(look, row.look);
    }
}

TEST(QuillmereMacAppDelegateTest, TheLastWindowEndsTheProgramUnlessThereIsATrayToComeBackFrom) {
    struct Row {
        std::optional<bool> closesToTray;
        bool trayHost;
        bool terminates;
    };
    for (const Row row : {Row{{}, true, true}, Row{false, true, true}, Row{true, true, false},
                          Row{true, false, true}}) {
        platform::MemoryPreferences preferences;
        if (row.closesToTray) {
            preferences.setBoolean("closeWindowToMenuBar", *row.closesToTray);
        }
        const QuillmereMacAppDelegate delegate(preferences, [&row] { return row.trayHost; });
        EXPECT_EQ(delegate.applicationShouldTerminateAfterLastWindowClosed(), row.terminates);
    }
}

} // namespace
} // namespace quillmere
