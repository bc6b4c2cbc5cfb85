// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "editors/cellcontext.h"
#include "editors/tablewidgetrefitem.h"

#include <optional>

/// The cell of a field. It has no text of its own but that of its row; one that is set stays only until it is
/// recorded as an edit, see dropTyped().
class PropertyItem final : public QTableWidgetItem
{
public:
    PropertyItem(const CellContext *context, PropertyRow *row, int column);

    [[nodiscard]] QVariant data(int role) const override;
    [[nodiscard]] bool operator<(const QTableWidgetItem &other) const override;

    [[nodiscard]] PropertyRow *propertyRow() const { return m_row; }
    [[nodiscard]] const PropertyColumn &column() const { return m_context->rows.columns()[m_column]; }
    [[nodiscard]] const PropertyCell &cell() const { return m_row->cells[m_column]; }
    [[nodiscard]] int fieldColumn() const { return int(m_column); }
    /// A text that was set and is not recorded.
    [[nodiscard]] std::optional<QString> typed() const;
    void dropTyped();

private:
    [[nodiscard]] QVariant foreground() const;

    const CellContext *m_context;
    PropertyRow *m_row;
    quint32 m_column;
};

/// The references of a row.
class ReferenceItem final : public TableWidgetRefItem
{
public:
    ReferenceItem(const CellContext *context, PropertyRow *row);

    [[nodiscard]] QVariant data(int role) const override;
    [[nodiscard]] PropertyRow *propertyRow() const { return m_row; }

private:
    const CellContext *m_context;
    PropertyRow *m_row;
};

/// Another text about a row, which cannot be edited: its category or the number of its links.
class RowTextItem final : public QTableWidgetItem
{
public:
    enum class Content
    {
        Category,
        Links
    };

    RowTextItem(const CellContext *context, PropertyRow *row, Content content);

    [[nodiscard]] QVariant data(int role) const override;
    [[nodiscard]] bool operator<(const QTableWidgetItem &other) const override;

private:
    [[nodiscard]] QString text() const;

    const CellContext *m_context;
    PropertyRow *m_row;
    Content m_content;
};
