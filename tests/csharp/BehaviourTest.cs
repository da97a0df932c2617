// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// What a program may rely on beyond single members: documents in and out, failures, and objects that come and go.
//
//     BehaviourTest.exe <palette.vyr> <folder of valid documents>      writes into the working directory

using System;
using System.Collections;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using System.Reflection;
using System.Text;
using Vyr;

static class BehaviourTest
{
    static string palette, valid;

    static Document Palette() => Document.Load(palette);

    /// <summary>A document that can be written.</summary>
    static Document Small()
    {
        var document = new Document();
        Header header = document.CreatePreamble().CreateHeader();
        header.Creator = "test";
        header.CreatorVersion = "1";
        header.Purpose = "test";
        header.ChangeHistory.Add("2024-05-01T09:30:00Z");
        return document;
    }

    static ColorType AddColor(Document document, string name)
    {
        PaletteType palette = document.Palettes.Count > 0 ? document.Palettes[0] : document.Palettes.Add();
        palette.PaletteName = "P";
        palette.ChangeHistory.Add(DateTimeOffset.Now);
        ColorSetType set = palette.ColorSets.Count > 0 ? palette.ColorSets[0] : palette.ColorSets.Add();
        set.ColorSetName = "S";
        set.ChangeHistory.Add(DateTimeOffset.UtcNow);
        return set.Colors.Add(new ColorType { ColorName = name, ChangeHistory = { "2024-05-01T09:30:00+02:00" } });
    }

    static void Documents()
    {
        using (Document document = Palette())
        {
            string text = document.ToString();
            document.Save("a.vyr");
            document.Save("b.vyrz");
            Check.That(File.Exists("a.vyr") && !File.Exists("b.vyr"), "a container is all that is written");
            var stream = new MemoryStream();
            document.Save(stream);
            Check.Equal(text, Encoding.UTF8.GetString(stream.ToArray()), "a stream");
            Check.Equal(text, File.ReadAllText("a.vyr"), "a file");

            // A plain document beside the container, which is made by way of one, survives; so does what was there.
            File.WriteAllText("b.vyr", "mine");
            document.Palettes[0].PaletteName = "Grün 🎨";
            document.Save("b.vyrz");
            document.Save("b.vyrz");
            Check.Equal("mine", File.ReadAllText("b.vyr"), "the file beside the container");
            Check.That(!Directory.GetFileSystemEntries(".", "*.saving*").Any(), "nothing is left behind");

            stream.Position = 0;
            foreach (Document loaded in new[] { Document.Load("a.vyr"), Document.Load(stream), Document.Load(stream.ToArray()),
                                                Document.Parse(text) })
                Check.Equal(text, loaded.ToString(), "a document comes back");
            Check.Equal("Grün 🎨", Document.Load("b.vyrz").Palettes[0].PaletteName, "a container comes back");
        }
        foreach (string path in Directory.GetFiles(valid, "*.vyr"))
        {
            using (Document document = Document.Load(path))
            {
                string before = document.ToString();
                LookAtAll(document);
                Check.Equal(before, document.ToString(), path + " isn't changed by looking at it");
                Check.Equal(before, document.Clone().ToString(), "a copy of " + path);
            }
        }
    }

    /// <summary>Reads every property of an object and of all its parts.</summary>
    static void LookAtAll(object made)
    {
        if (made is DateTimeList) made = ((DateTimeList)made).Texts;
        if (made is IEnumerable && !(made is string))
            foreach (object entry in (IEnumerable)made) LookAtAll(entry);
        if (!(made is VyrObject)) return;
        foreach (PropertyInfo property in made.GetType().GetProperties())
        {
            try
            {
                LookAtAll(property.GetValue(made, null));
            }
            catch (TargetInvocationException failure) when (failure.InnerException is OverflowException) { }
        }
    }

    /// <summary>The text with another value in the first element of a name.</summary>
    static string WithFirst(string text, string name, string value)
    {
        int start = text.IndexOf("<Vyr:" + name + ">") + name.Length + 6;
        return text.Substring(0, start) + value + text.Substring(text.IndexOf('<', start));
    }

