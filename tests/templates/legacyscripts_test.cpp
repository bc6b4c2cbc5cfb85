// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "templates/legacytemplate.h"

#include "host/framework/hostsettings.h"
#include "support/scopeddefinitions.h"
#include "templates/templatefixture.h"
#include "templates/templatestore.h"

#include <QSettings>

namespace {

class LegacyFile : public TemplateFixture
{
protected:
    /// The scripts as "name[line|line|]".
    QString scriptsOf(const QString &file)
    {
        m_problems.clear();
        QString text;
        for (const LegacyScript &script : readLegacyScripts(file, &m_problems)) {
            text += script.name + u'[' + QString(script.text).replace(u'\n', u'|') + u']';
        }
        return text;
    }
    QString scriptsIn(const QByteArray &bytes) { return scriptsOf(write(u"old.BSF"_s, bytes)); }

    QStringList m_problems;
};

BOMTemplate converted(const char *lines)
{
    return legacyTemplate({u"x"_s, QString::fromUtf8(lines)});
}

TEST_F(LegacyFile, HasScriptsBetweenTheirMarks)
{
    EXPECT_EQ(scriptsIn("outside=1\r\n*BOM SCRIPT \"Two words\" \r\nFIELD=a\r\n\r\n*END SCRIPT\r\nbetween\n"
                        "*BOM SCRIPT\n*END SCRIPT now\n*BOM SCRIPT\tÜ\nx\n*END SCRIPT\nafter\n"
                        "*BOM SCRIPT Ü\ny\n*END SCRIPT"),
              u"Two words[FIELD=a||][]Ü[y|]"_s);
    EXPECT_EQ(m_problems, QStringList());
    EXPECT_EQ(scriptsIn("*BOM SCRIPT \xDC\n*END SCRIPT\n"), u"Ü[]"_s) << "Latin-1";
}

TEST_F(LegacyFile, WhoseScriptHasNoEndIsReadAndSaysSo)
{
    EXPECT_EQ(scriptsIn("\n*BOM SCRIPT a\nx\n*BOM SCRIPT b\n*END SCRIPT\n*BOM SCRIPT c\nlast"),
              u"a[x|]b[]c[last|]"_s);
    const QString file = path(u"old.BSF"_s);
    EXPECT_EQ(m_problems, QStringList({file + u":2: the script \"a\" has no line \"*END SCRIPT\""_s,
                                       file + u":6: the script \"c\" has no line \"*END SCRIPT\""_s}));
}

TEST_F(LegacyFile, GivesTheScriptThatIsAskedFor)
{
    const QString file =
        write(u"old.BSF"_s, "*BOM SCRIPT One\n1\n*END SCRIPT\n*BOM SCRIPT one\n2\n*END SCRIPT\n");
    const auto textOf = [&](const char *name) {
        const auto script = readLegacyScript(file, QLatin1String(name), &m_problems);
        return script ? script->text : QString();
    };
    EXPECT_EQ(textOf("one"), u"2\n"_s);
    EXPECT_EQ(textOf("ONE"), u"1\n"_s);
    EXPECT_TRUE(m_problems.isEmpty());
    EXPECT_EQ(textOf(""), QString());
    EXPECT_EQ(textOf("two"), QString());
    EXPECT_EQ(m_problems, QStringList(2, file + u": name one of the scripts \"One\", \"one\""_s));
    write(u"old.BSF"_s, "*BOM SCRIPT\n3\n*END SCRIPT\n");
    EXPECT_EQ(textOf(""), u"3\n"_s);
}

TEST_F(LegacyFile, ThatIsNoneSaysWhy)
{
    const QString huge = write(u"huge"_s, {});
    ASSERT_TRUE(QFile::resize(huge, 100'000'000));
    const std::pair<QString, const char *> cases[] = {
        {path(u"missing"_s), "there is no such file"},
        {m_folder.path(), "this is no ordinary file"},
        {u"/dev/zero"_s, "this is no ordinary file"},
        {write(u"empty"_s, {}), "there is no line \"*BOM SCRIPT\""},
        {write(u"binary"_s, QByteArray("*BOM SCRIPT\n\0x", 14)), "the file is no text"},
        {huge, "the file is larger than 4 MiB, the most that BOM scripts may have"},
    };
    for (const auto &[file, reason] : cases) {
        EXPECT_EQ(scriptsOf(file), QString());
        EXPECT_EQ(m_problems, QStringList(file + u": "_s + QLatin1String(reason)));
    }
}

TEST_F(LegacyFile, OfSettingsIsSearchedForTheHighestVersion)
{
    QSettings settings(path(u"registry.ini"_s), QSettings::IniFormat);
    for (const char *key : {"Orin A/9.0/BOM Scripts/one", "Orin A/10.0/BOM Scripts/two",
                            "Other/1/BOM Scripts/three", "ORINB/1/BOM Scripts/four", "orinc/1/Else/five"}) {
        settings.setValue(QLatin1String(key), QLatin1String(key));
    }
    QString group;
    const QList<LegacyScript> expected{{u"four"_s, u"ORINB/1/BOM Scripts/four"_s},
                                       {u"two"_s, u"Orin A/10.0/BOM Scripts/two"_s}};
    EXPECT_EQ(legacyScriptsIn(settings, &group), expected);
    // Capitals come first.
    EXPECT_EQ(group, u"Orin A/10.0/BOM Scripts"_s);
}

TEST_F(LegacyFile, IsOfferedOnce)
{
    IniHostSettings settings(path(u"bom.ini"_s));
    HostSettings::install(&settings);
    EXPECT_TRUE(TemplateStore::isLegacyImportPending());
    EXPECT_TRUE(QDir(m_folder.path()).isEmpty());
    TemplateStore::setLegacyImportDone();
    EXPECT_FALSE(TemplateStore::isLegacyImportPending());
    EXPECT_EQ(IniHostSettings(path(u"bom.ini"_s)).value(u"BOM"_s, u"BomScriptsImported"_s), u"true"_s);
    HostSettings::install(nullptr);
}

TEST(LegacyScriptValues, AreSplitAtCommasOutsideQuotes)
{
    const std::pair<const char *, const char *> cases[] = {
        {"a,b,,c,", "a|b|c"},     {"\"a,b\",c", "a,b|c"}, {"x,\"\",\"y\"", "x||y"}, {"\",\",a", "a"},
        {"\"a\"b\"c\"", "a|b|c"}, {"a,\"b,c", "a|b,c"},   {" a , b", " a | b"},
    };
    for (const auto &[text, values] : cases) {
        EXPECT_EQ(legacyScriptValues(QLatin1String(text)).join(u'|'), QLatin1String(values)) << text;
    }
    EXPECT_EQ(legacyScriptValues(QString()), QStringList());
}

TEST(LegacyTemplate, GathersCategoriesUnderOneHeading)
{
    const BOMTemplate made =
        converted("CATEGORY=R,Resistors,1\ncategory =VR,\"RESISTORS\",1\nCATEGORY=C,Capacitors\n"
                  "CATEGORY=D,Diodes,1,2\nnothing\n=R,x,y\n");
    const QList<BOMCategory> expected{{u"Resistors"_s, {u"R"_s, u"VR"_s}, false},
                                      {u"Miscellaneous"_s, {u"*"_s}, true}};
    EXPECT_EQ(made.categories(), expected);
    const QList<BOMCategory> withRest = converted("CATEGORY=*,Rest,1\nCATEGORY=U,ICs,1\n").categories();
    ASSERT_EQ(withRest.size(), 2);
    EXPECT_TRUE(withRest.first().isMiscCategory);
}

TEST(LegacyTemplate, TakesFieldsAndTotals)
{
    const BOMTemplate made = converted("FIELD=CODE,20,\"Code, old\",x,\"<\",\">\",yes,0\n"
                                       "Total=COST,9,Cost,x,\"\",\"\",no,0,more\nFIELD=A,1,Seven,x,p,s,YES\n"
                                       "FIELD=OTHER,wide,Cost,x,£,s,YEP,0\nTOTAL=A,1,Sum,3,4,5,6,7");
    const QList<BOMField> expected{
        {u"Code, old"_s, u"CODE"_s, u"<"_s, u">"_s, true, false, false, 0, 20, 1, 20, 0},
        {u"Cost"_s, u"OTHER"_s, u"£"_s, u"s"_s, false, false, false, 0, 0, 1, 0, 0},
        {u"Sum"_s, u"A"_s, u"4"_s, u"5"_s, false, true, false, 0, 1, 1, 1, 0}};
    EXPECT_EQ(made.fields().fields(), expected);
    BOMTemplate others = made;
    others.setFields(BOMTemplate().fields());
    others.setCategories(BOMTemplate().categories());
    EXPECT_EQ(others.toVariantMap(), BOMTemplate().toVariantMap());
}

TEST(LegacyTemplate, TakesTimeInProportionToItsScript)
{
    QString text;
    for (int i = 0; text.size() < mostLegacyScriptBytes / 2; ++i) {
        text += u"CATEGORY=R%1,H%1,x\nFIELD=P,1,T%1,3,4,5,6,7\n"_s.arg(i);
    }
    const BOMTemplate made = legacyTemplate({{}, text});
    EXPECT_EQ(made.fields().size() + 1, made.categories().size());
}

TEST(LegacyTemplate, AsksForPropertiesThatHaveNoDefinition)
{
    const ScopedDefinitions definitions("\"COST\",FLOAT");
    const BOMTemplate made =
        converted("FIELD=cost,1,A,3,4,5,6,7\nFIELD=MPN,1,B,3,4,5,6,7\nFIELD=mpn,1,C,3,4,5,6,7\n"
                  "FIELD=VALUE,1,D,3,4,5,6,7\nFIELD=.Placed,1,E,3,4,5,6,7\n"
                  "FIELD=Maker,1,F,3,4,5,6,7\n");
    EXPECT_EQ(undefinedProperties(made), QStringList({u"MPN"_s, u"Maker"_s}));
}

} // namespace
