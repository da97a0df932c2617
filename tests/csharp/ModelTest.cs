// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Every member of every class against what the schema says of it, which model_values.py prints: by reflection, so that
// a member that isn't in the schema fails too.
//
//     ModelTest.exe <lines of model_values.py>

using System;
using System.Collections.Generic;
using System.Globalization;
using System.IO;
using System.Linq;
using System.Reflection;
using Vyr;

static class ModelTest
{
    static readonly Assembly Tested = typeof(VyrObject).Assembly;
    static readonly List<string[]> Lines = new List<string[]>();

    static Type Named(string name) => Tested.GetType("Vyr." + name, true);

    static VyrObject New(Type type) => (VyrObject)Activator.CreateInstance(type);

    /// <summary>Calls through reflection throw what the member threw.</summary>
    static object Call(object target, string method, params object[] arguments)
    {
        Type[] types = arguments.Select(argument => argument.GetType()).ToArray();
        MethodInfo found = target.GetType().GetMethod(method, types);
        Check.That(found != null, target.GetType().Name + " has " + method);
        return Unwrapped(() => found.Invoke(target, arguments));
    }

    static object Get(object target, string property)
    {
        PropertyInfo found = target.GetType().GetProperty(property);
        Check.That(found != null, target.GetType().Name + " has " + property);
        return Unwrapped(() => found.GetValue(target, null));
    }

    static void Set(object target, string property, object value)
    {
        Unwrapped(() => { target.GetType().GetProperty(property).SetValue(target, value, null); return null; });
    }

    static object Unwrapped(Func<object> call)
    {
        try
        {
            return call();
        }
        catch (TargetInvocationException failure)
        {
            System.Runtime.ExceptionServices.ExceptionDispatchInfo.Capture(failure.InnerException).Throw();
            throw;
        }
    }

    static object Value(string kind, string text)
    {
        CultureInfo plain = CultureInfo.InvariantCulture;
        switch (kind)
        {
            case "number": return double.Parse(text, plain);
            case "int32": return int.Parse(text, plain);
            case "uint32": return uint.Parse(text, plain);
            case "uint8": return byte.Parse(text, plain);
            case "boolean": return bool.Parse(text);
            case "text": return text;
            case "datetime": return DateTimeOffset.Parse(text, plain);
            case "binary": return Convert.FromBase64String(text);
            default: return Enum.ToObject(Named(kind.Substring("enum ".Length)), int.Parse(text, plain));
        }
    }

    static bool Same(object a, object b) => a is byte[] ? ((byte[])a).SequenceEqual((byte[])b) : Equals(a, b);

    // One member of an object that is new

    static void TestValue(VyrObject made, string[] line)
    {
        string member = line[2], kind = line[3], what = made.GetType().Name + "." + member;
        bool isOptional = line[4] == "null";
        object first = Get(made, member);
        Check.That(!isOptional || first == null, what + " isn't set at first");
        object value = null;
        foreach (string text in line[5].Split('|'))
        {
            value = Value(kind, text);
            Set(made, member, value);
            Check.That(Same(value, Get(made, member)), what + " comes back");
        }
        foreach (string bad in line[6].Split(new[] { '|' }, StringSplitOptions.RemoveEmptyEntries))
        {
            int end = bad.LastIndexOf('=');
            string text = bad.Substring(0, end), set = kind == "datetime" ? member + "Text" : member;
            object refused = kind == "datetime" ? text : Value(kind, text);
            var failure = Check.Throws<VyrException>(what + " = " + text, () => Set(made, set, refused));
            Check.Equal(int.Parse(bad.Substring(end + 1)), failure.Code, what + " = " + text);
            Check.That(failure.Message.Contains(set) && failure.Text != "", what + " is named by its failure");
            Check.That(Same(value, Get(made, member)), what + " stays as it was");
        }
        if (kind == "datetime")
        {
            Set(made, member + "Text", "12024-03-15T24:00:00Z");
            Check.Equal("12024-03-15T24:00:00Z", (string)Get(made, member + "Text"), what);
        }
        if (isOptional)
        {
            Set(made, member, null);
            Check.That(Get(made, member) == null, what + " is unset by null");
        }
        else if (value is string || value is byte[])
        {
            Check.Throws<ArgumentNullException>(what, () => Set(made, member, null));
        }
        if (kind == "text") Check.Throws<ArgumentException>(what, () => Set(made, member, "cut\0off"));
    }

