// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "tests/cli/programtest.h"

#include <gmock/gmock.h>

namespace {

using testing::HasSubstr;
using testing::Not;

class Language : public ProgramTest
{
protected:
    Language()
    {
        setEnvironment(QStringLiteral("SOURCE_DATE_EPOCH"), QStringLiteral("1700000000"));
        // A line, a part that is left out for each reason, one that has no number, two names of one meaning.
        write(QStringLiteral("a.kicad_sch"),
              kicadSchematic({{"R1", "10k", "(property \"MPN\" \"4711\")"},
                              {"R2", "10k", "(property \"Manufacturer Part Number\" \"\")"},
                              {"R3", "10k", "", "(in_bom no) (on_board yes) (dnp no)"},
                              {"C1", "1u", "(property \"Mfr. No.\" \"X\")", "(in_bom yes) (dnp yes)"},
                              {"U?", "7400"}}));
    }

    void setLanguage(const char *all, const char *lang = "", const char *languages = "")
    {
        setEnvironment(QStringLiteral("LC_ALL"), QString::fromLatin1(all));
        setEnvironment(QStringLiteral("LC_MESSAGES"), QString());
        setEnvironment(QStringLiteral("LANG"), QString::fromLatin1(lang));
        setEnvironment(QStringLiteral("LANGUAGE"), QString::fromLatin1(languages));
    }
};

TEST_F(Language, ComesFromTheEnvironmentAsForOtherPrograms)
{
    const struct
    {
        const char *all;
        const char *lang;
        const char *languages;
        bool isGerman;
    } cases[] = {{"de_DE.UTF-8", "", "", true},       {"", "de_AT.UTF-8", "", true},
                 {"", "en_US.UTF-8", "de", true},     {"", "fr_FR.UTF-8", "fr:de:en", true},
                 {"", "de_DE.UTF-8", "en:de", false}, {"", "fr_FR.UTF-8", "", false},
                 {"C", "de_DE.UTF-8", "de", false},   {"POSIX", "de_DE.UTF-8", "de", false},
                 {"C.UTF-8", "", "de", false}};
    for (const auto &[all, lang, languages, isGerman] : cases) {
        setLanguage(all, lang, languages);
        EXPECT_THAT(run("report").err, HasSubstr(isGerman ? "muss angegeben werden" : "is required"))
            << all << ' ' << lang << ' ' << languages;
    }
}

/// What programs read is the same on every machine, and so is the exit status.
TEST_F(Language, LeavesReportsAndDataAsTheyAre)
{
    for (const char *command :
         {"report a.kicad_sch --csv -", "report a.kicad_sch --template Default --full-csv -",
          "report a.kicad_sch --dnp include", "report a.kicad_sch --template Default --html -",
          "report a.kicad_sch --json -", "report a.kicad_sch --xlsx -", "report a.kicad_sch --for jlcpcb -",
          "parts a.kicad_sch", "parts a.kicad_sch --json", "check a.kicad_sch --require MPN --json",
          "fields a.kicad_sch --json", "completion bash", "completion man", "report missing.kicad_sch",
          "report a.kicad_sch --frob"}) {
        setLanguage("C");
        const ProgramRun plain = run(command);
        setLanguage("de_DE.UTF-8");
        const ProgramRun german = run(command);
        EXPECT_EQ(german.status, plain.status) << command;
        EXPECT_EQ(german.out, plain.out) << command;
    }
}

TEST_F(Language, TellsPeopleInTheirs)
{
    setLanguage("de_DE.UTF-8");
    const std::pair<const char *, const char *> cases[] = {
        {"--help", "Aufruf: bom [OPTIONEN] BEFEHL"},
        {"report --help", "Den Bericht schreiben, obwohl Referenzen mehrfach vorkommen"},
        {"help template", "Alle Vorlagen aufführen"},
        {"check a.kicad_sch --require MPN", "MPN ist leer oder fehlt bei 2 Bauteilen: R2,U?"},
        {"fields a.kicad_sch", "„4711“ bei R1"},
        {"template show Default", "Spalten:"},
        {"set a.kicad_sch R1 MPN=4712 --dry-run", "zu ändern: 1 Eigenschaft von 1 Bauteil in 1 Datei;"},
        {"report a.kicad_sch --csv out.csv", "1 Bauteil ist von der Stückliste ausgeschlossen"},
        {"report a.kicad_sch --jsno", "es gibt keine Option „--jsno“; meinten Sie „--json“?"},
        {"check a.kicad_sch --require", "--require: Es fehlt der Wert"},
        {"report a.kicad_sch --dnp all", "all ist keines von {exclude,include,only}"}};
    for (const auto &[command, expected] : cases) {
        const ProgramRun result = run(command);
        EXPECT_THAT(result.out + result.err, HasSubstr(expected)) << command;
    }
    EXPECT_THAT(run("check a.kicad_sch").out, Not(HasSubstr("components")));
}

} // namespace
