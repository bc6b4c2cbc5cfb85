// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "views/report/spreadsheet.h"

#include "richtext/xhtml/xmltext.h"

#include <QFile>
#include <QRegularExpression>
#include <QUrl>

#include <algorithm>

#include <xlsxwriter.h>

#include <locale.h>

namespace {

constexpr int mostLinks = LXW_MAX_NUMBER_URLS;
constexpr qsizetype longestLink = 2079;
/// In a notice.
constexpr qsizetype mostNamedLinks = 10;
constexpr qsizetype longestProperty = 255;
/// Of 255 characters that the format allows, each & twice.
constexpr qsizetype longestFoot = 110;
constexpr qsizetype narrowestColumn = 8;
constexpr qsizetype widestColumn = 60;
/// Fewer characters than in the widest column: lines end where words do.
constexpr qsizetype wrappedAt = 56;
/// In points.
constexpr double tallestRow = 409;
constexpr lxw_color_t greyFill = 0xE4E8EE;
constexpr lxw_color_t paleFill = 0xF3F5F8;
constexpr lxw_color_t linkColour = 0x0563C1;
constexpr double titleSize = 14;

/// The library writes numbers as the locale of the calling thread says, which a host chooses for itself;
/// files have them in the form of C. While this lives that is the locale of the thread.
class CLocale final
{
public:
    CLocale()
        : m_previous(uselocale(locale()))
    {
    }
    CLocale(const CLocale &) = delete;
    CLocale &operator=(const CLocale &) = delete;
    ~CLocale() { uselocale(m_previous); }

private:
    static locale_t locale()
    {
        static const locale_t c = newlocale(LC_ALL_MASK, "C", nullptr);
        return c;
    }

    locale_t m_previous;
};

/// A text such as _x0041_ would be read as the character of that number.
QByteArray cellBytes(const QString &text)
{
    static const QRegularExpression escape(QStringLiteral("_(?=x[0-9A-Fa-f]{4}_)"));
    QString clean = Spreadsheet::cellText(text);
    if (clean.contains(QLatin1String("_x"))) {
        clean.replace(escape, QStringLiteral("_x005F_"));
    }
    return clean.toUtf8();
}

/// The library takes these words for schemes of its own wherever they stand.
QByteArray linkBytes(const QUrl &target)
{
    QByteArray link = target.toEncoded();
    for (const char *scheme : {"internal", "external"}) {
        link.replace(QByteArray(scheme) + ':', QByteArray(scheme) + "%3A");
    }
    return link;
}

/// Whether the file can hold the address; brackets around a host come out of the library escaped.
bool isWellFormed(const QUrl &target)
{
    const bool leadsSomewhere = !target.host().isEmpty() || !target.path().isEmpty();
    return target.isValid() && leadsSomewhere && !target.host().contains(u':');
}

/// The library escapes brackets.
qsizetype escapedLength(const QByteArray &link)
{
    return link.size() + 2 * (link.count('[') + link.count(']'));
}

/// Whether long texts go on in further lines of the cell.
bool isWrapped(CellLook look)
{
    return look == CellLook::Heading || look == CellLook::NumberHeading || look == CellLook::Cell ||
           look == CellLook::Link;
}

void applyLook(lxw_format *format, CellLook look)
{
    format_set_align(format, LXW_ALIGN_VERTICAL_TOP);
    if (isWrapped(look)) {
        format_set_text_wrap(format);
    }
    switch (look) {
    case CellLook::Text:
        format_set_align(format, LXW_ALIGN_LEFT);
        break;
    case CellLook::Title:
        format_set_font_size(format, titleSize);
        [[fallthrough]];
    case CellLook::Label:
        format_set_bold(format);
        break;
    case CellLook::NumberHeading:
        // The button of the filter stands at the right.
        format_set_align(format, LXW_ALIGN_RIGHT);
        format_set_indent(format, 2);
        [[fallthrough]];
    case CellLook::Heading:
        format_set_border(format, LXW_BORDER_THIN);
        format_set_bg_color(format, greyFill);
        format_set_bold(format);
        break;
    case CellLook::Section:
        format_set_bg_color(format, paleFill);
        format_set_bold(format);
        break;
    case CellLook::Quantity:
        format_set_align(format, LXW_ALIGN_CENTER);
        break;
    case CellLook::RightQuantity:
        // The references follow at once.
        format_set_indent(format, 1);
        [[fallthrough]];
    case CellLook::Number:
        format_set_align(format, LXW_ALIGN_RIGHT);
        break;
    case CellLook::Link:
        format_set_font_color(format, linkColour);
        format_set_underline(format, LXW_UNDERLINE_SINGLE);
        break;
    case CellLook::Cell:
        break;
    case CellLook::SubTotal:
        format_set_top(format, LXW_BORDER_THIN);
        format_set_italic(format);
        break;
    case CellLook::Total:
        format_set_top(format, LXW_BORDER_DOUBLE);
        format_set_bold(format);
        break;
    }
}

/// At least what the number takes in that format: a number in a column too narrow for it is not shown.
qsizetype shownCharacters(double number, const QString &format)
{
    return QString::number(number, 'f', 0).size() + format.section(u';', 0, 0).size();
}

} // namespace

