// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.

using System;

namespace Vyr
{
    /// <summary>Filter in the light path of an instrument.</summary>
    public partial class DeviceFilterType : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public DeviceFilterType() : this(Native.Make()) { }

        internal DeviceFilterType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new DeviceFilterType Clone() => (DeviceFilterType)Copy();
        internal override VyrObject Copy() => Copied(new DeviceFilterType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Description of the filter where the content is Filter_Custom or Filter_Partial. Null if not
        /// set.</summary>
        public string CustomOrPartial { get => Is(Native.isset_CustomOrPartial(Pointer)) ? Kept(Native.get_CustomOrPartial(Pointer)) : null; set => Demand(value == null ? Native.UnsetCustomOrPartial(Pointer) : Native.set_CustomOrPartial(Pointer, Library.Whole(value))); }

        /// <summary>The filter.</summary>
        public virtual DeviceFilterKind Value { get => (DeviceFilterKind)Kept(Native.getenum_DeviceFilterType(Pointer)); set => Demand(Listed(Native.setenum_DeviceFilterType(Pointer, (int)value))); }
    }

    /// <summary>Filter in the light path of the instrument, or nil. Readers may meet none; a writer needs the filter
    /// or nil.</summary>
    public partial class DeviceFilter : DeviceFilterType
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public DeviceFilter() : this(Native.Make()) { }

