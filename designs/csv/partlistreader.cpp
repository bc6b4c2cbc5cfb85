// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/csv/partlistreader.h"

#include "designs/csv/hyphenatednames.h"
#include "designs/csv/passedoverrows.h"
#include "designs/csv/referencecell.h"
#include "designs/csv/referencetext.h"
#include "designs/notfitted.h"
#include "designs/texts.h"
#include "designs/utf8.h"

#include <QByteArray>
#include <QFileInfo>

#include <algorithm>
#include <charconv>

namespace designs {

namespace {

/// More than so many equal warnings are summed up in one.
constexpr int mostWarnings = 20;

std::string_view trimmed(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(" \t\r\n");
    return first == std::string_view::npos ? std::string_view()
                                           : text.substr(first, text.find_last_not_of(" \t\r\n") + 1 - first);
}

QString rangeWarning(std::string_view name)
{
    return PartListTexts::tr("%1 is the name of one part and no range, because the list has %2 by itself")
        .arg(quotedForMessage(name), quotedForMessage(name.substr(0, name.find('-', 1))));
}

QString quantityWarning(const QString &quantity, std::size_t references)
{
    return references == 1
               ? PartListTexts::tr("the quantity is %1, but the row names 1 reference: the references count")
                     .arg(quantity)
               : PartListTexts::tr(
                     "the quantity is %1, but the row names %2 references: the references count")
                     .arg(quantity, QString::number(references));
}

/// The number of a quantity cell; "3.0" and "3,00" are 3.
std::optional<quint64> quantityOf(std::string_view text)
{
    quint64 quantity = 0;
    const char *end = text.data() + text.size();
    const auto [rest, failure] = std::from_chars(text.data(), end, quantity);
    const bool fraction = rest != end && (*rest == '.' || *rest == ',');
    const bool whole =
        rest == end || (fraction && std::all_of(rest + 1, end, [](char c) { return c == '0'; }));
    return failure == std::errc() && whole ? std::optional(quantity) : std::nullopt;
}

/// Warnings of one kind, of which only the first are given one by one.
struct WarningKind
{
    QString summary;
    int count = 0;
    int lastLine = 0;
};

} // namespace

class PartListReader
{
public:
    PartListReader(const QString &path, CsvFile file, std::unique_ptr<PartList> list)
        : m_path(path)
        , m_file(std::move(file))
        , m_list(std::move(list))
        , m_cell(m_list->m_arena)
    {
    }

    ReadResult run()
    {
        std::optional<PartListColumns> columns = findPartListColumns(m_file, &m_error, &m_list->m_warnings);
        if (!columns) {
            return failed();
        }
        m_list->m_columns = std::move(*columns);
        describe();
        nameProperties();
        findPassedOverRows();
        findHyphenatedNames();
        m_cell.setTakesXForCount(!namesX());
        if (!readRows()) {
            return failed();
        }
        finish();
        return {std::move(m_list), {}};
    }

private:
    ReadResult failed()
    {
        m_error.file = m_path;
        return {nullptr, m_error};
    }

    bool fail(const CsvRow &row, const QString &text)
    {
        m_error = {m_path, int(row.line), text};
        return false;
    }

    [[nodiscard]] int headingLine() const { return int(m_file.rows()[m_list->m_columns.headingRow].line); }

    void describe()
    {
        const QFileInfo info(m_path);
        m_list->m_bytes = m_file.bytes();
        m_list->m_dialect = m_file.dialect();
        m_list->m_info.file = info.absoluteFilePath();
        m_list->m_info.modified = info.lastModified();
        m_list->m_files = QStringList{info.absoluteFilePath()};
        const QByteArray &bytes = m_file.bytes();
        m_list->m_fingerprints = {fingerprintOf({bytes.constData(), std::size_t(bytes.size())})};
        m_list->m_sheets = {SheetUse{QStringLiteral("/"), 0}};
    }

