// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

using System;
using System.Runtime.InteropServices;

namespace Vyr
{
    /// <summary>An object of the library with all that lies below it; deleted once nothing managed needs any part.</summary>
    internal sealed class Root : SafeHandle
    {
        readonly Action<IntPtr> delete;
        long pressure;

        internal Root(IntPtr pointer, Action<IntPtr> delete) : base(IntPtr.Zero, true)
        {
            this.delete = delete;
            SetHandle(pointer);
        }

        public override bool IsInvalid => handle == IntPtr.Zero;

        /// <summary>Tells the collector, which sees a few bytes only, how much hangs on them.</summary>
        internal void AddPressure(long bytes)
        {
            if (bytes <= 0) return;
            GC.AddMemoryPressure(bytes);
            pressure += bytes;
        }

        protected override bool ReleaseHandle()
        {
            delete(handle);
            if (pressure > 0) GC.RemoveMemoryPressure(pressure);
            return true;
        }
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
