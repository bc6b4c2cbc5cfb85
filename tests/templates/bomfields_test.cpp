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

TEST(BomFields, StayInOrderAndUniqueByName)
{
    struct Case
    {
        const char *name;
        void (*act)(BOMFields &fields);
        const char *result;
    };
    const Case cases[] = {
        {"a taken name is refused", [](BOMFields &fields) { EXPECT_FALSE(fields.add(field(u"b:X"_s))); },
         "a:A b:B c:C"},
        {"unless the case differs", [](BOMFields &fields) { EXPECT_TRUE(fields.add(field(u"B:X"_s))); },
         "a:A b:B c:C B:X"},
        {"a known one is replaced in place", [](BOMFields &fields) { fields.set(field(u"b:X"_s)); },
         "a:A b:X c:C"},
        {"a new one is appended", [](BOMFields &fields) { fields.set(field(u"d:D"_s)); }, "a:A b:B c:C d:D"},
        {"an unknown one cannot be removed", [](BOMFields &fields) { fields.remove(u"x"_s); }, "a:A b:B c:C"},
        {"a name of the own order can be", [](BOMFields &fields) { fields.remove(fields.names().at(1)); },
         "a:A c:C"},
        {"a removed one is forgotten",
         [](BOMFields &fields) {
             fields.remove(u"b"_s);
             fields.setOrder({u"c"_s, u"b"_s});
             EXPECT_EQ(fields.get(u"b"_s), BOMField());
             EXPECT_TRUE(fields.add(field(u"b:X"_s)));
         },
         "c:C b:X"},
        {"an order takes known names once",
         [](BOMFields &fields) {
             fields.setOrder({u"c"_s, u"x"_s, u"a"_s, u"c"_s});
             EXPECT_FALSE(fields.contains(u"b"_s));
         },
         "c:C a:A"},
        {"the own order changes nothing", [](BOMFields &fields) { fields.setOrder(fields.names()); },
         "a:A b:B c:C"},
        {"who is left out of an order comes back when named",
         [](BOMFields &fields) {
             fields.setOrder({u"a"_s});
             fields.setOrder({u"b"_s, u"a"_s});
         },
         "b:B a:A"},
        {"and is replaced when added",
         [](BOMFields &fields) {
             fields.setOrder({u"a"_s});
             EXPECT_TRUE(fields.add(field(u"b:X"_s)));
         },
         "a:A b:X"},
        {"defaults replace all", [](BOMFields &fields) { fields.setDefaults(); },
         "Value:VALUE Stock Code:CODE Unit Cost:COST"},
    };
    for (const Case &example : cases) {
        SCOPED_TRACE(example.name);
        BOMFields fields;
        for (const QString &text : {u"a:A"_s, u"b:B"_s, u"c:C"_s}) {
            EXPECT_TRUE(fields.add(field(text)));
        }
        example.act(fields);
        EXPECT_EQ(described(fields), example.result);
    }
}

} // namespace
