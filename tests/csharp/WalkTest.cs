// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Looking at all values of a palette of 30 MB from C# takes half as long as the library takes to load it, or so.
//
//     WalkTest.exe <palette.vyr>

using System;
using System.Collections.Generic;
using System.Linq;
using System.Runtime.InteropServices;
using System.Text;
using Vyr;

static class WalkTest
{
    // The runtime's own count of processor time goes in steps of 10 ms.
    [DllImport("libc")] static extern IntPtr clock();
    static double Milliseconds() => (long)clock() / 1000.0;

    /// <summary>The palette 54 times, each colour with a spectrum.</summary>
    static byte[] Large(string path)
    {
        Document document = Document.Load(path);
        ColorSetType set = document.Palettes[0].ColorSets[0];
        foreach (ColorType color in set.Colors)
        {
            ColorSpaceSpectralType spectral = color.ColorSpaces.Add().ChooseColorSpaceSpectral();
            spectral.ChangeHistory.Add("2024-05-01T09:30:00Z");
            spectral.CreateColorSpaceSpecificationSpectrumSpectral().SetNil();
            spectral.Wavelengths = Enumerable.Range(0, 36).Select(i => 380.0 + 10 * i).ToArray();
            spectral.Values = Enumerable.Range(0, 36).Select(i => i / 128.0).ToArray();
        }
        for (int i = 1; i < 54; ++i) document.Palettes[0].ColorSets.Add(set);
        return Encoding.UTF8.GetBytes(document.ToString());
    }

    static double Walk(Document document)
    {
        double sum = 0;
        foreach (PaletteType palette in document.Palettes)
        foreach (ColorSetType set in palette.ColorSets)
        foreach (ColorType color in set.Colors)
        {
            sum += color.ColorName.Length;
            foreach (ColorSpaceChoice value in color.ColorSpaces)
            {
                ColorSpaceSRGBType rgb = value.AsColorSpaceSRGB;
                ColorSpaceSpectralType spectral = value.AsColorSpaceSpectral;
                if (rgb != null) sum += rgb.Red + rgb.Green + rgb.Blue + (int)rgb.ColorDepth;
                if (spectral != null) sum += spectral.Wavelengths.Sum() + spectral.Values.Sum();
            }
        }
        return sum;
    }

    static int Main(string[] arguments)
    {
        byte[] bytes = Large(arguments[0]);
        var ratios = new List<double>();
        for (int i = 0; i < 7; ++i) // what else the machine does disturbs some of them
        {
            double start = Milliseconds();
            using (Document document = Document.Load(bytes))
            {
                double loaded = Milliseconds(), sum = Walk(document), walked = Milliseconds();
                ratios.Add((walked - loaded) / (loaded - start));
                Console.WriteLine("load {0:0}, walk {1:0}, sum {2}", loaded - start, walked - loaded, sum);
            }
        }
        ratios.Sort();
        Check.That(ratios[3] < 1.5, "a walk takes " + ratios[3] + " times as long as a load");
        return 0;
    }
}
