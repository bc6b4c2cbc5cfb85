// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// Small KiCad files as text, in the way each version writes them.
namespace kicadtext {

/// The format versions that the releases 6 to 10 write.
constexpr int v6 = 20211123;
constexpr int v7 = 20230121;
constexpr int v8 = 20231120;
constexpr int v9 = 20250114;
constexpr int v10 = 20260306;

/// The names of files that most designs have.
inline const QString root = QStringLiteral("root.kicad_sch");
inline const QString sub = QStringLiteral("sub.kicad_sch");
inline const QString project = QStringLiteral("root.kicad_pro");

inline std::string inQuotes(std::string_view text)
{
    std::string result = "\"";
    for (const char c : text) {
        result += c == '"' || c == '\\' ? std::string{'\\', c}
                  : c == '\n'           ? std::string("\\n")
                                        : std::string{c};
    }
    return result + '"';
}

/// Identifiers are bare words up to version 7.
inline std::string uuid(int version, std::string_view id)
{
    return "(uuid " + (version < v8 ? std::string(id) : inQuotes(id)) + ")";
}

using Fields = std::vector<std::pair<std::string, std::string>>;

/// What a symbol is at one instance path.
struct Use
{
    std::string path = {};
    std::string reference = {};
    int unit = 1;
    /// Further lists inside the path, such as variants.
    std::string more = {};
};

/// A placed symbol. Tokens that are empty are not written.
struct Part
{
    std::string reference = "R?";
    std::string value = "10k";
    std::string uuid = "sym";
    std::string lib = "Device:R";
    std::string libName = {};
    std::string inBom = "yes";
    std::string dnp = {};
    std::string at = "0 0 0";
    int unit = 1;
    Fields fields = {};
    std::string more = {};
    std::vector<Use> uses = {};
};

inline std::string property(int version, std::string_view name, std::string_view value, int id)
{
    const std::string number = version < v7 ? " (id " + std::to_string(id) + ")" : "";
    return "\n    (property " + inQuotes(name) + " " + inQuotes(value) + number + " (at 1 2 0)\n" +
           "      (effects (font (size 1.27 1.27)) hide)\n    )";
}

inline std::string uses(const std::vector<Use> &list)
{
    if (list.empty()) {
        return {};
    }
    std::string text = "\n    (instances";
    for (const Use &use : list) {
        text += "\n      (project \"demo\"\n        (path " + inQuotes(use.path) + " (reference " +
                inQuotes(use.reference) + ") (unit " + std::to_string(use.unit) + ")" + use.more +
                ")\n      )";
    }
    return text + "\n    )";
}

inline std::string symbol(int version, const Part &part)
{
    std::string text = "\n  (symbol";
    text += part.libName.empty() ? "" : " (lib_name " + inQuotes(part.libName) + ")";
    text += " (lib_id " + inQuotes(part.lib) + ") (at " + part.at + ") (unit " + std::to_string(part.unit) +
            ")\n   ";
    text += part.inBom.empty() ? "" : " (in_bom " + part.inBom + ")";
    text += " (on_board yes)";
    text += part.dnp.empty() ? "" : " (dnp " + part.dnp + ")";
    text += "\n    " + uuid(version, part.uuid);
    text += property(version, "Reference", part.reference, 0) + property(version, "Value", part.value, 1);
    int id = 2;
    for (const auto &[name, value] : part.fields) {
        text += property(version, name, value, id++);
    }
    text += "\n    (pin \"1\" (uuid aaaa(bbbb)))";
    return text + part.more + uses(part.uses) + "\n  )";
}

/// The parts of a sheet symbol.
struct Sheet
{
    std::string name = "Sub";
    std::string file = "sub.kicad_sch";
    std::string uuid = "sheet";
    std::string inBom = {};
    std::string dnp = {};
    Fields fields = {};
    std::vector<Use> uses = {};
};

inline std::string sheet(int version, const Sheet &sheet)
{
    const bool old = version < v7;
    std::string text = "\n  (sheet (at 10 20) (size 30 40)";
    text += sheet.inBom.empty() ? "" : " (in_bom " + sheet.inBom + ")";
    text += sheet.dnp.empty() ? "" : " (dnp " + sheet.dnp + ")";
    text += "\n    " + uuid(version, sheet.uuid);
    text += property(version, old ? "Sheet name" : "Sheetname", sheet.name, 0);
    text += property(version, old ? "Sheet file" : "Sheetfile", sheet.file, 1);
    int id = 2;
    for (const auto &[name, value] : sheet.fields) {
        text += property(version, name, value, id++);
    }
    return text + uses(sheet.uses) + "\n  )";
}

/// An entry of the library cache with the given number of units.
inline std::string librarySymbol(std::string_view id, int units = 1, std::string_view more = {})
{
    std::string text = "\n    (symbol " + inQuotes(id) + std::string(more) +
                       " (in_bom yes)\n      (property \"Reference\" \"U\" (at 0 0 0))";
    const std::string name(id.substr(id.find(':') + 1));
    for (int unit = 0; unit <= units; ++unit) {
        text += "\n      (symbol " + inQuotes(name + "_" + std::to_string(unit) + "_1") +
                " (polyline (pts (xy 0 0))))";
    }
    return text + "\n    )";
}

/// The cache that most tests need: a resistor, an amplifier of three units, two power symbols.
inline std::string library()
{
    return "\n  (lib_symbols" + librarySymbol("Device:R") + librarySymbol("Amp:TL074", 3) +
           librarySymbol("power:GND", 1, " (power)") + librarySymbol("power:+5V", 1, " (power global)") +
           "\n  )";
}

inline std::string schematic(int version, std::string_view id, std::string_view body,
                             std::string_view cache = library())
{
    const std::string generator = version < v8 ? "eeschema" : "\"eeschema\"";
    return "(kicad_sch (version " + std::to_string(version) + ") (generator " + generator + ")\n  " +
           uuid(version, id) + "\n  (paper \"A4\")" + std::string(cache) + std::string(body) +
           "\n  (sheet_instances (path \"/\" (page \"1\")))\n)\n";
}

/// A row of version 6's table of instances.
struct Row
{
    std::string path = {};
    std::string reference = {};
    std::string value = {};
    std::string footprint = {};
    int unit = 1;
};

inline std::string instanceTable(const std::vector<Row> &rows)
{
    std::string text = "\n  (symbol_instances";
    for (const Row &row : rows) {
        text += "\n    (path " + inQuotes(row.path) + "\n      (reference " + inQuotes(row.reference) +
                ") (unit " + std::to_string(row.unit) + ") (value " + inQuotes(row.value) + ") (footprint " +
                inQuotes(row.footprint) + ")\n    )";
    }
    return text + "\n  )";
}

} // namespace kicadtext
