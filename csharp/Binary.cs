// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

using System;
using System.Runtime.InteropServices;

namespace Vyr
{
    /// <summary>Bytes between the library and managed arrays, always copied.</summary>
    internal static class Binary
    {
        [DllImport(Library.Name)] static extern IntPtr CSharp_new_c_binary__SWIG_2(byte[] data, uint size);
        [DllImport(Library.Name)] static extern void CSharp_delete_c_binary(IntPtr self);
        [DllImport(Library.Name)] static extern uint CSharp_c_binary_size(IntPtr self);
        [DllImport(Library.Name)] static extern IntPtr CSharp_c_binary_get(IntPtr self, [Out] byte[] data, uint size);

        internal static byte[] Read(IntPtr binary)
        {
            byte[] data = new byte[CSharp_c_binary_size(binary)];
            if (data.Length > 0) CSharp_c_binary_get(binary, data, (uint)data.Length);
            return data;
        }

        internal static int Give(byte[] data, Func<IntPtr, int> set)
        {
            if (data == null) throw new ArgumentNullException("value");
            // An empty array has no first byte to point at.
            IntPtr binary = CSharp_new_c_binary__SWIG_2(data.Length == 0 ? new byte[1] : data, (uint)data.Length);
            if (binary == IntPtr.Zero) throw new OutOfMemoryException();
            try
            {
                return set(binary);
            }
            finally
            {
                CSharp_delete_c_binary(binary);
            }
        }
    }
}
