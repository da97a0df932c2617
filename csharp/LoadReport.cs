// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

using System;
using System.Collections.Generic;
using System.IO;

namespace Vyr
{
    /// <summary>How to load.</summary>
    public sealed class LoadOptions
    {
        /// <summary>End at the first fault, instead of going on and gathering all.</summary>
        public bool FirstFaultOnly { get; set; }

        /// <summary>How many faults to keep; those beyond it are counted only.</summary>
        public int Limit { get; set; } = 100;

        /// <summary>What `TryLoad` gives of a document with faults: what could be read of it, instead of null.</summary>
        public bool KeepPartial { get; set; }

        internal uint Collect => FirstFaultOnly ? 0u : 1u;
        internal uint Kept => Limit < 0 ? 0u : (uint)Limit;
    }

    /// <summary>What a load or a save has to say: nothing, if all went well.</summary>
    public sealed class LoadReport
    {
        /// <summary>Takes a report of the library and deletes it. A file that the library was given in place of another
        /// one is called by the name of that.</summary>
        internal LoadReport(IntPtr report, string given = null, string meant = null)
        {
            if (report == IntPtr.Zero) throw new OutOfMemoryException();
            try
            {
                Code = Library.VyrModule_ReportCode(report);
                TotalCount = (int)Library.VyrModule_ReportTotalCount(report);
                SystemError = Library.VyrModule_ReportSystemError(report);
                IsReadToEnd = Library.VyrModule_ReportIsReadToEnd(report) != 0;
                Func<string, string> named = words => given == null ? words : words.Replace(given, meant);
                text = named(Library.VyrModule_ReportText(report));
                string[] lines = text.Split('\n');
                var faults = new Fault[Library.VyrModule_ReportFaultCount(report)];
                for (int i = 0; i < faults.Length; ++i)
                    faults[i] = new Fault(report, (uint)i, lines[i], named(Library.VyrModule_FaultFile(report, (uint)i)));
                Faults = faults;
            }
            finally
            {
                Library.VyrModule_DeleteReport(report);
            }
        }

        /// <summary>That the system refused a file, for a reason in its words.</summary>
        internal LoadReport(string file, string reason)
        {
            Code = NoFile;
            TotalCount = 1;
            var fault = new Fault(NoFile, file, reason);
            text = fault + "\n";
            Faults = new[] { fault };
        }

        readonly string text;

        /// <summary>0, or the code of the first fault.</summary>
        public int Code { get; }

        /// <summary>True if nothing is wrong.</summary>
        public bool IsOk => Code == 0;

        /// <summary>What is wrong, in the order of the document.</summary>
        public IReadOnlyList<Fault> Faults { get; }

        /// <summary>How many faults there were with those that the limit left out.</summary>
        public int TotalCount { get; }

        /// <summary>False if a fault ended the load or the save: what follows it was not looked at, or nothing was
        /// written.</summary>
        public bool IsReadToEnd { get; }

        /// <summary>The error number of what the system refused; 0 if it is the document that is wrong.</summary>
        public int SystemError { get; }

        const int NoFile = 1;

        bool IsOfSystem => SystemError != 0 || Code == NoFile;

        /// <summary>Throws what a load of a file that failed means; the path is null if it was none.</summary>
        internal void DemandLoaded(string path)
        {
            if (IsOk) return;
            var failure = new VyrException(this);
            bool isFolder = path != null && Directory.Exists(path);
            if (path == null || (!IsOfSystem && !isFolder)) throw failure;
            if (File.Exists(path) || isFolder) throw new IOException(failure.Message, failure);
            throw new FileNotFoundException(failure.Message, path, failure);
        }

        /// <summary>Throws what a save that failed means.</summary>
        internal void DemandSaved()
        {
            if (IsOk) return;
            var failure = new VyrException(this);
            if (IsOfSystem) throw new IOException(failure.Message, failure);
            throw failure;
        }

        /// <summary>A line for each fault.</summary>
        public override string ToString() => text;
    }

    /// <summary>One thing that is wrong. Texts that don't apply are empty.</summary>
    public sealed class Fault
    {
        readonly string line;

        internal Fault(int code, string file, string reason)
        {
            Code = code;
            Text = Library.Describe(code);
            Detail = reason;
            File = file;
            Item = Path = Value = "";
            line = file + ": " + Text + ": " + reason;
        }

        internal Fault(IntPtr report, uint index, string line, string file)
        {
            this.line = line;
            File = file;
            Code = Library.VyrModule_FaultCode(report, index);
            Line = Library.VyrModule_FaultLine(report, index);
            Column = Library.VyrModule_FaultColumn(report, index);
            Text = Library.VyrModule_FaultText(report, index);
            Detail = Library.VyrModule_FaultDetail(report, index);
            Item = Library.VyrModule_FaultItem(report, index);
            Path = Library.VyrModule_FaultPath(report, index);
            Value = Library.VyrModule_FaultValue(report, index);
        }

        /// <summary>The result code, as in lmx/error.h.</summary>
        public int Code { get; }

        /// <summary>The line in the document, from 1; 0 if there is no place in a text.</summary>
        public int Line { get; }

        /// <summary>Where in the line, in characters from 1; 0 if it isn't known.</summary>
        public int Column { get; }

        /// <summary>The code in words.</summary>
        public string Text { get; }

        /// <summary>What would be right, or what is missing.</summary>
        public string Detail { get; }

        /// <summary>The file, as it was named.</summary>
        public string File { get; }

        /// <summary>The element, attribute or class: "Vyr:Red".</summary>
        public string Item { get; }

        /// <summary>The open elements from the outermost: Palette "Inks" / ColorSet "All" / Color "Ink 17".</summary>
        public string Path { get; }

        /// <summary>The offending value, as read.</summary>
        public string Value { get; }

        /// <summary>All of it in a line.</summary>
        public override string ToString() => line;
    }
}
