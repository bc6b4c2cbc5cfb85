// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "fuzz/fuzztarget.h"

#include "core/bomlinks.h"
#include "core/bompartdefinition.h"

#include <QStringList>

namespace {

/// The fields in the plainest way, for texts without double quotes.
QStringList plainFields(QString text)
{
    if (text.contains(QLatin1String(",'"))) {
        text.replace(u'\'', u'"').replace(QLatin1String("\\\""), QLatin1String("'"));
    }
    return splitOutsideQuotes(text);
}

void compareFields(const QString &text, const BOMPartDefinition &read)
{
    const QStringList fields = plainFields(text);
    if (text.contains(u'"') || text.startsWith(QLatin1String("BOMPART")) || fields.size() < 3) {
        return;
    }
    promise(read.prefix == fields.at(1).toUpper() && read.value == fields.at(2),
            "prefix and value are the second and third field");
}

void writeAndRead(BOMPartDefinition definition)
{
    definition.count = 1;
    const auto written = changedBOMPartDefinition(definition);
    if (!written) {
        return;
    }
    const ReadDefinition again = readBOMPartDefinition(u'1' + *written);
    promise(again.makesParts() && again.definition.prefix == definition.prefix &&
                again.definition.value == definition.value &&
                again.definition.properties == definition.properties,
            "a definition reads as it was written");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), qsizetype(size));
    const ReadDefinition read = readBOMPartDefinition(text);
    promise(read.definition.count >= 0 && read.definition.count <= mostPartsOfADefinition,
            "counts are within their limit");
    compareFields(text, read.definition);
    writeAndRead(read.definition);

    QMap<QString, QString> links = readBOMLinks(text);
    links.removeIf([](const auto &link) { return link.value().isEmpty(); });
    const auto written = bomLinksText(links);
    promise(written && readBOMLinks(*written) == links, "links read as they were written");
    return 0;
}

std::vector<std::string> fuzzSeeds()
{
    return {"'2','SCR','M3 screw'", "2,'SCR','Bob\\'s','MPN=a,b','COST=0.1'", "BOMPART1=1,HS,sink,CODE=x",
            "1,\"W\",\"5' wire\",A=b\\", "DATASHEET=docs%2Fa%2Cb.pdf,CODE=x"};
}

std::vector<std::string> fuzzWords()
{
    return {",", "'", "\"", "\\'", "\\", "=", ",'", "',", "BOMPART0=", "2000000000", " ", "%2C", "\xC3\x9F"};
}
