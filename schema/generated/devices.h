// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
// clang-format off

/// Classes of the topic devices: CalibrationStateType, DeviceType, ProfileType.

#pragma once

#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <string>

#include "lmx/binding/class_parts.h"
#include "lmx/binding/table.h"
#include "lmx/export.h"
#include "schema/generated/enumerations.h"
#include "schema/generated/forward.h"

namespace com_vyrgraph_v2 {

/// Whether a device was calibrated, and when.
class VYR_EXPORT CalibrationStateType {
public:
    CalibrationStateType();
    CalibrationStateType(const CalibrationStateType& other);
    virtual ~CalibrationStateType();
    CalibrationStateType& operator=(const CalibrationStateType& other);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(CalibrationStateType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Time of the last calibration, with time zone.
    const lmx::c_datetime& get_CalibrationDateTime() const { return m_CalibrationDateTime; }
    lmx::elmx_error set_CalibrationDateTime(const lmx::c_datetime& value);
    bool isset_CalibrationDateTime() const { return m_isset_CalibrationDateTime; }
    void unset_CalibrationDateTime() { m_isset_CalibrationDateTime = false; }

    /// State of the calibration.
    const std::u16string& get_CalibrationStateType() const { return m_CalibrationStateType.get(); }
    lmx::elmx_error set_CalibrationStateType(const std::u16string& value);
    Eenum_CalibrationStateType getenum_CalibrationStateType() const { return static_cast<Eenum_CalibrationStateType>(m_CalibrationStateType.number()); }
    bool setenum_CalibrationStateType(std::int32_t number);

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error, bool has_body) { return lmx::unmarshal_content(k_class, this, reader, name, error, has_body); }

private:
    enum item : std::size_t {
        item_CalibrationDateTime,
        item_CalibrationStateType,
    };
    static const lmx::s_item k_items[];
    lmx::c_datetime m_CalibrationDateTime;
    lmx::c_enumerated m_CalibrationStateType;
    bool m_isset_CalibrationDateTime = false;
    bool m_isset_CalibrationStateType = false;
};

/// Switch and amount of a correction for gloss.
class VYR_EXPORT GlossCompensation {
public:
    GlossCompensation();
    GlossCompensation(const GlossCompensation& other);
    virtual ~GlossCompensation();
    GlossCompensation& operator=(const GlossCompensation& other);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(GlossCompensation& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Amount of the correction.
    double get_CompensationValue() const { return m_CompensationValue; }
    lmx::elmx_error set_CompensationValue(double value);

    /// Whether the correction is on.
    bool get_GlossCompensation() const { return m_GlossCompensation; }
    lmx::elmx_error set_GlossCompensation(bool value);
    bool isset_GlossCompensation() const { return m_isset_GlossCompensation; }
    void unset_GlossCompensation() { m_isset_GlossCompensation = false; }

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error, bool has_body) { return lmx::unmarshal_content(k_class, this, reader, name, error, has_body); }

private:
    enum item : std::size_t {
        item_CompensationValue,
        item_GlossCompensation,
    };
    static const lmx::s_item k_items[];
    double m_CompensationValue = 0;
    bool m_GlossCompensation = false;
    bool m_isset_CompensationValue = false;
    bool m_isset_GlossCompensation = false;
};

/// Switch and number of an averaging of readings.
class VYR_EXPORT Averaging {
public:
    Averaging();
    Averaging(const Averaging& other);
    virtual ~Averaging();
    Averaging& operator=(const Averaging& other);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(Averaging& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Number of readings, 2 to 99.
    std::uint8_t get_AveragingValue() const { return m_AveragingValue; }
    lmx::elmx_error set_AveragingValue(std::uint8_t value);

    /// Whether averaging is on.
    bool get_Averaging() const { return m_Averaging; }
    lmx::elmx_error set_Averaging(bool value);
    bool isset_Averaging() const { return m_isset_Averaging; }
    void unset_Averaging() { m_isset_Averaging = false; }

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error, bool has_body) { return lmx::unmarshal_content(k_class, this, reader, name, error, has_body); }

private:
    enum item : std::size_t {
        item_AveragingValue,
        item_Averaging,
    };
    static const lmx::s_item k_items[];
    std::uint8_t m_AveragingValue = 0;
    bool m_Averaging = false;
    bool m_isset_AveragingValue = false;
    bool m_isset_Averaging = false;
};

/// Settings of an instrument during a measurement.
class VYR_EXPORT DeviceSettings {
public:
    DeviceSettings();
    DeviceSettings(const DeviceSettings& other);
    virtual ~DeviceSettings();
    DeviceSettings& operator=(const DeviceSettings& other);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(DeviceSettings& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// A named value of the user's own.
    std::size_t size_CustomAttribute() const { return m_CustomAttribute.size(); }
    CustomAttributeType& get_CustomAttribute(std::size_t index);
    const CustomAttributeType& get_CustomAttribute(std::size_t index) const { return m_CustomAttribute[index]; }
    CustomAttributeType& assign_CustomAttribute(std::size_t index, const CustomAttributeType& value);
    lmx::elmx_error append_CustomAttribute();
    lmx::elmx_error insert_CustomAttribute(std::size_t index);
    CustomAttributeType& back_CustomAttribute() { return m_CustomAttribute.back(); }
    void delete_CustomAttribute(std::size_t index);
    void clear_CustomAttribute();

    /// Aperture in the instrument's own unit, above 0.
    std::uint32_t get_Aperture() const { return m_Aperture; }
    lmx::elmx_error set_Aperture(std::uint32_t value);
    bool isset_Aperture() const { return m_isset_Aperture; }
    void unset_Aperture() { m_isset_Aperture = false; }

    /// Position of the lens in the instrument's own unit.
    std::int32_t get_LensPosition() const { return m_LensPosition; }
    lmx::elmx_error set_LensPosition(std::int32_t value);
    bool isset_LensPosition() const { return m_isset_LensPosition; }
    void unset_LensPosition() { m_isset_LensPosition = false; }

    /// Whether the reading is corrected for glass above the sample.
    bool get_GlassCompensation() const { return m_GlassCompensation; }
    lmx::elmx_error set_GlassCompensation(bool value);
    bool isset_GlassCompensation() const { return m_isset_GlassCompensation; }
    void unset_GlassCompensation() { m_isset_GlassCompensation = false; }

    /// Whether the reading is corrected for gloss, and by how much.
    GlossCompensation& get_GlossCompensation();
    const GlossCompensation& get_GlossCompensation() const;
    GlossCompensation& assign_GlossCompensation(const GlossCompensation& value);
    bool isset_GlossCompensation() const { return m_isset_GlossCompensation; }
    void unset_GlossCompensation() { m_isset_GlossCompensation = false; }

    /// Whether readings are averaged, and how many.
    Averaging& get_Averaging();
    const Averaging& get_Averaging() const;
    Averaging& assign_Averaging(const Averaging& value);
    bool isset_Averaging() const { return m_isset_Averaging; }
    void unset_Averaging() { m_isset_Averaging = false; }

    /// Whether the instrument's link trimmer is on.
    bool get_LinkTrimmer() const { return m_LinkTrimmer; }
    lmx::elmx_error set_LinkTrimmer(bool value);
    bool isset_LinkTrimmer() const { return m_isset_LinkTrimmer; }
    void unset_LinkTrimmer() { m_isset_LinkTrimmer = false; }

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    enum item : std::size_t {
        item_CustomAttribute,
        item_Aperture,
        item_LensPosition,
        item_GlassCompensation,
        item_GlossCompensation,
        item_Averaging,
        item_LinkTrimmer,
    };
    static const lmx::s_item k_items[];
    lmx::c_list<CustomAttributeType> m_CustomAttribute;
    std::uint32_t m_Aperture = 0;
    std::int32_t m_LensPosition = 0;
    bool m_GlassCompensation = false;
    lmx::c_optional_child<GlossCompensation> m_GlossCompensation;
    lmx::c_optional_child<Averaging> m_Averaging;
    bool m_LinkTrimmer = false;
    bool m_isset_Aperture = false;
    bool m_isset_LensPosition = false;
    bool m_isset_GlassCompensation = false;
    bool m_isset_GlossCompensation = false;
    bool m_isset_Averaging = false;
    bool m_isset_LinkTrimmer = false;
};

/// A measuring instrument or an output device.
class VYR_EXPORT DeviceType {
public:
    DeviceType();
    DeviceType(const DeviceType& other);
    virtual ~DeviceType();
    DeviceType& operator=(const DeviceType& other);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(DeviceType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// A named value of the user's own.
    std::size_t size_CustomAttribute() const { return m_CustomAttribute.size(); }
    CustomAttributeType& get_CustomAttribute(std::size_t index);
    const CustomAttributeType& get_CustomAttribute(std::size_t index) const { return m_CustomAttribute[index]; }
    CustomAttributeType& assign_CustomAttribute(std::size_t index, const CustomAttributeType& value);
    lmx::elmx_error append_CustomAttribute();
    lmx::elmx_error insert_CustomAttribute(std::size_t index);
    CustomAttributeType& back_CustomAttribute() { return m_CustomAttribute.back(); }
    void delete_CustomAttribute(std::size_t index);
    void clear_CustomAttribute();

    /// Who makes the device.
    const std::u16string& get_Manufacturer() const { return m_Manufacturer; }
    lmx::elmx_error set_Manufacturer(const std::u16string& value);

    /// Model name.
    const std::u16string& get_Model() const { return m_Model; }
    lmx::elmx_error set_Model(const std::u16string& value);

    /// Serial number; may be empty.
    const std::u16string& get_SerialNumber() const { return m_SerialNumber; }
    lmx::elmx_error set_SerialNumber(const std::u16string& value);

    /// Kind of instrument.
    const std::u16string& get_DeviceClass() const { return m_DeviceClass.get(); }
    lmx::elmx_error set_DeviceClass(const std::u16string& value);
    Eenum_DeviceClass getenum_DeviceClass() const { return static_cast<Eenum_DeviceClass>(m_DeviceClass.number()); }
    bool setenum_DeviceClass(std::int32_t number);
    bool isset_DeviceClass() const { return m_isset_DeviceClass; }
    void unset_DeviceClass() { m_isset_DeviceClass = false; }

    /// Version of the firmware.
    const std::u16string& get_FirmwareVersion() const { return m_FirmwareVersion; }
    lmx::elmx_error set_FirmwareVersion(const std::u16string& value);
    bool isset_FirmwareVersion() const { return m_isset_FirmwareVersion; }
    void unset_FirmwareVersion() { m_isset_FirmwareVersion = false; }

    /// Version of the boot firmware.
    const std::u16string& get_BootFirmwareVersion() const { return m_BootFirmwareVersion; }
    lmx::elmx_error set_BootFirmwareVersion(const std::u16string& value);
    bool isset_BootFirmwareVersion() const { return m_isset_BootFirmwareVersion; }
    void unset_BootFirmwareVersion() { m_isset_BootFirmwareVersion = false; }

    /// Whether and when the device was calibrated.
    CalibrationStateType& get_CalibrationState();
    const CalibrationStateType& get_CalibrationState() const;
    CalibrationStateType& assign_CalibrationState(const CalibrationStateType& value);
    bool isset_CalibrationState() const { return m_isset_CalibrationState; }
    void unset_CalibrationState() { m_isset_CalibrationState = false; }

    /// How the device was set.
    DeviceSettings& get_DeviceSettings();
    const DeviceSettings& get_DeviceSettings() const;
    DeviceSettings& assign_DeviceSettings(const DeviceSettings& value);
    bool isset_DeviceSettings() const { return m_isset_DeviceSettings; }
    void unset_DeviceSettings() { m_isset_DeviceSettings = false; }

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    enum item : std::size_t {
        item_CustomAttribute,
        item_Manufacturer,
        item_Model,
        item_SerialNumber,
        item_DeviceClass,
        item_FirmwareVersion,
        item_BootFirmwareVersion,
        item_CalibrationState,
        item_DeviceSettings,
    };
    static const lmx::s_item k_items[];
    lmx::c_list<CustomAttributeType> m_CustomAttribute;
    std::u16string m_Manufacturer;
    std::u16string m_Model;
    std::u16string m_SerialNumber;
    lmx::c_enumerated m_DeviceClass;
    std::u16string m_FirmwareVersion;
    std::u16string m_BootFirmwareVersion;
    lmx::c_optional_child<CalibrationStateType> m_CalibrationState;
    lmx::c_optional_child<DeviceSettings> m_DeviceSettings;
    bool m_isset_Manufacturer = false;
    bool m_isset_Model = false;
    bool m_isset_SerialNumber = false;
    bool m_isset_DeviceClass = false;
    bool m_isset_FirmwareVersion = false;
    bool m_isset_BootFirmwareVersion = false;
    bool m_isset_CalibrationState = false;
    bool m_isset_DeviceSettings = false;
};

/// A profile inline or by reference.
class VYR_EXPORT ProfileChoice {
public:
    /// Which alternative is held.
    enum elmx_chosen : std::int32_t { e_ProfileFile, e_ProfileURI, e_none = e_ProfileURI + 1 };

