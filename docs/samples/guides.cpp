// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// The samples of the guides that aren't whole programs. A test runs them all and compares the guides with this file.
//
//     guides <css-colors.vyr>      in a folder where it may write

#include <array>
#include <future>
#include <iostream>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "schema/Vyr.h"
#include "zip/container.h"

namespace {

int failures = 0;

// A sample that comes out otherwise than its guide says.
void expect(bool is_as_told, const char* what) {
    if (is_as_told) return;
    std::cerr << "otherwise than the guides say: " << what << "\n";
    ++failures;
}

// docs/building.md

com_vyrgraph_v2::Vyr build() {
    using namespace com_vyrgraph_v2;
    const lmx::c_datetime now("2026-05-01T12:00:00Z");

    Vyr document;
    Header& header = document.get_Preamble().get_Header();
    header.set_Creator(u"Palette builder");
    header.set_CreatorVersion(u"1.0");
    header.set_Purpose(u"Spot colours");
    header.append_ChangeHistory(now);

    document.append_Palette();
    PaletteType& palette = document.back_Palette();
    palette.set_PaletteName(u"Inks");
    palette.append_ChangeHistory(now);

    palette.append_ColorSet();
    ColorSetType& set = palette.back_ColorSet();
    set.set_ColorSetName(u"All");
    set.append_ChangeHistory(now);

    set.append_Color();
    ColorType& color = set.back_Color();
    color.set_ColorName(u"Warm red");
    color.append_ChangeHistory(now);

    color.append_ColorSpace();
    ColorSpaceCIELabType& lab = color.back_ColorSpace().get_ColorSpaceCIELab();
    lab.append_ChangeHistory(now);
    lab.get_ColorSpaceSpecificationSpectrumTristimulus().setnil_ColorSpaceSpecificationSpectrumTristimulus();
    lab.set_L(58.1);
    lab.set_A(72.5);
    lab.set_B(51.3);
    return document;
}

void save(const com_vyrgraph_v2::Vyr& document) {
    const auto report = com_vyrgraph_v2::writeFileWithReport(document, u"inks.vyr");
    if (!report.isOk()) std::cerr << report.toString();
    expect(report.isOk(), "the document of the guide is complete");
}

void set_values(com_vyrgraph_v2::ColorSpaceCIELabType& lab) {
    if (lab.set_L(187) != lmx::ELMX_OK) {
        // ELMX_VALUE_EXCEEDS_MAX, and the lightness is still 58.1: it ends at 150.
    }
    expect(lab.set_L(187) == lmx::ELMX_VALUE_EXCEEDS_MAX && lab.get_L() == 58.1, "a setter refuses and keeps");
}

void touch() {
    com_vyrgraph_v2::ColorType color;
    const com_vyrgraph_v2::ColorType& seen = color;
    seen.get_Owner();   // looks: isset_Owner() stays false
    color.get_Owner();  // makes: isset_Owner() is true from here on
    color.unset_Owner();
    expect(!color.isset_Owner(), "unset takes it away");

    color.get_Owner().append_Company(u"Example Inks");
    expect(color.isset_Owner(), "touching is setting");
}

void choose(com_vyrgraph_v2::ColorType& color) {
    using com_vyrgraph_v2::sg_ColorSpace;
    sg_ColorSpace& value = color.get_ColorSpace(0);
    if (value.getchosen() == sg_ColorSpace::e_ColorSpaceCIELab) {
        const sg_ColorSpace& seen = value;
        std::cout << "L* " << seen.get_ColorSpaceCIELab().get_L() << "\n";
    }
    value.get_ColorSpaceCMYK().set_Cyan(100);  // drops the L*a*b* value, and holds a CMYK value now
    expect(value.getchosen() == sg_ColorSpace::e_ColorSpaceCMYK, "another alternative");
}

void enumerate() {
    using namespace com_vyrgraph_v2;
    ColorSpaceSRGBType rgb;
    rgb.set_ColorDepth(u"ColorDepth_8");
    rgb.setenum_ColorDepth(e_ColorDepth_ColorDepth_8);  // the same
    expect(rgb.getenum_ColorDepth() == e_ColorDepth_ColorDepth_8, "the number of an enumerated text");
    expect(rgb.set_ColorDepth(u"8 bits") == lmx::ELMX_VALUE_NOT_ENUMERATED, "another text");
}

void derive(com_vyrgraph_v2::ToleranceType& tolerance) {
    using namespace com_vyrgraph_v2;
    auto formula = std::make_unique<FunctionTolerance>();
    formula->set_ToleranceType(u"DE00");
    formula->append_Parameters();
    formula->back_Parameters().set_LowValue(0);
    formula->back_Parameters().set_HighValue(2);
    tolerance.get_Function().assign_Function(formula.release());
    expect(tolerance.get_Function().getchosen() == sg_Function::e_Function, "a function by its type");
}

void lack() {
    com_vyrgraph_v2::Vyr document = build();
    document.get_Palette(0).get_ColorSet(0).append_Color();
    std::u16string text;
    const auto report = com_vyrgraph_v2::writeStringWithReport(document, &text);
    std::cout << report.toString();
    expect(report.getCode() == lmx::ELMX_OCCURS_ERROR_ON_MARSHAL && text.empty(), "an incomplete document");
}

void write_one_value() {
    com_vyrgraph_v2::ColorSpaceCIELab value;
    value.append_ChangeHistory(lmx::c_datetime("2026-05-01T12:00:00Z"));
    value.get_ColorSpaceSpecificationSpectrumTristimulus().setnil_ColorSpaceSpecificationSpectrumTristimulus();
    value.set_L(58.1);
    value.set_A(72.5);
    value.set_B(51.3);
    std::string text;
    value.marshal(&text);  // <Vyr:ColorSpaceCIELab ...>

    com_vyrgraph_v2::ColorSpaceCIELab again;
    again.unmarshal(text);
    expect(again.get_L() == 58.1, "one class alone");
}

// docs/values.md

struct s_spectrum {
    std::vector<double> wavelengths;  // nanometres
    std::vector<double> factors;      // fractions: 0.5 for 50 %
};

s_spectrum read_spectrum(const com_vyrgraph_v2::ColorType& color) {
    using com_vyrgraph_v2::sg_ColorSpace;
    s_spectrum result;
    for (std::size_t i = 0; i < color.size_ColorSpace(); ++i) {
        if (color.get_ColorSpace(i).getchosen() != sg_ColorSpace::e_ColorSpaceSpectral) continue;
        const auto& spectral = color.get_ColorSpace(i).get_ColorSpaceSpectral();
        for (std::size_t k = 0; k < spectral.size_ReflectancePoint(); ++k) {
            result.wavelengths.push_back(spectral.get_ReflectancePoint(k).get_Wavelength());
            result.factors.push_back(spectral.get_ReflectancePoint(k).get_ReflectancePointType());
        }
        break;
    }
    return result;
}

// The conditions that hold for a value: its own, else those of its colour set, else those of its palette; null where
// nobody knows them.
using Conditions = com_vyrgraph_v2::ColorSpaceSpecificationSpectrumTristimulusType;

const Conditions* conditions_of(const com_vyrgraph_v2::ColorSpaceCIELabType& lab,
                                const com_vyrgraph_v2::ColorSetType& set,
                                const com_vyrgraph_v2::PaletteType& palette) {
    const auto known = [](const auto& conditions) -> const Conditions* {
        return conditions.isnil_ColorSpaceSpecificationSpectrumTristimulus() ? nullptr : &conditions;
    };
    const auto default_of = [&known](const auto& collection) -> const Conditions* {
        if (!collection.isset_CollectionColorSpaceSpecification()) return nullptr;
        const auto& defaults = collection.get_CollectionColorSpaceSpecification();
        if (!defaults.isset_ColorSpaceSpecificationSpectrumTristimulus()) return nullptr;
        return known(defaults.get_ColorSpaceSpecificationSpectrumTristimulus());
    };
    if (const Conditions* own = known(lab.get_ColorSpaceSpecificationSpectrumTristimulus())) return own;
    if (const Conditions* of_set = default_of(set)) return of_set;
    return default_of(palette);
}

void read_values() {
    using namespace com_vyrgraph_v2;
    Vyr document = build();
    PaletteType& palette = document.get_Palette(0);
    ColorSetType& set = palette.get_ColorSet(0);
    ColorType& color = set.get_Color(0);
    const ColorSpaceCIELabType& lab = color.get_ColorSpace(0).get_ColorSpaceCIELab();
    expect(conditions_of(lab, set, palette) == nullptr, "nobody knows the conditions");
    auto& of_palette =
        palette.get_CollectionColorSpaceSpecification().get_ColorSpaceSpecificationSpectrumTristimulus();
    expect(conditions_of(lab, set, palette) == &of_palette, "those of the palette hold");
    auto& of_set = set.get_CollectionColorSpaceSpecification().get_ColorSpaceSpecificationSpectrumTristimulus();
    expect(conditions_of(lab, set, palette) == &of_set, "those of the set go first");
    of_set.setnil_ColorSpaceSpecificationSpectrumTristimulus();
    expect(conditions_of(lab, set, palette) == &of_palette, "nil leaves them to the palette");

    color.append_ColorSpace();
    ColorSpaceSpectralType& spectral = color.back_ColorSpace().get_ColorSpaceSpectral();
    for (const double wavelength : {400.0, 550.0, 700.0}) {
        spectral.append_ReflectancePoint();
        spectral.back_ReflectancePoint().set_Wavelength(wavelength);
        spectral.back_ReflectancePoint().set_ReflectancePointType(wavelength / 1000);
    }
    const s_spectrum spectrum = read_spectrum(color);
    expect(spectrum.wavelengths == std::vector<double>({400, 550, 700}), "wavelengths come in nanometres");
    expect(spectrum.factors == std::vector<double>({0.4, 0.55, 0.7}), "factors come as fractions");
}

// docs/errors.md

void load_with_report(const std::string& path) {
    com_vyrgraph_v2::Vyr document;
    const com_vyrgraph_v2::DocumentReport report = com_vyrgraph_v2::loadFileWithReport(document, path);
    if (!report.isOk()) std::cerr << report.toString();
    expect(report.isOk(), "the palette is valid");
}

constexpr char k_broken[] =
    "<Vyr:ColorSpaceCMYK xmlns:Vyr='http://vyrgraph.com/v2'><Vyr:Cyan>120</Vyr:Cyan></Vyr:ColorSpaceCMYK>";

void gather(const std::string& path) {
    com_vyrgraph_v2::ReportOptions options;
    options.collect = true;
    options.limit = 20;
    com_vyrgraph_v2::Vyr document;
    const auto report = com_vyrgraph_v2::loadFileWithReport(document, path, options);
    for (const com_vyrgraph_v2::DocumentFault& fault : report.getFaults()) {
        std::cout << fault.line << ": " << fault.path << ": " << fault.text << "\n";
    }
    if (report.hasMore()) std::cout << report.getTotalCount() << " in all\n";
    if (!report.isReadToEnd()) std::cout << "the rest was not looked at\n";
    expect(report.isOk(), "the palette is valid");
}

// docs/reports.md

void gather_lines(const std::string& path) {
    com_vyrgraph_v2::Vyr document;
    const auto report = com_vyrgraph_v2::loadFileWithReport(document, path, {.collect = true});
    for (const com_vyrgraph_v2::DocumentFault& fault : report.getFaults()) {
        std::cerr << com_vyrgraph_v2::formatFault(fault) << "\n";
    }
    expect(report.isOk(), "the palette is valid");

    document.append_Palette();
    std::u16string text;
    const std::string said = com_vyrgraph_v2::writeStringWithReport(document, &text).toString();
    expect(
        said.starts_with("Palette[2]: min/max occurs error on marshaling: the attribute PaletteName and the element "
                         "ChangeHistory are missing"),
        "what a palette lacks");
}

// docs/errors.md, again

void load_plainly() {
    com_vyrgraph_v2::Vyr document;
    const lmx::elmx_error code = document.loadFile(u"inks.vyr");
    if (code != lmx::ELMX_OK) std::cerr << lmx::get_error_description(code) << "\n";
    expect(code == lmx::ELMX_OK, "a document that was written can be read");
}

void read_with_a_reader() {
    lmx::c_xml_reader_memory reader(k_broken, sizeof k_broken - 1);
    com_vyrgraph_v2::ColorSpaceCMYK value;
    const lmx::elmx_error code = value.unmarshal(reader);
    if (code != lmx::ELMX_OK) {
        std::cout << reader.get_line_no() << ": " << reader.get_error_item_name() << ": "
                  << lmx::get_error_description(code) << "\n";
    }
    expect(code == lmx::ELMX_MANDATORY_ELEMENT_MISSING, "an element is missing");
}

void read_twice(const std::u16string& path) {
    com_vyrgraph_v2::Vyr document;
    document.loadFile(path);
    document.loadFile(path);  // every list holds its entries twice now
    expect(document.size_Palette() == 2, "a second read appends");
    document.reset();
    document.loadFile(path);
    expect(document.size_Palette() == 1, "but not after a reset");
}

// docs/container.md

void load_container(const std::u16string& path) {
    com_vyrgraph_v2::Vyr document;
    try {
        const lmx::elmx_error code = document.loadFile(path);
        if (code != lmx::ELMX_OK) std::cerr << lmx::get_error_description(code) << "\n";
    } catch (const CZipException& failure) {
        std::cout << failure.GetCause() << ": " << failure.what() << "\n";
    }
}

void list_entries(const std::u16string& path) {
    CZipContainer archive;
    archive.OpenContainer(path, zip_open_read);
    for (std::size_t i = 0; i < archive.GetEntryCount(); ++i) {
        const CZipEntryHeader& entry = *archive.GetEntryHeader(i);
        std::cout << entry.file_name << ": " << entry.uncompressed_size << " bytes\n";
    }
    archive.CloseContainer(zip_close_normal);
}

void use_containers() {
    expect(com_vyrgraph_v2::writeFileWithReport(build(), u"inks.vyrz").isOk(), "a container is written");
    load_container(u"inks.vyrz");
    load_container(u"missing.vyrz");
    list_entries(u"inks.vyrz");
}

// docs/threads.md

std::vector<lmx::elmx_error> load_all(const std::vector<std::string>& paths,
                                      std::vector<com_vyrgraph_v2::Vyr>& documents) {
    documents.resize(paths.size());
    std::vector<std::future<lmx::elmx_error>> loads;
    for (std::size_t i = 0; i < paths.size(); ++i) {
        loads.push_back(std::async(std::launch::async, [&documents, &paths, i] {
            return com_vyrgraph_v2::loadFileWithReport(documents[i], paths[i]).getCode();
        }));
    }
    std::vector<lmx::elmx_error> codes;
    codes.reserve(loads.size());
    for (auto& load : loads) codes.push_back(load.get());
    return codes;
}

std::size_t count_colors(const com_vyrgraph_v2::Vyr& document) {
    std::size_t count = 0;
    for (std::size_t i = 0; i < document.size_Palette(); ++i) {
        const com_vyrgraph_v2::PaletteType& palette = document.get_Palette(i);
        for (std::size_t k = 0; k < palette.size_ColorSet(); ++k) count += palette.get_ColorSet(k).size_Color();
    }
    return count;
}

void share(const std::string& path) {
    std::vector<com_vyrgraph_v2::Vyr> documents;
    const std::vector<std::string> paths(4, path);
    for (const lmx::elmx_error code : load_all(paths, documents)) expect(code == lmx::ELMX_OK, "parallel loads");

    const com_vyrgraph_v2::Vyr& document = documents[0];
    std::array<std::size_t, 2> counts{};
    std::thread first([&document, &counts] { counts[0] = count_colors(document); });
    std::thread second([&document, &counts] { counts[1] = count_colors(document); });
    first.join();
    second.join();
    expect(counts[0] == 148 && counts[1] == 148, "a document that is only looked at is shared");

    // Writing stamps the document's header, so that each thread that writes has a copy.
    com_vyrgraph_v2::Vyr copy = document;
    com_vyrgraph_v2::DocumentReport report;
    std::thread writer([&copy, &report] { report = writeFileWithReport(copy, u"copy.vyr"); });
    count_colors(document);
    writer.join();
    expect(report.isOk(), "a copy is saved beside others");
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) return 2;
    const std::string path = argv[1];

    com_vyrgraph_v2::Vyr document = build();
    save(document);
    com_vyrgraph_v2::ColorType& color = document.get_Palette(0).get_ColorSet(0).get_Color(0);
    set_values(color.get_ColorSpace(0).get_ColorSpaceCIELab());
    touch();
    choose(color);
    enumerate();
    com_vyrgraph_v2::ToleranceType tolerance;
    derive(tolerance);
    lack();
    write_one_value();
    read_values();

    load_with_report(path);
    gather(path);
    gather_lines(path);
    load_plainly();
    read_with_a_reader();
    read_twice(lmx::convert_to_wide(path));

    use_containers();
    share(path);
    return failures == 0 ? 0 : 1;
}
