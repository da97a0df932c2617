// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// One loop over every class of the format: a minimal instance is read, copied and written back, every optional
/// item is added to it in turn, and every row is broken in each way that it can be, with exactly the expected
/// code and item.

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <memory>
#include <optional>

#include "lmx/binding/binding.h"
#include "schema/generated/class_list.h"
#include "tests/schema/support.h"

namespace vyr_test {
namespace {

using namespace lmx;

const std::string k_date = "2024-05-01T09:30:00Z";

/// A row with the class that owns it.
struct s_owned_row {
    const s_class* owner;
    const s_item* item;
};

std::vector<s_owned_row> rows_of(const s_class& type, std::span<const s_item> s_class::*part) {
    std::vector<s_owned_row> rows;
    if (type.base != nullptr) rows = rows_of(*type.base, part);
    for (const s_item& item : type.*part) rows.push_back({&type, &item});
    return rows;
}

std::string number_text(double number) {
    std::string text;
    append_as_xml(text, number);
    return text;
}

bool is_integer(value_kind kind) {
    return kind == value_kind::int32 || kind == value_kind::uint32 || kind == value_kind::uint8;
}

std::string good_value(const s_item& item) {
    const s_facets facets = item.facets == nullptr ? s_facets{} : *item.facets;
    if (facets.enumeration != nullptr) return std::string(facets.enumeration->texts().back());
    switch (item.value) {
        case value_kind::number:
            if (std::isinf(facets.minimum)) return "-1.5";
            return number_text(std::isinf(facets.maximum) ? facets.minimum + 1
                                                          : (facets.minimum + facets.maximum) / 2);
        case value_kind::boolean:
            return "true";
        case value_kind::datetime:
            return k_date;
        case value_kind::binary:
            return "TWFu";
        default:
            return is_integer(item.value) ? "7" : "x";
    }
}

struct s_bad_value {
    std::string text;
    elmx_error code;
};

std::vector<s_bad_value> bad_values(const s_item& item) {
    const s_facets facets = item.facets == nullptr ? s_facets{} : *item.facets;
    std::vector<s_bad_value> values;
    if (facets.enumeration != nullptr) return {{"Bogus", ELMX_VALUE_NOT_ENUMERATED}, {"", ELMX_VALUE_NOT_ENUMERATED}};
    switch (item.value) {
        case value_kind::datetime:
            return {{"2024", ELMX_VALUE_BAD_FORMAT}, {"2024-05-01T09:30:00", ELMX_NO_PATTERN_MATCHED}};
        case value_kind::boolean:
            return {{"yes", ELMX_VALUE_BAD_FORMAT}};
        case value_kind::binary:
            return {{"A", ELMX_VALUE_BAD_FORMAT}};
        case value_kind::text:
            if (facets.minimum_length > 0) values.push_back({"", ELMX_LENGTH_TOO_SHORT});
            if (facets.maximum_length < 100) {
                values.push_back({std::string(facets.maximum_length + 1, 'x'), ELMX_LENGTH_TOO_LONG});
            }
            return values;
        default:
            break;
    }
    values.push_back({is_integer(item.value) ? "1.5" : "1,5", ELMX_VALUE_BAD_FORMAT});
    const double step = is_integer(item.value) ? 1 : 0.001;
    if (!std::isinf(facets.minimum)) {
        values.push_back({number_text(facets.minimum - (facets.minimum_exclusive ? 0 : step)), ELMX_VALUE_BELOW_MIN});
        if (is_integer(item.value)) values.back().text = std::to_string(std::llround(std::stod(values.back().text)));
    }
    if (!std::isinf(facets.maximum)) {
        values.push_back(
            {number_text(facets.maximum + (facets.maximum_exclusive ? 0 : step)), ELMX_VALUE_EXCEEDS_MAX});
        if (is_integer(item.value)) values.back().text = "99999999999999999999";
    }
    return values;
}

/// An element put together from its rows, so that single rows can be left out, doubled or spoilt.
struct s_piece {
    s_owned_row row;
    std::string text;
};

class c_sample {
public:
    /// With `name` as its element, and the items that a canonical document must have.
    c_sample(const s_class& type, std::string name) : m_type(&type), m_name(std::move(name)) {
        for (const s_owned_row& row : rows_of(type, &s_class::attributes)) {
            if ((row.item->use & use_demanded) != 0) add_attribute(row, good_value(*row.item));
        }
        if (type.content == content_kind::choice || type.content == content_kind::group) {
            add_element(plain_alternative(type));
            return;
        }
        for (const s_owned_row& row : rows_of(type, &s_class::elements)) {
            const bool is_needed = (row.item->use & (use_demanded | use_asked | use_written)) != 0;
            if (is_needed || row.item->kind == item_kind::content) add_element(row);
        }
    }

