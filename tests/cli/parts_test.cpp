// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "tests/cli/programtest.h"

namespace {

using Parts = ProgramTest;

TEST_F(Parts, AreListedOnceWithAllTheirProperties)
{
    for (const char *design :
         {"every-kind.kicad_sch", "bom-only-part.kicad_sch", "readable.csv", "no-parts.kicad_sch"}) {
        const std::string name = copyData("parts", design);
        EXPECT_EQ(run((std::string("parts ") + design).c_str()).out, data("parts", name + ".text.expected"));
    }
}

TEST_F(Parts, AsJsonKeepNamesAndTextsAsStored)
{
    setEnvironment(QStringLiteral("SOURCE_DATE_EPOCH"), QStringLiteral("1000000000"));
    for (const char *design : {"every-kind.kicad_sch", "bom-only-part.kicad_sch", "no-parts.kicad_sch"}) {
        const std::string name = copyData("parts", design);
        const ProgramRun result = run((std::string("parts --json ") + design).c_str());
        EXPECT_EQ(result.status, 0);
        EXPECT_EQ(result.out, data("parts", name + ".json"));
    }
}

} // namespace
