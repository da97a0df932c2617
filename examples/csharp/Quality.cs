// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Makes a quality-control record: a standard with a tolerance, and measurements that are compared with it by the CIE
// 1976 colour difference. The library stores what a comparison gave; computing it is the program's business.
//
//     mono Quality.exe <new.vyr or .vyrz>

using System;
using System.Globalization;
using Vyr;

static class Program
{
    static DeviceType Device()
    {
        return new DeviceType { Manufacturer = "Example Instruments", Model = "Spectro 1", SerialNumber = "0001" };
    }

    static ColorType Color(string name, double l, double a, double b)
    {
        var lab = new ColorSpaceCIELabType { ChangeHistory = { DateTimeOffset.UtcNow }, L = l, A = a, B = b };
        lab.CreateColorSpaceSpecificationSpectrumTristimulus().SetNil();
        var color = new ColorType { ColorName = name, ChangeHistory = { DateTimeOffset.UtcNow } };
        color.ColorSpaces.Add().ChooseColorSpaceCIELab(lab);
        return color;
    }

    static double Difference(ColorType one, ColorType other)
    {
        ColorSpaceCIELabType x = one.ColorSpaces[0].AsColorSpaceCIELab, y = other.ColorSpaces[0].AsColorSpaceCIELab;
        return Math.Sqrt(Math.Pow(x.L - y.L, 2) + Math.Pow(x.A - y.A, 2) + Math.Pow(x.B - y.B, 2));
    }

    static int Main(string[] arguments)
    {
        using (var document = new Document())
        {
            Header header = document.CreatePreamble().CreateHeader();
            header.Creator = "Quality";
            header.CreatorVersion = "1.0";
            header.Purpose = "Control of a print run";
            header.ChangeHistory.Add(DateTimeOffset.UtcNow);

            ColorQualityControlType record = document.ColorQualityControls.Add();
            record.Name = "Run 1";
            record.ChangeHistory.Add(DateTimeOffset.UtcNow);
            StandardAndMeasurementType pair = record.StandardAndMeasurements.Add();
            Standard standard = pair.CreateStandard();
            standard.Device = Device();
            standard.Color = Color("Warm red", 52.1, 64.3, 38.9);

            ToleranceType tolerance = standard.Tolerances.Add();
            tolerance.Name = "DE*";
            tolerance.CreateFunction().ChooseFunctionDE();
            tolerance.CreateLimits().HighTolerance = 2;
            tolerance.WarningLevel = 1.5;
            tolerance.PrimaryIlluminant = IlluminantKind.Illuminant_D50;
            tolerance.FieldOfView = ObserverKind.FieldOfView_2_Degree;

            ColorType[] measured = { Color("Sheet 1", 52.4, 63.8, 39.5), Color("Sheet 2", 52.8, 65.4, 37.9), Color("Sheet 3", 54.2, 62.1, 36.2) };
            foreach (ColorType color in measured)
            {
                double result = Difference(standard.Color, color);
                Measurement measurement = pair.Measurements.Add();
                measurement.Device = Device();
                measurement.Color = color;
                measurement.Functions.Add().ChooseFunctionDE().Result = result;
                string verdict = result > tolerance.Limits.HighTolerance ? "fails" : result > tolerance.WarningLevel ? "warns" : "passes";
                Console.WriteLine("{0}: {1} {2}", color.ColorName, result.ToString("0.####", CultureInfo.InvariantCulture), verdict);
            }
            document.Save(arguments[0]);
        }
        return 0;
    }
}
