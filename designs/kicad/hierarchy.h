// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/filebuffer.h"
#include "designs/kicad/sheetfile.h"
#include "designs/problem.h"
#include "designs/textarena.h"

#include <QHash>

#include <deque>
#include <string>
#include <vector>

namespace designs::kicad {

/// One use of a sheet file in the hierarchy.
struct HierarchyUse
{
    quint32 file = 0;
    /// The use that holds the sheet symbol; its own number for a root.
    quint32 parent = 0;
    /// The sheet symbol, null for a root.
    const SheetSymbol *symbol = nullptr;
    /// The sheet symbol's record for this use, null when the file has none.
    const InstanceRecord *instance = nullptr;
    /// Identifiers from the root's down: "/ROOT/SHEET".
    std::string uuidPath;
    /// Names for people: "/" for the root, "/Power/Input" below.
    QString namePath;
};

/// The files of a schematic and how they use each other.
class Hierarchy
{
public:
    static constexpr int maximumDepth = 100;
    static constexpr std::size_t maximumUses = 100'000;
    /// Symbols times the uses of their file.
    static constexpr std::size_t maximumSymbols = 10'000'000;

    /// `arena` and `names` take the texts and must outlive the hierarchy.
    Hierarchy(TextArena *arena, PropertyNames *names);

    /// Reads a root sheet and everything below it. `rootUuid` is the identifier with which instance paths
    /// begin; empty takes the file's own. False fills `problem`.
    bool addRoot(const QString &path, const QString &rootUuid, Problem *problem);

    [[nodiscard]] const std::deque<SheetFile> &files() const { return m_files; }
    /// Parents stand before their children; the first is the first root.
    [[nodiscard]] const std::vector<HierarchyUse> &uses() const { return m_uses; }
    [[nodiscard]] const std::vector<Problem> &warnings() const { return m_warnings; }

    /// The root that a use belongs to.
    [[nodiscard]] quint32 rootOf(quint32 use) const;

private:
    bool loadFile(const QString &path, quint32 *number, Problem *problem);
    bool addUse(HierarchyUse use, int depth, Problem *problem);
    bool addChild(quint32 parent, const SheetSymbol &sheet, int depth, Problem *problem);
    QString childPath(const SheetFile &parent, const SheetSymbol &sheet) const;
    bool refuseLoop(quint32 parent, const SheetSymbol &sheet, quint32 file, Problem *problem);
    int lineOf(const QString &path, quint32 offset);
    const InstanceRecord *instanceOf(const HierarchyUse &use) const;

    TextArena *m_arena;
    PropertyNames *m_names;
    FileBuffer m_buffer;
    std::deque<SheetFile> m_files;
    QHash<QString, quint32> m_fileNumbers;
    std::vector<HierarchyUse> m_uses;
    std::size_t m_symbolUses = 0;
    std::vector<Problem> m_warnings;
    QString m_projectFolder;
};

} // namespace designs::kicad