    static void Failures()
    {
        var missing = Check.Throws<FileNotFoundException>("a file that isn't there", () => Document.Load("none.vyr"));
        Check.That(missing.FileName == "none.vyr" && ((VyrException)missing.InnerException).Report.Faults.Count == 1, "it is named");
        Check.Throws<IOException>("a folder", () => Document.Load("."));
        Check.Throws<IOException>("a folder", () => ColorSpaceCIELab.Load("."));
        foreach (Action call in new Action[] { () => Document.Load((string)null), () => Document.Load((byte[])null),
                                               () => Document.Load((Stream)null), () => Document.Parse(null),
                                               () => ColorSpaceCIELab.Load(null), () => Small().Save((string)null) })
            Check.That(Check.Throws<ArgumentNullException>("nothing", call).ParamName != null, "it is named");
        File.WriteAllText("no.vyrz", "PK but no container");
        Check.Equal(1000, Check.Throws<VyrException>("no container", () => Document.Load("no.vyrz")).Code, "no container");

        string bad = WithFirst(WithFirst(File.ReadAllText(palette), "Red", "1.5"), "Green", "none");
        VyrException failure = Check.Throws<VyrException>("wrong values", () => Document.Parse(bad));
        Check.That(failure.Code == 36 && failure.Report.Faults.Count == 2 && failure.Report.IsReadToEnd, "all faults are reported");
        Fault fault = failure.Report.Faults[0];
        Check.Equal("36 39 6 Vyr:Red 1.5 it must be at most 1",
                    string.Join(" ", fault.Code, fault.Line, fault.Column, fault.Item, fault.Value, fault.Detail), "a fault");
        Check.Equal("Palette \"CSS\" / ColorSet \"Named\" / Color \"aliceblue\" / ColorSpaceSRGB / Red", fault.Path, "its path");
        Check.That(failure.Message.Contains(fault.ToString()) && fault.ToString().StartsWith("line 39"), "the message says where");

        Document document;
        LoadReport report = Document.TryParse(bad, out document, new LoadOptions { FirstFaultOnly = true });
        Check.That(document == null && !report.IsOk && report.Faults.Count == 1 && !report.IsReadToEnd, "the first fault only");
        report = Document.TryParse(bad, out document, new LoadOptions { Limit = 1, KeepPartial = true });
        Check.That(report.TotalCount == 2 && report.Faults.Count == 1, "a limit");
        Check.Equal(148, document.Palettes[0].ColorSets[0].Colors.Count, "what was read");
        report = Document.TryLoad(palette, out document);
        Check.That(report.IsOk && report.ToString() == "" && document != null, "nothing wrong");
        File.WriteAllText("bad.vyr", bad);
        using (FileStream stream = File.OpenRead("bad.vyr"))
        {
            report = Document.TryLoad(stream, out document);
            Check.That(report.Faults[0].File.EndsWith("bad.vyr"), "the stream's file is named");
        }

        // Saving
        var empty = new Document();
        failure = Check.Throws<VyrException>("an incomplete document", () => empty.Save("never.vyr"));
        Check.That(failure.Code == 46 && failure.Report.Faults[0].Path == "Preamble / Header" && !File.Exists("never.vyr"), "what it lacks");
        Check.Throws<VyrException>("an incomplete document", () => empty.ToString());
        Check.Throws<IOException>("no such folder", () => Small().Save("none/a.vyrz"));

        // What could not be read back is written to a file, and told; so it is beside a file that must survive.
        Document lines = Small();
        lines.Preamble.Header.Comments = "two\r\nlines";
        File.WriteAllText("told.vyr", "mine");
        failure = Check.Throws<VyrException>("a carriage return", () => lines.Save("told.vyrz"));
        Check.That(failure.Report.IsReadToEnd && Document.Load("told.vyrz").Preamble.Header.Comments == "two\nlines", "it is written");
        Check.Equal("mine", File.ReadAllText("told.vyr"), "the file beside it");
        Check.Equal("told.vyrz", failure.Report.Faults[0].File, "the file that was meant is named");
        Check.That(failure.Message.StartsWith("told.vyrz: Preamble"), "the file that was meant is named");
        Directory.CreateDirectory("taken.vyrz");
        File.WriteAllText("taken.vyr", "mine");
        report = Small().TrySave("taken.vyrz");
        Check.That(report.Code == 1 && report.Faults[0].File == "taken.vyrz" && !report.IsReadToEnd, "a folder of that name");
        Check.Throws<IOException>("a folder of that name", () => Small().Save("taken.vyrz"));
        Check.Equal("mine", File.ReadAllText("taken.vyr"), "the file beside it");
        Check.Equal(1, lines.TrySave("told.vyr").Faults.Count, "a report instead");
        Check.Throws<VyrException>("a carriage return", () => lines.ToString());

        // Elements of their own
        var color = new ColorSpaceCIELab { L = 50, A = 1, B = -1 };
        Check.Equal(46, Check.Throws<VyrException>("an incomplete element", () => color.Save("lab.xml")).Code, "an incomplete element");
        color.ChangeHistory.Add("2024-05-01T09:30:00Z");
        color.CreateColorSpaceSpecificationSpectrumTristimulus().SetNil();
        color.Name = "two\r\nlines";
        failure = Check.Throws<VyrException>("a carriage return", () => color.Save("lab.xml"));
        color = ColorSpaceCIELab.Load("lab.xml");
        Check.That(failure.Report.IsReadToEnd && color.Name == "two\nlines" && color.B == -1, "it is written");
        Check.That(color.ColorSpaceSpecificationSpectrumTristimulus.IsNil, "it is written");
        color.Save("lab.xml");
        Check.Throws<FileNotFoundException>("no element", () => ColorSpaceCIELab.Load("none.xml"));
        var refused = Check.Throws<IOException>("no folder", () => color.Save("none/lab.xml"));
        Check.Equal("none/lab.xml", ((VyrException)refused.InnerException).Report.Faults[0].File, "the file is named");
        File.WriteAllText("lab.xml", File.ReadAllText("lab.xml").Replace("<Vyr:L>50<", "<Vyr:L>none<").Replace("<Vyr:A>1<", "<Vyr:A>some<"));
        failure = Check.Throws<VyrException>("wrong values", () => ColorSpaceCIELab.Load("lab.xml"));
        Check.Equal("lab.xml:6:2: L: Invalid value format for this type (none): a number is expected", failure.Report.Faults[0].ToString(), "a fault");
        Check.That(failure.Report.Faults.Count == 2, "all faults are reported");
        report = ColorSpaceCIELab.TryLoad("lab.xml", out color, new LoadOptions { KeepPartial = true, FirstFaultOnly = true });
        Check.That(report.Faults.Count == 1 && color.Name == "two\nlines", "what was read");
        int elements = 0;
        foreach (Type type in typeof(VyrObject).Assembly.GetExportedTypes().Where(t => t.IsSubclassOf(typeof(VyrObject))))
        {
            // Each class that is an element has its name in the library.
            MethodInfo load = type.GetMethod("TryLoad", new[] { typeof(string), type.MakeByRefType(), typeof(LoadOptions) });
            if (load == null) continue;
            var arguments = new object[] { "none.xml", null, null };
            Check.That(((LoadReport)load.Invoke(null, arguments)).Code == 1 && arguments[1] == null, type.Name);
            ++elements;
        }
        Check.Equal(69, elements, "elements of their own");
    }

