/* Copyright 2026 The Vyr Authors
 * SPDX-License-Identifier: Apache-2.0
 *
 * A host in C: strings under both rules of freeing, every kind of null report, failures as results, and many loads
 * and saves in one process. The address sanitizer's build of it watches what is freed and what isn't.
 *
 *     client <palette> <rounds>       rounds: how often the palette is loaded and saved; the memory must not grow
 */

#include <errno.h>
#include <stdint.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <uchar.h>

#include "flat/generated/vyr_flat.h"

static void check(int holds, const char* what, int line) {
    if (holds) return;
    fprintf(stderr, "client.c:%d: %s\n", line, what);
    exit(1);
}
#define CHECK(condition) check(condition, #condition, __LINE__)

static const char* reported = NULL;
static void VYR_FLAT_CALL on_null(const char* text, const char* parameter) {
    CHECK(parameter == NULL && reported == NULL);
    reported = text;
}
/* These are never called. */
static void VYR_FLAT_CALL on_argument(const char* text, const char* parameter) {
    CHECK(text == NULL && parameter != NULL);
}
static void VYR_FLAT_CALL on_exception(const char* text) { CHECK(text == NULL); }
static char* VYR_FLAT_CALL on_string(const char* text) { return CHECK(text == NULL), NULL; }

/* Runs a call with a null argument: it must answer 0 after one report of the text. */
#define REPORTS(call, text) (CHECK((call) == 0), check_report(text, __LINE__))
static void check_report(const char* text, int line) {
    check(reported != NULL && strcmp(reported, text) == 0, text, line);
    reported = NULL;
}

static uint32_t byte_length(const void* text) {
    uint32_t length = 0;
    memcpy(&length, (const char*)text - sizeof length, sizeof length);
    return length;
}

static void strings(int32_t prefix) {
    static const char16_t name[] = u"Gr\u00FCn \U0001F3A8";
    static const char narrow[] = "Gr\xC3\xBCn \xF0\x9F\x8E\xA8";
    if (prefix != 0) VyrModule_SetBstrPrefix(prefix);
    void* color = CSharp_new_ColorSpaceCMYKType__SWIG_0();
    char16_t* text = CSharp_ColorSpaceCMYKType_get_Name(color);
    CHECK(text != NULL && byte_length(text) == 0 && text[0] == 0);
    VyrModule_FreeString(text);

    CHECK(CSharp_ColorSpaceCMYKType_set_Name(color, name) == 0 && CSharp_ColorSpaceCMYKType_isset_Name(color) == 1);
    text = CSharp_ColorSpaceCMYKType_get_Name(color);
    CHECK(byte_length(text) == sizeof name - 2 && memcmp(text, name, sizeof name) == 0);
    char* bytes = CSharp_convert_to_narrow__SWIG_0(text);
    CHECK(byte_length(bytes) == sizeof narrow - 1 && memcmp(bytes, narrow, sizeof narrow) == 0);
    CHECK(bytes[sizeof narrow] == 0);
    char16_t* back = CSharp_convert_to_wide__SWIG_0(bytes);
    CHECK(memcmp(back, name, sizeof name) == 0);
    VyrModule_FreeString(text);
    VyrModule_FreeString(bytes);
    VyrModule_FreeString(back);
    VyrModule_FreeString(NULL);

    CHECK(CSharp_ColorSpaceCMYKType_set_Name(color, NULL) == 0 && reported == NULL);
    text = CSharp_ColorSpaceCMYKType_get_Name(color);
    CHECK(byte_length(text) == 0);
    VyrModule_FreeString(text);
    CSharp_delete_ColorSpaceCMYKType(color);
}

