// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/pendingjournal.h"

#include "files/regularfile.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

#include <unistd.h>

#include <algorithm>
#include <utility>

namespace {

constexpr int formatVersion = 1;
/// A file that is larger was not written by this program.
constexpr qint64 mostBytes = qint64(256) * 1024 * 1024;
/// How many programs may have one design open at a time, each with its own journal.
constexpr int mostPrograms = 16;
/// So many lines more than needed, and the file is written anew.
constexpr qsizetype spareLines = 1000;

const QString setKey = QStringLiteral("set");
const QString dropKey = QStringLiteral("drop");
const QString versionKey = QStringLiteral("pendingEdits");

QString fileName(const EditedDesign &design, int program)
{
    const QByteArray told = design.file.toUtf8() + '\n' + design.variant.toUtf8();
    const QByteArray hash = QCryptographicHash::hash(told, QCryptographicHash::Sha1).toHex().left(16);
    // For people; a whole name may leave no room for the rest.
    constexpr qsizetype mostOfName = 40;
    return QFileInfo(design.file).completeBaseName().left(mostOfName) + u'-' + QString::fromLatin1(hash) +
           (program > 0 ? u'-' + QString::number(program + 1) : QString()) + QStringLiteral(".pending");
}

QJsonObject toJson(const EditKey &key)
{
    QJsonObject object{{QStringLiteral("component"), QString::fromUtf8(key.part.component)},
                       {QStringLiteral("property"), key.property}};
    if (key.part != PartIdentity{key.part.component}) {
        object.insert(QStringLiteral("definition"), key.part.definition);
        object.insert(QStringLiteral("place"), key.part.place);
    }
    return object;
}

EditKey keyOf(const QJsonObject &object)
{
    return {{object.value(QStringLiteral("component")).toString().toUtf8(),
             object.value(QStringLiteral("definition")).toString(),
             object.value(QStringLiteral("place")).toInt()},
            object.value(QStringLiteral("property")).toString()};
}

QJsonObject toJson(const PendingEdit &edit)
{
    QJsonObject object = toJson(EditKey::of(edit));
    object.insert(QStringLiteral("reference"), edit.reference);
    object.insert(QStringLiteral("value"), edit.value);
    object.insert(QStringLiteral("before"), edit.before);
    return object;
}

PendingEdit editOf(const QJsonObject &object)
{
    const EditKey key = keyOf(object);
    const QString before = object.value(QStringLiteral("before")).toString();
    PendingEdit edit{key.part, object.value(QStringLiteral("reference")).toString(), key.property,
                     object.value(QStringLiteral("value")).toString(), before};
    edit.present = before;
    return edit;
}

QByteArray line(const QString &key, const QJsonObject &object)
{
    return QJsonDocument(QJsonObject{{key, object}}).toJson(QJsonDocument::Compact) + '\n';
}

QByteArray firstLine(const EditedDesign &design)
{
    return line(versionKey, {{QStringLiteral("version"), formatVersion},
                             {QStringLiteral("file"), design.file},
                             {QStringLiteral("variant"), design.variant}});
}

/// Whether the first line says that the file is of this design and of a form that this program knows.
bool isOf(const QJsonObject &first, const EditedDesign &design)
{
    const QJsonObject said = first.value(versionKey).toObject();
    return said.value(QStringLiteral("version")).toInt() == formatVersion &&
           said.value(QStringLiteral("file")).toString() == design.file &&
           said.value(QStringLiteral("variant")).toString() == design.variant;
}

QJsonObject nextObject(QFile *file)
{
    return QJsonDocument::fromJson(file->readLine()).object();
}

/// Whether the file is missing or empty, or one that this program can go on with.
bool canBeUsed(const QString &path, const EditedDesign &design)
{
    QFile file(path);
    if (!file.exists() || file.size() == 0) {
        return true;
    }
    return file.size() <= mostBytes && file.open(QIODevice::ReadOnly) && isOf(nextObject(&file), design);
}

using Edits = std::map<EditKey, PendingEdit>;

/// The design that the first line names; without a file where the form is not known.
EditedDesign designOf(const QJsonObject &first)
{
    const QJsonObject said = first.value(versionKey).toObject();
    const EditedDesign design{said.value(QStringLiteral("file")).toString(),
                              said.value(QStringLiteral("variant")).toString()};
    return isOf(first, design) ? design : EditedDesign();
}

/// What the lines after the first one leave.
Edits remainingEdits(QFile *file)
{
    Edits edits;
    while (!file->atEnd()) {
        const QJsonObject object = nextObject(file);
        if (object.contains(setKey)) {
            const PendingEdit edit = editOf(object.value(setKey).toObject());
            edits[EditKey::of(edit)] = edit;
        } else if (object.contains(dropKey)) {
            edits.erase(keyOf(object.value(dropKey).toObject()));
        }
    }
    return edits;
}

Edits editsIn(const QString &path, const EditedDesign &design)
{
    QFile file(path);
    const bool isReadable = !path.isEmpty() && file.size() <= mostBytes && file.open(QIODevice::ReadOnly) &&
                            isOf(nextObject(&file), design);
    return isReadable ? remainingEdits(&file) : Edits();
}

} // namespace

