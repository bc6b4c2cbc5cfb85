// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "fuzz/fuzztarget.h"

#include "templates/legacytemplate.h"

#include <QSet>

#include <algorithm>

namespace {

/// The values of a line in the plainest way.
QStringList plainValues(const QString &text)
{
    QStringList values = splitOutsideQuotes(text);
    values.removeAll(QStringLiteral(","));
    return values;
}

void checkConversion(const LegacyScript &script)
{
    const BOMTemplate made = legacyTemplate(script);
    const QList<BOMCategory> categories = made.categories();
    promise(std::ranges::any_of(categories, &BOMCategory::isMiscCategory),
            "a template has a miscellaneous category");
    QSet<QString> headings;
    qsizetype prefixes = 0;
    for (const BOMCategory &category : categories) {
        headings.insert(category.heading.toCaseFolded());
        prefixes += category.references.size();
    }
    // The one that is added may have the heading of another.
    promise(headings.size() + 1 >= categories.size(), "headings differ");
    const qsizetype lines = script.text.count(u'\n') + 1;
    promise(prefixes <= lines + 1 && made.fields().size() <= lines, "a line gives one prefix or field");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), qsizetype(size));
    promise(legacyScriptValues(text) == plainValues(text), "values are split as the format says");
    QStringList problems;
    const QList<LegacyScript> scripts = legacyScripts(text, &problems);
    promise(scripts.isEmpty() ? problems.isEmpty() : true, "only a script can lack its end");
    QString written;
    for (const LegacyScript &script : scripts) {
        checkConversion(script);
        written += QStringLiteral("*BOM SCRIPT \"") + script.name + QStringLiteral("\"\n") + script.text +
                   QStringLiteral("*END SCRIPT\n");
    }
    QStringList none;
    promise(legacyScripts(written, &none) == scripts && none.isEmpty(), "scripts read as they were written");
    return 0;
}

std::vector<std::string> fuzzSeeds()
{
    return {
        "*BOM SCRIPT \"One\"\r\nCATEGORY=R,Resistors,1\r\nFIELD=CODE,20,\"Code, old\",x,\"<\",\">\",YES,0\r\n"
        "*END SCRIPT\r\n",
        "*BOM SCRIPT A\nCATEGORY=*,Rest,1\nTOTAL=COST,9,Cost,x,,,NO,0,1\n*BOM SCRIPT B\nx=y\n"};
}

std::vector<std::string> fuzzWords()
{
    return {",",         "\"",     "\",\"", "=",   "\n", "\r\n", "*BOM SCRIPT ", "*END SCRIPT\n",
            "CATEGORY=", "FIELD=", "'",     "\xFF"};
}
