// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "views/report/servicebill.h"

#include "core/bompartsdatabase.h"
#include "core/reference.h"
#include "host/framework/hostui.h"
#include "views/report/asciireport.h"
#include "views/report/assemblyservice.h"
#include "views/report/csvtext.h"
#include "views/report/spreadsheet.h"

#include <QHash>

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

using Content = ServiceColumn::Content;
using Parts = std::vector<const Part *>;

/// KiCad has "~" for nothing.
QString cleaned(const QString &text)
{
    const QString line = inOneLine(text).trimmed();
    return line == u'~' ? QString() : line;
}

/// Whether a text names a part, and is not what people write for none.
bool saysNumber(const QString &text)
{
    static const QStringList none{QString(),
                                  QStringLiteral("-"),
                                  QStringLiteral("0"),
                                  QStringLiteral("?"),
                                  QStringLiteral("n/a"),
                                  QStringLiteral("na"),
                                  QStringLiteral("none"),
                                  QStringLiteral("tbd")};
    return !none.contains(text, Qt::CaseInsensitive);
}

QString withoutLibrary(const QString &footprint)
{
    const QString name = footprint.section(u':', 1);
    return name.isEmpty() ? footprint : name;
}

/// What a column says of one part; empty where it depends on the row.
class PartTexts final
{
public:
    PartTexts(const BOMPartsDatabase &database, const AssemblyService &service, const QStringList &apart)
        : m_service(service)
        , m_footprint(QStringLiteral("PACKAGE"), &database.propertyTypes())
    {
        for (const ServiceColumn &column : service.columns) {
            m_columns.emplace_back(column.text, &database.propertyTypes());
        }
        for (const QString &name :
             QStringList{valueProperty(), QStringLiteral("PACKAGE")} + service.apart + apart) {
            m_apart.emplace_back(name, &database.propertyTypes());
        }
    }

    [[nodiscard]] QString text(const Part &part, qsizetype column) const
    {
        const ServiceColumn &asked = m_service.columns.at(column);
        switch (asked.content) {
        case Content::Value:
            return cleaned(part.value());
        case Content::Footprint:
            return withoutLibrary(cleaned(part.property(m_footprint)));
        case Content::Property:
            return cleaned(part.property(m_columns[size_t(column)]));
        case Content::Text:
            return asked.text;
        default:
            return {};
        }
    }

    /// What the columns say of a part.
    [[nodiscard]] QStringList shown(const Part &part) const
    {
        QStringList texts;
        for (qsizetype column = 0; column < m_service.columns.size(); ++column) {
            texts << text(part, column);
        }
        return texts;
    }

    /// What the parts of a row have in common besides.
    [[nodiscard]] QStringList hidden(const Part &part) const
    {
        QStringList texts;
        for (const PropertyQuery &property : m_apart) {
            texts << cleaned(part.property(property));
        }
        return texts;
    }

    /// The first of these in which two parts differ.
    [[nodiscard]] QString difference(const Part &part, const Part &other) const
    {
        const QStringList texts = hidden(part);
        const QStringList others = hidden(other);
        const auto differing = std::mismatch(texts.begin(), texts.end(), others.begin()).first;
        return differing == texts.end() ? QString() : m_apart[size_t(differing - texts.begin())].name();
    }

private:
    const AssemblyService &m_service;
    PropertyQuery m_footprint;
    std::vector<PropertyQuery> m_columns;
    std::vector<PropertyQuery> m_apart;
};

/// By their references.
Parts fittedParts(const BOMPartsDatabase &database)
{
    std::vector<std::pair<SplitReference, const Part *>> order;
    for (const Part *part : database.parts()) {
        if (!part->isNotFitted()) {
            order.emplace_back(splitReference(part->reference()), part);
        }
    }
    std::stable_sort(order.begin(), order.end(),
                     [](const auto &a, const auto &b) { return compareReferences(a.first, b.first) < 0; });
    Parts parts;
    std::transform(order.begin(), order.end(), std::back_inserter(parts),
                   [](const auto &entry) { return entry.second; });
    return parts;
}

/// In the order of their first parts.
std::vector<Parts> groupsOf(const Parts &parts, const PartTexts &texts)
{
    std::vector<Parts> groups;
    QHash<QStringList, size_t> known;
    for (const Part *part : parts) {
        const QStringList key = texts.shown(*part) + texts.hidden(*part);
        const auto found = known.constFind(key);
        if (found == known.cend()) {
            known.insert(key, groups.size());
            groups.push_back({part});
        } else {
            groups[*found].push_back(part);
        }
    }
    return groups;
}

