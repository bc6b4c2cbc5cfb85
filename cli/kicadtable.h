// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

class LoadedDesign;

/// The headings that KiCad puts over the columns of the bills of a project: its settings give each field a
/// label of the user's own.
class KicadTable final
{
public:
    KicadTable() = default;
    /// From the settings in the project of the design; without any there are no labels.
    explicit KicadTable(const LoadedDesign &design);

    /// The labels of the references.
    [[nodiscard]] QStringList referenceLabels() const;
    /// The fields under the headings of a table, when they are those of one of the settings in their order:
    /// KiCad has written it.
    [[nodiscard]] std::optional<QStringList> fieldsOf(const QStringList &headings) const;
    /// The field that all settings which have such a label mean by it; empty when there is none.
    [[nodiscard]] QString fieldOf(const QString &label) const;

    /// Whether a field is none of the parts but what KiCad itself knows: quantity, number of the item, marks.
    [[nodiscard]] static bool isOwnField(const QString &field);
    /// The same for a heading: those that KiCad gives such fields, and what people call them.
    [[nodiscard]] static bool isOwnHeading(const QString &heading);
    /// "Do not populate", which is a property as well.
    [[nodiscard]] static bool isNotFittedField(const QString &field);
    /// What KiCad writes there for a part that is not fitted; nothing for others.
    [[nodiscard]] static QString notFittedMark() { return QStringLiteral("DNP"); }

    /// What KiCad writes for a line whose parts have these texts.
    [[nodiscard]] static QString listed(QStringList texts);
    /// The text as KiCad shows it elsewhere: "{slash}" stands for "/" in its files, and in its bills.
    [[nodiscard]] static QString withoutBraces(const QString &text);

private:
    struct Column
    {
        QString field;
        QString label;
    };
    /// The shown columns of each of the settings.
    QList<QList<Column>> m_settings;
};
