// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Calls in any order on documents that were loaded, copied or made: setters, lists, choices, copies, swaps, loads
/// and saves, through the flat functions, which reach every member of every class. A setter stores what it is given
/// or nothing, a list has as many entries as were put there, a copy and a swap are written as the original, and what
/// was saved and can be loaded is saved as the same bytes.

#include <bit>
#include <cmath>
#include <span>
#include <string>
#include <vector>

#include "flat/generated/vyr_flat.h"
#include "fuzz/support.h"
#include "schema/Vyr.h"

namespace {

using namespace vyr_fuzz;
using com_vyrgraph_v2::Vyr;

/// What a function is called with, behind the object itself.
enum class e_way : std::uint8_t {
    part,          ///< a child, or the object as one of its base
    part_at,       ///< an entry of a list
    back,          ///< the last one
    assign,        ///< an object of the child's class
    assign_at,     ///< an index and such an object
    append,        ///< nothing: a new entry
    append_text,   ///< a text
    append_any,    ///< a narrow text
    append_value,  ///< a date with time
    insert,        ///< an index, and the same
    insert_text,
    insert_any,
    insert_value,
    set_text_at,
    set_value_at,
    remove,  ///< an index
    set_text,
    set_number,
    set_int,
    set_uint,
    set_value,       ///< a date with time, or bytes
    set_enumerated,  ///< the number of a text
    look,            ///< nothing: an integer is the result
    look_uint,
    look_number,
    look_text,
    look_narrow,
    look_text_at,
    act,        ///< nothing, and no result
    swap,       ///< an object of the same class
    clone,      ///< nothing: a new object
    unmarshal,  ///< bytes and their number
};

using t_function = void (*)();

template <class Function>
t_function address(Function* function) {
    return reinterpret_cast<t_function>(function);
}

struct s_call {
    e_way way;
    t_function function;
    t_function partner;  ///< the size of the list that it changes, or the getter of the value that it sets
    int other;           ///< the class of the child or the argument
    const char* name;
};

struct s_class {
    const char* name;
    t_function create;
    t_function copy;
    t_function destroy;
    std::span<const s_call> calls;
};

// `k_classes` and `k_texts`.
#include "calls_table.inc"

template <class Result, class... Arguments>
Result call(t_function function, Arguments... arguments) {
    return reinterpret_cast<Result(VYR_FLAT_CALL*)(Arguments...)>(function)(arguments...);
}

/// Entries that a list may be grown to: enough for every way that a list's storage may go.
constexpr std::uint32_t k_most_entries = 40;

/// An object with its class; those of the pool are owned.
struct s_object {
    int type;
    void* object;
};

class c_session {
public:
    explicit c_session(FuzzedDataProvider& input) : m_input(input), m_text(input.ConsumeRandomLengthString(30000)) {
        static_cast<void>(m_documents[0].unmarshal(m_text.data(), m_text.size()));
    }
    ~c_session() {
        for (const s_object& kept : m_pool) call<void>(k_classes[kept.type].destroy, kept.object);
    }
    c_session(const c_session&) = delete;
    c_session& operator=(const c_session&) = delete;

    void run() {
        for (int calls = 0; calls < 200 && m_input.remaining_bytes() > 0; ++calls) {
            switch (below(80)) {
                case 0:
                    keep_copy(walk());
                    break;
                case 1:
                    check_copy(m_documents[below(2)]);
                    break;
                case 2:
                    check_swap();
                    break;
                case 3:
                    check_save(m_documents[below(2)]);
                    break;
                default: {
                    const s_object target = walk();
                    const std::span<const s_call> known = k_classes[target.type].calls;
                    if (!known.empty()) perform(known[below(known.size())], target);
                }
            }
        }
        check_copy(m_documents[0]);
        check_save(m_documents[0]);
    }

private:
    std::size_t below(std::size_t end) { return m_input.ConsumeIntegralInRange<std::size_t>(0, end - 1); }
    std::uint32_t index_below(std::uint32_t end) { return static_cast<std::uint32_t>(below(end)); }

    // What is passed.

