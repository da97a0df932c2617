// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Runs the measured operations through Google Benchmark and closes with a table of the pairs: speed, instructions
/// and cycles of an element, ratio, and peak memory beside the document's own bytes.
///
/// Peak memory is the high-water mark of a whole process, and memory that was used before costs less than new one, so
/// each operation also gets a process of its own: the program starts itself again with `--first <case> <file>`.

#include <benchmark/benchmark.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "bench/cases.h"
#include "bench/cost_meter.h"
#include "bench/palette_text.h"

namespace {

using vyr_bench::s_case;
using vyr_bench::s_cost;
using vyr_bench::s_input;

constexpr double k_mega = 1e6;

/// High-water mark of this process in bytes.
double peak_memory() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_maxrss) * 1024;
}

/// Documents of one colour, as many as one operation loads.
std::vector<std::string> short_documents() {
    constexpr std::size_t count = 1000;
    return std::vector<std::string>(count, vyr_bench::palette_text(1));
}

/// The child's side: prints by how many bytes the operation raised the high-water mark, and what it cost in a process
/// that has done nothing before.
int measure_first(std::size_t index, const std::string& path) {
    s_input input{{}, path, path + "z", short_documents()};
    std::ifstream file(path, std::ios::binary);
    input.bytes.resize(std::filesystem::file_size(path));
    file.read(input.bytes.data(), static_cast<std::streamsize>(input.bytes.size()));
    const auto run = vyr_bench::cases().at(index).prepare(input);
    const double before = peak_memory();
    vyr_bench::c_cost_meter meter;
    meter.start();
    const auto result = run();
    meter.stop();
    if (!result) return EXIT_FAILURE;
    const s_cost cost = meter.total();
    std::cout << peak_memory() - before << ' ' << (cost.cycles > 0 ? cost.cycles : cost.seconds) << '\n';
    return EXIT_SUCCESS;
}

/// What an operation takes that is the first of its process: memory, and cycles or seconds. Negative numbers if the
/// process failed.
struct s_first_run {
    double peak = -1;
    double cost = -1;
};

s_first_run first_run_of(std::size_t index, const std::string& path) {
    const std::string program = std::filesystem::read_symlink("/proc/self/exe");
    const std::string command = "'" + program + "' --first " + std::to_string(index) + " '" + path + "'";
    FILE* pipe = popen(command.c_str(), "r");
    s_first_run run;
    if (pipe == nullptr) return run;
    const bool is_read = std::fscanf(pipe, "%lf %lf", &run.peak, &run.cost) == 2;
    return pclose(pipe) == 0 && is_read ? run : s_first_run{};
}

constexpr char k_instructions[] = "instructions";
constexpr char k_cycles[] = "cycles";

/// Prints as usual and keeps the best of each case's runs.
class c_reporter : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs) {
            if (run.run_type != Run::RT_Iteration || run.error_occurred) continue;
            const s_cost cost{run.real_accumulated_time / static_cast<double>(run.iterations),
                              run.counters.at(k_instructions), run.counters.at(k_cycles)};
            const auto [entry, is_new] = m_costs.emplace(run.run_name.function_name, cost);
            s_cost& best = entry->second;
            if (is_new) continue;
            best.seconds = std::min(best.seconds, cost.seconds);
            best.instructions = std::min(best.instructions, cost.instructions);
            best.cycles = std::min(best.cycles, cost.cycles);
        }
    }
    /// Of one element, but for the seconds; null for a case that did not run.
    const s_cost* find(const std::string& name) const {
        const auto found = m_costs.find(name);
        return found == m_costs.end() ? nullptr : &found->second;
    }

private:
    std::map<std::string, s_cost> m_costs;
};

/// The text that a case works on, as far as its size goes.
double size_of(const s_case& row, const s_input& input) {
    if (!row.takes_short_documents) return static_cast<double>(input.bytes.size());
    return static_cast<double>(input.short_documents.front().size() * input.short_documents.size());
}

double count_elements(const std::string& text) {
    double count = 0;
    for (std::size_t at = text.find('<'); at != text.npos; at = text.find('<', at + 1)) {
        if (text[at + 1] != '/' && text[at + 1] != '?') ++count;
    }
    return count;
}