static void nulls_and_results(void) {
    void* color = CSharp_new_ColorSpaceCMYKType__SWIG_0();
    void* revision = CSharp_new_Revision__SWIG_0();
    void* spot = CSharp_new_SpotColorType__SWIG_0();
    CHECK(CSharp_ColorSpaceCMYKType_set_Cyan(color, 40) == 0);
    CHECK(CSharp_ColorSpaceCMYKType_set_Cyan(color, 101) == 36 && CSharp_ColorSpaceCMYKType_get_Cyan(color) == 40);

    REPORTS((CSharp_ColorSpaceCMYKType_swap(color, NULL), 0), "com_vyrgraph_v2::ColorSpaceCMYKType & type is null");
    CHECK(CSharp_ColorSpaceCMYKType_get_Cyan(color) == 40);
    REPORTS(CSharp_ColorSpaceType_append_ChangeHistory(color, NULL), "lmx::tc_datetime const & type is null");
    REPORTS(CSharp_convert__SWIG_0(NULL, u"x"), "null string");
    CHECK(CSharp_Revision_append_any(revision, "<a/>") == 0);
    for (int null = 0; null < 3; ++null)
        REPORTS((CSharp_Revision_get_any(revision, 0, null == 0 ? NULL : "", null == 1 ? NULL : "",
                                         null == 2 ? NULL : ""),
                 0),
                "null string");
    CSharp_delete_ColorSpaceCMYKType(NULL);
    CHECK(CSharp_SpotColorType_set_Name(spot, NULL) == 20);

    CHECK(CSharp_ColorSpaceCMYKType_factory(1, "ColorSpaceCMYKType") == NULL);
    void* derived = CSharp_ColorSpaceCMYKType_factory(1000, "ColorSpaceCMYKPlusNType");
    void* copy = CSharp_ColorSpaceCMYKType_clone(derived);
    char* own = CSharp_ColorSpaceCMYKType_getid(copy);
    CHECK(strcmp(own, "ColorSpaceCMYKPlusNType") == 0 && CSharp_ColorSpaceCMYKType_has_id(copy, own) == 0);
    VyrModule_FreeString(own);
    CHECK(CSharp_ColorSpaceCMYKType_has_id(copy, CSharp_ColorSpaceCMYKType_id_get()) == 1);
    CHECK(CSharp_ColorSpaceCMYKType_has_id(copy, "ColorSpaceCMYKType") == 0);
    CHECK(CSharp_ColorSpaceCMYKTypeUpcast(copy) == copy);
    CSharp_ColorSpaceCMYKType_id_set(NULL);
    CHECK(CSharp_ColorSpaceCMYKType_id_get() == NULL && CSharp_ColorSpaceCMYKType_getid(color) == NULL);
    char another[] = "Another";
    CSharp_ColorSpaceCMYKType_id_set(another);
    const char* set = CSharp_ColorSpaceCMYKType_id_get();
    CHECK(set != another && strcmp(set, another) == 0);
    CSharp_delete_ColorSpaceCMYKType(copy);
    CSharp_delete_ColorSpaceCMYKType(derived);

    /* The low byte of a boolean decides. */
    void* filter = CSharp_new_DevicePolarization__SWIG_0();
    CHECK(CSharp_DevicePolarization_set_DevicePolarization(filter, 0xABCDEF02) == 0);
    CHECK(CSharp_DevicePolarization_get_DevicePolarization(filter) == 1);
    CHECK(CSharp_DevicePolarization_set_DevicePolarization(filter, 0xABCDEF00) == 0);
    CHECK(CSharp_DevicePolarization_get_DevicePolarization(filter) == 0);
    CSharp_delete_DevicePolarization(filter);

    /* Elements of their own, by the names of their classes. */
    void* lab = CSharp_new_ColorSpaceCIELab__SWIG_0();
    void* report = VyrModule_WriteElement(lab, "ColorSpaceCIELab", u"client.xml");
    CHECK(VyrModule_ReportCode(report) == 46 && VyrModule_ReportFaultCount(report) == 1);
    VyrModule_DeleteReport(report);
    report = VyrModule_LoadElement(lab, "ColorSpaceCIELab", u"none.xml", 1, 20);
    CHECK(VyrModule_ReportCode(report) == 1 && VyrModule_ReportSystemError(report) == ENOENT);
    VyrModule_DeleteReport(report);
    CHECK(VyrModule_LoadElement(lab, "ColorSpaceCIELabType", u"none.xml", 1, 20) == NULL);
    CHECK(VyrModule_WriteElement(lab, "Bogus", u"client.xml") == NULL);
    CSharp_delete_ColorSpaceCIELab(lab);

    static const char wrong[] = "<x/>";
    int32_t error = 0;
    void* element = CSharp_new_ColorSpaceCMYKPlusN__SWIG_2("no such file", &error);
    CHECK(element != NULL && error == 1);
    CSharp_delete_ColorSpaceCMYKPlusN(element);
    element = CSharp_new_ColorSpaceCMYKPlusN__SWIG_3(wrong, sizeof wrong - 1, &error);
    CHECK(element != NULL && error == 16);
    CSharp_delete_ColorSpaceCMYKPlusN(element);

    CHECK(CSharp_LMX_XML_STRICT_get() == 1 && CSharp_LMX_ATOFLOAT_MODE_SIMPLE_get() == 3);
    CSharp_delete_ColorSpaceCMYKType(color);
    CSharp_delete_Revision(revision);
    CSharp_delete_SpotColorType(spot);
}