    void nameProperties()
    {
        const PartListColumns &columns = m_list->m_columns;
        PropertyNames &names = m_list->m_names;
        m_list->m_referenceName = names.intern(columns.names[columns.reference]);
        if (!columns.value) {
            m_list->m_warnings.push_back({{}, headingLine(), PartListTexts::tr("there is no value column")});
        }
        m_list->m_valueName = names.intern(columns.value ? columns.names[*columns.value] : "Value");
        names.setAlias("VALUE", m_list->m_valueName);
        for (std::size_t column = 0; column < columns.names.size(); ++column) {
            if (columns.isProperty(column)) {
                const std::string &name = columns.names[column];
                m_columns.push_back(
                    {column, names.intern(name), equalIgnoringCase(name, "DNP"), isMarkerHeading(name)});
            }
        }
        if (columns.footprint) {
            names.setAlias("PACKAGE", names.intern(columns.names[*columns.footprint]));
        }
    }

    void findPassedOverRows()
    {
        const PassedOverRows rows(m_file, m_list->m_columns.headingRow, m_list->m_columns.reference);
        for (std::size_t row = m_list->m_columns.headingRow + 1; row < m_file.rows().size(); ++row) {
            if (const QString reason = rows.reason(m_file.rows()[row]); !reason.isEmpty()) {
                m_list->m_passedOver.push_back(row);
                warn(m_file.rows()[row], &m_noParts, [&] { return reason; });
            }
        }
    }

    /// Calls `visit` for each row below the headings that may name parts, until one gives false.
    template<class Visit>
    bool visitRows(const Visit &visit)
    {
        auto passedOver = m_list->m_passedOver.cbegin();
        for (std::size_t row = m_list->m_columns.headingRow + 1; row < m_file.rows().size(); ++row) {
            if (passedOver != m_list->m_passedOver.cend() && *passedOver == row) {
                ++passedOver;
            } else if (!visit(row)) {
                return false;
            }
        }
        return true;
    }

    void findHyphenatedNames()
    {
        if (!hasDoubtfulHyphens()) {
            return;
        }
        HyphenatedNames names;
        (void)visitRows([&](std::size_t row) {
            const std::string_view quantity = quantityText(m_file.rows()[row]);
            names.add(referenceText(row), quantity.empty() ? std::nullopt : quantityOf(quantity));
            return true;
        });
        const PartListColumns &columns = m_list->m_columns;
        const bool isReport =
            columns.reference == 1 && columns.names[0] == "Category" && columns.names[1] == "References";
        m_list->m_hyphenatedNames = names.names(isReport);
        m_guessedNames = names.guessedNames(isReport);
        m_cell.setNames(m_list->isName());
    }

    /// Whether a row, or a text behind a comma, begins with a reference such as X1.
    bool namesX()
    {
        return !visitRows([this](std::size_t row) { return !beginsWithX(referenceText(row)); });
    }

    bool hasDoubtfulHyphens()
    {
        return !visitRows([this](std::size_t row) {
            const std::string_view text = referenceText(row);
            const bool hasHyphen = std::ranges::any_of(
                text, [](char c) { return c == '-' || static_cast<unsigned char>(c) >= 0x80; });
            return !hasHyphen || !m_cell.read(text) ||
                   std::ranges::none_of(m_cell.items(), &ReferenceItem::couldBeName);
        });
    }

    std::string_view referenceText(std::size_t row)
    {
        return textAt(m_file.rows()[row], m_list->m_columns.reference);
    }

    std::string_view quantityText(const CsvRow &row)
    {
        const std::optional<std::size_t> column = m_list->m_columns.quantity;
        return column ? trimmed(textAt(row, *column)) : std::string_view();
    }

    bool readRows()
    {
        return visitRows([this](std::size_t row) { return readRow(quint32(row)); });
    }

