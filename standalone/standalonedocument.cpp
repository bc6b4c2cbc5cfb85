// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "standalone/standalonedocument.h"

#include "designs/transaction/designlock.h"
#include "host/framework/hosttext.h"
#include "standalone/designwriter.h"
#include "standalone/environment.h"
#include "standalone/loadeddesign.h"
#include "standalone/notesfile.h"
#include "standalone/texts.h"

#include <QFileInfo>

#include <cstring>

namespace {

QString modificationText(const QDateTime &modified)
{
    if (!modified.isValid()) {
        return {};
    }
    QDateTime shown = modified.toLocalTime();
    if (const auto epoch = sourceDateEpoch()) {
        shown = std::min(modified.toUTC(), *epoch);
    }
    return shown.toString(QStringLiteral("yyyy-MM-dd HH:mm"));
}

} // namespace

void StandaloneDocument::setDesign(std::shared_ptr<const LoadedDesign> design)
{
    m_design = std::move(design);
    m_knownNotes.reset();
}

QString StandaloneDocument::getinfo(const char *key) const
{
    if (!m_design || !key) {
        return {};
    }
    const designs::DesignInfo &info = m_design->design().info();
    if (std::strcmp(key, "WL_MDATE") == 0) {
        return modificationText(info.modified);
    }
    struct Entry
    {
        const char *key;
        QString designs::DesignInfo::*value;
    };
    static constexpr Entry entries[] = {
        {"TITLE", &designs::DesignInfo::title},          {"AUTHOR", &designs::DesignInfo::author},
        {"DOCNO", &designs::DesignInfo::documentNumber}, {"REV", &designs::DesignInfo::revision},
        {"WL_CDATE", &designs::DesignInfo::created},     {"FILENAME", &designs::DesignInfo::file},
    };
    for (const Entry &entry : entries) {
        if (std::strcmp(key, entry.key) == 0) {
            return info.*entry.value;
        }
    }
    return {};
}

QByteArray StandaloneDocument::getproperty(const char *name) const
{
    if (!m_design || !name || std::strcmp(name, "VARIANT") != 0) {
        return {};
    }
    return toHostText(m_design->design().info().variant);
}

char StandaloneDocument::kindcode() const
{
    return 's';
}

bool StandaloneDocument::isdoctype(const char *type) const
{
    return type && std::strcmp(type, "DSN") == 0;
}

QString StandaloneDocument::readattachment(const char *name) const
{
    if (!name || std::strcmp(name, "BOMNOTES.TXT") != 0) {
        return {};
    }
    m_knownNotes = readNotesFile(notesFile()).text;
    return *m_knownNotes;
}

ATTACHMENTWRITE StandaloneDocument::writeattachment(const char *name, const QString &before,
                                                    const QString &text)
{
    m_attachmentError.clear();
    if (!m_design || !name || std::strcmp(name, "BOMNOTES.TXT") != 0) {
        m_attachmentError = SessionTexts::tr("the design has no place for such a text");
        return ATTACHMENTWRITE::Failed;
    }
    const designs::DesignPaths paths(m_design->design().info().file);
    designs::FileOperations operations(designs::FileSystem::real());
    designs::DesignLock lock(operations, paths);
    if (!lock.take()) {
        m_attachmentError = messagesOf(operations.problems()).join(QStringLiteral("; "));
        return ATTACHMENTWRITE::Failed;
    }
    return writeNotes(before, text);
}

/// With the lock taken.
ATTACHMENTWRITE StandaloneDocument::writeNotes(const QString &before, const QString &text)
{
    const QString path = notesFile();
    m_attachmentError = notesProblem();
    if (!m_attachmentError.isEmpty()) {
        return ATTACHMENTWRITE::Failed;
    }
    if (readNotesFile(path).text != QString(before).replace(QLatin1String("\r\n"), QLatin1String("\n"))) {
        return ATTACHMENTWRITE::Changed;
    }
    const QString backup = designs::DesignPaths(m_design->design().info().file).backupOf(path);
    if (!writeNotesFile(path, backup, text, &m_attachmentError)) {
        return ATTACHMENTWRITE::Failed;
    }
    m_knownNotes = readNotesFile(path).text;
    return ATTACHMENTWRITE::Written;
}

bool StandaloneDocument::hasOtherNotes() const
{
    return m_knownNotes && readNotesFile(notesFile()).text != *m_knownNotes;
}

QString StandaloneDocument::fileBeside(const QString &suffix) const
{
    if (!m_design) {
        return {};
    }
    const QFileInfo design(m_design->design().info().file);
    return design.path() + u'/' + design.completeBaseName() + suffix;
}

QString StandaloneDocument::notesFile() const
{
    return fileBeside(QStringLiteral(".bomnotes.txt"));
}

QString StandaloneDocument::projectNotesFile() const
{
    return fileBeside(QStringLiteral(".projectnotes.txt"));
}

QString StandaloneDocument::notesProblem() const
{
    const QString path = notesFile();
    const QString problem = readNotesFile(path).problem;
    return problem.isEmpty() ? QString() : path + QStringLiteral(": ") + problem;
}

QString StandaloneLayout::getinfo(const char *key) const
{
    return key && std::strcmp(key, "FILENAME") == 0 ? m_file : QString();
}

bool StandaloneLayout::isdoctype(const char *type) const
{
    return type && std::strcmp(type, "LYT") == 0;
}

ATTACHMENTWRITE StandaloneLayout::writeattachment(const char *, const QString &, const QString &)
{
    return ATTACHMENTWRITE::Failed;
}

QString StandaloneLayout::attachmenterror() const
{
    return m_file + QStringLiteral(": ") + SessionTexts::tr("a board has no place for such a text");
}