    static s_owned_row plain_alternative(const s_class& type) {
        for (const s_item& item : type.elements) {
            if (item.factory.empty()) return {&type, &item};
        }
        return {};
    }

    static std::string element_text(const s_item& item, const std::string& value) {
        const std::string name(item.name);
        if (item.kind == item_kind::content) return value;
        if (item.kind == item_kind::marker) return "<" + name + "/>";
        if (item.kind == item_kind::any) return "<x:a xmlns:x=\"urn:x\">t</x:a>";
        return "<" + name + ">" + value + "</" + name + ">";
    }

    static std::string good_element(const s_item& item) {
        if (item.kind == item_kind::group || item.kind == item_kind::group_list) {
            return good_element(*plain_alternative(*item.type).item);
        }
        if (item.type != nullptr) return c_sample(*item.type, std::string(item.name)).text();
        return element_text(item, good_value(item));
    }

    void add_attribute(const s_owned_row& row, const std::string& value) {
        insert(m_attributes, row, " " + std::string(row.item->name) + "=\"" + value + "\"");
    }
    void add_element(const s_owned_row& row) { insert(m_elements, row, good_element(*row.item)); }
    void add_element(const s_owned_row& row, const std::string& value) {
        insert(m_elements, row, element_text(*row.item, value));
    }
    void remove(const s_item* item) {
        std::erase_if(m_attributes, [item](const s_piece& piece) { return piece.row.item == item; });
        std::erase_if(m_elements, [item](const s_piece& piece) { return piece.row.item == item; });
    }
    bool is_empty() const { return m_elements.empty(); }
    const std::string& name() const { return m_name; }
    const s_class& type() const { return *m_type; }

    std::string text() const {
        std::string text = "<" + m_name;
        for (const s_piece& piece : m_attributes) text += piece.text;
        if (m_type->content == content_kind::empty) return text + "/>";
        text += ">";
        for (const s_piece& piece : m_elements) text += piece.text;
        return text + "</" + m_name + ">";
    }

private:
    /// Behind the last piece whose row doesn't come later.
    void insert(std::vector<s_piece>& pieces, const s_owned_row& row, std::string text) {
        const auto order = [&](const s_item* item) {
            std::size_t place = 0;
            for (const auto part : {&s_class::attributes, &s_class::elements}) {
                for (const s_owned_row& other : rows_of(*m_type, part)) {
                    if (other.item == item) return place;
                    ++place;
                }
            }
            return place;
        };
        auto place = pieces.begin();
        while (place != pieces.end() && order(place->row.item) <= order(row.item)) ++place;
        pieces.insert(place, {row, std::move(text)});
    }

    const s_class* m_type;
    std::string m_name;
    std::vector<s_piece> m_attributes;
    std::vector<s_piece> m_elements;
};

/// An object of a class known only by its table.
class c_any_object {
public:
    explicit c_any_object(const s_named_class& named)
        : m_operations(named.operations), m_object(named.operations->create()) {}
    c_any_object(const c_any_object& other) : m_operations(other.m_operations), m_object(m_operations->create()) {
        m_operations->assign(m_object, other.m_object);
    }
    c_any_object& operator=(const c_any_object&) = delete;
    ~c_any_object() { m_operations->destroy(m_object); }