Spreadsheet::Spreadsheet(const Properties &properties)
    : m_folderName(QFile::encodeName(m_folder.path()))
    , m_path(m_folderName + "/report.xlsx")
{
    const CLocale locale;
    // All in one folder: where a disk is full, the library notices that of the file only, not of its parts.
    lxw_workbook_options options{};
    options.tmpdir = m_folderName.data();
    m_workbook = workbook_new_opt(m_path.constData(), &options);
    if (!m_folder.isValid() || !m_workbook) {
        m_problem = tr("No temporary file can be made: %1").arg(m_folder.errorString());
        return;
    }
    QByteArray title = cellBytes(properties.title.left(longestProperty));
    QByteArray author = cellBytes(properties.author.left(longestProperty));
    lxw_doc_properties document{};
    document.title = title.data();
    document.author = author.data();
    document.created = properties.created.toSecsSinceEpoch();
    check(workbook_set_properties(m_workbook, &document));
}

Spreadsheet::~Spreadsheet()
{
    const CLocale locale;
    if (m_workbook) {
        lxw_workbook_free(m_workbook);
    }
}

void Spreadsheet::beginSheet(const QString &name)
{
    const CLocale locale;
    setWidths();
    m_row = 0;
    m_textLines = 1;
    m_sheet = m_workbook ? workbook_add_worksheet(m_workbook, name.toUtf8().constData()) : nullptr;
    if (!m_sheet) {
        check(LXW_ERROR_MEMORY_MALLOC_FAILED);
        return;
    }
    worksheet_fit_to_pages(m_sheet, 1, 0);
    setPaper({});
}

void Spreadsheet::setPaper(const SheetPaper &paper)
{
    if (!isReady(0)) {
        return;
    }
    const CLocale locale;
    paper.isLandscape ? worksheet_set_landscape(m_sheet) : worksheet_set_portrait(m_sheet);
    worksheet_set_paper(m_sheet, uint8_t(paper.paper));
    if (!paper.foot.isEmpty()) {
        QString foot = paper.foot.size() > longestFoot ? paper.foot.left(longestFoot - 1) + u'…' : paper.foot;
        foot.replace(u'&', QLatin1String("&&"));
        check(worksheet_set_footer(
            m_sheet, (QLatin1String("&L") + foot + QLatin1String("&R&P / &N")).toUtf8().constData()));
    }
}

void Spreadsheet::nextRow()
{
    if (m_row + 1 < LXW_ROW_MAX) {
        ++m_row;
        m_textLines = 1;
    } else if (m_problem.isEmpty()) {
        m_problem = tr("The report has more rows than a spreadsheet, which holds %1.").arg(LXW_ROW_MAX);
    }
}

