// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/bomsettings.h"
#include "designs/component.h"
#include "designs/edits.h"
#include "designs/filefingerprint.h"
#include "designs/problem.h"
#include "designs/textarena.h"

#include <QDateTime>
#include <QString>
#include <QStringList>

#include <memory>
#include <stop_token>
#include <vector>

namespace designs {

/// What a design says about itself. Empty texts where it says nothing.
struct DesignInfo
{
    QString title;
    QString author;
    QString documentNumber;
    QString revision;
    QString created;
    QString variant;
    /// Absolute path of the file that was opened or, for a project, of its root sheet.
    QString file;
    QDateTime modified;
};

/// One use of a sheet in the hierarchy. The root is the first.
struct SheetUse
{
    /// Path of sheet names for people, "/" for the root, "/Power/Input" below.
    QString path;
    quint32 file = 0;
};

/// Symbols that are no components or went into one, for the account of where every symbol stayed.
struct SymbolCount
{
    /// Symbols as drawn, times the uses of their sheet.
    qsizetype placed = 0;
    /// Power symbols and others whose reference begins with "#".
    qsizetype power = 0;
    /// Further units of a part that stands for all of them.
    qsizetype mergedUnits = 0;
};

/// Where a symbol is drawn, in millimetres from the upper left corner of its sheet.
struct Position
{
    double x = 0;
    double y = 0;

    bool operator==(const Position &) const = default;
};

/// Side of the board on which a part is placed.
enum class Side
{
    NotPlaced,
    Top,
    Bottom
};

/// A design as read from its files: components in the order of the hierarchy and files.
class Design
{
public:
    Design();
    Design(const Design &) = delete;
    Design &operator=(const Design &) = delete;
    virtual ~Design();

    [[nodiscard]] const std::vector<Component> &components() const { return m_components; }
    [[nodiscard]] const PropertyNames &names() const { return m_names; }
    [[nodiscard]] const DesignInfo &info() const { return m_info; }
    [[nodiscard]] const QStringList &files() const { return m_files; }
    [[nodiscard]] const std::vector<SheetUse> &sheets() const { return m_sheets; }
    [[nodiscard]] const SymbolCount &symbols() const { return m_symbols; }
    /// The variants that the design defines, sorted.
    [[nodiscard]] const QStringList &variants() const { return m_variants; }
    /// What the project of the design says about its bill of materials; empty where there is none.
    [[nodiscard]] const ProjectBom &projectBom() const { return m_projectBom; }
    /// What the reader noticed and went on from: units that differ, symbols missing in the library cache. A
    /// board file that cannot be read is added when placement() first asks for it.
    [[nodiscard]] const std::vector<Problem> &warnings() const { return m_warnings; }

    /// Where a reference is placed; the board file is read at the first question.
    [[nodiscard]] virtual Side placement(std::string_view reference) const;

    /// Counts the drawn symbols anew from the files' text, independently of the records above; `error` tells
    /// when a file cannot be read any more. The default counts components.
    [[nodiscard]] virtual SymbolCount recount(Problem *error) const;

    /// The line of a component's symbol or row in its file, counted from 1; 0 when it cannot be told any
    /// more.
    [[nodiscard]] virtual int lineOf(const Component &component) const;
    /// Where a component's symbol, or the first of several, is drawn; nothing in a list, and when the file is
    /// not as it was read. Reads the file.
    [[nodiscard]] virtual std::optional<Position> positionOf(const Component &component) const;

    /// What tells a component from any other of the design, also after references were changed and the files
    /// were read again; empty where the format has nothing but the reference.
    [[nodiscard]] virtual std::string identityOf(const Component &component) const;

    /// The files whose content is not what was read, also those that cannot be read any more.
    [[nodiscard]] QStringList changedFiles() const;

    /// What is wrong with one edit by itself, nothing when it can be made. Reads no file.
    [[nodiscard]] virtual std::optional<QString> checkEdit(const Edit &edit) const;
    /// Works edits out on the files, which must be as they were read. Of several edits of one property of one
    /// component the last counts. Writes nothing; the default cannot change a design.
    [[nodiscard]] virtual EditPlan planEdits(std::span<const Edit> edits) const;

    /// The name numbers of the reference, the value and the footprint as the format stores them.
    [[nodiscard]] NameId referenceName() const { return m_referenceName; }
    [[nodiscard]] NameId valueName() const { return m_valueName; }

    /// The value of a component's property under its stored name; knows the value and the reference too.
    [[nodiscard]] std::optional<std::string_view> stored(const Component &component, NameId id) const;

    /// Under which of the names, best first, a component has what they stand for: the first that says
    /// something, else the first that is stored at all, so that an empty property hides no other. The value
    /// and the reference count even when they are empty. Nothing when none is stored.
    [[nodiscard]] std::optional<NameId> storedName(const Component &component,
                                                   std::span<const NameId> names) const;

protected:
    TextArena m_arena;
    PropertyNames m_names;
    std::vector<Component> m_components;
    DesignInfo m_info;
    QStringList m_files;
    /// Of the files as they were read.
    std::vector<FileFingerprint> m_fingerprints;
    /// Likewise; may be fewer, contents are compared then.
    std::vector<FileStamp> m_stamps;
    std::vector<SheetUse> m_sheets;
    SymbolCount m_symbols;
    QStringList m_variants;
    ProjectBom m_projectBom;
    mutable std::vector<Problem> m_warnings;
    NameId m_referenceName = 0;
    NameId m_valueName = 0;
};

/// How to read a design.
struct ReadOptions
{
    /// The variant to apply; empty for the design as drawn.
    QString variant;
    /// How many threads read files and work out new ones, 0 for as many as are worth while. The design and
    /// its plans are the same for any number.
    int threads = 0;
    /// Ends the reading early when a stop is requested: there is no design then.
    std::stop_token stop = {};
};

/// A design, or why there is none.
struct ReadResult
{
    std::unique_ptr<Design> design;
    Problem error;
};

} // namespace designs
