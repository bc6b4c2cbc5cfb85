// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "fuzz/fuzztarget.h"

#include "templates/bomtemplate.h"
#include "templates/bomtemplatefile.h"

#include <QBuffer>

namespace {

void passOver(QtMsgType, const QMessageLogContext &, const QString &) {}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const auto debugLines = qInstallMessageHandler(passOver);
    Q_UNUSED(debugLines)
    QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QString problem;
    const auto document = BOMTemplateFile(QStringLiteral("fuzz.bomt")).readDocument(buffer, &problem);
    if (!document) {
        promise(!problem.isEmpty(), "a refusal says why");
        return 0;
    }
    BOMTemplate read;
    read.setVersion(document->version);
    read.fromVariantMap(document->map);
    promise(read.version() == BOMTemplate::CurrentVersion, "what was read is of the current version");
    BOMTemplate again;
    again.fromVariantMap(read.toVariantMap());
    promise(again.toVariantMap() == read.toVariantMap(), "the map of a template holds all of it");
    return 0;
}

std::vector<std::string> fuzzSeeds()
{
    return {"<BOMTemplate version=\"5\"><CSS Type=\"QString\">p {}</CSS><categories "
            "Type=\"QVariantList\"><Element>"
            "<heading Type=\"QString\">M</heading><isMiscCategory Type=\"bool\" Value=\"true\"/><references "
            "Type=\"QStringList\"><Element Type=\"QString\">*</Element></references></Element></categories>"
            "<fields Type=\"QVariantList\"><Element><fieldName Type=\"QString\">V</fieldName><precision "
            "Type=\"int\" "
            "Value=\"2\"/></Element></fields></BOMTemplate>",
            "<?xml version=\"1.0\"?><!DOCTYPE x [<!ENTITY a \"b\">]><BOMTemplate version=\"2\"><CSS>&a;</CSS>"
            "<x Type=\"QVariantMap\"><y Type=\"int\" Value=\"1\"/></x></BOMTemplate>"};
}

std::vector<std::string> fuzzWords()
{
    return {"<",       ">",           "/>",           "</Element>",  "<Element>", "Type=\"",
            "QString", "QVariantMap", "QVariantList", "QStringList", "Value=\"",  "version=\"",
            "-1",      "99999999999", "&#0;",         "<![CDATA[",   "]]>",       "<!--"};
}
