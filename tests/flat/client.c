/* Copyright 2026 The Vyr Authors
 * SPDX-License-Identifier: Apache-2.0
 *
 * A host in C: strings under both rules of freeing, every kind of null report, failures as results, and many loads
 * and saves in one process. The address sanitizer's build of it watches what is freed and what isn't.
 *
 *     client <palette> <rounds>       rounds: how often the palette is loaded and saved; the memory must not grow
 */

#include <stdint.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <uchar.h>

typedef void (*exception_callback)(const char* text);
typedef void (*argument_callback)(const char* text, const char* parameter);
typedef char* (*string_callback)(const char* text);
extern void SWIGRegisterExceptionCallbacks_VyrModule(exception_callback, exception_callback, exception_callback,
                                                     exception_callback, exception_callback, exception_callback,
                                                     exception_callback, exception_callback, exception_callback,
                                                     exception_callback, exception_callback);
extern void SWIGRegisterExceptionArgumentCallbacks_VyrModule(argument_callback, argument_callback, argument_callback);
extern void SWIGRegisterStringCallback_VyrModule(string_callback);
extern void VyrModule_SetBstrPrefix(int32_t bytes);
extern void VyrModule_FreeString(void* text);

extern void* CSharp_new_Vyr__SWIG_0(void);
extern void CSharp_delete_Vyr(void* self);
extern int32_t CSharp_Vyr_loadFile(void* self, const char16_t* path);
extern int32_t CSharp_Vyr_loadString(void* self, const char16_t* text);
extern int32_t CSharp_Vyr_writeFile(void* self, const char16_t* path);
extern void* CSharp_Vyr_writeString(void* self);
extern int32_t CSharp_Vyr_unmarshal__SWIG_1(void* self, const char* data, uint32_t size);
extern int32_t CSharp_Vyr_marshal__SWIG_0(void* self, const char* path);
extern uint32_t CSharp_Vyr_size_Palette(void* self);
extern int32_t CSharp_Vyr_unmarshal__SWIG_0(void* self, const char* path);
extern void* CSharp_Vyr_get_Palette__SWIG_0(void* self, uint32_t index);
extern int32_t CSharp_PaletteType_append_ChangeHistory(void* self, void* value);
extern void* CSharp_new_c_datetime__SWIG_2(const char* text);
extern void CSharp_delete_c_datetime(void* self);
extern void* CSharp_new_XMLDocumentResult(const char16_t* text, int32_t code);
extern void CSharp_delete_XMLDocumentResult(void* self);
extern char16_t* CSharp_XMLDocumentResult_getXmlDocument(void* self);
extern int32_t CSharp_XMLDocumentResult_getElmxError(void* self);

extern void* CSharp_new_ColorSpaceCMYKType__SWIG_0(void);
extern void* CSharp_new_ColorSpaceCMYKType__SWIG_1(void* source);
extern void CSharp_delete_ColorSpaceCMYKType(void* self);
extern void* CSharp_ColorSpaceCMYKTypeUpcast(void* self);
extern void CSharp_ColorSpaceCMYKType_swap(void* self, void* other);
extern void* CSharp_ColorSpaceCMYKType_factory(int32_t ns_id, const char* name);
extern void* CSharp_ColorSpaceCMYKType_clone(void* self);
extern char* CSharp_ColorSpaceCMYKType_getid(void* self);
extern int32_t CSharp_ColorSpaceCMYKType_has_id(void* self, const char* identity);
extern const char* CSharp_ColorSpaceCMYKType_id_get(void);
extern void CSharp_ColorSpaceCMYKType_id_set(const char* identity);
extern int32_t CSharp_ColorSpaceCMYKType_set_Cyan(void* self, double value);
extern double CSharp_ColorSpaceCMYKType_get_Cyan(void* self);
extern char16_t* CSharp_ColorSpaceCMYKType_get_Name(void* self);
extern int32_t CSharp_ColorSpaceCMYKType_set_Name(void* self, const char16_t* value);
extern int32_t CSharp_ColorSpaceCMYKType_isset_Name(void* self);
extern void* CSharp_ColorSpaceCMYKType_assign_SpotColor(void* self, uint32_t index, void* value);
extern uint32_t CSharp_ColorSpaceCMYKType_size_SpotColor(void* self);
extern void* CSharp_ColorSpaceCMYKType_get_SpotColor__SWIG_0(void* self, uint32_t index);
extern int32_t CSharp_ColorSpaceType_append_ChangeHistory(void* self, void* value);
extern void* CSharp_new_SpotColorType__SWIG_0(void);
extern void CSharp_delete_SpotColorType(void* self);
extern int32_t CSharp_SpotColorType_set_Name(void* self, const char16_t* value);
extern void* CSharp_new_ToleranceType__SWIG_0(void);
extern void CSharp_delete_ToleranceType(void* self);
extern void* CSharp_ToleranceType_assign_Function(void* self, void* value);
extern void* CSharp_new_Revision__SWIG_0(void);
extern void CSharp_delete_Revision(void* self);
extern int32_t CSharp_Revision_append_any(void* self, const char* value);
extern void CSharp_Revision_get_any(void* self, uint32_t index, const char* ns, const char* name, const char* value);
extern void* CSharp_new_ColorSpaceCMYKPlusN__SWIG_2(const char* path, int32_t* error);
extern void* CSharp_new_ColorSpaceCMYKPlusN__SWIG_3(const char* data, uint32_t size, int32_t* error);
extern void CSharp_delete_ColorSpaceCMYKPlusN(void* self);
extern void* CSharp_new_DevicePolarization__SWIG_0(void);
extern void CSharp_delete_DevicePolarization(void* self);
extern int32_t CSharp_DevicePolarization_set_DevicePolarization(void* self, uint32_t value);
extern int32_t CSharp_DevicePolarization_get_DevicePolarization(void* self);