        internal DeviceFilter(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new DeviceFilter Clone() => (DeviceFilter)Copy();
        internal override VyrObject Copy() => Copied(new DeviceFilter(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>True for an element that says that it has no value.</summary>
        public bool IsNil => Is(Native.isnil_DeviceFilter(Pointer));

        /// <summary>Makes it an element that says that it has no value. `Reset` takes that back, and so does setting
        /// `Value`.</summary>
        public void SetNil() { Native.setnil_DeviceFilter(Pointer); Keep(); }

        /// <summary>The filter. Setting it ends the state of no value.</summary>
        public override DeviceFilterKind Value { get => base.Value; set => Demand(Listed(Native.setenum_DeviceFilterType(Pointer, (int)value))); }
    }

    /// <summary>Whether polarising filters were used, or nil where it is unknown.</summary>
    public partial class DevicePolarization : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public DevicePolarization() : this(Native.Make()) { }

        internal DevicePolarization(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new DevicePolarization Clone() => (DevicePolarization)Copy();
        internal override VyrObject Copy() => Copied(new DevicePolarization(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>True for an element that says that it has no value.</summary>
        public bool IsNil => Is(Native.isnil_DevicePolarization(Pointer));

        /// <summary>Makes it an element that says that it has no value. `Reset` takes that back, and so does setting
        /// `Value`.</summary>
        public void SetNil() { Native.setnil_DevicePolarization(Pointer); Keep(); }

        /// <summary>Whether polarising filters were used, or nil where it is unknown.</summary>
        public bool Value { get => Is(Native.get_DevicePolarization(Pointer)); set => Demand(Native.set_DevicePolarization(Pointer, value ? 1u : 0u)); }
    }

    /// <summary>Conditions under which a colour value holds: device, filter, polarisation and profile.</summary>
    public partial class ColorSpaceSpecificationType : VyrObject
    {
        internal ColorSpaceSpecificationType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceSpecificationType Clone() => (ColorSpaceSpecificationType)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceSpecificationType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Free remarks on the conditions. Null if not set.</summary>
        public string Comments { get => Is(Native.isset_Comments(Pointer)) ? Kept(Native.get_Comments(Pointer)) : null; set => Demand(value == null ? Native.UnsetComments(Pointer) : Native.set_Comments(Pointer, Library.Whole(value))); }

        /// <summary>Identifier of the specification. Null if not set.</summary>
        public string UniqueID { get => Is(Native.isset_UniqueID(Pointer)) ? Kept(Native.get_UniqueID(Pointer)) : null; set => Demand(value == null ? Native.UnsetUniqueID(Pointer) : Native.set_UniqueID(Pointer, Library.Whole(value))); }

        /// <summary>A named value of the user's own.</summary>
        public ObjectList<CustomAttributeType> CustomAttributes => (ObjectList<CustomAttributeType>)(Part(0) ?? Remember(0, new ObjectList<CustomAttributeType>(this, "CustomAttributes", Parts.CustomAttribute)));

        /// <summary>Profile of the device. Null until set; assigning copies.</summary>
        public ProfileType Profile { get => (ProfileType)Child(1, Parts.Profile); set => AssignChild(1, Parts.Profile, value); }

        /// <summary>Gives Profile, which it makes if it isn't there.</summary>
        public ProfileType CreateProfile() => (ProfileType)CreateChild(1, Parts.Profile);

        /// <summary>Instrument that measured, or device that shows the colour. Null until set; assigning
        /// copies.</summary>
        public DeviceType Device { get => (DeviceType)Child(2, Parts.Device); set => AssignChild(2, Parts.Device, value); }

        /// <summary>Gives Device, which it makes if it isn't there.</summary>
        public DeviceType CreateDevice() => (DeviceType)CreateChild(2, Parts.Device);

        /// <summary>Filter in the light path of the instrument, or nil. Readers may meet none; a writer needs the
        /// filter or nil. Null until set; assigning copies.</summary>
        public DeviceFilter DeviceFilter { get => (DeviceFilter)Child(3, Parts.DeviceFilter); set => AssignChild(3, Parts.DeviceFilter, value); }

        /// <summary>Gives DeviceFilter, which it makes if it isn't there.</summary>
        public DeviceFilter CreateDeviceFilter() => (DeviceFilter)CreateChild(3, Parts.DeviceFilter);

        /// <summary>Whether polarising filters were used, or nil where it is unknown. Null until set; assigning
        /// copies.</summary>
        public DevicePolarization DevicePolarization { get => (DevicePolarization)Child(4, Parts.DevicePolarization); set => AssignChild(4, Parts.DevicePolarization, value); }

        /// <summary>Gives DevicePolarization, which it makes if it isn't there.</summary>
        public DevicePolarization CreateDevicePolarization() => (DevicePolarization)CreateChild(4, Parts.DevicePolarization);

        /// <summary>Time of one change, with time zone.</summary>
        public DateTimeList ChangeHistory => ListOfTimes(5, Parts.ChangeHistory, @".+T.+(Z|[+\-].+)");
    }

    /// <summary>Which spectral quantity was measured.</summary>
    public partial class SpectrumType : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public SpectrumType() : this(Native.Make()) { }

        internal SpectrumType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new SpectrumType Clone() => (SpectrumType)Copy();
        internal override VyrObject Copy() => Copied(new SpectrumType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Name of the quantity where the content is Spectrum_Custom. Null if not set.</summary>
        public string CustomTypeName { get => Is(Native.isset_CustomTypeName(Pointer)) ? Kept(Native.get_CustomTypeName(Pointer)) : null; set => Demand(value == null ? Native.UnsetCustomTypeName(Pointer) : Native.set_CustomTypeName(Pointer, Library.Whole(value))); }

        /// <summary>The quantity.</summary>
        public SpectrumKind Value { get => (SpectrumKind)Kept(Native.getenum_SpectrumType(Pointer)); set => Demand(Listed(Native.setenum_SpectrumType(Pointer, (int)value))); }
    }

    /// <summary>Conditions of a reflective or transmissive value.</summary>
    public partial class ColorSpaceSpecificationSpectrumType : ColorSpaceSpecificationType
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceSpecificationSpectrumType() : this(Native.Make()) { }

        internal ColorSpaceSpecificationSpectrumType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceSpecificationSpectrumType Clone() => (ColorSpaceSpecificationSpectrumType)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceSpecificationSpectrumType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Which spectral quantity was measured. Null until set; assigning copies.</summary>
        public SpectrumType Spectrum { get => (SpectrumType)Child(6, Parts.Spectrum); set => AssignChild(6, Parts.Spectrum, value); }

        /// <summary>Gives Spectrum, which it makes if it isn't there.</summary>
        public SpectrumType CreateSpectrum() => (SpectrumType)CreateChild(6, Parts.Spectrum);
    }

    /// <summary>Conditions of an emissive value.</summary>
    public partial class ColorSpaceSpecificationEmissiveType : ColorSpaceSpecificationType
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceSpecificationEmissiveType() : this(Native.Make()) { }

        internal ColorSpaceSpecificationEmissiveType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceSpecificationEmissiveType Clone() => (ColorSpaceSpecificationEmissiveType)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceSpecificationEmissiveType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>How the light source was measured.</summary>
        public EmissiveKind EmissiveType { get => (EmissiveKind)Kept(Native.getenum_EmissiveType(Pointer)); set => Demand(Listed(Native.setenum_EmissiveType(Pointer, (int)value))); }

        /// <summary>Whether a diffuser was in place.</summary>
        public EmissiveModeKind EmissiveMode { get => (EmissiveModeKind)Kept(Native.getenum_EmissiveMode(Pointer)); set => Demand(Listed(Native.setenum_EmissiveMode(Pointer, (int)value))); }
    }

    /// <summary>Measuring geometry of an instrument: sphere, single angle, multi-angle or other.</summary>
    public partial class GeometryChoiceType : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public GeometryChoiceType() : this(Native.Make()) { }

        internal GeometryChoiceType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new GeometryChoiceType Clone() => (GeometryChoiceType)Copy();
        internal override VyrObject Copy() => Copied(new GeometryChoiceType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Which alternative an object holds.</summary>
        public enum Alternative
        {
            /// <summary>Integrating sphere, with the specular component included or excluded.</summary>
            SphereGeometry = 0,
            /// <summary>Measuring angle in degrees.</summary>
            Angle = 1,
            /// <summary>Another geometry in words; not empty.</summary>
            UnknownGeometry = 2,
            /// <summary>Angles of a multi-angle measurement.</summary>
            BSDFAngle = 3,
            /// <summary>Nothing was chosen yet.</summary>
            None = 4,
        }

        /// <summary>Which alternative is held.</summary>
        public Alternative Chosen => (Alternative)Kept(Native.getchosen(Pointer));

        /// <summary>Integrating sphere, with the specular component included or excluded. Null if another is
        /// chosen.</summary>
        public SphereGeometryKind? AsSphereGeometry => Chosen == Alternative.SphereGeometry ? (SphereGeometryKind)Kept(Native.getenum_SphereGeometry(Pointer)) : default(SphereGeometryKind?);

        /// <summary>Chooses SphereGeometry in place of what was chosen.</summary>
        public void ChooseSphereGeometry(SphereGeometryKind value) => Choose(0, Listed(Native.setenum_SphereGeometry(Pointer, (int)value)));

        /// <summary>Measuring angle in degrees. Null if another is chosen.</summary>
        public double? AsAngle => Chosen == Alternative.Angle ? Kept(Native.get_Angle(Pointer)) : default(double?);

        /// <summary>Chooses Angle in place of what was chosen.</summary>
        public void ChooseAngle(double value) => Choose(0, Native.set_Angle(Pointer, value));

        /// <summary>Another geometry in words; not empty. Null if another is chosen.</summary>
        public string AsUnknownGeometry => Chosen == Alternative.UnknownGeometry ? Kept(Native.get_UnknownGeometry(Pointer)) : null;

        /// <summary>Chooses UnknownGeometry in place of what was chosen.</summary>
        public void ChooseUnknownGeometry(string value) => Choose(0, Native.set_UnknownGeometry(Pointer, Library.Whole(value)));

        /// <summary>Angles of a multi-angle measurement. Null if another is chosen.</summary>
        public BSDFAngle AsBSDFAngle => Chosen == Alternative.BSDFAngle ? (BSDFAngle)Held(0, Parts.BSDFAngle) : null;

        /// <summary>Gives BSDFAngle, which it makes in place of another one if it isn't chosen.</summary>
        public BSDFAngle ChooseBSDFAngle() => AsBSDFAngle ?? (BSDFAngle)Choose(0, Parts.BSDFAngle);

        /// <summary>Chooses BSDFAngle with a copy of a value.</summary>
        public BSDFAngle ChooseBSDFAngle(BSDFAngle value) => (BSDFAngle)Choose(0, Parts.BSDFAngle, value);
    }

    /// <summary>Illumination by standard illuminant, chromaticity or colour temperature.</summary>
    public partial class IlluminationOptionsType : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public IlluminationOptionsType() : this(Native.Make()) { }

        internal IlluminationOptionsType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new IlluminationOptionsType Clone() => (IlluminationOptionsType)Copy();
        internal override VyrObject Copy() => Copied(new IlluminationOptionsType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Free description of the illumination. Null if not set.</summary>
        public string Description { get => Is(Native.isset_Description(Pointer)) ? Kept(Native.get_Description(Pointer)) : null; set => Demand(value == null ? Native.UnsetDescription(Pointer) : Native.set_Description(Pointer, Library.Whole(value))); }

        /// <summary>Which alternative an object holds.</summary>
        public enum Alternative
        {
            /// <summary>The illumination as a standard illuminant.</summary>
            Illuminant = 0,
            /// <summary>The illumination by the chromaticity of its white.</summary>
            WhitePointChromaticity = 1,
            /// <summary>The illumination by correlated colour temperature in kelvins, above 0.</summary>
            ColorTemperature = 2,
            /// <summary>Nothing was chosen yet.</summary>
            None = 3,
        }

        /// <summary>Which alternative is held.</summary>
        public Alternative Chosen => (Alternative)Kept(Native.getchosen(Pointer));

        /// <summary>The illumination as a standard illuminant. Null if another is chosen.</summary>
        public Illuminant AsIlluminant => Chosen == Alternative.Illuminant ? (Illuminant)Held(0, Parts.Illuminant) : null;

        /// <summary>Gives Illuminant, which it makes in place of another one if it isn't chosen.</summary>
        public Illuminant ChooseIlluminant() => AsIlluminant ?? (Illuminant)Choose(0, Parts.Illuminant);

        /// <summary>Chooses Illuminant with a copy of a value.</summary>
        public Illuminant ChooseIlluminant(Illuminant value) => (Illuminant)Choose(0, Parts.Illuminant, value);

        /// <summary>The illumination by the chromaticity of its white. Null if another is chosen.</summary>
        public WhitePointChromaticity AsWhitePointChromaticity => Chosen == Alternative.WhitePointChromaticity ? (WhitePointChromaticity)Held(0, Parts.WhitePointChromaticity) : null;

        /// <summary>Gives WhitePointChromaticity, which it makes in place of another one if it isn't
        /// chosen.</summary>
        public WhitePointChromaticity ChooseWhitePointChromaticity() => AsWhitePointChromaticity ?? (WhitePointChromaticity)Choose(0, Parts.WhitePointChromaticity);

        /// <summary>Chooses WhitePointChromaticity with a copy of a value.</summary>
        public WhitePointChromaticity ChooseWhitePointChromaticity(WhitePointChromaticity value) => (WhitePointChromaticity)Choose(0, Parts.WhitePointChromaticity, value);

        /// <summary>The illumination by correlated colour temperature in kelvins, above 0. Null if another is
        /// chosen.</summary>
        public uint? AsColorTemperature => Chosen == Alternative.ColorTemperature ? Kept(Native.get_ColorTemperature(Pointer)) : default(uint?);

        /// <summary>Chooses ColorTemperature in place of what was chosen.</summary>
        public void ChooseColorTemperature(uint value) => Choose(0, Native.set_ColorTemperature(Pointer, value));
    }

    /// <summary>Conditions of a reflective value in any colour space.</summary>
    public partial class ColorSpaceSpecificationSpectrumGenericType : ColorSpaceSpecificationSpectrumType
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceSpecificationSpectrumGenericType() : this(Native.Make()) { }

        internal ColorSpaceSpecificationSpectrumGenericType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceSpecificationSpectrumGenericType Clone() => (ColorSpaceSpecificationSpectrumGenericType)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceSpecificationSpectrumGenericType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Measuring geometry. Null until set; assigning copies.</summary>
        public GeometryChoiceType GeometryChoice { get => (GeometryChoiceType)Child(7, Parts.GeometryChoice); set => AssignChild(7, Parts.GeometryChoice, value); }

        /// <summary>Gives GeometryChoice, which it makes if it isn't there.</summary>
        public GeometryChoiceType CreateGeometryChoice() => (GeometryChoiceType)CreateChild(7, Parts.GeometryChoice);

        /// <summary>Illumination that the value holds for. Null until set; assigning copies.</summary>
        public IlluminationOptionsType IlluminationOptions { get => (IlluminationOptionsType)Child(8, Parts.IlluminationOptions); set => AssignChild(8, Parts.IlluminationOptions, value); }

        /// <summary>Gives IlluminationOptions, which it makes if it isn't there.</summary>
        public IlluminationOptionsType CreateIlluminationOptions() => (IlluminationOptionsType)CreateChild(8, Parts.IlluminationOptions);

        /// <summary>Standard observer that the value holds for. Null if not set.</summary>
        public ObserverKind? FieldOfView { get => Is(Native.isset_FieldOfView(Pointer)) ? (ObserverKind)Kept(Native.getenum_FieldOfView(Pointer)) : default(ObserverKind?); set => Demand(value == null ? Native.UnsetFieldOfView(Pointer) : Listed(Native.setenum_FieldOfView(Pointer, (int)value.Value))); }

        /// <summary>Weighting tables used for the tristimulus integration. Null if not set.</summary>
        public AstmTableKind? ASTM_Table { get => Is(Native.isset_ASTM_Table(Pointer)) ? (AstmTableKind)Kept(Native.getenum_ASTM_Table(Pointer)) : default(AstmTableKind?); set => Demand(value == null ? Native.UnsetASTM_Table(Pointer) : Listed(Native.setenum_ASTM_Table(Pointer, (int)value.Value))); }

        /// <summary>Gamma of the device, the exponent of its tone curve. Null if not set.</summary>
        public double? Gamma { get => Is(Native.isset_Gamma(Pointer)) ? Kept(Native.get_Gamma(Pointer)) : default(double?); set => Demand(value == null ? Native.UnsetGamma(Pointer) : Native.set_Gamma(Pointer, value.Value)); }

        /// <summary>Density status that the value was computed with. Null if not set.</summary>
        public DensityStatusKind? DensityStatus { get => Is(Native.isset_DensityStatus(Pointer)) ? (DensityStatusKind)Kept(Native.getenum_DensityStatus(Pointer)) : default(DensityStatusKind?); set => Demand(value == null ? Native.UnsetDensityStatus(Pointer) : Listed(Native.setenum_DensityStatus(Pointer, (int)value.Value))); }
    }

    /// <summary>Conditions of a reflective tristimulus value: illumination and observer are told.</summary>
    public partial class ColorSpaceSpecificationSpectrumTristimulusType : ColorSpaceSpecificationSpectrumType
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceSpecificationSpectrumTristimulusType() : this(Native.Make()) { }

        internal ColorSpaceSpecificationSpectrumTristimulusType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceSpecificationSpectrumTristimulusType Clone() => (ColorSpaceSpecificationSpectrumTristimulusType)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceSpecificationSpectrumTristimulusType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Illumination that the value holds for. Null until set; assigning copies.</summary>
        public IlluminationOptionsType IlluminationOptions { get => (IlluminationOptionsType)Child(7, Parts.IlluminationOptions); set => AssignChild(7, Parts.IlluminationOptions, value); }

        /// <summary>Gives IlluminationOptions, which it makes if it isn't there.</summary>
        public IlluminationOptionsType CreateIlluminationOptions() => (IlluminationOptionsType)CreateChild(7, Parts.IlluminationOptions);

        /// <summary>Standard observer that the value holds for.</summary>
        public ObserverKind FieldOfView { get => (ObserverKind)Kept(Native.getenum_FieldOfView(Pointer)); set => Demand(Listed(Native.setenum_FieldOfView(Pointer, (int)value))); }

        /// <summary>Measuring geometry. Null until set; assigning copies.</summary>
        public GeometryChoiceType GeometryChoice { get => (GeometryChoiceType)Child(8, Parts.GeometryChoice); set => AssignChild(8, Parts.GeometryChoice, value); }

        /// <summary>Gives GeometryChoice, which it makes if it isn't there.</summary>
        public GeometryChoiceType CreateGeometryChoice() => (GeometryChoiceType)CreateChild(8, Parts.GeometryChoice);

        /// <summary>Weighting tables used for the tristimulus integration. Null if not set.</summary>
        public AstmTableKind? ASTM_Table { get => Is(Native.isset_ASTM_Table(Pointer)) ? (AstmTableKind)Kept(Native.getenum_ASTM_Table(Pointer)) : default(AstmTableKind?); set => Demand(value == null ? Native.UnsetASTM_Table(Pointer) : Listed(Native.setenum_ASTM_Table(Pointer, (int)value.Value))); }

        /// <summary>Gamma of the device, the exponent of its tone curve. Null if not set.</summary>
        public double? Gamma { get => Is(Native.isset_Gamma(Pointer)) ? Kept(Native.get_Gamma(Pointer)) : default(double?); set => Demand(value == null ? Native.UnsetGamma(Pointer) : Native.set_Gamma(Pointer, value.Value)); }
    }

