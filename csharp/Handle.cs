// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

using System;
using System.Runtime.InteropServices;

namespace Vyr
{
    /// <summary>An object of the library with all that lies below it; deleted once nothing managed needs any part.</summary>
    internal sealed class Root : SafeHandle
    {
        // The collector sees a few bytes of a document, and would let thousands of them lie that nobody disposes of. So it
        // is asked to look each time that documents have taken as much again as this, or half of what they hold.
        const long Step = 64 << 20;
        static readonly object Gate = new object();
        static long held, next = Step;

        readonly Action<IntPtr> delete;
        long weight;

        internal Root(IntPtr pointer, Action<IntPtr> delete) : base(IntPtr.Zero, true)
        {
            this.delete = delete;
            SetHandle(pointer);
        }

        public override bool IsInvalid => handle == IntPtr.Zero;

        /// <summary>Says how many bytes of the library's hang on this, about.</summary>
        internal void Weigh(long bytes)
        {
            bool isTime;
            lock (Gate)
            {
                isTime = held > next; // by what others hold: this is in use
                weight += bytes;
                held += bytes;
                if (isTime) next = Next();
            }
            if (isTime) GC.Collect();
        }

        internal void WeighAs(Root other)
        {
            if (other.weight > 0) Weigh(other.weight);
        }

        /// <summary>Whether it is this object that was made, not a part of it.</summary>
        internal bool IsFor(IntPtr pointer) => handle == pointer;

        protected override bool ReleaseHandle()
        {
            delete(handle);
            lock (Gate)
            {
                held -= weight;
                next = Math.Min(next, Next());
            }
            return true;
        }

        static long Next() => held + Math.Max(Step, held / 2);
    }

    /// <summary>What an object is made from: a pointer, and the root that keeps it alive.</summary>
    internal struct Handle
    {
        internal readonly IntPtr Pointer;
        internal readonly Root Root;

        internal Handle(IntPtr pointer, Root root)
        {
            if (pointer == IntPtr.Zero) throw new OutOfMemoryException();
            Pointer = pointer;
            Root = root;
        }

        /// <summary>A new object of its own.</summary>
        internal static Handle New(Func<IntPtr> create, Action<IntPtr> delete)
        {
            Library.Check();
            IntPtr pointer = create();
            return new Handle(pointer, new Root(pointer, delete));
        }
    }
}
