// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "bench/multiply/sheetcopier.h"

#include "bench/support/outputfile.h"

#include <algorithm>
#include <charconv>
#include <utility>

namespace bench {

namespace {

std::size_t digitsAtEnd(std::string_view reference)
{
    const std::size_t last = reference.find_last_not_of("0123456789");
    return last == std::string_view::npos ? 0 : reference.size() - last - 1;
}

} // namespace

std::optional<std::uint64_t> referenceNumber(std::string_view reference)
{
    const std::string_view digits = reference.substr(reference.size() - digitsAtEnd(reference));
    std::uint64_t number = 0;
    if (std::from_chars(digits.data(), digits.data() + digits.size(), number).ec != std::errc()) {
        return std::nullopt;
    }
    return number;
}

SheetCopier::SheetCopier(std::string bytes, std::string_view root)
    : m_bytes(std::move(bytes))
    , m_scan(scanSheet(m_bytes))
    , m_rootPath('/' + std::string(root.empty() ? m_scan.uuid.text : root))
{
    for (const FoundText &path : m_scan.paths) {
        if (belongs(path.text)) {
            m_changes.push_back({path.offset, m_rootPath.size(), std::nullopt});
        }
    }
    for (const FoundReference &found : m_scan.references) {
        const std::string_view text = found.reference.text;
        const auto number = referenceNumber(text);
        if (number && (found.path.empty() || belongs(found.path))) {
            const std::size_t digits = digitsAtEnd(text);
            m_changes.push_back({found.reference.offset + text.size() - digits, digits, number});
        }
    }
    std::ranges::sort(m_changes, {}, &Change::offset);
}

bool SheetCopier::belongs(std::string_view path) const
{
    return path.starts_with(m_rootPath) &&
           (path.size() == m_rootPath.size() || path[m_rootPath.size()] == '/');
}

std::vector<std::string_view> SheetCopier::references() const
{
    std::vector<std::string_view> references;
    for (const FoundReference &found : m_scan.references) {
        if (!found.path.empty() && belongs(found.path)) {
            references.push_back(found.reference.text);
        }
    }
    return references;
}

void SheetCopier::write(OutputFile &out, std::string_view path, std::uint64_t shift) const
{
    const std::string_view bytes = m_bytes;
    std::size_t done = 0;
    for (const Change &change : m_changes) {
        out << bytes.substr(done, change.offset - done);
        if (change.number) {
            out << *change.number + shift;
        } else {
            out << path;
        }
        done = change.offset + change.length;
    }
    out << bytes.substr(done);
}

} // namespace bench
