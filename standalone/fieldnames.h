// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

/// The form in which property names are compared: without letter case, blanks, "_", "-", "." and with "#",
/// "No", "Nr", "Num", "Number", "PN" and "P/N" as the one word "#". "-" and "." before a digit and "-" at
/// either end stay, and a blank between two digits. Empty for nothing but signs that are left out.
[[nodiscard]] QString plainFieldName(const QString &name);

/// What names of properties can mean, such as the maker's part number.
struct FieldMeaning
{
    enum class Use
    {
        /// A look-up reads one name for another.
        Read,
        /// Names are listed together, and each is read by itself.
        Listed,
        /// Its names are no fields for people.
        Ignored
    };

    /// For programs: letters, digits and hyphens.
    QString key;
    /// For people.
    QString title;
    Use use = Use::Read;

    bool operator==(const FieldMeaning &) const = default;
};

/// What one name means.
struct FieldSense
{
    /// Index into FieldNames::meanings(); nothing when none is certain.
    std::optional<std::size_t> meaning;
    /// What it may mean where none is certain, likewise.
    std::vector<std::size_t> proposed;
    /// Of several names of one meaning the one with the smallest rank is the best.
    std::size_t rank = 0;

    bool operator==(const FieldSense &) const = default;
};

/// A name with what is known of it.
struct KnownName
{
    QString plain;
    FieldSense sense;
    /// See FieldNames::isOwn() and isExact().
    bool isOwn = false;
    bool isExact = false;
};

/// The table of names that mean the same: the one that comes with the program, and those that extend it. A
/// later one decides anew about the names that it has. The form of a table stands in docs/fields.md.
class FieldNames final
{
public:
    /// Reads a table, `file` is its name in messages. Gives what is wrong with it, "FILE:LINE: text" each;
    /// such lines are passed over.
    [[nodiscard]] QStringList add(const QByteArray &text, const QString &file);

    [[nodiscard]] const std::vector<FieldMeaning> &meanings() const { return m_meanings; }
    [[nodiscard]] FieldSense senseOf(const QString &name) const;
    [[nodiscard]] KnownName known(const QString &name) const;
    /// How well a property of another name answers for the one that is asked for: the smallest rank is the
    /// best. Nothing when it does not mean the same.
    [[nodiscard]] std::optional<std::size_t> rank(const KnownName &asked, const KnownName &other) const;
    /// Whether names of another spelling are read for this one whatever names a design has. Where its meaning
    /// is not known, a design that has the name itself means another thing by another spelling.
    [[nodiscard]] bool hasKnownMeaning(const KnownName &name) const;

    /// Whether a property of this name is found by its own name only: what the program itself gives a
    /// meaning, and CODE and COST, which the default template promises to read as they are.
    [[nodiscard]] static bool isExact(const QString &name);
    /// Whether a property of this name is never read for another one.
    [[nodiscard]] static bool isOwn(const QString &name);

private:
    friend class FieldTableReader;

    struct Entry
    {
        std::size_t meaning = 0;
        bool isCertain = false;
        /// The table that has it: 0 for the first that was read.
        std::size_t table = 0;
        int line = 0;
        std::size_t rank = 0;
    };
    struct Pattern
    {
        QString text;
        Entry entry;
        /// What stands between the "*".
        QStringList pieces = {};
    };

    [[nodiscard]] static bool matches(const Pattern &pattern, QStringView text);

    [[nodiscard]] std::optional<FieldSense> listed(const QString &plain) const;
    [[nodiscard]] std::optional<FieldSense> byWord(const QString &plain) const;
    [[nodiscard]] FieldSense byPattern(const QString &name, const QString &plain) const;

    std::vector<FieldMeaning> m_meanings;
    /// By the plain name. A name that means nothing has no entries.
    QHash<QString, std::vector<Entry>> m_names;
    /// The words that make a number, by the plain word, sorted by length: the longest first.
    std::vector<Pattern> m_words;
    /// Names with "*".
    std::vector<Pattern> m_patterns;
    std::size_t m_tables = 0;
};