    ProfileChoice();
    ProfileChoice(const ProfileChoice& other);
    virtual ~ProfileChoice();
    ProfileChoice& operator=(const ProfileChoice& other);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(ProfileChoice& other);
    void reset();
    bool is_occurs_ok() const;
    elmx_chosen getchosen() const { return static_cast<elmx_chosen>(m_choice.chosen); }
    static const lmx::s_class k_class;

    /// The profile inline.
    ProfileFile& get_ProfileFile();
    const ProfileFile& get_ProfileFile() const { return *static_cast<const ProfileFile*>(m_choice.object); }
    ProfileFile& assign_ProfileFile(const ProfileFile& value);

    /// Where the profile can be found.
    const std::u16string& get_ProfileURI() const;
    lmx::elmx_error set_ProfileURI(const std::u16string& value);

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    enum item : std::size_t {
        item_ProfileFile,
        item_ProfileURI,
    };
    static const lmx::s_item k_items[];
    lmx::s_choice m_choice{e_none};
};

/// Colour profile of a device, by reference or inline.
class VYR_EXPORT ProfileType {
public:
    ProfileType();
    ProfileType(const ProfileType& other);
    virtual ~ProfileType();
    ProfileType& operator=(const ProfileType& other);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(ProfileType& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Which way the profile converts.
    const std::u16string& get_Direction() const { return m_Direction.get(); }
    lmx::elmx_error set_Direction(const std::u16string& value);
    Eenum_Direction getenum_Direction() const { return static_cast<Eenum_Direction>(m_Direction.number()); }
    bool setenum_Direction(std::int32_t number);

    /// The profile's data, or where to find it.
    ProfileChoice& get_ProfileChoice() { m_isset_ProfileChoice = true; return m_ProfileChoice; }
    const ProfileChoice& get_ProfileChoice() const { return m_ProfileChoice; }
    ProfileChoice& assign_ProfileChoice(const ProfileChoice& value);

    /// A parameter of the profile.
    std::size_t size_Parameters() const { return m_Parameters.size(); }
    ProfileType_Parameters& get_Parameters(std::size_t index);
    const ProfileType_Parameters& get_Parameters(std::size_t index) const { return m_Parameters[index]; }
    ProfileType_Parameters& assign_Parameters(std::size_t index, const ProfileType_Parameters& value);
    lmx::elmx_error append_Parameters();
    lmx::elmx_error insert_Parameters(std::size_t index);
    ProfileType_Parameters& back_Parameters() { return m_Parameters.back(); }
    void delete_Parameters(std::size_t index);
    void clear_Parameters();

    /// When the profile was made, with time zone.
    const lmx::c_datetime& get_Created() const { return m_Created; }
    lmx::elmx_error set_Created(const lmx::c_datetime& value);
    bool isset_Created() const { return m_isset_Created; }
    void unset_Created() { m_isset_Created = false; }

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    enum item : std::size_t {
        item_Direction,
        item_ProfileChoice,
        item_Parameters,
        item_Created,
    };
    static const lmx::s_item k_items[];
    lmx::c_enumerated m_Direction;
    ProfileChoice m_ProfileChoice;
    lmx::c_list<ProfileType_Parameters> m_Parameters;
    lmx::c_datetime m_Created;
    bool m_isset_Direction = false;
    bool m_isset_ProfileChoice = false;
    bool m_isset_Created = false;
};

/// The bytes of a profile's file.
class VYR_EXPORT ProfileFile {
public:
    ProfileFile();
    ProfileFile(const ProfileFile& other);
    virtual ~ProfileFile();
    ProfileFile& operator=(const ProfileFile& other);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(ProfileFile& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Name of the file or of the profile.
    const std::u16string& get_ProfileName() const { return m_ProfileName; }
    lmx::elmx_error set_ProfileName(const std::u16string& value);
    bool isset_ProfileName() const { return m_isset_ProfileName; }
    void unset_ProfileName() { m_isset_ProfileName = false; }

    /// The file's bytes, as base64.
    const lmx::c_binary& get_ProfileFile() const { return m_ProfileFile; }
    lmx::elmx_error set_ProfileFile(const lmx::c_binary& value);

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error, bool has_body) { return lmx::unmarshal_content(k_class, this, reader, name, error, has_body); }

private:
    enum item : std::size_t {
        item_ProfileName,
        item_ProfileFile,
    };
    static const lmx::s_item k_items[];
    std::u16string m_ProfileName;
    lmx::c_binary m_ProfileFile;
    bool m_isset_ProfileName = false;
    bool m_isset_ProfileFile = false;
};

/// A floating-point number, an integer or a text.
class VYR_EXPORT ProfileType_Parameters_ValueChoice {
public:
    /// Which alternative is held.
    enum elmx_chosen : std::int32_t { e_DoubleValue, e_IntegerValue, e_StringValue, e_none = e_StringValue + 1 };

