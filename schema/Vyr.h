// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Everything a host program needs: all classes of the format, the document calls of `Vyr`, their result and
/// reports, and the exception of containers.
///
/// A file that needs one topic only includes that topic's header in `schema/generated/` instead and compiles
/// faster.

#pragma once

#include "document/report.h"
#include "document/result.h"
#include "lmx/lmx.h"
#include "schema/generated/classes.h"
#include "zip/exception.h"
