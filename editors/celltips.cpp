// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "editors/celltips.h"

#include "core/bompart.h"
#include "core/bompartsdatabase.h"
#include "core/propertyassignments.h"
#include "editors/cellcontext.h"

#include <QCoreApplication>
#include <QMap>

namespace {

/// More lines, and longer ones, make a tip that nobody reads.
constexpr qsizetype mostLines = 12;
constexpr qsizetype longestLine = 90;
/// Longer texts may not fit into their column.
constexpr qsizetype hardlySeenWhole = 30;

struct Tips
{
    Q_DECLARE_TR_FUNCTIONS(CellTips)
};

QString shortened(const QString &text)
{
    return text.size() > longestLine ? text.left(longestLine - 3) + QStringLiteral("...") : text;
}

QString joined(QStringList lines)
{
    const qsizetype left = lines.size() - mostLines;
    if (left > 0) {
        lines.resize(mostLines);
        lines.append(Tips::tr("... and %n more", nullptr, int(left)));
    }
    return lines.join(u'\n');
}

QString orEmpty(const QString &text)
{
    return text.isEmpty() ? Tips::tr("(empty)") : text;
}

QString shown(const CellContext &context, const QString &property, const QString &stored)
{
    return orEmpty(DisplayConversion(context.database->propertyTypes().type(property))(stored));
}

/// What is pending for one part; nothing where nothing is.
QStringList editTip(const CellContext &context, const QString &reference, const PropertyColumn &column)
{
    const PendingEdit *edit =
        context.assignments ? context.assignments->edit(reference, column.key) : nullptr;
    if (!edit) {
        return {};
    }
    QStringList lines;
    if (edit->conflict != EditConflict::None) {
        lines << Tips::tr("%1: in conflict, the text changed in the design meanwhile")
                     .replace(QStringLiteral("%1"), reference)
              << Tips::tr("Now: ") + shown(context, column.property, edit->present)
              << Tips::tr("Before: ") + shown(context, column.property, edit->before)
              << Tips::tr("Your edit: ") + orEmpty(edit->value);
    } else {
        lines << reference + Tips::tr(": not written yet")
              << Tips::tr("In the design: ") + shown(context, column.property, edit->before)
              << Tips::tr("Your edit: ") + orEmpty(edit->value);
    }
    return lines;
}

/// The texts of a row whose parts differ, each with the references that have it.
QStringList differentTexts(const CellContext &context, const PropertyRow &row, const PropertyColumn &column)
{
    QMap<QString, QStringList> references;
    for (const QString &reference : row.references) {
        const PendingEdit *edit =
            context.assignments ? context.assignments->edit(reference, column.key) : nullptr;
        references[edit ? edit->value : context.database->property(reference, column.property)] << reference;
    }
    QStringList lines;
    for (auto it = references.cbegin(); it != references.cend(); ++it) {
        lines << orEmpty(it.key()) + QStringLiteral(": ") + it->join(QStringLiteral(", "));
    }
    return lines;
}

QStringList shortenedAll(QStringList lines)
{
    for (QString &line : lines) {
        line = shortened(line);
    }
    return lines;
}

} // namespace

QString propertyTip(const CellContext &context, const PropertyRow &row, size_t columnNumber)
{
    const PropertyColumn &column = context.rows.columns()[columnNumber];
    const PropertyCell &cell = row.cells[columnNumber];
    if (!context.database) {
        return {};
    }
    QStringList lines;
    if (cell.isDifferent) {
        lines << differentTexts(context, row, column);
    }
    if (cell.isPending && (cell.isInConflict || !cell.isDifferent)) {
        for (const QString &reference : row.references) {
            lines << editTip(context, reference, column);
            if (lines.size() > mostLines) {
                break;
            }
        }
    }
    if (lines.isEmpty() && context.rows.isMissing(row, columnNumber)) {
        lines << Tips::tr("Required, and empty");
    }
    if (lines.isEmpty() && !column.isEditable) {
        lines << Tips::tr("Cannot be edited here");
    }
    if (lines.isEmpty() && cell.text.size() > hardlySeenWhole) {
        lines << cell.text;
    }
    return joined(shortenedAll(lines));
}

QString referenceTip(const CellContext &context, const PropertyRow &row)
{
    const auto *part = context.database
                           ? dynamic_cast<const BOMPart *>(context.database->part(row.firstReference()))
                           : nullptr;
    if (part) {
        return Tips::tr("BOM Part of: %1").replace(QStringLiteral("%1"), part->parentReference());
    }
    return Tips::tr("Navigate to: %1").replace(QStringLiteral("%1"), shortened(row.referenceText));
}

QString linksTip(const CellContext &context, const PropertyRow &row)
{
    QStringList lines;
    for (const QString &reference : row.references) {
        const QMap<QString, QString> links =
            context.database ? context.database->links(reference) : QMap<QString, QString>();
        for (auto it = links.cbegin(); it != links.cend(); ++it) {
            lines << reference + QStringLiteral(", ") + it.key() + QStringLiteral(": ") + *it;
        }
    }
    return joined(shortenedAll(lines));
}
