// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.

using System;

namespace Vyr
{
    /// <summary>Whether a device was calibrated, and when.</summary>
    public partial class CalibrationStateType : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public CalibrationStateType() : this(Native.Make()) { }

        internal CalibrationStateType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new CalibrationStateType Clone() => (CalibrationStateType)Copy();
        internal override VyrObject Copy() => Copied(new CalibrationStateType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Time of the last calibration, with time zone. Null if not set.</summary>
        public DateTimeOffset? CalibrationDateTime { get => Is(Native.isset_CalibrationDateTime(Pointer)) ? DateTimeText.Parse(Kept(DateTimeText.Read(Native.get_CalibrationDateTime(Pointer)))) : default(DateTimeOffset?); set => Demand(value == null ? Native.UnsetCalibrationDateTime(Pointer) : DateTimeText.Give(DateTimeText.Format(value.Value), @".+T.+(Z|[+\-].+)", time => Native.set_CalibrationDateTime(Pointer, time))); }

        /// <summary>The same as a document writes it: CalibrationDateTime throws what a DateTimeOffset can't hold.
        /// Null if not set.</summary>
        public string CalibrationDateTimeText { get => Is(Native.isset_CalibrationDateTime(Pointer)) ? Kept(DateTimeText.Read(Native.get_CalibrationDateTime(Pointer))) : null; set => Demand(value == null ? Native.UnsetCalibrationDateTime(Pointer) : DateTimeText.Give(value, @".+T.+(Z|[+\-].+)", time => Native.set_CalibrationDateTime(Pointer, time))); }

        /// <summary>State of the calibration.</summary>
        public CalibrationKind Value { get => (CalibrationKind)Kept(Native.getenum_CalibrationStateType(Pointer)); set => Demand(Listed(Native.setenum_CalibrationStateType(Pointer, (int)value))); }
    }

    /// <summary>Switch and amount of a correction for gloss.</summary>
    public partial class GlossCompensation : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public GlossCompensation() : this(Native.Make()) { }

