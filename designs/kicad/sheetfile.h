// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/component.h"
#include "designs/filefingerprint.h"

#include <QHash>
#include <QString>

#include <optional>
#include <span>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace designs::kicad {

/// Format versions (dates) at which something changed in schematic files.
namespace version {
/// The first that KiCad 6 wrote on the way to its release.
constexpr int oldest = 20210000;
constexpr int notFittedFlag = 20220914;
constexpr int descriptionField = 20230620;
/// "(hide yes)" instead of a bare "hide".
constexpr int hideList = 20231120;
constexpr int tildeIsText = 20250318;
constexpr int variableEscape = 20260101;
constexpr int ruleAreaFlags = 20250610;
constexpr int variantInBomCorrected = 20260306;
/// Of KiCad 10. What later ones mean is not known.
constexpr int latest = 20260306;
} // namespace version

struct Point
{
    double x = 0;
    double y = 0;
};

/// What one variant changes in one instance of a symbol or sheet.
struct VariantRecord
{
    std::string_view name;
    std::optional<bool> dnp;
    std::optional<bool> inBom;
    std::span<Property> fields;
};

/// What a symbol or sheet is in one use of its file: `path` indexes SheetFile::paths.
struct InstanceRecord
{
    quint32 path = 0;
    qint32 unit = 1;
    std::string_view reference;
    std::span<const VariantRecord> variants;
    std::string_view page;
};

/// The record for a path in records that are sorted by path, null when there is none.
[[nodiscard]] const InstanceRecord *findInstance(std::span<const InstanceRecord> records, quint32 path);

/// One symbol as drawn. All texts are free of escapes; "~" for empty is read as empty.
struct PlacedSymbol
{
    std::string_view libId;
    /// Name of the library cache entry where it differs from libId.
    std::string_view libName;
    std::string_view uuid;
    std::string_view reference;
    std::string_view value;
    /// All other properties in file order.
    std::span<Property> properties;
    std::span<const InstanceRecord> instances;
    Point at;
    quint32 offset = 0;
    qint32 unit = 1;
    bool inBom = true;
    bool dnp = false;
    /// A text holds "${" or "@{".
    bool hasVariables = false;
};

/// A sheet symbol: the use of another file.
struct SheetSymbol
{
    std::string_view uuid;
    std::string_view name;
    std::string_view file;
    std::span<Property> properties;
    std::span<const InstanceRecord> instances;
    Point at;
    quint32 offset = 0;
    bool inBom = true;
    bool dnp = false;
};

/// An entry of the file's library cache.
struct LibrarySymbol
{
    std::string_view description;
    std::string_view keywords;
    int units = 0;
    bool power = false;
};

/// An area whose flags count for the symbols inside.
struct RuleArea
{
    std::vector<Point> outline;
    bool inBom = true;
    bool dnp = false;
};

/// An entry of a version 6 root's table of instances; `path` is without the root's own identifier.
struct TableInstance
{
    std::string_view path;
    std::string_view reference;
    std::string_view value;
    std::string_view footprint;
    int unit = 1;
    quint32 offset = 0;
};

struct TitleBlock
{
    std::string_view title;
    std::string_view date;
    std::string_view revision;
    std::string_view company;
    std::string_view comments[9];
};

/// One schematic file as far as a bill of materials needs it. Texts belong to the design's arena.
struct SheetFile
{
    QString path;
    /// Of the content that was read.
    FileFingerprint fingerprint;
    FileStamp stamp;
    int formatVersion = 0;
    std::string_view uuid;
    TitleBlock title;
    std::vector<PlacedSymbol> symbols;
    std::vector<SheetSymbol> sheets;
    std::unordered_map<std::string_view, LibrarySymbol> library;
    std::vector<RuleArea> ruleAreas;
    std::vector<TableInstance> instanceTable;
    /// Instance paths that occur in the file, each once.
    std::unordered_map<std::string_view, quint32> paths;

    /// The symbol's entry in the library cache, null when it is missing there.
    [[nodiscard]] const LibrarySymbol *librarySymbol(const PlacedSymbol &symbol) const;

    /// The number of an instance path, nothing when no symbol or sheet here has a record for it.
    [[nodiscard]] std::optional<quint32> pathNumber(std::string_view path) const;
};

} // namespace designs::kicad
