// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "templates/legacyscripts.h"

#include "files/regularfile.h"

#ifdef Q_OS_WIN
#include <QDir>
#endif
#include <QCoreApplication>
#include <QFileInfo>
#include <QHash>
#include <QMap>
#include <QSettings>
#include <QStringDecoder>
#include <QVersionNumber>

#include <algorithm>

namespace {

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(LegacyScripts)
};

/// Scripts by name, in the order in which the names came first.
class ScriptSet final
{
public:
    void add(const LegacyScript &script)
    {
        const auto known = m_indices.constFind(script.name);
        if (known != m_indices.constEnd()) {
            m_scripts[*known] = script;
            return;
        }
        m_indices.insert(script.name, m_scripts.size());
        m_scripts.append(script);
    }
    [[nodiscard]] const QList<LegacyScript> &scripts() const { return m_scripts; }

private:
    QList<LegacyScript> m_scripts;
    QHash<QString, qsizetype> m_indices;
};

bool beginsWith(QStringView line, QLatin1String marker)
{
    return line.startsWith(marker, Qt::CaseInsensitive);
}

/// The text behind the marker without the blanks and quotes around it.
QString scriptName(QStringView text)
{
    const auto isAround = [](QChar c) { return c == u'"' || c == u'\'' || c.isSpace(); };
    while (!text.isEmpty() && isAround(text.front())) {
        text = text.sliced(1);
    }
    while (!text.isEmpty() && isAround(text.back())) {
        text.chop(1);
    }
    return text.toString();
}

/// Takes the lines of a file one by one.
class ScriptReader final
{
public:
    explicit ScriptReader(QStringList *problems)
        : m_problems(problems)
    {
    }

    void read(QStringView line)
    {
        constexpr QLatin1String start("*BOM SCRIPT");
        ++m_line;
        if (beginsWith(line, start)) {
            endUnfinished();
            m_script = LegacyScript{scriptName(line.sliced(start.size())), {}};
            m_startLine = m_line;
        } else if (beginsWith(line, QLatin1String("*END SCRIPT"))) {
            end();
        } else if (m_script) {
            m_script->text += line;
            m_script->text += u'\n';
        }
    }

    [[nodiscard]] QList<LegacyScript> finish()
    {
        endUnfinished();
        return m_set.scripts();
    }

private:
    void end()
    {
        if (m_script) {
            m_set.add(*m_script);
            m_script.reset();
        }
    }

    void endUnfinished()
    {
        if (m_script && m_problems) {
            m_problems->append(QString::number(m_startLine) + QStringLiteral(": ") +
                               Texts::tr("the script \"%1\" has no line \"%2\"")
                                   .arg(m_script->name, QStringLiteral("*END SCRIPT")));
        }
        end();
    }

    QStringList *m_problems;
    ScriptSet m_set;
    std::optional<LegacyScript> m_script;
    int m_line = 0;
    int m_startLine = 0;
};

/// The bytes of a file; nothing, with the reason, when they cannot be a text.
std::optional<QByteArray> bytesOf(const QString &path, QString *reason)
{
    if (!QFileInfo::exists(path)) {
        *reason = Texts::tr("there is no such file");
        return std::nullopt;
    }
    std::optional<QByteArray> bytes = contentOfRegularFile(path, mostLegacyScriptBytes, reason);
    if (!bytes) {
        return std::nullopt;
    }
    if (bytes->size() > mostLegacyScriptBytes) {
        *reason = Texts::tr("the file is larger than 4 MiB, the most that BOM scripts may have");
        return std::nullopt;
    }
    if (bytes->contains('\0')) {
        *reason = Texts::tr("the file is no text");
        return std::nullopt;
    }
    return bytes;
}

QString decoded(const QByteArray &bytes)
{
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString text = decoder(bytes);
    return decoder.hasError() ? QString::fromLatin1(bytes) : text;
}

