// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// A page for man, in the macros of man(7), which is written from top to bottom. Texts are plain; what they
/// hold of the markup's own signs is escaped.
class ManualPage final
{
public:
    /// Of a program, in section 1. The date is that of SOURCE_DATE_EPOCH, else today's.
    ManualPage(const QString &program, const QString &version);

    void section(const QString &heading);
    void subsection(const QString &heading);
    void paragraph(const QString &text);
    /// How a program is called.
    void usage(const QString &program, const QString &arguments);
    /// The page of another program.
    void reference(const QString &program);
    /// Something with its explanation indented below: bold, and what stands for a value behind it in italics.
    void entry(const QString &term, const QString &value, const QString &text);
    /// Lines that stay as they are.
    void example(const QString &lines);

    [[nodiscard]] const QString &text() const { return m_text; }

private:
    QString m_text;
};
