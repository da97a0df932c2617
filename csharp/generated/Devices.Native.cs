// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.

using System;
using System.Runtime.InteropServices;

namespace Vyr
{
    public partial class CalibrationStateType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_CalibrationStateType_isset_CalibrationDateTime")] internal static extern int isset_CalibrationDateTime(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_CalibrationStateType_get_CalibrationDateTime")] internal static extern IntPtr get_CalibrationDateTime(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_CalibrationStateType_set_CalibrationDateTime")] internal static extern int set_CalibrationDateTime(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_CalibrationStateType_getenum_CalibrationStateType")] internal static extern int getenum_CalibrationStateType(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_CalibrationStateType_setenum_CalibrationStateType")] internal static extern int setenum_CalibrationStateType(IntPtr self, int number);
            [DllImport(Library.Name, EntryPoint = "CSharp_CalibrationStateType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_CalibrationStateType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_CalibrationStateType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_CalibrationStateType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_CalibrationStateType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_CalibrationStateType_unset_CalibrationDateTime")] internal static extern void unset_CalibrationDateTime(IntPtr self);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetCalibrationDateTime(IntPtr self) { unset_CalibrationDateTime(self); return 0; }
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
        }
    }

    public partial class GlossCompensation
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_GlossCompensation_get_CompensationValue")] internal static extern double get_CompensationValue(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_GlossCompensation_set_CompensationValue")] internal static extern int set_CompensationValue(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_GlossCompensation_isset_GlossCompensation")] internal static extern int isset_GlossCompensation(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_GlossCompensation_get_GlossCompensation")] internal static extern uint get_GlossCompensation(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_GlossCompensation_set_GlossCompensation")] internal static extern int set_GlossCompensation(IntPtr self, uint value);
            [DllImport(Library.Name, EntryPoint = "CSharp_GlossCompensation_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_GlossCompensation_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_GlossCompensation__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_GlossCompensation")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_GlossCompensation__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_GlossCompensation_unset_GlossCompensation")] internal static extern void unset_GlossCompensation(IntPtr self);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetGlossCompensation(IntPtr self) { unset_GlossCompensation(self); return 0; }
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
        }
    }

    public partial class Averaging
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_Averaging_get_AveragingValue")] internal static extern uint get_AveragingValue(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Averaging_set_AveragingValue")] internal static extern int set_AveragingValue(IntPtr self, uint value);
            [DllImport(Library.Name, EntryPoint = "CSharp_Averaging_isset_Averaging")] internal static extern int isset_Averaging(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Averaging_get_Averaging")] internal static extern uint get_Averaging(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Averaging_set_Averaging")] internal static extern int set_Averaging(IntPtr self, uint value);
            [DllImport(Library.Name, EntryPoint = "CSharp_Averaging_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Averaging_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_Averaging__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_Averaging")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_Averaging__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_Averaging_unset_Averaging")] internal static extern void unset_Averaging(IntPtr self);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetAveraging(IntPtr self) { unset_Averaging(self); return 0; }
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
        }
    }

    public partial class DeviceSettings
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceSettings_isset_Aperture")] internal static extern int isset_Aperture(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceSettings_get_Aperture")] internal static extern uint get_Aperture(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceSettings_set_Aperture")] internal static extern int set_Aperture(IntPtr self, uint value);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceSettings_isset_LensPosition")] internal static extern int isset_LensPosition(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceSettings_get_LensPosition")] internal static extern int get_LensPosition(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceSettings_set_LensPosition")] internal static extern int set_LensPosition(IntPtr self, int value);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceSettings_isset_GlassCompensation")] internal static extern int isset_GlassCompensation(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceSettings_get_GlassCompensation")] internal static extern uint get_GlassCompensation(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceSettings_set_GlassCompensation")] internal static extern int set_GlassCompensation(IntPtr self, uint value);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceSettings_isset_LinkTrimmer")] internal static extern int isset_LinkTrimmer(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceSettings_get_LinkTrimmer")] internal static extern uint get_LinkTrimmer(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceSettings_set_LinkTrimmer")] internal static extern int set_LinkTrimmer(IntPtr self, uint value);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceSettings_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceSettings_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceSettings_size_CustomAttribute")] internal static extern uint size_CustomAttribute(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceSettings_get_CustomAttribute__SWIG_0")] internal static extern IntPtr get_CustomAttribute(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceSettings_assign_CustomAttribute")] internal static extern IntPtr assign_CustomAttribute(IntPtr self, uint index, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceSettings_append_CustomAttribute")] internal static extern int append_CustomAttribute(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceSettings_insert_CustomAttribute")] internal static extern int insert_CustomAttribute(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceSettings_delete_CustomAttribute")] internal static extern void delete_CustomAttribute(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceSettings_clear_CustomAttribute")] internal static extern void clear_CustomAttribute(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceSettings_get_GlossCompensation__SWIG_0")] internal static extern IntPtr get_GlossCompensation(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceSettings_assign_GlossCompensation")] internal static extern IntPtr assign_GlossCompensation(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceSettings_unset_GlossCompensation")] internal static extern void unset_GlossCompensation(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceSettings_get_Averaging__SWIG_0")] internal static extern IntPtr get_Averaging(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceSettings_assign_Averaging")] internal static extern IntPtr assign_Averaging(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceSettings_unset_Averaging")] internal static extern void unset_Averaging(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_DeviceSettings__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_DeviceSettings")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_DeviceSettings__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceSettings_unset_Aperture")] internal static extern void unset_Aperture(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceSettings_unset_LensPosition")] internal static extern void unset_LensPosition(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceSettings_unset_GlassCompensation")] internal static extern void unset_GlassCompensation(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceSettings_unset_LinkTrimmer")] internal static extern void unset_LinkTrimmer(IntPtr self);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetAperture(IntPtr self) { unset_Aperture(self); return 0; }
            internal static int UnsetLensPosition(IntPtr self) { unset_LensPosition(self); return 0; }
            internal static int UnsetGlassCompensation(IntPtr self) { unset_GlassCompensation(self); return 0; }
            internal static int UnsetLinkTrimmer(IntPtr self) { unset_LinkTrimmer(self); return 0; }
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static ObjectListCalls<CustomAttributeType> madeCustomAttribute;
            internal static ObjectListCalls<CustomAttributeType> CustomAttribute => madeCustomAttribute != null ? madeCustomAttribute : madeCustomAttribute = new ObjectListCalls<CustomAttributeType> { Make = h => new CustomAttributeType(h), Size = Native.size_CustomAttribute, Get = Native.get_CustomAttribute, Assign = Native.assign_CustomAttribute, Append = Native.append_CustomAttribute, Insert = Native.insert_CustomAttribute, Delete = Native.delete_CustomAttribute, Clear = Native.clear_CustomAttribute };
            static IntPtr madeGlossCompensationItem;
            internal static IntPtr GlossCompensationItem => madeGlossCompensationItem != IntPtr.Zero ? madeGlossCompensationItem : madeGlossCompensationItem = Library.Item("DeviceSettings", "GlossCompensation");
            static PartCalls madeGlossCompensation;
            internal static PartCalls GlossCompensation => madeGlossCompensation != null ? madeGlossCompensation : madeGlossCompensation = new PartCalls { Item = GlossCompensationItem, Make = h => new GlossCompensation(h), Get = Native.get_GlossCompensation, Assign = Native.assign_GlossCompensation, Unset = Native.unset_GlossCompensation };
            static IntPtr madeAveragingItem;
            internal static IntPtr AveragingItem => madeAveragingItem != IntPtr.Zero ? madeAveragingItem : madeAveragingItem = Library.Item("DeviceSettings", "Averaging");
            static PartCalls madeAveraging;
            internal static PartCalls Averaging => madeAveraging != null ? madeAveraging : madeAveraging = new PartCalls { Item = AveragingItem, Make = h => new Averaging(h), Get = Native.get_Averaging, Assign = Native.assign_Averaging, Unset = Native.unset_Averaging };
        }
    }

    public partial class DeviceType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceType_get_Manufacturer")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_Manufacturer(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceType_set_Manufacturer")] internal static extern int set_Manufacturer(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceType_get_Model")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_Model(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceType_set_Model")] internal static extern int set_Model(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceType_get_SerialNumber")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_SerialNumber(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceType_set_SerialNumber")] internal static extern int set_SerialNumber(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceType_isset_DeviceClass")] internal static extern int isset_DeviceClass(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceType_getenum_DeviceClass")] internal static extern int getenum_DeviceClass(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceType_setenum_DeviceClass")] internal static extern int setenum_DeviceClass(IntPtr self, int number);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceType_isset_FirmwareVersion")] internal static extern int isset_FirmwareVersion(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceType_get_FirmwareVersion")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_FirmwareVersion(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceType_set_FirmwareVersion")] internal static extern int set_FirmwareVersion(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceType_isset_BootFirmwareVersion")] internal static extern int isset_BootFirmwareVersion(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceType_get_BootFirmwareVersion")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_BootFirmwareVersion(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceType_set_BootFirmwareVersion")] internal static extern int set_BootFirmwareVersion(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceType_size_CustomAttribute")] internal static extern uint size_CustomAttribute(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceType_get_CustomAttribute__SWIG_0")] internal static extern IntPtr get_CustomAttribute(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceType_assign_CustomAttribute")] internal static extern IntPtr assign_CustomAttribute(IntPtr self, uint index, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceType_append_CustomAttribute")] internal static extern int append_CustomAttribute(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceType_insert_CustomAttribute")] internal static extern int insert_CustomAttribute(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceType_delete_CustomAttribute")] internal static extern void delete_CustomAttribute(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceType_clear_CustomAttribute")] internal static extern void clear_CustomAttribute(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceType_get_CalibrationState__SWIG_0")] internal static extern IntPtr get_CalibrationState(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceType_assign_CalibrationState")] internal static extern IntPtr assign_CalibrationState(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceType_unset_CalibrationState")] internal static extern void unset_CalibrationState(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceType_get_DeviceSettings__SWIG_0")] internal static extern IntPtr get_DeviceSettings(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceType_assign_DeviceSettings")] internal static extern IntPtr assign_DeviceSettings(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceType_unset_DeviceSettings")] internal static extern void unset_DeviceSettings(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_DeviceType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_DeviceType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_DeviceType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceType_unset_DeviceClass")] internal static extern void unset_DeviceClass(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceType_unset_FirmwareVersion")] internal static extern void unset_FirmwareVersion(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_DeviceType_unset_BootFirmwareVersion")] internal static extern void unset_BootFirmwareVersion(IntPtr self);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetDeviceClass(IntPtr self) { unset_DeviceClass(self); return 0; }
            internal static int UnsetFirmwareVersion(IntPtr self) { unset_FirmwareVersion(self); return 0; }
            internal static int UnsetBootFirmwareVersion(IntPtr self) { unset_BootFirmwareVersion(self); return 0; }
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static ObjectListCalls<CustomAttributeType> madeCustomAttribute;
            internal static ObjectListCalls<CustomAttributeType> CustomAttribute => madeCustomAttribute != null ? madeCustomAttribute : madeCustomAttribute = new ObjectListCalls<CustomAttributeType> { Make = h => new CustomAttributeType(h), Size = Native.size_CustomAttribute, Get = Native.get_CustomAttribute, Assign = Native.assign_CustomAttribute, Append = Native.append_CustomAttribute, Insert = Native.insert_CustomAttribute, Delete = Native.delete_CustomAttribute, Clear = Native.clear_CustomAttribute };
            static IntPtr madeCalibrationStateItem;
            internal static IntPtr CalibrationStateItem => madeCalibrationStateItem != IntPtr.Zero ? madeCalibrationStateItem : madeCalibrationStateItem = Library.Item("DeviceType", "CalibrationState");
            static PartCalls madeCalibrationState;
            internal static PartCalls CalibrationState => madeCalibrationState != null ? madeCalibrationState : madeCalibrationState = new PartCalls { Item = CalibrationStateItem, Make = h => new CalibrationStateType(h), Get = Native.get_CalibrationState, Assign = Native.assign_CalibrationState, Unset = Native.unset_CalibrationState };
            static IntPtr madeDeviceSettingsItem;
            internal static IntPtr DeviceSettingsItem => madeDeviceSettingsItem != IntPtr.Zero ? madeDeviceSettingsItem : madeDeviceSettingsItem = Library.Item("DeviceType", "DeviceSettings");
            static PartCalls madeDeviceSettings;
            internal static PartCalls DeviceSettings => madeDeviceSettings != null ? madeDeviceSettings : madeDeviceSettings = new PartCalls { Item = DeviceSettingsItem, Make = h => new DeviceSettings(h), Get = Native.get_DeviceSettings, Assign = Native.assign_DeviceSettings, Unset = Native.unset_DeviceSettings };
        }
    }

    public partial class ProfileChoice
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_ProfileChoice_getchosen")] internal static extern int getchosen(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ProfileChoice_get_ProfileURI")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_ProfileURI(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ProfileChoice_set_ProfileURI")] internal static extern int set_ProfileURI(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ProfileChoice_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ProfileChoice_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ProfileChoice_get_ProfileFile__SWIG_0")] internal static extern IntPtr get_ProfileFile(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ProfileChoice_assign_ProfileFile")] internal static extern IntPtr assign_ProfileFile(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ProfileChoice__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ProfileChoice")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ProfileChoice__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static PartCalls madeProfileFile;
            internal static PartCalls ProfileFile => madeProfileFile != null ? madeProfileFile : madeProfileFile = new PartCalls { Make = h => new ProfileFile(h), Get = Native.get_ProfileFile, Assign = Native.assign_ProfileFile };
        }
    }

    public partial class ProfileType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_ProfileType_getenum_Direction")] internal static extern int getenum_Direction(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ProfileType_setenum_Direction")] internal static extern int setenum_Direction(IntPtr self, int number);
            [DllImport(Library.Name, EntryPoint = "CSharp_ProfileType_isset_Created")] internal static extern int isset_Created(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ProfileType_get_Created")] internal static extern IntPtr get_Created(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ProfileType_set_Created")] internal static extern int set_Created(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ProfileType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ProfileType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ProfileType_get_ProfileChoice__SWIG_0")] internal static extern IntPtr get_ProfileChoice(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ProfileType_assign_ProfileChoice")] internal static extern IntPtr assign_ProfileChoice(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ProfileType_size_Parameters")] internal static extern uint size_Parameters(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ProfileType_get_Parameters__SWIG_0")] internal static extern IntPtr get_Parameters(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ProfileType_assign_Parameters")] internal static extern IntPtr assign_Parameters(IntPtr self, uint index, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ProfileType_append_Parameters")] internal static extern int append_Parameters(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ProfileType_insert_Parameters")] internal static extern int insert_Parameters(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ProfileType_delete_Parameters")] internal static extern void delete_Parameters(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ProfileType_clear_Parameters")] internal static extern void clear_Parameters(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ProfileType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ProfileType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ProfileType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_ProfileType_unset_Created")] internal static extern void unset_Created(IntPtr self);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetCreated(IntPtr self) { unset_Created(self); return 0; }
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static IntPtr madeProfileChoiceItem;
            internal static IntPtr ProfileChoiceItem => madeProfileChoiceItem != IntPtr.Zero ? madeProfileChoiceItem : madeProfileChoiceItem = Library.Item("ProfileType", "ProfileChoice");
            static PartCalls madeProfileChoice;
            internal static PartCalls ProfileChoice => madeProfileChoice != null ? madeProfileChoice : madeProfileChoice = new PartCalls { Item = ProfileChoiceItem, Make = h => new ProfileChoice(h), Get = Native.get_ProfileChoice, Assign = Native.assign_ProfileChoice };
            static ObjectListCalls<ProfileType_Parameters> madeParameters;
            internal static ObjectListCalls<ProfileType_Parameters> Parameters => madeParameters != null ? madeParameters : madeParameters = new ObjectListCalls<ProfileType_Parameters> { Make = h => new ProfileType_Parameters(h), Size = Native.size_Parameters, Get = Native.get_Parameters, Assign = Native.assign_Parameters, Append = Native.append_Parameters, Insert = Native.insert_Parameters, Delete = Native.delete_Parameters, Clear = Native.clear_Parameters };
        }
    }

    public partial class ProfileFile
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_ProfileFile_isset_ProfileName")] internal static extern int isset_ProfileName(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ProfileFile_get_ProfileName")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_ProfileName(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ProfileFile_set_ProfileName")] internal static extern int set_ProfileName(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ProfileFile_get_ProfileFile")] internal static extern IntPtr get_ProfileFile(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ProfileFile_set_ProfileFile")] internal static extern int set_ProfileFile(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ProfileFile_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ProfileFile_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ProfileFile__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ProfileFile")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ProfileFile__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_ProfileFile_unset_ProfileName")] internal static extern void unset_ProfileName(IntPtr self);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetProfileName(IntPtr self) { unset_ProfileName(self); return 0; }
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
        }
    }

    public partial class ProfileType_Parameters_ValueChoice
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_ProfileType_Parameters_ValueChoice_getchosen")] internal static extern int getchosen(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ProfileType_Parameters_ValueChoice_get_DoubleValue")] internal static extern double get_DoubleValue(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ProfileType_Parameters_ValueChoice_set_DoubleValue")] internal static extern int set_DoubleValue(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ProfileType_Parameters_ValueChoice_get_IntegerValue")] internal static extern int get_IntegerValue(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ProfileType_Parameters_ValueChoice_set_IntegerValue")] internal static extern int set_IntegerValue(IntPtr self, int value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ProfileType_Parameters_ValueChoice_get_StringValue")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_StringValue(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ProfileType_Parameters_ValueChoice_set_StringValue")] internal static extern int set_StringValue(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ProfileType_Parameters_ValueChoice_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ProfileType_Parameters_ValueChoice_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ProfileType_Parameters_ValueChoice__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ProfileType_Parameters_ValueChoice")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ProfileType_Parameters_ValueChoice__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
        }
    }

    public partial class ProfileType_Parameters
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_ProfileType_Parameters_get_Name")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ProfileType_Parameters_set_Name")] internal static extern int set_Name(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ProfileType_Parameters_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ProfileType_Parameters_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ProfileType_Parameters_get_ValueChoice__SWIG_0")] internal static extern IntPtr get_ValueChoice(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ProfileType_Parameters_assign_ValueChoice")] internal static extern IntPtr assign_ValueChoice(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ProfileType_Parameters__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ProfileType_Parameters")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ProfileType_Parameters__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static IntPtr madeValueChoiceItem;
            internal static IntPtr ValueChoiceItem => madeValueChoiceItem != IntPtr.Zero ? madeValueChoiceItem : madeValueChoiceItem = Library.Item("ProfileType_Parameters", "ValueChoice");
            static PartCalls madeValueChoice;
            internal static PartCalls ValueChoice => madeValueChoice != null ? madeValueChoice : madeValueChoice = new PartCalls { Item = ValueChoiceItem, Make = h => new ProfileType_Parameters_ValueChoice(h), Get = Native.get_ValueChoice, Assign = Native.assign_ValueChoice };
        }
    }
}
