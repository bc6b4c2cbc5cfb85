// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
// Pending edits of schematics that KiCad saves meanwhile.
#include "standalone/moduleonfiles.h"

using namespace Qt::Literals::StringLiterals;

namespace {

struct Symbol
{
    QByteArray uuid;
    QByteArray reference;
    QByteArray value = "10k";
    QByteArray flags = "(dnp no)";
    QByteArray properties = {};
};

QByteArray property(const QByteArray &name, const QByteArray &value)
{
    return "(property \"" + name + "\" \"" + value + "\" (at 0 0 0)) ";
}

QByteArray schematic(const QList<Symbol> &symbols)
{
    QByteArray text =
        "(kicad_sch (version 20260306) (generator \"eeschema\") (uuid \"root\") (lib_symbols)\n";
    for (const Symbol &symbol : symbols) {
        text += "(symbol (lib_id \"Device:R\") (at 0 0 0) (unit 1) (in_bom yes) " + symbol.flags +
                " (uuid \"" + symbol.uuid + "\") " + property("Reference", symbol.reference) +
                property("Value", symbol.value) + symbol.properties +
                "(instances (project \"amp\" (path \"/root\" (reference \"" + symbol.reference +
                "\") (unit 1) (variant (name \"lite\") (dnp yes))))))\n";
    }
    return text + ")\n";
}

class PendingOnFiles : public ModuleOnFiles
{
protected:
    void write(const QList<Symbol> &symbols) const { writeFile(path("amp.kicad_sch"), schematic(symbols)); }
    void read() { EXPECT_TRUE(session.reread()) << session.error().toStdString(); }
    /// "R1 MPN" of what is pending, with a sign for what is in conflict.
    [[nodiscard]] std::string pending() const
    {
        QStringList all;
        for (const PendingEdit &edit : assignments.edits()) {
            all << edit.reference + u' ' + edit.property + QLatin1String(edit.canBeWritten() ? "" : " !");
        }
        return all.join(u", ").toStdString();
    }
    /// The line of a symbol in the file.
    [[nodiscard]] QByteArray line(const QByteArray &uuid) const
    {
        for (const QByteArray &line : readFile(path("amp.kicad_sch")).split('\n')) {
            if (line.contains("(uuid \"" + uuid + "\")")) {
                return line;
            }
        }
        return {};
    }
};

TEST_F(PendingOnFiles, GoToTheSymbolThatTheyWereMadeFor)
{
    write({{"s1", "R1"}, {"s2", "R2"}, {"s3", "R3", "1k"}, {"s4", "R4"}, {"s5", "R5"}});
    open(path("amp.kicad_sch"));
    assignments.assign(u"R1"_s, u"MPN"_s, u"of s1"_s);
    assignments.assign(u"R3"_s, u"VALUE"_s, u"2k"_s);
    assignments.assign(u"R4"_s, u"MPN"_s, u"of s4"_s);
    assignments.assign(u"R5"_s, u"MPN"_s, u"of s5"_s);
    // References swapped, another value, no longer fitted, gone.
    write({{"s2", "R1"}, {"s1", "R2"}, {"s3", "R3", "3k"}, {"s4", "R4", "10k", "(dnp yes)"}});
    read();
    EXPECT_EQ(pending(), "R2 MPN, R3 VALUE !, R4 MPN !, R5 MPN !");
    const ApplyResult result = assignments.apply(ApplyOptions());
    EXPECT_EQ(result.text, u"Applied successfully"_s);
    EXPECT_EQ(result.kept.size(), 3);
    EXPECT_TRUE(line("s1").contains("\"of s1\""));
    EXPECT_FALSE(line("s2").contains("MPN"));
    EXPECT_TRUE(line("s3").contains("\"3k\""));
    EXPECT_EQ(pending(), "R3 VALUE !, R4 MPN !, R5 MPN !");

    assignments.confirm(assignments.edits()[0], true);
    EXPECT_EQ(assignments.apply(), u"Applied successfully"_s);
    EXPECT_TRUE(line("s3").contains("\"2k\""));
    session.setDnpChoice(DnpChoice::Include);
    cache.validate(1);
    EXPECT_EQ(pending(), "R4 MPN, R5 MPN !");
}

TEST_F(PendingOnFiles, StayWithDesignVariantAndBomOnlyPart)
{
    const QByteArray screws = property("BOMPART0", "'3','SCR','M3'");
    write({{"s1", "R1", "10k", "(dnp no)", screws}});
    writeFile(path("other.csv"), "Reference,Value\nR1,1k\n");
    open(path("amp.kicad_sch"));
    assignments.assign(u"R1"_s, u"MPN"_s, u"x"_s);
    assignments.assign(u"SCR3"_s, u"LEN"_s, u"8"_s);
    EXPECT_EQ(assignments.removeBOMPart(u"R1"_s, u"SCR1"_s), QString());
    EXPECT_TRUE(line("s1").contains("\"BOMPART0\" \"2,'SCR','M3'\"")) << line("s1").constData();
    EXPECT_EQ(pending(), "R1 MPN, SCR2 LEN");
    EXPECT_EQ(assignments.addBOMParts(u"R1"_s, 1, u"PAD"_s, u"soft"_s), QString());
    EXPECT_EQ(pending(), "R1 MPN, SCR2 LEN");
    open(path("other.csv"));
    EXPECT_EQ(pending(), "");
    open(path("amp.kicad_sch"), {u"lite"_s});
    EXPECT_EQ(pending(), "");
    open(path("amp.kicad_sch"));
    EXPECT_EQ(pending(), "R1 MPN, SCR2 LEN");
}

TEST_F(PendingOnFiles, ArePreviewedByTheHost)
{
    write({{"s1", "R1"}, {"s2", "R2"}});
    const QByteArray before = readFile(path("amp.kicad_sch"));
    open(path("amp.kicad_sch"));
    assignments.assign(u"R1"_s, u"MPN"_s, u"x"_s);
    assignments.assign(u"R2"_s, u"VALUE"_s, QString());
    const auto preview = assignments.preview();
    ASSERT_TRUE(preview);
    ASSERT_EQ(preview->changes.size(), 1) << "what can be written is worked out beside what is refused";
    EXPECT_EQ(preview->changes[0].reference, u"R1"_s);
    EXPECT_EQ(preview->changes[0].after, u"x"_s);
    EXPECT_TRUE(preview->changes[0].file.endsWith(u"amp.kicad_sch"_s));
    ASSERT_EQ(preview->problems.size(), 1);
    EXPECT_EQ(preview->problems[0].reference, u"R2"_s);
    EXPECT_EQ(assignments.size(), 2);
    EXPECT_EQ(readFile(path("amp.kicad_sch")), before);
}

} // namespace