void Spreadsheet::text(int column, const QString &text, CellLook look, const QString &format)
{
    if (!isReady(column)) {
        return;
    }
    const CLocale locale;
    if (text.size() > MostCharacters) {
        constexpr qsizetype shown = 40;
        m_problem = tr("A cell of a spreadsheet holds %1 characters; this text has %2: %3...")
                        .arg(QString::number(MostCharacters), QString::number(text.size()),
                             text.left(shown).simplified());
        return;
    }
    lxw_format *looks = this->format(look, format);
    if (text.isEmpty()) {
        check(worksheet_write_blank(m_sheet, lxw_row_t(m_row), lxw_col_t(column), looks));
        return;
    }
    constexpr qsizetype filterButton = 3;
    widen(column, text.size() + (look == CellLook::NumberHeading ? filterButton : 0), look);
    if (isWrapped(look)) {
        heighten(text);
    }
    check(worksheet_write_string(m_sheet, lxw_row_t(m_row), lxw_col_t(column), cellBytes(text).constData(),
                                 looks));
}

void Spreadsheet::number(int column, double number, CellLook look, const QString &format)
{
    if (isReady(column)) {
        const CLocale locale;
        widen(column, shownCharacters(number, format), look);
        check(worksheet_write_number(m_sheet, lxw_row_t(m_row), lxw_col_t(column), number,
                                     this->format(look, format)));
    }
}

void Spreadsheet::formula(int column, const QString &formula, double result, CellLook look,
                          const QString &format)
{
    if (isReady(column)) {
        const CLocale locale;
        widen(column, shownCharacters(result, format), look);
        check(worksheet_write_formula_num(m_sheet, lxw_row_t(m_row), lxw_col_t(column),
                                          formula.toLatin1().constData(), this->format(look, format),
                                          result));
    }
}

bool Spreadsheet::link(int column, const QUrl &target, const QString &owner)
{
    if (!isReady(column)) {
        return false;
    }
    if (!isWellFormed(target)) {
        ++m_malformedLinks;
        if (m_malformedOwners.size() < mostNamedLinks) {
            m_malformedOwners.append(owner);
        }
        return false;
    }
    const QByteArray bytes = linkBytes(target);
    if (m_links == mostLinks) {
        ++m_missingLinks;
        return false;
    }
    if (escapedLength(bytes) > longestLink) {
        ++m_longLinks;
        return false;
    }
    ++m_links;
    const CLocale locale;
    check(worksheet_write_url_opt(m_sheet, lxw_row_t(m_row), lxw_col_t(column), bytes.constData(),
                                  format(CellLook::Link, {}), " ", nullptr));
    return true;
}

void Spreadsheet::freezeRow(int row, int lastColumn, int lastRow)
{
    if (isReady(lastColumn)) {
        const CLocale locale;
        worksheet_freeze_panes(m_sheet, lxw_row_t(row) + 1, 0);
        check(worksheet_repeat_rows(m_sheet, lxw_row_t(row), lxw_row_t(row)));
        check(worksheet_autofilter(m_sheet, lxw_row_t(row), 0, lxw_row_t(lastRow), lxw_col_t(lastColumn)));
        check(worksheet_ignore_errors(m_sheet, LXW_IGNORE_NUMBER_STORED_AS_TEXT,
                                      range(0, 0, lastRow, lastColumn).toLatin1().constData()));
    }
}

QString Spreadsheet::cellText(const QString &text)
{
    QString clean = xmlText(text);
    if (clean.contains(u'\r')) {
        clean.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(u'\r', u'\n');
    }
    return clean;
}

QString Spreadsheet::range(int firstRow, int firstColumn, int lastRow, int lastColumn)
{
    char range[LXW_MAX_CELL_RANGE_LENGTH];
    lxw_rowcol_to_range(range, lxw_row_t(firstRow), lxw_col_t(firstColumn), lxw_row_t(lastRow),
                        lxw_col_t(lastColumn));
    return QString::fromLatin1(range);
}

