// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/resultstream.h"

#include "host/framework/hosttext.h"

#include <algorithm>

namespace {

constexpr std::string_view success = "no errors";

bool isSame(char written, char lower)
{
    return (written >= 'A' && written <= 'Z' ? char(written - 'A' + 'a') : written) == lower;
}

} // namespace

QString ResultStream::text() const
{
    return fromHostText(QByteArrayView(m_buffer.text.data(), qsizetype(m_buffer.text.size())));
}

ResultStream::Buffer::int_type ResultStream::Buffer::overflow(int_type character)
{
    if (!traits_type::eq_int_type(character, traits_type::eof())) {
        const char written = traits_type::to_char_type(character);
        add({&written, 1});
    }
    return traits_type::not_eof(character);
}

std::streamsize ResultStream::Buffer::xsputn(const char *characters, std::streamsize count)
{
    add({characters, std::size_t(count)});
    return count;
}

void ResultStream::Buffer::add(std::string_view characters)
{
    const std::size_t before = text.size();
    text += characters;
    if (!isFound) {
        const std::size_t overlap = std::min(before, success.size() - 1);
        isFound = std::search(text.begin() + std::ptrdiff_t(before - overlap), text.end(), success.begin(),
                              success.end(), isSame) != text.end();
    }
}