    elmx_error unmarshal(c_xml_reader& reader, const std::string& name) {
        return m_operations->unmarshal(m_object, reader, name);
    }
    elmx_error marshal(c_xml_writer& writer, const char* name) const {
        return m_operations->marshal(m_object, writer, name);
    }
    void* get() const { return m_object; }

private:
    const s_operations* m_operations;
    void* m_object;
};

class AllClasses : public testing::Test {
protected:
    /// Runs a check on a fresh sample of every class that stands for an element.
    static void for_each_class(const std::function<void(const s_named_class&, const c_sample&)>& check) {
        for (const s_named_class& named : v2::all_classes()) {
            if (named.operations->unmarshal == nullptr) continue;
            const std::string name = named.document != nullptr ? named.document->element : named.type->qualified_name;
            SCOPED_TRACE(std::string(named.name));
            check(named, c_sample(*named.type, name));
        }
    }

    static s_outcome outcome_of(const s_named_class& named, const std::string& text) {
        c_any_object object(named);
        const s_outcome outcome = read(object, text);
        // What was read by then must be good enough to be copied and destroyed.
        const c_any_object copy(object);
        return outcome;
    }

    static void expect_round_trip(const s_named_class& named, const c_sample& sample) {
        if (named.name == "Vyr") return;  // which adds its stamp: the document tests read and write it
        const std::string text = sample.text();
        c_any_object object(named);
        ASSERT_EQ(read(object, text), s_outcome{}) << text;
        EXPECT_TRUE(is_occurs_ok(*named.type, object.get())) << text;
        // Anonymous classes that stand alone declare no namespaces; their first named descendant does.
        EXPECT_EQ(write(object, sample.name().c_str()), text);
        EXPECT_EQ(write(c_any_object(object), sample.name().c_str()), text);
        c_any_object fresh(named);
        named.operations->swap(object.get(), fresh.get());
        EXPECT_EQ(write(fresh, sample.name().c_str()), text);
    }

