// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/linenumbers.h"

#include <algorithm>

namespace designs {

int LineNumbers::line(const QString &path, quint64 offset)
{
    auto known = m_lineEnds.find(path);
    if (known == m_lineEnds.end()) {
        Problem problem;
        if (!m_buffer.read(path, m_start, &problem)) {
            return 0;
        }
        std::vector<quint64> ends;
        const std::string_view text = m_buffer.text();
        for (std::size_t at = text.find('\n'); at != std::string_view::npos; at = text.find('\n', at + 1)) {
            ends.push_back(at);
        }
        known = m_lineEnds.insert(path, {});
        known->swap(ends);
    }
    return 1 + int(std::lower_bound(known->begin(), known->end(), offset) - known->begin());
}

} // namespace designs