extern void* VyrModule_LoadFile(void* self, const char16_t* path, uint32_t collect, uint32_t limit);
extern void* VyrModule_LoadString(void* self, const char16_t* text, uint32_t collect, uint32_t limit);
extern void* VyrModule_WriteFile(void* self, const char16_t* path);
extern void VyrModule_DeleteReport(void* report);
extern int32_t VyrModule_ReportCode(void* report);
extern int32_t VyrModule_ReportIsReadToEnd(void* report);
extern uint32_t VyrModule_ReportFaultCount(void* report);
extern uint32_t VyrModule_ReportTotalCount(void* report);
extern char16_t* VyrModule_ReportText(void* report);
extern int32_t VyrModule_FaultCode(void* report, uint32_t index);
extern int32_t VyrModule_FaultLine(void* report, uint32_t index);
extern char16_t* VyrModule_FaultText(void* report, uint32_t index);
extern char16_t* VyrModule_FaultDetail(void* report, uint32_t index);
extern char16_t* VyrModule_FaultFile(void* report, uint32_t index);
extern char16_t* VyrModule_FaultItem(void* report, uint32_t index);
extern char16_t* VyrModule_FaultPath(void* report, uint32_t index);
extern char16_t* VyrModule_FaultValue(void* report, uint32_t index);

extern char* CSharp_convert_to_narrow__SWIG_0(const char16_t* source);
extern char* CSharp_convert__SWIG_0(const char* target, const char16_t* source);
extern char16_t* CSharp_convert_to_wide__SWIG_0(const char* source);
extern int32_t CSharp_LMX_XML_STRICT_get(void);
extern int32_t CSharp_LMX_ATOFLOAT_MODE_SIMPLE_get(void);

static void check(int holds, const char* what, int line) {
    if (holds) return;
    fprintf(stderr, "client.c:%d: %s\n", line, what);
    exit(1);
}
#define CHECK(condition) check(condition, #condition, __LINE__)

