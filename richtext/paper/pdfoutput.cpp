// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/paper/pdfoutput.h"

#include "host/framework/hostui.h"

namespace {

/// Fine enough for print; documents of some thousand pages stay within the layout's range of numbers.
constexpr int dotsPerInch = 300;

QIODevice *opened(QBuffer &buffer)
{
    buffer.open(QIODevice::WriteOnly);
    return &buffer;
}

} // namespace

PdfOutput::PdfOutput(const QPageLayout &layout, const QString &title)
    : m_writer(opened(m_buffer))
{
    m_writer.setResolution(dotsPerInch);
    m_writer.setPageLayout(layout);
    m_writer.setTitle(title);
}

QByteArray PdfOutput::bytes() const
{
    QByteArray bytes = m_buffer.data();
    // ISO 32000-1, 7.9.4. Positions in the file are written down at its end: the length must stay.
    const QByteArray key("/CreationDate (D:");
    const qsizetype start = bytes.lastIndexOf(key);
    const qsizetype end = start < 0 ? -1 : bytes.indexOf(')', start);
    const QString date = HostUi::current().now().toUTC().toString(QStringLiteral("yyyyMMddHHmmss'Z)'"));
    const qsizetype place = start + key.size();
    if (end >= 0 && place + date.size() <= end + 1) {
        bytes.replace(place, end + 1 - place, date.toLatin1().leftJustified(end + 1 - place, ' '));
    }
    return bytes;
}
