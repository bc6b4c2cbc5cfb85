// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>

/// A style sheet (CSS) whose rules can be read and changed one declaration at a time. What is not changed
/// stays as it was written, comments and unknown properties included. Text that is no CSS is kept and has no
/// rules.
class StyleSheet final
{
public:
    struct Declaration
    {
        /// In lower case.
        QString property;
        /// As written, without the blanks around it.
        QString value;
    };
    struct Rule
    {
        /// As written, runs of blanks made one: "p.oddfield".
        QString selector;
        /// What the comment before the rule gives as its name after "_H": "Odd Rows". Empty without one.
        QString title;
        QList<Declaration> declarations;
    };

    StyleSheet() = default;
    explicit StyleSheet(const QString &css);

    [[nodiscard]] const QString &text() const { return m_text; }

    /// The rules in the order of the text; rules inside at-rules are not among them.
    [[nodiscard]] QList<Rule> rules() const;

    /// The last value that the rules of a selector give a property; empty when none does.
    [[nodiscard]] QString value(const QString &selector, const QString &property) const;
    /// Puts one declaration in place of those of that property, in the last rule of the selector; a missing
    /// rule is added at the end. An empty value takes the declarations away.
    void setValue(const QString &selector, const QString &property, const QString &value);

    /// What stands between the braces of the last rule of a selector; empty without one.
    [[nodiscard]] QString body(const QString &selector) const;
    /// Puts other declarations into the last rule of a selector; a missing rule is added at the end.
    void setBody(const QString &selector, const QString &body);

private:
    QString m_text;
};
