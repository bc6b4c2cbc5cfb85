// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

/// What editors of one value have in common beside being widgets: a rule which texts are values, blank as a
/// value of its own, and a stored value that the rule would refuse but that stays as it is until something
/// else is entered.
class ValueEditor
{
public:
    ValueEditor() = default;
    ValueEditor(const ValueEditor &) = delete;
    ValueEditor &operator=(const ValueEditor &) = delete;
    virtual ~ValueEditor() = default;

    /// The value, in the form in which the rule writes it; empty for blank. While the text that is shown is
    /// none, such as a lone minus sign, it is the value that was last set.
    [[nodiscard]] QString text() const { return acceptedText().value_or(m_held); }
    /// Shows a value as it is stored, whether the rule accepts it or not.
    void setText(const QString &text);

    /// Enters a text as if the user had typed it to the end; false, and nothing changes, when the rule
    /// refuses it.
    [[nodiscard]] bool enterText(const QString &text);

    /// Whether the text that is shown is a value.
    [[nodiscard]] bool isAcceptable() const { return acceptedText().has_value(); }

    [[nodiscard]] bool isBlank() const { return text().isEmpty(); }
    void setBlank() { setText(QString()); }

    /// Shows the value in the form in which the rule writes it, in place of what was typed.
    void settle() { showText(text()); }
    /// Selects the text, so that typing replaces it.
    virtual void selectText() = 0;

protected:
    [[nodiscard]] virtual QString shownText() const = 0;
    virtual void showText(const QString &text) = 0;
    /// The value that a text stands for when it is entered; nothing for a text that the rule refuses.
    [[nodiscard]] virtual std::optional<QString> valueOf(const QString &text) const = 0;
    /// The same for a text that was typed, part of which may be enough.
    [[nodiscard]] virtual std::optional<QString> typedValueOf(const QString &text) const
    {
        return valueOf(text);
    }

    /// Whether the text that is shown is the value that was set, or became of one that the rule refuses: then
    /// every text must be possible on the way to a value.
    [[nodiscard]] bool holdsForeignText() const { return !valueOf(m_held).has_value(); }
    /// The value that was last set.
    [[nodiscard]] const QString &heldText() const { return m_held; }

private:
    [[nodiscard]] std::optional<QString> acceptedText() const;

    QString m_held;
};