static void documents(const char* palette, long rounds) {
    void* document = CSharp_new_Vyr__SWIG_0();
    CHECK(CSharp_Vyr_loadFile(document, u"no such file.vyr") == 1);
    /* A container that isn't there: an exception inside, a code outside. */
    CHECK(CSharp_Vyr_loadFile(document, u"no such file.vyrz") == 1000);
    CHECK(CSharp_Vyr_marshal__SWIG_0(document, "document.vyr") == 46);
    void* result = CSharp_Vyr_writeString(document);
    CHECK(CSharp_XMLDocumentResult_getElmxError(result) == 46);
    CSharp_delete_XMLDocumentResult(result);
    result = CSharp_new_XMLDocumentResult(u"text", 7);
    CHECK(CSharp_XMLDocumentResult_getElmxError(result) == 7);
    CSharp_delete_XMLDocumentResult(result);
    CSharp_delete_Vyr(document);

    static char text[1 << 20];
    FILE* file = fopen(palette, "rb");
    CHECK(file != NULL);
    const size_t size = fread(text, 1, sizeof text, file);
    fclose(file);
    for (long round = 0; round < rounds; ++round) {
        document = CSharp_new_Vyr__SWIG_0();
        CHECK(CSharp_Vyr_unmarshal__SWIG_1(document, text, (uint32_t)size) == 0);
        CHECK(CSharp_Vyr_size_Palette(document) == 1);
        result = CSharp_Vyr_writeString(document);
        CHECK(CSharp_XMLDocumentResult_getElmxError(result) == 0);
        char16_t* written = CSharp_XMLDocumentResult_getXmlDocument(result);
        CHECK(byte_length(written) >= size && CSharp_Vyr_loadString(document, written) == 0);
        CHECK(CSharp_Vyr_size_Palette(document) == 2);
        CHECK(round != 0 || CSharp_Vyr_writeFile(document, u"client.vyrz") == 0);
        VyrModule_FreeString(written);
        CSharp_delete_XMLDocumentResult(result);
        CSharp_delete_Vyr(document);
    }
}

/* A new string must be this text. */
static void check_text(char16_t* text, const char16_t* expected, int line) {
    size_t units = 0;
    while (expected[units] != 0) ++units;
    check(byte_length(text) == 2 * units && memcmp(text, expected, 2 * units + 2) == 0, "another text", line);
    VyrModule_FreeString(text);
}
#define CHECK_TEXT(text, expected) check_text(text, expected, __LINE__)

