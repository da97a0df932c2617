// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "bench/cost_meter.h"

#if defined(__linux__)
#include <linux/perf_event.h>
#include <sys/ioctl.h>
#include <sys/syscall.h>
#include <unistd.h>
#endif

#include <cstdint>

namespace vyr_bench {

#if defined(__linux__)

bool c_cost_meter::open(bool with_kernel) {
    constexpr std::array<std::uint64_t, 2> events = {PERF_COUNT_HW_INSTRUCTIONS, PERF_COUNT_HW_CPU_CYCLES};
    for (std::size_t i = 0; i < events.size(); ++i) {
        perf_event_attr attributes{};
        attributes.size = sizeof attributes;
        attributes.type = PERF_TYPE_HARDWARE;
        attributes.config = events[i];
        attributes.disabled = i == 0;  // the others follow the first
        attributes.exclude_kernel = !with_kernel;
        attributes.exclude_hv = 1;
        m_counters[i] = static_cast<int>(syscall(SYS_perf_event_open, &attributes, 0, -1, m_counters[0], 0));
        if (m_counters[i] >= 0) continue;
        close();
        return false;
    }
    return true;
}

void c_cost_meter::close() {
    for (int& counter : m_counters) {
        if (counter >= 0) ::close(counter);
        counter = -1;
    }
}

c_cost_meter::c_cost_meter() { m_scope = open(true) ? "user and kernel" : open(false) ? "user" : ""; }

void c_cost_meter::start() {
    m_start = std::chrono::steady_clock::now();
    if (m_counters[0] >= 0) ioctl(m_counters[0], PERF_EVENT_IOC_ENABLE, PERF_IOC_FLAG_GROUP);
}

void c_cost_meter::stop() {
    if (m_counters[0] >= 0) ioctl(m_counters[0], PERF_EVENT_IOC_DISABLE, PERF_IOC_FLAG_GROUP);
    m_seconds += std::chrono::duration<double>(std::chrono::steady_clock::now() - m_start).count();
}

s_cost c_cost_meter::total() const {
    const auto count = [](int counter) {
        std::uint64_t value = 0;
        return counter >= 0 && read(counter, &value, sizeof value) == sizeof value ? static_cast<double>(value) : 0.0;
    };
    return {m_seconds, count(m_counters[0]), count(m_counters[1])};
}

#else

bool c_cost_meter::open(bool) { return false; }
void c_cost_meter::close() {}
c_cost_meter::c_cost_meter() = default;
void c_cost_meter::start() { m_start = std::chrono::steady_clock::now(); }
void c_cost_meter::stop() {
    m_seconds += std::chrono::duration<double>(std::chrono::steady_clock::now() - m_start).count();
}
s_cost c_cost_meter::total() const { return {m_seconds, 0, 0}; }

#endif

c_cost_meter::~c_cost_meter() { close(); }

}  // namespace vyr_bench
