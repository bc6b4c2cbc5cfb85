// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/filebuffer.h"

#include "designs/texts.h"
#include "files/regularfile.h"

#include <QFile>
#include <QFileInfo>

namespace designs {

namespace {

bool startsWith(std::string_view text, std::string_view start)
{
    if (text.starts_with("\xEF\xBB\xBF")) {
        text.remove_prefix(3);
    }
    const std::size_t first = text.find_first_not_of(" \t\r\n");
    // A comment may stand first; what follows it is the reader's business.
    return first != std::string_view::npos && (text.substr(first).starts_with(start) || text[first] == '#');
}

} // namespace

bool FileBuffer::read(const QString &path, std::string_view start, Problem *problem)
{
    const auto refuse = [&](const QString &text) {
        *problem = {path, 0, text};
        return false;
    };
    const QFileInfo info(path);
    if (info.isDir()) {
        return refuse(FileTexts::tr("this is a folder, not a file"));
    }
    if (info.exists() && !info.isFile()) {
        return refuse(FileTexts::tr("this is a device or pipe, not a file"));
    }
    QFile file(path);
    QString reason;
    if (!openRegularFile(&file, QIODevice::ReadOnly | QIODevice::Unbuffered, &reason)) {
        return refuse(FileTexts::tr("cannot be read: %1").arg(reason));
    }
    m_stamp = FileStamp::of(file.handle());
    const qint64 size = file.size();
    if (size == 0) {
        return refuse(FileTexts::tr("the file is empty"));
    }
    if (size > maximumSize) {
        return refuse(FileTexts::tr("the file is larger than 2 GiB"));
    }
    if (!startsWith(std::string_view(file.peek(4096).toStdString()), start)) {
        *problem = {path, 1,
                    FileTexts::tr("this is no file of this kind: it does not begin with \"%1\"")
                        .arg(QString::fromUtf8(start.data(), qsizetype(start.size())))};
        return false;
    }
    if (std::size_t(size) > m_capacity) {
        m_bytes.reset();
        m_capacity = std::size_t(size);
        m_bytes = allocateMemory(m_capacity);
    }
    m_size = 0;
    while (m_size < std::size_t(size)) {
        const qint64 got = file.read(m_bytes.get() + m_size, size - qint64(m_size));
        if (got <= 0) {
            return refuse(FileTexts::tr("cannot be read to its end: %1").arg(file.errorString()));
        }
        m_size += std::size_t(got);
    }
    return true;
}

} // namespace designs
