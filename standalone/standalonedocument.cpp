// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "standalone/standalonedocument.h"

#include "host/framework/hosttext.h"
#include "standalone/environment.h"
#include "standalone/loadeddesign.h"

#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>

#include <cstring>

namespace {

/// More than any notes that people write; keeps a wrong file from filling the memory.
constexpr qint64 largestNotes = 16 * 1024 * 1024;

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

struct Notes
{
    QString text;
    QString problem;
};

Notes readNotes(const QString &path)
{
    const QFileInfo info(path);
    if (path.isEmpty() || !info.exists()) {
        return {};
    }
    if (!info.isFile()) {
        return {{}, QStringLiteral("is no file")};
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return {{}, file.errorString()};
    }
    const QByteArray bytes = file.read(largestNotes + 1);
    if (bytes.size() > largestNotes) {
        return {{}, QStringLiteral("is larger than 16 MB")};
    }
    QStringDecoder decoder(QStringDecoder::Utf8);
    QString text = decoder(bytes);
    if (decoder.hasError()) {
        return {{}, QStringLiteral("is no UTF-8 text")};
    }
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    return {text, {}};
}

} // namespace

void StandaloneDocument::setDesign(std::shared_ptr<const LoadedDesign> design)
{
    m_design = std::move(design);
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
    return readNotes(notesFile()).text;
}

QString StandaloneDocument::notesFile() const
{
    if (!m_design) {
        return {};
    }
    const QFileInfo design(m_design->design().info().file);
    return design.path() + u'/' + design.completeBaseName() + QStringLiteral(".bomnotes.txt");
}

QString StandaloneDocument::notesProblem() const
{
    const QString path = notesFile();
    const QString problem = readNotes(path).problem;
    return problem.isEmpty() ? QString() : path + QStringLiteral(": ") + problem;
}
