// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// What `Vyr::writeString` returns: the document's text and a result code.

#pragma once

#include <string>

#include "lmx/error.h"
#include "lmx/export.h"

namespace com_vyrgraph_v2 {

/// A document as UTF-16 text with the code of the write that made it; the text is empty if the write failed.
class VYR_EXPORT XMLDocumentResult {
public:
    XMLDocumentResult(const std::u16string& document, lmx::elmx_error error) : m_document(document), m_error(error) {}

    std::u16string getXmlDocument() const { return m_document; }
    lmx::elmx_error getElmxError() const { return m_error; }

private:
    std::u16string m_document;
    lmx::elmx_error m_error;
};

}  // namespace com_vyrgraph_v2
