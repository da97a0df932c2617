// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

using System;
using System.Collections.Generic;
using System.Globalization;
using System.Runtime.InteropServices;
using System.Text.RegularExpressions;

namespace Vyr
{
    /// <summary>Times between the library, which keeps them as documents write them, and DateTimeOffset.</summary>
    internal static class DateTimeText
    {
        const int NoPatternMatched = 22;
        const int BadFormat = 35;

        [DllImport(Library.Name)] static extern int CSharp_c_datetime_is_valid(byte[] text);
        [DllImport(Library.Name)] static extern IntPtr CSharp_new_c_datetime__SWIG_3(byte[] text);
        [DllImport(Library.Name)] static extern void CSharp_delete_c_datetime(IntPtr self);
        [DllImport(Library.Name)] static extern IntPtr CSharp_c_datetime_get_as_string(IntPtr self);
        [DllImport(Library.Name)] static extern IntPtr CSharp_new_c_pattern(byte[] pattern);
        [DllImport(Library.Name)] static extern int CSharp_c_pattern_is_match__SWIG_0(IntPtr self, byte[] text);

        static readonly Dictionary<string, IntPtr> Patterns = new Dictionary<string, IntPtr>();

        /// <summary>The text of a time of the library.</summary>
        internal static string Read(IntPtr time)
        {
            if (time == IntPtr.Zero) throw new OutOfMemoryException();
            return Library.TakeNarrow(CSharp_c_datetime_get_as_string(time));
        }

        /// <summary>Hands a text on as a time, after the checks that a load makes.</summary>
        internal static int Give(string text, string pattern, Func<IntPtr, int> set)
        {
            byte[] narrow = Library.Narrow(text);
            if (CSharp_c_datetime_is_valid(narrow) == 0) return BadFormat;
            if (pattern != null && CSharp_c_pattern_is_match__SWIG_0(Pattern(pattern), narrow) == 0) return NoPatternMatched;
            IntPtr time = CSharp_new_c_datetime__SWIG_3(narrow);
            if (time == IntPtr.Zero) throw new OutOfMemoryException();
            try
            {
                return set(time);
            }
            finally
            {
                CSharp_delete_c_datetime(time);
            }
        }

        /// <summary>A pattern is made once and kept.</summary>
        static IntPtr Pattern(string text)
        {
            lock (Patterns)
            {
                IntPtr found;
                if (!Patterns.TryGetValue(text, out found)) Patterns[text] = found = CSharp_new_c_pattern(Library.Narrow(text));
                return found;
            }
        }

        /// <summary>The library keeps six digits of the seconds, and six places below a thousandth. What is finer is cut
        /// off here, since rounding could make 60 seconds of it.</summary>
        internal static string Format(DateTimeOffset time)
        {
            long seconds = time.Ticks % TimeSpan.TicksPerMinute, kept = TimeSpan.TicksPerSecond / 1000000;
            if (seconds >= TimeSpan.TicksPerMillisecond)
                for (kept = 1; seconds / kept >= 1000000;) kept *= 10;
            string text = time.AddTicks(-(seconds % kept)).ToString("yyyy-MM-dd'T'HH:mm:ss.FFFFFFF", CultureInfo.InvariantCulture);
            return text + (time.Offset == TimeSpan.Zero ? "Z" : time.ToString("zzz", CultureInfo.InvariantCulture));
        }

        static readonly Regex Form = new Regex(
            @"^(\d{4})-(\d\d)-(\d\d)T(\d\d):(\d\d):(\d\d)(?:\.(\d{1,7}))?(?:Z|([+-])(\d\d):(\d\d))$", RegexOptions.CultureInvariant);

        /// <summary>The same time, exactly, or an exception.</summary>
        internal static DateTimeOffset Parse(string text)
        {
            Match match = Form.Match(text);
            if (match.Success)
            {
                try
                {
                    Func<int, int> field = i => match.Groups[i].Success ? int.Parse(match.Groups[i].Value, CultureInfo.InvariantCulture) : 0;
                    TimeSpan offset = new TimeSpan(field(9), field(10), 0);
                    if (match.Groups[8].Value == "-") offset = offset.Negate();
                    DateTime time = new DateTime(field(1), field(2), field(3), field(4), field(5), field(6));
                    string fraction = match.Groups[7].Value;
                    if (fraction != "") time = time.AddTicks(int.Parse(fraction.PadRight(7, '0'), CultureInfo.InvariantCulture));
                    return new DateTimeOffset(time, offset);
                }
                catch (ArgumentException) { } // out of the calendar, or more than 14 hours from UTC
            }
            throw new OverflowException("The time " + text + " can't be held by a DateTimeOffset; it can be had as a text.");
        }
    }
}
