// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

using System;

namespace Vyr
{
    /// <summary>A value that the format refuses, or a document that can't be read or written.</summary>
    public sealed class VyrException : Exception
    {
        internal VyrException(int code, string item) : base(item + ": " + Library.Describe(code) + " (" + code + ")")
        {
            Code = code;
            Text = Library.Describe(code);
        }

        internal VyrException(LoadReport report) : base(report.ToString().TrimEnd('\n'))
        {
            Code = report.Code;
            Text = report.Faults.Count > 0 ? report.Faults[0].Text : Library.Describe(report.Code);
            Report = report;
        }

        /// <summary>The result code, as in lmx/error.h.</summary>
        public int Code { get; }

        /// <summary>The code in words.</summary>
        public string Text { get; }

        /// <summary>All that is wrong and where, from a load or a save; null from anything else.</summary>
        public LoadReport Report { get; }
    }
}
