#pragma once

#include "Quillmere/dashboard/DashboardViewModel.h"
#include "tests/Quillmere/dashboard/ManualCountdown.h"
#include "tests/Quillmere/support/StoreFixture.h"

#include <QtCore/QUrl>

namespace quillmere {

/// The overview on a store in memory, with a countdown the test moves.
class DashboardFixture : public StoreFixture {
    Q_OBJECT
    Q_PROPERTY(quillmere::DashboardViewModel* model READ model CONSTANT)
    Q_PROPERTY(int storedRangeDays READ storedRangeDays)
    Q_PROPERTY(QUrl openedURL MEMBER openedURL_)

public:
    DashboardFixture();
    ~DashboardFixture() override;

    [[nodiscard]] DashboardViewModel* model() { return &model_; }
    [[nodiscard]] int storedRangeDays();

    Q_INVOKABLE void record(int minutes, int secondsAgo, const QString& note);
    Q_INVOKABLE void removeAll();
    Q_INVOKABLE void passSeconds(int seconds) {
        countdown_->advance(std::chrono::seconds(seconds));
    }
    Q_INVOKABLE void openURL(const QUrl& url) { openedURL_ = url; }

private:
    ManualCountdown* countdown_ = new ManualCountdown;
    DashboardViewModel model_{session(), appState(), preferences(),
                              std::unique_ptr<Countdown>(countdown_)};
    QUrl openedURL_;
};

} // namespace quillmere
