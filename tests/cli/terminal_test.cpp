// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "tests/cli/programtest.h"

#include <gmock/gmock.h>

namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

/// What the program shows on a terminal, without the carriage returns of that.
class Terminal : public ProgramTest
{
protected:
    Terminal()
    {
        setEnvironment(QStringLiteral("TERM"), QStringLiteral("xterm"));
        write(QStringLiteral("a.csv"), "Reference,Value,MPN\n\"R1-R3,R5,R7,R9,R11,R13\",10k,RC0603FR-0710KL\n"
                                       "C1,100n 50V X7R low ESR,GRM188\n");
    }

    [[nodiscard]] std::string shown(const QByteArray &command) const
    {
        return QByteArray::fromStdString(
                   runInShell("script -qec \"" + command + "\" /dev/null </dev/null").out)
            .replace('\r', "")
            .toStdString();
    }
};

TEST_F(Terminal, ColumnsFitAndNothingIsCut)
{
    for (const int width : {40, 60, 120}) {
        const std::string out = shown("COLUMNS=" + QByteArray::number(width) +
                                      " NO_COLOR=1 $BOM report a.csv -q --template Default");
        for (const QByteArray &line : QByteArray::fromStdString(out).split('\n')) {
            EXPECT_LE(line.size(), width) << line.data();
            EXPECT_FALSE(line.contains('\033')) << line.data();
        }
        const std::string joined = QByteArray::fromStdString(out).simplified().toStdString();
        EXPECT_THAT(joined, AllOf(HasSubstr("R13"), HasSubstr("ESR"), HasSubstr("Resistors")));
    }
}

TEST_F(Terminal, ADesignCannotSteerIt)
{
    write(QStringLiteral("a.csv"), "Reference,Value\nR1,1\x1b[2Jk\nR2,\xc2\x9b\x31mk\n");
    const std::string out = shown("NO_COLOR=1 COLUMNS=1 $BOM report a.csv -q --template Default");
    EXPECT_THAT(out, AllOf(HasSubstr("[2J"), Not(HasSubstr("\x1b")), Not(HasSubstr("\xc2\x9b"))));
}

TEST_F(Terminal, ColoursAreForTerminalsThatWantThem)
{
    EXPECT_THAT(shown("$BOM report a.csv -q --template Default"),
                StartsWith("\033[1mBill Of Materials\033[0m\n"));
    EXPECT_THAT(shown("TERM=dumb $BOM report a.csv -q --template Default"),
                StartsWith("Bill Of Materials\n"));
    const std::string plain = run("report a.csv -q --template Default").out;
    EXPECT_EQ(shown("$BOM report a.csv -q --template Default | cat"), plain);
    (void)shown("$BOM report a.csv -q --template Default --ascii b.txt");
    EXPECT_EQ(read(QStringLiteral("b.txt")), plain);
}

} // namespace