    static void TestChild(VyrObject made, string[] line)
    {
        string member = line[2], what = made.GetType().Name + "." + member;
        // A new document says what read it.
        if (made is Document) return;
        bool wasComplete = made.IsComplete;
        Check.That(Get(made, member) == null && made.IsComplete == wasComplete, what + " isn't there for looking");
        object child = Call(made, "Create" + member);
        Check.Equal(line[3], child.GetType().Name, what);
        Set(made, member, child);
        Check.That(ReferenceEquals(child, Get(made, member)) && ReferenceEquals(child, Call(made, "Create" + member)), what + " is one");
        VyrObject other = New(Named(line[3]));
        Set(made, member, other);
        Check.That(!ReferenceEquals(other, Get(made, member)) && other.GetType() == Get(made, member).GetType(), what + " is a copy");
        Check.Throws<ObjectDisposedException>(what, () => ((VyrObject)child).Clone());
        if (line[4] != "null")
        {
            Check.Throws<ArgumentNullException>(what, () => Set(made, member, null));
            return;
        }
        var copy = (VyrObject)Get(made, member);
        Set(made, member, null);
        Check.That(Get(made, member) == null, what + " is unset by null");
        Check.Throws<ObjectDisposedException>(what, () => copy.Reset());
        bool isNew = ((VyrObject)Call(made, "Create" + member)).IsComplete == other.IsComplete;
        Check.That(isNew, what + " is new again");
    }

    static void TestList(VyrObject made, string[] line)
    {
        string member = line[2], kind = line[3], what = made.GetType().Name + "." + member;
        var list = (EntryList)Get(made, member);
        Check.That(ReferenceEquals(list, Get(made, member)) && list.Count == 0, what + " is one empty list");
        foreach (int index in new[] { -1, 0, int.MaxValue })
            Check.Throws<ArgumentOutOfRangeException>(what, () => list.RemoveAt(index));
        switch (kind)
        {
            case "text": TestValues((TextList)list, what, "a", "Grün 🎨", "c"); break;
            case "datetime":
                var day = new DateTimeOffset(2024, 2, 29, 1, 2, 3, TimeSpan.FromHours(-3.5));
                TestValues((DateTimeList)list, what, day, day.AddDays(1), day.ToUniversalTime());
                TestValues(((DateTimeList)list).Texts, what, "2024-02-29T01:02:03-03:30", "12024-01-01T00:00:00Z", "1990-01-01T24:00:00Z");
                break;
            case "markup":
                var markup = (MarkupList)list;
                markup.Add("<a>ü</a>");
                markup.Insert(0, "<b/>");
                Check.That(markup.SequenceEqual(new[] { "<b/>", "<a>ü</a>" }), what);
                markup.RemoveAt(0);
                Check.Equal("<a>ü</a>", markup[0], what);
                Check.Throws<ArgumentOutOfRangeException>(what, () => Check.That(markup[1] == null, what));
                Check.Throws<ArgumentNullException>(what, () => markup.Add(null));
                break;
            default:
                typeof(ModelTest).GetMethod("TestObjects", BindingFlags.Static | BindingFlags.NonPublic)
                    .MakeGenericMethod(Named(kind)).Invoke(null, new object[] { list, what });
                break;
        }
        list.Clear();
        Check.That(list.Count == 0, what + " is empty again");
    }