QList<ServiceBill::AlikeRows> alikeRows(const std::vector<Parts> &groups, const PartTexts &texts)
{
    QList<ServiceBill::AlikeRows> alike;
    QHash<QStringList, const Part *> known;
    for (const Parts &group : groups) {
        const Part *part = group.front();
        const Part *&first = known[texts.shown(*part)];
        if (first) {
            alike.append({first->reference(), part->reference(), texts.difference(*first, *part)});
        } else {
            first = part;
        }
    }
    return alike;
}

QList<QStringList> clashesOf(const Parts &parts)
{
    QList<QStringList> clashes;
    QHash<QString, QStringList> byFolded;
    for (const Part *part : parts) {
        byFolded[part->reference().toCaseFolded()] << part->reference();
    }
    for (const Part *part : parts) {
        const QStringList same = byFolded.value(part->reference().toCaseFolded());
        if (same.size() > 1 && same.first() == part->reference()) {
            clashes << same;
        }
    }
    return clashes;
}

QStringList referencesOf(std::span<const Part *const> parts)
{
    QStringList references;
    for (const Part *part : parts) {
        references << part->reference();
    }
    return references;
}

QStringList rowOf(std::span<const Part *const> parts, const AssemblyService &service, const PartTexts &texts,
                  qsizetype number)
{
    QStringList row;
    for (qsizetype i = 0; i < service.columns.size(); ++i) {
        switch (service.columns.at(i).content) {
        case Content::Designators:
            row << referencesOf(parts).join(service.separator);
            break;
        case Content::Quantity:
            row << QString::number(parts.size());
            break;
        case Content::ItemNumber:
            row << QString::number(number);
            break;
        default:
            row << texts.text(*parts.front(), i);
        }
    }
    return row;
}

} // namespace

ServiceBill serviceBill(const BOMPartsDatabase &database, const AssemblyService &service,
                        const QStringList &apart)
{
    const PartTexts texts(database, service, apart);
    const Parts parts = fittedParts(database);
    ServiceBill bill;
    bill.title = database.designTitle();
    bill.author = database.designAuthor();
    for (const ServiceColumn &column : service.columns) {
        bill.headings << column.heading;
        bill.isNumber << column.isNumber();
    }
    const std::vector<Parts> groups = groupsOf(parts, texts);
    bill.alike = alikeRows(groups, texts);
    for (const Parts &group : groups) {
        const size_t most = service.mostDesignators ? size_t(*service.mostDesignators) : group.size();
        for (size_t first = 0; first < group.size(); first += most) {
            const auto rowParts = std::span(group).subspan(first, std::min(most, group.size() - first));
            bill.rows << rowOf(rowParts, service, texts, bill.rows.size() + 1);
        }
    }
    for (const Part *part : parts) {
        if (service.needed && !saysNumber(texts.text(*part, *service.needed))) {
            bill.withoutNumber << part->reference();
        }
    }
    bill.clashes = service.ignoresLetterCase ? clashesOf(parts) : QList<QStringList>();
    return bill;
}

QByteArray serviceCsv(const ServiceBill &bill)
{
    CsvText csv({u',', false}, CsvQuotes::Doubled);
    for (const QStringList &row : QList<QStringList>{bill.headings} + bill.rows) {
        for (const QString &cell : row) {
            csv.addCell(cell);
        }
        csv.endRow();
    }
    return csv.bytes();
}

SpreadsheetReport serviceSpreadsheet(const ServiceBill &bill)
{
    Spreadsheet sheet({bill.title, bill.author, HostUi::current().now()});
    sheet.beginSheet(QStringLiteral("BOM"));
    for (int column = 0; column < int(bill.headings.size()); ++column) {
        sheet.text(column, bill.headings.at(column), CellLook::Heading);
    }
    for (const QStringList &row : bill.rows) {
        sheet.nextRow();
        for (int column = 0; column < int(row.size()); ++column) {
            if (bill.isNumber.at(column)) {
                sheet.number(column, row.at(column).toDouble(), CellLook::Quantity);
            } else {
                sheet.text(column, row.at(column), CellLook::Cell, Spreadsheet::formatOf(row.at(column)));
            }
        }
    }
    sheet.freezeRow(0, int(bill.headings.size()) - 1, sheet.row());
    const QByteArray file = sheet.bytes();
    return {file, sheet.problem(), sheet.notices()};
}
