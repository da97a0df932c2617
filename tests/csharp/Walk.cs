// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Loads a palette and looks at all its values, as walk.cpp does.
//
//     Walk.exe <palette.vyr>      prints the sum of all numbers and the processor time in milliseconds

using System;
using System.Globalization;
using System.Runtime.InteropServices;
using Vyr;

static class Walk
{
    // TotalProcessorTime counts in steps of 10 ms.
    [DllImport("libc")] static extern IntPtr clock();
    static double Milliseconds() => (long)clock() / 1000.0;

    static int Main(string[] arguments)
    {
        double sum = 0, started = Milliseconds(), loaded, walked;
        long units = 0;
        using (Document document = Document.Load(arguments[0]))
        {
            loaded = Milliseconds();
            foreach (PaletteType palette in document.Palettes)
            foreach (ColorSetType set in palette.ColorSets)
            foreach (ColorType color in set.Colors)
            {
                units += color.ColorName.Length;
                foreach (ColorSpaceChoice value in color.ColorSpaces)
                {
                    switch (value.Chosen)
                    {
                        case ColorSpaceChoice.Alternative.ColorSpaceSRGB:
                            ColorSpaceSRGBType rgb = value.AsColorSpaceSRGB;
                            sum += rgb.Red + rgb.Green + rgb.Blue + (int)rgb.ColorDepth;
                            break;
                        case ColorSpaceChoice.Alternative.ColorSpaceCIELab:
                            ColorSpaceCIELabType lab = value.AsColorSpaceCIELab;
                            sum += lab.L + lab.A + lab.B + (int)lab.ColorSpaceSpecificationSpectrumTristimulus.FieldOfView;
                            break;
                        case ColorSpaceChoice.Alternative.ColorSpaceSpectral:
                            ColorSpaceSpectralType spectral = value.AsColorSpaceSpectral;
                            foreach (double wavelength in spectral.Wavelengths) sum += wavelength;
                            foreach (double reflectance in spectral.Values) sum += reflectance;
                            break;
                    }
                }
            }
            walked = Milliseconds();
        }
        Console.Error.WriteLine("C#: start {0:0}, load {1:0}, walk {2:0}, dispose {3:0}", started, loaded - started,
                                walked - loaded, Milliseconds() - walked);
        Console.WriteLine(string.Format(CultureInfo.InvariantCulture, "{0:G6} {1}\n{2:0}", sum, units, walked));
        return 0;
    }
}
