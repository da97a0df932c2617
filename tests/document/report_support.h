// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// The document whose faults the tests of reports are about.

#pragma once

#include <gtest/gtest.h>

#include <string>

#include "schema/Vyr.h"

namespace vyr_test {

using namespace lmx;
using namespace com_vyrgraph_v2;

/// Lines 1 to 5 are the preamble, "Inks" begins in line 6, "Ink 1" in line 10, its L stands in line 14.
inline const std::string k_document = R"(<?xml version="1.0" encoding="UTF-8"?>
<Vyr:Vyr xmlns:Vyr="http://vyrgraph.com/v2" xmlns:xsi="http://www.w3.org/2001/XMLSchema-instance">
	<Vyr:Preamble><Vyr:Header><Vyr:Creator>me</Vyr:Creator><Vyr:CreatorVersion>1</Vyr:CreatorVersion>
		<Vyr:ChangeHistory>2024-05-01T09:30:00Z</Vyr:ChangeHistory><Vyr:Purpose>test</Vyr:Purpose></Vyr:Header>
	</Vyr:Preamble>
	<Vyr:Palette PaletteName="Inks">
		<Vyr:ChangeHistory>2024-05-01T09:30:00Z</Vyr:ChangeHistory>
		<Vyr:ColorSet ColorSetName="All">
			<Vyr:ChangeHistory>2024-05-01T09:30:00Z</Vyr:ChangeHistory>
			<Vyr:Color ColorName="Ink 1">
				<Vyr:ChangeHistory>2024-05-01T09:30:00Z</Vyr:ChangeHistory>
				<Vyr:ColorSpaceCIELab><Vyr:ChangeHistory>2024-05-01T09:30:00Z</Vyr:ChangeHistory>
					<Vyr:ColorSpaceSpecificationSpectrumTristimulus xsi:nil="true"/>
					<Vyr:L>50</Vyr:L>
					<Vyr:A>1</Vyr:A>
					<Vyr:B>2</Vyr:B>
				</Vyr:ColorSpaceCIELab>
			</Vyr:Color>
		</Vyr:ColorSet>
	</Vyr:Palette>
</Vyr:Vyr>
)";
inline const std::string k_ink = "Palette \"Inks\" / ColorSet \"All\" / Color \"Ink 1\"";
inline const std::string k_lab = k_ink + " / ColorSpaceCIELab";

inline std::string replaced(std::string text, const std::string& from, const std::string& to) {
    const std::size_t position = text.find(from);
    EXPECT_NE(position, text.npos) << from;
    return position == text.npos ? text : text.replace(position, from.size(), to);
}

inline DocumentReport report_of(const std::string& bytes, const ReportOptions& options = {.collect = true}) {
    Vyr document;
    const DocumentReport report = loadMemoryWithReport(document, bytes.data(), bytes.size(), options);
    Vyr plain;
    EXPECT_EQ(report.getCode(), plain.unmarshal(bytes));
    return report;
}

}  // namespace vyr_test
