// Starts a program and prints its process number and the milliseconds until it has mapped a window
// and until something stands in it: `window_time PROGRAM [ARGUMENT...]`. The program goes on.
#include <spawn.h>
#include <unistd.h>
#include <xcb/xcb.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <stdexcept>
#include <thread>

namespace {

using Clock = std::chrono::steady_clock;

struct Free {
    void operator()(void* p) const { std::free(p); }
};
template <class T>
using Reply = std::unique_ptr<T, Free>;

constexpr auto longest = std::chrono::seconds(20);
constexpr auto glance = std::chrono::microseconds(500);

class Screen {
  public:
    Screen() : connection_(xcb_connect(nullptr, nullptr)) {
        if (xcb_connection_has_error(connection_)) throw std::runtime_error("no display");
        root_ = xcb_setup_roots_iterator(xcb_get_setup(connection_)).data->root;
        const std::uint32_t events = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
        xcb_change_window_attributes(connection_, root_, XCB_CW_EVENT_MASK, &events);
        sync();
    }
    ~Screen() { xcb_disconnect(connection_); }
    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;

    /// The next window that is mapped on the screen.
    xcb_window_t mapped(Clock::time_point limit) {
        for (; Clock::now() < limit; std::this_thread::sleep_for(glance))
            while (const Reply<xcb_generic_event_t> event{xcb_poll_for_event(connection_)}) {
                if ((event->response_type & 0x7F) != XCB_MAP_NOTIFY) continue;
                const auto* map = reinterpret_cast<xcb_map_notify_event_t*>(event.get());
                if (map->event == root_ && !map->override_redirect) return map->window;
            }
        throw std::runtime_error("no window came");
    }

    /// Waits until the middle row of a window is not of the screen's black any more.
    void painted(xcb_window_t window, Clock::time_point limit) {
        const Reply<xcb_get_geometry_reply_t> size{
            xcb_get_geometry_reply(connection_, xcb_get_geometry(connection_, window), nullptr)};
        for (; size && Clock::now() < limit; std::this_thread::sleep_for(glance)) {
            const auto cookie =
                xcb_get_image(connection_, XCB_IMAGE_FORMAT_Z_PIXMAP, window, 0,
                              static_cast<std::int16_t>(size->height / 2), size->width, 1, ~0U);
            const Reply<xcb_get_image_reply_t> image{
                xcb_get_image_reply(connection_, cookie, nullptr)};
            if (!image) continue;
            const std::uint8_t* bytes = xcb_get_image_data(image.get());
            if (std::any_of(bytes, bytes + xcb_get_image_data_length(image.get()),
                            [](std::uint8_t byte) { return byte != 0; }))
                return;
        }
        throw std::runtime_error("the window stays empty");
    }

  private:
    void sync() {
        const Reply<xcb_get_input_focus_reply_t> reply{
            xcb_get_input_focus_reply(connection_, xcb_get_input_focus(connection_), nullptr)};
    }

    xcb_connection_t* connection_;
    xcb_window_t root_ = 0;
};

double since(Clock::time_point begin) {
    return std::chrono::duration<double, std::milli>(Clock::now() - begin).count();
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 2) return 2;
    try {
        Screen screen;
        const auto begin = Clock::now();
        const auto limit = begin + longest;
        pid_t process = 0;
        if (posix_spawnp(&process, argv[1], nullptr, nullptr, argv + 1, environ) != 0)
            throw std::runtime_error("cannot be started");
        std::printf("%d", static_cast<int>(process));
        std::fflush(stdout);
        const xcb_window_t window = screen.mapped(limit);
        const double mapped = since(begin);
        screen.painted(window, limit);
        std::printf(" %.2f %.2f\n", mapped, since(begin));
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "window_time: %s: %s\n", argv[1], error.what());
        return 1;
    }
}
