// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.

using System;
using System.Runtime.InteropServices;

namespace Vyr
{
    public partial class SampleType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_SampleType_isset_Backing")] internal static extern int isset_Backing(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SampleType_getenum_Backing")] internal static extern int getenum_Backing(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SampleType_setenum_Backing")] internal static extern int setenum_Backing(IntPtr self, int number);
            [DllImport(Library.Name, EntryPoint = "CSharp_SampleType_isset_Manufacturer")] internal static extern int isset_Manufacturer(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SampleType_get_Manufacturer")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_Manufacturer(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SampleType_set_Manufacturer")] internal static extern int set_Manufacturer(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_SampleType_isset_ProductionDate")] internal static extern int isset_ProductionDate(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SampleType_get_ProductionDate")] internal static extern IntPtr get_ProductionDate(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SampleType_set_ProductionDate")] internal static extern int set_ProductionDate(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_SampleType_isset_SerialNumber")] internal static extern int isset_SerialNumber(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SampleType_get_SerialNumber")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_SerialNumber(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SampleType_set_SerialNumber")] internal static extern int set_SerialNumber(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_SampleType_isset_Comment")] internal static extern int isset_Comment(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SampleType_get_Comment")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_Comment(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SampleType_set_Comment")] internal static extern int set_Comment(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_SampleType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SampleType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SampleType_size_CustomAttribute")] internal static extern uint size_CustomAttribute(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SampleType_get_CustomAttribute__SWIG_0")] internal static extern IntPtr get_CustomAttribute(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_SampleType_assign_CustomAttribute")] internal static extern IntPtr assign_CustomAttribute(IntPtr self, uint index, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_SampleType_append_CustomAttribute")] internal static extern int append_CustomAttribute(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SampleType_insert_CustomAttribute")] internal static extern int insert_CustomAttribute(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_SampleType_delete_CustomAttribute")] internal static extern void delete_CustomAttribute(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_SampleType_clear_CustomAttribute")] internal static extern void clear_CustomAttribute(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SampleType_get_Substrate__SWIG_0")] internal static extern IntPtr get_Substrate(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SampleType_assign_Substrate")] internal static extern IntPtr assign_Substrate(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_SampleType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_SampleType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SampleType_unset_Backing")] internal static extern void unset_Backing(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SampleType_unset_Manufacturer")] internal static extern void unset_Manufacturer(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SampleType_unset_ProductionDate")] internal static extern void unset_ProductionDate(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SampleType_unset_SerialNumber")] internal static extern void unset_SerialNumber(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SampleType_unset_Comment")] internal static extern void unset_Comment(IntPtr self);
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetBacking(IntPtr self) { unset_Backing(self); return 0; }
            internal static int UnsetManufacturer(IntPtr self) { unset_Manufacturer(self); return 0; }
            internal static int UnsetProductionDate(IntPtr self) { unset_ProductionDate(self); return 0; }
            internal static int UnsetSerialNumber(IntPtr self) { unset_SerialNumber(self); return 0; }
            internal static int UnsetComment(IntPtr self) { unset_Comment(self); return 0; }
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static ObjectListCalls<CustomAttributeType> madeCustomAttribute;
            internal static ObjectListCalls<CustomAttributeType> CustomAttribute => madeCustomAttribute != null ? madeCustomAttribute : madeCustomAttribute = new ObjectListCalls<CustomAttributeType> { Make = h => new CustomAttributeType(h), Size = Native.size_CustomAttribute, Get = Native.get_CustomAttribute, Assign = Native.assign_CustomAttribute, Append = Native.append_CustomAttribute, Insert = Native.insert_CustomAttribute, Delete = Native.delete_CustomAttribute, Clear = Native.clear_CustomAttribute };
            static IntPtr madeSubstrateItem;
            internal static IntPtr SubstrateItem => madeSubstrateItem != IntPtr.Zero ? madeSubstrateItem : madeSubstrateItem = Library.Item("SampleType", "Substrate");
            static PartCalls madeSubstrate;
            internal static PartCalls Substrate => madeSubstrate != null ? madeSubstrate : madeSubstrate = new PartCalls { Item = SubstrateItem, Make = h => new SubstrateChoice(h), Get = Native.get_Substrate, Assign = Native.assign_Substrate };
        }
    }

    public partial class Specification
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_Specification_get_SampleWidth")] internal static extern double get_SampleWidth(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Specification_set_SampleWidth")] internal static extern int set_SampleWidth(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_Specification_get_SampleHeight")] internal static extern double get_SampleHeight(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Specification_set_SampleHeight")] internal static extern int set_SampleHeight(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_Specification_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Specification_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_Specification__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_Specification")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_Specification__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
        }
    }

    public partial class SampleSpotType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_SampleSpotType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SampleSpotType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SampleSpotType_get_Specification__SWIG_0")] internal static extern IntPtr get_Specification(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SampleSpotType_assign_Specification")] internal static extern IntPtr assign_Specification(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_SampleSpotType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_SampleSpotType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_SampleSpotType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static IntPtr madeSpecificationItem;
            internal static IntPtr SpecificationItem => madeSpecificationItem != IntPtr.Zero ? madeSpecificationItem : madeSpecificationItem = Library.Item("SampleSpotType", "Specification");
            static PartCalls madeSpecification;
            internal static PartCalls Specification => madeSpecification != null ? madeSpecification : madeSpecification = new PartCalls { Item = SpecificationItem, Make = h => new Specification(h), Get = Native.get_Specification, Assign = Native.assign_Specification };
        }
    }

    public partial class SampleTargetType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_SampleTargetType_isset_CustomTarget")] internal static extern int isset_CustomTarget(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SampleTargetType_get_CustomTarget")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_CustomTarget(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SampleTargetType_set_CustomTarget")] internal static extern int set_CustomTarget(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_SampleTargetType_getenum_Target")] internal static extern int getenum_Target(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SampleTargetType_setenum_Target")] internal static extern int setenum_Target(IntPtr self, int number);
            [DllImport(Library.Name, EntryPoint = "CSharp_SampleTargetType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SampleTargetType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_SampleTargetType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_SampleTargetType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_SampleTargetType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_SampleTargetType_unset_CustomTarget")] internal static extern void unset_CustomTarget(IntPtr self);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetCustomTarget(IntPtr self) { unset_CustomTarget(self); return 0; }
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
        }
    }

    public partial class SampleSpot
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_new_SampleSpot__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_SampleSpot")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_SampleSpot__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }
    }

    public partial class SampleTarget
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_new_SampleTarget__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_SampleTarget")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_SampleTarget__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }
    }
}
