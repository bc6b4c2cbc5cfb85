// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/transaction/designfiles.h"

#include "designs/designfolder.h"
#include "designs/interruptedfilesystem.h"
#include "tests/support/testfiles.h"

#include <QDir>
#include <QDirIterator>

#include <gmock/gmock.h>

#include <functional>
#include <sys/stat.h>
#include <sys/wait.h>

/// The messages of problems, one line each.
inline std::string joined(const std::vector<designs::Problem> &problems)
{
    std::string text;
    for (const designs::Problem &problem : problems) {
        text += problem.message().toStdString() + '\n';
    }
    return text;
}

/// A design of three files, one in a sub-folder, and what is written to it.
class DesignFilesTest : public testing::Test
{
protected:
    static constexpr std::array<const char *, 3> names = {"board.kicad_sch", "a.kicad_sch",
                                                          "sub/a.kicad_sch"};
    static constexpr char plain[] = "a.kicad_sch\nboard.kicad_sch\nsub\nsub/a.kicad_sch";

    DesignFilesTest()
    {
        for (const char *name : names) {
            put(name, content(name, 0));
        }
        EXPECT_EQ(::chmod(path("a.kicad_sch").toLocal8Bit().constData(), 0640), 0);
    }

    [[nodiscard]] QString path(const char *name) const { return m_folder.path(QLatin1String(name)); }
    void put(const char *name, const std::string &text) const { m_folder.write(QLatin1String(name), text); }

    [[nodiscard]] std::string get(const char *name) const { return contentIfAny(path(name)).toStdString(); }
    static std::string content(const char *name, int version)
    {
        return name + std::to_string(version) + std::string(std::size_t(version) * 10, '.');
    }

    [[nodiscard]] std::vector<designs::FileReplacement> replacements(int version) const
    {
        std::vector<designs::FileReplacement> files;
        for (const char *name : names) {
            files.push_back(designs::FileReplacement::whole(
                path(name), designs::fingerprintOfFile(path(name)).value_or(designs::FileFingerprint()),
                content(name, version)));
        }
        return files;
    }

    [[nodiscard]] designs::DesignFiles files(designs::FileSystem *system = nullptr)
    {
        QStringList members;
        for (const char *name : names) {
            members << path(name);
        }
        return {path(names[0]), members, system ? system : &m_system, m_threads};
    }
    /// Brings all files to a version; the problems.
    std::string replace(int version, designs::Backups backups = designs::Backups::Keep)
    {
        return joined(files().replace(replacements(version), backups).problems);
    }
    std::string undo() { return joined(files().undo().problems); }
    std::string recover()
    {
        const designs::RecoveryResult result = files().recover();
        return joined(result.actions) + joined(result.problems);
    }
    void removeBackups() const { QDir(path("board-backup")).removeRecursively(); }

    /// The version that all files have; -1 for a mixture.
    [[nodiscard]] int version() const
    {
        for (int version = 0; version < 4; ++version) {
            if (std::ranges::all_of(names, [&](const char *n) { return get(n) == content(n, version); })) {
                return version;
            }
        }
        return -1;
    }

    /// Everything in the folder, one name per line.
    [[nodiscard]] std::string listing() const
    {
        QStringList found;
        QDirIterator all(m_folder.path({}), QDir::Files | QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
        while (all.hasNext()) {
            found << QDir(m_folder.path({})).relativeFilePath(all.next());
        }
        found.sort();
        return found.join(u'\n').toStdString();
    }

    /// Nothing lies about but the files, and backups for all of them or none.
    void expectTidy() const
    {
        const std::string record = "board-backup/board.kicad_sch.undo\n";
        const std::string undoable = "a.kicad_sch\nboard-backup\nboard-backup/a.kicad_sch.bak\n"
                                     "board-backup/board.kicad_sch.bak\n" +
                                     record +
                                     "board-backup/sub%2Fa.kicad_sch.bak\nboard.kicad_sch\nsub\n"
                                     "sub/a.kicad_sch";
        const std::string kept = std::string(undoable).erase(undoable.find(record), record.size());
        EXPECT_THAT(listing(), testing::AnyOf(plain, kept, undoable));
        EXPECT_EQ(QFileInfo(path("a.kicad_sch")).permissions() & QFile::ReadOther, 0);
    }

    /// Uses the files in a process of its own that dies at one of its steps; false when it ran through.
    bool diesIn(int step, const std::function<void(const designs::DesignFiles &)> &use)
    {
        const pid_t child = ::fork();
        if (child == 0) {
            InterruptedFileSystem system(step, 0);
            use(files(&system));
            ::_exit(0);
        }
        int status = 0;
        EXPECT_EQ(::waitpid(child, &status, 0), child);
        EXPECT_TRUE(WIFEXITED(status));
        return WEXITSTATUS(status) == InterruptedFileSystem::diedStatus;
    }

    /// In memory where that can be had: thousands of files are renamed.
    static QString pattern()
    {
        const QString memory = QStringLiteral("/dev/shm");
        return (QFileInfo(memory).isWritable() ? memory : QDir::tempPath()) + QStringLiteral("/bom-XXXXXX");
    }

    int m_threads = 1;
    DesignFolder m_folder{pattern()};
    InterruptedFileSystem m_system{0, 0};
};