/// The subgroup of the current group that stands for the highest version, empty without any.
QString highestVersion(const QSettings &settings)
{
    const QStringList groups = settings.childGroups();
    const auto isLower = [](const QString &left, const QString &right) {
        const auto leftVersion = QVersionNumber::fromString(left);
        const auto rightVersion = QVersionNumber::fromString(right);
        return leftVersion == rightVersion ? left < right : leftVersion < rightVersion;
    };
    const auto highest = std::ranges::max_element(groups, isLower);
    return highest == groups.end() ? QString() : *highest;
}

} // namespace

QList<LegacyScript> legacyScripts(const QString &text, QStringList *problems)
{
    ScriptReader reader(problems);
    for (QStringView line : QStringView(text).tokenize(u'\n')) {
        while (line.endsWith(u'\r')) {
            line.chop(1);
        }
        reader.read(line);
    }
    return reader.finish();
}

QList<LegacyScript> readLegacyScripts(const QString &path, QStringList *problems)
{
    const auto addProblem = [&](const QString &problem) {
        if (problems) {
            problems->append(path + problem);
        }
    };
    QString reason;
    const std::optional<QByteArray> bytes = bytesOf(path, &reason);
    if (!bytes) {
        addProblem(QStringLiteral(": ") + reason);
        return {};
    }
    QStringList found;
    QList<LegacyScript> scripts = legacyScripts(decoded(*bytes), &found);
    if (scripts.isEmpty()) {
        addProblem(QStringLiteral(": ") +
                   Texts::tr("there is no line \"%1\"").arg(QStringLiteral("*BOM SCRIPT")));
    }
    for (const QString &problem : std::as_const(found)) {
        addProblem(u':' + problem);
    }
    return scripts;
}

std::optional<LegacyScript> readLegacyScript(const QString &path, const QString &name, QStringList *problems)
{
    const QList<LegacyScript> scripts = readLegacyScripts(path, problems);
    if (scripts.isEmpty()) {
        return std::nullopt;
    }
    if (name.isEmpty() && scripts.size() == 1) {
        return scripts.first();
    }
    for (const Qt::CaseSensitivity rule : {Qt::CaseSensitive, Qt::CaseInsensitive}) {
        const auto isWanted = [&](const LegacyScript &script) {
            return script.name.compare(name, rule) == 0;
        };
        const auto found = std::ranges::find_if(scripts, isWanted);
        if (!name.isEmpty() && found != scripts.end()) {
            return *found;
        }
    }
    QStringList names;
    for (const LegacyScript &script : scripts) {
        names.append(Texts::tr("\"%1\"").arg(script.name));
    }
    problems->append(path + QStringLiteral(": ") +
                     Texts::tr("name one of the scripts %1").arg(names.join(QLatin1String(", "))));
    return std::nullopt;
}

QList<LegacyScript> legacyScriptsIn(QSettings &settings, QString *group)
{
    QStringList programs = settings.childGroups();
    programs.sort();
    QMap<QString, QString> scripts;
    for (const QString &program : std::as_const(programs)) {
        if (!program.startsWith(QLatin1String("ORIN"), Qt::CaseInsensitive)) {
            continue;
        }
        settings.beginGroup(program);
        const QString version = highestVersion(settings);
        settings.beginGroup(version + QStringLiteral("/BOM Scripts"));
        const QStringList names = settings.childKeys();
        if (!version.isEmpty() && !names.isEmpty()) {
            *group = settings.group();
            for (const QString &name : names) {
                // A registry value may be one text or a list of lines.
                scripts.insert(name, settings.value(name).toStringList().join(u'\n'));
            }
        }
        settings.endGroup();
        settings.endGroup();
    }
    QList<LegacyScript> list;
    for (auto it = scripts.cbegin(); it != scripts.cend(); ++it) {
        list.append({it.key(), it.value()});
    }
    return list;
}

#ifdef Q_OS_WIN
QList<LegacyScript> registryLegacyScripts(QString *path)
{
    const QString root = QStringLiteral("HKEY_CURRENT_USER\\Software\\Velmora");
    QSettings settings(root, QSettings::NativeFormat);
    QString group;
    const QList<LegacyScript> scripts = legacyScriptsIn(settings, &group);
    *path = QDir::toNativeSeparators(group.isEmpty() ? root : root + u'/' + group);
    return scripts;
}
#endif
