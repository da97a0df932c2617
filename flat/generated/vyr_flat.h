/* Copyright 2026 The Vyr Authors
 * SPDX-License-Identifier: Apache-2.0
 *
 * Made by schema/generator/generate.py from schema/vyr.xsd, schema/binding.toml and flat/members.toml.
 * clang-format off
 *
 * All flat functions, for C and for whoever binds another language. Objects are pointers without a type. Texts of
 * char16_t are UTF-16, texts of char are UTF-8; both end with a zero. A new text is freed by VyrModule_FreeString. What
 * new_, clone, factory and writeString give is deleted by the caller, with the delete_ of its class; all other objects
 * are parts of the one that they were asked from. A result called an error code is 0 for success.
 */

#ifndef VYR_FLAT_H
#define VYR_FLAT_H

#include <stdint.h>
#ifndef __cplusplus
#include <uchar.h>
#endif

#ifndef VYR_FLAT_CALL
#if defined(_WIN32)
#define VYR_FLAT_CALL __stdcall
#else
#define VYR_FLAT_CALL
#endif
#endif

#ifdef __cplusplus
extern "C" {
#endif

typedef void(VYR_FLAT_CALL* vyr_exception_callback)(const char* text);
typedef void(VYR_FLAT_CALL* vyr_argument_callback)(const char* text, const char* parameter);
typedef char*(VYR_FLAT_CALL* vyr_string_callback)(const char* text);

/* Nothing comes back through the texts: VyrModule_GetMarkup reads an entry. */
void VYR_FLAT_CALL CSharp_Revision_get_any(void* self, uint32_t index, const char* ns, const char* name, const char* value);
/* A new XMLDocumentResult. */
void* VYR_FLAT_CALL CSharp_Vyr_writeString(void* self);
/* The source in UTF-8; the target is ignored. */
char* VYR_FLAT_CALL CSharp_convert__SWIG_0(const char* target, const char16_t* source);
/* Before the first call. Only that for null arguments is ever called. */
void VYR_FLAT_CALL SWIGRegisterExceptionArgumentCallbacks_VyrModule(vyr_argument_callback argument, vyr_argument_callback null, vyr_argument_callback out_of_range);
/* None of them is ever called. */
void VYR_FLAT_CALL SWIGRegisterExceptionCallbacks_VyrModule(vyr_exception_callback application, vyr_exception_callback arithmetic, vyr_exception_callback divide_by_zero, vyr_exception_callback index_out_of_range, vyr_exception_callback invalid_cast, vyr_exception_callback invalid_operation, vyr_exception_callback io, vyr_exception_callback null_reference, vyr_exception_callback out_of_memory, vyr_exception_callback overflow, vyr_exception_callback system);
/* It is never called. */
void VYR_FLAT_CALL SWIGRegisterStringCallback_VyrModule(vyr_string_callback callback);
/* The library's version: three numbers, with dots between. It isn't copied. */
const char* VYR_FLAT_CALL VyrModule_Version(void);
/* How many bytes lie ahead of a returned text in its block, for a host that the library can't tell: 4 or more.
 * Without effect on Windows. */
void VYR_FLAT_CALL VyrModule_SetBstrPrefix(int32_t bytes);
/* Frees a returned text; null is ignored. */
void VYR_FLAT_CALL VyrModule_FreeString(void* text);
/* Loads into a new Vyr: a plain document, or a container if the path ends in ".vyrz". With `collect`, goes on
 * after faults and gathers them. Faults beyond `limit` are counted only. All loads and saves give a report, which
 * the caller deletes; it is null only if memory has run out. */
void* VYR_FLAT_CALL VyrModule_LoadFile(void* self, const char16_t* path, uint32_t collect, uint32_t limit);
/* The same from a text. */
void* VYR_FLAT_CALL VyrModule_LoadString(void* self, const char16_t* text, uint32_t collect, uint32_t limit);
/* The same from the bytes of a plain document in any encoding that a file may have; the report names them as the
 * name says, which may be null. */
void* VYR_FLAT_CALL VyrModule_LoadMemory(void* self, const void* data, uint32_t size, const char16_t* name, uint32_t collect, uint32_t limit);
/* Writes to a path that ends in ".vyr", or ".vyrz" for a container. A value that could not be read back is a fault
 * too, but the document is written all the same. */
void* VYR_FLAT_CALL VyrModule_WriteFile(void* self, const char16_t* path);
/* Writes into a new text, which is null if a fault ended the save. */
void* VYR_FLAT_CALL VyrModule_WriteString(void* self, char16_t** text);
/* The same from a plain file that has another element as its root, into a new object of the element's class, such
 * as "ColorSpaceCIELab". Null also for a class that is no such element. */
void* VYR_FLAT_CALL VyrModule_LoadElement(void* self, const char* class_name, const char16_t* path, uint32_t collect, uint32_t limit);
/* Writes such a file, of any name. */
void* VYR_FLAT_CALL VyrModule_WriteElement(void* self, const char* class_name, const char16_t* path);
/* Null is ignored. */
void VYR_FLAT_CALL VyrModule_DeleteReport(void* report);
/* 0, or the code of the first fault. */
int32_t VYR_FLAT_CALL VyrModule_ReportCode(void* report);
/* 0 if a fault ended the load or the save. */
int32_t VYR_FLAT_CALL VyrModule_ReportIsReadToEnd(void* report);
/* The errno of what the system refused; 0 if it didn't. */
int32_t VYR_FLAT_CALL VyrModule_ReportSystemError(void* report);
/* How many faults were kept. */
uint32_t VYR_FLAT_CALL VyrModule_ReportFaultCount(void* report);
/* How many there were. */
uint32_t VYR_FLAT_CALL VyrModule_ReportTotalCount(void* report);
/* A line for each fault that was kept. */
char16_t* VYR_FLAT_CALL VyrModule_ReportText(void* report);
/* Of all functions for faults: 0 or an empty text for an index that is too high. */
int32_t VYR_FLAT_CALL VyrModule_FaultCode(void* report, uint32_t index);
/* From 1; 0 if there is no place in a text. */
int32_t VYR_FLAT_CALL VyrModule_FaultLine(void* report, uint32_t index);
/* Where in the line, in characters from 1; 0 if it isn't known. */
int32_t VYR_FLAT_CALL VyrModule_FaultColumn(void* report, uint32_t index);
/* The code in words. */
char16_t* VYR_FLAT_CALL VyrModule_FaultText(void* report, uint32_t index);
/* What would be right. */
char16_t* VYR_FLAT_CALL VyrModule_FaultDetail(void* report, uint32_t index);
/* The file, as the call named it. */
char16_t* VYR_FLAT_CALL VyrModule_FaultFile(void* report, uint32_t index);
/* The element, attribute or class. */
char16_t* VYR_FLAT_CALL VyrModule_FaultItem(void* report, uint32_t index);
/* The open elements, from the outermost. */
char16_t* VYR_FLAT_CALL VyrModule_FaultPath(void* report, uint32_t index);
/* The offending value, as read. */
char16_t* VYR_FLAT_CALL VyrModule_FaultValue(void* report, uint32_t index);
/* An item of a class for the functions below, good for ever: "PaletteType" and "ColorSet", as in the names of its
 * functions. A class has its own items only, not those of its base. Null if there is none. */
void* VYR_FLAT_CALL VyrModule_FindItem(const char* class_name, const char* item);
/* A single child or group of an object, or null if it isn't set. Unlike get_, changes nothing. */
void* VYR_FLAT_CALL VyrModule_GetPart(void* self, void* item);
/* One number of each entry of a list: `list` is an item of the object's class, `item` one of its entries' class.
 * Gives the size of the list, and no more values than there is room for. */
uint32_t VYR_FLAT_CALL VyrModule_GetDoubles(void* self, void* list, void* item, double* values, uint32_t capacity);
/* Sets that number in all entries, of which there will be `count`: entries are appended or deleted at the end. A
 * code if a value is refused, and then nothing has changed. */
int32_t VYR_FLAT_CALL VyrModule_SetDoubles(void* self, void* list, void* item, const double* values, uint32_t count);
/* An entry of open content, as it stands in the document; null for an index that is too high. */
char16_t* VYR_FLAT_CALL VyrModule_GetMarkup(void* self, void* item, uint32_t index);
/* Chooses a member of a group and gives it a copy of the value, which may be of a derived class: the only way to
 * one. The copy, or null if the item is no such member. */
void* VYR_FLAT_CALL VyrModule_AssignAlternative(void* self, void* item, void* value);

/* lmx::c_any_info */
void* VYR_FLAT_CALL CSharp_new_c_any_info__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_c_any_info__SWIG_1(void* a);
void VYR_FLAT_CALL CSharp_delete_c_any_info(void* self);
void* VYR_FLAT_CALL CSharp_new_c_any_info__SWIG_2(const char* a, const char* b, const char* c);
char* VYR_FLAT_CALL CSharp_c_any_info_get_namespace(void* self);
void VYR_FLAT_CALL CSharp_c_any_info_set_namespace(void* self, const char* a);
char* VYR_FLAT_CALL CSharp_c_any_info_get_name(void* self);
void VYR_FLAT_CALL CSharp_c_any_info_set_name(void* self, const char* a);
char* VYR_FLAT_CALL CSharp_c_any_info_get_value(void* self);
void VYR_FLAT_CALL CSharp_c_any_info_set_value(void* self, const char* a);

/* lmx::c_big_int */
void* VYR_FLAT_CALL CSharp_new_c_big_int__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_c_big_int__SWIG_1(void* a);
void VYR_FLAT_CALL CSharp_delete_c_big_int(void* self);
void* VYR_FLAT_CALL CSharp_new_c_big_int__SWIG_2(const char* a);
void* VYR_FLAT_CALL CSharp_new_c_big_int__SWIG_3(const char* a);
void* VYR_FLAT_CALL CSharp_new_c_big_int__SWIG_4(int32_t a);
void VYR_FLAT_CALL CSharp_c_big_int_swap(void* self, void* a);
char* VYR_FLAT_CALL CSharp_c_big_int_get_as_string(void* self);
int32_t VYR_FLAT_CALL CSharp_c_big_int_get(void* self, void* a);
double VYR_FLAT_CALL CSharp_c_big_int_get_as_float(void* self);

/* lmx::c_binary */
void* VYR_FLAT_CALL CSharp_new_c_binary__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_c_binary__SWIG_1(void* a);
void VYR_FLAT_CALL CSharp_delete_c_binary(void* self);
void* VYR_FLAT_CALL CSharp_new_c_binary__SWIG_2(void* a, uint32_t b);
void VYR_FLAT_CALL CSharp_c_binary_swap(void* self, void* a);
uint32_t VYR_FLAT_CALL CSharp_c_binary_size(void* self);
void* VYR_FLAT_CALL CSharp_c_binary_set(void* self, void* a, uint32_t b);
void* VYR_FLAT_CALL CSharp_c_binary_get(void* self, void* a, uint32_t b);
int32_t VYR_FLAT_CALL CSharp_c_binary_equal(void* self, void* a, uint32_t b);
void* VYR_FLAT_CALL CSharp_c_binary_at__SWIG_0(void* self, uint32_t a);
void* VYR_FLAT_CALL CSharp_c_binary_append(void* self, uint32_t a);
int32_t VYR_FLAT_CALL CSharp_c_binary_is_valid_hex(const char* a);
int32_t VYR_FLAT_CALL CSharp_c_binary_is_valid_base64(const char* a);
void VYR_FLAT_CALL CSharp_c_binary_from_hex(void* self, const char* a);
void VYR_FLAT_CALL CSharp_c_binary_from_base64(void* self, const char* a);

/* lmx::c_date */
void* VYR_FLAT_CALL CSharp_new_c_date__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_c_date__SWIG_1(void* a);
void VYR_FLAT_CALL CSharp_delete_c_date(void* self);
void* VYR_FLAT_CALL CSharp_new_c_date__SWIG_2(const char* a);
void* VYR_FLAT_CALL CSharp_new_c_date__SWIG_3(const char* a);
int32_t VYR_FLAT_CALL CSharp_c_date_is_valid(const char* a);
char* VYR_FLAT_CALL CSharp_c_date_get_as_string(void* self);
int32_t VYR_FLAT_CALL CSharp_c_date_get_total_offset_mins(void* self);
void VYR_FLAT_CALL CSharp_c_date_set_total_offset_mins(void* self, int32_t a);
int32_t VYR_FLAT_CALL CSharp_c_date_get_is_utc(void* self);
void VYR_FLAT_CALL CSharp_c_date_set_is_utc(void* self, uint32_t a);
void VYR_FLAT_CALL CSharp_c_date_set_offset(void* self, int32_t a, uint32_t b);
void VYR_FLAT_CALL CSharp_c_date_set_offset_mins(void* self, int32_t a, uint32_t b);
int32_t VYR_FLAT_CALL CSharp_c_date_get_year(void* self);
void VYR_FLAT_CALL CSharp_c_date_set_year(void* self, int32_t a);
uint32_t VYR_FLAT_CALL CSharp_c_date_get_month(void* self);
void VYR_FLAT_CALL CSharp_c_date_set_month(void* self, uint32_t a);
uint32_t VYR_FLAT_CALL CSharp_c_date_get_day(void* self);
void VYR_FLAT_CALL CSharp_c_date_set_day(void* self, uint32_t a);

/* lmx::c_datetime */
void* VYR_FLAT_CALL CSharp_new_c_datetime__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_c_datetime__SWIG_1(void* a);
void VYR_FLAT_CALL CSharp_delete_c_datetime(void* self);
void* VYR_FLAT_CALL CSharp_new_c_datetime__SWIG_2(const char* a);
void* VYR_FLAT_CALL CSharp_new_c_datetime__SWIG_3(const char* a);
int32_t VYR_FLAT_CALL CSharp_c_datetime_is_valid(const char* a);
char* VYR_FLAT_CALL CSharp_c_datetime_get_as_string(void* self);
int32_t VYR_FLAT_CALL CSharp_c_datetime_get_total_offset_mins(void* self);
void VYR_FLAT_CALL CSharp_c_datetime_set_total_offset_mins(void* self, int32_t a);
int32_t VYR_FLAT_CALL CSharp_c_datetime_get_is_utc(void* self);
void VYR_FLAT_CALL CSharp_c_datetime_set_is_utc(void* self, uint32_t a);
void VYR_FLAT_CALL CSharp_c_datetime_set_offset(void* self, int32_t a, uint32_t b);
void VYR_FLAT_CALL CSharp_c_datetime_set_offset_mins(void* self, int32_t a, uint32_t b);
int32_t VYR_FLAT_CALL CSharp_c_datetime_get_year(void* self);
void VYR_FLAT_CALL CSharp_c_datetime_set_year(void* self, int32_t a);
uint32_t VYR_FLAT_CALL CSharp_c_datetime_get_month(void* self);
void VYR_FLAT_CALL CSharp_c_datetime_set_month(void* self, uint32_t a);
uint32_t VYR_FLAT_CALL CSharp_c_datetime_get_day(void* self);
void VYR_FLAT_CALL CSharp_c_datetime_set_day(void* self, uint32_t a);
uint32_t VYR_FLAT_CALL CSharp_c_datetime_get_hours(void* self);
void VYR_FLAT_CALL CSharp_c_datetime_set_hours(void* self, uint32_t a);
uint32_t VYR_FLAT_CALL CSharp_c_datetime_get_mins(void* self);
void VYR_FLAT_CALL CSharp_c_datetime_set_mins(void* self, uint32_t a);
float VYR_FLAT_CALL CSharp_c_datetime_get_secs(void* self);
void VYR_FLAT_CALL CSharp_c_datetime_set_secs(void* self, float a);

/* lmx::c_datetime_base */
void* VYR_FLAT_CALL CSharp_new_c_datetime_base__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_c_datetime_base__SWIG_1(void* a);
void VYR_FLAT_CALL CSharp_delete_c_datetime_base(void* self);

/* lmx::c_decimal */
void* VYR_FLAT_CALL CSharp_new_c_decimal__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_c_decimal__SWIG_1(void* a);
void VYR_FLAT_CALL CSharp_delete_c_decimal(void* self);
void* VYR_FLAT_CALL CSharp_new_c_decimal__SWIG_2(const char* a);
void* VYR_FLAT_CALL CSharp_new_c_decimal__SWIG_3(const char* a);
void* VYR_FLAT_CALL CSharp_new_c_decimal__SWIG_4(int32_t a, int32_t b);
void* VYR_FLAT_CALL CSharp_new_c_decimal__SWIG_5(double a, uint32_t b);
int32_t VYR_FLAT_CALL CSharp_c_decimal_is_valid(const char* a);
void VYR_FLAT_CALL CSharp_c_decimal_swap(void* self, void* a);
int32_t VYR_FLAT_CALL CSharp_c_decimal_get_integral(void* self, void* a);
void VYR_FLAT_CALL CSharp_c_decimal_set_integral(void* self, int32_t a);
uint32_t VYR_FLAT_CALL CSharp_c_decimal_get_fractional(void* self, int32_t a, void* b);
void VYR_FLAT_CALL CSharp_c_decimal_set_fractional(void* self, uint32_t a, uint32_t b);
int32_t VYR_FLAT_CALL CSharp_c_decimal_get_scaled(void* self, int32_t a, void* b);
void VYR_FLAT_CALL CSharp_c_decimal_set_scaled(void* self, int32_t a, int32_t b);
void VYR_FLAT_CALL CSharp_c_decimal_set(void* self, double a, uint32_t b);
double VYR_FLAT_CALL CSharp_c_decimal_get_as_float(void* self);
char* VYR_FLAT_CALL CSharp_c_decimal_get_as_string(void* self);

/* lmx::c_duration */
void* VYR_FLAT_CALL CSharp_new_c_duration__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_c_duration__SWIG_1(void* a);
void VYR_FLAT_CALL CSharp_delete_c_duration(void* self);
void* VYR_FLAT_CALL CSharp_new_c_duration__SWIG_2(const char* a);
void* VYR_FLAT_CALL CSharp_new_c_duration__SWIG_3(const char* a);
int32_t VYR_FLAT_CALL CSharp_c_duration_is_valid__SWIG_0(const char* a);
char* VYR_FLAT_CALL CSharp_c_duration_get_as_string(void* self);
int32_t VYR_FLAT_CALL CSharp_c_duration_get_is_neg(void* self);
void VYR_FLAT_CALL CSharp_c_duration_set_is_neg(void* self, uint32_t a);
uint32_t VYR_FLAT_CALL CSharp_c_duration_get_years(void* self);
void VYR_FLAT_CALL CSharp_c_duration_set_years(void* self, uint32_t a);
uint32_t VYR_FLAT_CALL CSharp_c_duration_get_months(void* self);
void VYR_FLAT_CALL CSharp_c_duration_set_months(void* self, uint32_t a);
uint32_t VYR_FLAT_CALL CSharp_c_duration_get_days(void* self);
void VYR_FLAT_CALL CSharp_c_duration_set_days(void* self, uint32_t a);
uint32_t VYR_FLAT_CALL CSharp_c_duration_get_hours(void* self);
void VYR_FLAT_CALL CSharp_c_duration_set_hours(void* self, uint32_t a);
uint32_t VYR_FLAT_CALL CSharp_c_duration_get_mins(void* self);
void VYR_FLAT_CALL CSharp_c_duration_set_mins(void* self, uint32_t a);
float VYR_FLAT_CALL CSharp_c_duration_get_secs(void* self);
void VYR_FLAT_CALL CSharp_c_duration_set_secs(void* self, float a);
void VYR_FLAT_CALL CSharp_c_duration_normalize(void* self);

/* lmx::c_empty */
void* VYR_FLAT_CALL CSharp_new_c_empty__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_c_empty__SWIG_1(void* a);
void VYR_FLAT_CALL CSharp_delete_c_empty(void* self);

/* lmx::c_gday */
void* VYR_FLAT_CALL CSharp_new_c_gday__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_c_gday__SWIG_1(void* a);
void VYR_FLAT_CALL CSharp_delete_c_gday(void* self);
void* VYR_FLAT_CALL CSharp_new_c_gday__SWIG_2(const char* a);
void* VYR_FLAT_CALL CSharp_new_c_gday__SWIG_3(const char* a);
int32_t VYR_FLAT_CALL CSharp_c_gday_is_valid(const char* a);
char* VYR_FLAT_CALL CSharp_c_gday_get_as_string(void* self);
int32_t VYR_FLAT_CALL CSharp_c_gday_get_total_offset_mins(void* self);
void VYR_FLAT_CALL CSharp_c_gday_set_total_offset_mins(void* self, int32_t a);
int32_t VYR_FLAT_CALL CSharp_c_gday_get_is_utc(void* self);
void VYR_FLAT_CALL CSharp_c_gday_set_is_utc(void* self, uint32_t a);
void VYR_FLAT_CALL CSharp_c_gday_set_offset(void* self, int32_t a, uint32_t b);
void VYR_FLAT_CALL CSharp_c_gday_set_offset_mins(void* self, int32_t a, uint32_t b);
uint32_t VYR_FLAT_CALL CSharp_c_gday_get_day(void* self);
void VYR_FLAT_CALL CSharp_c_gday_set_day(void* self, uint32_t a);

/* lmx::c_gmonth */
void* VYR_FLAT_CALL CSharp_new_c_gmonth__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_c_gmonth__SWIG_1(void* a);
void VYR_FLAT_CALL CSharp_delete_c_gmonth(void* self);
void* VYR_FLAT_CALL CSharp_new_c_gmonth__SWIG_2(const char* a);
void* VYR_FLAT_CALL CSharp_new_c_gmonth__SWIG_3(const char* a);
int32_t VYR_FLAT_CALL CSharp_c_gmonth_is_valid(const char* a);
char* VYR_FLAT_CALL CSharp_c_gmonth_get_as_string(void* self);
int32_t VYR_FLAT_CALL CSharp_c_gmonth_get_total_offset_mins(void* self);
void VYR_FLAT_CALL CSharp_c_gmonth_set_total_offset_mins(void* self, int32_t a);
int32_t VYR_FLAT_CALL CSharp_c_gmonth_get_is_utc(void* self);
void VYR_FLAT_CALL CSharp_c_gmonth_set_is_utc(void* self, uint32_t a);
void VYR_FLAT_CALL CSharp_c_gmonth_set_offset(void* self, int32_t a, uint32_t b);
void VYR_FLAT_CALL CSharp_c_gmonth_set_offset_mins(void* self, int32_t a, uint32_t b);
uint32_t VYR_FLAT_CALL CSharp_c_gmonth_get_month(void* self);
void VYR_FLAT_CALL CSharp_c_gmonth_set_month(void* self, uint32_t a);

/* lmx::c_gmonthday */
void* VYR_FLAT_CALL CSharp_new_c_gmonthday__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_c_gmonthday__SWIG_1(void* a);
void VYR_FLAT_CALL CSharp_delete_c_gmonthday(void* self);
void* VYR_FLAT_CALL CSharp_new_c_gmonthday__SWIG_2(const char* a);
void* VYR_FLAT_CALL CSharp_new_c_gmonthday__SWIG_3(const char* a);
int32_t VYR_FLAT_CALL CSharp_c_gmonthday_is_valid(const char* a);
char* VYR_FLAT_CALL CSharp_c_gmonthday_get_as_string(void* self);
int32_t VYR_FLAT_CALL CSharp_c_gmonthday_get_total_offset_mins(void* self);
void VYR_FLAT_CALL CSharp_c_gmonthday_set_total_offset_mins(void* self, int32_t a);
int32_t VYR_FLAT_CALL CSharp_c_gmonthday_get_is_utc(void* self);
void VYR_FLAT_CALL CSharp_c_gmonthday_set_is_utc(void* self, uint32_t a);
void VYR_FLAT_CALL CSharp_c_gmonthday_set_offset(void* self, int32_t a, uint32_t b);
void VYR_FLAT_CALL CSharp_c_gmonthday_set_offset_mins(void* self, int32_t a, uint32_t b);
uint32_t VYR_FLAT_CALL CSharp_c_gmonthday_get_month(void* self);
void VYR_FLAT_CALL CSharp_c_gmonthday_set_month(void* self, uint32_t a);
uint32_t VYR_FLAT_CALL CSharp_c_gmonthday_get_day(void* self);
void VYR_FLAT_CALL CSharp_c_gmonthday_set_day(void* self, uint32_t a);

/* lmx::c_gyear */
void* VYR_FLAT_CALL CSharp_new_c_gyear__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_c_gyear__SWIG_1(void* a);
void VYR_FLAT_CALL CSharp_delete_c_gyear(void* self);
void* VYR_FLAT_CALL CSharp_new_c_gyear__SWIG_2(const char* a);
void* VYR_FLAT_CALL CSharp_new_c_gyear__SWIG_3(const char* a);
int32_t VYR_FLAT_CALL CSharp_c_gyear_is_valid(const char* a);
char* VYR_FLAT_CALL CSharp_c_gyear_get_as_string(void* self);
int32_t VYR_FLAT_CALL CSharp_c_gyear_get_total_offset_mins(void* self);
void VYR_FLAT_CALL CSharp_c_gyear_set_total_offset_mins(void* self, int32_t a);
int32_t VYR_FLAT_CALL CSharp_c_gyear_get_is_utc(void* self);
void VYR_FLAT_CALL CSharp_c_gyear_set_is_utc(void* self, uint32_t a);
void VYR_FLAT_CALL CSharp_c_gyear_set_offset(void* self, int32_t a, uint32_t b);
void VYR_FLAT_CALL CSharp_c_gyear_set_offset_mins(void* self, int32_t a, uint32_t b);
int32_t VYR_FLAT_CALL CSharp_c_gyear_get_year(void* self);
void VYR_FLAT_CALL CSharp_c_gyear_set_year(void* self, int32_t a);

/* lmx::c_gyearmonth */
void* VYR_FLAT_CALL CSharp_new_c_gyearmonth__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_c_gyearmonth__SWIG_1(void* a);
void VYR_FLAT_CALL CSharp_delete_c_gyearmonth(void* self);
void* VYR_FLAT_CALL CSharp_new_c_gyearmonth__SWIG_2(const char* a);
void* VYR_FLAT_CALL CSharp_new_c_gyearmonth__SWIG_3(const char* a);
int32_t VYR_FLAT_CALL CSharp_c_gyearmonth_is_valid(const char* a);
char* VYR_FLAT_CALL CSharp_c_gyearmonth_get_as_string(void* self);
int32_t VYR_FLAT_CALL CSharp_c_gyearmonth_get_total_offset_mins(void* self);
void VYR_FLAT_CALL CSharp_c_gyearmonth_set_total_offset_mins(void* self, int32_t a);
int32_t VYR_FLAT_CALL CSharp_c_gyearmonth_get_is_utc(void* self);
void VYR_FLAT_CALL CSharp_c_gyearmonth_set_is_utc(void* self, uint32_t a);
void VYR_FLAT_CALL CSharp_c_gyearmonth_set_offset(void* self, int32_t a, uint32_t b);
void VYR_FLAT_CALL CSharp_c_gyearmonth_set_offset_mins(void* self, int32_t a, uint32_t b);
int32_t VYR_FLAT_CALL CSharp_c_gyearmonth_get_year(void* self);
void VYR_FLAT_CALL CSharp_c_gyearmonth_set_year(void* self, int32_t a);
uint32_t VYR_FLAT_CALL CSharp_c_gyearmonth_get_month(void* self);
void VYR_FLAT_CALL CSharp_c_gyearmonth_set_month(void* self, uint32_t a);

/* lmx::c_pattern */
void* VYR_FLAT_CALL CSharp_new_c_pattern(const char* a);
void VYR_FLAT_CALL CSharp_delete_c_pattern(void* self);
int32_t VYR_FLAT_CALL CSharp_c_pattern_is_match__SWIG_0(void* self, const char* a);
int32_t VYR_FLAT_CALL CSharp_c_pattern_is_match__SWIG_1(void* self, const char16_t* a);

/* lmx::c_pattern_null */
void* VYR_FLAT_CALL CSharp_new_c_pattern_null__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_c_pattern_null__SWIG_1(void* a);
void VYR_FLAT_CALL CSharp_delete_c_pattern_null(void* self);
int32_t VYR_FLAT_CALL CSharp_c_pattern_null_is_match__SWIG_0(void* self, const char* a);
int32_t VYR_FLAT_CALL CSharp_c_pattern_null_is_match__SWIG_1(void* self, const char16_t* a);

/* lmx::c_time */
void* VYR_FLAT_CALL CSharp_new_c_time__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_c_time__SWIG_1(void* a);
void VYR_FLAT_CALL CSharp_delete_c_time(void* self);
void* VYR_FLAT_CALL CSharp_new_c_time__SWIG_2(const char* a);
void* VYR_FLAT_CALL CSharp_new_c_time__SWIG_3(const char* a);
int32_t VYR_FLAT_CALL CSharp_c_time_is_valid(const char* a);
char* VYR_FLAT_CALL CSharp_c_time_get_as_string(void* self);
int32_t VYR_FLAT_CALL CSharp_c_time_get_total_offset_mins(void* self);
void VYR_FLAT_CALL CSharp_c_time_set_total_offset_mins(void* self, int32_t a);
int32_t VYR_FLAT_CALL CSharp_c_time_get_is_utc(void* self);
void VYR_FLAT_CALL CSharp_c_time_set_is_utc(void* self, uint32_t a);
void VYR_FLAT_CALL CSharp_c_time_set_offset(void* self, int32_t a, uint32_t b);
void VYR_FLAT_CALL CSharp_c_time_set_offset_mins(void* self, int32_t a, uint32_t b);
uint32_t VYR_FLAT_CALL CSharp_c_time_get_hours(void* self);
void VYR_FLAT_CALL CSharp_c_time_set_hours(void* self, uint32_t a);
uint32_t VYR_FLAT_CALL CSharp_c_time_get_mins(void* self);
void VYR_FLAT_CALL CSharp_c_time_set_mins(void* self, uint32_t a);
float VYR_FLAT_CALL CSharp_c_time_get_secs(void* self);
void VYR_FLAT_CALL CSharp_c_time_set_secs(void* self, float a);

/* com_vyrgraph_v2::XMLDocumentResult */
void* VYR_FLAT_CALL CSharp_new_XMLDocumentResult(const char16_t* a, int32_t b);
void VYR_FLAT_CALL CSharp_delete_XMLDocumentResult(void* self);
char16_t* VYR_FLAT_CALL CSharp_XMLDocumentResult_getXmlDocument(void* self);
int32_t VYR_FLAT_CALL CSharp_XMLDocumentResult_getElmxError(void* self);

/* com_vyrgraph_v2::Vyr */
int32_t VYR_FLAT_CALL CSharp_Vyr_loadFile(void* self, const char16_t* a);
int32_t VYR_FLAT_CALL CSharp_Vyr_loadString(void* self, const char16_t* a);
int32_t VYR_FLAT_CALL CSharp_Vyr_writeFile(void* self, const char16_t* a);

/* com_vyrgraph_v2::ColorSpaceCMYKPlusN */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceCMYKPlusN__SWIG_2(const char* a, void* b);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceCMYKPlusN__SWIG_3(const char* a, uint32_t b, void* c);

/* lmx */
char* VYR_FLAT_CALL CSharp_convert_to_narrow__SWIG_0(const char16_t* a);
char16_t* VYR_FLAT_CALL CSharp_convert_to_wide__SWIG_0(const char* a);
int32_t VYR_FLAT_CALL CSharp_fraction_digits(const char* a);
const char* VYR_FLAT_CALL CSharp_get_error_description(int32_t a);
int32_t VYR_FLAT_CALL CSharp_is_max_length_ok(const char* a, uint32_t b);
int32_t VYR_FLAT_CALL CSharp_is_min_length_ok(const char* a, uint32_t b);
int32_t VYR_FLAT_CALL CSharp_is_valid_bool(const char* a);
int32_t VYR_FLAT_CALL CSharp_is_valid_float(const char* a);
int32_t VYR_FLAT_CALL CSharp_is_valid_integer(const char* a);
uint32_t VYR_FLAT_CALL CSharp_length(const char* a);
int32_t VYR_FLAT_CALL CSharp_stringncompare(const char* a, const char* b, uint32_t c, uint32_t d);
int32_t VYR_FLAT_CALL CSharp_total_digits(const char* a);
int32_t VYR_FLAT_CALL CSharp_xisalnum(int32_t a);
int32_t VYR_FLAT_CALL CSharp_xisalpha(int32_t a);
int32_t VYR_FLAT_CALL CSharp_xisdigit(int32_t a);
int32_t VYR_FLAT_CALL CSharp_xisprint(int32_t a);
int32_t VYR_FLAT_CALL CSharp_xisspace(int32_t a);
int32_t VYR_FLAT_CALL CSharp_xisxdigit(int32_t a);

/* constants */
int32_t VYR_FLAT_CALL CSharp_LMXNULL_get(void);
int32_t VYR_FLAT_CALL CSharp_LMX_ATOFLOAT_MODE_get(void);
int32_t VYR_FLAT_CALL CSharp_LMX_ATOFLOAT_MODE_DEFAULT_get(void);
int32_t VYR_FLAT_CALL CSharp_LMX_ATOFLOAT_MODE_USE_FACET_get(void);
int32_t VYR_FLAT_CALL CSharp_LMX_ATOFLOAT_MODE_IOSTREAM_get(void);
int32_t VYR_FLAT_CALL CSharp_LMX_ATOFLOAT_MODE_SIMPLE_get(void);
int32_t VYR_FLAT_CALL CSharp_LMX_NARROW_UNICODE_STRINGS_get(void);
int32_t VYR_FLAT_CALL CSharp_LMX_USE_EXCEPTIONS_get(void);
int32_t VYR_FLAT_CALL CSharp_LMX_VALIDATE_PATTERNS_get(void);
int32_t VYR_FLAT_CALL CSharp_LMX_WANT_DECIMAL_FLOAT_SET_get(void);
int32_t VYR_FLAT_CALL CSharp_LMX_WANT_DLL_get(void);
int32_t VYR_FLAT_CALL CSharp_LMX_WANT_GEN_IMPORT_DLL_get(void);
int32_t VYR_FLAT_CALL CSharp_LMX_XML_STRICT_get(void);

/* SDKVersion */
void* VYR_FLAT_CALL CSharp_new_SDKVersion__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_SDKVersion__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_SDKVersion(void* self);
void VYR_FLAT_CALL CSharp_SDKVersion_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_SDKVersion_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_SDKVersion_is_occurs_ok(void* self);
char16_t* VYR_FLAT_CALL CSharp_SDKVersion_get_SDKVersion(void* self);
int32_t VYR_FLAT_CALL CSharp_SDKVersion_set_SDKVersion(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_SDKVersion_isnil_SDKVersion(void* self);
void VYR_FLAT_CALL CSharp_SDKVersion_setnil_SDKVersion(void* self);

/* SDKType */
void* VYR_FLAT_CALL CSharp_new_SDKType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_SDKType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_SDKType(void* self);
void VYR_FLAT_CALL CSharp_SDKType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_SDKType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_SDKType_is_occurs_ok(void* self);
char16_t* VYR_FLAT_CALL CSharp_SDKType_get_SDKName(void* self);
int32_t VYR_FLAT_CALL CSharp_SDKType_set_SDKName(void* self, const char16_t* value);
void* VYR_FLAT_CALL CSharp_SDKType_get_SDKVersion__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_SDKType_assign_SDKVersion(void* self, void* value);

/* PlatformType */
void* VYR_FLAT_CALL CSharp_new_PlatformType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_PlatformType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_PlatformType(void* self);
void VYR_FLAT_CALL CSharp_PlatformType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_PlatformType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_PlatformType_is_occurs_ok(void* self);
char16_t* VYR_FLAT_CALL CSharp_PlatformType_get_OperatingSystem(void* self);
int32_t VYR_FLAT_CALL CSharp_PlatformType_set_OperatingSystem(void* self, const char16_t* value);
char16_t* VYR_FLAT_CALL CSharp_PlatformType_get_OperatingSystemVersion(void* self);
int32_t VYR_FLAT_CALL CSharp_PlatformType_set_OperatingSystemVersion(void* self, const char16_t* value);

/* Header */
void* VYR_FLAT_CALL CSharp_new_Header__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_Header__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_Header(void* self);
void VYR_FLAT_CALL CSharp_Header_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_Header_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_Header_is_occurs_ok(void* self);
uint32_t VYR_FLAT_CALL CSharp_Header_size_CustomAttribute(void* self);
void* VYR_FLAT_CALL CSharp_Header_get_CustomAttribute__SWIG_0(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_Header_assign_CustomAttribute(void* self, uint32_t index, void* value);
int32_t VYR_FLAT_CALL CSharp_Header_append_CustomAttribute(void* self);
int32_t VYR_FLAT_CALL CSharp_Header_insert_CustomAttribute(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_Header_back_CustomAttribute(void* self);
void VYR_FLAT_CALL CSharp_Header_delete_CustomAttribute(void* self, uint32_t index);
void VYR_FLAT_CALL CSharp_Header_clear_CustomAttribute(void* self);
char16_t* VYR_FLAT_CALL CSharp_Header_get_Creator(void* self);
int32_t VYR_FLAT_CALL CSharp_Header_set_Creator(void* self, const char16_t* value);
char16_t* VYR_FLAT_CALL CSharp_Header_get_CreatorVersion(void* self);
int32_t VYR_FLAT_CALL CSharp_Header_set_CreatorVersion(void* self, const char16_t* value);
uint32_t VYR_FLAT_CALL CSharp_Header_size_ChangeHistory(void* self);
void* VYR_FLAT_CALL CSharp_Header_get_ChangeHistory(void* self, uint32_t index);
int32_t VYR_FLAT_CALL CSharp_Header_set_ChangeHistory(void* self, uint32_t index, void* value);
int32_t VYR_FLAT_CALL CSharp_Header_append_ChangeHistory(void* self, void* value);
int32_t VYR_FLAT_CALL CSharp_Header_insert_ChangeHistory(void* self, uint32_t index, void* value);
void VYR_FLAT_CALL CSharp_Header_delete_ChangeHistory(void* self, uint32_t index);
void VYR_FLAT_CALL CSharp_Header_clear_ChangeHistory(void* self);
char16_t* VYR_FLAT_CALL CSharp_Header_get_Purpose(void* self);
int32_t VYR_FLAT_CALL CSharp_Header_set_Purpose(void* self, const char16_t* value);
char16_t* VYR_FLAT_CALL CSharp_Header_get_Name(void* self);
int32_t VYR_FLAT_CALL CSharp_Header_set_Name(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_Header_isset_Name(void* self);
void VYR_FLAT_CALL CSharp_Header_unset_Name(void* self);
char16_t* VYR_FLAT_CALL CSharp_Header_get_Comments(void* self);
int32_t VYR_FLAT_CALL CSharp_Header_set_Comments(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_Header_isset_Comments(void* self);
void VYR_FLAT_CALL CSharp_Header_unset_Comments(void* self);
void* VYR_FLAT_CALL CSharp_Header_get_ReadSDKInformation__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_Header_assign_ReadSDKInformation(void* self, void* value);
int32_t VYR_FLAT_CALL CSharp_Header_isset_ReadSDKInformation(void* self);
void VYR_FLAT_CALL CSharp_Header_unset_ReadSDKInformation(void* self);
void* VYR_FLAT_CALL CSharp_Header_get_WriteSDKInformation__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_Header_assign_WriteSDKInformation(void* self, void* value);
int32_t VYR_FLAT_CALL CSharp_Header_isset_WriteSDKInformation(void* self);
void VYR_FLAT_CALL CSharp_Header_unset_WriteSDKInformation(void* self);
void* VYR_FLAT_CALL CSharp_Header_get_ReadPlatformInformation__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_Header_assign_ReadPlatformInformation(void* self, void* value);
int32_t VYR_FLAT_CALL CSharp_Header_isset_ReadPlatformInformation(void* self);
void VYR_FLAT_CALL CSharp_Header_unset_ReadPlatformInformation(void* self);
void* VYR_FLAT_CALL CSharp_Header_get_WritePlatformInformation__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_Header_assign_WritePlatformInformation(void* self, void* value);
int32_t VYR_FLAT_CALL CSharp_Header_isset_WritePlatformInformation(void* self);
void VYR_FLAT_CALL CSharp_Header_unset_WritePlatformInformation(void* self);
uint32_t VYR_FLAT_CALL CSharp_Header_size_Revision(void* self);
void* VYR_FLAT_CALL CSharp_Header_get_Revision__SWIG_0(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_Header_assign_Revision(void* self, uint32_t index, void* value);
int32_t VYR_FLAT_CALL CSharp_Header_append_Revision(void* self);
int32_t VYR_FLAT_CALL CSharp_Header_insert_Revision(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_Header_back_Revision(void* self);
void VYR_FLAT_CALL CSharp_Header_delete_Revision(void* self, uint32_t index);
void VYR_FLAT_CALL CSharp_Header_clear_Revision(void* self);

/* OwnerType */
void* VYR_FLAT_CALL CSharp_new_OwnerType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_OwnerType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_OwnerType(void* self);
void VYR_FLAT_CALL CSharp_OwnerType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_OwnerType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_OwnerType_is_occurs_ok(void* self);
uint32_t VYR_FLAT_CALL CSharp_OwnerType_size_CustomAttribute(void* self);
void* VYR_FLAT_CALL CSharp_OwnerType_get_CustomAttribute__SWIG_0(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_OwnerType_assign_CustomAttribute(void* self, uint32_t index, void* value);
int32_t VYR_FLAT_CALL CSharp_OwnerType_append_CustomAttribute(void* self);
int32_t VYR_FLAT_CALL CSharp_OwnerType_insert_CustomAttribute(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_OwnerType_back_CustomAttribute(void* self);
void VYR_FLAT_CALL CSharp_OwnerType_delete_CustomAttribute(void* self, uint32_t index);
void VYR_FLAT_CALL CSharp_OwnerType_clear_CustomAttribute(void* self);
uint32_t VYR_FLAT_CALL CSharp_OwnerType_size_Person(void* self);
void* VYR_FLAT_CALL CSharp_OwnerType_get_Person__SWIG_0(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_OwnerType_assign_Person(void* self, uint32_t index, void* value);
int32_t VYR_FLAT_CALL CSharp_OwnerType_append_Person(void* self);
int32_t VYR_FLAT_CALL CSharp_OwnerType_insert_Person(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_OwnerType_back_Person(void* self);
void VYR_FLAT_CALL CSharp_OwnerType_delete_Person(void* self, uint32_t index);
void VYR_FLAT_CALL CSharp_OwnerType_clear_Person(void* self);
uint32_t VYR_FLAT_CALL CSharp_OwnerType_size_Copyright(void* self);
char16_t* VYR_FLAT_CALL CSharp_OwnerType_get_Copyright(void* self, uint32_t index);
int32_t VYR_FLAT_CALL CSharp_OwnerType_set_Copyright(void* self, uint32_t index, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_OwnerType_append_Copyright(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_OwnerType_insert_Copyright(void* self, uint32_t index, const char16_t* value);
void VYR_FLAT_CALL CSharp_OwnerType_delete_Copyright(void* self, uint32_t index);
void VYR_FLAT_CALL CSharp_OwnerType_clear_Copyright(void* self);
uint32_t VYR_FLAT_CALL CSharp_OwnerType_size_Company(void* self);
char16_t* VYR_FLAT_CALL CSharp_OwnerType_get_Company(void* self, uint32_t index);
int32_t VYR_FLAT_CALL CSharp_OwnerType_set_Company(void* self, uint32_t index, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_OwnerType_append_Company(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_OwnerType_insert_Company(void* self, uint32_t index, const char16_t* value);
void VYR_FLAT_CALL CSharp_OwnerType_delete_Company(void* self, uint32_t index);
void VYR_FLAT_CALL CSharp_OwnerType_clear_Company(void* self);

/* Version */
void* VYR_FLAT_CALL CSharp_new_Version__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_Version__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_Version(void* self);
void VYR_FLAT_CALL CSharp_Version_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_Version_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_Version_is_occurs_ok(void* self);
uint32_t VYR_FLAT_CALL CSharp_Version_size_CustomAttribute(void* self);
void* VYR_FLAT_CALL CSharp_Version_get_CustomAttribute__SWIG_0(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_Version_assign_CustomAttribute(void* self, uint32_t index, void* value);
int32_t VYR_FLAT_CALL CSharp_Version_append_CustomAttribute(void* self);
int32_t VYR_FLAT_CALL CSharp_Version_insert_CustomAttribute(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_Version_back_CustomAttribute(void* self);
void VYR_FLAT_CALL CSharp_Version_delete_CustomAttribute(void* self, uint32_t index);
void VYR_FLAT_CALL CSharp_Version_clear_CustomAttribute(void* self);
char16_t* VYR_FLAT_CALL CSharp_Version_get_Version(void* self);
int32_t VYR_FLAT_CALL CSharp_Version_set_Version(void* self, const char16_t* value);
uint32_t VYR_FLAT_CALL CSharp_Version_size_Predecessor(void* self);
char16_t* VYR_FLAT_CALL CSharp_Version_get_Predecessor(void* self, uint32_t index);
int32_t VYR_FLAT_CALL CSharp_Version_set_Predecessor(void* self, uint32_t index, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_Version_append_Predecessor(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_Version_insert_Predecessor(void* self, uint32_t index, const char16_t* value);
void VYR_FLAT_CALL CSharp_Version_delete_Predecessor(void* self, uint32_t index);
void VYR_FLAT_CALL CSharp_Version_clear_Predecessor(void* self);

/* Preamble */
void* VYR_FLAT_CALL CSharp_new_Preamble__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_Preamble__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_Preamble(void* self);
void VYR_FLAT_CALL CSharp_Preamble_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_Preamble_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_Preamble_is_occurs_ok(void* self);
void* VYR_FLAT_CALL CSharp_Preamble_get_Header__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_Preamble_assign_Header(void* self, void* value);
void* VYR_FLAT_CALL CSharp_Preamble_get_Owner__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_Preamble_assign_Owner(void* self, void* value);
int32_t VYR_FLAT_CALL CSharp_Preamble_isset_Owner(void* self);
void VYR_FLAT_CALL CSharp_Preamble_unset_Owner(void* self);
void* VYR_FLAT_CALL CSharp_Preamble_get_Version__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_Preamble_assign_Version(void* self, void* value);
int32_t VYR_FLAT_CALL CSharp_Preamble_isset_Version(void* self);
void VYR_FLAT_CALL CSharp_Preamble_unset_Version(void* self);

/* Vyr */
void* VYR_FLAT_CALL CSharp_new_Vyr__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_Vyr__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_Vyr(void* self);
void* VYR_FLAT_CALL CSharp_Vyr_ns_map(void);
int32_t VYR_FLAT_CALL CSharp_Vyr_unmarshal__SWIG_0(void* self, const char* path);
int32_t VYR_FLAT_CALL CSharp_Vyr_unmarshal__SWIG_1(void* self, const char* data, uint32_t size);
int32_t VYR_FLAT_CALL CSharp_Vyr_marshal__SWIG_0(void* self, const char* path);
void VYR_FLAT_CALL CSharp_Vyr_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_Vyr_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_Vyr_is_occurs_ok(void* self);
void* VYR_FLAT_CALL CSharp_Vyr_get_Preamble__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_Vyr_assign_Preamble(void* self, void* value);
uint32_t VYR_FLAT_CALL CSharp_Vyr_size_Color(void* self);
void* VYR_FLAT_CALL CSharp_Vyr_get_Color__SWIG_0(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_Vyr_assign_Color(void* self, uint32_t index, void* value);
int32_t VYR_FLAT_CALL CSharp_Vyr_append_Color(void* self);
int32_t VYR_FLAT_CALL CSharp_Vyr_insert_Color(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_Vyr_back_Color(void* self);
void VYR_FLAT_CALL CSharp_Vyr_delete_Color(void* self, uint32_t index);
void VYR_FLAT_CALL CSharp_Vyr_clear_Color(void* self);
uint32_t VYR_FLAT_CALL CSharp_Vyr_size_Palette(void* self);
void* VYR_FLAT_CALL CSharp_Vyr_get_Palette__SWIG_0(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_Vyr_assign_Palette(void* self, uint32_t index, void* value);
int32_t VYR_FLAT_CALL CSharp_Vyr_append_Palette(void* self);
int32_t VYR_FLAT_CALL CSharp_Vyr_insert_Palette(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_Vyr_back_Palette(void* self);
void VYR_FLAT_CALL CSharp_Vyr_delete_Palette(void* self, uint32_t index);
void VYR_FLAT_CALL CSharp_Vyr_clear_Palette(void* self);
uint32_t VYR_FLAT_CALL CSharp_Vyr_size_ColorQualityControl(void* self);
void* VYR_FLAT_CALL CSharp_Vyr_get_ColorQualityControl__SWIG_0(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_Vyr_assign_ColorQualityControl(void* self, uint32_t index, void* value);
int32_t VYR_FLAT_CALL CSharp_Vyr_append_ColorQualityControl(void* self);
int32_t VYR_FLAT_CALL CSharp_Vyr_insert_ColorQualityControl(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_Vyr_back_ColorQualityControl(void* self);
void VYR_FLAT_CALL CSharp_Vyr_delete_ColorQualityControl(void* self, uint32_t index);
void VYR_FLAT_CALL CSharp_Vyr_clear_ColorQualityControl(void* self);

/* Revision */
void* VYR_FLAT_CALL CSharp_new_Revision__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_Revision__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_Revision(void* self);
void VYR_FLAT_CALL CSharp_Revision_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_Revision_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_Revision_is_occurs_ok(void* self);
uint32_t VYR_FLAT_CALL CSharp_Revision_size_any(void* self);
int32_t VYR_FLAT_CALL CSharp_Revision_append_any(void* self, const char* value);
int32_t VYR_FLAT_CALL CSharp_Revision_insert_any(void* self, uint32_t index, const char* value);
void VYR_FLAT_CALL CSharp_Revision_delete_any(void* self, uint32_t index);
void VYR_FLAT_CALL CSharp_Revision_clear_any(void* self);

/* Person */
void* VYR_FLAT_CALL CSharp_new_Person__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_Person__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_Person(void* self);
void VYR_FLAT_CALL CSharp_Person_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_Person_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_Person_is_occurs_ok(void* self);
char16_t* VYR_FLAT_CALL CSharp_Person_get_Name(void* self);
int32_t VYR_FLAT_CALL CSharp_Person_set_Name(void* self, const char16_t* value);
char16_t* VYR_FLAT_CALL CSharp_Person_get_ContactInfo(void* self);
int32_t VYR_FLAT_CALL CSharp_Person_set_ContactInfo(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_Person_isset_ContactInfo(void* self);
void VYR_FLAT_CALL CSharp_Person_unset_ContactInfo(void* self);

/* CustomAttributeType_ValueChoice */
void* VYR_FLAT_CALL CSharp_new_CustomAttributeType_ValueChoice__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_CustomAttributeType_ValueChoice__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_CustomAttributeType_ValueChoice(void* self);
void VYR_FLAT_CALL CSharp_CustomAttributeType_ValueChoice_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_CustomAttributeType_ValueChoice_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_CustomAttributeType_ValueChoice_is_occurs_ok(void* self);
int32_t VYR_FLAT_CALL CSharp_CustomAttributeType_ValueChoice_getchosen(void* self);
double VYR_FLAT_CALL CSharp_CustomAttributeType_ValueChoice_get_DoubleValue(void* self);
int32_t VYR_FLAT_CALL CSharp_CustomAttributeType_ValueChoice_set_DoubleValue(void* self, double value);
int32_t VYR_FLAT_CALL CSharp_CustomAttributeType_ValueChoice_get_IntegerValue(void* self);
int32_t VYR_FLAT_CALL CSharp_CustomAttributeType_ValueChoice_set_IntegerValue(void* self, int32_t value);
char16_t* VYR_FLAT_CALL CSharp_CustomAttributeType_ValueChoice_get_StringValue(void* self);
int32_t VYR_FLAT_CALL CSharp_CustomAttributeType_ValueChoice_set_StringValue(void* self, const char16_t* value);

/* CustomAttributeType */
void* VYR_FLAT_CALL CSharp_new_CustomAttributeType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_CustomAttributeType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_CustomAttributeType(void* self);
void VYR_FLAT_CALL CSharp_CustomAttributeType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_CustomAttributeType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_CustomAttributeType_is_occurs_ok(void* self);
char16_t* VYR_FLAT_CALL CSharp_CustomAttributeType_get_Name(void* self);
int32_t VYR_FLAT_CALL CSharp_CustomAttributeType_set_Name(void* self, const char16_t* value);
void* VYR_FLAT_CALL CSharp_CustomAttributeType_get_ValueChoice__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_CustomAttributeType_assign_ValueChoice(void* self, void* value);

/* TagCategory */
void* VYR_FLAT_CALL CSharp_new_TagCategory__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_TagCategory__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_TagCategory(void* self);
void VYR_FLAT_CALL CSharp_TagCategory_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_TagCategory_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_TagCategory_is_occurs_ok(void* self);
char16_t* VYR_FLAT_CALL CSharp_TagCategory_get_UniqueID(void* self);
int32_t VYR_FLAT_CALL CSharp_TagCategory_set_UniqueID(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_TagCategory_isset_UniqueID(void* self);
void VYR_FLAT_CALL CSharp_TagCategory_unset_UniqueID(void* self);
char16_t* VYR_FLAT_CALL CSharp_TagCategory_get_Name(void* self);
int32_t VYR_FLAT_CALL CSharp_TagCategory_set_Name(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_TagCategory_isset_Name(void* self);
void VYR_FLAT_CALL CSharp_TagCategory_unset_Name(void* self);

/* Tag */
void* VYR_FLAT_CALL CSharp_new_Tag__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_Tag__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_Tag(void* self);
void VYR_FLAT_CALL CSharp_Tag_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_Tag_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_Tag_is_occurs_ok(void* self);
char16_t* VYR_FLAT_CALL CSharp_Tag_get_Name(void* self);
int32_t VYR_FLAT_CALL CSharp_Tag_set_Name(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_Tag_isset_Name(void* self);
void VYR_FLAT_CALL CSharp_Tag_unset_Name(void* self);
char16_t* VYR_FLAT_CALL CSharp_Tag_get_UniqueID(void* self);
int32_t VYR_FLAT_CALL CSharp_Tag_set_UniqueID(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_Tag_isset_UniqueID(void* self);
void VYR_FLAT_CALL CSharp_Tag_unset_UniqueID(void* self);
void* VYR_FLAT_CALL CSharp_Tag_get_Category__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_Tag_assign_Category(void* self, void* value);

/* anon_TextValue */
void* VYR_FLAT_CALL CSharp_new_anon_TextValue__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_anon_TextValue__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_anon_TextValue(void* self);
void VYR_FLAT_CALL CSharp_anon_TextValue_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_anon_TextValue_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_anon_TextValue_is_occurs_ok(void* self);
int32_t VYR_FLAT_CALL CSharp_anon_TextValue_getchosen(void* self);
char16_t* VYR_FLAT_CALL CSharp_anon_TextValue_get_TextValue(void* self);
int32_t VYR_FLAT_CALL CSharp_anon_TextValue_set_TextValue(void* self, const char16_t* value);
double VYR_FLAT_CALL CSharp_anon_TextValue_get_NumberValue(void* self);
int32_t VYR_FLAT_CALL CSharp_anon_TextValue_set_NumberValue(void* self, double value);

/* TagValue */
void* VYR_FLAT_CALL CSharp_new_TagValue__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_TagValue__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_TagValue(void* self);
void VYR_FLAT_CALL CSharp_TagValue_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_TagValue_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_TagValue_is_occurs_ok(void* self);
char16_t* VYR_FLAT_CALL CSharp_TagValue_get_UniqueID(void* self);
int32_t VYR_FLAT_CALL CSharp_TagValue_set_UniqueID(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_TagValue_isset_UniqueID(void* self);
void VYR_FLAT_CALL CSharp_TagValue_unset_UniqueID(void* self);
void* VYR_FLAT_CALL CSharp_TagValue_get_Tag__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_TagValue_assign_Tag(void* self, void* value);
void* VYR_FLAT_CALL CSharp_TagValue_get_anon_TextValue__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_TagValue_assign_anon_TextValue(void* self, void* value);

/* sg_ColorSpace */
void* VYR_FLAT_CALL CSharp_new_sg_ColorSpace__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_sg_ColorSpace__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_sg_ColorSpace(void* self);
void VYR_FLAT_CALL CSharp_sg_ColorSpace_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_sg_ColorSpace_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_sg_ColorSpace_is_occurs_ok(void* self);
int32_t VYR_FLAT_CALL CSharp_sg_ColorSpace_getchosen(void* self);
void* VYR_FLAT_CALL CSharp_sg_ColorSpace_get_ColorSpaceRecipe__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_sg_ColorSpace_assign_ColorSpaceRecipe(void* self, void* value);
void* VYR_FLAT_CALL CSharp_sg_ColorSpace_get_ColorSpaceTINTORA__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_sg_ColorSpace_assign_ColorSpaceTINTORA(void* self, void* value);
void* VYR_FLAT_CALL CSharp_sg_ColorSpace_get_ColorSpaceGeneric__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_sg_ColorSpace_assign_ColorSpaceGeneric(void* self, void* value);
void* VYR_FLAT_CALL CSharp_sg_ColorSpace_get_ColorSpaceEmissiveGeneric__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_sg_ColorSpace_assign_ColorSpaceEmissiveGeneric(void* self, void* value);
void* VYR_FLAT_CALL CSharp_sg_ColorSpace_get_ColorSpaceDensity__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_sg_ColorSpace_assign_ColorSpaceDensity(void* self, void* value);
void* VYR_FLAT_CALL CSharp_sg_ColorSpace_get_ColorSpaceRGB__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_sg_ColorSpace_assign_ColorSpaceRGB(void* self, void* value);
void* VYR_FLAT_CALL CSharp_sg_ColorSpace_get_ColorSpaceSRGB__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_sg_ColorSpace_assign_ColorSpaceSRGB(void* self, void* value);
void* VYR_FLAT_CALL CSharp_sg_ColorSpace_get_ColorSpaceAdobeRGB__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_sg_ColorSpace_assign_ColorSpaceAdobeRGB(void* self, void* value);
void* VYR_FLAT_CALL CSharp_sg_ColorSpace_get_ColorSpaceCMYKPlusN__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_sg_ColorSpace_assign_ColorSpaceCMYKPlusN(void* self, void* value);
void* VYR_FLAT_CALL CSharp_sg_ColorSpace_get_ColorSpaceAdobeWideGamutRGB__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_sg_ColorSpace_assign_ColorSpaceAdobeWideGamutRGB(void* self, void* value);
void* VYR_FLAT_CALL CSharp_sg_ColorSpace_get_ColorSpaceSpectral__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_sg_ColorSpace_assign_ColorSpaceSpectral(void* self, void* value);
void* VYR_FLAT_CALL CSharp_sg_ColorSpace_get_ColorSpaceEmissiveSpectral__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_sg_ColorSpace_assign_ColorSpaceEmissiveSpectral(void* self, void* value);
void* VYR_FLAT_CALL CSharp_sg_ColorSpace_get_ColorSpaceCIELab__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_sg_ColorSpace_assign_ColorSpaceCIELab(void* self, void* value);
void* VYR_FLAT_CALL CSharp_sg_ColorSpace_get_ColorSpaceCIELCh__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_sg_ColorSpace_assign_ColorSpaceCIELCh(void* self, void* value);
void* VYR_FLAT_CALL CSharp_sg_ColorSpace_get_ColorSpaceCIEXYZ__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_sg_ColorSpace_assign_ColorSpaceCIEXYZ(void* self, void* value);
void* VYR_FLAT_CALL CSharp_sg_ColorSpace_get_ColorSpaceEmissiveCIEXYZ__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_sg_ColorSpace_assign_ColorSpaceEmissiveCIEXYZ(void* self, void* value);
void* VYR_FLAT_CALL CSharp_sg_ColorSpace_get_ColorSpaceCIExyY__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_sg_ColorSpace_assign_ColorSpaceCIExyY(void* self, void* value);
void* VYR_FLAT_CALL CSharp_sg_ColorSpace_get_ColorSpaceEmissiveCIExyY__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_sg_ColorSpace_assign_ColorSpaceEmissiveCIExyY(void* self, void* value);
void* VYR_FLAT_CALL CSharp_sg_ColorSpace_get_ColorSpaceCIELuv__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_sg_ColorSpace_assign_ColorSpaceCIELuv(void* self, void* value);
void* VYR_FLAT_CALL CSharp_sg_ColorSpace_get_ColorSpaceHSL__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_sg_ColorSpace_assign_ColorSpaceHSL(void* self, void* value);
void* VYR_FLAT_CALL CSharp_sg_ColorSpace_get_ColorSpaceHSV__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_sg_ColorSpace_assign_ColorSpaceHSV(void* self, void* value);
void* VYR_FLAT_CALL CSharp_sg_ColorSpace_get_ColorSpaceCMYK__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_sg_ColorSpace_assign_ColorSpaceCMYK__SWIG_0(void* self, void* value);
void* VYR_FLAT_CALL CSharp_sg_ColorSpace_get_ColorSpaceTINTORAOctavantic__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_sg_ColorSpace_assign_ColorSpaceTINTORAOctavantic(void* self, void* value);
void* VYR_FLAT_CALL CSharp_sg_ColorSpace_get_ColorSpaceYUV__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_sg_ColorSpace_assign_ColorSpaceYUV(void* self, void* value);
void* VYR_FLAT_CALL CSharp_sg_ColorSpace_get_ColorSpaceYIQ__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_sg_ColorSpace_assign_ColorSpaceYIQ(void* self, void* value);
void* VYR_FLAT_CALL CSharp_sg_ColorSpace_get_ColorSpaceYBR__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_sg_ColorSpace_assign_ColorSpaceYBR(void* self, void* value);
void* VYR_FLAT_CALL CSharp_sg_ColorSpace_get_ColorSpaceNCS__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_sg_ColorSpace_assign_ColorSpaceNCS(void* self, void* value);
void* VYR_FLAT_CALL CSharp_sg_ColorSpace_get_ColorSpaceMunsell__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_sg_ColorSpace_assign_ColorSpaceMunsell(void* self, void* value);

/* sg_Substrate */
void* VYR_FLAT_CALL CSharp_new_sg_Substrate__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_sg_Substrate__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_sg_Substrate(void* self);
void VYR_FLAT_CALL CSharp_sg_Substrate_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_sg_Substrate_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_sg_Substrate_is_occurs_ok(void* self);
int32_t VYR_FLAT_CALL CSharp_sg_Substrate_getchosen(void* self);
void* VYR_FLAT_CALL CSharp_sg_Substrate_get_SubstratePaper__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_sg_Substrate_assign_SubstratePaper(void* self, void* value);
void* VYR_FLAT_CALL CSharp_sg_Substrate_get_SubstrateGeneric__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_sg_Substrate_assign_SubstrateGeneric(void* self, void* value);
void* VYR_FLAT_CALL CSharp_sg_Substrate_get_SubstrateMetal__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_sg_Substrate_assign_SubstrateMetal(void* self, void* value);
void* VYR_FLAT_CALL CSharp_sg_Substrate_get_SubstratePlastic__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_sg_Substrate_assign_SubstratePlastic(void* self, void* value);
void* VYR_FLAT_CALL CSharp_sg_Substrate_get_SubstrateWood__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_sg_Substrate_assign_SubstrateWood(void* self, void* value);
void* VYR_FLAT_CALL CSharp_sg_Substrate_get_SubstrateVinyl__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_sg_Substrate_assign_SubstrateVinyl(void* self, void* value);
void* VYR_FLAT_CALL CSharp_sg_Substrate_get_SubstrateTile__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_sg_Substrate_assign_SubstrateTile(void* self, void* value);
void* VYR_FLAT_CALL CSharp_sg_Substrate_get_SubstrateFilm__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_sg_Substrate_assign_SubstrateFilm(void* self, void* value);
void* VYR_FLAT_CALL CSharp_sg_Substrate_get_SubstrateTextile__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_sg_Substrate_assign_SubstrateTextile(void* self, void* value);

/* sg_Sample */
void* VYR_FLAT_CALL CSharp_new_sg_Sample__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_sg_Sample__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_sg_Sample(void* self);
void VYR_FLAT_CALL CSharp_sg_Sample_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_sg_Sample_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_sg_Sample_is_occurs_ok(void* self);
int32_t VYR_FLAT_CALL CSharp_sg_Sample_getchosen(void* self);
void* VYR_FLAT_CALL CSharp_sg_Sample_get_SampleSpot__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_sg_Sample_assign_SampleSpot(void* self, void* value);
void* VYR_FLAT_CALL CSharp_sg_Sample_get_SampleTarget__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_sg_Sample_assign_SampleTarget(void* self, void* value);

/* sg_Function */
void* VYR_FLAT_CALL CSharp_new_sg_Function__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_sg_Function__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_sg_Function(void* self);
void VYR_FLAT_CALL CSharp_sg_Function_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_sg_Function_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_sg_Function_is_occurs_ok(void* self);
int32_t VYR_FLAT_CALL CSharp_sg_Function_getchosen(void* self);
void* VYR_FLAT_CALL CSharp_sg_Function_get_Function__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_sg_Function_assign_Function__SWIG_0(void* self, void* value);
void* VYR_FLAT_CALL CSharp_sg_Function_get_FunctionGeneric__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_sg_Function_assign_FunctionGeneric(void* self, void* value);
void* VYR_FLAT_CALL CSharp_sg_Function_get_FunctionDE__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_sg_Function_assign_FunctionDE(void* self, void* value);
void* VYR_FLAT_CALL CSharp_sg_Function_get_FunctionMeanDE__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_sg_Function_assign_FunctionMeanDE(void* self, void* value);
void* VYR_FLAT_CALL CSharp_sg_Function_get_FunctionDE94__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_sg_Function_assign_FunctionDE94(void* self, void* value);
void* VYR_FLAT_CALL CSharp_sg_Function_get_FunctionDE2000__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_sg_Function_assign_FunctionDE2000(void* self, void* value);
void* VYR_FLAT_CALL CSharp_sg_Function_get_FunctionDECMC__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_sg_Function_assign_FunctionDECMC(void* self, void* value);
void* VYR_FLAT_CALL CSharp_sg_Function_get_FunctionStdDevX__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_sg_Function_assign_FunctionStdDevX(void* self, void* value);
void* VYR_FLAT_CALL CSharp_sg_Function_get_FunctionStdDevY__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_sg_Function_assign_FunctionStdDevY(void* self, void* value);
void* VYR_FLAT_CALL CSharp_sg_Function_get_FunctionStdDevZ__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_sg_Function_assign_FunctionStdDevZ(void* self, void* value);
void* VYR_FLAT_CALL CSharp_sg_Function_get_FunctionStdDevL__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_sg_Function_assign_FunctionStdDevL(void* self, void* value);
void* VYR_FLAT_CALL CSharp_sg_Function_get_FunctionStdDevA__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_sg_Function_assign_FunctionStdDevA(void* self, void* value);
void* VYR_FLAT_CALL CSharp_sg_Function_get_FunctionStdDevB__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_sg_Function_assign_FunctionStdDevB(void* self, void* value);
void* VYR_FLAT_CALL CSharp_sg_Function_get_FunctionStdDevC__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_sg_Function_assign_FunctionStdDevC(void* self, void* value);
void* VYR_FLAT_CALL CSharp_sg_Function_get_FunctionStdDevH__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_sg_Function_assign_FunctionStdDevH(void* self, void* value);
void* VYR_FLAT_CALL CSharp_sg_Function_get_FunctionAverageStdDevL__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_sg_Function_assign_FunctionAverageStdDevL(void* self, void* value);
void* VYR_FLAT_CALL CSharp_sg_Function_get_FunctionAverageStdDevA__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_sg_Function_assign_FunctionAverageStdDevA(void* self, void* value);
void* VYR_FLAT_CALL CSharp_sg_Function_get_FunctionAverageStdDevB__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_sg_Function_assign_FunctionAverageStdDevB(void* self, void* value);

/* CollectionColorSpaceSpecificationType */
void* VYR_FLAT_CALL CSharp_new_CollectionColorSpaceSpecificationType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_CollectionColorSpaceSpecificationType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_CollectionColorSpaceSpecificationType(void* self);
void VYR_FLAT_CALL CSharp_CollectionColorSpaceSpecificationType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_CollectionColorSpaceSpecificationType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_CollectionColorSpaceSpecificationType_is_occurs_ok(void* self);
void* VYR_FLAT_CALL CSharp_CollectionColorSpaceSpecificationType_get_ColorSpaceSpecificationSpectrumGeneric__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_CollectionColorSpaceSpecificationType_assign_ColorSpaceSpecificationSpectrumGeneric(void* self, void* value);
int32_t VYR_FLAT_CALL CSharp_CollectionColorSpaceSpecificationType_isset_ColorSpaceSpecificationSpectrumGeneric(void* self);
void VYR_FLAT_CALL CSharp_CollectionColorSpaceSpecificationType_unset_ColorSpaceSpecificationSpectrumGeneric(void* self);
void* VYR_FLAT_CALL CSharp_CollectionColorSpaceSpecificationType_get_ColorSpaceSpecificationSpectrumSpectral__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_CollectionColorSpaceSpecificationType_assign_ColorSpaceSpecificationSpectrumSpectral(void* self, void* value);
int32_t VYR_FLAT_CALL CSharp_CollectionColorSpaceSpecificationType_isset_ColorSpaceSpecificationSpectrumSpectral(void* self);
void VYR_FLAT_CALL CSharp_CollectionColorSpaceSpecificationType_unset_ColorSpaceSpecificationSpectrumSpectral(void* self);
void* VYR_FLAT_CALL CSharp_CollectionColorSpaceSpecificationType_get_ColorSpaceSpecificationSpectrumTristimulus__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_CollectionColorSpaceSpecificationType_assign_ColorSpaceSpecificationSpectrumTristimulus(void* self, void* value);
int32_t VYR_FLAT_CALL CSharp_CollectionColorSpaceSpecificationType_isset_ColorSpaceSpecificationSpectrumTristimulus(void* self);
void VYR_FLAT_CALL CSharp_CollectionColorSpaceSpecificationType_unset_ColorSpaceSpecificationSpectrumTristimulus(void* self);
void* VYR_FLAT_CALL CSharp_CollectionColorSpaceSpecificationType_get_ColorSpaceSpecificationEmissiveGeneric__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_CollectionColorSpaceSpecificationType_assign_ColorSpaceSpecificationEmissiveGeneric(void* self, void* value);
int32_t VYR_FLAT_CALL CSharp_CollectionColorSpaceSpecificationType_isset_ColorSpaceSpecificationEmissiveGeneric(void* self);
void VYR_FLAT_CALL CSharp_CollectionColorSpaceSpecificationType_unset_ColorSpaceSpecificationEmissiveGeneric(void* self);
void* VYR_FLAT_CALL CSharp_CollectionColorSpaceSpecificationType_get_ColorSpaceSpecificationEmissiveSpectral__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_CollectionColorSpaceSpecificationType_assign_ColorSpaceSpecificationEmissiveSpectral(void* self, void* value);
int32_t VYR_FLAT_CALL CSharp_CollectionColorSpaceSpecificationType_isset_ColorSpaceSpecificationEmissiveSpectral(void* self);
void VYR_FLAT_CALL CSharp_CollectionColorSpaceSpecificationType_unset_ColorSpaceSpecificationEmissiveSpectral(void* self);
void* VYR_FLAT_CALL CSharp_CollectionColorSpaceSpecificationType_get_ColorSpaceSpecificationEmissiveTristimulus__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_CollectionColorSpaceSpecificationType_assign_ColorSpaceSpecificationEmissiveTristimulus(void* self, void* value);
int32_t VYR_FLAT_CALL CSharp_CollectionColorSpaceSpecificationType_isset_ColorSpaceSpecificationEmissiveTristimulus(void* self);
void VYR_FLAT_CALL CSharp_CollectionColorSpaceSpecificationType_unset_ColorSpaceSpecificationEmissiveTristimulus(void* self);

/* PaletteType */
void* VYR_FLAT_CALL CSharp_new_PaletteType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_PaletteType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_PaletteType(void* self);
void VYR_FLAT_CALL CSharp_PaletteType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_PaletteType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_PaletteType_is_occurs_ok(void* self);
char16_t* VYR_FLAT_CALL CSharp_PaletteType_get_PaletteName(void* self);
int32_t VYR_FLAT_CALL CSharp_PaletteType_set_PaletteName(void* self, const char16_t* value);
char16_t* VYR_FLAT_CALL CSharp_PaletteType_get_PalettePartNumber(void* self);
int32_t VYR_FLAT_CALL CSharp_PaletteType_set_PalettePartNumber(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_PaletteType_isset_PalettePartNumber(void* self);
void VYR_FLAT_CALL CSharp_PaletteType_unset_PalettePartNumber(void* self);
char16_t* VYR_FLAT_CALL CSharp_PaletteType_get_PaletteVersion(void* self);
int32_t VYR_FLAT_CALL CSharp_PaletteType_set_PaletteVersion(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_PaletteType_isset_PaletteVersion(void* self);
void VYR_FLAT_CALL CSharp_PaletteType_unset_PaletteVersion(void* self);
char16_t* VYR_FLAT_CALL CSharp_PaletteType_get_UniqueID(void* self);
int32_t VYR_FLAT_CALL CSharp_PaletteType_set_UniqueID(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_PaletteType_isset_UniqueID(void* self);
void VYR_FLAT_CALL CSharp_PaletteType_unset_UniqueID(void* self);
char16_t* VYR_FLAT_CALL CSharp_PaletteType_get_Comments(void* self);
int32_t VYR_FLAT_CALL CSharp_PaletteType_set_Comments(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_PaletteType_isset_Comments(void* self);
void VYR_FLAT_CALL CSharp_PaletteType_unset_Comments(void* self);
uint32_t VYR_FLAT_CALL CSharp_PaletteType_size_CustomAttribute(void* self);
void* VYR_FLAT_CALL CSharp_PaletteType_get_CustomAttribute__SWIG_0(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_PaletteType_assign_CustomAttribute(void* self, uint32_t index, void* value);
int32_t VYR_FLAT_CALL CSharp_PaletteType_append_CustomAttribute(void* self);
int32_t VYR_FLAT_CALL CSharp_PaletteType_insert_CustomAttribute(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_PaletteType_back_CustomAttribute(void* self);
void VYR_FLAT_CALL CSharp_PaletteType_delete_CustomAttribute(void* self, uint32_t index);
void VYR_FLAT_CALL CSharp_PaletteType_clear_CustomAttribute(void* self);
uint32_t VYR_FLAT_CALL CSharp_PaletteType_size_ChangeHistory(void* self);
void* VYR_FLAT_CALL CSharp_PaletteType_get_ChangeHistory(void* self, uint32_t index);
int32_t VYR_FLAT_CALL CSharp_PaletteType_set_ChangeHistory(void* self, uint32_t index, void* value);
int32_t VYR_FLAT_CALL CSharp_PaletteType_append_ChangeHistory(void* self, void* value);
int32_t VYR_FLAT_CALL CSharp_PaletteType_insert_ChangeHistory(void* self, uint32_t index, void* value);
void VYR_FLAT_CALL CSharp_PaletteType_delete_ChangeHistory(void* self, uint32_t index);
void VYR_FLAT_CALL CSharp_PaletteType_clear_ChangeHistory(void* self);
void* VYR_FLAT_CALL CSharp_PaletteType_get_Owner__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_PaletteType_assign_Owner(void* self, void* value);
int32_t VYR_FLAT_CALL CSharp_PaletteType_isset_Owner(void* self);
void VYR_FLAT_CALL CSharp_PaletteType_unset_Owner(void* self);
uint32_t VYR_FLAT_CALL CSharp_PaletteType_size_SemanticAssociation(void* self);
char16_t* VYR_FLAT_CALL CSharp_PaletteType_get_SemanticAssociation(void* self, uint32_t index);
int32_t VYR_FLAT_CALL CSharp_PaletteType_set_SemanticAssociation(void* self, uint32_t index, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_PaletteType_append_SemanticAssociation(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_PaletteType_insert_SemanticAssociation(void* self, uint32_t index, const char16_t* value);
void VYR_FLAT_CALL CSharp_PaletteType_delete_SemanticAssociation(void* self, uint32_t index);
void VYR_FLAT_CALL CSharp_PaletteType_clear_SemanticAssociation(void* self);
void* VYR_FLAT_CALL CSharp_PaletteType_get_CollectionColorSpaceSpecification__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_PaletteType_assign_CollectionColorSpaceSpecification(void* self, void* value);
int32_t VYR_FLAT_CALL CSharp_PaletteType_isset_CollectionColorSpaceSpecification(void* self);
void VYR_FLAT_CALL CSharp_PaletteType_unset_CollectionColorSpaceSpecification(void* self);
uint32_t VYR_FLAT_CALL CSharp_PaletteType_size_ColorSet(void* self);
void* VYR_FLAT_CALL CSharp_PaletteType_get_ColorSet__SWIG_0(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_PaletteType_assign_ColorSet(void* self, uint32_t index, void* value);
int32_t VYR_FLAT_CALL CSharp_PaletteType_append_ColorSet(void* self);
int32_t VYR_FLAT_CALL CSharp_PaletteType_insert_ColorSet(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_PaletteType_back_ColorSet(void* self);
void VYR_FLAT_CALL CSharp_PaletteType_delete_ColorSet(void* self, uint32_t index);
void VYR_FLAT_CALL CSharp_PaletteType_clear_ColorSet(void* self);

/* ColorSetType */
void* VYR_FLAT_CALL CSharp_new_ColorSetType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSetType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSetType(void* self);
void VYR_FLAT_CALL CSharp_ColorSetType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_ColorSetType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSetType_is_occurs_ok(void* self);
char16_t* VYR_FLAT_CALL CSharp_ColorSetType_get_ColorSetName(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSetType_set_ColorSetName(void* self, const char16_t* value);
char16_t* VYR_FLAT_CALL CSharp_ColorSetType_get_UniqueID(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSetType_set_UniqueID(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ColorSetType_isset_UniqueID(void* self);
void VYR_FLAT_CALL CSharp_ColorSetType_unset_UniqueID(void* self);
char16_t* VYR_FLAT_CALL CSharp_ColorSetType_get_PartNumber(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSetType_set_PartNumber(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ColorSetType_isset_PartNumber(void* self);
void VYR_FLAT_CALL CSharp_ColorSetType_unset_PartNumber(void* self);
char16_t* VYR_FLAT_CALL CSharp_ColorSetType_get_Comments(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSetType_set_Comments(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ColorSetType_isset_Comments(void* self);
void VYR_FLAT_CALL CSharp_ColorSetType_unset_Comments(void* self);
uint32_t VYR_FLAT_CALL CSharp_ColorSetType_size_CustomAttribute(void* self);
void* VYR_FLAT_CALL CSharp_ColorSetType_get_CustomAttribute__SWIG_0(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_ColorSetType_assign_CustomAttribute(void* self, uint32_t index, void* value);
int32_t VYR_FLAT_CALL CSharp_ColorSetType_append_CustomAttribute(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSetType_insert_CustomAttribute(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_ColorSetType_back_CustomAttribute(void* self);
void VYR_FLAT_CALL CSharp_ColorSetType_delete_CustomAttribute(void* self, uint32_t index);
void VYR_FLAT_CALL CSharp_ColorSetType_clear_CustomAttribute(void* self);
uint32_t VYR_FLAT_CALL CSharp_ColorSetType_size_ChangeHistory(void* self);
void* VYR_FLAT_CALL CSharp_ColorSetType_get_ChangeHistory(void* self, uint32_t index);
int32_t VYR_FLAT_CALL CSharp_ColorSetType_set_ChangeHistory(void* self, uint32_t index, void* value);
int32_t VYR_FLAT_CALL CSharp_ColorSetType_append_ChangeHistory(void* self, void* value);
int32_t VYR_FLAT_CALL CSharp_ColorSetType_insert_ChangeHistory(void* self, uint32_t index, void* value);
void VYR_FLAT_CALL CSharp_ColorSetType_delete_ChangeHistory(void* self, uint32_t index);
void VYR_FLAT_CALL CSharp_ColorSetType_clear_ChangeHistory(void* self);
void* VYR_FLAT_CALL CSharp_ColorSetType_get_Owner__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_ColorSetType_assign_Owner(void* self, void* value);
int32_t VYR_FLAT_CALL CSharp_ColorSetType_isset_Owner(void* self);
void VYR_FLAT_CALL CSharp_ColorSetType_unset_Owner(void* self);
uint32_t VYR_FLAT_CALL CSharp_ColorSetType_size_SemanticAssociation(void* self);
char16_t* VYR_FLAT_CALL CSharp_ColorSetType_get_SemanticAssociation(void* self, uint32_t index);
int32_t VYR_FLAT_CALL CSharp_ColorSetType_set_SemanticAssociation(void* self, uint32_t index, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ColorSetType_append_SemanticAssociation(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ColorSetType_insert_SemanticAssociation(void* self, uint32_t index, const char16_t* value);
void VYR_FLAT_CALL CSharp_ColorSetType_delete_SemanticAssociation(void* self, uint32_t index);
void VYR_FLAT_CALL CSharp_ColorSetType_clear_SemanticAssociation(void* self);
void* VYR_FLAT_CALL CSharp_ColorSetType_get_CollectionColorSpaceSpecification__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_ColorSetType_assign_CollectionColorSpaceSpecification(void* self, void* value);
int32_t VYR_FLAT_CALL CSharp_ColorSetType_isset_CollectionColorSpaceSpecification(void* self);
void VYR_FLAT_CALL CSharp_ColorSetType_unset_CollectionColorSpaceSpecification(void* self);
uint32_t VYR_FLAT_CALL CSharp_ColorSetType_size_Color(void* self);
void* VYR_FLAT_CALL CSharp_ColorSetType_get_Color__SWIG_0(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_ColorSetType_assign_Color(void* self, uint32_t index, void* value);
int32_t VYR_FLAT_CALL CSharp_ColorSetType_append_Color(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSetType_insert_Color(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_ColorSetType_back_Color(void* self);
void VYR_FLAT_CALL CSharp_ColorSetType_delete_Color(void* self, uint32_t index);
void VYR_FLAT_CALL CSharp_ColorSetType_clear_Color(void* self);
void* VYR_FLAT_CALL CSharp_ColorSetType_get_Substrate__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_ColorSetType_assign_Substrate(void* self, void* value);
int32_t VYR_FLAT_CALL CSharp_ColorSetType_isset_Substrate(void* self);
void VYR_FLAT_CALL CSharp_ColorSetType_unset_Substrate(void* self);

/* ColorType */
void* VYR_FLAT_CALL CSharp_new_ColorType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorType(void* self);
void VYR_FLAT_CALL CSharp_ColorType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_ColorType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorType_is_occurs_ok(void* self);
char16_t* VYR_FLAT_CALL CSharp_ColorType_get_ColorName(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorType_set_ColorName(void* self, const char16_t* value);
char16_t* VYR_FLAT_CALL CSharp_ColorType_get_UniqueID(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorType_set_UniqueID(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ColorType_isset_UniqueID(void* self);
void VYR_FLAT_CALL CSharp_ColorType_unset_UniqueID(void* self);
char16_t* VYR_FLAT_CALL CSharp_ColorType_get_ColorNumber(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorType_set_ColorNumber(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ColorType_isset_ColorNumber(void* self);
void VYR_FLAT_CALL CSharp_ColorType_unset_ColorNumber(void* self);
char16_t* VYR_FLAT_CALL CSharp_ColorType_get_Comments(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorType_set_Comments(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ColorType_isset_Comments(void* self);
void VYR_FLAT_CALL CSharp_ColorType_unset_Comments(void* self);
uint32_t VYR_FLAT_CALL CSharp_ColorType_size_CustomAttribute(void* self);
void* VYR_FLAT_CALL CSharp_ColorType_get_CustomAttribute__SWIG_0(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_ColorType_assign_CustomAttribute(void* self, uint32_t index, void* value);
int32_t VYR_FLAT_CALL CSharp_ColorType_append_CustomAttribute(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorType_insert_CustomAttribute(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_ColorType_back_CustomAttribute(void* self);
void VYR_FLAT_CALL CSharp_ColorType_delete_CustomAttribute(void* self, uint32_t index);
void VYR_FLAT_CALL CSharp_ColorType_clear_CustomAttribute(void* self);
uint32_t VYR_FLAT_CALL CSharp_ColorType_size_ChangeHistory(void* self);
void* VYR_FLAT_CALL CSharp_ColorType_get_ChangeHistory(void* self, uint32_t index);
int32_t VYR_FLAT_CALL CSharp_ColorType_set_ChangeHistory(void* self, uint32_t index, void* value);
int32_t VYR_FLAT_CALL CSharp_ColorType_append_ChangeHistory(void* self, void* value);
int32_t VYR_FLAT_CALL CSharp_ColorType_insert_ChangeHistory(void* self, uint32_t index, void* value);
void VYR_FLAT_CALL CSharp_ColorType_delete_ChangeHistory(void* self, uint32_t index);
void VYR_FLAT_CALL CSharp_ColorType_clear_ChangeHistory(void* self);
void* VYR_FLAT_CALL CSharp_ColorType_get_Owner__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_ColorType_assign_Owner(void* self, void* value);
int32_t VYR_FLAT_CALL CSharp_ColorType_isset_Owner(void* self);
void VYR_FLAT_CALL CSharp_ColorType_unset_Owner(void* self);
uint32_t VYR_FLAT_CALL CSharp_ColorType_size_SemanticAssociation(void* self);
char16_t* VYR_FLAT_CALL CSharp_ColorType_get_SemanticAssociation(void* self, uint32_t index);
int32_t VYR_FLAT_CALL CSharp_ColorType_set_SemanticAssociation(void* self, uint32_t index, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ColorType_append_SemanticAssociation(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ColorType_insert_SemanticAssociation(void* self, uint32_t index, const char16_t* value);
void VYR_FLAT_CALL CSharp_ColorType_delete_SemanticAssociation(void* self, uint32_t index);
void VYR_FLAT_CALL CSharp_ColorType_clear_SemanticAssociation(void* self);
uint32_t VYR_FLAT_CALL CSharp_ColorType_size_ColorSpace(void* self);
void* VYR_FLAT_CALL CSharp_ColorType_get_ColorSpace__SWIG_0(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_ColorType_assign_ColorSpace(void* self, uint32_t index, void* value);
int32_t VYR_FLAT_CALL CSharp_ColorType_append_ColorSpace(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorType_insert_ColorSpace(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_ColorType_back_ColorSpace(void* self);
void VYR_FLAT_CALL CSharp_ColorType_delete_ColorSpace(void* self, uint32_t index);
void VYR_FLAT_CALL CSharp_ColorType_clear_ColorSpace(void* self);
void* VYR_FLAT_CALL CSharp_ColorType_get_Substrate__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_ColorType_assign_Substrate(void* self, void* value);
int32_t VYR_FLAT_CALL CSharp_ColorType_isset_Substrate(void* self);
void VYR_FLAT_CALL CSharp_ColorType_unset_Substrate(void* self);
uint32_t VYR_FLAT_CALL CSharp_ColorType_size_TagValues(void* self);
void* VYR_FLAT_CALL CSharp_ColorType_get_TagValues__SWIG_0(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_ColorType_assign_TagValues(void* self, uint32_t index, void* value);
int32_t VYR_FLAT_CALL CSharp_ColorType_append_TagValues(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorType_insert_TagValues(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_ColorType_back_TagValues(void* self);
void VYR_FLAT_CALL CSharp_ColorType_delete_TagValues(void* self, uint32_t index);
void VYR_FLAT_CALL CSharp_ColorType_clear_TagValues(void* self);

/* CollectionColorSpaceSpecification */
void* VYR_FLAT_CALL CSharp_new_CollectionColorSpaceSpecification__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_CollectionColorSpaceSpecification__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_CollectionColorSpaceSpecification(void* self);
void* VYR_FLAT_CALL CSharp_CollectionColorSpaceSpecificationUpcast(void* self);
void* VYR_FLAT_CALL CSharp_CollectionColorSpaceSpecification_ns_map(void);
int32_t VYR_FLAT_CALL CSharp_CollectionColorSpaceSpecification_unmarshal__SWIG_0(void* self, const char* path);
int32_t VYR_FLAT_CALL CSharp_CollectionColorSpaceSpecification_unmarshal__SWIG_1(void* self, const char* data, uint32_t size);
int32_t VYR_FLAT_CALL CSharp_CollectionColorSpaceSpecification_marshal__SWIG_0(void* self, const char* path);

/* ParentColorSpace */
void* VYR_FLAT_CALL CSharp_new_ParentColorSpace__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ParentColorSpace__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ParentColorSpace(void* self);
void* VYR_FLAT_CALL CSharp_ParentColorSpaceUpcast(void* self);
void VYR_FLAT_CALL CSharp_ParentColorSpace_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_ParentColorSpace_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_ParentColorSpace_is_occurs_ok(void* self);
void* VYR_FLAT_CALL CSharp_ParentColorSpace_get_ColorSpace__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_ParentColorSpace_assign_ColorSpace(void* self, void* value);
int32_t VYR_FLAT_CALL CSharp_ParentColorSpace_isset_ColorSpace(void* self);
void VYR_FLAT_CALL CSharp_ParentColorSpace_unset_ColorSpace(void* self);
int32_t VYR_FLAT_CALL CSharp_ParentColorSpace_isnil_ParentColorSpace(void* self);
void VYR_FLAT_CALL CSharp_ParentColorSpace_setnil_ParentColorSpace(void* self);

/* ColorSpaceType */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceType(void* self);
const char* VYR_FLAT_CALL CSharp_ColorSpaceType_id_get(void);
void VYR_FLAT_CALL CSharp_ColorSpaceType_id_set(const char* identity);
void* VYR_FLAT_CALL CSharp_ColorSpaceType_factory(int32_t ns_id, const char* name);
void* VYR_FLAT_CALL CSharp_ColorSpaceType_clone(void* self);
char* VYR_FLAT_CALL CSharp_ColorSpaceType_getid(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceType_has_id(void* self, const char* identity);
void VYR_FLAT_CALL CSharp_ColorSpaceType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_ColorSpaceType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceType_is_occurs_ok(void* self);
char16_t* VYR_FLAT_CALL CSharp_ColorSpaceType_get_Comments(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceType_set_Comments(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceType_isset_Comments(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceType_unset_Comments(void* self);
char16_t* VYR_FLAT_CALL CSharp_ColorSpaceType_get_UniqueID(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceType_set_UniqueID(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceType_isset_UniqueID(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceType_unset_UniqueID(void* self);
uint32_t VYR_FLAT_CALL CSharp_ColorSpaceType_size_CustomAttribute(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceType_get_CustomAttribute__SWIG_0(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_ColorSpaceType_assign_CustomAttribute(void* self, uint32_t index, void* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceType_append_CustomAttribute(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceType_insert_CustomAttribute(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_ColorSpaceType_back_CustomAttribute(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceType_delete_CustomAttribute(void* self, uint32_t index);
void VYR_FLAT_CALL CSharp_ColorSpaceType_clear_CustomAttribute(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceType_get_ParentColorSpace__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceType_assign_ParentColorSpace(void* self, void* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceType_isset_ParentColorSpace(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceType_unset_ParentColorSpace(void* self);
uint32_t VYR_FLAT_CALL CSharp_ColorSpaceType_size_ChangeHistory(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceType_get_ChangeHistory(void* self, uint32_t index);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceType_set_ChangeHistory(void* self, uint32_t index, void* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceType_append_ChangeHistory(void* self, void* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceType_insert_ChangeHistory(void* self, uint32_t index, void* value);
void VYR_FLAT_CALL CSharp_ColorSpaceType_delete_ChangeHistory(void* self, uint32_t index);
void VYR_FLAT_CALL CSharp_ColorSpaceType_clear_ChangeHistory(void* self);

/* ColorSpace */
void VYR_FLAT_CALL CSharp_delete_ColorSpace(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceUpcast(void* self);

/* ColorSpaceCIELabType */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceCIELabType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceCIELabType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceCIELabType(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceCIELabTypeUpcast(void* self);
const char* VYR_FLAT_CALL CSharp_ColorSpaceCIELabType_id_get(void);
void VYR_FLAT_CALL CSharp_ColorSpaceCIELabType_id_set(const char* identity);
void* VYR_FLAT_CALL CSharp_ColorSpaceCIELabType_clone(void* self);
char* VYR_FLAT_CALL CSharp_ColorSpaceCIELabType_getid(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCIELabType_has_id(void* self, const char* identity);
void VYR_FLAT_CALL CSharp_ColorSpaceCIELabType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_ColorSpaceCIELabType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCIELabType_is_occurs_ok(void* self);
char16_t* VYR_FLAT_CALL CSharp_ColorSpaceCIELabType_get_Name(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCIELabType_set_Name(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCIELabType_isset_Name(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceCIELabType_unset_Name(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceCIELabType_get_ColorSpaceSpecificationSpectrumTristimulus__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceCIELabType_assign_ColorSpaceSpecificationSpectrumTristimulus(void* self, void* value);
double VYR_FLAT_CALL CSharp_ColorSpaceCIELabType_get_L(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCIELabType_set_L(void* self, double value);
double VYR_FLAT_CALL CSharp_ColorSpaceCIELabType_get_A(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCIELabType_set_A(void* self, double value);
double VYR_FLAT_CALL CSharp_ColorSpaceCIELabType_get_B(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCIELabType_set_B(void* self, double value);

/* ColorSpaceCIELChType */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceCIELChType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceCIELChType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceCIELChType(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceCIELChTypeUpcast(void* self);
const char* VYR_FLAT_CALL CSharp_ColorSpaceCIELChType_id_get(void);
void VYR_FLAT_CALL CSharp_ColorSpaceCIELChType_id_set(const char* identity);
void* VYR_FLAT_CALL CSharp_ColorSpaceCIELChType_clone(void* self);
char* VYR_FLAT_CALL CSharp_ColorSpaceCIELChType_getid(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCIELChType_has_id(void* self, const char* identity);
void VYR_FLAT_CALL CSharp_ColorSpaceCIELChType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_ColorSpaceCIELChType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCIELChType_is_occurs_ok(void* self);
char16_t* VYR_FLAT_CALL CSharp_ColorSpaceCIELChType_get_Name(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCIELChType_set_Name(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCIELChType_isset_Name(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceCIELChType_unset_Name(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceCIELChType_get_ColorSpaceSpecificationSpectrumTristimulus__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceCIELChType_assign_ColorSpaceSpecificationSpectrumTristimulus(void* self, void* value);
double VYR_FLAT_CALL CSharp_ColorSpaceCIELChType_get_L(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCIELChType_set_L(void* self, double value);
double VYR_FLAT_CALL CSharp_ColorSpaceCIELChType_get_C(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCIELChType_set_C(void* self, double value);
double VYR_FLAT_CALL CSharp_ColorSpaceCIELChType_get_H(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCIELChType_set_H(void* self, double value);

/* ColorSpaceCIELuvType */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceCIELuvType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceCIELuvType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceCIELuvType(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceCIELuvTypeUpcast(void* self);
const char* VYR_FLAT_CALL CSharp_ColorSpaceCIELuvType_id_get(void);
void VYR_FLAT_CALL CSharp_ColorSpaceCIELuvType_id_set(const char* identity);
void* VYR_FLAT_CALL CSharp_ColorSpaceCIELuvType_clone(void* self);
char* VYR_FLAT_CALL CSharp_ColorSpaceCIELuvType_getid(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCIELuvType_has_id(void* self, const char* identity);
void VYR_FLAT_CALL CSharp_ColorSpaceCIELuvType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_ColorSpaceCIELuvType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCIELuvType_is_occurs_ok(void* self);
char16_t* VYR_FLAT_CALL CSharp_ColorSpaceCIELuvType_get_Name(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCIELuvType_set_Name(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCIELuvType_isset_Name(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceCIELuvType_unset_Name(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceCIELuvType_get_ColorSpaceSpecificationSpectrumTristimulus__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceCIELuvType_assign_ColorSpaceSpecificationSpectrumTristimulus(void* self, void* value);
double VYR_FLAT_CALL CSharp_ColorSpaceCIELuvType_get_L(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCIELuvType_set_L(void* self, double value);
double VYR_FLAT_CALL CSharp_ColorSpaceCIELuvType_get_U(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCIELuvType_set_U(void* self, double value);
double VYR_FLAT_CALL CSharp_ColorSpaceCIELuvType_get_V(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCIELuvType_set_V(void* self, double value);

/* ColorSpaceCIEXYZType */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceCIEXYZType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceCIEXYZType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceCIEXYZType(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceCIEXYZTypeUpcast(void* self);
const char* VYR_FLAT_CALL CSharp_ColorSpaceCIEXYZType_id_get(void);
void VYR_FLAT_CALL CSharp_ColorSpaceCIEXYZType_id_set(const char* identity);
void* VYR_FLAT_CALL CSharp_ColorSpaceCIEXYZType_clone(void* self);
char* VYR_FLAT_CALL CSharp_ColorSpaceCIEXYZType_getid(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCIEXYZType_has_id(void* self, const char* identity);
void VYR_FLAT_CALL CSharp_ColorSpaceCIEXYZType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_ColorSpaceCIEXYZType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCIEXYZType_is_occurs_ok(void* self);
char16_t* VYR_FLAT_CALL CSharp_ColorSpaceCIEXYZType_get_Name(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCIEXYZType_set_Name(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCIEXYZType_isset_Name(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceCIEXYZType_unset_Name(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceCIEXYZType_get_ColorSpaceSpecificationSpectrumTristimulus__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceCIEXYZType_assign_ColorSpaceSpecificationSpectrumTristimulus(void* self, void* value);
double VYR_FLAT_CALL CSharp_ColorSpaceCIEXYZType_get_X(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCIEXYZType_set_X(void* self, double value);
double VYR_FLAT_CALL CSharp_ColorSpaceCIEXYZType_get_Y(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCIEXYZType_set_Y(void* self, double value);
double VYR_FLAT_CALL CSharp_ColorSpaceCIEXYZType_get_Z(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCIEXYZType_set_Z(void* self, double value);

/* ColorSpaceCIExyYType */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceCIExyYType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceCIExyYType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceCIExyYType(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceCIExyYTypeUpcast(void* self);
const char* VYR_FLAT_CALL CSharp_ColorSpaceCIExyYType_id_get(void);
void VYR_FLAT_CALL CSharp_ColorSpaceCIExyYType_id_set(const char* identity);
void* VYR_FLAT_CALL CSharp_ColorSpaceCIExyYType_clone(void* self);
char* VYR_FLAT_CALL CSharp_ColorSpaceCIExyYType_getid(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCIExyYType_has_id(void* self, const char* identity);
void VYR_FLAT_CALL CSharp_ColorSpaceCIExyYType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_ColorSpaceCIExyYType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCIExyYType_is_occurs_ok(void* self);
char16_t* VYR_FLAT_CALL CSharp_ColorSpaceCIExyYType_get_Name(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCIExyYType_set_Name(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCIExyYType_isset_Name(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceCIExyYType_unset_Name(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceCIExyYType_get_ColorSpaceSpecificationSpectrumTristimulus__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceCIExyYType_assign_ColorSpaceSpecificationSpectrumTristimulus(void* self, void* value);
double VYR_FLAT_CALL CSharp_ColorSpaceCIExyYType_get_X(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCIExyYType_set_X(void* self, double value);
double VYR_FLAT_CALL CSharp_ColorSpaceCIExyYType_get_Y(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCIExyYType_set_Y(void* self, double value);
double VYR_FLAT_CALL CSharp_ColorSpaceCIExyYType_get_CapY(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCIExyYType_set_CapY(void* self, double value);

/* ColorSpaceEmissiveCIEXYZType */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceEmissiveCIEXYZType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceEmissiveCIEXYZType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceEmissiveCIEXYZType(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceEmissiveCIEXYZTypeUpcast(void* self);
const char* VYR_FLAT_CALL CSharp_ColorSpaceEmissiveCIEXYZType_id_get(void);
void VYR_FLAT_CALL CSharp_ColorSpaceEmissiveCIEXYZType_id_set(const char* identity);
void* VYR_FLAT_CALL CSharp_ColorSpaceEmissiveCIEXYZType_clone(void* self);
char* VYR_FLAT_CALL CSharp_ColorSpaceEmissiveCIEXYZType_getid(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceEmissiveCIEXYZType_has_id(void* self, const char* identity);
void VYR_FLAT_CALL CSharp_ColorSpaceEmissiveCIEXYZType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_ColorSpaceEmissiveCIEXYZType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceEmissiveCIEXYZType_is_occurs_ok(void* self);
char16_t* VYR_FLAT_CALL CSharp_ColorSpaceEmissiveCIEXYZType_get_Name(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceEmissiveCIEXYZType_set_Name(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceEmissiveCIEXYZType_isset_Name(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceEmissiveCIEXYZType_unset_Name(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceEmissiveCIEXYZType_get_ColorSpaceSpecificationEmissiveTristimulus__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceEmissiveCIEXYZType_assign_ColorSpaceSpecificationEmissiveTristimulus(void* self, void* value);
double VYR_FLAT_CALL CSharp_ColorSpaceEmissiveCIEXYZType_get_X(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceEmissiveCIEXYZType_set_X(void* self, double value);
double VYR_FLAT_CALL CSharp_ColorSpaceEmissiveCIEXYZType_get_Y(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceEmissiveCIEXYZType_set_Y(void* self, double value);
double VYR_FLAT_CALL CSharp_ColorSpaceEmissiveCIEXYZType_get_Z(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceEmissiveCIEXYZType_set_Z(void* self, double value);

/* ColorSpaceEmissiveCIExyYType */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceEmissiveCIExyYType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceEmissiveCIExyYType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceEmissiveCIExyYType(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceEmissiveCIExyYTypeUpcast(void* self);
const char* VYR_FLAT_CALL CSharp_ColorSpaceEmissiveCIExyYType_id_get(void);
void VYR_FLAT_CALL CSharp_ColorSpaceEmissiveCIExyYType_id_set(const char* identity);
void* VYR_FLAT_CALL CSharp_ColorSpaceEmissiveCIExyYType_clone(void* self);
char* VYR_FLAT_CALL CSharp_ColorSpaceEmissiveCIExyYType_getid(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceEmissiveCIExyYType_has_id(void* self, const char* identity);
void VYR_FLAT_CALL CSharp_ColorSpaceEmissiveCIExyYType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_ColorSpaceEmissiveCIExyYType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceEmissiveCIExyYType_is_occurs_ok(void* self);
char16_t* VYR_FLAT_CALL CSharp_ColorSpaceEmissiveCIExyYType_get_Name(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceEmissiveCIExyYType_set_Name(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceEmissiveCIExyYType_isset_Name(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceEmissiveCIExyYType_unset_Name(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceEmissiveCIExyYType_get_ColorSpaceSpecificationEmissiveTristimulus__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceEmissiveCIExyYType_assign_ColorSpaceSpecificationEmissiveTristimulus(void* self, void* value);
double VYR_FLAT_CALL CSharp_ColorSpaceEmissiveCIExyYType_get_X(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceEmissiveCIExyYType_set_X(void* self, double value);
double VYR_FLAT_CALL CSharp_ColorSpaceEmissiveCIExyYType_get_Y(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceEmissiveCIExyYType_set_Y(void* self, double value);
double VYR_FLAT_CALL CSharp_ColorSpaceEmissiveCIExyYType_get_CapY(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceEmissiveCIExyYType_set_CapY(void* self, double value);

/* ColorSpaceCIELab */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceCIELab__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceCIELab__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceCIELab(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceCIELabUpcast(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceCIELab_ns_map(void);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCIELab_unmarshal__SWIG_0(void* self, const char* path);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCIELab_unmarshal__SWIG_1(void* self, const char* data, uint32_t size);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCIELab_marshal__SWIG_0(void* self, const char* path);

/* ColorSpaceCIELCh */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceCIELCh__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceCIELCh__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceCIELCh(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceCIELChUpcast(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceCIELCh_ns_map(void);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCIELCh_unmarshal__SWIG_0(void* self, const char* path);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCIELCh_unmarshal__SWIG_1(void* self, const char* data, uint32_t size);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCIELCh_marshal__SWIG_0(void* self, const char* path);

/* ColorSpaceCIEXYZ */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceCIEXYZ__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceCIEXYZ__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceCIEXYZ(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceCIEXYZUpcast(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceCIEXYZ_ns_map(void);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCIEXYZ_unmarshal__SWIG_0(void* self, const char* path);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCIEXYZ_unmarshal__SWIG_1(void* self, const char* data, uint32_t size);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCIEXYZ_marshal__SWIG_0(void* self, const char* path);

/* ColorSpaceEmissiveCIEXYZ */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceEmissiveCIEXYZ__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceEmissiveCIEXYZ__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceEmissiveCIEXYZ(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceEmissiveCIEXYZUpcast(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceEmissiveCIEXYZ_ns_map(void);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceEmissiveCIEXYZ_unmarshal__SWIG_0(void* self, const char* path);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceEmissiveCIEXYZ_unmarshal__SWIG_1(void* self, const char* data, uint32_t size);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceEmissiveCIEXYZ_marshal__SWIG_0(void* self, const char* path);

/* ColorSpaceCIExyY */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceCIExyY__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceCIExyY__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceCIExyY(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceCIExyYUpcast(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceCIExyY_ns_map(void);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCIExyY_unmarshal__SWIG_0(void* self, const char* path);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCIExyY_unmarshal__SWIG_1(void* self, const char* data, uint32_t size);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCIExyY_marshal__SWIG_0(void* self, const char* path);

/* ColorSpaceEmissiveCIExyY */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceEmissiveCIExyY__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceEmissiveCIExyY__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceEmissiveCIExyY(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceEmissiveCIExyYUpcast(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceEmissiveCIExyY_ns_map(void);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceEmissiveCIExyY_unmarshal__SWIG_0(void* self, const char* path);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceEmissiveCIExyY_unmarshal__SWIG_1(void* self, const char* data, uint32_t size);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceEmissiveCIExyY_marshal__SWIG_0(void* self, const char* path);

/* ColorSpaceCIELuv */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceCIELuv__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceCIELuv__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceCIELuv(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceCIELuvUpcast(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceCIELuv_ns_map(void);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCIELuv_unmarshal__SWIG_0(void* self, const char* path);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCIELuv_unmarshal__SWIG_1(void* self, const char* data, uint32_t size);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCIELuv_marshal__SWIG_0(void* self, const char* path);

/* ColorSpaceRGBType */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceRGBType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceRGBType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceRGBType(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceRGBTypeUpcast(void* self);
const char* VYR_FLAT_CALL CSharp_ColorSpaceRGBType_id_get(void);
void VYR_FLAT_CALL CSharp_ColorSpaceRGBType_id_set(const char* identity);
void* VYR_FLAT_CALL CSharp_ColorSpaceRGBType_clone(void* self);
char* VYR_FLAT_CALL CSharp_ColorSpaceRGBType_getid(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceRGBType_has_id(void* self, const char* identity);
void VYR_FLAT_CALL CSharp_ColorSpaceRGBType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_ColorSpaceRGBType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceRGBType_is_occurs_ok(void* self);
char16_t* VYR_FLAT_CALL CSharp_ColorSpaceRGBType_get_Name(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceRGBType_set_Name(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceRGBType_isset_Name(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceRGBType_unset_Name(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceRGBType_get_ColorSpaceSpecificationSpectrumTristimulus__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceRGBType_assign_ColorSpaceSpecificationSpectrumTristimulus(void* self, void* value);
double VYR_FLAT_CALL CSharp_ColorSpaceRGBType_get_Red(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceRGBType_set_Red(void* self, double value);
double VYR_FLAT_CALL CSharp_ColorSpaceRGBType_get_Green(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceRGBType_set_Green(void* self, double value);
double VYR_FLAT_CALL CSharp_ColorSpaceRGBType_get_Blue(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceRGBType_set_Blue(void* self, double value);
double VYR_FLAT_CALL CSharp_ColorSpaceRGBType_get_Alpha(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceRGBType_set_Alpha(void* self, double value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceRGBType_isset_Alpha(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceRGBType_unset_Alpha(void* self);
char16_t* VYR_FLAT_CALL CSharp_ColorSpaceRGBType_get_ColorDepth(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceRGBType_set_ColorDepth(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceRGBType_getenum_ColorDepth(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceRGBType_setenum_ColorDepth(void* self, int32_t number);

/* ColorSpaceSRGBType */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceSRGBType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceSRGBType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceSRGBType(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceSRGBTypeUpcast(void* self);
const char* VYR_FLAT_CALL CSharp_ColorSpaceSRGBType_id_get(void);
void VYR_FLAT_CALL CSharp_ColorSpaceSRGBType_id_set(const char* identity);
void* VYR_FLAT_CALL CSharp_ColorSpaceSRGBType_clone(void* self);
char* VYR_FLAT_CALL CSharp_ColorSpaceSRGBType_getid(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSRGBType_has_id(void* self, const char* identity);
void VYR_FLAT_CALL CSharp_ColorSpaceSRGBType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_ColorSpaceSRGBType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSRGBType_is_occurs_ok(void* self);
char16_t* VYR_FLAT_CALL CSharp_ColorSpaceSRGBType_get_Name(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSRGBType_set_Name(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSRGBType_isset_Name(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceSRGBType_unset_Name(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceSRGBType_get_ColorSpaceSpecificationSpectrumTristimulus__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceSRGBType_assign_ColorSpaceSpecificationSpectrumTristimulus(void* self, void* value);
double VYR_FLAT_CALL CSharp_ColorSpaceSRGBType_get_Red(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSRGBType_set_Red(void* self, double value);
double VYR_FLAT_CALL CSharp_ColorSpaceSRGBType_get_Green(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSRGBType_set_Green(void* self, double value);
double VYR_FLAT_CALL CSharp_ColorSpaceSRGBType_get_Blue(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSRGBType_set_Blue(void* self, double value);
double VYR_FLAT_CALL CSharp_ColorSpaceSRGBType_get_Alpha(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSRGBType_set_Alpha(void* self, double value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSRGBType_isset_Alpha(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceSRGBType_unset_Alpha(void* self);
char16_t* VYR_FLAT_CALL CSharp_ColorSpaceSRGBType_get_ColorDepth(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSRGBType_set_ColorDepth(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSRGBType_getenum_ColorDepth(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSRGBType_setenum_ColorDepth(void* self, int32_t number);

/* ColorSpaceAdobeRGBType */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceAdobeRGBType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceAdobeRGBType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceAdobeRGBType(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceAdobeRGBTypeUpcast(void* self);
const char* VYR_FLAT_CALL CSharp_ColorSpaceAdobeRGBType_id_get(void);
void VYR_FLAT_CALL CSharp_ColorSpaceAdobeRGBType_id_set(const char* identity);
void* VYR_FLAT_CALL CSharp_ColorSpaceAdobeRGBType_clone(void* self);
char* VYR_FLAT_CALL CSharp_ColorSpaceAdobeRGBType_getid(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceAdobeRGBType_has_id(void* self, const char* identity);
void VYR_FLAT_CALL CSharp_ColorSpaceAdobeRGBType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_ColorSpaceAdobeRGBType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceAdobeRGBType_is_occurs_ok(void* self);
char16_t* VYR_FLAT_CALL CSharp_ColorSpaceAdobeRGBType_get_Name(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceAdobeRGBType_set_Name(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceAdobeRGBType_isset_Name(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceAdobeRGBType_unset_Name(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceAdobeRGBType_get_ColorSpaceSpecificationSpectrumTristimulus__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceAdobeRGBType_assign_ColorSpaceSpecificationSpectrumTristimulus(void* self, void* value);
double VYR_FLAT_CALL CSharp_ColorSpaceAdobeRGBType_get_Red(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceAdobeRGBType_set_Red(void* self, double value);
double VYR_FLAT_CALL CSharp_ColorSpaceAdobeRGBType_get_Green(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceAdobeRGBType_set_Green(void* self, double value);
double VYR_FLAT_CALL CSharp_ColorSpaceAdobeRGBType_get_Blue(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceAdobeRGBType_set_Blue(void* self, double value);
double VYR_FLAT_CALL CSharp_ColorSpaceAdobeRGBType_get_Alpha(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceAdobeRGBType_set_Alpha(void* self, double value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceAdobeRGBType_isset_Alpha(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceAdobeRGBType_unset_Alpha(void* self);
char16_t* VYR_FLAT_CALL CSharp_ColorSpaceAdobeRGBType_get_ColorDepth(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceAdobeRGBType_set_ColorDepth(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceAdobeRGBType_getenum_ColorDepth(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceAdobeRGBType_setenum_ColorDepth(void* self, int32_t number);

/* ColorSpaceAdobeWideGamutRGBType */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceAdobeWideGamutRGBType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceAdobeWideGamutRGBType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceAdobeWideGamutRGBType(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceAdobeWideGamutRGBTypeUpcast(void* self);
const char* VYR_FLAT_CALL CSharp_ColorSpaceAdobeWideGamutRGBType_id_get(void);
void VYR_FLAT_CALL CSharp_ColorSpaceAdobeWideGamutRGBType_id_set(const char* identity);
void* VYR_FLAT_CALL CSharp_ColorSpaceAdobeWideGamutRGBType_clone(void* self);
char* VYR_FLAT_CALL CSharp_ColorSpaceAdobeWideGamutRGBType_getid(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceAdobeWideGamutRGBType_has_id(void* self, const char* identity);
void VYR_FLAT_CALL CSharp_ColorSpaceAdobeWideGamutRGBType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_ColorSpaceAdobeWideGamutRGBType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceAdobeWideGamutRGBType_is_occurs_ok(void* self);
char16_t* VYR_FLAT_CALL CSharp_ColorSpaceAdobeWideGamutRGBType_get_Name(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceAdobeWideGamutRGBType_set_Name(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceAdobeWideGamutRGBType_isset_Name(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceAdobeWideGamutRGBType_unset_Name(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceAdobeWideGamutRGBType_get_ColorSpaceSpecificationSpectrumTristimulus__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceAdobeWideGamutRGBType_assign_ColorSpaceSpecificationSpectrumTristimulus(void* self, void* value);
double VYR_FLAT_CALL CSharp_ColorSpaceAdobeWideGamutRGBType_get_Red(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceAdobeWideGamutRGBType_set_Red(void* self, double value);
double VYR_FLAT_CALL CSharp_ColorSpaceAdobeWideGamutRGBType_get_Green(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceAdobeWideGamutRGBType_set_Green(void* self, double value);
double VYR_FLAT_CALL CSharp_ColorSpaceAdobeWideGamutRGBType_get_Blue(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceAdobeWideGamutRGBType_set_Blue(void* self, double value);
double VYR_FLAT_CALL CSharp_ColorSpaceAdobeWideGamutRGBType_get_Alpha(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceAdobeWideGamutRGBType_set_Alpha(void* self, double value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceAdobeWideGamutRGBType_isset_Alpha(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceAdobeWideGamutRGBType_unset_Alpha(void* self);
char16_t* VYR_FLAT_CALL CSharp_ColorSpaceAdobeWideGamutRGBType_get_ColorDepth(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceAdobeWideGamutRGBType_set_ColorDepth(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceAdobeWideGamutRGBType_getenum_ColorDepth(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceAdobeWideGamutRGBType_setenum_ColorDepth(void* self, int32_t number);

/* ColorSpaceCMYKType */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceCMYKType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceCMYKType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceCMYKType(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceCMYKTypeUpcast(void* self);
const char* VYR_FLAT_CALL CSharp_ColorSpaceCMYKType_id_get(void);
void VYR_FLAT_CALL CSharp_ColorSpaceCMYKType_id_set(const char* identity);
void* VYR_FLAT_CALL CSharp_ColorSpaceCMYKType_factory(int32_t ns_id, const char* name);
void* VYR_FLAT_CALL CSharp_ColorSpaceCMYKType_clone(void* self);
char* VYR_FLAT_CALL CSharp_ColorSpaceCMYKType_getid(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCMYKType_has_id(void* self, const char* identity);
void VYR_FLAT_CALL CSharp_ColorSpaceCMYKType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_ColorSpaceCMYKType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCMYKType_is_occurs_ok(void* self);
char16_t* VYR_FLAT_CALL CSharp_ColorSpaceCMYKType_get_Name(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCMYKType_set_Name(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCMYKType_isset_Name(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceCMYKType_unset_Name(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceCMYKType_get_ColorSpaceSpecificationSpectrumGeneric__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceCMYKType_assign_ColorSpaceSpecificationSpectrumGeneric(void* self, void* value);
double VYR_FLAT_CALL CSharp_ColorSpaceCMYKType_get_Cyan(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCMYKType_set_Cyan(void* self, double value);
double VYR_FLAT_CALL CSharp_ColorSpaceCMYKType_get_Magenta(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCMYKType_set_Magenta(void* self, double value);
double VYR_FLAT_CALL CSharp_ColorSpaceCMYKType_get_Yellow(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCMYKType_set_Yellow(void* self, double value);
double VYR_FLAT_CALL CSharp_ColorSpaceCMYKType_get_Black(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCMYKType_set_Black(void* self, double value);
uint32_t VYR_FLAT_CALL CSharp_ColorSpaceCMYKType_size_SpotColor(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceCMYKType_get_SpotColor__SWIG_0(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_ColorSpaceCMYKType_assign_SpotColor(void* self, uint32_t index, void* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCMYKType_append_SpotColor(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCMYKType_insert_SpotColor(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_ColorSpaceCMYKType_back_SpotColor(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceCMYKType_delete_SpotColor(void* self, uint32_t index);
void VYR_FLAT_CALL CSharp_ColorSpaceCMYKType_clear_SpotColor(void* self);

/* ColorSpaceCMYKPlusNType */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceCMYKPlusNType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceCMYKPlusNType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceCMYKPlusNType(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceCMYKPlusNTypeUpcast(void* self);
const char* VYR_FLAT_CALL CSharp_ColorSpaceCMYKPlusNType_id_get(void);
void VYR_FLAT_CALL CSharp_ColorSpaceCMYKPlusNType_id_set(const char* identity);
void* VYR_FLAT_CALL CSharp_ColorSpaceCMYKPlusNType_clone(void* self);
char* VYR_FLAT_CALL CSharp_ColorSpaceCMYKPlusNType_getid(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCMYKPlusNType_has_id(void* self, const char* identity);
void VYR_FLAT_CALL CSharp_ColorSpaceCMYKPlusNType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_ColorSpaceCMYKPlusNType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCMYKPlusNType_is_occurs_ok(void* self);
char16_t* VYR_FLAT_CALL CSharp_ColorSpaceCMYKPlusNType_get_ColorSpaceName(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCMYKPlusNType_set_ColorSpaceName(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCMYKPlusNType_isset_ColorSpaceName(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceCMYKPlusNType_unset_ColorSpaceName(void* self);
uint32_t VYR_FLAT_CALL CSharp_ColorSpaceCMYKPlusNType_size_Color(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceCMYKPlusNType_get_Color__SWIG_0(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_ColorSpaceCMYKPlusNType_assign_Color(void* self, uint32_t index, void* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCMYKPlusNType_append_Color(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCMYKPlusNType_insert_Color(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_ColorSpaceCMYKPlusNType_back_Color(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceCMYKPlusNType_delete_Color(void* self, uint32_t index);
void VYR_FLAT_CALL CSharp_ColorSpaceCMYKPlusNType_clear_Color(void* self);

/* Color */
void* VYR_FLAT_CALL CSharp_new_Color__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_Color__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_Color(void* self);
void VYR_FLAT_CALL CSharp_Color_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_Color_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_Color_is_occurs_ok(void* self);
char16_t* VYR_FLAT_CALL CSharp_Color_get_Name(void* self);
int32_t VYR_FLAT_CALL CSharp_Color_set_Name(void* self, const char16_t* value);
double VYR_FLAT_CALL CSharp_Color_get_Value(void* self);
int32_t VYR_FLAT_CALL CSharp_Color_set_Value(void* self, double value);

/* ColorSpaceTINTORAOctavanticType */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceTINTORAOctavanticType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceTINTORAOctavanticType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceTINTORAOctavanticType(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceTINTORAOctavanticTypeUpcast(void* self);
const char* VYR_FLAT_CALL CSharp_ColorSpaceTINTORAOctavanticType_id_get(void);
void VYR_FLAT_CALL CSharp_ColorSpaceTINTORAOctavanticType_id_set(const char* identity);
void* VYR_FLAT_CALL CSharp_ColorSpaceTINTORAOctavanticType_clone(void* self);
char* VYR_FLAT_CALL CSharp_ColorSpaceTINTORAOctavanticType_getid(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceTINTORAOctavanticType_has_id(void* self, const char* identity);
void VYR_FLAT_CALL CSharp_ColorSpaceTINTORAOctavanticType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_ColorSpaceTINTORAOctavanticType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceTINTORAOctavanticType_is_occurs_ok(void* self);
char16_t* VYR_FLAT_CALL CSharp_ColorSpaceTINTORAOctavanticType_get_Name(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceTINTORAOctavanticType_set_Name(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceTINTORAOctavanticType_isset_Name(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceTINTORAOctavanticType_unset_Name(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceTINTORAOctavanticType_get_ColorSpaceSpecificationSpectrumGeneric__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceTINTORAOctavanticType_assign_ColorSpaceSpecificationSpectrumGeneric(void* self, void* value);
double VYR_FLAT_CALL CSharp_ColorSpaceTINTORAOctavanticType_get_Cyan(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceTINTORAOctavanticType_set_Cyan(void* self, double value);
double VYR_FLAT_CALL CSharp_ColorSpaceTINTORAOctavanticType_get_Magenta(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceTINTORAOctavanticType_set_Magenta(void* self, double value);
double VYR_FLAT_CALL CSharp_ColorSpaceTINTORAOctavanticType_get_Yellow(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceTINTORAOctavanticType_set_Yellow(void* self, double value);
double VYR_FLAT_CALL CSharp_ColorSpaceTINTORAOctavanticType_get_Black(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceTINTORAOctavanticType_set_Black(void* self, double value);
double VYR_FLAT_CALL CSharp_ColorSpaceTINTORAOctavanticType_get_Orange(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceTINTORAOctavanticType_set_Orange(void* self, double value);
double VYR_FLAT_CALL CSharp_ColorSpaceTINTORAOctavanticType_get_Green(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceTINTORAOctavanticType_set_Green(void* self, double value);
uint32_t VYR_FLAT_CALL CSharp_ColorSpaceTINTORAOctavanticType_size_SpotColor(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceTINTORAOctavanticType_get_SpotColor__SWIG_0(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_ColorSpaceTINTORAOctavanticType_assign_SpotColor(void* self, uint32_t index, void* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceTINTORAOctavanticType_append_SpotColor(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceTINTORAOctavanticType_insert_SpotColor(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_ColorSpaceTINTORAOctavanticType_back_SpotColor(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceTINTORAOctavanticType_delete_SpotColor(void* self, uint32_t index);
void VYR_FLAT_CALL CSharp_ColorSpaceTINTORAOctavanticType_clear_SpotColor(void* self);

/* ColorSpaceHSLType */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceHSLType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceHSLType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceHSLType(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceHSLTypeUpcast(void* self);
const char* VYR_FLAT_CALL CSharp_ColorSpaceHSLType_id_get(void);
void VYR_FLAT_CALL CSharp_ColorSpaceHSLType_id_set(const char* identity);
void* VYR_FLAT_CALL CSharp_ColorSpaceHSLType_clone(void* self);
char* VYR_FLAT_CALL CSharp_ColorSpaceHSLType_getid(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceHSLType_has_id(void* self, const char* identity);
void VYR_FLAT_CALL CSharp_ColorSpaceHSLType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_ColorSpaceHSLType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceHSLType_is_occurs_ok(void* self);
char16_t* VYR_FLAT_CALL CSharp_ColorSpaceHSLType_get_Name(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceHSLType_set_Name(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceHSLType_isset_Name(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceHSLType_unset_Name(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceHSLType_get_ColorSpaceSpecificationSpectrumGeneric__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceHSLType_assign_ColorSpaceSpecificationSpectrumGeneric(void* self, void* value);
double VYR_FLAT_CALL CSharp_ColorSpaceHSLType_get_Hue(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceHSLType_set_Hue(void* self, double value);
double VYR_FLAT_CALL CSharp_ColorSpaceHSLType_get_Saturation(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceHSLType_set_Saturation(void* self, double value);
double VYR_FLAT_CALL CSharp_ColorSpaceHSLType_get_Lightness(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceHSLType_set_Lightness(void* self, double value);

/* ColorSpaceHSVType */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceHSVType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceHSVType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceHSVType(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceHSVTypeUpcast(void* self);
const char* VYR_FLAT_CALL CSharp_ColorSpaceHSVType_id_get(void);
void VYR_FLAT_CALL CSharp_ColorSpaceHSVType_id_set(const char* identity);
void* VYR_FLAT_CALL CSharp_ColorSpaceHSVType_clone(void* self);
char* VYR_FLAT_CALL CSharp_ColorSpaceHSVType_getid(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceHSVType_has_id(void* self, const char* identity);
void VYR_FLAT_CALL CSharp_ColorSpaceHSVType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_ColorSpaceHSVType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceHSVType_is_occurs_ok(void* self);
char16_t* VYR_FLAT_CALL CSharp_ColorSpaceHSVType_get_Name(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceHSVType_set_Name(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceHSVType_isset_Name(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceHSVType_unset_Name(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceHSVType_get_ColorSpaceSpecificationSpectrumGeneric__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceHSVType_assign_ColorSpaceSpecificationSpectrumGeneric(void* self, void* value);
double VYR_FLAT_CALL CSharp_ColorSpaceHSVType_get_Hue(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceHSVType_set_Hue(void* self, double value);
double VYR_FLAT_CALL CSharp_ColorSpaceHSVType_get_Saturation(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceHSVType_set_Saturation(void* self, double value);
double VYR_FLAT_CALL CSharp_ColorSpaceHSVType_get_Value(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceHSVType_set_Value(void* self, double value);

/* ColorSpaceYUVType */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceYUVType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceYUVType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceYUVType(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceYUVTypeUpcast(void* self);
const char* VYR_FLAT_CALL CSharp_ColorSpaceYUVType_id_get(void);
void VYR_FLAT_CALL CSharp_ColorSpaceYUVType_id_set(const char* identity);
void* VYR_FLAT_CALL CSharp_ColorSpaceYUVType_clone(void* self);
char* VYR_FLAT_CALL CSharp_ColorSpaceYUVType_getid(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceYUVType_has_id(void* self, const char* identity);
void VYR_FLAT_CALL CSharp_ColorSpaceYUVType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_ColorSpaceYUVType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceYUVType_is_occurs_ok(void* self);
char16_t* VYR_FLAT_CALL CSharp_ColorSpaceYUVType_get_Name(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceYUVType_set_Name(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceYUVType_isset_Name(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceYUVType_unset_Name(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceYUVType_get_ColorSpaceSpecificationSpectrumGeneric__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceYUVType_assign_ColorSpaceSpecificationSpectrumGeneric(void* self, void* value);
double VYR_FLAT_CALL CSharp_ColorSpaceYUVType_get_Y(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceYUVType_set_Y(void* self, double value);
double VYR_FLAT_CALL CSharp_ColorSpaceYUVType_get_U(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceYUVType_set_U(void* self, double value);
double VYR_FLAT_CALL CSharp_ColorSpaceYUVType_get_V(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceYUVType_set_V(void* self, double value);

/* ColorSpaceYIQType */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceYIQType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceYIQType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceYIQType(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceYIQTypeUpcast(void* self);
const char* VYR_FLAT_CALL CSharp_ColorSpaceYIQType_id_get(void);
void VYR_FLAT_CALL CSharp_ColorSpaceYIQType_id_set(const char* identity);
void* VYR_FLAT_CALL CSharp_ColorSpaceYIQType_clone(void* self);
char* VYR_FLAT_CALL CSharp_ColorSpaceYIQType_getid(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceYIQType_has_id(void* self, const char* identity);
void VYR_FLAT_CALL CSharp_ColorSpaceYIQType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_ColorSpaceYIQType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceYIQType_is_occurs_ok(void* self);
char16_t* VYR_FLAT_CALL CSharp_ColorSpaceYIQType_get_Name(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceYIQType_set_Name(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceYIQType_isset_Name(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceYIQType_unset_Name(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceYIQType_get_ColorSpaceSpecificationSpectrumGeneric__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceYIQType_assign_ColorSpaceSpecificationSpectrumGeneric(void* self, void* value);
double VYR_FLAT_CALL CSharp_ColorSpaceYIQType_get_Y(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceYIQType_set_Y(void* self, double value);
double VYR_FLAT_CALL CSharp_ColorSpaceYIQType_get_I(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceYIQType_set_I(void* self, double value);
double VYR_FLAT_CALL CSharp_ColorSpaceYIQType_get_Q(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceYIQType_set_Q(void* self, double value);

/* ColorSpaceYBRType */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceYBRType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceYBRType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceYBRType(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceYBRTypeUpcast(void* self);
const char* VYR_FLAT_CALL CSharp_ColorSpaceYBRType_id_get(void);
void VYR_FLAT_CALL CSharp_ColorSpaceYBRType_id_set(const char* identity);
void* VYR_FLAT_CALL CSharp_ColorSpaceYBRType_clone(void* self);
char* VYR_FLAT_CALL CSharp_ColorSpaceYBRType_getid(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceYBRType_has_id(void* self, const char* identity);
void VYR_FLAT_CALL CSharp_ColorSpaceYBRType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_ColorSpaceYBRType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceYBRType_is_occurs_ok(void* self);
char16_t* VYR_FLAT_CALL CSharp_ColorSpaceYBRType_get_Name(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceYBRType_set_Name(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceYBRType_isset_Name(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceYBRType_unset_Name(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceYBRType_get_ColorSpaceSpecificationSpectrumGeneric__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceYBRType_assign_ColorSpaceSpecificationSpectrumGeneric(void* self, void* value);
double VYR_FLAT_CALL CSharp_ColorSpaceYBRType_get_Y(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceYBRType_set_Y(void* self, double value);
double VYR_FLAT_CALL CSharp_ColorSpaceYBRType_get_B(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceYBRType_set_B(void* self, double value);
double VYR_FLAT_CALL CSharp_ColorSpaceYBRType_get_R(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceYBRType_set_R(void* self, double value);

/* ColorSpaceRGB */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceRGB__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceRGB__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceRGB(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceRGBUpcast(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceRGB_ns_map(void);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceRGB_unmarshal__SWIG_0(void* self, const char* path);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceRGB_unmarshal__SWIG_1(void* self, const char* data, uint32_t size);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceRGB_marshal__SWIG_0(void* self, const char* path);

/* ColorSpaceSRGB */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceSRGB__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceSRGB__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceSRGB(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceSRGBUpcast(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceSRGB_ns_map(void);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSRGB_unmarshal__SWIG_0(void* self, const char* path);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSRGB_unmarshal__SWIG_1(void* self, const char* data, uint32_t size);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSRGB_marshal__SWIG_0(void* self, const char* path);

/* ColorSpaceAdobeRGB */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceAdobeRGB__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceAdobeRGB__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceAdobeRGB(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceAdobeRGBUpcast(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceAdobeRGB_ns_map(void);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceAdobeRGB_unmarshal__SWIG_0(void* self, const char* path);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceAdobeRGB_unmarshal__SWIG_1(void* self, const char* data, uint32_t size);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceAdobeRGB_marshal__SWIG_0(void* self, const char* path);

/* ColorSpaceCMYKPlusN */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceCMYKPlusN__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceCMYKPlusN__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceCMYKPlusN(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceCMYKPlusNUpcast(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceCMYKPlusN_ns_map(void);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCMYKPlusN_unmarshal__SWIG_0(void* self, const char* path);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCMYKPlusN_unmarshal__SWIG_1(void* self, const char* data, uint32_t size);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCMYKPlusN_marshal__SWIG_0(void* self, const char* path);

/* ColorSpaceAdobeWideGamutRGB */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceAdobeWideGamutRGB__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceAdobeWideGamutRGB__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceAdobeWideGamutRGB(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceAdobeWideGamutRGBUpcast(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceAdobeWideGamutRGB_ns_map(void);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceAdobeWideGamutRGB_unmarshal__SWIG_0(void* self, const char* path);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceAdobeWideGamutRGB_unmarshal__SWIG_1(void* self, const char* data, uint32_t size);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceAdobeWideGamutRGB_marshal__SWIG_0(void* self, const char* path);

/* ColorSpaceHSL */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceHSL__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceHSL__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceHSL(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceHSLUpcast(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceHSL_ns_map(void);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceHSL_unmarshal__SWIG_0(void* self, const char* path);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceHSL_unmarshal__SWIG_1(void* self, const char* data, uint32_t size);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceHSL_marshal__SWIG_0(void* self, const char* path);

/* ColorSpaceHSV */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceHSV__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceHSV__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceHSV(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceHSVUpcast(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceHSV_ns_map(void);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceHSV_unmarshal__SWIG_0(void* self, const char* path);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceHSV_unmarshal__SWIG_1(void* self, const char* data, uint32_t size);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceHSV_marshal__SWIG_0(void* self, const char* path);

/* ColorSpaceCMYK */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceCMYK__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceCMYK__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceCMYK(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceCMYKUpcast(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceCMYK_ns_map(void);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCMYK_unmarshal__SWIG_0(void* self, const char* path);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCMYK_unmarshal__SWIG_1(void* self, const char* data, uint32_t size);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceCMYK_marshal__SWIG_0(void* self, const char* path);

/* ColorSpaceTINTORAOctavantic */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceTINTORAOctavantic__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceTINTORAOctavantic__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceTINTORAOctavantic(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceTINTORAOctavanticUpcast(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceTINTORAOctavantic_ns_map(void);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceTINTORAOctavantic_unmarshal__SWIG_0(void* self, const char* path);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceTINTORAOctavantic_unmarshal__SWIG_1(void* self, const char* data, uint32_t size);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceTINTORAOctavantic_marshal__SWIG_0(void* self, const char* path);

/* ColorSpaceYUV */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceYUV__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceYUV__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceYUV(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceYUVUpcast(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceYUV_ns_map(void);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceYUV_unmarshal__SWIG_0(void* self, const char* path);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceYUV_unmarshal__SWIG_1(void* self, const char* data, uint32_t size);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceYUV_marshal__SWIG_0(void* self, const char* path);

/* ColorSpaceYIQ */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceYIQ__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceYIQ__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceYIQ(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceYIQUpcast(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceYIQ_ns_map(void);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceYIQ_unmarshal__SWIG_0(void* self, const char* path);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceYIQ_unmarshal__SWIG_1(void* self, const char* data, uint32_t size);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceYIQ_marshal__SWIG_0(void* self, const char* path);

/* ColorSpaceYBR */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceYBR__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceYBR__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceYBR(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceYBRUpcast(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceYBR_ns_map(void);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceYBR_unmarshal__SWIG_0(void* self, const char* path);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceYBR_unmarshal__SWIG_1(void* self, const char* data, uint32_t size);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceYBR_marshal__SWIG_0(void* self, const char* path);

/* SpotColorType */
void* VYR_FLAT_CALL CSharp_new_SpotColorType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_SpotColorType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_SpotColorType(void* self);
void VYR_FLAT_CALL CSharp_SpotColorType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_SpotColorType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_SpotColorType_is_occurs_ok(void* self);
char16_t* VYR_FLAT_CALL CSharp_SpotColorType_get_Name(void* self);
int32_t VYR_FLAT_CALL CSharp_SpotColorType_set_Name(void* self, const char16_t* value);
double VYR_FLAT_CALL CSharp_SpotColorType_get_Percentage(void* self);
int32_t VYR_FLAT_CALL CSharp_SpotColorType_set_Percentage(void* self, double value);

/* ColorSpaceDensityType */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceDensityType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceDensityType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceDensityType(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceDensityTypeUpcast(void* self);
const char* VYR_FLAT_CALL CSharp_ColorSpaceDensityType_id_get(void);
void VYR_FLAT_CALL CSharp_ColorSpaceDensityType_id_set(const char* identity);
void* VYR_FLAT_CALL CSharp_ColorSpaceDensityType_clone(void* self);
char* VYR_FLAT_CALL CSharp_ColorSpaceDensityType_getid(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceDensityType_has_id(void* self, const char* identity);
void VYR_FLAT_CALL CSharp_ColorSpaceDensityType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_ColorSpaceDensityType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceDensityType_is_occurs_ok(void* self);
char16_t* VYR_FLAT_CALL CSharp_ColorSpaceDensityType_get_Name(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceDensityType_set_Name(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceDensityType_isset_Name(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceDensityType_unset_Name(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceDensityType_get_ColorSpaceSpecificationSpectrumGeneric__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceDensityType_assign_ColorSpaceSpecificationSpectrumGeneric(void* self, void* value);
uint32_t VYR_FLAT_CALL CSharp_ColorSpaceDensityType_size_Density(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceDensityType_get_Density__SWIG_0(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_ColorSpaceDensityType_assign_Density(void* self, uint32_t index, void* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceDensityType_append_Density(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceDensityType_insert_Density(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_ColorSpaceDensityType_back_Density(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceDensityType_delete_Density(void* self, uint32_t index);
void VYR_FLAT_CALL CSharp_ColorSpaceDensityType_clear_Density(void* self);

/* ColorSpaceSpectralType */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceSpectralType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceSpectralType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceSpectralType(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpectralTypeUpcast(void* self);
const char* VYR_FLAT_CALL CSharp_ColorSpaceSpectralType_id_get(void);
void VYR_FLAT_CALL CSharp_ColorSpaceSpectralType_id_set(const char* identity);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpectralType_clone(void* self);
char* VYR_FLAT_CALL CSharp_ColorSpaceSpectralType_getid(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpectralType_has_id(void* self, const char* identity);
void VYR_FLAT_CALL CSharp_ColorSpaceSpectralType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_ColorSpaceSpectralType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpectralType_is_occurs_ok(void* self);
char16_t* VYR_FLAT_CALL CSharp_ColorSpaceSpectralType_get_Name(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpectralType_set_Name(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpectralType_isset_Name(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceSpectralType_unset_Name(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpectralType_get_ColorSpaceSpecificationSpectrumSpectral__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpectralType_assign_ColorSpaceSpecificationSpectrumSpectral(void* self, void* value);
uint32_t VYR_FLAT_CALL CSharp_ColorSpaceSpectralType_size_ReflectancePoint(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpectralType_get_ReflectancePoint__SWIG_0(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpectralType_assign_ReflectancePoint(void* self, uint32_t index, void* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpectralType_append_ReflectancePoint(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpectralType_insert_ReflectancePoint(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpectralType_back_ReflectancePoint(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceSpectralType_delete_ReflectancePoint(void* self, uint32_t index);
void VYR_FLAT_CALL CSharp_ColorSpaceSpectralType_clear_ReflectancePoint(void* self);

/* ColorSpaceEmissiveSpectralType */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceEmissiveSpectralType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceEmissiveSpectralType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceEmissiveSpectralType(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceEmissiveSpectralTypeUpcast(void* self);
const char* VYR_FLAT_CALL CSharp_ColorSpaceEmissiveSpectralType_id_get(void);
void VYR_FLAT_CALL CSharp_ColorSpaceEmissiveSpectralType_id_set(const char* identity);
void* VYR_FLAT_CALL CSharp_ColorSpaceEmissiveSpectralType_clone(void* self);
char* VYR_FLAT_CALL CSharp_ColorSpaceEmissiveSpectralType_getid(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceEmissiveSpectralType_has_id(void* self, const char* identity);
void VYR_FLAT_CALL CSharp_ColorSpaceEmissiveSpectralType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_ColorSpaceEmissiveSpectralType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceEmissiveSpectralType_is_occurs_ok(void* self);
char16_t* VYR_FLAT_CALL CSharp_ColorSpaceEmissiveSpectralType_get_Name(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceEmissiveSpectralType_set_Name(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceEmissiveSpectralType_isset_Name(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceEmissiveSpectralType_unset_Name(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceEmissiveSpectralType_get_ColorSpaceSpecificationEmissiveSpectral__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceEmissiveSpectralType_assign_ColorSpaceSpecificationEmissiveSpectral(void* self, void* value);
uint32_t VYR_FLAT_CALL CSharp_ColorSpaceEmissiveSpectralType_size_EmissiveSpectralPoint(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceEmissiveSpectralType_get_EmissiveSpectralPoint__SWIG_0(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_ColorSpaceEmissiveSpectralType_assign_EmissiveSpectralPoint(void* self, uint32_t index, void* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceEmissiveSpectralType_append_EmissiveSpectralPoint(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceEmissiveSpectralType_insert_EmissiveSpectralPoint(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_ColorSpaceEmissiveSpectralType_back_EmissiveSpectralPoint(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceEmissiveSpectralType_delete_EmissiveSpectralPoint(void* self, uint32_t index);
void VYR_FLAT_CALL CSharp_ColorSpaceEmissiveSpectralType_clear_EmissiveSpectralPoint(void* self);

/* ColorSpaceGenericType */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceGenericType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceGenericType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceGenericType(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceGenericTypeUpcast(void* self);
const char* VYR_FLAT_CALL CSharp_ColorSpaceGenericType_id_get(void);
void VYR_FLAT_CALL CSharp_ColorSpaceGenericType_id_set(const char* identity);
void* VYR_FLAT_CALL CSharp_ColorSpaceGenericType_clone(void* self);
char* VYR_FLAT_CALL CSharp_ColorSpaceGenericType_getid(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceGenericType_has_id(void* self, const char* identity);
void VYR_FLAT_CALL CSharp_ColorSpaceGenericType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_ColorSpaceGenericType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceGenericType_is_occurs_ok(void* self);
char16_t* VYR_FLAT_CALL CSharp_ColorSpaceGenericType_get_Name(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceGenericType_set_Name(void* self, const char16_t* value);
void* VYR_FLAT_CALL CSharp_ColorSpaceGenericType_get_ColorSpaceSpecificationSpectrumGeneric__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceGenericType_assign_ColorSpaceSpecificationSpectrumGeneric(void* self, void* value);
uint32_t VYR_FLAT_CALL CSharp_ColorSpaceGenericType_size_Axis(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceGenericType_get_Axis__SWIG_0(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_ColorSpaceGenericType_assign_Axis(void* self, uint32_t index, void* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceGenericType_append_Axis(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceGenericType_insert_Axis(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_ColorSpaceGenericType_back_Axis(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceGenericType_delete_Axis(void* self, uint32_t index);
void VYR_FLAT_CALL CSharp_ColorSpaceGenericType_clear_Axis(void* self);

/* ColorSpaceEmissiveGenericType */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceEmissiveGenericType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceEmissiveGenericType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceEmissiveGenericType(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceEmissiveGenericTypeUpcast(void* self);
const char* VYR_FLAT_CALL CSharp_ColorSpaceEmissiveGenericType_id_get(void);
void VYR_FLAT_CALL CSharp_ColorSpaceEmissiveGenericType_id_set(const char* identity);
void* VYR_FLAT_CALL CSharp_ColorSpaceEmissiveGenericType_clone(void* self);
char* VYR_FLAT_CALL CSharp_ColorSpaceEmissiveGenericType_getid(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceEmissiveGenericType_has_id(void* self, const char* identity);
void VYR_FLAT_CALL CSharp_ColorSpaceEmissiveGenericType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_ColorSpaceEmissiveGenericType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceEmissiveGenericType_is_occurs_ok(void* self);
char16_t* VYR_FLAT_CALL CSharp_ColorSpaceEmissiveGenericType_get_Name(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceEmissiveGenericType_set_Name(void* self, const char16_t* value);
void* VYR_FLAT_CALL CSharp_ColorSpaceEmissiveGenericType_get_ColorSpaceSpecificationEmissiveGeneric__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceEmissiveGenericType_assign_ColorSpaceSpecificationEmissiveGeneric(void* self, void* value);
uint32_t VYR_FLAT_CALL CSharp_ColorSpaceEmissiveGenericType_size_Axis(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceEmissiveGenericType_get_Axis__SWIG_0(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_ColorSpaceEmissiveGenericType_assign_Axis(void* self, uint32_t index, void* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceEmissiveGenericType_append_Axis(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceEmissiveGenericType_insert_Axis(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_ColorSpaceEmissiveGenericType_back_Axis(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceEmissiveGenericType_delete_Axis(void* self, uint32_t index);
void VYR_FLAT_CALL CSharp_ColorSpaceEmissiveGenericType_clear_Axis(void* self);

/* ColorSpaceGeneric */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceGeneric__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceGeneric__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceGeneric(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceGenericUpcast(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceGeneric_ns_map(void);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceGeneric_unmarshal__SWIG_0(void* self, const char* path);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceGeneric_unmarshal__SWIG_1(void* self, const char* data, uint32_t size);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceGeneric_marshal__SWIG_0(void* self, const char* path);

/* ColorSpaceEmissiveGeneric */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceEmissiveGeneric__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceEmissiveGeneric__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceEmissiveGeneric(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceEmissiveGenericUpcast(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceEmissiveGeneric_ns_map(void);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceEmissiveGeneric_unmarshal__SWIG_0(void* self, const char* path);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceEmissiveGeneric_unmarshal__SWIG_1(void* self, const char* data, uint32_t size);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceEmissiveGeneric_marshal__SWIG_0(void* self, const char* path);

/* ColorSpaceDensity */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceDensity__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceDensity__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceDensity(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceDensityUpcast(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceDensity_ns_map(void);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceDensity_unmarshal__SWIG_0(void* self, const char* path);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceDensity_unmarshal__SWIG_1(void* self, const char* data, uint32_t size);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceDensity_marshal__SWIG_0(void* self, const char* path);

/* ColorSpaceSpectral */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceSpectral__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceSpectral__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceSpectral(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpectralUpcast(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpectral_ns_map(void);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpectral_unmarshal__SWIG_0(void* self, const char* path);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpectral_unmarshal__SWIG_1(void* self, const char* data, uint32_t size);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpectral_marshal__SWIG_0(void* self, const char* path);

/* ColorSpaceEmissiveSpectral */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceEmissiveSpectral__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceEmissiveSpectral__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceEmissiveSpectral(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceEmissiveSpectralUpcast(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceEmissiveSpectral_ns_map(void);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceEmissiveSpectral_unmarshal__SWIG_0(void* self, const char* path);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceEmissiveSpectral_unmarshal__SWIG_1(void* self, const char* data, uint32_t size);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceEmissiveSpectral_marshal__SWIG_0(void* self, const char* path);

/* ReflectancePointType */
void* VYR_FLAT_CALL CSharp_new_ReflectancePointType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ReflectancePointType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ReflectancePointType(void* self);
void VYR_FLAT_CALL CSharp_ReflectancePointType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_ReflectancePointType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_ReflectancePointType_is_occurs_ok(void* self);
double VYR_FLAT_CALL CSharp_ReflectancePointType_get_Wavelength(void* self);
int32_t VYR_FLAT_CALL CSharp_ReflectancePointType_set_Wavelength(void* self, double value);
double VYR_FLAT_CALL CSharp_ReflectancePointType_get_ReflectancePointType(void* self);
int32_t VYR_FLAT_CALL CSharp_ReflectancePointType_set_ReflectancePointType(void* self, double value);

/* EmissiveSpectralPointType */
void* VYR_FLAT_CALL CSharp_new_EmissiveSpectralPointType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_EmissiveSpectralPointType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_EmissiveSpectralPointType(void* self);
void VYR_FLAT_CALL CSharp_EmissiveSpectralPointType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_EmissiveSpectralPointType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_EmissiveSpectralPointType_is_occurs_ok(void* self);
double VYR_FLAT_CALL CSharp_EmissiveSpectralPointType_get_Wavelength(void* self);
int32_t VYR_FLAT_CALL CSharp_EmissiveSpectralPointType_set_Wavelength(void* self, double value);
double VYR_FLAT_CALL CSharp_EmissiveSpectralPointType_get_EmissiveSpectralPointType(void* self);
int32_t VYR_FLAT_CALL CSharp_EmissiveSpectralPointType_set_EmissiveSpectralPointType(void* self, double value);

/* AxisValueChoice */
void* VYR_FLAT_CALL CSharp_new_AxisValueChoice__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_AxisValueChoice__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_AxisValueChoice(void* self);
void VYR_FLAT_CALL CSharp_AxisValueChoice_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_AxisValueChoice_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_AxisValueChoice_is_occurs_ok(void* self);
int32_t VYR_FLAT_CALL CSharp_AxisValueChoice_getchosen(void* self);
void* VYR_FLAT_CALL CSharp_AxisValueChoice_get_AxisFloatingPointValue__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_AxisValueChoice_assign_AxisFloatingPointValue(void* self, void* value);
char16_t* VYR_FLAT_CALL CSharp_AxisValueChoice_get_AxisStringValue(void* self);
int32_t VYR_FLAT_CALL CSharp_AxisValueChoice_set_AxisStringValue(void* self, const char16_t* value);

/* AxisType */
void* VYR_FLAT_CALL CSharp_new_AxisType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_AxisType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_AxisType(void* self);
void VYR_FLAT_CALL CSharp_AxisType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_AxisType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_AxisType_is_occurs_ok(void* self);
char16_t* VYR_FLAT_CALL CSharp_AxisType_get_AxisName(void* self);
int32_t VYR_FLAT_CALL CSharp_AxisType_set_AxisName(void* self, const char16_t* value);
void* VYR_FLAT_CALL CSharp_AxisType_get_AxisValueChoice__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_AxisType_assign_AxisValueChoice(void* self, void* value);

/* FloatingPointValueType */
void* VYR_FLAT_CALL CSharp_new_FloatingPointValueType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_FloatingPointValueType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_FloatingPointValueType(void* self);
void VYR_FLAT_CALL CSharp_FloatingPointValueType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_FloatingPointValueType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_FloatingPointValueType_is_occurs_ok(void* self);
double VYR_FLAT_CALL CSharp_FloatingPointValueType_get_AxisNominalMax(void* self);
int32_t VYR_FLAT_CALL CSharp_FloatingPointValueType_set_AxisNominalMax(void* self, double value);
double VYR_FLAT_CALL CSharp_FloatingPointValueType_get_AxisNominalMin(void* self);
int32_t VYR_FLAT_CALL CSharp_FloatingPointValueType_set_AxisNominalMin(void* self, double value);
char16_t* VYR_FLAT_CALL CSharp_FloatingPointValueType_get_AxisNominalScale(void* self);
int32_t VYR_FLAT_CALL CSharp_FloatingPointValueType_set_AxisNominalScale(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_FloatingPointValueType_getenum_AxisNominalScale(void* self);
int32_t VYR_FLAT_CALL CSharp_FloatingPointValueType_setenum_AxisNominalScale(void* self, int32_t number);
int32_t VYR_FLAT_CALL CSharp_FloatingPointValueType_isset_AxisNominalScale(void* self);
void VYR_FLAT_CALL CSharp_FloatingPointValueType_unset_AxisNominalScale(void* self);
double VYR_FLAT_CALL CSharp_FloatingPointValueType_get_FloatingPointValueType(void* self);
int32_t VYR_FLAT_CALL CSharp_FloatingPointValueType_set_FloatingPointValueType(void* self, double value);

/* DensityType */
void* VYR_FLAT_CALL CSharp_new_DensityType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_DensityType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_DensityType(void* self);
void VYR_FLAT_CALL CSharp_DensityType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_DensityType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_DensityType_is_occurs_ok(void* self);
char16_t* VYR_FLAT_CALL CSharp_DensityType_get_DensityStatus(void* self);
int32_t VYR_FLAT_CALL CSharp_DensityType_set_DensityStatus(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_DensityType_getenum_DensityStatus(void* self);
int32_t VYR_FLAT_CALL CSharp_DensityType_setenum_DensityStatus(void* self, int32_t number);
char16_t* VYR_FLAT_CALL CSharp_DensityType_get_DensityFilter(void* self);
int32_t VYR_FLAT_CALL CSharp_DensityType_set_DensityFilter(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_DensityType_getenum_DensityFilter(void* self);
int32_t VYR_FLAT_CALL CSharp_DensityType_setenum_DensityFilter(void* self, int32_t number);
double VYR_FLAT_CALL CSharp_DensityType_get_DensityType(void* self);
int32_t VYR_FLAT_CALL CSharp_DensityType_set_DensityType(void* self, double value);

/* ColorName */
void* VYR_FLAT_CALL CSharp_new_ColorName__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorName__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorName(void* self);
void VYR_FLAT_CALL CSharp_ColorName_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_ColorName_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorName_is_occurs_ok(void* self);
char16_t* VYR_FLAT_CALL CSharp_ColorName_get_PrefixName(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorName_set_PrefixName(void* self, const char16_t* value);
char16_t* VYR_FLAT_CALL CSharp_ColorName_get_BaseName(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorName_set_BaseName(void* self, const char16_t* value);
char16_t* VYR_FLAT_CALL CSharp_ColorName_get_SuffixName(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorName_set_SuffixName(void* self, const char16_t* value);

/* Recipe */
void* VYR_FLAT_CALL CSharp_new_Recipe__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_Recipe__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_Recipe(void* self);
void VYR_FLAT_CALL CSharp_Recipe_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_Recipe_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_Recipe_is_occurs_ok(void* self);
uint32_t VYR_FLAT_CALL CSharp_Recipe_size_ColorantElement(void* self);
void* VYR_FLAT_CALL CSharp_Recipe_get_ColorantElement__SWIG_0(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_Recipe_assign_ColorantElement(void* self, uint32_t index, void* value);
int32_t VYR_FLAT_CALL CSharp_Recipe_append_ColorantElement(void* self);
int32_t VYR_FLAT_CALL CSharp_Recipe_insert_ColorantElement(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_Recipe_back_ColorantElement(void* self);
void VYR_FLAT_CALL CSharp_Recipe_delete_ColorantElement(void* self, uint32_t index);
void VYR_FLAT_CALL CSharp_Recipe_clear_ColorantElement(void* self);

/* ColorSpaceTINTORAType */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceTINTORAType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceTINTORAType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceTINTORAType(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceTINTORATypeUpcast(void* self);
const char* VYR_FLAT_CALL CSharp_ColorSpaceTINTORAType_id_get(void);
void VYR_FLAT_CALL CSharp_ColorSpaceTINTORAType_id_set(const char* identity);
void* VYR_FLAT_CALL CSharp_ColorSpaceTINTORAType_clone(void* self);
char* VYR_FLAT_CALL CSharp_ColorSpaceTINTORAType_getid(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceTINTORAType_has_id(void* self, const char* identity);
void VYR_FLAT_CALL CSharp_ColorSpaceTINTORAType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_ColorSpaceTINTORAType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceTINTORAType_is_occurs_ok(void* self);
char16_t* VYR_FLAT_CALL CSharp_ColorSpaceTINTORAType_get_Name(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceTINTORAType_set_Name(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceTINTORAType_isset_Name(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceTINTORAType_unset_Name(void* self);
char16_t* VYR_FLAT_CALL CSharp_ColorSpaceTINTORAType_get_FamilyName(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceTINTORAType_set_FamilyName(void* self, const char16_t* value);
void* VYR_FLAT_CALL CSharp_ColorSpaceTINTORAType_get_ColorName__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceTINTORAType_assign_ColorName(void* self, void* value);
char16_t* VYR_FLAT_CALL CSharp_ColorSpaceTINTORAType_get_Page(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceTINTORAType_set_Page(void* self, const char16_t* value);
char16_t* VYR_FLAT_CALL CSharp_ColorSpaceTINTORAType_get_Gamut(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceTINTORAType_set_Gamut(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceTINTORAType_getenum_Gamut(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceTINTORAType_setenum_Gamut(void* self, int32_t number);
void* VYR_FLAT_CALL CSharp_ColorSpaceTINTORAType_get_Recipe__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceTINTORAType_assign_Recipe(void* self, void* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceTINTORAType_isset_Recipe(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceTINTORAType_unset_Recipe(void* self);
uint32_t VYR_FLAT_CALL CSharp_ColorSpaceTINTORAType_size_ColorAndFinish(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceTINTORAType_get_ColorAndFinish__SWIG_0(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_ColorSpaceTINTORAType_assign_ColorAndFinish(void* self, uint32_t index, void* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceTINTORAType_append_ColorAndFinish(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceTINTORAType_insert_ColorAndFinish(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_ColorSpaceTINTORAType_back_ColorAndFinish(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceTINTORAType_delete_ColorAndFinish(void* self, uint32_t index);
void VYR_FLAT_CALL CSharp_ColorSpaceTINTORAType_clear_ColorAndFinish(void* self);

/* Colorant */
void* VYR_FLAT_CALL CSharp_new_Colorant__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_Colorant__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_Colorant(void* self);
void VYR_FLAT_CALL CSharp_Colorant_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_Colorant_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_Colorant_is_occurs_ok(void* self);
uint32_t VYR_FLAT_CALL CSharp_Colorant_size_CustomAttributes(void* self);
void* VYR_FLAT_CALL CSharp_Colorant_get_CustomAttributes__SWIG_0(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_Colorant_assign_CustomAttributes(void* self, uint32_t index, void* value);
int32_t VYR_FLAT_CALL CSharp_Colorant_append_CustomAttributes(void* self);
int32_t VYR_FLAT_CALL CSharp_Colorant_insert_CustomAttributes(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_Colorant_back_CustomAttributes(void* self);
void VYR_FLAT_CALL CSharp_Colorant_delete_CustomAttributes(void* self, uint32_t index);
void VYR_FLAT_CALL CSharp_Colorant_clear_CustomAttributes(void* self);
char16_t* VYR_FLAT_CALL CSharp_Colorant_get_Name(void* self);
int32_t VYR_FLAT_CALL CSharp_Colorant_set_Name(void* self, const char16_t* value);
char16_t* VYR_FLAT_CALL CSharp_Colorant_get_Manufacturer(void* self);
int32_t VYR_FLAT_CALL CSharp_Colorant_set_Manufacturer(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_Colorant_isset_Manufacturer(void* self);
void VYR_FLAT_CALL CSharp_Colorant_unset_Manufacturer(void* self);
char16_t* VYR_FLAT_CALL CSharp_Colorant_get_PartNumber(void* self);
int32_t VYR_FLAT_CALL CSharp_Colorant_set_PartNumber(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_Colorant_isset_PartNumber(void* self);
void VYR_FLAT_CALL CSharp_Colorant_unset_PartNumber(void* self);
double VYR_FLAT_CALL CSharp_Colorant_get_Density(void* self);
int32_t VYR_FLAT_CALL CSharp_Colorant_set_Density(void* self, double value);
int32_t VYR_FLAT_CALL CSharp_Colorant_isset_Density(void* self);
void VYR_FLAT_CALL CSharp_Colorant_unset_Density(void* self);

/* ColorantElement */
void* VYR_FLAT_CALL CSharp_new_ColorantElement__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorantElement__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorantElement(void* self);
void VYR_FLAT_CALL CSharp_ColorantElement_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_ColorantElement_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorantElement_is_occurs_ok(void* self);
void* VYR_FLAT_CALL CSharp_ColorantElement_get_Colorant__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_ColorantElement_assign_Colorant(void* self, void* value);
double VYR_FLAT_CALL CSharp_ColorantElement_get_Contribution(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorantElement_set_Contribution(void* self, double value);

/* CustomAttributes */
void* VYR_FLAT_CALL CSharp_new_CustomAttributes__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_CustomAttributes__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_CustomAttributes(void* self);
void VYR_FLAT_CALL CSharp_CustomAttributes_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_CustomAttributes_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_CustomAttributes_is_occurs_ok(void* self);
void* VYR_FLAT_CALL CSharp_CustomAttributes_get_CustomAttribute__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_CustomAttributes_assign_CustomAttribute(void* self, void* value);

/* ColorAndFinish */
void* VYR_FLAT_CALL CSharp_new_ColorAndFinish__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorAndFinish__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorAndFinish(void* self);
void VYR_FLAT_CALL CSharp_ColorAndFinish_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_ColorAndFinish_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorAndFinish_is_occurs_ok(void* self);
char16_t* VYR_FLAT_CALL CSharp_ColorAndFinish_get_Finish(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorAndFinish_set_Finish(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ColorAndFinish_getenum_Finish(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorAndFinish_setenum_Finish(void* self, int32_t number);
void* VYR_FLAT_CALL CSharp_ColorAndFinish_get_ColorSpaceSpectral__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_ColorAndFinish_assign_ColorSpaceSpectral(void* self, void* value);

/* ColorSpaceNCSType */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceNCSType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceNCSType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceNCSType(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceNCSTypeUpcast(void* self);
const char* VYR_FLAT_CALL CSharp_ColorSpaceNCSType_id_get(void);
void VYR_FLAT_CALL CSharp_ColorSpaceNCSType_id_set(const char* identity);
void* VYR_FLAT_CALL CSharp_ColorSpaceNCSType_clone(void* self);
char* VYR_FLAT_CALL CSharp_ColorSpaceNCSType_getid(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceNCSType_has_id(void* self, const char* identity);
void VYR_FLAT_CALL CSharp_ColorSpaceNCSType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_ColorSpaceNCSType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceNCSType_is_occurs_ok(void* self);
char16_t* VYR_FLAT_CALL CSharp_ColorSpaceNCSType_get_Name(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceNCSType_set_Name(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceNCSType_isset_Name(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceNCSType_unset_Name(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceNCSType_get_ColorSpaceSpecificationSpectrumGeneric__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceNCSType_assign_ColorSpaceSpecificationSpectrumGeneric(void* self, void* value);
char16_t* VYR_FLAT_CALL CSharp_ColorSpaceNCSType_get_ColorName(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceNCSType_set_ColorName(void* self, const char16_t* value);

/* ColorSpaceMunsellType */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceMunsellType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceMunsellType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceMunsellType(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceMunsellTypeUpcast(void* self);
const char* VYR_FLAT_CALL CSharp_ColorSpaceMunsellType_id_get(void);
void VYR_FLAT_CALL CSharp_ColorSpaceMunsellType_id_set(const char* identity);
void* VYR_FLAT_CALL CSharp_ColorSpaceMunsellType_clone(void* self);
char* VYR_FLAT_CALL CSharp_ColorSpaceMunsellType_getid(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceMunsellType_has_id(void* self, const char* identity);
void VYR_FLAT_CALL CSharp_ColorSpaceMunsellType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_ColorSpaceMunsellType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceMunsellType_is_occurs_ok(void* self);
char16_t* VYR_FLAT_CALL CSharp_ColorSpaceMunsellType_get_Name(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceMunsellType_set_Name(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceMunsellType_isset_Name(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceMunsellType_unset_Name(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceMunsellType_get_ColorSpaceSpecificationSpectrumGeneric__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceMunsellType_assign_ColorSpaceSpecificationSpectrumGeneric(void* self, void* value);
char16_t* VYR_FLAT_CALL CSharp_ColorSpaceMunsellType_get_CollectionName(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceMunsellType_set_CollectionName(void* self, const char16_t* value);
char16_t* VYR_FLAT_CALL CSharp_ColorSpaceMunsellType_get_ColorName(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceMunsellType_set_ColorName(void* self, const char16_t* value);

/* Base */
void* VYR_FLAT_CALL CSharp_new_Base__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_Base__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_Base(void* self);
void VYR_FLAT_CALL CSharp_Base_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_Base_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_Base_is_occurs_ok(void* self);
uint32_t VYR_FLAT_CALL CSharp_Base_size_CustomAttribute(void* self);
void* VYR_FLAT_CALL CSharp_Base_get_CustomAttribute__SWIG_0(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_Base_assign_CustomAttribute(void* self, uint32_t index, void* value);
int32_t VYR_FLAT_CALL CSharp_Base_append_CustomAttribute(void* self);
int32_t VYR_FLAT_CALL CSharp_Base_insert_CustomAttribute(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_Base_back_CustomAttribute(void* self);
void VYR_FLAT_CALL CSharp_Base_delete_CustomAttribute(void* self, uint32_t index);
void VYR_FLAT_CALL CSharp_Base_clear_CustomAttribute(void* self);
char16_t* VYR_FLAT_CALL CSharp_Base_get_Name(void* self);
int32_t VYR_FLAT_CALL CSharp_Base_set_Name(void* self, const char16_t* value);
char16_t* VYR_FLAT_CALL CSharp_Base_get_Manufacturer(void* self);
int32_t VYR_FLAT_CALL CSharp_Base_set_Manufacturer(void* self, const char16_t* value);
char16_t* VYR_FLAT_CALL CSharp_Base_get_PartNumber(void* self);
int32_t VYR_FLAT_CALL CSharp_Base_set_PartNumber(void* self, const char16_t* value);
double VYR_FLAT_CALL CSharp_Base_get_Density(void* self);
int32_t VYR_FLAT_CALL CSharp_Base_set_Density(void* self, double value);
int32_t VYR_FLAT_CALL CSharp_Base_isset_Density(void* self);
void VYR_FLAT_CALL CSharp_Base_unset_Density(void* self);

/* BaseElementType */
void* VYR_FLAT_CALL CSharp_new_BaseElementType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_BaseElementType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_BaseElementType(void* self);
void VYR_FLAT_CALL CSharp_BaseElementType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_BaseElementType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_BaseElementType_is_occurs_ok(void* self);
void* VYR_FLAT_CALL CSharp_BaseElementType_get_Base__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_BaseElementType_assign_Base(void* self, void* value);
double VYR_FLAT_CALL CSharp_BaseElementType_get_Contribution(void* self);
int32_t VYR_FLAT_CALL CSharp_BaseElementType_set_Contribution(void* self, double value);

/* ColorSpaceRecipeType */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceRecipeType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceRecipeType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceRecipeType(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceRecipeTypeUpcast(void* self);
const char* VYR_FLAT_CALL CSharp_ColorSpaceRecipeType_id_get(void);
void VYR_FLAT_CALL CSharp_ColorSpaceRecipeType_id_set(const char* identity);
void* VYR_FLAT_CALL CSharp_ColorSpaceRecipeType_clone(void* self);
char* VYR_FLAT_CALL CSharp_ColorSpaceRecipeType_getid(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceRecipeType_has_id(void* self, const char* identity);
void VYR_FLAT_CALL CSharp_ColorSpaceRecipeType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_ColorSpaceRecipeType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceRecipeType_is_occurs_ok(void* self);
char16_t* VYR_FLAT_CALL CSharp_ColorSpaceRecipeType_get_Name(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceRecipeType_set_Name(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceRecipeType_isset_Name(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceRecipeType_unset_Name(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceRecipeType_get_ColorSpaceSpecificationSpectrumGeneric__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceRecipeType_assign_ColorSpaceSpecificationSpectrumGeneric(void* self, void* value);
uint32_t VYR_FLAT_CALL CSharp_ColorSpaceRecipeType_size_ColorantElement(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceRecipeType_get_ColorantElement__SWIG_0(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_ColorSpaceRecipeType_assign_ColorantElement(void* self, uint32_t index, void* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceRecipeType_append_ColorantElement(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceRecipeType_insert_ColorantElement(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_ColorSpaceRecipeType_back_ColorantElement(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceRecipeType_delete_ColorantElement(void* self, uint32_t index);
void VYR_FLAT_CALL CSharp_ColorSpaceRecipeType_clear_ColorantElement(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceRecipeType_get_BaseElement__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceRecipeType_assign_BaseElement(void* self, void* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceRecipeType_isset_BaseElement(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceRecipeType_unset_BaseElement(void* self);

/* ColorSpaceRecipe */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceRecipe__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceRecipe__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceRecipe(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceRecipeUpcast(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceRecipe_ns_map(void);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceRecipe_unmarshal__SWIG_0(void* self, const char* path);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceRecipe_unmarshal__SWIG_1(void* self, const char* data, uint32_t size);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceRecipe_marshal__SWIG_0(void* self, const char* path);

/* ColorSpaceTINTORA */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceTINTORA__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceTINTORA__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceTINTORA(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceTINTORAUpcast(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceTINTORA_ns_map(void);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceTINTORA_unmarshal__SWIG_0(void* self, const char* path);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceTINTORA_unmarshal__SWIG_1(void* self, const char* data, uint32_t size);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceTINTORA_marshal__SWIG_0(void* self, const char* path);

/* ColorSpaceNCS */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceNCS__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceNCS__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceNCS(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceNCSUpcast(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceNCS_ns_map(void);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceNCS_unmarshal__SWIG_0(void* self, const char* path);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceNCS_unmarshal__SWIG_1(void* self, const char* data, uint32_t size);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceNCS_marshal__SWIG_0(void* self, const char* path);

/* ColorSpaceMunsell */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceMunsell__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceMunsell__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceMunsell(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceMunsellUpcast(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceMunsell_ns_map(void);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceMunsell_unmarshal__SWIG_0(void* self, const char* path);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceMunsell_unmarshal__SWIG_1(void* self, const char* data, uint32_t size);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceMunsell_marshal__SWIG_0(void* self, const char* path);

/* Density */
void* VYR_FLAT_CALL CSharp_new_Density__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_Density__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_Density(void* self);
void VYR_FLAT_CALL CSharp_Density_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_Density_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_Density_is_occurs_ok(void* self);
double VYR_FLAT_CALL CSharp_Density_get_Density(void* self);
int32_t VYR_FLAT_CALL CSharp_Density_set_Density(void* self, double value);
int32_t VYR_FLAT_CALL CSharp_Density_isnil_Density(void* self);
void VYR_FLAT_CALL CSharp_Density_setnil_Density(void* self);

/* ColorantElementType_Colorant */
void* VYR_FLAT_CALL CSharp_new_ColorantElementType_Colorant__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorantElementType_Colorant__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorantElementType_Colorant(void* self);
void VYR_FLAT_CALL CSharp_ColorantElementType_Colorant_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_ColorantElementType_Colorant_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorantElementType_Colorant_is_occurs_ok(void* self);
uint32_t VYR_FLAT_CALL CSharp_ColorantElementType_Colorant_size_CustomAttribute(void* self);
void* VYR_FLAT_CALL CSharp_ColorantElementType_Colorant_get_CustomAttribute__SWIG_0(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_ColorantElementType_Colorant_assign_CustomAttribute(void* self, uint32_t index, void* value);
int32_t VYR_FLAT_CALL CSharp_ColorantElementType_Colorant_append_CustomAttribute(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorantElementType_Colorant_insert_CustomAttribute(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_ColorantElementType_Colorant_back_CustomAttribute(void* self);
void VYR_FLAT_CALL CSharp_ColorantElementType_Colorant_delete_CustomAttribute(void* self, uint32_t index);
void VYR_FLAT_CALL CSharp_ColorantElementType_Colorant_clear_CustomAttribute(void* self);
char16_t* VYR_FLAT_CALL CSharp_ColorantElementType_Colorant_get_Name(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorantElementType_Colorant_set_Name(void* self, const char16_t* value);
char16_t* VYR_FLAT_CALL CSharp_ColorantElementType_Colorant_get_Manufacturer(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorantElementType_Colorant_set_Manufacturer(void* self, const char16_t* value);
char16_t* VYR_FLAT_CALL CSharp_ColorantElementType_Colorant_get_PartNumber(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorantElementType_Colorant_set_PartNumber(void* self, const char16_t* value);
void* VYR_FLAT_CALL CSharp_ColorantElementType_Colorant_get_Density__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_ColorantElementType_Colorant_assign_Density(void* self, void* value);

/* ColorantElementType */
void* VYR_FLAT_CALL CSharp_new_ColorantElementType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorantElementType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorantElementType(void* self);
void VYR_FLAT_CALL CSharp_ColorantElementType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_ColorantElementType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorantElementType_is_occurs_ok(void* self);
void* VYR_FLAT_CALL CSharp_ColorantElementType_get_Colorant__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_ColorantElementType_assign_Colorant(void* self, void* value);
double VYR_FLAT_CALL CSharp_ColorantElementType_get_Contribution(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorantElementType_set_Contribution(void* self, double value);

/* DeviceFilterType */
void* VYR_FLAT_CALL CSharp_new_DeviceFilterType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_DeviceFilterType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_DeviceFilterType(void* self);
void VYR_FLAT_CALL CSharp_DeviceFilterType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_DeviceFilterType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_DeviceFilterType_is_occurs_ok(void* self);
char16_t* VYR_FLAT_CALL CSharp_DeviceFilterType_get_CustomOrPartial(void* self);
int32_t VYR_FLAT_CALL CSharp_DeviceFilterType_set_CustomOrPartial(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_DeviceFilterType_isset_CustomOrPartial(void* self);
void VYR_FLAT_CALL CSharp_DeviceFilterType_unset_CustomOrPartial(void* self);
char16_t* VYR_FLAT_CALL CSharp_DeviceFilterType_get_DeviceFilterType(void* self);
int32_t VYR_FLAT_CALL CSharp_DeviceFilterType_set_DeviceFilterType(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_DeviceFilterType_getenum_DeviceFilterType(void* self);
int32_t VYR_FLAT_CALL CSharp_DeviceFilterType_setenum_DeviceFilterType(void* self, int32_t number);

/* DeviceFilter */
void* VYR_FLAT_CALL CSharp_new_DeviceFilter__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_DeviceFilter__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_DeviceFilter(void* self);
void* VYR_FLAT_CALL CSharp_DeviceFilterUpcast(void* self);
void VYR_FLAT_CALL CSharp_DeviceFilter_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_DeviceFilter_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_DeviceFilter_is_occurs_ok(void* self);
int32_t VYR_FLAT_CALL CSharp_DeviceFilter_set_DeviceFilterType(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_DeviceFilter_setenum_DeviceFilterType(void* self, int32_t number);
int32_t VYR_FLAT_CALL CSharp_DeviceFilter_isnil_DeviceFilter(void* self);
void VYR_FLAT_CALL CSharp_DeviceFilter_setnil_DeviceFilter(void* self);

/* DevicePolarization */
void* VYR_FLAT_CALL CSharp_new_DevicePolarization__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_DevicePolarization__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_DevicePolarization(void* self);
void VYR_FLAT_CALL CSharp_DevicePolarization_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_DevicePolarization_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_DevicePolarization_is_occurs_ok(void* self);
uint32_t VYR_FLAT_CALL CSharp_DevicePolarization_get_DevicePolarization(void* self);
int32_t VYR_FLAT_CALL CSharp_DevicePolarization_set_DevicePolarization(void* self, uint32_t value);
int32_t VYR_FLAT_CALL CSharp_DevicePolarization_isnil_DevicePolarization(void* self);
void VYR_FLAT_CALL CSharp_DevicePolarization_setnil_DevicePolarization(void* self);

/* ColorSpaceSpecificationType */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceSpecificationType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceSpecificationType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceSpecificationType(void* self);
const char* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationType_id_get(void);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationType_id_set(const char* identity);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationType_factory(int32_t ns_id, const char* name);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationType_clone(void* self);
char* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationType_getid(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationType_has_id(void* self, const char* identity);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationType_is_occurs_ok(void* self);
char16_t* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationType_get_Comments(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationType_set_Comments(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationType_isset_Comments(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationType_unset_Comments(void* self);
char16_t* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationType_get_UniqueID(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationType_set_UniqueID(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationType_isset_UniqueID(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationType_unset_UniqueID(void* self);
uint32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationType_size_CustomAttribute(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationType_get_CustomAttribute__SWIG_0(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationType_assign_CustomAttribute(void* self, uint32_t index, void* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationType_append_CustomAttribute(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationType_insert_CustomAttribute(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationType_back_CustomAttribute(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationType_delete_CustomAttribute(void* self, uint32_t index);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationType_clear_CustomAttribute(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationType_get_Profile__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationType_assign_Profile(void* self, void* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationType_isset_Profile(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationType_unset_Profile(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationType_get_Device__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationType_assign_Device(void* self, void* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationType_isset_Device(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationType_unset_Device(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationType_get_DeviceFilter__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationType_assign_DeviceFilter(void* self, void* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationType_isset_DeviceFilter(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationType_unset_DeviceFilter(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationType_get_DevicePolarization__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationType_assign_DevicePolarization(void* self, void* value);
uint32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationType_size_ChangeHistory(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationType_get_ChangeHistory(void* self, uint32_t index);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationType_set_ChangeHistory(void* self, uint32_t index, void* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationType_append_ChangeHistory(void* self, void* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationType_insert_ChangeHistory(void* self, uint32_t index, void* value);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationType_delete_ChangeHistory(void* self, uint32_t index);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationType_clear_ChangeHistory(void* self);

/* SpectrumType */
void* VYR_FLAT_CALL CSharp_new_SpectrumType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_SpectrumType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_SpectrumType(void* self);
void VYR_FLAT_CALL CSharp_SpectrumType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_SpectrumType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_SpectrumType_is_occurs_ok(void* self);
char16_t* VYR_FLAT_CALL CSharp_SpectrumType_get_CustomTypeName(void* self);
int32_t VYR_FLAT_CALL CSharp_SpectrumType_set_CustomTypeName(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_SpectrumType_isset_CustomTypeName(void* self);
void VYR_FLAT_CALL CSharp_SpectrumType_unset_CustomTypeName(void* self);
char16_t* VYR_FLAT_CALL CSharp_SpectrumType_get_SpectrumType(void* self);
int32_t VYR_FLAT_CALL CSharp_SpectrumType_set_SpectrumType(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_SpectrumType_getenum_SpectrumType(void* self);
int32_t VYR_FLAT_CALL CSharp_SpectrumType_setenum_SpectrumType(void* self, int32_t number);

/* ColorSpaceSpecificationSpectrumType */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceSpecificationSpectrumType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceSpecificationSpectrumType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceSpecificationSpectrumType(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumTypeUpcast(void* self);
const char* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumType_id_get(void);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumType_id_set(const char* identity);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumType_factory(int32_t ns_id, const char* name);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumType_clone(void* self);
char* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumType_getid(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumType_has_id(void* self, const char* identity);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumType_is_occurs_ok(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumType_get_Spectrum__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumType_assign_Spectrum(void* self, void* value);

/* ColorSpaceSpecificationEmissiveType */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceSpecificationEmissiveType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceSpecificationEmissiveType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceSpecificationEmissiveType(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveTypeUpcast(void* self);
const char* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveType_id_get(void);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveType_id_set(const char* identity);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveType_factory(int32_t ns_id, const char* name);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveType_clone(void* self);
char* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveType_getid(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveType_has_id(void* self, const char* identity);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveType_is_occurs_ok(void* self);
char16_t* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveType_get_EmissiveType(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveType_set_EmissiveType(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveType_getenum_EmissiveType(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveType_setenum_EmissiveType(void* self, int32_t number);
char16_t* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveType_get_EmissiveMode(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveType_set_EmissiveMode(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveType_getenum_EmissiveMode(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveType_setenum_EmissiveMode(void* self, int32_t number);

/* GeometryChoiceType */
void* VYR_FLAT_CALL CSharp_new_GeometryChoiceType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_GeometryChoiceType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_GeometryChoiceType(void* self);
void VYR_FLAT_CALL CSharp_GeometryChoiceType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_GeometryChoiceType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_GeometryChoiceType_is_occurs_ok(void* self);
int32_t VYR_FLAT_CALL CSharp_GeometryChoiceType_getchosen(void* self);
char16_t* VYR_FLAT_CALL CSharp_GeometryChoiceType_get_SphereGeometry(void* self);
int32_t VYR_FLAT_CALL CSharp_GeometryChoiceType_set_SphereGeometry(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_GeometryChoiceType_getenum_SphereGeometry(void* self);
int32_t VYR_FLAT_CALL CSharp_GeometryChoiceType_setenum_SphereGeometry(void* self, int32_t number);
double VYR_FLAT_CALL CSharp_GeometryChoiceType_get_Angle(void* self);
int32_t VYR_FLAT_CALL CSharp_GeometryChoiceType_set_Angle(void* self, double value);
char16_t* VYR_FLAT_CALL CSharp_GeometryChoiceType_get_UnknownGeometry(void* self);
int32_t VYR_FLAT_CALL CSharp_GeometryChoiceType_set_UnknownGeometry(void* self, const char16_t* value);
void* VYR_FLAT_CALL CSharp_GeometryChoiceType_get_BSDFAngle__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_GeometryChoiceType_assign_BSDFAngle(void* self, void* value);

/* IlluminationOptionsType */
void* VYR_FLAT_CALL CSharp_new_IlluminationOptionsType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_IlluminationOptionsType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_IlluminationOptionsType(void* self);
void VYR_FLAT_CALL CSharp_IlluminationOptionsType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_IlluminationOptionsType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_IlluminationOptionsType_is_occurs_ok(void* self);
int32_t VYR_FLAT_CALL CSharp_IlluminationOptionsType_getchosen(void* self);
char16_t* VYR_FLAT_CALL CSharp_IlluminationOptionsType_get_Description(void* self);
int32_t VYR_FLAT_CALL CSharp_IlluminationOptionsType_set_Description(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_IlluminationOptionsType_isset_Description(void* self);
void VYR_FLAT_CALL CSharp_IlluminationOptionsType_unset_Description(void* self);
void* VYR_FLAT_CALL CSharp_IlluminationOptionsType_get_Illuminant__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_IlluminationOptionsType_assign_Illuminant(void* self, void* value);
void* VYR_FLAT_CALL CSharp_IlluminationOptionsType_get_WhitePointChromaticity__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_IlluminationOptionsType_assign_WhitePointChromaticity(void* self, void* value);
uint32_t VYR_FLAT_CALL CSharp_IlluminationOptionsType_get_ColorTemperature(void* self);
int32_t VYR_FLAT_CALL CSharp_IlluminationOptionsType_set_ColorTemperature(void* self, uint32_t value);

/* ColorSpaceSpecificationSpectrumGenericType */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceSpecificationSpectrumGenericType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceSpecificationSpectrumGenericType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceSpecificationSpectrumGenericType(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumGenericTypeUpcast(void* self);
const char* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumGenericType_id_get(void);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumGenericType_id_set(const char* identity);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumGenericType_clone(void* self);
char* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumGenericType_getid(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumGenericType_has_id(void* self, const char* identity);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumGenericType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumGenericType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumGenericType_is_occurs_ok(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumGenericType_get_GeometryChoice__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumGenericType_assign_GeometryChoice(void* self, void* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumGenericType_isset_GeometryChoice(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumGenericType_unset_GeometryChoice(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumGenericType_get_IlluminationOptions__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumGenericType_assign_IlluminationOptions(void* self, void* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumGenericType_isset_IlluminationOptions(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumGenericType_unset_IlluminationOptions(void* self);
char16_t* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumGenericType_get_FieldOfView(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumGenericType_set_FieldOfView(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumGenericType_getenum_FieldOfView(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumGenericType_setenum_FieldOfView(void* self, int32_t number);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumGenericType_isset_FieldOfView(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumGenericType_unset_FieldOfView(void* self);
char16_t* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumGenericType_get_ASTM_Table(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumGenericType_set_ASTM_Table(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumGenericType_getenum_ASTM_Table(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumGenericType_setenum_ASTM_Table(void* self, int32_t number);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumGenericType_isset_ASTM_Table(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumGenericType_unset_ASTM_Table(void* self);
double VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumGenericType_get_Gamma(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumGenericType_set_Gamma(void* self, double value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumGenericType_isset_Gamma(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumGenericType_unset_Gamma(void* self);
char16_t* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumGenericType_get_DensityStatus(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumGenericType_set_DensityStatus(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumGenericType_getenum_DensityStatus(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumGenericType_setenum_DensityStatus(void* self, int32_t number);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumGenericType_isset_DensityStatus(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumGenericType_unset_DensityStatus(void* self);

/* ColorSpaceSpecificationSpectrumTristimulusType */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceSpecificationSpectrumTristimulusType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceSpecificationSpectrumTristimulusType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceSpecificationSpectrumTristimulusType(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumTristimulusTypeUpcast(void* self);
const char* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumTristimulusType_id_get(void);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumTristimulusType_id_set(const char* identity);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumTristimulusType_clone(void* self);
char* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumTristimulusType_getid(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumTristimulusType_has_id(void* self, const char* identity);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumTristimulusType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumTristimulusType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumTristimulusType_is_occurs_ok(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumTristimulusType_get_IlluminationOptions__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumTristimulusType_assign_IlluminationOptions(void* self, void* value);
char16_t* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumTristimulusType_get_FieldOfView(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumTristimulusType_set_FieldOfView(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumTristimulusType_getenum_FieldOfView(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumTristimulusType_setenum_FieldOfView(void* self, int32_t number);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumTristimulusType_get_GeometryChoice__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumTristimulusType_assign_GeometryChoice(void* self, void* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumTristimulusType_isset_GeometryChoice(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumTristimulusType_unset_GeometryChoice(void* self);
char16_t* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumTristimulusType_get_ASTM_Table(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumTristimulusType_set_ASTM_Table(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumTristimulusType_getenum_ASTM_Table(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumTristimulusType_setenum_ASTM_Table(void* self, int32_t number);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumTristimulusType_isset_ASTM_Table(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumTristimulusType_unset_ASTM_Table(void* self);
double VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumTristimulusType_get_Gamma(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumTristimulusType_set_Gamma(void* self, double value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumTristimulusType_isset_Gamma(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumTristimulusType_unset_Gamma(void* self);

/* ColorSpaceSpecificationSpectrumSpectralType */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceSpecificationSpectrumSpectralType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceSpecificationSpectrumSpectralType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceSpecificationSpectrumSpectralType(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumSpectralTypeUpcast(void* self);
const char* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumSpectralType_id_get(void);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumSpectralType_id_set(const char* identity);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumSpectralType_clone(void* self);
char* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumSpectralType_getid(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumSpectralType_has_id(void* self, const char* identity);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumSpectralType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumSpectralType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumSpectralType_is_occurs_ok(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumSpectralType_get_GeometryChoice__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumSpectralType_assign_GeometryChoice(void* self, void* value);
char16_t* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumSpectralType_get_ASTM_Table(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumSpectralType_set_ASTM_Table(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumSpectralType_getenum_ASTM_Table(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumSpectralType_setenum_ASTM_Table(void* self, int32_t number);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumSpectralType_isset_ASTM_Table(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumSpectralType_unset_ASTM_Table(void* self);

/* ColorSpaceSpecificationEmissiveGenericType */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceSpecificationEmissiveGenericType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceSpecificationEmissiveGenericType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceSpecificationEmissiveGenericType(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveGenericTypeUpcast(void* self);
const char* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveGenericType_id_get(void);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveGenericType_id_set(const char* identity);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveGenericType_clone(void* self);
char* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveGenericType_getid(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveGenericType_has_id(void* self, const char* identity);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveGenericType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveGenericType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveGenericType_is_occurs_ok(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveGenericType_get_GeometryChoice__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveGenericType_assign_GeometryChoice(void* self, void* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveGenericType_isset_GeometryChoice(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveGenericType_unset_GeometryChoice(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveGenericType_get_IlluminationOptions__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveGenericType_assign_IlluminationOptions(void* self, void* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveGenericType_isset_IlluminationOptions(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveGenericType_unset_IlluminationOptions(void* self);
char16_t* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveGenericType_get_FieldOfView(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveGenericType_set_FieldOfView(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveGenericType_getenum_FieldOfView(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveGenericType_setenum_FieldOfView(void* self, int32_t number);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveGenericType_isset_FieldOfView(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveGenericType_unset_FieldOfView(void* self);
char16_t* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveGenericType_get_ASTM_Table(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveGenericType_set_ASTM_Table(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveGenericType_getenum_ASTM_Table(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveGenericType_setenum_ASTM_Table(void* self, int32_t number);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveGenericType_isset_ASTM_Table(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveGenericType_unset_ASTM_Table(void* self);
double VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveGenericType_get_Gamma(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveGenericType_set_Gamma(void* self, double value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveGenericType_isset_Gamma(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveGenericType_unset_Gamma(void* self);
char16_t* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveGenericType_get_DensityStatus(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveGenericType_set_DensityStatus(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveGenericType_getenum_DensityStatus(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveGenericType_setenum_DensityStatus(void* self, int32_t number);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveGenericType_isset_DensityStatus(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveGenericType_unset_DensityStatus(void* self);

/* ColorSpaceSpecificationEmissiveTristimulusType */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceSpecificationEmissiveTristimulusType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceSpecificationEmissiveTristimulusType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceSpecificationEmissiveTristimulusType(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveTristimulusTypeUpcast(void* self);
const char* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveTristimulusType_id_get(void);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveTristimulusType_id_set(const char* identity);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveTristimulusType_clone(void* self);
char* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveTristimulusType_getid(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveTristimulusType_has_id(void* self, const char* identity);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveTristimulusType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveTristimulusType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveTristimulusType_is_occurs_ok(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveTristimulusType_get_IlluminationOptions__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveTristimulusType_assign_IlluminationOptions(void* self, void* value);
char16_t* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveTristimulusType_get_FieldOfView(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveTristimulusType_set_FieldOfView(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveTristimulusType_getenum_FieldOfView(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveTristimulusType_setenum_FieldOfView(void* self, int32_t number);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveTristimulusType_get_GeometryChoice__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveTristimulusType_assign_GeometryChoice(void* self, void* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveTristimulusType_isset_GeometryChoice(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveTristimulusType_unset_GeometryChoice(void* self);
char16_t* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveTristimulusType_get_ASTM_Table(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveTristimulusType_set_ASTM_Table(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveTristimulusType_getenum_ASTM_Table(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveTristimulusType_setenum_ASTM_Table(void* self, int32_t number);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveTristimulusType_isset_ASTM_Table(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveTristimulusType_unset_ASTM_Table(void* self);
double VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveTristimulusType_get_Gamma(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveTristimulusType_set_Gamma(void* self, double value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveTristimulusType_isset_Gamma(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveTristimulusType_unset_Gamma(void* self);

/* ColorSpaceSpecificationEmissiveSpectralType */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceSpecificationEmissiveSpectralType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceSpecificationEmissiveSpectralType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceSpecificationEmissiveSpectralType(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveSpectralTypeUpcast(void* self);
const char* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveSpectralType_id_get(void);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveSpectralType_id_set(const char* identity);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveSpectralType_clone(void* self);
char* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveSpectralType_getid(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveSpectralType_has_id(void* self, const char* identity);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveSpectralType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveSpectralType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveSpectralType_is_occurs_ok(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveSpectralType_get_GeometryChoice__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveSpectralType_assign_GeometryChoice(void* self, void* value);
char16_t* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveSpectralType_get_ASTM_Table(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveSpectralType_set_ASTM_Table(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveSpectralType_getenum_ASTM_Table(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveSpectralType_setenum_ASTM_Table(void* self, int32_t number);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveSpectralType_isset_ASTM_Table(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveSpectralType_unset_ASTM_Table(void* self);

/* ColorSpaceSpecification */
void VYR_FLAT_CALL CSharp_delete_ColorSpaceSpecification(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationUpcast(void* self);

/* ColorSpaceSpecificationSpectrum */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceSpecificationSpectrum__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceSpecificationSpectrum__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceSpecificationSpectrum(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumUpcast(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrum_ns_map(void);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrum_unmarshal__SWIG_0(void* self, const char* path);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrum_unmarshal__SWIG_1(void* self, const char* data, uint32_t size);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrum_marshal__SWIG_0(void* self, const char* path);

/* ColorSpaceSpecificationSpectrumGeneric */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceSpecificationSpectrumGeneric__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceSpecificationSpectrumGeneric__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceSpecificationSpectrumGeneric(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumGenericUpcast(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumGeneric_ns_map(void);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumGeneric_unmarshal__SWIG_0(void* self, const char* path);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumGeneric_unmarshal__SWIG_1(void* self, const char* data, uint32_t size);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumGeneric_marshal__SWIG_0(void* self, const char* path);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumGeneric_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumGeneric_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumGeneric_is_occurs_ok(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumGeneric_isnil_ColorSpaceSpecificationSpectrumGeneric(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumGeneric_setnil_ColorSpaceSpecificationSpectrumGeneric(void* self);

/* ColorSpaceSpecificationSpectrumTristimulus */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceSpecificationSpectrumTristimulus__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceSpecificationSpectrumTristimulus__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceSpecificationSpectrumTristimulus(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumTristimulusUpcast(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumTristimulus_ns_map(void);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumTristimulus_unmarshal__SWIG_0(void* self, const char* path);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumTristimulus_unmarshal__SWIG_1(void* self, const char* data, uint32_t size);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumTristimulus_marshal__SWIG_0(void* self, const char* path);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumTristimulus_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumTristimulus_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumTristimulus_is_occurs_ok(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumTristimulus_isnil_ColorSpaceSpecificationSpectrumTristimulus(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumTristimulus_setnil_ColorSpaceSpecificationSpectrumTristimulus(void* self);

/* ColorSpaceSpecificationSpectrumSpectral */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceSpecificationSpectrumSpectral__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceSpecificationSpectrumSpectral__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceSpecificationSpectrumSpectral(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumSpectralUpcast(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumSpectral_ns_map(void);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumSpectral_unmarshal__SWIG_0(void* self, const char* path);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumSpectral_unmarshal__SWIG_1(void* self, const char* data, uint32_t size);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumSpectral_marshal__SWIG_0(void* self, const char* path);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumSpectral_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumSpectral_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumSpectral_is_occurs_ok(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumSpectral_isnil_ColorSpaceSpecificationSpectrumSpectral(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationSpectrumSpectral_setnil_ColorSpaceSpecificationSpectrumSpectral(void* self);

/* ColorSpaceSpecificationEmissive */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceSpecificationEmissive__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceSpecificationEmissive__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceSpecificationEmissive(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveUpcast(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissive_ns_map(void);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissive_unmarshal__SWIG_0(void* self, const char* path);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissive_unmarshal__SWIG_1(void* self, const char* data, uint32_t size);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissive_marshal__SWIG_0(void* self, const char* path);

/* ColorSpaceSpecificationEmissiveGeneric */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceSpecificationEmissiveGeneric__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceSpecificationEmissiveGeneric__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceSpecificationEmissiveGeneric(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveGenericUpcast(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveGeneric_ns_map(void);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveGeneric_unmarshal__SWIG_0(void* self, const char* path);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveGeneric_unmarshal__SWIG_1(void* self, const char* data, uint32_t size);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveGeneric_marshal__SWIG_0(void* self, const char* path);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveGeneric_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveGeneric_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveGeneric_is_occurs_ok(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveGeneric_isnil_ColorSpaceSpecificationEmissiveGeneric(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveGeneric_setnil_ColorSpaceSpecificationEmissiveGeneric(void* self);

/* ColorSpaceSpecificationEmissiveTristimulus */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceSpecificationEmissiveTristimulus__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceSpecificationEmissiveTristimulus__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceSpecificationEmissiveTristimulus(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveTristimulusUpcast(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveTristimulus_ns_map(void);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveTristimulus_unmarshal__SWIG_0(void* self, const char* path);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveTristimulus_unmarshal__SWIG_1(void* self, const char* data, uint32_t size);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveTristimulus_marshal__SWIG_0(void* self, const char* path);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveTristimulus_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveTristimulus_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveTristimulus_is_occurs_ok(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveTristimulus_isnil_ColorSpaceSpecificationEmissiveTristimulus(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveTristimulus_setnil_ColorSpaceSpecificationEmissiveTristimulus(void* self);

/* ColorSpaceSpecificationEmissiveSpectral */
void* VYR_FLAT_CALL CSharp_new_ColorSpaceSpecificationEmissiveSpectral__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorSpaceSpecificationEmissiveSpectral__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorSpaceSpecificationEmissiveSpectral(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveSpectralUpcast(void* self);
void* VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveSpectral_ns_map(void);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveSpectral_unmarshal__SWIG_0(void* self, const char* path);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveSpectral_unmarshal__SWIG_1(void* self, const char* data, uint32_t size);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveSpectral_marshal__SWIG_0(void* self, const char* path);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveSpectral_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveSpectral_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveSpectral_is_occurs_ok(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveSpectral_isnil_ColorSpaceSpecificationEmissiveSpectral(void* self);
void VYR_FLAT_CALL CSharp_ColorSpaceSpecificationEmissiveSpectral_setnil_ColorSpaceSpecificationEmissiveSpectral(void* self);

/* Illuminant */
void* VYR_FLAT_CALL CSharp_new_Illuminant__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_Illuminant__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_Illuminant(void* self);
void VYR_FLAT_CALL CSharp_Illuminant_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_Illuminant_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_Illuminant_is_occurs_ok(void* self);
char16_t* VYR_FLAT_CALL CSharp_Illuminant_get_CustomName(void* self);
int32_t VYR_FLAT_CALL CSharp_Illuminant_set_CustomName(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_Illuminant_isset_CustomName(void* self);
void VYR_FLAT_CALL CSharp_Illuminant_unset_CustomName(void* self);
char16_t* VYR_FLAT_CALL CSharp_Illuminant_get_Illuminant(void* self);
int32_t VYR_FLAT_CALL CSharp_Illuminant_set_Illuminant(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_Illuminant_getenum_Illuminant(void* self);
int32_t VYR_FLAT_CALL CSharp_Illuminant_setenum_Illuminant(void* self, int32_t number);

/* WhitePointChromaticity */
void* VYR_FLAT_CALL CSharp_new_WhitePointChromaticity__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_WhitePointChromaticity__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_WhitePointChromaticity(void* self);
void VYR_FLAT_CALL CSharp_WhitePointChromaticity_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_WhitePointChromaticity_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_WhitePointChromaticity_is_occurs_ok(void* self);
double VYR_FLAT_CALL CSharp_WhitePointChromaticity_get_CoordinateX(void* self);
int32_t VYR_FLAT_CALL CSharp_WhitePointChromaticity_set_CoordinateX(void* self, double value);
double VYR_FLAT_CALL CSharp_WhitePointChromaticity_get_CoordinateY(void* self);
int32_t VYR_FLAT_CALL CSharp_WhitePointChromaticity_set_CoordinateY(void* self, double value);

/* BSDFAngle */
void* VYR_FLAT_CALL CSharp_new_BSDFAngle__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_BSDFAngle__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_BSDFAngle(void* self);
void VYR_FLAT_CALL CSharp_BSDFAngle_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_BSDFAngle_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_BSDFAngle_is_occurs_ok(void* self);
double VYR_FLAT_CALL CSharp_BSDFAngle_get_IlluminantAngle(void* self);
int32_t VYR_FLAT_CALL CSharp_BSDFAngle_set_IlluminantAngle(void* self, double value);
double VYR_FLAT_CALL CSharp_BSDFAngle_get_Aspecular(void* self);
int32_t VYR_FLAT_CALL CSharp_BSDFAngle_set_Aspecular(void* self, double value);

/* Azimuth */
void* VYR_FLAT_CALL CSharp_new_Azimuth__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_Azimuth__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_Azimuth(void* self);
void VYR_FLAT_CALL CSharp_Azimuth_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_Azimuth_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_Azimuth_is_occurs_ok(void* self);

/* SubstrateType */
void* VYR_FLAT_CALL CSharp_new_SubstrateType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_SubstrateType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_SubstrateType(void* self);
const char* VYR_FLAT_CALL CSharp_SubstrateType_id_get(void);
void VYR_FLAT_CALL CSharp_SubstrateType_id_set(const char* identity);
void* VYR_FLAT_CALL CSharp_SubstrateType_factory(int32_t ns_id, const char* name);
void* VYR_FLAT_CALL CSharp_SubstrateType_clone(void* self);
char* VYR_FLAT_CALL CSharp_SubstrateType_getid(void* self);
int32_t VYR_FLAT_CALL CSharp_SubstrateType_has_id(void* self, const char* identity);
void VYR_FLAT_CALL CSharp_SubstrateType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_SubstrateType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_SubstrateType_is_occurs_ok(void* self);
uint32_t VYR_FLAT_CALL CSharp_SubstrateType_size_CustomAttribute(void* self);
void* VYR_FLAT_CALL CSharp_SubstrateType_get_CustomAttribute__SWIG_0(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_SubstrateType_assign_CustomAttribute(void* self, uint32_t index, void* value);
int32_t VYR_FLAT_CALL CSharp_SubstrateType_append_CustomAttribute(void* self);
int32_t VYR_FLAT_CALL CSharp_SubstrateType_insert_CustomAttribute(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_SubstrateType_back_CustomAttribute(void* self);
void VYR_FLAT_CALL CSharp_SubstrateType_delete_CustomAttribute(void* self, uint32_t index);
void VYR_FLAT_CALL CSharp_SubstrateType_clear_CustomAttribute(void* self);
char16_t* VYR_FLAT_CALL CSharp_SubstrateType_get_PartNumber(void* self);
int32_t VYR_FLAT_CALL CSharp_SubstrateType_set_PartNumber(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_SubstrateType_isset_PartNumber(void* self);
void VYR_FLAT_CALL CSharp_SubstrateType_unset_PartNumber(void* self);
void* VYR_FLAT_CALL CSharp_SubstrateType_get_Color__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_SubstrateType_assign_Color(void* self, void* value);
int32_t VYR_FLAT_CALL CSharp_SubstrateType_isset_Color(void* self);
void VYR_FLAT_CALL CSharp_SubstrateType_unset_Color(void* self);

/* Substrate */
void VYR_FLAT_CALL CSharp_delete_Substrate(void* self);
void* VYR_FLAT_CALL CSharp_SubstrateUpcast(void* self);

/* SubstratePaperType */
void* VYR_FLAT_CALL CSharp_new_SubstratePaperType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_SubstratePaperType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_SubstratePaperType(void* self);
void* VYR_FLAT_CALL CSharp_SubstratePaperTypeUpcast(void* self);
const char* VYR_FLAT_CALL CSharp_SubstratePaperType_id_get(void);
void VYR_FLAT_CALL CSharp_SubstratePaperType_id_set(const char* identity);
void* VYR_FLAT_CALL CSharp_SubstratePaperType_clone(void* self);
char* VYR_FLAT_CALL CSharp_SubstratePaperType_getid(void* self);
int32_t VYR_FLAT_CALL CSharp_SubstratePaperType_has_id(void* self, const char* identity);
void VYR_FLAT_CALL CSharp_SubstratePaperType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_SubstratePaperType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_SubstratePaperType_is_occurs_ok(void* self);
double VYR_FLAT_CALL CSharp_SubstratePaperType_get_PaperThickness(void* self);
int32_t VYR_FLAT_CALL CSharp_SubstratePaperType_set_PaperThickness(void* self, double value);
int32_t VYR_FLAT_CALL CSharp_SubstratePaperType_isset_PaperThickness(void* self);
void VYR_FLAT_CALL CSharp_SubstratePaperType_unset_PaperThickness(void* self);
char16_t* VYR_FLAT_CALL CSharp_SubstratePaperType_get_PaperType(void* self);
int32_t VYR_FLAT_CALL CSharp_SubstratePaperType_set_PaperType(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_SubstratePaperType_isset_PaperType(void* self);
void VYR_FLAT_CALL CSharp_SubstratePaperType_unset_PaperType(void* self);

/* SubstrateGenericType */
void* VYR_FLAT_CALL CSharp_new_SubstrateGenericType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_SubstrateGenericType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_SubstrateGenericType(void* self);
void* VYR_FLAT_CALL CSharp_SubstrateGenericTypeUpcast(void* self);
const char* VYR_FLAT_CALL CSharp_SubstrateGenericType_id_get(void);
void VYR_FLAT_CALL CSharp_SubstrateGenericType_id_set(const char* identity);
void* VYR_FLAT_CALL CSharp_SubstrateGenericType_clone(void* self);
char* VYR_FLAT_CALL CSharp_SubstrateGenericType_getid(void* self);
int32_t VYR_FLAT_CALL CSharp_SubstrateGenericType_has_id(void* self, const char* identity);
void VYR_FLAT_CALL CSharp_SubstrateGenericType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_SubstrateGenericType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_SubstrateGenericType_is_occurs_ok(void* self);
char16_t* VYR_FLAT_CALL CSharp_SubstrateGenericType_get_Type(void* self);
int32_t VYR_FLAT_CALL CSharp_SubstrateGenericType_set_Type(void* self, const char16_t* value);

/* SubstrateMetalType */
void* VYR_FLAT_CALL CSharp_new_SubstrateMetalType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_SubstrateMetalType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_SubstrateMetalType(void* self);
void* VYR_FLAT_CALL CSharp_SubstrateMetalTypeUpcast(void* self);
const char* VYR_FLAT_CALL CSharp_SubstrateMetalType_id_get(void);
void VYR_FLAT_CALL CSharp_SubstrateMetalType_id_set(const char* identity);
void* VYR_FLAT_CALL CSharp_SubstrateMetalType_clone(void* self);
char* VYR_FLAT_CALL CSharp_SubstrateMetalType_getid(void* self);
int32_t VYR_FLAT_CALL CSharp_SubstrateMetalType_has_id(void* self, const char* identity);
void VYR_FLAT_CALL CSharp_SubstrateMetalType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_SubstrateMetalType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_SubstrateMetalType_is_occurs_ok(void* self);
double VYR_FLAT_CALL CSharp_SubstrateMetalType_get_MetalWeight(void* self);
int32_t VYR_FLAT_CALL CSharp_SubstrateMetalType_set_MetalWeight(void* self, double value);
int32_t VYR_FLAT_CALL CSharp_SubstrateMetalType_isset_MetalWeight(void* self);
void VYR_FLAT_CALL CSharp_SubstrateMetalType_unset_MetalWeight(void* self);
char16_t* VYR_FLAT_CALL CSharp_SubstrateMetalType_get_MetalType(void* self);
int32_t VYR_FLAT_CALL CSharp_SubstrateMetalType_set_MetalType(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_SubstrateMetalType_isset_MetalType(void* self);
void VYR_FLAT_CALL CSharp_SubstrateMetalType_unset_MetalType(void* self);

/* SubstratePlasticType */
void* VYR_FLAT_CALL CSharp_new_SubstratePlasticType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_SubstratePlasticType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_SubstratePlasticType(void* self);
void* VYR_FLAT_CALL CSharp_SubstratePlasticTypeUpcast(void* self);
const char* VYR_FLAT_CALL CSharp_SubstratePlasticType_id_get(void);
void VYR_FLAT_CALL CSharp_SubstratePlasticType_id_set(const char* identity);
void* VYR_FLAT_CALL CSharp_SubstratePlasticType_clone(void* self);
char* VYR_FLAT_CALL CSharp_SubstratePlasticType_getid(void* self);
int32_t VYR_FLAT_CALL CSharp_SubstratePlasticType_has_id(void* self, const char* identity);
void VYR_FLAT_CALL CSharp_SubstratePlasticType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_SubstratePlasticType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_SubstratePlasticType_is_occurs_ok(void* self);
double VYR_FLAT_CALL CSharp_SubstratePlasticType_get_PlasticWeight(void* self);
int32_t VYR_FLAT_CALL CSharp_SubstratePlasticType_set_PlasticWeight(void* self, double value);
int32_t VYR_FLAT_CALL CSharp_SubstratePlasticType_isset_PlasticWeight(void* self);
void VYR_FLAT_CALL CSharp_SubstratePlasticType_unset_PlasticWeight(void* self);
char16_t* VYR_FLAT_CALL CSharp_SubstratePlasticType_get_PlasticType(void* self);
int32_t VYR_FLAT_CALL CSharp_SubstratePlasticType_set_PlasticType(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_SubstratePlasticType_isset_PlasticType(void* self);
void VYR_FLAT_CALL CSharp_SubstratePlasticType_unset_PlasticType(void* self);

/* SubstrateWoodType */
void* VYR_FLAT_CALL CSharp_new_SubstrateWoodType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_SubstrateWoodType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_SubstrateWoodType(void* self);
void* VYR_FLAT_CALL CSharp_SubstrateWoodTypeUpcast(void* self);
const char* VYR_FLAT_CALL CSharp_SubstrateWoodType_id_get(void);
void VYR_FLAT_CALL CSharp_SubstrateWoodType_id_set(const char* identity);
void* VYR_FLAT_CALL CSharp_SubstrateWoodType_clone(void* self);
char* VYR_FLAT_CALL CSharp_SubstrateWoodType_getid(void* self);
int32_t VYR_FLAT_CALL CSharp_SubstrateWoodType_has_id(void* self, const char* identity);
void VYR_FLAT_CALL CSharp_SubstrateWoodType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_SubstrateWoodType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_SubstrateWoodType_is_occurs_ok(void* self);
double VYR_FLAT_CALL CSharp_SubstrateWoodType_get_WoodWeight(void* self);
int32_t VYR_FLAT_CALL CSharp_SubstrateWoodType_set_WoodWeight(void* self, double value);
int32_t VYR_FLAT_CALL CSharp_SubstrateWoodType_isset_WoodWeight(void* self);
void VYR_FLAT_CALL CSharp_SubstrateWoodType_unset_WoodWeight(void* self);
char16_t* VYR_FLAT_CALL CSharp_SubstrateWoodType_get_WoodType(void* self);
int32_t VYR_FLAT_CALL CSharp_SubstrateWoodType_set_WoodType(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_SubstrateWoodType_isset_WoodType(void* self);
void VYR_FLAT_CALL CSharp_SubstrateWoodType_unset_WoodType(void* self);

/* SubstrateVinylType */
void* VYR_FLAT_CALL CSharp_new_SubstrateVinylType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_SubstrateVinylType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_SubstrateVinylType(void* self);
void* VYR_FLAT_CALL CSharp_SubstrateVinylTypeUpcast(void* self);
const char* VYR_FLAT_CALL CSharp_SubstrateVinylType_id_get(void);
void VYR_FLAT_CALL CSharp_SubstrateVinylType_id_set(const char* identity);
void* VYR_FLAT_CALL CSharp_SubstrateVinylType_clone(void* self);
char* VYR_FLAT_CALL CSharp_SubstrateVinylType_getid(void* self);
int32_t VYR_FLAT_CALL CSharp_SubstrateVinylType_has_id(void* self, const char* identity);
void VYR_FLAT_CALL CSharp_SubstrateVinylType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_SubstrateVinylType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_SubstrateVinylType_is_occurs_ok(void* self);
double VYR_FLAT_CALL CSharp_SubstrateVinylType_get_VinylWeight(void* self);
int32_t VYR_FLAT_CALL CSharp_SubstrateVinylType_set_VinylWeight(void* self, double value);
int32_t VYR_FLAT_CALL CSharp_SubstrateVinylType_isset_VinylWeight(void* self);
void VYR_FLAT_CALL CSharp_SubstrateVinylType_unset_VinylWeight(void* self);
char16_t* VYR_FLAT_CALL CSharp_SubstrateVinylType_get_VinylType(void* self);
int32_t VYR_FLAT_CALL CSharp_SubstrateVinylType_set_VinylType(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_SubstrateVinylType_isset_VinylType(void* self);
void VYR_FLAT_CALL CSharp_SubstrateVinylType_unset_VinylType(void* self);

/* SubstrateTileType */
void* VYR_FLAT_CALL CSharp_new_SubstrateTileType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_SubstrateTileType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_SubstrateTileType(void* self);
void* VYR_FLAT_CALL CSharp_SubstrateTileTypeUpcast(void* self);
const char* VYR_FLAT_CALL CSharp_SubstrateTileType_id_get(void);
void VYR_FLAT_CALL CSharp_SubstrateTileType_id_set(const char* identity);
void* VYR_FLAT_CALL CSharp_SubstrateTileType_clone(void* self);
char* VYR_FLAT_CALL CSharp_SubstrateTileType_getid(void* self);
int32_t VYR_FLAT_CALL CSharp_SubstrateTileType_has_id(void* self, const char* identity);
void VYR_FLAT_CALL CSharp_SubstrateTileType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_SubstrateTileType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_SubstrateTileType_is_occurs_ok(void* self);
double VYR_FLAT_CALL CSharp_SubstrateTileType_get_TileWeight(void* self);
int32_t VYR_FLAT_CALL CSharp_SubstrateTileType_set_TileWeight(void* self, double value);
int32_t VYR_FLAT_CALL CSharp_SubstrateTileType_isset_TileWeight(void* self);
void VYR_FLAT_CALL CSharp_SubstrateTileType_unset_TileWeight(void* self);
char16_t* VYR_FLAT_CALL CSharp_SubstrateTileType_get_TileType(void* self);
int32_t VYR_FLAT_CALL CSharp_SubstrateTileType_set_TileType(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_SubstrateTileType_isset_TileType(void* self);
void VYR_FLAT_CALL CSharp_SubstrateTileType_unset_TileType(void* self);

/* SubstrateFilmType */
void* VYR_FLAT_CALL CSharp_new_SubstrateFilmType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_SubstrateFilmType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_SubstrateFilmType(void* self);
void* VYR_FLAT_CALL CSharp_SubstrateFilmTypeUpcast(void* self);
const char* VYR_FLAT_CALL CSharp_SubstrateFilmType_id_get(void);
void VYR_FLAT_CALL CSharp_SubstrateFilmType_id_set(const char* identity);
void* VYR_FLAT_CALL CSharp_SubstrateFilmType_clone(void* self);
char* VYR_FLAT_CALL CSharp_SubstrateFilmType_getid(void* self);
int32_t VYR_FLAT_CALL CSharp_SubstrateFilmType_has_id(void* self, const char* identity);
void VYR_FLAT_CALL CSharp_SubstrateFilmType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_SubstrateFilmType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_SubstrateFilmType_is_occurs_ok(void* self);
double VYR_FLAT_CALL CSharp_SubstrateFilmType_get_FilmWeight(void* self);
int32_t VYR_FLAT_CALL CSharp_SubstrateFilmType_set_FilmWeight(void* self, double value);
int32_t VYR_FLAT_CALL CSharp_SubstrateFilmType_isset_FilmWeight(void* self);
void VYR_FLAT_CALL CSharp_SubstrateFilmType_unset_FilmWeight(void* self);
char16_t* VYR_FLAT_CALL CSharp_SubstrateFilmType_get_FilmType(void* self);
int32_t VYR_FLAT_CALL CSharp_SubstrateFilmType_set_FilmType(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_SubstrateFilmType_isset_FilmType(void* self);
void VYR_FLAT_CALL CSharp_SubstrateFilmType_unset_FilmType(void* self);

/* SubstrateTextileType */
void* VYR_FLAT_CALL CSharp_new_SubstrateTextileType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_SubstrateTextileType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_SubstrateTextileType(void* self);
void* VYR_FLAT_CALL CSharp_SubstrateTextileTypeUpcast(void* self);
const char* VYR_FLAT_CALL CSharp_SubstrateTextileType_id_get(void);
void VYR_FLAT_CALL CSharp_SubstrateTextileType_id_set(const char* identity);
void* VYR_FLAT_CALL CSharp_SubstrateTextileType_clone(void* self);
char* VYR_FLAT_CALL CSharp_SubstrateTextileType_getid(void* self);
int32_t VYR_FLAT_CALL CSharp_SubstrateTextileType_has_id(void* self, const char* identity);
void VYR_FLAT_CALL CSharp_SubstrateTextileType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_SubstrateTextileType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_SubstrateTextileType_is_occurs_ok(void* self);
double VYR_FLAT_CALL CSharp_SubstrateTextileType_get_TextileWeight(void* self);
int32_t VYR_FLAT_CALL CSharp_SubstrateTextileType_set_TextileWeight(void* self, double value);
int32_t VYR_FLAT_CALL CSharp_SubstrateTextileType_isset_TextileWeight(void* self);
void VYR_FLAT_CALL CSharp_SubstrateTextileType_unset_TextileWeight(void* self);
char16_t* VYR_FLAT_CALL CSharp_SubstrateTextileType_get_TextileType(void* self);
int32_t VYR_FLAT_CALL CSharp_SubstrateTextileType_set_TextileType(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_SubstrateTextileType_isset_TextileType(void* self);
void VYR_FLAT_CALL CSharp_SubstrateTextileType_unset_TextileType(void* self);

/* SubstratePaper */
void* VYR_FLAT_CALL CSharp_new_SubstratePaper__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_SubstratePaper__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_SubstratePaper(void* self);
void* VYR_FLAT_CALL CSharp_SubstratePaperUpcast(void* self);
void* VYR_FLAT_CALL CSharp_SubstratePaper_ns_map(void);
int32_t VYR_FLAT_CALL CSharp_SubstratePaper_unmarshal__SWIG_0(void* self, const char* path);
int32_t VYR_FLAT_CALL CSharp_SubstratePaper_unmarshal__SWIG_1(void* self, const char* data, uint32_t size);
int32_t VYR_FLAT_CALL CSharp_SubstratePaper_marshal__SWIG_0(void* self, const char* path);

/* SubstrateGeneric */
void* VYR_FLAT_CALL CSharp_new_SubstrateGeneric__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_SubstrateGeneric__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_SubstrateGeneric(void* self);
void* VYR_FLAT_CALL CSharp_SubstrateGenericUpcast(void* self);
void* VYR_FLAT_CALL CSharp_SubstrateGeneric_ns_map(void);
int32_t VYR_FLAT_CALL CSharp_SubstrateGeneric_unmarshal__SWIG_0(void* self, const char* path);
int32_t VYR_FLAT_CALL CSharp_SubstrateGeneric_unmarshal__SWIG_1(void* self, const char* data, uint32_t size);
int32_t VYR_FLAT_CALL CSharp_SubstrateGeneric_marshal__SWIG_0(void* self, const char* path);

/* SubstrateMetal */
void* VYR_FLAT_CALL CSharp_new_SubstrateMetal__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_SubstrateMetal__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_SubstrateMetal(void* self);
void* VYR_FLAT_CALL CSharp_SubstrateMetalUpcast(void* self);
void* VYR_FLAT_CALL CSharp_SubstrateMetal_ns_map(void);
int32_t VYR_FLAT_CALL CSharp_SubstrateMetal_unmarshal__SWIG_0(void* self, const char* path);
int32_t VYR_FLAT_CALL CSharp_SubstrateMetal_unmarshal__SWIG_1(void* self, const char* data, uint32_t size);
int32_t VYR_FLAT_CALL CSharp_SubstrateMetal_marshal__SWIG_0(void* self, const char* path);

/* SubstratePlastic */
void* VYR_FLAT_CALL CSharp_new_SubstratePlastic__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_SubstratePlastic__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_SubstratePlastic(void* self);
void* VYR_FLAT_CALL CSharp_SubstratePlasticUpcast(void* self);
void* VYR_FLAT_CALL CSharp_SubstratePlastic_ns_map(void);
int32_t VYR_FLAT_CALL CSharp_SubstratePlastic_unmarshal__SWIG_0(void* self, const char* path);
int32_t VYR_FLAT_CALL CSharp_SubstratePlastic_unmarshal__SWIG_1(void* self, const char* data, uint32_t size);
int32_t VYR_FLAT_CALL CSharp_SubstratePlastic_marshal__SWIG_0(void* self, const char* path);

/* SubstrateWood */
void* VYR_FLAT_CALL CSharp_new_SubstrateWood__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_SubstrateWood__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_SubstrateWood(void* self);
void* VYR_FLAT_CALL CSharp_SubstrateWoodUpcast(void* self);
void* VYR_FLAT_CALL CSharp_SubstrateWood_ns_map(void);
int32_t VYR_FLAT_CALL CSharp_SubstrateWood_unmarshal__SWIG_0(void* self, const char* path);
int32_t VYR_FLAT_CALL CSharp_SubstrateWood_unmarshal__SWIG_1(void* self, const char* data, uint32_t size);
int32_t VYR_FLAT_CALL CSharp_SubstrateWood_marshal__SWIG_0(void* self, const char* path);

/* SubstrateVinyl */
void* VYR_FLAT_CALL CSharp_new_SubstrateVinyl__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_SubstrateVinyl__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_SubstrateVinyl(void* self);
void* VYR_FLAT_CALL CSharp_SubstrateVinylUpcast(void* self);
void* VYR_FLAT_CALL CSharp_SubstrateVinyl_ns_map(void);
int32_t VYR_FLAT_CALL CSharp_SubstrateVinyl_unmarshal__SWIG_0(void* self, const char* path);
int32_t VYR_FLAT_CALL CSharp_SubstrateVinyl_unmarshal__SWIG_1(void* self, const char* data, uint32_t size);
int32_t VYR_FLAT_CALL CSharp_SubstrateVinyl_marshal__SWIG_0(void* self, const char* path);

/* SubstrateTile */
void* VYR_FLAT_CALL CSharp_new_SubstrateTile__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_SubstrateTile__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_SubstrateTile(void* self);
void* VYR_FLAT_CALL CSharp_SubstrateTileUpcast(void* self);
void* VYR_FLAT_CALL CSharp_SubstrateTile_ns_map(void);
int32_t VYR_FLAT_CALL CSharp_SubstrateTile_unmarshal__SWIG_0(void* self, const char* path);
int32_t VYR_FLAT_CALL CSharp_SubstrateTile_unmarshal__SWIG_1(void* self, const char* data, uint32_t size);
int32_t VYR_FLAT_CALL CSharp_SubstrateTile_marshal__SWIG_0(void* self, const char* path);

/* SubstrateFilm */
void* VYR_FLAT_CALL CSharp_new_SubstrateFilm__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_SubstrateFilm__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_SubstrateFilm(void* self);
void* VYR_FLAT_CALL CSharp_SubstrateFilmUpcast(void* self);
void* VYR_FLAT_CALL CSharp_SubstrateFilm_ns_map(void);
int32_t VYR_FLAT_CALL CSharp_SubstrateFilm_unmarshal__SWIG_0(void* self, const char* path);
int32_t VYR_FLAT_CALL CSharp_SubstrateFilm_unmarshal__SWIG_1(void* self, const char* data, uint32_t size);
int32_t VYR_FLAT_CALL CSharp_SubstrateFilm_marshal__SWIG_0(void* self, const char* path);

/* SubstrateTextile */
void* VYR_FLAT_CALL CSharp_new_SubstrateTextile__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_SubstrateTextile__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_SubstrateTextile(void* self);
void* VYR_FLAT_CALL CSharp_SubstrateTextileUpcast(void* self);
void* VYR_FLAT_CALL CSharp_SubstrateTextile_ns_map(void);
int32_t VYR_FLAT_CALL CSharp_SubstrateTextile_unmarshal__SWIG_0(void* self, const char* path);
int32_t VYR_FLAT_CALL CSharp_SubstrateTextile_unmarshal__SWIG_1(void* self, const char* data, uint32_t size);
int32_t VYR_FLAT_CALL CSharp_SubstrateTextile_marshal__SWIG_0(void* self, const char* path);

/* SampleType */
void* VYR_FLAT_CALL CSharp_new_SampleType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_SampleType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_SampleType(void* self);
const char* VYR_FLAT_CALL CSharp_SampleType_id_get(void);
void VYR_FLAT_CALL CSharp_SampleType_id_set(const char* identity);
void* VYR_FLAT_CALL CSharp_SampleType_factory(int32_t ns_id, const char* name);
void* VYR_FLAT_CALL CSharp_SampleType_clone(void* self);
char* VYR_FLAT_CALL CSharp_SampleType_getid(void* self);
int32_t VYR_FLAT_CALL CSharp_SampleType_has_id(void* self, const char* identity);
void VYR_FLAT_CALL CSharp_SampleType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_SampleType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_SampleType_is_occurs_ok(void* self);
uint32_t VYR_FLAT_CALL CSharp_SampleType_size_CustomAttribute(void* self);
void* VYR_FLAT_CALL CSharp_SampleType_get_CustomAttribute__SWIG_0(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_SampleType_assign_CustomAttribute(void* self, uint32_t index, void* value);
int32_t VYR_FLAT_CALL CSharp_SampleType_append_CustomAttribute(void* self);
int32_t VYR_FLAT_CALL CSharp_SampleType_insert_CustomAttribute(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_SampleType_back_CustomAttribute(void* self);
void VYR_FLAT_CALL CSharp_SampleType_delete_CustomAttribute(void* self, uint32_t index);
void VYR_FLAT_CALL CSharp_SampleType_clear_CustomAttribute(void* self);
void* VYR_FLAT_CALL CSharp_SampleType_get_Substrate__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_SampleType_assign_Substrate(void* self, void* value);
char16_t* VYR_FLAT_CALL CSharp_SampleType_get_Backing(void* self);
int32_t VYR_FLAT_CALL CSharp_SampleType_set_Backing(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_SampleType_getenum_Backing(void* self);
int32_t VYR_FLAT_CALL CSharp_SampleType_setenum_Backing(void* self, int32_t number);
int32_t VYR_FLAT_CALL CSharp_SampleType_isset_Backing(void* self);
void VYR_FLAT_CALL CSharp_SampleType_unset_Backing(void* self);
char16_t* VYR_FLAT_CALL CSharp_SampleType_get_Manufacturer(void* self);
int32_t VYR_FLAT_CALL CSharp_SampleType_set_Manufacturer(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_SampleType_isset_Manufacturer(void* self);
void VYR_FLAT_CALL CSharp_SampleType_unset_Manufacturer(void* self);
void* VYR_FLAT_CALL CSharp_SampleType_get_ProductionDate(void* self);
int32_t VYR_FLAT_CALL CSharp_SampleType_set_ProductionDate(void* self, void* value);
int32_t VYR_FLAT_CALL CSharp_SampleType_isset_ProductionDate(void* self);
void VYR_FLAT_CALL CSharp_SampleType_unset_ProductionDate(void* self);
char16_t* VYR_FLAT_CALL CSharp_SampleType_get_SerialNumber(void* self);
int32_t VYR_FLAT_CALL CSharp_SampleType_set_SerialNumber(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_SampleType_isset_SerialNumber(void* self);
void VYR_FLAT_CALL CSharp_SampleType_unset_SerialNumber(void* self);
char16_t* VYR_FLAT_CALL CSharp_SampleType_get_Comment(void* self);
int32_t VYR_FLAT_CALL CSharp_SampleType_set_Comment(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_SampleType_isset_Comment(void* self);
void VYR_FLAT_CALL CSharp_SampleType_unset_Comment(void* self);

/* Sample */
void VYR_FLAT_CALL CSharp_delete_Sample(void* self);
void* VYR_FLAT_CALL CSharp_SampleUpcast(void* self);

/* Specification */
void* VYR_FLAT_CALL CSharp_new_Specification__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_Specification__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_Specification(void* self);
void VYR_FLAT_CALL CSharp_Specification_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_Specification_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_Specification_is_occurs_ok(void* self);
double VYR_FLAT_CALL CSharp_Specification_get_SampleWidth(void* self);
int32_t VYR_FLAT_CALL CSharp_Specification_set_SampleWidth(void* self, double value);
double VYR_FLAT_CALL CSharp_Specification_get_SampleHeight(void* self);
int32_t VYR_FLAT_CALL CSharp_Specification_set_SampleHeight(void* self, double value);

/* SampleSpotType */
void* VYR_FLAT_CALL CSharp_new_SampleSpotType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_SampleSpotType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_SampleSpotType(void* self);
void* VYR_FLAT_CALL CSharp_SampleSpotTypeUpcast(void* self);
const char* VYR_FLAT_CALL CSharp_SampleSpotType_id_get(void);
void VYR_FLAT_CALL CSharp_SampleSpotType_id_set(const char* identity);
void* VYR_FLAT_CALL CSharp_SampleSpotType_clone(void* self);
char* VYR_FLAT_CALL CSharp_SampleSpotType_getid(void* self);
int32_t VYR_FLAT_CALL CSharp_SampleSpotType_has_id(void* self, const char* identity);
void VYR_FLAT_CALL CSharp_SampleSpotType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_SampleSpotType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_SampleSpotType_is_occurs_ok(void* self);
void* VYR_FLAT_CALL CSharp_SampleSpotType_get_Specification__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_SampleSpotType_assign_Specification(void* self, void* value);

/* SampleTargetType */
void* VYR_FLAT_CALL CSharp_new_SampleTargetType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_SampleTargetType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_SampleTargetType(void* self);
void* VYR_FLAT_CALL CSharp_SampleTargetTypeUpcast(void* self);
const char* VYR_FLAT_CALL CSharp_SampleTargetType_id_get(void);
void VYR_FLAT_CALL CSharp_SampleTargetType_id_set(const char* identity);
void* VYR_FLAT_CALL CSharp_SampleTargetType_clone(void* self);
char* VYR_FLAT_CALL CSharp_SampleTargetType_getid(void* self);
int32_t VYR_FLAT_CALL CSharp_SampleTargetType_has_id(void* self, const char* identity);
void VYR_FLAT_CALL CSharp_SampleTargetType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_SampleTargetType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_SampleTargetType_is_occurs_ok(void* self);
char16_t* VYR_FLAT_CALL CSharp_SampleTargetType_get_CustomTarget(void* self);
int32_t VYR_FLAT_CALL CSharp_SampleTargetType_set_CustomTarget(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_SampleTargetType_isset_CustomTarget(void* self);
void VYR_FLAT_CALL CSharp_SampleTargetType_unset_CustomTarget(void* self);
char16_t* VYR_FLAT_CALL CSharp_SampleTargetType_get_Target(void* self);
int32_t VYR_FLAT_CALL CSharp_SampleTargetType_set_Target(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_SampleTargetType_getenum_Target(void* self);
int32_t VYR_FLAT_CALL CSharp_SampleTargetType_setenum_Target(void* self, int32_t number);

/* SampleSpot */
void* VYR_FLAT_CALL CSharp_new_SampleSpot__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_SampleSpot__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_SampleSpot(void* self);
void* VYR_FLAT_CALL CSharp_SampleSpotUpcast(void* self);
void* VYR_FLAT_CALL CSharp_SampleSpot_ns_map(void);
int32_t VYR_FLAT_CALL CSharp_SampleSpot_unmarshal__SWIG_0(void* self, const char* path);
int32_t VYR_FLAT_CALL CSharp_SampleSpot_unmarshal__SWIG_1(void* self, const char* data, uint32_t size);
int32_t VYR_FLAT_CALL CSharp_SampleSpot_marshal__SWIG_0(void* self, const char* path);

/* SampleTarget */
void* VYR_FLAT_CALL CSharp_new_SampleTarget__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_SampleTarget__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_SampleTarget(void* self);
void* VYR_FLAT_CALL CSharp_SampleTargetUpcast(void* self);
void* VYR_FLAT_CALL CSharp_SampleTarget_ns_map(void);
int32_t VYR_FLAT_CALL CSharp_SampleTarget_unmarshal__SWIG_0(void* self, const char* path);
int32_t VYR_FLAT_CALL CSharp_SampleTarget_unmarshal__SWIG_1(void* self, const char* data, uint32_t size);
int32_t VYR_FLAT_CALL CSharp_SampleTarget_marshal__SWIG_0(void* self, const char* path);

/* FunctionType */
void* VYR_FLAT_CALL CSharp_new_FunctionType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_FunctionType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_FunctionType(void* self);
const char* VYR_FLAT_CALL CSharp_FunctionType_id_get(void);
void VYR_FLAT_CALL CSharp_FunctionType_id_set(const char* identity);
void* VYR_FLAT_CALL CSharp_FunctionType_factory(int32_t ns_id, const char* name);
void* VYR_FLAT_CALL CSharp_FunctionType_clone(void* self);
char* VYR_FLAT_CALL CSharp_FunctionType_getid(void* self);
int32_t VYR_FLAT_CALL CSharp_FunctionType_has_id(void* self, const char* identity);
void VYR_FLAT_CALL CSharp_FunctionType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_FunctionType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_FunctionType_is_occurs_ok(void* self);
uint32_t VYR_FLAT_CALL CSharp_FunctionType_size_CustomAttribute(void* self);
void* VYR_FLAT_CALL CSharp_FunctionType_get_CustomAttribute__SWIG_0(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_FunctionType_assign_CustomAttribute(void* self, uint32_t index, void* value);
int32_t VYR_FLAT_CALL CSharp_FunctionType_append_CustomAttribute(void* self);
int32_t VYR_FLAT_CALL CSharp_FunctionType_insert_CustomAttribute(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_FunctionType_back_CustomAttribute(void* self);
void VYR_FLAT_CALL CSharp_FunctionType_delete_CustomAttribute(void* self, uint32_t index);
void VYR_FLAT_CALL CSharp_FunctionType_clear_CustomAttribute(void* self);
double VYR_FLAT_CALL CSharp_FunctionType_get_Result(void* self);
int32_t VYR_FLAT_CALL CSharp_FunctionType_set_Result(void* self, double value);
int32_t VYR_FLAT_CALL CSharp_FunctionType_isset_Result(void* self);
void VYR_FLAT_CALL CSharp_FunctionType_unset_Result(void* self);

/* Function */
void* VYR_FLAT_CALL CSharp_new_Function__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_Function__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_Function(void* self);
void* VYR_FLAT_CALL CSharp_FunctionUpcast(void* self);
void* VYR_FLAT_CALL CSharp_Function_ns_map(void);
int32_t VYR_FLAT_CALL CSharp_Function_unmarshal__SWIG_0(void* self, const char* path);
int32_t VYR_FLAT_CALL CSharp_Function_unmarshal__SWIG_1(void* self, const char* data, uint32_t size);
int32_t VYR_FLAT_CALL CSharp_Function_marshal__SWIG_0(void* self, const char* path);

/* FunctionGenericType */
void* VYR_FLAT_CALL CSharp_new_FunctionGenericType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_FunctionGenericType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_FunctionGenericType(void* self);
void* VYR_FLAT_CALL CSharp_FunctionGenericTypeUpcast(void* self);
const char* VYR_FLAT_CALL CSharp_FunctionGenericType_id_get(void);
void VYR_FLAT_CALL CSharp_FunctionGenericType_id_set(const char* identity);
void* VYR_FLAT_CALL CSharp_FunctionGenericType_clone(void* self);
char* VYR_FLAT_CALL CSharp_FunctionGenericType_getid(void* self);
int32_t VYR_FLAT_CALL CSharp_FunctionGenericType_has_id(void* self, const char* identity);
void VYR_FLAT_CALL CSharp_FunctionGenericType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_FunctionGenericType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_FunctionGenericType_is_occurs_ok(void* self);
char16_t* VYR_FLAT_CALL CSharp_FunctionGenericType_get_Name(void* self);
int32_t VYR_FLAT_CALL CSharp_FunctionGenericType_set_Name(void* self, const char16_t* value);
uint32_t VYR_FLAT_CALL CSharp_FunctionGenericType_size_Parameters(void* self);
void* VYR_FLAT_CALL CSharp_FunctionGenericType_get_Parameters__SWIG_0(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_FunctionGenericType_assign_Parameters(void* self, uint32_t index, void* value);
int32_t VYR_FLAT_CALL CSharp_FunctionGenericType_append_Parameters(void* self);
int32_t VYR_FLAT_CALL CSharp_FunctionGenericType_insert_Parameters(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_FunctionGenericType_back_Parameters(void* self);
void VYR_FLAT_CALL CSharp_FunctionGenericType_delete_Parameters(void* self, uint32_t index);
void VYR_FLAT_CALL CSharp_FunctionGenericType_clear_Parameters(void* self);

/* ValueChoice */
void* VYR_FLAT_CALL CSharp_new_ValueChoice__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ValueChoice__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ValueChoice(void* self);
void VYR_FLAT_CALL CSharp_ValueChoice_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_ValueChoice_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_ValueChoice_is_occurs_ok(void* self);
int32_t VYR_FLAT_CALL CSharp_ValueChoice_getchosen(void* self);
double VYR_FLAT_CALL CSharp_ValueChoice_get_Double(void* self);
int32_t VYR_FLAT_CALL CSharp_ValueChoice_set_Double(void* self, double value);
char16_t* VYR_FLAT_CALL CSharp_ValueChoice_get_String(void* self);
int32_t VYR_FLAT_CALL CSharp_ValueChoice_set_String(void* self, const char16_t* value);

/* Parameters */
void* VYR_FLAT_CALL CSharp_new_Parameters__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_Parameters__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_Parameters(void* self);
void VYR_FLAT_CALL CSharp_Parameters_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_Parameters_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_Parameters_is_occurs_ok(void* self);
char16_t* VYR_FLAT_CALL CSharp_Parameters_get_Name(void* self);
int32_t VYR_FLAT_CALL CSharp_Parameters_set_Name(void* self, const char16_t* value);
void* VYR_FLAT_CALL CSharp_Parameters_get_ValueChoice__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_Parameters_assign_ValueChoice(void* self, void* value);

/* FunctionDEType */
void* VYR_FLAT_CALL CSharp_new_FunctionDEType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_FunctionDEType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_FunctionDEType(void* self);
void* VYR_FLAT_CALL CSharp_FunctionDETypeUpcast(void* self);
const char* VYR_FLAT_CALL CSharp_FunctionDEType_id_get(void);
void VYR_FLAT_CALL CSharp_FunctionDEType_id_set(const char* identity);
void* VYR_FLAT_CALL CSharp_FunctionDEType_clone(void* self);
char* VYR_FLAT_CALL CSharp_FunctionDEType_getid(void* self);
int32_t VYR_FLAT_CALL CSharp_FunctionDEType_has_id(void* self, const char* identity);
void VYR_FLAT_CALL CSharp_FunctionDEType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_FunctionDEType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_FunctionDEType_is_occurs_ok(void* self);

/* FunctionMeanDEType */
void* VYR_FLAT_CALL CSharp_new_FunctionMeanDEType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_FunctionMeanDEType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_FunctionMeanDEType(void* self);
void* VYR_FLAT_CALL CSharp_FunctionMeanDETypeUpcast(void* self);
const char* VYR_FLAT_CALL CSharp_FunctionMeanDEType_id_get(void);
void VYR_FLAT_CALL CSharp_FunctionMeanDEType_id_set(const char* identity);
void* VYR_FLAT_CALL CSharp_FunctionMeanDEType_clone(void* self);
char* VYR_FLAT_CALL CSharp_FunctionMeanDEType_getid(void* self);
int32_t VYR_FLAT_CALL CSharp_FunctionMeanDEType_has_id(void* self, const char* identity);
void VYR_FLAT_CALL CSharp_FunctionMeanDEType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_FunctionMeanDEType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_FunctionMeanDEType_is_occurs_ok(void* self);

/* FunctionDE94Type */
void* VYR_FLAT_CALL CSharp_new_FunctionDE94Type__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_FunctionDE94Type__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_FunctionDE94Type(void* self);
void* VYR_FLAT_CALL CSharp_FunctionDE94TypeUpcast(void* self);
const char* VYR_FLAT_CALL CSharp_FunctionDE94Type_id_get(void);
void VYR_FLAT_CALL CSharp_FunctionDE94Type_id_set(const char* identity);
void* VYR_FLAT_CALL CSharp_FunctionDE94Type_clone(void* self);
char* VYR_FLAT_CALL CSharp_FunctionDE94Type_getid(void* self);
int32_t VYR_FLAT_CALL CSharp_FunctionDE94Type_has_id(void* self, const char* identity);
void VYR_FLAT_CALL CSharp_FunctionDE94Type_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_FunctionDE94Type_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_FunctionDE94Type_is_occurs_ok(void* self);
double VYR_FLAT_CALL CSharp_FunctionDE94Type_get_Param_l(void* self);
int32_t VYR_FLAT_CALL CSharp_FunctionDE94Type_set_Param_l(void* self, double value);
double VYR_FLAT_CALL CSharp_FunctionDE94Type_get_Param_c(void* self);
int32_t VYR_FLAT_CALL CSharp_FunctionDE94Type_set_Param_c(void* self, double value);
double VYR_FLAT_CALL CSharp_FunctionDE94Type_get_Param_h(void* self);
int32_t VYR_FLAT_CALL CSharp_FunctionDE94Type_set_Param_h(void* self, double value);

/* FunctionDE2000Type */
void* VYR_FLAT_CALL CSharp_new_FunctionDE2000Type__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_FunctionDE2000Type__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_FunctionDE2000Type(void* self);
void* VYR_FLAT_CALL CSharp_FunctionDE2000TypeUpcast(void* self);
const char* VYR_FLAT_CALL CSharp_FunctionDE2000Type_id_get(void);
void VYR_FLAT_CALL CSharp_FunctionDE2000Type_id_set(const char* identity);
void* VYR_FLAT_CALL CSharp_FunctionDE2000Type_clone(void* self);
char* VYR_FLAT_CALL CSharp_FunctionDE2000Type_getid(void* self);
int32_t VYR_FLAT_CALL CSharp_FunctionDE2000Type_has_id(void* self, const char* identity);
void VYR_FLAT_CALL CSharp_FunctionDE2000Type_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_FunctionDE2000Type_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_FunctionDE2000Type_is_occurs_ok(void* self);
double VYR_FLAT_CALL CSharp_FunctionDE2000Type_get_Param_l(void* self);
int32_t VYR_FLAT_CALL CSharp_FunctionDE2000Type_set_Param_l(void* self, double value);
double VYR_FLAT_CALL CSharp_FunctionDE2000Type_get_Param_c(void* self);
int32_t VYR_FLAT_CALL CSharp_FunctionDE2000Type_set_Param_c(void* self, double value);
double VYR_FLAT_CALL CSharp_FunctionDE2000Type_get_Param_h(void* self);
int32_t VYR_FLAT_CALL CSharp_FunctionDE2000Type_set_Param_h(void* self, double value);

/* FunctionDEcmcType */
void* VYR_FLAT_CALL CSharp_new_FunctionDEcmcType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_FunctionDEcmcType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_FunctionDEcmcType(void* self);
void* VYR_FLAT_CALL CSharp_FunctionDEcmcTypeUpcast(void* self);
const char* VYR_FLAT_CALL CSharp_FunctionDEcmcType_id_get(void);
void VYR_FLAT_CALL CSharp_FunctionDEcmcType_id_set(const char* identity);
void* VYR_FLAT_CALL CSharp_FunctionDEcmcType_clone(void* self);
char* VYR_FLAT_CALL CSharp_FunctionDEcmcType_getid(void* self);
int32_t VYR_FLAT_CALL CSharp_FunctionDEcmcType_has_id(void* self, const char* identity);
void VYR_FLAT_CALL CSharp_FunctionDEcmcType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_FunctionDEcmcType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_FunctionDEcmcType_is_occurs_ok(void* self);
double VYR_FLAT_CALL CSharp_FunctionDEcmcType_get_Param_l(void* self);
int32_t VYR_FLAT_CALL CSharp_FunctionDEcmcType_set_Param_l(void* self, double value);
double VYR_FLAT_CALL CSharp_FunctionDEcmcType_get_Param_c(void* self);
int32_t VYR_FLAT_CALL CSharp_FunctionDEcmcType_set_Param_c(void* self, double value);

/* FunctionGeneric */
void* VYR_FLAT_CALL CSharp_new_FunctionGeneric__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_FunctionGeneric__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_FunctionGeneric(void* self);
void* VYR_FLAT_CALL CSharp_FunctionGenericUpcast(void* self);
void* VYR_FLAT_CALL CSharp_FunctionGeneric_ns_map(void);
int32_t VYR_FLAT_CALL CSharp_FunctionGeneric_unmarshal__SWIG_0(void* self, const char* path);
int32_t VYR_FLAT_CALL CSharp_FunctionGeneric_unmarshal__SWIG_1(void* self, const char* data, uint32_t size);
int32_t VYR_FLAT_CALL CSharp_FunctionGeneric_marshal__SWIG_0(void* self, const char* path);

/* FunctionDE */
void* VYR_FLAT_CALL CSharp_new_FunctionDE__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_FunctionDE__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_FunctionDE(void* self);
void* VYR_FLAT_CALL CSharp_FunctionDEUpcast(void* self);
void* VYR_FLAT_CALL CSharp_FunctionDE_ns_map(void);
int32_t VYR_FLAT_CALL CSharp_FunctionDE_unmarshal__SWIG_0(void* self, const char* path);
int32_t VYR_FLAT_CALL CSharp_FunctionDE_unmarshal__SWIG_1(void* self, const char* data, uint32_t size);
int32_t VYR_FLAT_CALL CSharp_FunctionDE_marshal__SWIG_0(void* self, const char* path);

/* FunctionMeanDE */
void* VYR_FLAT_CALL CSharp_new_FunctionMeanDE__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_FunctionMeanDE__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_FunctionMeanDE(void* self);
void* VYR_FLAT_CALL CSharp_FunctionMeanDEUpcast(void* self);
void* VYR_FLAT_CALL CSharp_FunctionMeanDE_ns_map(void);
int32_t VYR_FLAT_CALL CSharp_FunctionMeanDE_unmarshal__SWIG_0(void* self, const char* path);
int32_t VYR_FLAT_CALL CSharp_FunctionMeanDE_unmarshal__SWIG_1(void* self, const char* data, uint32_t size);
int32_t VYR_FLAT_CALL CSharp_FunctionMeanDE_marshal__SWIG_0(void* self, const char* path);

/* FunctionDE94 */
void* VYR_FLAT_CALL CSharp_new_FunctionDE94__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_FunctionDE94__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_FunctionDE94(void* self);
void* VYR_FLAT_CALL CSharp_FunctionDE94Upcast(void* self);
void* VYR_FLAT_CALL CSharp_FunctionDE94_ns_map(void);
int32_t VYR_FLAT_CALL CSharp_FunctionDE94_unmarshal__SWIG_0(void* self, const char* path);
int32_t VYR_FLAT_CALL CSharp_FunctionDE94_unmarshal__SWIG_1(void* self, const char* data, uint32_t size);
int32_t VYR_FLAT_CALL CSharp_FunctionDE94_marshal__SWIG_0(void* self, const char* path);

/* FunctionDE2000 */
void* VYR_FLAT_CALL CSharp_new_FunctionDE2000__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_FunctionDE2000__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_FunctionDE2000(void* self);
void* VYR_FLAT_CALL CSharp_FunctionDE2000Upcast(void* self);
void* VYR_FLAT_CALL CSharp_FunctionDE2000_ns_map(void);
int32_t VYR_FLAT_CALL CSharp_FunctionDE2000_unmarshal__SWIG_0(void* self, const char* path);
int32_t VYR_FLAT_CALL CSharp_FunctionDE2000_unmarshal__SWIG_1(void* self, const char* data, uint32_t size);
int32_t VYR_FLAT_CALL CSharp_FunctionDE2000_marshal__SWIG_0(void* self, const char* path);

/* FunctionDECMC */
void* VYR_FLAT_CALL CSharp_new_FunctionDECMC__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_FunctionDECMC__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_FunctionDECMC(void* self);
void* VYR_FLAT_CALL CSharp_FunctionDECMCUpcast(void* self);
void* VYR_FLAT_CALL CSharp_FunctionDECMC_ns_map(void);
int32_t VYR_FLAT_CALL CSharp_FunctionDECMC_unmarshal__SWIG_0(void* self, const char* path);
int32_t VYR_FLAT_CALL CSharp_FunctionDECMC_unmarshal__SWIG_1(void* self, const char* data, uint32_t size);
int32_t VYR_FLAT_CALL CSharp_FunctionDECMC_marshal__SWIG_0(void* self, const char* path);

/* FunctionTolerance */
void* VYR_FLAT_CALL CSharp_new_FunctionTolerance__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_FunctionTolerance__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_FunctionTolerance(void* self);
void* VYR_FLAT_CALL CSharp_FunctionToleranceUpcast(void* self);
const char* VYR_FLAT_CALL CSharp_FunctionTolerance_id_get(void);
void VYR_FLAT_CALL CSharp_FunctionTolerance_id_set(const char* identity);
void* VYR_FLAT_CALL CSharp_FunctionTolerance_clone(void* self);
char* VYR_FLAT_CALL CSharp_FunctionTolerance_getid(void* self);
int32_t VYR_FLAT_CALL CSharp_FunctionTolerance_has_id(void* self, const char* identity);
void VYR_FLAT_CALL CSharp_FunctionTolerance_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_FunctionTolerance_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_FunctionTolerance_is_occurs_ok(void* self);
char16_t* VYR_FLAT_CALL CSharp_FunctionTolerance_get_ToleranceType(void* self);
int32_t VYR_FLAT_CALL CSharp_FunctionTolerance_set_ToleranceType(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_FunctionTolerance_getenum_ToleranceType(void* self);
int32_t VYR_FLAT_CALL CSharp_FunctionTolerance_setenum_ToleranceType(void* self, int32_t number);
uint32_t VYR_FLAT_CALL CSharp_FunctionTolerance_size_Parameters(void* self);
void* VYR_FLAT_CALL CSharp_FunctionTolerance_get_Parameters__SWIG_0(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_FunctionTolerance_assign_Parameters(void* self, uint32_t index, void* value);
int32_t VYR_FLAT_CALL CSharp_FunctionTolerance_append_Parameters(void* self);
int32_t VYR_FLAT_CALL CSharp_FunctionTolerance_insert_Parameters(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_FunctionTolerance_back_Parameters(void* self);
void VYR_FLAT_CALL CSharp_FunctionTolerance_delete_Parameters(void* self, uint32_t index);
void VYR_FLAT_CALL CSharp_FunctionTolerance_clear_Parameters(void* self);

/* ToleranceParameterType */
void* VYR_FLAT_CALL CSharp_new_ToleranceParameterType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ToleranceParameterType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ToleranceParameterType(void* self);
void VYR_FLAT_CALL CSharp_ToleranceParameterType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_ToleranceParameterType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_ToleranceParameterType_is_occurs_ok(void* self);
double VYR_FLAT_CALL CSharp_ToleranceParameterType_get_HighValue(void* self);
int32_t VYR_FLAT_CALL CSharp_ToleranceParameterType_set_HighValue(void* self, double value);
int32_t VYR_FLAT_CALL CSharp_ToleranceParameterType_isset_HighValue(void* self);
void VYR_FLAT_CALL CSharp_ToleranceParameterType_unset_HighValue(void* self);
char16_t* VYR_FLAT_CALL CSharp_ToleranceParameterType_get_ToleranceParameter(void* self);
int32_t VYR_FLAT_CALL CSharp_ToleranceParameterType_set_ToleranceParameter(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ToleranceParameterType_getenum_ToleranceParameter(void* self);
int32_t VYR_FLAT_CALL CSharp_ToleranceParameterType_setenum_ToleranceParameter(void* self, int32_t number);
int32_t VYR_FLAT_CALL CSharp_ToleranceParameterType_isset_ToleranceParameter(void* self);
void VYR_FLAT_CALL CSharp_ToleranceParameterType_unset_ToleranceParameter(void* self);
double VYR_FLAT_CALL CSharp_ToleranceParameterType_get_LowValue(void* self);
int32_t VYR_FLAT_CALL CSharp_ToleranceParameterType_set_LowValue(void* self, double value);

/* FunctionStdDevXType */
void* VYR_FLAT_CALL CSharp_new_FunctionStdDevXType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_FunctionStdDevXType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_FunctionStdDevXType(void* self);
void* VYR_FLAT_CALL CSharp_FunctionStdDevXTypeUpcast(void* self);
const char* VYR_FLAT_CALL CSharp_FunctionStdDevXType_id_get(void);
void VYR_FLAT_CALL CSharp_FunctionStdDevXType_id_set(const char* identity);
void* VYR_FLAT_CALL CSharp_FunctionStdDevXType_clone(void* self);
char* VYR_FLAT_CALL CSharp_FunctionStdDevXType_getid(void* self);
int32_t VYR_FLAT_CALL CSharp_FunctionStdDevXType_has_id(void* self, const char* identity);
void VYR_FLAT_CALL CSharp_FunctionStdDevXType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_FunctionStdDevXType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_FunctionStdDevXType_is_occurs_ok(void* self);

/* FunctionStdDevYType */
void* VYR_FLAT_CALL CSharp_new_FunctionStdDevYType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_FunctionStdDevYType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_FunctionStdDevYType(void* self);
void* VYR_FLAT_CALL CSharp_FunctionStdDevYTypeUpcast(void* self);
const char* VYR_FLAT_CALL CSharp_FunctionStdDevYType_id_get(void);
void VYR_FLAT_CALL CSharp_FunctionStdDevYType_id_set(const char* identity);
void* VYR_FLAT_CALL CSharp_FunctionStdDevYType_clone(void* self);
char* VYR_FLAT_CALL CSharp_FunctionStdDevYType_getid(void* self);
int32_t VYR_FLAT_CALL CSharp_FunctionStdDevYType_has_id(void* self, const char* identity);
void VYR_FLAT_CALL CSharp_FunctionStdDevYType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_FunctionStdDevYType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_FunctionStdDevYType_is_occurs_ok(void* self);

/* FunctionStdDevZType */
void* VYR_FLAT_CALL CSharp_new_FunctionStdDevZType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_FunctionStdDevZType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_FunctionStdDevZType(void* self);
void* VYR_FLAT_CALL CSharp_FunctionStdDevZTypeUpcast(void* self);
const char* VYR_FLAT_CALL CSharp_FunctionStdDevZType_id_get(void);
void VYR_FLAT_CALL CSharp_FunctionStdDevZType_id_set(const char* identity);
void* VYR_FLAT_CALL CSharp_FunctionStdDevZType_clone(void* self);
char* VYR_FLAT_CALL CSharp_FunctionStdDevZType_getid(void* self);
int32_t VYR_FLAT_CALL CSharp_FunctionStdDevZType_has_id(void* self, const char* identity);
void VYR_FLAT_CALL CSharp_FunctionStdDevZType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_FunctionStdDevZType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_FunctionStdDevZType_is_occurs_ok(void* self);

/* FunctionStdDevLType */
void* VYR_FLAT_CALL CSharp_new_FunctionStdDevLType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_FunctionStdDevLType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_FunctionStdDevLType(void* self);
void* VYR_FLAT_CALL CSharp_FunctionStdDevLTypeUpcast(void* self);
const char* VYR_FLAT_CALL CSharp_FunctionStdDevLType_id_get(void);
void VYR_FLAT_CALL CSharp_FunctionStdDevLType_id_set(const char* identity);
void* VYR_FLAT_CALL CSharp_FunctionStdDevLType_clone(void* self);
char* VYR_FLAT_CALL CSharp_FunctionStdDevLType_getid(void* self);
int32_t VYR_FLAT_CALL CSharp_FunctionStdDevLType_has_id(void* self, const char* identity);
void VYR_FLAT_CALL CSharp_FunctionStdDevLType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_FunctionStdDevLType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_FunctionStdDevLType_is_occurs_ok(void* self);

/* FunctionStdDevAType */
void* VYR_FLAT_CALL CSharp_new_FunctionStdDevAType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_FunctionStdDevAType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_FunctionStdDevAType(void* self);
void* VYR_FLAT_CALL CSharp_FunctionStdDevATypeUpcast(void* self);
const char* VYR_FLAT_CALL CSharp_FunctionStdDevAType_id_get(void);
void VYR_FLAT_CALL CSharp_FunctionStdDevAType_id_set(const char* identity);
void* VYR_FLAT_CALL CSharp_FunctionStdDevAType_clone(void* self);
char* VYR_FLAT_CALL CSharp_FunctionStdDevAType_getid(void* self);
int32_t VYR_FLAT_CALL CSharp_FunctionStdDevAType_has_id(void* self, const char* identity);
void VYR_FLAT_CALL CSharp_FunctionStdDevAType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_FunctionStdDevAType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_FunctionStdDevAType_is_occurs_ok(void* self);

/* FunctionStdDevBType */
void* VYR_FLAT_CALL CSharp_new_FunctionStdDevBType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_FunctionStdDevBType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_FunctionStdDevBType(void* self);
void* VYR_FLAT_CALL CSharp_FunctionStdDevBTypeUpcast(void* self);
const char* VYR_FLAT_CALL CSharp_FunctionStdDevBType_id_get(void);
void VYR_FLAT_CALL CSharp_FunctionStdDevBType_id_set(const char* identity);
void* VYR_FLAT_CALL CSharp_FunctionStdDevBType_clone(void* self);
char* VYR_FLAT_CALL CSharp_FunctionStdDevBType_getid(void* self);
int32_t VYR_FLAT_CALL CSharp_FunctionStdDevBType_has_id(void* self, const char* identity);
void VYR_FLAT_CALL CSharp_FunctionStdDevBType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_FunctionStdDevBType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_FunctionStdDevBType_is_occurs_ok(void* self);

/* FunctionStdDevCType */
void* VYR_FLAT_CALL CSharp_new_FunctionStdDevCType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_FunctionStdDevCType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_FunctionStdDevCType(void* self);
void* VYR_FLAT_CALL CSharp_FunctionStdDevCTypeUpcast(void* self);
const char* VYR_FLAT_CALL CSharp_FunctionStdDevCType_id_get(void);
void VYR_FLAT_CALL CSharp_FunctionStdDevCType_id_set(const char* identity);
void* VYR_FLAT_CALL CSharp_FunctionStdDevCType_clone(void* self);
char* VYR_FLAT_CALL CSharp_FunctionStdDevCType_getid(void* self);
int32_t VYR_FLAT_CALL CSharp_FunctionStdDevCType_has_id(void* self, const char* identity);
void VYR_FLAT_CALL CSharp_FunctionStdDevCType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_FunctionStdDevCType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_FunctionStdDevCType_is_occurs_ok(void* self);

/* FunctionStdDevHType */
void* VYR_FLAT_CALL CSharp_new_FunctionStdDevHType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_FunctionStdDevHType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_FunctionStdDevHType(void* self);
void* VYR_FLAT_CALL CSharp_FunctionStdDevHTypeUpcast(void* self);
const char* VYR_FLAT_CALL CSharp_FunctionStdDevHType_id_get(void);
void VYR_FLAT_CALL CSharp_FunctionStdDevHType_id_set(const char* identity);
void* VYR_FLAT_CALL CSharp_FunctionStdDevHType_clone(void* self);
char* VYR_FLAT_CALL CSharp_FunctionStdDevHType_getid(void* self);
int32_t VYR_FLAT_CALL CSharp_FunctionStdDevHType_has_id(void* self, const char* identity);
void VYR_FLAT_CALL CSharp_FunctionStdDevHType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_FunctionStdDevHType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_FunctionStdDevHType_is_occurs_ok(void* self);

/* FunctionAverageStdDevLType */
void* VYR_FLAT_CALL CSharp_new_FunctionAverageStdDevLType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_FunctionAverageStdDevLType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_FunctionAverageStdDevLType(void* self);
void* VYR_FLAT_CALL CSharp_FunctionAverageStdDevLTypeUpcast(void* self);
const char* VYR_FLAT_CALL CSharp_FunctionAverageStdDevLType_id_get(void);
void VYR_FLAT_CALL CSharp_FunctionAverageStdDevLType_id_set(const char* identity);
void* VYR_FLAT_CALL CSharp_FunctionAverageStdDevLType_clone(void* self);
char* VYR_FLAT_CALL CSharp_FunctionAverageStdDevLType_getid(void* self);
int32_t VYR_FLAT_CALL CSharp_FunctionAverageStdDevLType_has_id(void* self, const char* identity);
void VYR_FLAT_CALL CSharp_FunctionAverageStdDevLType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_FunctionAverageStdDevLType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_FunctionAverageStdDevLType_is_occurs_ok(void* self);

/* FunctionAverageStdDevAType */
void* VYR_FLAT_CALL CSharp_new_FunctionAverageStdDevAType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_FunctionAverageStdDevAType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_FunctionAverageStdDevAType(void* self);
void* VYR_FLAT_CALL CSharp_FunctionAverageStdDevATypeUpcast(void* self);
const char* VYR_FLAT_CALL CSharp_FunctionAverageStdDevAType_id_get(void);
void VYR_FLAT_CALL CSharp_FunctionAverageStdDevAType_id_set(const char* identity);
void* VYR_FLAT_CALL CSharp_FunctionAverageStdDevAType_clone(void* self);
char* VYR_FLAT_CALL CSharp_FunctionAverageStdDevAType_getid(void* self);
int32_t VYR_FLAT_CALL CSharp_FunctionAverageStdDevAType_has_id(void* self, const char* identity);
void VYR_FLAT_CALL CSharp_FunctionAverageStdDevAType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_FunctionAverageStdDevAType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_FunctionAverageStdDevAType_is_occurs_ok(void* self);

/* FunctionAverageStdDevBType */
void* VYR_FLAT_CALL CSharp_new_FunctionAverageStdDevBType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_FunctionAverageStdDevBType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_FunctionAverageStdDevBType(void* self);
void* VYR_FLAT_CALL CSharp_FunctionAverageStdDevBTypeUpcast(void* self);
const char* VYR_FLAT_CALL CSharp_FunctionAverageStdDevBType_id_get(void);
void VYR_FLAT_CALL CSharp_FunctionAverageStdDevBType_id_set(const char* identity);
void* VYR_FLAT_CALL CSharp_FunctionAverageStdDevBType_clone(void* self);
char* VYR_FLAT_CALL CSharp_FunctionAverageStdDevBType_getid(void* self);
int32_t VYR_FLAT_CALL CSharp_FunctionAverageStdDevBType_has_id(void* self, const char* identity);
void VYR_FLAT_CALL CSharp_FunctionAverageStdDevBType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_FunctionAverageStdDevBType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_FunctionAverageStdDevBType_is_occurs_ok(void* self);

/* FunctionStdDevX */
void* VYR_FLAT_CALL CSharp_new_FunctionStdDevX__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_FunctionStdDevX__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_FunctionStdDevX(void* self);
void* VYR_FLAT_CALL CSharp_FunctionStdDevXUpcast(void* self);
void* VYR_FLAT_CALL CSharp_FunctionStdDevX_ns_map(void);
int32_t VYR_FLAT_CALL CSharp_FunctionStdDevX_unmarshal__SWIG_0(void* self, const char* path);
int32_t VYR_FLAT_CALL CSharp_FunctionStdDevX_unmarshal__SWIG_1(void* self, const char* data, uint32_t size);
int32_t VYR_FLAT_CALL CSharp_FunctionStdDevX_marshal__SWIG_0(void* self, const char* path);

/* FunctionStdDevY */
void* VYR_FLAT_CALL CSharp_new_FunctionStdDevY__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_FunctionStdDevY__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_FunctionStdDevY(void* self);
void* VYR_FLAT_CALL CSharp_FunctionStdDevYUpcast(void* self);
void* VYR_FLAT_CALL CSharp_FunctionStdDevY_ns_map(void);
int32_t VYR_FLAT_CALL CSharp_FunctionStdDevY_unmarshal__SWIG_0(void* self, const char* path);
int32_t VYR_FLAT_CALL CSharp_FunctionStdDevY_unmarshal__SWIG_1(void* self, const char* data, uint32_t size);
int32_t VYR_FLAT_CALL CSharp_FunctionStdDevY_marshal__SWIG_0(void* self, const char* path);

/* FunctionStdDevZ */
void* VYR_FLAT_CALL CSharp_new_FunctionStdDevZ__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_FunctionStdDevZ__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_FunctionStdDevZ(void* self);
void* VYR_FLAT_CALL CSharp_FunctionStdDevZUpcast(void* self);
void* VYR_FLAT_CALL CSharp_FunctionStdDevZ_ns_map(void);
int32_t VYR_FLAT_CALL CSharp_FunctionStdDevZ_unmarshal__SWIG_0(void* self, const char* path);
int32_t VYR_FLAT_CALL CSharp_FunctionStdDevZ_unmarshal__SWIG_1(void* self, const char* data, uint32_t size);
int32_t VYR_FLAT_CALL CSharp_FunctionStdDevZ_marshal__SWIG_0(void* self, const char* path);

/* FunctionStdDevL */
void* VYR_FLAT_CALL CSharp_new_FunctionStdDevL__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_FunctionStdDevL__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_FunctionStdDevL(void* self);
void* VYR_FLAT_CALL CSharp_FunctionStdDevLUpcast(void* self);
void* VYR_FLAT_CALL CSharp_FunctionStdDevL_ns_map(void);
int32_t VYR_FLAT_CALL CSharp_FunctionStdDevL_unmarshal__SWIG_0(void* self, const char* path);
int32_t VYR_FLAT_CALL CSharp_FunctionStdDevL_unmarshal__SWIG_1(void* self, const char* data, uint32_t size);
int32_t VYR_FLAT_CALL CSharp_FunctionStdDevL_marshal__SWIG_0(void* self, const char* path);

/* FunctionStdDevA */
void* VYR_FLAT_CALL CSharp_new_FunctionStdDevA__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_FunctionStdDevA__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_FunctionStdDevA(void* self);
void* VYR_FLAT_CALL CSharp_FunctionStdDevAUpcast(void* self);
void* VYR_FLAT_CALL CSharp_FunctionStdDevA_ns_map(void);
int32_t VYR_FLAT_CALL CSharp_FunctionStdDevA_unmarshal__SWIG_0(void* self, const char* path);
int32_t VYR_FLAT_CALL CSharp_FunctionStdDevA_unmarshal__SWIG_1(void* self, const char* data, uint32_t size);
int32_t VYR_FLAT_CALL CSharp_FunctionStdDevA_marshal__SWIG_0(void* self, const char* path);

/* FunctionStdDevB */
void* VYR_FLAT_CALL CSharp_new_FunctionStdDevB__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_FunctionStdDevB__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_FunctionStdDevB(void* self);
void* VYR_FLAT_CALL CSharp_FunctionStdDevBUpcast(void* self);
void* VYR_FLAT_CALL CSharp_FunctionStdDevB_ns_map(void);
int32_t VYR_FLAT_CALL CSharp_FunctionStdDevB_unmarshal__SWIG_0(void* self, const char* path);
int32_t VYR_FLAT_CALL CSharp_FunctionStdDevB_unmarshal__SWIG_1(void* self, const char* data, uint32_t size);
int32_t VYR_FLAT_CALL CSharp_FunctionStdDevB_marshal__SWIG_0(void* self, const char* path);

/* FunctionStdDevC */
void* VYR_FLAT_CALL CSharp_new_FunctionStdDevC__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_FunctionStdDevC__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_FunctionStdDevC(void* self);
void* VYR_FLAT_CALL CSharp_FunctionStdDevCUpcast(void* self);
void* VYR_FLAT_CALL CSharp_FunctionStdDevC_ns_map(void);
int32_t VYR_FLAT_CALL CSharp_FunctionStdDevC_unmarshal__SWIG_0(void* self, const char* path);
int32_t VYR_FLAT_CALL CSharp_FunctionStdDevC_unmarshal__SWIG_1(void* self, const char* data, uint32_t size);
int32_t VYR_FLAT_CALL CSharp_FunctionStdDevC_marshal__SWIG_0(void* self, const char* path);

/* FunctionStdDevH */
void* VYR_FLAT_CALL CSharp_new_FunctionStdDevH__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_FunctionStdDevH__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_FunctionStdDevH(void* self);
void* VYR_FLAT_CALL CSharp_FunctionStdDevHUpcast(void* self);
void* VYR_FLAT_CALL CSharp_FunctionStdDevH_ns_map(void);
int32_t VYR_FLAT_CALL CSharp_FunctionStdDevH_unmarshal__SWIG_0(void* self, const char* path);
int32_t VYR_FLAT_CALL CSharp_FunctionStdDevH_unmarshal__SWIG_1(void* self, const char* data, uint32_t size);
int32_t VYR_FLAT_CALL CSharp_FunctionStdDevH_marshal__SWIG_0(void* self, const char* path);

/* FunctionAverageStdDevL */
void* VYR_FLAT_CALL CSharp_new_FunctionAverageStdDevL__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_FunctionAverageStdDevL__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_FunctionAverageStdDevL(void* self);
void* VYR_FLAT_CALL CSharp_FunctionAverageStdDevLUpcast(void* self);
void* VYR_FLAT_CALL CSharp_FunctionAverageStdDevL_ns_map(void);
int32_t VYR_FLAT_CALL CSharp_FunctionAverageStdDevL_unmarshal__SWIG_0(void* self, const char* path);
int32_t VYR_FLAT_CALL CSharp_FunctionAverageStdDevL_unmarshal__SWIG_1(void* self, const char* data, uint32_t size);
int32_t VYR_FLAT_CALL CSharp_FunctionAverageStdDevL_marshal__SWIG_0(void* self, const char* path);

/* FunctionAverageStdDevA */
void* VYR_FLAT_CALL CSharp_new_FunctionAverageStdDevA__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_FunctionAverageStdDevA__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_FunctionAverageStdDevA(void* self);
void* VYR_FLAT_CALL CSharp_FunctionAverageStdDevAUpcast(void* self);
void* VYR_FLAT_CALL CSharp_FunctionAverageStdDevA_ns_map(void);
int32_t VYR_FLAT_CALL CSharp_FunctionAverageStdDevA_unmarshal__SWIG_0(void* self, const char* path);
int32_t VYR_FLAT_CALL CSharp_FunctionAverageStdDevA_unmarshal__SWIG_1(void* self, const char* data, uint32_t size);
int32_t VYR_FLAT_CALL CSharp_FunctionAverageStdDevA_marshal__SWIG_0(void* self, const char* path);

/* FunctionAverageStdDevB */
void* VYR_FLAT_CALL CSharp_new_FunctionAverageStdDevB__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_FunctionAverageStdDevB__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_FunctionAverageStdDevB(void* self);
void* VYR_FLAT_CALL CSharp_FunctionAverageStdDevBUpcast(void* self);
void* VYR_FLAT_CALL CSharp_FunctionAverageStdDevB_ns_map(void);
int32_t VYR_FLAT_CALL CSharp_FunctionAverageStdDevB_unmarshal__SWIG_0(void* self, const char* path);
int32_t VYR_FLAT_CALL CSharp_FunctionAverageStdDevB_unmarshal__SWIG_1(void* self, const char* data, uint32_t size);
int32_t VYR_FLAT_CALL CSharp_FunctionAverageStdDevB_marshal__SWIG_0(void* self, const char* path);

/* CalibrationStateType */
void* VYR_FLAT_CALL CSharp_new_CalibrationStateType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_CalibrationStateType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_CalibrationStateType(void* self);
void VYR_FLAT_CALL CSharp_CalibrationStateType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_CalibrationStateType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_CalibrationStateType_is_occurs_ok(void* self);
void* VYR_FLAT_CALL CSharp_CalibrationStateType_get_CalibrationDateTime(void* self);
int32_t VYR_FLAT_CALL CSharp_CalibrationStateType_set_CalibrationDateTime(void* self, void* value);
int32_t VYR_FLAT_CALL CSharp_CalibrationStateType_isset_CalibrationDateTime(void* self);
void VYR_FLAT_CALL CSharp_CalibrationStateType_unset_CalibrationDateTime(void* self);
char16_t* VYR_FLAT_CALL CSharp_CalibrationStateType_get_CalibrationStateType(void* self);
int32_t VYR_FLAT_CALL CSharp_CalibrationStateType_set_CalibrationStateType(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_CalibrationStateType_getenum_CalibrationStateType(void* self);
int32_t VYR_FLAT_CALL CSharp_CalibrationStateType_setenum_CalibrationStateType(void* self, int32_t number);

/* GlossCompensation */
void* VYR_FLAT_CALL CSharp_new_GlossCompensation__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_GlossCompensation__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_GlossCompensation(void* self);
void VYR_FLAT_CALL CSharp_GlossCompensation_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_GlossCompensation_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_GlossCompensation_is_occurs_ok(void* self);
double VYR_FLAT_CALL CSharp_GlossCompensation_get_CompensationValue(void* self);
int32_t VYR_FLAT_CALL CSharp_GlossCompensation_set_CompensationValue(void* self, double value);
uint32_t VYR_FLAT_CALL CSharp_GlossCompensation_get_GlossCompensation(void* self);
int32_t VYR_FLAT_CALL CSharp_GlossCompensation_set_GlossCompensation(void* self, uint32_t value);
int32_t VYR_FLAT_CALL CSharp_GlossCompensation_isset_GlossCompensation(void* self);
void VYR_FLAT_CALL CSharp_GlossCompensation_unset_GlossCompensation(void* self);

/* Averaging */
void* VYR_FLAT_CALL CSharp_new_Averaging__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_Averaging__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_Averaging(void* self);
void VYR_FLAT_CALL CSharp_Averaging_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_Averaging_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_Averaging_is_occurs_ok(void* self);
uint32_t VYR_FLAT_CALL CSharp_Averaging_get_AveragingValue(void* self);
int32_t VYR_FLAT_CALL CSharp_Averaging_set_AveragingValue(void* self, uint32_t value);
uint32_t VYR_FLAT_CALL CSharp_Averaging_get_Averaging(void* self);
int32_t VYR_FLAT_CALL CSharp_Averaging_set_Averaging(void* self, uint32_t value);
int32_t VYR_FLAT_CALL CSharp_Averaging_isset_Averaging(void* self);
void VYR_FLAT_CALL CSharp_Averaging_unset_Averaging(void* self);

/* DeviceSettings */
void* VYR_FLAT_CALL CSharp_new_DeviceSettings__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_DeviceSettings__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_DeviceSettings(void* self);
void VYR_FLAT_CALL CSharp_DeviceSettings_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_DeviceSettings_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_DeviceSettings_is_occurs_ok(void* self);
uint32_t VYR_FLAT_CALL CSharp_DeviceSettings_size_CustomAttribute(void* self);
void* VYR_FLAT_CALL CSharp_DeviceSettings_get_CustomAttribute__SWIG_0(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_DeviceSettings_assign_CustomAttribute(void* self, uint32_t index, void* value);
int32_t VYR_FLAT_CALL CSharp_DeviceSettings_append_CustomAttribute(void* self);
int32_t VYR_FLAT_CALL CSharp_DeviceSettings_insert_CustomAttribute(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_DeviceSettings_back_CustomAttribute(void* self);
void VYR_FLAT_CALL CSharp_DeviceSettings_delete_CustomAttribute(void* self, uint32_t index);
void VYR_FLAT_CALL CSharp_DeviceSettings_clear_CustomAttribute(void* self);
uint32_t VYR_FLAT_CALL CSharp_DeviceSettings_get_Aperture(void* self);
int32_t VYR_FLAT_CALL CSharp_DeviceSettings_set_Aperture(void* self, uint32_t value);
int32_t VYR_FLAT_CALL CSharp_DeviceSettings_isset_Aperture(void* self);
void VYR_FLAT_CALL CSharp_DeviceSettings_unset_Aperture(void* self);
int32_t VYR_FLAT_CALL CSharp_DeviceSettings_get_LensPosition(void* self);
int32_t VYR_FLAT_CALL CSharp_DeviceSettings_set_LensPosition(void* self, int32_t value);
int32_t VYR_FLAT_CALL CSharp_DeviceSettings_isset_LensPosition(void* self);
void VYR_FLAT_CALL CSharp_DeviceSettings_unset_LensPosition(void* self);
uint32_t VYR_FLAT_CALL CSharp_DeviceSettings_get_GlassCompensation(void* self);
int32_t VYR_FLAT_CALL CSharp_DeviceSettings_set_GlassCompensation(void* self, uint32_t value);
int32_t VYR_FLAT_CALL CSharp_DeviceSettings_isset_GlassCompensation(void* self);
void VYR_FLAT_CALL CSharp_DeviceSettings_unset_GlassCompensation(void* self);
void* VYR_FLAT_CALL CSharp_DeviceSettings_get_GlossCompensation__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_DeviceSettings_assign_GlossCompensation(void* self, void* value);
int32_t VYR_FLAT_CALL CSharp_DeviceSettings_isset_GlossCompensation(void* self);
void VYR_FLAT_CALL CSharp_DeviceSettings_unset_GlossCompensation(void* self);
void* VYR_FLAT_CALL CSharp_DeviceSettings_get_Averaging__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_DeviceSettings_assign_Averaging(void* self, void* value);
int32_t VYR_FLAT_CALL CSharp_DeviceSettings_isset_Averaging(void* self);
void VYR_FLAT_CALL CSharp_DeviceSettings_unset_Averaging(void* self);
uint32_t VYR_FLAT_CALL CSharp_DeviceSettings_get_LinkTrimmer(void* self);
int32_t VYR_FLAT_CALL CSharp_DeviceSettings_set_LinkTrimmer(void* self, uint32_t value);
int32_t VYR_FLAT_CALL CSharp_DeviceSettings_isset_LinkTrimmer(void* self);
void VYR_FLAT_CALL CSharp_DeviceSettings_unset_LinkTrimmer(void* self);

/* DeviceType */
void* VYR_FLAT_CALL CSharp_new_DeviceType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_DeviceType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_DeviceType(void* self);
void VYR_FLAT_CALL CSharp_DeviceType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_DeviceType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_DeviceType_is_occurs_ok(void* self);
uint32_t VYR_FLAT_CALL CSharp_DeviceType_size_CustomAttribute(void* self);
void* VYR_FLAT_CALL CSharp_DeviceType_get_CustomAttribute__SWIG_0(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_DeviceType_assign_CustomAttribute(void* self, uint32_t index, void* value);
int32_t VYR_FLAT_CALL CSharp_DeviceType_append_CustomAttribute(void* self);
int32_t VYR_FLAT_CALL CSharp_DeviceType_insert_CustomAttribute(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_DeviceType_back_CustomAttribute(void* self);
void VYR_FLAT_CALL CSharp_DeviceType_delete_CustomAttribute(void* self, uint32_t index);
void VYR_FLAT_CALL CSharp_DeviceType_clear_CustomAttribute(void* self);
char16_t* VYR_FLAT_CALL CSharp_DeviceType_get_Manufacturer(void* self);
int32_t VYR_FLAT_CALL CSharp_DeviceType_set_Manufacturer(void* self, const char16_t* value);
char16_t* VYR_FLAT_CALL CSharp_DeviceType_get_Model(void* self);
int32_t VYR_FLAT_CALL CSharp_DeviceType_set_Model(void* self, const char16_t* value);
char16_t* VYR_FLAT_CALL CSharp_DeviceType_get_SerialNumber(void* self);
int32_t VYR_FLAT_CALL CSharp_DeviceType_set_SerialNumber(void* self, const char16_t* value);
char16_t* VYR_FLAT_CALL CSharp_DeviceType_get_DeviceClass(void* self);
int32_t VYR_FLAT_CALL CSharp_DeviceType_set_DeviceClass(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_DeviceType_getenum_DeviceClass(void* self);
int32_t VYR_FLAT_CALL CSharp_DeviceType_setenum_DeviceClass(void* self, int32_t number);
int32_t VYR_FLAT_CALL CSharp_DeviceType_isset_DeviceClass(void* self);
void VYR_FLAT_CALL CSharp_DeviceType_unset_DeviceClass(void* self);
char16_t* VYR_FLAT_CALL CSharp_DeviceType_get_FirmwareVersion(void* self);
int32_t VYR_FLAT_CALL CSharp_DeviceType_set_FirmwareVersion(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_DeviceType_isset_FirmwareVersion(void* self);
void VYR_FLAT_CALL CSharp_DeviceType_unset_FirmwareVersion(void* self);
char16_t* VYR_FLAT_CALL CSharp_DeviceType_get_BootFirmwareVersion(void* self);
int32_t VYR_FLAT_CALL CSharp_DeviceType_set_BootFirmwareVersion(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_DeviceType_isset_BootFirmwareVersion(void* self);
void VYR_FLAT_CALL CSharp_DeviceType_unset_BootFirmwareVersion(void* self);
void* VYR_FLAT_CALL CSharp_DeviceType_get_CalibrationState__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_DeviceType_assign_CalibrationState(void* self, void* value);
int32_t VYR_FLAT_CALL CSharp_DeviceType_isset_CalibrationState(void* self);
void VYR_FLAT_CALL CSharp_DeviceType_unset_CalibrationState(void* self);
void* VYR_FLAT_CALL CSharp_DeviceType_get_DeviceSettings__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_DeviceType_assign_DeviceSettings(void* self, void* value);
int32_t VYR_FLAT_CALL CSharp_DeviceType_isset_DeviceSettings(void* self);
void VYR_FLAT_CALL CSharp_DeviceType_unset_DeviceSettings(void* self);

/* ProfileChoice */
void* VYR_FLAT_CALL CSharp_new_ProfileChoice__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ProfileChoice__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ProfileChoice(void* self);
void VYR_FLAT_CALL CSharp_ProfileChoice_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_ProfileChoice_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_ProfileChoice_is_occurs_ok(void* self);
int32_t VYR_FLAT_CALL CSharp_ProfileChoice_getchosen(void* self);
void* VYR_FLAT_CALL CSharp_ProfileChoice_get_ProfileFile__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_ProfileChoice_assign_ProfileFile(void* self, void* value);
char16_t* VYR_FLAT_CALL CSharp_ProfileChoice_get_ProfileURI(void* self);
int32_t VYR_FLAT_CALL CSharp_ProfileChoice_set_ProfileURI(void* self, const char16_t* value);

/* ProfileType */
void* VYR_FLAT_CALL CSharp_new_ProfileType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ProfileType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ProfileType(void* self);
void VYR_FLAT_CALL CSharp_ProfileType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_ProfileType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_ProfileType_is_occurs_ok(void* self);
char16_t* VYR_FLAT_CALL CSharp_ProfileType_get_Direction(void* self);
int32_t VYR_FLAT_CALL CSharp_ProfileType_set_Direction(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ProfileType_getenum_Direction(void* self);
int32_t VYR_FLAT_CALL CSharp_ProfileType_setenum_Direction(void* self, int32_t number);
void* VYR_FLAT_CALL CSharp_ProfileType_get_ProfileChoice__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_ProfileType_assign_ProfileChoice(void* self, void* value);
uint32_t VYR_FLAT_CALL CSharp_ProfileType_size_Parameters(void* self);
void* VYR_FLAT_CALL CSharp_ProfileType_get_Parameters__SWIG_0(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_ProfileType_assign_Parameters(void* self, uint32_t index, void* value);
int32_t VYR_FLAT_CALL CSharp_ProfileType_append_Parameters(void* self);
int32_t VYR_FLAT_CALL CSharp_ProfileType_insert_Parameters(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_ProfileType_back_Parameters(void* self);
void VYR_FLAT_CALL CSharp_ProfileType_delete_Parameters(void* self, uint32_t index);
void VYR_FLAT_CALL CSharp_ProfileType_clear_Parameters(void* self);
void* VYR_FLAT_CALL CSharp_ProfileType_get_Created(void* self);
int32_t VYR_FLAT_CALL CSharp_ProfileType_set_Created(void* self, void* value);
int32_t VYR_FLAT_CALL CSharp_ProfileType_isset_Created(void* self);
void VYR_FLAT_CALL CSharp_ProfileType_unset_Created(void* self);

/* ProfileFile */
void* VYR_FLAT_CALL CSharp_new_ProfileFile__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ProfileFile__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ProfileFile(void* self);
void VYR_FLAT_CALL CSharp_ProfileFile_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_ProfileFile_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_ProfileFile_is_occurs_ok(void* self);
char16_t* VYR_FLAT_CALL CSharp_ProfileFile_get_ProfileName(void* self);
int32_t VYR_FLAT_CALL CSharp_ProfileFile_set_ProfileName(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ProfileFile_isset_ProfileName(void* self);
void VYR_FLAT_CALL CSharp_ProfileFile_unset_ProfileName(void* self);
void* VYR_FLAT_CALL CSharp_ProfileFile_get_ProfileFile(void* self);
int32_t VYR_FLAT_CALL CSharp_ProfileFile_set_ProfileFile(void* self, void* value);

/* ProfileType_Parameters_ValueChoice */
void* VYR_FLAT_CALL CSharp_new_ProfileType_Parameters_ValueChoice__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ProfileType_Parameters_ValueChoice__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ProfileType_Parameters_ValueChoice(void* self);
void VYR_FLAT_CALL CSharp_ProfileType_Parameters_ValueChoice_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_ProfileType_Parameters_ValueChoice_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_ProfileType_Parameters_ValueChoice_is_occurs_ok(void* self);
int32_t VYR_FLAT_CALL CSharp_ProfileType_Parameters_ValueChoice_getchosen(void* self);
double VYR_FLAT_CALL CSharp_ProfileType_Parameters_ValueChoice_get_DoubleValue(void* self);
int32_t VYR_FLAT_CALL CSharp_ProfileType_Parameters_ValueChoice_set_DoubleValue(void* self, double value);
int32_t VYR_FLAT_CALL CSharp_ProfileType_Parameters_ValueChoice_get_IntegerValue(void* self);
int32_t VYR_FLAT_CALL CSharp_ProfileType_Parameters_ValueChoice_set_IntegerValue(void* self, int32_t value);
char16_t* VYR_FLAT_CALL CSharp_ProfileType_Parameters_ValueChoice_get_StringValue(void* self);
int32_t VYR_FLAT_CALL CSharp_ProfileType_Parameters_ValueChoice_set_StringValue(void* self, const char16_t* value);

/* ProfileType_Parameters */
void* VYR_FLAT_CALL CSharp_new_ProfileType_Parameters__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ProfileType_Parameters__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ProfileType_Parameters(void* self);
void VYR_FLAT_CALL CSharp_ProfileType_Parameters_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_ProfileType_Parameters_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_ProfileType_Parameters_is_occurs_ok(void* self);
char16_t* VYR_FLAT_CALL CSharp_ProfileType_Parameters_get_Name(void* self);
int32_t VYR_FLAT_CALL CSharp_ProfileType_Parameters_set_Name(void* self, const char16_t* value);
void* VYR_FLAT_CALL CSharp_ProfileType_Parameters_get_ValueChoice__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_ProfileType_Parameters_assign_ValueChoice(void* self, void* value);

/* LimitsType */
void* VYR_FLAT_CALL CSharp_new_LimitsType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_LimitsType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_LimitsType(void* self);
void VYR_FLAT_CALL CSharp_LimitsType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_LimitsType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_LimitsType_is_occurs_ok(void* self);
uint32_t VYR_FLAT_CALL CSharp_LimitsType_size_CustomAttribute(void* self);
void* VYR_FLAT_CALL CSharp_LimitsType_get_CustomAttribute__SWIG_0(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_LimitsType_assign_CustomAttribute(void* self, uint32_t index, void* value);
int32_t VYR_FLAT_CALL CSharp_LimitsType_append_CustomAttribute(void* self);
int32_t VYR_FLAT_CALL CSharp_LimitsType_insert_CustomAttribute(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_LimitsType_back_CustomAttribute(void* self);
void VYR_FLAT_CALL CSharp_LimitsType_delete_CustomAttribute(void* self, uint32_t index);
void VYR_FLAT_CALL CSharp_LimitsType_clear_CustomAttribute(void* self);
double VYR_FLAT_CALL CSharp_LimitsType_get_HighTolerance(void* self);
int32_t VYR_FLAT_CALL CSharp_LimitsType_set_HighTolerance(void* self, double value);
double VYR_FLAT_CALL CSharp_LimitsType_get_LowTolerance(void* self);
int32_t VYR_FLAT_CALL CSharp_LimitsType_set_LowTolerance(void* self, double value);
int32_t VYR_FLAT_CALL CSharp_LimitsType_isset_LowTolerance(void* self);
void VYR_FLAT_CALL CSharp_LimitsType_unset_LowTolerance(void* self);

/* ToleranceType */
void* VYR_FLAT_CALL CSharp_new_ToleranceType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ToleranceType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ToleranceType(void* self);
void VYR_FLAT_CALL CSharp_ToleranceType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_ToleranceType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_ToleranceType_is_occurs_ok(void* self);
char16_t* VYR_FLAT_CALL CSharp_ToleranceType_get_Name(void* self);
int32_t VYR_FLAT_CALL CSharp_ToleranceType_set_Name(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ToleranceType_isset_Name(void* self);
void VYR_FLAT_CALL CSharp_ToleranceType_unset_Name(void* self);
uint32_t VYR_FLAT_CALL CSharp_ToleranceType_size_CustomAttribute(void* self);
void* VYR_FLAT_CALL CSharp_ToleranceType_get_CustomAttribute__SWIG_0(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_ToleranceType_assign_CustomAttribute(void* self, uint32_t index, void* value);
int32_t VYR_FLAT_CALL CSharp_ToleranceType_append_CustomAttribute(void* self);
int32_t VYR_FLAT_CALL CSharp_ToleranceType_insert_CustomAttribute(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_ToleranceType_back_CustomAttribute(void* self);
void VYR_FLAT_CALL CSharp_ToleranceType_delete_CustomAttribute(void* self, uint32_t index);
void VYR_FLAT_CALL CSharp_ToleranceType_clear_CustomAttribute(void* self);
void* VYR_FLAT_CALL CSharp_ToleranceType_get_Function__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_ToleranceType_assign_Function(void* self, void* value);
void* VYR_FLAT_CALL CSharp_ToleranceType_get_Limits__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_ToleranceType_assign_Limits(void* self, void* value);
int32_t VYR_FLAT_CALL CSharp_ToleranceType_isset_Limits(void* self);
void VYR_FLAT_CALL CSharp_ToleranceType_unset_Limits(void* self);
char16_t* VYR_FLAT_CALL CSharp_ToleranceType_get_PrimaryIlluminant(void* self);
int32_t VYR_FLAT_CALL CSharp_ToleranceType_set_PrimaryIlluminant(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ToleranceType_getenum_PrimaryIlluminant(void* self);
int32_t VYR_FLAT_CALL CSharp_ToleranceType_setenum_PrimaryIlluminant(void* self, int32_t number);
int32_t VYR_FLAT_CALL CSharp_ToleranceType_isset_PrimaryIlluminant(void* self);
void VYR_FLAT_CALL CSharp_ToleranceType_unset_PrimaryIlluminant(void* self);
char16_t* VYR_FLAT_CALL CSharp_ToleranceType_get_SecondaryIlluminant(void* self);
int32_t VYR_FLAT_CALL CSharp_ToleranceType_set_SecondaryIlluminant(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ToleranceType_getenum_SecondaryIlluminant(void* self);
int32_t VYR_FLAT_CALL CSharp_ToleranceType_setenum_SecondaryIlluminant(void* self, int32_t number);
int32_t VYR_FLAT_CALL CSharp_ToleranceType_isset_SecondaryIlluminant(void* self);
void VYR_FLAT_CALL CSharp_ToleranceType_unset_SecondaryIlluminant(void* self);
char16_t* VYR_FLAT_CALL CSharp_ToleranceType_get_TertiaryIlluminant(void* self);
int32_t VYR_FLAT_CALL CSharp_ToleranceType_set_TertiaryIlluminant(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ToleranceType_getenum_TertiaryIlluminant(void* self);
int32_t VYR_FLAT_CALL CSharp_ToleranceType_setenum_TertiaryIlluminant(void* self, int32_t number);
int32_t VYR_FLAT_CALL CSharp_ToleranceType_isset_TertiaryIlluminant(void* self);
void VYR_FLAT_CALL CSharp_ToleranceType_unset_TertiaryIlluminant(void* self);
char16_t* VYR_FLAT_CALL CSharp_ToleranceType_get_FieldOfView(void* self);
int32_t VYR_FLAT_CALL CSharp_ToleranceType_set_FieldOfView(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ToleranceType_getenum_FieldOfView(void* self);
int32_t VYR_FLAT_CALL CSharp_ToleranceType_setenum_FieldOfView(void* self, int32_t number);
int32_t VYR_FLAT_CALL CSharp_ToleranceType_isset_FieldOfView(void* self);
void VYR_FLAT_CALL CSharp_ToleranceType_unset_FieldOfView(void* self);
double VYR_FLAT_CALL CSharp_ToleranceType_get_WarningLevel(void* self);
int32_t VYR_FLAT_CALL CSharp_ToleranceType_set_WarningLevel(void* self, double value);
int32_t VYR_FLAT_CALL CSharp_ToleranceType_isset_WarningLevel(void* self);
void VYR_FLAT_CALL CSharp_ToleranceType_unset_WarningLevel(void* self);
char16_t* VYR_FLAT_CALL CSharp_ToleranceType_get_UniqueID(void* self);
int32_t VYR_FLAT_CALL CSharp_ToleranceType_set_UniqueID(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ToleranceType_isset_UniqueID(void* self);
void VYR_FLAT_CALL CSharp_ToleranceType_unset_UniqueID(void* self);
uint32_t VYR_FLAT_CALL CSharp_ToleranceType_get_Global(void* self);
int32_t VYR_FLAT_CALL CSharp_ToleranceType_set_Global(void* self, uint32_t value);
int32_t VYR_FLAT_CALL CSharp_ToleranceType_isset_Global(void* self);
void VYR_FLAT_CALL CSharp_ToleranceType_unset_Global(void* self);
void* VYR_FLAT_CALL CSharp_ToleranceType_get_Geometry__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_ToleranceType_assign_Geometry(void* self, void* value);
int32_t VYR_FLAT_CALL CSharp_ToleranceType_isset_Geometry(void* self);
void VYR_FLAT_CALL CSharp_ToleranceType_unset_Geometry(void* self);

/* Process */
void* VYR_FLAT_CALL CSharp_new_Process__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_Process__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_Process(void* self);
void VYR_FLAT_CALL CSharp_Process_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_Process_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_Process_is_occurs_ok(void* self);
char16_t* VYR_FLAT_CALL CSharp_Process_get_Name(void* self);
int32_t VYR_FLAT_CALL CSharp_Process_set_Name(void* self, const char16_t* value);
double VYR_FLAT_CALL CSharp_Process_get_Thickness(void* self);
int32_t VYR_FLAT_CALL CSharp_Process_set_Thickness(void* self, double value);
int32_t VYR_FLAT_CALL CSharp_Process_isset_Thickness(void* self);
void VYR_FLAT_CALL CSharp_Process_unset_Thickness(void* self);

/* PhysicalSampleType */
void* VYR_FLAT_CALL CSharp_new_PhysicalSampleType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_PhysicalSampleType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_PhysicalSampleType(void* self);
void VYR_FLAT_CALL CSharp_PhysicalSampleType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_PhysicalSampleType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_PhysicalSampleType_is_occurs_ok(void* self);
uint32_t VYR_FLAT_CALL CSharp_PhysicalSampleType_size_CustomAttribute(void* self);
void* VYR_FLAT_CALL CSharp_PhysicalSampleType_get_CustomAttribute__SWIG_0(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_PhysicalSampleType_assign_CustomAttribute(void* self, uint32_t index, void* value);
int32_t VYR_FLAT_CALL CSharp_PhysicalSampleType_append_CustomAttribute(void* self);
int32_t VYR_FLAT_CALL CSharp_PhysicalSampleType_insert_CustomAttribute(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_PhysicalSampleType_back_CustomAttribute(void* self);
void VYR_FLAT_CALL CSharp_PhysicalSampleType_delete_CustomAttribute(void* self, uint32_t index);
void VYR_FLAT_CALL CSharp_PhysicalSampleType_clear_CustomAttribute(void* self);
char16_t* VYR_FLAT_CALL CSharp_PhysicalSampleType_get_Coating(void* self);
int32_t VYR_FLAT_CALL CSharp_PhysicalSampleType_set_Coating(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_PhysicalSampleType_isset_Coating(void* self);
void VYR_FLAT_CALL CSharp_PhysicalSampleType_unset_Coating(void* self);
void* VYR_FLAT_CALL CSharp_PhysicalSampleType_get_Process__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_PhysicalSampleType_assign_Process(void* self, void* value);
int32_t VYR_FLAT_CALL CSharp_PhysicalSampleType_isset_Process(void* self);
void VYR_FLAT_CALL CSharp_PhysicalSampleType_unset_Process(void* self);
void* VYR_FLAT_CALL CSharp_PhysicalSampleType_get_Sample__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_PhysicalSampleType_assign_Sample(void* self, void* value);

/* ColorQualityControlType */
void* VYR_FLAT_CALL CSharp_new_ColorQualityControlType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_ColorQualityControlType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_ColorQualityControlType(void* self);
void VYR_FLAT_CALL CSharp_ColorQualityControlType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_ColorQualityControlType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorQualityControlType_is_occurs_ok(void* self);
char16_t* VYR_FLAT_CALL CSharp_ColorQualityControlType_get_Name(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorQualityControlType_set_Name(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ColorQualityControlType_isset_Name(void* self);
void VYR_FLAT_CALL CSharp_ColorQualityControlType_unset_Name(void* self);
char16_t* VYR_FLAT_CALL CSharp_ColorQualityControlType_get_Description(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorQualityControlType_set_Description(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ColorQualityControlType_isset_Description(void* self);
void VYR_FLAT_CALL CSharp_ColorQualityControlType_unset_Description(void* self);
char16_t* VYR_FLAT_CALL CSharp_ColorQualityControlType_get_UniqueID(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorQualityControlType_set_UniqueID(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ColorQualityControlType_isset_UniqueID(void* self);
void VYR_FLAT_CALL CSharp_ColorQualityControlType_unset_UniqueID(void* self);
char16_t* VYR_FLAT_CALL CSharp_ColorQualityControlType_get_Comments(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorQualityControlType_set_Comments(void* self, const char16_t* value);
int32_t VYR_FLAT_CALL CSharp_ColorQualityControlType_isset_Comments(void* self);
void VYR_FLAT_CALL CSharp_ColorQualityControlType_unset_Comments(void* self);
uint32_t VYR_FLAT_CALL CSharp_ColorQualityControlType_size_CustomAttribute(void* self);
void* VYR_FLAT_CALL CSharp_ColorQualityControlType_get_CustomAttribute__SWIG_0(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_ColorQualityControlType_assign_CustomAttribute(void* self, uint32_t index, void* value);
int32_t VYR_FLAT_CALL CSharp_ColorQualityControlType_append_CustomAttribute(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorQualityControlType_insert_CustomAttribute(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_ColorQualityControlType_back_CustomAttribute(void* self);
void VYR_FLAT_CALL CSharp_ColorQualityControlType_delete_CustomAttribute(void* self, uint32_t index);
void VYR_FLAT_CALL CSharp_ColorQualityControlType_clear_CustomAttribute(void* self);
uint32_t VYR_FLAT_CALL CSharp_ColorQualityControlType_size_ChangeHistory(void* self);
void* VYR_FLAT_CALL CSharp_ColorQualityControlType_get_ChangeHistory(void* self, uint32_t index);
int32_t VYR_FLAT_CALL CSharp_ColorQualityControlType_set_ChangeHistory(void* self, uint32_t index, void* value);
int32_t VYR_FLAT_CALL CSharp_ColorQualityControlType_append_ChangeHistory(void* self, void* value);
int32_t VYR_FLAT_CALL CSharp_ColorQualityControlType_insert_ChangeHistory(void* self, uint32_t index, void* value);
void VYR_FLAT_CALL CSharp_ColorQualityControlType_delete_ChangeHistory(void* self, uint32_t index);
void VYR_FLAT_CALL CSharp_ColorQualityControlType_clear_ChangeHistory(void* self);
uint32_t VYR_FLAT_CALL CSharp_ColorQualityControlType_size_StandardAndMeasurement(void* self);
void* VYR_FLAT_CALL CSharp_ColorQualityControlType_get_StandardAndMeasurement__SWIG_0(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_ColorQualityControlType_assign_StandardAndMeasurement(void* self, uint32_t index, void* value);
int32_t VYR_FLAT_CALL CSharp_ColorQualityControlType_append_StandardAndMeasurement(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorQualityControlType_insert_StandardAndMeasurement(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_ColorQualityControlType_back_StandardAndMeasurement(void* self);
void VYR_FLAT_CALL CSharp_ColorQualityControlType_delete_StandardAndMeasurement(void* self, uint32_t index);
void VYR_FLAT_CALL CSharp_ColorQualityControlType_clear_StandardAndMeasurement(void* self);
void* VYR_FLAT_CALL CSharp_ColorQualityControlType_get_PhysicalSample__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_ColorQualityControlType_assign_PhysicalSample(void* self, void* value);
int32_t VYR_FLAT_CALL CSharp_ColorQualityControlType_isset_PhysicalSample(void* self);
void VYR_FLAT_CALL CSharp_ColorQualityControlType_unset_PhysicalSample(void* self);
uint32_t VYR_FLAT_CALL CSharp_ColorQualityControlType_size_Tolerance(void* self);
void* VYR_FLAT_CALL CSharp_ColorQualityControlType_get_Tolerance__SWIG_0(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_ColorQualityControlType_assign_Tolerance(void* self, uint32_t index, void* value);
int32_t VYR_FLAT_CALL CSharp_ColorQualityControlType_append_Tolerance(void* self);
int32_t VYR_FLAT_CALL CSharp_ColorQualityControlType_insert_Tolerance(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_ColorQualityControlType_back_Tolerance(void* self);
void VYR_FLAT_CALL CSharp_ColorQualityControlType_delete_Tolerance(void* self, uint32_t index);
void VYR_FLAT_CALL CSharp_ColorQualityControlType_clear_Tolerance(void* self);

/* Measurement */
void* VYR_FLAT_CALL CSharp_new_Measurement__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_Measurement__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_Measurement(void* self);
void* VYR_FLAT_CALL CSharp_Measurement_ns_map(void);
int32_t VYR_FLAT_CALL CSharp_Measurement_unmarshal__SWIG_0(void* self, const char* path);
int32_t VYR_FLAT_CALL CSharp_Measurement_unmarshal__SWIG_1(void* self, const char* data, uint32_t size);
int32_t VYR_FLAT_CALL CSharp_Measurement_marshal__SWIG_0(void* self, const char* path);
void VYR_FLAT_CALL CSharp_Measurement_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_Measurement_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_Measurement_is_occurs_ok(void* self);
uint32_t VYR_FLAT_CALL CSharp_Measurement_size_CustomAttribute(void* self);
void* VYR_FLAT_CALL CSharp_Measurement_get_CustomAttribute__SWIG_0(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_Measurement_assign_CustomAttribute(void* self, uint32_t index, void* value);
int32_t VYR_FLAT_CALL CSharp_Measurement_append_CustomAttribute(void* self);
int32_t VYR_FLAT_CALL CSharp_Measurement_insert_CustomAttribute(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_Measurement_back_CustomAttribute(void* self);
void VYR_FLAT_CALL CSharp_Measurement_delete_CustomAttribute(void* self, uint32_t index);
void VYR_FLAT_CALL CSharp_Measurement_clear_CustomAttribute(void* self);
void* VYR_FLAT_CALL CSharp_Measurement_get_Device__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_Measurement_assign_Device(void* self, void* value);
void* VYR_FLAT_CALL CSharp_Measurement_get_Color__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_Measurement_assign_Color(void* self, void* value);
uint32_t VYR_FLAT_CALL CSharp_Measurement_size_Function(void* self);
void* VYR_FLAT_CALL CSharp_Measurement_get_Function__SWIG_0(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_Measurement_assign_Function(void* self, uint32_t index, void* value);
int32_t VYR_FLAT_CALL CSharp_Measurement_append_Function(void* self);
int32_t VYR_FLAT_CALL CSharp_Measurement_insert_Function(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_Measurement_back_Function(void* self);
void VYR_FLAT_CALL CSharp_Measurement_delete_Function(void* self, uint32_t index);
void VYR_FLAT_CALL CSharp_Measurement_clear_Function(void* self);

/* Standard */
void* VYR_FLAT_CALL CSharp_new_Standard__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_Standard__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_Standard(void* self);
void* VYR_FLAT_CALL CSharp_Standard_ns_map(void);
int32_t VYR_FLAT_CALL CSharp_Standard_unmarshal__SWIG_0(void* self, const char* path);
int32_t VYR_FLAT_CALL CSharp_Standard_unmarshal__SWIG_1(void* self, const char* data, uint32_t size);
int32_t VYR_FLAT_CALL CSharp_Standard_marshal__SWIG_0(void* self, const char* path);
void VYR_FLAT_CALL CSharp_Standard_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_Standard_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_Standard_is_occurs_ok(void* self);
uint32_t VYR_FLAT_CALL CSharp_Standard_size_CustomAttribute(void* self);
void* VYR_FLAT_CALL CSharp_Standard_get_CustomAttribute__SWIG_0(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_Standard_assign_CustomAttribute(void* self, uint32_t index, void* value);
int32_t VYR_FLAT_CALL CSharp_Standard_append_CustomAttribute(void* self);
int32_t VYR_FLAT_CALL CSharp_Standard_insert_CustomAttribute(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_Standard_back_CustomAttribute(void* self);
void VYR_FLAT_CALL CSharp_Standard_delete_CustomAttribute(void* self, uint32_t index);
void VYR_FLAT_CALL CSharp_Standard_clear_CustomAttribute(void* self);
void* VYR_FLAT_CALL CSharp_Standard_get_Device__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_Standard_assign_Device(void* self, void* value);
void* VYR_FLAT_CALL CSharp_Standard_get_Color__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_Standard_assign_Color(void* self, void* value);
uint32_t VYR_FLAT_CALL CSharp_Standard_size_Tolerance(void* self);
void* VYR_FLAT_CALL CSharp_Standard_get_Tolerance__SWIG_0(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_Standard_assign_Tolerance(void* self, uint32_t index, void* value);
int32_t VYR_FLAT_CALL CSharp_Standard_append_Tolerance(void* self);
int32_t VYR_FLAT_CALL CSharp_Standard_insert_Tolerance(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_Standard_back_Tolerance(void* self);
void VYR_FLAT_CALL CSharp_Standard_delete_Tolerance(void* self, uint32_t index);
void VYR_FLAT_CALL CSharp_Standard_clear_Tolerance(void* self);
int32_t VYR_FLAT_CALL CSharp_Standard_isnil_Standard(void* self);
void VYR_FLAT_CALL CSharp_Standard_setnil_Standard(void* self);

/* StandardAndMeasurementType */
void* VYR_FLAT_CALL CSharp_new_StandardAndMeasurementType__SWIG_0(void);
void* VYR_FLAT_CALL CSharp_new_StandardAndMeasurementType__SWIG_1(void* source);
void VYR_FLAT_CALL CSharp_delete_StandardAndMeasurementType(void* self);
void VYR_FLAT_CALL CSharp_StandardAndMeasurementType_swap(void* self, void* other);
void VYR_FLAT_CALL CSharp_StandardAndMeasurementType_reset(void* self);
int32_t VYR_FLAT_CALL CSharp_StandardAndMeasurementType_is_occurs_ok(void* self);
uint32_t VYR_FLAT_CALL CSharp_StandardAndMeasurementType_size_CustomAttribute(void* self);
void* VYR_FLAT_CALL CSharp_StandardAndMeasurementType_get_CustomAttribute__SWIG_0(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_StandardAndMeasurementType_assign_CustomAttribute(void* self, uint32_t index, void* value);
int32_t VYR_FLAT_CALL CSharp_StandardAndMeasurementType_append_CustomAttribute(void* self);
int32_t VYR_FLAT_CALL CSharp_StandardAndMeasurementType_insert_CustomAttribute(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_StandardAndMeasurementType_back_CustomAttribute(void* self);
void VYR_FLAT_CALL CSharp_StandardAndMeasurementType_delete_CustomAttribute(void* self, uint32_t index);
void VYR_FLAT_CALL CSharp_StandardAndMeasurementType_clear_CustomAttribute(void* self);
uint32_t VYR_FLAT_CALL CSharp_StandardAndMeasurementType_size_Measurement(void* self);
void* VYR_FLAT_CALL CSharp_StandardAndMeasurementType_get_Measurement__SWIG_0(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_StandardAndMeasurementType_assign_Measurement(void* self, uint32_t index, void* value);
int32_t VYR_FLAT_CALL CSharp_StandardAndMeasurementType_append_Measurement(void* self);
int32_t VYR_FLAT_CALL CSharp_StandardAndMeasurementType_insert_Measurement(void* self, uint32_t index);
void* VYR_FLAT_CALL CSharp_StandardAndMeasurementType_back_Measurement(void* self);
void VYR_FLAT_CALL CSharp_StandardAndMeasurementType_delete_Measurement(void* self, uint32_t index);
void VYR_FLAT_CALL CSharp_StandardAndMeasurementType_clear_Measurement(void* self);
void* VYR_FLAT_CALL CSharp_StandardAndMeasurementType_get_Standard__SWIG_0(void* self);
void* VYR_FLAT_CALL CSharp_StandardAndMeasurementType_assign_Standard(void* self, void* value);

#ifdef __cplusplus
}
#endif

#endif
