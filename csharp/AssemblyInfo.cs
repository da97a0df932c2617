// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

using System.Reflection;

[assembly: AssemblyTitle("Vyr")]
[assembly: AssemblyDescription("Reads, checks, holds and writes colour-data documents")]
[assembly: AssemblyVersion("0.1.0.0")]
