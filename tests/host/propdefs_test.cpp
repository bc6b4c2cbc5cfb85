// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "host/propdefs/propdefsfile.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

QStringList linesOf(const char *text)
{
    return QString::fromUtf8(text).split(u'\n');
}

struct LineCase
{
    const char *line;
    const char *name; // null: refused
    PropType type;
    const char *description;
};

TEST(Definitions, AreReadLineByLine)
{
    using enum PropType;
    const LineCase cases[] = {
        {"\"CODE\",STRING", "CODE", String, ""},
        {"  \"CODE\" , string ,  \"Stock Code\"  ", "CODE", String, "Stock Code"},
        {"\"COST\",FLOAT,\"Unit, in \"EUR\"\"", "COST", Float, "Unit, in \"EUR\""},
        {"\"A,B\",INT", "A,B", Int, ""},
        {"\"Größe\",HIGHLOW,\"ä\"", "Größe", HighLow, "ä"},
        {"\"DNP\",YESNO", "DNP", YesNo, ""},
        {"\"X\",TRUEFALSE,\"\"", "X", TrueFalse, ""},
        {"\"X\",BOOLEAN", nullptr, String, nullptr},
        {"\"X\",,\"text\"", nullptr, String, nullptr},
        {"\"\",STRING", nullptr, String, nullptr},
        {"\"X\"", nullptr, String, nullptr},
        {"X,STRING", nullptr, String, nullptr},
        {"\"X\",STRING,text", nullptr, String, nullptr},
        {"\"X\",STRING,\"open", nullptr, String, nullptr},
    };
    for (const LineCase &c : cases) {
        const PROPTEXT text({QStringLiteral("[PROPDEFS]"), QString::fromUtf8(c.line)});
        QStringList problems;
        const DIDX index = text.definitions(&problems);
        if (!c.name) {
            EXPECT_TRUE(index.definitions().isEmpty()) << c.line;
            ASSERT_EQ(problems.size(), 1) << c.line;
            EXPECT_TRUE(problems.first().startsWith(QStringLiteral("2: "))) << qPrintable(problems.first());
            continue;
        }
        EXPECT_TRUE(problems.isEmpty()) << c.line;
        const PROPDEF *found = index.find(QString::fromUtf8(c.name));
        ASSERT_TRUE(found) << c.line;
        EXPECT_EQ(*found, (PROPDEF{QString::fromUtf8(c.name), c.type, QString::fromUtf8(c.description)}))
            << c.line;
    }
}

TEST(Definitions, BelongToTheirSectionAndTheFirstOfTwoCounts)
{
    const PROPTEXT text(linesOf("\"LOOSE\",INT\n"
                                "[Other]\n"
                                "anything=1\n"
                                "[propdefs]\n"
                                "; a comment\n"
                                "# another\n"
                                "\n"
                                "\"Code\",INT\n"
                                "\"CODE\",STRING\n"
                                "[Last]\n"
                                "\"LATE\",INT"));
    QStringList problems;
    const DIDX index = text.definitions(&problems);
    ASSERT_EQ(index.definitions().size(), 1);
    ASSERT_TRUE(index.find(QStringLiteral("cOdE")));
    EXPECT_EQ(index.find(QStringLiteral("cOdE"))->type, PropType::Int);
    EXPECT_EQ(index.find(QStringLiteral("LATE")), nullptr);
    ASSERT_EQ(problems.size(), 1);
    EXPECT_TRUE(problems.first().startsWith(QStringLiteral("9: \"CODE\" is defined twice")));
}

TEST(Definitions, AreWrittenAsTheyAreRead)
{
    const PROPDEF definitions[] = {
        {QStringLiteral("CODE"), PropType::String, QStringLiteral("Stock, \"Code\"")},
        {QStringLiteral("N"), PropType::Int, {}},
        {QStringLiteral("Y"), PropType::YesNo, QStringLiteral("x")},
    };
    for (const PROPDEF &definition : definitions) {
        const PROPTEXT text({QStringLiteral("[PROPDEFS]"), format_propdefs(definition)});
        const DIDX index = text.definitions();
        const PROPDEF *read = index.find(definition.name);
        ASSERT_TRUE(read) << qPrintable(text.lines().last());
        EXPECT_EQ(*read, definition);
    }
}

