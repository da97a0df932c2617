// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

using System;
using System.Collections.Generic;
using System.IO;
using System.Reflection;
using System.Runtime.InteropServices;
using System.Text;

namespace Vyr
{
    /// <summary>The native library: how it is found, and its functions that belong to no class of the format.</summary>
    internal static class Library
    {
        /// <summary>The runtime makes a file name of it: libVyrModule.so, VyrModule.dll.</summary>
        internal const string Name = "VyrModule";

        [DllImport(Name)] static extern IntPtr VyrModule_Version();
        [DllImport(Name)] static extern IntPtr VyrModule_FindItem(byte[] className, byte[] item);
        [DllImport(Name)] internal static extern void VyrModule_FreeString(IntPtr text);

        [DllImport(Name)] internal static extern IntPtr VyrModule_LoadFile(
            IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string path, uint collect, uint limit);
        [DllImport(Name)] internal static extern IntPtr VyrModule_LoadString(
            IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string text, uint collect, uint limit);
        [DllImport(Name)] internal static extern IntPtr VyrModule_LoadMemory(
            IntPtr self, byte[] data, uint size, [MarshalAs(UnmanagedType.LPWStr)] string name, uint collect, uint limit);
        [DllImport(Name)] internal static extern IntPtr VyrModule_WriteFile(
            IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string path);
        [DllImport(Name)] internal static extern IntPtr VyrModule_WriteString(IntPtr self, out IntPtr text);
        [DllImport(Name)] internal static extern IntPtr VyrModule_LoadElement(
            IntPtr self, byte[] className, [MarshalAs(UnmanagedType.LPWStr)] string path, uint collect, uint limit);
        [DllImport(Name)] internal static extern IntPtr VyrModule_WriteElement(
            IntPtr self, byte[] className, [MarshalAs(UnmanagedType.LPWStr)] string path);

        [DllImport(Name)] internal static extern void VyrModule_DeleteReport(IntPtr report);
        [DllImport(Name)] internal static extern int VyrModule_ReportCode(IntPtr report);
        [DllImport(Name)] internal static extern int VyrModule_ReportIsReadToEnd(IntPtr report);
        [DllImport(Name)] internal static extern int VyrModule_ReportSystemError(IntPtr report);
        [DllImport(Name)] internal static extern uint VyrModule_ReportFaultCount(IntPtr report);
        [DllImport(Name)] internal static extern uint VyrModule_ReportTotalCount(IntPtr report);
        [return: MarshalAs(UnmanagedType.BStr)]
        [DllImport(Name)] internal static extern string VyrModule_ReportText(IntPtr report);
        [DllImport(Name)] internal static extern int VyrModule_FaultCode(IntPtr report, uint index);
        [DllImport(Name)] internal static extern int VyrModule_FaultLine(IntPtr report, uint index);
        [DllImport(Name)] internal static extern int VyrModule_FaultColumn(IntPtr report, uint index);
        [return: MarshalAs(UnmanagedType.BStr)]
        [DllImport(Name)] internal static extern string VyrModule_FaultText(IntPtr report, uint index);
        [return: MarshalAs(UnmanagedType.BStr)]
        [DllImport(Name)] internal static extern string VyrModule_FaultDetail(IntPtr report, uint index);
        [return: MarshalAs(UnmanagedType.BStr)]
        [DllImport(Name)] internal static extern string VyrModule_FaultFile(IntPtr report, uint index);
        [return: MarshalAs(UnmanagedType.BStr)]
        [DllImport(Name)] internal static extern string VyrModule_FaultItem(IntPtr report, uint index);
        [return: MarshalAs(UnmanagedType.BStr)]
        [DllImport(Name)] internal static extern string VyrModule_FaultPath(IntPtr report, uint index);
        [return: MarshalAs(UnmanagedType.BStr)]
        [DllImport(Name)] internal static extern string VyrModule_FaultValue(IntPtr report, uint index);

        [DllImport(Name)] internal static extern IntPtr VyrModule_GetPart(IntPtr self, IntPtr item);
        [DllImport(Name)] internal static extern uint VyrModule_GetDoubles(
            IntPtr self, IntPtr list, IntPtr item, ref double values, uint capacity);
        [DllImport(Name)] internal static extern int VyrModule_SetDoubles(
            IntPtr self, IntPtr list, IntPtr item, double[] values, uint count);
        [return: MarshalAs(UnmanagedType.BStr)]
        [DllImport(Name)] internal static extern string VyrModule_GetMarkup(IntPtr self, IntPtr item, uint index);
        [DllImport(Name)] internal static extern IntPtr VyrModule_AssignAlternative(IntPtr self, IntPtr item, IntPtr value);

