// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QBuffer>
#include <QByteArray>
#include <QPageLayout>
#include <QPdfWriter>
#include <QString>

/// A PDF file in the making, held in memory until it is whole.
class PdfOutput final
{
public:
    PdfOutput(const QPageLayout &layout, const QString &title);

    /// To paint on; the painter must have ended before bytes() is asked for.
    [[nodiscard]] QPdfWriter &device() { return m_writer; }

    /// The file. Its date is the host's clock, so that equal documents at equal times give equal bytes.
    [[nodiscard]] QByteArray bytes() const;

private:
    QBuffer m_buffer;
    QPdfWriter m_writer;
};
