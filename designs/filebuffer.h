// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/filefingerprint.h"
#include "designs/largememory.h"
#include "designs/problem.h"

#include <string_view>

namespace designs {

/// One buffer that files are read into one after the other, so that a design of many sheets takes the memory
/// of its largest file once.
class FileBuffer
{
public:
    /// Files larger than this are refused.
    static constexpr qint64 maximumSize = qint64(2) * 1024 * 1024 * 1024;

    /// Reads the whole file; the text stays valid until the next call. A file whose first bytes (behind
    /// blanks and a byte-order mark) are not `start` is refused without being read. False fills `problem`.
    bool read(const QString &path, std::string_view start, Problem *problem);

    /// Of the file, as it was before it was read.
    [[nodiscard]] const FileStamp &stamp() const { return m_stamp; }
    /// Of the text.
    [[nodiscard]] FileFingerprint fingerprint() const { return fingerprintOf(text()); }

    [[nodiscard]] std::string_view text() const { return {m_bytes.get(), m_size}; }

private:
    LargeMemory m_bytes;
    FileStamp m_stamp;
    std::size_t m_size = 0;
    std::size_t m_capacity = 0;
};

} // namespace designs
