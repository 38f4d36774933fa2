#pragma once

namespace platform::store {

/// What a context knows of its live queries. Publishing first brings all of them up to date, then
/// tells the observers, so that an observer of one finds the others true as well.
class LiveQueryBase {
public:
    virtual ~LiveQueryBase() = default;
    /// Takes in what was staged.
    virtual void applyStaged() = 0;
    /// Tells the observers what the latest `applyStaged` changed. May destroy the query.
    virtual void notify() = 0;
};

} // namespace platform::store
