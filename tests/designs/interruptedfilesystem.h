// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/transaction/filesystem.h"

#include <atomic>
#include <unistd.h>

/// The machine's file system until a certain step: there one operation fails, or the process ends. Each
/// operation is a step; where the process is to end, there is one before and one after it. Nothing waits for
/// the disk. Several threads may use it.
class InterruptedFileSystem final : public designs::FileSystem
{
public:
    static constexpr int diedStatus = 77;
    using Status = designs::FileStatus;

    /// `failure` is an errno, 0 for the end of the process; step 0 never comes.
    InterruptedFileSystem(int step, int failure)
        : m_left(step)
        , m_failure(failure)
    {
    }

    [[nodiscard]] bool hasFailed() const { return m_left <= 0; }

    int status(const QString &path, Status *found) override { return run(&FileSystem::status, path, found); }
    int checkWritable(const QString &path) override { return run(&FileSystem::checkWritable, path); }
    int create(const QString &path, int *file) override { return run(&FileSystem::create, path, file); }
    int open(const QString &path, int *file) override { return run(&FileSystem::open, path, file); }
    int link(const QString &file, const QString &name) override { return run(&FileSystem::link, file, name); }
    void startSync(int) override {}
    void dropFromMemory(const QString &) override {}
    int write(int file, std::string_view bytes, std::size_t *written) override
    {
        // In small pieces, so that a file can be left half written.
        return run(&FileSystem::write, file, bytes.substr(0, 500), written);
    }
    int setAttributes(int file, const Status &like) override
    {
        return run(&FileSystem::setAttributes, file, like);
    }
    int sync(int) override { return withResult(0); }
    int close(int file) override { return withResult(m_real.close(file)); }
    int rename(const QString &from, const QString &to) override { return run(&FileSystem::rename, from, to); }
    int remove(const QString &path) override { return run(&FileSystem::remove, path); }
    int makeFolder(const QString &path) override { return run(&FileSystem::makeFolder, path); }
    int removeFolder(const QString &path) override { return run(&FileSystem::removeFolder, path); }
    int syncFolder(const QString &path) override
    {
        return withSteps([&] { return ::access(path.toLocal8Bit().constData(), F_OK); });
    }
    int lock(const QString &path, int *file) override { return run(&FileSystem::lock, path, file); }
    int unlock(const QString &path, int file) override { return withResult(m_real.unlock(path, file)); }
    void pause() override {}

private:
    template<class... Parameters, class... Arguments>
    int run(int (FileSystem::*operation)(Parameters...), const Arguments &...arguments)
    {
        return withSteps([&] { return (m_real.*operation)(arguments...); });
    }
    /// Of what is done even when it is told to fail.
    int withResult(int failure)
    {
        return withSteps([failure] { return failure; });
    }

    template<class Operation>
    int withSteps(const Operation &operation)
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
        if (m_left <= 0 || --m_left != 0) {
            return false;
        }
        if (m_failure == 0) {
            ::_exit(diedStatus);
        }
        return true;
    }

    designs::PosixFileSystem m_real;
    std::atomic<int> m_left = 0;
    int m_failure;
};
