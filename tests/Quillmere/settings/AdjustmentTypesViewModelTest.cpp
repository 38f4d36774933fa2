#include "Quillmere/settings/AdjustmentTypesViewModel.h"

#include "Platform/store/Context.h"
#include "tests/Quillmere/dashboard/TimeBankFixture.h"

#include <QtTest/QAbstractItemModelTester>
#include <QtTest/QSignalSpy>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace quillmere {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class AdjustmentTypesViewModelTest : public TimeBankFixture {
protected:
    AdjustmentTypesViewModel& open() {
        return *models_.emplace_back(
            std::make_unique<AdjustmentTypesViewModel>(session(), appState_));
    }

    static std::vector<std::string> titles(AdjustmentTypesViewModel& model) {
        std::vector<std::string> result;
        for (const auto& category : model.customCategories()->categories()) {
            result.push_back(category.title());
        }
        return result;
    }

    static std::string shown(AdjustmentTypesViewModel& model) {
        std::string result;
        auto& kinds = *model.kinds();
        for (int row = 0; row < kinds.rowCount(); ++row) {
            const QModelIndex index = kinds.index(row);
            if (index.data(AdjustmentKindListModel::ShownRole).toBool()) {
                result +=
                    index.data(AdjustmentKindListModel::RawValueRole).toString().toStdString();
                result += ' ';
            }
        }
        return result;
    }

    static void add(AdjustmentTypesViewModel& model, const std::string& title) {
        model.setNewAdjustmentCategoryName(QString::fromStdString(title));
        model.add();
    }

    std::vector<std::unique_ptr<AdjustmentTypesViewModel>> models_;
};

TEST_F(AdjustmentTypesViewModelTest, SavesEachChangeAndFollowsThatOfAnotherView) {
    TimeBankSettings& settings = setUp();
    auto& model = open();
    auto& other = open();
    EXPECT_EQ(shown(other), "appointment personalErrands longLunch other ");
    const QSignalSpy changes(other.kinds(), &AdjustmentKindListModel::dataChanged);
    clock_.advance(90);
    model.toggleKind(2);
    add(model, "  School \n run ");
    EXPECT_EQ(shown(other), "appointment personalErrands other ");
    EXPECT_EQ(changes.count(), 1);
    EXPECT_THAT(titles(other), ElementsAre("School run"));
    EXPECT_EQ(settings.visibleAdjustmentKindsRawValue(), "appointment,personalErrands,other");
    EXPECT_EQ(settings.customAdjustmentCategoriesRawValue(), R"(["School run"])");
    EXPECT_EQ(settings.modifiedAt(), now + 90);
    EXPECT_FALSE(session().context().hasChanges());
    other.remove(0);
    other.toggleKind(2);
    EXPECT_THAT(titles(model), IsEmpty());
    EXPECT_EQ(shown(model), "appointment personalErrands longLunch other ");
}

TEST_F(AdjustmentTypesViewModelTest, AddsOnlyTitlesThatAReaderCanTellApart) {
    setUp();
    auto& model = open();
    for (const char* title : {"errands", "Straße", "e\u0301te\u0301"}) {
        add(model, title);
    }
    const struct {
        const char* name;
        std::string typed;
        std::string added; ///< empty when it cannot be
    } rows[] = {
        {"nothing", "", ""},
        {"blanks", " \t\u3000\n", ""},
        {"other case and blanks", "  ERRANDS ", ""},
        {"other encoding", "\u00C9T\u00C9", ""},
        {"sharp s", "Strasse", "Strasse"},
        {"another accent", "ete", "ete"},
        {"a cut behind a blank", std::string(39, 'x') + " yz", std::string(39, 'x')},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        auto before = titles(model);
        model.setNewAdjustmentCategoryName(QString::fromStdString(row.typed));
        EXPECT_EQ(model.canAdd(), !row.added.empty());
        model.add();
        if (!row.added.empty()) {
            before.push_back(row.added);
            EXPECT_EQ(model.newAdjustmentCategoryName(), QString());
            EXPECT_FALSE(model.canAdd());
        }
        EXPECT_EQ(titles(model), before);
    }
}

TEST_F(AdjustmentTypesViewModelTest, HoldsTwentyCategories) {
    setUp();
    auto& model = open();
    const QAbstractItemModelTester tester(model.customCategories(),
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    for (int number = 1; number <= 20; ++number) {
        add(model, "Category " + std::to_string(number));
    }
    EXPECT_EQ(model.customCategories()->rowCount(), 20);
    model.setNewAdjustmentCategoryName(QStringLiteral("One more"));
    EXPECT_FALSE(model.canAdd());
    const QSignalSpy removals(model.customCategories(), &QAbstractItemModel::rowsRemoved);
    model.remove(7);
    ASSERT_EQ(removals.count(), 1);
    EXPECT_EQ(removals[0][1].toInt(), 7);
    EXPECT_EQ(removals[0][2].toInt(), 7) << "the other rows stay";
    EXPECT_TRUE(model.canAdd());
}

TEST_F(AdjustmentTypesViewModelTest, ChangesNothingWhenTheSaveFails) {
    TimeBankSettings& settings = setUp();
    auto& model = open();
    add(model, "Dentist");
    const auto modifiedAt = settings.modifiedAt();
    clock_.advance(60);
    lockStore();
    const std::function<void()> attempts[] = {[&] { model.toggleKind(0); },
                                              [&] { model.remove(0); }, [&] { add(model, "Gym"); }};
    for (const auto& attempt : attempts) {
        attempt();
        EXPECT_EQ(issueTitle(), "Couldn't update adjustment types");
        EXPECT_EQ(shown(model), "appointment personalErrands longLunch other ");
        EXPECT_THAT(titles(model), ElementsAre("Dentist"));
        EXPECT_EQ(settings.modifiedAt(), modifiedAt);
        EXPECT_FALSE(session().context().hasChanges());
        appState_.dismissIssue();
    }
}

TEST_F(AdjustmentTypesViewModelTest, HasNothingToChangeWithoutARecord) {
    auto& model = open();
    EXPECT_EQ(shown(model), "");
    model.toggleKind(0);
    add(model, "Dentist");
    EXPECT_FALSE(session().context().hasChanges());
    EXPECT_EQ(session().settingsRecord(), nullptr);
    setUp();
    EXPECT_TRUE(model.canAdd()) << "as soon as there is one";
}

} // namespace
} // namespace quillmere
