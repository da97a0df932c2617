// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.

using System;

namespace Vyr
{
    /// <summary>A function of colours, such as a colour difference, with its result once it has been
    /// evaluated.</summary>
    public partial class FunctionType : VyrObject
    {
        internal FunctionType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new FunctionType Clone() => (FunctionType)Copy();
        internal override VyrObject Copy() => Copied(new FunctionType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>A named value of the user's own.</summary>
        public ObjectList<CustomAttributeType> CustomAttributes => (ObjectList<CustomAttributeType>)(Part(0) ?? Remember(0, new ObjectList<CustomAttributeType>(this, "CustomAttributes", Parts.CustomAttribute)));

        /// <summary>Value of the function, in the unit of its formula. Null if not set.</summary>
        public double? Result { get => Is(Native.isset_Result(Pointer)) ? Kept(Native.get_Result(Pointer)) : default(double?); set => Demand(value == null ? Native.UnsetResult(Pointer) : Native.set_Result(Pointer, value.Value)); }

        internal static FunctionType Of(Handle handle)
        {
            switch (Native.Identity(handle.Pointer))
            {
                case "FunctionGenericType": return new FunctionGenericType(handle);
                case "FunctionDEType": return new FunctionDEType(handle);
                case "FunctionMeanDEType": return new FunctionMeanDEType(handle);
                case "FunctionDE94Type": return new FunctionDE94Type(handle);
                case "FunctionDE2000Type": return new FunctionDE2000Type(handle);
                case "FunctionDEcmcType": return new FunctionDEcmcType(handle);
                case "FunctionStdDevXType": return new FunctionStdDevXType(handle);
                case "FunctionStdDevYType": return new FunctionStdDevYType(handle);
                case "FunctionStdDevZType": return new FunctionStdDevZType(handle);
                case "FunctionStdDevLType": return new FunctionStdDevLType(handle);
                case "FunctionStdDevAType": return new FunctionStdDevAType(handle);
                case "FunctionStdDevBType": return new FunctionStdDevBType(handle);
                case "FunctionStdDevCType": return new FunctionStdDevCType(handle);
                case "FunctionStdDevHType": return new FunctionStdDevHType(handle);
                case "FunctionAverageStdDevLType": return new FunctionAverageStdDevLType(handle);
                case "FunctionAverageStdDevAType": return new FunctionAverageStdDevAType(handle);
                case "FunctionAverageStdDevBType": return new FunctionAverageStdDevBType(handle);
                case "FunctionTolerance": return new FunctionTolerance(handle);
                default: return new FunctionType(handle);
            }
        }
    }

    /// <summary>Any function, told by xsi:type; head of the functions, any of which can stand in its place.</summary>
    public partial class Function : FunctionType, IElement
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public Function() : this(Native.Make()) { }

        internal Function(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new Function Clone() => (Function)Copy();
        internal override VyrObject Copy() => Copied(new Function(Native.Make(Pointer)));

        /// <summary>Loads a file that has the element Function as its root.</summary>
        public static Function Load(string path) { TryLoad(path, out Function loaded).DemandLoaded(path); return loaded; }

        /// <summary>The same without throwing for what is wrong with the file; null then, unless the options ask for
        /// what was read.</summary>
        public static LoadReport TryLoad(string path, out Function loaded, LoadOptions options = null) => Load(new Function(), path, options, out loaded);
    }

    /// <summary>A function that the format doesn't know, by name and parameters.</summary>
    public partial class FunctionGenericType : FunctionType
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public FunctionGenericType() : this(Native.Make()) { }

        internal FunctionGenericType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new FunctionGenericType Clone() => (FunctionGenericType)Copy();
        internal override VyrObject Copy() => Copied(new FunctionGenericType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Name of the function; not empty.</summary>
        public string Name { get => Kept(Native.get_Name(Pointer)); set => Demand(Native.set_Name(Pointer, Library.Whole(value))); }

        /// <summary>A parameter of the function.</summary>
        public ObjectList<Parameters> Parameters => (ObjectList<Parameters>)(Part(1) ?? Remember(1, new ObjectList<Parameters>(this, "Parameters", Parts.Parameters)));
    }

    /// <summary>A number or a text.</summary>
    public partial class ValueChoice : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ValueChoice() : this(Native.Make()) { }

