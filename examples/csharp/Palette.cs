// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Loads a palette, walks it, changes a colour, saves it as a container and loads that again. Of a document that can't be
// loaded it says what is wrong and where.
//
//     mcs Palette.cs && LD_LIBRARY_PATH=<folder of libVyrModule.so> mono Palette.exe <palette.vyr> <new.vyrz>

using System;
using System.Runtime.InteropServices;

/// The few functions that this program needs, declared as they are. Strings that come back are freed by the marshaller.
static class Native
{
    const string Module = "VyrModule";
    const UnmanagedType Bstr = UnmanagedType.BStr, Wide = UnmanagedType.LPWStr, Narrow = UnmanagedType.LPUTF8Str;

    public delegate void ExceptionCallback([MarshalAs(Narrow)] string text);
    public delegate void ArgumentCallback([MarshalAs(Narrow)] string text, [MarshalAs(Narrow)] string parameter);
    public delegate IntPtr StringCallback(IntPtr text);

    [DllImport(Module)] public static extern void SWIGRegisterExceptionCallbacks_VyrModule(
        ExceptionCallback application, ExceptionCallback arithmetic, ExceptionCallback divideByZero,
        ExceptionCallback indexOutOfRange, ExceptionCallback invalidCast, ExceptionCallback invalidOperation,
        ExceptionCallback io, ExceptionCallback nullReference, ExceptionCallback outOfMemory, ExceptionCallback overflow,
        ExceptionCallback system);
    [DllImport(Module)] public static extern void SWIGRegisterExceptionArgumentCallbacks_VyrModule(
        ArgumentCallback argument, ArgumentCallback argumentNull, ArgumentCallback argumentOutOfRange);
    [DllImport(Module)] public static extern void SWIGRegisterStringCallback_VyrModule(StringCallback callback);

    [DllImport(Module)] public static extern IntPtr CSharp_new_Vyr__SWIG_0();
    [DllImport(Module)] public static extern IntPtr CSharp_new_Vyr__SWIG_1(IntPtr source);
    [DllImport(Module)] public static extern void CSharp_delete_Vyr(IntPtr self);
    [DllImport(Module)] public static extern int CSharp_Vyr_loadFile(IntPtr self, [MarshalAs(Wide)] string path);
    [DllImport(Module)] public static extern IntPtr CSharp_Vyr_writeString(IntPtr self);
    [DllImport(Module)] public static extern void CSharp_delete_XMLDocumentResult(IntPtr self);
    [DllImport(Module)] public static extern int CSharp_XMLDocumentResult_getElmxError(IntPtr self);
    [return: MarshalAs(Bstr)]
    [DllImport(Module)] public static extern string CSharp_XMLDocumentResult_getXmlDocument(IntPtr self);
    [DllImport(Module)] public static extern IntPtr CSharp_get_error_description(int code);

    [DllImport(Module)] public static extern IntPtr VyrModule_LoadFile(
        IntPtr self, [MarshalAs(Wide)] string path, int collect, uint limit);
    [DllImport(Module)] public static extern IntPtr VyrModule_WriteFile(IntPtr self, [MarshalAs(Wide)] string path);
    [DllImport(Module)] public static extern void VyrModule_DeleteReport(IntPtr report);
    [return: MarshalAs(Bstr)]
    [DllImport(Module)] public static extern string VyrModule_ReportText(IntPtr report);
    [DllImport(Module)] public static extern int VyrModule_ReportCode(IntPtr report);
    [DllImport(Module)] public static extern uint VyrModule_ReportFaultCount(IntPtr report);
    [DllImport(Module)] public static extern uint VyrModule_ReportTotalCount(IntPtr report);
    [DllImport(Module)] public static extern int VyrModule_FaultLine(IntPtr report, uint index);
    [return: MarshalAs(Bstr)]
    [DllImport(Module)] public static extern string VyrModule_FaultPath(IntPtr report, uint index);
    [return: MarshalAs(Bstr)]
    [DllImport(Module)] public static extern string VyrModule_FaultText(IntPtr report, uint index);
    [return: MarshalAs(Bstr)]
    [DllImport(Module)] public static extern string VyrModule_FaultDetail(IntPtr report, uint index);

