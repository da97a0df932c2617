// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// The names of all classes, for headers that only mention them.

#pragma once

#include "schema/generated/forward.h"