static void reports(const char* palette) {
    static const char16_t text[] =
        u"<v:Vyr xmlns:v='http://vyrgraph.com/v2'>\n<v:Preamble x\u00E9='1'>\n<v:Header y='2'/></v:Preamble></v:Vyr>";
    void* document = CSharp_new_Vyr__SWIG_0();
    void* report = VyrModule_LoadString(document, text, 0x101, 1);
    CHECK(VyrModule_ReportCode(report) == 39 && VyrModule_ReportIsReadToEnd(report) == 1);
    CHECK(VyrModule_ReportFaultCount(report) == 1 && VyrModule_ReportTotalCount(report) == 3);
    CHECK(VyrModule_FaultCode(report, 0) == 39 && VyrModule_FaultLine(report, 0) == 2);
    CHECK(VyrModule_FaultColumn(report, 0) == 13);
    CHECK_TEXT(VyrModule_FaultText(report, 0), u"Unexpected attribute");
    CHECK_TEXT(VyrModule_FaultDetail(report, 0), u"Preamble takes no attributes");
    CHECK_TEXT(VyrModule_FaultFile(report, 0), u"");
    CHECK_TEXT(VyrModule_FaultItem(report, 0), u"v:Preamble");
    CHECK_TEXT(VyrModule_FaultPath(report, 0), u"Preamble / @x\u00E9");
    CHECK_TEXT(VyrModule_FaultValue(report, 0), u"1");
    CHECK(VyrModule_FaultCode(report, UINT32_MAX) == 0 && VyrModule_FaultLine(report, 1) == 0);
    CHECK(VyrModule_FaultColumn(report, 1) == 0);
    CHECK_TEXT(VyrModule_FaultPath(report, UINT32_MAX), u"");
    VyrModule_DeleteReport(report);
    VyrModule_DeleteReport(NULL);

    /* The low byte of the flag decides: the first fault ends the load. */
    report = VyrModule_LoadString(document, text, 0x100, 5);
    CHECK(VyrModule_ReportTotalCount(report) == 1);
    VyrModule_DeleteReport(report);

    /* From memory, in another encoding, under a name of the caller's. */
    static const char bytes[] = "<?xml version='1.0' encoding='ISO-8859-1'?><\xE9/>";
    report = VyrModule_LoadMemory(document, bytes, sizeof bytes - 1, u"received", 0, 5);
    CHECK(VyrModule_ReportCode(report) == 16);
    CHECK_TEXT(VyrModule_FaultFile(report, 0), u"received");
    CHECK_TEXT(VyrModule_FaultValue(report, 0), u"\u00E9");
    VyrModule_DeleteReport(report);

    /* What can't be written gives no text. */
    char16_t* written = (char16_t*)document;
    report = VyrModule_WriteString(document, &written);
    CHECK(VyrModule_ReportCode(report) == 46 && written == NULL);
    VyrModule_DeleteReport(report);

    report = VyrModule_LoadFile(document, u"no such file.vyrz", 0, 5);
    CHECK(VyrModule_FaultLine(report, 0) == 0 && VyrModule_ReportCode(report) == VyrModule_FaultCode(report, 0));
    CHECK(VyrModule_ReportSystemError(report) == ENOENT);
    CHECK_TEXT(VyrModule_FaultFile(report, 0), u"no such file.vyrz");
    CHECK_TEXT(VyrModule_ReportText(report), u"no such file.vyrz: Unable to open file: No such file or directory\n");
    VyrModule_DeleteReport(report);
    CSharp_delete_Vyr(document);

    /* What would be read back as something else gives one, and is told. */
    document = CSharp_new_Vyr__SWIG_0();
    CHECK(CSharp_Vyr_unmarshal__SWIG_0(document, palette) == 0);
    CHECK(CSharp_PaletteType_set_PaletteName(CSharp_Vyr_get_Palette__SWIG_0(document, 0), u"two\rlines") == 0);
    report = VyrModule_WriteString(document, &written);
    CHECK(VyrModule_ReportCode(report) != 0 && VyrModule_ReportIsReadToEnd(report) == 1 && written != NULL);
    VyrModule_DeleteReport(report);
    VyrModule_FreeString(written);
    CSharp_delete_Vyr(document);
}