    /// <summary>Conditions of a reflectance spectrum: the geometry is told.</summary>
    public partial class ColorSpaceSpecificationSpectrumSpectralType : ColorSpaceSpecificationSpectrumType
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceSpecificationSpectrumSpectralType() : this(Native.Make()) { }

        internal ColorSpaceSpecificationSpectrumSpectralType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceSpecificationSpectrumSpectralType Clone() => (ColorSpaceSpecificationSpectrumSpectralType)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceSpecificationSpectrumSpectralType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Measuring geometry. Null until set; assigning copies.</summary>
        public GeometryChoiceType GeometryChoice { get => (GeometryChoiceType)Child(7, Parts.GeometryChoice); set => AssignChild(7, Parts.GeometryChoice, value); }

        /// <summary>Gives GeometryChoice, which it makes if it isn't there.</summary>
        public GeometryChoiceType CreateGeometryChoice() => (GeometryChoiceType)CreateChild(7, Parts.GeometryChoice);

        /// <summary>Weighting tables for a later tristimulus integration. Null if not set.</summary>
        public AstmTableKind? ASTM_Table { get => Is(Native.isset_ASTM_Table(Pointer)) ? (AstmTableKind)Kept(Native.getenum_ASTM_Table(Pointer)) : default(AstmTableKind?); set => Demand(value == null ? Native.UnsetASTM_Table(Pointer) : Listed(Native.setenum_ASTM_Table(Pointer, (int)value.Value))); }
    }

    /// <summary>Conditions of an emissive value in any colour space.</summary>
    public partial class ColorSpaceSpecificationEmissiveGenericType : ColorSpaceSpecificationEmissiveType
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceSpecificationEmissiveGenericType() : this(Native.Make()) { }

        internal ColorSpaceSpecificationEmissiveGenericType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceSpecificationEmissiveGenericType Clone() => (ColorSpaceSpecificationEmissiveGenericType)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceSpecificationEmissiveGenericType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Measuring geometry. Null until set; assigning copies.</summary>
        public GeometryChoiceType GeometryChoice { get => (GeometryChoiceType)Child(6, Parts.GeometryChoice); set => AssignChild(6, Parts.GeometryChoice, value); }

        /// <summary>Gives GeometryChoice, which it makes if it isn't there.</summary>
        public GeometryChoiceType CreateGeometryChoice() => (GeometryChoiceType)CreateChild(6, Parts.GeometryChoice);

        /// <summary>Illumination that the value holds for. Null until set; assigning copies.</summary>
        public IlluminationOptionsType IlluminationOptions { get => (IlluminationOptionsType)Child(7, Parts.IlluminationOptions); set => AssignChild(7, Parts.IlluminationOptions, value); }

        /// <summary>Gives IlluminationOptions, which it makes if it isn't there.</summary>
        public IlluminationOptionsType CreateIlluminationOptions() => (IlluminationOptionsType)CreateChild(7, Parts.IlluminationOptions);

        /// <summary>Standard observer that the value holds for. Null if not set.</summary>
        public ObserverKind? FieldOfView { get => Is(Native.isset_FieldOfView(Pointer)) ? (ObserverKind)Kept(Native.getenum_FieldOfView(Pointer)) : default(ObserverKind?); set => Demand(value == null ? Native.UnsetFieldOfView(Pointer) : Listed(Native.setenum_FieldOfView(Pointer, (int)value.Value))); }

        /// <summary>Weighting tables used for the tristimulus integration. Null if not set.</summary>
        public AstmTableKind? ASTM_Table { get => Is(Native.isset_ASTM_Table(Pointer)) ? (AstmTableKind)Kept(Native.getenum_ASTM_Table(Pointer)) : default(AstmTableKind?); set => Demand(value == null ? Native.UnsetASTM_Table(Pointer) : Listed(Native.setenum_ASTM_Table(Pointer, (int)value.Value))); }

        /// <summary>Gamma of the device, the exponent of its tone curve. Null if not set.</summary>
        public double? Gamma { get => Is(Native.isset_Gamma(Pointer)) ? Kept(Native.get_Gamma(Pointer)) : default(double?); set => Demand(value == null ? Native.UnsetGamma(Pointer) : Native.set_Gamma(Pointer, value.Value)); }

        /// <summary>Density status that the value was computed with. Null if not set.</summary>
        public DensityStatusKind? DensityStatus { get => Is(Native.isset_DensityStatus(Pointer)) ? (DensityStatusKind)Kept(Native.getenum_DensityStatus(Pointer)) : default(DensityStatusKind?); set => Demand(value == null ? Native.UnsetDensityStatus(Pointer) : Listed(Native.setenum_DensityStatus(Pointer, (int)value.Value))); }
    }

    /// <summary>Conditions of an emissive tristimulus value: illumination and observer are told.</summary>
    public partial class ColorSpaceSpecificationEmissiveTristimulusType : ColorSpaceSpecificationEmissiveType
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceSpecificationEmissiveTristimulusType() : this(Native.Make()) { }

        internal ColorSpaceSpecificationEmissiveTristimulusType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceSpecificationEmissiveTristimulusType Clone() => (ColorSpaceSpecificationEmissiveTristimulusType)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceSpecificationEmissiveTristimulusType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Illumination that the value holds for. Null until set; assigning copies.</summary>
        public IlluminationOptionsType IlluminationOptions { get => (IlluminationOptionsType)Child(6, Parts.IlluminationOptions); set => AssignChild(6, Parts.IlluminationOptions, value); }

        /// <summary>Gives IlluminationOptions, which it makes if it isn't there.</summary>
        public IlluminationOptionsType CreateIlluminationOptions() => (IlluminationOptionsType)CreateChild(6, Parts.IlluminationOptions);

        /// <summary>Standard observer that the value holds for.</summary>
        public ObserverKind FieldOfView { get => (ObserverKind)Kept(Native.getenum_FieldOfView(Pointer)); set => Demand(Listed(Native.setenum_FieldOfView(Pointer, (int)value))); }

        /// <summary>Measuring geometry. Null until set; assigning copies.</summary>
        public GeometryChoiceType GeometryChoice { get => (GeometryChoiceType)Child(7, Parts.GeometryChoice); set => AssignChild(7, Parts.GeometryChoice, value); }

        /// <summary>Gives GeometryChoice, which it makes if it isn't there.</summary>
        public GeometryChoiceType CreateGeometryChoice() => (GeometryChoiceType)CreateChild(7, Parts.GeometryChoice);

        /// <summary>Weighting tables used for the tristimulus integration. Null if not set.</summary>
        public AstmTableKind? ASTM_Table { get => Is(Native.isset_ASTM_Table(Pointer)) ? (AstmTableKind)Kept(Native.getenum_ASTM_Table(Pointer)) : default(AstmTableKind?); set => Demand(value == null ? Native.UnsetASTM_Table(Pointer) : Listed(Native.setenum_ASTM_Table(Pointer, (int)value.Value))); }

        /// <summary>Gamma of the device, the exponent of its tone curve. Null if not set.</summary>
        public double? Gamma { get => Is(Native.isset_Gamma(Pointer)) ? Kept(Native.get_Gamma(Pointer)) : default(double?); set => Demand(value == null ? Native.UnsetGamma(Pointer) : Native.set_Gamma(Pointer, value.Value)); }
    }

    /// <summary>Conditions of an emission spectrum: the geometry is told.</summary>
    public partial class ColorSpaceSpecificationEmissiveSpectralType : ColorSpaceSpecificationEmissiveType
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceSpecificationEmissiveSpectralType() : this(Native.Make()) { }

        internal ColorSpaceSpecificationEmissiveSpectralType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceSpecificationEmissiveSpectralType Clone() => (ColorSpaceSpecificationEmissiveSpectralType)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceSpecificationEmissiveSpectralType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Measuring geometry. Null until set; assigning copies.</summary>
        public GeometryChoiceType GeometryChoice { get => (GeometryChoiceType)Child(6, Parts.GeometryChoice); set => AssignChild(6, Parts.GeometryChoice, value); }

        /// <summary>Gives GeometryChoice, which it makes if it isn't there.</summary>
        public GeometryChoiceType CreateGeometryChoice() => (GeometryChoiceType)CreateChild(6, Parts.GeometryChoice);

        /// <summary>Weighting tables for a later tristimulus integration. Null if not set.</summary>
        public AstmTableKind? ASTM_Table { get => Is(Native.isset_ASTM_Table(Pointer)) ? (AstmTableKind)Kept(Native.getenum_ASTM_Table(Pointer)) : default(AstmTableKind?); set => Demand(value == null ? Native.UnsetASTM_Table(Pointer) : Listed(Native.setenum_ASTM_Table(Pointer, (int)value.Value))); }
    }

    /// <summary>Head of the specifications.</summary>
    public abstract partial class ColorSpaceSpecification : ColorSpaceSpecificationType
    {
        internal ColorSpaceSpecification(Handle handle) : base(handle) { }
    }

    /// <summary>Conditions of a reflective value that has no kind of its own.</summary>
    public partial class ColorSpaceSpecificationSpectrum : ColorSpaceSpecificationSpectrumType, IElement
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceSpecificationSpectrum() : this(Native.Make()) { }

        internal ColorSpaceSpecificationSpectrum(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceSpecificationSpectrum Clone() => (ColorSpaceSpecificationSpectrum)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceSpecificationSpectrum(Native.Make(Pointer)));

        /// <summary>Loads a file that has the element ColorSpaceSpecificationSpectrum as its root.</summary>
        public static ColorSpaceSpecificationSpectrum Load(string path) { TryLoad(path, out ColorSpaceSpecificationSpectrum loaded).DemandLoaded(path); return loaded; }

        /// <summary>The same without throwing for what is wrong with the file; null then, unless the options ask for
        /// what was read.</summary>
        public static LoadReport TryLoad(string path, out ColorSpaceSpecificationSpectrum loaded, LoadOptions options = null) => Load(new ColorSpaceSpecificationSpectrum(), path, options, out loaded);
    }

    /// <summary>Conditions of a reflective value in any colour space, or nil.</summary>
    public partial class ColorSpaceSpecificationSpectrumGeneric : ColorSpaceSpecificationSpectrumGenericType, IElement
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceSpecificationSpectrumGeneric() : this(Native.Make()) { }

        internal ColorSpaceSpecificationSpectrumGeneric(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceSpecificationSpectrumGeneric Clone() => (ColorSpaceSpecificationSpectrumGeneric)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceSpecificationSpectrumGeneric(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>True for an element that says that it has no value.</summary>
        public bool IsNil => Is(Native.isnil_ColorSpaceSpecificationSpectrumGeneric(Pointer));

        /// <summary>Makes it an element that says that it has no value. `Reset` takes that back; what it holds until
        /// then isn't saved.</summary>
        public void SetNil() { Native.setnil_ColorSpaceSpecificationSpectrumGeneric(Pointer); Keep(); }

        /// <summary>Loads a file that has the element ColorSpaceSpecificationSpectrumGeneric as its root.</summary>
        public static ColorSpaceSpecificationSpectrumGeneric Load(string path) { TryLoad(path, out ColorSpaceSpecificationSpectrumGeneric loaded).DemandLoaded(path); return loaded; }

        /// <summary>The same without throwing for what is wrong with the file; null then, unless the options ask for
        /// what was read.</summary>
        public static LoadReport TryLoad(string path, out ColorSpaceSpecificationSpectrumGeneric loaded, LoadOptions options = null) => Load(new ColorSpaceSpecificationSpectrumGeneric(), path, options, out loaded);
    }

    /// <summary>Conditions of a reflective tristimulus value, or nil.</summary>
    public partial class ColorSpaceSpecificationSpectrumTristimulus : ColorSpaceSpecificationSpectrumTristimulusType, IElement
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceSpecificationSpectrumTristimulus() : this(Native.Make()) { }

        internal ColorSpaceSpecificationSpectrumTristimulus(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceSpecificationSpectrumTristimulus Clone() => (ColorSpaceSpecificationSpectrumTristimulus)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceSpecificationSpectrumTristimulus(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>True for an element that says that it has no value.</summary>
        public bool IsNil => Is(Native.isnil_ColorSpaceSpecificationSpectrumTristimulus(Pointer));

        /// <summary>Makes it an element that says that it has no value. `Reset` takes that back; what it holds until
        /// then isn't saved.</summary>
        public void SetNil() { Native.setnil_ColorSpaceSpecificationSpectrumTristimulus(Pointer); Keep(); }

        /// <summary>Loads a file that has the element ColorSpaceSpecificationSpectrumTristimulus as its
        /// root.</summary>
        public static ColorSpaceSpecificationSpectrumTristimulus Load(string path) { TryLoad(path, out ColorSpaceSpecificationSpectrumTristimulus loaded).DemandLoaded(path); return loaded; }

        /// <summary>The same without throwing for what is wrong with the file; null then, unless the options ask for
        /// what was read.</summary>
        public static LoadReport TryLoad(string path, out ColorSpaceSpecificationSpectrumTristimulus loaded, LoadOptions options = null) => Load(new ColorSpaceSpecificationSpectrumTristimulus(), path, options, out loaded);
    }

    /// <summary>Conditions of a reflectance spectrum, or nil.</summary>
    public partial class ColorSpaceSpecificationSpectrumSpectral : ColorSpaceSpecificationSpectrumSpectralType, IElement
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceSpecificationSpectrumSpectral() : this(Native.Make()) { }

        internal ColorSpaceSpecificationSpectrumSpectral(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceSpecificationSpectrumSpectral Clone() => (ColorSpaceSpecificationSpectrumSpectral)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceSpecificationSpectrumSpectral(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>True for an element that says that it has no value.</summary>
        public bool IsNil => Is(Native.isnil_ColorSpaceSpecificationSpectrumSpectral(Pointer));

        /// <summary>Makes it an element that says that it has no value. `Reset` takes that back; what it holds until
        /// then isn't saved.</summary>
        public void SetNil() { Native.setnil_ColorSpaceSpecificationSpectrumSpectral(Pointer); Keep(); }

        /// <summary>Loads a file that has the element ColorSpaceSpecificationSpectrumSpectral as its root.</summary>
        public static ColorSpaceSpecificationSpectrumSpectral Load(string path) { TryLoad(path, out ColorSpaceSpecificationSpectrumSpectral loaded).DemandLoaded(path); return loaded; }

        /// <summary>The same without throwing for what is wrong with the file; null then, unless the options ask for
        /// what was read.</summary>
        public static LoadReport TryLoad(string path, out ColorSpaceSpecificationSpectrumSpectral loaded, LoadOptions options = null) => Load(new ColorSpaceSpecificationSpectrumSpectral(), path, options, out loaded);
    }

    /// <summary>Conditions of an emissive value that has no kind of its own.</summary>
    public partial class ColorSpaceSpecificationEmissive : ColorSpaceSpecificationEmissiveType, IElement
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceSpecificationEmissive() : this(Native.Make()) { }

        internal ColorSpaceSpecificationEmissive(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceSpecificationEmissive Clone() => (ColorSpaceSpecificationEmissive)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceSpecificationEmissive(Native.Make(Pointer)));

        /// <summary>Loads a file that has the element ColorSpaceSpecificationEmissive as its root.</summary>
        public static ColorSpaceSpecificationEmissive Load(string path) { TryLoad(path, out ColorSpaceSpecificationEmissive loaded).DemandLoaded(path); return loaded; }

        /// <summary>The same without throwing for what is wrong with the file; null then, unless the options ask for
        /// what was read.</summary>
        public static LoadReport TryLoad(string path, out ColorSpaceSpecificationEmissive loaded, LoadOptions options = null) => Load(new ColorSpaceSpecificationEmissive(), path, options, out loaded);
    }

    /// <summary>Conditions of an emissive value in any colour space, or nil.</summary>
    public partial class ColorSpaceSpecificationEmissiveGeneric : ColorSpaceSpecificationEmissiveGenericType, IElement
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceSpecificationEmissiveGeneric() : this(Native.Make()) { }

        internal ColorSpaceSpecificationEmissiveGeneric(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceSpecificationEmissiveGeneric Clone() => (ColorSpaceSpecificationEmissiveGeneric)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceSpecificationEmissiveGeneric(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>True for an element that says that it has no value.</summary>
        public bool IsNil => Is(Native.isnil_ColorSpaceSpecificationEmissiveGeneric(Pointer));

        /// <summary>Makes it an element that says that it has no value. `Reset` takes that back; what it holds until
        /// then isn't saved.</summary>
        public void SetNil() { Native.setnil_ColorSpaceSpecificationEmissiveGeneric(Pointer); Keep(); }

        /// <summary>Loads a file that has the element ColorSpaceSpecificationEmissiveGeneric as its root.</summary>
        public static ColorSpaceSpecificationEmissiveGeneric Load(string path) { TryLoad(path, out ColorSpaceSpecificationEmissiveGeneric loaded).DemandLoaded(path); return loaded; }

        /// <summary>The same without throwing for what is wrong with the file; null then, unless the options ask for
        /// what was read.</summary>
        public static LoadReport TryLoad(string path, out ColorSpaceSpecificationEmissiveGeneric loaded, LoadOptions options = null) => Load(new ColorSpaceSpecificationEmissiveGeneric(), path, options, out loaded);
    }

    /// <summary>Conditions of an emissive tristimulus value, or nil.</summary>
    public partial class ColorSpaceSpecificationEmissiveTristimulus : ColorSpaceSpecificationEmissiveTristimulusType, IElement
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceSpecificationEmissiveTristimulus() : this(Native.Make()) { }

        internal ColorSpaceSpecificationEmissiveTristimulus(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceSpecificationEmissiveTristimulus Clone() => (ColorSpaceSpecificationEmissiveTristimulus)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceSpecificationEmissiveTristimulus(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>True for an element that says that it has no value.</summary>
        public bool IsNil => Is(Native.isnil_ColorSpaceSpecificationEmissiveTristimulus(Pointer));

        /// <summary>Makes it an element that says that it has no value. `Reset` takes that back; what it holds until
        /// then isn't saved.</summary>
        public void SetNil() { Native.setnil_ColorSpaceSpecificationEmissiveTristimulus(Pointer); Keep(); }

        /// <summary>Loads a file that has the element ColorSpaceSpecificationEmissiveTristimulus as its
        /// root.</summary>
        public static ColorSpaceSpecificationEmissiveTristimulus Load(string path) { TryLoad(path, out ColorSpaceSpecificationEmissiveTristimulus loaded).DemandLoaded(path); return loaded; }

        /// <summary>The same without throwing for what is wrong with the file; null then, unless the options ask for
        /// what was read.</summary>
        public static LoadReport TryLoad(string path, out ColorSpaceSpecificationEmissiveTristimulus loaded, LoadOptions options = null) => Load(new ColorSpaceSpecificationEmissiveTristimulus(), path, options, out loaded);
    }

    /// <summary>Conditions of an emission spectrum, or nil.</summary>
    public partial class ColorSpaceSpecificationEmissiveSpectral : ColorSpaceSpecificationEmissiveSpectralType, IElement
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ColorSpaceSpecificationEmissiveSpectral() : this(Native.Make()) { }

        internal ColorSpaceSpecificationEmissiveSpectral(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ColorSpaceSpecificationEmissiveSpectral Clone() => (ColorSpaceSpecificationEmissiveSpectral)Copy();
        internal override VyrObject Copy() => Copied(new ColorSpaceSpecificationEmissiveSpectral(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>True for an element that says that it has no value.</summary>
        public bool IsNil => Is(Native.isnil_ColorSpaceSpecificationEmissiveSpectral(Pointer));

        /// <summary>Makes it an element that says that it has no value. `Reset` takes that back; what it holds until
        /// then isn't saved.</summary>
        public void SetNil() { Native.setnil_ColorSpaceSpecificationEmissiveSpectral(Pointer); Keep(); }

        /// <summary>Loads a file that has the element ColorSpaceSpecificationEmissiveSpectral as its root.</summary>
        public static ColorSpaceSpecificationEmissiveSpectral Load(string path) { TryLoad(path, out ColorSpaceSpecificationEmissiveSpectral loaded).DemandLoaded(path); return loaded; }

        /// <summary>The same without throwing for what is wrong with the file; null then, unless the options ask for
        /// what was read.</summary>
        public static LoadReport TryLoad(string path, out ColorSpaceSpecificationEmissiveSpectral loaded, LoadOptions options = null) => Load(new ColorSpaceSpecificationEmissiveSpectral(), path, options, out loaded);
    }

    /// <summary>A standard illuminant, or a custom one by name.</summary>
    public partial class Illuminant : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public Illuminant() : this(Native.Make()) { }

        internal Illuminant(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new Illuminant Clone() => (Illuminant)Copy();
        internal override VyrObject Copy() => Copied(new Illuminant(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Name of the illuminant where the content is Illuminant_Custom. Null if not set.</summary>
        public string CustomName { get => Is(Native.isset_CustomName(Pointer)) ? Kept(Native.get_CustomName(Pointer)) : null; set => Demand(value == null ? Native.UnsetCustomName(Pointer) : Native.set_CustomName(Pointer, Library.Whole(value))); }

        /// <summary>The illuminant.</summary>
        public IlluminantKind Value { get => (IlluminantKind)Kept(Native.getenum_Illuminant(Pointer)); set => Demand(Listed(Native.setenum_Illuminant(Pointer, (int)value))); }
    }

    /// <summary>CIE 1931 chromaticity of a white point.</summary>
    public partial class WhitePointChromaticity : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public WhitePointChromaticity() : this(Native.Make()) { }

        internal WhitePointChromaticity(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new WhitePointChromaticity Clone() => (WhitePointChromaticity)Copy();
        internal override VyrObject Copy() => Copied(new WhitePointChromaticity(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Chromaticity coordinate x, 0 to 1.</summary>
        public double CoordinateX { get => Kept(Native.get_CoordinateX(Pointer)); set => Demand(Native.set_CoordinateX(Pointer, value)); }

        /// <summary>Chromaticity coordinate y, 0 to 1.</summary>
        public double CoordinateY { get => Kept(Native.get_CoordinateY(Pointer)); set => Demand(Native.set_CoordinateY(Pointer, value)); }
    }

    /// <summary>Angles of a measurement with a multi-angle instrument.</summary>
    public partial class BSDFAngle : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public BSDFAngle() : this(Native.Make()) { }

        internal BSDFAngle(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new BSDFAngle Clone() => (BSDFAngle)Copy();
        internal override VyrObject Copy() => Copied(new BSDFAngle(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Angle of the illumination from the surface normal, in degrees.</summary>
        public double IlluminantAngle { get => Kept(Native.get_IlluminantAngle(Pointer)); set => Demand(Native.set_IlluminantAngle(Pointer, value)); }

        /// <summary>Angle of the detector from the specular direction, in degrees.</summary>
        public double Aspecular { get => Kept(Native.get_Aspecular(Pointer)); set => Demand(Native.set_Aspecular(Pointer, value)); }
    }

    /// <summary>An empty mark.</summary>
    public partial class Azimuth : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public Azimuth() : this(Native.Make()) { }

        internal Azimuth(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new Azimuth Clone() => (Azimuth)Copy();
        internal override VyrObject Copy() => Copied(new Azimuth(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;
    }
}
