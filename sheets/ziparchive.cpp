// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "sheets/ziparchive.h"
#include "sheets/texts.h"

#include <QtEndian>

#include <algorithm>
#include <utility>

#include <zlib.h>

// The format: https://pkware.cachefly.net/webdocs/casestudies/APPNOTE.TXT
namespace {

constexpr qsizetype endSize = 22;
constexpr qsizetype longestComment = 0xFFFF;
constexpr qsizetype directoryEntrySize = 46;
constexpr qsizetype localHeaderSize = 30;
constexpr quint32 directoryMark = 0x02014b50;
constexpr quint32 localMark = 0x04034b50;
constexpr quint32 endMark = 0x06054b50;
constexpr quint32 inLargerRecord = 0xFFFFFFFF;
constexpr quint16 storedMethod = 0;
constexpr quint16 deflatedMethod = 8;
constexpr quint16 encryptedFlag = 1;

quint16 number16(const QByteArray &bytes, qsizetype at)
{
    return qFromLittleEndian<quint16>(bytes.constData() + at);
}

quint32 number32(const QByteArray &bytes, qsizetype at)
{
    return qFromLittleEndian<quint32>(bytes.constData() + at);
}

/// Where the directory's own end record begins; -1 when there is none.
qsizetype endRecord(const QByteArray &bytes)
{
    const qsizetype first = std::max<qsizetype>(0, bytes.size() - endSize - longestComment);
    for (qsizetype at = bytes.size() - endSize; at >= first; --at) {
        if (number32(bytes, at) == endMark) {
            return at;
        }
    }
    return -1;
}

/// Unpacks a part while it is read, never more than the directory says, and compares its checksum at the end.
class PartDevice final : public QIODevice
{
public:
    PartDevice(QByteArrayView packed, bool isDeflated, quint32 size, quint32 checksum)
        : m_packed(packed)
        , m_isDeflated(isDeflated)
        , m_left(size)
        , m_checksum(checksum)
    {
        m_stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(packed.data()));
        m_stream.avail_in = uInt(packed.size());
        // Without the header that a stream of its own would have.
        m_isReady = !isDeflated || inflateInit2(&m_stream, -MAX_WBITS) == Z_OK;
        (void)open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }
    ~PartDevice() override
    {
        if (m_isDeflated) {
            (void)inflateEnd(&m_stream);
        }
    }
    Q_DISABLE_COPY_MOVE(PartDevice)

    [[nodiscard]] bool isSequential() const override { return true; }
    [[nodiscard]] bool atEnd() const override { return m_left == 0 || m_isBroken; }

protected:
    qint64 readData(char *data, qint64 most) override
    {
        const uInt wanted = uInt(std::min<qint64>({most, m_left, 1 << 20}));
        if (wanted == 0 || m_isBroken) {
            return m_isBroken ? -1 : 0;
        }
        const qint64 got = m_isReady ? unpack(data, wanted) : 0;
        m_sum = crc32(m_sum, reinterpret_cast<const Bytef *>(data), uInt(got));
        m_left -= got;
        if (got == 0 || (m_left == 0 && m_sum != m_checksum)) {
            m_isBroken = true;
            setErrorString(SpreadsheetTexts::tr("the file is damaged or cut off"));
            return -1;
        }
        return got;
    }
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    qint64 unpack(char *data, uInt wanted)
    {
        if (!m_isDeflated) {
            const qint64 got = std::min<qint64>(wanted, m_packed.size() - m_taken);
            std::copy_n(m_packed.data() + m_taken, got, data);
            m_taken += got;
            return got;
        }
        m_stream.next_out = reinterpret_cast<Bytef *>(data);
        m_stream.avail_out = wanted;
        (void)inflate(&m_stream, Z_NO_FLUSH);
        return wanted - m_stream.avail_out;
    }

    QByteArrayView m_packed;
    bool m_isDeflated;
    bool m_isReady = false;
    bool m_isBroken = false;
    qint64 m_left;
    qint64 m_taken = 0;
    quint32 m_checksum;
    uLong m_sum = 0;
    z_stream m_stream{};
};

} // namespace

