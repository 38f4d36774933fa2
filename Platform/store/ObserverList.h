#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace platform::store {

/// Ends an observation when destroyed; may outlive what is observed.
using Subscription = std::shared_ptr<void>;

/// Functions to call, each until its subscription ends. Calls may add and end observations, and may
/// destroy the list. For one thread.
template <class... Arguments>
class ObserverList {
public:
    using Observer = std::function<void(Arguments...)>;

    [[nodiscard]] Subscription add(Observer observer) {
        auto held = std::make_shared<Observer>(std::move(observer));
        std::erase_if(observers_, [](const auto& weak) { return weak.expired(); });
        observers_.push_back(held);
        return held;
    }

    /// Calls the observers there are now.
    void notify(Arguments... arguments) const {
        const std::vector<std::weak_ptr<Observer>> observers = observers_;
        for (const auto& weak : observers) {
            if (const auto observer = weak.lock()) {
                (*observer)(arguments...);
            }
        }
    }

private:
    std::vector<std::weak_ptr<Observer>> observers_;
};

} // namespace platform::store
