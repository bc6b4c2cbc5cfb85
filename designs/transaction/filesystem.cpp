// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/transaction/filesystem.h"

#include <QFile>
#include <QThread>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace designs {

namespace {

int failureOf(int result)
{
    return result < 0 ? errno : 0;
}

/// An open file that is closed on the way out.
class Descriptor final
{
public:
    explicit Descriptor(int number)
        : m_number(number)
    {
    }
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;
    ~Descriptor()
    {
        if (m_number >= 0) {
            ::close(m_number);
        }
    }

    [[nodiscard]] int number() const { return m_number; }
    [[nodiscard]] int release() { return std::exchange(m_number, -1); }

private:
    int m_number;
};

FileStatus::Kind kindOf(mode_t mode)
{
    if (S_ISREG(mode)) {
        return FileStatus::Kind::File;
    }
    return S_ISDIR(mode) ? FileStatus::Kind::Folder : FileStatus::Kind::Other;
}

bool isPlain(int file)
{
    struct stat opened = {};
    return ::fstat(file, &opened) == 0 && S_ISREG(opened.st_mode);
}

/// Whether the path still leads to the open file: whoever had the lock before may have removed it.
bool isStillThere(const QByteArray &path, int file)
{
    struct stat opened = {};
    struct stat named = {};
    return ::fstat(file, &opened) == 0 && ::stat(path.constData(), &named) == 0 &&
           opened.st_dev == named.st_dev && opened.st_ino == named.st_ino;
}

} // namespace

FileSystem::~FileSystem() = default;

FileSystem &FileSystem::real()
{
    static PosixFileSystem system;
    return system;
}

int PosixFileSystem::status(const QString &path, FileStatus *status)
{
    struct stat found = {};
    if (::lstat(QFile::encodeName(path).constData(), &found) != 0) {
        *status = {};
        return errno == ENOENT || errno == ENOTDIR ? 0 : errno;
    }
    *status = {kindOf(found.st_mode), found.st_mode & 07777U, found.st_uid,
               found.st_gid,          quint64(found.st_size), quint64(found.st_nlink)};
    return 0;
}

int PosixFileSystem::checkWritable(const QString &path)
{
    return failureOf(::access(QFile::encodeName(path).constData(), W_OK));
}

int PosixFileSystem::create(const QString &path, int *file)
{
    *file = ::open(QFile::encodeName(path).constData(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC,
                   0600);
    return failureOf(*file);
}

int PosixFileSystem::open(const QString &path, int *file)
{
    *file = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC);
    return failureOf(*file);
}

int PosixFileSystem::write(int file, std::string_view bytes, std::size_t *written)
{
    const ssize_t count = ::write(file, bytes.data(), bytes.size());
    if (count < 0 && errno == EINTR) {
        *written = 0;
        return 0;
    }
    *written = count > 0 ? std::size_t(count) : 0;
    return failureOf(int(count < 0 ? -1 : 0));
}

int PosixFileSystem::setAttributes(int file, const FileStatus &like)
{
    // Giving a file away is the administrator's right; a group may be set by its members.
    if (::fchown(file, like.owner, like.group) != 0 && ::fchown(file, uid_t(-1), like.group) != 0 &&
        errno != EPERM && errno != EINVAL) {
        return errno;
    }
    return failureOf(::fchmod(file, like.mode));
}

void PosixFileSystem::startSync([[maybe_unused]] int file)
{
#ifdef SYNC_FILE_RANGE_WRITE
    (void)::sync_file_range(file, 0, 0, SYNC_FILE_RANGE_WRITE);
#endif
}

int PosixFileSystem::sync(int file)
{
    return failureOf(::fsync(file));
}

void PosixFileSystem::dropFromMemory([[maybe_unused]] const QString &path)
{
#ifdef POSIX_FADV_DONTNEED
    const Descriptor file(
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    if (file.number() >= 0) {
        (void)::posix_fadvise(file.number(), 0, 0, POSIX_FADV_DONTNEED);
    }
#endif
}

int PosixFileSystem::close(int file)
{
    return failureOf(::close(file));
}

int PosixFileSystem::link(const QString &file, const QString &name)
{
    return failureOf(::link(QFile::encodeName(file).constData(), QFile::encodeName(name).constData()));
}

int PosixFileSystem::rename(const QString &from, const QString &to)
{
    const QByteArray target = QFile::encodeName(to);
#ifdef O_PATH
    // A file that is replaced goes when this is closed. Within the rename the folder would be locked as long
    // as the disk takes its blocks back, and renames in several threads would wait for each other.
    const Descriptor replaced(::open(target.constData(), O_PATH | O_NOFOLLOW | O_CLOEXEC));
#endif
    return failureOf(std::rename(QFile::encodeName(from).constData(), target.constData()));
}

int PosixFileSystem::remove(const QString &path)
{
    return failureOf(::unlink(QFile::encodeName(path).constData()));
}

int PosixFileSystem::makeFolder(const QString &path)
{
    return failureOf(::mkdir(QFile::encodeName(path).constData(), 0777));
}

int PosixFileSystem::removeFolder(const QString &path)
{
    return failureOf(::rmdir(QFile::encodeName(path).constData()));
}

int PosixFileSystem::syncFolder(const QString &path)
{
    const Descriptor folder(::open(QFile::encodeName(path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (folder.number() < 0) {
        return errno;
    }
    // Some network and foreign file systems cannot sync folders.
    return ::fsync(folder.number()) == 0 || errno == EINVAL ? 0 : errno;
}

int PosixFileSystem::lock(const QString &path, int *file)
{
    const QByteArray name = QFile::encodeName(path);
    while (true) {
        // Opening a pipe would wait for its other end.
        Descriptor opened(
            ::open(name.constData(), O_RDONLY | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, 0666));
        if (opened.number() < 0) {
            return errno;
        }
        if (!isPlain(opened.number())) {
            return EEXIST;
        }
        if (::flock(opened.number(), LOCK_EX | LOCK_NB) != 0) {
            return errno;
        }
        if (isStillThere(name, opened.number())) {
            *file = opened.release();
            return 0;
        }
    }
}

int PosixFileSystem::unlock(const QString &path, int file)
{
    const int failure = remove(path);
    ::close(file);
    return failure;
}

void PosixFileSystem::pause()
{
    QThread::msleep(20);
}

} // namespace designs
