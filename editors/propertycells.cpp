// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "editors/propertycells.h"

#include "editors/bomtablewidget.h"
#include "editors/celltips.h"

#include <QCoreApplication>

namespace {

/// Plain texts, whatever they begin with: a tip that looks like markup would be shown as such.
QVariant plainTip(const QString &tip)
{
    return tip.isEmpty() ? QVariant()
                         : QVariant(QStringLiteral("<span style=\"white-space:pre\">") + tip.toHtmlEscaped() +
                                    QStringLiteral("</span>"));
}

} // namespace

PropertyItem::PropertyItem(const CellContext *context, PropertyRow *row, int column)
    : m_context(context)
    , m_row(row)
    , m_column(quint32(column))
{
    if (!this->column().isEditable) {
        setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsDragEnabled);
    }
}

QVariant PropertyItem::data(int role) const
{
    switch (role) {
    case BOMTableWidget::SeveralTextsRole:
        return cell().isDifferent;
    case Qt::DisplayRole:
        return typed().value_or(cell().shownText());
    case Qt::EditRole:
        return typed().value_or(cell().text);
    case Qt::ForegroundRole:
        return foreground();
    case Qt::BackgroundRole: {
        const QVariant highlight = QTableWidgetItem::data(role);
        const bool isHighlighted = highlight.value<QBrush>().color().alpha() > 0 && highlight.isValid();
        if (!isHighlighted && m_context->rows.isMissing(*m_row, m_column)) {
            return m_context->look.missing;
        }
        return highlight;
    }
    case Qt::FontRole:
        return m_row->isBOMOnly ? QVariant(m_context->look.bomOnly) : QVariant();
    case Qt::DecorationRole:
        return cell().isInConflict ? QVariant(m_context->look.conflict) : QVariant();
    case Qt::ToolTipRole:
        return plainTip(propertyTip(*m_context, *m_row, m_column));
    case Qt::AccessibleDescriptionRole:
        return propertyTip(*m_context, *m_row, m_column);
    default:
        return QTableWidgetItem::data(role);
    }
}

QVariant PropertyItem::foreground() const
{
    const QVariant highlight = QTableWidgetItem::data(Qt::BackgroundRole);
    if (highlight.isValid() && highlight.value<QBrush>().color().alpha() > 0) {
        // The highlight of a drop target is light on every theme.
        return QBrush(cell().isPending ? QColor(10, 10, 220) : QColor(Qt::black));
    }
    if (cell().isPending) {
        return m_context->look.blue;
    }
    return cell().isDifferent || !column().isEditable ? QVariant(m_context->look.grey) : QVariant();
}

bool PropertyItem::operator<(const QTableWidgetItem &other) const
{
    const auto *item = dynamic_cast<const PropertyItem *>(&other);
    return item ? m_context->rows.isBefore(*m_row, *item->m_row, m_column)
                : QTableWidgetItem::operator<(other);
}

std::optional<QString> PropertyItem::typed() const
{
    const QVariant own = QTableWidgetItem::data(Qt::EditRole);
    return own.isValid() ? std::optional(own.toString()) : std::nullopt;
}

void PropertyItem::dropTyped()
{
    setData(Qt::EditRole, QVariant());
}

ReferenceItem::ReferenceItem(const CellContext *context, PropertyRow *row)
    : m_context(context)
    , m_row(row)
{
    setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled);
}

QVariant ReferenceItem::data(int role) const
{
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return m_row->referenceText;
    case Qt::UserRole:
        return m_row->firstReference();
    case Qt::FontRole:
        return m_row->isBOMOnly ? m_context->look.bomOnlyLink : m_context->look.link;
    case Qt::ToolTipRole:
        return referenceTip(*m_context, *m_row);
    default:
        return QTableWidgetItem::data(role);
    }
}

RowTextItem::RowTextItem(const CellContext *context, PropertyRow *row, Content content)
    : m_context(context)
    , m_row(row)
    , m_content(content)
{
    setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled);
}

QString RowTextItem::text() const
{
    if (m_content == Content::Category) {
        return m_row->category;
    }
    return m_row->links == 0 ? QString()
                             : QCoreApplication::translate("BOMDataView", "%1 Links")
                                   .replace(QStringLiteral("%1"), QString::number(m_row->links));
}

QVariant RowTextItem::data(int role) const
{
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return text();
    case Qt::ForegroundRole:
        return m_context->look.grey;
    case Qt::FontRole:
        if (m_content == Content::Links) {
            return m_context->look.link;
        }
        return m_row->isBOMOnly ? QVariant(m_context->look.bomOnly) : QVariant();
    case Qt::ToolTipRole:
        return m_content == Content::Links ? plainTip(linksTip(*m_context, *m_row)) : QVariant();
    default:
        return QTableWidgetItem::data(role);
    }
}

bool RowTextItem::operator<(const QTableWidgetItem &other) const
{
    const auto *item = dynamic_cast<const RowTextItem *>(&other);
    if (!item) {
        return QTableWidgetItem::operator<(other);
    }
    const int order = m_content == Content::Links
                          ? int(m_row->links > item->m_row->links) - int(m_row->links < item->m_row->links)
                          : m_row->category.compare(item->m_row->category);
    return order != 0 ? order < 0 : m_row->number < item->m_row->number;
}
