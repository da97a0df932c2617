// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.

using System;
using System.Runtime.InteropServices;

namespace Vyr
{
    public partial class LimitsType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_LimitsType_get_HighTolerance")] internal static extern double get_HighTolerance(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_LimitsType_set_HighTolerance")] internal static extern int set_HighTolerance(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_LimitsType_isset_LowTolerance")] internal static extern int isset_LowTolerance(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_LimitsType_get_LowTolerance")] internal static extern double get_LowTolerance(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_LimitsType_set_LowTolerance")] internal static extern int set_LowTolerance(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_LimitsType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_LimitsType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_LimitsType_size_CustomAttribute")] internal static extern uint size_CustomAttribute(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_LimitsType_get_CustomAttribute__SWIG_0")] internal static extern IntPtr get_CustomAttribute(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_LimitsType_assign_CustomAttribute")] internal static extern IntPtr assign_CustomAttribute(IntPtr self, uint index, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_LimitsType_append_CustomAttribute")] internal static extern int append_CustomAttribute(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_LimitsType_insert_CustomAttribute")] internal static extern int insert_CustomAttribute(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_LimitsType_delete_CustomAttribute")] internal static extern void delete_CustomAttribute(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_LimitsType_clear_CustomAttribute")] internal static extern void clear_CustomAttribute(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_LimitsType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_LimitsType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_LimitsType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_LimitsType_unset_LowTolerance")] internal static extern void unset_LowTolerance(IntPtr self);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetLowTolerance(IntPtr self) { unset_LowTolerance(self); return 0; }
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static ObjectListCalls<CustomAttributeType> madeCustomAttribute;
            internal static ObjectListCalls<CustomAttributeType> CustomAttribute => madeCustomAttribute != null ? madeCustomAttribute : madeCustomAttribute = new ObjectListCalls<CustomAttributeType> { Make = h => new CustomAttributeType(h), Size = Native.size_CustomAttribute, Get = Native.get_CustomAttribute, Assign = Native.assign_CustomAttribute, Append = Native.append_CustomAttribute, Insert = Native.insert_CustomAttribute, Delete = Native.delete_CustomAttribute, Clear = Native.clear_CustomAttribute };
        }
    }

    public partial class ToleranceType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_ToleranceType_isset_Name")] internal static extern int isset_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ToleranceType_get_Name")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ToleranceType_set_Name")] internal static extern int set_Name(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ToleranceType_isset_PrimaryIlluminant")] internal static extern int isset_PrimaryIlluminant(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ToleranceType_getenum_PrimaryIlluminant")] internal static extern int getenum_PrimaryIlluminant(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ToleranceType_setenum_PrimaryIlluminant")] internal static extern int setenum_PrimaryIlluminant(IntPtr self, int number);
            [DllImport(Library.Name, EntryPoint = "CSharp_ToleranceType_isset_SecondaryIlluminant")] internal static extern int isset_SecondaryIlluminant(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ToleranceType_getenum_SecondaryIlluminant")] internal static extern int getenum_SecondaryIlluminant(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ToleranceType_setenum_SecondaryIlluminant")] internal static extern int setenum_SecondaryIlluminant(IntPtr self, int number);
            [DllImport(Library.Name, EntryPoint = "CSharp_ToleranceType_isset_TertiaryIlluminant")] internal static extern int isset_TertiaryIlluminant(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ToleranceType_getenum_TertiaryIlluminant")] internal static extern int getenum_TertiaryIlluminant(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ToleranceType_setenum_TertiaryIlluminant")] internal static extern int setenum_TertiaryIlluminant(IntPtr self, int number);
            [DllImport(Library.Name, EntryPoint = "CSharp_ToleranceType_isset_FieldOfView")] internal static extern int isset_FieldOfView(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ToleranceType_getenum_FieldOfView")] internal static extern int getenum_FieldOfView(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ToleranceType_setenum_FieldOfView")] internal static extern int setenum_FieldOfView(IntPtr self, int number);
            [DllImport(Library.Name, EntryPoint = "CSharp_ToleranceType_isset_WarningLevel")] internal static extern int isset_WarningLevel(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ToleranceType_get_WarningLevel")] internal static extern double get_WarningLevel(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ToleranceType_set_WarningLevel")] internal static extern int set_WarningLevel(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ToleranceType_isset_UniqueID")] internal static extern int isset_UniqueID(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ToleranceType_get_UniqueID")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_UniqueID(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ToleranceType_set_UniqueID")] internal static extern int set_UniqueID(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ToleranceType_isset_Global")] internal static extern int isset_Global(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ToleranceType_get_Global")] internal static extern uint get_Global(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ToleranceType_set_Global")] internal static extern int set_Global(IntPtr self, uint value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ToleranceType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ToleranceType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ToleranceType_size_CustomAttribute")] internal static extern uint size_CustomAttribute(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ToleranceType_get_CustomAttribute__SWIG_0")] internal static extern IntPtr get_CustomAttribute(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ToleranceType_assign_CustomAttribute")] internal static extern IntPtr assign_CustomAttribute(IntPtr self, uint index, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ToleranceType_append_CustomAttribute")] internal static extern int append_CustomAttribute(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ToleranceType_insert_CustomAttribute")] internal static extern int insert_CustomAttribute(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ToleranceType_delete_CustomAttribute")] internal static extern void delete_CustomAttribute(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ToleranceType_clear_CustomAttribute")] internal static extern void clear_CustomAttribute(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ToleranceType_get_Function__SWIG_0")] internal static extern IntPtr get_Function(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ToleranceType_assign_Function")] internal static extern IntPtr assign_Function(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ToleranceType_get_Limits__SWIG_0")] internal static extern IntPtr get_Limits(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ToleranceType_assign_Limits")] internal static extern IntPtr assign_Limits(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ToleranceType_unset_Limits")] internal static extern void unset_Limits(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ToleranceType_get_Geometry__SWIG_0")] internal static extern IntPtr get_Geometry(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ToleranceType_assign_Geometry")] internal static extern IntPtr assign_Geometry(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ToleranceType_unset_Geometry")] internal static extern void unset_Geometry(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ToleranceType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ToleranceType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ToleranceType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_ToleranceType_unset_Name")] internal static extern void unset_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ToleranceType_unset_PrimaryIlluminant")] internal static extern void unset_PrimaryIlluminant(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ToleranceType_unset_SecondaryIlluminant")] internal static extern void unset_SecondaryIlluminant(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ToleranceType_unset_TertiaryIlluminant")] internal static extern void unset_TertiaryIlluminant(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ToleranceType_unset_FieldOfView")] internal static extern void unset_FieldOfView(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ToleranceType_unset_WarningLevel")] internal static extern void unset_WarningLevel(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ToleranceType_unset_UniqueID")] internal static extern void unset_UniqueID(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ToleranceType_unset_Global")] internal static extern void unset_Global(IntPtr self);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetName(IntPtr self) { unset_Name(self); return 0; }
            internal static int UnsetPrimaryIlluminant(IntPtr self) { unset_PrimaryIlluminant(self); return 0; }
            internal static int UnsetSecondaryIlluminant(IntPtr self) { unset_SecondaryIlluminant(self); return 0; }
            internal static int UnsetTertiaryIlluminant(IntPtr self) { unset_TertiaryIlluminant(self); return 0; }
            internal static int UnsetFieldOfView(IntPtr self) { unset_FieldOfView(self); return 0; }
            internal static int UnsetWarningLevel(IntPtr self) { unset_WarningLevel(self); return 0; }
            internal static int UnsetUniqueID(IntPtr self) { unset_UniqueID(self); return 0; }
            internal static int UnsetGlobal(IntPtr self) { unset_Global(self); return 0; }
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static ObjectListCalls<CustomAttributeType> madeCustomAttribute;
            internal static ObjectListCalls<CustomAttributeType> CustomAttribute => madeCustomAttribute != null ? madeCustomAttribute : madeCustomAttribute = new ObjectListCalls<CustomAttributeType> { Make = h => new CustomAttributeType(h), Size = Native.size_CustomAttribute, Get = Native.get_CustomAttribute, Assign = Native.assign_CustomAttribute, Append = Native.append_CustomAttribute, Insert = Native.insert_CustomAttribute, Delete = Native.delete_CustomAttribute, Clear = Native.clear_CustomAttribute };
            static IntPtr madeFunctionItem;
            internal static IntPtr FunctionItem => madeFunctionItem != IntPtr.Zero ? madeFunctionItem : madeFunctionItem = Library.Item("ToleranceType", "Function");
            static PartCalls madeFunction;
            internal static PartCalls Function => madeFunction != null ? madeFunction : madeFunction = new PartCalls { Item = FunctionItem, Make = h => new FunctionChoice(h), Get = Native.get_Function, Assign = Native.assign_Function };
            static IntPtr madeLimitsItem;
            internal static IntPtr LimitsItem => madeLimitsItem != IntPtr.Zero ? madeLimitsItem : madeLimitsItem = Library.Item("ToleranceType", "Limits");
            static PartCalls madeLimits;
            internal static PartCalls Limits => madeLimits != null ? madeLimits : madeLimits = new PartCalls { Item = LimitsItem, Make = h => new LimitsType(h), Get = Native.get_Limits, Assign = Native.assign_Limits, Unset = Native.unset_Limits };
            static IntPtr madeGeometryItem;
            internal static IntPtr GeometryItem => madeGeometryItem != IntPtr.Zero ? madeGeometryItem : madeGeometryItem = Library.Item("ToleranceType", "Geometry");
            static PartCalls madeGeometry;
            internal static PartCalls Geometry => madeGeometry != null ? madeGeometry : madeGeometry = new PartCalls { Item = GeometryItem, Make = h => new GeometryChoiceType(h), Get = Native.get_Geometry, Assign = Native.assign_Geometry, Unset = Native.unset_Geometry };
        }
    }

    public partial class Process
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_Process_get_Name")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Process_set_Name")] internal static extern int set_Name(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_Process_isset_Thickness")] internal static extern int isset_Thickness(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Process_get_Thickness")] internal static extern double get_Thickness(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Process_set_Thickness")] internal static extern int set_Thickness(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_Process_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Process_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_Process__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_Process")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_Process__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_Process_unset_Thickness")] internal static extern void unset_Thickness(IntPtr self);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetThickness(IntPtr self) { unset_Thickness(self); return 0; }
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
        }
    }

    public partial class PhysicalSampleType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_PhysicalSampleType_isset_Coating")] internal static extern int isset_Coating(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_PhysicalSampleType_get_Coating")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_Coating(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_PhysicalSampleType_set_Coating")] internal static extern int set_Coating(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_PhysicalSampleType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_PhysicalSampleType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_PhysicalSampleType_size_CustomAttribute")] internal static extern uint size_CustomAttribute(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_PhysicalSampleType_get_CustomAttribute__SWIG_0")] internal static extern IntPtr get_CustomAttribute(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_PhysicalSampleType_assign_CustomAttribute")] internal static extern IntPtr assign_CustomAttribute(IntPtr self, uint index, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_PhysicalSampleType_append_CustomAttribute")] internal static extern int append_CustomAttribute(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_PhysicalSampleType_insert_CustomAttribute")] internal static extern int insert_CustomAttribute(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_PhysicalSampleType_delete_CustomAttribute")] internal static extern void delete_CustomAttribute(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_PhysicalSampleType_clear_CustomAttribute")] internal static extern void clear_CustomAttribute(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_PhysicalSampleType_get_Process__SWIG_0")] internal static extern IntPtr get_Process(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_PhysicalSampleType_assign_Process")] internal static extern IntPtr assign_Process(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_PhysicalSampleType_unset_Process")] internal static extern void unset_Process(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_PhysicalSampleType_get_Sample__SWIG_0")] internal static extern IntPtr get_Sample(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_PhysicalSampleType_assign_Sample")] internal static extern IntPtr assign_Sample(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_PhysicalSampleType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_PhysicalSampleType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_PhysicalSampleType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_PhysicalSampleType_unset_Coating")] internal static extern void unset_Coating(IntPtr self);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetCoating(IntPtr self) { unset_Coating(self); return 0; }
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static ObjectListCalls<CustomAttributeType> madeCustomAttribute;
            internal static ObjectListCalls<CustomAttributeType> CustomAttribute => madeCustomAttribute != null ? madeCustomAttribute : madeCustomAttribute = new ObjectListCalls<CustomAttributeType> { Make = h => new CustomAttributeType(h), Size = Native.size_CustomAttribute, Get = Native.get_CustomAttribute, Assign = Native.assign_CustomAttribute, Append = Native.append_CustomAttribute, Insert = Native.insert_CustomAttribute, Delete = Native.delete_CustomAttribute, Clear = Native.clear_CustomAttribute };
            static IntPtr madeProcessItem;
            internal static IntPtr ProcessItem => madeProcessItem != IntPtr.Zero ? madeProcessItem : madeProcessItem = Library.Item("PhysicalSampleType", "Process");
            static PartCalls madeProcess;
            internal static PartCalls Process => madeProcess != null ? madeProcess : madeProcess = new PartCalls { Item = ProcessItem, Make = h => new Process(h), Get = Native.get_Process, Assign = Native.assign_Process, Unset = Native.unset_Process };
            static IntPtr madeSampleItem;
            internal static IntPtr SampleItem => madeSampleItem != IntPtr.Zero ? madeSampleItem : madeSampleItem = Library.Item("PhysicalSampleType", "Sample");
            static PartCalls madeSample;
            internal static PartCalls Sample => madeSample != null ? madeSample : madeSample = new PartCalls { Item = SampleItem, Make = h => new SampleChoice(h), Get = Native.get_Sample, Assign = Native.assign_Sample };
        }
    }

    public partial class ColorQualityControlType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorQualityControlType_isset_Name")] internal static extern int isset_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorQualityControlType_get_Name")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorQualityControlType_set_Name")] internal static extern int set_Name(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorQualityControlType_isset_Description")] internal static extern int isset_Description(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorQualityControlType_get_Description")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_Description(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorQualityControlType_set_Description")] internal static extern int set_Description(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorQualityControlType_isset_UniqueID")] internal static extern int isset_UniqueID(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorQualityControlType_get_UniqueID")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_UniqueID(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorQualityControlType_set_UniqueID")] internal static extern int set_UniqueID(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorQualityControlType_isset_Comments")] internal static extern int isset_Comments(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorQualityControlType_get_Comments")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_Comments(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorQualityControlType_set_Comments")] internal static extern int set_Comments(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorQualityControlType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorQualityControlType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorQualityControlType_size_CustomAttribute")] internal static extern uint size_CustomAttribute(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorQualityControlType_get_CustomAttribute__SWIG_0")] internal static extern IntPtr get_CustomAttribute(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorQualityControlType_assign_CustomAttribute")] internal static extern IntPtr assign_CustomAttribute(IntPtr self, uint index, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorQualityControlType_append_CustomAttribute")] internal static extern int append_CustomAttribute(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorQualityControlType_insert_CustomAttribute")] internal static extern int insert_CustomAttribute(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorQualityControlType_delete_CustomAttribute")] internal static extern void delete_CustomAttribute(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorQualityControlType_clear_CustomAttribute")] internal static extern void clear_CustomAttribute(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorQualityControlType_size_ChangeHistory")] internal static extern uint size_ChangeHistory(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorQualityControlType_get_ChangeHistory")] internal static extern IntPtr get_ChangeHistory(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorQualityControlType_set_ChangeHistory")] internal static extern int set_ChangeHistory(IntPtr self, uint index, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorQualityControlType_insert_ChangeHistory")] internal static extern int insert_ChangeHistory(IntPtr self, uint index, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorQualityControlType_delete_ChangeHistory")] internal static extern void delete_ChangeHistory(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorQualityControlType_clear_ChangeHistory")] internal static extern void clear_ChangeHistory(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorQualityControlType_size_StandardAndMeasurement")] internal static extern uint size_StandardAndMeasurement(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorQualityControlType_get_StandardAndMeasurement__SWIG_0")] internal static extern IntPtr get_StandardAndMeasurement(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorQualityControlType_assign_StandardAndMeasurement")] internal static extern IntPtr assign_StandardAndMeasurement(IntPtr self, uint index, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorQualityControlType_append_StandardAndMeasurement")] internal static extern int append_StandardAndMeasurement(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorQualityControlType_insert_StandardAndMeasurement")] internal static extern int insert_StandardAndMeasurement(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorQualityControlType_delete_StandardAndMeasurement")] internal static extern void delete_StandardAndMeasurement(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorQualityControlType_clear_StandardAndMeasurement")] internal static extern void clear_StandardAndMeasurement(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorQualityControlType_get_PhysicalSample__SWIG_0")] internal static extern IntPtr get_PhysicalSample(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorQualityControlType_assign_PhysicalSample")] internal static extern IntPtr assign_PhysicalSample(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorQualityControlType_unset_PhysicalSample")] internal static extern void unset_PhysicalSample(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorQualityControlType_size_Tolerance")] internal static extern uint size_Tolerance(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorQualityControlType_get_Tolerance__SWIG_0")] internal static extern IntPtr get_Tolerance(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorQualityControlType_assign_Tolerance")] internal static extern IntPtr assign_Tolerance(IntPtr self, uint index, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorQualityControlType_append_Tolerance")] internal static extern int append_Tolerance(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorQualityControlType_insert_Tolerance")] internal static extern int insert_Tolerance(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorQualityControlType_delete_Tolerance")] internal static extern void delete_Tolerance(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorQualityControlType_clear_Tolerance")] internal static extern void clear_Tolerance(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorQualityControlType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorQualityControlType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorQualityControlType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorQualityControlType_unset_Name")] internal static extern void unset_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorQualityControlType_unset_Description")] internal static extern void unset_Description(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorQualityControlType_unset_UniqueID")] internal static extern void unset_UniqueID(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorQualityControlType_unset_Comments")] internal static extern void unset_Comments(IntPtr self);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetName(IntPtr self) { unset_Name(self); return 0; }
            internal static int UnsetDescription(IntPtr self) { unset_Description(self); return 0; }
            internal static int UnsetUniqueID(IntPtr self) { unset_UniqueID(self); return 0; }
            internal static int UnsetComments(IntPtr self) { unset_Comments(self); return 0; }
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static ObjectListCalls<CustomAttributeType> madeCustomAttribute;
            internal static ObjectListCalls<CustomAttributeType> CustomAttribute => madeCustomAttribute != null ? madeCustomAttribute : madeCustomAttribute = new ObjectListCalls<CustomAttributeType> { Make = h => new CustomAttributeType(h), Size = Native.size_CustomAttribute, Get = Native.get_CustomAttribute, Assign = Native.assign_CustomAttribute, Append = Native.append_CustomAttribute, Insert = Native.insert_CustomAttribute, Delete = Native.delete_CustomAttribute, Clear = Native.clear_CustomAttribute };
            static ValueListCalls<IntPtr> madeChangeHistory;
            internal static ValueListCalls<IntPtr> ChangeHistory => madeChangeHistory != null ? madeChangeHistory : madeChangeHistory = new ValueListCalls<IntPtr> { Size = Native.size_ChangeHistory, Get = Native.get_ChangeHistory, Set = Native.set_ChangeHistory, Insert = Native.insert_ChangeHistory, Delete = Native.delete_ChangeHistory, Clear = Native.clear_ChangeHistory };
            static ObjectListCalls<StandardAndMeasurementType> madeStandardAndMeasurement;
            internal static ObjectListCalls<StandardAndMeasurementType> StandardAndMeasurement => madeStandardAndMeasurement != null ? madeStandardAndMeasurement : madeStandardAndMeasurement = new ObjectListCalls<StandardAndMeasurementType> { Make = h => new StandardAndMeasurementType(h), Size = Native.size_StandardAndMeasurement, Get = Native.get_StandardAndMeasurement, Assign = Native.assign_StandardAndMeasurement, Append = Native.append_StandardAndMeasurement, Insert = Native.insert_StandardAndMeasurement, Delete = Native.delete_StandardAndMeasurement, Clear = Native.clear_StandardAndMeasurement };
            static IntPtr madePhysicalSampleItem;
            internal static IntPtr PhysicalSampleItem => madePhysicalSampleItem != IntPtr.Zero ? madePhysicalSampleItem : madePhysicalSampleItem = Library.Item("ColorQualityControlType", "PhysicalSample");
            static PartCalls madePhysicalSample;
            internal static PartCalls PhysicalSample => madePhysicalSample != null ? madePhysicalSample : madePhysicalSample = new PartCalls { Item = PhysicalSampleItem, Make = h => new PhysicalSampleType(h), Get = Native.get_PhysicalSample, Assign = Native.assign_PhysicalSample, Unset = Native.unset_PhysicalSample };
            static ObjectListCalls<ToleranceType> madeTolerance;
            internal static ObjectListCalls<ToleranceType> Tolerance => madeTolerance != null ? madeTolerance : madeTolerance = new ObjectListCalls<ToleranceType> { Make = h => new ToleranceType(h), Size = Native.size_Tolerance, Get = Native.get_Tolerance, Assign = Native.assign_Tolerance, Append = Native.append_Tolerance, Insert = Native.insert_Tolerance, Delete = Native.delete_Tolerance, Clear = Native.clear_Tolerance };
        }
    }

    public partial class Measurement
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_Measurement_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Measurement_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Measurement_size_CustomAttribute")] internal static extern uint size_CustomAttribute(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Measurement_get_CustomAttribute__SWIG_0")] internal static extern IntPtr get_CustomAttribute(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_Measurement_assign_CustomAttribute")] internal static extern IntPtr assign_CustomAttribute(IntPtr self, uint index, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_Measurement_append_CustomAttribute")] internal static extern int append_CustomAttribute(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Measurement_insert_CustomAttribute")] internal static extern int insert_CustomAttribute(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_Measurement_delete_CustomAttribute")] internal static extern void delete_CustomAttribute(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_Measurement_clear_CustomAttribute")] internal static extern void clear_CustomAttribute(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Measurement_get_Device__SWIG_0")] internal static extern IntPtr get_Device(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Measurement_assign_Device")] internal static extern IntPtr assign_Device(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_Measurement_get_Color__SWIG_0")] internal static extern IntPtr get_Color(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Measurement_assign_Color")] internal static extern IntPtr assign_Color(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_Measurement_size_Function")] internal static extern uint size_Function(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Measurement_get_Function__SWIG_0")] internal static extern IntPtr get_Function(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_Measurement_assign_Function")] internal static extern IntPtr assign_Function(IntPtr self, uint index, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_Measurement_append_Function")] internal static extern int append_Function(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Measurement_insert_Function")] internal static extern int insert_Function(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_Measurement_delete_Function")] internal static extern void delete_Function(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_Measurement_clear_Function")] internal static extern void clear_Function(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_Measurement__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_Measurement")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_Measurement__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static ObjectListCalls<CustomAttributeType> madeCustomAttribute;
            internal static ObjectListCalls<CustomAttributeType> CustomAttribute => madeCustomAttribute != null ? madeCustomAttribute : madeCustomAttribute = new ObjectListCalls<CustomAttributeType> { Make = h => new CustomAttributeType(h), Size = Native.size_CustomAttribute, Get = Native.get_CustomAttribute, Assign = Native.assign_CustomAttribute, Append = Native.append_CustomAttribute, Insert = Native.insert_CustomAttribute, Delete = Native.delete_CustomAttribute, Clear = Native.clear_CustomAttribute };
            static IntPtr madeDeviceItem;
            internal static IntPtr DeviceItem => madeDeviceItem != IntPtr.Zero ? madeDeviceItem : madeDeviceItem = Library.Item("Measurement", "Device");
            static PartCalls madeDevice;
            internal static PartCalls Device => madeDevice != null ? madeDevice : madeDevice = new PartCalls { Item = DeviceItem, Make = h => new DeviceType(h), Get = Native.get_Device, Assign = Native.assign_Device };
            static IntPtr madeColorItem;
            internal static IntPtr ColorItem => madeColorItem != IntPtr.Zero ? madeColorItem : madeColorItem = Library.Item("Measurement", "Color");
            static PartCalls madeColor;
            internal static PartCalls Color => madeColor != null ? madeColor : madeColor = new PartCalls { Item = ColorItem, Make = h => new ColorType(h), Get = Native.get_Color, Assign = Native.assign_Color };
            static ObjectListCalls<FunctionChoice> madeFunction;
            internal static ObjectListCalls<FunctionChoice> Function => madeFunction != null ? madeFunction : madeFunction = new ObjectListCalls<FunctionChoice> { Make = h => new FunctionChoice(h), Size = Native.size_Function, Get = Native.get_Function, Assign = Native.assign_Function, Append = Native.append_Function, Insert = Native.insert_Function, Delete = Native.delete_Function, Clear = Native.clear_Function };
        }
    }

    public partial class Standard
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_Standard_isnil_Standard")] internal static extern int isnil_Standard(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Standard_setnil_Standard")] internal static extern void setnil_Standard(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Standard_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Standard_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Standard_size_CustomAttribute")] internal static extern uint size_CustomAttribute(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Standard_get_CustomAttribute__SWIG_0")] internal static extern IntPtr get_CustomAttribute(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_Standard_assign_CustomAttribute")] internal static extern IntPtr assign_CustomAttribute(IntPtr self, uint index, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_Standard_append_CustomAttribute")] internal static extern int append_CustomAttribute(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Standard_insert_CustomAttribute")] internal static extern int insert_CustomAttribute(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_Standard_delete_CustomAttribute")] internal static extern void delete_CustomAttribute(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_Standard_clear_CustomAttribute")] internal static extern void clear_CustomAttribute(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Standard_get_Device__SWIG_0")] internal static extern IntPtr get_Device(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Standard_assign_Device")] internal static extern IntPtr assign_Device(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_Standard_get_Color__SWIG_0")] internal static extern IntPtr get_Color(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Standard_assign_Color")] internal static extern IntPtr assign_Color(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_Standard_size_Tolerance")] internal static extern uint size_Tolerance(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Standard_get_Tolerance__SWIG_0")] internal static extern IntPtr get_Tolerance(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_Standard_assign_Tolerance")] internal static extern IntPtr assign_Tolerance(IntPtr self, uint index, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_Standard_append_Tolerance")] internal static extern int append_Tolerance(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Standard_insert_Tolerance")] internal static extern int insert_Tolerance(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_Standard_delete_Tolerance")] internal static extern void delete_Tolerance(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_Standard_clear_Tolerance")] internal static extern void clear_Tolerance(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_Standard__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_Standard")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_Standard__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static ObjectListCalls<CustomAttributeType> madeCustomAttribute;
            internal static ObjectListCalls<CustomAttributeType> CustomAttribute => madeCustomAttribute != null ? madeCustomAttribute : madeCustomAttribute = new ObjectListCalls<CustomAttributeType> { Make = h => new CustomAttributeType(h), Size = Native.size_CustomAttribute, Get = Native.get_CustomAttribute, Assign = Native.assign_CustomAttribute, Append = Native.append_CustomAttribute, Insert = Native.insert_CustomAttribute, Delete = Native.delete_CustomAttribute, Clear = Native.clear_CustomAttribute };
            static IntPtr madeDeviceItem;
            internal static IntPtr DeviceItem => madeDeviceItem != IntPtr.Zero ? madeDeviceItem : madeDeviceItem = Library.Item("Standard", "Device");
            static PartCalls madeDevice;
            internal static PartCalls Device => madeDevice != null ? madeDevice : madeDevice = new PartCalls { Item = DeviceItem, Make = h => new DeviceType(h), Get = Native.get_Device, Assign = Native.assign_Device };
            static IntPtr madeColorItem;
            internal static IntPtr ColorItem => madeColorItem != IntPtr.Zero ? madeColorItem : madeColorItem = Library.Item("Standard", "Color");
            static PartCalls madeColor;
            internal static PartCalls Color => madeColor != null ? madeColor : madeColor = new PartCalls { Item = ColorItem, Make = h => new ColorType(h), Get = Native.get_Color, Assign = Native.assign_Color };
            static ObjectListCalls<ToleranceType> madeTolerance;
            internal static ObjectListCalls<ToleranceType> Tolerance => madeTolerance != null ? madeTolerance : madeTolerance = new ObjectListCalls<ToleranceType> { Make = h => new ToleranceType(h), Size = Native.size_Tolerance, Get = Native.get_Tolerance, Assign = Native.assign_Tolerance, Append = Native.append_Tolerance, Insert = Native.insert_Tolerance, Delete = Native.delete_Tolerance, Clear = Native.clear_Tolerance };
        }
    }

    public partial class StandardAndMeasurementType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_StandardAndMeasurementType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_StandardAndMeasurementType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_StandardAndMeasurementType_size_CustomAttribute")] internal static extern uint size_CustomAttribute(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_StandardAndMeasurementType_get_CustomAttribute__SWIG_0")] internal static extern IntPtr get_CustomAttribute(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_StandardAndMeasurementType_assign_CustomAttribute")] internal static extern IntPtr assign_CustomAttribute(IntPtr self, uint index, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_StandardAndMeasurementType_append_CustomAttribute")] internal static extern int append_CustomAttribute(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_StandardAndMeasurementType_insert_CustomAttribute")] internal static extern int insert_CustomAttribute(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_StandardAndMeasurementType_delete_CustomAttribute")] internal static extern void delete_CustomAttribute(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_StandardAndMeasurementType_clear_CustomAttribute")] internal static extern void clear_CustomAttribute(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_StandardAndMeasurementType_size_Measurement")] internal static extern uint size_Measurement(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_StandardAndMeasurementType_get_Measurement__SWIG_0")] internal static extern IntPtr get_Measurement(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_StandardAndMeasurementType_assign_Measurement")] internal static extern IntPtr assign_Measurement(IntPtr self, uint index, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_StandardAndMeasurementType_append_Measurement")] internal static extern int append_Measurement(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_StandardAndMeasurementType_insert_Measurement")] internal static extern int insert_Measurement(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_StandardAndMeasurementType_delete_Measurement")] internal static extern void delete_Measurement(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_StandardAndMeasurementType_clear_Measurement")] internal static extern void clear_Measurement(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_StandardAndMeasurementType_get_Standard__SWIG_0")] internal static extern IntPtr get_Standard(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_StandardAndMeasurementType_assign_Standard")] internal static extern IntPtr assign_Standard(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_StandardAndMeasurementType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_StandardAndMeasurementType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_StandardAndMeasurementType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static ObjectListCalls<CustomAttributeType> madeCustomAttribute;
            internal static ObjectListCalls<CustomAttributeType> CustomAttribute => madeCustomAttribute != null ? madeCustomAttribute : madeCustomAttribute = new ObjectListCalls<CustomAttributeType> { Make = h => new CustomAttributeType(h), Size = Native.size_CustomAttribute, Get = Native.get_CustomAttribute, Assign = Native.assign_CustomAttribute, Append = Native.append_CustomAttribute, Insert = Native.insert_CustomAttribute, Delete = Native.delete_CustomAttribute, Clear = Native.clear_CustomAttribute };
            static ObjectListCalls<Measurement> madeMeasurement;
            internal static ObjectListCalls<Measurement> Measurement => madeMeasurement != null ? madeMeasurement : madeMeasurement = new ObjectListCalls<Measurement> { Make = h => new Measurement(h), Size = Native.size_Measurement, Get = Native.get_Measurement, Assign = Native.assign_Measurement, Append = Native.append_Measurement, Insert = Native.insert_Measurement, Delete = Native.delete_Measurement, Clear = Native.clear_Measurement };
            static IntPtr madeStandardItem;
            internal static IntPtr StandardItem => madeStandardItem != IntPtr.Zero ? madeStandardItem : madeStandardItem = Library.Item("StandardAndMeasurementType", "Standard");
            static PartCalls madeStandard;
            internal static PartCalls Standard => madeStandard != null ? madeStandard : madeStandard = new PartCalls { Item = StandardItem, Make = h => new Standard(h), Get = Native.get_Standard, Assign = Native.assign_Standard };
        }
    }
}
