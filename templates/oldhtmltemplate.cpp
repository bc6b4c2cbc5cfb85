// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "templates/oldhtmltemplate.h"

#include "files/regularfile.h"
#include "host/framework/hostui.h"
#include "richtext/xhtml/tidylibwrapper.h"
#include "richtext/xhtml/xhtmlparts.h"
#include "templates/bomtemplate.h"

#include <QCoreApplication>
#include <QDebug>
#include <QFile>
#include <QXmlStreamReader>

namespace {

constexpr qint64 largest = 16 * 1024 * 1024;

const QString rootStart = QStringLiteral("<root>");

void logError(const QString &reason)
{
    qDebug().noquote().nospace() << "BOM v1 template import error:" << reason;
}

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(OldHtmlTemplate)
};

/// What stands between the tags of the element whose start tag was just read.
QString innerText(QXmlStreamReader &reader, const QString &xml)
{
    const qint64 start = reader.characterOffset();
    reader.skipCurrentElement();
    const qint64 end = reader.characterOffset();
    const QString inner = xml.mid(start, end - start);
    const qsizetype endTag = inner.lastIndexOf(QLatin1String("</"));
    return endTag < 0 ? QString() : inner.first(endTag).trimmed();
}

OldHtmlTemplate readBody(const QString &xml)
{
    OldHtmlTemplate result;
    QXmlStreamReader reader(xml);
    // Attributes such as those of office programs have prefixes that nothing declares.
    reader.setNamespaceProcessing(false);
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        const QStringView id = reader.attributes().value(QLatin1String("id"));
        if (id == QLatin1String("customHeader")) {
            result.header = innerText(reader, xml);
        } else if (id == QLatin1String("customFooter")) {
            result.footer = innerText(reader, xml);
        }
    }
    if (reader.hasError()) {
        logError(reader.errorString());
        return {};
    }
    result.isConverted = true;
    return result;
}

} // namespace

OldHtmlTemplate readOldHtmlTemplate(const QString &path)
{
    if (path.isEmpty()) {
        qDebug("BOM: load of HTML template with no name attempted.");
        return {};
    }
    if (!QFile::exists(path)) {
        return {};
    }
    QString reason;
    const std::optional<QByteArray> bytes = contentOfRegularFile(path, largest, &reason);
    if (!bytes) {
        logError(reason);
        return {};
    }
    if (bytes->size() > largest) {
        logError(Texts::tr("The file is too large."));
        return {};
    }
    TidyLibWrapper tidy;
    const QString xhtml = tidy.tidyHtml(QString::fromUtf8(*bytes));
    if (!tidy.errorString().isEmpty()) {
        logError(tidy.errorString());
        return {};
    }
    return readBody(rootStart + bodyOf(xhtml).toString() + QStringLiteral("</root>"));
}

bool upgradeTemplate(BOMTemplate &settings)
{
    const QString file = settings.htmlTemplateFileName();
    if (file.isEmpty() || !settings.documentHeader().isEmpty() || !settings.documentFooter().isEmpty()) {
        return false;
    }
    const OldHtmlTemplate old = readOldHtmlTemplate(file);
    settings.setDocumentHeader(old.header);
    settings.setDocumentFooter(old.footer);
    return !old.header.isEmpty() || !old.footer.isEmpty();
}

void showTemplateUpgraded(QWidget *parent, const QString &templateName)
{
    HostUi::current().information(
        parent, Texts::tr("BOM Template Upgraded"),
        Texts::tr("The BOM template '%1' has been upgraded.  Some styling may have changed.")
            .arg(templateName));
}
