/* Copyright 2026 The Vyr Authors
 * SPDX-License-Identifier: Apache-2.0
 *
 * A Windows host that knows the DLL by its names only, as a managed one does: every name of the list, the standard
 * call, the system's strings, files of any name, a disk that is full, and callers that keep the stack at four bytes.
 *
 *     windows_host <VyrModule.dll> <exports.txt> <folder of a full disk>
 */

#include <errno.h>
#include <stdint.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <wchar.h>

#define WIN32_LEAN_AND_MEAN
#include <windows.h>
/* After it. */
#include <oleauto.h>

static void check(int holds, const char* what, int line) {
    if (holds) return;
    fprintf(stderr, "windows_host.c:%d: %s (%lu)\n", line, what, GetLastError());
    exit(1);
}
#define CHECK(condition) check(condition, #condition, __LINE__)

static HMODULE module = NULL;

static FARPROC find(const char* name, int bytes) {
    char decorated[300];
#if defined(__i386__)
    snprintf(decorated, sizeof decorated, "_%s@%d", name, bytes);
#else
    snprintf(decorated, sizeof decorated, "%s", name);
    (void)bytes;
#endif
    const FARPROC function = GetProcAddress(module, decorated);
    check(function != NULL, decorated, __LINE__);
    return function;
}

