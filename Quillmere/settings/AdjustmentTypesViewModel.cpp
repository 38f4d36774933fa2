#include "Quillmere/settings/AdjustmentTypesViewModel.h"

#include "Platform/store/Context.h"
#include "Platform/text/Collation.h"
#include "Quillmere/shell/AppState.h"
#include "Quillmere/shell/StoreSession.h"
#include "Quillmere/shell/TimeFollower.h"
#include "QuillmereKit/rules/AdjustmentKindConfiguration.h"
#include "QuillmereKit/rules/CustomAdjustmentCategoryConfiguration.h"

#include <algorithm>
#include <utility>

namespace quillmere {

AdjustmentTypesViewModel::AdjustmentTypesViewModel(StoreSession& session, AppState& appState,
                                                   QObject* parent)
    : QObject(parent), session_(session), appState_(appState) {
    connect(&session_, &StoreSession::settingsChanged, this, &AdjustmentTypesViewModel::follow);
    follow();
}

void AdjustmentTypesViewModel::setNewAdjustmentCategoryName(const QString& name) {
    if (name != newName_) {
        newName_ = name;
        emit newAdjustmentCategoryNameChanged();
        updateCandidate();
    }
}

void AdjustmentTypesViewModel::toggleKind(int row) {
    const BalanceAdjustmentKind kind =
        AdjustmentKindConfiguration::configurableKinds.at(static_cast<std::size_t>(row));
    save([kind](TimeBankSettings& settings) {
        auto kinds = AdjustmentKindConfiguration::kinds(settings.visibleAdjustmentKindsRawValue());
        if (kinds.erase(kind) == 0) {
            kinds.insert(kind);
        }
        settings.setVisibleAdjustmentKindsRawValue(AdjustmentKindConfiguration::rawValue(kinds));
    });
}

void AdjustmentTypesViewModel::add() {
    if (!candidate_) {
        return;
    }
    auto categories = customCategories_.categories();
    categories.push_back(*candidate_);
    setNewAdjustmentCategoryName({});
    saveCategories(categories);
}

void AdjustmentTypesViewModel::remove(int row) {
    auto categories = customCategories_.categories();
    categories.erase(categories.begin() + row);
    saveCategories(categories);
}

void AdjustmentTypesViewModel::follow() {
    const TimeBankSettings* settings = session_.settingsRecord();
    kinds_.setShown(
        settings ? AdjustmentKindConfiguration::kinds(settings->visibleAdjustmentKindsRawValue())
                 : std::set<BalanceAdjustmentKind>());
    customCategories_.setCategories(settings ? CustomAdjustmentCategoryConfiguration::categories(
                                                   settings->customAdjustmentCategoriesRawValue())
                                             : std::vector<CustomAdjustmentCategory>());
    updateCandidate();
}

void AdjustmentTypesViewModel::updateCandidate() {
    const bool could = canAdd();
    candidate_ = makeCandidate();
    if (canAdd() != could) {
        emit canAddChanged();
    }
}

std::optional<CustomAdjustmentCategory> AdjustmentTypesViewModel::makeCandidate() const {
    auto candidate = CustomAdjustmentCategory::fromTitle(newName_.toStdString());
    const auto& categories = customCategories_.categories();
    const auto isTaken = [&](const CustomAdjustmentCategory& category) {
        return platform::equalForReaderIgnoringCase(category.title(), candidate->title());
    };
    const bool isPossible = candidate && session_.settingsRecord() != nullptr &&
                            categories.size() < CustomAdjustmentCategory::maximumCount &&
                            std::ranges::none_of(categories, isTaken);
    return isPossible ? candidate : std::nullopt;
}

void AdjustmentTypesViewModel::save(const Edit& edit) {
    TimeBankSettings* settings = session_.settingsRecord();
    if (!settings) {
        return;
    }
    platform::store::Context& context = session_.context();
    try {
        edit(*settings);
        settings->setModifiedAt(session_.time().now());
        context.save();
    } catch (const std::exception& error) {
        context.rollback();
        appState_.report(error, tr("Couldn't update adjustment types"),
                         tr("Your category changes weren't saved. Please try again."));
    }
}

void AdjustmentTypesViewModel::saveCategories(
    const std::vector<CustomAdjustmentCategory>& categories) {
    save([&categories](TimeBankSettings& settings) {
        settings.setCustomAdjustmentCategoriesRawValue(
            CustomAdjustmentCategoryConfiguration::rawValue(categories));
    });
}

} // namespace quillmere
