// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QString>
#include <QVariantMap>

#include <optional>

class QIODevice;

/// What the file of a template holds: the version of its format, never 0, and the template's map.
struct BOMTemplateDocument
{
    qint32 version = 0;
    QVariantMap map;
};

/// Reads and writes the file of one template: an XML root "BOMTemplate" with the format version, and the
/// template's map inside it. A function that fails puts the reason into `problem`, as "FILE: problem" or
/// "FILE:LINE: problem".
class BOMTemplateFile final
{
    Q_DECLARE_TR_FUNCTIONS(BOMTemplateFile)

public:
    /// The version in which documents are written.
    static constexpr qint32 CurrentVersion = 5;
    /// Larger documents are refused.
    static constexpr qint64 MaximumSize = 64 * 1024 * 1024;

    explicit BOMTemplateFile(const QString &filePath)
        : m_filePath(filePath)
    {
    }

    /// Reads the whole document. Nothing when it cannot be opened, is not well formed, has another root or no
    /// version.
    [[nodiscard]] std::optional<BOMTemplateDocument> readXmlFile(QString *problem) const;

    /// As readXmlFile(), from a device that is open for reading.
    [[nodiscard]] std::optional<BOMTemplateDocument> readDocument(QIODevice &device, QString *problem) const;

    /// Replaces the file. False, with the old file kept, when it cannot be written or a text holds a
    /// character that XML cannot carry.
    [[nodiscard]] bool writeXmlFile(const QVariantMap &map, QString *problem) const;

    /// What writeXmlFile() writes; nothing, with the problem, when it cannot be said in XML.
    [[nodiscard]] std::optional<QByteArray> document(const QVariantMap &map, QString *problem) const;

private:
    [[nodiscard]] QString located(const QString &problem, qint64 line = 0) const;

    QString m_filePath;
};
