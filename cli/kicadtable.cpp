// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/kicadtable.h"

#include "files/regularfile.h"
#include "standalone/companionfiles.h"
#include "standalone/loadeddesign.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>

namespace {

constexpr qint64 mostBytes = qint64(64) * 1024 * 1024;
/// As many presets as people make, and more.
constexpr qsizetype mostSettings = 1000;

/// The letters of a heading in one case, "#" too.
QString plainHeading(const QString &heading)
{
    QString plain;
    for (const QChar c : heading.toCaseFolded()) {
        if (c.isLetterOrNumber() || c == u'#') {
            plain += c;
        }
    }
    return plain;
}

} // namespace

KicadTable::KicadTable(const LoadedDesign &design)
{
    const QString path = projectFileOf(design);
    QString reason;
    const auto bytes = path.isEmpty() ? std::nullopt : contentOfRegularFile(path, mostBytes, &reason);
    if (!bytes || bytes->size() > mostBytes) {
        return;
    }
    const QJsonObject schematic =
        QJsonDocument::fromJson(*bytes).object().value(QLatin1String("schematic")).toObject();
    QJsonArray all = schematic.value(QLatin1String("bom_presets")).toArray();
    all.prepend(schematic.value(QLatin1String("bom_settings")));
    for (qsizetype i = 0; i < std::min(all.size(), mostSettings); ++i) {
        QList<Column> columns;
        const QJsonArray fields = all.at(i).toObject().value(QLatin1String("fields_ordered")).toArray();
        for (const auto entry : fields) {
            const QJsonObject field = entry.toObject();
            const QString name = field.value(QLatin1String("name")).toString();
            const QString label = field.value(QLatin1String("label")).toString();
            if (field.value(QLatin1String("show")).toBool() && !name.isEmpty()) {
                columns.append({name, label.isEmpty() ? name : label});
            }
        }
        m_settings.append(columns);
    }
}

QStringList KicadTable::referenceLabels() const
{
    QStringList labels;
    for (const QList<Column> &columns : m_settings) {
        for (const Column &column : columns) {
            if (column.field == QLatin1String("Reference")) {
                labels << column.label;
            }
        }
    }
    labels.removeDuplicates();
    return labels;
}

std::optional<QStringList> KicadTable::fieldsOf(const QStringList &headings) const
{
    for (const QList<Column> &columns : m_settings) {
        QStringList fields;
        QStringList labels;
        for (const Column &column : columns) {
            fields << column.field;
            labels << column.label.trimmed();
        }
        if (labels == headings) {
            return fields;
        }
    }
    return std::nullopt;
}

QString KicadTable::fieldOf(const QString &label) const
{
    QString field;
    for (const QList<Column> &columns : m_settings) {
        for (const Column &column : columns) {
            if (column.label.compare(label, Qt::CaseInsensitive) == 0) {
                if (!field.isEmpty() && field != column.field) {
                    return {};
                }
                field = column.field;
            }
        }
    }
    return field;
}

bool KicadTable::isOwnField(const QString &field)
{
    return (field.startsWith(QLatin1String("${")) && field.endsWith(u'}')) ||
           field == QLatin1String("Quantity");
}

bool KicadTable::isOwnHeading(const QString &heading)
{
    static const QSet<QString> headings = {
        QStringLiteral("#"),
        QStringLiteral("item"),
        QStringLiteral("item#"),
        QStringLiteral("itemno"),
        QStringLiteral("itemnumber"),
        QStringLiteral("qty"),
        QStringLiteral("qnty"),
        QStringLiteral("quantity"),
        QStringLiteral("quantityperpcb"),
        QStringLiteral("dnp"),
        QStringLiteral("excludefrombom"),
        QStringLiteral("excludefromboard"),
        QStringLiteral("excludefromsim"),
        QStringLiteral("excludefromsimulation"),
    };
    return isOwnField(heading) || headings.contains(plainHeading(heading));
}

bool KicadTable::isNotFittedField(const QString &field)
{
    return field.compare(QLatin1String("DNP"), Qt::CaseInsensitive) == 0;
}

QString KicadTable::listed(QStringList texts)
{
    texts.removeAll(QString());
    texts.sort();
    texts.removeDuplicates();
    return texts.join(u',');
}

QString KicadTable::withoutBraces(const QString &text)
{
    static const QHash<QString, QString> signs = {
        {QStringLiteral("slash"), QStringLiteral("/")},  {QStringLiteral("backslash"), QStringLiteral("\\")},
        {QStringLiteral("lt"), QStringLiteral("<")},     {QStringLiteral("gt"), QStringLiteral(">")},
        {QStringLiteral("colon"), QStringLiteral(":")},  {QStringLiteral("dblquote"), QStringLiteral("\"")},
        {QStringLiteral("quote"), QStringLiteral("'")},  {QStringLiteral("bar"), QStringLiteral("|")},
        {QStringLiteral("comma"), QStringLiteral(",")},  {QStringLiteral("space"), QStringLiteral(" ")},
        {QStringLiteral("dollar"), QStringLiteral("$")}, {QStringLiteral("brace"), QStringLiteral("{")},
    };
    static const QRegularExpression name(QStringLiteral("(?<![$~^_])\\{([a-z]{2,9})\\}"));
    QString plain;
    qsizetype last = 0;
    for (auto found = name.globalMatch(text); found.hasNext();) {
        const QRegularExpressionMatch match = found.next();
        const auto sign = signs.constFind(match.captured(1));
        plain += QStringView(text).sliced(last, match.capturedStart() - last);
        plain += sign == signs.cend() ? match.captured() : *sign;
        last = match.capturedEnd();
    }
    return plain + text.mid(last);
}
