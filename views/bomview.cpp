// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "views/bomview.h"

#include "core/bompartsdatabase.h"
#include "host/framework/hostui.h"
#include "host/framework/reportfile.h"

BOMView::BOMView(QWidget *parent)
    : QWidget(parent)
{
}

BOMView::~BOMView() = default;

void BOMView::setPartsDatabase(BOMPartsDatabase *database)
{
    m_database = database;
    m_report.reset();
}

QList<QStringList> BOMView::categoryRows(const QString &category, bool grouped, int width, int lines) const
{
    if (!isValid()) {
        return {};
    }
    QList<QStringList> rows;
    const ReportLines listed = report().lines(category, grouped);
    for (const BomLine line : listed.lines) {
        const QString &first = line.front()->reference();
        QStringList row{first};
        if (grouped) {
            row = {Report::text(Report::quantity(line)), report().references(line, width, lines)};
        }
        for (const QString &name : m_fields.names()) {
            row << fieldValue(first, name, true);
        }
        rows << row;
    }
    return rows;
}

void BOMView::updateFields()
{
    if (isValid()) {
        m_fields = m_database->columns();
        m_report.reset();
    }
}

QString BOMView::fieldValue(const QString &reference, const QString &fieldName, bool formatted) const
{
    const ReportColumn *wanted = isValid() ? report().column(fieldName) : nullptr;
    if (!wanted) {
        return {};
    }
    const Part *part = m_database->part(reference);
    const QString value = part ? report().value(*part, *wanted) : QString();
    return formatted ? formatFieldValue(value, fieldName) : value;
}

QString BOMView::formatFieldValue(const QString &value, const QString &fieldName) const
{
    if (!isValid()) {
        return {};
    }
    const ReportColumn *wanted = report().column(fieldName);
    return wanted ? report().text(value, *wanted) : value;
}

void BOMView::removeValueField()
{
    if (isValid()) {
        m_fields = dataFields(m_fields, m_database->currentTemplate());
        m_report.reset();
    }
}

QStringList BOMView::columnHeadings(bool withQuantity) const
{
    return isValid() ? report().headings(withQuantity) : QStringList();
}

QStringList BOMView::categorySubTotals(const QString &category) const
{
    return isValid() ? report().texts(report().subTotals(category)) : QStringList();
}

QStringList BOMView::grandTotals() const
{
    return isValid() ? report().texts(report().grandTotals()) : QStringList();
}

QString BOMView::truncateToFieldWidth(const QString &value, const QString &fieldName) const
{
    if (!isValid()) {
        return {};
    }
    const ReportColumn *wanted = report().column(fieldName);
    return wanted ? truncatedToWidth(value, wanted->field) : value;
}

const Report &BOMView::report() const
{
    const quint64 generation = m_database->propertyTypes().generation();
    if (!m_report || m_generation != generation) {
        m_report.emplace(*m_database, m_fields);
        m_generation = generation;
    }
    return *m_report;
}

const Report &BOMView::dataReport()
{
    updateFields();
    removeValueField();
    return report();
}

QString BOMView::saveOutput(const SaveRequest &request, const std::function<QByteArray()> &content)
{
    HostUi &ui = HostUi::current();
    const QString proposed = m_database->defaultOutputPath(request.extension);
    QString path = ui.saveFileName(this, request.caption, proposed, request.filter);
    if (path.isEmpty()) {
        return {};
    }
    QString reason;
    const ReportFileResult result = writeReportFile(path, content(), &reason);
    if (result != ReportFileResult::Written) {
        ui.warning(this, tr("Output Failed"), reportFileMessage(result, path, reason));
        return {};
    }
    ui.showWrittenFile(path);
    return path;
}
