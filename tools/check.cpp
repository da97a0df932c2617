// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// `vyr check`: validates files and all documents in folders, several at once, and reports in the order of the
/// command line.

#include <algorithm>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <filesystem>
#include <iostream>
#include <mutex>
#include <optional>
#include <system_error>
#include <thread>

#include "tools/commands.h"
#include "tools/files.h"
#include "tools/json.h"
#include "tools/progress.h"
#include "tools/text.h"
#include "tools/warnings.h"

namespace vyr_tool {

namespace {

namespace fs = std::filesystem;
using com_vyrgraph_v2::DocumentFault;
using com_vyrgraph_v2::DocumentReport;

/// A file to check, or a place where none could be looked for.
struct s_job {
    std::string file;
    std::string refusal;
};

/// All documents below a folder, by name. Links to folders are not followed, so there are no circles.
void find_documents(const std::string& folder, std::vector<s_job>& jobs) {
    const std::size_t before = jobs.size();
    std::vector<std::string> pending = {folder};
    while (!pending.empty()) {
        const std::string current = std::move(pending.back());
        pending.pop_back();
        std::error_code refused;
        std::vector<std::string> files;
        std::vector<std::string> folders;
        fs::directory_iterator entry(path_of(current), refused);
        while (!refused && entry != fs::directory_iterator()) {
            std::error_code none;
            const std::string name = name_of(entry->path());
            if (entry->is_directory(none) && !entry->is_symlink(none)) {
                folders.push_back(name);
            } else if (is_document_name(name) && (entry->is_regular_file(none) || !entry->exists(none))) {
                files.push_back(name);
            }
            entry.increment(refused);
        }
        if (refused) jobs.push_back({current, reason(refused)});
        std::ranges::sort(files);
        for (std::string& file : files) jobs.push_back({std::move(file), {}});
        std::ranges::sort(folders, std::greater());
        std::ranges::move(folders, std::back_inserter(pending));
    }
    if (jobs.size() == before) jobs.push_back({folder, "has no file that ends in .vyr or .vyrz"});
}

std::vector<s_job> find_jobs(const std::vector<std::string>& files) {
    std::vector<s_job> jobs;
    for (const std::string& file : files) {
        std::error_code none;
        if (file != k_standard_stream && fs::is_directory(path_of(file), none)) {
            find_documents(file, jobs);
        } else {
            jobs.push_back({file, {}});
        }
    }
    return jobs;
}

/// What came of a file.
struct s_result : s_reading {
    std::vector<s_warning> warnings{};
    std::size_t warning_total = 0;
};

s_result run(const s_job& job, const check_options& options) {
    if (!job.refusal.empty()) return {{.refusal = job.refusal, .report = {}}};
    com_vyrgraph_v2::ReportOptions how;
    how.collect = true;
    how.limit = options.limit;
    com_vyrgraph_v2::Vyr document;
    if (options.warnings.none()) return {read_document(job.file, document, how)};
    c_warnings warnings(options.warnings, options.limit);
    s_result result{read_document(job.file, document, how, [&](std::string_view piece) { warnings.take(piece); })};
    if (!result.refusal.empty()) return result;
    warnings.finish(result.report);
    if (result.report.isOk()) warnings.take_saving(com_vyrgraph_v2::checkWriting(document));
    result.warnings = warnings.found();
    result.warning_total = warnings.total();
    return result;
}

/// One line on the terminal's last row that says how far the work is; none for work that is done soon.
class c_progress {
public:
    using clock = std::chrono::steady_clock;

    c_progress(std::size_t count, bool is_wanted) : m_count(count), m_is_wanted(is_wanted) {}
    void show(std::size_t done, const std::string& file) {
        if (!m_is_wanted || clock::now() - m_start < std::chrono::seconds(1)) return;
        std::string text = "checking " + shown_name(file);
        if (m_count > 1) text = std::to_string(done + 1) + " of " + std::to_string(m_count) + ": " + text;
        show_status(text);
        m_is_shown = true;
    }
    void clear() {
        if (m_is_shown) clear_status();
        m_is_shown = false;
    }

private:
    std::size_t m_count;
    bool m_is_wanted;
    bool m_is_shown = false;
    clock::time_point m_start = clock::now();
};

/// Runs all jobs on several threads and hands the results over on the calling one, in the order of the jobs.
template <class Take>
void run_all(const std::vector<s_job>& jobs, const check_options& options, Take take) {
    std::vector<std::optional<s_result>> results(jobs.size());
    std::mutex mutex;
    std::condition_variable changed;
    std::atomic<std::size_t> next = 0;
    std::size_t wanted = options.jobs != 0 ? options.jobs : std::max(1U, std::thread::hardware_concurrency());
    std::vector<std::jthread> workers;
    for (wanted = std::min(wanted, jobs.size()); workers.size() < wanted;) {
        workers.emplace_back([&] {
            for (std::size_t i = next++; i < jobs.size(); i = next++) {
                s_result result = run(jobs[i], options);
                const std::scoped_lock lock(mutex);
                results[i] = std::move(result);
                changed.notify_one();
            }
        });
    }
    c_progress progress(jobs.size(), system::obeys_sequences(system::k_errors) && !options.quiet);
    for (std::size_t i = 0; i < jobs.size(); ++i) {
        std::unique_lock lock(mutex);
        const auto is_there = [&] { return results[i].has_value(); };
        while (!changed.wait_for(lock, std::chrono::milliseconds(200), is_there)) progress.show(i, jobs[i].file);
        const s_result result = std::move(*std::exchange(results[i], std::nullopt));
        lock.unlock();
        progress.clear();
        take(jobs[i].file, result);
    }
}

struct s_counts {
    std::size_t valid = 0;
    std::size_t invalid = 0;
    std::size_t unreadable = 0;
    bool is_warned = false;

