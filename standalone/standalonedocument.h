// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "host/framework/applndocument.h"

#include <QString>

#include <memory>
#include <optional>

class LoadedDesign;

/// The design that is open in the standalone host, as a document.
class StandaloneDocument final : public APPLNDOCUMENT
{
    Q_OBJECT

public:
    using APPLNDOCUMENT::APPLNDOCUMENT;

    void setDesign(std::shared_ptr<const LoadedDesign> design);

    /// WL_MDATE is the newest modification as "yyyy-MM-dd HH:mm" in local time; with SOURCE_DATE_EPOCH set in
    /// UTC, and at most that moment.
    [[nodiscard]] QString getinfo(const char *key) const override;
    [[nodiscard]] QByteArray getproperty(const char *name) const override;
    [[nodiscard]] char kindcode() const override;
    [[nodiscard]] bool isdoctype(const char *type) const override;
    /// BOMNOTES.TXT is read at every call from the file notesFile(); line ends become "\n".
    [[nodiscard]] QString readattachment(const char *name) const override;
    /// BOMNOTES.TXT goes to notesFile(), its previous content beside the backups of the design. Notes that
    /// cannot be read are not replaced. One program at a time writes them.
    ATTACHMENTWRITE writeattachment(const char *name, const QString &before, const QString &text) override;
    [[nodiscard]] QString attachmenterror() const override { return m_attachmentError; }
    /// Whether the notes are others than those that were read or written last; false when they never were.
    [[nodiscard]] bool hasOtherNotes() const;

    /// "<design base name>.bomnotes.txt" beside the design; empty without a design.
    [[nodiscard]] QString notesFile() const;
    /// "<design base name>.projectnotes.txt" beside the design; empty without a design.
    [[nodiscard]] QString projectNotesFile() const;
    /// "FILE: why" when there is a notes file and it cannot be read as text.
    [[nodiscard]] QString notesProblem() const;

private:
    [[nodiscard]] QString fileBeside(const QString &suffix) const;
    [[nodiscard]] ATTACHMENTWRITE writeNotes(const QString &before, const QString &text);

    std::shared_ptr<const LoadedDesign> m_design;
    QString m_attachmentError;
    mutable std::optional<QString> m_knownNotes;
};

/// The board file beside the design, as the document that a modification is told about.
class StandaloneLayout final : public APPLNDOCUMENT
{
    Q_OBJECT

public:
    explicit StandaloneLayout(QString file)
        : m_file(std::move(file))
    {
    }

    /// Only FILENAME.
    [[nodiscard]] QString getinfo(const char *key) const override;
    [[nodiscard]] QByteArray getproperty(const char *) const override { return {}; }
    [[nodiscard]] char kindcode() const override { return 'b'; }
    [[nodiscard]] bool isdoctype(const char *type) const override;
    [[nodiscard]] QString readattachment(const char *) const override { return {}; }
    ATTACHMENTWRITE writeattachment(const char *name, const QString &before, const QString &text) override;
    [[nodiscard]] QString attachmenterror() const override;

private:
    QString m_file;
};
