// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Marks what the shared library exports; everything else stays hidden.

#pragma once

#if defined(VYR_STATIC)
#define VYR_EXPORT
#elif defined(_WIN32)
#if defined(VYR_BUILDING)
#define VYR_EXPORT __declspec(dllexport)
#else
#define VYR_EXPORT __declspec(dllimport)
#endif
#else
#define VYR_EXPORT __attribute__((visibility("default")))
#endif
