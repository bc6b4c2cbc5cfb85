// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/csv/referencetokens.h"
#include "designs/textarena.h"

#include <QString>

#include <functional>
#include <optional>
#include <string_view>
#include <vector>

namespace designs {

/// The most references that a table which people hand in may name.
inline constexpr std::size_t mostTableReferences = 2'000'000;

/// What one piece of a cell names: a reference as it stands, or the references from a number to another.
struct ReferenceItem
{
    std::string_view text;
    /// In front of the number of each reference; empty for a reference as it stands.
    std::string_view prefix = {};
    quint64 first = 0;
    quint64 last = 0;
    /// The least number of digits.
    std::size_t width = 0;
    /// "X1-2", which could also be the name of one part.
    bool couldBeName = false;

    [[nodiscard]] std::size_t count() const { return std::size_t(last - first) + 1; }
};

/// Reads the text that names the references of a row or a command: "R1,R4-R7 C3".
///
///     cell  = { part ( "," | ";" | line break ) }
///     part  = { item ( blank | "&" | "+" ) }
///     item  = range | reference | number
///     range = reference mark ( reference | number )
///     mark  = "-" | "–" | ".." | ":" | "~" | "to" | "thru"        blanks around it do not count
///
/// The full-width forms of the signs and the other dashes of Unicode mean the same.
///
/// - A range goes upwards between two references of one prefix, or from a reference to a number: "R1-R4",
///   "R1-4", "X1-1-X1-3". "R01-R12" keeps the width of its numbers; "R08-R9" is an error.
/// - A number alone takes the prefix of the reference before it: "R1,2,5-8". "C17/18/19" and "C17/C18" are a
///   reference each. A cell of numbers without any prefix names parts that are called so.
/// - A hyphen that cannot make a range belongs to the name: "J1-A", "TP-1-2", "J4-1" (downwards), "X1-02"
///   (zeros that the first number lacks). "X1-2" can be either: it is a range unless `isName` says that it is
///   a name. A slash that makes no list of one prefix belongs to the name, too: "U1/A". But what names parts
///   of one kind twice and is neither range nor list is an error: "R1-R3*", "R1/R3A".
/// - A name starts with a letter, "#", "_" or a sign that belongs to a voltage ("+5V"), goes on with these,
///   digits and any of . / ? * $ @ % ' -, and next to a blank, "&" or "+" has a digit or "?" in it: "R1 and
///   R2" is an error and not a part "and", as are "R1to R3" and a line that begins with "-R3". Digits other
///   than 0 to 9 are read only where they end a name: "R１".
/// - A count behind a reference and a blank is an error: "R1 x2", "R1 ×2". "R1 X2" is one where the list has
///   no X1 of its own, see setTakesXForCount(). "N/A" and "none" name no part, and are errors, too.
///
/// Everything else is an error: nothing becomes a reference because it was left over.
class ReferenceCell final
{
public:
    /// Whether a text that could be read as several references is the name of one part.
    using IsName = std::function<bool(std::string_view)>;

    /// References that a file's text does not hold as such are kept in `arena`. `limit` is the most that one
    /// cell may name.
    explicit ReferenceCell(TextArena &arena, IsName isName = {}, std::size_t limit = 100'000)
        : m_arena(arena)
        , m_isName(std::move(isName))
        , m_limit(limit)
    {
    }

    void setNames(IsName isName) { m_isName = std::move(isName); }
    /// Whether the X in "R1 X2" cannot begin the name of a part.
    void setTakesXForCount(bool takes) { m_takesXForCount = takes; }

    /// Reads a cell; false, with the reason in error(), for one that cannot be understood or names too many
    /// references. A blank cell names none and is no error.
    [[nodiscard]] bool read(std::string_view cell);

    /// What the last cell names, in its order, repeated ones included, before any range is made references.
    [[nodiscard]] const std::vector<ReferenceItem> &items() const { return m_items; }
    /// How many references that are.
    [[nodiscard]] std::size_t count() const { return m_count; }
    /// The references one by one. The texts stand in the cell or in the arena.
    [[nodiscard]] std::vector<std::string_view> references();

    [[nodiscard]] const QString &error() const { return m_error; }

private:
    struct Numbered
    {
        std::string_view prefix;
        std::string_view digits;
    };

    [[nodiscard]] static std::optional<Numbered> numbered(std::string_view text);
    [[nodiscard]] static std::optional<Numbered> plainNumbered(std::string_view text);
    [[nodiscard]] std::optional<Numbered> plainOrBare(std::string_view text) const;
    [[nodiscard]] bool isName(std::string_view text) const { return m_isName && m_isName(text); }

    [[nodiscard]] bool isCount(std::string_view text) const;

    [[nodiscard]] bool readCell(std::string_view cell);
    [[nodiscard]] bool readPart(std::string_view part);
    [[nodiscard]] bool addMarked(std::string_view left, std::string_view right, std::string_view text);
    [[nodiscard]] bool namesSeveral(std::string_view text) const;
    [[nodiscard]] bool addPiece(std::string_view text);
    [[nodiscard]] bool addHyphened(std::string_view text);
    [[nodiscard]] std::optional<bool> addFullRange(std::string_view text);
    [[nodiscard]] bool isSlashList(std::string_view text) const;
    [[nodiscard]] bool addSlashList(std::string_view text);
    [[nodiscard]] bool addNumber(std::string_view digits);
    [[nodiscard]] bool addBareRange(const Numbered &first, std::string_view digits, std::string_view text);
    [[nodiscard]] bool addRange(const Numbered &first, const Numbered &last, std::string_view text);
    [[nodiscard]] bool addKnownRange(const Numbered &first, const Numbered &last);
    [[nodiscard]] bool addName(std::string_view text);
    [[nodiscard]] bool addItem(const ReferenceItem &item);
    [[nodiscard]] bool failAsRange(std::string_view text);
    /// `text` is what is wrong in the cell, with plain signs.
    [[nodiscard]] bool fail(std::string_view text, const QString &why);

    TextArena &m_arena;
    IsName m_isName;
    std::size_t m_limit;
    bool m_takesXForCount = false;
    ReferenceTokens m_tokens;
    std::vector<ReferenceItem> m_items;
    std::size_t m_count = 0;
    std::string_view m_cell;
    QString m_error;
    /// Of the numbered reference before, empty where there is none.
    std::string_view m_prefix;
    /// All so far are numbers without a prefix.
    bool m_isNumeric = true;
};

} // namespace designs
