// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "host/framework/hostsettings.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>
#include <vector>

using namespace Qt::StringLiterals;

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
