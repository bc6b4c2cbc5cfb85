// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <string_view>

namespace designs {

/// What stands under a path; of a symbolic link the link itself.
struct FileStatus
{
    enum class Kind
    {
        Missing,
        File,
        Folder,
        Other
    };

    Kind kind = Kind::Missing;
    /// The permission bits.
    quint32 mode = 0644;
    quint32 owner = ~quint32(0);
    quint32 group = ~quint32(0);
    quint64 size = 0;
    /// Under how many names (hard links) the file is known.
    quint64 names = 1;
};

/// The operations by which design files are replaced, so that tests can let each of them fail. Each gives 0,
/// or the errno that says why it failed. Those on large files are called from several threads at once.
class FileSystem
{
public:
    FileSystem() = default;
    FileSystem(const FileSystem &) = delete;
    FileSystem &operator=(const FileSystem &) = delete;
    virtual ~FileSystem();

    /// The one of the machine.
    [[nodiscard]] static FileSystem &real();

    /// A missing file is no failure.
    [[nodiscard]] virtual int status(const QString &path, FileStatus *status) = 0;
    /// Whether this user may write the file, or create files in the folder.
    [[nodiscard]] virtual int checkWritable(const QString &path) = 0;

    /// Creates a file that must not exist, readable by its owner alone.
    [[nodiscard]] virtual int create(const QString &path, int *file) = 0;
    /// Opens a file that is there, for sync() only.
    [[nodiscard]] virtual int open(const QString &path, int *file) = 0;
    [[nodiscard]] virtual int write(int file, std::string_view bytes, std::size_t *written) = 0;
    /// Gives the file the permissions and, as far as this user may, the owner and group of another.
    [[nodiscard]] virtual int setAttributes(int file, const FileStatus &like) = 0;
    /// Begins to bring what was written to the disk, without waiting.
    virtual void startSync(int file) = 0;
    [[nodiscard]] virtual int sync(int file) = 0;
    /// Says that nobody will read the file soon, so that what the system keeps of it in memory makes room.
    /// Its content stays.
    virtual void dropFromMemory(const QString &path) = 0;
    [[nodiscard]] virtual int close(int file) = 0;

    /// Gives the file a further name, which must be free.
    [[nodiscard]] virtual int link(const QString &file, const QString &name) = 0;
    [[nodiscard]] virtual int rename(const QString &from, const QString &to) = 0;
    [[nodiscard]] virtual int remove(const QString &path) = 0;
    [[nodiscard]] virtual int makeFolder(const QString &path) = 0;
    /// Only an empty one.
    [[nodiscard]] virtual int removeFolder(const QString &path) = 0;
    /// Makes what was created, renamed and removed in the folder last.
    [[nodiscard]] virtual int syncFolder(const QString &path) = 0;

    /// Takes the lock that the file stands for, without waiting: EWOULDBLOCK while another process has it. It
    /// ends with the process.
    [[nodiscard]] virtual int lock(const QString &path, int *file) = 0;
    /// Removes the file and gives the lock back.
    [[nodiscard]] virtual int unlock(const QString &path, int file) = 0;
    /// A moment between two attempts to lock.
    virtual void pause() = 0;
};

/// The file system of the machine.
class PosixFileSystem : public FileSystem
{
public:
    [[nodiscard]] int status(const QString &path, FileStatus *status) override;
    [[nodiscard]] int checkWritable(const QString &path) override;
    [[nodiscard]] int create(const QString &path, int *file) override;
    [[nodiscard]] int open(const QString &path, int *file) override;
    [[nodiscard]] int write(int file, std::string_view bytes, std::size_t *written) override;
    [[nodiscard]] int setAttributes(int file, const FileStatus &like) override;
    void startSync(int file) override;
    [[nodiscard]] int sync(int file) override;
    void dropFromMemory(const QString &path) override;
    [[nodiscard]] int close(int file) override;
    [[nodiscard]] int link(const QString &file, const QString &name) override;
    [[nodiscard]] int rename(const QString &from, const QString &to) override;
    [[nodiscard]] int remove(const QString &path) override;
    [[nodiscard]] int makeFolder(const QString &path) override;
    [[nodiscard]] int removeFolder(const QString &path) override;
    [[nodiscard]] int syncFolder(const QString &path) override;
    [[nodiscard]] int lock(const QString &path, int *file) override;
    [[nodiscard]] int unlock(const QString &path, int file) override;
    void pause() override;
};

} // namespace designs
