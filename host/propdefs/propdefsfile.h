// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "host/propdefs/propdef.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

/// The text of a definitions file, line by line, so that comments and order survive a change.
/// A definition is a line `"NAME",KEYWORD`, `"NAME",KEYWORD,"description"` or
/// `"NAME",STRING,"description","A|B|C"` in the section [PROPDEFS], where A, B and C are the values that the
/// property may have; blank lines and lines that begin with ";" or "#" are comments; other sections are kept
/// and not looked at.
class PROPTEXT
{
public:
    PROPTEXT() = default;
    explicit PROPTEXT(QStringList lines)
        : m_lines(std::move(lines))
    {
    }

    /// The text of a file in UTF-8 or, when it is none, Latin-1.
    [[nodiscard]] static PROPTEXT fromBytes(const QByteArray &bytes);
    /// The file again, in the encoding and with the byte-order mark and the line ends that it had; in UTF-8
    /// when Latin-1 lacks a character.
    [[nodiscard]] QByteArray toBytes() const;

    /// Adds a line at the end of a section, which is made when it is missing.
    void add(const QString &section, const QString &line);
    [[nodiscard]] const QStringList &lines() const { return m_lines; }
    [[nodiscard]] bool hasSection(const QString &section) const;

    /// Reads the definitions; each line that is none gives a message "N: ...", N being its line, and so does
    /// each whose list of values is none: that definition counts without the list.
    [[nodiscard]] DIDX definitions(QStringList *problems = nullptr) const;

private:
    QStringList m_lines;
    QString m_lineEnd = QStringLiteral("\n");
    bool m_isLatin1 = false;
    bool m_hasMark = false;
};

/// The file that load_defaultdefs() reads and save_defaultdefs() writes; empty means the shipped definitions
/// only.
void setpropdefsfile(const QString &path);
[[nodiscard]] QString propdefsfile();

/// Reads the definitions of the file, or the shipped ones when there is no such file. False when the file
/// cannot be read, is no ordinary file or larger than 1 MiB; `problems` says why. It also takes one message
/// "FILE:LINE: ..." per bad line, and one when the section [PROPDEFS] is missing.
bool load_defaultdefs(DIDX *index, PROPTEXT *text, QStringList *problems = nullptr);

/// Replaces the file and makes its folder when that is missing; the old file stays when this fails. False on
/// failure, without a file, and for one that is marked read-only.
[[nodiscard]] bool save_defaultdefs(const PROPTEXT &text);

/// Whether there is a file that is marked read-only.
[[nodiscard]] bool isreadonly_defaultdefs();

/// One line of the section [PROPDEFS].
[[nodiscard]] QString format_propdefs(const PROPDEF &definition);
