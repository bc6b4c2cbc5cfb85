// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

class QCheckBox;
class QComboBox;
class QWidget;

/// How values of a style sheet are shown in simple fields.
namespace stylefields {

/// The values of the entries of a combo box, in their order; the first leaves the property open.
void setEntries(QComboBox *combo, const QStringList &values);
/// Shows the entry of a value; one that has no entry stands there as it is written.
void showEntry(QComboBox *combo, const QString &value);
/// Checks the box when `on`; a property that is open, without a value, is shown as partially checked.
void showTrait(QCheckBox *box, const QString &value, bool on);

/// Of a value of font-weight.
[[nodiscard]] bool isBold(const QString &weight);
/// A value of text-decoration with the line under the text or without it, other lines kept.
[[nodiscard]] QString decoration(const QString &now, bool underline);

/// Turning the wheel over a field scrolls the page instead of changing the value, unless the field has the
/// focus.
void guardFromWheel(QWidget *field);

} // namespace stylefields
