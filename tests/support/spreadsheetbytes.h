// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>
#include <QtEndian>

#include <utility>

/// An archive of parts as they are, not packed; they cost as little to make as to read.
inline QByteArray archiveBytes(const QList<std::pair<QByteArray, QByteArray>> &parts)
{
    const auto number = [](auto value) {
        QByteArray bytes(sizeof(value), '\0');
        qToLittleEndian(value, bytes.data());
        return bytes;
    };
    const auto checksum = [](const QByteArray &content) {
        quint32 sum = ~0U;
        for (const char c : content) {
            sum ^= quint8(c);
            for (int bit = 0; bit < 8; ++bit) {
                sum = (sum >> 1) ^ ((sum & 1) != 0 ? 0xEDB88320U : 0U);
            }
        }
        return ~sum;
    };
    QByteArray files;
    QByteArray directory;
    for (const auto &[name, content] : parts) {
        const QByteArray about = QByteArray(10, '\0') + number(checksum(content)) +
                                 number(quint32(content.size())) + number(quint32(content.size())) +
                                 number(quint16(name.size())) + QByteArray(2, '\0');
        directory +=
            QByteArray("PK\1\2\0\0", 6) + about + QByteArray(10, '\0') + number(quint32(files.size())) + name;
        files += "PK\3\4" + about + name + content;
    }
    return files + directory + QByteArray("PK\5\6\0\0\0\0", 8) + number(quint16(parts.size())) +
           number(quint16(parts.size())) + number(quint32(directory.size())) + number(quint32(files.size())) +
           QByteArray(2, '\0');
}

/// A workbook with the sheet "Parts", perhaps a sheet "Bill" in front, and its other parts as programs write
/// them.
inline QByteArray xlsxBytes(const QByteArray &sheet, const QByteArray &texts = "<sst/>",
                            const QByteArray &styles = "<styleSheet/>", const QByteArray &bill = {})
{
    const auto relation = [](const char *id, const char *type, const char *target) {
        return QByteArray("<Relationship Id=\"") + id +
               "\" Type=\"http://schemas.openxmlformats.org/officeDocument/2006/relationships/" + type +
               "\" Target=\"" + target + "\"/>";
    };
    return archiveBytes(
        {{"_rels/.rels",
          "<Relationships>" + relation("a", "officeDocument", "xl/workbook.xml") + "</Relationships>"},
         {"xl/workbook.xml",
          "<workbook "
          "xmlns:r=\"http://schemas.openxmlformats.org/officeDocument/2006/relationships\"><sheets>" +
              QByteArray(bill.isEmpty() ? "" : "<sheet name=\"Bill\" sheetId=\"2\" r:id=\"e\"/>") +
              "<sheet name=\"Parts\" sheetId=\"1\" r:id=\"b\"/></sheets></workbook>"},
         {"xl/_rels/workbook.xml.rels", "<Relationships>" + relation("b", "worksheet", "/xl/sheet.xml") +
                                            relation("c", "sharedStrings", "texts.xml") +
                                            relation("d", "styles", "styles.xml") +
                                            relation("e", "worksheet", "/xl/bill.xml") + "</Relationships>"},
         {"xl/texts.xml", texts},
         {"xl/styles.xml", styles},
         {"xl/sheet.xml", sheet},
         {"xl/bill.xml", bill}});
}

/// An OpenDocument spreadsheet with one sheet of these rows.
inline QByteArray odsBytes(const QByteArray &rows)
{
    return archiveBytes(
        {{"content.xml",
          "<o:document-content xmlns:o=\"urn:oasis:names:tc:opendocument:xmlns:office:1.0\" "
          "xmlns:t=\"urn:oasis:names:tc:opendocument:xmlns:table:1.0\" "
          "xmlns:x=\"urn:oasis:names:tc:opendocument:xmlns:text:1.0\"><o:body><o:spreadsheet><t:table "
          "t:name=\"Sheet1\">" +
              rows + "</t:table></o:spreadsheet></o:body></o:document-content>"}});
}