    static void TestValues<T>(ValueList<T> list, string what, T a, T b, T c)
    {
        list.Clear();
        list.Add(b);
        list.Insert(1, c);
        list.Insert(0, c);
        list[0] = a;
        Check.That(list.SequenceEqual(new[] { a, b, c }), what);
        list.RemoveAt(1);
        Check.That(list.SequenceEqual(new[] { a, c }), what);
        Check.Throws<ArgumentOutOfRangeException>(what, () => list[2] = a);
        Check.Throws<ArgumentOutOfRangeException>(what, () => list.Insert(3, a));
        Check.Throws<ArgumentOutOfRangeException>(what, () => Check.That(list[-1] == null, what));
    }

    static void TestObjects<T>(ObjectList<T> list, string what) where T : VyrObject, new()
    {
        T b = list.Add(), a = list.Insert(0), d = list.Add(new T()), c = list.Insert(2, new T());
        Check.That(list.SequenceEqual(new[] { a, b, c, d }), what + " has its entries in order");
        list.RemoveAt(1);
        T e = list.Insert(1); // often where the removed one was
        list[0] = a;
        Check.Throws<ObjectDisposedException>(what, () => b.Clone());
        Check.That(list.SequenceEqual(new[] { a, e, c, d }), what + " has the others still");
        list[3] = new T();
        Check.Throws<ObjectDisposedException>(what, () => d.Reset());
        list.Clear();
        Check.Throws<ObjectDisposedException>(what, () => Check.That(a.IsComplete, what));
    }

    /// <summary>Each alternative after each other one, which is gone then.</summary>
    static void TestChoice(Type type, List<string[]> lines)
    {
        VyrObject made = New(type);
        Check.Equal("None", Get(made, "Chosen").ToString(), type.Name);
        Check.That(!made.IsComplete, type.Name + " is nothing without a choice");
        foreach (string[] line in lines)
        {
            foreach (string[] next in lines)
            {
                object former = Choose(made, line);
                object latter = Choose(made, next);
                string what = type.Name + ": " + line[2] + ", then " + next[2];
                Check.That(made.IsComplete && Get(made, "Chosen").ToString() == next[2], what);
                foreach (string[] other in lines) // looking doesn't choose
                    Check.That((Get(made, "As" + other[2]) == null) == (other != next), what + ", not " + other[2]);
                var gone = former as VyrObject;
                if (gone != null && !ReferenceEquals(former, latter)) Check.Throws<ObjectDisposedException>(what, () => gone.Clone());
            }
        }
        VyrObject copy = made.Clone();
        Check.Equal(Get(made, "Chosen"), Get(copy, "Chosen"), type.Name);
    }

    static object Choose(VyrObject made, string[] line)
    {
        string member = line[2];
        Type type = Tested.GetType("Vyr." + line[3]);
        if (type == null)
        {
            object value = Value(line[3], line[5].Split('|').Last());
            Call(made, "Choose" + member, value);
            Check.Equal(value, Get(made, "As" + member), made.GetType().Name + "." + member);
            return value;
        }
        if (line[4] == "abstract")
        {
            Type derived = Tested.GetTypes().First(known => known.IsSubclassOf(type) && known.GetConstructor(Type.EmptyTypes) != null &&
                                                            Lines.Any(l => l[0] == "value" && l[1] == known.Name));
            object chosen = made.GetType().GetMethod("Choose" + member, new[] { type }).Invoke(made, new object[] { New(derived) });
            Check.Equal(derived, chosen.GetType(), member);
            return chosen;
        }
        object part = Call(made, "Choose" + member);
        Check.That(part.GetType() == type && ReferenceEquals(part, Get(made, "As" + member)), member);
        return part;
    }

    static void TestColumn(VyrObject made, string[] line)
    {
        double[] values = { 0.25, 0.5, 0.75 };
        var list = (EntryList)Get(made, line[3]);
        Set(made, line[2], values);
        Check.That(((double[])Get(made, line[2])).SequenceEqual(values) && list.Count == 3, line[2]);
        var last = (VyrObject)((System.Collections.IEnumerable)list).Cast<object>().Last();
        Set(made, line[2], new[] { 0.5 });
        Check.That(list.Count == 1, line[2]);
        Check.Throws<ObjectDisposedException>(line[2], () => last.Clone());
        Set(made, line[2], new double[0]);
        Check.That(((double[])Get(made, line[2])).Length == 0, line[2]);
        Check.Throws<ArgumentNullException>(line[2], () => Set(made, line[2], null));
    }

