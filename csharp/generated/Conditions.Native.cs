// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.

using System;
using System.Runtime.InteropServices;

namespace Vyr
{
    public partial class DeviceFilterType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceFilterType_isset_CustomOrPartial")] internal static extern int isset_CustomOrPartial(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceFilterType_get_CustomOrPartial")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_CustomOrPartial(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceFilterType_set_CustomOrPartial")] internal static extern int set_CustomOrPartial(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceFilterType_getenum_DeviceFilterType")] internal static extern int getenum_DeviceFilterType(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceFilterType_setenum_DeviceFilterType")] internal static extern int setenum_DeviceFilterType(IntPtr self, int number);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceFilterType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceFilterType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_DeviceFilterType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_DeviceFilterType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_DeviceFilterType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceFilterType_unset_CustomOrPartial")] internal static extern void unset_CustomOrPartial(IntPtr self);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetCustomOrPartial(IntPtr self) { unset_CustomOrPartial(self); return 0; }
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
        }
    }

    public partial class DeviceFilter
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceFilter_isnil_DeviceFilter")] internal static extern int isnil_DeviceFilter(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceFilter_setnil_DeviceFilter")] internal static extern void setnil_DeviceFilter(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceFilter_setenum_DeviceFilterType")] internal static extern int setenum_DeviceFilterType(IntPtr self, int number);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceFilter_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceFilter_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_DeviceFilter__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_DeviceFilter")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_DeviceFilter__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
        }
    }

    public partial class DevicePolarization
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_DevicePolarization_isnil_DevicePolarization")] internal static extern int isnil_DevicePolarization(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_DevicePolarization_setnil_DevicePolarization")] internal static extern void setnil_DevicePolarization(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_DevicePolarization_get_DevicePolarization")] internal static extern uint get_DevicePolarization(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_DevicePolarization_set_DevicePolarization")] internal static extern int set_DevicePolarization(IntPtr self, uint value);
            [DllImport(Library.Name, EntryPoint = "CSharp_DevicePolarization_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_DevicePolarization_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_DevicePolarization__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_DevicePolarization")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_DevicePolarization__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
        }
    }

    public partial class ColorSpaceSpecificationType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationType_isset_Comments")] internal static extern int isset_Comments(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationType_get_Comments")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_Comments(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationType_set_Comments")] internal static extern int set_Comments(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationType_isset_UniqueID")] internal static extern int isset_UniqueID(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationType_get_UniqueID")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_UniqueID(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationType_set_UniqueID")] internal static extern int set_UniqueID(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationType_size_CustomAttribute")] internal static extern uint size_CustomAttribute(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationType_get_CustomAttribute__SWIG_0")] internal static extern IntPtr get_CustomAttribute(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationType_assign_CustomAttribute")] internal static extern IntPtr assign_CustomAttribute(IntPtr self, uint index, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationType_append_CustomAttribute")] internal static extern int append_CustomAttribute(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationType_insert_CustomAttribute")] internal static extern int insert_CustomAttribute(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationType_delete_CustomAttribute")] internal static extern void delete_CustomAttribute(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationType_clear_CustomAttribute")] internal static extern void clear_CustomAttribute(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationType_get_Profile__SWIG_0")] internal static extern IntPtr get_Profile(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationType_assign_Profile")] internal static extern IntPtr assign_Profile(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationType_unset_Profile")] internal static extern void unset_Profile(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationType_get_Device__SWIG_0")] internal static extern IntPtr get_Device(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationType_assign_Device")] internal static extern IntPtr assign_Device(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationType_unset_Device")] internal static extern void unset_Device(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationType_get_DeviceFilter__SWIG_0")] internal static extern IntPtr get_DeviceFilter(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationType_assign_DeviceFilter")] internal static extern IntPtr assign_DeviceFilter(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationType_unset_DeviceFilter")] internal static extern void unset_DeviceFilter(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationType_get_DevicePolarization__SWIG_0")] internal static extern IntPtr get_DevicePolarization(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationType_assign_DevicePolarization")] internal static extern IntPtr assign_DevicePolarization(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationType_size_ChangeHistory")] internal static extern uint size_ChangeHistory(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationType_get_ChangeHistory")] internal static extern IntPtr get_ChangeHistory(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationType_set_ChangeHistory")] internal static extern int set_ChangeHistory(IntPtr self, uint index, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationType_insert_ChangeHistory")] internal static extern int insert_ChangeHistory(IntPtr self, uint index, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationType_delete_ChangeHistory")] internal static extern void delete_ChangeHistory(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationType_clear_ChangeHistory")] internal static extern void clear_ChangeHistory(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceSpecificationType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceSpecificationType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationType_unset_Comments")] internal static extern void unset_Comments(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationType_unset_UniqueID")] internal static extern void unset_UniqueID(IntPtr self);
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetComments(IntPtr self) { unset_Comments(self); return 0; }
            internal static int UnsetUniqueID(IntPtr self) { unset_UniqueID(self); return 0; }
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static ObjectListCalls<CustomAttributeType> madeCustomAttribute;
            internal static ObjectListCalls<CustomAttributeType> CustomAttribute => madeCustomAttribute != null ? madeCustomAttribute : madeCustomAttribute = new ObjectListCalls<CustomAttributeType> { Make = h => new CustomAttributeType(h), Size = Native.size_CustomAttribute, Get = Native.get_CustomAttribute, Assign = Native.assign_CustomAttribute, Append = Native.append_CustomAttribute, Insert = Native.insert_CustomAttribute, Delete = Native.delete_CustomAttribute, Clear = Native.clear_CustomAttribute };
            static IntPtr madeProfileItem;
            internal static IntPtr ProfileItem => madeProfileItem != IntPtr.Zero ? madeProfileItem : madeProfileItem = Library.Item("ColorSpaceSpecificationType", "Profile");
            static PartCalls madeProfile;
            internal static PartCalls Profile => madeProfile != null ? madeProfile : madeProfile = new PartCalls { Item = ProfileItem, Make = h => new ProfileType(h), Get = Native.get_Profile, Assign = Native.assign_Profile, Unset = Native.unset_Profile };
            static IntPtr madeDeviceItem;
            internal static IntPtr DeviceItem => madeDeviceItem != IntPtr.Zero ? madeDeviceItem : madeDeviceItem = Library.Item("ColorSpaceSpecificationType", "Device");
            static PartCalls madeDevice;
            internal static PartCalls Device => madeDevice != null ? madeDevice : madeDevice = new PartCalls { Item = DeviceItem, Make = h => new DeviceType(h), Get = Native.get_Device, Assign = Native.assign_Device, Unset = Native.unset_Device };
            static IntPtr madeDeviceFilterItem;
            internal static IntPtr DeviceFilterItem => madeDeviceFilterItem != IntPtr.Zero ? madeDeviceFilterItem : madeDeviceFilterItem = Library.Item("ColorSpaceSpecificationType", "DeviceFilter");
            static PartCalls madeDeviceFilter;
            internal static PartCalls DeviceFilter => madeDeviceFilter != null ? madeDeviceFilter : madeDeviceFilter = new PartCalls { Item = DeviceFilterItem, Make = h => new DeviceFilter(h), Get = Native.get_DeviceFilter, Assign = Native.assign_DeviceFilter, Unset = Native.unset_DeviceFilter };
            static IntPtr madeDevicePolarizationItem;
            internal static IntPtr DevicePolarizationItem => madeDevicePolarizationItem != IntPtr.Zero ? madeDevicePolarizationItem : madeDevicePolarizationItem = Library.Item("ColorSpaceSpecificationType", "DevicePolarization");
            static PartCalls madeDevicePolarization;
            internal static PartCalls DevicePolarization => madeDevicePolarization != null ? madeDevicePolarization : madeDevicePolarization = new PartCalls { Item = DevicePolarizationItem, Make = h => new DevicePolarization(h), Get = Native.get_DevicePolarization, Assign = Native.assign_DevicePolarization };
            static ValueListCalls<IntPtr> madeChangeHistory;
            internal static ValueListCalls<IntPtr> ChangeHistory => madeChangeHistory != null ? madeChangeHistory : madeChangeHistory = new ValueListCalls<IntPtr> { Size = Native.size_ChangeHistory, Get = Native.get_ChangeHistory, Set = Native.set_ChangeHistory, Insert = Native.insert_ChangeHistory, Delete = Native.delete_ChangeHistory, Clear = Native.clear_ChangeHistory };
        }
    }

    public partial class SpectrumType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_SpectrumType_isset_CustomTypeName")] internal static extern int isset_CustomTypeName(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SpectrumType_get_CustomTypeName")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_CustomTypeName(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SpectrumType_set_CustomTypeName")] internal static extern int set_CustomTypeName(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_SpectrumType_getenum_SpectrumType")] internal static extern int getenum_SpectrumType(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SpectrumType_setenum_SpectrumType")] internal static extern int setenum_SpectrumType(IntPtr self, int number);
            [DllImport(Library.Name, EntryPoint = "CSharp_SpectrumType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SpectrumType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_SpectrumType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_SpectrumType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_SpectrumType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_SpectrumType_unset_CustomTypeName")] internal static extern void unset_CustomTypeName(IntPtr self);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetCustomTypeName(IntPtr self) { unset_CustomTypeName(self); return 0; }
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
        }
    }

    public partial class ColorSpaceSpecificationSpectrumType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationSpectrumType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationSpectrumType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationSpectrumType_get_Spectrum__SWIG_0")] internal static extern IntPtr get_Spectrum(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationSpectrumType_assign_Spectrum")] internal static extern IntPtr assign_Spectrum(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceSpecificationSpectrumType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceSpecificationSpectrumType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceSpecificationSpectrumType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static IntPtr madeSpectrumItem;
            internal static IntPtr SpectrumItem => madeSpectrumItem != IntPtr.Zero ? madeSpectrumItem : madeSpectrumItem = Library.Item("ColorSpaceSpecificationSpectrumType", "Spectrum");
            static PartCalls madeSpectrum;
            internal static PartCalls Spectrum => madeSpectrum != null ? madeSpectrum : madeSpectrum = new PartCalls { Item = SpectrumItem, Make = h => new SpectrumType(h), Get = Native.get_Spectrum, Assign = Native.assign_Spectrum };
        }
    }

    public partial class ColorSpaceSpecificationEmissiveType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationEmissiveType_getenum_EmissiveType")] internal static extern int getenum_EmissiveType(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationEmissiveType_setenum_EmissiveType")] internal static extern int setenum_EmissiveType(IntPtr self, int number);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationEmissiveType_getenum_EmissiveMode")] internal static extern int getenum_EmissiveMode(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationEmissiveType_setenum_EmissiveMode")] internal static extern int setenum_EmissiveMode(IntPtr self, int number);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationEmissiveType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationEmissiveType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceSpecificationEmissiveType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceSpecificationEmissiveType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceSpecificationEmissiveType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
        }
    }

    public partial class GeometryChoiceType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_GeometryChoiceType_getchosen")] internal static extern int getchosen(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_GeometryChoiceType_getenum_SphereGeometry")] internal static extern int getenum_SphereGeometry(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_GeometryChoiceType_setenum_SphereGeometry")] internal static extern int setenum_SphereGeometry(IntPtr self, int number);
            [DllImport(Library.Name, EntryPoint = "CSharp_GeometryChoiceType_get_Angle")] internal static extern double get_Angle(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_GeometryChoiceType_set_Angle")] internal static extern int set_Angle(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_GeometryChoiceType_get_UnknownGeometry")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_UnknownGeometry(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_GeometryChoiceType_set_UnknownGeometry")] internal static extern int set_UnknownGeometry(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_GeometryChoiceType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_GeometryChoiceType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_GeometryChoiceType_get_BSDFAngle__SWIG_0")] internal static extern IntPtr get_BSDFAngle(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_GeometryChoiceType_assign_BSDFAngle")] internal static extern IntPtr assign_BSDFAngle(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_GeometryChoiceType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_GeometryChoiceType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_GeometryChoiceType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static PartCalls madeBSDFAngle;
            internal static PartCalls BSDFAngle => madeBSDFAngle != null ? madeBSDFAngle : madeBSDFAngle = new PartCalls { Make = h => new BSDFAngle(h), Get = Native.get_BSDFAngle, Assign = Native.assign_BSDFAngle };
        }
    }

    public partial class IlluminationOptionsType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_IlluminationOptionsType_isset_Description")] internal static extern int isset_Description(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_IlluminationOptionsType_get_Description")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_Description(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_IlluminationOptionsType_set_Description")] internal static extern int set_Description(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_IlluminationOptionsType_getchosen")] internal static extern int getchosen(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_IlluminationOptionsType_get_ColorTemperature")] internal static extern uint get_ColorTemperature(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_IlluminationOptionsType_set_ColorTemperature")] internal static extern int set_ColorTemperature(IntPtr self, uint value);
            [DllImport(Library.Name, EntryPoint = "CSharp_IlluminationOptionsType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_IlluminationOptionsType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_IlluminationOptionsType_get_Illuminant__SWIG_0")] internal static extern IntPtr get_Illuminant(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_IlluminationOptionsType_assign_Illuminant")] internal static extern IntPtr assign_Illuminant(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_IlluminationOptionsType_get_WhitePointChromaticity__SWIG_0")] internal static extern IntPtr get_WhitePointChromaticity(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_IlluminationOptionsType_assign_WhitePointChromaticity")] internal static extern IntPtr assign_WhitePointChromaticity(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_IlluminationOptionsType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_IlluminationOptionsType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_IlluminationOptionsType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_IlluminationOptionsType_unset_Description")] internal static extern void unset_Description(IntPtr self);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetDescription(IntPtr self) { unset_Description(self); return 0; }
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static PartCalls madeIlluminant;
            internal static PartCalls Illuminant => madeIlluminant != null ? madeIlluminant : madeIlluminant = new PartCalls { Make = h => new Illuminant(h), Get = Native.get_Illuminant, Assign = Native.assign_Illuminant };
            static PartCalls madeWhitePointChromaticity;
            internal static PartCalls WhitePointChromaticity => madeWhitePointChromaticity != null ? madeWhitePointChromaticity : madeWhitePointChromaticity = new PartCalls { Make = h => new WhitePointChromaticity(h), Get = Native.get_WhitePointChromaticity, Assign = Native.assign_WhitePointChromaticity };
        }
    }

    public partial class ColorSpaceSpecificationSpectrumGenericType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationSpectrumGenericType_isset_FieldOfView")] internal static extern int isset_FieldOfView(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationSpectrumGenericType_getenum_FieldOfView")] internal static extern int getenum_FieldOfView(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationSpectrumGenericType_setenum_FieldOfView")] internal static extern int setenum_FieldOfView(IntPtr self, int number);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationSpectrumGenericType_isset_ASTM_Table")] internal static extern int isset_ASTM_Table(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationSpectrumGenericType_getenum_ASTM_Table")] internal static extern int getenum_ASTM_Table(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationSpectrumGenericType_setenum_ASTM_Table")] internal static extern int setenum_ASTM_Table(IntPtr self, int number);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationSpectrumGenericType_isset_Gamma")] internal static extern int isset_Gamma(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationSpectrumGenericType_get_Gamma")] internal static extern double get_Gamma(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationSpectrumGenericType_set_Gamma")] internal static extern int set_Gamma(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationSpectrumGenericType_isset_DensityStatus")] internal static extern int isset_DensityStatus(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationSpectrumGenericType_getenum_DensityStatus")] internal static extern int getenum_DensityStatus(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationSpectrumGenericType_setenum_DensityStatus")] internal static extern int setenum_DensityStatus(IntPtr self, int number);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationSpectrumGenericType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationSpectrumGenericType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationSpectrumGenericType_get_GeometryChoice__SWIG_0")] internal static extern IntPtr get_GeometryChoice(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationSpectrumGenericType_assign_GeometryChoice")] internal static extern IntPtr assign_GeometryChoice(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationSpectrumGenericType_unset_GeometryChoice")] internal static extern void unset_GeometryChoice(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationSpectrumGenericType_get_IlluminationOptions__SWIG_0")] internal static extern IntPtr get_IlluminationOptions(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationSpectrumGenericType_assign_IlluminationOptions")] internal static extern IntPtr assign_IlluminationOptions(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationSpectrumGenericType_unset_IlluminationOptions")] internal static extern void unset_IlluminationOptions(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceSpecificationSpectrumGenericType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceSpecificationSpectrumGenericType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceSpecificationSpectrumGenericType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationSpectrumGenericType_unset_FieldOfView")] internal static extern void unset_FieldOfView(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationSpectrumGenericType_unset_ASTM_Table")] internal static extern void unset_ASTM_Table(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationSpectrumGenericType_unset_Gamma")] internal static extern void unset_Gamma(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationSpectrumGenericType_unset_DensityStatus")] internal static extern void unset_DensityStatus(IntPtr self);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetFieldOfView(IntPtr self) { unset_FieldOfView(self); return 0; }
            internal static int UnsetASTM_Table(IntPtr self) { unset_ASTM_Table(self); return 0; }
            internal static int UnsetGamma(IntPtr self) { unset_Gamma(self); return 0; }
            internal static int UnsetDensityStatus(IntPtr self) { unset_DensityStatus(self); return 0; }
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static IntPtr madeGeometryChoiceItem;
            internal static IntPtr GeometryChoiceItem => madeGeometryChoiceItem != IntPtr.Zero ? madeGeometryChoiceItem : madeGeometryChoiceItem = Library.Item("ColorSpaceSpecificationSpectrumGenericType", "GeometryChoice");
            static PartCalls madeGeometryChoice;
            internal static PartCalls GeometryChoice => madeGeometryChoice != null ? madeGeometryChoice : madeGeometryChoice = new PartCalls { Item = GeometryChoiceItem, Make = h => new GeometryChoiceType(h), Get = Native.get_GeometryChoice, Assign = Native.assign_GeometryChoice, Unset = Native.unset_GeometryChoice };
            static IntPtr madeIlluminationOptionsItem;
            internal static IntPtr IlluminationOptionsItem => madeIlluminationOptionsItem != IntPtr.Zero ? madeIlluminationOptionsItem : madeIlluminationOptionsItem = Library.Item("ColorSpaceSpecificationSpectrumGenericType", "IlluminationOptions");
            static PartCalls madeIlluminationOptions;
            internal static PartCalls IlluminationOptions => madeIlluminationOptions != null ? madeIlluminationOptions : madeIlluminationOptions = new PartCalls { Item = IlluminationOptionsItem, Make = h => new IlluminationOptionsType(h), Get = Native.get_IlluminationOptions, Assign = Native.assign_IlluminationOptions, Unset = Native.unset_IlluminationOptions };
        }
    }

    public partial class ColorSpaceSpecificationSpectrumTristimulusType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationSpectrumTristimulusType_getenum_FieldOfView")] internal static extern int getenum_FieldOfView(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationSpectrumTristimulusType_setenum_FieldOfView")] internal static extern int setenum_FieldOfView(IntPtr self, int number);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationSpectrumTristimulusType_isset_ASTM_Table")] internal static extern int isset_ASTM_Table(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationSpectrumTristimulusType_getenum_ASTM_Table")] internal static extern int getenum_ASTM_Table(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationSpectrumTristimulusType_setenum_ASTM_Table")] internal static extern int setenum_ASTM_Table(IntPtr self, int number);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationSpectrumTristimulusType_isset_Gamma")] internal static extern int isset_Gamma(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationSpectrumTristimulusType_get_Gamma")] internal static extern double get_Gamma(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationSpectrumTristimulusType_set_Gamma")] internal static extern int set_Gamma(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationSpectrumTristimulusType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationSpectrumTristimulusType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationSpectrumTristimulusType_get_IlluminationOptions__SWIG_0")] internal static extern IntPtr get_IlluminationOptions(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationSpectrumTristimulusType_assign_IlluminationOptions")] internal static extern IntPtr assign_IlluminationOptions(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationSpectrumTristimulusType_get_GeometryChoice__SWIG_0")] internal static extern IntPtr get_GeometryChoice(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationSpectrumTristimulusType_assign_GeometryChoice")] internal static extern IntPtr assign_GeometryChoice(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationSpectrumTristimulusType_unset_GeometryChoice")] internal static extern void unset_GeometryChoice(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceSpecificationSpectrumTristimulusType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceSpecificationSpectrumTristimulusType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceSpecificationSpectrumTristimulusType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationSpectrumTristimulusType_unset_ASTM_Table")] internal static extern void unset_ASTM_Table(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationSpectrumTristimulusType_unset_Gamma")] internal static extern void unset_Gamma(IntPtr self);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetASTM_Table(IntPtr self) { unset_ASTM_Table(self); return 0; }
            internal static int UnsetGamma(IntPtr self) { unset_Gamma(self); return 0; }
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static IntPtr madeIlluminationOptionsItem;
            internal static IntPtr IlluminationOptionsItem => madeIlluminationOptionsItem != IntPtr.Zero ? madeIlluminationOptionsItem : madeIlluminationOptionsItem = Library.Item("ColorSpaceSpecificationSpectrumTristimulusType", "IlluminationOptions");
            static PartCalls madeIlluminationOptions;
            internal static PartCalls IlluminationOptions => madeIlluminationOptions != null ? madeIlluminationOptions : madeIlluminationOptions = new PartCalls { Item = IlluminationOptionsItem, Make = h => new IlluminationOptionsType(h), Get = Native.get_IlluminationOptions, Assign = Native.assign_IlluminationOptions };
            static IntPtr madeGeometryChoiceItem;
            internal static IntPtr GeometryChoiceItem => madeGeometryChoiceItem != IntPtr.Zero ? madeGeometryChoiceItem : madeGeometryChoiceItem = Library.Item("ColorSpaceSpecificationSpectrumTristimulusType", "GeometryChoice");
            static PartCalls madeGeometryChoice;
            internal static PartCalls GeometryChoice => madeGeometryChoice != null ? madeGeometryChoice : madeGeometryChoice = new PartCalls { Item = GeometryChoiceItem, Make = h => new GeometryChoiceType(h), Get = Native.get_GeometryChoice, Assign = Native.assign_GeometryChoice, Unset = Native.unset_GeometryChoice };
        }
    }

    public partial class ColorSpaceSpecificationSpectrumSpectralType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationSpectrumSpectralType_isset_ASTM_Table")] internal static extern int isset_ASTM_Table(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationSpectrumSpectralType_getenum_ASTM_Table")] internal static extern int getenum_ASTM_Table(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationSpectrumSpectralType_setenum_ASTM_Table")] internal static extern int setenum_ASTM_Table(IntPtr self, int number);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationSpectrumSpectralType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationSpectrumSpectralType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationSpectrumSpectralType_get_GeometryChoice__SWIG_0")] internal static extern IntPtr get_GeometryChoice(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationSpectrumSpectralType_assign_GeometryChoice")] internal static extern IntPtr assign_GeometryChoice(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceSpecificationSpectrumSpectralType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceSpecificationSpectrumSpectralType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceSpecificationSpectrumSpectralType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationSpectrumSpectralType_unset_ASTM_Table")] internal static extern void unset_ASTM_Table(IntPtr self);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetASTM_Table(IntPtr self) { unset_ASTM_Table(self); return 0; }
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static IntPtr madeGeometryChoiceItem;
            internal static IntPtr GeometryChoiceItem => madeGeometryChoiceItem != IntPtr.Zero ? madeGeometryChoiceItem : madeGeometryChoiceItem = Library.Item("ColorSpaceSpecificationSpectrumSpectralType", "GeometryChoice");
            static PartCalls madeGeometryChoice;
            internal static PartCalls GeometryChoice => madeGeometryChoice != null ? madeGeometryChoice : madeGeometryChoice = new PartCalls { Item = GeometryChoiceItem, Make = h => new GeometryChoiceType(h), Get = Native.get_GeometryChoice, Assign = Native.assign_GeometryChoice };
        }
    }

    public partial class ColorSpaceSpecificationEmissiveGenericType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationEmissiveGenericType_isset_FieldOfView")] internal static extern int isset_FieldOfView(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationEmissiveGenericType_getenum_FieldOfView")] internal static extern int getenum_FieldOfView(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationEmissiveGenericType_setenum_FieldOfView")] internal static extern int setenum_FieldOfView(IntPtr self, int number);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationEmissiveGenericType_isset_ASTM_Table")] internal static extern int isset_ASTM_Table(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationEmissiveGenericType_getenum_ASTM_Table")] internal static extern int getenum_ASTM_Table(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationEmissiveGenericType_setenum_ASTM_Table")] internal static extern int setenum_ASTM_Table(IntPtr self, int number);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationEmissiveGenericType_isset_Gamma")] internal static extern int isset_Gamma(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationEmissiveGenericType_get_Gamma")] internal static extern double get_Gamma(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationEmissiveGenericType_set_Gamma")] internal static extern int set_Gamma(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationEmissiveGenericType_isset_DensityStatus")] internal static extern int isset_DensityStatus(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationEmissiveGenericType_getenum_DensityStatus")] internal static extern int getenum_DensityStatus(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationEmissiveGenericType_setenum_DensityStatus")] internal static extern int setenum_DensityStatus(IntPtr self, int number);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationEmissiveGenericType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationEmissiveGenericType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationEmissiveGenericType_get_GeometryChoice__SWIG_0")] internal static extern IntPtr get_GeometryChoice(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationEmissiveGenericType_assign_GeometryChoice")] internal static extern IntPtr assign_GeometryChoice(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationEmissiveGenericType_unset_GeometryChoice")] internal static extern void unset_GeometryChoice(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationEmissiveGenericType_get_IlluminationOptions__SWIG_0")] internal static extern IntPtr get_IlluminationOptions(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationEmissiveGenericType_assign_IlluminationOptions")] internal static extern IntPtr assign_IlluminationOptions(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationEmissiveGenericType_unset_IlluminationOptions")] internal static extern void unset_IlluminationOptions(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceSpecificationEmissiveGenericType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceSpecificationEmissiveGenericType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceSpecificationEmissiveGenericType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationEmissiveGenericType_unset_FieldOfView")] internal static extern void unset_FieldOfView(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationEmissiveGenericType_unset_ASTM_Table")] internal static extern void unset_ASTM_Table(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationEmissiveGenericType_unset_Gamma")] internal static extern void unset_Gamma(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationEmissiveGenericType_unset_DensityStatus")] internal static extern void unset_DensityStatus(IntPtr self);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetFieldOfView(IntPtr self) { unset_FieldOfView(self); return 0; }
            internal static int UnsetASTM_Table(IntPtr self) { unset_ASTM_Table(self); return 0; }
            internal static int UnsetGamma(IntPtr self) { unset_Gamma(self); return 0; }
            internal static int UnsetDensityStatus(IntPtr self) { unset_DensityStatus(self); return 0; }
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static IntPtr madeGeometryChoiceItem;
            internal static IntPtr GeometryChoiceItem => madeGeometryChoiceItem != IntPtr.Zero ? madeGeometryChoiceItem : madeGeometryChoiceItem = Library.Item("ColorSpaceSpecificationEmissiveGenericType", "GeometryChoice");
            static PartCalls madeGeometryChoice;
            internal static PartCalls GeometryChoice => madeGeometryChoice != null ? madeGeometryChoice : madeGeometryChoice = new PartCalls { Item = GeometryChoiceItem, Make = h => new GeometryChoiceType(h), Get = Native.get_GeometryChoice, Assign = Native.assign_GeometryChoice, Unset = Native.unset_GeometryChoice };
            static IntPtr madeIlluminationOptionsItem;
            internal static IntPtr IlluminationOptionsItem => madeIlluminationOptionsItem != IntPtr.Zero ? madeIlluminationOptionsItem : madeIlluminationOptionsItem = Library.Item("ColorSpaceSpecificationEmissiveGenericType", "IlluminationOptions");
            static PartCalls madeIlluminationOptions;
            internal static PartCalls IlluminationOptions => madeIlluminationOptions != null ? madeIlluminationOptions : madeIlluminationOptions = new PartCalls { Item = IlluminationOptionsItem, Make = h => new IlluminationOptionsType(h), Get = Native.get_IlluminationOptions, Assign = Native.assign_IlluminationOptions, Unset = Native.unset_IlluminationOptions };
        }
    }

    public partial class ColorSpaceSpecificationEmissiveTristimulusType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationEmissiveTristimulusType_getenum_FieldOfView")] internal static extern int getenum_FieldOfView(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationEmissiveTristimulusType_setenum_FieldOfView")] internal static extern int setenum_FieldOfView(IntPtr self, int number);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationEmissiveTristimulusType_isset_ASTM_Table")] internal static extern int isset_ASTM_Table(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationEmissiveTristimulusType_getenum_ASTM_Table")] internal static extern int getenum_ASTM_Table(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationEmissiveTristimulusType_setenum_ASTM_Table")] internal static extern int setenum_ASTM_Table(IntPtr self, int number);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationEmissiveTristimulusType_isset_Gamma")] internal static extern int isset_Gamma(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationEmissiveTristimulusType_get_Gamma")] internal static extern double get_Gamma(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationEmissiveTristimulusType_set_Gamma")] internal static extern int set_Gamma(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationEmissiveTristimulusType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationEmissiveTristimulusType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationEmissiveTristimulusType_get_IlluminationOptions__SWIG_0")] internal static extern IntPtr get_IlluminationOptions(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationEmissiveTristimulusType_assign_IlluminationOptions")] internal static extern IntPtr assign_IlluminationOptions(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationEmissiveTristimulusType_get_GeometryChoice__SWIG_0")] internal static extern IntPtr get_GeometryChoice(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationEmissiveTristimulusType_assign_GeometryChoice")] internal static extern IntPtr assign_GeometryChoice(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationEmissiveTristimulusType_unset_GeometryChoice")] internal static extern void unset_GeometryChoice(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceSpecificationEmissiveTristimulusType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceSpecificationEmissiveTristimulusType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceSpecificationEmissiveTristimulusType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationEmissiveTristimulusType_unset_ASTM_Table")] internal static extern void unset_ASTM_Table(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationEmissiveTristimulusType_unset_Gamma")] internal static extern void unset_Gamma(IntPtr self);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetASTM_Table(IntPtr self) { unset_ASTM_Table(self); return 0; }
            internal static int UnsetGamma(IntPtr self) { unset_Gamma(self); return 0; }
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static IntPtr madeIlluminationOptionsItem;
            internal static IntPtr IlluminationOptionsItem => madeIlluminationOptionsItem != IntPtr.Zero ? madeIlluminationOptionsItem : madeIlluminationOptionsItem = Library.Item("ColorSpaceSpecificationEmissiveTristimulusType", "IlluminationOptions");
            static PartCalls madeIlluminationOptions;
            internal static PartCalls IlluminationOptions => madeIlluminationOptions != null ? madeIlluminationOptions : madeIlluminationOptions = new PartCalls { Item = IlluminationOptionsItem, Make = h => new IlluminationOptionsType(h), Get = Native.get_IlluminationOptions, Assign = Native.assign_IlluminationOptions };
            static IntPtr madeGeometryChoiceItem;
            internal static IntPtr GeometryChoiceItem => madeGeometryChoiceItem != IntPtr.Zero ? madeGeometryChoiceItem : madeGeometryChoiceItem = Library.Item("ColorSpaceSpecificationEmissiveTristimulusType", "GeometryChoice");
            static PartCalls madeGeometryChoice;
            internal static PartCalls GeometryChoice => madeGeometryChoice != null ? madeGeometryChoice : madeGeometryChoice = new PartCalls { Item = GeometryChoiceItem, Make = h => new GeometryChoiceType(h), Get = Native.get_GeometryChoice, Assign = Native.assign_GeometryChoice, Unset = Native.unset_GeometryChoice };
        }
    }

    public partial class ColorSpaceSpecificationEmissiveSpectralType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationEmissiveSpectralType_isset_ASTM_Table")] internal static extern int isset_ASTM_Table(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationEmissiveSpectralType_getenum_ASTM_Table")] internal static extern int getenum_ASTM_Table(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationEmissiveSpectralType_setenum_ASTM_Table")] internal static extern int setenum_ASTM_Table(IntPtr self, int number);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationEmissiveSpectralType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationEmissiveSpectralType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationEmissiveSpectralType_get_GeometryChoice__SWIG_0")] internal static extern IntPtr get_GeometryChoice(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationEmissiveSpectralType_assign_GeometryChoice")] internal static extern IntPtr assign_GeometryChoice(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceSpecificationEmissiveSpectralType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceSpecificationEmissiveSpectralType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceSpecificationEmissiveSpectralType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationEmissiveSpectralType_unset_ASTM_Table")] internal static extern void unset_ASTM_Table(IntPtr self);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetASTM_Table(IntPtr self) { unset_ASTM_Table(self); return 0; }
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static IntPtr madeGeometryChoiceItem;
            internal static IntPtr GeometryChoiceItem => madeGeometryChoiceItem != IntPtr.Zero ? madeGeometryChoiceItem : madeGeometryChoiceItem = Library.Item("ColorSpaceSpecificationEmissiveSpectralType", "GeometryChoice");
            static PartCalls madeGeometryChoice;
            internal static PartCalls GeometryChoice => madeGeometryChoice != null ? madeGeometryChoice : madeGeometryChoice = new PartCalls { Item = GeometryChoiceItem, Make = h => new GeometryChoiceType(h), Get = Native.get_GeometryChoice, Assign = Native.assign_GeometryChoice };
        }
    }

    public partial class ColorSpaceSpecificationSpectrum
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceSpecificationSpectrum__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceSpecificationSpectrum")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceSpecificationSpectrum__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }
    }

    public partial class ColorSpaceSpecificationSpectrumGeneric
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationSpectrumGeneric_isnil_ColorSpaceSpecificationSpectrumGeneric")] internal static extern int isnil_ColorSpaceSpecificationSpectrumGeneric(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationSpectrumGeneric_setnil_ColorSpaceSpecificationSpectrumGeneric")] internal static extern void setnil_ColorSpaceSpecificationSpectrumGeneric(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationSpectrumGeneric_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationSpectrumGeneric_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceSpecificationSpectrumGeneric__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceSpecificationSpectrumGeneric")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceSpecificationSpectrumGeneric__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
        }
    }

    public partial class ColorSpaceSpecificationSpectrumTristimulus
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationSpectrumTristimulus_isnil_ColorSpaceSpecificationSpectrumTristimulus")] internal static extern int isnil_ColorSpaceSpecificationSpectrumTristimulus(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationSpectrumTristimulus_setnil_ColorSpaceSpecificationSpectrumTristimulus")] internal static extern void setnil_ColorSpaceSpecificationSpectrumTristimulus(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationSpectrumTristimulus_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationSpectrumTristimulus_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceSpecificationSpectrumTristimulus__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceSpecificationSpectrumTristimulus")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceSpecificationSpectrumTristimulus__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
        }
    }

    public partial class ColorSpaceSpecificationSpectrumSpectral
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationSpectrumSpectral_isnil_ColorSpaceSpecificationSpectrumSpectral")] internal static extern int isnil_ColorSpaceSpecificationSpectrumSpectral(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationSpectrumSpectral_setnil_ColorSpaceSpecificationSpectrumSpectral")] internal static extern void setnil_ColorSpaceSpecificationSpectrumSpectral(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationSpectrumSpectral_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationSpectrumSpectral_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceSpecificationSpectrumSpectral__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceSpecificationSpectrumSpectral")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceSpecificationSpectrumSpectral__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
        }
    }

    public partial class ColorSpaceSpecificationEmissive
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceSpecificationEmissive__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceSpecificationEmissive")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceSpecificationEmissive__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }
    }

    public partial class ColorSpaceSpecificationEmissiveGeneric
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationEmissiveGeneric_isnil_ColorSpaceSpecificationEmissiveGeneric")] internal static extern int isnil_ColorSpaceSpecificationEmissiveGeneric(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationEmissiveGeneric_setnil_ColorSpaceSpecificationEmissiveGeneric")] internal static extern void setnil_ColorSpaceSpecificationEmissiveGeneric(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationEmissiveGeneric_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationEmissiveGeneric_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceSpecificationEmissiveGeneric__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceSpecificationEmissiveGeneric")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceSpecificationEmissiveGeneric__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
        }
    }

    public partial class ColorSpaceSpecificationEmissiveTristimulus
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationEmissiveTristimulus_isnil_ColorSpaceSpecificationEmissiveTristimulus")] internal static extern int isnil_ColorSpaceSpecificationEmissiveTristimulus(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationEmissiveTristimulus_setnil_ColorSpaceSpecificationEmissiveTristimulus")] internal static extern void setnil_ColorSpaceSpecificationEmissiveTristimulus(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationEmissiveTristimulus_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationEmissiveTristimulus_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceSpecificationEmissiveTristimulus__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceSpecificationEmissiveTristimulus")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceSpecificationEmissiveTristimulus__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
        }
    }

    public partial class ColorSpaceSpecificationEmissiveSpectral
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationEmissiveSpectral_isnil_ColorSpaceSpecificationEmissiveSpectral")] internal static extern int isnil_ColorSpaceSpecificationEmissiveSpectral(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationEmissiveSpectral_setnil_ColorSpaceSpecificationEmissiveSpectral")] internal static extern void setnil_ColorSpaceSpecificationEmissiveSpectral(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationEmissiveSpectral_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSpecificationEmissiveSpectral_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceSpecificationEmissiveSpectral__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceSpecificationEmissiveSpectral")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceSpecificationEmissiveSpectral__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
        }
    }

    public partial class Illuminant
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_Illuminant_isset_CustomName")] internal static extern int isset_CustomName(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Illuminant_get_CustomName")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_CustomName(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Illuminant_set_CustomName")] internal static extern int set_CustomName(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_Illuminant_getenum_Illuminant")] internal static extern int getenum_Illuminant(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Illuminant_setenum_Illuminant")] internal static extern int setenum_Illuminant(IntPtr self, int number);
            [DllImport(Library.Name, EntryPoint = "CSharp_Illuminant_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Illuminant_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_Illuminant__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_Illuminant")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_Illuminant__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_Illuminant_unset_CustomName")] internal static extern void unset_CustomName(IntPtr self);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetCustomName(IntPtr self) { unset_CustomName(self); return 0; }
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
        }
    }

    public partial class WhitePointChromaticity
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_WhitePointChromaticity_get_CoordinateX")] internal static extern double get_CoordinateX(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_WhitePointChromaticity_set_CoordinateX")] internal static extern int set_CoordinateX(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_WhitePointChromaticity_get_CoordinateY")] internal static extern double get_CoordinateY(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_WhitePointChromaticity_set_CoordinateY")] internal static extern int set_CoordinateY(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_WhitePointChromaticity_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_WhitePointChromaticity_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_WhitePointChromaticity__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_WhitePointChromaticity")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_WhitePointChromaticity__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
        }
    }

    public partial class BSDFAngle
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_BSDFAngle_get_IlluminantAngle")] internal static extern double get_IlluminantAngle(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_BSDFAngle_set_IlluminantAngle")] internal static extern int set_IlluminantAngle(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_BSDFAngle_get_Aspecular")] internal static extern double get_Aspecular(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_BSDFAngle_set_Aspecular")] internal static extern int set_Aspecular(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_BSDFAngle_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_BSDFAngle_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_BSDFAngle__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_BSDFAngle")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_BSDFAngle__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
        }
    }

    public partial class Azimuth
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_Azimuth_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Azimuth_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_Azimuth__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_Azimuth")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_Azimuth__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
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
