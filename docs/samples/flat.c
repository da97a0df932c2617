/* Copyright 2026 The Vyr Authors
 * SPDX-License-Identifier: Apache-2.0
 *
 * The sample of docs/flat.md: loads a palette, prints its first colour, sets its red and saves it.
 *
 *     flat <palette.vyr> <new.vyr>
 */

#include <stdio.h>
#include <stdlib.h>
#include <vyr_flat.h>

/* A null argument is a mistake of this program. */
static void VYR_FLAT_CALL on_null(const char* text, const char* parameter) {
    (void)parameter;
    fprintf(stderr, "%s\n", text);
    abort();
}

/* Prints UTF-16 as UTF-8 and frees it. */
static void print(char16_t* text) {
    char* bytes = CSharp_convert_to_narrow__SWIG_0(text);
    printf("%s\n", bytes);
    VyrModule_FreeString(bytes);
    VyrModule_FreeString(text);
}

/* Prints what a report has to say and deletes it; 0 if that is nothing. */
static int told(void* report) {
    if (report == NULL) abort(); /* no memory */
    const int code = VyrModule_ReportCode(report);
    if (code != 0) print(VyrModule_ReportText(report));
    VyrModule_DeleteReport(report);
    return code;
}

static char16_t* wide(const char* text) { return CSharp_convert_to_wide__SWIG_0(text); }

int main(int count, char** arguments) {
    if (count != 3) return 2;
    SWIGRegisterExceptionArgumentCallbacks_VyrModule(NULL, on_null, NULL);
    char16_t* path = wide(arguments[1]);
    char16_t* target = wide(arguments[2]);
    void* document = CSharp_new_Vyr__SWIG_0();
    int code = told(VyrModule_LoadFile(document, path, 1, 20));
    if (code == 0 && CSharp_Vyr_size_Palette(document) > 0) {
        void* palette = CSharp_Vyr_get_Palette__SWIG_0(document, 0);
        void* colors = CSharp_PaletteType_get_ColorSet__SWIG_0(palette, 0);
        void* color = CSharp_ColorSetType_get_Color__SWIG_0(colors, 0);
        print(CSharp_ColorType_get_ColorName(color));

        void* value = CSharp_ColorType_get_ColorSpace__SWIG_0(color, 0);
        void* rgb = CSharp_sg_ColorSpace_get_ColorSpaceSRGB__SWIG_0(value);
        if (CSharp_ColorSpaceSRGBType_set_Red(rgb, 1.5) != 0) printf("%s\n", CSharp_get_error_description(36));
        CSharp_ColorSpaceSRGBType_set_Red(rgb, 0.25);

        /* Looking without making: the owner isn't set, and this doesn't set it. */
        void* owner = VyrModule_FindItem("ColorType", "Owner");
        printf("%s\n", VyrModule_GetPart(color, owner) == NULL ? "no owner" : "an owner");
        code = told(VyrModule_WriteFile(document, target));
    }
    CSharp_delete_Vyr(document);
    VyrModule_FreeString(target);
    VyrModule_FreeString(path);
    return code != 0;
}
