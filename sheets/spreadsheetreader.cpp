// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "sheets/spreadsheetreader.h"

#include "sheets/odsfile.h"
#include "sheets/texts.h"
#include "sheets/xlsxfile.h"

#include <utility>

namespace {

/// The container of older programs, which also holds what a password protects.
constexpr QByteArrayView compoundMark("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1", 8);

} // namespace

bool isSpreadsheet(const QByteArray &bytes)
{
    return ZipArchive::isArchive(bytes) || bytes.startsWith(compoundMark);
}

std::unique_ptr<SpreadsheetFile> openSpreadsheet(QByteArray bytes, QString *problem,
                                                 const SheetLimits &limits)
{
    if (bytes.startsWith(compoundMark)) {
        *problem =
            SpreadsheetTexts::tr("the file is encrypted or of an older form (.xls): save it as .xlsx or .ods "
                                 "without a password");
        return nullptr;
    }
    if (!ZipArchive::isArchive(bytes)) {
        *problem =
            SpreadsheetTexts::tr("this is no spreadsheet (.xlsx or .ods), whatever its name says; a table of "
                                 "texts ends in .csv");
        return nullptr;
    }
    auto archive = ZipArchive::open(std::move(bytes), limits, problem);
    if (!archive) {
        return nullptr;
    }
    std::unique_ptr<SpreadsheetFile> file;
    if (archive->has(OdsFile::contentPart())) {
        file = std::make_unique<OdsFile>(std::move(*archive), limits);
    } else {
        file = std::make_unique<XlsxFile>(std::move(*archive), limits);
    }
    return file->load(problem) ? std::move(file) : nullptr;
}
