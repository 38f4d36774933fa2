#include "tests/Quillmere/editor/EditorFixture.h"

#include "tests/Quillmere/support/QmlFixture.h"

#include <QtQml/QQmlEngine>

namespace quillmere {

AdjustmentEditorViewModel* EditorFixture::open(int minutes) {
    finishedCount_ = 0;
    adjustment_ = nullptr;
    if (minutes != 0) {
        adjustment_ = &session().context().insert(
            std::make_unique<BalanceAdjustment>(platform::Uuid::random(), start, minutes, "Dentist",
                                                BalanceAdjustmentKind::manual, start, start));
        session().context().save();
    }
    models_.push_back(
        std::make_unique<AdjustmentEditorViewModel>(session(), appState(), adjustment_));
    AdjustmentEditorViewModel* model = models_.back().get();
    connect(model, &AdjustmentEditorViewModel::finished, this, [this] { ++finishedCount_; });
    QQmlEngine::setObjectOwnership(model, QQmlEngine::CppOwnership);
    return model;
}

int EditorFixture::storedMinutes() const {
    return static_cast<int>(adjustment_->minutes());
}

std::unique_ptr<QObject> makeFixture() {
    return std::make_unique<EditorFixture>();
}

} // namespace quillmere