    static void TestClass(string[] line)
    {
        Type type = Named(line[1]);
        Check.Equal(line[2], type.BaseType.Name, line[1]);
        Check.Equal(line[3] == "new", type.GetConstructor(Type.EmptyTypes) != null, line[1] + " can be made");
        if (line[3] != "new") return;
        var own = new List<string[]>();
        for (Type step = type; step != typeof(VyrObject); step = step.BaseType)
            own.AddRange(Lines.Where(l => l[1] == step.Name && l[0] != "class" && l[0] != "enum"));

        // Nothing has more members than the schema.
        var expected = new HashSet<string>(own.Select(l => l[0] == "choice" ? "As" + l[2] : l[2])) { "IsComplete", "Chosen", "IsNil" };
        expected.UnionWith(own.Where(l => l[0] == "value" && l[3] == "datetime").Select(l => l[2] + "Text"));
        foreach (PropertyInfo property in type.GetProperties())
            Check.That(expected.Contains(property.Name), line[1] + "." + property.Name + " is in the schema");

        // Looking at all of a new object changes nothing of it.
        VyrObject looked = New(type);
        string[] before = Look(looked), after = Look(looked);
        Check.That(before.SequenceEqual(after) && looked.IsComplete == New(type).IsComplete, line[1] + " is only looked at");

        var choices = own.Where(l => l[0] == "choice").ToList();
        if (choices.Count > 0) TestChoice(type, choices);
        foreach (string[] member in own)
        {
            VyrObject made = New(type);
            switch (member[0])
            {
                case "value": TestValue(made, member); break;
                case "child": TestChild(made, member); break;
                case "list": TestList(made, member); break;
                case "column": TestColumn(made, member); break;
            }
            made.Reset();
            if (!(made is Document)) Check.That(before.SequenceEqual(Look(made)), line[1] + " is new again after " + member[2]);
        }
        if (line[4] == "nil")
        {
            VyrObject made = New(type);
            Call(made, "SetNil");
            Check.That((bool)Get(made, "IsNil") && made.IsComplete && (bool)Get(made.Clone(), "IsNil"), line[1] + " is nil");
            made.Reset();
            Check.That(!(bool)Get(made, "IsNil"), line[1] + " isn't nil");
            string[] content = own.FirstOrDefault(l => l[0] == "value" && l[2] == "Value");
            if (content == null) return;
            Call(made, "SetNil");
            Set(made, "Value", Value(content[3], content[5].Split('|')[0]));
            Check.That(!(bool)Get(made, "IsNil"), line[1] + " has a value");
        }
    }

    static string[] Look(VyrObject made)
    {
        return made.GetType().GetProperties().OrderBy(property => property.Name).Select(property =>
        {
            object value = Get(made, property.Name);
            var list = value as EntryList;
            return property.Name + " " + (list != null ? list.Count.ToString() : value);
        }).ToArray();
    }

    static int Main(string[] arguments)
    {
        Lines.AddRange(File.ReadLines(arguments[0]).Select(line => line.Split('\t')));
        foreach (string[] line in Lines)
        {
            if (line[0] == "class") TestClass(line);
            if (line[0] != "enum") continue;
            object member = Enum.Parse(Named(line[1]), line[2]);
            Check.Equal(int.Parse(line[3]), (int)member, line[1] + "." + line[2]);
            object text = typeof(EnumText).GetMethod("Of").MakeGenericMethod(Named(line[1])).Invoke(null, new[] { member });
            Check.Equal(line[4], (string)text, line[1] + "." + line[2]);
        }
        int objects = Tested.GetExportedTypes().Count(type => type.IsSubclassOf(typeof(VyrObject)));
        Check.Equal(Lines.Count(line => line[0] == "class"), objects, "classes");
        Console.WriteLine("{0} classes, {1} members, {2} checks", objects, Lines.Count - objects, Check.Count);
        return 0;
    }
}
