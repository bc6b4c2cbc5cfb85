// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "tests/views/xlsxfile.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

#include <functional>

namespace {

QString attribute(const QXmlStreamReader &xml, const char *name)
{
    return xml.attributes().value(QLatin1String(name)).toString();
}

void visitElements(const QByteArray &bytes, const std::function<void(QXmlStreamReader &)> &visit)
{
    QXmlStreamReader xml(bytes);
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::StartElement) {
            visit(xml);
        }
    }
    EXPECT_FALSE(xml.hasError()) << qPrintable(xml.errorString());
}

QStringList sharedTexts(const QByteArray &bytes)
{
    QStringList texts;
    visitElements(bytes, [&texts](QXmlStreamReader &xml) {
        if (xml.name() == QLatin1String("t")) {
            texts.append(xml.readElementText());
        }
    });
    return texts;
}

/// The number format of each cell style.
QStringList numberFormats(const QByteArray &bytes)
{
    QMap<QString, QString> codes{{QStringLiteral("0"), {}},
                                 {QStringLiteral("49"), QStringLiteral("@")},
                                 {QStringLiteral("2"), QStringLiteral("0.00")}};
    QStringList formats;
    bool isCellStyle = false;
    visitElements(bytes, [&](QXmlStreamReader &xml) {
        if (xml.name() == QLatin1String("numFmt")) {
            codes.insert(attribute(xml, "numFmtId"), attribute(xml, "formatCode"));
        } else if (xml.name() == QLatin1String("cellXfs") || xml.name() == QLatin1String("cellStyles")) {
            isCellStyle = xml.name() == QLatin1String("cellXfs");
        } else if (isCellStyle && xml.name() == QLatin1String("xf")) {
            formats.append(codes.value(attribute(xml, "numFmtId"), QStringLiteral("unknown")));
        }
    });
    return formats;
}

} // namespace

XlsxFile::XlsxFile(const QByteArray &bytes)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("file.xlsx")));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush());
    EXPECT_EQ(
        QProcess::execute(QStringLiteral("python3"), {QStringLiteral("-m"), QStringLiteral("zipfile"),
                                                      QStringLiteral("-e"), file.fileName(), folder.path()}),
        0);
    const auto part = [&folder](const char *name) {
        QFile content(folder.filePath(QLatin1String(name)));
        return content.open(QIODevice::ReadOnly) ? content.readAll() : QByteArray("<none/>");
    };
    properties = part("docProps/core.xml");
    const QStringList texts = sharedTexts(part("xl/sharedStrings.xml"));
    const QStringList formats = numberFormats(part("xl/styles.xml"));
    QMap<QString, QString> targets;
    visitElements(part("xl/worksheets/_rels/sheet1.xml.rels"), [&](QXmlStreamReader &xml) {
        targets.insert(attribute(xml, "Id"), attribute(xml, "Target"));
    });
    XlsxCell *cell = nullptr;
    visitElements(part("xl/worksheets/sheet1.xml"), [&](QXmlStreamReader &xml) {
        const QString name = xml.name().toString();
        for (const QXmlStreamAttribute &one : xml.attributes()) {
            attributes.insert(name + u'.' + one.name().toString(), one.value().toString());
        }
        if (name == QLatin1String("c")) {
            cell = &cells[attribute(xml, "r")];
            cell->type = attribute(xml, "t");
            cell->format = formats.value(attribute(xml, "s").toInt());
        } else if (name == QLatin1String("f")) {
            cell->formula = xml.readElementText();
        } else if (name == QLatin1String("v")) {
            const QString value = xml.readElementText();
            cell->value = cell->type.isEmpty() ? value : texts.value(value.toInt());
        } else if (name == QLatin1String("hyperlink")) {
            links.insert(attribute(xml, "ref"), targets.value(attribute(xml, "r:id")));
        }
    });
}

QString XlsxFile::find(QChar column, const QString &text) const
{
    for (auto it = cells.cbegin(); it != cells.cend(); ++it) {
        if (it.key().startsWith(column) && it->value == text) {
            return it.key();
        }
    }
    return {};
}

QStringList XlsxFile::row(int number) const
{
    QStringList row;
    for (char16_t column = u'A'; cells.contains(QChar(column) + QString::number(number)); ++column) {
        row.append(cells.value(QChar(column) + QString::number(number)).value);
    }
    return row;
}
