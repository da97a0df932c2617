// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.

using System;
using System.Runtime.InteropServices;

namespace Vyr
{
    public partial class SDKVersion
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_SDKVersion_isnil_SDKVersion")] internal static extern int isnil_SDKVersion(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SDKVersion_setnil_SDKVersion")] internal static extern void setnil_SDKVersion(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SDKVersion_get_SDKVersion")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_SDKVersion(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SDKVersion_set_SDKVersion")] internal static extern int set_SDKVersion(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_SDKVersion_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SDKVersion_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_SDKVersion__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_SDKVersion")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_SDKVersion__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
        }
    }

    public partial class SDKType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_SDKType_get_SDKName")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_SDKName(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SDKType_set_SDKName")] internal static extern int set_SDKName(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_SDKType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SDKType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SDKType_get_SDKVersion__SWIG_0")] internal static extern IntPtr get_SDKVersion(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SDKType_assign_SDKVersion")] internal static extern IntPtr assign_SDKVersion(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_SDKType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_SDKType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_SDKType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static IntPtr madeSDKVersionItem;
            internal static IntPtr SDKVersionItem => madeSDKVersionItem != IntPtr.Zero ? madeSDKVersionItem : madeSDKVersionItem = Library.Item("SDKType", "SDKVersion");
            static PartCalls madeSDKVersion;
            internal static PartCalls SDKVersion => madeSDKVersion != null ? madeSDKVersion : madeSDKVersion = new PartCalls { Item = SDKVersionItem, Make = h => new SDKVersion(h), Get = Native.get_SDKVersion, Assign = Native.assign_SDKVersion };
        }
    }

    public partial class PlatformType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_PlatformType_get_OperatingSystem")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_OperatingSystem(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_PlatformType_set_OperatingSystem")] internal static extern int set_OperatingSystem(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_PlatformType_get_OperatingSystemVersion")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_OperatingSystemVersion(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_PlatformType_set_OperatingSystemVersion")] internal static extern int set_OperatingSystemVersion(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_PlatformType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_PlatformType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_PlatformType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_PlatformType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_PlatformType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
        }
    }

    public partial class Header
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_Header_get_Creator")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_Creator(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Header_set_Creator")] internal static extern int set_Creator(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_Header_get_CreatorVersion")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_CreatorVersion(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Header_set_CreatorVersion")] internal static extern int set_CreatorVersion(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_Header_get_Purpose")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_Purpose(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Header_set_Purpose")] internal static extern int set_Purpose(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_Header_isset_Name")] internal static extern int isset_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Header_get_Name")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Header_set_Name")] internal static extern int set_Name(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_Header_isset_Comments")] internal static extern int isset_Comments(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Header_get_Comments")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_Comments(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Header_set_Comments")] internal static extern int set_Comments(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_Header_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Header_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Header_size_CustomAttribute")] internal static extern uint size_CustomAttribute(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Header_get_CustomAttribute__SWIG_0")] internal static extern IntPtr get_CustomAttribute(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_Header_assign_CustomAttribute")] internal static extern IntPtr assign_CustomAttribute(IntPtr self, uint index, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_Header_append_CustomAttribute")] internal static extern int append_CustomAttribute(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Header_insert_CustomAttribute")] internal static extern int insert_CustomAttribute(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_Header_delete_CustomAttribute")] internal static extern void delete_CustomAttribute(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_Header_clear_CustomAttribute")] internal static extern void clear_CustomAttribute(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Header_size_ChangeHistory")] internal static extern uint size_ChangeHistory(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Header_get_ChangeHistory")] internal static extern IntPtr get_ChangeHistory(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_Header_set_ChangeHistory")] internal static extern int set_ChangeHistory(IntPtr self, uint index, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_Header_insert_ChangeHistory")] internal static extern int insert_ChangeHistory(IntPtr self, uint index, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_Header_delete_ChangeHistory")] internal static extern void delete_ChangeHistory(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_Header_clear_ChangeHistory")] internal static extern void clear_ChangeHistory(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Header_get_ReadSDKInformation__SWIG_0")] internal static extern IntPtr get_ReadSDKInformation(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Header_assign_ReadSDKInformation")] internal static extern IntPtr assign_ReadSDKInformation(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_Header_unset_ReadSDKInformation")] internal static extern void unset_ReadSDKInformation(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Header_get_WriteSDKInformation__SWIG_0")] internal static extern IntPtr get_WriteSDKInformation(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Header_assign_WriteSDKInformation")] internal static extern IntPtr assign_WriteSDKInformation(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_Header_unset_WriteSDKInformation")] internal static extern void unset_WriteSDKInformation(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Header_get_ReadPlatformInformation__SWIG_0")] internal static extern IntPtr get_ReadPlatformInformation(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Header_assign_ReadPlatformInformation")] internal static extern IntPtr assign_ReadPlatformInformation(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_Header_unset_ReadPlatformInformation")] internal static extern void unset_ReadPlatformInformation(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Header_get_WritePlatformInformation__SWIG_0")] internal static extern IntPtr get_WritePlatformInformation(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Header_assign_WritePlatformInformation")] internal static extern IntPtr assign_WritePlatformInformation(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_Header_unset_WritePlatformInformation")] internal static extern void unset_WritePlatformInformation(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Header_size_Revision")] internal static extern uint size_Revision(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Header_get_Revision__SWIG_0")] internal static extern IntPtr get_Revision(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_Header_assign_Revision")] internal static extern IntPtr assign_Revision(IntPtr self, uint index, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_Header_append_Revision")] internal static extern int append_Revision(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Header_insert_Revision")] internal static extern int insert_Revision(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_Header_delete_Revision")] internal static extern void delete_Revision(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_Header_clear_Revision")] internal static extern void clear_Revision(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_Header__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_Header")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_Header__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_Header_unset_Name")] internal static extern void unset_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Header_unset_Comments")] internal static extern void unset_Comments(IntPtr self);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetName(IntPtr self) { unset_Name(self); return 0; }
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
            static IntPtr madeReadSDKInformationItem;
            internal static IntPtr ReadSDKInformationItem => madeReadSDKInformationItem != IntPtr.Zero ? madeReadSDKInformationItem : madeReadSDKInformationItem = Library.Item("Header", "ReadSDKInformation");
            static PartCalls madeReadSDKInformation;
            internal static PartCalls ReadSDKInformation => madeReadSDKInformation != null ? madeReadSDKInformation : madeReadSDKInformation = new PartCalls { Item = ReadSDKInformationItem, Make = h => new SDKType(h), Get = Native.get_ReadSDKInformation, Assign = Native.assign_ReadSDKInformation, Unset = Native.unset_ReadSDKInformation };
            static IntPtr madeWriteSDKInformationItem;
            internal static IntPtr WriteSDKInformationItem => madeWriteSDKInformationItem != IntPtr.Zero ? madeWriteSDKInformationItem : madeWriteSDKInformationItem = Library.Item("Header", "WriteSDKInformation");
            static PartCalls madeWriteSDKInformation;
            internal static PartCalls WriteSDKInformation => madeWriteSDKInformation != null ? madeWriteSDKInformation : madeWriteSDKInformation = new PartCalls { Item = WriteSDKInformationItem, Make = h => new SDKType(h), Get = Native.get_WriteSDKInformation, Assign = Native.assign_WriteSDKInformation, Unset = Native.unset_WriteSDKInformation };
            static IntPtr madeReadPlatformInformationItem;
            internal static IntPtr ReadPlatformInformationItem => madeReadPlatformInformationItem != IntPtr.Zero ? madeReadPlatformInformationItem : madeReadPlatformInformationItem = Library.Item("Header", "ReadPlatformInformation");
            static PartCalls madeReadPlatformInformation;
            internal static PartCalls ReadPlatformInformation => madeReadPlatformInformation != null ? madeReadPlatformInformation : madeReadPlatformInformation = new PartCalls { Item = ReadPlatformInformationItem, Make = h => new PlatformType(h), Get = Native.get_ReadPlatformInformation, Assign = Native.assign_ReadPlatformInformation, Unset = Native.unset_ReadPlatformInformation };
            static IntPtr madeWritePlatformInformationItem;
            internal static IntPtr WritePlatformInformationItem => madeWritePlatformInformationItem != IntPtr.Zero ? madeWritePlatformInformationItem : madeWritePlatformInformationItem = Library.Item("Header", "WritePlatformInformation");
            static PartCalls madeWritePlatformInformation;
            internal static PartCalls WritePlatformInformation => madeWritePlatformInformation != null ? madeWritePlatformInformation : madeWritePlatformInformation = new PartCalls { Item = WritePlatformInformationItem, Make = h => new PlatformType(h), Get = Native.get_WritePlatformInformation, Assign = Native.assign_WritePlatformInformation, Unset = Native.unset_WritePlatformInformation };
            static ObjectListCalls<Revision> madeRevision;
            internal static ObjectListCalls<Revision> Revision => madeRevision != null ? madeRevision : madeRevision = new ObjectListCalls<Revision> { Make = h => new Revision(h), Size = Native.size_Revision, Get = Native.get_Revision, Assign = Native.assign_Revision, Append = Native.append_Revision, Insert = Native.insert_Revision, Delete = Native.delete_Revision, Clear = Native.clear_Revision };
        }
    }

    public partial class OwnerType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_OwnerType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_OwnerType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_OwnerType_size_CustomAttribute")] internal static extern uint size_CustomAttribute(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_OwnerType_get_CustomAttribute__SWIG_0")] internal static extern IntPtr get_CustomAttribute(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_OwnerType_assign_CustomAttribute")] internal static extern IntPtr assign_CustomAttribute(IntPtr self, uint index, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_OwnerType_append_CustomAttribute")] internal static extern int append_CustomAttribute(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_OwnerType_insert_CustomAttribute")] internal static extern int insert_CustomAttribute(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_OwnerType_delete_CustomAttribute")] internal static extern void delete_CustomAttribute(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_OwnerType_clear_CustomAttribute")] internal static extern void clear_CustomAttribute(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_OwnerType_size_Person")] internal static extern uint size_Person(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_OwnerType_get_Person__SWIG_0")] internal static extern IntPtr get_Person(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_OwnerType_assign_Person")] internal static extern IntPtr assign_Person(IntPtr self, uint index, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_OwnerType_append_Person")] internal static extern int append_Person(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_OwnerType_insert_Person")] internal static extern int insert_Person(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_OwnerType_delete_Person")] internal static extern void delete_Person(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_OwnerType_clear_Person")] internal static extern void clear_Person(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_OwnerType_size_Copyright")] internal static extern uint size_Copyright(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_OwnerType_get_Copyright")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_Copyright(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_OwnerType_set_Copyright")] internal static extern int set_Copyright(IntPtr self, uint index, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_OwnerType_insert_Copyright")] internal static extern int insert_Copyright(IntPtr self, uint index, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_OwnerType_delete_Copyright")] internal static extern void delete_Copyright(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_OwnerType_clear_Copyright")] internal static extern void clear_Copyright(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_OwnerType_size_Company")] internal static extern uint size_Company(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_OwnerType_get_Company")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_Company(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_OwnerType_set_Company")] internal static extern int set_Company(IntPtr self, uint index, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_OwnerType_insert_Company")] internal static extern int insert_Company(IntPtr self, uint index, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_OwnerType_delete_Company")] internal static extern void delete_Company(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_OwnerType_clear_Company")] internal static extern void clear_Company(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_OwnerType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_OwnerType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_OwnerType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static ObjectListCalls<CustomAttributeType> madeCustomAttribute;
            internal static ObjectListCalls<CustomAttributeType> CustomAttribute => madeCustomAttribute != null ? madeCustomAttribute : madeCustomAttribute = new ObjectListCalls<CustomAttributeType> { Make = h => new CustomAttributeType(h), Size = Native.size_CustomAttribute, Get = Native.get_CustomAttribute, Assign = Native.assign_CustomAttribute, Append = Native.append_CustomAttribute, Insert = Native.insert_CustomAttribute, Delete = Native.delete_CustomAttribute, Clear = Native.clear_CustomAttribute };
            static ObjectListCalls<Person> madePerson;
            internal static ObjectListCalls<Person> Person => madePerson != null ? madePerson : madePerson = new ObjectListCalls<Person> { Make = h => new Person(h), Size = Native.size_Person, Get = Native.get_Person, Assign = Native.assign_Person, Append = Native.append_Person, Insert = Native.insert_Person, Delete = Native.delete_Person, Clear = Native.clear_Person };
            static ValueListCalls<string> madeCopyright;
            internal static ValueListCalls<string> Copyright => madeCopyright != null ? madeCopyright : madeCopyright = new ValueListCalls<string> { Size = Native.size_Copyright, Get = Native.get_Copyright, Set = Native.set_Copyright, Insert = Native.insert_Copyright, Delete = Native.delete_Copyright, Clear = Native.clear_Copyright };
            static ValueListCalls<string> madeCompany;
            internal static ValueListCalls<string> Company => madeCompany != null ? madeCompany : madeCompany = new ValueListCalls<string> { Size = Native.size_Company, Get = Native.get_Company, Set = Native.set_Company, Insert = Native.insert_Company, Delete = Native.delete_Company, Clear = Native.clear_Company };
        }
    }

    public partial class Version
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_Version_get_Version")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_Version(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Version_set_Version")] internal static extern int set_Version(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_Version_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Version_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Version_size_CustomAttribute")] internal static extern uint size_CustomAttribute(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Version_get_CustomAttribute__SWIG_0")] internal static extern IntPtr get_CustomAttribute(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_Version_assign_CustomAttribute")] internal static extern IntPtr assign_CustomAttribute(IntPtr self, uint index, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_Version_append_CustomAttribute")] internal static extern int append_CustomAttribute(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Version_insert_CustomAttribute")] internal static extern int insert_CustomAttribute(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_Version_delete_CustomAttribute")] internal static extern void delete_CustomAttribute(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_Version_clear_CustomAttribute")] internal static extern void clear_CustomAttribute(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Version_size_Predecessor")] internal static extern uint size_Predecessor(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Version_get_Predecessor")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_Predecessor(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_Version_set_Predecessor")] internal static extern int set_Predecessor(IntPtr self, uint index, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_Version_insert_Predecessor")] internal static extern int insert_Predecessor(IntPtr self, uint index, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_Version_delete_Predecessor")] internal static extern void delete_Predecessor(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_Version_clear_Predecessor")] internal static extern void clear_Predecessor(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_Version__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_Version")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_Version__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static ObjectListCalls<CustomAttributeType> madeCustomAttribute;
            internal static ObjectListCalls<CustomAttributeType> CustomAttribute => madeCustomAttribute != null ? madeCustomAttribute : madeCustomAttribute = new ObjectListCalls<CustomAttributeType> { Make = h => new CustomAttributeType(h), Size = Native.size_CustomAttribute, Get = Native.get_CustomAttribute, Assign = Native.assign_CustomAttribute, Append = Native.append_CustomAttribute, Insert = Native.insert_CustomAttribute, Delete = Native.delete_CustomAttribute, Clear = Native.clear_CustomAttribute };
            static ValueListCalls<string> madePredecessor;
            internal static ValueListCalls<string> Predecessor => madePredecessor != null ? madePredecessor : madePredecessor = new ValueListCalls<string> { Size = Native.size_Predecessor, Get = Native.get_Predecessor, Set = Native.set_Predecessor, Insert = Native.insert_Predecessor, Delete = Native.delete_Predecessor, Clear = Native.clear_Predecessor };
        }
    }

    public partial class Preamble
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_Preamble_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Preamble_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Preamble_get_Header__SWIG_0")] internal static extern IntPtr get_Header(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Preamble_assign_Header")] internal static extern IntPtr assign_Header(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_Preamble_get_Owner__SWIG_0")] internal static extern IntPtr get_Owner(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Preamble_assign_Owner")] internal static extern IntPtr assign_Owner(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_Preamble_unset_Owner")] internal static extern void unset_Owner(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Preamble_get_Version__SWIG_0")] internal static extern IntPtr get_Version(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Preamble_assign_Version")] internal static extern IntPtr assign_Version(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_Preamble_unset_Version")] internal static extern void unset_Version(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_Preamble__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_Preamble")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_Preamble__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static IntPtr madeHeaderItem;
            internal static IntPtr HeaderItem => madeHeaderItem != IntPtr.Zero ? madeHeaderItem : madeHeaderItem = Library.Item("Preamble", "Header");
            static PartCalls madeHeader;
            internal static PartCalls Header => madeHeader != null ? madeHeader : madeHeader = new PartCalls { Item = HeaderItem, Make = h => new Header(h), Get = Native.get_Header, Assign = Native.assign_Header };
            static IntPtr madeOwnerItem;
            internal static IntPtr OwnerItem => madeOwnerItem != IntPtr.Zero ? madeOwnerItem : madeOwnerItem = Library.Item("Preamble", "Owner");
            static PartCalls madeOwner;
            internal static PartCalls Owner => madeOwner != null ? madeOwner : madeOwner = new PartCalls { Item = OwnerItem, Make = h => new OwnerType(h), Get = Native.get_Owner, Assign = Native.assign_Owner, Unset = Native.unset_Owner };
            static IntPtr madeVersionItem;
            internal static IntPtr VersionItem => madeVersionItem != IntPtr.Zero ? madeVersionItem : madeVersionItem = Library.Item("Preamble", "Version");
            static PartCalls madeVersion;
            internal static PartCalls Version => madeVersion != null ? madeVersion : madeVersion = new PartCalls { Item = VersionItem, Make = h => new Version(h), Get = Native.get_Version, Assign = Native.assign_Version, Unset = Native.unset_Version };
        }
    }

    public partial class Document
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_Vyr_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Vyr_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Vyr_get_Preamble__SWIG_0")] internal static extern IntPtr get_Preamble(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Vyr_assign_Preamble")] internal static extern IntPtr assign_Preamble(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_Vyr_size_Color")] internal static extern uint size_Color(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Vyr_get_Color__SWIG_0")] internal static extern IntPtr get_Color(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_Vyr_assign_Color")] internal static extern IntPtr assign_Color(IntPtr self, uint index, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_Vyr_append_Color")] internal static extern int append_Color(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Vyr_insert_Color")] internal static extern int insert_Color(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_Vyr_delete_Color")] internal static extern void delete_Color(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_Vyr_clear_Color")] internal static extern void clear_Color(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Vyr_size_Palette")] internal static extern uint size_Palette(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Vyr_get_Palette__SWIG_0")] internal static extern IntPtr get_Palette(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_Vyr_assign_Palette")] internal static extern IntPtr assign_Palette(IntPtr self, uint index, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_Vyr_append_Palette")] internal static extern int append_Palette(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Vyr_insert_Palette")] internal static extern int insert_Palette(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_Vyr_delete_Palette")] internal static extern void delete_Palette(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_Vyr_clear_Palette")] internal static extern void clear_Palette(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Vyr_size_ColorQualityControl")] internal static extern uint size_ColorQualityControl(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Vyr_get_ColorQualityControl__SWIG_0")] internal static extern IntPtr get_ColorQualityControl(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_Vyr_assign_ColorQualityControl")] internal static extern IntPtr assign_ColorQualityControl(IntPtr self, uint index, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_Vyr_append_ColorQualityControl")] internal static extern int append_ColorQualityControl(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Vyr_insert_ColorQualityControl")] internal static extern int insert_ColorQualityControl(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_Vyr_delete_ColorQualityControl")] internal static extern void delete_ColorQualityControl(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_Vyr_clear_ColorQualityControl")] internal static extern void clear_ColorQualityControl(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_Vyr__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_Vyr")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_Vyr__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static IntPtr madePreambleItem;
            internal static IntPtr PreambleItem => madePreambleItem != IntPtr.Zero ? madePreambleItem : madePreambleItem = Library.Item("Vyr", "Preamble");
            static PartCalls madePreamble;
            internal static PartCalls Preamble => madePreamble != null ? madePreamble : madePreamble = new PartCalls { Item = PreambleItem, Make = h => new Preamble(h), Get = Native.get_Preamble, Assign = Native.assign_Preamble };
            static ObjectListCalls<ColorType> madeColor;
            internal static ObjectListCalls<ColorType> Color => madeColor != null ? madeColor : madeColor = new ObjectListCalls<ColorType> { Make = h => new ColorType(h), Size = Native.size_Color, Get = Native.get_Color, Assign = Native.assign_Color, Append = Native.append_Color, Insert = Native.insert_Color, Delete = Native.delete_Color, Clear = Native.clear_Color };
            static ObjectListCalls<PaletteType> madePalette;
            internal static ObjectListCalls<PaletteType> Palette => madePalette != null ? madePalette : madePalette = new ObjectListCalls<PaletteType> { Make = h => new PaletteType(h), Size = Native.size_Palette, Get = Native.get_Palette, Assign = Native.assign_Palette, Append = Native.append_Palette, Insert = Native.insert_Palette, Delete = Native.delete_Palette, Clear = Native.clear_Palette };
            static ObjectListCalls<ColorQualityControlType> madeColorQualityControl;
            internal static ObjectListCalls<ColorQualityControlType> ColorQualityControl => madeColorQualityControl != null ? madeColorQualityControl : madeColorQualityControl = new ObjectListCalls<ColorQualityControlType> { Make = h => new ColorQualityControlType(h), Size = Native.size_ColorQualityControl, Get = Native.get_ColorQualityControl, Assign = Native.assign_ColorQualityControl, Append = Native.append_ColorQualityControl, Insert = Native.insert_ColorQualityControl, Delete = Native.delete_ColorQualityControl, Clear = Native.clear_ColorQualityControl };
        }
    }

    public partial class Revision
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_Revision_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Revision_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Revision_size_any")] internal static extern uint size_any(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Revision_append_any")] internal static extern int append_any(IntPtr self, byte[] value);
            [DllImport(Library.Name, EntryPoint = "CSharp_Revision_insert_any")] internal static extern int insert_any(IntPtr self, uint index, byte[] value);
            [DllImport(Library.Name, EntryPoint = "CSharp_Revision_delete_any")] internal static extern void delete_any(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_Revision_clear_any")] internal static extern void clear_any(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_Revision__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_Revision")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_Revision__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static IntPtr madeanyItem;
            internal static IntPtr anyItem => madeanyItem != IntPtr.Zero ? madeanyItem : madeanyItem = Library.Item("Revision", "any");
            static MarkupListCalls madeany;
            internal static MarkupListCalls any => madeany != null ? madeany : madeany = new MarkupListCalls { Item = anyItem, Size = Native.size_any, Append = Native.append_any, Insert = Native.insert_any, Delete = Native.delete_any, Clear = Native.clear_any };
        }
    }

    public partial class Person
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_Person_get_Name")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Person_set_Name")] internal static extern int set_Name(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_Person_isset_ContactInfo")] internal static extern int isset_ContactInfo(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Person_get_ContactInfo")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_ContactInfo(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Person_set_ContactInfo")] internal static extern int set_ContactInfo(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_Person_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Person_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_Person__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_Person")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_Person__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_Person_unset_ContactInfo")] internal static extern void unset_ContactInfo(IntPtr self);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetContactInfo(IntPtr self) { unset_ContactInfo(self); return 0; }
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
        }
    }

    public partial class CustomAttributeType_ValueChoice
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_CustomAttributeType_ValueChoice_getchosen")] internal static extern int getchosen(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_CustomAttributeType_ValueChoice_get_DoubleValue")] internal static extern double get_DoubleValue(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_CustomAttributeType_ValueChoice_set_DoubleValue")] internal static extern int set_DoubleValue(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_CustomAttributeType_ValueChoice_get_IntegerValue")] internal static extern int get_IntegerValue(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_CustomAttributeType_ValueChoice_set_IntegerValue")] internal static extern int set_IntegerValue(IntPtr self, int value);
            [DllImport(Library.Name, EntryPoint = "CSharp_CustomAttributeType_ValueChoice_get_StringValue")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_StringValue(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_CustomAttributeType_ValueChoice_set_StringValue")] internal static extern int set_StringValue(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_CustomAttributeType_ValueChoice_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_CustomAttributeType_ValueChoice_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_CustomAttributeType_ValueChoice__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_CustomAttributeType_ValueChoice")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_CustomAttributeType_ValueChoice__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
        }
    }

    public partial class CustomAttributeType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_CustomAttributeType_get_Name")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_CustomAttributeType_set_Name")] internal static extern int set_Name(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_CustomAttributeType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_CustomAttributeType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_CustomAttributeType_get_ValueChoice__SWIG_0")] internal static extern IntPtr get_ValueChoice(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_CustomAttributeType_assign_ValueChoice")] internal static extern IntPtr assign_ValueChoice(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_CustomAttributeType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_CustomAttributeType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_CustomAttributeType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static IntPtr madeValueChoiceItem;
            internal static IntPtr ValueChoiceItem => madeValueChoiceItem != IntPtr.Zero ? madeValueChoiceItem : madeValueChoiceItem = Library.Item("CustomAttributeType", "ValueChoice");
            static PartCalls madeValueChoice;
            internal static PartCalls ValueChoice => madeValueChoice != null ? madeValueChoice : madeValueChoice = new PartCalls { Item = ValueChoiceItem, Make = h => new CustomAttributeType_ValueChoice(h), Get = Native.get_ValueChoice, Assign = Native.assign_ValueChoice };
        }
    }

    public partial class TagCategory
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_TagCategory_isset_UniqueID")] internal static extern int isset_UniqueID(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_TagCategory_get_UniqueID")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_UniqueID(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_TagCategory_set_UniqueID")] internal static extern int set_UniqueID(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_TagCategory_isset_Name")] internal static extern int isset_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_TagCategory_get_Name")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_TagCategory_set_Name")] internal static extern int set_Name(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_TagCategory_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_TagCategory_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_TagCategory__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_TagCategory")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_TagCategory__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_TagCategory_unset_UniqueID")] internal static extern void unset_UniqueID(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_TagCategory_unset_Name")] internal static extern void unset_Name(IntPtr self);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetUniqueID(IntPtr self) { unset_UniqueID(self); return 0; }
            internal static int UnsetName(IntPtr self) { unset_Name(self); return 0; }
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
        }
    }

    public partial class Tag
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_Tag_isset_Name")] internal static extern int isset_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Tag_get_Name")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Tag_set_Name")] internal static extern int set_Name(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_Tag_isset_UniqueID")] internal static extern int isset_UniqueID(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Tag_get_UniqueID")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_UniqueID(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Tag_set_UniqueID")] internal static extern int set_UniqueID(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_Tag_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Tag_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Tag_get_Category__SWIG_0")] internal static extern IntPtr get_Category(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Tag_assign_Category")] internal static extern IntPtr assign_Category(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_Tag__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_Tag")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_Tag__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_Tag_unset_Name")] internal static extern void unset_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Tag_unset_UniqueID")] internal static extern void unset_UniqueID(IntPtr self);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetName(IntPtr self) { unset_Name(self); return 0; }
            internal static int UnsetUniqueID(IntPtr self) { unset_UniqueID(self); return 0; }
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static IntPtr madeCategoryItem;
            internal static IntPtr CategoryItem => madeCategoryItem != IntPtr.Zero ? madeCategoryItem : madeCategoryItem = Library.Item("Tag", "Category");
            static PartCalls madeCategory;
            internal static PartCalls Category => madeCategory != null ? madeCategory : madeCategory = new PartCalls { Item = CategoryItem, Make = h => new TagCategory(h), Get = Native.get_Category, Assign = Native.assign_Category };
        }
    }

    public partial class TagValueChoice
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_anon_TextValue_getchosen")] internal static extern int getchosen(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_anon_TextValue_get_TextValue")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_TextValue(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_anon_TextValue_set_TextValue")] internal static extern int set_TextValue(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_anon_TextValue_get_NumberValue")] internal static extern double get_NumberValue(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_anon_TextValue_set_NumberValue")] internal static extern int set_NumberValue(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_anon_TextValue_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_anon_TextValue_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_anon_TextValue__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_anon_TextValue")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_anon_TextValue__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
        }
    }

    public partial class TagValue
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_TagValue_isset_UniqueID")] internal static extern int isset_UniqueID(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_TagValue_get_UniqueID")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_UniqueID(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_TagValue_set_UniqueID")] internal static extern int set_UniqueID(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_TagValue_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_TagValue_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_TagValue_get_Tag__SWIG_0")] internal static extern IntPtr get_Tag(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_TagValue_assign_Tag")] internal static extern IntPtr assign_Tag(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_TagValue_get_anon_TextValue__SWIG_0")] internal static extern IntPtr get_anon_TextValue(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_TagValue_assign_anon_TextValue")] internal static extern IntPtr assign_anon_TextValue(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_TagValue__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_TagValue")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_TagValue__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_TagValue_unset_UniqueID")] internal static extern void unset_UniqueID(IntPtr self);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetUniqueID(IntPtr self) { unset_UniqueID(self); return 0; }
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static IntPtr madeTagItem;
            internal static IntPtr TagItem => madeTagItem != IntPtr.Zero ? madeTagItem : madeTagItem = Library.Item("TagValue", "Tag");
            static PartCalls madeTag;
            internal static PartCalls Tag => madeTag != null ? madeTag : madeTag = new PartCalls { Item = TagItem, Make = h => new Tag(h), Get = Native.get_Tag, Assign = Native.assign_Tag };
            static IntPtr madeanon_TextValueItem;
            internal static IntPtr anon_TextValueItem => madeanon_TextValueItem != IntPtr.Zero ? madeanon_TextValueItem : madeanon_TextValueItem = Library.Item("TagValue", "anon_TextValue");
            static PartCalls madeanon_TextValue;
            internal static PartCalls anon_TextValue => madeanon_TextValue != null ? madeanon_TextValue : madeanon_TextValue = new PartCalls { Item = anon_TextValueItem, Make = h => new TagValueChoice(h), Get = Native.get_anon_TextValue, Assign = Native.assign_anon_TextValue };
        }
    }
}
