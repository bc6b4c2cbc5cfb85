// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "support/testpaths.h"
#include "tests/cli/programtest.h"
#include "tests/support/testfiles.h"

#include <gmock/gmock.h>

inline const QString schematic = QStringLiteral("amp.kicad_sch");
inline const QString list = QStringLiteral("list.csv");
inline const QString edits = QStringLiteral("edits.csv");

/// Runs the commands that change a design, on a schematic with every kind of part.
class WriteTest : public ProgramTest
{
protected:
    WriteTest()
    {
        write(schematic,
              readFile(QStringLiteral(BOM_SOURCE_DIR "/tests/data/write/every-kind-of-part.kicad_sch")));
        write(QStringLiteral("defs.ini"), "[PROPDEFS]\n\"POL\",YESNO\n\"COST\",FLOAT\n\"PINS\",INT\n");
        m_before = read(schematic);
    }

    /// Runs a command on the schematic that is to be refused, and expects that nothing was written.
    void expectRefused(const char *arguments, const std::string &message, int status = 1)
    {
        const ProgramRun result = run(arguments);
        EXPECT_EQ(result.status, status) << arguments << '\n' << result.err;
        EXPECT_THAT(result.err, testing::HasSubstr(message)) << arguments;
        EXPECT_EQ(result.out, "") << arguments;
        EXPECT_EQ(read(schematic), m_before) << arguments;
    }
    /// What a command prints that does what it is asked for.
    std::string done(const char *arguments)
    {
        const ProgramRun result = run(arguments);
        EXPECT_EQ(result.status, 0) << arguments << '\n' << result.err;
        return result.out;
    }

    std::string m_before;
};
