// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>

/// A cell as the file has it.
struct XlsxCell
{
    /// "s" for a text, empty for a number.
    QString type;
    /// The text or number.
    QString value;
    QString formula;
    /// Of numbers; empty for the general format.
    QString format;
};

/// The first sheet of an .xlsx file, read from its XML.
class XlsxFile final
{
public:
    explicit XlsxFile(const QByteArray &bytes);

    /// By their names, such as B7.
    QMap<QString, XlsxCell> cells;
    QMap<QString, QString> links;
    /// The attributes of single elements, such as the range of "autoFilter".
    QMap<QString, QString> attributes;
    QByteArray properties;

    /// The name of the first cell of a column that holds a text, empty when there is none.
    [[nodiscard]] QString find(QChar column, const QString &text) const;
    /// The cells of a row from A on, numbers and texts alike.
    [[nodiscard]] QStringList row(int number) const;
};
