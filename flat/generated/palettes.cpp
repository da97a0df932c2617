// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
// clang-format off

/// Flat functions of the classes in palettes.h.

#include "flat/call.h"
#include "schema/generated/conditions.h"
#include "schema/generated/groups.h"
#include "schema/generated/header.h"
#include "schema/generated/palettes.h"

namespace com_vyrgraph_v2 {

using namespace flat;

extern "C" {

// CollectionColorSpaceSpecificationType
VYR_FLAT(void*) CSharp_new_CollectionColorSpaceSpecificationType__SWIG_0() { return make<CollectionColorSpaceSpecificationType>(); }
VYR_FLAT(void*) CSharp_new_CollectionColorSpaceSpecificationType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::CollectionColorSpaceSpecificationType const & type is null", &copy<CollectionColorSpaceSpecificationType>, source); }
VYR_FLAT(void) CSharp_delete_CollectionColorSpaceSpecificationType(void* self) { destroy<CollectionColorSpaceSpecificationType>(self); }
VYR_FLAT(void) CSharp_CollectionColorSpaceSpecificationType_swap(void* self, void* other) { checked("com_vyrgraph_v2::CollectionColorSpaceSpecificationType & type is null", +[](void* o, void* s) { return as<CollectionColorSpaceSpecificationType>(s).swap(as<CollectionColorSpaceSpecificationType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_CollectionColorSpaceSpecificationType_reset(void* self) { guarded(+[](void* s) { return as<CollectionColorSpaceSpecificationType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_CollectionColorSpaceSpecificationType_is_occurs_ok(void* self) { return as<CollectionColorSpaceSpecificationType>(self).is_occurs_ok(); }
VYR_FLAT(void*) CSharp_CollectionColorSpaceSpecificationType_get_ColorSpaceSpecificationSpectrumGeneric__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<CollectionColorSpaceSpecificationType>(s).get_ColorSpaceSpecificationSpectrumGeneric(); }, self); }
VYR_FLAT(void*) CSharp_CollectionColorSpaceSpecificationType_assign_ColorSpaceSpecificationSpectrumGeneric(void* self, void* value) { return checked("com_vyrgraph_v2::ColorSpaceSpecificationSpectrumGeneric const & type is null", +[](void* v, void* s) -> void* { return &as<CollectionColorSpaceSpecificationType>(s).assign_ColorSpaceSpecificationSpectrumGeneric(as<ColorSpaceSpecificationSpectrumGeneric>(v)); }, value, self); }
VYR_FLAT(std::int32_t) CSharp_CollectionColorSpaceSpecificationType_isset_ColorSpaceSpecificationSpectrumGeneric(void* self) { return as<CollectionColorSpaceSpecificationType>(self).isset_ColorSpaceSpecificationSpectrumGeneric(); }
VYR_FLAT(void) CSharp_CollectionColorSpaceSpecificationType_unset_ColorSpaceSpecificationSpectrumGeneric(void* self) { as<CollectionColorSpaceSpecificationType>(self).unset_ColorSpaceSpecificationSpectrumGeneric(); }
VYR_FLAT(void*) CSharp_CollectionColorSpaceSpecificationType_get_ColorSpaceSpecificationSpectrumSpectral__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<CollectionColorSpaceSpecificationType>(s).get_ColorSpaceSpecificationSpectrumSpectral(); }, self); }
VYR_FLAT(void*) CSharp_CollectionColorSpaceSpecificationType_assign_ColorSpaceSpecificationSpectrumSpectral(void* self, void* value) { return checked("com_vyrgraph_v2::ColorSpaceSpecificationSpectrumSpectral const & type is null", +[](void* v, void* s) -> void* { return &as<CollectionColorSpaceSpecificationType>(s).assign_ColorSpaceSpecificationSpectrumSpectral(as<ColorSpaceSpecificationSpectrumSpectral>(v)); }, value, self); }
VYR_FLAT(std::int32_t) CSharp_CollectionColorSpaceSpecificationType_isset_ColorSpaceSpecificationSpectrumSpectral(void* self) { return as<CollectionColorSpaceSpecificationType>(self).isset_ColorSpaceSpecificationSpectrumSpectral(); }
VYR_FLAT(void) CSharp_CollectionColorSpaceSpecificationType_unset_ColorSpaceSpecificationSpectrumSpectral(void* self) { as<CollectionColorSpaceSpecificationType>(self).unset_ColorSpaceSpecificationSpectrumSpectral(); }
VYR_FLAT(void*) CSharp_CollectionColorSpaceSpecificationType_get_ColorSpaceSpecificationSpectrumTristimulus__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<CollectionColorSpaceSpecificationType>(s).get_ColorSpaceSpecificationSpectrumTristimulus(); }, self); }
VYR_FLAT(void*) CSharp_CollectionColorSpaceSpecificationType_assign_ColorSpaceSpecificationSpectrumTristimulus(void* self, void* value) { return checked("com_vyrgraph_v2::ColorSpaceSpecificationSpectrumTristimulus const & type is null", +[](void* v, void* s) -> void* { return &as<CollectionColorSpaceSpecificationType>(s).assign_ColorSpaceSpecificationSpectrumTristimulus(as<ColorSpaceSpecificationSpectrumTristimulus>(v)); }, value, self); }
VYR_FLAT(std::int32_t) CSharp_CollectionColorSpaceSpecificationType_isset_ColorSpaceSpecificationSpectrumTristimulus(void* self) { return as<CollectionColorSpaceSpecificationType>(self).isset_ColorSpaceSpecificationSpectrumTristimulus(); }
VYR_FLAT(void) CSharp_CollectionColorSpaceSpecificationType_unset_ColorSpaceSpecificationSpectrumTristimulus(void* self) { as<CollectionColorSpaceSpecificationType>(self).unset_ColorSpaceSpecificationSpectrumTristimulus(); }
VYR_FLAT(void*) CSharp_CollectionColorSpaceSpecificationType_get_ColorSpaceSpecificationEmissiveGeneric__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<CollectionColorSpaceSpecificationType>(s).get_ColorSpaceSpecificationEmissiveGeneric(); }, self); }
VYR_FLAT(void*) CSharp_CollectionColorSpaceSpecificationType_assign_ColorSpaceSpecificationEmissiveGeneric(void* self, void* value) { return checked("com_vyrgraph_v2::ColorSpaceSpecificationEmissiveGeneric const & type is null", +[](void* v, void* s) -> void* { return &as<CollectionColorSpaceSpecificationType>(s).assign_ColorSpaceSpecificationEmissiveGeneric(as<ColorSpaceSpecificationEmissiveGeneric>(v)); }, value, self); }
VYR_FLAT(std::int32_t) CSharp_CollectionColorSpaceSpecificationType_isset_ColorSpaceSpecificationEmissiveGeneric(void* self) { return as<CollectionColorSpaceSpecificationType>(self).isset_ColorSpaceSpecificationEmissiveGeneric(); }
VYR_FLAT(void) CSharp_CollectionColorSpaceSpecificationType_unset_ColorSpaceSpecificationEmissiveGeneric(void* self) { as<CollectionColorSpaceSpecificationType>(self).unset_ColorSpaceSpecificationEmissiveGeneric(); }
VYR_FLAT(void*) CSharp_CollectionColorSpaceSpecificationType_get_ColorSpaceSpecificationEmissiveSpectral__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<CollectionColorSpaceSpecificationType>(s).get_ColorSpaceSpecificationEmissiveSpectral(); }, self); }
VYR_FLAT(void*) CSharp_CollectionColorSpaceSpecificationType_assign_ColorSpaceSpecificationEmissiveSpectral(void* self, void* value) { return checked("com_vyrgraph_v2::ColorSpaceSpecificationEmissiveSpectral const & type is null", +[](void* v, void* s) -> void* { return &as<CollectionColorSpaceSpecificationType>(s).assign_ColorSpaceSpecificationEmissiveSpectral(as<ColorSpaceSpecificationEmissiveSpectral>(v)); }, value, self); }
VYR_FLAT(std::int32_t) CSharp_CollectionColorSpaceSpecificationType_isset_ColorSpaceSpecificationEmissiveSpectral(void* self) { return as<CollectionColorSpaceSpecificationType>(self).isset_ColorSpaceSpecificationEmissiveSpectral(); }
VYR_FLAT(void) CSharp_CollectionColorSpaceSpecificationType_unset_ColorSpaceSpecificationEmissiveSpectral(void* self) { as<CollectionColorSpaceSpecificationType>(self).unset_ColorSpaceSpecificationEmissiveSpectral(); }
VYR_FLAT(void*) CSharp_CollectionColorSpaceSpecificationType_get_ColorSpaceSpecificationEmissiveTristimulus__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<CollectionColorSpaceSpecificationType>(s).get_ColorSpaceSpecificationEmissiveTristimulus(); }, self); }
VYR_FLAT(void*) CSharp_CollectionColorSpaceSpecificationType_assign_ColorSpaceSpecificationEmissiveTristimulus(void* self, void* value) { return checked("com_vyrgraph_v2::ColorSpaceSpecificationEmissiveTristimulus const & type is null", +[](void* v, void* s) -> void* { return &as<CollectionColorSpaceSpecificationType>(s).assign_ColorSpaceSpecificationEmissiveTristimulus(as<ColorSpaceSpecificationEmissiveTristimulus>(v)); }, value, self); }
VYR_FLAT(std::int32_t) CSharp_CollectionColorSpaceSpecificationType_isset_ColorSpaceSpecificationEmissiveTristimulus(void* self) { return as<CollectionColorSpaceSpecificationType>(self).isset_ColorSpaceSpecificationEmissiveTristimulus(); }
VYR_FLAT(void) CSharp_CollectionColorSpaceSpecificationType_unset_ColorSpaceSpecificationEmissiveTristimulus(void* self) { as<CollectionColorSpaceSpecificationType>(self).unset_ColorSpaceSpecificationEmissiveTristimulus(); }

