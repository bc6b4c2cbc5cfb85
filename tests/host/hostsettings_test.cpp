// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "host/framework/hostsettings.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>
#include <vector>

using namespace Qt::StringLiterals;

TEST(HostSettings, OfTwoProgramsLoseNothingOfAListThatBothChange)
{
    const QTemporaryDir folder;
    IniHostSettings first(folder.filePath(u"new/bom.ini"_s));
    // In one process QSettings of one path share what they know.
    ASSERT_TRUE(QFile::link(folder.filePath(u"new"_s), folder.filePath(u"same"_s)));
    IniHostSettings second(folder.filePath(u"same/bom.ini"_s));
    const auto append = [](const QString &text) {
        return [text](const QString &before) { return before + text; };
    };
    first.change(u"G"_s, u"K"_s, append(u"a"_s));
    second.change(u"G"_s, u"K"_s, append(u"b"_s));
    first.change(u"G"_s, u"K"_s, append(u"c"_s));
    second.reload();
    EXPECT_EQ(second.value(u"G"_s, u"K"_s).value_or(QString()).toStdString(), "abc");
}

TEST(HostSettings, OutliveTheMemoryOfTheStringsThatTheyGet)
{
    const QTemporaryDir folder;
    std::vector<std::unique_ptr<HostSettings>> kinds;
    kinds.push_back(std::make_unique<MemoryHostSettings>());
    kinds.push_back(std::make_unique<IniHostSettings>(folder.filePath(u"bom.ini"_s)));
    for (const auto &settings : kinds) {
        // As a literal lies in a library: the string does not own its characters.
        std::u16string library = u"GKT";
        const auto literal = [&library](std::size_t at) {
            return QString::fromRawData(reinterpret_cast<const QChar *>(library.data() + at), 1);
        };
        settings->setValue(literal(0), literal(1), literal(2));
        library = u"xxx";
        EXPECT_EQ(settings->value(u"G"_s, u"K"_s).value_or(QString()).toStdString(), "T");
    }
}