    std::u16string any_wide_text() {
        if (m_input.ConsumeBool()) return k_texts[below(std::size(k_texts))];
        std::u16string text;
        for (std::size_t units = below(24); units > 0; --units) {
            // Mostly letters, but any unit may come, half of a pair too; a zero ends the text.
            const auto unit = m_input.ConsumeIntegral<std::uint16_t>();
            text += static_cast<char16_t>(unit < 0xC000 ? 0x20 + unit % 0x60 : unit);
        }
        return text;
    }
    std::string any_narrow_text() {
        static constexpr const char* k_narrow[] = {"2026-02-28T10:00:00Z",
                                                   "2026-02-28T10:00:00+01:00",
                                                   "2026-02-28T10:00:00.5-00:30",
                                                   "yesterday",
                                                   "<a/>",
                                                   "<a xmlns=\"u\">t<b c='d'>&amp;</b></a>",
                                                   "<a>",
                                                   "text"};
        if (m_input.ConsumeBool()) return k_narrow[below(std::size(k_narrow))];
        return m_input.ConsumeRandomLengthString(40);
    }
    double any_number() {
        static constexpr double k_numbers[] = {0.0, 1.0, -1.0, 0.5, 100.0, 360.0, 400.0, 1e300, 1e-300, -0.0};
        if (m_input.ConsumeBool()) return k_numbers[below(std::size(k_numbers))];
        return std::bit_cast<double>(m_input.ConsumeIntegral<std::uint64_t>());
    }

    /// An object of the class: one that was kept, or a new one, which `made` then owns. Never one that holds the
    /// object that the call is made on.
    void* any_object(int type, s_object* made) {
        for (const s_object& kept : m_pool) {
            if (kept.type == type && kept.object != m_root && m_input.ConsumeBool()) return kept.object;
        }
        *made = {type, call<void*>(k_classes[type].create)};
        return made->object;
    }

    // Where it is called.

    /// Goes down from a document or from what was kept. What it passes counts as present from then on.
    s_object walk() {
        const std::size_t root = below(2 + m_pool.size());
        s_object place = root < 2 ? s_object{k_document, &m_documents[root]} : m_pool[root - 2];
        m_root = place.object;
        for (std::size_t steps = below(9); steps > 0; --steps) {
            const std::span<const s_call> known = k_classes[place.type].calls;
            if (known.empty()) break;
            // The next way down from any of the calls on.
            const std::size_t first = below(known.size());
            for (std::size_t i = 0; i < known.size(); ++i) {
                const s_call& found = known[(first + i) % known.size()];
                if (void* const part = part_of(found, place.object)) {
                    place = {found.other, part};
                    break;
                }
            }
        }
        return place;
    }

    /// The object that a call hands out; null if it hands out none.
    void* part_of(const s_call& found, void* object) {
        switch (found.way) {
            case e_way::part:
                return call<void*>(found.function, object);
            case e_way::part_at: {
                const auto size = call<std::uint32_t>(found.partner, object);
                if (size == 0) return nullptr;
                return call<void*>(found.function, object, index_below(size));
            }
            case e_way::back:
                if (call<std::uint32_t>(found.partner, object) == 0) return nullptr;
                return call<void*>(found.function, object);
            default:
                return nullptr;
        }
    }

    // What is called, and what must hold then.