    [DllImport(Module)] public static extern uint CSharp_Vyr_size_Palette(IntPtr self);
    [DllImport(Module)] public static extern IntPtr CSharp_Vyr_get_Palette__SWIG_0(IntPtr self, uint index);
    [return: MarshalAs(Bstr)]
    [DllImport(Module)] public static extern string CSharp_PaletteType_get_PaletteName(IntPtr self);
    [DllImport(Module)] public static extern uint CSharp_PaletteType_size_ColorSet(IntPtr self);
    [DllImport(Module)] public static extern IntPtr CSharp_PaletteType_get_ColorSet__SWIG_0(IntPtr self, uint index);
    [return: MarshalAs(Bstr)]
    [DllImport(Module)] public static extern string CSharp_ColorSetType_get_ColorSetName(IntPtr self);
    [DllImport(Module)] public static extern uint CSharp_ColorSetType_size_Color(IntPtr self);
    [DllImport(Module)] public static extern IntPtr CSharp_ColorSetType_get_Color__SWIG_0(IntPtr self, uint index);
    [return: MarshalAs(Bstr)]
    [DllImport(Module)] public static extern string CSharp_ColorType_get_ColorName(IntPtr self);
    [DllImport(Module)] public static extern int CSharp_ColorType_set_ColorName(IntPtr self, [MarshalAs(Wide)] string name);
    [DllImport(Module)] public static extern uint CSharp_ColorType_size_ColorSpace(IntPtr self);
    [DllImport(Module)] public static extern IntPtr CSharp_ColorType_get_ColorSpace__SWIG_0(IntPtr self, uint index);
    [DllImport(Module)] public static extern int CSharp_sg_ColorSpace_getchosen(IntPtr self);
    [DllImport(Module)] public static extern IntPtr CSharp_sg_ColorSpace_get_ColorSpaceSRGB__SWIG_0(IntPtr self);
    [DllImport(Module)] public static extern double CSharp_ColorSpaceSRGBType_get_Red(IntPtr self);
    [DllImport(Module)] public static extern int CSharp_ColorSpaceSRGBType_set_Red(IntPtr self, double value);
    [DllImport(Module)] public static extern IntPtr CSharp_ColorSpaceSRGBTypeUpcast(IntPtr self);
    [DllImport(Module)] public static extern void CSharp_ColorSpaceType_append_ChangeHistory(IntPtr self, IntPtr time);
    [DllImport(Module)] public static extern IntPtr CSharp_new_c_datetime__SWIG_3([MarshalAs(Narrow)] string text);
    [DllImport(Module)] public static extern void CSharp_delete_c_datetime(IntPtr self);
}

/// Null arguments, which the library reports through callbacks; the proxy throws them when the call has returned.
static class Pending
{
    [ThreadStatic] static Exception pending;

    // Static fields: the library keeps the pointers, and the collector would take the delegates of a local variable.
    static readonly Native.ExceptionCallback Other = text => pending = new SystemException(text);
    static readonly Native.ArgumentCallback Argument = (text, name) => pending = new ArgumentException(text, name);
    static readonly Native.ArgumentCallback Null = (text, name) => pending = new ArgumentNullException(name, text);
    static readonly Native.ArgumentCallback Range = (text, name) => pending = new ArgumentOutOfRangeException(name, text);
    static readonly Native.StringCallback Text = text => IntPtr.Zero;

    public static void Register()
    {
        Native.SWIGRegisterExceptionCallbacks_VyrModule(Other, Other, Other, Other, Other, Other, Other, Other, Other, Other,
                                                        Other);
        Native.SWIGRegisterExceptionArgumentCallbacks_VyrModule(Argument, Null, Range);
        Native.SWIGRegisterStringCallback_VyrModule(Text);
    }

    public static T Check<T>(T result)
    {
        Exception thrown = pending;
        pending = null;
        if (thrown != null) throw thrown;
        return result;
    }
}

static class Program
{
    const int SRGB = 6; // the number of ColorSpaceSRGB among the colour values

    static void Demand(int code, string what)
    {
        if (code == 0) return;
        string text = Marshal.PtrToStringAnsi(Native.CSharp_get_error_description(code));
        throw new Exception(what + " failed with " + code + ": " + text);
    }

    /// Loads with a report that gathers up to twenty faults, and prints them.
    static bool Load(IntPtr document, string path)
    {
        IntPtr report = Native.VyrModule_LoadFile(document, path, 1, 20);
        if (report == IntPtr.Zero) throw new OutOfMemoryException();
        bool isOk = Native.VyrModule_ReportCode(report) == 0;
        for (uint i = 0; i < Native.VyrModule_ReportFaultCount(report); ++i)
            Console.WriteLine("line {0}: {1}\n    {2}: {3}", Native.VyrModule_FaultLine(report, i),
                              Native.VyrModule_FaultPath(report, i), Native.VyrModule_FaultText(report, i),
                              Native.VyrModule_FaultDetail(report, i));
        if (!isOk) Console.WriteLine("{0} fault(s) in all", Native.VyrModule_ReportTotalCount(report));
        Native.VyrModule_DeleteReport(report);
        return isOk;
    }