    exit_code result() const {
        return unreadable != 0 ? exit_usage_or_file : invalid != 0 ? exit_document_fails : exit_ok;
    }
};

/// A line that begins with a place, which is coloured if that is wanted.
void print_line(const std::string& file, const std::string& line, const char* color) {
    if (color == nullptr) {
        std::cout << line << '\n';
        return;
    }
    const std::size_t end = std::min(line.find(": ", shown_name(file).size()), line.size());
    std::cout << colored(std::string_view(line).substr(0, end), color) << std::string_view(line).substr(end) << '\n';
}

void print_text(const std::string& file, const s_result& reading, bool has_color) {
    const DocumentReport& report = reading.report;
    if (!reading.refusal.empty()) return complain(file, reading.refusal);
    for (std::size_t i = 0; i < report.getFaultCount(); ++i) {
        const DocumentFault& fault = report.getFault(i);
        const bool is_end = i + 1 == report.getTotalCount() && fault.line != 0 && !report.isReadToEnd();
        print_line(file, fault_text(file, fault) + (is_end ? " [the check ends here]" : ""),
                   has_color ? terminal_color::red : nullptr);
    }
    for (const s_warning& found : reading.warnings)
        print_line(file, warning_text(file, found), has_color ? terminal_color::yellow : nullptr);
    const std::size_t left_out =
        report.getTotalCount() - report.getFaultCount() + reading.warning_total - reading.warnings.size();
    if (left_out != 0) std::cout << shown_name(file) << ": " << left_out << " more; --limit shows them\n";
}

json to_json(const DocumentFault& fault) {
    json object = {{"code", fault.code}, {"text", fault.text}};
    if (fault.line > 0) object["line"] = fault.line;
    if (fault.column > 0) object["column"] = fault.column;
    const std::pair<const char*, const std::string*> texts[] = {
        {"detail", &fault.detail}, {"item", &fault.item}, {"path", &fault.path}, {"value", &fault.value}};
    for (const auto& [name, text] : texts) {
        if (!text->empty()) object[name] = *text;
    }
    return object;
}

json to_json(const s_warning& found) {
    json object = {{"name", row_of(found.kind).name}, {"text", json_string(found.text)}};
    if (found.line > 0) object["line"] = found.line;
    if (found.column > 0) object["column"] = found.column;
    if (!found.path.empty()) object["path"] = json_string(found.path);
    return object;
}

json to_json(const std::string& file, const s_result& reading) {
    json object = {{"file", file}, {"status", reading.is_ok() ? "valid" : "invalid"}};
    if (!reading.refusal.empty()) {
        object["status"] = "unreadable";
        object["reason"] = reading.refusal;
    } else if (!reading.is_ok()) {
        json faults = json::array();
        for (const DocumentFault& fault : reading.report.getFaults()) faults.push_back(to_json(fault));
        object["faults"] = std::move(faults);
        object["total"] = reading.report.getTotalCount();
        object["complete"] = reading.report.isReadToEnd();
    }
    if (!reading.warnings.empty()) {
        json warnings = json::array();
        for (const s_warning& found : reading.warnings) warnings.push_back(to_json(found));
        object["warnings"] = std::move(warnings);
        object["warning_total"] = reading.warning_total;
    }
    return object;
}

void print_summary(const s_counts& counts) {
    std::cerr << counted(counts.valid, "valid document", "valid documents");
    if (counts.invalid != 0) std::cerr << ", " << counts.invalid << " not valid";
    if (counts.unreadable != 0) std::cerr << ", " << counts.unreadable << " not readable";
    std::cerr << '\n';
}

}  // namespace

exit_code check(const check_options& options) {
    s_counts counts;
    if (options.json) std::cout << "{\"files\": [";
    const char* separator = "\n";
    const bool has_color = use_color(options.color);
    run_all(find_jobs(options.files), options, [&](const std::string& file, const s_result& reading) {
        counts.is_warned = counts.is_warned || reading.warning_total != 0;
        ++(!reading.refusal.empty() ? counts.unreadable : reading.is_ok() ? counts.valid : counts.invalid);
        if (options.json) {
            std::cout << std::exchange(separator, ",\n") << to_text(to_json(file, reading));
        } else if (!options.quiet) {
            print_text(file, reading, has_color);
        }
        std::cout.flush();
    });
    if (options.json) {
        std::cout << "\n],\n\"valid\": " << counts.valid << ", \"invalid\": " << counts.invalid
                  << ", \"unreadable\": " << counts.unreadable << "}\n";
    } else if (!options.quiet && system::is_terminal(system::k_output)) {
        print_summary(counts);
    }
    const exit_code result = counts.result();
    return result == exit_ok && options.strict && counts.is_warned ? exit_document_fails : result;
}

}  // namespace vyr_tool