/* Functions that work by item. */
static void items(void) {
    CHECK(VyrModule_FindItem("PaletteType", "Palette") == NULL && VyrModule_FindItem("", "") == NULL);
    void* owner = VyrModule_FindItem("PaletteType", "Owner");
    void* palette = CSharp_new_PaletteType__SWIG_0();
    CHECK(owner != NULL && VyrModule_GetPart(palette, owner) == NULL && CSharp_PaletteType_isset_Owner(palette) == 0);
    void* made = CSharp_PaletteType_get_Owner__SWIG_0(palette);
    CHECK(VyrModule_GetPart(palette, owner) == made);
    CSharp_PaletteType_unset_Owner(palette);
    CHECK(VyrModule_GetPart(palette, owner) == NULL);
    /* Lists are no single children. */
    CHECK(VyrModule_GetPart(palette, VyrModule_FindItem("PaletteType", "ColorSet")) == NULL);
    CSharp_delete_PaletteType(palette);

    void* points = VyrModule_FindItem("ColorSpaceSpectralType", "ReflectancePoint");
    void* wavelength = VyrModule_FindItem("ReflectancePointType", "Wavelength");
    void* factor = VyrModule_FindItem("ReflectancePointType", "ReflectancePointType");
    void* name = VyrModule_FindItem("ColorSpaceSpectralType", "Name");
    void* spectrum = CSharp_new_ColorSpaceSpectralType__SWIG_0();
    double values[4] = {400, 410, 420, 9};
    CHECK(VyrModule_SetDoubles(spectrum, points, wavelength, values, 3) == 0);
    CHECK(CSharp_ColorSpaceSpectralType_size_ReflectancePoint(spectrum) == 3);
    CHECK(CSharp_ReflectancePointType_is_occurs_ok(CSharp_ColorSpaceSpectralType_back_ReflectancePoint(spectrum)) ==
          0);
    /* The third value is refused, and nothing has changed. */
    const double wrong[] = {1, 2, -1, 3};
    CHECK(VyrModule_SetDoubles(spectrum, points, factor, wrong, 4) == 37);
    CHECK(VyrModule_GetDoubles(spectrum, points, factor, values, 2) == 3);
    CHECK(values[0] == 0 && values[1] == 0 && values[2] == 420);
    CHECK(VyrModule_SetDoubles(spectrum, points, factor, wrong, 2) == 0);
    CHECK(VyrModule_GetDoubles(spectrum, points, wavelength, values, 4) == 2 && values[1] == 410 && values[3] == 9);
    CHECK(CSharp_ReflectancePointType_is_occurs_ok(CSharp_ColorSpaceSpectralType_back_ReflectancePoint(spectrum)) ==
          1);
    CHECK(VyrModule_SetDoubles(spectrum, name, wavelength, values, 2) == 1000);
    CHECK(VyrModule_GetDoubles(spectrum, points, name, values, 4) == 0);
    CSharp_delete_ColorSpaceSpectralType(spectrum);

    void* markup = VyrModule_FindItem("Revision", "any");
    void* revision = CSharp_new_Revision__SWIG_0();
    CHECK(CSharp_Revision_append_any(revision, "<x>\xC3\xBC</x>") == 0);
    CHECK_TEXT(VyrModule_GetMarkup(revision, markup, 0), u"<x>\u00FC</x>");
    CHECK(VyrModule_GetMarkup(revision, markup, 1) == NULL);
    CSharp_delete_Revision(revision);

    /* A member of a derived class, and a copy of what the group holds itself. */
    void* group = CSharp_new_sg_Function__SWIG_0();
    void* member = VyrModule_FindItem("sg_Function", "Function");
    void* tolerance = CSharp_new_FunctionTolerance__SWIG_0();
    CHECK(CSharp_FunctionType_set_Result(tolerance, 7) == 0);
    for (int round = 0; round < 2; ++round) {
        void* chosen = VyrModule_AssignAlternative(group, member, round == 0 ? tolerance : made);
        CHECK(chosen == CSharp_sg_Function_get_Function__SWIG_0(group) && CSharp_sg_Function_getchosen(group) == 0);
        CHECK(CSharp_FunctionType_has_id(chosen, CSharp_FunctionTolerance_id_get()) == 1);
        CHECK(CSharp_FunctionType_get_Result(chosen) == 7);
        made = chosen;
    }
    CHECK(VyrModule_AssignAlternative(group, points, tolerance) == NULL);
    CSharp_delete_FunctionTolerance(tolerance);
    CSharp_delete_sg_Function(group);
}

int main(int count, char** arguments) {
    CHECK(count == 3);
    SWIGRegisterExceptionCallbacks_VyrModule(on_exception, on_exception, on_exception, on_exception, on_exception,
                                             on_exception, on_exception, on_exception, on_exception, on_exception,
                                             on_exception);
    SWIGRegisterExceptionArgumentCallbacks_VyrModule(on_argument, on_null, on_argument);
    SWIGRegisterStringCallback_VyrModule(on_string);
    strings(0);
#if !defined(_WIN32) /* where there is one rule, the system's */
    strings(4);
    strings(8);
#endif
    nulls_and_results();
    documents(arguments[1], atol(arguments[2]));
    reports(arguments[1]);
    items();
    return 0;
}
