// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

using System;
using System.Diagnostics;
using System.IO;
using System.Text;

namespace Vyr
{
    /// <summary>A whole document: loaded, parsed, or made from nothing; saved to files and streams.</summary>
    // Without this a debugger would write the whole document to show it.
    [DebuggerDisplay("Document")]
    public partial class Document : IDisposable
    {
        /// <summary>Loads a file: a plain document, or a container if its name ends in ".vyrz".</summary>
        /// <exception cref="FileNotFoundException">There is no such file.</exception>
        /// <exception cref="IOException">The file can't be read.</exception>
        /// <exception cref="VyrException">The document has faults; `Report` has them all.</exception>
        public static Document Load(string path) => Demanded(TryLoad(path, out Document document), document, path);

        /// <summary>Loads a plain document from its bytes, in any encoding that a file may have.</summary>
        /// <exception cref="VyrException">The document has faults; `Report` has them all.</exception>
        public static Document Load(byte[] bytes) => Demanded(TryLoad(bytes, out Document document), document, null);

        /// <summary>Loads a plain document from what is left in a stream, which stays open.</summary>
        /// <exception cref="VyrException">The document has faults; `Report` has them all.</exception>
        public static Document Load(Stream stream) => Demanded(TryLoad(stream, out Document document), document, null);

        /// <summary>Reads a document from its text.</summary>
        /// <exception cref="VyrException">The document has faults; `Report` has them all.</exception>
        public static Document Parse(string text) => Demanded(TryParse(text, out Document document), document, null);

        /// <summary>Loads a file without throwing for what is wrong with it.</summary>
        /// <param name="path">As for `Load`.</param>
        /// <param name="document">The document; null if there are faults, unless the options ask for what was read.</param>
        /// <param name="options">How to load.</param>
        public static LoadReport TryLoad(string path, out Document document, LoadOptions options = null)
        {
            Library.Whole(path, nameof(path));
            long size = File.Exists(path) ? new FileInfo(path).Length : 0;
            return Read(size, options, out document,
                        (self, how) => Library.VyrModule_LoadFile(self, path, how.Collect, how.Kept));
        }

        /// <summary>Loads bytes without throwing for what is wrong with them.</summary>
        public static LoadReport TryLoad(byte[] bytes, out Document document, LoadOptions options = null)
        {
            if (bytes == null) throw new ArgumentNullException(nameof(bytes));
            return FromMemory(bytes, bytes.Length, null, options, out document);
        }

        /// <summary>Loads what is left in a stream without throwing for what is wrong with it.</summary>
        public static LoadReport TryLoad(Stream stream, out Document document, LoadOptions options = null)
        {
            if (stream == null) throw new ArgumentNullException(nameof(stream));
            var copy = new MemoryStream();
            stream.CopyTo(copy);
            return FromMemory(copy.GetBuffer(), (int)copy.Length, (stream as FileStream)?.Name, options, out document);
        }

        /// <summary>Reads a text without throwing for what is wrong with it.</summary>
        public static LoadReport TryParse(string text, out Document document, LoadOptions options = null)
        {
            Library.Whole(text, nameof(text));
            return Read(text.Length, options, out document,
                        (self, how) => Library.VyrModule_LoadString(self, text, how.Collect, how.Kept));
        }

        /// <summary>Writes a plain document if the name ends in ".vyr", a container if it ends in ".vyrz".</summary>
        /// <remarks>Like all ways of writing it notes in the header which software wrote.</remarks>
        /// <exception cref="IOException">The file can't be written.</exception>
        /// <exception cref="VyrException">The document lacks something, or the name has another ending; or a value could
        /// not be read back as it is, and then the file was written all the same (`Report.IsReadToEnd`).</exception>
        public void Save(string path) => TrySave(path).DemandSaved();

        /// <summary>Writes a file without throwing for what is wrong with it.</summary>
        public LoadReport TrySave(string path)
        {
            Library.Whole(path, nameof(path));
            string beside = path.EndsWith(".vyrz", StringComparison.Ordinal) ? path.Substring(0, path.Length - 1) : null;
            if (beside != null && File.Exists(beside)) return SaveElsewhere(path);
            return new LoadReport(Kept(Library.VyrModule_WriteFile(Pointer, path)));
        }

        /// <summary>Writes a plain document to a stream, in UTF-8; the stream stays open.</summary>
        /// <exception cref="VyrException">The document lacks something, or a value could not be read back as it is; nothing
        /// was written.</exception>
        public void Save(Stream stream)
        {
            if (stream == null) throw new ArgumentNullException(nameof(stream));
            byte[] bytes = Encoding.UTF8.GetBytes(ToString());
            stream.Write(bytes, 0, bytes.Length);
        }

        /// <summary>The document as a text.</summary>
        /// <exception cref="VyrException">The document lacks something, or a value could not be read back as it
        /// is.</exception>
        public override string ToString()
        {
            IntPtr written;
            var report = new LoadReport(Kept(Library.VyrModule_WriteString(Pointer, out written)));
            string text = written == IntPtr.Zero ? null : Library.TakeWide(written);
            report.DemandSaved();
            return text;
        }

        /// <summary>Frees the document now, instead of some time after its last use. Its parts can't be used any more.</summary>
        public void Dispose()
        {
            Remove();
            Root.Dispose();
        }

        static LoadReport FromMemory(byte[] bytes, int size, string name, LoadOptions options, out Document document)
        {
            return Read(size, options, out document, (self, how) =>
                Library.VyrModule_LoadMemory(self, bytes, (uint)size, name, how.Collect, how.Kept));
        }

        static LoadReport Read(long size, LoadOptions options, out Document document, Func<IntPtr, LoadOptions, IntPtr> load)
        {
            options = options ?? new LoadOptions();
            // Always into a new object: the library appends to what is there.
            var loaded = new Document();
            var report = new LoadReport(loaded.Kept(load(loaded.Pointer, options)));
            if (!report.IsOk && !options.KeepPartial)
            {
                loaded.Dispose();
                loaded = null;
            }
            else
            {
                const int PerByte = 3; // about what a document takes in memory
                loaded.Root.Weigh(size * PerByte);
            }
            document = loaded;
            return report;
        }

        static Document Demanded(LoadReport report, Document document, string path)
        {
            report.DemandLoaded(path);
            return document;
        }

        /// <summary>A container is made by way of a plain document of the same name beside it. One that is there already
        /// would be lost, so that the container is then made in a folder of its own.</summary>
        LoadReport SaveElsewhere(string path)
        {
            string folder = path + ".saving";
            for (int i = 0; Directory.Exists(folder) || File.Exists(folder); ++i) folder = path + ".saving" + i;
            try
            {
                Directory.CreateDirectory(folder);
                try
                {
                    string made = Path.Combine(folder, Path.GetFileName(path));
                    var report = new LoadReport(Kept(Library.VyrModule_WriteFile(Pointer, made)), made, path);
                    if (!File.Exists(made)) return report;
                    if (File.Exists(path)) File.Delete(path);
                    File.Move(made, path);
                    return report;
                }
                finally
                {
                    Directory.Delete(folder, true);
                }
            }
            catch (Exception failure) when (failure is IOException || failure is UnauthorizedAccessException)
            {
                return new LoadReport(path, failure.Message);
            }
        }
    }
}