bool ZipArchive::isArchive(const QByteArray &bytes)
{
    return bytes.startsWith("PK\3\4") || bytes.startsWith("PK\5\6");
}

std::optional<ZipArchive> ZipArchive::open(QByteArray bytes, const SheetLimits &limits, QString *problem)
{
    ZipArchive archive;
    archive.m_bytes = std::move(bytes);
    archive.m_limits = limits;
    const qsizetype end = endRecord(archive.m_bytes);
    if (end < 0) {
        *problem = SpreadsheetTexts::tr("the file is damaged or cut off: it has no directory of its parts");
        return std::nullopt;
    }
    return archive.readDirectory(end, problem) ? std::optional(std::move(archive)) : std::nullopt;
}

bool ZipArchive::readDirectory(qsizetype end, QString *problem)
{
    const int count = number16(m_bytes, end + 10);
    qsizetype at = number32(m_bytes, end + 16);
    if (count > m_limits.archiveEntries) {
        *problem = SpreadsheetTexts::tr("the file has more than %1 parts").arg(m_limits.archiveEntries);
        return false;
    }
    for (int i = 0; i < count; ++i) {
        const bool isInside = at + directoryEntrySize <= end && number32(m_bytes, at) == directoryMark;
        const qsizetype nameSize = isInside ? number16(m_bytes, at + 28) : 0;
        if (!isInside || at + directoryEntrySize + nameSize > end) {
            *problem = SpreadsheetTexts::tr("the file is damaged: the directory of its parts cannot be read");
            return false;
        }
        const QString name = QString::fromUtf8(m_bytes.constData() + at + directoryEntrySize, nameSize);
        if (m_entries.contains(name)) {
            *problem = SpreadsheetTexts::tr("the file has two parts of the name %1").arg(name);
            return false;
        }
        m_entries.insert(name, {number16(m_bytes, at + 8), number16(m_bytes, at + 10),
                                number32(m_bytes, at + 16), number32(m_bytes, at + 20),
                                number32(m_bytes, at + 24), number32(m_bytes, at + 42)});
        at += directoryEntrySize + nameSize + number16(m_bytes, at + 30) + number16(m_bytes, at + 32);
    }
    return true;
}

qsizetype ZipArchive::beginOf(const Entry &entry) const
{
    const qsizetype header = entry.header;
    if (header + localHeaderSize > m_bytes.size() || number32(m_bytes, header) != localMark) {
        return -1;
    }
    const qsizetype begin =
        header + localHeaderSize + number16(m_bytes, header + 26) + number16(m_bytes, header + 28);
    return begin + qsizetype(entry.packedSize) <= m_bytes.size() ? begin : -1;
}

std::unique_ptr<QIODevice> ZipArchive::part(const QString &name, QString *problem) const
{
    const auto entry = m_entries.constFind(name);
    const auto fail = [&](const QString &text) {
        *problem = text;
        return nullptr;
    };
    if (entry == m_entries.cend()) {
        return fail(
            SpreadsheetTexts::tr("the file is no spreadsheet that can be read: it has no part %1").arg(name));
    }
    if (entry->flags & encryptedFlag) {
        return fail(SpreadsheetTexts::tr("the file is encrypted: save it without a password"));
    }
    if (entry->size > m_limits.unpackedBytes || entry->packedSize == inLargerRecord) {
        return fail(SpreadsheetTexts::tr("its part %1 has more than %2 MiB, the most that is unpacked")
                        .arg(name, QString::number(m_limits.unpackedBytes / (1024 * 1024))));
    }
    const qsizetype begin = beginOf(*entry);
    if (begin < 0) {
        return fail(SpreadsheetTexts::tr("the file is damaged or cut off"));
    }
    if (entry->method != storedMethod && entry->method != deflatedMethod) {
        return fail(SpreadsheetTexts::tr("its part %1 is packed in an unknown way").arg(name));
    }
    return std::make_unique<PartDevice>(QByteArrayView(m_bytes).sliced(begin, entry->packedSize),
                                        entry->method == deflatedMethod, entry->size, entry->checksum);
}
