// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>

/// What came of writing an attachment.
enum class ATTACHMENTWRITE
{
    Written,
    /// It is not what it was expected to be; nothing was written.
    Changed,
    Failed
};

/// A document that is open in the host: a design, a board, a project.
class APPLNDOCUMENT : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// The value of one key of the information block, empty when the document has none.
    /// Keys of a design: TITLE, AUTHOR, DOCNO, REV, WL_CDATE, WL_MDATE, FILENAME.
    [[nodiscard]] virtual QString getinfo(const char *key) const = 0;

    /// A named document property such as "VARIANT", as host text; empty when absent.
    [[nodiscard]] virtual QByteArray getproperty(const char *name) const = 0;

    /// One character that tells what the document was made from: 's' schematic, 'b' board.
    [[nodiscard]] virtual char kindcode() const = 0;

    /// Whether the document is of that type: "DSN" a design, "LYT" a board layout.
    [[nodiscard]] virtual bool isdoctype(const char *type) const = 0;

    /// A text kept with the document under a name such as "BOMNOTES.TXT"; empty when absent.
    [[nodiscard]] virtual QString readattachment(const char *name) const = 0;

    /// Replaces such a text if it still is `before`, as it was read; an empty one takes the attachment away.
    /// When that fails the old one stays and attachmenterror() says why.
    virtual ATTACHMENTWRITE writeattachment(const char *name, const QString &before, const QString &text) = 0;
    /// Why the last writeattachment() failed; empty after any other.
    [[nodiscard]] virtual QString attachmenterror() const = 0;

Q_SIGNALS:
    void modified(APPLNDOCUMENT *document);
};
