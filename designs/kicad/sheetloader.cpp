// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/kicad/sheetloader.h"

#include "designs/kicad/hierarchylimits.h"
#include "designs/kicad/sheetparser.h"
#include "designs/threads.h"
#include "designs/utf8.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace designs::kicad {

namespace {

/// Line numbers of offsets, which mostly grow.
std::vector<int> linesAt(std::string_view text, const std::vector<std::size_t> &offsets)
{
    std::vector<int> lines;
    std::size_t before = 0;
    int line = 1;
    for (const std::size_t offset : offsets) {
        if (offset < before) {
            before = 0;
            line = 1;
        }
        line += int(std::count(text.begin() + before, text.begin() + offset, '\n'));
        before = offset;
        lines.push_back(line);
    }
    return lines;
}

} // namespace

QString sheetPath(const QString &parentPath, const SheetSymbol &symbol, const QString &projectFolder)
{
    QString name = fromUtf8(symbol.file);
    name.replace(QLatin1String("${KIPRJMOD}"), projectFolder);
    name.replace(u'\\', u'/');
    return QDir::cleanPath(QFileInfo(parentPath).absoluteDir().absoluteFilePath(name));
}

SheetLoader::SheetLoader(int threads, const PropertyNames &names, std::stop_token stop)
    : m_threads(threads)
    , m_stop(std::move(stop))
    , m_buffers(1)
    , m_arenas(1)
{
    for (NameId id = 0; id < names.size(); ++id) {
        m_knownNames.emplace_back(names.name(id));
    }
}

/// Level by level: all roots, all sheets that they use, and so on. A level is known when the one above it has
/// been read, so threads share nothing but the number of the next file.
void SheetLoader::readAhead(const std::vector<QString> &roots)
{
    if (m_threads == 1) {
        return;
    }
    std::vector<Wanted> level;
    for (const QString &root : roots) {
        want(root, QFileInfo(root).absolutePath(), &level);
    }
    for (int depth = 0; depth <= hierarchylimits::depth && !level.empty(); ++depth) {
        const int threads = threadsFor(level);
        while (int(m_arenas.size()) < threads) {
            m_buffers.emplace_back();
            m_arenas.emplace_back();
        }
        std::vector<LoadedSheet> read(level.size());
        forEachInThreads(level.size(), threads, [&](std::size_t item, int thread) {
            read[item] = this->read(level[item].path, thread);
        });
        std::vector<Wanted> below;
        for (std::size_t item = 0; item < level.size(); ++item) {
            for (const SheetSymbol &symbol : read[item].sheet.sheets) {
                want(sheetPath(level[item].path, symbol, level[item].projectFolder),
                     level[item].projectFolder, &below);
            }
            m_ahead[level[item].canonical] = std::move(read[item]);
        }
        level = std::move(below);
    }
}

void SheetLoader::want(const QString &path, const QString &projectFolder, std::vector<Wanted> *level)
{
    const QFileInfo info(path);
    const QString canonical = info.canonicalFilePath();
    if (!canonical.isEmpty() && m_ahead.size() < hierarchylimits::uses &&
        m_ahead.try_emplace(canonical).second) {
        level->push_back({path, canonical, projectFolder, info.size()});
    }
}

int SheetLoader::threadsFor(const std::vector<Wanted> &level) const
{
    if (m_threads > 0) {
        return m_threads;
    }
    std::vector<qint64> sizes;
    sizes.reserve(level.size());
    for (const Wanted &wanted : level) {
        sizes.push_back(wanted.size);
    }
    return threadsForFiles(sizes);
}

LoadedSheet SheetLoader::take(const QString &path)
{
    const auto ahead = m_ahead.find(QFileInfo(path).canonicalFilePath());
    if (ahead == m_ahead.end() || !ahead->second) {
        return read(path, 0);
    }
    LoadedSheet loaded = *std::exchange(ahead->second, std::nullopt);
    // It may have been found by another name.
    loaded.sheet.path = path;
    if (loaded.problem) {
        loaded.problem->file = path;
    }
    return loaded;
}

LoadedSheet SheetLoader::read(const QString &path, int thread)
{
    FileBuffer &buffer = m_buffers[std::size_t(thread)];
    LoadedSheet loaded;
    if (m_stop.stop_requested()) {
        loaded.problem = stoppedProblem(path);
        return loaded;
    }
    if (Problem problem; !buffer.read(path, "(kicad_sch", &problem)) {
        loaded.problem = problem;
        return loaded;
    }
    loaded.sheet.path = path;
    loaded.sheet.fingerprint = buffer.fingerprint();
    loaded.sheet.stamp = buffer.stamp();
    for (const std::string &name : m_knownNames) {
        loaded.names.intern(name);
    }
    SheetParser parser(buffer.text(), &loaded.sheet, &m_arenas[std::size_t(thread)], &loaded.names);
    if (!parser.parse(m_stop)) {
        loaded.problem = parser.problem();
        return loaded;
    }
    loaded.badTextLines = linesAt(buffer.text(), parser.badTexts());
    return loaded;
}

void SheetLoader::finish()
{
    m_buffers.clear();
    m_ahead.clear();
}

} // namespace designs::kicad
