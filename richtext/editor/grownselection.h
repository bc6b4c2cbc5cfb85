// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QMimeData>
#include <QTextDocumentFragment>

/// What is copied of a document with a table in pieces, see GrowingTable: text and HTML as if it were one
/// table. They are made when they are asked for.
class GrownSelection final : public QMimeData
{
    Q_OBJECT

public:
    explicit GrownSelection(const QTextDocumentFragment &selection)
        : m_selection(selection)
    {
    }

    [[nodiscard]] QStringList formats() const override;
    [[nodiscard]] bool hasFormat(const QString &format) const override;

protected:
    [[nodiscard]] QVariant retrieveData(const QString &format, QMetaType type) const override;

private:
    [[nodiscard]] QString plainText() const;
    [[nodiscard]] QString markup() const;

    QTextDocumentFragment m_selection;
};
