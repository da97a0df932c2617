// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// The whole runtime: reader, writer, value types and result codes. For host programs; the library's own files
/// include what they need.

#pragma once

#include "lmx/binding/any_info.h"
#include "lmx/error.h"
#include "lmx/reader/xml_reader.h"
#include "lmx/values/big_int.h"
#include "lmx/values/binary.h"
#include "lmx/values/char_classes.h"
#include "lmx/values/characters.h"
#include "lmx/values/datetime.h"
#include "lmx/values/decimal.h"
#include "lmx/values/duration.h"
#include "lmx/values/empty.h"
#include "lmx/values/pattern.h"
#include "lmx/values/scalars.h"
#include "lmx/values/unicode.h"
#include "lmx/values/wide.h"
#include "lmx/writer/as_xml.h"
#include "lmx/writer/xml_writer.h"
