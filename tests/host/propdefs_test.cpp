// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "host/propdefs/propdefsfile.h"

#include "support/printtext.h"
#include "support/testfiles.h"

#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

QStringList linesOf(const char *text)
{
    return QString::fromUtf8(text).split(u'\n');
}

struct LineCase
{
    const char *line;
    const char *name; // null: refused
    PropType type = PropType::String;
    const char *description = nullptr;
    QStringList keywords = {};
};

TEST(Definitions, AreReadLineByLineAndWrittenAsTheyAreRead)
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
        {"\"TC\",STRING,\"Dielectric\", \"C0G | X7R|Ü\" ",
         "TC",
         String,
         "Dielectric",
         {u"C0G"_s, u"X7R"_s, u"Ü"_s}},
        {"\"TC\",STRING,\"\",\"a,b|c\"", "TC", String, "", {u"a,b"_s, u"c"_s}},
        {"\"X\",STRING,\"in \"a\",\"b\"\"", "X", String, "in \"a\",\"b\""},
        {"\"X\",STRING,\"in \"a\",\"b|c\",\"\"", "X", String, "in \"a\",\"b|c"},
        {"\"X\",BOOLEAN", nullptr},
        {"\"X\",,\"text\"", nullptr},
        {"\"\",STRING", nullptr},
        {"\"X\"", nullptr},
        {"X,STRING", nullptr},
        {"\"X\",STRING,text", nullptr},
        {"\"X\",STRING,\"open", nullptr},
    };
    for (const LineCase &c : cases) {
        QStringList problems;
        const DIDX index = PROPTEXT({u"[PROPDEFS]"_s, QString::fromUtf8(c.line)}).definitions(&problems);
        if (!c.name) {
            EXPECT_TRUE(index.definitions().isEmpty()) << c.line;
            ASSERT_EQ(problems.size(), 1) << c.line;
            EXPECT_TRUE(problems.first().startsWith(u"2: "_s)) << problems.first();
            continue;
        }
        EXPECT_TRUE(problems.isEmpty()) << c.line;
        const PROPDEF expected{QString::fromUtf8(c.name), c.type, QString::fromUtf8(c.description),
                               c.keywords};
        EXPECT_EQ(index.definitions(), QList<PROPDEF>{expected}) << c.line;
        EXPECT_EQ(PROPTEXT({u"[PROPDEFS]"_s, format_propdefs(expected)}).definitions().definitions(),
                  QList<PROPDEF>{expected});
    }
}

TEST(Definitions, CountWithoutAListOfValuesThatIsNone)
{
    for (const char *line : {"\"X\",INT,\"text\",\"1|2\"", "\"X\",STRING,\"text\",\"a||b\"",
                             "\"X\",STRING,\"text\",\"|\"", "\"X\",STRING,\"text\",\"a|b|A\""}) {
        QStringList problems;
        const DIDX index = PROPTEXT({u"[PROPDEFS]"_s, QString::fromUtf8(line)}).definitions(&problems);
        ASSERT_EQ(problems.size(), 1) << line;
        EXPECT_TRUE(problems.first().startsWith(u"2: "_s) &&
                    problems.first().endsWith(u"the list does not count"_s));
        ASSERT_TRUE(index.find(u"X"_s)) << line;
        EXPECT_EQ(index.find(u"X"_s)->description, u"text"_s);
        EXPECT_TRUE(index.find(u"X"_s)->getkwdprops().isEmpty());
    }
}

TEST(Definitions, BelongToTheirSectionAndTheFirstOfTwoCounts)
{
    QStringList problems;
    const DIDX index = PROPTEXT(linesOf("\"LOOSE\",INT\n[Other]\nanything=1\n[propdefs]\n; a comment\n"
                                        "# another\n\n\"Code\",INT\n\"CODE\",STRING\n[Last]\n\"LATE\",INT"))
                           .definitions(&problems);
    EXPECT_EQ(index.definitions(), (QList<PROPDEF>{{u"Code"_s, PropType::Int, {}}}));
    EXPECT_TRUE(index.find(u"cOdE"_s));
    EXPECT_EQ(index.find(u"LATE"_s), nullptr);
    ASSERT_EQ(problems.size(), 1);
    EXPECT_TRUE(problems.first().startsWith(u"9: \"CODE\" is defined twice"_s)) << problems.first();
}