static const char* reported = NULL;
static void on_null(const char* text, const char* parameter) {
    CHECK(parameter == NULL && reported == NULL);
    reported = text;
}
/* These are never called. */
static void on_argument(const char* text, const char* parameter) { CHECK(text == NULL && parameter != NULL); }
static void on_exception(const char* text) { CHECK(text == NULL); }
static char* on_string(const char* text) { return CHECK(text == NULL), NULL; }

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
    void* tolerance = CSharp_new_ToleranceType__SWIG_0();
    void* revision = CSharp_new_Revision__SWIG_0();
    void* spot = CSharp_new_SpotColorType__SWIG_0();
    CHECK(CSharp_ColorSpaceCMYKType_set_Cyan(color, 40) == 0 && CSharp_ColorSpaceCMYKType_get_Cyan(color) == 40);
    CHECK(CSharp_ColorSpaceCMYKType_set_Cyan(color, 101) == 36 && CSharp_ColorSpaceCMYKType_get_Cyan(color) == 40);

    REPORTS(CSharp_new_ColorSpaceCMYKType__SWIG_1(NULL), "com_vyrgraph_v2::ColorSpaceCMYKType const & type is null");
    REPORTS((CSharp_ColorSpaceCMYKType_swap(color, NULL), 0), "com_vyrgraph_v2::ColorSpaceCMYKType & type is null");
    CHECK(CSharp_ColorSpaceCMYKType_get_Cyan(color) == 40);
    REPORTS(CSharp_ColorSpaceCMYKType_assign_SpotColor(color, 0, NULL),
            "com_vyrgraph_v2::SpotColorType const & type is null");
    CHECK(CSharp_ColorSpaceCMYKType_size_SpotColor(color) == 0);
    REPORTS(CSharp_ColorSpaceType_append_ChangeHistory(color, NULL), "lmx::tc_datetime const & type is null");
    REPORTS(CSharp_ToleranceType_assign_Function(tolerance, NULL),
            "com_vyrgraph_v2::sg_Function const & type is null");
    REPORTS(CSharp_ColorSpaceCMYKType_factory(1000, NULL), "null string");
    REPORTS(CSharp_Revision_append_any(revision, NULL), "null string");
    REPORTS(CSharp_convert__SWIG_0(NULL, u"x"), "null string");
    CHECK(CSharp_Revision_append_any(revision, "<a/>") == 0);
    for (int null = 0; null < 3; ++null)
        REPORTS((CSharp_Revision_get_any(revision, 0, null == 0 ? NULL : "", null == 1 ? NULL : "",
                                         null == 2 ? NULL : ""),
                 0),
                "null string");
    CSharp_Revision_get_any(revision, 0, "", "", "");
    CSharp_delete_ColorSpaceCMYKType(NULL);
    CHECK(CSharp_SpotColorType_set_Name(spot, NULL) == 20);

    /* A get beyond the end makes what lies between. */
    CHECK(CSharp_ColorSpaceCMYKType_get_SpotColor__SWIG_0(color, 2) != NULL);
    CHECK(CSharp_ColorSpaceCMYKType_size_SpotColor(color) == 3);

    CHECK(CSharp_ColorSpaceCMYKType_factory(1, "ColorSpaceCMYKType") == NULL);
    CHECK(CSharp_ColorSpaceCMYKType_factory(1000, "Bogus") == NULL);
    void* derived = CSharp_ColorSpaceCMYKType_factory(1000, "ColorSpaceCMYKPlusNType");
    void* copy = CSharp_ColorSpaceCMYKType_clone(derived);
    char* own = CSharp_ColorSpaceCMYKType_getid(copy);
    CHECK(strcmp(own, "ColorSpaceCMYKPlusNType") == 0 && CSharp_ColorSpaceCMYKType_has_id(copy, own) == 0);
    VyrModule_FreeString(own);
    CHECK(CSharp_ColorSpaceCMYKType_has_id(copy, CSharp_ColorSpaceCMYKType_id_get()) == 1);
    CHECK(CSharp_ColorSpaceCMYKType_has_id(copy, "ColorSpaceCMYKType") == 0);
    CHECK(CSharp_ColorSpaceCMYKTypeUpcast(copy) == copy);
    const char* identity = CSharp_ColorSpaceCMYKType_id_get();
    CSharp_ColorSpaceCMYKType_id_set(NULL);
    CHECK(CSharp_ColorSpaceCMYKType_id_get() == NULL && CSharp_ColorSpaceCMYKType_getid(color) == NULL);
    char another[] = "Another";
    CSharp_ColorSpaceCMYKType_id_set(another);
    const char* set = CSharp_ColorSpaceCMYKType_id_get();
    CHECK(set != another && strcmp(set, another) == 0 && identity != set);
    CSharp_delete_ColorSpaceCMYKType(copy);
    CSharp_delete_ColorSpaceCMYKType(derived);

    /* The low byte of a boolean decides. */
    void* filter = CSharp_new_DevicePolarization__SWIG_0();
    CHECK(CSharp_DevicePolarization_set_DevicePolarization(filter, 0xABCDEF02) == 0);
    CHECK(CSharp_DevicePolarization_get_DevicePolarization(filter) == 1);
    CHECK(CSharp_DevicePolarization_set_DevicePolarization(filter, 0xABCDEF00) == 0);
    CHECK(CSharp_DevicePolarization_get_DevicePolarization(filter) == 0);
    CSharp_delete_DevicePolarization(filter);

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
    CSharp_delete_ToleranceType(tolerance);
    CSharp_delete_Revision(revision);
    CSharp_delete_SpotColorType(spot);
}

