// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Reads the internal subset of a document type declaration for its entities; everything else in it is skipped.

#pragma once

#include <string>

#include "lmx/export.h"
#include "lmx/reader/scanner_fault.h"

namespace lmx {

class c_get_for_xml;

/// What reading a declaration needs of the scanner, and the reading of entity values.
class VYR_EXPORT c_dtd_util {
public:
    explicit c_dtd_util(c_get_for_xml& getter) : m_getter(getter) {}

    int get();
    void unget(int c);
    c_get_for_xml& getter() { return m_getter; }

    /// With the input behind `%`: pushes the entity's text on the input. An unknown name is reported, and true.
    bool select_parameter_entity();
    /// Reads a word.
    bool get_entity_value(std::string* out);
    /// Reads a literal. Parameter entities and character references in it are expanded, general ones kept.
    bool get_quoted_entity_value(std::string* out);

protected:
    /// To behind the next `>` outside quotes, or to the end of input.
    void skip_declaration();
    void define_entity(bool is_parameter, const std::string& name, const std::string& value);

private:
    c_get_for_xml& m_getter;
};

class VYR_EXPORT c_internal_dtd : public c_dtd_util {
public:
    explicit c_internal_dtd(c_get_for_xml& getter) : c_dtd_util(getter) {}

    /// With the input behind `<!DOCTYPE`, to behind the declaration.
    bool read_doctype_decl();
    void reset() {}

private:
    bool read_subset();
    bool read_markup();
    bool read_entity_decl();
    bool read_entity_definition(bool* is_parameter, std::string* name, std::string* value);
    /// `at_end` stands for a missing character.
    bool refuse(scanner_fault fault, scanner_fault at_end, int c);
};

}  // namespace lmx
