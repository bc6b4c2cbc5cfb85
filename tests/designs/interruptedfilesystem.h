// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/transaction/filesystem.h"

#include <unistd.h>

/// The machine's file system until a certain step: there one operation fails, or the process ends. Each
/// operation is a step; where the process is to end, there is one before and one after it. Nothing waits for
/// the disk.
class InterruptedFileSystem final : public designs::PosixFileSystem
{
public:
    static constexpr int diedStatus = 77;

    /// `failure` is an errno, 0 for the end of the process; step 0 never comes.
    InterruptedFileSystem(int step, int failure)
        : m_left(step)
        , m_failure(failure)
    {
    }

    [[nodiscard]] bool hasFailed() const { return m_left <= 0; }

    int status(const QString &path, designs::FileStatus *status) override
    {
        return run([&] { return PosixFileSystem::status(path, status); });
    }
    int checkWritable(const QString &path) override
    {
        return run([&] { return PosixFileSystem::checkWritable(path); });
    }
    int create(const QString &path, int *file) override
    {
        return run([&] { return PosixFileSystem::create(path, file); });
    }
    int open(const QString &path, int *file) override
    {
        return run([&] { return PosixFileSystem::open(path, file); });
    }
    int link(const QString &file, const QString &name) override
    {
        return run([&] { return PosixFileSystem::link(file, name); });
    }
    void startSync(int) override {}
    int write(int file, std::string_view bytes, std::size_t *written) override
    {
        // In small pieces, so that a file can be left half written.
        return run([&] { return PosixFileSystem::write(file, bytes.substr(0, 500), written); });
    }
    int setAttributes(int file, const designs::FileStatus &like) override
    {
        return run([&] { return PosixFileSystem::setAttributes(file, like); });
    }
    int sync(int) override
    {
        return run([] { return 0; });
    }
    int close(int file) override
    {
        const int failure = PosixFileSystem::close(file);
        return run([&] { return failure; });
    }
    int rename(const QString &from, const QString &to) override
    {
        return run([&] { return PosixFileSystem::rename(from, to); });
    }
    int remove(const QString &path) override
    {
        return run([&] { return PosixFileSystem::remove(path); });
    }
    int makeFolder(const QString &path) override
    {
        return run([&] { return PosixFileSystem::makeFolder(path); });
    }
    int removeFolder(const QString &path) override
    {
        return run([&] { return PosixFileSystem::removeFolder(path); });
    }
    int syncFolder(const QString &path) override
    {
        return run([&] { return ::access(path.toLocal8Bit().constData(), F_OK); });
    }
    int lock(const QString &path, int *file) override
    {
        return run([&] { return PosixFileSystem::lock(path, file); });
    }
    int unlock(const QString &path, int file) override
    {
        const int failure = PosixFileSystem::unlock(path, file);
        return run([&] { return failure; });
    }
    void pause() override {}

private:
    template<class Operation>
    int run(const Operation &operation)
    {
        if (step()) {
            return m_failure;
        }
        const int failure = operation();
        if (m_failure == 0) {
            step();
        }
        return failure;
    }

    bool step()
    {
        if (m_left <= 0 || --m_left > 0) {
            return false;
        }
        if (m_failure == 0) {
            ::_exit(diedStatus);
        }
        return true;
    }

    int m_left = 0;
    int m_failure;
};