// PaletteType
VYR_FLAT(void*) CSharp_new_PaletteType__SWIG_0() { return make<PaletteType>(); }
VYR_FLAT(void*) CSharp_new_PaletteType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::PaletteType const & type is null", &copy<PaletteType>, source); }
VYR_FLAT(void) CSharp_delete_PaletteType(void* self) { destroy<PaletteType>(self); }
VYR_FLAT(void) CSharp_PaletteType_swap(void* self, void* other) { checked("com_vyrgraph_v2::PaletteType & type is null", +[](void* o, void* s) { return as<PaletteType>(s).swap(as<PaletteType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_PaletteType_reset(void* self) { guarded(+[](void* s) { return as<PaletteType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_PaletteType_is_occurs_ok(void* self) { return as<PaletteType>(self).is_occurs_ok(); }
VYR_FLAT(char16_t*) CSharp_PaletteType_get_PaletteName(void* self) { return new_string(as<PaletteType>(self).get_PaletteName()); }
VYR_FLAT(std::int32_t) CSharp_PaletteType_set_PaletteName(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<PaletteType>(s).set_PaletteName(v); }); }
VYR_FLAT(char16_t*) CSharp_PaletteType_get_PalettePartNumber(void* self) { return new_string(as<PaletteType>(self).get_PalettePartNumber()); }
VYR_FLAT(std::int32_t) CSharp_PaletteType_set_PalettePartNumber(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<PaletteType>(s).set_PalettePartNumber(v); }); }
VYR_FLAT(std::int32_t) CSharp_PaletteType_isset_PalettePartNumber(void* self) { return as<PaletteType>(self).isset_PalettePartNumber(); }
VYR_FLAT(void) CSharp_PaletteType_unset_PalettePartNumber(void* self) { as<PaletteType>(self).unset_PalettePartNumber(); }
VYR_FLAT(char16_t*) CSharp_PaletteType_get_PaletteVersion(void* self) { return new_string(as<PaletteType>(self).get_PaletteVersion()); }
VYR_FLAT(std::int32_t) CSharp_PaletteType_set_PaletteVersion(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<PaletteType>(s).set_PaletteVersion(v); }); }
VYR_FLAT(std::int32_t) CSharp_PaletteType_isset_PaletteVersion(void* self) { return as<PaletteType>(self).isset_PaletteVersion(); }
VYR_FLAT(void) CSharp_PaletteType_unset_PaletteVersion(void* self) { as<PaletteType>(self).unset_PaletteVersion(); }
VYR_FLAT(char16_t*) CSharp_PaletteType_get_UniqueID(void* self) { return new_string(as<PaletteType>(self).get_UniqueID()); }
VYR_FLAT(std::int32_t) CSharp_PaletteType_set_UniqueID(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<PaletteType>(s).set_UniqueID(v); }); }
VYR_FLAT(std::int32_t) CSharp_PaletteType_isset_UniqueID(void* self) { return as<PaletteType>(self).isset_UniqueID(); }
VYR_FLAT(void) CSharp_PaletteType_unset_UniqueID(void* self) { as<PaletteType>(self).unset_UniqueID(); }
VYR_FLAT(char16_t*) CSharp_PaletteType_get_Comments(void* self) { return new_string(as<PaletteType>(self).get_Comments()); }
VYR_FLAT(std::int32_t) CSharp_PaletteType_set_Comments(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<PaletteType>(s).set_Comments(v); }); }
VYR_FLAT(std::int32_t) CSharp_PaletteType_isset_Comments(void* self) { return as<PaletteType>(self).isset_Comments(); }
VYR_FLAT(void) CSharp_PaletteType_unset_Comments(void* self) { as<PaletteType>(self).unset_Comments(); }
VYR_FLAT(std::uint32_t) CSharp_PaletteType_size_CustomAttribute(void* self) { return static_cast<std::uint32_t>(as<PaletteType>(self).size_CustomAttribute()); }
VYR_FLAT(void*) CSharp_PaletteType_get_CustomAttribute__SWIG_0(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) -> void* { return &as<PaletteType>(s).get_CustomAttribute(i); }, self, index); }
VYR_FLAT(void*) CSharp_PaletteType_assign_CustomAttribute(void* self, std::uint32_t index, void* value) { return checked("com_vyrgraph_v2::CustomAttributeType const & type is null", +[](void* v, void* s, std::uint32_t i) -> void* { return &as<PaletteType>(s).assign_CustomAttribute(i, as<CustomAttributeType>(v)); }, value, self, index); }
VYR_FLAT(std::int32_t) CSharp_PaletteType_append_CustomAttribute(void* self) { return guarded(+[](void* s) { return as<PaletteType>(s).append_CustomAttribute(); }, self); }
VYR_FLAT(std::int32_t) CSharp_PaletteType_insert_CustomAttribute(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) { return as<PaletteType>(s).insert_CustomAttribute(i); }, self, index); }
VYR_FLAT(void*) CSharp_PaletteType_back_CustomAttribute(void* self) { return &as<PaletteType>(self).back_CustomAttribute(); }
VYR_FLAT(void) CSharp_PaletteType_delete_CustomAttribute(void* self, std::uint32_t index) { as<PaletteType>(self).delete_CustomAttribute(index); }
VYR_FLAT(void) CSharp_PaletteType_clear_CustomAttribute(void* self) { as<PaletteType>(self).clear_CustomAttribute(); }
VYR_FLAT(std::uint32_t) CSharp_PaletteType_size_ChangeHistory(void* self) { return static_cast<std::uint32_t>(as<PaletteType>(self).size_ChangeHistory()); }
VYR_FLAT(void*) CSharp_PaletteType_get_ChangeHistory(void* self, std::uint32_t index) { return reference(as<PaletteType>(self).get_ChangeHistory(index)); }
VYR_FLAT(std::int32_t) CSharp_PaletteType_set_ChangeHistory(void* self, std::uint32_t index, void* value) { return checked("lmx::tc_datetime const & type is null", +[](void* v, void* s, std::uint32_t i) { return as<PaletteType>(s).set_ChangeHistory(i, as<lmx::c_datetime>(v)); }, value, self, index); }
VYR_FLAT(std::int32_t) CSharp_PaletteType_append_ChangeHistory(void* self, void* value) { return checked("lmx::tc_datetime const & type is null", +[](void* v, void* s) { return as<PaletteType>(s).append_ChangeHistory(as<lmx::c_datetime>(v)); }, value, self); }
VYR_FLAT(std::int32_t) CSharp_PaletteType_insert_ChangeHistory(void* self, std::uint32_t index, void* value) { return checked("lmx::tc_datetime const & type is null", +[](void* v, void* s, std::uint32_t i) { return as<PaletteType>(s).insert_ChangeHistory(i, as<lmx::c_datetime>(v)); }, value, self, index); }
VYR_FLAT(void) CSharp_PaletteType_delete_ChangeHistory(void* self, std::uint32_t index) { as<PaletteType>(self).delete_ChangeHistory(index); }
VYR_FLAT(void) CSharp_PaletteType_clear_ChangeHistory(void* self) { as<PaletteType>(self).clear_ChangeHistory(); }
VYR_FLAT(void*) CSharp_PaletteType_get_Owner__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<PaletteType>(s).get_Owner(); }, self); }
VYR_FLAT(void*) CSharp_PaletteType_assign_Owner(void* self, void* value) { return checked("com_vyrgraph_v2::OwnerType const & type is null", +[](void* v, void* s) -> void* { return &as<PaletteType>(s).assign_Owner(as<OwnerType>(v)); }, value, self); }
VYR_FLAT(std::int32_t) CSharp_PaletteType_isset_Owner(void* self) { return as<PaletteType>(self).isset_Owner(); }
VYR_FLAT(void) CSharp_PaletteType_unset_Owner(void* self) { as<PaletteType>(self).unset_Owner(); }
VYR_FLAT(std::uint32_t) CSharp_PaletteType_size_SemanticAssociation(void* self) { return static_cast<std::uint32_t>(as<PaletteType>(self).size_SemanticAssociation()); }
VYR_FLAT(char16_t*) CSharp_PaletteType_get_SemanticAssociation(void* self, std::uint32_t index) { return new_string(as<PaletteType>(self).get_SemanticAssociation(index)); }
VYR_FLAT(std::int32_t) CSharp_PaletteType_set_SemanticAssociation(void* self, std::uint32_t index, const char16_t* value) { return with_text(self, index, value, [](void* s, std::size_t i, wide_text v) { return as<PaletteType>(s).set_SemanticAssociation(i, v); }); }
VYR_FLAT(std::int32_t) CSharp_PaletteType_append_SemanticAssociation(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<PaletteType>(s).append_SemanticAssociation(v); }); }
VYR_FLAT(std::int32_t) CSharp_PaletteType_insert_SemanticAssociation(void* self, std::uint32_t index, const char16_t* value) { return with_text(self, index, value, [](void* s, std::size_t i, wide_text v) { return as<PaletteType>(s).insert_SemanticAssociation(i, v); }); }
VYR_FLAT(void) CSharp_PaletteType_delete_SemanticAssociation(void* self, std::uint32_t index) { as<PaletteType>(self).delete_SemanticAssociation(index); }
VYR_FLAT(void) CSharp_PaletteType_clear_SemanticAssociation(void* self) { as<PaletteType>(self).clear_SemanticAssociation(); }
VYR_FLAT(void*) CSharp_PaletteType_get_CollectionColorSpaceSpecification__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<PaletteType>(s).get_CollectionColorSpaceSpecification(); }, self); }
VYR_FLAT(void*) CSharp_PaletteType_assign_CollectionColorSpaceSpecification(void* self, void* value) { return checked("com_vyrgraph_v2::CollectionColorSpaceSpecificationType const & type is null", +[](void* v, void* s) -> void* { return &as<PaletteType>(s).assign_CollectionColorSpaceSpecification(as<CollectionColorSpaceSpecificationType>(v)); }, value, self); }
VYR_FLAT(std::int32_t) CSharp_PaletteType_isset_CollectionColorSpaceSpecification(void* self) { return as<PaletteType>(self).isset_CollectionColorSpaceSpecification(); }
VYR_FLAT(void) CSharp_PaletteType_unset_CollectionColorSpaceSpecification(void* self) { as<PaletteType>(self).unset_CollectionColorSpaceSpecification(); }
VYR_FLAT(std::uint32_t) CSharp_PaletteType_size_ColorSet(void* self) { return static_cast<std::uint32_t>(as<PaletteType>(self).size_ColorSet()); }
VYR_FLAT(void*) CSharp_PaletteType_get_ColorSet__SWIG_0(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) -> void* { return &as<PaletteType>(s).get_ColorSet(i); }, self, index); }
VYR_FLAT(void*) CSharp_PaletteType_assign_ColorSet(void* self, std::uint32_t index, void* value) { return checked("com_vyrgraph_v2::ColorSetType const & type is null", +[](void* v, void* s, std::uint32_t i) -> void* { return &as<PaletteType>(s).assign_ColorSet(i, as<ColorSetType>(v)); }, value, self, index); }
VYR_FLAT(std::int32_t) CSharp_PaletteType_append_ColorSet(void* self) { return guarded(+[](void* s) { return as<PaletteType>(s).append_ColorSet(); }, self); }
VYR_FLAT(std::int32_t) CSharp_PaletteType_insert_ColorSet(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) { return as<PaletteType>(s).insert_ColorSet(i); }, self, index); }
VYR_FLAT(void*) CSharp_PaletteType_back_ColorSet(void* self) { return &as<PaletteType>(self).back_ColorSet(); }
VYR_FLAT(void) CSharp_PaletteType_delete_ColorSet(void* self, std::uint32_t index) { as<PaletteType>(self).delete_ColorSet(index); }
VYR_FLAT(void) CSharp_PaletteType_clear_ColorSet(void* self) { as<PaletteType>(self).clear_ColorSet(); }

