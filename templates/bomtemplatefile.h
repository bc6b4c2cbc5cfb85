// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QString>
#include <QVariantMap>

class QIODevice;
class QXmlStreamReader;

/// Reads and writes the document of one template: an XML root "BOMTemplate" with the format version, and the
/// template's map inside it.
class BOMTemplateFile final
{
    Q_DECLARE_TR_FUNCTIONS(BOMTemplateFile)

public:
    /// Larger documents are refused.
    static constexpr qint64 MaximumSize = 64 * 1024 * 1024;

    explicit BOMTemplateFile(const QString &filePath)
        : m_filePath(filePath)
    {
    }

    /// The version of the document that was read, or that is to be written; 0 before.
    [[nodiscard]] qint32 version() const { return m_version; }
    void setVersion(qint32 version) { m_version = version; }

    /// Reads the whole document. False when it cannot be opened, is not well formed, has another root or no
    /// version; `map` is then not to be used.
    [[nodiscard]] bool readXmlFile(QVariantMap &map);

    /// As readXmlFile(), from a device that is open for reading.
    [[nodiscard]] bool readDocument(QIODevice &device, QVariantMap &map);

    /// Replaces the file. False, with the old file kept, when it cannot be written or a text holds a
    /// character that XML cannot carry.
    [[nodiscard]] bool writeXmlFile(const QVariantMap &map);

    /// As writeXmlFile(), to a device that is open for writing.
    [[nodiscard]] bool writeDocument(QIODevice &device, const QVariantMap &map);

    /// What the last failed call met, as "FILE: problem" or "FILE:LINE: problem".
    [[nodiscard]] QString errorString() const { return m_error; }

private:
    bool fail(const QString &problem, qint64 line = 0);
    bool readRoot(QXmlStreamReader &reader, QVariantMap &map);

    QString m_filePath;
    QString m_error;
    qint32 m_version = 0;
};