    static void Lives()
    {
        // A part keeps its document alive, and is one object.
        ColorType color = Palette().Palettes[0].ColorSets[0].Colors[3];
        for (int i = 0; i < 3; ++i)
        {
            GC.Collect();
            GC.WaitForPendingFinalizers();
        }
        Check.Equal("aquamarine", color.ColorName, "a part of a document that nobody holds");

        // What goes with something that goes
        Document document = Palette();
        ColorSetType set = document.Palettes[0].ColorSets[0];
        Check.That(ReferenceEquals(set, document.Palettes.First().ColorSets.Last()), "one object for one part");
        ObjectList<ColorType> colors = set.Colors;
        ColorType third = colors[2];
        ColorSpaceSRGBType value = third.ColorSpaces[0].AsColorSpaceSRGB;
        ColorType copy = third.Clone();
        document.Palettes.RemoveAt(0);
        Check.Throws<ObjectDisposedException>("a removed palette's colour set", () => Check.That(set.Comments == null, ""));
        Check.Throws<ObjectDisposedException>("its list", () => Check.That(colors.Count == 0, ""));
        Check.Throws<ObjectDisposedException>("its list", () => colors.Add());
        Check.Throws<ObjectDisposedException>("a value", () => value.Red = 1);
        Check.Throws<ObjectDisposedException>("as an argument", () => new ColorSetType().Colors.Add(third));
        Check.Throws<ObjectDisposedException>("as a child", () => new Standard { Color = third });
        Check.Equal("aqua", copy.ColorName, "a copy lives on");

        // A list object stays the list of its owner.
        colors = new ColorSetType().Colors;
        colors.Add().ColorName = "first";
        var owner = new ColorSetType();
        ObjectList<ColorType> held = owner.Colors;
        ColorType gone = held.Add();
        owner.Reset();
        Check.Throws<ObjectDisposedException>("reset", () => gone.Clone());
        held.Add(colors[0]);
        Check.That(ReferenceEquals(held, owner.Colors) && owner.Colors[0].ColorName == "first", "a list after a reset");
        held.Insert(0, held[0]).ColorName = "second";
        Check.That(held.Select(c => c.ColorName).SequenceEqual(new[] { "second", "first" }), "an entry copied within its list");

        // Entries that are removed while they are walked
        foreach (ColorType each in held) if (each.ColorName == "second") held.RemoveAt(0);
        Check.Equal(1, held.Count, "a list while it is walked");

        // Any changes in any order: each entry stays the same object, whichever were asked for
        held.Clear();
        var model = new List<ColorType>();
        var random = new Random(7);
        for (int i = 0; i < 2000; ++i)
        {
            int at = random.Next(model.Count + 1);
            if (at < model.Count && random.Next(20) < model.Count)
            {
                ColorType removed = model[at];
                held.RemoveAt(at);
                model.RemoveAt(at);
                Check.Throws<ObjectDisposedException>("a removed entry", () => removed.Clone());
            }
            else
            {
                model.Insert(at, held.Insert(at));
                model[at].ColorName = "entry " + i;
            }
            Check.That(held.SequenceEqual(model), "entries after the change " + i);
        }
        foreach (int beyond in new[] { -1, model.Count, int.MaxValue })
        {
            Check.Throws<ArgumentOutOfRangeException>("beyond the end", () => held[beyond].Clone());
            Check.Throws<ArgumentOutOfRangeException>("beyond the end", () => held[beyond] = new ColorType());
            if (beyond != model.Count) Check.Throws<ArgumentOutOfRangeException>("beyond the end", () => held.Insert(beyond));
        }
        Check.Throws<ArgumentNullException>("no entry", () => held.Add(null));
        Check.Throws<ArgumentNullException>("no entry", () => held.Insert(0, null));
        Check.Throws<ArgumentNullException>("no entry", () => held[0] = null);
        Check.That(held.SequenceEqual(model), "entries after what was refused");

        document = Small();
        color = AddColor(document, "x");
        ColorSpaceChoice choice = color.ColorSpaces.Add();
        ColorSpaceCIELabType lab = choice.ChooseColorSpaceCIELab();
        lab.CreateParentColorSpace().CreateColorSpace().ChooseColorSpaceCIELab().L = 12;
        ColorSpaceCIELabType inner = lab.ParentColorSpace.ColorSpace.AsColorSpaceCIELab;
        ColorSpaceCIELabType moved = choice.ChooseColorSpaceCIELab(inner);
        Check.Equal(12.0, moved.L, "an alternative from within itself");
        Check.Throws<ObjectDisposedException>("the former", () => Check.That(inner.L == 12, ""));
        Check.That(choice.ChooseColorSpaceCIELab(moved) == moved && choice.ChooseColorSpaceCIELab() == moved, "chosen already");
        choice.ChooseColorSpaceRGB();
        Check.Throws<ObjectDisposedException>("another alternative", () => Check.That(moved.L == 12, ""));

        // A disposed document
        document = Palette();
        third = document.Palettes[0].ColorSets[0].Colors[2];
        document.Dispose();
        document.Dispose();
        Check.Throws<ObjectDisposedException>("a disposed document", () => document.ToString());
        Check.Throws<ObjectDisposedException>("a disposed document's part", () => Check.That(third.ColorName == "", ""));
    }