    /// What a second element in the place behind `doubled` breaks: the first demanded row behind it, a list of
    /// holders still empty at the end of its level, or the end of the element. Nothing if a lax row takes it.
    static std::optional<s_outcome> broken_by_extra(const c_sample& sample, const s_owned_row& doubled) {
        bool is_behind = false;
        const s_class* level = nullptr;
        const s_class* short_level = nullptr;
        for (const s_owned_row& row : rows_of(sample.type(), &s_class::elements)) {
            if (row.owner != level && short_level != nullptr) break;
            level = row.owner;
            const bool is_demanded = (row.item->use & use_demanded) != 0;
            if (is_behind && (row.item->use & use_lax) != 0) return std::nullopt;
            if (is_behind && row.item->kind == item_kind::group_list) {
                if (is_demanded || (row.item->use & use_asked) != 0) short_level = level;
            } else if (is_behind && is_demanded) {
                return failure(ELMX_MANDATORY_ELEMENT_MISSING, std::string(row.item->name));
            }
            if (row.item == doubled.item) is_behind = true;
        }
        if (short_level != nullptr) return failure(ELMX_MANDATORY_ELEMENT_MISSING, short_level->qualified_name);
        return failure(ELMX_BAD_END_OF_ELEMENT, sample.name());
    }
};

TEST_F(AllClasses, AreAllThere) {
    std::size_t documents = 0;
    for (const s_named_class& named : v2::all_classes()) documents += named.document != nullptr ? 1 : 0;
    EXPECT_EQ(v2::all_classes().size(), 216U);
    EXPECT_EQ(documents, 69U);
}

/// The sample without children: its start tag, with `attribute` in it, up to the `>` or the `/>`.
std::string bare_start_tag(const c_sample& minimal, const std::string& attribute = "") {
    std::string text = minimal.text();
    text.resize(std::min(text.find('>'), text.find("/>")));
    return text + attribute;
}

TEST_F(AllClasses, EndUnderTheNameTheyBeganWith) {
    std::size_t closed_at_once = 0;
    std::size_t nil = 0;
    for_each_class([&](const s_named_class& named, const c_sample& minimal) {
        const s_outcome refused = failure(ELMX_BAD_END_OF_ELEMENT, minimal.name());
        const std::string start = bare_start_tag(minimal);
        const std::string end = "</" + minimal.name() + ">";
        for (const char* const other : {"</Vyr:Other>", "</x>"}) {
            const std::string whole = minimal.text();
            if (whole.ends_with(end)) {
                EXPECT_EQ(outcome_of(named, whole.substr(0, whole.size() - end.size()) + other), refused) << whole;
            }
            if (named.type->content == content_kind::simple) continue;
            EXPECT_EQ(outcome_of(named, start + ">" + other), refused) << start;
            EXPECT_EQ(outcome_of(named, start + "> <!-- --> " + other), refused) << start;
        }
        if (named.type->content != content_kind::simple && outcome_of(named, start + ">" + end) == s_outcome{}) {
            EXPECT_EQ(outcome_of(named, start + "/>"), s_outcome{});
            ++closed_at_once;
        }
        if (named.type->nil_flag == k_no_flag) return;
        ++nil;
        const std::string nil_start = bare_start_tag(minimal, " xsi:nil=\"true\"");
        EXPECT_EQ(outcome_of(named, nil_start + "/>"), s_outcome{});
        EXPECT_EQ(outcome_of(named, nil_start + ">\n" + end), s_outcome{});
        for (const std::string body : {"</Vyr:Other>", "text", "&#65;", "<![CDATA[]]>", "<Vyr:Other/>"}) {
            EXPECT_EQ(outcome_of(named, nil_start + ">" + body + end), refused) << body;
        }
    });
    EXPECT_EQ(closed_at_once, 61U);
    EXPECT_EQ(nil, 12U);
}

TEST_F(AllClasses, TakeNoTextForAnElementNamedBefore) {
    for_each_class([](const s_named_class& named, const c_sample& minimal) {
        if (named.type->content == content_kind::simple) return;
        // The element's own name, that of an attribute and that of a child are what the reader has at hand.
        const std::string end = "</" + minimal.name() + ">";
        const s_outcome outcome = outcome_of(named, bare_start_tag(minimal) + ">text" + end);
        EXPECT_NE(outcome, s_outcome{});
        for (const std::string body : {"x<b/>", "x<b></b>", "x <b/>", "&lt;<b/>"}) {
            EXPECT_EQ(outcome_of(named, bare_start_tag(minimal) + ">" + body + end).code, outcome.code) << body;
        }
    });
}

TEST_F(AllClasses, RoundTrip) {
    for_each_class([](const s_named_class& named, const c_sample& sample) {
        expect_round_trip(named, sample);
        if (named.document == nullptr) return;
        elmx_error error = ELMX_UNDEFINED_ERROR;
        c_any_object object(named);
        const std::string text = with_declarations(sample.text());
        error = unmarshal_document(*named.document, object.get(), text.data(), text.size());
        EXPECT_EQ(error, ELMX_OK);
        std::string written;
        EXPECT_EQ(marshal_document(*named.document, object.get(), &written), ELMX_OK);
        EXPECT_EQ(unmarshal_document(*named.document, object.get(), "<a/>", 4), ELMX_ELEMENT_NOT_FOUND);
    });
}

TEST_F(AllClasses, EveryOptionalItemRoundTrips) {
    for_each_class([](const s_named_class& named, const c_sample& minimal) {
        for (const s_owned_row& row : rows_of(*named.type, &s_class::attributes)) {
            c_sample sample = minimal;
            sample.remove(row.item);
            sample.add_attribute(row, good_value(*row.item));
            expect_round_trip(named, sample);
        }
        const bool is_choice = named.type->content == content_kind::choice;
        for (const s_owned_row& row : rows_of(*named.type, &s_class::elements)) {
            if (row.item->kind == item_kind::content) continue;
            c_sample sample = minimal;
            const s_item* const first = c_sample::plain_alternative(*named.type).item;
            sample.remove(is_choice ? first : row.item);
            const bool is_list = row.item->kind == item_kind::element_list ||
                                 row.item->kind == item_kind::child_list || row.item->kind == item_kind::group_list ||
                                 row.item->kind == item_kind::any;
            for (int entry = 0; entry < (is_list ? 2 : 1); ++entry) sample.add_element(row);
            expect_round_trip(named, sample);
        }
    });
}

TEST_F(AllClasses, BrokenAttributes) {
    for_each_class([](const s_named_class& named, const c_sample& minimal) {
        const std::string text = minimal.text();
        const std::size_t end_of_name = text.find_first_of(" />");
        EXPECT_EQ(outcome_of(named, std::string(text).insert(end_of_name, " Bogus=\"1\"")),
                  failure(ELMX_UNEXPECTED_ATTRIBUTE, minimal.name()));
        for (const s_owned_row& row : rows_of(*named.type, &s_class::attributes)) {
            const std::string name(row.item->name);
            c_sample missing = minimal;
            missing.remove(row.item);
            if ((row.item->use & use_demanded) != 0) {
                EXPECT_EQ(outcome_of(named, missing.text()),
                          failure(ELMX_REQUIRED_ATTRIBUTES_MISSING, row.owner->name));
            }
            c_sample doubled = missing;
            doubled.add_attribute(row, good_value(*row.item));
            doubled.add_attribute(row, good_value(*row.item));
            EXPECT_EQ(outcome_of(named, doubled.text()), failure(ELMX_ATTRIBUTE_ALREADY_READ, name));
            for (const s_bad_value& bad : bad_values(*row.item)) {
                c_sample spoilt = missing;
                spoilt.add_attribute(row, bad.text);
                EXPECT_EQ(outcome_of(named, spoilt.text()), failure(bad.code, name)) << bad.text;
            }
        }
    });
}

TEST_F(AllClasses, BrokenElements) {
    for_each_class([](const s_named_class& named, const c_sample& minimal) {
        const bool is_choice = named.type->content == content_kind::choice;
        const s_item* const first = is_choice ? c_sample::plain_alternative(*named.type).item : nullptr;
        for (const s_owned_row& row : rows_of(*named.type, &s_class::elements)) {
            c_sample missing = minimal;
            missing.remove(is_choice ? first : row.item);
            const bool is_content = row.item->kind == item_kind::content;
            for (const s_bad_value& bad : bad_values(*row.item)) {
                if (row.item->value == value_kind::none) break;
                c_sample spoilt = missing;
                spoilt.add_element(row, bad.text);
                EXPECT_EQ(outcome_of(named, spoilt.text()),
                          failure(bad.code, is_content ? minimal.name() : std::string(row.item->name)))
                    << bad.text;
            }
            if (is_content || row.item->kind == item_kind::any) continue;
            const bool is_lax = (row.item->use & use_lax) != 0;
            if (missing.is_empty()) {
                EXPECT_EQ(
                    outcome_of(named, missing.text()),
                    named.type->may_be_empty ? s_outcome{} : failure(ELMX_UNEXPECTED_EMPTY_ELEMENT, minimal.name()));
            } else if (row.item->kind == item_kind::group_list && (row.item->use & use_asked) != 0) {
                EXPECT_EQ(outcome_of(named, missing.text()),
                          failure(ELMX_MANDATORY_ELEMENT_MISSING, row.owner->qualified_name));
            } else if ((row.item->use & use_demanded) != 0) {
                EXPECT_EQ(outcome_of(named, missing.text()),
                          failure(ELMX_MANDATORY_ELEMENT_MISSING, std::string(row.item->name)));
            }
            if (is_lax || is_choice) continue;
            // One too many of a single item; an unknown element behind a list.
            const bool is_single = row.item->kind == item_kind::element || row.item->kind == item_kind::child ||
                                   row.item->kind == item_kind::optional_child ||
                                   row.item->kind == item_kind::marker || row.item->kind == item_kind::group;
            if (!is_single) continue;
            c_sample doubled = missing;
            doubled.add_element(row);
            doubled.add_element(row);
            if (const auto expected = broken_by_extra(doubled, row)) {
                EXPECT_EQ(outcome_of(named, doubled.text()), *expected) << doubled.text();
            }
        }
        if (is_choice) {
            std::string text = minimal.text();
            text.insert(text.find('>') + 1, "<Vyr:Bogus/>");
            EXPECT_EQ(outcome_of(named, text), failure(ELMX_UNKNOWN_ELEMENT_IN_COMPLEX_CONTENT, "Vyr:Bogus"));
        }
    });
}

}  // namespace
}  // namespace vyr_test
