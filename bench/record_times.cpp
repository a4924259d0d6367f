// Times of the host's records through D-Bus, against the host at MELVORA_HOST_ADDRESS:
// `record_times CALLS`. Prints median and 99th percentile of STORE and of READ, milliseconds.
#include "hostlink/dbus_host.h"

#include <QCoreApplication>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <stdexcept>
#include <vector>

namespace {

using core::Value;

/// A record of the size of a set-up form's: forty values.
Value record() {
    Value::Array items{"true"};
    for (int i = 0; i < 40; ++i) items.emplace_back(std::to_string(i * 37 % 100));
    return items;
}

void print(int calls, const std::function<void()>& call) {
    std::vector<double> times;
    for (int i = 0; i < calls; ++i) {
        const auto begin = std::chrono::steady_clock::now();
        call();
        const auto end = std::chrono::steady_clock::now();
        times.push_back(std::chrono::duration<double, std::milli>(end - begin).count());
    }
    std::ranges::sort(times);
    std::printf("%.3f %.3f\n", times[times.size() / 2], times[times.size() * 99 / 100]);
}

}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const int calls = argc > 1 ? std::atoi(argv[1]) : 0;
    if (calls < 1) return 2;
    try {
        hostlink::DbusHost host;
        const Value kept = record();
        Value result;
        const auto store = [&] {
            if (!host.request("STORE", Value::Array{"zepha9", "E1", kept}, result))
                throw std::runtime_error("STORE was refused");
        };
        store();
        print(calls, store);
        print(calls, [&] {
            if (!host.request("READ", Value::Array{"zepha9", "E1"}, result) || result != kept)
                throw std::runtime_error("READ gave another record");
        });
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "record_times: %s\n", error.what());
        return 1;
    }
}