        internal GlossCompensation(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new GlossCompensation Clone() => (GlossCompensation)Copy();
        internal override VyrObject Copy() => Copied(new GlossCompensation(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Amount of the correction.</summary>
        public double CompensationValue { get => Kept(Native.get_CompensationValue(Pointer)); set => Demand(Native.set_CompensationValue(Pointer, value)); }

        /// <summary>Whether the correction is on. Null if not set.</summary>
        public bool? Value { get => Is(Native.isset_GlossCompensation(Pointer)) ? Is(Native.get_GlossCompensation(Pointer)) : default(bool?); set => Demand(value == null ? Native.UnsetGlossCompensation(Pointer) : Native.set_GlossCompensation(Pointer, value.Value ? 1u : 0u)); }
    }

    /// <summary>Switch and number of an averaging of readings.</summary>
    public partial class Averaging : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public Averaging() : this(Native.Make()) { }

        internal Averaging(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new Averaging Clone() => (Averaging)Copy();
        internal override VyrObject Copy() => Copied(new Averaging(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Number of readings, 2 to 99.</summary>
        public byte AveragingValue { get => (byte)Kept(Native.get_AveragingValue(Pointer)); set => Demand(Native.set_AveragingValue(Pointer, value)); }

        /// <summary>Whether averaging is on. Null if not set.</summary>
        public bool? Value { get => Is(Native.isset_Averaging(Pointer)) ? Is(Native.get_Averaging(Pointer)) : default(bool?); set => Demand(value == null ? Native.UnsetAveraging(Pointer) : Native.set_Averaging(Pointer, value.Value ? 1u : 0u)); }
    }

    /// <summary>Settings of an instrument during a measurement.</summary>
    public partial class DeviceSettings : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public DeviceSettings() : this(Native.Make()) { }

        internal DeviceSettings(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new DeviceSettings Clone() => (DeviceSettings)Copy();
        internal override VyrObject Copy() => Copied(new DeviceSettings(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>A named value of the user's own.</summary>
        public ObjectList<CustomAttributeType> CustomAttributes => (ObjectList<CustomAttributeType>)(Part(0) ?? Remember(0, new ObjectList<CustomAttributeType>(this, "CustomAttributes", Parts.CustomAttribute)));

        /// <summary>Aperture in the instrument's own unit, above 0. Null if not set.</summary>
        public uint? Aperture { get => Is(Native.isset_Aperture(Pointer)) ? Kept(Native.get_Aperture(Pointer)) : default(uint?); set => Demand(value == null ? Native.UnsetAperture(Pointer) : Native.set_Aperture(Pointer, value.Value)); }

        /// <summary>Position of the lens in the instrument's own unit. Null if not set.</summary>
        public int? LensPosition { get => Is(Native.isset_LensPosition(Pointer)) ? Kept(Native.get_LensPosition(Pointer)) : default(int?); set => Demand(value == null ? Native.UnsetLensPosition(Pointer) : Native.set_LensPosition(Pointer, value.Value)); }

        /// <summary>Whether the reading is corrected for glass above the sample. Null if not set.</summary>
        public bool? GlassCompensation { get => Is(Native.isset_GlassCompensation(Pointer)) ? Is(Native.get_GlassCompensation(Pointer)) : default(bool?); set => Demand(value == null ? Native.UnsetGlassCompensation(Pointer) : Native.set_GlassCompensation(Pointer, value.Value ? 1u : 0u)); }

        /// <summary>Whether the reading is corrected for gloss, and by how much. Null until set; assigning
        /// copies.</summary>
        public GlossCompensation GlossCompensation { get => (GlossCompensation)Child(1, Parts.GlossCompensation); set => AssignChild(1, Parts.GlossCompensation, value); }

        /// <summary>Gives GlossCompensation, which it makes if it isn't there.</summary>
        public GlossCompensation CreateGlossCompensation() => (GlossCompensation)CreateChild(1, Parts.GlossCompensation);

        /// <summary>Whether readings are averaged, and how many. Null until set; assigning copies.</summary>
        public Averaging Averaging { get => (Averaging)Child(2, Parts.Averaging); set => AssignChild(2, Parts.Averaging, value); }

        /// <summary>Gives Averaging, which it makes if it isn't there.</summary>
        public Averaging CreateAveraging() => (Averaging)CreateChild(2, Parts.Averaging);

        /// <summary>Whether the instrument's link trimmer is on. Null if not set.</summary>
        public bool? LinkTrimmer { get => Is(Native.isset_LinkTrimmer(Pointer)) ? Is(Native.get_LinkTrimmer(Pointer)) : default(bool?); set => Demand(value == null ? Native.UnsetLinkTrimmer(Pointer) : Native.set_LinkTrimmer(Pointer, value.Value ? 1u : 0u)); }
    }

    /// <summary>A measuring instrument or an output device.</summary>
    public partial class DeviceType : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public DeviceType() : this(Native.Make()) { }

        internal DeviceType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new DeviceType Clone() => (DeviceType)Copy();
        internal override VyrObject Copy() => Copied(new DeviceType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>A named value of the user's own.</summary>
        public ObjectList<CustomAttributeType> CustomAttributes => (ObjectList<CustomAttributeType>)(Part(0) ?? Remember(0, new ObjectList<CustomAttributeType>(this, "CustomAttributes", Parts.CustomAttribute)));

        /// <summary>Who makes the device.</summary>
        public string Manufacturer { get => Kept(Native.get_Manufacturer(Pointer)); set => Demand(Native.set_Manufacturer(Pointer, Library.Whole(value))); }

        /// <summary>Model name.</summary>
        public string Model { get => Kept(Native.get_Model(Pointer)); set => Demand(Native.set_Model(Pointer, Library.Whole(value))); }

        /// <summary>Serial number; may be empty.</summary>
        public string SerialNumber { get => Kept(Native.get_SerialNumber(Pointer)); set => Demand(Native.set_SerialNumber(Pointer, Library.Whole(value))); }

        /// <summary>Kind of instrument. Null if not set.</summary>
        public DeviceClassKind? DeviceClass { get => Is(Native.isset_DeviceClass(Pointer)) ? (DeviceClassKind)Kept(Native.getenum_DeviceClass(Pointer)) : default(DeviceClassKind?); set => Demand(value == null ? Native.UnsetDeviceClass(Pointer) : Listed(Native.setenum_DeviceClass(Pointer, (int)value.Value))); }

        /// <summary>Version of the firmware. Null if not set.</summary>
        public string FirmwareVersion { get => Is(Native.isset_FirmwareVersion(Pointer)) ? Kept(Native.get_FirmwareVersion(Pointer)) : null; set => Demand(value == null ? Native.UnsetFirmwareVersion(Pointer) : Native.set_FirmwareVersion(Pointer, Library.Whole(value))); }

        /// <summary>Version of the boot firmware. Null if not set.</summary>
        public string BootFirmwareVersion { get => Is(Native.isset_BootFirmwareVersion(Pointer)) ? Kept(Native.get_BootFirmwareVersion(Pointer)) : null; set => Demand(value == null ? Native.UnsetBootFirmwareVersion(Pointer) : Native.set_BootFirmwareVersion(Pointer, Library.Whole(value))); }

        /// <summary>Whether and when the device was calibrated. Null until set; assigning copies.</summary>
        public CalibrationStateType CalibrationState { get => (CalibrationStateType)Child(1, Parts.CalibrationState); set => AssignChild(1, Parts.CalibrationState, value); }

        /// <summary>Gives CalibrationState, which it makes if it isn't there.</summary>
        public CalibrationStateType CreateCalibrationState() => (CalibrationStateType)CreateChild(1, Parts.CalibrationState);

        /// <summary>How the device was set. Null until set; assigning copies.</summary>
        public DeviceSettings DeviceSettings { get => (DeviceSettings)Child(2, Parts.DeviceSettings); set => AssignChild(2, Parts.DeviceSettings, value); }

        /// <summary>Gives DeviceSettings, which it makes if it isn't there.</summary>
        public DeviceSettings CreateDeviceSettings() => (DeviceSettings)CreateChild(2, Parts.DeviceSettings);
    }

    /// <summary>A profile inline or by reference.</summary>
    public partial class ProfileChoice : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ProfileChoice() : this(Native.Make()) { }

        internal ProfileChoice(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ProfileChoice Clone() => (ProfileChoice)Copy();
        internal override VyrObject Copy() => Copied(new ProfileChoice(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Which alternative an object holds.</summary>
        public enum Alternative
        {
            /// <summary>The profile inline.</summary>
            ProfileFile = 0,
            /// <summary>Where the profile can be found.</summary>
            ProfileURI = 1,
            /// <summary>Nothing was chosen yet.</summary>
            None = 2,
        }

        /// <summary>Which alternative is held.</summary>
        public Alternative Chosen => (Alternative)Kept(Native.getchosen(Pointer));

        /// <summary>The profile inline. Null if another is chosen.</summary>
        public ProfileFile AsProfileFile => Chosen == Alternative.ProfileFile ? (ProfileFile)Held(0, Parts.ProfileFile) : null;

        /// <summary>Gives ProfileFile, which it makes in place of another one if it isn't chosen.</summary>
        public ProfileFile ChooseProfileFile() => AsProfileFile ?? (ProfileFile)Choose(0, Parts.ProfileFile);

        /// <summary>Chooses ProfileFile with a copy of a value.</summary>
        public ProfileFile ChooseProfileFile(ProfileFile value) => (ProfileFile)Choose(0, Parts.ProfileFile, value);

        /// <summary>Where the profile can be found. Null if another is chosen.</summary>
        public string AsProfileURI => Chosen == Alternative.ProfileURI ? Kept(Native.get_ProfileURI(Pointer)) : null;

        /// <summary>Chooses ProfileURI in place of what was chosen.</summary>
        public void ChooseProfileURI(string value) => Choose(0, Native.set_ProfileURI(Pointer, Library.Whole(value)));
    }

    /// <summary>Colour profile of a device, by reference or inline.</summary>
    public partial class ProfileType : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ProfileType() : this(Native.Make()) { }

        internal ProfileType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ProfileType Clone() => (ProfileType)Copy();
        internal override VyrObject Copy() => Copied(new ProfileType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Which way the profile converts.</summary>
        public ProfileDirectionKind Direction { get => (ProfileDirectionKind)Kept(Native.getenum_Direction(Pointer)); set => Demand(Listed(Native.setenum_Direction(Pointer, (int)value))); }

        /// <summary>The profile's data, or where to find it. Null until set; assigning copies.</summary>
        public ProfileChoice ProfileChoice { get => (ProfileChoice)Child(0, Parts.ProfileChoice); set => AssignChild(0, Parts.ProfileChoice, value); }

        /// <summary>Gives ProfileChoice, which it makes if it isn't there.</summary>
        public ProfileChoice CreateProfileChoice() => (ProfileChoice)CreateChild(0, Parts.ProfileChoice);

        /// <summary>A parameter of the profile.</summary>
        public ObjectList<ProfileType_Parameters> Parameters => (ObjectList<ProfileType_Parameters>)(Part(1) ?? Remember(1, new ObjectList<ProfileType_Parameters>(this, "Parameters", Parts.Parameters)));

        /// <summary>When the profile was made, with time zone. Null if not set.</summary>
        public DateTimeOffset? Created { get => Is(Native.isset_Created(Pointer)) ? DateTimeText.Parse(Kept(DateTimeText.Read(Native.get_Created(Pointer)))) : default(DateTimeOffset?); set => Demand(value == null ? Native.UnsetCreated(Pointer) : DateTimeText.Give(DateTimeText.Format(value.Value), @".+T.+(Z|[+\-].+)", time => Native.set_Created(Pointer, time))); }

        /// <summary>The same as a document writes it: Created throws what a DateTimeOffset can't hold. Null if not
        /// set.</summary>
        public string CreatedText { get => Is(Native.isset_Created(Pointer)) ? Kept(DateTimeText.Read(Native.get_Created(Pointer))) : null; set => Demand(value == null ? Native.UnsetCreated(Pointer) : DateTimeText.Give(value, @".+T.+(Z|[+\-].+)", time => Native.set_Created(Pointer, time))); }
    }

    /// <summary>The bytes of a profile's file.</summary>
    public partial class ProfileFile : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ProfileFile() : this(Native.Make()) { }

        internal ProfileFile(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ProfileFile Clone() => (ProfileFile)Copy();
        internal override VyrObject Copy() => Copied(new ProfileFile(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Name of the file or of the profile. Null if not set.</summary>
        public string ProfileName { get => Is(Native.isset_ProfileName(Pointer)) ? Kept(Native.get_ProfileName(Pointer)) : null; set => Demand(value == null ? Native.UnsetProfileName(Pointer) : Native.set_ProfileName(Pointer, Library.Whole(value))); }

        /// <summary>The file's bytes, as base64.</summary>
        public byte[] Value { get => Kept(Binary.Read(Native.get_ProfileFile(Pointer))); set => Demand(Binary.Give(value, data => Native.set_ProfileFile(Pointer, data))); }
    }

    /// <summary>A floating-point number, an integer or a text.</summary>
    public partial class ProfileType_Parameters_ValueChoice : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ProfileType_Parameters_ValueChoice() : this(Native.Make()) { }

        internal ProfileType_Parameters_ValueChoice(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ProfileType_Parameters_ValueChoice Clone() => (ProfileType_Parameters_ValueChoice)Copy();
        internal override VyrObject Copy() => Copied(new ProfileType_Parameters_ValueChoice(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Which alternative an object holds.</summary>
        public enum Alternative
        {
            /// <summary>The value as a floating-point number.</summary>
            DoubleValue = 0,
            /// <summary>The value as an integer.</summary>
            IntegerValue = 1,
            /// <summary>The value as a text.</summary>
            StringValue = 2,
            /// <summary>Nothing was chosen yet.</summary>
            None = 3,
        }

        /// <summary>Which alternative is held.</summary>
        public Alternative Chosen => (Alternative)Kept(Native.getchosen(Pointer));

        /// <summary>The value as a floating-point number. Null if another is chosen.</summary>
        public double? AsDoubleValue => Chosen == Alternative.DoubleValue ? Kept(Native.get_DoubleValue(Pointer)) : default(double?);

        /// <summary>Chooses DoubleValue in place of what was chosen.</summary>
        public void ChooseDoubleValue(double value) => Choose(0, Native.set_DoubleValue(Pointer, value));

        /// <summary>The value as an integer. Null if another is chosen.</summary>
        public int? AsIntegerValue => Chosen == Alternative.IntegerValue ? Kept(Native.get_IntegerValue(Pointer)) : default(int?);

        /// <summary>Chooses IntegerValue in place of what was chosen.</summary>
        public void ChooseIntegerValue(int value) => Choose(0, Native.set_IntegerValue(Pointer, value));

        /// <summary>The value as a text. Null if another is chosen.</summary>
        public string AsStringValue => Chosen == Alternative.StringValue ? Kept(Native.get_StringValue(Pointer)) : null;

        /// <summary>Chooses StringValue in place of what was chosen.</summary>
        public void ChooseStringValue(string value) => Choose(0, Native.set_StringValue(Pointer, Library.Whole(value)));
    }

    /// <summary>A parameter of a profile, by a name of one letter and a value.</summary>
    public partial class ProfileType_Parameters : VyrObject
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public ProfileType_Parameters() : this(Native.Make()) { }

        internal ProfileType_Parameters(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new ProfileType_Parameters Clone() => (ProfileType_Parameters)Copy();
        internal override VyrObject Copy() => Copied(new ProfileType_Parameters(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;

        /// <summary>Name of the parameter, exactly one character.</summary>
        public string Name { get => Kept(Native.get_Name(Pointer)); set => Demand(Native.set_Name(Pointer, Library.Whole(value))); }

        /// <summary>Value of the parameter. Null until set; assigning copies.</summary>
        public ProfileType_Parameters_ValueChoice ValueChoice { get => (ProfileType_Parameters_ValueChoice)Child(0, Parts.ValueChoice); set => AssignChild(0, Parts.ValueChoice, value); }

        /// <summary>Gives ValueChoice, which it makes if it isn't there.</summary>
        public ProfileType_Parameters_ValueChoice CreateValueChoice() => (ProfileType_Parameters_ValueChoice)CreateChild(0, Parts.ValueChoice);
    }
}
