// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "standalone/adiscript.h"

#include "designs/utf8.h"
#include "standalone/texts.h"

#include <istream>
#include <string_view>

namespace {

using namespace std::string_view_literals;

constexpr std::string_view dataStart = "DATA NAME : "sv;
constexpr std::string_view separator = "\"   :   \""sv;
constexpr std::string_view removal = "[REMOVE]"sv;

class Reader
{
public:
    Reader(std::istream &stream, const AdiLimits &limits)
        : m_buffer(*stream.rdbuf())
        , m_limits(limits)
    {
    }

    AdiScript run()
    {
        while (!isAtEnd() && takeRecord()) {
        }
        if (!m_script.error.isEmpty()) {
            m_script.assignments.clear();
        }
        return std::move(m_script);
    }

private:
    using Traits = std::char_traits<char>;

    bool fail(const QString &text)
    {
        m_script.error = ScriptTexts::tr("script line %1: %2").arg(QString::number(m_number), text);
        m_script.reference = m_reference;
        const std::size_t middle = m_line.find(separator, 1);
        if (!m_reference.empty() && m_line.starts_with('"') && middle != std::string::npos) {
            m_script.property = m_line.substr(1, middle - 1);
        }
        return false;
    }

    [[nodiscard]] bool isAtEnd() const { return Traits::eq_int_type(m_buffer.sgetc(), Traits::eof()); }

    bool takeLine()
    {
        ++m_number;
        m_line.clear();
        if (isAtEnd()) {
            return fail(ScriptTexts::tr("the script ends within a record"));
        }
        for (auto c = m_buffer.sbumpc(); !Traits::eq_int_type(c, Traits::to_int_type('\n'));
             c = m_buffer.sbumpc()) {
            if (Traits::eq_int_type(c, Traits::eof())) {
                return fail(ScriptTexts::tr("the script ends within a line"));
            }
            if (m_line.size() >= m_limits.lineBytes) {
                return fail(ScriptTexts::tr("the line is longer than %1 bytes").arg(m_limits.lineBytes));
            }
            m_line += Traits::to_char_type(c);
        }
        return designs::isUtf8(m_line) || fail(ScriptTexts::tr("the line is no UTF-8 text"));
    }

    bool takeRecord()
    {
        m_reference.clear();
        if (!takeLine() || !takeReference()) {
            return false;
        }
        while (takeLine() && m_line != "END") {
            if (!takeProperty()) {
                return false;
            }
        }
        if (!m_script.error.isEmpty() || !takeLine()) {
            return false;
        }
        return m_line.empty() || fail(ScriptTexts::tr("an empty line must follow END"));
    }

    bool takeReference()
    {
        const std::string_view line = m_line;
        if (!line.starts_with(dataStart) || !line.ends_with('-')) {
            return fail(
                ScriptTexts::tr("a record begins with DATA NAME, a colon, the reference and a hyphen"));
        }
        m_reference = line.substr(dataStart.size(), line.size() - dataStart.size() - 1);
        return !m_reference.empty() || fail(ScriptTexts::tr("the reference is missing"));
    }

    bool takeProperty()
    {
        const std::string_view line = m_line;
        const std::size_t middle = line.find(separator, 1);
        const std::size_t valueAt = middle + separator.size();
        if (!line.starts_with('"') || middle == std::string_view::npos || line.size() <= valueAt ||
            !line.ends_with('"')) {
            return fail(
                ScriptTexts::tr("this is neither a property with its value, both in quotes, nor END"));
        }
        if (middle == 1) {
            return fail(ScriptTexts::tr("the property has no name"));
        }
        if (m_script.assignments.size() >= m_limits.assignments) {
            return fail(
                ScriptTexts::tr("the script holds more than %1 properties").arg(m_limits.assignments));
        }
        const std::string_view value = line.substr(valueAt, line.size() - valueAt - 1);
        AdiAssignment &added = m_script.assignments.emplace_back();
        added.reference = m_reference;
        added.property = line.substr(1, middle - 1);
        if (value != removal) {
            added.value = value;
        }
        return true;
    }

    std::streambuf &m_buffer;
    const AdiLimits &m_limits;
    AdiScript m_script;
    int m_number = 0;
    std::string m_line;
    std::string m_reference;
};

} // namespace

AdiScript readAdiScript(std::istream &script, const AdiLimits &limits)
{
    return Reader(script, limits).run();
}
