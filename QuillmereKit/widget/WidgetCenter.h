#pragma once

namespace quillmere {

/// Whoever draws widgets, as this system reaches them: a signal on the session bus.
class WidgetCenter {
public:
    static constexpr const char* busPath = "/dev/vantor/quillmere/Widgets";
    static constexpr const char* busInterface = "dev.vantor.quillmere.Widgets";
    static constexpr const char* reloadSignal = "ReloadAllTimelines";

    WidgetCenter() = default;
    WidgetCenter(const WidgetCenter&) = delete;
    WidgetCenter& operator=(const WidgetCenter&) = delete;
    virtual ~WidgetCenter() = default;

    /// Asks them to read the snapshot again. Never fails visibly: where there is no session bus,
    /// there is nobody to ask.
    virtual void reloadAllTimelines() = 0;
};

} // namespace quillmere
