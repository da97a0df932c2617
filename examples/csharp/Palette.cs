// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Loads a palette, prints its first colours, changes one, and saves the palette as a container.
//
//     mono Palette.exe <palette.vyr> <new.vyr or .vyrz>

using System;
using System.Linq;
using Vyr;

static class Program
{
    static int Main(string[] arguments)
    {
        try
        {
            using (Document document = Document.Load(arguments[0]))
            {
                PaletteType palette = document.Palettes[0];
                ColorSetType set = palette.ColorSets[0];
                Console.WriteLine("{0}, {1}: {2} colours", palette.PaletteName, set.ColorSetName, set.Colors.Count);
                foreach (ColorType color in set.Colors.Take(3))
                    Console.WriteLine("{0}: red {1:0.####}", color.ColorName, color.ColorSpaces[0].AsColorSpaceSRGB?.Red);

                ColorType first = set.Colors[0];
                first.ColorName = "bleu pâle 🎨";
                first.ColorSpaces[0].ChooseColorSpaceSRGB().Red = 0.25;
                first.ChangeHistory.Add(DateTimeOffset.UtcNow);
                document.Save(arguments[1]);
            }
            return 0;
        }
        catch (VyrException failure) when (failure.Report != null)
        {
            foreach (Fault fault in failure.Report.Faults)
                Console.WriteLine("line {0}: {1}\n    {2}: {3}", fault.Line, fault.Path, fault.Text, fault.Detail);
            return 1;
        }
    }
}
