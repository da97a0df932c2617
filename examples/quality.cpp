// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Makes a quality-control record: a standard with a tolerance, and measurements that are compared with it. The
// library stores what a comparison gave; computing it is the program's business, here by the CIE 1976 colour
// difference.
//
//     quality <new.vyr or .vyrz>

#include <cmath>

#include "support.h"

namespace vyr = com_vyrgraph_v2;
using example::demand;

namespace {

struct s_lab {
    double l, a, b;
};

double difference(const s_lab& x, const s_lab& y) { return std::hypot(x.l - y.l, x.a - y.a, x.b - y.b); }

void set_device(vyr::DeviceType& device) {
    demand(device.set_Manufacturer(u"Example Instruments"), "manufacturer");
    demand(device.set_Model(u"Spectro 1"), "model");
    demand(device.set_SerialNumber(u"0001"), "serial number");
}

void set_color(vyr::ColorType& color, const std::u16string& name, const s_lab& value) {
    demand(color.set_ColorName(name), "name");
    demand(color.append_ChangeHistory(lmx::c_datetime::now()), "time");
    demand(color.append_ColorSpace(), "value");
    vyr::ColorSpaceCIELabType& lab = color.back_ColorSpace().get_ColorSpaceCIELab();
    demand(lab.append_ChangeHistory(lmx::c_datetime::now()), "time");
    // The conditions are left open: a nil element is complete without any content.
    lab.get_ColorSpaceSpecificationSpectrumTristimulus().setnil_ColorSpaceSpecificationSpectrumTristimulus();
    demand(lab.set_L(value.l), "L*");
    demand(lab.set_A(value.a), "a*");
    demand(lab.set_B(value.b), "b*");
}

// A difference above 2 fails, one above 1.5 calls for attention.
void set_tolerance(vyr::ToleranceType& tolerance) {
    demand(tolerance.set_Name(u"DE*"), "name");
    tolerance.get_Function().get_FunctionDE();
    demand(tolerance.get_Limits().set_HighTolerance(2), "limit");
    demand(tolerance.set_WarningLevel(1.5), "warning level");
    demand(tolerance.set_PrimaryIlluminant(u"Illuminant_D50"), "illuminant");
    demand(tolerance.set_FieldOfView(u"FieldOfView_2_Degree"), "observer");
}

}  // namespace

int main(int argc, char** argv) try {
    if (argc != 2) {
        std::cerr << "usage: quality <new.vyr>\n";
        return 2;
    }
    const s_lab target = {52.1, 64.3, 38.9};
    const s_lab measured[] = {{52.4, 63.8, 39.5}, {52.8, 65.4, 37.9}, {54.2, 62.1, 36.2}};

    vyr::Vyr document;
    example::fill_header(document, u"Control of a print run");
    demand(document.append_ColorQualityControl(), "record");
    vyr::ColorQualityControlType& record = document.back_ColorQualityControl();
    demand(record.set_Name(u"Run 1"), "name");
    demand(record.append_ChangeHistory(lmx::c_datetime::now()), "time");
    demand(record.append_StandardAndMeasurement(), "standard");
    vyr::StandardAndMeasurementType& pair = record.back_StandardAndMeasurement();

    vyr::Standard& standard = pair.get_Standard();
    set_device(standard.get_Device());
    set_color(standard.get_Color(), u"Warm red", target);
    demand(standard.append_Tolerance(), "tolerance");
    set_tolerance(standard.back_Tolerance());
    const vyr::ToleranceType& tolerance = standard.back_Tolerance();

    for (const s_lab& value : measured) {
        demand(pair.append_Measurement(), "measurement");
        vyr::Measurement& measurement = pair.back_Measurement();
        set_device(measurement.get_Device());
        set_color(measurement.get_Color(), u"Warm red, sheet", value);
        demand(measurement.append_Function(), "function");
        const double result = difference(target, value);
        demand(measurement.back_Function().get_FunctionDE().set_Result(result), "result");

        const bool passes = result <= tolerance.get_Limits().get_HighTolerance();
        std::cout << result
                  << (!passes                                  ? " fails"
                      : result <= tolerance.get_WarningLevel() ? " passes"
                                                               : " warns")
                  << "\n";
    }
    return example::save(document, argv[1]);
} catch (const std::exception& failure) {
    std::cerr << "quality: " << failure.what() << "\n";
    return 1;
}