PendingJournal::PendingJournal(const QString &folder, const EditedDesign &design)
    : m_design(design)
{
    if (folder.isEmpty() || design.file.isEmpty()) {
        return;
    }
    const QDir place(folder);
    if (!place.mkpath(QStringLiteral("."))) {
        m_error = folder;
        return;
    }
    for (int program = 0; program < mostPrograms; ++program) {
        const QString path = place.filePath(fileName(design, program));
        if (!m_file.path.isEmpty() && !QFile::exists(path)) {
            continue;
        }
        if (!canBeUsed(path, design)) {
            m_unreadable = path;
            continue;
        }
        auto lock = std::make_unique<QLockFile>(path + QStringLiteral(".lock"));
        lock->setStaleLockTime(0);
        if (!lock->tryLock()) {
            if (lock->error() != QLockFile::LockFailedError) {
                m_error = path;
            }
            continue;
        }
        if (m_file.path.isEmpty()) {
            m_file = {path, std::move(lock)};
        } else {
            m_others.push_back({path, std::move(lock)});
        }
    }
    if (m_file.path.isEmpty() && m_error.isEmpty()) {
        m_error = folder;
    }
}

PendingJournal::~PendingJournal() = default;

QList<PendingEdit> PendingJournal::read() const
{
    QStringList paths(m_file.path);
    for (const File &other : m_others) {
        paths << other.path;
    }
    // Of two edits of the same the later one counts.
    std::stable_sort(paths.begin(), paths.end(), [](const QString &left, const QString &right) {
        return QFileInfo(left).lastModified() < QFileInfo(right).lastModified();
    });
    Edits edits;
    for (const QString &path : std::as_const(paths)) {
        for (const auto &[key, edit] : editsIn(path, m_design)) {
            edits[key] = edit;
        }
    }
    QList<PendingEdit> read;
    read.reserve(qsizetype(edits.size()));
    for (const auto &[key, edit] : edits) {
        read.append(edit);
    }
    return read;
}

QList<UnwrittenDesign> PendingJournal::unwrittenIn(const QString &folder)
{
    std::map<EditedDesign, Edits> designs;
    for (const QFileInfo &info : QDir(folder).entryInfoList({QStringLiteral("*.pending")}, QDir::Files,
                                                            QDir::Time | QDir::Reversed)) {
        QFile file(info.filePath());
        QLockFile lock(info.filePath() + QStringLiteral(".lock"));
        lock.setStaleLockTime(0);
        if (info.size() > mostBytes || !lock.tryLock() || !file.open(QIODevice::ReadOnly)) {
            continue;
        }
        if (const EditedDesign design = designOf(nextObject(&file)); !design.file.isEmpty()) {
            for (const auto &[key, edit] : remainingEdits(&file)) {
                designs[design][key] = edit;
            }
        }
    }
    QList<UnwrittenDesign> unwritten;
    for (const auto &[design, edits] : designs) {
        unwritten.append({design, qsizetype(edits.size())});
    }
    return unwritten;
}

bool PendingJournal::record(const QList<EditKey> &gone, const QList<PendingEdit> &come, qsizetype count,
                            const std::function<QList<PendingEdit>()> &all)
{
    if (m_file.path.isEmpty()) {
        return m_error.isEmpty();
    }
    const qsizetype lines = gone.size() + come.size();
    bool isDone = true;
    if (count == 0) {
        m_lines = -1;
        isDone = !QFile::exists(m_file.path) || QFile::remove(m_file.path);
    } else if (m_lines < 0 || m_lines + lines > 2 * count + spareLines) {
        isDone = rewrite(all());
    } else {
        QByteArray text;
        for (const EditKey &key : gone) {
            text += line(dropKey, toJson(key));
        }
        for (const PendingEdit &edit : come) {
            text += line(setKey, toJson(edit));
        }
        m_lines += lines;
        isDone = append(text);
    }
    if (isDone) {
        for (const File &other : m_others) {
            QFile::remove(other.path);
        }
        m_others.clear();
    }
    return isDone;
}

bool PendingJournal::append(const QByteArray &lines)
{
    QFile file(m_file.path);
    if (!file.open(QIODevice::Append) || file.write(lines) != lines.size() || !file.flush() ||
        ::fsync(file.handle()) != 0) {
        // A line may be there in part: the next one must not be joined to it.
        m_lines = -1;
        return fail(file.errorString());
    }
    return true;
}

bool PendingJournal::rewrite(const QList<PendingEdit> &all)
{
    QByteArray text = firstLine(m_design);
    for (const PendingEdit &edit : all) {
        text += line(setKey, toJson(edit));
    }
    QSaveFile file(m_file.path);
    if (!file.open(QIODevice::WriteOnly) || !file.setPermissions(QFile::ReadOwner | QFile::WriteOwner)) {
        return fail(file.errorString());
    }
    if (QString reason; !writeReplacement(&file, text, &reason)) {
        return fail(reason);
    }
    m_lines = all.size();
    return true;
}

bool PendingJournal::fail(const QString &reason)
{
    m_error = reason;
    return false;
}
