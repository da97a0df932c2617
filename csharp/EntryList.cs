// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

using System;
using System.Collections;
using System.Collections.Generic;

namespace Vyr
{
    /// <summary>What the lists of all kinds share.</summary>
    public abstract class EntryList
    {
        internal readonly VyrObject Owner;
        readonly string name;
        readonly ListCalls calls;

        internal EntryList(VyrObject owner, string name, ListCalls calls)
        {
            Owner = owner;
            this.name = name;
            this.calls = calls;
        }

        /// <summary>Throws for a code that is no success.</summary>
        internal void Demand(int code) => Owner.Demand(code, name);

        /// <summary>How many entries there are.</summary>
        public int Count => checked((int)Owner.Kept(calls.Size(Owner.Pointer)));

        /// <summary>Removes the entry; what comes behind it moves up.</summary>
        /// <exception cref="ArgumentOutOfRangeException">There is no such entry.</exception>
        public void RemoveAt(int index)
        {
            calls.Delete(Owner.Pointer, Existing(index));
            Owner.Keep();
            RemoveEntry(index);
        }

        /// <summary>Removes all entries.</summary>
        public void Clear()
        {
            calls.Clear(Owner.Pointer);
            Owner.Keep();
            RemoveEntriesFrom(0);
        }

        /// <summary>The library has deleted an entry.</summary>
        internal virtual void RemoveEntry(int index) { }

        /// <summary>The library has deleted all entries from a number on.</summary>
        internal virtual void RemoveEntriesFrom(int count) { }

        /// <summary>An index that is one of an entry: the library doesn't look at the end of a list.</summary>
        internal uint Existing(int index) => index >= 0 && index < Count ? (uint)index : throw OutOfRange(index);

        /// <summary>An index before which an entry can be put.</summary>
        internal uint Place(int index) => index >= 0 && index <= Count ? (uint)index : throw OutOfRange(index);

        internal Exception OutOfRange(int index)
        {
            return new ArgumentOutOfRangeException(nameof(index), index, "The list has " + Count + " entries.");
        }
    }

    /// <summary>The entries of an element that may repeat and has parts of its own.</summary>
    /// <typeparam name="T">The class of the entries.</typeparam>
    public sealed class ObjectList<T> : EntryList, IReadOnlyList<T> where T : VyrObject
    {
        readonly ObjectListCalls<T> calls;
        T[] known; // those that were asked for, by index; may be shorter than the list, and longer with nulls

        internal ObjectList(VyrObject owner, string name, ObjectListCalls<T> calls) : base(owner, name, calls)
        {
            this.calls = calls;
            known = calls.None;
        }

        /// <summary>An entry. Setting one puts a copy of the value in its place.</summary>
        /// <exception cref="ArgumentOutOfRangeException">There is no such entry.</exception>
        public T this[int index]
        {
            get
            {
                int count = Count;
                return index >= 0 && index < count ? Entry(index, count) : throw OutOfRange(index);
            }
            set => Assign(Existing(index), value);
        }

        T Entry(int index, int count)
        {
            if (index >= known.Length) Array.Resize(ref known, Math.Max(count, 2 * known.Length));
            return known[index] ?? (known[index] = Make(Owner.Kept(calls.Get(Owner.Pointer, (uint)index))));
        }

        /// <summary>Puts a new entry at the end, and gives it.</summary>
        public T Add()
        {
            int index = Count;
            Demand(calls.Append(Owner.Pointer));
            return this[index];
        }

        /// <summary>Puts a copy of a value at the end, and gives the copy.</summary>
        public T Add(T value) => Assign((uint)Count, value);

        /// <summary>Puts a new entry before another one, or at the end, and gives it.</summary>
        /// <exception cref="ArgumentOutOfRangeException">The index is beyond the end.</exception>
        public T Insert(int index)
        {
            Demand(calls.Insert(Owner.Pointer, Place(index)));
            if (index < known.Length)
            {
                if (known[known.Length - 1] != null) Array.Resize(ref known, 2 * known.Length);
                Array.Copy(known, index, known, index + 1, known.Length - 1 - index);
                known[index] = null;
            }
            return this[index];
        }

