// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.

using System;
using System.Runtime.InteropServices;

namespace Vyr
{
    public partial class ColorSpaceDensityType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceDensityType_isset_Name")] internal static extern int isset_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceDensityType_get_Name")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceDensityType_set_Name")] internal static extern int set_Name(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceDensityType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceDensityType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceDensityType_get_ColorSpaceSpecificationSpectrumGeneric__SWIG_0")] internal static extern IntPtr get_ColorSpaceSpecificationSpectrumGeneric(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceDensityType_assign_ColorSpaceSpecificationSpectrumGeneric")] internal static extern IntPtr assign_ColorSpaceSpecificationSpectrumGeneric(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceDensityType_size_Density")] internal static extern uint size_Density(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceDensityType_get_Density__SWIG_0")] internal static extern IntPtr get_Density(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceDensityType_assign_Density")] internal static extern IntPtr assign_Density(IntPtr self, uint index, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceDensityType_append_Density")] internal static extern int append_Density(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceDensityType_insert_Density")] internal static extern int insert_Density(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceDensityType_delete_Density")] internal static extern void delete_Density(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceDensityType_clear_Density")] internal static extern void clear_Density(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceDensityType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceDensityType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceDensityType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceDensityType_unset_Name")] internal static extern void unset_Name(IntPtr self);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetName(IntPtr self) { unset_Name(self); return 0; }
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static IntPtr madeColorSpaceSpecificationSpectrumGenericItem;
            internal static IntPtr ColorSpaceSpecificationSpectrumGenericItem => madeColorSpaceSpecificationSpectrumGenericItem != IntPtr.Zero ? madeColorSpaceSpecificationSpectrumGenericItem : madeColorSpaceSpecificationSpectrumGenericItem = Library.Item("ColorSpaceDensityType", "ColorSpaceSpecificationSpectrumGeneric");
            static PartCalls madeColorSpaceSpecificationSpectrumGeneric;
            internal static PartCalls ColorSpaceSpecificationSpectrumGeneric => madeColorSpaceSpecificationSpectrumGeneric != null ? madeColorSpaceSpecificationSpectrumGeneric : madeColorSpaceSpecificationSpectrumGeneric = new PartCalls { Item = ColorSpaceSpecificationSpectrumGenericItem, Make = h => new ColorSpaceSpecificationSpectrumGeneric(h), Get = Native.get_ColorSpaceSpecificationSpectrumGeneric, Assign = Native.assign_ColorSpaceSpecificationSpectrumGeneric };
            static ObjectListCalls<DensityType> madeDensity;
            internal static ObjectListCalls<DensityType> Density => madeDensity != null ? madeDensity : madeDensity = new ObjectListCalls<DensityType> { Make = h => new DensityType(h), Size = Native.size_Density, Get = Native.get_Density, Assign = Native.assign_Density, Append = Native.append_Density, Insert = Native.insert_Density, Delete = Native.delete_Density, Clear = Native.clear_Density };
        }
    }

    public partial class ColorSpaceSpectralType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpectralType_isset_Name")] internal static extern int isset_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpectralType_get_Name")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpectralType_set_Name")] internal static extern int set_Name(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpectralType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpectralType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpectralType_get_ColorSpaceSpecificationSpectrumSpectral__SWIG_0")] internal static extern IntPtr get_ColorSpaceSpecificationSpectrumSpectral(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpectralType_assign_ColorSpaceSpecificationSpectrumSpectral")] internal static extern IntPtr assign_ColorSpaceSpecificationSpectrumSpectral(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpectralType_size_ReflectancePoint")] internal static extern uint size_ReflectancePoint(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpectralType_get_ReflectancePoint__SWIG_0")] internal static extern IntPtr get_ReflectancePoint(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpectralType_assign_ReflectancePoint")] internal static extern IntPtr assign_ReflectancePoint(IntPtr self, uint index, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpectralType_append_ReflectancePoint")] internal static extern int append_ReflectancePoint(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpectralType_insert_ReflectancePoint")] internal static extern int insert_ReflectancePoint(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpectralType_delete_ReflectancePoint")] internal static extern void delete_ReflectancePoint(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpectralType_clear_ReflectancePoint")] internal static extern void clear_ReflectancePoint(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceSpectralType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceSpectralType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceSpectralType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpectralType_unset_Name")] internal static extern void unset_Name(IntPtr self);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetName(IntPtr self) { unset_Name(self); return 0; }
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static IntPtr madeColorSpaceSpecificationSpectrumSpectralItem;
            internal static IntPtr ColorSpaceSpecificationSpectrumSpectralItem => madeColorSpaceSpecificationSpectrumSpectralItem != IntPtr.Zero ? madeColorSpaceSpecificationSpectrumSpectralItem : madeColorSpaceSpecificationSpectrumSpectralItem = Library.Item("ColorSpaceSpectralType", "ColorSpaceSpecificationSpectrumSpectral");
            static PartCalls madeColorSpaceSpecificationSpectrumSpectral;
            internal static PartCalls ColorSpaceSpecificationSpectrumSpectral => madeColorSpaceSpecificationSpectrumSpectral != null ? madeColorSpaceSpecificationSpectrumSpectral : madeColorSpaceSpecificationSpectrumSpectral = new PartCalls { Item = ColorSpaceSpecificationSpectrumSpectralItem, Make = h => new ColorSpaceSpecificationSpectrumSpectral(h), Get = Native.get_ColorSpaceSpecificationSpectrumSpectral, Assign = Native.assign_ColorSpaceSpecificationSpectrumSpectral };
            static ObjectListCalls<ReflectancePointType> madeReflectancePoint;
            internal static ObjectListCalls<ReflectancePointType> ReflectancePoint => madeReflectancePoint != null ? madeReflectancePoint : madeReflectancePoint = new ObjectListCalls<ReflectancePointType> { Make = h => new ReflectancePointType(h), Size = Native.size_ReflectancePoint, Get = Native.get_ReflectancePoint, Assign = Native.assign_ReflectancePoint, Append = Native.append_ReflectancePoint, Insert = Native.insert_ReflectancePoint, Delete = Native.delete_ReflectancePoint, Clear = Native.clear_ReflectancePoint };
            static IntPtr madeReflectancePointWavelengthItem;
            internal static IntPtr ReflectancePointWavelengthItem => madeReflectancePointWavelengthItem != IntPtr.Zero ? madeReflectancePointWavelengthItem : madeReflectancePointWavelengthItem = Library.Item("ReflectancePointType", "Wavelength");
            static IntPtr madeReflectancePointItem;
            internal static IntPtr ReflectancePointItem => madeReflectancePointItem != IntPtr.Zero ? madeReflectancePointItem : madeReflectancePointItem = Library.Item("ColorSpaceSpectralType", "ReflectancePoint");
            static IntPtr madeReflectancePointReflectancePointTypeItem;
            internal static IntPtr ReflectancePointReflectancePointTypeItem => madeReflectancePointReflectancePointTypeItem != IntPtr.Zero ? madeReflectancePointReflectancePointTypeItem : madeReflectancePointReflectancePointTypeItem = Library.Item("ReflectancePointType", "ReflectancePointType");
        }
    }

    public partial class ColorSpaceEmissiveSpectralType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceEmissiveSpectralType_isset_Name")] internal static extern int isset_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceEmissiveSpectralType_get_Name")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceEmissiveSpectralType_set_Name")] internal static extern int set_Name(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceEmissiveSpectralType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceEmissiveSpectralType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceEmissiveSpectralType_get_ColorSpaceSpecificationEmissiveSpectral__SWIG_0")] internal static extern IntPtr get_ColorSpaceSpecificationEmissiveSpectral(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceEmissiveSpectralType_assign_ColorSpaceSpecificationEmissiveSpectral")] internal static extern IntPtr assign_ColorSpaceSpecificationEmissiveSpectral(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceEmissiveSpectralType_size_EmissiveSpectralPoint")] internal static extern uint size_EmissiveSpectralPoint(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceEmissiveSpectralType_get_EmissiveSpectralPoint__SWIG_0")] internal static extern IntPtr get_EmissiveSpectralPoint(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceEmissiveSpectralType_assign_EmissiveSpectralPoint")] internal static extern IntPtr assign_EmissiveSpectralPoint(IntPtr self, uint index, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceEmissiveSpectralType_append_EmissiveSpectralPoint")] internal static extern int append_EmissiveSpectralPoint(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceEmissiveSpectralType_insert_EmissiveSpectralPoint")] internal static extern int insert_EmissiveSpectralPoint(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceEmissiveSpectralType_delete_EmissiveSpectralPoint")] internal static extern void delete_EmissiveSpectralPoint(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceEmissiveSpectralType_clear_EmissiveSpectralPoint")] internal static extern void clear_EmissiveSpectralPoint(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceEmissiveSpectralType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceEmissiveSpectralType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceEmissiveSpectralType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceEmissiveSpectralType_unset_Name")] internal static extern void unset_Name(IntPtr self);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetName(IntPtr self) { unset_Name(self); return 0; }
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static IntPtr madeColorSpaceSpecificationEmissiveSpectralItem;
            internal static IntPtr ColorSpaceSpecificationEmissiveSpectralItem => madeColorSpaceSpecificationEmissiveSpectralItem != IntPtr.Zero ? madeColorSpaceSpecificationEmissiveSpectralItem : madeColorSpaceSpecificationEmissiveSpectralItem = Library.Item("ColorSpaceEmissiveSpectralType", "ColorSpaceSpecificationEmissiveSpectral");
            static PartCalls madeColorSpaceSpecificationEmissiveSpectral;
            internal static PartCalls ColorSpaceSpecificationEmissiveSpectral => madeColorSpaceSpecificationEmissiveSpectral != null ? madeColorSpaceSpecificationEmissiveSpectral : madeColorSpaceSpecificationEmissiveSpectral = new PartCalls { Item = ColorSpaceSpecificationEmissiveSpectralItem, Make = h => new ColorSpaceSpecificationEmissiveSpectral(h), Get = Native.get_ColorSpaceSpecificationEmissiveSpectral, Assign = Native.assign_ColorSpaceSpecificationEmissiveSpectral };
            static ObjectListCalls<EmissiveSpectralPointType> madeEmissiveSpectralPoint;
            internal static ObjectListCalls<EmissiveSpectralPointType> EmissiveSpectralPoint => madeEmissiveSpectralPoint != null ? madeEmissiveSpectralPoint : madeEmissiveSpectralPoint = new ObjectListCalls<EmissiveSpectralPointType> { Make = h => new EmissiveSpectralPointType(h), Size = Native.size_EmissiveSpectralPoint, Get = Native.get_EmissiveSpectralPoint, Assign = Native.assign_EmissiveSpectralPoint, Append = Native.append_EmissiveSpectralPoint, Insert = Native.insert_EmissiveSpectralPoint, Delete = Native.delete_EmissiveSpectralPoint, Clear = Native.clear_EmissiveSpectralPoint };
            static IntPtr madeEmissiveSpectralPointWavelengthItem;
            internal static IntPtr EmissiveSpectralPointWavelengthItem => madeEmissiveSpectralPointWavelengthItem != IntPtr.Zero ? madeEmissiveSpectralPointWavelengthItem : madeEmissiveSpectralPointWavelengthItem = Library.Item("EmissiveSpectralPointType", "Wavelength");
            static IntPtr madeEmissiveSpectralPointItem;
            internal static IntPtr EmissiveSpectralPointItem => madeEmissiveSpectralPointItem != IntPtr.Zero ? madeEmissiveSpectralPointItem : madeEmissiveSpectralPointItem = Library.Item("ColorSpaceEmissiveSpectralType", "EmissiveSpectralPoint");
            static IntPtr madeEmissiveSpectralPointEmissiveSpectralPointTypeItem;
            internal static IntPtr EmissiveSpectralPointEmissiveSpectralPointTypeItem => madeEmissiveSpectralPointEmissiveSpectralPointTypeItem != IntPtr.Zero ? madeEmissiveSpectralPointEmissiveSpectralPointTypeItem : madeEmissiveSpectralPointEmissiveSpectralPointTypeItem = Library.Item("EmissiveSpectralPointType", "EmissiveSpectralPointType");
        }
    }

    public partial class ColorSpaceGenericType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceGenericType_get_Name")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceGenericType_set_Name")] internal static extern int set_Name(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceGenericType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceGenericType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceGenericType_get_ColorSpaceSpecificationSpectrumGeneric__SWIG_0")] internal static extern IntPtr get_ColorSpaceSpecificationSpectrumGeneric(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceGenericType_assign_ColorSpaceSpecificationSpectrumGeneric")] internal static extern IntPtr assign_ColorSpaceSpecificationSpectrumGeneric(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceGenericType_size_Axis")] internal static extern uint size_Axis(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceGenericType_get_Axis__SWIG_0")] internal static extern IntPtr get_Axis(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceGenericType_assign_Axis")] internal static extern IntPtr assign_Axis(IntPtr self, uint index, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceGenericType_append_Axis")] internal static extern int append_Axis(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceGenericType_insert_Axis")] internal static extern int insert_Axis(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceGenericType_delete_Axis")] internal static extern void delete_Axis(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceGenericType_clear_Axis")] internal static extern void clear_Axis(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceGenericType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceGenericType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceGenericType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static IntPtr madeColorSpaceSpecificationSpectrumGenericItem;
            internal static IntPtr ColorSpaceSpecificationSpectrumGenericItem => madeColorSpaceSpecificationSpectrumGenericItem != IntPtr.Zero ? madeColorSpaceSpecificationSpectrumGenericItem : madeColorSpaceSpecificationSpectrumGenericItem = Library.Item("ColorSpaceGenericType", "ColorSpaceSpecificationSpectrumGeneric");
            static PartCalls madeColorSpaceSpecificationSpectrumGeneric;
            internal static PartCalls ColorSpaceSpecificationSpectrumGeneric => madeColorSpaceSpecificationSpectrumGeneric != null ? madeColorSpaceSpecificationSpectrumGeneric : madeColorSpaceSpecificationSpectrumGeneric = new PartCalls { Item = ColorSpaceSpecificationSpectrumGenericItem, Make = h => new ColorSpaceSpecificationSpectrumGeneric(h), Get = Native.get_ColorSpaceSpecificationSpectrumGeneric, Assign = Native.assign_ColorSpaceSpecificationSpectrumGeneric };
            static ObjectListCalls<AxisType> madeAxis;
            internal static ObjectListCalls<AxisType> Axis => madeAxis != null ? madeAxis : madeAxis = new ObjectListCalls<AxisType> { Make = h => new AxisType(h), Size = Native.size_Axis, Get = Native.get_Axis, Assign = Native.assign_Axis, Append = Native.append_Axis, Insert = Native.insert_Axis, Delete = Native.delete_Axis, Clear = Native.clear_Axis };
        }
    }

    public partial class ColorSpaceEmissiveGenericType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceEmissiveGenericType_get_Name")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceEmissiveGenericType_set_Name")] internal static extern int set_Name(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceEmissiveGenericType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceEmissiveGenericType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceEmissiveGenericType_get_ColorSpaceSpecificationEmissiveGeneric__SWIG_0")] internal static extern IntPtr get_ColorSpaceSpecificationEmissiveGeneric(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceEmissiveGenericType_assign_ColorSpaceSpecificationEmissiveGeneric")] internal static extern IntPtr assign_ColorSpaceSpecificationEmissiveGeneric(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceEmissiveGenericType_size_Axis")] internal static extern uint size_Axis(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceEmissiveGenericType_get_Axis__SWIG_0")] internal static extern IntPtr get_Axis(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceEmissiveGenericType_assign_Axis")] internal static extern IntPtr assign_Axis(IntPtr self, uint index, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceEmissiveGenericType_append_Axis")] internal static extern int append_Axis(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceEmissiveGenericType_insert_Axis")] internal static extern int insert_Axis(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceEmissiveGenericType_delete_Axis")] internal static extern void delete_Axis(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceEmissiveGenericType_clear_Axis")] internal static extern void clear_Axis(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceEmissiveGenericType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceEmissiveGenericType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceEmissiveGenericType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static IntPtr madeColorSpaceSpecificationEmissiveGenericItem;
            internal static IntPtr ColorSpaceSpecificationEmissiveGenericItem => madeColorSpaceSpecificationEmissiveGenericItem != IntPtr.Zero ? madeColorSpaceSpecificationEmissiveGenericItem : madeColorSpaceSpecificationEmissiveGenericItem = Library.Item("ColorSpaceEmissiveGenericType", "ColorSpaceSpecificationEmissiveGeneric");
            static PartCalls madeColorSpaceSpecificationEmissiveGeneric;
            internal static PartCalls ColorSpaceSpecificationEmissiveGeneric => madeColorSpaceSpecificationEmissiveGeneric != null ? madeColorSpaceSpecificationEmissiveGeneric : madeColorSpaceSpecificationEmissiveGeneric = new PartCalls { Item = ColorSpaceSpecificationEmissiveGenericItem, Make = h => new ColorSpaceSpecificationEmissiveGeneric(h), Get = Native.get_ColorSpaceSpecificationEmissiveGeneric, Assign = Native.assign_ColorSpaceSpecificationEmissiveGeneric };
            static ObjectListCalls<AxisType> madeAxis;
            internal static ObjectListCalls<AxisType> Axis => madeAxis != null ? madeAxis : madeAxis = new ObjectListCalls<AxisType> { Make = h => new AxisType(h), Size = Native.size_Axis, Get = Native.get_Axis, Assign = Native.assign_Axis, Append = Native.append_Axis, Insert = Native.insert_Axis, Delete = Native.delete_Axis, Clear = Native.clear_Axis };
        }
    }

    public partial class ColorSpaceGeneric
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceGeneric__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceGeneric")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceGeneric__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }
    }

    public partial class ColorSpaceEmissiveGeneric
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceEmissiveGeneric__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceEmissiveGeneric")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceEmissiveGeneric__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }
    }

    public partial class ColorSpaceDensity
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceDensity__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceDensity")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceDensity__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }
    }

    public partial class ColorSpaceSpectral
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceSpectral__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceSpectral")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceSpectral__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }
    }

    public partial class ColorSpaceEmissiveSpectral
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceEmissiveSpectral__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceEmissiveSpectral")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceEmissiveSpectral__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }
    }

    public partial class ReflectancePointType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_ReflectancePointType_get_Wavelength")] internal static extern double get_Wavelength(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ReflectancePointType_set_Wavelength")] internal static extern int set_Wavelength(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ReflectancePointType_get_ReflectancePointType")] internal static extern double get_ReflectancePointType(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ReflectancePointType_set_ReflectancePointType")] internal static extern int set_ReflectancePointType(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ReflectancePointType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ReflectancePointType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ReflectancePointType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ReflectancePointType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ReflectancePointType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
        }
    }

    public partial class EmissiveSpectralPointType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_EmissiveSpectralPointType_get_Wavelength")] internal static extern double get_Wavelength(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_EmissiveSpectralPointType_set_Wavelength")] internal static extern int set_Wavelength(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_EmissiveSpectralPointType_get_EmissiveSpectralPointType")] internal static extern double get_EmissiveSpectralPointType(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_EmissiveSpectralPointType_set_EmissiveSpectralPointType")] internal static extern int set_EmissiveSpectralPointType(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_EmissiveSpectralPointType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_EmissiveSpectralPointType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_EmissiveSpectralPointType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_EmissiveSpectralPointType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_EmissiveSpectralPointType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
        }
    }

    public partial class AxisValueChoice
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_AxisValueChoice_getchosen")] internal static extern int getchosen(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_AxisValueChoice_get_AxisStringValue")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_AxisStringValue(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_AxisValueChoice_set_AxisStringValue")] internal static extern int set_AxisStringValue(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_AxisValueChoice_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_AxisValueChoice_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_AxisValueChoice_get_AxisFloatingPointValue__SWIG_0")] internal static extern IntPtr get_AxisFloatingPointValue(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_AxisValueChoice_assign_AxisFloatingPointValue")] internal static extern IntPtr assign_AxisFloatingPointValue(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_AxisValueChoice__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_AxisValueChoice")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_AxisValueChoice__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static PartCalls madeAxisFloatingPointValue;
            internal static PartCalls AxisFloatingPointValue => madeAxisFloatingPointValue != null ? madeAxisFloatingPointValue : madeAxisFloatingPointValue = new PartCalls { Make = h => new FloatingPointValueType(h), Get = Native.get_AxisFloatingPointValue, Assign = Native.assign_AxisFloatingPointValue };
        }
    }

    public partial class AxisType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_AxisType_get_AxisName")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_AxisName(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_AxisType_set_AxisName")] internal static extern int set_AxisName(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_AxisType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_AxisType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_AxisType_get_AxisValueChoice__SWIG_0")] internal static extern IntPtr get_AxisValueChoice(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_AxisType_assign_AxisValueChoice")] internal static extern IntPtr assign_AxisValueChoice(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_AxisType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_AxisType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_AxisType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static IntPtr madeAxisValueChoiceItem;
            internal static IntPtr AxisValueChoiceItem => madeAxisValueChoiceItem != IntPtr.Zero ? madeAxisValueChoiceItem : madeAxisValueChoiceItem = Library.Item("AxisType", "AxisValueChoice");
            static PartCalls madeAxisValueChoice;
            internal static PartCalls AxisValueChoice => madeAxisValueChoice != null ? madeAxisValueChoice : madeAxisValueChoice = new PartCalls { Item = AxisValueChoiceItem, Make = h => new AxisValueChoice(h), Get = Native.get_AxisValueChoice, Assign = Native.assign_AxisValueChoice };
        }
    }

    public partial class FloatingPointValueType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_FloatingPointValueType_get_AxisNominalMax")] internal static extern double get_AxisNominalMax(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_FloatingPointValueType_set_AxisNominalMax")] internal static extern int set_AxisNominalMax(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_FloatingPointValueType_get_AxisNominalMin")] internal static extern double get_AxisNominalMin(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_FloatingPointValueType_set_AxisNominalMin")] internal static extern int set_AxisNominalMin(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_FloatingPointValueType_isset_AxisNominalScale")] internal static extern int isset_AxisNominalScale(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_FloatingPointValueType_getenum_AxisNominalScale")] internal static extern int getenum_AxisNominalScale(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_FloatingPointValueType_setenum_AxisNominalScale")] internal static extern int setenum_AxisNominalScale(IntPtr self, int number);
            [DllImport(Library.Name, EntryPoint = "CSharp_FloatingPointValueType_get_FloatingPointValueType")] internal static extern double get_FloatingPointValueType(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_FloatingPointValueType_set_FloatingPointValueType")] internal static extern int set_FloatingPointValueType(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_FloatingPointValueType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_FloatingPointValueType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_FloatingPointValueType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_FloatingPointValueType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_FloatingPointValueType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_FloatingPointValueType_unset_AxisNominalScale")] internal static extern void unset_AxisNominalScale(IntPtr self);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetAxisNominalScale(IntPtr self) { unset_AxisNominalScale(self); return 0; }
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
        }
    }

    public partial class DensityType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_DensityType_getenum_DensityStatus")] internal static extern int getenum_DensityStatus(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_DensityType_setenum_DensityStatus")] internal static extern int setenum_DensityStatus(IntPtr self, int number);
            [DllImport(Library.Name, EntryPoint = "CSharp_DensityType_getenum_DensityFilter")] internal static extern int getenum_DensityFilter(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_DensityType_setenum_DensityFilter")] internal static extern int setenum_DensityFilter(IntPtr self, int number);
            [DllImport(Library.Name, EntryPoint = "CSharp_DensityType_get_DensityType")] internal static extern double get_DensityType(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_DensityType_set_DensityType")] internal static extern int set_DensityType(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_DensityType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_DensityType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_DensityType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_DensityType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_DensityType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
        }
    }
}