// ColorSetType
VYR_FLAT(void*) CSharp_new_ColorSetType__SWIG_0() { return make<ColorSetType>(); }
VYR_FLAT(void*) CSharp_new_ColorSetType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSetType const & type is null", &copy<ColorSetType>, source); }
VYR_FLAT(void) CSharp_delete_ColorSetType(void* self) { destroy<ColorSetType>(self); }
VYR_FLAT(void) CSharp_ColorSetType_swap(void* self, void* other) { checked("com_vyrgraph_v2::ColorSetType & type is null", +[](void* o, void* s) { return as<ColorSetType>(s).swap(as<ColorSetType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_ColorSetType_reset(void* self) { guarded(+[](void* s) { return as<ColorSetType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSetType_is_occurs_ok(void* self) { return as<ColorSetType>(self).is_occurs_ok(); }
VYR_FLAT(char16_t*) CSharp_ColorSetType_get_ColorSetName(void* self) { return new_string(as<ColorSetType>(self).get_ColorSetName()); }
VYR_FLAT(std::int32_t) CSharp_ColorSetType_set_ColorSetName(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorSetType>(s).set_ColorSetName(v); }); }
VYR_FLAT(char16_t*) CSharp_ColorSetType_get_UniqueID(void* self) { return new_string(as<ColorSetType>(self).get_UniqueID()); }
VYR_FLAT(std::int32_t) CSharp_ColorSetType_set_UniqueID(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorSetType>(s).set_UniqueID(v); }); }
VYR_FLAT(std::int32_t) CSharp_ColorSetType_isset_UniqueID(void* self) { return as<ColorSetType>(self).isset_UniqueID(); }
VYR_FLAT(void) CSharp_ColorSetType_unset_UniqueID(void* self) { as<ColorSetType>(self).unset_UniqueID(); }
VYR_FLAT(char16_t*) CSharp_ColorSetType_get_PartNumber(void* self) { return new_string(as<ColorSetType>(self).get_PartNumber()); }
VYR_FLAT(std::int32_t) CSharp_ColorSetType_set_PartNumber(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorSetType>(s).set_PartNumber(v); }); }
VYR_FLAT(std::int32_t) CSharp_ColorSetType_isset_PartNumber(void* self) { return as<ColorSetType>(self).isset_PartNumber(); }
VYR_FLAT(void) CSharp_ColorSetType_unset_PartNumber(void* self) { as<ColorSetType>(self).unset_PartNumber(); }
VYR_FLAT(char16_t*) CSharp_ColorSetType_get_Comments(void* self) { return new_string(as<ColorSetType>(self).get_Comments()); }
VYR_FLAT(std::int32_t) CSharp_ColorSetType_set_Comments(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorSetType>(s).set_Comments(v); }); }
VYR_FLAT(std::int32_t) CSharp_ColorSetType_isset_Comments(void* self) { return as<ColorSetType>(self).isset_Comments(); }
VYR_FLAT(void) CSharp_ColorSetType_unset_Comments(void* self) { as<ColorSetType>(self).unset_Comments(); }
VYR_FLAT(std::uint32_t) CSharp_ColorSetType_size_CustomAttribute(void* self) { return static_cast<std::uint32_t>(as<ColorSetType>(self).size_CustomAttribute()); }
VYR_FLAT(void*) CSharp_ColorSetType_get_CustomAttribute__SWIG_0(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) -> void* { return &as<ColorSetType>(s).get_CustomAttribute(i); }, self, index); }
VYR_FLAT(void*) CSharp_ColorSetType_assign_CustomAttribute(void* self, std::uint32_t index, void* value) { return checked("com_vyrgraph_v2::CustomAttributeType const & type is null", +[](void* v, void* s, std::uint32_t i) -> void* { return &as<ColorSetType>(s).assign_CustomAttribute(i, as<CustomAttributeType>(v)); }, value, self, index); }
VYR_FLAT(std::int32_t) CSharp_ColorSetType_append_CustomAttribute(void* self) { return guarded(+[](void* s) { return as<ColorSetType>(s).append_CustomAttribute(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSetType_insert_CustomAttribute(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) { return as<ColorSetType>(s).insert_CustomAttribute(i); }, self, index); }
VYR_FLAT(void*) CSharp_ColorSetType_back_CustomAttribute(void* self) { return &as<ColorSetType>(self).back_CustomAttribute(); }
VYR_FLAT(void) CSharp_ColorSetType_delete_CustomAttribute(void* self, std::uint32_t index) { as<ColorSetType>(self).delete_CustomAttribute(index); }
VYR_FLAT(void) CSharp_ColorSetType_clear_CustomAttribute(void* self) { as<ColorSetType>(self).clear_CustomAttribute(); }
VYR_FLAT(std::uint32_t) CSharp_ColorSetType_size_ChangeHistory(void* self) { return static_cast<std::uint32_t>(as<ColorSetType>(self).size_ChangeHistory()); }
VYR_FLAT(void*) CSharp_ColorSetType_get_ChangeHistory(void* self, std::uint32_t index) { return reference(as<ColorSetType>(self).get_ChangeHistory(index)); }
VYR_FLAT(std::int32_t) CSharp_ColorSetType_set_ChangeHistory(void* self, std::uint32_t index, void* value) { return checked("lmx::tc_datetime const & type is null", +[](void* v, void* s, std::uint32_t i) { return as<ColorSetType>(s).set_ChangeHistory(i, as<lmx::c_datetime>(v)); }, value, self, index); }
VYR_FLAT(std::int32_t) CSharp_ColorSetType_append_ChangeHistory(void* self, void* value) { return checked("lmx::tc_datetime const & type is null", +[](void* v, void* s) { return as<ColorSetType>(s).append_ChangeHistory(as<lmx::c_datetime>(v)); }, value, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSetType_insert_ChangeHistory(void* self, std::uint32_t index, void* value) { return checked("lmx::tc_datetime const & type is null", +[](void* v, void* s, std::uint32_t i) { return as<ColorSetType>(s).insert_ChangeHistory(i, as<lmx::c_datetime>(v)); }, value, self, index); }
VYR_FLAT(void) CSharp_ColorSetType_delete_ChangeHistory(void* self, std::uint32_t index) { as<ColorSetType>(self).delete_ChangeHistory(index); }
VYR_FLAT(void) CSharp_ColorSetType_clear_ChangeHistory(void* self) { as<ColorSetType>(self).clear_ChangeHistory(); }
VYR_FLAT(void*) CSharp_ColorSetType_get_Owner__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<ColorSetType>(s).get_Owner(); }, self); }
VYR_FLAT(void*) CSharp_ColorSetType_assign_Owner(void* self, void* value) { return checked("com_vyrgraph_v2::OwnerType const & type is null", +[](void* v, void* s) -> void* { return &as<ColorSetType>(s).assign_Owner(as<OwnerType>(v)); }, value, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSetType_isset_Owner(void* self) { return as<ColorSetType>(self).isset_Owner(); }
VYR_FLAT(void) CSharp_ColorSetType_unset_Owner(void* self) { as<ColorSetType>(self).unset_Owner(); }
VYR_FLAT(std::uint32_t) CSharp_ColorSetType_size_SemanticAssociation(void* self) { return static_cast<std::uint32_t>(as<ColorSetType>(self).size_SemanticAssociation()); }
VYR_FLAT(char16_t*) CSharp_ColorSetType_get_SemanticAssociation(void* self, std::uint32_t index) { return new_string(as<ColorSetType>(self).get_SemanticAssociation(index)); }
VYR_FLAT(std::int32_t) CSharp_ColorSetType_set_SemanticAssociation(void* self, std::uint32_t index, const char16_t* value) { return with_text(self, index, value, [](void* s, std::size_t i, wide_text v) { return as<ColorSetType>(s).set_SemanticAssociation(i, v); }); }
VYR_FLAT(std::int32_t) CSharp_ColorSetType_append_SemanticAssociation(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorSetType>(s).append_SemanticAssociation(v); }); }
VYR_FLAT(std::int32_t) CSharp_ColorSetType_insert_SemanticAssociation(void* self, std::uint32_t index, const char16_t* value) { return with_text(self, index, value, [](void* s, std::size_t i, wide_text v) { return as<ColorSetType>(s).insert_SemanticAssociation(i, v); }); }
VYR_FLAT(void) CSharp_ColorSetType_delete_SemanticAssociation(void* self, std::uint32_t index) { as<ColorSetType>(self).delete_SemanticAssociation(index); }
VYR_FLAT(void) CSharp_ColorSetType_clear_SemanticAssociation(void* self) { as<ColorSetType>(self).clear_SemanticAssociation(); }
VYR_FLAT(void*) CSharp_ColorSetType_get_CollectionColorSpaceSpecification__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<ColorSetType>(s).get_CollectionColorSpaceSpecification(); }, self); }
VYR_FLAT(void*) CSharp_ColorSetType_assign_CollectionColorSpaceSpecification(void* self, void* value) { return checked("com_vyrgraph_v2::CollectionColorSpaceSpecificationType const & type is null", +[](void* v, void* s) -> void* { return &as<ColorSetType>(s).assign_CollectionColorSpaceSpecification(as<CollectionColorSpaceSpecificationType>(v)); }, value, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSetType_isset_CollectionColorSpaceSpecification(void* self) { return as<ColorSetType>(self).isset_CollectionColorSpaceSpecification(); }
VYR_FLAT(void) CSharp_ColorSetType_unset_CollectionColorSpaceSpecification(void* self) { as<ColorSetType>(self).unset_CollectionColorSpaceSpecification(); }
VYR_FLAT(std::uint32_t) CSharp_ColorSetType_size_Color(void* self) { return static_cast<std::uint32_t>(as<ColorSetType>(self).size_Color()); }
VYR_FLAT(void*) CSharp_ColorSetType_get_Color__SWIG_0(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) -> void* { return &as<ColorSetType>(s).get_Color(i); }, self, index); }
VYR_FLAT(void*) CSharp_ColorSetType_assign_Color(void* self, std::uint32_t index, void* value) { return checked("com_vyrgraph_v2::ColorType const & type is null", +[](void* v, void* s, std::uint32_t i) -> void* { return &as<ColorSetType>(s).assign_Color(i, as<ColorType>(v)); }, value, self, index); }
VYR_FLAT(std::int32_t) CSharp_ColorSetType_append_Color(void* self) { return guarded(+[](void* s) { return as<ColorSetType>(s).append_Color(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSetType_insert_Color(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) { return as<ColorSetType>(s).insert_Color(i); }, self, index); }
VYR_FLAT(void*) CSharp_ColorSetType_back_Color(void* self) { return &as<ColorSetType>(self).back_Color(); }
VYR_FLAT(void) CSharp_ColorSetType_delete_Color(void* self, std::uint32_t index) { as<ColorSetType>(self).delete_Color(index); }
VYR_FLAT(void) CSharp_ColorSetType_clear_Color(void* self) { as<ColorSetType>(self).clear_Color(); }
VYR_FLAT(void*) CSharp_ColorSetType_get_Substrate__SWIG_0(void* self) { return &as<ColorSetType>(self).get_Substrate(); }
VYR_FLAT(void*) CSharp_ColorSetType_assign_Substrate(void* self, void* value) { return checked("com_vyrgraph_v2::sg_Substrate const & type is null", +[](void* v, void* s) -> void* { return &as<ColorSetType>(s).assign_Substrate(as<sg_Substrate>(v)); }, value, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSetType_isset_Substrate(void* self) { return as<ColorSetType>(self).isset_Substrate(); }
VYR_FLAT(void) CSharp_ColorSetType_unset_Substrate(void* self) { as<ColorSetType>(self).unset_Substrate(); }

// ColorType
VYR_FLAT(void*) CSharp_new_ColorType__SWIG_0() { return make<ColorType>(); }
VYR_FLAT(void*) CSharp_new_ColorType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorType const & type is null", &copy<ColorType>, source); }
VYR_FLAT(void) CSharp_delete_ColorType(void* self) { destroy<ColorType>(self); }
VYR_FLAT(void) CSharp_ColorType_swap(void* self, void* other) { checked("com_vyrgraph_v2::ColorType & type is null", +[](void* o, void* s) { return as<ColorType>(s).swap(as<ColorType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_ColorType_reset(void* self) { guarded(+[](void* s) { return as<ColorType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorType_is_occurs_ok(void* self) { return as<ColorType>(self).is_occurs_ok(); }
VYR_FLAT(char16_t*) CSharp_ColorType_get_ColorName(void* self) { return new_string(as<ColorType>(self).get_ColorName()); }
VYR_FLAT(std::int32_t) CSharp_ColorType_set_ColorName(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorType>(s).set_ColorName(v); }); }
VYR_FLAT(char16_t*) CSharp_ColorType_get_UniqueID(void* self) { return new_string(as<ColorType>(self).get_UniqueID()); }
VYR_FLAT(std::int32_t) CSharp_ColorType_set_UniqueID(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorType>(s).set_UniqueID(v); }); }
VYR_FLAT(std::int32_t) CSharp_ColorType_isset_UniqueID(void* self) { return as<ColorType>(self).isset_UniqueID(); }
VYR_FLAT(void) CSharp_ColorType_unset_UniqueID(void* self) { as<ColorType>(self).unset_UniqueID(); }
VYR_FLAT(char16_t*) CSharp_ColorType_get_ColorNumber(void* self) { return new_string(as<ColorType>(self).get_ColorNumber()); }
VYR_FLAT(std::int32_t) CSharp_ColorType_set_ColorNumber(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorType>(s).set_ColorNumber(v); }); }
VYR_FLAT(std::int32_t) CSharp_ColorType_isset_ColorNumber(void* self) { return as<ColorType>(self).isset_ColorNumber(); }
VYR_FLAT(void) CSharp_ColorType_unset_ColorNumber(void* self) { as<ColorType>(self).unset_ColorNumber(); }
VYR_FLAT(char16_t*) CSharp_ColorType_get_Comments(void* self) { return new_string(as<ColorType>(self).get_Comments()); }
VYR_FLAT(std::int32_t) CSharp_ColorType_set_Comments(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorType>(s).set_Comments(v); }); }
VYR_FLAT(std::int32_t) CSharp_ColorType_isset_Comments(void* self) { return as<ColorType>(self).isset_Comments(); }
VYR_FLAT(void) CSharp_ColorType_unset_Comments(void* self) { as<ColorType>(self).unset_Comments(); }
VYR_FLAT(std::uint32_t) CSharp_ColorType_size_CustomAttribute(void* self) { return static_cast<std::uint32_t>(as<ColorType>(self).size_CustomAttribute()); }
VYR_FLAT(void*) CSharp_ColorType_get_CustomAttribute__SWIG_0(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) -> void* { return &as<ColorType>(s).get_CustomAttribute(i); }, self, index); }
VYR_FLAT(void*) CSharp_ColorType_assign_CustomAttribute(void* self, std::uint32_t index, void* value) { return checked("com_vyrgraph_v2::CustomAttributeType const & type is null", +[](void* v, void* s, std::uint32_t i) -> void* { return &as<ColorType>(s).assign_CustomAttribute(i, as<CustomAttributeType>(v)); }, value, self, index); }
VYR_FLAT(std::int32_t) CSharp_ColorType_append_CustomAttribute(void* self) { return guarded(+[](void* s) { return as<ColorType>(s).append_CustomAttribute(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorType_insert_CustomAttribute(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) { return as<ColorType>(s).insert_CustomAttribute(i); }, self, index); }
VYR_FLAT(void*) CSharp_ColorType_back_CustomAttribute(void* self) { return &as<ColorType>(self).back_CustomAttribute(); }
VYR_FLAT(void) CSharp_ColorType_delete_CustomAttribute(void* self, std::uint32_t index) { as<ColorType>(self).delete_CustomAttribute(index); }
VYR_FLAT(void) CSharp_ColorType_clear_CustomAttribute(void* self) { as<ColorType>(self).clear_CustomAttribute(); }
VYR_FLAT(std::uint32_t) CSharp_ColorType_size_ChangeHistory(void* self) { return static_cast<std::uint32_t>(as<ColorType>(self).size_ChangeHistory()); }
VYR_FLAT(void*) CSharp_ColorType_get_ChangeHistory(void* self, std::uint32_t index) { return reference(as<ColorType>(self).get_ChangeHistory(index)); }
VYR_FLAT(std::int32_t) CSharp_ColorType_set_ChangeHistory(void* self, std::uint32_t index, void* value) { return checked("lmx::tc_datetime const & type is null", +[](void* v, void* s, std::uint32_t i) { return as<ColorType>(s).set_ChangeHistory(i, as<lmx::c_datetime>(v)); }, value, self, index); }
VYR_FLAT(std::int32_t) CSharp_ColorType_append_ChangeHistory(void* self, void* value) { return checked("lmx::tc_datetime const & type is null", +[](void* v, void* s) { return as<ColorType>(s).append_ChangeHistory(as<lmx::c_datetime>(v)); }, value, self); }
VYR_FLAT(std::int32_t) CSharp_ColorType_insert_ChangeHistory(void* self, std::uint32_t index, void* value) { return checked("lmx::tc_datetime const & type is null", +[](void* v, void* s, std::uint32_t i) { return as<ColorType>(s).insert_ChangeHistory(i, as<lmx::c_datetime>(v)); }, value, self, index); }
VYR_FLAT(void) CSharp_ColorType_delete_ChangeHistory(void* self, std::uint32_t index) { as<ColorType>(self).delete_ChangeHistory(index); }
VYR_FLAT(void) CSharp_ColorType_clear_ChangeHistory(void* self) { as<ColorType>(self).clear_ChangeHistory(); }
VYR_FLAT(void*) CSharp_ColorType_get_Owner__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<ColorType>(s).get_Owner(); }, self); }
VYR_FLAT(void*) CSharp_ColorType_assign_Owner(void* self, void* value) { return checked("com_vyrgraph_v2::OwnerType const & type is null", +[](void* v, void* s) -> void* { return &as<ColorType>(s).assign_Owner(as<OwnerType>(v)); }, value, self); }
VYR_FLAT(std::int32_t) CSharp_ColorType_isset_Owner(void* self) { return as<ColorType>(self).isset_Owner(); }
VYR_FLAT(void) CSharp_ColorType_unset_Owner(void* self) { as<ColorType>(self).unset_Owner(); }
VYR_FLAT(std::uint32_t) CSharp_ColorType_size_SemanticAssociation(void* self) { return static_cast<std::uint32_t>(as<ColorType>(self).size_SemanticAssociation()); }
VYR_FLAT(char16_t*) CSharp_ColorType_get_SemanticAssociation(void* self, std::uint32_t index) { return new_string(as<ColorType>(self).get_SemanticAssociation(index)); }
VYR_FLAT(std::int32_t) CSharp_ColorType_set_SemanticAssociation(void* self, std::uint32_t index, const char16_t* value) { return with_text(self, index, value, [](void* s, std::size_t i, wide_text v) { return as<ColorType>(s).set_SemanticAssociation(i, v); }); }
VYR_FLAT(std::int32_t) CSharp_ColorType_append_SemanticAssociation(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorType>(s).append_SemanticAssociation(v); }); }
VYR_FLAT(std::int32_t) CSharp_ColorType_insert_SemanticAssociation(void* self, std::uint32_t index, const char16_t* value) { return with_text(self, index, value, [](void* s, std::size_t i, wide_text v) { return as<ColorType>(s).insert_SemanticAssociation(i, v); }); }
VYR_FLAT(void) CSharp_ColorType_delete_SemanticAssociation(void* self, std::uint32_t index) { as<ColorType>(self).delete_SemanticAssociation(index); }
VYR_FLAT(void) CSharp_ColorType_clear_SemanticAssociation(void* self) { as<ColorType>(self).clear_SemanticAssociation(); }
VYR_FLAT(std::uint32_t) CSharp_ColorType_size_ColorSpace(void* self) { return static_cast<std::uint32_t>(as<ColorType>(self).size_ColorSpace()); }
VYR_FLAT(void*) CSharp_ColorType_get_ColorSpace__SWIG_0(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) -> void* { return &as<ColorType>(s).get_ColorSpace(i); }, self, index); }
VYR_FLAT(void*) CSharp_ColorType_assign_ColorSpace(void* self, std::uint32_t index, void* value) { return checked("com_vyrgraph_v2::sg_ColorSpace const & type is null", +[](void* v, void* s, std::uint32_t i) -> void* { return &as<ColorType>(s).assign_ColorSpace(i, as<sg_ColorSpace>(v)); }, value, self, index); }
VYR_FLAT(std::int32_t) CSharp_ColorType_append_ColorSpace(void* self) { return guarded(+[](void* s) { return as<ColorType>(s).append_ColorSpace(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorType_insert_ColorSpace(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) { return as<ColorType>(s).insert_ColorSpace(i); }, self, index); }
VYR_FLAT(void*) CSharp_ColorType_back_ColorSpace(void* self) { return &as<ColorType>(self).back_ColorSpace(); }
VYR_FLAT(void) CSharp_ColorType_delete_ColorSpace(void* self, std::uint32_t index) { as<ColorType>(self).delete_ColorSpace(index); }
VYR_FLAT(void) CSharp_ColorType_clear_ColorSpace(void* self) { as<ColorType>(self).clear_ColorSpace(); }
VYR_FLAT(void*) CSharp_ColorType_get_Substrate__SWIG_0(void* self) { return &as<ColorType>(self).get_Substrate(); }
VYR_FLAT(void*) CSharp_ColorType_assign_Substrate(void* self, void* value) { return checked("com_vyrgraph_v2::sg_Substrate const & type is null", +[](void* v, void* s) -> void* { return &as<ColorType>(s).assign_Substrate(as<sg_Substrate>(v)); }, value, self); }
VYR_FLAT(std::int32_t) CSharp_ColorType_isset_Substrate(void* self) { return as<ColorType>(self).isset_Substrate(); }
VYR_FLAT(void) CSharp_ColorType_unset_Substrate(void* self) { as<ColorType>(self).unset_Substrate(); }
VYR_FLAT(std::uint32_t) CSharp_ColorType_size_TagValues(void* self) { return static_cast<std::uint32_t>(as<ColorType>(self).size_TagValues()); }
VYR_FLAT(void*) CSharp_ColorType_get_TagValues__SWIG_0(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) -> void* { return &as<ColorType>(s).get_TagValues(i); }, self, index); }
VYR_FLAT(void*) CSharp_ColorType_assign_TagValues(void* self, std::uint32_t index, void* value) { return checked("com_vyrgraph_v2::TagValue const & type is null", +[](void* v, void* s, std::uint32_t i) -> void* { return &as<ColorType>(s).assign_TagValues(i, as<TagValue>(v)); }, value, self, index); }
VYR_FLAT(std::int32_t) CSharp_ColorType_append_TagValues(void* self) { return guarded(+[](void* s) { return as<ColorType>(s).append_TagValues(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorType_insert_TagValues(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) { return as<ColorType>(s).insert_TagValues(i); }, self, index); }
VYR_FLAT(void*) CSharp_ColorType_back_TagValues(void* self) { return &as<ColorType>(self).back_TagValues(); }
VYR_FLAT(void) CSharp_ColorType_delete_TagValues(void* self, std::uint32_t index) { as<ColorType>(self).delete_TagValues(index); }
VYR_FLAT(void) CSharp_ColorType_clear_TagValues(void* self) { as<ColorType>(self).clear_TagValues(); }

// CollectionColorSpaceSpecification
VYR_FLAT(void*) CSharp_new_CollectionColorSpaceSpecification__SWIG_0() { return make<CollectionColorSpaceSpecification>(); }
VYR_FLAT(void*) CSharp_new_CollectionColorSpaceSpecification__SWIG_1(void* source) { return checked("com_vyrgraph_v2::CollectionColorSpaceSpecification const & type is null", &copy<CollectionColorSpaceSpecification>, source); }
VYR_FLAT(void) CSharp_delete_CollectionColorSpaceSpecification(void* self) { destroy<CollectionColorSpaceSpecification>(self); }
VYR_FLAT(void*) CSharp_CollectionColorSpaceSpecificationUpcast(void* self) { return upcast<CollectionColorSpaceSpecification, CollectionColorSpaceSpecificationType>(self); }
VYR_FLAT(void*) CSharp_CollectionColorSpaceSpecification_ns_map() { return reference(*CollectionColorSpaceSpecification::ns_map()); }
VYR_FLAT(std::int32_t) CSharp_CollectionColorSpaceSpecification_unmarshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<CollectionColorSpaceSpecification>(s).unmarshal(p); }, self, path); }
VYR_FLAT(std::int32_t) CSharp_CollectionColorSpaceSpecification_unmarshal__SWIG_1(void* self, const char* data, std::uint32_t size) { return guarded(+[](void* s, const char* d, std::uint32_t n) { return as<CollectionColorSpaceSpecification>(s).unmarshal(d, n); }, self, data, size); }
VYR_FLAT(std::int32_t) CSharp_CollectionColorSpaceSpecification_marshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<CollectionColorSpaceSpecification>(s).marshal(p); }, self, path); }

}  // extern "C"

}  // namespace com_vyrgraph_v2
