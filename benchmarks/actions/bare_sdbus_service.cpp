// The least that the session bus can start and call through sd-bus: one method, which answers a
// text.

#include <systemd/sd-bus.h>

#include <cstdlib>

namespace {

int adjust(sd_bus_message* call, void* /*unused*/, sd_bus_error* /*error*/) {
    return sd_bus_reply_method_return(call, "s", "Done.");
}

const sd_bus_vtable table[] = {
    SD_BUS_VTABLE_START(0),
    SD_BUS_METHOD("AdjustTimeBank", "x", "s", adjust, SD_BUS_VTABLE_UNPRIVILEGED),
    SD_BUS_VTABLE_END,
};

} // namespace

int main() {
    sd_bus* bus = nullptr;
    if (sd_bus_open_user(&bus) < 0 ||
        sd_bus_add_object_vtable(bus, nullptr, "/bare", "bare.Interface", table, nullptr) < 0 ||
        sd_bus_request_name(bus, "bare.SdBus", 0) < 0) {
        return EXIT_FAILURE;
    }
    while (sd_bus_process(bus, nullptr) > 0 || sd_bus_wait(bus, UINT64_MAX) >= 0) {
    }
    return EXIT_SUCCESS;
}