TEST(DefinitionsText, TakesANewLineAtTheEndOfItsSection)
{
    const QString line = QStringLiteral("\"NEW\",INT");
    const auto added = [&line](const char *before) {
        PROPTEXT text(linesOf(before));
        text.add(QStringLiteral("PROPDEFS"), line);
        return text.lines().join(u'\n').toStdString();
    };
    EXPECT_EQ(added("; mine\n[PropDefs]\n\"A\",INT\n; end\n\n[Other]\nx=1"),
              "; mine\n[PropDefs]\n\"A\",INT\n; end\n\"NEW\",INT\n\n[Other]\nx=1");
    EXPECT_EQ(added("[PROPDEFS]"), "[PROPDEFS]\n\"NEW\",INT");
    EXPECT_EQ(added("[Other]\nx=1"), "[Other]\nx=1\n[PROPDEFS]\n\"NEW\",INT");
}

class DefinitionsFile : public testing::Test
{
protected:
    DefinitionsFile() { setpropdefsfile(path()); }
    ~DefinitionsFile() override { setpropdefsfile({}); }

    [[nodiscard]] QString path() const { return m_folder.filePath(QStringLiteral("PROPDEFS.INI")); }
    void write(const QByteArray &bytes) const
    {
        QFile file(path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    [[nodiscard]] QByteArray read() const
    {
        QFile file(path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
    }

    QTemporaryDir m_folder;
};

TEST_F(DefinitionsFile, ThatIsMissingGivesTheShippedDefinitions)
{
    DIDX index;
    PROPTEXT text;
    QStringList problems;
    ASSERT_TRUE(load_defaultdefs(&index, &text, &problems));
    EXPECT_TRUE(problems.isEmpty());
    EXPECT_EQ(index.find(QStringLiteral("cost"))->type, PropType::Float);
    EXPECT_EQ(index.find(QStringLiteral("DNP"))->type, PropType::YesNo);
    EXPECT_EQ(index.find(QStringLiteral("CODE"))->description, QStringLiteral("Stock Code"));
    EXPECT_FALSE(QFile::exists(path()));
    ASSERT_TRUE(save_defaultdefs(text));
    DIDX again;
    ASSERT_TRUE(load_defaultdefs(&again, nullptr));
    EXPECT_EQ(again.definitions(), index.definitions());
}

TEST_F(DefinitionsFile, KeepsCommentsOrderAndOtherSectionsWhenSaved)
{
    const QByteArray before =
        "; mine\n[Other]\nkey = 1\n\n[PROPDEFS]\n# first\n\"B\",INT\nbroken\n\"A\",FLOAT,\"ä\"\n";
    write(before);
    PROPTEXT text;
    ASSERT_TRUE(load_defaultdefs(nullptr, &text));
    ASSERT_TRUE(save_defaultdefs(text));
    EXPECT_EQ(read(), before);
    text.add(QStringLiteral("PROPDEFS"), QStringLiteral("\"C\",INT"));
    ASSERT_TRUE(save_defaultdefs(text));
    EXPECT_EQ(read(), before + "\"C\",INT\n");
}

TEST_F(DefinitionsFile, KeepsEncodingAndLineEndsWhenSaved)
{
    const QByteArray before = "; f\xFCr\r\n[PROPDEFS]\r\n\"A\",INT,\"M\xFC\"\r\n";
    write(before);
    DIDX index;
    PROPTEXT text;
    ASSERT_TRUE(load_defaultdefs(&index, &text));
    EXPECT_EQ(index.find(QStringLiteral("A"))->description, QStringLiteral("Mü"));
    text.add(QStringLiteral("PROPDEFS"), QStringLiteral("\"C\",INT"));
    ASSERT_TRUE(save_defaultdefs(text));
    EXPECT_EQ(read(), before + "\"C\",INT\r\n");
    text.add(QStringLiteral("PROPDEFS"), QStringLiteral("\"D\",INT,\"Ω\""));
    ASSERT_TRUE(save_defaultdefs(text));
    EXPECT_TRUE(read().startsWith("; f\xC3\xBCr\r\n") && read().contains("\xCE\xA9"));
}

TEST_F(DefinitionsFile, MarkedReadOnlyStays)
{
    write("[PROPDEFS]\n");
    ASSERT_TRUE(QFile::setPermissions(path(), QFile::ReadOwner));
    EXPECT_FALSE(save_defaultdefs(PROPTEXT({QStringLiteral("[PROPDEFS]"), QStringLiteral("x")})));
    EXPECT_EQ(read(), "[PROPDEFS]\n");
}

TEST_F(DefinitionsFile, NamesFileAndLineOfWhatItCannotUse)
{
    write("\xEF\xBB\xBF[PROPDEFS]\r\n\"A\",INT\r\n\"B\",COLOUR\r\n");
    DIDX index;
    QStringList problems;
    ASSERT_TRUE(load_defaultdefs(&index, nullptr, &problems));
    EXPECT_TRUE(index.find(QStringLiteral("A")));
    ASSERT_EQ(problems.size(), 1);
    EXPECT_TRUE(problems.first().startsWith(path() + QStringLiteral(":3: unknown property type \"COLOUR\"")))
        << qPrintable(problems.first());
}

TEST_F(DefinitionsFile, ThatCannotBeReadFailsAndLeavesTheIndexAlone)
{
    ASSERT_TRUE(QDir().mkdir(path()));
    DIDX index;
    index.add({QStringLiteral("KEPT"), PropType::Int, {}});
    QStringList problems;
    EXPECT_FALSE(load_defaultdefs(&index, nullptr, &problems));
    EXPECT_EQ(problems.size(), 1);
    EXPECT_TRUE(index.find(QStringLiteral("KEPT")));
}

TEST_F(DefinitionsFile, IsNotReadFromADeviceOrBeyondItsLimit)
{
    const QByteArray start = "[PROPDEFS]\n;";
    write(start + QByteArray(1024 * 1024 - start.size(), 'x'));
    EXPECT_TRUE(load_defaultdefs(nullptr, nullptr));
    write(start + QByteArray(1024 * 1024 - start.size() + 1, 'x'));
    for (const QString &file : {path(), QStringLiteral("/dev/zero")}) {
        setpropdefsfile(file);
        QStringList problems;
        EXPECT_FALSE(load_defaultdefs(nullptr, nullptr, &problems)) << qPrintable(file);
        ASSERT_EQ(problems.size(), 1);
        EXPECT_TRUE(problems.first().startsWith(file + QStringLiteral(": "))) << qPrintable(problems.first());
    }
}

TEST_F(DefinitionsFile, WithoutItsSectionSaysSoOnce)
{
    for (const char *bytes : {"", "\"A\",INT\n\"B\",INT\n[Other]\nx=1\n"}) {
        write(bytes);
        QStringList problems;
        EXPECT_TRUE(load_defaultdefs(nullptr, nullptr, &problems));
        EXPECT_EQ(problems, QStringList{path() + QStringLiteral(": there is no section [PROPDEFS]")});
    }
}

TEST_F(DefinitionsFile, IsSavedIntoAFolderThatIsMissing)
{
    setpropdefsfile(m_folder.filePath(QStringLiteral("new/below/PROPDEFS.INI")));
    ASSERT_TRUE(save_defaultdefs(PROPTEXT(linesOf("[PROPDEFS]\n\"A\",INT"))));
    DIDX index;
    ASSERT_TRUE(load_defaultdefs(&index, nullptr));
    EXPECT_TRUE(index.find(QStringLiteral("A")));
}

TEST_F(DefinitionsFile, ThatCannotBeWrittenIsAFailure)
{
    const PROPTEXT text(linesOf("[PROPDEFS]"));
    write("[PROPDEFS]\n");
    setpropdefsfile(path() + QStringLiteral("/below/PROPDEFS.INI"));
    EXPECT_FALSE(save_defaultdefs(text)) << "a file is no folder";
    setpropdefsfile({});
    EXPECT_FALSE(save_defaultdefs(text));
    setpropdefsfile(m_folder.path());
    EXPECT_FALSE(save_defaultdefs(text));
}

} // namespace
