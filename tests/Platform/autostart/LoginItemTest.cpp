#include "Platform/autostart/LoginItem.h"

#include "Platform/autostart/LoginItemsSettings.h"
#include "Platform/files/Files.h"
#include "tests/Platform/files/TestFolder.h"

#include <gtest/gtest.h>

#include <fstream>

namespace platform {
namespace {

namespace fs = std::filesystem;

using Status = LoginItem::Status;

class LoginItemTest : public testing::Test {
protected:
    LoginItem item(const fs::path& program = "/usr/bin/reminders") const {
        return {folder_.path() / "config", "org.example.reminders", "Reminders", program};
    }

    fs::path file() const {
        return folder_.path() / "config/autostart/org.example.reminders.desktop";
    }

    void write(const std::string& text) const {
        fs::create_directories(file().parent_path());
        std::ofstream(file()) << text;
    }

    std::string text() const { return readFile(file(), 4096); }

    TestFolder folder_;
};

TEST_F(LoginItemTest, isAnEntryOfTheAutostartFolder) {
    LoginItem reminders = item();
    EXPECT_EQ(reminders.status(), Status::notRegistered);
    reminders.add();
    EXPECT_EQ(reminders.status(), Status::enabled);
    EXPECT_EQ(text(), "[Desktop Entry]\nType=Application\nName=Reminders\n"
                      "Exec=\"/usr/bin/reminders\"\nIcon=org.example.reminders\n"
                      "Terminal=false\nX-GNOME-Autostart-enabled=true\n");
    item("/opt/reminders").add();
    EXPECT_NE(text().find("/opt/reminders"), std::string::npos) << "the program has moved";
    reminders.remove();
    EXPECT_EQ(reminders.status(), Status::notRegistered);
    EXPECT_FALSE(fs::exists(file()));
    EXPECT_NO_THROW(reminders.remove());
}

TEST_F(LoginItemTest, isReadAsDesktopsReadIt) {
    const struct {
        const char* name;
        const char* text;
        Status status;
    } rows[] = {
        {"enabled", "[Desktop Entry]\nExec=reminders\n", Status::enabled},
        {"hidden", "[Desktop Entry]\nExec=reminders\nHidden=true\n", Status::requiresApproval},
        {"hidden, with blanks", "[Desktop Entry]\r\nHidden = true \r\n", Status::requiresApproval},
        {"not hidden", "[Desktop Entry]\nHidden=false\n", Status::enabled},
        {"off in GNOME", "[Desktop Entry]\nX-GNOME-Autostart-enabled=false",
         Status::requiresApproval},
        {"on in GNOME", "[Desktop Entry]\nX-GNOME-Autostart-enabled=true", Status::enabled},
        {"hidden in another group", "[Desktop Entry]\nExec=a\n[Desktop Action x]\nHidden=true\n",
         Status::enabled},
        {"hidden in a comment", "[Desktop Entry]\nExec=a\n#Hidden=true\n", Status::enabled},
        {"without its group", "Exec=reminders\n", Status::notRegistered},
        {"empty", "", Status::notRegistered},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        write(row.text);
        EXPECT_EQ(item().status(), row.status);
        item().add();
        EXPECT_EQ(item().status(), row.status == Status::requiresApproval ? Status::requiresApproval
                                                                          : Status::enabled);
    }
}

TEST_F(LoginItemTest, quotesWhatTheDesktopWouldInterpret) {
    item("/opt/my \"$best`/100%\\x").add();
    EXPECT_NE(text().find(R"(Exec="/opt/my \\"\\$best\\`/100%%\\\\x")"), std::string::npos)
        << text();
}

TEST(LoginItemsSettings, areThoseOfTheDesktopInUse) {
    const TestFolder folder;
    const std::string first = folder.path() / "first";
    const std::string second = folder.path() / "second";
    const auto install = [](const fs::path& program) {
        fs::create_directories(program.parent_path());
        std::ofstream(program) << "";
        fs::permissions(program, fs::perms::owner_all);
    };
    install(fs::path(first) / "gnome-control-center");
    install(fs::path(second) / "gnome-tweaks");
    install(fs::path(second) / "xfce4-session-settings");
    const struct {
        const char* desktop;
        std::string path;
        std::string command;
    } rows[] = {
        {"GNOME", first, "gnome-control-center applications "},
        {"ubuntu:GNOME", first + ":" + second, "gnome-tweaks "},
        {"XFCE", first + "::" + second, "xfce4-session-settings "},
        {"XFCE", first, ""},
        {"KDE", first + ":" + second, ""},
        {"", second, ""},
        {"GNOME", "", ""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(std::string(row.desktop) + " " + row.path);
        std::string command;
        for (const auto& word :
             loginItemsSettings(row.desktop, row.path).value_or(std::vector<std::string>{})) {
            command += word + " ";
        }
        EXPECT_EQ(command, row.command);
    }
}

} // namespace
} // namespace platform