bool Spreadsheet::holdsFormat(const QString &format)
{
    return cellBytes(format).size() < LXW_FORMAT_FIELD_LEN;
}

QByteArray Spreadsheet::bytes()
{
    if (!m_problem.isEmpty()) {
        return {};
    }
    const CLocale locale;
    setWidths();
    // Closing frees the workbook, whatever comes of it.
    check(workbook_close(std::exchange(m_workbook, nullptr)));
    QFile file(QFile::decodeName(m_path));
    if (m_problem.isEmpty() && !file.open(QIODevice::ReadOnly)) {
        m_problem = file.errorString();
    }
    return m_problem.isEmpty() ? file.readAll() : QByteArray();
}

QStringList Spreadsheet::notices() const
{
    QStringList notices;
    if (m_missingLinks > 0) {
        notices << tr("A spreadsheet has at most %1 links; %2 more are text.")
                       .arg(QString::number(mostLinks), QString::number(m_missingLinks));
    }
    if (m_longLinks > 0) {
        notices << tr("A link of a spreadsheet has at most %1 characters; %2 longer ones are text.")
                       .arg(QString::number(longestLink), QString::number(m_longLinks));
    }
    if (m_malformedLinks > 0) {
        const auto others = m_malformedLinks - m_malformedOwners.size();
        const QString owners = m_malformedOwners.join(QLatin1String(", "));
        notices << (others > 0
                        ? tr("Malformed links are text: %1 and %2 more.").arg(owners, QString::number(others))
                        : tr("Malformed links are text: %1.").arg(owners));
    }
    return notices;
}

bool Spreadsheet::isReady(int column)
{
    if (m_problem.isEmpty() && column >= LXW_COL_MAX) {
        m_problem = tr("The report has more columns than a spreadsheet, which holds %1.").arg(LXW_COL_MAX);
    }
    return m_problem.isEmpty() && m_sheet;
}

lxw_format *Spreadsheet::format(CellLook look, const QString &numbers)
{
    lxw_format *&known = m_formats[{look, numbers}];
    if (!known) {
        known = workbook_add_format(m_workbook);
        applyLook(known, look);
        if (!numbers.isEmpty()) {
            format_set_num_format(known, cellBytes(numbers).constData());
        }
    }
    return known;
}

void Spreadsheet::widen(int column, qsizetype characters, CellLook look)
{
    if (look == CellLook::Text || look == CellLook::Title || look == CellLook::Section) {
        return; // These reach over the empty cells beside them.
    }
    while (m_widths.size() <= column) {
        m_widths.append(narrowestColumn);
    }
    m_widths[column] = std::max(m_widths[column], std::min(characters, widestColumn));
}

void Spreadsheet::heighten(const QString &text)
{
    if (text.size() <= widestColumn && !text.contains(u'\n')) {
        return;
    }
    qsizetype lines = 0;
    for (const QStringView line : QStringView(text).split(u'\n')) {
        lines += std::max<qsizetype>(1, (line.size() + wrappedAt - 1) / wrappedAt);
    }
    if (lines > m_textLines) {
        m_textLines = lines;
        const double height = std::min(double(lines) * LXW_DEF_ROW_HEIGHT, tallestRow);
        check(worksheet_set_row(m_sheet, lxw_row_t(m_row), height, nullptr));
    }
}

void Spreadsheet::setWidths()
{
    for (qsizetype i = 0; m_sheet && i < m_widths.size(); ++i) {
        constexpr double margin = 2;
        check(
            worksheet_set_column(m_sheet, lxw_col_t(i), lxw_col_t(i), double(m_widths[i]) + margin, nullptr));
    }
    m_widths.clear();
}

void Spreadsheet::check(int error)
{
    if (error != LXW_NO_ERROR && m_problem.isEmpty()) {
        m_problem =
            tr("The spreadsheet cannot be made: %1").arg(QString::fromUtf8(lxw_strerror(lxw_error(error))));
    }
}
