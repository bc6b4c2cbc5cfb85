// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "bench/support/outputfile.h"

namespace bench {

namespace {

constexpr std::size_t bufferSize = 4U << 20U;

} // namespace

OutputFile::OutputFile()
    : m_buffer(bufferSize)
{
}

bool OutputFile::open(const std::filesystem::path &path)
{
    m_file.reset(std::fopen(path.c_str(), "wb"));
    m_used = 0;
    m_failed = !m_file;
    if (m_file) {
        std::setvbuf(m_file.get(), nullptr, _IONBF, 0);
    }
    return !m_failed;
}

bool OutputFile::close()
{
    flush();
    if (m_file && std::fclose(m_file.release()) != 0) {
        m_failed = true;
    }
    return !m_failed;
}

OutputFile &OutputFile::operator<<(Length length)
{
    std::int32_t rest = length.micrometres;
    if (rest < 0) {
        *this << '-';
        rest = -rest;
    }
    *this << rest / 1000;
    rest %= 1000;
    if (rest != 0) {
        const char digits[] = {'.', static_cast<char>('0' + rest / 100),
                               static_cast<char>('0' + rest / 10 % 10), static_cast<char>('0' + rest % 10)};
        const std::size_t count = rest % 100 == 0 ? 2 : rest % 10 == 0 ? 3 : 4;
        *this << std::string_view(digits, count);
    }
    return *this;
}

void OutputFile::flush()
{
    writeOut({m_buffer.data(), m_used});
    m_used = 0;
}

void OutputFile::writeOut(std::string_view bytes)
{
    if (!m_file || std::fwrite(bytes.data(), 1, bytes.size(), m_file.get()) != bytes.size()) {
        m_failed = m_failed || !bytes.empty();
    }
}

} // namespace bench
