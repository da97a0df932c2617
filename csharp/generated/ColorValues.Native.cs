// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.

using System;
using System.Runtime.InteropServices;

namespace Vyr
{
    public partial class ParentColorSpace
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_ParentColorSpace_isnil_ParentColorSpace")] internal static extern int isnil_ParentColorSpace(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ParentColorSpace_setnil_ParentColorSpace")] internal static extern void setnil_ParentColorSpace(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ParentColorSpace_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ParentColorSpace_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ParentColorSpace_get_ColorSpace__SWIG_0")] internal static extern IntPtr get_ColorSpace(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ParentColorSpace_assign_ColorSpace")] internal static extern IntPtr assign_ColorSpace(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ParentColorSpace_unset_ColorSpace")] internal static extern void unset_ColorSpace(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ParentColorSpace__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ParentColorSpace")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ParentColorSpace__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static IntPtr madeColorSpaceItem;
            internal static IntPtr ColorSpaceItem => madeColorSpaceItem != IntPtr.Zero ? madeColorSpaceItem : madeColorSpaceItem = Library.Item("ParentColorSpace", "ColorSpace");
            static PartCalls madeColorSpace;
            internal static PartCalls ColorSpace => madeColorSpace != null ? madeColorSpace : madeColorSpace = new PartCalls { Item = ColorSpaceItem, Make = h => new ColorSpaceChoice(h), Get = Native.get_ColorSpace, Assign = Native.assign_ColorSpace, Unset = Native.unset_ColorSpace };
        }
    }

    public partial class ColorSpaceType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceType_isset_Comments")] internal static extern int isset_Comments(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceType_get_Comments")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_Comments(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceType_set_Comments")] internal static extern int set_Comments(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceType_isset_UniqueID")] internal static extern int isset_UniqueID(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceType_get_UniqueID")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_UniqueID(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceType_set_UniqueID")] internal static extern int set_UniqueID(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceType_size_CustomAttribute")] internal static extern uint size_CustomAttribute(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceType_get_CustomAttribute__SWIG_0")] internal static extern IntPtr get_CustomAttribute(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceType_assign_CustomAttribute")] internal static extern IntPtr assign_CustomAttribute(IntPtr self, uint index, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceType_append_CustomAttribute")] internal static extern int append_CustomAttribute(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceType_insert_CustomAttribute")] internal static extern int insert_CustomAttribute(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceType_delete_CustomAttribute")] internal static extern void delete_CustomAttribute(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceType_clear_CustomAttribute")] internal static extern void clear_CustomAttribute(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceType_get_ParentColorSpace__SWIG_0")] internal static extern IntPtr get_ParentColorSpace(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceType_assign_ParentColorSpace")] internal static extern IntPtr assign_ParentColorSpace(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceType_unset_ParentColorSpace")] internal static extern void unset_ParentColorSpace(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceType_size_ChangeHistory")] internal static extern uint size_ChangeHistory(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceType_get_ChangeHistory")] internal static extern IntPtr get_ChangeHistory(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceType_set_ChangeHistory")] internal static extern int set_ChangeHistory(IntPtr self, uint index, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceType_insert_ChangeHistory")] internal static extern int insert_ChangeHistory(IntPtr self, uint index, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceType_delete_ChangeHistory")] internal static extern void delete_ChangeHistory(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceType_clear_ChangeHistory")] internal static extern void clear_ChangeHistory(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceType_unset_Comments")] internal static extern void unset_Comments(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceType_unset_UniqueID")] internal static extern void unset_UniqueID(IntPtr self);
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
            static IntPtr madeParentColorSpaceItem;
            internal static IntPtr ParentColorSpaceItem => madeParentColorSpaceItem != IntPtr.Zero ? madeParentColorSpaceItem : madeParentColorSpaceItem = Library.Item("ColorSpaceType", "ParentColorSpace");
            static PartCalls madeParentColorSpace;
            internal static PartCalls ParentColorSpace => madeParentColorSpace != null ? madeParentColorSpace : madeParentColorSpace = new PartCalls { Item = ParentColorSpaceItem, Make = h => new ParentColorSpace(h), Get = Native.get_ParentColorSpace, Assign = Native.assign_ParentColorSpace, Unset = Native.unset_ParentColorSpace };
            static ValueListCalls<IntPtr> madeChangeHistory;
            internal static ValueListCalls<IntPtr> ChangeHistory => madeChangeHistory != null ? madeChangeHistory : madeChangeHistory = new ValueListCalls<IntPtr> { Size = Native.size_ChangeHistory, Get = Native.get_ChangeHistory, Set = Native.set_ChangeHistory, Insert = Native.insert_ChangeHistory, Delete = Native.delete_ChangeHistory, Clear = Native.clear_ChangeHistory };
        }
    }

    public partial class ColorSpaceCIELabType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCIELabType_isset_Name")] internal static extern int isset_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCIELabType_get_Name")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCIELabType_set_Name")] internal static extern int set_Name(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCIELabType_get_L")] internal static extern double get_L(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCIELabType_set_L")] internal static extern int set_L(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCIELabType_get_A")] internal static extern double get_A(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCIELabType_set_A")] internal static extern int set_A(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCIELabType_get_B")] internal static extern double get_B(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCIELabType_set_B")] internal static extern int set_B(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCIELabType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCIELabType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCIELabType_get_ColorSpaceSpecificationSpectrumTristimulus__SWIG_0")] internal static extern IntPtr get_ColorSpaceSpecificationSpectrumTristimulus(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCIELabType_assign_ColorSpaceSpecificationSpectrumTristimulus")] internal static extern IntPtr assign_ColorSpaceSpecificationSpectrumTristimulus(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceCIELabType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceCIELabType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceCIELabType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCIELabType_unset_Name")] internal static extern void unset_Name(IntPtr self);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetName(IntPtr self) { unset_Name(self); return 0; }
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static IntPtr madeColorSpaceSpecificationSpectrumTristimulusItem;
            internal static IntPtr ColorSpaceSpecificationSpectrumTristimulusItem => madeColorSpaceSpecificationSpectrumTristimulusItem != IntPtr.Zero ? madeColorSpaceSpecificationSpectrumTristimulusItem : madeColorSpaceSpecificationSpectrumTristimulusItem = Library.Item("ColorSpaceCIELabType", "ColorSpaceSpecificationSpectrumTristimulus");
            static PartCalls madeColorSpaceSpecificationSpectrumTristimulus;
            internal static PartCalls ColorSpaceSpecificationSpectrumTristimulus => madeColorSpaceSpecificationSpectrumTristimulus != null ? madeColorSpaceSpecificationSpectrumTristimulus : madeColorSpaceSpecificationSpectrumTristimulus = new PartCalls { Item = ColorSpaceSpecificationSpectrumTristimulusItem, Make = h => new ColorSpaceSpecificationSpectrumTristimulus(h), Get = Native.get_ColorSpaceSpecificationSpectrumTristimulus, Assign = Native.assign_ColorSpaceSpecificationSpectrumTristimulus };
        }
    }

    public partial class ColorSpaceCIELChType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCIELChType_isset_Name")] internal static extern int isset_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCIELChType_get_Name")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCIELChType_set_Name")] internal static extern int set_Name(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCIELChType_get_L")] internal static extern double get_L(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCIELChType_set_L")] internal static extern int set_L(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCIELChType_get_C")] internal static extern double get_C(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCIELChType_set_C")] internal static extern int set_C(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCIELChType_get_H")] internal static extern double get_H(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCIELChType_set_H")] internal static extern int set_H(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCIELChType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCIELChType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCIELChType_get_ColorSpaceSpecificationSpectrumTristimulus__SWIG_0")] internal static extern IntPtr get_ColorSpaceSpecificationSpectrumTristimulus(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCIELChType_assign_ColorSpaceSpecificationSpectrumTristimulus")] internal static extern IntPtr assign_ColorSpaceSpecificationSpectrumTristimulus(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceCIELChType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceCIELChType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceCIELChType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCIELChType_unset_Name")] internal static extern void unset_Name(IntPtr self);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetName(IntPtr self) { unset_Name(self); return 0; }
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static IntPtr madeColorSpaceSpecificationSpectrumTristimulusItem;
            internal static IntPtr ColorSpaceSpecificationSpectrumTristimulusItem => madeColorSpaceSpecificationSpectrumTristimulusItem != IntPtr.Zero ? madeColorSpaceSpecificationSpectrumTristimulusItem : madeColorSpaceSpecificationSpectrumTristimulusItem = Library.Item("ColorSpaceCIELChType", "ColorSpaceSpecificationSpectrumTristimulus");
            static PartCalls madeColorSpaceSpecificationSpectrumTristimulus;
            internal static PartCalls ColorSpaceSpecificationSpectrumTristimulus => madeColorSpaceSpecificationSpectrumTristimulus != null ? madeColorSpaceSpecificationSpectrumTristimulus : madeColorSpaceSpecificationSpectrumTristimulus = new PartCalls { Item = ColorSpaceSpecificationSpectrumTristimulusItem, Make = h => new ColorSpaceSpecificationSpectrumTristimulus(h), Get = Native.get_ColorSpaceSpecificationSpectrumTristimulus, Assign = Native.assign_ColorSpaceSpecificationSpectrumTristimulus };
        }
    }

    public partial class ColorSpaceCIELuvType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCIELuvType_isset_Name")] internal static extern int isset_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCIELuvType_get_Name")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCIELuvType_set_Name")] internal static extern int set_Name(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCIELuvType_get_L")] internal static extern double get_L(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCIELuvType_set_L")] internal static extern int set_L(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCIELuvType_get_U")] internal static extern double get_U(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCIELuvType_set_U")] internal static extern int set_U(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCIELuvType_get_V")] internal static extern double get_V(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCIELuvType_set_V")] internal static extern int set_V(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCIELuvType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCIELuvType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCIELuvType_get_ColorSpaceSpecificationSpectrumTristimulus__SWIG_0")] internal static extern IntPtr get_ColorSpaceSpecificationSpectrumTristimulus(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCIELuvType_assign_ColorSpaceSpecificationSpectrumTristimulus")] internal static extern IntPtr assign_ColorSpaceSpecificationSpectrumTristimulus(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceCIELuvType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceCIELuvType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceCIELuvType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCIELuvType_unset_Name")] internal static extern void unset_Name(IntPtr self);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetName(IntPtr self) { unset_Name(self); return 0; }
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static IntPtr madeColorSpaceSpecificationSpectrumTristimulusItem;
            internal static IntPtr ColorSpaceSpecificationSpectrumTristimulusItem => madeColorSpaceSpecificationSpectrumTristimulusItem != IntPtr.Zero ? madeColorSpaceSpecificationSpectrumTristimulusItem : madeColorSpaceSpecificationSpectrumTristimulusItem = Library.Item("ColorSpaceCIELuvType", "ColorSpaceSpecificationSpectrumTristimulus");
            static PartCalls madeColorSpaceSpecificationSpectrumTristimulus;
            internal static PartCalls ColorSpaceSpecificationSpectrumTristimulus => madeColorSpaceSpecificationSpectrumTristimulus != null ? madeColorSpaceSpecificationSpectrumTristimulus : madeColorSpaceSpecificationSpectrumTristimulus = new PartCalls { Item = ColorSpaceSpecificationSpectrumTristimulusItem, Make = h => new ColorSpaceSpecificationSpectrumTristimulus(h), Get = Native.get_ColorSpaceSpecificationSpectrumTristimulus, Assign = Native.assign_ColorSpaceSpecificationSpectrumTristimulus };
        }
    }

    public partial class ColorSpaceCIEXYZType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCIEXYZType_isset_Name")] internal static extern int isset_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCIEXYZType_get_Name")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCIEXYZType_set_Name")] internal static extern int set_Name(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCIEXYZType_get_X")] internal static extern double get_X(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCIEXYZType_set_X")] internal static extern int set_X(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCIEXYZType_get_Y")] internal static extern double get_Y(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCIEXYZType_set_Y")] internal static extern int set_Y(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCIEXYZType_get_Z")] internal static extern double get_Z(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCIEXYZType_set_Z")] internal static extern int set_Z(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCIEXYZType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCIEXYZType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCIEXYZType_get_ColorSpaceSpecificationSpectrumTristimulus__SWIG_0")] internal static extern IntPtr get_ColorSpaceSpecificationSpectrumTristimulus(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCIEXYZType_assign_ColorSpaceSpecificationSpectrumTristimulus")] internal static extern IntPtr assign_ColorSpaceSpecificationSpectrumTristimulus(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceCIEXYZType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceCIEXYZType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceCIEXYZType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCIEXYZType_unset_Name")] internal static extern void unset_Name(IntPtr self);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetName(IntPtr self) { unset_Name(self); return 0; }
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static IntPtr madeColorSpaceSpecificationSpectrumTristimulusItem;
            internal static IntPtr ColorSpaceSpecificationSpectrumTristimulusItem => madeColorSpaceSpecificationSpectrumTristimulusItem != IntPtr.Zero ? madeColorSpaceSpecificationSpectrumTristimulusItem : madeColorSpaceSpecificationSpectrumTristimulusItem = Library.Item("ColorSpaceCIEXYZType", "ColorSpaceSpecificationSpectrumTristimulus");
            static PartCalls madeColorSpaceSpecificationSpectrumTristimulus;
            internal static PartCalls ColorSpaceSpecificationSpectrumTristimulus => madeColorSpaceSpecificationSpectrumTristimulus != null ? madeColorSpaceSpecificationSpectrumTristimulus : madeColorSpaceSpecificationSpectrumTristimulus = new PartCalls { Item = ColorSpaceSpecificationSpectrumTristimulusItem, Make = h => new ColorSpaceSpecificationSpectrumTristimulus(h), Get = Native.get_ColorSpaceSpecificationSpectrumTristimulus, Assign = Native.assign_ColorSpaceSpecificationSpectrumTristimulus };
        }
    }

    public partial class ColorSpaceCIExyYType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCIExyYType_isset_Name")] internal static extern int isset_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCIExyYType_get_Name")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCIExyYType_set_Name")] internal static extern int set_Name(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCIExyYType_get_X")] internal static extern double get_X(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCIExyYType_set_X")] internal static extern int set_X(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCIExyYType_get_Y")] internal static extern double get_Y(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCIExyYType_set_Y")] internal static extern int set_Y(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCIExyYType_get_CapY")] internal static extern double get_CapY(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCIExyYType_set_CapY")] internal static extern int set_CapY(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCIExyYType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCIExyYType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCIExyYType_get_ColorSpaceSpecificationSpectrumTristimulus__SWIG_0")] internal static extern IntPtr get_ColorSpaceSpecificationSpectrumTristimulus(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCIExyYType_assign_ColorSpaceSpecificationSpectrumTristimulus")] internal static extern IntPtr assign_ColorSpaceSpecificationSpectrumTristimulus(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceCIExyYType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceCIExyYType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceCIExyYType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCIExyYType_unset_Name")] internal static extern void unset_Name(IntPtr self);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetName(IntPtr self) { unset_Name(self); return 0; }
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static IntPtr madeColorSpaceSpecificationSpectrumTristimulusItem;
            internal static IntPtr ColorSpaceSpecificationSpectrumTristimulusItem => madeColorSpaceSpecificationSpectrumTristimulusItem != IntPtr.Zero ? madeColorSpaceSpecificationSpectrumTristimulusItem : madeColorSpaceSpecificationSpectrumTristimulusItem = Library.Item("ColorSpaceCIExyYType", "ColorSpaceSpecificationSpectrumTristimulus");
            static PartCalls madeColorSpaceSpecificationSpectrumTristimulus;
            internal static PartCalls ColorSpaceSpecificationSpectrumTristimulus => madeColorSpaceSpecificationSpectrumTristimulus != null ? madeColorSpaceSpecificationSpectrumTristimulus : madeColorSpaceSpecificationSpectrumTristimulus = new PartCalls { Item = ColorSpaceSpecificationSpectrumTristimulusItem, Make = h => new ColorSpaceSpecificationSpectrumTristimulus(h), Get = Native.get_ColorSpaceSpecificationSpectrumTristimulus, Assign = Native.assign_ColorSpaceSpecificationSpectrumTristimulus };
        }
    }

    public partial class ColorSpaceEmissiveCIEXYZType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceEmissiveCIEXYZType_isset_Name")] internal static extern int isset_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceEmissiveCIEXYZType_get_Name")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceEmissiveCIEXYZType_set_Name")] internal static extern int set_Name(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceEmissiveCIEXYZType_get_X")] internal static extern double get_X(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceEmissiveCIEXYZType_set_X")] internal static extern int set_X(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceEmissiveCIEXYZType_get_Y")] internal static extern double get_Y(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceEmissiveCIEXYZType_set_Y")] internal static extern int set_Y(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceEmissiveCIEXYZType_get_Z")] internal static extern double get_Z(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceEmissiveCIEXYZType_set_Z")] internal static extern int set_Z(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceEmissiveCIEXYZType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceEmissiveCIEXYZType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceEmissiveCIEXYZType_get_ColorSpaceSpecificationEmissiveTristimulus__SWIG_0")] internal static extern IntPtr get_ColorSpaceSpecificationEmissiveTristimulus(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceEmissiveCIEXYZType_assign_ColorSpaceSpecificationEmissiveTristimulus")] internal static extern IntPtr assign_ColorSpaceSpecificationEmissiveTristimulus(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceEmissiveCIEXYZType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceEmissiveCIEXYZType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceEmissiveCIEXYZType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceEmissiveCIEXYZType_unset_Name")] internal static extern void unset_Name(IntPtr self);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetName(IntPtr self) { unset_Name(self); return 0; }
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static IntPtr madeColorSpaceSpecificationEmissiveTristimulusItem;
            internal static IntPtr ColorSpaceSpecificationEmissiveTristimulusItem => madeColorSpaceSpecificationEmissiveTristimulusItem != IntPtr.Zero ? madeColorSpaceSpecificationEmissiveTristimulusItem : madeColorSpaceSpecificationEmissiveTristimulusItem = Library.Item("ColorSpaceEmissiveCIEXYZType", "ColorSpaceSpecificationEmissiveTristimulus");
            static PartCalls madeColorSpaceSpecificationEmissiveTristimulus;
            internal static PartCalls ColorSpaceSpecificationEmissiveTristimulus => madeColorSpaceSpecificationEmissiveTristimulus != null ? madeColorSpaceSpecificationEmissiveTristimulus : madeColorSpaceSpecificationEmissiveTristimulus = new PartCalls { Item = ColorSpaceSpecificationEmissiveTristimulusItem, Make = h => new ColorSpaceSpecificationEmissiveTristimulus(h), Get = Native.get_ColorSpaceSpecificationEmissiveTristimulus, Assign = Native.assign_ColorSpaceSpecificationEmissiveTristimulus };
        }
    }

    public partial class ColorSpaceEmissiveCIExyYType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceEmissiveCIExyYType_isset_Name")] internal static extern int isset_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceEmissiveCIExyYType_get_Name")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceEmissiveCIExyYType_set_Name")] internal static extern int set_Name(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceEmissiveCIExyYType_get_X")] internal static extern double get_X(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceEmissiveCIExyYType_set_X")] internal static extern int set_X(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceEmissiveCIExyYType_get_Y")] internal static extern double get_Y(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceEmissiveCIExyYType_set_Y")] internal static extern int set_Y(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceEmissiveCIExyYType_get_CapY")] internal static extern double get_CapY(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceEmissiveCIExyYType_set_CapY")] internal static extern int set_CapY(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceEmissiveCIExyYType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceEmissiveCIExyYType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceEmissiveCIExyYType_get_ColorSpaceSpecificationEmissiveTristimulus__SWIG_0")] internal static extern IntPtr get_ColorSpaceSpecificationEmissiveTristimulus(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceEmissiveCIExyYType_assign_ColorSpaceSpecificationEmissiveTristimulus")] internal static extern IntPtr assign_ColorSpaceSpecificationEmissiveTristimulus(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceEmissiveCIExyYType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceEmissiveCIExyYType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceEmissiveCIExyYType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceEmissiveCIExyYType_unset_Name")] internal static extern void unset_Name(IntPtr self);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetName(IntPtr self) { unset_Name(self); return 0; }
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static IntPtr madeColorSpaceSpecificationEmissiveTristimulusItem;
            internal static IntPtr ColorSpaceSpecificationEmissiveTristimulusItem => madeColorSpaceSpecificationEmissiveTristimulusItem != IntPtr.Zero ? madeColorSpaceSpecificationEmissiveTristimulusItem : madeColorSpaceSpecificationEmissiveTristimulusItem = Library.Item("ColorSpaceEmissiveCIExyYType", "ColorSpaceSpecificationEmissiveTristimulus");
            static PartCalls madeColorSpaceSpecificationEmissiveTristimulus;
            internal static PartCalls ColorSpaceSpecificationEmissiveTristimulus => madeColorSpaceSpecificationEmissiveTristimulus != null ? madeColorSpaceSpecificationEmissiveTristimulus : madeColorSpaceSpecificationEmissiveTristimulus = new PartCalls { Item = ColorSpaceSpecificationEmissiveTristimulusItem, Make = h => new ColorSpaceSpecificationEmissiveTristimulus(h), Get = Native.get_ColorSpaceSpecificationEmissiveTristimulus, Assign = Native.assign_ColorSpaceSpecificationEmissiveTristimulus };
        }
    }

    public partial class ColorSpaceCIELab
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceCIELab__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceCIELab")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceCIELab__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }
    }

    public partial class ColorSpaceCIELCh
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceCIELCh__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceCIELCh")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceCIELCh__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }
    }

    public partial class ColorSpaceCIEXYZ
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceCIEXYZ__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceCIEXYZ")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceCIEXYZ__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }
    }

    public partial class ColorSpaceEmissiveCIEXYZ
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceEmissiveCIEXYZ__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceEmissiveCIEXYZ")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceEmissiveCIEXYZ__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }
    }

    public partial class ColorSpaceCIExyY
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceCIExyY__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceCIExyY")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceCIExyY__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }
    }

    public partial class ColorSpaceEmissiveCIExyY
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceEmissiveCIExyY__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceEmissiveCIExyY")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceEmissiveCIExyY__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }
    }

    public partial class ColorSpaceCIELuv
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceCIELuv__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceCIELuv")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceCIELuv__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }
    }
}