    bool readRow(quint32 index)
    {
        const CsvRow &row = m_file.rows()[index];
        if (!checkLength(row)) {
            return false;
        }
        if (!m_cell.read(textAt(row, m_list->m_columns.reference))) {
            return fail(row, m_cell.error());
        }
        if (m_cell.count() == 0) {
            return m_file.isBlank(row) || fail(row, withoutReference(row));
        }
        if (m_list->m_components.size() + m_cell.count() > mostTableReferences) {
            return fail(row, PartListTexts::tr("the list has more than %1 parts").arg(mostTableReferences));
        }
        checkQuantity(row);
        checkNames(row);
        addComponents(index);
        return true;
    }

    bool checkLength(const CsvRow &row)
    {
        const std::size_t expected = m_list->m_columns.names.size();
        const std::span<const CsvCell> cells = m_file.cells(row);
        for (std::size_t column = expected; column < cells.size(); ++column) {
            if (!m_file.isBlank(cells[column])) {
                return fail(row, PartListTexts::tr(
                                     "the row has %1 cells, but there are %2 headings: put a cell with a "
                                     "delimiter in it into quotes, or give column %3 a heading")
                                     .arg(QString::number(cells.size()), QString::number(expected),
                                          QString::number(column + 1)));
            }
        }
        if (cells.size() < expected && !m_file.isBlank(row)) {
            warn(row, &m_short, [&] {
                return PartListTexts::tr("the row has only %1 of %2 cells: the others are read as empty")
                    .arg(QString::number(cells.size()), QString::number(expected));
            });
        }
        return true;
    }

    QString withoutReference(const CsvRow &row)
    {
        const auto cells = m_file.cells(row);
        const auto said =
            std::ranges::find_if(cells, [this](const CsvCell &c) { return !m_file.isBlank(c); });
        return PartListTexts::tr(
                   "the row (%1 …) has no reference: give it one, or delete the row if it is no part")
            .arg(quotedForMessage(m_file.text(*said, m_list->m_arena)));
    }

    void checkQuantity(const CsvRow &row)
    {
        const std::string_view text = quantityText(row);
        if (text.empty()) {
            return;
        }
        const std::optional<quint64> quantity = quantityOf(text);
        const std::size_t named = m_cell.count();
        // A report counts parts that are not fitted 0.
        if (quantity != named && quantity != 0) {
            warn(row, &m_quantity, [&] { return quantityWarning(quotedForMessage(text), named); });
        }
    }

    void checkNames(const CsvRow &row)
    {
        for (const ReferenceItem &item : m_cell.items()) {
            if (!m_guessedNames.empty() && m_guessedNames.contains(std::string(item.text))) {
                warn(row, &m_names, [&] { return rangeWarning(item.text); });
            }
        }
    }

    void addComponents(quint32 index)
    {
        const CsvRow &row = m_file.rows()[index];
        const std::optional<std::size_t> value = m_list->m_columns.value;
        Component component;
        component.value = value ? textAt(row, *value) : std::string_view();
        component.line = row.line;
        component.origin = index;
        m_properties.clear();
        for (const PropertyColumn &column : m_columns) {
            const std::string_view text = textAt(row, column.column);
            if (column.marksNotFitted && saysNotFitted(text)) {
                component.notFitted = MarkedBy::Property;
            }
            if (!column.isMarker || !trimmed(text).empty()) {
                m_properties.push_back({column.name, text});
            }
        }
        component.properties = m_list->m_arena.copy(std::span<const Property>(m_properties));
        for (const std::string_view reference : m_cell.references()) {
            if (reference.starts_with('#')) {
                m_firstPowerLine = m_firstPowerLine > 0 ? m_firstPowerLine : int(row.line);
                ++m_list->m_symbols.power;
                continue;
            }
            component.reference = reference;
            m_list->m_components.push_back(component);
        }
    }

