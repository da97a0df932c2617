// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Loads a palette and looks at all its values, as walk.cpp does.
//
//     Walk.exe <palette.vyr> [points]      prints the sum of all numbers and the processor time in milliseconds;
//                                          points: of spectra asks for each point, instead of all numbers at once

using System;
using System.Globalization;
using System.Linq;
using Vyr;

static class Walk
{
    static double Milliseconds() => System.Diagnostics.Process.GetCurrentProcess().TotalProcessorTime.TotalMilliseconds;

    static int Main(string[] arguments)
    {
        double sum = 0, loaded;
        long units = 0;
        bool byPoint = arguments.Length > 1;
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
                            if (byPoint) sum += spectral.ReflectancePoints.Sum(point => point.Wavelength + point.Value);
                            else sum += spectral.Wavelengths.Sum() + spectral.Values.Sum();
                            break;
                    }
                }
            }
        }
        double walked = Milliseconds();
        Console.Error.WriteLine("C#: load {0:0}, walk {1:0}", loaded, walked - loaded);
        Console.WriteLine(string.Format(CultureInfo.InvariantCulture, "{0:G6} {1}\n{2:0}", sum, units, walked));
        return 0;
    }
}