        [DllImport(Name)] static extern IntPtr CSharp_get_error_description(int code);

        static readonly object Gate = new object();
        static bool isChecked;

        /// <summary>Called before the first function of all: says clearly what is wrong if there is no library, or another
        /// one.</summary>
        internal static void Check()
        {
            lock (Gate)
            {
                if (isChecked) return;
                string found;
                try
                {
                    found = Marshal.PtrToStringAnsi(VyrModule_Version());
                }
                catch (DllNotFoundException failure)
                {
                    throw new DllNotFoundException(WhereItLooked(), failure);
                }
                catch (BadImageFormatException failure)
                {
                    throw new DllNotFoundException(
                        "The native library of Vyr is not for this kind of process (" + 8 * IntPtr.Size + " bits). " +
                        WhereItLooked(), failure);
                }
                catch (EntryPointNotFoundException failure)
                {
                    throw new DllNotFoundException("The native library of Vyr that was found is too old. " + WhereItLooked(),
                                                   failure);
                }
                if (!found.StartsWith(Needed + ".", StringComparison.Ordinal))
                    throw new DllNotFoundException("The native library of Vyr that was found has the version " + found +
                                                   ", and this assembly needs " + Needed + ". " + WhereItLooked());
                isChecked = true;
            }
        }

        /// <summary>The version of the library. Until 1.0 a minor version may change the interface.</summary>
        static string Needed => typeof(Library).Assembly.GetName().Version.ToString(2);

        static string WhereItLooked()
        {
            bool isWindows = Path.DirectorySeparatorChar == '\\';
            string variable = isWindows ? "PATH" : "LD_LIBRARY_PATH";
            string folder = Path.GetDirectoryName(Assembly.GetExecutingAssembly().Location);
            string setting = Environment.GetEnvironmentVariable(variable);
            return "The native library " + (isWindows ? "VyrModule.dll" : "libVyrModule.so") + " is looked for beside the assembly, in " +
                   (string.IsNullOrEmpty(folder) ? "its folder" : folder) +
                   ", and then where the system's loader looks: in " + variable +
                   (string.IsNullOrEmpty(setting) ? ", which is not set," : " (" + setting + ")") +
                   " and the system's own folders. On Linux the package libvyr" + Needed + " installs it.";
        }

        /// <summary>What the functions that work by item take: looked up once, it stays good.</summary>
        internal static IntPtr Item(string className, string item)
        {
            IntPtr found = VyrModule_FindItem(Narrow(className), Narrow(item));
            if (found == IntPtr.Zero) throw new MissingMemberException(className, item);
            return found;
        }

        /// <summary>The code in words.</summary>
        internal static string Describe(int code)
        {
            return Marshal.PtrToStringAnsi(CSharp_get_error_description(code));
        }

        /// <summary>A text as UTF-8 with its end.</summary>
        internal static byte[] Narrow(string text, string name = "value")
        {
            return Encoding.UTF8.GetBytes(Whole(text, name) + "\0");
        }

        /// <summary>The text itself; one with a zero character in it would arrive cut off.</summary>
        internal static string Whole(string text, string name = "value")
        {
            if (text == null) throw new ArgumentNullException(name);
            if (text.IndexOf('\0') >= 0)
                throw new ArgumentException("A text of a document can't hold the character U+0000.", name);
            return text;
        }

        /// <summary>A returned UTF-8 text, which is freed.</summary>
        internal static string TakeNarrow(IntPtr text)
        {
            if (text == IntPtr.Zero) throw new OutOfMemoryException();
            byte[] bytes = new byte[Marshal.ReadInt32(text, -4)];
            Marshal.Copy(text, bytes, 0, bytes.Length);
            VyrModule_FreeString(text);
            return Encoding.UTF8.GetString(bytes);
        }

        /// <summary>A returned UTF-16 text, which is freed.</summary>
        internal static string TakeWide(IntPtr text)
        {
            string taken = Marshal.PtrToStringBSTR(text);
            VyrModule_FreeString(text);
            return taken;
        }
    }
}