    void finish()
    {
        SymbolCount &symbols = m_list->m_symbols;
        symbols.placed = qsizetype(m_list->m_components.size()) + symbols.power;
        if (symbols.power > 0) {
            m_list->m_warnings.push_back(
                {{},
                 m_firstPowerLine,
                 PartListTexts::tr(
                     "references that begin with \"#\" are no parts: %1 left out, the first one here")
                     .arg(symbols.power)});
        }
        if (m_list->m_components.empty()) {
            m_list->m_warnings.push_back(
                {{}, headingLine(), PartListTexts::tr("no part follows the headings")});
        }
        if (m_file.dialect().encoding == CsvDialect::Encoding::Windows1252) {
            m_list->m_warnings.push_back({{},
                                          0,
                                          PartListTexts::tr("the file is not in UTF-8 and was read as "
                                                            "Windows-1252: save it in UTF-8 if letters are "
                                                            "wrong")});
        }
        for (const WarningKind &kind : {m_noParts, m_short, m_names, m_quantity}) {
            if (kind.count > mostWarnings) {
                m_list->m_warnings.push_back(
                    {{}, kind.lastLine, kind.summary.arg(kind.count - mostWarnings)});
            }
        }
        for (Problem &warning : m_list->m_warnings) {
            warning.file = m_path;
        }
    }

    /// `text` is only asked for where it is told: a long list can have a warning in each row.
    template<class Text>
    void warn(const CsvRow &row, WarningKind *kind, const Text &text)
    {
        if (++kind->count <= mostWarnings) {
            m_list->m_warnings.push_back({{}, int(row.line), text()});
        }
        kind->lastLine = int(row.line);
    }

    std::string_view textAt(const CsvRow &row, std::size_t column)
    {
        const std::span<const CsvCell> cells = m_file.cells(row);
        return column < cells.size() ? m_file.text(cells[column], m_list->m_arena) : std::string_view();
    }

    struct PropertyColumn
    {
        std::size_t column = 0;
        NameId name = 0;
        bool marksNotFitted = false;
        bool isMarker = false;
    };

    QString m_path;
    CsvFile m_file;
    std::unique_ptr<PartList> m_list;
    ReferenceCell m_cell;
    Problem m_error;
    std::vector<PropertyColumn> m_columns;
    std::vector<Property> m_properties;
    /// Names that could be ranges, and of which the list does not tell for certain.
    std::unordered_set<std::string> m_guessedNames;
    /// Of the first reference that begins with "#".
    int m_firstPowerLine = 0;
    WarningKind m_noParts{
        PartListTexts::tr("%1 more rows, the last one here, repeat the headings or sum up and are left out")};
    WarningKind m_short{
        PartListTexts::tr("%1 more rows, the last one here, have fewer cells than there are headings")};
    WarningKind m_names{PartListTexts::tr("%1 more names, the last one here, could be ranges but are none")};
    WarningKind m_quantity{
        PartListTexts::tr("%1 more rows, the last one here, have a quantity that differs from the "
                          "number of their references")};
};

ReadResult readPartList(const QString &path, const ReadOptions &options, const CsvLimits &limits,
                        std::unique_ptr<PartList> list)
{
    const QString absolutePath = QFileInfo(path).absoluteFilePath();
    if (!options.variant.isEmpty()) {
        return {nullptr,
                {absolutePath, 0,
                 PartListTexts::tr("a part list has no variants: leave out the variant %1")
                     .arg(quotedForMessage(options.variant.toStdString()))}};
    }
    Problem error;
    std::optional<QByteArray> bytes = CsvFile::load(absolutePath, &error, limits);
    if (!bytes) {
        error.file = absolutePath;
        return {nullptr, error};
    }
    return readPartListBytes(absolutePath, std::move(*bytes), limits, std::move(list), options.stop);
}

ReadResult readPartListBytes(const QString &absolutePath, QByteArray bytes, const CsvLimits &limits,
                             std::unique_ptr<PartList> list, const std::stop_token &stop)
{
    Problem error;
    std::optional<CsvFile> file = CsvFile::parse(std::move(bytes), &error, limits);
    if (file && stop.stop_requested()) {
        return {nullptr, stoppedProblem(absolutePath)};
    }
    if (!file) {
        error.file = absolutePath;
        return {nullptr, error};
    }
    return PartListReader(absolutePath, std::move(*file), std::move(list)).run();
}

} // namespace designs
