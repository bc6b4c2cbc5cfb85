// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "templates/bomfields.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// Of "name:property".
BOMField field(const QString &text)
{
    BOMField made;
    made.fieldName = text.section(u':', 0, 0);
    made.propertyName = text.section(u':', 1);
    return made;
}

std::string described(const BOMFields &fields)
{
    QStringList texts;
    for (const BOMField &field : fields.fields()) {
        EXPECT_TRUE(fields.contains(field.fieldName) && fields.get(field.fieldName) == field);
        EXPECT_EQ(fields.names().value(texts.size()), field.fieldName);
        texts.append(field.fieldName + u':' + field.propertyName);
    }
    EXPECT_EQ(fields.size(), texts.size());
    return texts.join(u' ').toStdString();
}

/// Takes commands as "add b:X", "set b:X", "remove b", "order c,b" and "defaults".
void run(BOMFields &fields, const QString &command)
{
    const QString argument = command.section(u' ', 1);
    if (command.startsWith("add "_L1)) {
        const bool isTaken = fields.contains(field(argument).fieldName);
        EXPECT_EQ(fields.add(field(argument)), !isTaken);
    } else if (command.startsWith("set "_L1)) {
        fields.set(field(argument));
    } else if (command.startsWith("remove "_L1)) {
        fields.remove(argument);
        EXPECT_EQ(fields.get(argument), BOMField());
    } else if (command.startsWith("order "_L1)) {
        fields.setOrder(argument.split(u','));
    } else {
        fields.setDefaults();
    }
}

TEST(BomFields, StayInOrderAndUniqueByName)
{
    const std::pair<const char *, const char *> cases[] = {
        {"add b:X", "a:A b:B c:C"},     {"add B:X", "a:A b:B c:C B:X"},
        {"set b:X", "a:A b:X c:C"},     {"set d:D", "a:A b:B c:C d:D"},
        {"remove x", "a:A b:B c:C"},    {"remove b;order c,b;add b:X", "c:C b:X"},
        {"order c,x,a,c", "c:C a:A"},   {"order a;order b,a", "b:B a:A"},
        {"order a;add b:X", "a:A b:X"}, {"defaults", "Value:VALUE Stock Code:CODE Unit Cost:COST"},
    };
    for (const auto &[commands, result] : cases) {
        BOMFields fields;
        run(fields, u"add a:A"_s);
        run(fields, u"add b:B"_s);
        run(fields, u"add c:C"_s);
        for (const QString &command : QString::fromLatin1(commands).split(u';')) {
            run(fields, command);
        }
        EXPECT_EQ(described(fields), result) << commands;
    }
}

TEST(BomFields, TakeNamesOfTheirOwnOrder)
{
    BOMFields fields;
    run(fields, u"add a:A"_s);
    run(fields, u"add b:B"_s);
    fields.setOrder(fields.names());
    EXPECT_EQ(described(fields), "a:A b:B");
    fields.remove(fields.names().first());
    EXPECT_EQ(described(fields), "b:B");
}

} // namespace