TEST(DefinitionsText, TakesANewLineAtTheEndOfItsSection)
{
    const auto added = [](const char *before) {
        PROPTEXT text(linesOf(before));
        text.add(u"PROPDEFS"_s, u"\"NEW\",INT"_s);
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
    DefinitionsFile() { setpropdefsfile(path); }
    ~DefinitionsFile() override { setpropdefsfile({}); }

    void write(const QByteArray &bytes) const { writeFile(path, bytes); }
    [[nodiscard]] QByteArray read() const { return contentIfAny(path); }
    bool load()
    {
        problems.clear();
        return load_defaultdefs(&index, &text, &problems);
    }
    void addAndSave(const QString &line)
    {
        text.add(u"PROPDEFS"_s, line);
        EXPECT_TRUE(save_defaultdefs(text));
    }

    QTemporaryDir folder;
    QString path = folder.filePath(u"PROPDEFS.INI"_s);
    DIDX index;
    PROPTEXT text;
    QStringList problems;
};

TEST_F(DefinitionsFile, ThatIsMissingGivesTheShippedDefinitions)
{
    ASSERT_TRUE(load());
    EXPECT_TRUE(problems.isEmpty());
    EXPECT_EQ(index.find(u"cost"_s)->type, PropType::Float);
    EXPECT_EQ(index.find(u"DNP"_s)->type, PropType::YesNo);
    EXPECT_EQ(index.find(u"CODE"_s)->description, u"Stock Code"_s);
    EXPECT_FALSE(QFile::exists(path));
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
    ASSERT_TRUE(load());
    ASSERT_TRUE(save_defaultdefs(text));
    EXPECT_EQ(read(), before);
    addAndSave(u"\"C\",INT"_s);
    EXPECT_EQ(read(), before + "\"C\",INT\n");
}

TEST_F(DefinitionsFile, KeepsEncodingAndLineEndsWhenSaved)
{
    const QByteArray before = "; f\xFCr\r\n[PROPDEFS]\r\n\"A\",INT,\"M\xFC\"\r\n";
    write(before);
    ASSERT_TRUE(load());
    EXPECT_EQ(index.find(u"A"_s)->description, u"Mü"_s);
    addAndSave(u"\"C\",INT"_s);
    EXPECT_EQ(read(), before + "\"C\",INT\r\n");
    addAndSave(u"\"D\",INT,\"Ω\""_s);
    EXPECT_TRUE(read().startsWith("; f\xC3\xBCr\r\n") && read().contains("\xCE\xA9"));
}

TEST_F(DefinitionsFile, MarkedReadOnlyStays)
{
    write("[PROPDEFS]\n");
    ASSERT_TRUE(QFile::setPermissions(path, QFile::ReadOwner));
    EXPECT_FALSE(save_defaultdefs(PROPTEXT({u"[PROPDEFS]"_s, u"x"_s})));
    EXPECT_EQ(read(), "[PROPDEFS]\n");
}

TEST_F(DefinitionsFile, NamesFileAndLineOfWhatItCannotUse)
{
    write("\xEF\xBB\xBF[PROPDEFS]\r\n\"A\",INT\r\n\"B\",COLOUR\r\n");
    ASSERT_TRUE(load());
    EXPECT_TRUE(index.find(u"A"_s));
    ASSERT_EQ(problems.size(), 1);
    EXPECT_TRUE(problems.first().startsWith(path + u":3: unknown property type \"COLOUR\""_s))
        << problems.first();
}

TEST_F(DefinitionsFile, ThatCannotBeReadFailsAndLeavesTheIndexAlone)
{
    ASSERT_TRUE(QDir().mkdir(path));
    index.add({u"KEPT"_s, PropType::Int, {}});
    EXPECT_FALSE(load());
    EXPECT_EQ(problems.size(), 1);
    EXPECT_TRUE(index.find(u"KEPT"_s));
}

TEST_F(DefinitionsFile, IsNotReadFromADeviceOrBeyondItsLimit)
{
    const QByteArray start = "[PROPDEFS]\n;";
    write(start + QByteArray(1024 * 1024 - start.size(), 'x'));
    EXPECT_TRUE(load());
    write(start + QByteArray(1024 * 1024 - start.size() + 1, 'x'));
    for (const QString &file : {path, u"/dev/zero"_s}) {
        setpropdefsfile(file);
        EXPECT_FALSE(load()) << file;
        ASSERT_EQ(problems.size(), 1);
        EXPECT_TRUE(problems.first().startsWith(file + u": "_s)) << problems.first();
    }
}

TEST_F(DefinitionsFile, WithoutItsSectionSaysSoOnce)
{
    for (const char *bytes : {"", "\"A\",INT\n\"B\",INT\n[Other]\nx=1\n"}) {
        write(bytes);
        EXPECT_TRUE(load());
        EXPECT_EQ(problems, QStringList{path + u": there is no section [PROPDEFS]"_s});
    }
}

TEST_F(DefinitionsFile, IsSavedIntoAFolderThatIsMissing)
{
    setpropdefsfile(folder.filePath(u"new/below/PROPDEFS.INI"_s));
    ASSERT_TRUE(save_defaultdefs(PROPTEXT(linesOf("[PROPDEFS]\n\"A\",INT"))));
    ASSERT_TRUE(load());
    EXPECT_TRUE(index.find(u"A"_s));
}

TEST_F(DefinitionsFile, ThatCannotBeWrittenIsAFailure)
{
    write("[PROPDEFS]\n");
    for (const QString &file : {path + u"/below/PROPDEFS.INI"_s, QString(), folder.path()}) {
        setpropdefsfile(file);
        EXPECT_FALSE(save_defaultdefs(PROPTEXT(linesOf("[PROPDEFS]")))) << file;
    }
}

} // namespace
