// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.

using System;
using System.Runtime.InteropServices;

namespace Vyr
{
    public partial class ColorSpaceRGBType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceRGBType_isset_Name")] internal static extern int isset_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceRGBType_get_Name")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceRGBType_set_Name")] internal static extern int set_Name(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceRGBType_get_Red")] internal static extern double get_Red(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceRGBType_set_Red")] internal static extern int set_Red(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceRGBType_get_Green")] internal static extern double get_Green(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceRGBType_set_Green")] internal static extern int set_Green(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceRGBType_get_Blue")] internal static extern double get_Blue(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceRGBType_set_Blue")] internal static extern int set_Blue(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceRGBType_isset_Alpha")] internal static extern int isset_Alpha(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceRGBType_get_Alpha")] internal static extern double get_Alpha(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceRGBType_set_Alpha")] internal static extern int set_Alpha(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceRGBType_getenum_ColorDepth")] internal static extern int getenum_ColorDepth(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceRGBType_setenum_ColorDepth")] internal static extern int setenum_ColorDepth(IntPtr self, int number);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceRGBType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceRGBType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceRGBType_get_ColorSpaceSpecificationSpectrumTristimulus__SWIG_0")] internal static extern IntPtr get_ColorSpaceSpecificationSpectrumTristimulus(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceRGBType_assign_ColorSpaceSpecificationSpectrumTristimulus")] internal static extern IntPtr assign_ColorSpaceSpecificationSpectrumTristimulus(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceRGBType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceRGBType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceRGBType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceRGBType_unset_Name")] internal static extern void unset_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceRGBType_unset_Alpha")] internal static extern void unset_Alpha(IntPtr self);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetName(IntPtr self) { unset_Name(self); return 0; }
            internal static int UnsetAlpha(IntPtr self) { unset_Alpha(self); return 0; }
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static IntPtr madeColorSpaceSpecificationSpectrumTristimulusItem;
            internal static IntPtr ColorSpaceSpecificationSpectrumTristimulusItem => madeColorSpaceSpecificationSpectrumTristimulusItem != IntPtr.Zero ? madeColorSpaceSpecificationSpectrumTristimulusItem : madeColorSpaceSpecificationSpectrumTristimulusItem = Library.Item("ColorSpaceRGBType", "ColorSpaceSpecificationSpectrumTristimulus");
            static PartCalls madeColorSpaceSpecificationSpectrumTristimulus;
            internal static PartCalls ColorSpaceSpecificationSpectrumTristimulus => madeColorSpaceSpecificationSpectrumTristimulus != null ? madeColorSpaceSpecificationSpectrumTristimulus : madeColorSpaceSpecificationSpectrumTristimulus = new PartCalls { Item = ColorSpaceSpecificationSpectrumTristimulusItem, Make = h => new ColorSpaceSpecificationSpectrumTristimulus(h), Get = Native.get_ColorSpaceSpecificationSpectrumTristimulus, Assign = Native.assign_ColorSpaceSpecificationSpectrumTristimulus };
        }
    }

    public partial class ColorSpaceSRGBType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSRGBType_isset_Name")] internal static extern int isset_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSRGBType_get_Name")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSRGBType_set_Name")] internal static extern int set_Name(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSRGBType_get_Red")] internal static extern double get_Red(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSRGBType_set_Red")] internal static extern int set_Red(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSRGBType_get_Green")] internal static extern double get_Green(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSRGBType_set_Green")] internal static extern int set_Green(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSRGBType_get_Blue")] internal static extern double get_Blue(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSRGBType_set_Blue")] internal static extern int set_Blue(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSRGBType_isset_Alpha")] internal static extern int isset_Alpha(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSRGBType_get_Alpha")] internal static extern double get_Alpha(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSRGBType_set_Alpha")] internal static extern int set_Alpha(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSRGBType_getenum_ColorDepth")] internal static extern int getenum_ColorDepth(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSRGBType_setenum_ColorDepth")] internal static extern int setenum_ColorDepth(IntPtr self, int number);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSRGBType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSRGBType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSRGBType_get_ColorSpaceSpecificationSpectrumTristimulus__SWIG_0")] internal static extern IntPtr get_ColorSpaceSpecificationSpectrumTristimulus(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSRGBType_assign_ColorSpaceSpecificationSpectrumTristimulus")] internal static extern IntPtr assign_ColorSpaceSpecificationSpectrumTristimulus(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceSRGBType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceSRGBType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceSRGBType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSRGBType_unset_Name")] internal static extern void unset_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceSRGBType_unset_Alpha")] internal static extern void unset_Alpha(IntPtr self);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetName(IntPtr self) { unset_Name(self); return 0; }
            internal static int UnsetAlpha(IntPtr self) { unset_Alpha(self); return 0; }
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static IntPtr madeColorSpaceSpecificationSpectrumTristimulusItem;
            internal static IntPtr ColorSpaceSpecificationSpectrumTristimulusItem => madeColorSpaceSpecificationSpectrumTristimulusItem != IntPtr.Zero ? madeColorSpaceSpecificationSpectrumTristimulusItem : madeColorSpaceSpecificationSpectrumTristimulusItem = Library.Item("ColorSpaceSRGBType", "ColorSpaceSpecificationSpectrumTristimulus");
            static PartCalls madeColorSpaceSpecificationSpectrumTristimulus;
            internal static PartCalls ColorSpaceSpecificationSpectrumTristimulus => madeColorSpaceSpecificationSpectrumTristimulus != null ? madeColorSpaceSpecificationSpectrumTristimulus : madeColorSpaceSpecificationSpectrumTristimulus = new PartCalls { Item = ColorSpaceSpecificationSpectrumTristimulusItem, Make = h => new ColorSpaceSpecificationSpectrumTristimulus(h), Get = Native.get_ColorSpaceSpecificationSpectrumTristimulus, Assign = Native.assign_ColorSpaceSpecificationSpectrumTristimulus };
        }
    }

    public partial class ColorSpaceAdobeRGBType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceAdobeRGBType_isset_Name")] internal static extern int isset_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceAdobeRGBType_get_Name")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceAdobeRGBType_set_Name")] internal static extern int set_Name(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceAdobeRGBType_get_Red")] internal static extern double get_Red(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceAdobeRGBType_set_Red")] internal static extern int set_Red(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceAdobeRGBType_get_Green")] internal static extern double get_Green(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceAdobeRGBType_set_Green")] internal static extern int set_Green(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceAdobeRGBType_get_Blue")] internal static extern double get_Blue(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceAdobeRGBType_set_Blue")] internal static extern int set_Blue(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceAdobeRGBType_isset_Alpha")] internal static extern int isset_Alpha(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceAdobeRGBType_get_Alpha")] internal static extern double get_Alpha(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceAdobeRGBType_set_Alpha")] internal static extern int set_Alpha(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceAdobeRGBType_getenum_ColorDepth")] internal static extern int getenum_ColorDepth(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceAdobeRGBType_setenum_ColorDepth")] internal static extern int setenum_ColorDepth(IntPtr self, int number);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceAdobeRGBType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceAdobeRGBType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceAdobeRGBType_get_ColorSpaceSpecificationSpectrumTristimulus__SWIG_0")] internal static extern IntPtr get_ColorSpaceSpecificationSpectrumTristimulus(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceAdobeRGBType_assign_ColorSpaceSpecificationSpectrumTristimulus")] internal static extern IntPtr assign_ColorSpaceSpecificationSpectrumTristimulus(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceAdobeRGBType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceAdobeRGBType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceAdobeRGBType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceAdobeRGBType_unset_Name")] internal static extern void unset_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceAdobeRGBType_unset_Alpha")] internal static extern void unset_Alpha(IntPtr self);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetName(IntPtr self) { unset_Name(self); return 0; }
            internal static int UnsetAlpha(IntPtr self) { unset_Alpha(self); return 0; }
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static IntPtr madeColorSpaceSpecificationSpectrumTristimulusItem;
            internal static IntPtr ColorSpaceSpecificationSpectrumTristimulusItem => madeColorSpaceSpecificationSpectrumTristimulusItem != IntPtr.Zero ? madeColorSpaceSpecificationSpectrumTristimulusItem : madeColorSpaceSpecificationSpectrumTristimulusItem = Library.Item("ColorSpaceAdobeRGBType", "ColorSpaceSpecificationSpectrumTristimulus");
            static PartCalls madeColorSpaceSpecificationSpectrumTristimulus;
            internal static PartCalls ColorSpaceSpecificationSpectrumTristimulus => madeColorSpaceSpecificationSpectrumTristimulus != null ? madeColorSpaceSpecificationSpectrumTristimulus : madeColorSpaceSpecificationSpectrumTristimulus = new PartCalls { Item = ColorSpaceSpecificationSpectrumTristimulusItem, Make = h => new ColorSpaceSpecificationSpectrumTristimulus(h), Get = Native.get_ColorSpaceSpecificationSpectrumTristimulus, Assign = Native.assign_ColorSpaceSpecificationSpectrumTristimulus };
        }
    }

    public partial class ColorSpaceAdobeWideGamutRGBType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceAdobeWideGamutRGBType_isset_Name")] internal static extern int isset_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceAdobeWideGamutRGBType_get_Name")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceAdobeWideGamutRGBType_set_Name")] internal static extern int set_Name(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceAdobeWideGamutRGBType_get_Red")] internal static extern double get_Red(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceAdobeWideGamutRGBType_set_Red")] internal static extern int set_Red(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceAdobeWideGamutRGBType_get_Green")] internal static extern double get_Green(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceAdobeWideGamutRGBType_set_Green")] internal static extern int set_Green(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceAdobeWideGamutRGBType_get_Blue")] internal static extern double get_Blue(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceAdobeWideGamutRGBType_set_Blue")] internal static extern int set_Blue(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceAdobeWideGamutRGBType_isset_Alpha")] internal static extern int isset_Alpha(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceAdobeWideGamutRGBType_get_Alpha")] internal static extern double get_Alpha(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceAdobeWideGamutRGBType_set_Alpha")] internal static extern int set_Alpha(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceAdobeWideGamutRGBType_getenum_ColorDepth")] internal static extern int getenum_ColorDepth(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceAdobeWideGamutRGBType_setenum_ColorDepth")] internal static extern int setenum_ColorDepth(IntPtr self, int number);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceAdobeWideGamutRGBType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceAdobeWideGamutRGBType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceAdobeWideGamutRGBType_get_ColorSpaceSpecificationSpectrumTristimulus__SWIG_0")] internal static extern IntPtr get_ColorSpaceSpecificationSpectrumTristimulus(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceAdobeWideGamutRGBType_assign_ColorSpaceSpecificationSpectrumTristimulus")] internal static extern IntPtr assign_ColorSpaceSpecificationSpectrumTristimulus(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceAdobeWideGamutRGBType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceAdobeWideGamutRGBType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceAdobeWideGamutRGBType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceAdobeWideGamutRGBType_unset_Name")] internal static extern void unset_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceAdobeWideGamutRGBType_unset_Alpha")] internal static extern void unset_Alpha(IntPtr self);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetName(IntPtr self) { unset_Name(self); return 0; }
            internal static int UnsetAlpha(IntPtr self) { unset_Alpha(self); return 0; }
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static IntPtr madeColorSpaceSpecificationSpectrumTristimulusItem;
            internal static IntPtr ColorSpaceSpecificationSpectrumTristimulusItem => madeColorSpaceSpecificationSpectrumTristimulusItem != IntPtr.Zero ? madeColorSpaceSpecificationSpectrumTristimulusItem : madeColorSpaceSpecificationSpectrumTristimulusItem = Library.Item("ColorSpaceAdobeWideGamutRGBType", "ColorSpaceSpecificationSpectrumTristimulus");
            static PartCalls madeColorSpaceSpecificationSpectrumTristimulus;
            internal static PartCalls ColorSpaceSpecificationSpectrumTristimulus => madeColorSpaceSpecificationSpectrumTristimulus != null ? madeColorSpaceSpecificationSpectrumTristimulus : madeColorSpaceSpecificationSpectrumTristimulus = new PartCalls { Item = ColorSpaceSpecificationSpectrumTristimulusItem, Make = h => new ColorSpaceSpecificationSpectrumTristimulus(h), Get = Native.get_ColorSpaceSpecificationSpectrumTristimulus, Assign = Native.assign_ColorSpaceSpecificationSpectrumTristimulus };
        }
    }

    public partial class ColorSpaceCMYKType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCMYKType_isset_Name")] internal static extern int isset_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCMYKType_get_Name")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCMYKType_set_Name")] internal static extern int set_Name(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCMYKType_get_Cyan")] internal static extern double get_Cyan(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCMYKType_set_Cyan")] internal static extern int set_Cyan(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCMYKType_get_Magenta")] internal static extern double get_Magenta(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCMYKType_set_Magenta")] internal static extern int set_Magenta(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCMYKType_get_Yellow")] internal static extern double get_Yellow(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCMYKType_set_Yellow")] internal static extern int set_Yellow(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCMYKType_get_Black")] internal static extern double get_Black(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCMYKType_set_Black")] internal static extern int set_Black(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCMYKType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCMYKType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCMYKType_get_ColorSpaceSpecificationSpectrumGeneric__SWIG_0")] internal static extern IntPtr get_ColorSpaceSpecificationSpectrumGeneric(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCMYKType_assign_ColorSpaceSpecificationSpectrumGeneric")] internal static extern IntPtr assign_ColorSpaceSpecificationSpectrumGeneric(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCMYKType_size_SpotColor")] internal static extern uint size_SpotColor(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCMYKType_get_SpotColor__SWIG_0")] internal static extern IntPtr get_SpotColor(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCMYKType_assign_SpotColor")] internal static extern IntPtr assign_SpotColor(IntPtr self, uint index, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCMYKType_append_SpotColor")] internal static extern int append_SpotColor(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCMYKType_insert_SpotColor")] internal static extern int insert_SpotColor(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCMYKType_delete_SpotColor")] internal static extern void delete_SpotColor(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCMYKType_clear_SpotColor")] internal static extern void clear_SpotColor(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceCMYKType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceCMYKType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceCMYKType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCMYKType_unset_Name")] internal static extern void unset_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCMYKType_getid")] internal static extern IntPtr getid(IntPtr self);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetName(IntPtr self) { unset_Name(self); return 0; }
            internal static string Identity(IntPtr self) => Library.TakeNarrow(getid(self));
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static IntPtr madeColorSpaceSpecificationSpectrumGenericItem;
            internal static IntPtr ColorSpaceSpecificationSpectrumGenericItem => madeColorSpaceSpecificationSpectrumGenericItem != IntPtr.Zero ? madeColorSpaceSpecificationSpectrumGenericItem : madeColorSpaceSpecificationSpectrumGenericItem = Library.Item("ColorSpaceCMYKType", "ColorSpaceSpecificationSpectrumGeneric");
            static PartCalls madeColorSpaceSpecificationSpectrumGeneric;
            internal static PartCalls ColorSpaceSpecificationSpectrumGeneric => madeColorSpaceSpecificationSpectrumGeneric != null ? madeColorSpaceSpecificationSpectrumGeneric : madeColorSpaceSpecificationSpectrumGeneric = new PartCalls { Item = ColorSpaceSpecificationSpectrumGenericItem, Make = h => new ColorSpaceSpecificationSpectrumGeneric(h), Get = Native.get_ColorSpaceSpecificationSpectrumGeneric, Assign = Native.assign_ColorSpaceSpecificationSpectrumGeneric };
            static ObjectListCalls<SpotColorType> madeSpotColor;
            internal static ObjectListCalls<SpotColorType> SpotColor => madeSpotColor != null ? madeSpotColor : madeSpotColor = new ObjectListCalls<SpotColorType> { Make = h => new SpotColorType(h), Size = Native.size_SpotColor, Get = Native.get_SpotColor, Assign = Native.assign_SpotColor, Append = Native.append_SpotColor, Insert = Native.insert_SpotColor, Delete = Native.delete_SpotColor, Clear = Native.clear_SpotColor };
        }
    }

    public partial class ColorSpaceCMYKPlusNType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCMYKPlusNType_isset_ColorSpaceName")] internal static extern int isset_ColorSpaceName(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCMYKPlusNType_get_ColorSpaceName")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_ColorSpaceName(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCMYKPlusNType_set_ColorSpaceName")] internal static extern int set_ColorSpaceName(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCMYKPlusNType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCMYKPlusNType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCMYKPlusNType_size_Color")] internal static extern uint size_Color(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCMYKPlusNType_get_Color__SWIG_0")] internal static extern IntPtr get_Color(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCMYKPlusNType_assign_Color")] internal static extern IntPtr assign_Color(IntPtr self, uint index, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCMYKPlusNType_append_Color")] internal static extern int append_Color(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCMYKPlusNType_insert_Color")] internal static extern int insert_Color(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCMYKPlusNType_delete_Color")] internal static extern void delete_Color(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCMYKPlusNType_clear_Color")] internal static extern void clear_Color(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceCMYKPlusNType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceCMYKPlusNType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceCMYKPlusNType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceCMYKPlusNType_unset_ColorSpaceName")] internal static extern void unset_ColorSpaceName(IntPtr self);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetColorSpaceName(IntPtr self) { unset_ColorSpaceName(self); return 0; }
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static ObjectListCalls<Color> madeColor;
            internal static ObjectListCalls<Color> Color => madeColor != null ? madeColor : madeColor = new ObjectListCalls<Color> { Make = h => new Color(h), Size = Native.size_Color, Get = Native.get_Color, Assign = Native.assign_Color, Append = Native.append_Color, Insert = Native.insert_Color, Delete = Native.delete_Color, Clear = Native.clear_Color };
        }
    }

    public partial class Color
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_Color_get_Name")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Color_set_Name")] internal static extern int set_Name(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_Color_get_Value")] internal static extern double get_Value(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Color_set_Value")] internal static extern int set_Value(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_Color_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Color_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_Color__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_Color")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_Color__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
        }
    }

    public partial class ColorSpaceTINTORAOctavanticType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceTINTORAOctavanticType_isset_Name")] internal static extern int isset_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceTINTORAOctavanticType_get_Name")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceTINTORAOctavanticType_set_Name")] internal static extern int set_Name(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceTINTORAOctavanticType_get_Cyan")] internal static extern double get_Cyan(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceTINTORAOctavanticType_set_Cyan")] internal static extern int set_Cyan(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceTINTORAOctavanticType_get_Magenta")] internal static extern double get_Magenta(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceTINTORAOctavanticType_set_Magenta")] internal static extern int set_Magenta(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceTINTORAOctavanticType_get_Yellow")] internal static extern double get_Yellow(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceTINTORAOctavanticType_set_Yellow")] internal static extern int set_Yellow(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceTINTORAOctavanticType_get_Black")] internal static extern double get_Black(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceTINTORAOctavanticType_set_Black")] internal static extern int set_Black(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceTINTORAOctavanticType_get_Orange")] internal static extern double get_Orange(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceTINTORAOctavanticType_set_Orange")] internal static extern int set_Orange(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceTINTORAOctavanticType_get_Green")] internal static extern double get_Green(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceTINTORAOctavanticType_set_Green")] internal static extern int set_Green(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceTINTORAOctavanticType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceTINTORAOctavanticType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceTINTORAOctavanticType_get_ColorSpaceSpecificationSpectrumGeneric__SWIG_0")] internal static extern IntPtr get_ColorSpaceSpecificationSpectrumGeneric(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceTINTORAOctavanticType_assign_ColorSpaceSpecificationSpectrumGeneric")] internal static extern IntPtr assign_ColorSpaceSpecificationSpectrumGeneric(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceTINTORAOctavanticType_size_SpotColor")] internal static extern uint size_SpotColor(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceTINTORAOctavanticType_get_SpotColor__SWIG_0")] internal static extern IntPtr get_SpotColor(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceTINTORAOctavanticType_assign_SpotColor")] internal static extern IntPtr assign_SpotColor(IntPtr self, uint index, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceTINTORAOctavanticType_append_SpotColor")] internal static extern int append_SpotColor(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceTINTORAOctavanticType_insert_SpotColor")] internal static extern int insert_SpotColor(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceTINTORAOctavanticType_delete_SpotColor")] internal static extern void delete_SpotColor(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceTINTORAOctavanticType_clear_SpotColor")] internal static extern void clear_SpotColor(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceTINTORAOctavanticType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceTINTORAOctavanticType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceTINTORAOctavanticType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceTINTORAOctavanticType_unset_Name")] internal static extern void unset_Name(IntPtr self);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetName(IntPtr self) { unset_Name(self); return 0; }
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static IntPtr madeColorSpaceSpecificationSpectrumGenericItem;
            internal static IntPtr ColorSpaceSpecificationSpectrumGenericItem => madeColorSpaceSpecificationSpectrumGenericItem != IntPtr.Zero ? madeColorSpaceSpecificationSpectrumGenericItem : madeColorSpaceSpecificationSpectrumGenericItem = Library.Item("ColorSpaceTINTORAOctavanticType", "ColorSpaceSpecificationSpectrumGeneric");
            static PartCalls madeColorSpaceSpecificationSpectrumGeneric;
            internal static PartCalls ColorSpaceSpecificationSpectrumGeneric => madeColorSpaceSpecificationSpectrumGeneric != null ? madeColorSpaceSpecificationSpectrumGeneric : madeColorSpaceSpecificationSpectrumGeneric = new PartCalls { Item = ColorSpaceSpecificationSpectrumGenericItem, Make = h => new ColorSpaceSpecificationSpectrumGeneric(h), Get = Native.get_ColorSpaceSpecificationSpectrumGeneric, Assign = Native.assign_ColorSpaceSpecificationSpectrumGeneric };
            static ObjectListCalls<SpotColorType> madeSpotColor;
            internal static ObjectListCalls<SpotColorType> SpotColor => madeSpotColor != null ? madeSpotColor : madeSpotColor = new ObjectListCalls<SpotColorType> { Make = h => new SpotColorType(h), Size = Native.size_SpotColor, Get = Native.get_SpotColor, Assign = Native.assign_SpotColor, Append = Native.append_SpotColor, Insert = Native.insert_SpotColor, Delete = Native.delete_SpotColor, Clear = Native.clear_SpotColor };
        }
    }

    public partial class ColorSpaceHSLType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceHSLType_isset_Name")] internal static extern int isset_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceHSLType_get_Name")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceHSLType_set_Name")] internal static extern int set_Name(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceHSLType_get_Hue")] internal static extern double get_Hue(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceHSLType_set_Hue")] internal static extern int set_Hue(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceHSLType_get_Saturation")] internal static extern double get_Saturation(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceHSLType_set_Saturation")] internal static extern int set_Saturation(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceHSLType_get_Lightness")] internal static extern double get_Lightness(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceHSLType_set_Lightness")] internal static extern int set_Lightness(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceHSLType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceHSLType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceHSLType_get_ColorSpaceSpecificationSpectrumGeneric__SWIG_0")] internal static extern IntPtr get_ColorSpaceSpecificationSpectrumGeneric(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceHSLType_assign_ColorSpaceSpecificationSpectrumGeneric")] internal static extern IntPtr assign_ColorSpaceSpecificationSpectrumGeneric(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceHSLType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceHSLType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceHSLType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceHSLType_unset_Name")] internal static extern void unset_Name(IntPtr self);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetName(IntPtr self) { unset_Name(self); return 0; }
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static IntPtr madeColorSpaceSpecificationSpectrumGenericItem;
            internal static IntPtr ColorSpaceSpecificationSpectrumGenericItem => madeColorSpaceSpecificationSpectrumGenericItem != IntPtr.Zero ? madeColorSpaceSpecificationSpectrumGenericItem : madeColorSpaceSpecificationSpectrumGenericItem = Library.Item("ColorSpaceHSLType", "ColorSpaceSpecificationSpectrumGeneric");
            static PartCalls madeColorSpaceSpecificationSpectrumGeneric;
            internal static PartCalls ColorSpaceSpecificationSpectrumGeneric => madeColorSpaceSpecificationSpectrumGeneric != null ? madeColorSpaceSpecificationSpectrumGeneric : madeColorSpaceSpecificationSpectrumGeneric = new PartCalls { Item = ColorSpaceSpecificationSpectrumGenericItem, Make = h => new ColorSpaceSpecificationSpectrumGeneric(h), Get = Native.get_ColorSpaceSpecificationSpectrumGeneric, Assign = Native.assign_ColorSpaceSpecificationSpectrumGeneric };
        }
    }

    public partial class ColorSpaceHSVType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceHSVType_isset_Name")] internal static extern int isset_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceHSVType_get_Name")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceHSVType_set_Name")] internal static extern int set_Name(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceHSVType_get_Hue")] internal static extern double get_Hue(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceHSVType_set_Hue")] internal static extern int set_Hue(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceHSVType_get_Saturation")] internal static extern double get_Saturation(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceHSVType_set_Saturation")] internal static extern int set_Saturation(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceHSVType_get_Value")] internal static extern double get_Value(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceHSVType_set_Value")] internal static extern int set_Value(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceHSVType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceHSVType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceHSVType_get_ColorSpaceSpecificationSpectrumGeneric__SWIG_0")] internal static extern IntPtr get_ColorSpaceSpecificationSpectrumGeneric(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceHSVType_assign_ColorSpaceSpecificationSpectrumGeneric")] internal static extern IntPtr assign_ColorSpaceSpecificationSpectrumGeneric(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceHSVType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceHSVType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceHSVType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceHSVType_unset_Name")] internal static extern void unset_Name(IntPtr self);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetName(IntPtr self) { unset_Name(self); return 0; }
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static IntPtr madeColorSpaceSpecificationSpectrumGenericItem;
            internal static IntPtr ColorSpaceSpecificationSpectrumGenericItem => madeColorSpaceSpecificationSpectrumGenericItem != IntPtr.Zero ? madeColorSpaceSpecificationSpectrumGenericItem : madeColorSpaceSpecificationSpectrumGenericItem = Library.Item("ColorSpaceHSVType", "ColorSpaceSpecificationSpectrumGeneric");
            static PartCalls madeColorSpaceSpecificationSpectrumGeneric;
            internal static PartCalls ColorSpaceSpecificationSpectrumGeneric => madeColorSpaceSpecificationSpectrumGeneric != null ? madeColorSpaceSpecificationSpectrumGeneric : madeColorSpaceSpecificationSpectrumGeneric = new PartCalls { Item = ColorSpaceSpecificationSpectrumGenericItem, Make = h => new ColorSpaceSpecificationSpectrumGeneric(h), Get = Native.get_ColorSpaceSpecificationSpectrumGeneric, Assign = Native.assign_ColorSpaceSpecificationSpectrumGeneric };
        }
    }

    public partial class ColorSpaceYUVType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceYUVType_isset_Name")] internal static extern int isset_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceYUVType_get_Name")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceYUVType_set_Name")] internal static extern int set_Name(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceYUVType_get_Y")] internal static extern double get_Y(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceYUVType_set_Y")] internal static extern int set_Y(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceYUVType_get_U")] internal static extern double get_U(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceYUVType_set_U")] internal static extern int set_U(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceYUVType_get_V")] internal static extern double get_V(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceYUVType_set_V")] internal static extern int set_V(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceYUVType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceYUVType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceYUVType_get_ColorSpaceSpecificationSpectrumGeneric__SWIG_0")] internal static extern IntPtr get_ColorSpaceSpecificationSpectrumGeneric(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceYUVType_assign_ColorSpaceSpecificationSpectrumGeneric")] internal static extern IntPtr assign_ColorSpaceSpecificationSpectrumGeneric(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceYUVType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceYUVType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceYUVType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceYUVType_unset_Name")] internal static extern void unset_Name(IntPtr self);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetName(IntPtr self) { unset_Name(self); return 0; }
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static IntPtr madeColorSpaceSpecificationSpectrumGenericItem;
            internal static IntPtr ColorSpaceSpecificationSpectrumGenericItem => madeColorSpaceSpecificationSpectrumGenericItem != IntPtr.Zero ? madeColorSpaceSpecificationSpectrumGenericItem : madeColorSpaceSpecificationSpectrumGenericItem = Library.Item("ColorSpaceYUVType", "ColorSpaceSpecificationSpectrumGeneric");
            static PartCalls madeColorSpaceSpecificationSpectrumGeneric;
            internal static PartCalls ColorSpaceSpecificationSpectrumGeneric => madeColorSpaceSpecificationSpectrumGeneric != null ? madeColorSpaceSpecificationSpectrumGeneric : madeColorSpaceSpecificationSpectrumGeneric = new PartCalls { Item = ColorSpaceSpecificationSpectrumGenericItem, Make = h => new ColorSpaceSpecificationSpectrumGeneric(h), Get = Native.get_ColorSpaceSpecificationSpectrumGeneric, Assign = Native.assign_ColorSpaceSpecificationSpectrumGeneric };
        }
    }

    public partial class ColorSpaceYIQType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceYIQType_isset_Name")] internal static extern int isset_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceYIQType_get_Name")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceYIQType_set_Name")] internal static extern int set_Name(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceYIQType_get_Y")] internal static extern double get_Y(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceYIQType_set_Y")] internal static extern int set_Y(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceYIQType_get_I")] internal static extern double get_I(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceYIQType_set_I")] internal static extern int set_I(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceYIQType_get_Q")] internal static extern double get_Q(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceYIQType_set_Q")] internal static extern int set_Q(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceYIQType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceYIQType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceYIQType_get_ColorSpaceSpecificationSpectrumGeneric__SWIG_0")] internal static extern IntPtr get_ColorSpaceSpecificationSpectrumGeneric(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceYIQType_assign_ColorSpaceSpecificationSpectrumGeneric")] internal static extern IntPtr assign_ColorSpaceSpecificationSpectrumGeneric(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceYIQType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceYIQType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceYIQType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceYIQType_unset_Name")] internal static extern void unset_Name(IntPtr self);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetName(IntPtr self) { unset_Name(self); return 0; }
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static IntPtr madeColorSpaceSpecificationSpectrumGenericItem;
            internal static IntPtr ColorSpaceSpecificationSpectrumGenericItem => madeColorSpaceSpecificationSpectrumGenericItem != IntPtr.Zero ? madeColorSpaceSpecificationSpectrumGenericItem : madeColorSpaceSpecificationSpectrumGenericItem = Library.Item("ColorSpaceYIQType", "ColorSpaceSpecificationSpectrumGeneric");
            static PartCalls madeColorSpaceSpecificationSpectrumGeneric;
            internal static PartCalls ColorSpaceSpecificationSpectrumGeneric => madeColorSpaceSpecificationSpectrumGeneric != null ? madeColorSpaceSpecificationSpectrumGeneric : madeColorSpaceSpecificationSpectrumGeneric = new PartCalls { Item = ColorSpaceSpecificationSpectrumGenericItem, Make = h => new ColorSpaceSpecificationSpectrumGeneric(h), Get = Native.get_ColorSpaceSpecificationSpectrumGeneric, Assign = Native.assign_ColorSpaceSpecificationSpectrumGeneric };
        }
    }

    public partial class ColorSpaceYBRType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceYBRType_isset_Name")] internal static extern int isset_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceYBRType_get_Name")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceYBRType_set_Name")] internal static extern int set_Name(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceYBRType_get_Y")] internal static extern double get_Y(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceYBRType_set_Y")] internal static extern int set_Y(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceYBRType_get_B")] internal static extern double get_B(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceYBRType_set_B")] internal static extern int set_B(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceYBRType_get_R")] internal static extern double get_R(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceYBRType_set_R")] internal static extern int set_R(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceYBRType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceYBRType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceYBRType_get_ColorSpaceSpecificationSpectrumGeneric__SWIG_0")] internal static extern IntPtr get_ColorSpaceSpecificationSpectrumGeneric(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceYBRType_assign_ColorSpaceSpecificationSpectrumGeneric")] internal static extern IntPtr assign_ColorSpaceSpecificationSpectrumGeneric(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceYBRType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceYBRType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceYBRType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_ColorSpaceYBRType_unset_Name")] internal static extern void unset_Name(IntPtr self);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetName(IntPtr self) { unset_Name(self); return 0; }
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static IntPtr madeColorSpaceSpecificationSpectrumGenericItem;
            internal static IntPtr ColorSpaceSpecificationSpectrumGenericItem => madeColorSpaceSpecificationSpectrumGenericItem != IntPtr.Zero ? madeColorSpaceSpecificationSpectrumGenericItem : madeColorSpaceSpecificationSpectrumGenericItem = Library.Item("ColorSpaceYBRType", "ColorSpaceSpecificationSpectrumGeneric");
            static PartCalls madeColorSpaceSpecificationSpectrumGeneric;
            internal static PartCalls ColorSpaceSpecificationSpectrumGeneric => madeColorSpaceSpecificationSpectrumGeneric != null ? madeColorSpaceSpecificationSpectrumGeneric : madeColorSpaceSpecificationSpectrumGeneric = new PartCalls { Item = ColorSpaceSpecificationSpectrumGenericItem, Make = h => new ColorSpaceSpecificationSpectrumGeneric(h), Get = Native.get_ColorSpaceSpecificationSpectrumGeneric, Assign = Native.assign_ColorSpaceSpecificationSpectrumGeneric };
        }
    }

    public partial class ColorSpaceRGB
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceRGB__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceRGB")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceRGB__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }
    }

    public partial class ColorSpaceSRGB
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceSRGB__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceSRGB")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceSRGB__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }
    }

    public partial class ColorSpaceAdobeRGB
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceAdobeRGB__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceAdobeRGB")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceAdobeRGB__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }
    }

    public partial class ColorSpaceCMYKPlusN
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceCMYKPlusN__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceCMYKPlusN")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceCMYKPlusN__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }
    }

    public partial class ColorSpaceAdobeWideGamutRGB
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceAdobeWideGamutRGB__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceAdobeWideGamutRGB")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceAdobeWideGamutRGB__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }
    }

    public partial class ColorSpaceHSL
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceHSL__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceHSL")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceHSL__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }
    }

    public partial class ColorSpaceHSV
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceHSV__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceHSV")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceHSV__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }
    }

    public partial class ColorSpaceCMYK
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceCMYK__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceCMYK")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceCMYK__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }
    }

    public partial class ColorSpaceTINTORAOctavantic
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceTINTORAOctavantic__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceTINTORAOctavantic")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceTINTORAOctavantic__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }
    }

    public partial class ColorSpaceYUV
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceYUV__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceYUV")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceYUV__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }
    }

    public partial class ColorSpaceYIQ
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceYIQ__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceYIQ")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceYIQ__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }
    }

    public partial class ColorSpaceYBR
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceYBR__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ColorSpaceYBR")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ColorSpaceYBR__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }
    }

    public partial class SpotColorType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_SpotColorType_get_Name")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SpotColorType_set_Name")] internal static extern int set_Name(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_SpotColorType_get_Percentage")] internal static extern double get_Percentage(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SpotColorType_set_Percentage")] internal static extern int set_Percentage(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_SpotColorType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_SpotColorType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_SpotColorType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_SpotColorType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_SpotColorType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
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
