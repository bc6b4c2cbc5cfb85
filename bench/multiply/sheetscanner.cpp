// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "bench/multiply/sheetscanner.h"

#include <algorithm>
#include <initializer_list>

namespace bench {

namespace {

class Scanner final
{
public:
    explicit Scanner(std::string_view bytes)
        : m_bytes(bytes)
    {
    }

    SheetScan run()
    {
        while (m_at < m_bytes.size()) {
            step();
        }
        m_scan.complete = m_lists.empty() && m_sawList && !m_scan.uuid.text.empty();
        return m_scan;
    }

private:
    struct List
    {
        std::size_t start = 0;
        std::string_view name;
        std::string_view first; ///< its first argument
        int tokens = 0;
    };

    void step()
    {
        const char character = m_bytes[m_at];
        if (character == '(') {
            m_lists.push_back({m_at++, {}, {}, 0});
            m_sawList = true;
        } else if (character == ')') {
            if (!m_lists.empty()) {
                m_lists.pop_back();
            }
            ++m_at;
        } else if (character == '"') {
            quoted();
        } else if (std::string_view(" \t\r\n").find(character) != std::string_view::npos) {
            ++m_at;
        } else {
            atom();
        }
    }

    void quoted()
    {
        const std::size_t start = ++m_at;
        while (m_at < m_bytes.size() && m_bytes[m_at] != '"') {
            m_at += m_bytes[m_at] == '\\' ? 2 : 1;
        }
        const std::size_t end = std::min(m_at, m_bytes.size());
        token({start, m_bytes.substr(start, end - start)});
        ++m_at;
    }

    void atom()
    {
        const std::size_t start = m_at;
        m_at = std::min(m_bytes.find_first_of(" \t\r\n()\"", start), m_bytes.size());
        token({start, m_bytes.substr(start, m_at - start)});
    }

    void token(const FoundText &found)
    {
        if (m_lists.empty()) {
            return;
        }
        List &list = m_lists.back();
        const int index = list.tokens++;
        if (index == 0) {
            list.name = found.text;
        } else if (index == 1) {
            list.first = found.text;
            firstArgument(list, found);
        } else if (index == 2 && list.name == "property") {
            property(list.first, found);
        }
    }

    void firstArgument(const List &list, const FoundText &found)
    {
        if (list.name == "path" &&
            (inside({"symbol", "instances", "project"}) || inside({"sheet", "instances", "project"}))) {
            m_scan.paths.push_back(found);
        } else if (list.name == "reference" && inside({"symbol", "instances", "project", "path"})) {
            m_scan.references.push_back({found, m_lists[m_lists.size() - 2].first});
        } else if (list.name == "uuid" && inside({})) {
            m_scan.headerEnd = list.start;
            m_scan.uuid = found;
        }
    }

    void property(std::string_view name, const FoundText &found)
    {
        if (name == "Reference" && inside({"symbol"})) {
            m_scan.references.push_back({found, {}});
        } else if ((name == "Sheetfile" || name == "Sheet file") && inside({"sheet"})) {
            m_scan.sheetFiles.push_back(found.text);
        }
    }

    /// Whether the lists around the current one are `kicad_sch` and then these.
    [[nodiscard]] bool inside(std::initializer_list<std::string_view> names) const
    {
        return m_lists.size() == names.size() + 2 && m_lists.front().name == "kicad_sch" &&
               std::equal(names.begin(), names.end(), m_lists.begin() + 1,
                          [](std::string_view name, const List &list) { return name == list.name; });
    }

    std::string_view m_bytes;
    std::size_t m_at = 0;
    bool m_sawList = false;
    std::vector<List> m_lists;
    SheetScan m_scan;
};

} // namespace

SheetScan scanSheet(std::string_view bytes)
{
    return Scanner(bytes).run();
}

} // namespace bench
