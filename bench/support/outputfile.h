// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "bench/support/uuid.h"

#include <charconv>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <memory>
#include <string_view>
#include <type_traits>
#include <vector>

namespace bench {

/// A length in a drawing, in micrometres; written in millimetres without trailing zeros.
struct Length
{
    std::int32_t micrometres = 0;
};

[[nodiscard]] constexpr Length operator+(Length a, Length b)
{
    return {a.micrometres + b.micrometres};
}
[[nodiscard]] constexpr Length operator-(Length a, Length b)
{
    return {a.micrometres - b.micrometres};
}
[[nodiscard]] constexpr Length operator-(Length a)
{
    return {-a.micrometres};
}
[[nodiscard]] constexpr Length operator*(Length a, int factor)
{
    return {a.micrometres * factor};
}

/// A length literal: 1270_um is 1.27 mm.
[[nodiscard]] constexpr Length operator""_um(unsigned long long micrometres)
{
    return {static_cast<std::int32_t>(micrometres)};
}

/// Writes files one after the other through one large buffer. A failed write is remembered and reported by
/// close().
class OutputFile final
{
public:
    OutputFile();

    /// Starts a new file and empties an existing one. False when it cannot be made.
    [[nodiscard]] bool open(const std::filesystem::path &path);

    /// False when any byte since open() could not be written.
    [[nodiscard]] bool close();

    OutputFile &operator<<(std::string_view text)
    {
        reserve(text.size());
        if (text.size() > m_buffer.size()) {
            writeOut(text);
            return *this;
        }
        std::memcpy(m_buffer.data() + m_used, text.data(), text.size());
        m_used += text.size();
        return *this;
    }

    OutputFile &operator<<(char character) { return *this << std::string_view(&character, 1); }
    OutputFile &operator<<(Length length);

    OutputFile &operator<<(const Uuid &uuid)
    {
        const auto text = uuid.text();
        return *this << std::string_view(text.data(), text.size());
    }

    template<typename Number>
    requires std::is_integral_v<Number> OutputFile &operator<<(Number number)
    {
        char digits[24];
        const auto end = std::to_chars(digits, digits + sizeof digits, number).ptr;
        return *this << std::string_view(digits, static_cast<std::size_t>(end - digits));
    }

private:
    struct Closer
    {
        void operator()(std::FILE *file) const { std::fclose(file); }
    };

    void reserve(std::size_t size)
    {
        if (m_used + size > m_buffer.size()) {
            flush();
        }
    }

    void flush();
    void writeOut(std::string_view bytes);

    std::unique_ptr<std::FILE, Closer> m_file;
    std::vector<char> m_buffer;
    std::size_t m_used = 0;
    bool m_failed = false;
};

} // namespace bench
