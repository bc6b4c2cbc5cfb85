// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

/// A column of the file that an assembly service takes.
struct ServiceColumn
{
    enum class Content
    {
        Value,
        /// Without the name of its library.
        Footprint,
        Designators,
        Quantity,
        /// Of the row, from 1.
        ItemNumber,
        Property,
        Text
    };

    QString heading;
    Content content = Content::Text;
    /// The name of the property, or the text itself.
    QString text;

    [[nodiscard]] bool isNumber() const
    {
        return content == Content::Quantity || content == Content::ItemNumber;
    }
    bool operator==(const ServiceColumn &) const = default;
};

/// What an assembly service takes as a bill of materials.
struct AssemblyService
{
    /// For people.
    QString title;
    QList<ServiceColumn> columns;
    /// The column with the number by which the service knows a part; an index.
    std::optional<qsizetype> needed;
    /// Of one row.
    std::optional<qsizetype> mostDesignators;
    /// Whether r1 and R1 are one designator to the service.
    bool ignoresLetterCase = false;
    /// Between designators.
    QString separator = QStringLiteral(",");
    /// Properties that parts of one row must agree in besides the columns.
    QStringList apart;

    /// The properties that the columns read.
    [[nodiscard]] QStringList properties() const;
    bool operator==(const AssemblyService &) const = default;
};

/// The description of a service as it was read.
struct ReadService
{
    AssemblyService service;
    /// "FILE:LINE: what is wrong"; empty when nothing is.
    QString problem;
};

/// Reads a description; its form stands in docs/services.md.
[[nodiscard]] ReadService readAssemblyService(const QByteArray &text, const QString &file);
