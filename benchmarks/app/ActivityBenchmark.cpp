// Opening the Activity screen to its first frame, with 100,000 changes and with a screenful of
// them.

#include "Platform/log/MemoryLogSink.h"
#include "Platform/store/Context.h"
#include "Quillmere/history/HistoryViewModel.h"
#include "Quillmere/shell/AppState.h"
#include "Quillmere/shell/StoreSession.h"
#include "Quillmere/shell/TimeFollower.h"
#include "QuillmereKit/persistence/QuillmerePersistence.h"

#include <QtGui/QGuiApplication>
#include <QtQml/QQmlEngine>
#include <QtQuick/QQuickView>

#include <benchmark/benchmark.h>

#include <memory>
#include <string>

namespace quillmere {
namespace {

using platform::store::LiveState;
using platform::store::Store;

constexpr int manyChanges = 100'000;
constexpr int screenful = 12;

/// A store in memory with its history loaded, some fifty changes a day.
class TimeBank {
public:
    explicit TimeBank(int count) {
        const auto context = store_->makeContext({clock_, time_});
        for (int i = 0; i < count; ++i) {
            const auto date = time_.now() - 1728.0 * i;
            context->insert(std::make_unique<BalanceAdjustment>(
                platform::Uuid::random(), date, i % 2 == 0 ? 45 : -30,
                "Change " + std::to_string(i), BalanceAdjustmentKind::manual, date, date));
        }
        context->save();
        session_ = std::make_unique<StoreSession>(store_, time_);
        while (session_->adjustments().state() == LiveState::loading) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
    }

    std::unique_ptr<HistoryViewModel> makeModel() {
        return std::make_unique<HistoryViewModel>(*session_, appState_, PersistenceMode::localOnly);
    }

private:
    platform::SystemClock clock_;
    TimeFollower time_{clock_};
    platform::MemoryLogSink log_;
    AppState appState_{log_};
    std::shared_ptr<Store> store_ =
        Store::open(QuillmerePersistence::schema(), {.file = {}, .inMemory = true});
    std::unique_ptr<StoreSession> session_;
};

void open(benchmark::State& state, int count) {
    TimeBank timeBank(count);
    QQmlEngine engine;
    engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    for ([[maybe_unused]] auto _ : state) {
        const auto model = timeBank.makeModel();
        QQuickView view(&engine, nullptr);
        view.setResizeMode(QQuickView::SizeRootObjectToView);
        view.resize(980, 700);
        view.setInitialProperties({{QStringLiteral("model"), QVariant::fromValue(model.get())}});
        view.setSource(QUrl(QStringLiteral("qrc:/qt/qml/Quillmere/history/HistoryView.qml")));
        view.show();
        benchmark::DoNotOptimize(view.grabWindow());
    }
}

void openActivity(benchmark::State& state) {
    open(state, manyChanges);
}
BENCHMARK(openActivity)->Unit(benchmark::kMillisecond);

void openActivityOfAScreenful(benchmark::State& state) {
    open(state, screenful);
}
BENCHMARK(openActivityOfAScreenful)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace quillmere

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    const QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
