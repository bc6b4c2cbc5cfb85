// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/transaction/writecheck.h"

#include "designs/texts.h"
#include "designs/transaction/kicadlock.h"

#include <QFileInfo>
#include <QSet>

#include <algorithm>

namespace designs {

namespace {

constexpr quint32 anyWriteBit = 0222;

} // namespace

std::optional<std::vector<CheckedReplacement>> WriteCheck::run(std::span<const FileReplacement> files,
                                                               bool keepsBackups)
{
    bool possible = checkFiles(files, keepsBackups);
    possible = checkDesignClosed(m_checked) && possible;
    possible = checkFolders(keepsBackups) && possible;
    return possible ? std::optional(std::move(m_checked)) : std::nullopt;
}

bool WriteCheck::areStillClosed(std::span<const CheckedReplacement> files)
{
    return checkDesignClosed(files) && std::ranges::all_of(files, [this](const auto &file) {
               return checkClosed(file.path, file.target);
           });
}

/// Also when the files are open as part of a schematic above them, or below the design.
bool WriteCheck::checkDesignClosed(std::span<const CheckedReplacement> checked)
{
    const bool isReported = std::ranges::any_of(
        m_files.problems(), [this](const Problem &problem) { return problem.file == m_paths.named(); });
    if (isReported || !checkClosed(m_paths.named(), m_paths.design())) {
        return isReported;
    }
    QStringList files{m_paths.named()};
    for (const CheckedReplacement &file : checked) {
        files << file.target;
    }
    const auto open = openFromAbove(files);
    return !open || m_files.fail(open->file, open->text);
}

bool WriteCheck::checkClosed(const QString &path, const QString &target)
{
    for (const QString &name : {path, target}) {
        if (const auto who = openElsewhere(name)) {
            return m_files.fail(path, *who);
        }
    }
    return true;
}

bool WriteCheck::checkFiles(std::span<const FileReplacement> files, bool keepsBackups)
{
    struct Candidate
    {
        CheckedReplacement file;
        bool isNamedBefore = false;
        bool isPossible = false;
    };
    std::vector<Candidate> candidates;
    std::vector<qint64> sizes;
    QSet<QString> targets;
    for (const FileReplacement &file : files) {
        const QString target = QFileInfo(file.path).canonicalFilePath();
        candidates.push_back({{file.path, target, &file}, targets.contains(target)});
        sizes.push_back(qint64(file.before.size));
        targets.insert(target);
    }
    (void)m_files.forEachFile(sizes, [&](FileOperations &own, std::size_t number) {
        Candidate &one = candidates[number];
        one.isPossible = WriteCheck(own, m_paths).checkFile(one.file, one.isNamedBefore, keepsBackups);
        return true;
    });
    for (Candidate &one : candidates) {
        if (one.isPossible) {
            m_checked.push_back(std::move(one.file));
        }
    }
    return m_checked.size() == files.size();
}

bool WriteCheck::checkFile(const CheckedReplacement &file, bool isNamedBefore, bool keepsBackups)
{
    const QString &target = file.target;
    if (target.isEmpty()) {
        return m_files.fail(file.path, WriteTexts::tr("does not exist any more"));
    }
    if (!checkClosed(file.path, target)) {
        return false;
    }
    if (isNamedBefore) {
        return m_files.fail(file.path, WriteTexts::tr("is named twice among the files to write"));
    }
    if (!checkKind(file.path, target) || !checkWritable(file.path, target) ||
        (keepsBackups && !checkBackup(m_paths.backupOf(target)))) {
        return false;
    }
    const auto now = fingerprintOfFile(target);
    if (now != file.replacement->before) {
        return m_files.fail(file.path, now ? WriteTexts::tr("was changed since it was read")
                                           : WriteTexts::tr("cannot be read any more"));
    }
    return true;
}

bool WriteCheck::checkKind(const QString &path, const QString &target)
{
    const FileStatus status = m_files.status(target);
    if (status.kind != FileStatus::Kind::File) {
        return m_files.fail(path, WriteTexts::tr("is no ordinary file"));
    }
    if (status.names > 1) {
        return m_files.fail(
            path, WriteTexts::tr("has %1 names (hard links), and writing would separate them: put a "
                                 "copy in its place, or work on the copy")
                      .arg(status.names));
    }
    if (!m_paths.isMember(target)) {
        return m_files.fail(path, WriteTexts::tr("is no file of this design"));
    }
    return m_paths.mayHold(target) ||
           m_files.fail(path, WriteTexts::tr("lies outside the design's folder and is of another kind"));
}

bool WriteCheck::checkWritable(const QString &path, const QString &target)
{
    if (const int failure = m_files.system().checkWritable(target); failure != 0) {
        return m_files.fail(path, WriteTexts::tr("may not be written: %1").arg(qt_error_string(failure)));
    }
    // An administrator may write everything, but a file that nobody may write is meant to stay as it is.
    FileStatus status;
    if (!m_files.readStatus(target, &status) || (status.mode & anyWriteBit) == 0) {
        return m_files.fail(path, WriteTexts::tr("may not be written: it is read-only"));
    }
    const QString folder = folderOf(target);
    const int failure = m_files.system().checkWritable(folder);
    return failure == 0 ||
           m_files.fail(path, WriteTexts::tr("cannot be replaced, because its folder may not be written: %1")
                                  .arg(qt_error_string(failure)));
}

bool WriteCheck::checkBackup(const QString &target)
{
    const FileStatus::Kind kind = m_files.status(target).kind;
    return kind == FileStatus::Kind::Missing || kind == FileStatus::Kind::File ||
           m_files.fail(target, WriteTexts::tr("is in the way of a backup"));
}

bool WriteCheck::checkFolders(bool keepsBackups)
{
    const int failure = m_files.system().checkWritable(m_paths.folder());
    if (failure != 0) {
        return m_files.fail(
            m_paths.folder(),
            WriteTexts::tr("the folder may not be written: %1").arg(qt_error_string(failure)));
    }
    if (!keepsBackups) {
        return true;
    }
    const FileStatus::Kind kind = m_files.status(m_paths.backupFolder()).kind;
    if (kind != FileStatus::Kind::Missing && kind != FileStatus::Kind::Folder) {
        return m_files.fail(m_paths.backupFolder(),
                            WriteTexts::tr("is in the way of the folder for backups"));
    }
    return checkBackup(m_paths.record());
}

} // namespace designs
