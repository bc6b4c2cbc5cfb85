// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "templates/legacyscripts.h"

#include "support/scopeddefinitions.h"
#include "templates/templatefixture.h"
#include "templates/undefinedproperties.h"

#include <QSettings>

namespace {

class LegacyFile : public TemplateFixture
{
protected:
    QList<LegacyScript> scriptsOf(const QByteArray &bytes)
    {
        m_problems.clear();
        return readLegacyScripts(write(QStringLiteral("old.BSF"), bytes), &m_problems);
    }

    QStringList m_problems;
};

BOMTemplate converted(const char *lines)
{
    return legacyTemplate({QStringLiteral("x"), QString::fromUtf8(lines)});
}

TEST_F(LegacyFile, HasScriptsBetweenTheirMarks)
{
    const auto scripts =
        scriptsOf("outside=1\r\n*BOM SCRIPT \"Two words\" \r\nFIELD=a\r\n\r\n*END SCRIPT\r\nbetween\n"
                  "*BOM SCRIPT\n*END SCRIPT now\n*BOM SCRIPT\tÜ\nx\n*END SCRIPT\nafter\n"
                  "*BOM SCRIPT Ü\ny\n*END SCRIPT");
    const QList<LegacyScript> expected{{QStringLiteral("Two words"), QStringLiteral("FIELD=a\n\n")},
                                       {QString(), QString()},
                                       {QStringLiteral("Ü"), QStringLiteral("y\n")}};
    EXPECT_EQ(scripts, expected);
    EXPECT_EQ(m_problems, QStringList());
    const auto latin = scriptsOf("*BOM SCRIPT \xDC\n*END SCRIPT\n");
    ASSERT_EQ(latin.size(), 1);
    EXPECT_EQ(latin.first().name, QStringLiteral("Ü"));
}

TEST_F(LegacyFile, WhoseScriptHasNoEndIsReadAndSaysSo)
{
    const auto scripts = scriptsOf("\n*BOM SCRIPT a\nx\n*BOM SCRIPT b\n*END SCRIPT\n*BOM SCRIPT c\nlast");
    ASSERT_EQ(scripts.size(), 3);
    EXPECT_EQ(scripts[0].text, QStringLiteral("x\n"));
    EXPECT_EQ(scripts[2].text, QStringLiteral("last\n"));
    const QString file = path(QStringLiteral("old.BSF"));
    EXPECT_EQ(m_problems,
              QStringList({file + QStringLiteral(":2: the script \"a\" has no line \"*END SCRIPT\""),
                           file + QStringLiteral(":6: the script \"c\" has no line \"*END SCRIPT\"")}));
}

TEST_F(LegacyFile, GivesTheScriptThatIsAskedFor)
{
    const QString file = write(QStringLiteral("old.BSF"),
                               "*BOM SCRIPT One\n1\n*END SCRIPT\n*BOM SCRIPT one\n2\n*END SCRIPT\n");
    const auto textOf = [&](const char *name) {
        const auto script = readLegacyScript(file, QLatin1String(name), &m_problems);
        return script ? script->text : QString();
    };
    EXPECT_EQ(textOf("one"), QStringLiteral("2\n"));
    EXPECT_EQ(textOf("ONE"), QStringLiteral("1\n"));
    EXPECT_TRUE(m_problems.isEmpty());
    EXPECT_EQ(textOf(""), QString());
    EXPECT_EQ(textOf("two"), QString());
    EXPECT_EQ(m_problems,
              QStringList(2, file + QStringLiteral(": name one of the scripts \"One\", \"one\"")));
    write(QStringLiteral("old.BSF"), "*BOM SCRIPT\n3\n*END SCRIPT\n");
    EXPECT_EQ(textOf(""), QStringLiteral("3\n"));
}

TEST_F(LegacyFile, ThatIsNoneSaysWhy)
{
    const auto reason = [this](const QString &file) {
        QStringList problems;
        EXPECT_TRUE(readLegacyScripts(file, &problems).isEmpty());
        EXPECT_EQ(problems.size(), 1) << qPrintable(file);
        return problems.value(0).mid(file.size());
    };
    EXPECT_EQ(reason(path(QStringLiteral("missing"))), QStringLiteral(": there is no such file"));
    EXPECT_EQ(reason(m_folder.path()), QStringLiteral(": this is no ordinary file"));
    EXPECT_EQ(reason(QStringLiteral("/dev/zero")), QStringLiteral(": this is no ordinary file"));
    EXPECT_EQ(reason(write(QStringLiteral("empty"), {})),
              QStringLiteral(": there is no line \"*BOM SCRIPT\""));
    EXPECT_EQ(reason(write(QStringLiteral("binary"), QByteArray("*BOM SCRIPT\n\0x", 14))),
              QStringLiteral(": the file is no text"));
    QFile huge(path(QStringLiteral("huge")));
    ASSERT_TRUE(huge.open(QIODevice::WriteOnly) && huge.resize(100'000'000));
    EXPECT_EQ(reason(huge.fileName()),
              QStringLiteral(": the file is larger than 4 MiB, the most that BOM scripts may have"));
}

TEST(LegacyScriptValues, AreSplitAtCommasOutsideQuotes)
{
    const std::vector<std::pair<const char *, const char *>> cases{
        {"a,b,,c,", "a|b|c"},     {"\"a,b\",c", "a,b|c"}, {"x,\"\",\"y\"", "x||y"}, {"\",\",a", "a"},
        {"\"a\"b\"c\"", "a|b|c"}, {"a,\"b,c", "a|b,c"},   {" a , b", " a | b"},
    };
    for (const auto &[text, values] : cases) {
        EXPECT_EQ(legacyScriptValues(QString::fromUtf8(text)).join(u'|'), QLatin1String(values)) << text;
    }
    EXPECT_EQ(legacyScriptValues(QString()), QStringList());
}

TEST(LegacyTemplate, GathersCategoriesUnderOneHeading)
{
    const BOMTemplate made =
        converted("CATEGORY=R,Resistors,1\ncategory =VR,\"RESISTORS\",1\nCATEGORY=C,Capacitors\n"
                  "CATEGORY=D,Diodes,1,2\nnothing\n=R,x,y\n");
    const QList<BOMCategory> expected{
        {QStringLiteral("Resistors"), {QStringLiteral("R"), QStringLiteral("VR")}, false},
        {QStringLiteral("Miscellaneous"), {QStringLiteral("*")}, true}};
    EXPECT_EQ(made.categories(), expected);
    const BOMTemplate withRest = converted("CATEGORY=*,Rest,1\nCATEGORY=U,ICs,1\n");
    ASSERT_EQ(withRest.categories().size(), 2);
    EXPECT_TRUE(withRest.categories().first().isMiscCategory);
}

TEST(LegacyTemplate, TakesFieldsAndTotals)
{
    const BOMTemplate made = converted("FIELD=CODE,20,\"Code, old\",x,\"<\",\">\",yes,0\n"
                                       "Total=COST,9,Cost,x,\"\",\"\",no,0,more\nFIELD=A,1,Seven,x,p,s,YES\n"
                                       "FIELD=OTHER,wide,Cost,x,£,s,YEP,0\n");
    EXPECT_EQ(made.fields().names(), QStringList({QStringLiteral("Code, old"), QStringLiteral("Cost")}));
    const BOMField code = made.fields().get(QStringLiteral("Code, old"));
    const BOMField expected{code.fieldName,
                            QStringLiteral("CODE"),
                            QStringLiteral("<"),
                            QStringLiteral(">"),
                            true,
                            false,
                            false,
                            0,
                            20,
                            1,
                            20,
                            0};
    EXPECT_EQ(code, expected);
    const BOMField cost = made.fields().get(QStringLiteral("Cost"));
    const BOMField replaced{cost.fieldName,
                            QStringLiteral("OTHER"),
                            QStringLiteral("£"),
                            QStringLiteral("s"),
                            false,
                            false,
                            false,
                            0,
                            0,
                            1,
                            0,
                            0};
    EXPECT_EQ(cost, replaced);
    EXPECT_TRUE(converted("TOTAL=A,1,B,3,4,5,6,7").fields().get(QStringLiteral("B")).generateTotals);
    BOMTemplate others = made;
    others.setFields(BOMTemplate().fields());
    others.setCategories(BOMTemplate().categories());
    EXPECT_EQ(others.toVariantMap(), BOMTemplate().toVariantMap());
}

TEST(LegacyTemplate, TakesTimeInProportionToItsScript)
{
    QString text;
    for (int i = 0; text.size() < mostLegacyScriptBytes / 2; ++i) {
        const QString number = QString::number(i);
        text += QStringLiteral("CATEGORY=R") + number + QStringLiteral(",H") + number +
                QStringLiteral(",x\n") + QStringLiteral("FIELD=P,1,T") + number +
                QStringLiteral(",3,4,5,6,7\n");
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
    EXPECT_EQ(undefinedProperties(made), QStringList({QStringLiteral("MPN"), QStringLiteral("Maker")}));
}

TEST_F(LegacyFile, OfSettingsIsSearchedForTheHighestVersion)
{
    QSettings settings(path(QStringLiteral("registry.ini")), QSettings::IniFormat);
    for (const char *key : {"Orin A/9.0/BOM Scripts/one", "Orin A/10.0/BOM Scripts/two",
                            "Other/1/BOM Scripts/three", "ORINB/1/BOM Scripts/four", "orinc/1/Else/five"}) {
        settings.setValue(QLatin1String(key), QLatin1String(key));
    }
    QString group;
    const auto scripts = legacyScriptsIn(settings, &group);
    ASSERT_EQ(scripts.size(), 2);
    EXPECT_EQ(scripts[0], (LegacyScript{QStringLiteral("four"), QStringLiteral("ORINB/1/BOM Scripts/four")}));
    EXPECT_EQ(scripts[1].text, QStringLiteral("Orin A/10.0/BOM Scripts/two"));
    // Capitals come first.
    EXPECT_EQ(group, QStringLiteral("Orin A/10.0/BOM Scripts"));
}

} // namespace
