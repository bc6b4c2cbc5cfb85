// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/designfolder.h"
#include "designs/interruptedfilesystem.h"
#include "designs/transaction/designfiles.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

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

    DesignFilesTest()
    {
        for (const char *name : names) {
            put(name, content(name, 0));
        }
        EXPECT_EQ(::chmod(path("a.kicad_sch").toLocal8Bit().constData(), 0640), 0);
    }

    [[nodiscard]] QString path(const char *name) const { return m_folder.path(QLatin1String(name)); }
    void put(const char *name, const std::string &text) const { m_folder.write(QLatin1String(name), text); }

    [[nodiscard]] std::string get(const char *name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : "(no file)";
    }

    static std::string content(const char *name, int version)
    {
        return std::string(name) + " version " + std::to_string(version) +
               std::string(std::size_t(version) * 10, '.');
    }

    [[nodiscard]] std::vector<designs::FileReplacement> edits(int version) const
    {
        std::vector<designs::FileReplacement> files;
        for (const char *name : names) {
            files.push_back({path(name),
                             designs::fingerprintOfFile(path(name)).value_or(designs::FileFingerprint()),
                             QByteArray::fromStdString(content(name, version))});
        }
        return files;
    }

    [[nodiscard]] designs::DesignFiles files(designs::FileSystem *system = nullptr)
    {
        return designs::DesignFiles(path(names[0]), system ? system : &m_system);
    }

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
        const std::string plain = "a.kicad_sch\nboard.kicad_sch\nsub\nsub/a.kicad_sch";
        const std::string kept = "a.kicad_sch\nboard-backup\nboard-backup/a.kicad_sch.bak\n"
                                 "board-backup/board.kicad_sch.bak\n"
                                 "board-backup/sub%2Fa.kicad_sch.bak\nboard.kicad_sch\nsub\nsub/a.kicad_sch";
        const std::string undoable = "a.kicad_sch\nboard-backup\nboard-backup/a.kicad_sch.bak\n"
                                     "board-backup/board.kicad_sch.bak\nboard-backup/board.kicad_sch.undo\n"
                                     "board-backup/sub%2Fa.kicad_sch.bak\nboard.kicad_sch\nsub\n"
                                     "sub/a.kicad_sch";
        EXPECT_THAT(listing(), testing::AnyOf(plain, kept, undoable));
        EXPECT_EQ(QFileInfo(path("a.kicad_sch")).permissions() & QFile::ReadOther, 0);
    }

    /// Runs something in a process of its own that dies at one of its steps; false when it ran through.
    static bool diesIn(int step, const std::function<void(designs::FileSystem &)> &run)
    {
        const pid_t child = ::fork();
        if (child == 0) {
            InterruptedFileSystem system(step, 0);
            run(system);
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

    DesignFolder m_folder{pattern()};
    InterruptedFileSystem m_system{0, 0};
};
