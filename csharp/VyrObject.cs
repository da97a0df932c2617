// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

using System;
using System.Runtime.CompilerServices;

namespace Vyr
{
    /// <summary>What all classes of the format share.</summary>
    /// <remarks>
    /// An object made with `new`, by `Clone` or by a load stands on its own. Every other one is a part of the object that
    /// it was asked from, keeps that alive, and is always the same object for the same part. A part that has been removed
    /// throws <see cref="ObjectDisposedException"/>. An object and its parts belong to one thread at a time, for reading
    /// too.
    /// </remarks>
    public abstract class VyrObject
    {
        const int NotEnumerated = 38;

        readonly Root root;
        IntPtr pointer;
        // What was asked for: objects, lists. Most objects are asked for one part only, which needs no array.
        object parts; // the part with the number `only`, or if that is Several an array of them by number
        int only;
        const int Several = -1;

        internal VyrObject(Handle handle)
        {
            root = handle.Root;
            pointer = handle.Pointer;
        }

        /// <summary>True if all is there that the format demands of this object, without a look into its parts.</summary>
        public bool IsComplete => Is(Class.IsComplete(Pointer));

        /// <summary>Back to a new object: all parts are removed, all values unset.</summary>
        public void Reset()
        {
            RemoveParts();
            Class.Reset(Pointer);
            Keep();
        }

        /// <summary>A copy that stands on its own. What the format demands counts as set in a copy.</summary>
        public VyrObject Clone() => Copy();

        internal abstract VyrObject Copy();

        internal abstract ClassCalls Class { get; }

        /// <summary>The object of the library. A function that was called with it is followed by a use of this object, so
        /// that the collector doesn't take it before the function is done: `Kept`, `Is`, `Demand` or `Keep`.</summary>
        internal IntPtr Pointer
        {
            get
            {
                if (pointer == IntPtr.Zero) throw Gone();
                return pointer;
            }
        }

        internal Root Root => root;

        Exception Gone()
        {
            return new ObjectDisposedException(GetType().Name, "The object was removed from its document, or the document was disposed of.");
        }

        // What the generated members are made of

        internal void Keep() => GC.KeepAlive(this);

        internal T Kept<T>(T result)
        {
            GC.KeepAlive(this);
            return result;
        }

        internal string Kept(string result)
        {
            GC.KeepAlive(this);
            if (result == null) throw new OutOfMemoryException();
            return result;
        }

        /// <summary>A copy of this object, which takes as much memory if this is all that hangs on its root.</summary>
        internal T Copied<T>(T copy) where T : VyrObject
        {
            if (root.IsFor(pointer)) copy.Root.WeighAs(root);
            return Kept(copy);
        }

        internal bool Is(int result)
        {
            GC.KeepAlive(this);
            return result != 0;
        }

        internal bool Is(uint result) => Is((int)result);

        /// <summary>Throws for a code that is no success; the name of the item comes from the member that calls.</summary>
        internal void Demand(int code, [CallerMemberName] string item = null)
        {
            GC.KeepAlive(this);
            if (code != 0) throw new VyrException(code, GetType().Name + "." + item);
        }

        /// <summary>Loads a file that has an element of its own as its root into a new object.</summary>
        internal static LoadReport Load<T>(T made, string path, LoadOptions options, out T loaded) where T : VyrObject
        {
            options = options ?? new LoadOptions();
            var report = new LoadReport(made.Kept(Library.VyrModule_LoadElement(
                made.Pointer, Library.Narrow(typeof(T).Name), Library.Whole(path, nameof(path)), options.Collect, options.Kept)));
            loaded = report.IsOk || options.KeepPartial ? made : null;
            return report;
        }

        /// <summary>Saves such a file, for `Elements`.</summary>
        internal LoadReport SaveElement(string path)
        {
            return new LoadReport(Kept(Library.VyrModule_WriteElement(
                Pointer, Library.Narrow(GetType().Name), Library.Whole(path, nameof(path)))));
        }

        /// <summary>The code of a setter that only says whether it knew the number.</summary>
        internal static int Listed(int isKnown) => isKnown != 0 ? 0 : NotEnumerated;

        // Parts

        internal object Part(int number)
        {
            if (only == number) return parts;
            if (only != Several) return null;
            var all = (object[])parts;
            return number < all.Length ? all[number] : null;
        }

        internal object Remember(int number, object part)
        {
            if (only == number || parts == null)
            {
                only = number;
                parts = part;
                return part;
            }
            object[] all = only == Several ? (object[])parts : new object[Math.Max(only, number) + 1];
            if (only != Several) all[only] = parts;
            if (number >= all.Length) Array.Resize(ref all, number + 1);
            all[number] = part;
            only = Several;
            parts = all;
            return part;
        }

        /// <summary>Makes this object and all its parts unusable: the library has deleted them, or is about to.</summary>
        internal void Remove()
        {
            pointer = IntPtr.Zero;
            RemoveParts();
        }

        internal void RemoveParts()
        {
            if (only != Several)
            {
                RemovePart(only);
                return;
            }
            for (int i = ((object[])parts).Length; i-- > 0;) RemovePart(i);
        }

