// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// What shows only under pressure: a collector that runs at any moment, and memory over many documents.
//
//     StressTest.exe collect <rounds> <palette.vyr>      the collector runs all the time, on the finaliser's thread too
//     StressTest.exe loads <palette.vyr>                 ten thousand documents; the process must not grow

using System;
using System.IO;
using System.Linq;
using System.Text;
using System.Threading;
using Vyr;

static class StressTest
{
    static volatile bool isDone;

    static byte[] Document()
    {
        const string Head = "<?xml version='1.0'?><Vyr:Vyr xmlns:Vyr='http://vyrgraph.com/v2'><Vyr:Preamble><Vyr:Header><Vyr:Creator>c" +
            "</Vyr:Creator><Vyr:CreatorVersion>1</Vyr:CreatorVersion><Vyr:ChangeHistory>2024-05-01T09:30:00Z</Vyr:ChangeHistory>" +
            "<Vyr:Purpose>p</Vyr:Purpose></Vyr:Header></Vyr:Preamble>";
        string colors = string.Concat(Enumerable.Range(0, 20).Select(i => "<Vyr:Color ColorName='Grün " + i +
            "'><Vyr:ChangeHistory>2024-05-01T09:30:00Z</Vyr:ChangeHistory><Vyr:ColorSpaceSpectral><Vyr:ChangeHistory>2024-05-01T09:30:00Z" +
            "</Vyr:ChangeHistory><Vyr:ColorSpaceSpecificationSpectrumSpectral xsi:nil='true' xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance'/>" +
            "<Vyr:ReflectancePoint Wavelength='400'>0.5</Vyr:ReflectancePoint></Vyr:ColorSpaceSpectral></Vyr:Color>"));
        return Encoding.UTF8.GetBytes(Head + colors + "</Vyr:Vyr>");
    }

    /// <summary>Parts of documents that nothing else holds, while the collector takes what it can.</summary>
    static void Collect(int rounds, string palette)
    {
        byte[] bytes = Document();
        Action work = () =>
        {
            for (int i = 0; i < rounds; ++i)
            {
                ColorType color = Vyr.Document.Load(bytes).Colors[i % 20];
                Check.Equal("Grün " + i % 20, color.ColorName, "a name");
                ColorSpaceSpectralType spectral = Vyr.Document.Load(bytes).Colors[1].ColorSpaces[0].AsColorSpaceSpectral;
                Check.That(spectral.Values[0] == 0.5 && spectral.ReflectancePoints[0].Wavelength == 400, "a spectrum");
                spectral.ReflectancePoints.Add().Value = 0.25;
                Check.Equal(2, spectral.Clone().Values.Length, "a copy");
                Check.Equal(2024, Vyr.Document.Load(bytes).Colors[0].ChangeHistory[0].Year, "a time");
                Check.That(Vyr.Document.Load(bytes).ToString().Contains("Grün 19"), "a text");
                if (i % 10 == 0) // calls that take long enough for a collection
                {
                    Check.Equal(148, Vyr.Document.Load(palette).Clone().Palettes[0].ColorSets[0].Colors.Count, "a long copy");
                    Check.That(Vyr.Document.Load(palette).ToString().EndsWith("</Vyr:Vyr>\n"), "a long text");
                }
                new ColorType { ColorName = "x" }.Owner = new OwnerType { Companies = { "a" } };
            }
        };
        var collector = new Thread(() =>
        {
            while (!isDone)
            {
                GC.Collect();
                GC.WaitForPendingFinalizers();
                Thread.Sleep(1); // on a busy machine the others would come to nothing
            }
        });
        collector.Start();
        Exception failure = null;
        var workers = Enumerable.Range(0, 2).Select(_ => new Thread(() =>
        {
            try { work(); } catch (Exception thrown) { failure = thrown; }
        })).ToArray();
        foreach (Thread worker in workers) worker.Start();
        foreach (Thread worker in workers) worker.Join();
        isDone = true;
        collector.Join();
        if (failure != null) throw failure;
    }

    /// <summary>What the process holds in memory, in kilobytes.</summary>
    static long Resident() => long.Parse(File.ReadAllText("/proc/self/statm").Split(' ')[1]) * 4;

    static void Loads(string palette)
    {
        byte[] bytes = Document();
        long before = 0;
        for (int i = 0; i < 10000; ++i)
        {
            using (Document loaded = i % 10 == 0 ? Vyr.Document.Load(palette) : Vyr.Document.Load(bytes))
                Check.That(loaded.Palettes.Count + loaded.Colors.Count > 0, "it is loaded");
            Document none;
            if (i % 100 == 0) Check.That(!Vyr.Document.TryParse("<x/>", out none).IsOk, "another document");
            if (i == 2000) before = Resident();
        }
        long after = Resident();
        Console.WriteLine("10000 loads: {0} KB after 2000, {1} KB at the end", before, after);
        Check.That(after < before + 8000, "the process doesn't grow");

        // What nobody disposes of is found by the collector: a gigabyte, if it weren't.
        for (int i = 0; i < 3000; ++i) Check.Equal(1, Vyr.Document.Load(palette).Palettes.Count, "a palette");
        long left = Resident();
        Console.WriteLine("3000 loads that are left to the collector: {0} KB", left);
        Check.That(left < after + 256000, "what is left to the collector is bounded");
        using (Document loaded = Vyr.Document.Load(palette))
            for (int i = 0; i < 3000; ++i) Check.Equal(1, loaded.Clone().Palettes.Count, "a copy");
        left = Resident();
        Console.WriteLine("3000 copies that are left to the collector: {0} KB", left);
        Check.That(left < after + 256000, "copies that are left to the collector are bounded");
    }

    static int Main(string[] arguments)
    {
        if (arguments[0] == "loads") Loads(arguments[1]);
        else Collect(int.Parse(arguments[1]), arguments[2]);
        Console.WriteLine(Check.Count + " checks");
        return 0;
    }
}
