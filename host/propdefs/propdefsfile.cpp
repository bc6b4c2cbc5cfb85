// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "host/propdefs/propdefsfile.h"

#include "files/regularfile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSaveFile>
#include <QStringDecoder>

#include <algorithm>
#include <optional>

namespace {

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(PropertyDefinitions)
};

constexpr auto shippedDefinitions = "[PROPDEFS]\n"
                                    "\"PACKAGE\",STRING\n"
                                    "\"CODE\",STRING,\"Stock Code\"\n"
                                    "\"COST\",FLOAT,\"Unit Cost\"\n"
                                    "\"DNP\",YESNO,\"Do not populate\"\n";

constexpr qint64 mostBytes = 1024 * 1024;

QString theFile;

const QString &sectionName()
{
    static const QString name = QStringLiteral("PROPDEFS");
    return name;
}

bool isHeading(const QString &line, const QString &section)
{
    return line.trimmed().compare(u'[' + section + u']', Qt::CaseInsensitive) == 0;
}

bool isAnyHeading(const QString &line)
{
    const QString text = line.trimmed();
    return text.startsWith(u'[') && text.endsWith(u']');
}

bool isComment(const QString &line)
{
    const QString text = line.trimmed();
    return text.isEmpty() || text.startsWith(u';') || text.startsWith(u'#');
}

std::optional<PropType> typeOfKeyword(const QString &keyword)
{
    for (int number = 1; number <= 8; ++number) {
        const auto type = static_cast<PropType>(number);
        const QString name = propTypeKeyword(type);
        if (!name.isEmpty() && name.compare(keyword, Qt::CaseInsensitive) == 0) {
            return type;
        }
    }
    return std::nullopt;
}

/// Fills the keywords of a definition, or returns what is wrong with the list.
QString parseKeywords(const QString &list, PROPDEF *definition)
{
    if (list.isEmpty()) {
        return {};
    }
    if (definition->type != PropType::String) {
        return Texts::tr("a list of values goes with STRING only; the list does not count");
    }
    QStringList keywords;
    for (const QString &text : list.split(u'|')) {
        const QString keyword = text.trimmed();
        if (keyword.isEmpty()) {
            return Texts::tr("the list of values has an empty one; the list does not count");
        }
        if (keywords.contains(keyword, Qt::CaseInsensitive)) {
            return Texts::tr("the list of values has \"%1\" twice; the list does not count").arg(keyword);
        }
        keywords.append(keyword);
    }
    definition->keywords = keywords;
    return {};
}

/// Fills `definition`, and `list` with the text of its list of values, or returns what is wrong with the
/// line. A description may hold quotes and commas: a last field is a list only if it is empty or has a "|".
QString parseLine(const QString &line, PROPDEF *definition, QString *list)
{
    static const QRegularExpression pattern(
        QStringLiteral("^\\s*\"([^\"]*)\"\\s*,\\s*([A-Za-z]+)\\s*"
                       "(?:,\\s*\"(.*?)\"\\s*(?:,\\s*\"([^\"|]*\\|[^\"]*|)\"\\s*)?)?$"));
    const QRegularExpressionMatch match = pattern.match(line);
    if (!match.hasMatch() || match.capturedView(1).isEmpty()) {
        return Texts::tr("expected \"NAME\",TYPE or \"NAME\",TYPE,\"description\"");
    }
    const auto type = typeOfKeyword(match.captured(2));
    if (!type) {
        return Texts::tr("unknown property type \"%1\" (YESNO, HIGHLOW, TRUEFALSE, STRING, INT, FLOAT)")
            .arg(match.captured(2));
    }
    *definition = PROPDEF{match.captured(1), *type, match.captured(3)};
    *list = match.captured(4);
    return {};
}

/// The bytes of the file; nothing, with the reason in `wrong`, when it cannot be read or is too large.
std::optional<QByteArray> contentOf(const QString &path, QString *wrong)
{
    std::optional<QByteArray> bytes = contentOfRegularFile(path, mostBytes, wrong);
    if (bytes && bytes->size() > mostBytes) {
        *wrong = Texts::tr("the file is larger than 1 MiB, the most that definitions may have");
        return std::nullopt;
    }
    return bytes;
}

/// Whoever owns the file, and whatever the user may do.
bool isMarkedReadOnly(const QString &path)
{
    constexpr QFileDevice::Permissions any =
        QFileDevice::WriteOwner | QFileDevice::WriteGroup | QFileDevice::WriteOther;
    const QFileInfo file(path);
    return file.exists() && !(file.permissions() & any);
}

} // namespace