    static void Values()
    {
        Document document = Small();
        ColorType color = AddColor(document, "Grün \U0001F3A8");
        ColorSpaceSpectralType spectral = color.ColorSpaces.Add().ChooseColorSpaceSpectral();
        spectral.ChangeHistory.Add(DateTimeOffset.UtcNow);
        spectral.CreateColorSpaceSpecificationSpectrumSpectral().SetNil();
        spectral.Wavelengths = new double[] { 400, 410, 420 };
        var failure = Check.Throws<VyrException>("a wrong value", () => spectral.Values = new[] { 0.1, 0.2, 10, 0.4 });
        Check.That(failure.Code == 36 && failure.Message.Contains("Values") && spectral.ReflectancePoints.Count == 3, "it changes nothing");
        ReflectancePointType third = spectral.ReflectancePoints[2];
        spectral.Values = new[] { 0.1, 0.2, 0.3 };
        Check.Equal(0.3, third.Value, "a point of the spectrum");
        foreach (int count in new[] { 0, 5, 2, 2000, 0, 1 }) // each is asked for as if it were as long as the one before
        {
            var longer = new ColorSpaceSpectralType { Wavelengths = Enumerable.Range(1, count).Select(n => (double)n).ToArray() };
            Check.That(longer.Wavelengths.SequenceEqual(Enumerable.Range(1, count).Select(n => (double)n)), "a column of " + count);
        }

        // Times are kept as they are written, also those that C# has no value for.
        const string late = "2024-06-30T23:59:60Z";
        document = Document.Parse(document.ToString().Replace("2024-05-01T09:30:00+02:00", late));
        color = document.Palettes[0].ColorSets[0].Colors[0];
        Check.Throws<OverflowException>("a leap second", () => Check.That(color.ChangeHistory[0].Year == 0, ""));
        Check.Equal(late, color.ChangeHistory.Texts[0], "a leap second");
        var time = new DateTimeOffset(2024, 5, 1, 9, 30, 15, 250, TimeSpan.FromMinutes(-210));
        color.ChangeHistory.Add(time);
        Check.That(color.ChangeHistory[1] == time && color.ChangeHistory[1].Offset == time.Offset, "a time");
        Check.Equal("2024-05-01T09:30:15.25-03:30", color.ChangeHistory.Texts[1], "a time");
        // Every ten-thousandth of a second comes back, and what is finer never makes a minute of 60 seconds.
        for (long ticks = 0; ticks < TimeSpan.TicksPerMinute; ticks += 7919 * 97)
        {
            DateTimeOffset exact = time.AddSeconds(-15.25).AddTicks(ticks);
            color.ChangeHistory[1] = exact;
            TimeSpan lost = exact - color.ChangeHistory[1];
            Check.That(lost >= TimeSpan.Zero && lost.Ticks < 1000 && exact.Minute == color.ChangeHistory[1].Minute, "a time");
        }
        // So does every time that the library has a text for.
        foreach (string seconds in new[] { "59.9999", "09.99999", "00.999999", "00.0123457", "00.0012345", "00.000001", "00" })
        {
            string text = "2024-05-01T09:30:" + seconds + "Z";
            color.ChangeHistory.Texts[1] = text;
            color.ChangeHistory[1] = color.ChangeHistory[1];
            Check.Equal(text, color.ChangeHistory.Texts[1], "a time that is set as it was read");
        }
        failure = Check.Throws<VyrException>("no time", () => color.ChangeHistory.Texts[1] = "soon");
        Check.That(failure.Message.Contains("ColorType.ChangeHistory") && color.ChangeHistory.Count == 2, "the list is named");
        color.ChangeHistory[1] = DateTimeOffset.MaxValue;
        Check.Equal("9999-12-31T23:59:59.9999Z", color.ChangeHistory.Texts[1], "the last time");

        // Members of derived classes stay what they are.
        var tolerance = new ToleranceType();
        FunctionType function = tolerance.CreateFunction().ChooseFunction(
            new FunctionTolerance { ToleranceType = ToleranceFormulaKind.DE00, Parameters = { new ToleranceParameterType { LowValue = 2 } } });
        Check.That(((FunctionTolerance)function).Parameters[0].LowValue == 2, "a function of a derived class");
        Check.That(((FunctionTolerance)function.Clone()).Parameters[0].LowValue == 2, "its copy");
        Check.That(tolerance.Clone().Function.AsFunction is FunctionTolerance, "the copy of its owner");
        var measurement = new Measurement();
        measurement.Functions.Add(tolerance.Function).AsFunction.Result = 3;
        Check.That(measurement.Functions[0].AsFunction is FunctionTolerance && tolerance.Function.AsFunction.Result == null, "a copied group");
        color.ColorSpaces.Add().ChooseColorSpaceCMYK(new ColorSpaceCMYKPlusNType { Cyan = 5 });
        Check.That(color.ColorSpaces.Last().AsColorSpaceCMYK is ColorSpaceCMYKPlusNType, "a value of a derived class");
        Check.Throws<ArgumentNullException>("no value", () => color.ColorSpaces.Last().ChooseColorSpaceCMYK(null));

        // What was unset doesn't come back.
        color.CreateOwner().Companies.Add("A");
        color.Owner = null;
        Check.Equal(0, color.CreateOwner().Companies.Count, "a child that is made again");
        Check.Equal("Target_IT8.7/1", EnumText.Of(TargetKind.Target_IT8_7_1), "a text");
        Check.That(EnumText.Parse<TargetKind>("Target_IT8.7/4") == TargetKind.Target_IT8_7_4 && EnumText.Parse<TargetKind>("") == null, "a member");
    }

    static int Main(string[] arguments)
    {
        palette = arguments[0];
        valid = arguments[1];
        Documents();
        Failures();
        Lives();
        Values();
        Console.WriteLine(Check.Count + " checks");
        return 0;
    }
}