        /// <summary>Puts a copy of a value before an entry, or at the end, and gives the copy.</summary>
        /// <exception cref="ArgumentOutOfRangeException">The index is beyond the end.</exception>
        public T Insert(int index, T value)
        {
            if (value == null) throw new ArgumentNullException(nameof(value));
            IntPtr source = value.Pointer;
            Insert(index);
            if (calls.Assign(Owner.Pointer, (uint)index, source) == IntPtr.Zero) throw new OutOfMemoryException();
            Owner.Keep();
            value.Keep();
            return this[index];
        }

        /// <summary>All entries, in order; those that are added or removed meanwhile count.</summary>
        public IEnumerator<T> GetEnumerator()
        {
            for (int i = 0, count; i < (count = Count); ++i) yield return Entry(i, count);
        }

        IEnumerator IEnumerable.GetEnumerator() => GetEnumerator();

        T Make(IntPtr pointer) => calls.Make(new Handle(pointer, Owner.Root));

        /// <summary>Overwrites an entry, or appends one.</summary>
        T Assign(uint index, T value)
        {
            if (value == null) throw new ArgumentNullException(nameof(value));
            int place = (int)index;
            if (place < known.Length && ReferenceEquals(value, known[place])) return value;
            if (calls.Assign(Owner.Pointer, index, value.Pointer) == IntPtr.Zero) throw new OutOfMemoryException();
            Owner.Keep();
            value.Keep();
            if (place < known.Length)
            {
                known[place]?.Remove();
                known[place] = null;
            }
            return this[place];
        }

        internal override void RemoveEntry(int index)
        {
            if (index >= known.Length) return;
            known[index]?.Remove();
            int last = known.Length - 1;
            Array.Copy(known, index + 1, known, index, last - index);
            known[last] = null;
        }

        internal override void RemoveEntriesFrom(int count)
        {
            for (int i = count; i < known.Length; ++i)
            {
                known[i]?.Remove();
                known[i] = null;
            }
        }
    }

    /// <summary>The values of a simple element that may repeat.</summary>
    /// <typeparam name="T">The type of the values.</typeparam>
    public abstract class ValueList<T> : EntryList, IReadOnlyList<T>
    {
        internal ValueList(VyrObject owner, string name, ListCalls calls) : base(owner, name, calls) { }

        /// <summary>A value.</summary>
        /// <exception cref="ArgumentOutOfRangeException">There is no such value.</exception>
        /// <exception cref="VyrException">The format doesn't allow it; nothing has changed.</exception>
        public T this[int index]
        {
            get => Get(Existing(index));
            set => Set(Existing(index), value);
        }

        /// <summary>Puts a value at the end.</summary>
        /// <exception cref="VyrException">The format doesn't allow it; nothing has changed.</exception>
        public void Add(T value) => InsertBefore((uint)Count, value);

        /// <summary>Puts a value before another one, or at the end.</summary>
        /// <exception cref="ArgumentOutOfRangeException">The index is beyond the end.</exception>
        /// <exception cref="VyrException">The format doesn't allow it; nothing has changed.</exception>
        public void Insert(int index, T value) => InsertBefore(Place(index), value);

        /// <summary>All values, in order.</summary>
        public IEnumerator<T> GetEnumerator()
        {
            for (int i = 0; i < Count; ++i) yield return Get((uint)i);
        }

        IEnumerator IEnumerable.GetEnumerator() => GetEnumerator();

        internal abstract T Get(uint index);
        internal abstract void Set(uint index, T value);
        internal abstract void InsertBefore(uint index, T value);
    }

    /// <summary>Texts of an element that may repeat.</summary>
    public sealed class TextList : ValueList<string>
    {
        readonly ValueListCalls<string> calls;

        internal TextList(VyrObject owner, string name, ValueListCalls<string> calls) : base(owner, name, calls)
        {
            this.calls = calls;
        }

        internal override string Get(uint index) => Owner.Kept(calls.Get(Owner.Pointer, index));
        internal override void Set(uint index, string value)
        {
            Demand(calls.Set(Owner.Pointer, index, Library.Whole(value)));
        }
        internal override void InsertBefore(uint index, string value)
        {
            Demand(calls.Insert(Owner.Pointer, index, Library.Whole(value)));
        }
    }

    /// <summary>Times of an element that may repeat; <see cref="Texts"/> are the same as they are written.</summary>
    /// <remarks>Getting a time that a <see cref="DateTimeOffset"/> can't hold is an <see cref="OverflowException"/>.</remarks>
    public sealed class DateTimeList : ValueList<DateTimeOffset>
    {
        readonly DateTimeTextList texts;

