// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <ostream>
#include <streambuf>
#include <string>
#include <string_view>

/// The stream into which the host's component database writes the results of scripts. It keeps all of it and
/// knows at any time, without searching it again, whether "No Errors" is in it.
class ResultStream final : public std::ostream
{
public:
    ResultStream()
        : std::ostream(&m_buffer)
    {
    }

    /// In any letter case.
    [[nodiscard]] bool saysNoErrors() const { return m_buffer.isFound; }
    [[nodiscard]] QString text() const;

private:
    class Buffer final : public std::streambuf
    {
    public:
        std::string text;
        bool isFound = false;

    protected:
        int_type overflow(int_type character) override;
        std::streamsize xsputn(const char *characters, std::streamsize count) override;

    private:
        void add(std::string_view characters);
    };

    Buffer m_buffer;
};