    /// Saves, or says why the file isn't what it should be, some of which the plain call's code leaves out.
    static void Save(IntPtr document, string path)
    {
        IntPtr report = Native.VyrModule_WriteFile(document, path);
        if (report == IntPtr.Zero) throw new OutOfMemoryException();
        string faults = Native.VyrModule_ReportText(report);
        Native.VyrModule_DeleteReport(report);
        if (faults.Length != 0) throw new Exception(faults);
    }

    static IntPtr FirstColor(IntPtr document)
    {
        IntPtr palette = Native.CSharp_Vyr_get_Palette__SWIG_0(document, 0);
        return Native.CSharp_ColorSetType_get_Color__SWIG_0(Native.CSharp_PaletteType_get_ColorSet__SWIG_0(palette, 0), 0);
    }

    static IntPtr FirstRGB(IntPtr color)
    {
        IntPtr value = Native.CSharp_ColorType_get_ColorSpace__SWIG_0(color, 0);
        if (Native.CSharp_sg_ColorSpace_getchosen(value) != SRGB) throw new Exception("the first colour isn't sRGB");
        return Native.CSharp_sg_ColorSpace_get_ColorSpaceSRGB__SWIG_0(value);
    }

    static void Walk(IntPtr document)
    {
        for (uint p = 0; p < Native.CSharp_Vyr_size_Palette(document); ++p)
        {
            IntPtr palette = Native.CSharp_Vyr_get_Palette__SWIG_0(document, p);
            for (uint s = 0; s < Native.CSharp_PaletteType_size_ColorSet(palette); ++s)
            {
                IntPtr set = Native.CSharp_PaletteType_get_ColorSet__SWIG_0(palette, s);
                Console.WriteLine("{0}, {1}: {2} colours", Native.CSharp_PaletteType_get_PaletteName(palette),
                                  Native.CSharp_ColorSetType_get_ColorSetName(set), Native.CSharp_ColorSetType_size_Color(set));
            }
        }
        IntPtr first = FirstColor(document);
        Console.WriteLine("first: {0}, red {1}", Native.CSharp_ColorType_get_ColorName(first),
                          Native.CSharp_ColorSpaceSRGBType_get_Red(FirstRGB(first)).ToString("0.####"));
    }

    static int Main(string[] arguments)
    {
        if (arguments.Length != 2) return 2;
        Pending.Register();

        IntPtr document = Native.CSharp_new_Vyr__SWIG_0();
        if (!Load(document, arguments[0])) return 1;
        Walk(document);

        // Objects that a getter returned are part of the document and aren't deleted.
        IntPtr color = FirstColor(document), value = FirstRGB(color);
        Console.WriteLine("red of 1.5: code {0}", Native.CSharp_ColorSpaceSRGBType_set_Red(value, 1.5));
        Demand(Native.CSharp_ColorSpaceSRGBType_set_Red(value, 0.25), "setting red");
        Demand(Native.CSharp_ColorType_set_ColorName(color, "bleu p\u00E2le \uD83C\uDFA8"), "setting the name");

        // What a constructor returned is the caller's.
        IntPtr time = Pending.Check(Native.CSharp_new_c_datetime__SWIG_3("2026-05-01T12:00:00Z"));
        Native.CSharp_ColorSpaceType_append_ChangeHistory(Native.CSharp_ColorSpaceSRGBTypeUpcast(value), time);
        Native.CSharp_delete_c_datetime(time);

        try
        {
            Pending.Check(Native.CSharp_new_Vyr__SWIG_1(IntPtr.Zero));
        }
        catch (ArgumentNullException thrown)
        {
            Console.WriteLine("copy of null: {0}", thrown.Message);
        }

        IntPtr result = Native.CSharp_Vyr_writeString(document);
        Demand(Native.CSharp_XMLDocumentResult_getElmxError(result), "writing");
        Console.WriteLine("as text: {0}", Native.CSharp_XMLDocumentResult_getXmlDocument(result).Substring(0, 5));
        Native.CSharp_delete_XMLDocumentResult(result);

        Save(document, arguments[1]);
        Native.CSharp_delete_Vyr(document);

        document = Native.CSharp_new_Vyr__SWIG_0();
        Demand(Native.CSharp_Vyr_loadFile(document, arguments[1]), "loading again");
        Walk(document);
        Native.CSharp_delete_Vyr(document);
        return 0;
    }
}