    void perform(const s_call& made, const s_object& target) {
        void* const self = target.object;
        const bool is_list = made.way >= e_way::append && made.way <= e_way::remove;
        const std::uint32_t size =
            is_list || made.way == e_way::assign_at || made.way == e_way::part_at || made.way == e_way::look_text_at
                ? call<std::uint32_t>(made.partner, self)
                : 0;
        std::int32_t code = 0;
        std::uint32_t expected = size;
        switch (made.way) {
            case e_way::part:
            case e_way::back:
                part_of(made, self);
                return;
            case e_way::part_at: {
                // An index behind the end makes the entries up to it.
                const std::uint32_t index = index_below(k_most_entries);
                require(call<void*>(made.function, self, index) != nullptr, "no entry", made.name);
                expected = std::max(size, index + 1);
                break;
            }
            case e_way::assign: {
                s_object owned{};
                require(call<void*>(made.function, self, any_object(made.other, &owned)) != nullptr,
                        "nothing assigned", made.name);
                release(owned);
                return;
            }
            case e_way::assign_at: {
                s_object owned{};
                const std::uint32_t index = index_below(std::min(size + 2, k_most_entries));
                call<void*>(made.function, self, index, any_object(made.other, &owned));
                release(owned);
                expected = std::max(size, index + 1);
                break;
            }
            case e_way::remove:
                if (size == 0) return;
                call<void>(made.function, self, index_below(size));
                expected = size - 1;
                break;
            case e_way::set_text:
                set_text(made, self);
                return;
            case e_way::set_number:
                set_number(made, self);
                return;
            case e_way::set_int: {
                const auto value = m_input.ConsumeIntegral<std::int32_t>();
                code = call<std::int32_t>(made.function, self, value);
                require(code != 0 || call<std::int32_t>(made.partner, self) == value, "another number is stored",
                        made.name);
                return;
            }
            case e_way::set_uint: {
                const auto value = m_input.ConsumeIntegral<std::uint32_t>();
                code = call<std::int32_t>(made.function, self, value);
                const auto stored = call<std::uint32_t>(made.partner, self);
                // As the argument's width is that of the member: a number, a byte, or a boolean.
                require(code != 0 || stored == value || stored == (value & 0xFF) || stored == ((value & 0xFF) != 0),
                        "another number is stored", made.name);
                return;
            }
            case e_way::set_enumerated:
                code = call<std::int32_t>(made.function, self, static_cast<std::int32_t>(below(60)) - 2);
                require(code == 0 || code == 1, "neither true nor false", made.name);
                return;
            case e_way::set_value:
                pass_value(made.other < 0 && std::string_view(made.name).ends_with("ProfileFile"),
                           [&](void* value) { return call<std::int32_t>(made.function, self, value); });
                return;
            case e_way::look:
                call<std::int32_t>(made.function, self);
                return;
            case e_way::look_number:
                call<double>(made.function, self);
                return;
            case e_way::look_uint:
                call<std::uint32_t>(made.function, self);
                return;
            case e_way::look_text:
                VyrModule_FreeString(call<char16_t*>(made.function, self));
                return;
            case e_way::look_narrow:
                VyrModule_FreeString(call<char*>(made.function, self));
                return;
            case e_way::look_text_at:
                if (size > 0) VyrModule_FreeString(call<char16_t*>(made.function, self, index_below(size)));
                return;
            case e_way::act:
                call<void>(made.function, self);
                return;
            case e_way::swap: {
                s_object owned{};
                call<void>(made.function, self, any_object(made.other, &owned));
                release(owned);
                return;
            }
            case e_way::clone:
                call<void>(k_classes[target.type].destroy, call<void*>(made.function, self));
                return;
            case e_way::unmarshal:
                call<std::int32_t>(made.function, self, m_text.data(), static_cast<std::uint32_t>(m_text.size()));
                return;
            default:
                expected = put_into_list(made, self, size);
        }
        require(call<std::uint32_t>(made.partner, self) == expected, "another number of entries after", made.name);
    }

    /// The calls that put something into a list: the number of entries that there must be then.
    std::uint32_t put_into_list(const s_call& made, void* self, std::uint32_t size) {
        const std::uint32_t index = index_below(std::min(size + 2, k_most_entries));
        const bool is_append = made.way <= e_way::append_value;
        const bool is_set = made.way == e_way::set_text_at || made.way == e_way::set_value_at;
        if (size >= k_most_entries && !is_set) return size;
        std::int32_t code = 0;
        const auto with = [&](auto value) {
            return is_append ? call<std::int32_t>(made.function, self, value)
                             : call<std::int32_t>(made.function, self, index, value);
        };
        switch (made.way) {
            case e_way::append:
                code = call<std::int32_t>(made.function, self);
                break;
            case e_way::insert:
                code = call<std::int32_t>(made.function, self, index);
                break;
            case e_way::append_text:
            case e_way::insert_text:
            case e_way::set_text_at:
                code = with(any_wide_text().c_str());
                break;
            case e_way::append_any:
            case e_way::insert_any:
                code = with(any_narrow_text().c_str());
                break;
            default:
                code = pass_value(false, with);
        }
        if (code != 0 || (is_set && index < size)) return size;
        return size + 1;
    }

    template <class Call>
    std::int32_t pass_value(bool is_binary, Call with) {
        std::string text = any_narrow_text();
        void* const value = is_binary
                                ? CSharp_new_c_binary__SWIG_2(text.data(), static_cast<std::uint32_t>(text.size()))
                                : CSharp_new_c_datetime__SWIG_2(text.c_str());
        const std::int32_t code = with(value);
        (is_binary ? CSharp_delete_c_binary : CSharp_delete_c_datetime)(value);
        return code;
    }

    static std::u16string take_text(char16_t* text) {
        std::u16string taken = text;
        VyrModule_FreeString(text);
        return taken;
    }

