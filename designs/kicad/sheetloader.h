// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/filebuffer.h"
#include "designs/kicad/sheetfile.h"
#include "designs/problem.h"
#include "designs/propertynames.h"
#include "designs/textarena.h"

#include <QString>

#include <deque>
#include <optional>
#include <stop_token>
#include <string>
#include <unordered_map>
#include <vector>

namespace designs::kicad {

/// One sheet file as it was read, or why it could not be. It stands by itself: its property names are
/// numbered by a table of its own, in the order of their first sight.
struct LoadedSheet
{
    SheetFile sheet;
    PropertyNames names;
    std::optional<Problem> problem;
    /// The lines of texts that are not UTF-8.
    std::vector<int> badTextLines;
};

/// The file that a sheet symbol uses. `projectFolder` is what ${KIPRJMOD} stands for.
[[nodiscard]] QString sheetPath(const QString &parentPath, const SheetSymbol &symbol,
                                const QString &projectFolder);

/// Reads sheet files, if wanted many at once before they are asked for: a sheet's children are known as soon
/// as it has been read. Reading ahead decides nothing. Who asks for the sheets in the order of the hierarchy
/// gets the same ones, and meets the same problem first, as if each were read when it is asked for.
class SheetLoader
{
public:
    /// `threads` is how many read at once, 0 for as many as are worth while. Names that are in `names`
    /// already have the same numbers in the tables of all sheets.
    /// When a stop is requested every sheet that has not been read has a problem.
    SheetLoader(int threads, const PropertyNames &names, std::stop_token stop);

    /// Reads these root sheets and what they use; with one thread nothing.
    void readAhead(const std::vector<QString> &roots);

    /// The sheet of a file, by the path under which it is asked for; each file once. Its texts live as long
    /// as the loader.
    [[nodiscard]] LoadedSheet take(const QString &path);

    /// Gives back the memory that only reading needs.
    void finish();

private:
    struct Wanted
    {
        QString path;
        QString canonical;
        QString projectFolder;
        qint64 size = 0;
    };
    void want(const QString &path, const QString &projectFolder, std::vector<Wanted> *level);
    [[nodiscard]] int threadsFor(const std::vector<Wanted> &level) const;
    [[nodiscard]] LoadedSheet read(const QString &path, int thread);

    int m_threads;
    std::stop_token m_stop;
    std::vector<std::string> m_knownNames;
    /// One of each for each thread.
    std::deque<FileBuffer> m_buffers;
    std::deque<TextArena> m_arenas;
    /// By canonical path; nothing for one that was taken.
    std::unordered_map<QString, std::optional<LoadedSheet>> m_ahead;
};

} // namespace designs::kicad
