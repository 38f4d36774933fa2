#include "Quillmere/theme/Contrast.h"

#include <QtCore/QtPlugin>
#include <QtQml/QQmlComponent>
#include <QtQml/QQmlEngine>
#include <QtTest/QTest>

#include <gtest/gtest.h>

#include <memory>

Q_IMPORT_PLUGIN(Quillmere_themePlugin)

namespace quillmere {

namespace {

class ThemeTest : public testing::Test {
protected:
    ThemeTest() { engine_.addImportPath(QStringLiteral("qrc:/qt/qml")); }

    std::unique_ptr<QObject> create(const QByteArray& body) {
        QQmlComponent component(&engine_);
        component.setData("import QtQuick\nimport Quillmere.theme\n" + body, QUrl());
        std::unique_ptr<QObject> object(component.create());
        EXPECT_TRUE(object) << component.errorString().toStdString();
        return object;
    }

private:
    QQmlEngine engine_;
};

} // namespace

TEST_F(ThemeTest, textReadsOnEverySurface) {
    const auto theme = create("QtObject { property QtObject theme: Theme }");
    QObject* colors = theme->property("theme").value<QObject*>();
    const auto color = [colors](const char* name) {
        return colors->property(name).value<QColor>();
    };
    for (const bool dark : {false, true}) {
        for (const bool highContrast : {false, true}) {
            colors->setProperty("dark", dark);
            colors->setProperty("highContrast", highContrast);
            std::vector<const char*> texts{"primary", "secondary", "placeholder", "accentText"};
            if (highContrast) {
                texts.insert(texts.end(), {"alertText", "warmText"});
            }
            for (const char* text : texts) {
                for (const char* surface : {"window", "sheet", "popover", "card", "control",
                                            "controlHover", "hardestSurface"}) {
                    SCOPED_TRACE(std::string(text) + " on " + surface + (dark ? ", dark" : "") +
                                 (highContrast ? ", high contrast" : ""));
                    const QColor ground = blended(color(surface), color("window"));
                    EXPECT_GE(contrastRatio(blended(color(text), ground), ground), 4.5);
                }
            }
            for (const char* button : {"prominent", "prominentHover", "prominentPressed"}) {
                SCOPED_TRACE(button);
                EXPECT_GE(contrastRatio(color("prominentText"), color(button)), 4.5);
            }
            EXPECT_GE(contrastRatio(color("focus"), color("window")), 3);
        }
    }
}

TEST_F(ThemeTest, springsUnlessMotionIsReduced) {
    const auto item = create("Item { property bool reduced: false; property real highest: 0\n"
                             "onReducedChanged: Theme.reducedMotion = reduced\n"
                             "onXChanged: highest = Math.max(highest, x)\n"
                             "Behavior on x { SpringMotion {} } }");
    item->setProperty("x", 1000);
    EXPECT_EQ(item->property("x"), 0) << "it takes its time";
    ASSERT_TRUE(QTest::qWaitFor([&] { return item->property("x") == 1000; }, 30'000));
    EXPECT_GT(item->property("highest").toDouble(), 1000);

    item->setProperty("reduced", true);
    item->setProperty("x", 500);
    EXPECT_EQ(item->property("x"), 500);
}

// Whatever the font: digits take equal room, and the text keeps its own.
TEST_F(ThemeTest, givesDigitsEqualRoom) {
    for (const char* family : {"DejaVu Sans", "Inter", "C059"}) {
        SCOPED_TRACE(family);
        const auto width = [&](const char* text) {
            const QByteArray body = QByteArray("MonospacedDigits { font.family: \"") + family +
                                    "\"; font.pixelSize: 40; text: \"" + text + "\" }";
            return create(body)->property("implicitWidth").toDouble();
        };
        EXPECT_NEAR(width("+1:11"), width("+4:08"), 1);
        EXPECT_LT(width("+1:11"), width("+11:11"));
    }
}

} // namespace quillmere