    void set_text(const s_call& made, void* self) {
        const std::u16string value = any_wide_text();
        if (made.partner == nullptr) {
            call<std::int32_t>(made.function, self, value.c_str());
            return;
        }
        const std::u16string before = take_text(call<char16_t*>(made.partner, self));
        const auto code = call<std::int32_t>(made.function, self, value.c_str());
        const std::u16string after = take_text(call<char16_t*>(made.partner, self));
        require(after == (code == 0 ? std::u16string(value.c_str()) : before), "another text is stored", made.name);
    }

    void set_number(const s_call& made, void* self) {
        const double value = any_number();
        const auto before = call<double>(made.partner, self);
        const auto code = call<std::int32_t>(made.function, self, value);
        const auto after = call<double>(made.partner, self);
        const double expected = code == 0 ? value : before;
        require(after == expected || (std::isnan(after) && std::isnan(expected)), "another number is stored",
                made.name);
    }

    static void release(const s_object& owned) {
        if (owned.object != nullptr) call<void>(k_classes[owned.type].destroy, owned.object);
    }

    void keep_copy(const s_object& from) {
        const t_function copy = k_classes[from.type].copy;
        if (m_pool.size() < 6 && copy != nullptr) m_pool.push_back({from.type, call<void*>(copy, from.object)});
    }

    // Whole documents.

    struct s_written {
        lmx::elmx_error code;
        std::string text;
        friend bool operator==(const s_written&, const s_written&) = default;
    };
    static s_written write(const Vyr& document) {
        s_written written{};
        written.code = document.marshal(&written.text);
        return written;
    }

    /// A document that is made, by copying too, has the library's stamp as that of what read it.
    static s_written without_stamp(s_written written) {
        static constexpr std::string_view k_name = "Vyr:ReadSDKInformation>\n";
        const std::size_t from = written.text.find(k_name);
        if (from == std::string::npos) return written;
        const std::size_t to = written.text.find(k_name, from + 1);
        written.text.erase(from, to - from);
        return written;
    }

    static void check_copy(const Vyr& document) {
        const s_written written = write(document);
        const Vyr copy(document);
        const s_written copied = write(copy);
        // A copy takes what is required as present, so that it may be written where the original isn't.
        if (written.code == lmx::ELMX_OK && without_stamp(written) != without_stamp(copied)) {
            fail("a copy is written differently", written.text + "\nand\n" + copied.text);
        }
        Vyr assigned;
        assigned = copy;
        require(write(assigned) == copied, "a copy of a copy is written differently");
    }

    void check_swap() {
        const s_written first = write(m_documents[0]);
        const s_written second = write(m_documents[1]);
        m_documents[0].swap(m_documents[1]);
        require(write(m_documents[1]) == first && write(m_documents[0]) == second, "a swap changes documents");
    }

    /// What a report calls saved is read again, and saved as the same text.
    static void check_report(const Vyr& document) {
        std::u16string text;
        const auto report = com_vyrgraph_v2::writeStringWithReport(document, &text);
        require(report.isOk() == (report.getFaultCount() == 0), "a report contradicts itself");
        if (!report.isOk()) return;
        Vyr again;
        const auto back = com_vyrgraph_v2::loadStringWithReport(again, text);
        require(back.isOk(), "what a report calls saved is refused:", back.toString() + lmx::convert_to_narrow(text));
        require(again.writeString().getXmlDocument() == text,
                "what a report calls saved is saved differently:", lmx::convert_to_narrow(text));
    }

    static void check_save(const Vyr& document) {
        check_report(document);
        const s_written written = write(document);
        if (written.code != lmx::ELMX_OK) return;
        Vyr again;
        if (again.unmarshal(written.text.data(), written.text.size()) != lmx::ELMX_OK) return;
        const s_written rewritten = write(again);
        require(rewritten.code == lmx::ELMX_OK, "what was saved can't be saved again:", written.text);
        Vyr last;
        if (last.unmarshal(rewritten.text.data(), rewritten.text.size()) != lmx::ELMX_OK) return;
        require(write(last) == rewritten, "what was saved is saved differently:", written.text);
    }

    FuzzedDataProvider& m_input;
    const std::string m_text;
    Vyr m_documents[2];
    std::vector<s_object> m_pool;
    void* m_root = nullptr;  ///< where the last walk began
};

void VYR_FLAT_CALL report_null(const char* text, const char*) { fail("a null argument:", text); }

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    SWIGRegisterExceptionArgumentCallbacks_VyrModule(nullptr, report_null, nullptr);
    FuzzedDataProvider input(bytes, size);
    c_session(input).run();
    return 0;
}
