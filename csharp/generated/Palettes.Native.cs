// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.

using System;
using System.Runtime.InteropServices;

namespace Vyr
{
    public partial class CollectionColorSpaceSpecificationType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_CollectionColorSpaceSpecificationType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_CollectionColorSpaceSpecificationType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_CollectionColorSpaceSpecificationType_get_ColorSpaceSpecificationSpectrumGeneric__SWIG_0")] internal static extern IntPtr get_ColorSpaceSpecificationSpectrumGeneric(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_CollectionColorSpaceSpecificationType_assign_ColorSpaceSpecificationSpectrumGeneric")] internal static extern IntPtr assign_ColorSpaceSpecificationSpectrumGeneric(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_CollectionColorSpaceSpecificationType_unset_ColorSpaceSpecificationSpectrumGeneric")] internal static extern void unset_ColorSpaceSpecificationSpectrumGeneric(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_CollectionColorSpaceSpecificationType_get_ColorSpaceSpecificationSpectrumSpectral__SWIG_0")] internal static extern IntPtr get_ColorSpaceSpecificationSpectrumSpectral(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_CollectionColorSpaceSpecificationType_assign_ColorSpaceSpecificationSpectrumSpectral")] internal static extern IntPtr assign_ColorSpaceSpecificationSpectrumSpectral(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_CollectionColorSpaceSpecificationType_unset_ColorSpaceSpecificationSpectrumSpectral")] internal static extern void unset_ColorSpaceSpecificationSpectrumSpectral(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_CollectionColorSpaceSpecificationType_get_ColorSpaceSpecificationSpectrumTristimulus__SWIG_0")] internal static extern IntPtr get_ColorSpaceSpecificationSpectrumTristimulus(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_CollectionColorSpaceSpecificationType_assign_ColorSpaceSpecificationSpectrumTristimulus")] internal static extern IntPtr assign_ColorSpaceSpecificationSpectrumTristimulus(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_CollectionColorSpaceSpecificationType_unset_ColorSpaceSpecificationSpectrumTristimulus")] internal static extern void unset_ColorSpaceSpecificationSpectrumTristimulus(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_CollectionColorSpaceSpecificationType_get_ColorSpaceSpecificationEmissiveGeneric__SWIG_0")] internal static extern IntPtr get_ColorSpaceSpecificationEmissiveGeneric(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_CollectionColorSpaceSpecificationType_assign_ColorSpaceSpecificationEmissiveGeneric")] internal static extern IntPtr assign_ColorSpaceSpecificationEmissiveGeneric(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_CollectionColorSpaceSpecificationType_unset_ColorSpaceSpecificationEmissiveGeneric")] internal static extern void unset_ColorSpaceSpecificationEmissiveGeneric(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_CollectionColorSpaceSpecificationType_get_ColorSpaceSpecificationEmissiveSpectral__SWIG_0")] internal static extern IntPtr get_ColorSpaceSpecificationEmissiveSpectral(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_CollectionColorSpaceSpecificationType_assign_ColorSpaceSpecificationEmissiveSpectral")] internal static extern IntPtr assign_ColorSpaceSpecificationEmissiveSpectral(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_CollectionColorSpaceSpecificationType_unset_ColorSpaceSpecificationEmissiveSpectral")] internal static extern void unset_ColorSpaceSpecificationEmissiveSpectral(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_CollectionColorSpaceSpecificationType_get_ColorSpaceSpecificationEmissiveTristimulus__SWIG_0")] internal static extern IntPtr get_ColorSpaceSpecificationEmissiveTristimulus(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_CollectionColorSpaceSpecificationType_assign_ColorSpaceSpecificationEmissiveTristimulus")] internal static extern IntPtr assign_ColorSpaceSpecificationEmissiveTristimulus(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_CollectionColorSpaceSpecificationType_unset_ColorSpaceSpecificationEmissiveTristimulus")] internal static extern void unset_ColorSpaceSpecificationEmissiveTristimulus(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_CollectionColorSpaceSpecificationType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_CollectionColorSpaceSpecificationType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_CollectionColorSpaceSpecificationType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static IntPtr madeColorSpaceSpecificationSpectrumGenericItem;
            internal static IntPtr ColorSpaceSpecificationSpectrumGenericItem => madeColorSpaceSpecificationSpectrumGenericItem != IntPtr.Zero ? madeColorSpaceSpecificationSpectrumGenericItem : madeColorSpaceSpecificationSpectrumGenericItem = Library.Item("CollectionColorSpaceSpecificationType", "ColorSpaceSpecificationSpectrumGeneric");
            static PartCalls madeColorSpaceSpecificationSpectrumGeneric;
            internal static PartCalls ColorSpaceSpecificationSpectrumGeneric => madeColorSpaceSpecificationSpectrumGeneric != null ? madeColorSpaceSpecificationSpectrumGeneric : madeColorSpaceSpecificationSpectrumGeneric = new PartCalls { Item = ColorSpaceSpecificationSpectrumGenericItem, Make = h => new ColorSpaceSpecificationSpectrumGeneric(h), Get = Native.get_ColorSpaceSpecificationSpectrumGeneric, Assign = Native.assign_ColorSpaceSpecificationSpectrumGeneric, Unset = Native.unset_ColorSpaceSpecificationSpectrumGeneric };
            static IntPtr madeColorSpaceSpecificationSpectrumSpectralItem;
            internal static IntPtr ColorSpaceSpecificationSpectrumSpectralItem => madeColorSpaceSpecificationSpectrumSpectralItem != IntPtr.Zero ? madeColorSpaceSpecificationSpectrumSpectralItem : madeColorSpaceSpecificationSpectrumSpectralItem = Library.Item("CollectionColorSpaceSpecificationType", "ColorSpaceSpecificationSpectrumSpectral");
            static PartCalls madeColorSpaceSpecificationSpectrumSpectral;
            internal static PartCalls ColorSpaceSpecificationSpectrumSpectral => madeColorSpaceSpecificationSpectrumSpectral != null ? madeColorSpaceSpecificationSpectrumSpectral : madeColorSpaceSpecificationSpectrumSpectral = new PartCalls { Item = ColorSpaceSpecificationSpectrumSpectralItem, Make = h => new ColorSpaceSpecificationSpectrumSpectral(h), Get = Native.get_ColorSpaceSpecificationSpectrumSpectral, Assign = Native.assign_ColorSpaceSpecificationSpectrumSpectral, Unset = Native.unset_ColorSpaceSpecificationSpectrumSpectral };
            static IntPtr madeColorSpaceSpecificationSpectrumTristimulusItem;
            internal static IntPtr ColorSpaceSpecificationSpectrumTristimulusItem => madeColorSpaceSpecificationSpectrumTristimulusItem != IntPtr.Zero ? madeColorSpaceSpecificationSpectrumTristimulusItem : madeColorSpaceSpecificationSpectrumTristimulusItem = Library.Item("CollectionColorSpaceSpecificationType", "ColorSpaceSpecificationSpectrumTristimulus");
            static PartCalls madeColorSpaceSpecificationSpectrumTristimulus;
            internal static PartCalls ColorSpaceSpecificationSpectrumTristimulus => madeColorSpaceSpecificationSpectrumTristimulus != null ? madeColorSpaceSpecificationSpectrumTristimulus : madeColorSpaceSpecificationSpectrumTristimulus = new PartCalls { Item = ColorSpaceSpecificationSpectrumTristimulusItem, Make = h => new ColorSpaceSpecificationSpectrumTristimulus(h), Get = Native.get_ColorSpaceSpecificationSpectrumTristimulus, Assign = Native.assign_ColorSpaceSpecificationSpectrumTristimulus, Unset = Native.unset_ColorSpaceSpecificationSpectrumTristimulus };
            static IntPtr madeColorSpaceSpecificationEmissiveGenericItem;
            internal static IntPtr ColorSpaceSpecificationEmissiveGenericItem => madeColorSpaceSpecificationEmissiveGenericItem != IntPtr.Zero ? madeColorSpaceSpecificationEmissiveGenericItem : madeColorSpaceSpecificationEmissiveGenericItem = Library.Item("CollectionColorSpaceSpecificationType", "ColorSpaceSpecificationEmissiveGeneric");
            static PartCalls madeColorSpaceSpecificationEmissiveGeneric;
            internal static PartCalls ColorSpaceSpecificationEmissiveGeneric => madeColorSpaceSpecificationEmissiveGeneric != null ? madeColorSpaceSpecificationEmissiveGeneric : madeColorSpaceSpecificationEmissiveGeneric = new PartCalls { Item = ColorSpaceSpecificationEmissiveGenericItem, Make = h => new ColorSpaceSpecificationEmissiveGeneric(h), Get = Native.get_ColorSpaceSpecificationEmissiveGeneric, Assign = Native.assign_ColorSpaceSpecificationEmissiveGeneric, Unset = Native.unset_ColorSpaceSpecificationEmissiveGeneric };
            static IntPtr madeColorSpaceSpecificationEmissiveSpectralItem;
            internal static IntPtr ColorSpaceSpecificationEmissiveSpectralItem => madeColorSpaceSpecificationEmissiveSpectralItem != IntPtr.Zero ? madeColorSpaceSpecificationEmissiveSpectralItem : madeColorSpaceSpecificationEmissiveSpectralItem = Library.Item("CollectionColorSpaceSpecificationType", "ColorSpaceSpecificationEmissiveSpectral");
            static PartCalls madeColorSpaceSpecificationEmissiveSpectral;
            internal static PartCalls ColorSpaceSpecificationEmissiveSpectral => madeColorSpaceSpecificationEmissiveSpectral != null ? madeColorSpaceSpecificationEmissiveSpectral : madeColorSpaceSpecificationEmissiveSpectral = new PartCalls { Item = ColorSpaceSpecificationEmissiveSpectralItem, Make = h => new ColorSpaceSpecificationEmissiveSpectral(h), Get = Native.get_ColorSpaceSpecificationEmissiveSpectral, Assign = Native.assign_ColorSpaceSpecificationEmissiveSpectral, Unset = Native.unset_ColorSpaceSpecificationEmissiveSpectral };
            static IntPtr madeColorSpaceSpecificationEmissiveTristimulusItem;
            internal static IntPtr ColorSpaceSpecificationEmissiveTristimulusItem => madeColorSpaceSpecificationEmissiveTristimulusItem != IntPtr.Zero ? madeColorSpaceSpecificationEmissiveTristimulusItem : madeColorSpaceSpecificationEmissiveTristimulusItem = Library.Item("CollectionColorSpaceSpecificationType", "ColorSpaceSpecificationEmissiveTristimulus");
            static PartCalls madeColorSpaceSpecificationEmissiveTristimulus;
            internal static PartCalls ColorSpaceSpecificationEmissiveTristimulus => madeColorSpaceSpecificationEmissiveTristimulus != null ? madeColorSpaceSpecificationEmissiveTristimulus : madeColorSpaceSpecificationEmissiveTristimulus = new PartCalls { Item = ColorSpaceSpecificationEmissiveTristimulusItem, Make = h => new ColorSpaceSpecificationEmissiveTristimulus(h), Get = Native.get_ColorSpaceSpecificationEmissiveTristimulus, Assign = Native.assign_ColorSpaceSpecificationEmissiveTristimulus, Unset = Native.unset_ColorSpaceSpecificationEmissiveTristimulus };
        }
    }

    public partial class PaletteType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_PaletteType_get_PaletteName")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_PaletteName(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_PaletteType_set_PaletteName")] internal static extern int set_PaletteName(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_PaletteType_isset_PalettePartNumber")] internal static extern int isset_PalettePartNumber(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_PaletteType_get_PalettePartNumber")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_PalettePartNumber(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_PaletteType_set_PalettePartNumber")] internal static extern int set_PalettePartNumber(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_PaletteType_isset_PaletteVersion")] internal static extern int isset_PaletteVersion(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_PaletteType_get_PaletteVersion")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_PaletteVersion(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_PaletteType_set_PaletteVersion")] internal static extern int set_PaletteVersion(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_PaletteType_isset_UniqueID")] internal static extern int isset_UniqueID(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_PaletteType_get_UniqueID")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_UniqueID(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_PaletteType_set_UniqueID")] internal static extern int set_UniqueID(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_PaletteType_isset_Comments")] internal static extern int isset_Comments(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_PaletteType_get_Comments")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_Comments(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_PaletteType_set_Comments")] internal static extern int set_Comments(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_PaletteType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_PaletteType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_PaletteType_size_CustomAttribute")] internal static extern uint size_CustomAttribute(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_PaletteType_get_CustomAttribute__SWIG_0")] internal static extern IntPtr get_CustomAttribute(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_PaletteType_assign_CustomAttribute")] internal static extern IntPtr assign_CustomAttribute(IntPtr self, uint index, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_PaletteType_append_CustomAttribute")] internal static extern int append_CustomAttribute(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_PaletteType_insert_CustomAttribute")] internal static extern int insert_CustomAttribute(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_PaletteType_delete_CustomAttribute")] internal static extern void delete_CustomAttribute(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_PaletteType_clear_CustomAttribute")] internal static extern void clear_CustomAttribute(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_PaletteType_size_ChangeHistory")] internal static extern uint size_ChangeHistory(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_PaletteType_get_ChangeHistory")] internal static extern IntPtr get_ChangeHistory(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_PaletteType_set_ChangeHistory")] internal static extern int set_ChangeHistory(IntPtr self, uint index, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_PaletteType_insert_ChangeHistory")] internal static extern int insert_ChangeHistory(IntPtr self, uint index, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_PaletteType_delete_ChangeHistory")] internal static extern void delete_ChangeHistory(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_PaletteType_clear_ChangeHistory")] internal static extern void clear_ChangeHistory(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_PaletteType_get_Owner__SWIG_0")] internal static extern IntPtr get_Owner(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_PaletteType_assign_Owner")] internal static extern IntPtr assign_Owner(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_PaletteType_unset_Owner")] internal static extern void unset_Owner(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_PaletteType_size_SemanticAssociation")] internal static extern uint size_SemanticAssociation(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_PaletteType_get_SemanticAssociation")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_SemanticAssociation(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_PaletteType_set_SemanticAssociation")] internal static extern int set_SemanticAssociation(IntPtr self, uint index, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_PaletteType_insert_SemanticAssociation")] internal static extern int insert_SemanticAssociation(IntPtr self, uint index, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_PaletteType_delete_SemanticAssociation")] internal static extern void delete_SemanticAssociation(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_PaletteType_clear_SemanticAssociation")] internal static extern void clear_SemanticAssociation(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_PaletteType_get_CollectionColorSpaceSpecification__SWIG_0")] internal static extern IntPtr get_CollectionColorSpaceSpecification(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_PaletteType_assign_CollectionColorSpaceSpecification")] internal static extern IntPtr assign_CollectionColorSpaceSpecification(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_PaletteType_unset_CollectionColorSpaceSpecification")] internal static extern void unset_CollectionColorSpaceSpecification(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_PaletteType_size_ColorSet")] internal static extern uint size_ColorSet(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_PaletteType_get_ColorSet__SWIG_0")] internal static extern IntPtr get_ColorSet(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_PaletteType_assign_ColorSet")] internal static extern IntPtr assign_ColorSet(IntPtr self, uint index, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_PaletteType_append_ColorSet")] internal static extern int append_ColorSet(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_PaletteType_insert_ColorSet")] internal static extern int insert_ColorSet(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_PaletteType_delete_ColorSet")] internal static extern void delete_ColorSet(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_PaletteType_clear_ColorSet")] internal static extern void clear_ColorSet(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_PaletteType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_PaletteType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_PaletteType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_PaletteType_unset_PalettePartNumber")] internal static extern void unset_PalettePartNumber(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_PaletteType_unset_PaletteVersion")] internal static extern void unset_PaletteVersion(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_PaletteType_unset_UniqueID")] internal static extern void unset_UniqueID(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_PaletteType_unset_Comments")] internal static extern void unset_Comments(IntPtr self);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetPalettePartNumber(IntPtr self) { unset_PalettePartNumber(self); return 0; }
            internal static int UnsetPaletteVersion(IntPtr self) { unset_PaletteVersion(self); return 0; }
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
            static IntPtr madeOwnerItem;
            internal static IntPtr OwnerItem => madeOwnerItem != IntPtr.Zero ? madeOwnerItem : madeOwnerItem = Library.Item("PaletteType", "Owner");
            static PartCalls madeOwner;
            internal static PartCalls Owner => madeOwner != null ? madeOwner : madeOwner = new PartCalls { Item = OwnerItem, Make = h => new OwnerType(h), Get = Native.get_Owner, Assign = Native.assign_Owner, Unset = Native.unset_Owner };
            static ValueListCalls<string> madeSemanticAssociation;
            internal static ValueListCalls<string> SemanticAssociation => madeSemanticAssociation != null ? madeSemanticAssociation : madeSemanticAssociation = new ValueListCalls<string> { Size = Native.size_SemanticAssociation, Get = Native.get_SemanticAssociation, Set = Native.set_SemanticAssociation, Insert = Native.insert_SemanticAssociation, Delete = Native.delete_SemanticAssociation, Clear = Native.clear_SemanticAssociation };
            static IntPtr madeCollectionColorSpaceSpecificationItem;
            internal static IntPtr CollectionColorSpaceSpecificationItem => madeCollectionColorSpaceSpecificationItem != IntPtr.Zero ? madeCollectionColorSpaceSpecificationItem : madeCollectionColorSpaceSpecificationItem = Library.Item("PaletteType", "CollectionColorSpaceSpecification");
            static PartCalls madeCollectionColorSpaceSpecification;
            internal static PartCalls CollectionColorSpaceSpecification => madeCollectionColorSpaceSpecification != null ? madeCollectionColorSpaceSpecification : madeCollectionColorSpaceSpecification = new PartCalls { Item = CollectionColorSpaceSpecificationItem, Make = h => new CollectionColorSpaceSpecificationType(h), Get = Native.get_CollectionColorSpaceSpecification, Assign = Native.assign_CollectionColorSpaceSpecification, Unset = Native.unset_CollectionColorSpaceSpecification };
            static ObjectListCalls<ColorSetType> madeColorSet;
            internal static ObjectListCalls<ColorSetType> ColorSet => madeColorSet != null ? madeColorSet : madeColorSet = new ObjectListCalls<ColorSetType> { Make = h => new ColorSetType(h), Size = Native.size_ColorSet, Get = Native.get_ColorSet, Assign = Native.assign_ColorSet, Append = Native.append_ColorSet, Insert = Native.insert_ColorSet, Delete = Native.delete_ColorSet, Clear = Native.clear_ColorSet };
        }
    }

    public partial class ColorSetType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSetType_get_ColorSetName")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_ColorSetName(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSetType_set_ColorSetName")] internal static extern int set_ColorSetName(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSetType_isset_UniqueID")] internal static extern int isset_UniqueID(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSetType_get_UniqueID")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_UniqueID(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSetType_set_UniqueID")] internal static extern int set_UniqueID(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSetType_isset_PartNumber")] internal static extern int isset_PartNumber(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSetType_get_PartNumber")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_PartNumber(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSetType_set_PartNumber")] internal static extern int set_PartNumber(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSetType_isset_Comments")] internal static extern int isset_Comments(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSetType_get_Comments")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_Comments(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSetType_set_Comments")] internal static extern int set_Comments(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSetType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSetType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSetType_size_CustomAttribute")] internal static extern uint size_CustomAttribute(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSetType_get_CustomAttribute__SWIG_0")] internal static extern IntPtr get_CustomAttribute(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSetType_assign_CustomAttribute")] internal static extern IntPtr assign_CustomAttribute(IntPtr self, uint index, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSetType_append_CustomAttribute")] internal static extern int append_CustomAttribute(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSetType_insert_CustomAttribute")] internal static extern int insert_CustomAttribute(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSetType_delete_CustomAttribute")] internal static extern void delete_CustomAttribute(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSetType_clear_CustomAttribute")] internal static extern void clear_CustomAttribute(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSetType_size_ChangeHistory")] internal static extern uint size_ChangeHistory(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSetType_get_ChangeHistory")] internal static extern IntPtr get_ChangeHistory(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSetType_set_ChangeHistory")] internal static extern int set_ChangeHistory(IntPtr self, uint index, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSetType_insert_ChangeHistory")] internal static extern int insert_ChangeHistory(IntPtr self, uint index, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSetType_delete_ChangeHistory")] internal static extern void delete_ChangeHistory(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSetType_clear_ChangeHistory")] internal static extern void clear_ChangeHistory(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSetType_get_Owner__SWIG_0")] internal static extern IntPtr get_Owner(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSetType_assign_Owner")] internal static extern IntPtr assign_Owner(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSetType_unset_Owner")] internal static extern void unset_Owner(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSetType_size_SemanticAssociation")] internal static extern uint size_SemanticAssociation(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSetType_get_SemanticAssociation")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_SemanticAssociation(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSetType_set_SemanticAssociation")] internal static extern int set_SemanticAssociation(IntPtr self, uint index, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSetType_insert_SemanticAssociation")] internal static extern int insert_SemanticAssociation(IntPtr self, uint index, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSetType_delete_SemanticAssociation")] internal static extern void delete_SemanticAssociation(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSetType_clear_SemanticAssociation")] internal static extern void clear_SemanticAssociation(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSetType_get_CollectionColorSpaceSpecification__SWIG_0")] internal static extern IntPtr get_CollectionColorSpaceSpecification(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSetType_assign_CollectionColorSpaceSpecification")] internal static extern IntPtr assign_CollectionColorSpaceSpecification(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSetType_unset_CollectionColorSpaceSpecification")] internal static extern void unset_CollectionColorSpaceSpecification(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSetType_size_Color")] internal static extern uint size_Color(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSetType_get_Color__SWIG_0")] internal static extern IntPtr get_Color(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSetType_assign_Color")] internal static extern IntPtr assign_Color(IntPtr self, uint index, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSetType_append_Color")] internal static extern int append_Color(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSetType_insert_Color")] internal static extern int insert_Color(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSetType_delete_Color")] internal static extern void delete_Color(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSetType_clear_Color")] internal static extern void clear_Color(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSetType_get_Substrate__SWIG_0")] internal static extern IntPtr get_Substrate(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSetType_assign_Substrate")] internal static extern IntPtr assign_Substrate(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSetType_unset_Substrate")] internal static extern void unset_Substrate(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSetType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSetType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSetType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSetType_unset_UniqueID")] internal static extern void unset_UniqueID(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSetType_unset_PartNumber")] internal static extern void unset_PartNumber(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSetType_unset_Comments")] internal static extern void unset_Comments(IntPtr self);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetUniqueID(IntPtr self) { unset_UniqueID(self); return 0; }
            internal static int UnsetPartNumber(IntPtr self) { unset_PartNumber(self); return 0; }
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
            static IntPtr madeOwnerItem;
            internal static IntPtr OwnerItem => madeOwnerItem != IntPtr.Zero ? madeOwnerItem : madeOwnerItem = Library.Item("ColorSetType", "Owner");
            static PartCalls madeOwner;
            internal static PartCalls Owner => madeOwner != null ? madeOwner : madeOwner = new PartCalls { Item = OwnerItem, Make = h => new OwnerType(h), Get = Native.get_Owner, Assign = Native.assign_Owner, Unset = Native.unset_Owner };
            static ValueListCalls<string> madeSemanticAssociation;
            internal static ValueListCalls<string> SemanticAssociation => madeSemanticAssociation != null ? madeSemanticAssociation : madeSemanticAssociation = new ValueListCalls<string> { Size = Native.size_SemanticAssociation, Get = Native.get_SemanticAssociation, Set = Native.set_SemanticAssociation, Insert = Native.insert_SemanticAssociation, Delete = Native.delete_SemanticAssociation, Clear = Native.clear_SemanticAssociation };
            static IntPtr madeCollectionColorSpaceSpecificationItem;
            internal static IntPtr CollectionColorSpaceSpecificationItem => madeCollectionColorSpaceSpecificationItem != IntPtr.Zero ? madeCollectionColorSpaceSpecificationItem : madeCollectionColorSpaceSpecificationItem = Library.Item("ColorSetType", "CollectionColorSpaceSpecification");
            static PartCalls madeCollectionColorSpaceSpecification;
            internal static PartCalls CollectionColorSpaceSpecification => madeCollectionColorSpaceSpecification != null ? madeCollectionColorSpaceSpecification : madeCollectionColorSpaceSpecification = new PartCalls { Item = CollectionColorSpaceSpecificationItem, Make = h => new CollectionColorSpaceSpecificationType(h), Get = Native.get_CollectionColorSpaceSpecification, Assign = Native.assign_CollectionColorSpaceSpecification, Unset = Native.unset_CollectionColorSpaceSpecification };
            static ObjectListCalls<ColorType> madeColor;
            internal static ObjectListCalls<ColorType> Color => madeColor != null ? madeColor : madeColor = new ObjectListCalls<ColorType> { Make = h => new ColorType(h), Size = Native.size_Color, Get = Native.get_Color, Assign = Native.assign_Color, Append = Native.append_Color, Insert = Native.insert_Color, Delete = Native.delete_Color, Clear = Native.clear_Color };
            static IntPtr madeSubstrateItem;
            internal static IntPtr SubstrateItem => madeSubstrateItem != IntPtr.Zero ? madeSubstrateItem : madeSubstrateItem = Library.Item("ColorSetType", "Substrate");
            static PartCalls madeSubstrate;
            internal static PartCalls Substrate => madeSubstrate != null ? madeSubstrate : madeSubstrate = new PartCalls { Item = SubstrateItem, Make = h => new SubstrateChoice(h), Get = Native.get_Substrate, Assign = Native.assign_Substrate, Unset = Native.unset_Substrate };
        }
    }

    public partial class ColorType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorType_get_ColorName")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_ColorName(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorType_set_ColorName")] internal static extern int set_ColorName(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorType_isset_UniqueID")] internal static extern int isset_UniqueID(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorType_get_UniqueID")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_UniqueID(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorType_set_UniqueID")] internal static extern int set_UniqueID(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorType_isset_ColorNumber")] internal static extern int isset_ColorNumber(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorType_get_ColorNumber")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_ColorNumber(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorType_set_ColorNumber")] internal static extern int set_ColorNumber(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorType_isset_Comments")] internal static extern int isset_Comments(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorType_get_Comments")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_Comments(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorType_set_Comments")] internal static extern int set_Comments(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorType_size_CustomAttribute")] internal static extern uint size_CustomAttribute(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorType_get_CustomAttribute__SWIG_0")] internal static extern IntPtr get_CustomAttribute(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorType_assign_CustomAttribute")] internal static extern IntPtr assign_CustomAttribute(IntPtr self, uint index, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorType_append_CustomAttribute")] internal static extern int append_CustomAttribute(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorType_insert_CustomAttribute")] internal static extern int insert_CustomAttribute(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorType_delete_CustomAttribute")] internal static extern void delete_CustomAttribute(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorType_clear_CustomAttribute")] internal static extern void clear_CustomAttribute(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorType_size_ChangeHistory")] internal static extern uint size_ChangeHistory(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorType_get_ChangeHistory")] internal static extern IntPtr get_ChangeHistory(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorType_set_ChangeHistory")] internal static extern int set_ChangeHistory(IntPtr self, uint index, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorType_insert_ChangeHistory")] internal static extern int insert_ChangeHistory(IntPtr self, uint index, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorType_delete_ChangeHistory")] internal static extern void delete_ChangeHistory(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorType_clear_ChangeHistory")] internal static extern void clear_ChangeHistory(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorType_get_Owner__SWIG_0")] internal static extern IntPtr get_Owner(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorType_assign_Owner")] internal static extern IntPtr assign_Owner(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorType_unset_Owner")] internal static extern void unset_Owner(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorType_size_SemanticAssociation")] internal static extern uint size_SemanticAssociation(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorType_get_SemanticAssociation")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_SemanticAssociation(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorType_set_SemanticAssociation")] internal static extern int set_SemanticAssociation(IntPtr self, uint index, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorType_insert_SemanticAssociation")] internal static extern int insert_SemanticAssociation(IntPtr self, uint index, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorType_delete_SemanticAssociation")] internal static extern void delete_SemanticAssociation(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorType_clear_SemanticAssociation")] internal static extern void clear_SemanticAssociation(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorType_size_ColorSpace")] internal static extern uint size_ColorSpace(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorType_get_ColorSpace__SWIG_0")] internal static extern IntPtr get_ColorSpace(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorType_assign_ColorSpace")] internal static extern IntPtr assign_ColorSpace(IntPtr self, uint index, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorType_append_ColorSpace")] internal static extern int append_ColorSpace(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorType_insert_ColorSpace")] internal static extern int insert_ColorSpace(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorType_delete_ColorSpace")] internal static extern void delete_ColorSpace(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorType_clear_ColorSpace")] internal static extern void clear_ColorSpace(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorType_get_Substrate__SWIG_0")] internal static extern IntPtr get_Substrate(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorType_assign_Substrate")] internal static extern IntPtr assign_Substrate(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorType_unset_Substrate")] internal static extern void unset_Substrate(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorType_size_TagValues")] internal static extern uint size_TagValues(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorType_get_TagValues__SWIG_0")] internal static extern IntPtr get_TagValues(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorType_assign_TagValues")] internal static extern IntPtr assign_TagValues(IntPtr self, uint index, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorType_append_TagValues")] internal static extern int append_TagValues(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorType_insert_TagValues")] internal static extern int insert_TagValues(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorType_delete_TagValues")] internal static extern void delete_TagValues(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorType_clear_TagValues")] internal static extern void clear_TagValues(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorType_unset_UniqueID")] internal static extern void unset_UniqueID(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorType_unset_ColorNumber")] internal static extern void unset_ColorNumber(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorType_unset_Comments")] internal static extern void unset_Comments(IntPtr self);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetUniqueID(IntPtr self) { unset_UniqueID(self); return 0; }
            internal static int UnsetColorNumber(IntPtr self) { unset_ColorNumber(self); return 0; }
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
            static IntPtr madeOwnerItem;
            internal static IntPtr OwnerItem => madeOwnerItem != IntPtr.Zero ? madeOwnerItem : madeOwnerItem = Library.Item("ColorType", "Owner");
            static PartCalls madeOwner;
            internal static PartCalls Owner => madeOwner != null ? madeOwner : madeOwner = new PartCalls { Item = OwnerItem, Make = h => new OwnerType(h), Get = Native.get_Owner, Assign = Native.assign_Owner, Unset = Native.unset_Owner };
            static ValueListCalls<string> madeSemanticAssociation;
            internal static ValueListCalls<string> SemanticAssociation => madeSemanticAssociation != null ? madeSemanticAssociation : madeSemanticAssociation = new ValueListCalls<string> { Size = Native.size_SemanticAssociation, Get = Native.get_SemanticAssociation, Set = Native.set_SemanticAssociation, Insert = Native.insert_SemanticAssociation, Delete = Native.delete_SemanticAssociation, Clear = Native.clear_SemanticAssociation };
            static ObjectListCalls<ColorSpaceChoice> madeColorSpace;
            internal static ObjectListCalls<ColorSpaceChoice> ColorSpace => madeColorSpace != null ? madeColorSpace : madeColorSpace = new ObjectListCalls<ColorSpaceChoice> { Make = h => new ColorSpaceChoice(h), Size = Native.size_ColorSpace, Get = Native.get_ColorSpace, Assign = Native.assign_ColorSpace, Append = Native.append_ColorSpace, Insert = Native.insert_ColorSpace, Delete = Native.delete_ColorSpace, Clear = Native.clear_ColorSpace };
            static IntPtr madeSubstrateItem;
            internal static IntPtr SubstrateItem => madeSubstrateItem != IntPtr.Zero ? madeSubstrateItem : madeSubstrateItem = Library.Item("ColorType", "Substrate");
            static PartCalls madeSubstrate;
            internal static PartCalls Substrate => madeSubstrate != null ? madeSubstrate : madeSubstrate = new PartCalls { Item = SubstrateItem, Make = h => new SubstrateChoice(h), Get = Native.get_Substrate, Assign = Native.assign_Substrate, Unset = Native.unset_Substrate };
            static ObjectListCalls<TagValue> madeTagValues;
            internal static ObjectListCalls<TagValue> TagValues => madeTagValues != null ? madeTagValues : madeTagValues = new ObjectListCalls<TagValue> { Make = h => new TagValue(h), Size = Native.size_TagValues, Get = Native.get_TagValues, Assign = Native.assign_TagValues, Append = Native.append_TagValues, Insert = Native.insert_TagValues, Delete = Native.delete_TagValues, Clear = Native.clear_TagValues };
        }
    }

    public partial class CollectionColorSpaceSpecification
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_new_CollectionColorSpaceSpecification__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_CollectionColorSpaceSpecification")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_CollectionColorSpaceSpecification__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }
    }
}
