// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// The samples of docs/csharp.md that are no whole programs, in one.
//
//     mono guides.exe <palette.vyr>      writes into the working directory

using System;
using System.IO;
using System.Linq;
using System.Threading.Tasks;
using Vyr;

static class Guides
{
    static void First(string path)
    {
        using (var document = Document.Load(path))
            foreach (var color in document.Palettes[0].ColorSets[0].Colors.Take(2))
                Console.WriteLine(color.ColorName + " " + color.ColorSpaces[0].AsColorSpaceSRGB?.Red);
    }

    static Document Build()
    {
        var document = new Document();
        Header header = document.CreatePreamble().CreateHeader();
        header.Creator = "My program";
        header.CreatorVersion = "1.0";
        header.Purpose = "Inks of the house";
        header.ChangeHistory.Add(DateTimeOffset.UtcNow);

        PaletteType palette = document.Palettes.Add();
        palette.PaletteName = "Inks";
        palette.ChangeHistory.Add(DateTimeOffset.UtcNow);
        ColorSetType set = palette.ColorSets.Add();
        set.ColorSetName = "All";
        set.ChangeHistory.Add(DateTimeOffset.UtcNow);

        ColorType color = set.Colors.Add();
        color.ColorName = "Warm red";
        color.ChangeHistory.Add(DateTimeOffset.UtcNow);
        ColorSpaceSRGBType rgb = color.ColorSpaces.Add().ChooseColorSpaceSRGB();
        rgb.ChangeHistory.Add(DateTimeOffset.UtcNow);
        rgb.CreateColorSpaceSpecificationSpectrumTristimulus().SetNil();
        rgb.Red = 0.9;
        rgb.Green = 0.2;
        rgb.Blue = 0.15;
        rgb.ColorDepth = ColorDepthKind.ColorDepth_8;
        return document;
    }

    static void Change(ColorType color)
    {
        color.Comments = "Seen at noon";     // an optional value
        color.Comments = null;               // not set any more
        if (color.Owner == null)             // looking makes nothing
            color.CreateOwner().Companies.Add("Ink & Co");
        color.Owner = null;

        ColorSpaceSRGBType rgb = color.ColorSpaces[0].AsColorSpaceSRGB;
        rgb.Alpha = 0.5;
        rgb.ColorDepth = ColorDepthKind.ColorDepth_16;
        Console.WriteLine(EnumText.Of(rgb.ColorDepth));

        ColorSpaceChoice second = color.ColorSpaces.Add();
        second.ChooseColorSpaceCMYK().Cyan = 20;
        second.ChooseColorSpaceHSV().Hue = 120;
        Console.WriteLine(second.Chosen + ", " + (second.AsColorSpaceCMYK == null));
        color.ColorSpaces.RemoveAt(1);
    }

    static void Fail(Document document, string path)
    {
        ColorSpaceSRGBType rgb = document.Palettes[0].ColorSets[0].Colors[0].ColorSpaces[0].AsColorSpaceSRGB;
        try
        {
            rgb.Red = 1.5;
        }
        catch (VyrException failure)
        {
            Console.WriteLine(failure.Code + ", " + failure.Message + ", still " + rgb.Red);
        }
        LoadReport report = Document.TryLoad(path, out Document loaded, new LoadOptions { Limit = 20 });
        if (!report.IsOk)
            foreach (Fault fault in report.Faults)
                Console.WriteLine(fault.Line + ": " + fault.Path + ": " + fault.Text + " " + fault.Detail);
    }

    static void Bytes(Document document)
    {
        byte[] bytes;
        using (var stream = new MemoryStream())
        {
            document.Save(stream);
            bytes = stream.ToArray();
        }
        using (Document same = Document.Load(bytes))
        using (Document again = Document.Parse(same.ToString()))
            Console.WriteLine(again.Palettes.Count);
    }

    static void Times(ColorType color)
    {
        color.ChangeHistory.Clear();
        color.ChangeHistory.Add(new DateTimeOffset(2024, 5, 1, 9, 30, 0, TimeSpan.FromHours(2)));
        color.ChangeHistory.Add("2016-12-31T23:59:60Z");
        Console.WriteLine(color.ChangeHistory[0].UtcDateTime.Hour + ", " + color.ChangeHistory.Texts[1]);
    }

    static void Threads(string path)
    {
        string[] paths = { path, path, path };
        int[] counts = new int[paths.Length];
        Parallel.For(0, paths.Length, i =>
        {
            using (Document document = Document.Load(paths[i]))
                counts[i] = document.Palettes.Sum(palette => palette.ColorSets.Sum(set => set.Colors.Count));
        });
        Console.WriteLine(counts.Sum());
    }

    static void Main(string[] arguments)
    {
        First(arguments[0]);
        using (Document document = Build())
        {
            document.Save("built.vyr");
            Change(document.Palettes[0].ColorSets[0].Colors[0]);
            Times(document.Palettes[0].ColorSets[0].Colors[0]);
            string bad = File.ReadAllText("built.vyr").Replace("<Vyr:Green>0.2<", "<Vyr:Green>green<");
            File.WriteAllText("bad.vyr", bad);
            Fail(document, "bad.vyr");
            Bytes(document);
        }
        Threads(arguments[0]);
    }
}
