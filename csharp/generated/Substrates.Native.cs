// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.

using System;
using System.Runtime.InteropServices;

namespace Vyr
{
    public partial class SubstrateType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateType_isset_PartNumber")] internal static extern int isset_PartNumber(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateType_get_PartNumber")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_PartNumber(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateType_set_PartNumber")] internal static extern int set_PartNumber(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateType_size_CustomAttribute")] internal static extern uint size_CustomAttribute(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateType_get_CustomAttribute__SWIG_0")] internal static extern IntPtr get_CustomAttribute(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateType_assign_CustomAttribute")] internal static extern IntPtr assign_CustomAttribute(IntPtr self, uint index, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateType_append_CustomAttribute")] internal static extern int append_CustomAttribute(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateType_insert_CustomAttribute")] internal static extern int insert_CustomAttribute(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateType_delete_CustomAttribute")] internal static extern void delete_CustomAttribute(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateType_clear_CustomAttribute")] internal static extern void clear_CustomAttribute(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateType_get_Color__SWIG_0")] internal static extern IntPtr get_Color(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateType_assign_Color")] internal static extern IntPtr assign_Color(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateType_unset_Color")] internal static extern void unset_Color(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_SubstrateType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_SubstrateType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateType_unset_PartNumber")] internal static extern void unset_PartNumber(IntPtr self);
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetPartNumber(IntPtr self) { unset_PartNumber(self); return 0; }
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static ObjectListCalls<CustomAttributeType> madeCustomAttribute;
            internal static ObjectListCalls<CustomAttributeType> CustomAttribute => madeCustomAttribute != null ? madeCustomAttribute : madeCustomAttribute = new ObjectListCalls<CustomAttributeType> { Make = h => new CustomAttributeType(h), Size = Native.size_CustomAttribute, Get = Native.get_CustomAttribute, Assign = Native.assign_CustomAttribute, Append = Native.append_CustomAttribute, Insert = Native.insert_CustomAttribute, Delete = Native.delete_CustomAttribute, Clear = Native.clear_CustomAttribute };
            static IntPtr madeColorItem;
            internal static IntPtr ColorItem => madeColorItem != IntPtr.Zero ? madeColorItem : madeColorItem = Library.Item("SubstrateType", "Color");
            static PartCalls madeColor;
            internal static PartCalls Color => madeColor != null ? madeColor : madeColor = new PartCalls { Item = ColorItem, Make = h => new ColorType(h), Get = Native.get_Color, Assign = Native.assign_Color, Unset = Native.unset_Color };
        }
    }

    public partial class SubstratePaperType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstratePaperType_isset_PaperThickness")] internal static extern int isset_PaperThickness(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstratePaperType_get_PaperThickness")] internal static extern double get_PaperThickness(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstratePaperType_set_PaperThickness")] internal static extern int set_PaperThickness(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstratePaperType_isset_PaperType")] internal static extern int isset_PaperType(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstratePaperType_get_PaperType")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_PaperType(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstratePaperType_set_PaperType")] internal static extern int set_PaperType(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstratePaperType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstratePaperType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_SubstratePaperType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_SubstratePaperType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_SubstratePaperType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstratePaperType_unset_PaperThickness")] internal static extern void unset_PaperThickness(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstratePaperType_unset_PaperType")] internal static extern void unset_PaperType(IntPtr self);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetPaperThickness(IntPtr self) { unset_PaperThickness(self); return 0; }
            internal static int UnsetPaperType(IntPtr self) { unset_PaperType(self); return 0; }
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
        }
    }

    public partial class SubstrateGenericType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateGenericType_get_Type")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_Type(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateGenericType_set_Type")] internal static extern int set_Type(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateGenericType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateGenericType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_SubstrateGenericType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_SubstrateGenericType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_SubstrateGenericType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
        }
    }

    public partial class SubstrateMetalType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateMetalType_isset_MetalWeight")] internal static extern int isset_MetalWeight(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateMetalType_get_MetalWeight")] internal static extern double get_MetalWeight(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateMetalType_set_MetalWeight")] internal static extern int set_MetalWeight(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateMetalType_isset_MetalType")] internal static extern int isset_MetalType(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateMetalType_get_MetalType")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_MetalType(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateMetalType_set_MetalType")] internal static extern int set_MetalType(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateMetalType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateMetalType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_SubstrateMetalType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_SubstrateMetalType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_SubstrateMetalType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateMetalType_unset_MetalWeight")] internal static extern void unset_MetalWeight(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateMetalType_unset_MetalType")] internal static extern void unset_MetalType(IntPtr self);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetMetalWeight(IntPtr self) { unset_MetalWeight(self); return 0; }
            internal static int UnsetMetalType(IntPtr self) { unset_MetalType(self); return 0; }
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
        }
    }

    public partial class SubstratePlasticType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstratePlasticType_isset_PlasticWeight")] internal static extern int isset_PlasticWeight(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstratePlasticType_get_PlasticWeight")] internal static extern double get_PlasticWeight(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstratePlasticType_set_PlasticWeight")] internal static extern int set_PlasticWeight(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstratePlasticType_isset_PlasticType")] internal static extern int isset_PlasticType(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstratePlasticType_get_PlasticType")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_PlasticType(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstratePlasticType_set_PlasticType")] internal static extern int set_PlasticType(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstratePlasticType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstratePlasticType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_SubstratePlasticType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_SubstratePlasticType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_SubstratePlasticType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstratePlasticType_unset_PlasticWeight")] internal static extern void unset_PlasticWeight(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstratePlasticType_unset_PlasticType")] internal static extern void unset_PlasticType(IntPtr self);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetPlasticWeight(IntPtr self) { unset_PlasticWeight(self); return 0; }
            internal static int UnsetPlasticType(IntPtr self) { unset_PlasticType(self); return 0; }
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
        }
    }

    public partial class SubstrateWoodType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateWoodType_isset_WoodWeight")] internal static extern int isset_WoodWeight(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateWoodType_get_WoodWeight")] internal static extern double get_WoodWeight(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateWoodType_set_WoodWeight")] internal static extern int set_WoodWeight(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateWoodType_isset_WoodType")] internal static extern int isset_WoodType(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateWoodType_get_WoodType")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_WoodType(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateWoodType_set_WoodType")] internal static extern int set_WoodType(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateWoodType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateWoodType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_SubstrateWoodType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_SubstrateWoodType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_SubstrateWoodType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateWoodType_unset_WoodWeight")] internal static extern void unset_WoodWeight(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateWoodType_unset_WoodType")] internal static extern void unset_WoodType(IntPtr self);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetWoodWeight(IntPtr self) { unset_WoodWeight(self); return 0; }
            internal static int UnsetWoodType(IntPtr self) { unset_WoodType(self); return 0; }
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
        }
    }

    public partial class SubstrateVinylType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateVinylType_isset_VinylWeight")] internal static extern int isset_VinylWeight(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateVinylType_get_VinylWeight")] internal static extern double get_VinylWeight(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateVinylType_set_VinylWeight")] internal static extern int set_VinylWeight(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateVinylType_isset_VinylType")] internal static extern int isset_VinylType(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateVinylType_get_VinylType")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_VinylType(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateVinylType_set_VinylType")] internal static extern int set_VinylType(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateVinylType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateVinylType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_SubstrateVinylType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_SubstrateVinylType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_SubstrateVinylType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateVinylType_unset_VinylWeight")] internal static extern void unset_VinylWeight(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateVinylType_unset_VinylType")] internal static extern void unset_VinylType(IntPtr self);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetVinylWeight(IntPtr self) { unset_VinylWeight(self); return 0; }
            internal static int UnsetVinylType(IntPtr self) { unset_VinylType(self); return 0; }
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
        }
    }

    public partial class SubstrateTileType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateTileType_isset_TileWeight")] internal static extern int isset_TileWeight(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateTileType_get_TileWeight")] internal static extern double get_TileWeight(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateTileType_set_TileWeight")] internal static extern int set_TileWeight(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateTileType_isset_TileType")] internal static extern int isset_TileType(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateTileType_get_TileType")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_TileType(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateTileType_set_TileType")] internal static extern int set_TileType(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateTileType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateTileType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_SubstrateTileType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_SubstrateTileType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_SubstrateTileType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateTileType_unset_TileWeight")] internal static extern void unset_TileWeight(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateTileType_unset_TileType")] internal static extern void unset_TileType(IntPtr self);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetTileWeight(IntPtr self) { unset_TileWeight(self); return 0; }
            internal static int UnsetTileType(IntPtr self) { unset_TileType(self); return 0; }
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
        }
    }

    public partial class SubstrateFilmType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateFilmType_isset_FilmWeight")] internal static extern int isset_FilmWeight(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateFilmType_get_FilmWeight")] internal static extern double get_FilmWeight(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateFilmType_set_FilmWeight")] internal static extern int set_FilmWeight(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateFilmType_isset_FilmType")] internal static extern int isset_FilmType(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateFilmType_get_FilmType")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_FilmType(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateFilmType_set_FilmType")] internal static extern int set_FilmType(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateFilmType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateFilmType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_SubstrateFilmType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_SubstrateFilmType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_SubstrateFilmType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateFilmType_unset_FilmWeight")] internal static extern void unset_FilmWeight(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateFilmType_unset_FilmType")] internal static extern void unset_FilmType(IntPtr self);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetFilmWeight(IntPtr self) { unset_FilmWeight(self); return 0; }
            internal static int UnsetFilmType(IntPtr self) { unset_FilmType(self); return 0; }
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
        }
    }

    public partial class SubstrateTextileType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateTextileType_isset_TextileWeight")] internal static extern int isset_TextileWeight(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateTextileType_get_TextileWeight")] internal static extern double get_TextileWeight(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateTextileType_set_TextileWeight")] internal static extern int set_TextileWeight(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateTextileType_isset_TextileType")] internal static extern int isset_TextileType(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateTextileType_get_TextileType")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_TextileType(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateTextileType_set_TextileType")] internal static extern int set_TextileType(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateTextileType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateTextileType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_SubstrateTextileType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_SubstrateTextileType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_SubstrateTextileType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateTextileType_unset_TextileWeight")] internal static extern void unset_TextileWeight(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SubstrateTextileType_unset_TextileType")] internal static extern void unset_TextileType(IntPtr self);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetTextileWeight(IntPtr self) { unset_TextileWeight(self); return 0; }
            internal static int UnsetTextileType(IntPtr self) { unset_TextileType(self); return 0; }
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
        }
    }

    public partial class SubstratePaper
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_new_SubstratePaper__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_SubstratePaper")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_SubstratePaper__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }
    }

    public partial class SubstrateGeneric
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_new_SubstrateGeneric__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_SubstrateGeneric")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_SubstrateGeneric__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }
    }

    public partial class SubstrateMetal
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_new_SubstrateMetal__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_SubstrateMetal")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_SubstrateMetal__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }
    }

    public partial class SubstratePlastic
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_new_SubstratePlastic__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_SubstratePlastic")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_SubstratePlastic__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }
    }

    public partial class SubstrateWood
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_new_SubstrateWood__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_SubstrateWood")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_SubstrateWood__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }
    }

    public partial class SubstrateVinyl
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_new_SubstrateVinyl__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_SubstrateVinyl")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_SubstrateVinyl__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }
    }

    public partial class SubstrateTile
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_new_SubstrateTile__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_SubstrateTile")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_SubstrateTile__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }
    }

    public partial class SubstrateFilm
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_new_SubstrateFilm__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_SubstrateFilm")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_SubstrateFilm__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }
    }

    public partial class SubstrateTextile
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_new_SubstrateTextile__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_SubstrateTextile")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_SubstrateTextile__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }
    }
}
