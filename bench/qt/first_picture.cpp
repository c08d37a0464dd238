// Starts each of two programs in turn, many times, and prints the median time in milliseconds until the command line of its main window is
// painted: first_picture ROUNDS PROGRAM PROGRAM
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>
#include <xcb/xcb.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <thread>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::uint32_t Navy = 0x000040;
constexpr std::int16_t X = (1280 - 665) / 2 + 300, Y = (900 - 562) / 2 + 545;  // in the command line of a window in the middle

bool Painted(xcb_connection_t* connection, xcb_window_t root) {
    const auto cookie = xcb_get_image(connection, XCB_IMAGE_FORMAT_Z_PIXMAP, root, X, Y, 1, 1, ~0U);
    xcb_get_image_reply_t* const reply = xcb_get_image_reply(connection, cookie, nullptr);
    if (reply == nullptr) return false;
    const std::uint8_t* const pixel = xcb_get_image_data(reply);
    const bool painted = (pixel[0] | pixel[1] << 8 | pixel[2] << 16) == static_cast<int>(Navy);
    std::free(reply);
    return painted;
}

double TimeToPicture(char* program, xcb_connection_t* connection, xcb_window_t root) {
    const std::array<char*, 2> arguments{program, nullptr};
    pid_t child = 0;
    const auto start = Clock::now();
    if (posix_spawn(&child, program, nullptr, nullptr, arguments.data(), environ) != 0) std::abort();
    while (!Painted(connection, root)) std::this_thread::sleep_for(std::chrono::microseconds(300));
    const double time = std::chrono::duration<double, std::milli>(Clock::now() - start).count();
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    while (Painted(connection, root)) std::this_thread::sleep_for(std::chrono::milliseconds(1));
    return time;
}

double Median(std::vector<double> times) {
    std::ranges::sort(times);
    return times[times.size() / 2];
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 4) return 2;
    xcb_connection_t* const connection = xcb_connect(nullptr, nullptr);
    if (xcb_connection_has_error(connection) != 0) return 2;
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    std::vector<double> first, second;
    for (int round = std::atoi(argv[1]); round > 0; --round) {
        first.push_back(TimeToPicture(argv[2], connection, root));
        second.push_back(TimeToPicture(argv[3], connection, root));
    }
    std::cout << argv[2] << ' ' << Median(first) << " ms\n"
              << argv[3] << ' ' << Median(second) << " ms\nratio " << Median(second) / Median(first) << '\n';
    xcb_disconnect(connection);
}
