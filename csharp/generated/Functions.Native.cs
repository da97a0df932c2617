// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.

using System;
using System.Runtime.InteropServices;

namespace Vyr
{
    public partial class FunctionType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_FunctionType_isset_Result")] internal static extern int isset_Result(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_FunctionType_get_Result")] internal static extern double get_Result(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_FunctionType_set_Result")] internal static extern int set_Result(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_FunctionType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_FunctionType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_FunctionType_size_CustomAttribute")] internal static extern uint size_CustomAttribute(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_FunctionType_get_CustomAttribute__SWIG_0")] internal static extern IntPtr get_CustomAttribute(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_FunctionType_assign_CustomAttribute")] internal static extern IntPtr assign_CustomAttribute(IntPtr self, uint index, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_FunctionType_append_CustomAttribute")] internal static extern int append_CustomAttribute(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_FunctionType_insert_CustomAttribute")] internal static extern int insert_CustomAttribute(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_FunctionType_delete_CustomAttribute")] internal static extern void delete_CustomAttribute(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_FunctionType_clear_CustomAttribute")] internal static extern void clear_CustomAttribute(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_FunctionType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_FunctionType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_FunctionType_unset_Result")] internal static extern void unset_Result(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_FunctionType_getid")] internal static extern IntPtr getid(IntPtr self);
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetResult(IntPtr self) { unset_Result(self); return 0; }
            internal static string Identity(IntPtr self) => Library.TakeNarrow(getid(self));
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static ObjectListCalls<CustomAttributeType> madeCustomAttribute;
            internal static ObjectListCalls<CustomAttributeType> CustomAttribute => madeCustomAttribute != null ? madeCustomAttribute : madeCustomAttribute = new ObjectListCalls<CustomAttributeType> { Make = h => new CustomAttributeType(h), Size = Native.size_CustomAttribute, Get = Native.get_CustomAttribute, Assign = Native.assign_CustomAttribute, Append = Native.append_CustomAttribute, Insert = Native.insert_CustomAttribute, Delete = Native.delete_CustomAttribute, Clear = Native.clear_CustomAttribute };
        }
    }

    public partial class Function
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_new_Function__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_Function")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_Function__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }
    }

    public partial class FunctionGenericType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_FunctionGenericType_get_Name")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_FunctionGenericType_set_Name")] internal static extern int set_Name(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_FunctionGenericType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_FunctionGenericType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_FunctionGenericType_size_Parameters")] internal static extern uint size_Parameters(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_FunctionGenericType_get_Parameters__SWIG_0")] internal static extern IntPtr get_Parameters(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_FunctionGenericType_assign_Parameters")] internal static extern IntPtr assign_Parameters(IntPtr self, uint index, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_FunctionGenericType_append_Parameters")] internal static extern int append_Parameters(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_FunctionGenericType_insert_Parameters")] internal static extern int insert_Parameters(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_FunctionGenericType_delete_Parameters")] internal static extern void delete_Parameters(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_FunctionGenericType_clear_Parameters")] internal static extern void clear_Parameters(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_FunctionGenericType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_FunctionGenericType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_FunctionGenericType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static ObjectListCalls<Parameters> madeParameters;
            internal static ObjectListCalls<Parameters> Parameters => madeParameters != null ? madeParameters : madeParameters = new ObjectListCalls<Parameters> { Make = h => new Parameters(h), Size = Native.size_Parameters, Get = Native.get_Parameters, Assign = Native.assign_Parameters, Append = Native.append_Parameters, Insert = Native.insert_Parameters, Delete = Native.delete_Parameters, Clear = Native.clear_Parameters };
        }
    }

    public partial class ValueChoice
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_ValueChoice_getchosen")] internal static extern int getchosen(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ValueChoice_get_Double")] internal static extern double get_Double(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ValueChoice_set_Double")] internal static extern int set_Double(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ValueChoice_get_String")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_String(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ValueChoice_set_String")] internal static extern int set_String(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ValueChoice_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ValueChoice_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ValueChoice__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ValueChoice")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ValueChoice__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
        }
    }

    public partial class Parameters
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_Parameters_get_Name")] [return: MarshalAs(UnmanagedType.BStr)] internal static extern string get_Name(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Parameters_set_Name")] internal static extern int set_Name(IntPtr self, [MarshalAs(UnmanagedType.LPWStr)] string value);
            [DllImport(Library.Name, EntryPoint = "CSharp_Parameters_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Parameters_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Parameters_get_ValueChoice__SWIG_0")] internal static extern IntPtr get_ValueChoice(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_Parameters_assign_ValueChoice")] internal static extern IntPtr assign_ValueChoice(IntPtr self, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_Parameters__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_Parameters")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_Parameters__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static IntPtr madeValueChoiceItem;
            internal static IntPtr ValueChoiceItem => madeValueChoiceItem != IntPtr.Zero ? madeValueChoiceItem : madeValueChoiceItem = Library.Item("Parameters", "ValueChoice");
            static PartCalls madeValueChoice;
            internal static PartCalls ValueChoice => madeValueChoice != null ? madeValueChoice : madeValueChoice = new PartCalls { Item = ValueChoiceItem, Make = h => new ValueChoice(h), Get = Native.get_ValueChoice, Assign = Native.assign_ValueChoice };
        }
    }

    public partial class FunctionDEType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_FunctionDEType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_FunctionDEType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_FunctionDEType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_FunctionDEType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_FunctionDEType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
        }
    }

    public partial class FunctionMeanDEType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_FunctionMeanDEType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_FunctionMeanDEType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_FunctionMeanDEType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_FunctionMeanDEType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_FunctionMeanDEType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
        }
    }

    public partial class FunctionDE94Type
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_FunctionDE94Type_get_Param_l")] internal static extern double get_Param_l(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_FunctionDE94Type_set_Param_l")] internal static extern int set_Param_l(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_FunctionDE94Type_get_Param_c")] internal static extern double get_Param_c(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_FunctionDE94Type_set_Param_c")] internal static extern int set_Param_c(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_FunctionDE94Type_get_Param_h")] internal static extern double get_Param_h(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_FunctionDE94Type_set_Param_h")] internal static extern int set_Param_h(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_FunctionDE94Type_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_FunctionDE94Type_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_FunctionDE94Type__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_FunctionDE94Type")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_FunctionDE94Type__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
        }
    }

    public partial class FunctionDE2000Type
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_FunctionDE2000Type_get_Param_l")] internal static extern double get_Param_l(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_FunctionDE2000Type_set_Param_l")] internal static extern int set_Param_l(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_FunctionDE2000Type_get_Param_c")] internal static extern double get_Param_c(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_FunctionDE2000Type_set_Param_c")] internal static extern int set_Param_c(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_FunctionDE2000Type_get_Param_h")] internal static extern double get_Param_h(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_FunctionDE2000Type_set_Param_h")] internal static extern int set_Param_h(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_FunctionDE2000Type_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_FunctionDE2000Type_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_FunctionDE2000Type__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_FunctionDE2000Type")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_FunctionDE2000Type__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
        }
    }

    public partial class FunctionDEcmcType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_FunctionDEcmcType_get_Param_l")] internal static extern double get_Param_l(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_FunctionDEcmcType_set_Param_l")] internal static extern int set_Param_l(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_FunctionDEcmcType_get_Param_c")] internal static extern double get_Param_c(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_FunctionDEcmcType_set_Param_c")] internal static extern int set_Param_c(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_FunctionDEcmcType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_FunctionDEcmcType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_FunctionDEcmcType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_FunctionDEcmcType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_FunctionDEcmcType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
        }
    }

    public partial class FunctionGeneric
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_new_FunctionGeneric__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_FunctionGeneric")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_FunctionGeneric__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }
    }

    public partial class FunctionDE
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_new_FunctionDE__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_FunctionDE")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_FunctionDE__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }
    }

    public partial class FunctionMeanDE
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_new_FunctionMeanDE__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_FunctionMeanDE")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_FunctionMeanDE__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }
    }

    public partial class FunctionDE94
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_new_FunctionDE94__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_FunctionDE94")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_FunctionDE94__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }
    }

    public partial class FunctionDE2000
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_new_FunctionDE2000__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_FunctionDE2000")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_FunctionDE2000__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }
    }

    public partial class FunctionDECMC
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_new_FunctionDECMC__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_FunctionDECMC")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_FunctionDECMC__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }
    }

    public partial class FunctionTolerance
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_FunctionTolerance_getenum_ToleranceType")] internal static extern int getenum_ToleranceType(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_FunctionTolerance_setenum_ToleranceType")] internal static extern int setenum_ToleranceType(IntPtr self, int number);
            [DllImport(Library.Name, EntryPoint = "CSharp_FunctionTolerance_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_FunctionTolerance_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_FunctionTolerance_size_Parameters")] internal static extern uint size_Parameters(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_FunctionTolerance_get_Parameters__SWIG_0")] internal static extern IntPtr get_Parameters(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_FunctionTolerance_assign_Parameters")] internal static extern IntPtr assign_Parameters(IntPtr self, uint index, IntPtr value);
            [DllImport(Library.Name, EntryPoint = "CSharp_FunctionTolerance_append_Parameters")] internal static extern int append_Parameters(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_FunctionTolerance_insert_Parameters")] internal static extern int insert_Parameters(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_FunctionTolerance_delete_Parameters")] internal static extern void delete_Parameters(IntPtr self, uint index);
            [DllImport(Library.Name, EntryPoint = "CSharp_FunctionTolerance_clear_Parameters")] internal static extern void clear_Parameters(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_FunctionTolerance__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_FunctionTolerance")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_FunctionTolerance__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
            static ObjectListCalls<ToleranceParameterType> madeParameters;
            internal static ObjectListCalls<ToleranceParameterType> Parameters => madeParameters != null ? madeParameters : madeParameters = new ObjectListCalls<ToleranceParameterType> { Make = h => new ToleranceParameterType(h), Size = Native.size_Parameters, Get = Native.get_Parameters, Assign = Native.assign_Parameters, Append = Native.append_Parameters, Insert = Native.insert_Parameters, Delete = Native.delete_Parameters, Clear = Native.clear_Parameters };
        }
    }

    public partial class ToleranceParameterType
    {
        static class Native
        {
            [DllImport(Library.Name, EntryPoint = "CSharp_ToleranceParameterType_isset_HighValue")] internal static extern int isset_HighValue(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ToleranceParameterType_get_HighValue")] internal static extern double get_HighValue(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ToleranceParameterType_set_HighValue")] internal static extern int set_HighValue(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ToleranceParameterType_isset_ToleranceParameter")] internal static extern int isset_ToleranceParameter(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ToleranceParameterType_getenum_ToleranceParameter")] internal static extern int getenum_ToleranceParameter(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ToleranceParameterType_setenum_ToleranceParameter")] internal static extern int setenum_ToleranceParameter(IntPtr self, int number);
            [DllImport(Library.Name, EntryPoint = "CSharp_ToleranceParameterType_get_LowValue")] internal static extern double get_LowValue(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ToleranceParameterType_set_LowValue")] internal static extern int set_LowValue(IntPtr self, double value);
            [DllImport(Library.Name, EntryPoint = "CSharp_ToleranceParameterType_is_occurs_ok")] internal static extern int is_occurs_ok(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ToleranceParameterType_reset")] internal static extern void reset(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ToleranceParameterType__SWIG_0")] internal static extern IntPtr New();
            [DllImport(Library.Name, EntryPoint = "CSharp_delete_ToleranceParameterType")] internal static extern void Delete(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_new_ToleranceParameterType__SWIG_1")] internal static extern IntPtr Copy(IntPtr source);
            [DllImport(Library.Name, EntryPoint = "CSharp_ToleranceParameterType_unset_HighValue")] internal static extern void unset_HighValue(IntPtr self);
            [DllImport(Library.Name, EntryPoint = "CSharp_ToleranceParameterType_unset_ToleranceParameter")] internal static extern void unset_ToleranceParameter(IntPtr self);
            internal static Handle Make() => Handle.New(() => New(), p => Delete(p));
            internal static Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));
            internal static int UnsetHighValue(IntPtr self) { unset_HighValue(self); return 0; }
            internal static int UnsetToleranceParameter(IntPtr self) { unset_ToleranceParameter(self); return 0; }
        }

        static class Parts
        {
            static ClassCalls madeClass;
            internal static ClassCalls Class => madeClass != null ? madeClass : madeClass = new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset };
        }
    }
}
