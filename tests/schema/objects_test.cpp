// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// What objects of the format do by themselves: accessors, presence, copies, choices, identities and writing.

#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <thread>

#include "tests/schema/support.h"

namespace vyr_test {
namespace {

using namespace lmx;

TEST(Objects, ListsGrowOnAccessAndClampTheirIndexes) {
    v2::Vyr document;
    document.get_Color(3).set_ColorName(u"fourth");
    EXPECT_EQ(document.size_Color(), 4U);
    document.insert_Color(100);
    EXPECT_EQ(document.size_Color(), 5U);
    EXPECT_EQ(document.insert_Color(0), ELMX_OK);
    EXPECT_EQ(document.get_Color(4).get_ColorName(), u"fourth");
    document.delete_Color(0);
    EXPECT_EQ(document.get_Color(3).get_ColorName(), u"fourth");
    document.append_Color();
    document.back_Color() = document.get_Color(3);
    document.assign_Color(7, document.get_Color(3)).set_UniqueID(u"x");
    EXPECT_EQ(document.size_Color(), 8U);
    EXPECT_FALSE(document.get_Color(3).isset_UniqueID());
    document.clear_Color();
    EXPECT_EQ(document.size_Color(), 0U);

    v2::OwnerType owner;
    owner.set_Company(9, u"a");
    owner.append_Company(u"c");
    owner.insert_Company(1, u"b");
    owner.set_Company(0, u"A");
    EXPECT_EQ(write(owner, "Vyr:Owner"),
              "<Vyr:Owner><Vyr:Company>A</Vyr:Company><Vyr:Company>b</Vyr:Company>"
              "<Vyr:Company>c</Vyr:Company></Vyr:Owner>");
}

TEST(Objects, SettersRunTheFacetsAndChangeNothingOnFailure) {
    v2::ColorSpaceCIELChType color;
    EXPECT_EQ(color.set_H(359.999), ELMX_OK);
    EXPECT_EQ(color.set_H(360), ELMX_VALUE_EXCEEDS_MAX);
    EXPECT_EQ(color.set_H(std::numeric_limits<double>::infinity()), ELMX_VALUE_EXCEEDS_MAX);
    EXPECT_EQ(color.get_H(), 359.999);
    EXPECT_EQ(color.set_L(120), ELMX_VALUE_EXCEEDS_MAX);
    EXPECT_EQ(v2::ColorSpaceCIELabType().set_L(120), ELMX_OK);
    EXPECT_EQ(v2::Colorant().set_Density(0), ELMX_VALUE_BELOW_MIN);

    v2::SpotColorType spot;
    EXPECT_EQ(spot.set_Name(u""), ELMX_LENGTH_TOO_SHORT);
    v2::ProfileType_Parameters parameters;
    EXPECT_EQ(parameters.set_Name(u"ab"), ELMX_LENGTH_TOO_LONG);
    EXPECT_EQ(parameters.set_Name(u"\U0001F3A8"), ELMX_OK);

    v2::Averaging averaging;
    EXPECT_EQ(averaging.set_AveragingValue(1), ELMX_VALUE_BELOW_MIN);
    EXPECT_EQ(averaging.set_AveragingValue(100), ELMX_VALUE_EXCEEDS_MAX);
    EXPECT_EQ(averaging.set_AveragingValue(99), ELMX_OK);
}

TEST(Objects, TwoSettersTestLessThanTheReader) {
    v2::DeviceSettings settings;
    EXPECT_EQ(settings.set_Aperture(2147483648U), ELMX_VALUE_EXCEEDS_MAX);
    EXPECT_FALSE(settings.isset_Aperture());
    EXPECT_EQ(settings.set_Aperture(0), ELMX_OK);
    const std::string text = write(settings, "Vyr:DeviceSettings");
    EXPECT_EQ(text, "<Vyr:DeviceSettings><Vyr:Aperture>0</Vyr:Aperture></Vyr:DeviceSettings>");
    v2::DeviceSettings back;
    EXPECT_EQ(read(back, text), failure(ELMX_VALUE_BELOW_MIN, "Vyr:Aperture"));
    v2::IlluminationOptionsType options;
    EXPECT_EQ(options.set_ColorTemperature(0), ELMX_OK);
    EXPECT_EQ(options.getchosen(), 2);
}

TEST(Objects, EnumeratedItemsAreTextsWithNumbers) {
    v2::SampleType sample;
    EXPECT_EQ(sample.getenum_Backing(), 0);
    EXPECT_EQ(sample.set_Backing(u"Backing_Self "), ELMX_VALUE_NOT_ENUMERATED);
    EXPECT_FALSE(sample.isset_Backing());
    EXPECT_FALSE(sample.setenum_Backing(0));
    EXPECT_FALSE(sample.setenum_Backing(5));
    EXPECT_TRUE(sample.setenum_Backing(3));
    EXPECT_EQ(sample.get_Backing(), u"Backing_Self");
    EXPECT_EQ(sample.getenum_Backing(), 3);
    v2::FunctionTolerance tolerance;
    EXPECT_EQ(tolerance.set_ToleranceType(u"L*a*b*PlusMinus"), ELMX_OK);
    EXPECT_EQ(tolerance.getenum_ToleranceType(), 14);
}

// Made before `main`, with the texts of its enumeration; ended behind it.
const v2::FloatingPointValueType k_early_value;

TEST(Objects, EnumeratedTextsAreSharedAndOddOnesOwned) {
    EXPECT_EQ(k_early_value.get_AxisNominalScale(), u"Scale_Linear");
    v2::SampleType one;
    v2::SampleType other;
    one.setenum_Backing(1);
    other.set_Backing(u"Backing_Black");
    EXPECT_EQ(&one.get_Backing(), &other.get_Backing());

    const auto read_odd = [](auto& object, const std::string& element) {
        const std::string text = with_declarations(element);
        c_swallowing_reader reader(text);
        read_with(reader, object);
        ASSERT_EQ(reader.swallowed, std::vector{failure(ELMX_VALUE_NOT_ENUMERATED, reader.swallowed.at(0).item)});
    };
    v2::SpectrumType odd;
    read_odd(odd, "<Vyr:Spectrum>of \xC3\xA9toiles &amp; &lt;planets&gt;</Vyr:Spectrum>");
    v2::SpectrumType copy(odd);
    v2::SpectrumType fresh;
    fresh.swap(copy);
    copy = fresh;
    for (const auto* object : {&odd, &copy, &fresh}) {
        EXPECT_EQ(object->get_SpectrumType(), u"of \u00E9toiles & <planets>");
        EXPECT_EQ(object->getenum_SpectrumType(), 0);
        EXPECT_EQ(write(*object, "Vyr:Spectrum"),
                  "<Vyr:Spectrum>of \xC3\xA9toiles &amp; &lt;planets></Vyr:Spectrum>");
    }
    // A text that was handed out follows the item.
    const std::u16string& text = odd.get_SpectrumType();
    odd.set_SpectrumType(u"Spectrum_Custom");
    EXPECT_EQ(text, u"Spectrum_Custom");
    EXPECT_EQ(v2::SpectrumType(odd).getenum_SpectrumType(), 4);
    read_odd(odd, "<Vyr:Spectrum>other</Vyr:Spectrum>");
    EXPECT_EQ(text, u"other");
    read_odd(odd, "<Vyr:Spectrum/>");
    EXPECT_EQ(text, u"");
    EXPECT_EQ(odd.getenum_SpectrumType(), 0);

    v2::GeometryChoiceType geometry;
    read_odd(geometry, "<Vyr:Geometry><Vyr:SphereGeometry>square</Vyr:SphereGeometry></Vyr:Geometry>");
    v2::GeometryChoiceType same(geometry);
    geometry.set_Angle(1);
    EXPECT_EQ(geometry.getenum_SphereGeometry(), 0);
    EXPECT_EQ(same.get_SphereGeometry(), u"square");
    EXPECT_EQ(same.getenum_SphereGeometry(), 0);
    geometry.swap(same);
    EXPECT_EQ(write(geometry, "Vyr:G"), "<Vyr:G><Vyr:SphereGeometry>square</Vyr:SphereGeometry></Vyr:G>");
    EXPECT_TRUE(geometry.setenum_SphereGeometry(2));
    EXPECT_EQ(geometry.getenum_SphereGeometry(), 2);
}

TEST(Objects, OptionalChildrenStayWithTheirObject) {
    v2::ColorType one;
    v2::ColorType other;
    const v2::ColorType& constant = one;
    EXPECT_EQ(constant.get_Owner().size_Company(), 0U);
    EXPECT_EQ(&constant.get_Owner(), &static_cast<const v2::ColorType&>(other).get_Owner());
    EXPECT_FALSE(one.isset_Owner());

    v2::OwnerType& owner = one.get_Owner();
    EXPECT_EQ(&constant.get_Owner(), &owner);
    owner.append_Company(u"one");
    one.unset_Owner();
    EXPECT_EQ(constant.get_Owner().get_Company(0), u"one");
    // Exchanging and assigning exchange values, whichever side has the child.
    one.swap(other);
    EXPECT_EQ(&constant.get_Owner(), &owner);
    EXPECT_EQ(owner.size_Company(), 0U);
    EXPECT_FALSE(other.isset_Owner());
    EXPECT_EQ(other.get_Owner().get_Company(0), u"one");
    v2::OwnerType& other_owner = other.get_Owner();
    other.swap(one);
    EXPECT_EQ(owner.get_Company(0), u"one");
    EXPECT_EQ(other_owner.size_Company(), 0U);
    EXPECT_TRUE(one.isset_Owner());
    one = v2::ColorType();
    EXPECT_EQ(&constant.get_Owner(), &owner);
    EXPECT_EQ(owner.size_Company(), 0U);
    EXPECT_FALSE(one.isset_Owner());

    // A child of a child.
    v2::PaletteType palette;
    auto& specification =
        palette.get_CollectionColorSpaceSpecification().get_ColorSpaceSpecificationSpectrumGeneric();
    v2::DeviceType& device = specification.get_Device();
    device.set_Manufacturer(u"maker");
    v2::PaletteType copy(palette);
    palette = v2::PaletteType();
    EXPECT_EQ(device.get_Manufacturer(), u"");
    palette = copy;
    EXPECT_EQ(device.get_Manufacturer(), u"maker");
    EXPECT_TRUE(specification.isset_Device());
    palette.reset();
    EXPECT_FALSE(palette.isset_CollectionColorSpaceSpecification());
    EXPECT_FALSE(static_cast<const v2::PaletteType&>(palette)
                     .get_CollectionColorSpaceSpecification()
                     .isset_ColorSpaceSpecificationSpectrumGeneric());
}

TEST(Objects, CopiesRaiseTheFlagsOfMandatoryItems) {
    v2::Person person;
    EXPECT_EQ(write_code(person, "Vyr:Person"), ELMX_OCCURS_ERROR_ON_MARSHAL);
    const v2::Person copy(person);
    EXPECT_EQ(write(copy, "Vyr:Person"), "<Vyr:Person><Vyr:Name></Vyr:Name></Vyr:Person>");
    person.set_ContactInfo(u"c");
    person.unset_ContactInfo();
    EXPECT_EQ(v2::Person(person).get_ContactInfo(), u"");
    v2::Person other;
    other.set_Name(u"n");
    person.swap(other);
    EXPECT_EQ(person.get_Name(), u"n");
    EXPECT_FALSE(other.is_occurs_ok());
    person.reset();
    EXPECT_FALSE(person.is_occurs_ok());
}

TEST(Objects, InitialValuesDontCountAsPresent) {
    v2::FunctionDE94Type function;
    EXPECT_EQ(function.get_Param_l(), 2);
    EXPECT_EQ(function.get_Param_c(), 1);
    EXPECT_EQ(function.get_Param_h(), 1);
    EXPECT_FALSE(function.is_occurs_ok());
    v2::FloatingPointValueType value;
    EXPECT_EQ(value.get_AxisNominalScale(), u"Scale_Linear");
    EXPECT_EQ(value.getenum_AxisNominalScale(), 1);
    EXPECT_FALSE(value.isset_AxisNominalScale());
    value.set_AxisNominalScale(u"Scale_Log");
    value.reset();
    EXPECT_EQ(value.get_AxisNominalScale(), u"Scale_Linear");
}

TEST(Objects, ContentOfASwitchMayBeMissing) {
    v2::GlossCompensation gloss;
    EXPECT_FALSE(gloss.is_occurs_ok());
    gloss.set_CompensationValue(0.5);
    EXPECT_TRUE(gloss.is_occurs_ok());
    EXPECT_FALSE(gloss.isset_GlossCompensation());
    const std::string text = write(gloss, "Vyr:GlossCompensation");
    EXPECT_EQ(text, "<Vyr:GlossCompensation CompensationValue=\"0.5\"></Vyr:GlossCompensation>");
    v2::GlossCompensation back;
    EXPECT_EQ(read(back, text), failure(ELMX_VALUE_BAD_FORMAT, "Vyr:GlossCompensation"));
    v2::Averaging averaging;
    averaging.set_AveragingValue(7);
    averaging.set_Averaging(true);
    EXPECT_EQ(write(averaging, "Vyr:Averaging"), "<Vyr:Averaging AveragingValue=\"7\">true</Vyr:Averaging>");
}

TEST(Objects, ATagAlwaysWritesItsCategory) {
    v2::Tag tag;
    EXPECT_TRUE(tag.is_occurs_ok());
    EXPECT_EQ(write(tag, "Vyr:Tag"), "<Vyr:Tag><Vyr:Category/></Vyr:Tag>");
    tag.set_UniqueID(u"1");
    tag.set_Name(u"2");
    tag.get_Category().set_Name(u"3");
    tag.get_Category().set_UniqueID(u"4");
    EXPECT_EQ(write(v2::Tag(tag), "Vyr:Tag"),
              "<Vyr:Tag Name=\"2\" UniqueID=\"1\"><Vyr:Category UniqueID=\"4\" Name=\"3\"/></Vyr:Tag>");
}

TEST(Objects, ChoicesHoldOneAlternative) {
    v2::CustomAttributeType_ValueChoice choice;
    EXPECT_EQ(choice.getchosen(), 3);
    EXPECT_FALSE(choice.is_occurs_ok());
    choice.set_StringValue(u"text");
    EXPECT_EQ(choice.getchosen(), 2);
    choice.set_IntegerValue(-5);
    EXPECT_EQ(choice.get_StringValue(), u"");
    EXPECT_EQ(write(choice, "Vyr:ValueChoice"),
              "<Vyr:ValueChoice><Vyr:IntegerValue>-5</Vyr:IntegerValue></Vyr:ValueChoice>");
    v2::CustomAttributeType_ValueChoice copy(choice), other;
    other.set_StringValue(u"s");
    copy.swap(other);
    EXPECT_EQ(copy.get_StringValue(), u"s");
    EXPECT_EQ(other.get_IntegerValue(), -5);
    const auto& same = copy;
    copy = same;
    EXPECT_EQ(copy.get_StringValue(), u"s");
    copy.reset();
    EXPECT_EQ(copy.getchosen(), 3);

    v2::GeometryChoiceType geometry;
    geometry.get_BSDFAngle().set_Aspecular(1);
    EXPECT_EQ(geometry.set_SphereGeometry(u"none"), ELMX_VALUE_NOT_ENUMERATED);
    EXPECT_EQ(geometry.set_UnknownGeometry(u""), ELMX_LENGTH_TOO_SHORT);
    EXPECT_EQ(geometry.getchosen(), 3);
    EXPECT_EQ(v2::GeometryChoiceType(geometry).get_BSDFAngle().get_Aspecular(), 1);
    EXPECT_TRUE(geometry.setenum_SphereGeometry(2));
    EXPECT_EQ(geometry.getchosen(), 0);
}

TEST(Objects, AnEmptyChoiceIsNamedWhenWritten) {
    const auto item_of = [](const auto& object, const char* name, elmx_error expected) {
        std::ostringstream stream;
        c_xml_writer writer(stream, "", "");
        EXPECT_EQ(object.marshal(writer, name), expected);
        return writer.get_error_item_name();
    };
    EXPECT_EQ(item_of(v2::AxisValueChoice(), "Vyr:AxisValueChoice", ELMX_BAD_CHOICE), "Vyr:AxisValueChoice");
    EXPECT_EQ(item_of(v2::IlluminationOptionsType(), "Vyr:IlluminationOptions", ELMX_BAD_CHOICE),
              "Vyr:IlluminationOptionsType");
    EXPECT_EQ(item_of(v2::GeometryChoiceType(), "Vyr:Geometry", ELMX_BAD_CHOICE), "Vyr:GeometryChoiceType");
    for (const char* const name : {"Vyr:ValueChoice"}) {
        EXPECT_EQ(item_of(v2::ValueChoice(), name, ELMX_BAD_CHOICE), name);
        EXPECT_EQ(item_of(v2::CustomAttributeType_ValueChoice(), name, ELMX_BAD_CHOICE), name);
        EXPECT_EQ(item_of(v2::ProfileType_Parameters_ValueChoice(), name, ELMX_BAD_CHOICE), name);
    }
    EXPECT_EQ(item_of(v2::anon_TextValue(), "", ELMX_BAD_CHOICE), "");
    EXPECT_EQ(item_of(v2::sg_ColorSpace(), "", ELMX_OCCURS_ERROR_ON_MARSHAL), "");
    v2::sg_ColorSpace null_member;
    null_member.assign_ColorSpaceCMYK(static_cast<v2::ColorSpaceCMYKType*>(nullptr));
    EXPECT_EQ(item_of(null_member, "", ELMX_TYPE_NOT_SET), "");
    const v2::sg_ColorSpace copy(null_member);
    EXPECT_EQ(copy.getchosen(), 21);
}

TEST(Objects, HoldersReplaceTheirMember) {
    v2::sg_ColorSpace holder;
    EXPECT_EQ(holder.getchosen(), 29);
    holder.get_ColorSpaceCMYK().set_Cyan(50);
    holder.get_ColorSpaceRGB();
    EXPECT_EQ(holder.getchosen(), 5);
    EXPECT_FALSE(holder.get_ColorSpaceRGB().is_occurs_ok());
    auto* const derived = new v2::ColorSpaceCMYKPlusNType();
    derived->set_ColorSpaceName(u"n");
    EXPECT_EQ(&holder.assign_ColorSpaceCMYK(derived), derived);
    v2::sg_ColorSpace copy(holder);
    EXPECT_STREQ(copy.get_ColorSpaceCMYK().getid(), "ColorSpaceCMYKPlusNType");
    copy.assign_ColorSpaceHSV(v2::ColorSpaceHSVType()).set_Hue(10);
    EXPECT_EQ(copy.getchosen(), 20);
    copy.swap(holder);
    EXPECT_EQ(holder.get_ColorSpaceHSV().get_Hue(), 10);
    EXPECT_EQ(v2::sg_Function().getchosen(), 19);
    EXPECT_EQ(v2::sg_Substrate().getchosen(), 10);
    EXPECT_EQ(v2::sg_Sample().getchosen(), 3);
    v2::ParentColorSpace parent;
    parent.get_ColorSpaceNCS();
    EXPECT_TRUE(parent.is_occurs_ok());
    EXPECT_EQ(v2::ParentColorSpace(parent).get_ColorSpace().getchosen(), 26);
}

TEST(Objects, AHolderThatIsAnElementKnowsAFlagAndItsMember) {
    v2::ParentColorSpace parent;
    EXPECT_FALSE(v2::ParentColorSpace(parent).is_occurs_ok());
    const auto expect_flag = [&](bool is_set) {
        EXPECT_EQ(parent.isset_ColorSpace(), is_set);
        EXPECT_EQ(parent.is_occurs_ok(), is_set);
        EXPECT_EQ(v2::ParentColorSpace(parent).isset_ColorSpace(), is_set);
        const bool is_held = parent.getchosen() == v2::sg_ColorSpace::e_ColorSpaceNCS;
        EXPECT_EQ(v2::ParentColorSpace(parent).getchosen() == v2::sg_ColorSpace::e_ColorSpaceNCS, is_set && is_held);
    };
    expect_flag(false);
    // Touching is setting, through the members that it inherits too.
    parent.get_ColorSpaceNCS().set_ColorName(u"n");
    expect_flag(true);
    parent.unset_ColorSpace();
    expect_flag(false);
    EXPECT_EQ(write_code(parent, "Vyr:ParentColorSpace"), ELMX_OCCURS_ERROR_ON_MARSHAL);
    // The value stands.
    EXPECT_EQ(parent.get_ColorSpace().get_ColorSpaceNCS().get_ColorName(), u"n");
    expect_flag(true);
    v2::ParentColorSpace other;
    other.get_ColorSpaceNCS();
    other.unset_ColorSpace();
    parent.swap(other);
    expect_flag(false);
    EXPECT_EQ(other.get_ColorSpace().get_ColorSpaceNCS().get_ColorName(), u"n");
    parent = other;
    expect_flag(true);
    parent.unset_ColorSpace();
    parent.assign_ColorSpace(v2::sg_ColorSpace());
    EXPECT_TRUE(parent.isset_ColorSpace());
    parent.reset();
    expect_flag(false);
    parent.assign_ColorSpaceCMYK(new v2::ColorSpaceCMYKType());
    EXPECT_TRUE(parent.isset_ColorSpace());
}

/// Tells of its end.
class c_watched : public v2::ColorSpaceCMYKType {
public:
    explicit c_watched(bool* is_ended) : m_is_ended(is_ended) {}
    ~c_watched() override { *m_is_ended = true; }

private:
    bool* m_is_ended;
};

TEST(Objects, AnAdoptedMemberEndsAnotherAlternativeAndNoneOfItsOwn) {
    bool is_other_ended = false;
    bool is_first_ended = false;
    bool is_second_ended = false;
    {
        v2::sg_ColorSpace holder;
        v2::ParentColorSpace& inner = holder.get_ColorSpaceRGB().get_ParentColorSpace();
        inner.assign_ColorSpaceCMYK(new c_watched(&is_other_ended));
        auto* const first = new c_watched(&is_first_ended);
        holder.assign_ColorSpaceCMYK(first);
        EXPECT_TRUE(is_other_ended);
        holder.assign_ColorSpaceCMYK(new c_watched(&is_second_ended));
        EXPECT_FALSE(is_first_ended);
        if (!is_first_ended) delete first;
    }
    EXPECT_TRUE(is_second_ended);

    // The former one is the caller's, also if a load made it.
    const std::string text = with_declarations(
        "<Vyr:Vyr><Vyr:Palette><Vyr:ColorSet><Vyr:Color><Vyr:ColorSpaceCMYK/></Vyr:Color></Vyr:ColorSet>"
        "</Vyr:Palette></Vyr:Vyr>");
    c_swallowing_reader reader(text);
    v2::Vyr document;
    document.unmarshal(reader);
    v2::sg_ColorSpace& loaded = document.get_Palette(0).get_ColorSet(0).get_Color(0).get_ColorSpace(0);
    ASSERT_EQ(loaded.getchosen(), v2::sg_ColorSpace::e_ColorSpaceCMYK);
    const std::unique_ptr<v2::ColorSpaceCMYKType> former(&loaded.get_ColorSpaceCMYK());
    loaded.assign_ColorSpaceCMYK(new v2::ColorSpaceCMYKType());
}

TEST(Objects, ANullMemberIsHarmless) {
    v2::sg_Function holder;
    const auto assign_null = [](v2::sg_Function& target) {
        return &target.assign_Function(static_cast<v2::FunctionType*>(nullptr));
    };
    v2::FunctionType* const nothing = assign_null(holder);
    nothing->set_Result(1);
    v2::FunctionType* other = nullptr;
    std::thread([&] {
        v2::sg_Function another;
        other = assign_null(another);
        EXPECT_FALSE(other->isset_Result());
    }).join();
    EXPECT_NE(nothing, other);
    EXPECT_FALSE(assign_null(holder)->isset_Result());
    EXPECT_EQ(holder.getchosen(), v2::sg_Function::e_Function);
    // Touching makes an object again.
    holder.get_Function().set_Result(2);
    EXPECT_EQ(v2::sg_Function(holder).get_Function().get_Result(), 2);
    v2::sg_Function again;
    assign_null(again);
    EXPECT_FALSE(again.assign_Function(v2::FunctionType()).isset_Result());
}

TEST(Objects, AnAlternativeMayBeSetFromAPartOfTheOneItReplaces) {
    v2::sg_ColorSpace value;
    auto& inner = value.get_ColorSpaceCMYK().get_ParentColorSpace().get_ColorSpaceNCS();
    inner.set_ColorName(u"a name that is too long to lie in the string itself");
    value.assign_ColorSpaceNCS(inner);
    EXPECT_EQ(value.get_ColorSpaceNCS().get_ColorName(), u"a name that is too long to lie in the string itself");
    v2::GeometryChoiceType geometry;
    geometry.set_SphereGeometry(u"Sphere_Included");
    geometry.set_UnknownGeometry(geometry.get_SphereGeometry());
    EXPECT_EQ(geometry.get_UnknownGeometry(), u"Sphere_Included");
}

TEST(Objects, IdentitiesCompareByAddress) {
    const v2::ColorSpaceCMYK element;
    EXPECT_EQ(element.getid(), v2::ColorSpaceCMYKType::id);
    EXPECT_TRUE(element.has_id(v2::ColorSpaceType::id));
    EXPECT_TRUE(element.has_id(v2::ColorSpaceCMYKType::id));
    EXPECT_FALSE(element.has_id(v2::ColorSpaceCMYKPlusNType::id));
    const std::string same_text = v2::ColorSpaceType::id;
    EXPECT_FALSE(element.has_id(same_text.c_str()));
    const std::unique_ptr<v2::ColorSpaceType> clone(element.clone());
    EXPECT_EQ(dynamic_cast<v2::ColorSpaceCMYK*>(clone.get()), nullptr);

    const auto is_known = [](auto* made) {
        const std::unique_ptr<std::remove_pointer_t<decltype(made)>> owner(made);
        return made != nullptr;
    };
    EXPECT_TRUE(is_known(v2::ColorSpaceType::factory(1000, "ColorSpaceCMYKPlusNType")));
    EXPECT_FALSE(is_known(v2::ColorSpaceType::factory(1001, "ColorSpaceRGBType")));
    EXPECT_FALSE(is_known(v2::ColorSpaceType::factory(1000, "ColorSpaceType")));
    EXPECT_FALSE(is_known(v2::ColorSpaceCMYKType::factory(1000, "ColorSpaceRGBType")));
    EXPECT_TRUE(is_known(v2::ColorSpaceCMYKType::factory(1000, "ColorSpaceCMYKType")));
    EXPECT_TRUE(
        is_known(v2::ColorSpaceSpecificationEmissiveType::factory(1000, "ColorSpaceSpecificationEmissiveType")));
    EXPECT_FALSE(
        is_known(v2::ColorSpaceSpecificationEmissiveType::factory(1000, "ColorSpaceSpecificationSpectrumType")));
    EXPECT_TRUE(is_known(v2::ColorSpaceSpecificationType::factory(1000, "ColorSpaceSpecificationSpectrumType")));
    EXPECT_TRUE(is_known(v2::FunctionType::factory(1000, "FunctionTolerance")));
    EXPECT_FALSE(is_known(v2::FunctionType::factory(1000, "FunctionType")));
    EXPECT_TRUE(is_known(v2::SampleType::factory(1000, "SampleSpotType")));
    EXPECT_TRUE(is_known(v2::SubstrateType::factory(1000, "SubstrateTileType")));
}

TEST(Objects, AnExpectedIdentityIsLeftToTheNextClassThatDiffers) {
    v2::sg_ColorSpace holder;
    auto& cmyk = holder.get_ColorSpaceCMYK();
    cmyk.append_ChangeHistory(c_datetime("2024-05-01T09:30:00Z"));
    cmyk.get_ColorSpaceSpecificationSpectrumGeneric().setnil_ColorSpaceSpecificationSpectrumGeneric();
    cmyk.set_Cyan(1);
    cmyk.set_Magenta(2);
    cmyk.set_Yellow(3);
    cmyk.set_Black(4);
    const std::string text = write(holder, "");
    EXPECT_NE(text.find("<Vyr:ColorSpaceSpecificationSpectrumGeneric "
                        "xsi:type=\"Vyr:ColorSpaceSpecificationSpectrumGenericType\" xsi:nil=\"true\"/>"),
              std::string::npos)
        << text;
    EXPECT_EQ(text.find("xsi:type"), text.rfind("xsi:type"));
}

TEST(Objects, AnAnonymousClassDeclaresNoNamespaces) {
    std::ostringstream stream;
    c_xml_writer writer(stream, "", "");
    v2::Tag tag;
    v2::Person person;
    person.set_Name(u"n");
    EXPECT_EQ(person.marshal(writer, "Vyr:Person"), ELMX_OK);
    EXPECT_EQ(stream.str(), "<Vyr:Person><Vyr:Name>n</Vyr:Name></Vyr:Person>");
    EXPECT_EQ(tag.marshal(writer, "Vyr:Tag"), ELMX_OK);
    EXPECT_NE(stream.str().find("<Vyr:Tag xmlns:Vyr="), std::string::npos);
}

}  // namespace
}  // namespace vyr_test