    ProfileType_Parameters_ValueChoice();
    ProfileType_Parameters_ValueChoice(const ProfileType_Parameters_ValueChoice& other);
    virtual ~ProfileType_Parameters_ValueChoice();
    ProfileType_Parameters_ValueChoice& operator=(const ProfileType_Parameters_ValueChoice& other);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(ProfileType_Parameters_ValueChoice& other);
    void reset();
    bool is_occurs_ok() const;
    elmx_chosen getchosen() const { return static_cast<elmx_chosen>(m_choice.chosen); }
    static const lmx::s_class k_class;

    /// The value as a floating-point number.
    double get_DoubleValue() const { return m_choice.chosen == e_DoubleValue ? m_choice.number : 0; }
    lmx::elmx_error set_DoubleValue(double value);

    /// The value as an integer.
    std::int32_t get_IntegerValue() const { return m_choice.chosen == e_IntegerValue ? m_choice.int32 : 0; }
    lmx::elmx_error set_IntegerValue(std::int32_t value);

    /// The value as a text.
    const std::u16string& get_StringValue() const;
    lmx::elmx_error set_StringValue(const std::u16string& value);

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    enum item : std::size_t {
        item_DoubleValue,
        item_IntegerValue,
        item_StringValue,
    };
    static const lmx::s_item k_items[];
    lmx::s_choice m_choice{e_none};
};

/// A parameter of a profile, by a name of one letter and a value.
class VYR_EXPORT ProfileType_Parameters {
public:
    ProfileType_Parameters();
    ProfileType_Parameters(const ProfileType_Parameters& other);
    virtual ~ProfileType_Parameters();
    ProfileType_Parameters& operator=(const ProfileType_Parameters& other);
    lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const;
    lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name);
    void swap(ProfileType_Parameters& other);
    void reset();
    bool is_occurs_ok() const;
    static const lmx::s_class k_class;

    /// Name of the parameter, exactly one character.
    const std::u16string& get_Name() const { return m_Name; }
    lmx::elmx_error set_Name(const std::u16string& value);

    /// Value of the parameter.
    ProfileType_Parameters_ValueChoice& get_ValueChoice() { m_isset_ValueChoice = true; return m_ValueChoice; }
    const ProfileType_Parameters_ValueChoice& get_ValueChoice() const { return m_ValueChoice; }
    ProfileType_Parameters_ValueChoice& assign_ValueChoice(const ProfileType_Parameters_ValueChoice& value);

protected:
    void marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }

private:
    enum item : std::size_t {
        item_Name,
        item_ValueChoice,
    };
    static const lmx::s_item k_items[];
    std::u16string m_Name;
    ProfileType_Parameters_ValueChoice m_ValueChoice;
    bool m_isset_Name = false;
    bool m_isset_ValueChoice = false;
};

}  // namespace com_vyrgraph_v2
