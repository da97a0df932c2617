// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// The whole contract between generated classes and the runtime, for their sources to include.

#pragma once

#include "lmx/binding/any_info.h"
#include "lmx/binding/document.h"
#include "lmx/binding/list.h"
#include "lmx/binding/marshal.h"
#include "lmx/binding/object.h"
#include "lmx/binding/table.h"
#include "lmx/binding/unmarshal.h"
