// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/kicad/symbolrecount.h"

#include "designs/kicad/hierarchylimits.h"
#include "designs/texts.h"
#include "designs/threads.h"
#include "files/regularfile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace designs::kicad {

namespace {

QString pathFrom(const QString &path, QString name, const QString &folder)
{
    name.replace(QLatin1String("${KIPRJMOD}"), folder).replace(u'\\', u'/');
    return QFileInfo(path).absoluteDir().absoluteFilePath(name);
}

} // namespace

SymbolRecount::File SymbolRecount::read(const QString &path, QByteArray *buffer)
{
    QFile file(path);
    QString reason;
    if (!openRegularFile(&file, QIODevice::ReadOnly | QIODevice::Unbuffered, &reason)) {
        return {{}, reason};
    }
    const qint64 wanted = file.size();
    buffer->resize(std::max(wanted, qint64(buffer->size())));
    qint64 size = 0;
    for (qint64 got = 1; got > 0; size += std::max<qint64>(got, 0)) {
        got = file.read(buffer->data() + size, wanted - size);
    }
    return {SymbolCounter({buffer->constData(), std::size_t(size)}).count(), QString()};
}

/// Files of one level of the hierarchy are counted side by side; add() adds up, and says what is wrong.
void SymbolRecount::countAhead(const QStringList &roots)
{
    struct Wanted
    {
        QString path;
        QString canonical;
        QString folder;
    };
    std::vector<Wanted> level;
    const auto want = [this](const QString &path, const QString &folder, std::vector<Wanted> *wanted) {
        const QString canonical = QFileInfo(path).canonicalFilePath();
        if (!canonical.isEmpty() && !m_files.contains(canonical)) {
            m_files.insert(canonical, {});
            wanted->push_back({path, canonical, folder});
        }
    };
    for (const QString &root : roots) {
        want(root, QFileInfo(root).absolutePath(), &level);
    }
    while (!level.empty()) {
        std::vector<qint64> sizes;
        sizes.reserve(level.size());
        for (const Wanted &wanted : level) {
            sizes.push_back(QFileInfo(wanted.path).size());
        }
        const int threads = m_threads > 0 ? m_threads : threadsForFiles(sizes);
        std::vector<QByteArray> buffers(static_cast<std::size_t>(threads));
        std::vector<File> counted(level.size());
        forEachInThreads(level.size(), threads, [&](std::size_t item, int thread) {
            counted[item] = read(level[item].path, &buffers[std::size_t(thread)]);
        });
        std::vector<Wanted> below;
        for (std::size_t item = 0; item < level.size(); ++item) {
            for (const QString &name : std::as_const(counted[item].count.sheetFiles)) {
                want(pathFrom(level[item].path, name, level[item].folder), level[item].folder, &below);
            }
            m_files[level[item].canonical] = std::move(counted[item]);
        }
        level = std::move(below);
    }
}

bool SymbolRecount::add(const QString &path, int depth, SymbolCount *sum, Problem *problem)
{
    const QString key = QFileInfo(path).canonicalFilePath();
    if (const auto known = m_sums.constFind(key); known != m_sums.constEnd()) {
        *sum = *known;
        return true;
    }
    const auto refuse = [&](const QString &why) {
        *problem = {path, 0, KicadTexts::tr("cannot be read again for the count: %1").arg(why)};
        return false;
    };
    QByteArray buffer;
    const auto counted = m_files.constFind(key);
    const File file = counted == m_files.constEnd() ? read(path, &buffer) : *counted;
    if (!file.problem.isEmpty()) {
        return refuse(file.problem);
    }
    if (depth > hierarchylimits::depth) {
        return refuse(KicadTexts::tr("it is more than %1 sheets deep").arg(hierarchylimits::depth));
    }
    *sum = {file.count.symbols, file.count.power, 0};
    for (const QString &name : file.count.sheetFiles) {
        SymbolCount below;
        if (!add(pathFrom(path, name, m_folder), depth + 1, &below, problem)) {
            return false;
        }
        sum->placed += below.placed;
        sum->power += below.power;
    }
    m_sums.insert(key, *sum);
    return true;
}

bool SymbolRecount::count(const QStringList &roots, SymbolCount *count, Problem *problem)
{
    countAhead(roots);
    *count = {};
    for (const QString &root : roots) {
        m_folder = QFileInfo(root).absolutePath();
        SymbolCount sum;
        if (!add(root, 0, &sum, problem)) {
            return false;
        }
        count->placed += sum.placed;
        count->power += sum.power;
    }
    return true;
}

} // namespace designs::kicad