PROPTEXT PROPTEXT::fromBytes(const QByteArray &bytes)
{
    PROPTEXT read;
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom);
    QString text = decoder(bytes);
    if (decoder.hasError()) {
        read.m_isLatin1 = true;
        text = QString::fromLatin1(bytes);
    } else if (text.startsWith(QChar::ByteOrderMark)) {
        read.m_hasMark = true;
        text.remove(0, 1);
    }
    if (text.contains(QLatin1String("\r\n"))) {
        read.m_lineEnd = QStringLiteral("\r\n");
    }
    // Other carriage returns stay: without one between them, two bytes of Latin-1 could read as one of UTF-8.
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    if (text.endsWith(u'\n')) {
        text.chop(1);
    } else {
        // With the line end that is written behind it, it would be a part of that.
        while (text.endsWith(u'\r')) {
            text.chop(1);
        }
    }
    read.m_lines = text.split(u'\n');
    return read;
}

QByteArray PROPTEXT::toBytes() const
{
    const QString mark = m_hasMark ? QString(QChar(QChar::ByteOrderMark)) : QString();
    const QString text = mark + m_lines.join(m_lineEnd) + m_lineEnd;
    const bool fits = std::ranges::all_of(text, [](QChar c) { return c.unicode() <= 0xFF; });
    return m_isLatin1 && fits ? text.toLatin1() : text.toUtf8();
}

void PROPTEXT::add(const QString &section, const QString &line)
{
    qsizetype at = 0;
    while (at < m_lines.size() && !isHeading(m_lines.at(at), section)) {
        ++at;
    }
    if (at == m_lines.size()) {
        m_lines << u'[' + section + u']' << line;
        return;
    }
    qsizetype end = at + 1;
    for (qsizetype i = at + 1; i < m_lines.size() && !isAnyHeading(m_lines.at(i)); ++i) {
        if (!m_lines.at(i).trimmed().isEmpty()) {
            end = i + 1;
        }
    }
    m_lines.insert(end, line);
}

bool PROPTEXT::hasSection(const QString &section) const
{
    return std::ranges::any_of(m_lines, [&section](const QString &line) { return isHeading(line, section); });
}

DIDX PROPTEXT::definitions(QStringList *problems) const
{
    DIDX index;
    bool inside = false;
    for (qsizetype i = 0; i < m_lines.size(); ++i) {
        const QString &line = m_lines.at(i);
        if (isAnyHeading(line)) {
            inside = isHeading(line, sectionName());
            continue;
        }
        if (!inside || isComment(line)) {
            continue;
        }
        PROPDEF definition;
        QString list;
        QString wrong = parseLine(line, &definition, &list);
        if (wrong.isEmpty()) {
            wrong = parseKeywords(list, &definition);
            if (!index.add(definition)) {
                wrong =
                    Texts::tr("\"%1\" is defined twice; the first definition counts").arg(definition.name);
            }
        }
        if (!wrong.isEmpty() && problems) {
            problems->append(QString::number(i + 1) + QStringLiteral(": ") + wrong);
        }
    }
    return index;
}

void setpropdefsfile(const QString &path)
{
    theFile = path;
}

QString propdefsfile()
{
    return theFile;
}

bool load_defaultdefs(DIDX *index, PROPTEXT *text, QStringList *problems)
{
    QByteArray content(shippedDefinitions);
    if (!theFile.isEmpty() && QFileInfo::exists(theFile)) {
        QString wrong;
        const std::optional<QByteArray> stored = contentOf(theFile, &wrong);
        if (!stored) {
            if (problems) {
                problems->append(theFile + QStringLiteral(": ") + wrong);
            }
            return false;
        }
        content = *stored;
    }
    const PROPTEXT read = PROPTEXT::fromBytes(content);
    QStringList found;
    const DIDX definitions = read.definitions(&found);
    if (problems) {
        if (!read.hasSection(sectionName())) {
            problems->append(theFile + QStringLiteral(": ") + Texts::tr("there is no section [PROPDEFS]"));
        }
        for (const QString &problem : std::as_const(found)) {
            problems->append(theFile + u':' + problem);
        }
    }
    if (index) {
        *index = definitions;
    }
    if (text) {
        *text = read;
    }
    return true;
}

bool save_defaultdefs(const PROPTEXT &text)
{
    if (theFile.isEmpty() || isMarkedReadOnly(theFile) || !QDir().mkpath(QFileInfo(theFile).path())) {
        return false;
    }
    QSaveFile file(theFile);
    QString reason;
    return openForReplacing(&file, QIODevice::WriteOnly, &reason) &&
           writeReplacement(&file, text.toBytes(), &reason);
}

bool isreadonly_defaultdefs()
{
    return !theFile.isEmpty() && isMarkedReadOnly(theFile);
}

QString format_propdefs(const PROPDEF &definition)
{
    QString line = u'"' + definition.name + QStringLiteral("\",") + propTypeKeyword(definition.type);
    // An empty list behind a description keeps the description's own quotes from being read as a list.
    static const QRegularExpression listStart(QStringLiteral("\"\\s*,"));
    const bool hasList = !definition.keywords.isEmpty() || definition.description.contains(listStart);
    if (hasList || !definition.description.isEmpty()) {
        line += QStringLiteral(",\"") + definition.description + u'"';
    }
    if (hasList) {
        line += QStringLiteral(",\"") + definition.keywords.join(u'|') + u'"';
    }
    return line;
}
