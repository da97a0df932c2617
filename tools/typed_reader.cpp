// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/typed_reader.h"

#include "schema/Vyr.h"

namespace vyr_tool {

c_typed_reader::c_typed_reader(lmx::c_read& source, bool is_markup_whole)
    : m_reader(source), m_is_markup_whole(is_markup_whole) {}

c_typed_reader::event c_typed_reader::next() {
    m_member = nullptr;
    if (m_state == state::attributes) {
        const lmx::elxp_xml_event found = m_reader.get_attribute_name(&m_name, false);
        if (found == lmx::ELXP_NAME) {
            if (!m_reader.get_attribute_value(&m_value, lmx::ELMX_WS_PRESERVE)) return event::broken;
            s_open& open = m_open.back();
            if (m_name == k_type_key && open.member != nullptr) {
                if (const auto* const other = specialised(*open.member->item, m_value)) open.type = other;
            } else if (open.type != nullptr) {
                m_member = c_members::of(*open.type).attribute(m_name);
            }
            return event::attribute;
        }
        if (lmx::c_xml::is_error_event(found)) return event::broken;
        if (found == lmx::ELXP_END_TAG) return close();
        m_state = state::text;
    }
    if (m_state == state::text) {
        m_state = state::markup;
        if (!m_open.empty()) {
            if (!m_reader.get_element_value(&m_value, lmx::ELMX_WS_PRESERVE, true)) return event::broken;
            if (!m_value.empty()) return event::text;
        }
    }
    const lmx::elxp_xml_event found = m_reader.get_element_name(nullptr, &m_name);
    if (found == lmx::ELXP_END_OF_INPUT && m_open.empty() && m_is_done) return event::done;
    if (found == lmx::ELXP_END_TAG && !m_open.empty()) return close();
    if (found != lmx::ELXP_NAME || m_is_done) return event::broken;
    const lmx::s_class* type = nullptr;
    if (m_open.empty()) {
        type = &com_vyrgraph_v2::Vyr::k_class;
    } else if (m_open.back().type != nullptr) {
        const c_members& members = c_members::of(*m_open.back().type);
        if (m_is_markup_whole && members.any() != nullptr) {
            m_member = members.any();
            m_state = state::text;
            return m_reader.get_any_element(m_name, &m_value, lmx::ELMX_WS_PRESERVE, true) ? event::markup
                                                                                           : event::broken;
        }
        m_member = members.element(m_name);
        if (m_member != nullptr) type = m_member->item->type;
    }
    m_open.push_back({type, m_member});
    m_state = state::attributes;
    return event::begin;
}

c_typed_reader::event c_typed_reader::close() {
    m_open.pop_back();
    m_is_done = m_open.empty();
    m_state = state::text;
    return event::end;
}

}  // namespace vyr_tool
