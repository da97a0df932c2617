// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.

using System;
using System.Runtime.InteropServices;

namespace Vyr
{
    public partial class ColorSpaceChoice
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_ColorSpace_getchosen")] internal static extern int getchosen(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_ColorSpace_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_ColorSpace_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_ColorSpace_get_ColorSpaceRecipe__SWIG_0")] internal static extern IntPtr get_ColorSpaceRecipe(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_ColorSpace_assign_ColorSpaceRecipe")] internal static extern IntPtr assign_ColorSpaceRecipe(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_ColorSpace_get_ColorSpaceTINTORA__SWIG_0")] internal static extern IntPtr get_ColorSpaceTINTORA(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_ColorSpace_assign_ColorSpaceTINTORA")] internal static extern IntPtr assign_ColorSpaceTINTORA(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_ColorSpace_get_ColorSpaceGeneric__SWIG_0")] internal static extern IntPtr get_ColorSpaceGeneric(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_ColorSpace_assign_ColorSpaceGeneric")] internal static extern IntPtr assign_ColorSpaceGeneric(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_ColorSpace_get_ColorSpaceEmissiveGeneric__SWIG_0")] internal static extern IntPtr get_ColorSpaceEmissiveGeneric(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_ColorSpace_assign_ColorSpaceEmissiveGeneric")] internal static extern IntPtr assign_ColorSpaceEmissiveGeneric(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_ColorSpace_get_ColorSpaceDensity__SWIG_0")] internal static extern IntPtr get_ColorSpaceDensity(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_ColorSpace_assign_ColorSpaceDensity")] internal static extern IntPtr assign_ColorSpaceDensity(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_ColorSpace_get_ColorSpaceRGB__SWIG_0")] internal static extern IntPtr get_ColorSpaceRGB(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_ColorSpace_assign_ColorSpaceRGB")] internal static extern IntPtr assign_ColorSpaceRGB(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_ColorSpace_get_ColorSpaceSRGB__SWIG_0")] internal static extern IntPtr get_ColorSpaceSRGB(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_ColorSpace_assign_ColorSpaceSRGB")] internal static extern IntPtr assign_ColorSpaceSRGB(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_ColorSpace_get_ColorSpaceAdobeRGB__SWIG_0")] internal static extern IntPtr get_ColorSpaceAdobeRGB(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_ColorSpace_assign_ColorSpaceAdobeRGB")] internal static extern IntPtr assign_ColorSpaceAdobeRGB(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_ColorSpace_get_ColorSpaceCMYKPlusN__SWIG_0")] internal static extern IntPtr get_ColorSpaceCMYKPlusN(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_ColorSpace_assign_ColorSpaceCMYKPlusN")] internal static extern IntPtr assign_ColorSpaceCMYKPlusN(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_ColorSpace_get_ColorSpaceAdobeWideGamutRGB__SWIG_0")] internal static extern IntPtr get_ColorSpaceAdobeWideGamutRGB(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_ColorSpace_assign_ColorSpaceAdobeWideGamutRGB")] internal static extern IntPtr assign_ColorSpaceAdobeWideGamutRGB(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_ColorSpace_get_ColorSpaceSpectral__SWIG_0")] internal static extern IntPtr get_ColorSpaceSpectral(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_ColorSpace_assign_ColorSpaceSpectral")] internal static extern IntPtr assign_ColorSpaceSpectral(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_ColorSpace_get_ColorSpaceEmissiveSpectral__SWIG_0")] internal static extern IntPtr get_ColorSpaceEmissiveSpectral(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_ColorSpace_assign_ColorSpaceEmissiveSpectral")] internal static extern IntPtr assign_ColorSpaceEmissiveSpectral(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_ColorSpace_get_ColorSpaceCIELab__SWIG_0")] internal static extern IntPtr get_ColorSpaceCIELab(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_ColorSpace_assign_ColorSpaceCIELab")] internal static extern IntPtr assign_ColorSpaceCIELab(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_ColorSpace_get_ColorSpaceCIELCh__SWIG_0")] internal static extern IntPtr get_ColorSpaceCIELCh(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_ColorSpace_assign_ColorSpaceCIELCh")] internal static extern IntPtr assign_ColorSpaceCIELCh(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_ColorSpace_get_ColorSpaceCIEXYZ__SWIG_0")] internal static extern IntPtr get_ColorSpaceCIEXYZ(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_ColorSpace_assign_ColorSpaceCIEXYZ")] internal static extern IntPtr assign_ColorSpaceCIEXYZ(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_ColorSpace_get_ColorSpaceEmissiveCIEXYZ__SWIG_0")] internal static extern IntPtr get_ColorSpaceEmissiveCIEXYZ(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_ColorSpace_assign_ColorSpaceEmissiveCIEXYZ")] internal static extern IntPtr assign_ColorSpaceEmissiveCIEXYZ(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_ColorSpace_get_ColorSpaceCIExyY__SWIG_0")] internal static extern IntPtr get_ColorSpaceCIExyY(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_ColorSpace_assign_ColorSpaceCIExyY")] internal static extern IntPtr assign_ColorSpaceCIExyY(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_ColorSpace_get_ColorSpaceEmissiveCIExyY__SWIG_0")] internal static extern IntPtr get_ColorSpaceEmissiveCIExyY(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_ColorSpace_assign_ColorSpaceEmissiveCIExyY")] internal static extern IntPtr assign_ColorSpaceEmissiveCIExyY(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_ColorSpace_get_ColorSpaceCIELuv__SWIG_0")] internal static extern IntPtr get_ColorSpaceCIELuv(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_ColorSpace_assign_ColorSpaceCIELuv")] internal static extern IntPtr assign_ColorSpaceCIELuv(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_ColorSpace_get_ColorSpaceHSL__SWIG_0")] internal static extern IntPtr get_ColorSpaceHSL(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_ColorSpace_assign_ColorSpaceHSL")] internal static extern IntPtr assign_ColorSpaceHSL(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_ColorSpace_get_ColorSpaceHSV__SWIG_0")] internal static extern IntPtr get_ColorSpaceHSV(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_ColorSpace_assign_ColorSpaceHSV")] internal static extern IntPtr assign_ColorSpaceHSV(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_ColorSpace_get_ColorSpaceCMYK__SWIG_0")] internal static extern IntPtr get_ColorSpaceCMYK(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_ColorSpace_get_ColorSpaceTINTORAOctavantic__SWIG_0")] internal static extern IntPtr get_ColorSpaceTINTORAOctavantic(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_ColorSpace_assign_ColorSpaceTINTORAOctavantic")] internal static extern IntPtr assign_ColorSpaceTINTORAOctavantic(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_ColorSpace_get_ColorSpaceYUV__SWIG_0")] internal static extern IntPtr get_ColorSpaceYUV(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_ColorSpace_assign_ColorSpaceYUV")] internal static extern IntPtr assign_ColorSpaceYUV(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_ColorSpace_get_ColorSpaceYIQ__SWIG_0")] internal static extern IntPtr get_ColorSpaceYIQ(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_ColorSpace_assign_ColorSpaceYIQ")] internal static extern IntPtr assign_ColorSpaceYIQ(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_ColorSpace_get_ColorSpaceYBR__SWIG_0")] internal static extern IntPtr get_ColorSpaceYBR(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_ColorSpace_assign_ColorSpaceYBR")] internal static extern IntPtr assign_ColorSpaceYBR(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_ColorSpace_get_ColorSpaceNCS__SWIG_0")] internal static extern IntPtr get_ColorSpaceNCS(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_ColorSpace_assign_ColorSpaceNCS")] internal static extern IntPtr assign_ColorSpaceNCS(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_ColorSpace_get_ColorSpaceMunsell__SWIG_0")] internal static extern IntPtr get_ColorSpaceMunsell(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_ColorSpace_assign_ColorSpaceMunsell")] internal static extern IntPtr assign_ColorSpaceMunsell(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_sg_ColorSpace__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_sg_ColorSpace")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_sg_ColorSpace__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static PartCalls madeColorSpaceRecipe;
            internal static PartCalls ColorSpaceRecipe => madeColorSpaceRecipe != null ? madeColorSpaceRecipe : madeColorSpaceRecipe = new PartCalls { Make = h => new ColorSpaceRecipeType(h), Get = Native.get_ColorSpaceRecipe, Assign = Native.assign_ColorSpaceRecipe };
            static PartCalls madeColorSpaceTINTORA;
            internal static PartCalls ColorSpaceTINTORA => madeColorSpaceTINTORA != null ? madeColorSpaceTINTORA : madeColorSpaceTINTORA = new PartCalls { Make = h => new ColorSpaceTINTORAType(h), Get = Native.get_ColorSpaceTINTORA, Assign = Native.assign_ColorSpaceTINTORA };
            static PartCalls madeColorSpaceGeneric;
            internal static PartCalls ColorSpaceGeneric => madeColorSpaceGeneric != null ? madeColorSpaceGeneric : madeColorSpaceGeneric = new PartCalls { Make = h => new ColorSpaceGenericType(h), Get = Native.get_ColorSpaceGeneric, Assign = Native.assign_ColorSpaceGeneric };
            static PartCalls madeColorSpaceEmissiveGeneric;
            internal static PartCalls ColorSpaceEmissiveGeneric => madeColorSpaceEmissiveGeneric != null ? madeColorSpaceEmissiveGeneric : madeColorSpaceEmissiveGeneric = new PartCalls { Make = h => new ColorSpaceEmissiveGenericType(h), Get = Native.get_ColorSpaceEmissiveGeneric, Assign = Native.assign_ColorSpaceEmissiveGeneric };
            static PartCalls madeColorSpaceDensity;
            internal static PartCalls ColorSpaceDensity => madeColorSpaceDensity != null ? madeColorSpaceDensity : madeColorSpaceDensity = new PartCalls { Make = h => new ColorSpaceDensityType(h), Get = Native.get_ColorSpaceDensity, Assign = Native.assign_ColorSpaceDensity };
            static PartCalls madeColorSpaceRGB;
            internal static PartCalls ColorSpaceRGB => madeColorSpaceRGB != null ? madeColorSpaceRGB : madeColorSpaceRGB = new PartCalls { Make = h => new ColorSpaceRGBType(h), Get = Native.get_ColorSpaceRGB, Assign = Native.assign_ColorSpaceRGB };
            static PartCalls madeColorSpaceSRGB;
            internal static PartCalls ColorSpaceSRGB => madeColorSpaceSRGB != null ? madeColorSpaceSRGB : madeColorSpaceSRGB = new PartCalls { Make = h => new ColorSpaceSRGBType(h), Get = Native.get_ColorSpaceSRGB, Assign = Native.assign_ColorSpaceSRGB };
            static PartCalls madeColorSpaceAdobeRGB;
            internal static PartCalls ColorSpaceAdobeRGB => madeColorSpaceAdobeRGB != null ? madeColorSpaceAdobeRGB : madeColorSpaceAdobeRGB = new PartCalls { Make = h => new ColorSpaceAdobeRGBType(h), Get = Native.get_ColorSpaceAdobeRGB, Assign = Native.assign_ColorSpaceAdobeRGB };
            static PartCalls madeColorSpaceCMYKPlusN;
            internal static PartCalls ColorSpaceCMYKPlusN => madeColorSpaceCMYKPlusN != null ? madeColorSpaceCMYKPlusN : madeColorSpaceCMYKPlusN = new PartCalls { Make = h => new ColorSpaceCMYKPlusNType(h), Get = Native.get_ColorSpaceCMYKPlusN, Assign = Native.assign_ColorSpaceCMYKPlusN };
            static PartCalls madeColorSpaceAdobeWideGamutRGB;
            internal static PartCalls ColorSpaceAdobeWideGamutRGB => madeColorSpaceAdobeWideGamutRGB != null ? madeColorSpaceAdobeWideGamutRGB : madeColorSpaceAdobeWideGamutRGB = new PartCalls { Make = h => new ColorSpaceAdobeWideGamutRGBType(h), Get = Native.get_ColorSpaceAdobeWideGamutRGB, Assign = Native.assign_ColorSpaceAdobeWideGamutRGB };
            static PartCalls madeColorSpaceSpectral;
            internal static PartCalls ColorSpaceSpectral => madeColorSpaceSpectral != null ? madeColorSpaceSpectral : madeColorSpaceSpectral = new PartCalls { Make = h => new ColorSpaceSpectralType(h), Get = Native.get_ColorSpaceSpectral, Assign = Native.assign_ColorSpaceSpectral };
            static PartCalls madeColorSpaceEmissiveSpectral;
            internal static PartCalls ColorSpaceEmissiveSpectral => madeColorSpaceEmissiveSpectral != null ? madeColorSpaceEmissiveSpectral : madeColorSpaceEmissiveSpectral = new PartCalls { Make = h => new ColorSpaceEmissiveSpectralType(h), Get = Native.get_ColorSpaceEmissiveSpectral, Assign = Native.assign_ColorSpaceEmissiveSpectral };
            static PartCalls madeColorSpaceCIELab;
            internal static PartCalls ColorSpaceCIELab => madeColorSpaceCIELab != null ? madeColorSpaceCIELab : madeColorSpaceCIELab = new PartCalls { Make = h => new ColorSpaceCIELabType(h), Get = Native.get_ColorSpaceCIELab, Assign = Native.assign_ColorSpaceCIELab };
            static PartCalls madeColorSpaceCIELCh;
            internal static PartCalls ColorSpaceCIELCh => madeColorSpaceCIELCh != null ? madeColorSpaceCIELCh : madeColorSpaceCIELCh = new PartCalls { Make = h => new ColorSpaceCIELChType(h), Get = Native.get_ColorSpaceCIELCh, Assign = Native.assign_ColorSpaceCIELCh };
            static PartCalls madeColorSpaceCIEXYZ;
            internal static PartCalls ColorSpaceCIEXYZ => madeColorSpaceCIEXYZ != null ? madeColorSpaceCIEXYZ : madeColorSpaceCIEXYZ = new PartCalls { Make = h => new ColorSpaceCIEXYZType(h), Get = Native.get_ColorSpaceCIEXYZ, Assign = Native.assign_ColorSpaceCIEXYZ };
            static PartCalls madeColorSpaceEmissiveCIEXYZ;
            internal static PartCalls ColorSpaceEmissiveCIEXYZ => madeColorSpaceEmissiveCIEXYZ != null ? madeColorSpaceEmissiveCIEXYZ : madeColorSpaceEmissiveCIEXYZ = new PartCalls { Make = h => new ColorSpaceEmissiveCIEXYZType(h), Get = Native.get_ColorSpaceEmissiveCIEXYZ, Assign = Native.assign_ColorSpaceEmissiveCIEXYZ };
            static PartCalls madeColorSpaceCIExyY;
            internal static PartCalls ColorSpaceCIExyY => madeColorSpaceCIExyY != null ? madeColorSpaceCIExyY : madeColorSpaceCIExyY = new PartCalls { Make = h => new ColorSpaceCIExyYType(h), Get = Native.get_ColorSpaceCIExyY, Assign = Native.assign_ColorSpaceCIExyY };
            static PartCalls madeColorSpaceEmissiveCIExyY;
            internal static PartCalls ColorSpaceEmissiveCIExyY => madeColorSpaceEmissiveCIExyY != null ? madeColorSpaceEmissiveCIExyY : madeColorSpaceEmissiveCIExyY = new PartCalls { Make = h => new ColorSpaceEmissiveCIExyYType(h), Get = Native.get_ColorSpaceEmissiveCIExyY, Assign = Native.assign_ColorSpaceEmissiveCIExyY };
            static PartCalls madeColorSpaceCIELuv;
            internal static PartCalls ColorSpaceCIELuv => madeColorSpaceCIELuv != null ? madeColorSpaceCIELuv : madeColorSpaceCIELuv = new PartCalls { Make = h => new ColorSpaceCIELuvType(h), Get = Native.get_ColorSpaceCIELuv, Assign = Native.assign_ColorSpaceCIELuv };
            static PartCalls madeColorSpaceHSL;
            internal static PartCalls ColorSpaceHSL => madeColorSpaceHSL != null ? madeColorSpaceHSL : madeColorSpaceHSL = new PartCalls { Make = h => new ColorSpaceHSLType(h), Get = Native.get_ColorSpaceHSL, Assign = Native.assign_ColorSpaceHSL };
            static PartCalls madeColorSpaceHSV;
            internal static PartCalls ColorSpaceHSV => madeColorSpaceHSV != null ? madeColorSpaceHSV : madeColorSpaceHSV = new PartCalls { Make = h => new ColorSpaceHSVType(h), Get = Native.get_ColorSpaceHSV, Assign = Native.assign_ColorSpaceHSV };
            static IntPtr madeColorSpaceCMYKItem;
            internal static IntPtr ColorSpaceCMYKItem => madeColorSpaceCMYKItem != IntPtr.Zero ? madeColorSpaceCMYKItem : madeColorSpaceCMYKItem = Library.Item("sg_ColorSpace", "ColorSpaceCMYK");
            static PartCalls madeColorSpaceCMYK;
            internal static PartCalls ColorSpaceCMYK => madeColorSpaceCMYK != null ? madeColorSpaceCMYK : madeColorSpaceCMYK = new PartCalls { Make = h => ColorSpaceCMYKType.Of(h), Get = Native.get_ColorSpaceCMYK, Assign = (p, v) => Library.VyrModule_AssignAlternative(p, ColorSpaceCMYKItem, v) };
            static PartCalls madeColorSpaceTINTORAOctavantic;
            internal static PartCalls ColorSpaceTINTORAOctavantic => madeColorSpaceTINTORAOctavantic != null ? madeColorSpaceTINTORAOctavantic : madeColorSpaceTINTORAOctavantic = new PartCalls { Make = h => new ColorSpaceTINTORAOctavanticType(h), Get = Native.get_ColorSpaceTINTORAOctavantic, Assign = Native.assign_ColorSpaceTINTORAOctavantic };
            static PartCalls madeColorSpaceYUV;
            internal static PartCalls ColorSpaceYUV => madeColorSpaceYUV != null ? madeColorSpaceYUV : madeColorSpaceYUV = new PartCalls { Make = h => new ColorSpaceYUVType(h), Get = Native.get_ColorSpaceYUV, Assign = Native.assign_ColorSpaceYUV };
            static PartCalls madeColorSpaceYIQ;
            internal static PartCalls ColorSpaceYIQ => madeColorSpaceYIQ != null ? madeColorSpaceYIQ : madeColorSpaceYIQ = new PartCalls { Make = h => new ColorSpaceYIQType(h), Get = Native.get_ColorSpaceYIQ, Assign = Native.assign_ColorSpaceYIQ };
            static PartCalls madeColorSpaceYBR;
            internal static PartCalls ColorSpaceYBR => madeColorSpaceYBR != null ? madeColorSpaceYBR : madeColorSpaceYBR = new PartCalls { Make = h => new ColorSpaceYBRType(h), Get = Native.get_ColorSpaceYBR, Assign = Native.assign_ColorSpaceYBR };
            static PartCalls madeColorSpaceNCS;
            internal static PartCalls ColorSpaceNCS => madeColorSpaceNCS != null ? madeColorSpaceNCS : madeColorSpaceNCS = new PartCalls { Make = h => new ColorSpaceNCSType(h), Get = Native.get_ColorSpaceNCS, Assign = Native.assign_ColorSpaceNCS };
            static PartCalls madeColorSpaceMunsell;
            internal static PartCalls ColorSpaceMunsell => madeColorSpaceMunsell != null ? madeColorSpaceMunsell : madeColorSpaceMunsell = new PartCalls { Make = h => new ColorSpaceMunsellType(h), Get = Native.get_ColorSpaceMunsell, Assign = Native.assign_ColorSpaceMunsell };
        }
    }

    public partial class SubstrateChoice
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_Substrate_getchosen")] internal static extern int getchosen(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_Substrate_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_Substrate_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_Substrate_get_SubstratePaper__SWIG_0")] internal static extern IntPtr get_SubstratePaper(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_Substrate_assign_SubstratePaper")] internal static extern IntPtr assign_SubstratePaper(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_Substrate_get_SubstrateGeneric__SWIG_0")] internal static extern IntPtr get_SubstrateGeneric(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_Substrate_assign_SubstrateGeneric")] internal static extern IntPtr assign_SubstrateGeneric(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_Substrate_get_SubstrateMetal__SWIG_0")] internal static extern IntPtr get_SubstrateMetal(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_Substrate_assign_SubstrateMetal")] internal static extern IntPtr assign_SubstrateMetal(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_Substrate_get_SubstratePlastic__SWIG_0")] internal static extern IntPtr get_SubstratePlastic(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_Substrate_assign_SubstratePlastic")] internal static extern IntPtr assign_SubstratePlastic(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_Substrate_get_SubstrateWood__SWIG_0")] internal static extern IntPtr get_SubstrateWood(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_Substrate_assign_SubstrateWood")] internal static extern IntPtr assign_SubstrateWood(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_Substrate_get_SubstrateVinyl__SWIG_0")] internal static extern IntPtr get_SubstrateVinyl(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_Substrate_assign_SubstrateVinyl")] internal static extern IntPtr assign_SubstrateVinyl(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_Substrate_get_SubstrateTile__SWIG_0")] internal static extern IntPtr get_SubstrateTile(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_Substrate_assign_SubstrateTile")] internal static extern IntPtr assign_SubstrateTile(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_Substrate_get_SubstrateFilm__SWIG_0")] internal static extern IntPtr get_SubstrateFilm(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_Substrate_assign_SubstrateFilm")] internal static extern IntPtr assign_SubstrateFilm(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_Substrate_get_SubstrateTextile__SWIG_0")] internal static extern IntPtr get_SubstrateTextile(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_Substrate_assign_SubstrateTextile")] internal static extern IntPtr assign_SubstrateTextile(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_sg_Substrate__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_sg_Substrate")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_sg_Substrate__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static PartCalls madeSubstratePaper;
            internal static PartCalls SubstratePaper => madeSubstratePaper != null ? madeSubstratePaper : madeSubstratePaper = new PartCalls { Make = h => new SubstratePaperType(h), Get = Native.get_SubstratePaper, Assign = Native.assign_SubstratePaper };
            static PartCalls madeSubstrateGeneric;
            internal static PartCalls SubstrateGeneric => madeSubstrateGeneric != null ? madeSubstrateGeneric : madeSubstrateGeneric = new PartCalls { Make = h => new SubstrateGenericType(h), Get = Native.get_SubstrateGeneric, Assign = Native.assign_SubstrateGeneric };
            static PartCalls madeSubstrateMetal;
            internal static PartCalls SubstrateMetal => madeSubstrateMetal != null ? madeSubstrateMetal : madeSubstrateMetal = new PartCalls { Make = h => new SubstrateMetalType(h), Get = Native.get_SubstrateMetal, Assign = Native.assign_SubstrateMetal };
            static PartCalls madeSubstratePlastic;
            internal static PartCalls SubstratePlastic => madeSubstratePlastic != null ? madeSubstratePlastic : madeSubstratePlastic = new PartCalls { Make = h => new SubstratePlasticType(h), Get = Native.get_SubstratePlastic, Assign = Native.assign_SubstratePlastic };
            static PartCalls madeSubstrateWood;
            internal static PartCalls SubstrateWood => madeSubstrateWood != null ? madeSubstrateWood : madeSubstrateWood = new PartCalls { Make = h => new SubstrateWoodType(h), Get = Native.get_SubstrateWood, Assign = Native.assign_SubstrateWood };
            static PartCalls madeSubstrateVinyl;
            internal static PartCalls SubstrateVinyl => madeSubstrateVinyl != null ? madeSubstrateVinyl : madeSubstrateVinyl = new PartCalls { Make = h => new SubstrateVinylType(h), Get = Native.get_SubstrateVinyl, Assign = Native.assign_SubstrateVinyl };
            static PartCalls madeSubstrateTile;
            internal static PartCalls SubstrateTile => madeSubstrateTile != null ? madeSubstrateTile : madeSubstrateTile = new PartCalls { Make = h => new SubstrateTileType(h), Get = Native.get_SubstrateTile, Assign = Native.assign_SubstrateTile };
            static PartCalls madeSubstrateFilm;
            internal static PartCalls SubstrateFilm => madeSubstrateFilm != null ? madeSubstrateFilm : madeSubstrateFilm = new PartCalls { Make = h => new SubstrateFilmType(h), Get = Native.get_SubstrateFilm, Assign = Native.assign_SubstrateFilm };
            static PartCalls madeSubstrateTextile;
            internal static PartCalls SubstrateTextile => madeSubstrateTextile != null ? madeSubstrateTextile : madeSubstrateTextile = new PartCalls { Make = h => new SubstrateTextileType(h), Get = Native.get_SubstrateTextile, Assign = Native.assign_SubstrateTextile };
        }
    }

    public partial class SampleChoice
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_Sample_getchosen")] internal static extern int getchosen(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_Sample_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_Sample_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_Sample_get_SampleSpot__SWIG_0")] internal static extern IntPtr get_SampleSpot(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_Sample_assign_SampleSpot")] internal static extern IntPtr assign_SampleSpot(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_Sample_get_SampleTarget__SWIG_0")] internal static extern IntPtr get_SampleTarget(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_Sample_assign_SampleTarget")] internal static extern IntPtr assign_SampleTarget(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_sg_Sample__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_sg_Sample")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_sg_Sample__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static PartCalls madeSampleSpot;
            internal static PartCalls SampleSpot => madeSampleSpot != null ? madeSampleSpot : madeSampleSpot = new PartCalls { Make = h => new SampleSpotType(h), Get = Native.get_SampleSpot, Assign = Native.assign_SampleSpot };
            static PartCalls madeSampleTarget;
            internal static PartCalls SampleTarget => madeSampleTarget != null ? madeSampleTarget : madeSampleTarget = new PartCalls { Make = h => new SampleTargetType(h), Get = Native.get_SampleTarget, Assign = Native.assign_SampleTarget };
        }
    }

    public partial class FunctionChoice
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_Function_getchosen")] internal static extern int getchosen(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_Function_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_Function_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_Function_get_Function__SWIG_0")] internal static extern IntPtr get_Function(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_Function_get_FunctionGeneric__SWIG_0")] internal static extern IntPtr get_FunctionGeneric(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_Function_assign_FunctionGeneric")] internal static extern IntPtr assign_FunctionGeneric(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_Function_get_FunctionDE__SWIG_0")] internal static extern IntPtr get_FunctionDE(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_Function_assign_FunctionDE")] internal static extern IntPtr assign_FunctionDE(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_Function_get_FunctionMeanDE__SWIG_0")] internal static extern IntPtr get_FunctionMeanDE(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_Function_assign_FunctionMeanDE")] internal static extern IntPtr assign_FunctionMeanDE(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_Function_get_FunctionDE94__SWIG_0")] internal static extern IntPtr get_FunctionDE94(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_Function_assign_FunctionDE94")] internal static extern IntPtr assign_FunctionDE94(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_Function_get_FunctionDE2000__SWIG_0")] internal static extern IntPtr get_FunctionDE2000(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_Function_assign_FunctionDE2000")] internal static extern IntPtr assign_FunctionDE2000(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_Function_get_FunctionDECMC__SWIG_0")] internal static extern IntPtr get_FunctionDECMC(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_Function_assign_FunctionDECMC")] internal static extern IntPtr assign_FunctionDECMC(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_Function_get_FunctionStdDevX__SWIG_0")] internal static extern IntPtr get_FunctionStdDevX(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_Function_assign_FunctionStdDevX")] internal static extern IntPtr assign_FunctionStdDevX(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_Function_get_FunctionStdDevY__SWIG_0")] internal static extern IntPtr get_FunctionStdDevY(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_Function_assign_FunctionStdDevY")] internal static extern IntPtr assign_FunctionStdDevY(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_Function_get_FunctionStdDevZ__SWIG_0")] internal static extern IntPtr get_FunctionStdDevZ(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_Function_assign_FunctionStdDevZ")] internal static extern IntPtr assign_FunctionStdDevZ(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_Function_get_FunctionStdDevL__SWIG_0")] internal static extern IntPtr get_FunctionStdDevL(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_Function_assign_FunctionStdDevL")] internal static extern IntPtr assign_FunctionStdDevL(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_Function_get_FunctionStdDevA__SWIG_0")] internal static extern IntPtr get_FunctionStdDevA(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_Function_assign_FunctionStdDevA")] internal static extern IntPtr assign_FunctionStdDevA(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_Function_get_FunctionStdDevB__SWIG_0")] internal static extern IntPtr get_FunctionStdDevB(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_Function_assign_FunctionStdDevB")] internal static extern IntPtr assign_FunctionStdDevB(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_Function_get_FunctionStdDevC__SWIG_0")] internal static extern IntPtr get_FunctionStdDevC(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_Function_assign_FunctionStdDevC")] internal static extern IntPtr assign_FunctionStdDevC(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_Function_get_FunctionStdDevH__SWIG_0")] internal static extern IntPtr get_FunctionStdDevH(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_Function_assign_FunctionStdDevH")] internal static extern IntPtr assign_FunctionStdDevH(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_Function_get_FunctionAverageStdDevL__SWIG_0")] internal static extern IntPtr get_FunctionAverageStdDevL(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_Function_assign_FunctionAverageStdDevL")] internal static extern IntPtr assign_FunctionAverageStdDevL(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_Function_get_FunctionAverageStdDevA__SWIG_0")] internal static extern IntPtr get_FunctionAverageStdDevA(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_Function_assign_FunctionAverageStdDevA")] internal static extern IntPtr assign_FunctionAverageStdDevA(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_Function_get_FunctionAverageStdDevB__SWIG_0")] internal static extern IntPtr get_FunctionAverageStdDevB(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_sg_Function_assign_FunctionAverageStdDevB")] internal static extern IntPtr assign_FunctionAverageStdDevB(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_sg_Function__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_sg_Function")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_sg_Function__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static IntPtr madeFunctionItem;
            internal static IntPtr FunctionItem => madeFunctionItem != IntPtr.Zero ? madeFunctionItem : madeFunctionItem = Library.Item("sg_Function", "Function");
            static PartCalls madeFunction;
            internal static PartCalls Function => madeFunction != null ? madeFunction : madeFunction = new PartCalls { Make = h => FunctionType.Of(h), Get = Native.get_Function, Assign = (p, v) => Library.VyrModule_AssignAlternative(p, FunctionItem, v) };
            static PartCalls madeFunctionGeneric;
            internal static PartCalls FunctionGeneric => madeFunctionGeneric != null ? madeFunctionGeneric : madeFunctionGeneric = new PartCalls { Make = h => new FunctionGenericType(h), Get = Native.get_FunctionGeneric, Assign = Native.assign_FunctionGeneric };
            static PartCalls madeFunctionDE;
            internal static PartCalls FunctionDE => madeFunctionDE != null ? madeFunctionDE : madeFunctionDE = new PartCalls { Make = h => new FunctionDEType(h), Get = Native.get_FunctionDE, Assign = Native.assign_FunctionDE };
            static PartCalls madeFunctionMeanDE;
            internal static PartCalls FunctionMeanDE => madeFunctionMeanDE != null ? madeFunctionMeanDE : madeFunctionMeanDE = new PartCalls { Make = h => new FunctionMeanDEType(h), Get = Native.get_FunctionMeanDE, Assign = Native.assign_FunctionMeanDE };
            static PartCalls madeFunctionDE94;
            internal static PartCalls FunctionDE94 => madeFunctionDE94 != null ? madeFunctionDE94 : madeFunctionDE94 = new PartCalls { Make = h => new FunctionDE94Type(h), Get = Native.get_FunctionDE94, Assign = Native.assign_FunctionDE94 };
            static PartCalls madeFunctionDE2000;
            internal static PartCalls FunctionDE2000 => madeFunctionDE2000 != null ? madeFunctionDE2000 : madeFunctionDE2000 = new PartCalls { Make = h => new FunctionDE2000Type(h), Get = Native.get_FunctionDE2000, Assign = Native.assign_FunctionDE2000 };
            static PartCalls madeFunctionDECMC;
            internal static PartCalls FunctionDECMC => madeFunctionDECMC != null ? madeFunctionDECMC : madeFunctionDECMC = new PartCalls { Make = h => new FunctionDEcmcType(h), Get = Native.get_FunctionDECMC, Assign = Native.assign_FunctionDECMC };
            static PartCalls madeFunctionStdDevX;
            internal static PartCalls FunctionStdDevX => madeFunctionStdDevX != null ? madeFunctionStdDevX : madeFunctionStdDevX = new PartCalls { Make = h => new FunctionStdDevXType(h), Get = Native.get_FunctionStdDevX, Assign = Native.assign_FunctionStdDevX };
            static PartCalls madeFunctionStdDevY;
            internal static PartCalls FunctionStdDevY => madeFunctionStdDevY != null ? madeFunctionStdDevY : madeFunctionStdDevY = new PartCalls { Make = h => new FunctionStdDevYType(h), Get = Native.get_FunctionStdDevY, Assign = Native.assign_FunctionStdDevY };
            static PartCalls madeFunctionStdDevZ;
            internal static PartCalls FunctionStdDevZ => madeFunctionStdDevZ != null ? madeFunctionStdDevZ : madeFunctionStdDevZ = new PartCalls { Make = h => new FunctionStdDevZType(h), Get = Native.get_FunctionStdDevZ, Assign = Native.assign_FunctionStdDevZ };
            static PartCalls madeFunctionStdDevL;
            internal static PartCalls FunctionStdDevL => madeFunctionStdDevL != null ? madeFunctionStdDevL : madeFunctionStdDevL = new PartCalls { Make = h => new FunctionStdDevLType(h), Get = Native.get_FunctionStdDevL, Assign = Native.assign_FunctionStdDevL };
            static PartCalls madeFunctionStdDevA;
            internal static PartCalls FunctionStdDevA => madeFunctionStdDevA != null ? madeFunctionStdDevA : madeFunctionStdDevA = new PartCalls { Make = h => new FunctionStdDevAType(h), Get = Native.get_FunctionStdDevA, Assign = Native.assign_FunctionStdDevA };
            static PartCalls madeFunctionStdDevB;
            internal static PartCalls FunctionStdDevB => madeFunctionStdDevB != null ? madeFunctionStdDevB : madeFunctionStdDevB = new PartCalls { Make = h => new FunctionStdDevBType(h), Get = Native.get_FunctionStdDevB, Assign = Native.assign_FunctionStdDevB };
            static PartCalls madeFunctionStdDevC;
            internal static PartCalls FunctionStdDevC => madeFunctionStdDevC != null ? madeFunctionStdDevC : madeFunctionStdDevC = new PartCalls { Make = h => new FunctionStdDevCType(h), Get = Native.get_FunctionStdDevC, Assign = Native.assign_FunctionStdDevC };
            static PartCalls madeFunctionStdDevH;
            internal static PartCalls FunctionStdDevH => madeFunctionStdDevH != null ? madeFunctionStdDevH : madeFunctionStdDevH = new PartCalls { Make = h => new FunctionStdDevHType(h), Get = Native.get_FunctionStdDevH, Assign = Native.assign_FunctionStdDevH };
            static PartCalls madeFunctionAverageStdDevL;
            internal static PartCalls FunctionAverageStdDevL => madeFunctionAverageStdDevL != null ? madeFunctionAverageStdDevL : madeFunctionAverageStdDevL = new PartCalls { Make = h => new FunctionAverageStdDevLType(h), Get = Native.get_FunctionAverageStdDevL, Assign = Native.assign_FunctionAverageStdDevL };
            static PartCalls madeFunctionAverageStdDevA;
            internal static PartCalls FunctionAverageStdDevA => madeFunctionAverageStdDevA != null ? madeFunctionAverageStdDevA : madeFunctionAverageStdDevA = new PartCalls { Make = h => new FunctionAverageStdDevAType(h), Get = Native.get_FunctionAverageStdDevA, Assign = Native.assign_FunctionAverageStdDevA };
            static PartCalls madeFunctionAverageStdDevB;
            internal static PartCalls FunctionAverageStdDevB => madeFunctionAverageStdDevB != null ? madeFunctionAverageStdDevB : madeFunctionAverageStdDevB = new PartCalls { Make = h => new FunctionAverageStdDevBType(h), Get = Native.get_FunctionAverageStdDevB, Assign = Native.assign_FunctionAverageStdDevB };
        }
    }
}