        internal void RemovePart(int number)
        {
            object part = Part(number);
            if (part is EntryList entries)
            {
                entries.RemoveEntriesFrom(0); // the list itself lives as long as this object
            }
            else if (part != null)
            {
                Remember(number, null);
                ((VyrObject)part).Remove();
            }
        }

        // Single children: null until set

        internal object Child(int number, PartCalls calls)
        {
            object known = Part(number);
            if (known != null) return known;
            IntPtr found = Kept(Library.VyrModule_GetPart(Pointer, calls.Item));
            return found == IntPtr.Zero ? null : Remember(number, calls.Make(new Handle(found, root)));
        }

        /// <summary>The child that is there, or a new one.</summary>
        internal object CreateChild(int number, PartCalls calls)
        {
            object known = Child(number, calls);
            if (known != null) return known;
            VyrObject child = calls.Make(new Handle(Kept(calls.Get(Pointer)), root));
            Remember(number, child);
            child.Reset(); // one that was unset still holds what it held
            calls.Get(Pointer); // of a class that is a holder itself the reset takes that back
            Keep();
            return child;
        }

        internal void AssignChild(int number, PartCalls calls, VyrObject value)
        {
            if (value == null)
            {
                if (calls.Unset == null) throw new ArgumentNullException(nameof(value));
                calls.Unset(Pointer);
                RemovePart(number);
            }
            else if (!ReferenceEquals(value, Part(number)))
            {
                if (calls.Assign(Pointer, value.Pointer) == IntPtr.Zero) throw new OutOfMemoryException();
                value.Keep();
                RemovePart(number);
            }
            Keep();
        }

        // Choices: one alternative at a time

        internal object Held(int number, PartCalls calls)
        {
            return Part(number) ?? Remember(number, calls.Make(new Handle(Kept(calls.Get(Pointer)), root)));
        }

        /// <summary>Makes a new alternative in place of another one, which the library deletes.</summary>
        internal object Choose(int number, PartCalls calls)
        {
            IntPtr self = Pointer;
            RemovePart(number);
            return Remember(number, calls.Make(new Handle(Kept(calls.Get(self)), root)));
        }

        /// <summary>Makes a copy of a value the alternative.</summary>
        internal object Choose(int number, PartCalls calls, VyrObject value)
        {
            if (value == null) throw new ArgumentNullException(nameof(value));
            IntPtr self = Pointer, source = value.Pointer;
            if (ReferenceEquals(value, Part(number))) return value;
            RemovePart(number);
            object chosen = Remember(number, calls.Make(new Handle(Kept(calls.Assign(self, source)), root)));
            value.Keep();
            return chosen;
        }

        /// <summary>Forgets the former alternative after a simple value was chosen.</summary>
        internal void Choose(int number, int code, [CallerMemberName] string item = null)
        {
            Demand(code, item);
            RemovePart(number);
        }

        // Lists: there from the start, maybe empty

        internal TextList ListOfTexts(int number, ValueListCalls<string> calls, [CallerMemberName] string name = null)
        {
            return (TextList)(Part(number) ?? Remember(number, new TextList(this, name, calls)));
        }

        internal DateTimeList ListOfTimes(
            int number, ValueListCalls<IntPtr> calls, string pattern, [CallerMemberName] string name = null)
        {
            return (DateTimeList)(Part(number) ?? Remember(number, new DateTimeList(this, name, calls, pattern)));
        }

        internal MarkupList ListOfMarkup(int number, MarkupListCalls calls, [CallerMemberName] string name = null)
        {
            return (MarkupList)(Part(number) ?? Remember(number, new MarkupList(this, name, calls)));
        }

        // Columns of a list of numbers

        // As long as the last one: the spectra of a document are mostly alike, and then one call does.
        static int expected;
        const int LongestExpected = 1024;

        internal double[] Column(IntPtr list, IntPtr item)
        {
            double[] values = new double[expected];
            for (;;)
            {
                double none = 0;
                uint size = Kept(values.Length == 0
                    ? Library.VyrModule_GetDoubles(Pointer, list, item, ref none, 0)
                    : Library.VyrModule_GetDoubles(Pointer, list, item, ref values[0], (uint)values.Length));
                if (size == values.Length) return values;
                values = new double[size];
                expected = Math.Min(values.Length, LongestExpected);
            }
        }

        internal void SetColumn(EntryList entries, IntPtr list, IntPtr item, double[] value, [CallerMemberName] string name = null)
        {
            if (value == null) throw new ArgumentNullException(nameof(value));
            Demand(Library.VyrModule_SetDoubles(Pointer, list, item, value, (uint)value.Length), name);
            entries.RemoveEntriesFrom(value.Length);
        }
    }

    /// <summary>The functions of a class.</summary>
    internal sealed class ClassCalls
    {
        internal Func<IntPtr, int> IsComplete;
        internal Action<IntPtr> Reset;
    }

    /// <summary>The functions of one single child, or of one alternative of a choice.</summary>
    internal sealed class PartCalls
    {
        internal IntPtr Item;
        internal Func<Handle, VyrObject> Make;
        internal Func<IntPtr, IntPtr> Get; // makes it there
        internal Func<IntPtr, IntPtr, IntPtr> Assign;
        internal Action<IntPtr> Unset; // null where the format demands it
    }
}