        internal ValueChoice(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ValueChoice Clone() => (ValueChoice)Copy();
        internal override VyrObject Copy() => Copied(new ValueChoice(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Which alternative an object holds.</summary>
        public enum Alternative
        {
            /// <summary>The value as a number.</summary>
            Double = 0,
            /// <summary>The value as a text.</summary>
            String = 1,
            /// <summary>Nothing was chosen yet.</summary>
            None = 2,
        }

        /// <summary>Which alternative is held.</summary>
        public Alternative Chosen => (Alternative)Kept(Native.getchosen(Pointer));

        /// <summary>The value as a number. Null if another is chosen.</summary>
        public double? AsDouble => Chosen == Alternative.Double ? Kept(Native.get_Double(Pointer)) : default(double?);

        /// <summary>Chooses Double in place of what was chosen.</summary>
        public void ChooseDouble(double value) => Choose(0, Native.set_Double(Pointer, value));

        /// <summary>The value as a text. Null if another is chosen.</summary>
        public string AsString => Chosen == Alternative.String ? Kept(Native.get_String(Pointer)) : null;

        /// <summary>Chooses String in place of what was chosen.</summary>
        public void ChooseString(string value) => Choose(0, Native.set_String(Pointer, Library.Whole(value)));
    }

    /// <summary>A parameter of a function, by name and value.</summary>
    public partial class Parameters : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public Parameters() : this(Native.Make()) { }

        internal Parameters(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new Parameters Clone() => (Parameters)Copy();
        internal override VyrObject Copy() => Copied(new Parameters(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Name of the parameter.</summary>
        public string Name { get => Kept(Native.get_Name(Pointer)); set => Demand(Native.set_Name(Pointer, Library.Whole(value))); }

        /// <summary>Value of the parameter. Null until set; assigning copies.</summary>
        public ValueChoice ValueChoice { get => (ValueChoice)Child(0, Parts.ValueChoice); set => AssignChild(0, Parts.ValueChoice, value); }

        /// <summary>Gives ValueChoice, which it makes if it isn't there.</summary>
        public ValueChoice CreateValueChoice() => (ValueChoice)CreateChild(0, Parts.ValueChoice);
    }

    /// <summary>CIE 1976 colour difference, the distance in L*a*b*.</summary>
    public partial class FunctionDEType : FunctionType
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public FunctionDEType() : this(Native.Make()) { }

        internal FunctionDEType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new FunctionDEType Clone() => (FunctionDEType)Copy();
        internal override VyrObject Copy() => Copied(new FunctionDEType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;
    }

    /// <summary>Mean of CIE 1976 colour differences.</summary>
    public partial class FunctionMeanDEType : FunctionType
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public FunctionMeanDEType() : this(Native.Make()) { }

        internal FunctionMeanDEType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new FunctionMeanDEType Clone() => (FunctionMeanDEType)Copy();
        internal override VyrObject Copy() => Copied(new FunctionMeanDEType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;
    }

    /// <summary>CIE 1994 colour difference.</summary>
    public partial class FunctionDE94Type : FunctionType
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public FunctionDE94Type() : this(Native.Make()) { }

        internal FunctionDE94Type(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new FunctionDE94Type Clone() => (FunctionDE94Type)Copy();
        internal override VyrObject Copy() => Copied(new FunctionDE94Type(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Weight of the lightness difference, 0 or more; a new object holds 2, without counting as
        /// set.</summary>
        public double Param_l { get => Kept(Native.get_Param_l(Pointer)); set => Demand(Native.set_Param_l(Pointer, value)); }

        /// <summary>Weight of the chroma difference, 0 or more; a new object holds 1, without counting as
        /// set.</summary>
        public double Param_c { get => Kept(Native.get_Param_c(Pointer)); set => Demand(Native.set_Param_c(Pointer, value)); }

        /// <summary>Weight of the hue difference, 0 or more; a new object holds 1, without counting as set.</summary>
        public double Param_h { get => Kept(Native.get_Param_h(Pointer)); set => Demand(Native.set_Param_h(Pointer, value)); }
    }

    /// <summary>CIEDE2000 colour difference.</summary>
    public partial class FunctionDE2000Type : FunctionType
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public FunctionDE2000Type() : this(Native.Make()) { }

        internal FunctionDE2000Type(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new FunctionDE2000Type Clone() => (FunctionDE2000Type)Copy();
        internal override VyrObject Copy() => Copied(new FunctionDE2000Type(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Weight of the lightness difference, 0 or more; a new object holds 2, without counting as
        /// set.</summary>
        public double Param_l { get => Kept(Native.get_Param_l(Pointer)); set => Demand(Native.set_Param_l(Pointer, value)); }

        /// <summary>Weight of the chroma difference, 0 or more; a new object holds 1, without counting as
        /// set.</summary>
        public double Param_c { get => Kept(Native.get_Param_c(Pointer)); set => Demand(Native.set_Param_c(Pointer, value)); }

        /// <summary>Weight of the hue difference, 0 or more; a new object holds 1, without counting as set.</summary>
        public double Param_h { get => Kept(Native.get_Param_h(Pointer)); set => Demand(Native.set_Param_h(Pointer, value)); }
    }

    /// <summary>CMC l:c colour difference.</summary>
    public partial class FunctionDEcmcType : FunctionType
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public FunctionDEcmcType() : this(Native.Make()) { }

        internal FunctionDEcmcType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new FunctionDEcmcType Clone() => (FunctionDEcmcType)Copy();
        internal override VyrObject Copy() => Copied(new FunctionDEcmcType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Weight l of the lightness difference, 0 or more; a new object holds 2, without counting as
        /// set.</summary>
        public double Param_l { get => Kept(Native.get_Param_l(Pointer)); set => Demand(Native.set_Param_l(Pointer, value)); }

        /// <summary>Weight c of the chroma difference, 0 or more; a new object holds 1, without counting as
        /// set.</summary>
        public double Param_c { get => Kept(Native.get_Param_c(Pointer)); set => Demand(Native.set_Param_c(Pointer, value)); }
    }

    /// <summary>A function that the format doesn't know, by name and parameters.</summary>
    public partial class FunctionGeneric : FunctionGenericType, IElement
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public FunctionGeneric() : this(Native.Make()) { }

        internal FunctionGeneric(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new FunctionGeneric Clone() => (FunctionGeneric)Copy();
        internal override VyrObject Copy() => Copied(new FunctionGeneric(Native.Make(Pointer)));

        /// <summary>Loads a file that has the element FunctionGeneric as its root.</summary>
        public static FunctionGeneric Load(string path) { TryLoad(path, out FunctionGeneric loaded).DemandLoaded(path); return loaded; }

        /// <summary>The same without throwing for what is wrong with the file; null then, unless the options ask for
        /// what was read.</summary>
        public static LoadReport TryLoad(string path, out FunctionGeneric loaded, LoadOptions options = null) => Load(new FunctionGeneric(), path, options, out loaded);
    }

    /// <summary>CIE 1976 colour difference, the distance in L*a*b*.</summary>
    public partial class FunctionDE : FunctionDEType, IElement
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public FunctionDE() : this(Native.Make()) { }

        internal FunctionDE(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new FunctionDE Clone() => (FunctionDE)Copy();
        internal override VyrObject Copy() => Copied(new FunctionDE(Native.Make(Pointer)));

        /// <summary>Loads a file that has the element FunctionDE as its root.</summary>
        public static FunctionDE Load(string path) { TryLoad(path, out FunctionDE loaded).DemandLoaded(path); return loaded; }

        /// <summary>The same without throwing for what is wrong with the file; null then, unless the options ask for
        /// what was read.</summary>
        public static LoadReport TryLoad(string path, out FunctionDE loaded, LoadOptions options = null) => Load(new FunctionDE(), path, options, out loaded);
    }

    /// <summary>Mean of CIE 1976 colour differences.</summary>
    public partial class FunctionMeanDE : FunctionMeanDEType, IElement
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public FunctionMeanDE() : this(Native.Make()) { }

        internal FunctionMeanDE(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new FunctionMeanDE Clone() => (FunctionMeanDE)Copy();
        internal override VyrObject Copy() => Copied(new FunctionMeanDE(Native.Make(Pointer)));

        /// <summary>Loads a file that has the element FunctionMeanDE as its root.</summary>
        public static FunctionMeanDE Load(string path) { TryLoad(path, out FunctionMeanDE loaded).DemandLoaded(path); return loaded; }

        /// <summary>The same without throwing for what is wrong with the file; null then, unless the options ask for
        /// what was read.</summary>
        public static LoadReport TryLoad(string path, out FunctionMeanDE loaded, LoadOptions options = null) => Load(new FunctionMeanDE(), path, options, out loaded);
    }

    /// <summary>CIE 1994 colour difference.</summary>
    public partial class FunctionDE94 : FunctionDE94Type, IElement
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public FunctionDE94() : this(Native.Make()) { }

        internal FunctionDE94(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new FunctionDE94 Clone() => (FunctionDE94)Copy();
        internal override VyrObject Copy() => Copied(new FunctionDE94(Native.Make(Pointer)));

        /// <summary>Loads a file that has the element FunctionDE94 as its root.</summary>
        public static FunctionDE94 Load(string path) { TryLoad(path, out FunctionDE94 loaded).DemandLoaded(path); return loaded; }

        /// <summary>The same without throwing for what is wrong with the file; null then, unless the options ask for
        /// what was read.</summary>
        public static LoadReport TryLoad(string path, out FunctionDE94 loaded, LoadOptions options = null) => Load(new FunctionDE94(), path, options, out loaded);
    }

    /// <summary>CIEDE2000 colour difference.</summary>
    public partial class FunctionDE2000 : FunctionDE2000Type, IElement
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public FunctionDE2000() : this(Native.Make()) { }

        internal FunctionDE2000(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new FunctionDE2000 Clone() => (FunctionDE2000)Copy();
        internal override VyrObject Copy() => Copied(new FunctionDE2000(Native.Make(Pointer)));

        /// <summary>Loads a file that has the element FunctionDE2000 as its root.</summary>
        public static FunctionDE2000 Load(string path) { TryLoad(path, out FunctionDE2000 loaded).DemandLoaded(path); return loaded; }

        /// <summary>The same without throwing for what is wrong with the file; null then, unless the options ask for
        /// what was read.</summary>
        public static LoadReport TryLoad(string path, out FunctionDE2000 loaded, LoadOptions options = null) => Load(new FunctionDE2000(), path, options, out loaded);
    }

    /// <summary>CMC l:c colour difference.</summary>
    public partial class FunctionDECMC : FunctionDEcmcType, IElement
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public FunctionDECMC() : this(Native.Make()) { }

        internal FunctionDECMC(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new FunctionDECMC Clone() => (FunctionDECMC)Copy();
        internal override VyrObject Copy() => Copied(new FunctionDECMC(Native.Make(Pointer)));

        /// <summary>Loads a file that has the element FunctionDECMC as its root.</summary>
        public static FunctionDECMC Load(string path) { TryLoad(path, out FunctionDECMC loaded).DemandLoaded(path); return loaded; }

        /// <summary>The same without throwing for what is wrong with the file; null then, unless the options ask for
        /// what was read.</summary>
        public static LoadReport TryLoad(string path, out FunctionDECMC loaded, LoadOptions options = null) => Load(new FunctionDECMC(), path, options, out loaded);
    }

    /// <summary>A tolerance formula with limits for its parameters; reached through Function with xsi:type.</summary>
    public partial class FunctionTolerance : FunctionType
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public FunctionTolerance() : this(Native.Make()) { }

        internal FunctionTolerance(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new FunctionTolerance Clone() => (FunctionTolerance)Copy();
        internal override VyrObject Copy() => Copied(new FunctionTolerance(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>The formula.</summary>
        public ToleranceFormulaKind ToleranceType { get => (ToleranceFormulaKind)Kept(Native.getenum_ToleranceType(Pointer)); set => Demand(Listed(Native.setenum_ToleranceType(Pointer, (int)value))); }

        /// <summary>Limits of one parameter.</summary>
        public ObjectList<ToleranceParameterType> Parameters => (ObjectList<ToleranceParameterType>)(Part(1) ?? Remember(1, new ObjectList<ToleranceParameterType>(this, "Parameters", Parts.Parameters)));
    }

    /// <summary>Limits of one parameter of a tolerance formula.</summary>
    public partial class ToleranceParameterType : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ToleranceParameterType() : this(Native.Make()) { }

        internal ToleranceParameterType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ToleranceParameterType Clone() => (ToleranceParameterType)Copy();
        internal override VyrObject Copy() => Copied(new ToleranceParameterType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Upper limit, in the unit of the parameter. Null if not set.</summary>
        public double? HighValue { get => Is(Native.isset_HighValue(Pointer)) ? Kept(Native.get_HighValue(Pointer)) : default(double?); set => Demand(value == null ? Native.UnsetHighValue(Pointer) : Native.set_HighValue(Pointer, value.Value)); }

        /// <summary>Which parameter is limited. Null if not set.</summary>
        public ToleranceParameterKind? ToleranceParameter { get => Is(Native.isset_ToleranceParameter(Pointer)) ? (ToleranceParameterKind)Kept(Native.getenum_ToleranceParameter(Pointer)) : default(ToleranceParameterKind?); set => Demand(value == null ? Native.UnsetToleranceParameter(Pointer) : Listed(Native.setenum_ToleranceParameter(Pointer, (int)value.Value))); }

        /// <summary>Lower limit, in the unit of the parameter.</summary>
        public double LowValue { get => Kept(Native.get_LowValue(Pointer)); set => Demand(Native.set_LowValue(Pointer, value)); }
    }
}
