// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Makes a palette of two measured spectra, and prints the spectra of a palette as a table: a line for each wavelength.
//
//     mono Spectra.exe <new.vyr>

using System;
using System.Collections.Generic;
using System.Globalization;
using System.Linq;
using Vyr;

static class Program
{
    static void FillHeader(Document document)
    {
        Header header = document.CreatePreamble().CreateHeader();
        header.Creator = "Spectra";
        header.CreatorVersion = "1.0";
        header.Purpose = "Measured spectra";
        header.ChangeHistory.Add(DateTimeOffset.UtcNow);
    }

    static void AddSpectrum(ColorSetType set, string name, double[] wavelengths, double[] values)
    {
        ColorType color = set.Colors.Add();
        color.ColorName = name;
        color.ChangeHistory.Add(DateTimeOffset.UtcNow);
        ColorSpaceSpectralType spectral = color.ColorSpaces.Add().ChooseColorSpaceSpectral();
        spectral.ChangeHistory.Add(DateTimeOffset.UtcNow);
        // The conditions are left open: an element without a value is complete.
        spectral.CreateColorSpaceSpecificationSpectrumSpectral().SetNil();
        spectral.Wavelengths = wavelengths;
        spectral.Values = values;
    }

    static void Make(string path)
    {
        using (var document = new Document())
        {
            FillHeader(document);
            PaletteType palette = document.Palettes.Add();
            palette.PaletteName = "Measured";
            palette.ChangeHistory.Add(DateTimeOffset.UtcNow);
            ColorSetType set = palette.ColorSets.Add();
            set.ColorSetName = "All";
            set.ChangeHistory.Add(DateTimeOffset.UtcNow);
            double[] wavelengths = { 400, 500, 600, 700 };
            AddSpectrum(set, "Warm red", wavelengths, new[] { 0.05, 0.06, 0.55, 0.81 });
            AddSpectrum(set, "Green", wavelengths, new[] { 0.07, 0.42, 0.11, 0.2 });
            document.Save(path);
        }
    }

    static int Main(string[] arguments)
    {
        Make(arguments[0]);
        using (Document document = Document.Load(arguments[0]))
        {
            List<ColorType> colors = document.Palettes[0].ColorSets[0].Colors.ToList();
            List<ColorSpaceSpectralType> spectra = colors.Select(color => color.ColorSpaces[0].AsColorSpaceSpectral).ToList();
            List<double[]> values = spectra.Select(spectrum => spectrum.Values).ToList();
            double[] wavelengths = spectra[0].Wavelengths;
            Console.WriteLine("nm;" + string.Join(";", colors.Select(color => color.ColorName)));
            for (int i = 0; i < wavelengths.Length; ++i)
            {
                IEnumerable<string> cells = values.Select(column => column[i].ToString(CultureInfo.InvariantCulture));
                Console.WriteLine(wavelengths[i] + ";" + string.Join(";", cells));
            }
        }
        return 0;
    }
}
