// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "bench/multiply/designmultiplier.h"

#include "bench/support/random.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <optional>
#include <set>
#include <system_error>
#include <utility>

namespace bench {

namespace {

std::optional<std::string> readFile(const std::filesystem::path &path)
{
    std::ifstream file(path, std::ios::binary);
    std::string bytes{std::istreambuf_iterator<char>(file), {}};
    if (!file || bytes.empty()) {
        return std::nullopt;
    }
    return bytes;
}

std::string folderName(std::uint64_t number)
{
    const std::string digits = std::to_string(number);
    return "copy" + std::string(4 - std::min<std::size_t>(4, digits.size()), '0') + digits;
}

bool leavesFolder(const std::filesystem::path &relative)
{
    return relative.is_absolute() || relative.empty() || *relative.begin() == ".." ||
           relative.string().find("${") != std::string::npos;
}

} // namespace

std::string DesignMultiplier::load()
{
    const std::string problem = loadSheet(m_root.filename());
    if (!problem.empty()) {
        return problem;
    }
    countParts();
    if (m_parts == 0) {
        return m_root.string() + ": has no references beside its symbols; KiCad 7 or later is needed";
    }
    return {};
}

std::string DesignMultiplier::loadSheet(const std::filesystem::path &relative)
{
    if (m_files.contains(relative)) {
        return {};
    }
    const std::filesystem::path path = m_root.parent_path() / relative;
    auto bytes = readFile(path);
    if (!bytes) {
        return path.string() + ": cannot be read";
    }
    auto copier = std::make_unique<SheetCopier>(std::move(*bytes), m_rootId);
    const SheetScan &scan = copier->scan();
    if (!scan.complete) {
        return path.string() + ": is no complete KiCad schematic";
    }
    if (m_rootId.empty()) {
        m_rootId = scan.uuid.text;
    }
    m_files.emplace(relative, std::move(copier));
    for (const std::string_view file : scan.sheetFiles) {
        const auto below = (relative.parent_path() / file).lexically_normal();
        if (leavesFolder(below)) {
            return path.string() + ": the sheet file " + std::string(file) +
                   " is not below the root's folder";
        }
        if (const std::string problem = loadSheet(below); !problem.empty()) {
            return problem;
        }
    }
    return {};
}

void DesignMultiplier::countParts()
{
    std::set<std::string_view> references;
    std::uint64_t highest = 0;
    for (const auto &[path, copier] : m_files) {
        for (const std::string_view reference : copier->references()) {
            highest = std::max(highest, referenceNumber(reference).value_or(0));
            if (!reference.starts_with('#')) {
                references.insert(reference);
            }
        }
    }
    m_parts = references.size();
    while (m_step <= highest) {
        m_step *= 10;
    }
}

std::string DesignMultiplier::write(std::uint64_t parts, const std::filesystem::path &folder)
{
    std::error_code error;
    if (std::filesystem::equivalent(folder, std::filesystem::absolute(m_root).parent_path(), error)) {
        return folder.string() + ": holds the original design; choose another folder";
    }
    Random random = Random::stream(parts, m_parts);
    m_newRoot = Uuid::random(random);
    m_sheets.resize((parts + m_parts - 1) / m_parts);
    for (Uuid &sheet : m_sheets) {
        sheet = Uuid::random(random);
    }
    for (std::uint64_t number = 1; number <= m_sheets.size(); ++number) {
        if (!writeCopy(number, folder / folderName(number))) {
            return (folder / folderName(number)).string() + ": cannot be written";
        }
    }
    if (!writeRoot(folder) || !writeProject(folder)) {
        return folder.string() + ": cannot be written";
    }
    return {};
}

bool DesignMultiplier::writeCopy(std::uint64_t number, const std::filesystem::path &folder)
{
    const std::string path = '/' + m_newRoot.string() + '/' + m_sheets[number - 1].string();
    for (const auto &[relative, copier] : m_files) {
        std::error_code error;
        std::filesystem::create_directories((folder / relative).parent_path(), error);
        if (error || !m_out.open(folder / relative)) {
            return false;
        }
        copier->write(m_out, path, number * m_step);
        if (!m_out.close()) {
            return false;
        }
    }
    return true;
}

bool DesignMultiplier::writeRoot(const std::filesystem::path &folder)
{
    if (!m_out.open(folder / m_root.filename())) {
        return false;
    }
    const SheetCopier &original = *m_files.at(m_root.filename());
    const bool quoted = original.bytes()[original.scan().uuid.offset - 1] == '"';
    m_out << std::string_view(original.bytes()).substr(0, original.scan().headerEnd) << "(uuid "
          << (quoted ? "\"" : "") << m_newRoot << (quoted ? "\"" : "")
          << ")\n\t(paper \"A2\")\n\t(lib_symbols)\n";
    for (std::uint64_t number = 1; number <= m_sheets.size(); ++number) {
        writeSheetSymbol(number);
    }
    m_out << "\t(sheet_instances\n\t\t(path \"/\"\n\t\t\t(page \"1\")\n\t\t)\n\t)\n)\n";
    return m_out.close();
}

void DesignMultiplier::writeSheetSymbol(std::uint64_t number)
{
    const auto place = static_cast<int>(number - 1);
    const Length x = 25400_um + 30480_um * (place % 18);
    const Length y = 25400_um + 20320_um * (place / 18);
    const std::string name = folderName(number);
    const std::string file = name + '/' + m_root.filename().string();
    m_out << "\t(sheet\n\t\t(at " << x << ' ' << y << ")\n\t\t(size 20.32 12.7)\n"
          << "\t\t(stroke\n\t\t\t(width 0)\n\t\t\t(type solid)\n\t\t)\n"
          << "\t\t(fill\n\t\t\t(color 0 0 0 0.0000)\n\t\t)\n\t\t(uuid \"" << m_sheets[number - 1] << "\")\n";
    for (const bool isFile : {false, true}) {
        m_out << "\t\t(property \"" << (isFile ? "Sheetfile" : "Sheetname") << "\" \""
              << (isFile ? file : name) << "\"\n\t\t\t(at " << x << ' '
              << (isFile ? y + 13335_um : y - 635_um) << " 0)\n\t\t\t(effects\n"
              << "\t\t\t\t(font\n\t\t\t\t\t(size 1.27 1.27)\n\t\t\t\t)\n\t\t\t\t(justify left "
              << (isFile ? "top" : "bottom") << ")\n\t\t\t)\n\t\t)\n";
    }
    m_out << "\t\t(instances\n\t\t\t(project \"" << m_root.stem().string() << "\"\n\t\t\t\t(path \"/"
          << m_newRoot << "\"\n\t\t\t\t\t(page \"" << number + 1 << "\")\n\t\t\t\t)\n\t\t\t)\n\t\t)\n\t)\n";
}

bool DesignMultiplier::writeProject(const std::filesystem::path &folder)
{
    std::filesystem::path name = m_root.filename();
    name.replace_extension(".kicad_pro");
    const auto project = readFile(m_root.parent_path() / name);
    if (!project) {
        return true;
    }
    if (!m_out.open(folder / name)) {
        return false;
    }
    std::size_t done = 0;
    for (std::size_t at = project->find(m_rootId); at != std::string::npos;
         at = project->find(m_rootId, done)) {
        m_out << std::string_view(*project).substr(done, at - done) << m_newRoot;
        done = at + m_rootId.size();
    }
    m_out << std::string_view(*project).substr(done);
    return m_out.close();
}

} // namespace bench