static void documents(const char* palette, long rounds) {
    void* document = CSharp_new_Vyr__SWIG_0();
    CHECK(CSharp_Vyr_loadFile(document, u"no such file.vyr") == 1);
    /* A container that isn't there: an exception inside, a code outside. */
    CHECK(CSharp_Vyr_loadFile(document, u"no such file.vyrz") == 1000);
    CHECK(CSharp_Vyr_writeFile(document, u"document.txt") == 1001);
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
    CHECK(VyrModule_ReportCode(report) == 39 && VyrModule_ReportIsReadToEnd(report) == 0);
    CHECK(VyrModule_ReportFaultCount(report) == 1 && VyrModule_ReportTotalCount(report) == 3);
    CHECK(VyrModule_FaultCode(report, 0) == 39 && VyrModule_FaultLine(report, 0) == 2);
    CHECK_TEXT(VyrModule_FaultText(report, 0), u"Unexpected attribute");
    CHECK_TEXT(VyrModule_FaultDetail(report, 0), u"Preamble takes no attributes");
    CHECK_TEXT(VyrModule_FaultFile(report, 0), u"");
    CHECK_TEXT(VyrModule_FaultItem(report, 0), u"v:Preamble");
    CHECK_TEXT(VyrModule_FaultPath(report, 0), u"Preamble / @x\u00E9");
    CHECK_TEXT(VyrModule_FaultValue(report, 0), u"1");
    CHECK(VyrModule_FaultCode(report, UINT32_MAX) == 0 && VyrModule_FaultLine(report, 1) == 0);
    CHECK_TEXT(VyrModule_FaultPath(report, UINT32_MAX), u"");
    VyrModule_DeleteReport(report);
    VyrModule_DeleteReport(NULL);

    /* The low byte of the flag decides: the first fault ends the load. */
    report = VyrModule_LoadString(document, text, 0x100, 5);
    CHECK(VyrModule_ReportTotalCount(report) == 1);
    VyrModule_DeleteReport(report);

    report = VyrModule_LoadFile(document, u"no such file.vyrz", 0, 5);
    CHECK(VyrModule_FaultLine(report, 0) == 0 && VyrModule_ReportCode(report) == VyrModule_FaultCode(report, 0));
    CHECK_TEXT(VyrModule_FaultFile(report, 0), u"no such file.vyrz");
    CHECK_TEXT(VyrModule_ReportText(report), u"no such file.vyrz: Unable to open file: No such file or directory\n");
    VyrModule_DeleteReport(report);
    report = VyrModule_WriteFile(document, u"document.txt");
    CHECK(VyrModule_ReportCode(report) == 1001);
    VyrModule_DeleteReport(report);
    CSharp_delete_Vyr(document);

    /* Setters take every date; a save tells of those that can't be read again, and writes them. */
    document = CSharp_new_Vyr__SWIG_0();
    CHECK(CSharp_Vyr_unmarshal__SWIG_0(document, palette) == 0);
    void* date = CSharp_new_c_datetime__SWIG_2("2024-05-01T09:30:00");
    CHECK(CSharp_PaletteType_append_ChangeHistory(CSharp_Vyr_get_Palette__SWIG_0(document, 0), date) == 0);
    CHECK(CSharp_Vyr_writeFile(document, u"client-date.vyr") == 0);
    report = VyrModule_WriteFile(document, u"client-date.vyr");
    CHECK(VyrModule_ReportCode(report) == 22 && VyrModule_ReportTotalCount(report) == 1);
    CHECK_TEXT(VyrModule_FaultPath(report, 0), u"Palette \"CSS\" / ChangeHistory[2]");
    CHECK_TEXT(VyrModule_FaultValue(report, 0), u"2024-05-01T09:30:00");
    CHECK(CSharp_Vyr_loadFile(document, u"client-date.vyr") == 22);
    VyrModule_DeleteReport(report);
    CSharp_delete_c_datetime(date);
    CSharp_delete_Vyr(document);
}

int main(int count, char** arguments) {
    CHECK(count == 3);
    SWIGRegisterExceptionCallbacks_VyrModule(on_exception, on_exception, on_exception, on_exception, on_exception,
                                             on_exception, on_exception, on_exception, on_exception, on_exception,
                                             on_exception);
    SWIGRegisterExceptionArgumentCallbacks_VyrModule(on_argument, on_null, on_argument);
    SWIGRegisterStringCallback_VyrModule(on_string);
    strings(0);
    strings(4);
    strings(8);
    nulls_and_results();
    documents(arguments[1], atol(arguments[2]));
    reports(arguments[1]);
    return 0;
}