void measure(benchmark::State& state, const s_case& row, const s_input& input) {
    const auto run = row.prepare(input);
    vyr_bench::c_cost_meter meter;
    for (auto _ : state) {
        meter.start();
        auto result = run();
        meter.stop();
        state.PauseTiming();
        if (!result) {
            state.SkipWithError("the operation failed");
            return;
        }
        result.reset();
        state.ResumeTiming();
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) *
                            static_cast<std::int64_t>(size_of(row, input)));
    const s_cost cost = meter.total();
    const double in_one = row.takes_short_documents ? count_elements(input.short_documents.front()) *
                                                          static_cast<double>(input.short_documents.size())
                                                    : count_elements(input.bytes);
    const double elements = in_one * static_cast<double>(state.iterations());
    state.counters[k_instructions] = cost.instructions / elements;
    state.counters[k_cycles] = cost.cycles / elements;
}

/// The ratio is that of the cycles, if they are counted, or of the time.
void print_pairs(const c_reporter& reporter, const s_input& input) {
    const auto size = static_cast<double>(input.bytes.size());
    const std::string scope = vyr_bench::c_cost_meter().scope();
    std::printf("\ndocument: %.1f MB; peak memory is beside the document, as a multiple of its size\n",
                size / k_mega);
    if (scope.empty()) {
        std::printf("the system counts no instructions; ratios are of time\n");
    } else {
        std::printf("instructions and cycles are those of one element, %s; ratios are of cycles\n", scope.c_str());
    }
    std::printf("\"first\" is the ratio of the first run in a new process, \"ratio\" that of each further one\n");
    std::printf("%-16s%9s%8s%8s%9s%9s%9s%8s%8s%9s%7s%7s\n", "", "vyr MB/s", "instr.", "cycles", "peak", "beside",
                "MB/s", "instr.", "cycles", "peak", "ratio", "first");
    const auto& rows = vyr_bench::cases();
    for (std::size_t i = 0; i + 1 < rows.size(); i += 2) {
        const s_cost* const vyr = reporter.find(rows[i].name);
        const s_cost* const other = reporter.find(rows[i + 1].name);
        if (vyr == nullptr || other == nullptr) continue;  // left out by --benchmark_filter
        const auto print_side = [&](const s_cost& cost, const s_first_run& first) {
            const double row_size = size_of(rows[i], input);
            std::printf("%9.1f%8.0f%8.0f%8.2fx", row_size / cost.seconds / k_mega, cost.instructions, cost.cycles,
                        first.peak / row_size);
        };
        const s_first_run first = first_run_of(i, input.path);
        const s_first_run other_first = first_run_of(i + 1, input.path);
        const double ratio = vyr->cycles > 0 ? other->cycles / vyr->cycles : other->seconds / vyr->seconds;
        std::printf("%-16s", rows[i].name.substr(4).c_str());
        print_side(*vyr, first);
        std::printf("%9s", rows[i + 1].name.substr(0, rows[i + 1].name.find(' ')).c_str());
        print_side(*other, other_first);
        std::printf("%7.2f%7.2f\n", ratio, other_first.cost / first.cost);
    }
}

/// Takes `--colors=N` out of the arguments; 8,000 colours make 40 MB.
std::size_t take_colors(int& argc, char** argv) {
    std::size_t colors = 8000;
    const auto is_ours = [&colors](const char* argument) {
        const std::string text = argument;
        if (!text.starts_with("--colors=")) return false;
        colors = std::strtoull(text.c_str() + 9, nullptr, 10);
        return true;
    };
    argc = static_cast<int>(std::remove_if(argv + 1, argv + argc, is_ours) - argv);
    return colors;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc == 4 && std::string(argv[1]) == "--first")
        return measure_first(std::strtoull(argv[2], nullptr, 10), argv[3]);

    const std::size_t colors = take_colors(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return EXIT_FAILURE;

    s_input input{vyr_bench::palette_text(colors),
                  std::filesystem::temp_directory_path() / ("vyr_bench." + std::to_string(getpid()) + ".vyr"),
                  {},
                  short_documents()};
    input.container_path = input.path + "z";
    if (!vyr_bench::is_sound(input.bytes, input.container_path)) {
        std::cerr << "the palette does not load, or is not written back byte for byte\n";
        return EXIT_FAILURE;
    }
    std::ofstream(input.path, std::ios::binary) << input.bytes;

    std::set<std::string> names;
    for (const s_case& row : vyr_bench::cases()) {
        if (!names.insert(row.name).second) continue;  // stands beside more than one
        benchmark::RegisterBenchmark(row.name.c_str(),
                                     [&row, &input](benchmark::State& state) { measure(state, row, input); })
            ->Unit(benchmark::kMillisecond)
            ->UseRealTime();
    }
    c_reporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    print_pairs(reporter, input);
    std::filesystem::remove(input.path);
    std::filesystem::remove(input.container_path);
    return EXIT_SUCCESS;
}