/* A function of the DLL, by its name and the bytes of its arguments where pointers have 32 bits. */
#define IMPORT(result, name, bytes, arguments)     \
    typedef result(__stdcall* name##_t) arguments; \
    const name##_t name = (name##_t)(void*)find(#name, bytes)

static int count_names(const char* list) {
    FILE* file = fopen(list, "r");
    CHECK(file != NULL);
    char name[300];
    int bytes = 0;
    int count = 0;
    for (; fscanf(file, "%299s %d", name, &bytes) == 2; ++count) find(name, bytes);
    CHECK(feof(file));
    fclose(file);
    return count;
}

static int reports = 0;
static void __stdcall on_null(const char* text, const char* parameter) {
    CHECK(strcmp(text, "null string") == 0 && parameter == NULL);
    ++reports;
}
static void __stdcall on_other(const char* text, const char* parameter) { CHECK(text == NULL && parameter != NULL); }

static void* new_document(void) {
    IMPORT(void*, CSharp_new_Vyr__SWIG_0, 0, (void));
    IMPORT(int32_t, CSharp_Vyr_loadString, 8, (void*, const wchar_t*));
    void* document = CSharp_new_Vyr__SWIG_0();
    CHECK(CSharp_Vyr_loadString(document,
                                L"<v:Vyr xmlns:v='http://vyrgraph.com/v2'><v:Preamble><v:Header><v:Creator>Gr\u00FCn"
                                L"</v:Creator><v:CreatorVersion>1</v:CreatorVersion><v:ChangeHistory>2024-05-01T09:30"
                                L":00Z</v:ChangeHistory><v:Purpose>p</v:Purpose></v:Header></v:Preamble></v:Vyr>") ==
          0);
    return document;
}

/* What a marshaller does with strings: the length ahead of the text, and the system's own call to free them. */
static void strings(void) {
    IMPORT(void*, CSharp_new_ColorSpaceCMYKType__SWIG_0, 0, (void));
    IMPORT(int32_t, CSharp_ColorSpaceCMYKType_set_Name, 8, (void*, const wchar_t*));
    IMPORT(BSTR, CSharp_ColorSpaceCMYKType_get_Name, 4, (void*));
    IMPORT(int32_t, CSharp_ColorSpaceCMYKType_set_Cyan, 12, (void*, double));
    IMPORT(double, CSharp_ColorSpaceCMYKType_get_Cyan, 4, (void*));
    IMPORT(BSTR, CSharp_convert_to_narrow__SWIG_0, 4, (const wchar_t*));
    IMPORT(void*, CSharp_ColorSpaceCMYKType_factory, 8, (int32_t, const char*));
    IMPORT(void, CSharp_delete_ColorSpaceCMYKType, 4, (void*));
    static const wchar_t name[] = L"Gr\u00FCn \u65E5\u672C \xD83C\xDFA8";
    void* color = CSharp_new_ColorSpaceCMYKType__SWIG_0();
    BSTR text = CSharp_ColorSpaceCMYKType_get_Name(color);
    CHECK(text != NULL && SysStringLen(text) == 0);
    SysFreeString(text);
    CHECK(CSharp_ColorSpaceCMYKType_set_Name(color, name) == 0);
    text = CSharp_ColorSpaceCMYKType_get_Name(color);
    CHECK(SysStringLen(text) == wcslen(name) && wcscmp(text, name) == 0);
    uint32_t length = 0;
    memcpy(&length, (char*)text - 4, 4);
    CHECK(length == 2 * wcslen(name));
    SysFreeString(text);
    text = CSharp_convert_to_narrow__SWIG_0(name);
    CHECK(SysStringByteLen(text) == 17 &&
          strcmp((char*)text, "Gr\xC3\xBCn \xE6\x97\xA5\xE6\x9C\xAC \xF0\x9F\x8E\xA8") == 0);
    SysFreeString(text);
    CHECK(CSharp_ColorSpaceCMYKType_set_Cyan(color, 12.25) == 0 &&
          CSharp_ColorSpaceCMYKType_get_Cyan(color) == 12.25);
    CHECK(CSharp_ColorSpaceCMYKType_set_Cyan(color, 101) == 36);
    CHECK(CSharp_ColorSpaceCMYKType_factory(1000, NULL) == NULL && reports == 1);
    CSharp_delete_ColorSpaceCMYKType(color);
}

static uint64_t size_of(const wchar_t* file) {
    WIN32_FILE_ATTRIBUTE_DATA data;
    if (!GetFileAttributesExW(file, GetFileExInfoStandard, &data)) return 0;
    return (uint64_t)data.nFileSizeHigh << 32 | data.nFileSizeLow;
}

/* The same names in both forms, absolute with a drive and relative. */
static void files(void) {
    IMPORT(int32_t, CSharp_Vyr_writeFile, 8, (void*, const wchar_t*));
    IMPORT(int32_t, CSharp_Vyr_loadFile, 8, (void*, const wchar_t*));
    IMPORT(int32_t, CSharp_Vyr_marshal__SWIG_0, 8, (void*, const char*));
    IMPORT(int32_t, CSharp_Vyr_unmarshal__SWIG_0, 8, (void*, const char*));
    IMPORT(void, CSharp_delete_Vyr, 4, (void*));
    static const wchar_t* const stem = L"Gr\u00FCn \u65E5\u672C \xD83C\xDFA8";
    static const char narrow[] = "Gr\xC3\xBCn \xE6\x97\xA5\xE6\x9C\xAC \xF0\x9F\x8E\xA8.vyr";
    wchar_t plain[64], archive[64], absolute[MAX_PATH];
    swprintf(plain, 64, L"%ls.vyr", stem);
    swprintf(archive, 64, L"%ls.vyrz", stem);
    DeleteFileW(plain);
    DeleteFileW(archive);
    void* document = new_document();
    CHECK(CSharp_Vyr_marshal__SWIG_0(document, narrow) == 0 && size_of(plain) > 0);
    CHECK(CSharp_Vyr_loadFile(document, plain) == 0 && CSharp_Vyr_unmarshal__SWIG_0(document, narrow) == 0);
    CHECK(DeleteFileW(plain));
    CHECK(GetFullPathNameW(archive, MAX_PATH, absolute, NULL) > 0 && absolute[1] == L':');
    CHECK(CSharp_Vyr_writeFile(document, absolute) == 0 && size_of(archive) > 0 && size_of(plain) == 0);
    CHECK(CSharp_Vyr_loadFile(document, archive) == 0);
    CSharp_delete_Vyr(document);

    /* In the archive the entry has the name alone. */
    FILE* file = _wfopen(archive, L"rb");
    char start[30 + sizeof narrow] = "";
    CHECK(file != NULL && fread(start, 1, sizeof start - 1, file) == sizeof start - 1);
    fclose(file);
    CHECK(start[26] == sizeof narrow - 1 && strncmp(start + 30, narrow, sizeof narrow - 1) == 0);
}

/* Leaves no byte free: of a write that succeeds in part some C runtimes forget the cause. */
static void fill_disk(const wchar_t* filler) {
    static const char page[4096];
    const HANDLE file = CreateFileW(filler, GENERIC_WRITE, 0, NULL, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, NULL);
    CHECK(file != INVALID_HANDLE_VALUE);
    DWORD written = 0;
    for (int pages = 0; WriteFile(file, page, sizeof page, &written, NULL) && written == sizeof page; ++pages) {
        CHECK(pages < 1024); /* the disk is a small one */
    }
    CloseHandle(file);
}

/* A disk without room; then a document that fits, and its archive that doesn't. */
static void full_disk(const char* folder) {
    IMPORT(int32_t, CSharp_Vyr_writeFile, 8, (void*, const wchar_t*));
    IMPORT(void*, VyrModule_WriteFile, 8, (void*, const wchar_t*));
    IMPORT(int32_t, VyrModule_ReportCode, 4, (void*));
    IMPORT(int32_t, VyrModule_ReportSystemError, 4, (void*));
    IMPORT(void, VyrModule_DeleteReport, 4, (void*));
    IMPORT(void*, CSharp_Vyr_get_Preamble__SWIG_0, 4, (void*));
    IMPORT(void*, CSharp_Preamble_get_Header__SWIG_0, 4, (void*));
    IMPORT(int32_t, CSharp_Header_set_Creator, 8, (void*, const wchar_t*));
    IMPORT(void, CSharp_delete_Vyr, 4, (void*));
    static wchar_t noise[45001];
    uint32_t state = 1;
    for (size_t i = 0; i < 45000; ++i) noise[i] = (wchar_t)(L'a' + ((state = state * 69069 + 1) >> 24) % 26);
    wchar_t plain[MAX_PATH], archive[MAX_PATH], filler[MAX_PATH];
    swprintf(plain, MAX_PATH, L"%hs/a.vyr", folder);
    swprintf(archive, MAX_PATH, L"%hs/a.vyrz", folder);
    swprintf(filler, MAX_PATH, L"%hs/filler", folder);
    void* document = new_document();
    CHECK(CSharp_Vyr_writeFile(document, plain) == 0 && size_of(plain) > 0); /* the disk is there */
    DeleteFileW(plain);

    fill_disk(filler);
    void* report = VyrModule_WriteFile(document, plain);
    CHECK(VyrModule_ReportCode(report) == 1 && VyrModule_ReportSystemError(report) == ENOSPC);
    VyrModule_DeleteReport(report);
    report = VyrModule_WriteFile(document, archive);
    CHECK(VyrModule_ReportCode(report) != 0 && size_of(archive) == 0);
    VyrModule_DeleteReport(report);
    CHECK(DeleteFileW(filler));

    void* header = CSharp_Preamble_get_Header__SWIG_0(CSharp_Vyr_get_Preamble__SWIG_0(document));
    CHECK(CSharp_Header_set_Creator(header, noise) == 0);
    CHECK(CSharp_Vyr_writeFile(document, plain) == 0 && size_of(plain) > 45000);
    CHECK(CSharp_Vyr_writeFile(document, archive) == 1000); /* it takes more than half of that */
    DeleteFileW(plain);
    DeleteFileW(archive);
    CSharp_delete_Vyr(document);
}

#if defined(__i386__)
/* Calls with the stack pointer at each multiple of four, and looks whether it comes back: the callee takes its
 * arguments away. */
static void* document; /* at addresses that the stack pointer has no part in */
static FARPROC function;
static void stacks(void) {
    IMPORT(void, CSharp_delete_Vyr, 4, (void*));
    IMPORT(void, CSharp_delete_XMLDocumentResult, 4, (void*));
    document = new_document();
    function = find("CSharp_Vyr_writeString", 4);
    for (unsigned offset = 0; offset < 16; offset += 4) {
        void* result = NULL;
        unsigned before = 0, after = 0, down = offset;
        __asm__ volatile(
            "movl %%esp, %%ebx\n\t"
            "andl $-16, %%esp\n\t"
            "subl %[down], %%esp\n\t"
            "movl %%esp, %[before]\n\t"
            "pushl %[document]\n\t"
            "call *%[function]\n\t"
            "movl %%esp, %[after]\n\t"
            "movl %%ebx, %%esp\n\t"
            : "=&a"(result), [before] "=&S"(before), [after] "=&D"(after), [down] "+c"(down) /* the callee's to change
                                                                                              */
            : [document] "m"(document), [function] "m"(function)
            : "ebx", "edx", "memory", "cc");
        CHECK(before == after && result != NULL);
        CSharp_delete_XMLDocumentResult(result);
    }
    CSharp_delete_Vyr(document);
}
#endif

int main(int count, char** arguments) {
    CHECK(count == 4);
    for (char* c = arguments[1]; *c != 0; ++c) *c = *c == '/' ? '\\' : *c; /* else it isn't taken as a path */
    module = LoadLibraryA(arguments[1]);
    CHECK(module != NULL);
    /* Hosts need nothing beside it: the compiler's own DLLs are inside. */
    CHECK(GetModuleHandleA("libstdc++-6.dll") == NULL && GetModuleHandleA("libwinpthread-1.dll") == NULL);
    const int names = count_names(arguments[2]);
    CHECK(names > 4000);
    IMPORT(void, SWIGRegisterExceptionArgumentCallbacks_VyrModule, 12, (void*, void*, void*));
    SWIGRegisterExceptionArgumentCallbacks_VyrModule((void*)on_other, (void*)on_null, (void*)on_other);
    strings();
    files();
    full_disk(arguments[3]);
#if defined(__i386__)
    stacks();
#endif
    CHECK(FreeLibrary(module));
    printf("%d names, %u bits\n", names, (unsigned)(8 * sizeof(void*)));
    return 0;
}
