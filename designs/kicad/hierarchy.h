// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/kicad/sheetfile.h"
#include "designs/kicad/sheetloader.h"
#include "designs/problem.h"

#include <QHash>

#include <deque>
#include <stop_token>
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

/// A root sheet.
struct RootSheet
{
    QString path;
    /// The identifier with which instance paths begin; empty takes the file's own.
    QString uuid;

    bool operator==(const RootSheet &) const = default;
};

/// The files of a schematic and how they use each other.
class Hierarchy
{
public:
    /// `names` takes the names of properties and must outlive the hierarchy. `threads` is how many read files
    /// at once, 0 for as many as are worth while; the result is the same for any number.
    /// Reading ends early when a stop is requested.
    Hierarchy(PropertyNames *names, int threads, std::stop_token stop);

    /// Reads root sheets and everything below them, once. False fills `problem`.
    bool read(const std::vector<RootSheet> &roots, Problem *problem);

    [[nodiscard]] const std::deque<SheetFile> &files() const { return m_files; }
    /// Parents stand before their children; the first is the first root.
    [[nodiscard]] const std::vector<HierarchyUse> &uses() const { return m_uses; }
    [[nodiscard]] const std::vector<Problem> &warnings() const { return m_warnings; }

    /// The root that a use belongs to.
    [[nodiscard]] quint32 rootOf(quint32 use) const;

private:
    bool addRoot(const RootSheet &root, Problem *problem);
    bool loadFile(const QString &path, quint32 *number, Problem *problem);
    bool addUse(HierarchyUse use, int depth, Problem *problem);
    bool addChild(quint32 parent, const SheetSymbol &sheet, int depth, Problem *problem);
    void takeOverNames(const PropertyNames &own, SheetFile *sheet);
    bool refuseLoop(quint32 parent, const SheetSymbol &sheet, quint32 file, Problem *problem);
    const InstanceRecord *instanceOf(const HierarchyUse &use) const;

    PropertyNames *m_names;
    /// Holds the texts of the files.
    SheetLoader m_loader;
    std::deque<SheetFile> m_files;
    QHash<QString, quint32> m_fileNumbers;
    std::vector<HierarchyUse> m_uses;
    std::size_t m_symbolUses = 0;
    std::vector<Problem> m_warnings;
    bool m_hasLaterVersion = false;
    QString m_projectFolder;
};

} // namespace designs::kicad
