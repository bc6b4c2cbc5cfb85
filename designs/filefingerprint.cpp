// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/filefingerprint.h"

#include "files/regularfile.h"

#include <QFile>
#include <QFileInfo>

#include <xxhash.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <memory>

#include <sys/stat.h>

namespace designs {

namespace {

constexpr std::size_t blockSize = 1 << 20;

struct StateDeleter
{
    void operator()(XXH3_state_t *state) const { XXH3_freeState(state); }
};

qint64 nanoseconds(const timespec &time)
{
    return qint64(time.tv_sec) * 1'000'000'000 + time.tv_nsec;
}

FileStamp stampOf(const struct stat &found)
{
    constexpr qint64 longestStep = 3'000'000'000;
    FileStamp stamp{quint64(found.st_dev),      quint64(found.st_ino),      qint64(found.st_size),
                    nanoseconds(found.st_mtim), nanoseconds(found.st_ctim), false};
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    const qint64 latest = std::max(stamp.modified, stamp.changed);
    stamp.isTelling = latest + longestStep < std::chrono::nanoseconds(now).count();
    return stamp;
}

QString hex(quint64 number)
{
    return QStringLiteral("%1").arg(number, 16, 16, QLatin1Char('0'));
}

} // namespace

QString FileFingerprint::toString() const
{
    return QString::number(size) + u'-' + hex(high) + hex(low);
}

std::optional<FileFingerprint> FileFingerprint::fromString(QStringView text)
{
    const qsizetype dash = text.indexOf(u'-');
    if (dash < 1 || text.size() - dash - 1 != 32) {
        return std::nullopt;
    }
    std::array<bool, 3> isNumber{};
    const FileFingerprint read{text.left(dash).toULongLong(&isNumber[0]),
                               text.mid(dash + 1, 16).toULongLong(&isNumber[1], 16),
                               text.mid(dash + 17).toULongLong(&isNumber[2], 16)};
    return isNumber[0] && isNumber[1] && isNumber[2] ? std::optional(read) : std::nullopt;
}

FileStamp FileStamp::of(int file)
{
    struct stat found = {};
    return ::fstat(file, &found) == 0 ? stampOf(found) : FileStamp();
}

bool FileStamp::isOf(const QString &path) const
{
    struct stat found = {};
    if (!isTelling || ::stat(QFile::encodeName(path).constData(), &found) != 0) {
        return false;
    }
    const FileStamp now = stampOf(found);
    return now.device == device && now.number == number && now.size == size && now.modified == modified &&
           now.changed == changed;
}

FileFingerprint fingerprintOf(std::string_view bytes)
{
    const XXH128_hash_t hash = XXH3_128bits(bytes.data(), bytes.size());
    return {bytes.size(), hash.high64, hash.low64};
}

std::optional<FileFingerprint> fingerprintOfFile(const QString &path)
{
    QFile file(path);
    QString reason;
    if (!openRegularFile(&file, QIODevice::ReadOnly | QIODevice::Unbuffered, &reason)) {
        return std::nullopt;
    }
    const std::unique_ptr<XXH3_state_t, StateDeleter> state(XXH3_createState());
    XXH3_128bits_reset(state.get());
    QByteArray block(blockSize, Qt::Uninitialized);
    qint64 size = 0;
    for (const qint64 wanted = file.size(); size < wanted;) {
        const qint64 got = file.read(block.data(), std::min(qint64(block.size()), wanted - size));
        if (got < 0) {
            return std::nullopt;
        }
        if (got == 0) {
            break;
        }
        XXH3_128bits_update(state.get(), block.constData(), std::size_t(got));
        size += got;
    }
    const XXH128_hash_t hash = XXH3_128bits_digest(state.get());
    return FileFingerprint{quint64(size), hash.high64, hash.low64};
}

} // namespace designs
