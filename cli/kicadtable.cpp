// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/kicadtable.h"

#include "standalone/loadeddesign.h"

#include <QHash>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>

namespace {

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
    const designs::ProjectBom &bom = design.design().projectBom();
    for (const designs::BomSettings &settings : QList{bom.current} + bom.presets) {
        QList<Column> columns;
        for (const designs::BomSettings::Field &field : settings.fields) {
            if (field.isShown) {
                columns.append({field.name, field.label.isEmpty() ? field.name : field.label});
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