        internal DateTimeList(VyrObject owner, string name, ValueListCalls<IntPtr> calls, string pattern)
            : base(owner, name, calls)
        {
            texts = new DateTimeTextList(owner, name, calls, pattern);
        }

        /// <summary>The same times as texts, which hold what a <see cref="DateTimeOffset"/> can't.</summary>
        public ValueList<string> Texts => texts;

        /// <summary>Puts a time at the end, as a document writes it.</summary>
        /// <exception cref="VyrException">It is no time, or it names no time zone; nothing has changed.</exception>
        public void Add(string value) => texts.Add(value);

        internal override DateTimeOffset Get(uint index) => DateTimeText.Parse(texts.Get(index));
        internal override void Set(uint index, DateTimeOffset value) => texts.Set(index, DateTimeText.Format(value));
        internal override void InsertBefore(uint index, DateTimeOffset value)
        {
            texts.InsertBefore(index, DateTimeText.Format(value));
        }
    }

    internal sealed class DateTimeTextList : ValueList<string>
    {
        readonly ValueListCalls<IntPtr> calls;
        readonly string pattern;

        internal DateTimeTextList(VyrObject owner, string name, ValueListCalls<IntPtr> calls, string pattern)
            : base(owner, name, calls)
        {
            this.calls = calls;
            this.pattern = pattern;
        }

        internal override string Get(uint index) => Owner.Kept(DateTimeText.Read(calls.Get(Owner.Pointer, index)));
        internal override void Set(uint index, string value)
        {
            Demand(DateTimeText.Give(value, pattern, time => calls.Set(Owner.Pointer, index, time)));
        }
        internal override void InsertBefore(uint index, string value)
        {
            Demand(DateTimeText.Give(value, pattern, time => calls.Insert(Owner.Pointer, index, time)));
        }
    }

    /// <summary>Elements of any kind, each as the text that stands in the document.</summary>
    public sealed class MarkupList : EntryList, IReadOnlyList<string>
    {
        readonly MarkupListCalls calls;

        internal MarkupList(VyrObject owner, string name, MarkupListCalls calls) : base(owner, name, calls)
        {
            this.calls = calls;
        }

        /// <summary>An element with its tags.</summary>
        /// <exception cref="ArgumentOutOfRangeException">There is no such entry.</exception>
        public string this[int index] => Owner.Kept(Library.VyrModule_GetMarkup(Owner.Pointer, calls.Item, Existing(index)));

        /// <summary>Puts an element at the end. It isn't looked at: it must be well-formed, with its tags.</summary>
        public void Add(string markup) => Demand(calls.Append(Owner.Pointer, Library.Narrow(markup, nameof(markup))));

        /// <summary>Puts an element before another one, or at the end.</summary>
        /// <exception cref="ArgumentOutOfRangeException">The index is beyond the end.</exception>
        public void Insert(int index, string markup)
        {
            Demand(calls.Insert(Owner.Pointer, Place(index), Library.Narrow(markup, nameof(markup))));
        }

        /// <summary>All elements, in order.</summary>
        public IEnumerator<string> GetEnumerator()
        {
            for (int i = 0; i < Count; ++i) yield return this[i];
        }

        IEnumerator IEnumerable.GetEnumerator() => GetEnumerator();
    }

    // The functions of one list of one class

    internal abstract class ListCalls
    {
        internal Func<IntPtr, uint> Size;
        internal Action<IntPtr, uint> Delete;
        internal Action<IntPtr> Clear;
    }

    internal sealed class ObjectListCalls<T> : ListCalls
    {
        internal readonly T[] None = { };
        internal Func<Handle, T> Make;
        internal Func<IntPtr, uint, IntPtr> Get; // beyond the end it would make the list longer
        internal Func<IntPtr, uint, IntPtr, IntPtr> Assign;
        internal Func<IntPtr, int> Append;
        internal Func<IntPtr, uint, int> Insert;
    }

    internal sealed class ValueListCalls<T> : ListCalls
    {
        internal Func<IntPtr, uint, T> Get;
        internal Func<IntPtr, uint, T, int> Set;
        internal Func<IntPtr, uint, T, int> Insert;
    }

    internal sealed class MarkupListCalls : ListCalls
    {
        internal IntPtr Item;
        internal Func<IntPtr, byte[], int> Append;
        internal Func<IntPtr, uint, byte[], int> Insert;
    }
}
