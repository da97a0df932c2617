// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// A document that the library wrote, read again event by event, each with the row of the library's tables that says
/// what it is.

#pragma once

#include <string>
#include <vector>

#include "lmx/binding/table.h"
#include "lmx/reader/read.h"
#include "lmx/reader/xml_reader.h"
#include "tools/members.h"

namespace vyr_tool {

class c_typed_reader {
public:
    enum class event {
        begin,      ///< of an element: `name`, `member`
        attribute,  ///< of the element that has begun: `name`, `value`, `member`
        text,       ///< `value`, which is never empty
        markup,     ///< an element of open content: `value`, in full
        end,        ///< of an element
        done,
        broken,  ///< not well-formed
    };

    /// The source is borrowed. `is_markup_whole` asks for open content as markup; otherwise it comes as elements that
    /// are no members.
    c_typed_reader(lmx::c_read& source, bool is_markup_whole);

    event next();
    /// As written, with the prefix.
    const std::string& name() const { return m_name; }
    const std::string& value() const { return m_value; }
    /// What the element that has begun, or the attribute, is to its parent; null for the document, for `xsi:`
    /// attributes and for all that is foreign.
    const s_member* member() const { return m_member; }
    /// The class of the element that is open, as far as its attributes have been read; null if it has none.
    const lmx::s_class* type() const { return m_open.empty() ? nullptr : m_open.back().type; }

private:
    enum class state { attributes, text, markup };
    struct s_open {
        const lmx::s_class* type;
        const s_member* member;
    };

    event close();

    lmx::c_xml_reader m_reader;
    bool m_is_markup_whole;
    state m_state = state::markup;
    std::vector<s_open> m_open;
    bool m_is_done = false;
    std::string m_name;
    std::string m_value;
    const s_member* m_member = nullptr;
};

}  // namespace vyr_tool
