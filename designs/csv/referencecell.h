// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/textarena.h"

#include <QString>

#include <optional>
#include <string_view>
#include <vector>

namespace designs {

/// Takes the references out of one cell of a part list.
///
/// References are parted by commas, semicolons and white space. Numbered ones (a prefix with a letter in it,
/// then digits) can be shortened:
/// - "R1-R4" and "R1-4" are R1 to R4, with any kind of dash and with or without blanks around it.
///   "R01-R12" keeps the width of its numbers.
/// - "C17/18/19" and "C17/C18" are a reference each, and so is each number in "R1,2,5-8". A bare number
///   takes the prefix of the reference before it.
///
/// Whatever has a dash or slash and is nothing of these is one reference as it stands: "J1-A", "TP-1",
/// "U1/A", "CH1/R5". As a bare number behind a dash can also be part of a name, it ends a range only if it is
/// higher than the first and not written with zeros that the first lacks: "X1-2" is X1 and X2, "J4-1" and
/// "X1-02" are one reference each. Decimal points never belong to a range.
/// What joins references by dashes without being a range ("R1A-R3B", "R1-R3-R5"), or ends with a dash, is an
/// error.
class ReferenceCell final
{
public:
    /// References that a file's text does not hold as such are kept in `arena`. `limit` is the most that one
    /// cell may name.
    explicit ReferenceCell(TextArena &arena, std::size_t limit = 100'000)
        : m_arena(arena)
        , m_limit(limit)
    {
    }

    /// Reads a cell; false, with the reason in error(), for ranges that run backwards, join different
    /// prefixes, lack an end or are too large, and for marks that name no part. A blank cell has no
    /// references and is no error.
    [[nodiscard]] bool read(std::string_view cell);

    /// What the last cell names, in its order, repeated ones included. The texts stand in the cell or in the
    /// arena.
    [[nodiscard]] const std::vector<std::string_view> &references() const { return m_references; }
    [[nodiscard]] const QString &error() const { return m_error; }

private:
    struct Numbered
    {
        std::string_view prefix;
        std::string_view digits;
    };

    /// One piece between slashes: a reference, or two sides of a dash.
    struct Piece
    {
        std::string_view text;
        std::string_view left;
        std::optional<std::string_view> right;
    };

    [[nodiscard]] static Piece pieceOf(std::string_view text);
    [[nodiscard]] static std::optional<Numbered> numbered(std::string_view text);
    [[nodiscard]] std::optional<Numbered> numberedOrBare(std::string_view text) const;

    void skipBlanks();
    [[nodiscard]] bool isDashNext() const;
    [[nodiscard]] std::string_view takeToken();
    [[nodiscard]] bool takeSpacedRange(std::string_view first);
    [[nodiscard]] bool addToken(std::string_view token);
    [[nodiscard]] bool isSlashList(std::string_view token) const;
    [[nodiscard]] bool addPiece(std::string_view text);
    [[nodiscard]] bool addWithDash(const Piece &piece);
    [[nodiscard]] bool addRange(const Numbered &first, std::string_view lastDigits, std::string_view text);
    [[nodiscard]] bool addSingle(std::string_view text);
    [[nodiscard]] bool fail(std::string_view text, const QString &why);

    TextArena &m_arena;
    std::size_t m_limit;
    std::vector<std::string_view> m_references;
    QString m_error;
    std::string_view m_cell;
    std::size_t m_at = 0;
    /// Of the numbered reference before, empty where there is none.
    std::string_view m_prefix;
};

} // namespace designs
