// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.

using System;
using System.Runtime.InteropServices;

namespace Vyr
{
    public partial class ColorName
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorName_get_PrefixName")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_PrefixName(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorName_set_PrefixName")] internal static extern int set_PrefixName(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorName_get_BaseName")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_BaseName(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorName_set_BaseName")] internal static extern int set_BaseName(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorName_get_SuffixName")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_SuffixName(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorName_set_SuffixName")] internal static extern int set_SuffixName(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorName_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorName_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorName__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorName")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorName__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
        }
    }

    public partial class Recipe
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_Recipe_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Recipe_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Recipe_size_ColorantElement")] internal static extern uint size_ColorantElement(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Recipe_get_ColorantElement__SWIG_0")] internal static extern IntPtr get_ColorantElement(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_Recipe_assign_ColorantElement")] internal static extern IntPtr assign_ColorantElement(IntPtr self, uint index, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_Recipe_append_ColorantElement")] internal static extern int append_ColorantElement(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Recipe_insert_ColorantElement")] internal static extern int insert_ColorantElement(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_Recipe_delete_ColorantElement")] internal static extern void delete_ColorantElement(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_Recipe_clear_ColorantElement")] internal static extern void clear_ColorantElement(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_Recipe__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_Recipe")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_Recipe__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static ObjectListCalls<ColorantElement> madeColorantElement;
            internal static ObjectListCalls<ColorantElement> ColorantElement => madeColorantElement != null ? madeColorantElement : madeColorantElement = new ObjectListCalls<ColorantElement> { Make = h => new ColorantElement(h), Size = Native.size_ColorantElement, Get = Native.get_ColorantElement, Assign = Native.assign_ColorantElement, Append = Native.append_ColorantElement, Insert = Native.insert_ColorantElement, Delete = Native.delete_ColorantElement, Clear = Native.clear_ColorantElement };
        }
    }

    public partial class ColorSpaceTINTORAType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceTINTORAType_isset_Name")] internal static extern int isset_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceTINTORAType_get_Name")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceTINTORAType_set_Name")] internal static extern int set_Name(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceTINTORAType_get_FamilyName")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_FamilyName(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceTINTORAType_set_FamilyName")] internal static extern int set_FamilyName(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceTINTORAType_get_Page")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_Page(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceTINTORAType_set_Page")] internal static extern int set_Page(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceTINTORAType_getenum_Gamut")] internal static extern int getenum_Gamut(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceTINTORAType_setenum_Gamut")] internal static extern int setenum_Gamut(IntPtr self, int number);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceTINTORAType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceTINTORAType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceTINTORAType_get_ColorName__SWIG_0")] internal static extern IntPtr get_ColorName(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceTINTORAType_assign_ColorName")] internal static extern IntPtr assign_ColorName(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceTINTORAType_get_Recipe__SWIG_0")] internal static extern IntPtr get_Recipe(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceTINTORAType_assign_Recipe")] internal static extern IntPtr assign_Recipe(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceTINTORAType_unset_Recipe")] internal static extern void unset_Recipe(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceTINTORAType_size_ColorAndFinish")] internal static extern uint size_ColorAndFinish(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceTINTORAType_get_ColorAndFinish__SWIG_0")] internal static extern IntPtr get_ColorAndFinish(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceTINTORAType_assign_ColorAndFinish")] internal static extern IntPtr assign_ColorAndFinish(IntPtr self, uint index, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceTINTORAType_append_ColorAndFinish")] internal static extern int append_ColorAndFinish(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceTINTORAType_insert_ColorAndFinish")] internal static extern int insert_ColorAndFinish(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceTINTORAType_delete_ColorAndFinish")] internal static extern void delete_ColorAndFinish(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceTINTORAType_clear_ColorAndFinish")] internal static extern void clear_ColorAndFinish(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceTINTORAType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceTINTORAType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceTINTORAType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceTINTORAType_unset_Name")] internal static extern void unset_Name(IntPtr self);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetName(IntPtr self) { unset_Name(self); return 0; }
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static IntPtr madeColorNameItem;
            internal static IntPtr ColorNameItem => madeColorNameItem != IntPtr.Zero ? madeColorNameItem : madeColorNameItem = Library.Item("ColorSpaceTINTORAType", "ColorName");
            static PartCalls madeColorName;
            internal static PartCalls ColorName => madeColorName != null ? madeColorName : madeColorName = new PartCalls { Item = ColorNameItem, Make = h => new ColorName(h), Get = Native.get_ColorName, Assign = Native.assign_ColorName };
            static IntPtr madeRecipeItem;
            internal static IntPtr RecipeItem => madeRecipeItem != IntPtr.Zero ? madeRecipeItem : madeRecipeItem = Library.Item("ColorSpaceTINTORAType", "Recipe");
            static PartCalls madeRecipe;
            internal static PartCalls Recipe => madeRecipe != null ? madeRecipe : madeRecipe = new PartCalls { Item = RecipeItem, Make = h => new Recipe(h), Get = Native.get_Recipe, Assign = Native.assign_Recipe, Unset = Native.unset_Recipe };
            static ObjectListCalls<ColorAndFinish> madeColorAndFinish;
            internal static ObjectListCalls<ColorAndFinish> ColorAndFinish => madeColorAndFinish != null ? madeColorAndFinish : madeColorAndFinish = new ObjectListCalls<ColorAndFinish> { Make = h => new ColorAndFinish(h), Size = Native.size_ColorAndFinish, Get = Native.get_ColorAndFinish, Assign = Native.assign_ColorAndFinish, Append = Native.append_ColorAndFinish, Insert = Native.insert_ColorAndFinish, Delete = Native.delete_ColorAndFinish, Clear = Native.clear_ColorAndFinish };
        }
    }

    public partial class Colorant
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_Colorant_get_Name")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Colorant_set_Name")] internal static extern int set_Name(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_Colorant_isset_Manufacturer")] internal static extern int isset_Manufacturer(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Colorant_get_Manufacturer")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_Manufacturer(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Colorant_set_Manufacturer")] internal static extern int set_Manufacturer(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_Colorant_isset_PartNumber")] internal static extern int isset_PartNumber(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Colorant_get_PartNumber")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_PartNumber(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Colorant_set_PartNumber")] internal static extern int set_PartNumber(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_Colorant_isset_Density")] internal static extern int isset_Density(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Colorant_get_Density")] internal static extern double get_Density(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Colorant_set_Density")] internal static extern int set_Density(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_Colorant_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Colorant_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Colorant_size_CustomAttributes")] internal static extern uint size_CustomAttributes(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Colorant_get_CustomAttributes__SWIG_0")] internal static extern IntPtr get_CustomAttributes(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_Colorant_assign_CustomAttributes")] internal static extern IntPtr assign_CustomAttributes(IntPtr self, uint index, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_Colorant_append_CustomAttributes")] internal static extern int append_CustomAttributes(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Colorant_insert_CustomAttributes")] internal static extern int insert_CustomAttributes(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_Colorant_delete_CustomAttributes")] internal static extern void delete_CustomAttributes(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_Colorant_clear_CustomAttributes")] internal static extern void clear_CustomAttributes(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_Colorant__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_Colorant")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_Colorant__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_Colorant_unset_Manufacturer")] internal static extern void unset_Manufacturer(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Colorant_unset_PartNumber")] internal static extern void unset_PartNumber(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Colorant_unset_Density")] internal static extern void unset_Density(IntPtr self);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetManufacturer(IntPtr self) { unset_Manufacturer(self); return 0; }
            internal static int UnsetPartNumber(IntPtr self) { unset_PartNumber(self); return 0; }
            internal static int UnsetDensity(IntPtr self) { unset_Density(self); return 0; }
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static ObjectListCalls<CustomAttributes> madeCustomAttributes;
            internal static ObjectListCalls<CustomAttributes> CustomAttributes => madeCustomAttributes != null ? madeCustomAttributes : madeCustomAttributes = new ObjectListCalls<CustomAttributes> { Make = h => new CustomAttributes(h), Size = Native.size_CustomAttributes, Get = Native.get_CustomAttributes, Assign = Native.assign_CustomAttributes, Append = Native.append_CustomAttributes, Insert = Native.insert_CustomAttributes, Delete = Native.delete_CustomAttributes, Clear = Native.clear_CustomAttributes };
        }
    }

    public partial class ColorantElement
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorantElement_get_Contribution")] internal static extern double get_Contribution(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorantElement_set_Contribution")] internal static extern int set_Contribution(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorantElement_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorantElement_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorantElement_get_Colorant__SWIG_0")] internal static extern IntPtr get_Colorant(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorantElement_assign_Colorant")] internal static extern IntPtr assign_Colorant(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorantElement__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorantElement")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorantElement__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static IntPtr madeColorantItem;
            internal static IntPtr ColorantItem => madeColorantItem != IntPtr.Zero ? madeColorantItem : madeColorantItem = Library.Item("ColorantElement", "Colorant");
            static PartCalls madeColorant;
            internal static PartCalls Colorant => madeColorant != null ? madeColorant : madeColorant = new PartCalls { Item = ColorantItem, Make = h => new Colorant(h), Get = Native.get_Colorant, Assign = Native.assign_Colorant };
        }
    }

    public partial class CustomAttributes
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_CustomAttributes_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_CustomAttributes_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_CustomAttributes_get_CustomAttribute__SWIG_0")] internal static extern IntPtr get_CustomAttribute(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_CustomAttributes_assign_CustomAttribute")] internal static extern IntPtr assign_CustomAttribute(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_CustomAttributes__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_CustomAttributes")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_CustomAttributes__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static IntPtr madeCustomAttributeItem;
            internal static IntPtr CustomAttributeItem => madeCustomAttributeItem != IntPtr.Zero ? madeCustomAttributeItem : madeCustomAttributeItem = Library.Item("CustomAttributes", "CustomAttribute");
            static PartCalls madeCustomAttribute;
            internal static PartCalls CustomAttribute => madeCustomAttribute != null ? madeCustomAttribute : madeCustomAttribute = new PartCalls { Item = CustomAttributeItem, Make = h => new CustomAttributeType(h), Get = Native.get_CustomAttribute, Assign = Native.assign_CustomAttribute };
        }
    }

    public partial class ColorAndFinish
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorAndFinish_getenum_Finish")] internal static extern int getenum_Finish(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorAndFinish_setenum_Finish")] internal static extern int setenum_Finish(IntPtr self, int number);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorAndFinish_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorAndFinish_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorAndFinish_get_ColorSpaceSpectral__SWIG_0")] internal static extern IntPtr get_ColorSpaceSpectral(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorAndFinish_assign_ColorSpaceSpectral")] internal static extern IntPtr assign_ColorSpaceSpectral(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorAndFinish__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorAndFinish")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorAndFinish__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static IntPtr madeColorSpaceSpectralItem;
            internal static IntPtr ColorSpaceSpectralItem => madeColorSpaceSpectralItem != IntPtr.Zero ? madeColorSpaceSpectralItem : madeColorSpaceSpectralItem = Library.Item("ColorAndFinish", "ColorSpaceSpectral");
            static PartCalls madeColorSpaceSpectral;
            internal static PartCalls ColorSpaceSpectral => madeColorSpaceSpectral != null ? madeColorSpaceSpectral : madeColorSpaceSpectral = new PartCalls { Item = ColorSpaceSpectralItem, Make = h => new ColorSpaceSpectralType(h), Get = Native.get_ColorSpaceSpectral, Assign = Native.assign_ColorSpaceSpectral };
        }
    }

    public partial class ColorSpaceNCSType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceNCSType_isset_Name")] internal static extern int isset_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceNCSType_get_Name")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceNCSType_set_Name")] internal static extern int set_Name(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceNCSType_get_ColorName")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_ColorName(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceNCSType_set_ColorName")] internal static extern int set_ColorName(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceNCSType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceNCSType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceNCSType_get_ColorSpaceSpecificationSpectrumGeneric__SWIG_0")] internal static extern IntPtr get_ColorSpaceSpecificationSpectrumGeneric(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceNCSType_assign_ColorSpaceSpecificationSpectrumGeneric")] internal static extern IntPtr assign_ColorSpaceSpecificationSpectrumGeneric(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceNCSType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceNCSType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceNCSType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceNCSType_unset_Name")] internal static extern void unset_Name(IntPtr self);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetName(IntPtr self) { unset_Name(self); return 0; }
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static IntPtr madeColorSpaceSpecificationSpectrumGenericItem;
            internal static IntPtr ColorSpaceSpecificationSpectrumGenericItem => madeColorSpaceSpecificationSpectrumGenericItem != IntPtr.Zero ? madeColorSpaceSpecificationSpectrumGenericItem : madeColorSpaceSpecificationSpectrumGenericItem = Library.Item("ColorSpaceNCSType", "ColorSpaceSpecificationSpectrumGeneric");
            static PartCalls madeColorSpaceSpecificationSpectrumGeneric;
            internal static PartCalls ColorSpaceSpecificationSpectrumGeneric => madeColorSpaceSpecificationSpectrumGeneric != null ? madeColorSpaceSpecificationSpectrumGeneric : madeColorSpaceSpecificationSpectrumGeneric = new PartCalls { Item = ColorSpaceSpecificationSpectrumGenericItem, Make = h => new ColorSpaceSpecificationSpectrumGeneric(h), Get = Native.get_ColorSpaceSpecificationSpectrumGeneric, Assign = Native.assign_ColorSpaceSpecificationSpectrumGeneric };
        }
    }

    public partial class ColorSpaceMunsellType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceMunsellType_isset_Name")] internal static extern int isset_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceMunsellType_get_Name")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceMunsellType_set_Name")] internal static extern int set_Name(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceMunsellType_get_CollectionName")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_CollectionName(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceMunsellType_set_CollectionName")] internal static extern int set_CollectionName(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceMunsellType_get_ColorName")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_ColorName(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceMunsellType_set_ColorName")] internal static extern int set_ColorName(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceMunsellType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceMunsellType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceMunsellType_get_ColorSpaceSpecificationSpectrumGeneric__SWIG_0")] internal static extern IntPtr get_ColorSpaceSpecificationSpectrumGeneric(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceMunsellType_assign_ColorSpaceSpecificationSpectrumGeneric")] internal static extern IntPtr assign_ColorSpaceSpecificationSpectrumGeneric(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceMunsellType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceMunsellType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceMunsellType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceMunsellType_unset_Name")] internal static extern void unset_Name(IntPtr self);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetName(IntPtr self) { unset_Name(self); return 0; }
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static IntPtr madeColorSpaceSpecificationSpectrumGenericItem;
            internal static IntPtr ColorSpaceSpecificationSpectrumGenericItem => madeColorSpaceSpecificationSpectrumGenericItem != IntPtr.Zero ? madeColorSpaceSpecificationSpectrumGenericItem : madeColorSpaceSpecificationSpectrumGenericItem = Library.Item("ColorSpaceMunsellType", "ColorSpaceSpecificationSpectrumGeneric");
            static PartCalls madeColorSpaceSpecificationSpectrumGeneric;
            internal static PartCalls ColorSpaceSpecificationSpectrumGeneric => madeColorSpaceSpecificationSpectrumGeneric != null ? madeColorSpaceSpecificationSpectrumGeneric : madeColorSpaceSpecificationSpectrumGeneric = new PartCalls { Item = ColorSpaceSpecificationSpectrumGenericItem, Make = h => new ColorSpaceSpecificationSpectrumGeneric(h), Get = Native.get_ColorSpaceSpecificationSpectrumGeneric, Assign = Native.assign_ColorSpaceSpecificationSpectrumGeneric };
        }
    }

    public partial class Base
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_Base_get_Name")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Base_set_Name")] internal static extern int set_Name(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_Base_get_Manufacturer")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_Manufacturer(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Base_set_Manufacturer")] internal static extern int set_Manufacturer(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_Base_get_PartNumber")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_PartNumber(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Base_set_PartNumber")] internal static extern int set_PartNumber(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_Base_isset_Density")] internal static extern int isset_Density(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Base_get_Density")] internal static extern double get_Density(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Base_set_Density")] internal static extern int set_Density(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_Base_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Base_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Base_size_CustomAttribute")] internal static extern uint size_CustomAttribute(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Base_get_CustomAttribute__SWIG_0")] internal static extern IntPtr get_CustomAttribute(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_Base_assign_CustomAttribute")] internal static extern IntPtr assign_CustomAttribute(IntPtr self, uint index, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_Base_append_CustomAttribute")] internal static extern int append_CustomAttribute(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Base_insert_CustomAttribute")] internal static extern int insert_CustomAttribute(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_Base_delete_CustomAttribute")] internal static extern void delete_CustomAttribute(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_Base_clear_CustomAttribute")] internal static extern void clear_CustomAttribute(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_Base__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_Base")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_Base__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_Base_unset_Density")] internal static extern void unset_Density(IntPtr self);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetDensity(IntPtr self) { unset_Density(self); return 0; }
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static ObjectListCalls<CustomAttributeType> madeCustomAttribute;
            internal static ObjectListCalls<CustomAttributeType> CustomAttribute => madeCustomAttribute != null ? madeCustomAttribute : madeCustomAttribute = new ObjectListCalls<CustomAttributeType> { Make = h => new CustomAttributeType(h), Size = Native.size_CustomAttribute, Get = Native.get_CustomAttribute, Assign = Native.assign_CustomAttribute, Append = Native.append_CustomAttribute, Insert = Native.insert_CustomAttribute, Delete = Native.delete_CustomAttribute, Clear = Native.clear_CustomAttribute };
        }
    }

    public partial class BaseElementType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_BaseElementType_get_Contribution")] internal static extern double get_Contribution(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_BaseElementType_set_Contribution")] internal static extern int set_Contribution(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_BaseElementType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_BaseElementType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_BaseElementType_get_Base__SWIG_0")] internal static extern IntPtr get_Base(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_BaseElementType_assign_Base")] internal static extern IntPtr assign_Base(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_BaseElementType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_BaseElementType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_BaseElementType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static IntPtr madeBaseItem;
            internal static IntPtr BaseItem => madeBaseItem != IntPtr.Zero ? madeBaseItem : madeBaseItem = Library.Item("BaseElementType", "Base");
            static PartCalls madeBase;
            internal static PartCalls Base => madeBase != null ? madeBase : madeBase = new PartCalls { Item = BaseItem, Make = h => new Base(h), Get = Native.get_Base, Assign = Native.assign_Base };
        }
    }

    public partial class ColorSpaceRecipeType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceRecipeType_isset_Name")] internal static extern int isset_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceRecipeType_get_Name")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceRecipeType_set_Name")] internal static extern int set_Name(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceRecipeType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceRecipeType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceRecipeType_get_ColorSpaceSpecificationSpectrumGeneric__SWIG_0")] internal static extern IntPtr get_ColorSpaceSpecificationSpectrumGeneric(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceRecipeType_assign_ColorSpaceSpecificationSpectrumGeneric")] internal static extern IntPtr assign_ColorSpaceSpecificationSpectrumGeneric(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceRecipeType_size_ColorantElement")] internal static extern uint size_ColorantElement(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceRecipeType_get_ColorantElement__SWIG_0")] internal static extern IntPtr get_ColorantElement(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceRecipeType_assign_ColorantElement")] internal static extern IntPtr assign_ColorantElement(IntPtr self, uint index, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceRecipeType_append_ColorantElement")] internal static extern int append_ColorantElement(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceRecipeType_insert_ColorantElement")] internal static extern int insert_ColorantElement(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceRecipeType_delete_ColorantElement")] internal static extern void delete_ColorantElement(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceRecipeType_clear_ColorantElement")] internal static extern void clear_ColorantElement(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceRecipeType_get_BaseElement__SWIG_0")] internal static extern IntPtr get_BaseElement(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceRecipeType_assign_BaseElement")] internal static extern IntPtr assign_BaseElement(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceRecipeType_unset_BaseElement")] internal static extern void unset_BaseElement(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceRecipeType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceRecipeType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceRecipeType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceRecipeType_unset_Name")] internal static extern void unset_Name(IntPtr self);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetName(IntPtr self) { unset_Name(self); return 0; }
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static IntPtr madeColorSpaceSpecificationSpectrumGenericItem;
            internal static IntPtr ColorSpaceSpecificationSpectrumGenericItem => madeColorSpaceSpecificationSpectrumGenericItem != IntPtr.Zero ? madeColorSpaceSpecificationSpectrumGenericItem : madeColorSpaceSpecificationSpectrumGenericItem = Library.Item("ColorSpaceRecipeType", "ColorSpaceSpecificationSpectrumGeneric");
            static PartCalls madeColorSpaceSpecificationSpectrumGeneric;
            internal static PartCalls ColorSpaceSpecificationSpectrumGeneric => madeColorSpaceSpecificationSpectrumGeneric != null ? madeColorSpaceSpecificationSpectrumGeneric : madeColorSpaceSpecificationSpectrumGeneric = new PartCalls { Item = ColorSpaceSpecificationSpectrumGenericItem, Make = h => new ColorSpaceSpecificationSpectrumGeneric(h), Get = Native.get_ColorSpaceSpecificationSpectrumGeneric, Assign = Native.assign_ColorSpaceSpecificationSpectrumGeneric };
            static ObjectListCalls<ColorantElementType> madeColorantElement;
            internal static ObjectListCalls<ColorantElementType> ColorantElement => madeColorantElement != null ? madeColorantElement : madeColorantElement = new ObjectListCalls<ColorantElementType> { Make = h => new ColorantElementType(h), Size = Native.size_ColorantElement, Get = Native.get_ColorantElement, Assign = Native.assign_ColorantElement, Append = Native.append_ColorantElement, Insert = Native.insert_ColorantElement, Delete = Native.delete_ColorantElement, Clear = Native.clear_ColorantElement };
            static IntPtr madeBaseElementItem;
            internal static IntPtr BaseElementItem => madeBaseElementItem != IntPtr.Zero ? madeBaseElementItem : madeBaseElementItem = Library.Item("ColorSpaceRecipeType", "BaseElement");
            static PartCalls madeBaseElement;
            internal static PartCalls BaseElement => madeBaseElement != null ? madeBaseElement : madeBaseElement = new PartCalls { Item = BaseElementItem, Make = h => new BaseElementType(h), Get = Native.get_BaseElement, Assign = Native.assign_BaseElement, Unset = Native.unset_BaseElement };
        }
    }

    public partial class ColorSpaceRecipe
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceRecipe__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceRecipe")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceRecipe__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }
    }

    public partial class ColorSpaceTINTORA
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceTINTORA__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceTINTORA")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceTINTORA__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }
    }

    public partial class ColorSpaceNCS
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceNCS__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceNCS")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceNCS__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }
    }

    public partial class ColorSpaceMunsell
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceMunsell__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceMunsell")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceMunsell__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }
    }

    public partial class Density
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_Density_isnil_Density")] internal static extern int isnil_Density(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Density_setnil_Density")] internal static extern void setnil_Density(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Density_get_Density")] internal static extern double get_Density(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Density_set_Density")] internal static extern int set_Density(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_Density_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Density_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_Density__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_Density")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_Density__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
        }
    }

    public partial class ColorantElementType_Colorant
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorantElementType_Colorant_get_Name")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorantElementType_Colorant_set_Name")] internal static extern int set_Name(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorantElementType_Colorant_get_Manufacturer")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_Manufacturer(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorantElementType_Colorant_set_Manufacturer")] internal static extern int set_Manufacturer(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorantElementType_Colorant_get_PartNumber")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_PartNumber(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorantElementType_Colorant_set_PartNumber")] internal static extern int set_PartNumber(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorantElementType_Colorant_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorantElementType_Colorant_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorantElementType_Colorant_size_CustomAttribute")] internal static extern uint size_CustomAttribute(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorantElementType_Colorant_get_CustomAttribute__SWIG_0")] internal static extern IntPtr get_CustomAttribute(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorantElementType_Colorant_assign_CustomAttribute")] internal static extern IntPtr assign_CustomAttribute(IntPtr self, uint index, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorantElementType_Colorant_append_CustomAttribute")] internal static extern int append_CustomAttribute(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorantElementType_Colorant_insert_CustomAttribute")] internal static extern int insert_CustomAttribute(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorantElementType_Colorant_delete_CustomAttribute")] internal static extern void delete_CustomAttribute(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorantElementType_Colorant_clear_CustomAttribute")] internal static extern void clear_CustomAttribute(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorantElementType_Colorant_get_Density__SWIG_0")] internal static extern IntPtr get_Density(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorantElementType_Colorant_assign_Density")] internal static extern IntPtr assign_Density(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorantElementType_Colorant__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorantElementType_Colorant")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorantElementType_Colorant__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static ObjectListCalls<CustomAttributeType> madeCustomAttribute;
            internal static ObjectListCalls<CustomAttributeType> CustomAttribute => madeCustomAttribute != null ? madeCustomAttribute : madeCustomAttribute = new ObjectListCalls<CustomAttributeType> { Make = h => new CustomAttributeType(h), Size = Native.size_CustomAttribute, Get = Native.get_CustomAttribute, Assign = Native.assign_CustomAttribute, Append = Native.append_CustomAttribute, Insert = Native.insert_CustomAttribute, Delete = Native.delete_CustomAttribute, Clear = Native.clear_CustomAttribute };
            static IntPtr madeDensityItem;
            internal static IntPtr DensityItem => madeDensityItem != IntPtr.Zero ? madeDensityItem : madeDensityItem = Library.Item("ColorantElementType_Colorant", "Density");
            static PartCalls madeDensity;
            internal static PartCalls Density => madeDensity != null ? madeDensity : madeDensity = new PartCalls { Item = DensityItem, Make = h => new Density(h), Get = Native.get_Density, Assign = Native.assign_Density };
        }
    }

    public partial class ColorantElementType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorantElementType_get_Contribution")] internal static extern double get_Contribution(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorantElementType_set_Contribution")] internal static extern int set_Contribution(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorantElementType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorantElementType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorantElementType_get_Colorant__SWIG_0")] internal static extern IntPtr get_Colorant(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorantElementType_assign_Colorant")] internal static extern IntPtr assign_Colorant(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorantElementType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorantElementType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorantElementType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static IntPtr madeColorantItem;
            internal static IntPtr ColorantItem => madeColorantItem != IntPtr.Zero ? madeColorantItem : madeColorantItem = Library.Item("ColorantElementType", "Colorant");
            static PartCalls madeColorant;
            internal static PartCalls Colorant => madeColorant != null ? madeColorant : madeColorant = new PartCalls { Item = ColorantItem, Make = h => new ColorantElementType_Colorant(h), Get = Native.get_Colorant, Assign = Native.assign_Colorant };
        }
    }
}
