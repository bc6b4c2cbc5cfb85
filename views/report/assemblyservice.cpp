// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "views/report/assemblyservice.h"

#include <QCoreApplication>
#include <QHash>
#include <QStringDecoder>

#include <algorithm>
#include <array>
#include <utility>

namespace {

/// Most stand behind the name of the file and the line.
struct ServiceTexts
{
    Q_DECLARE_TR_FUNCTIONS(AssemblyService)
};

using Content = ServiceColumn::Content;

constexpr qsizetype mostColumns = 200;
constexpr int largestRow = 1'000'000;
constexpr qsizetype longestLine = 1000;
constexpr qsizetype shownLength = 60;

QString quoted(QStringView text)
{
    return u'"' + text.left(shownLength).toString() + u'"';
}

/// What a column can hold without saying more.
std::optional<Content> contentOf(QStringView word)
{
    static constexpr std::array<std::pair<QLatin1String, Content>, 5> words{
        {{QLatin1String("value"), Content::Value},
         {QLatin1String("footprint"), Content::Footprint},
         {QLatin1String("designators"), Content::Designators},
         {QLatin1String("quantity"), Content::Quantity},
         {QLatin1String("item number"), Content::ItemNumber}}};
    const auto found = std::find_if(words.begin(), words.end(), [word](const auto &known) {
        return word.compare(known.first, Qt::CaseInsensitive) == 0;
    });
    return found == words.end() ? std::nullopt : std::optional(found->second);
}

/// A text, or what stands in double quotes.
QString unquoted(QStringView text)
{
    const bool isQuoted = text.size() > 1 && text.front() == u'"' && text.back() == u'"';
    return (isQuoted ? text.sliced(1, text.size() - 2) : text).toString();
}

/// Reads the lines of a description up to the first that is wrong.
class ServiceReader final
{
public:
    explicit ServiceReader(const QString &file)
        : m_file(file)
    {
    }

    [[nodiscard]] ReadService read(const QByteArray &text);

private:
    void readLine(QStringView line);
    void readSetting(const QString &key, QStringView value);
    void readColumn(const QString &heading, QStringView value);
    void readMostDesignators(QStringView value);
    void readLetterCase(QStringView value);
    void checkWhole();
    void fail(const QString &text);

    QString m_file;
    ReadService m_read;
    int m_line = 0;
    bool m_isBelowColumns = false;
    /// Settings and folded headings with their lines.
    QHash<QString, int> m_settings;
    QHash<QString, int> m_headings;
    QString m_needed;
};

ReadService ServiceReader::read(const QByteArray &text)
{
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString decoded = decoder(text);
    if (decoder.hasError() || decoded.contains(QChar::Null)) {
        fail(ServiceTexts::tr("is no UTF-8 text"));
        return m_read;
    }
    for (const QStringView line : QStringView(decoded).split(u'\n')) {
        ++m_line;
        readLine(line.trimmed());
        if (!m_read.problem.isEmpty()) {
            return m_read;
        }
    }
    m_line = 0;
    checkWhole();
    return m_read;
}

void ServiceReader::readLine(QStringView line)
{
    if (line.isEmpty() || line.startsWith(u'#')) {
        return;
    }
    if (line.startsWith(u'[')) {
        if (line.compare(QLatin1String("[columns]"), Qt::CaseInsensitive) != 0 || m_isBelowColumns) {
            fail(ServiceTexts::tr("%1 is no heading; there is one only, [columns]").arg(quoted(line)));
        }
        m_isBelowColumns = true;
        return;
    }
    if (line.size() > longestLine) {
        fail(ServiceTexts::tr("is longer than %1 characters").arg(longestLine));
        return;
    }
    const qsizetype end = line.startsWith(u'"') ? line.indexOf(u'"', 1) : 0;
    const qsizetype sign = end < 0 ? -1 : line.indexOf(u'=', end);
    const QString name = sign < 0 ? QString() : unquoted(line.first(sign).trimmed());
    if (name.isEmpty()) {
        const QString text = m_isBelowColumns
                                 ? ServiceTexts::tr("%1 is no column such as Designator = designators")
                                 : ServiceTexts::tr("%1 is no setting such as title = Our assembly house");
        fail(text.arg(quoted(line)));
    } else if (m_isBelowColumns) {
        readColumn(name, line.sliced(sign + 1).trimmed());
    } else {
        readSetting(name.toLower().simplified(), line.sliced(sign + 1).trimmed());
    }
}

void ServiceReader::readSetting(const QString &key, QStringView value)
{
    if (key != QLatin1String("apart") && m_settings.contains(key)) {
        fail(ServiceTexts::tr("%1 stands in line %2 as well")
                 .arg(quoted(key), QString::number(m_settings.value(key))));
        return;
    }
    m_settings.insert(key, m_line);
    if (value.isEmpty()) {
        fail(ServiceTexts::tr("%1 says nothing").arg(quoted(key)));
    } else if (key == QLatin1String("title")) {
        m_read.service.title = unquoted(value);
    } else if (key == QLatin1String("needs")) {
        m_needed = unquoted(value);
    } else if (key == QLatin1String("separator")) {
        m_read.service.separator = unquoted(value);
        if (m_read.service.separator.isEmpty()) {
            fail(ServiceTexts::tr("%1 says nothing").arg(quoted(key)));
        }
    } else if (key == QLatin1String("apart")) {
        m_read.service.apart << unquoted(value);
    } else if (key == QLatin1String("most designators")) {
        readMostDesignators(value);
    } else if (key == QLatin1String("ignores letter case")) {
        readLetterCase(value);
    } else {
        fail(ServiceTexts::tr("%1 is no setting; known are title, needs, most designators, ignores letter "
                              "case, separator and apart")
                 .arg(quoted(key)));
    }
}

void ServiceReader::readMostDesignators(QStringView value)
{
    bool isNumber = false;
    const int most = value.toInt(&isNumber);
    if (!isNumber || most < 1 || most > largestRow) {
        fail(
            ServiceTexts::tr("%1 is no number from 1 to %2").arg(quoted(value), QString::number(largestRow)));
        return;
    }
    m_read.service.mostDesignators = most;
}

void ServiceReader::readLetterCase(QStringView value)
{
    const bool isYes = value.compare(QLatin1String("yes"), Qt::CaseInsensitive) == 0;
    if (!isYes && value.compare(QLatin1String("no"), Qt::CaseInsensitive) != 0) {
        fail(ServiceTexts::tr("%1 is neither yes nor no").arg(quoted(value)));
    }
    m_read.service.ignoresLetterCase = isYes;
}

void ServiceReader::readColumn(const QString &heading, QStringView value)
{
    const QString folded = heading.toCaseFolded();
    if (m_headings.contains(folded)) {
        fail(ServiceTexts::tr("the heading %1 stands in line %2 as well")
                 .arg(quoted(heading), QString::number(m_headings.value(folded))));
        return;
    }
    m_headings.insert(folded, m_line);
    ServiceColumn column{heading, Content::Text, {}};
    const qsizetype blank = std::max<qsizetype>(value.indexOf(u' '), 0);
    const QStringView word = blank == 0 ? value : value.first(blank);
    const QString rest = unquoted(value.sliced(word.size()).trimmed());
    if (const auto content = contentOf(value)) {
        column.content = *content;
    } else if (word.compare(QLatin1String("property"), Qt::CaseInsensitive) == 0 && !rest.isEmpty()) {
        column.content = Content::Property;
        column.text = rest;
    } else if (word.compare(QLatin1String("text"), Qt::CaseInsensitive) == 0) {
        column.text = rest;
    } else {
        fail(ServiceTexts::tr("%1 is nothing that a column can hold; known are value, footprint, "
                              "designators, quantity, item number, property NAME and text TEXT")
                 .arg(quoted(value)));
        return;
    }
    if (m_read.service.columns.size() == mostColumns) {
        fail(ServiceTexts::tr("there are more than %1 columns").arg(mostColumns));
        return;
    }
    m_read.service.columns << column;
}

void ServiceReader::checkWhole()
{
    AssemblyService &service = m_read.service;
    const auto columnWith = [&service](const auto &isWanted) {
        const auto found = std::find_if(service.columns.cbegin(), service.columns.cend(), isWanted);
        return found == service.columns.cend() ? nullptr : &*found;
    };
    if (service.columns.isEmpty()) {
        fail(ServiceTexts::tr("has no columns; they stand below a line [columns]"));
    } else if (!columnWith([](const auto &column) { return column.content == Content::Designators; })) {
        fail(ServiceTexts::tr("has no column that holds the designators, such as Designator = designators"));
    } else if (!m_needed.isEmpty()) {
        const ServiceColumn *needed = columnWith([this](const auto &column) {
            return column.heading.compare(m_needed, Qt::CaseInsensitive) == 0;
        });
        m_line = m_settings.value(QStringLiteral("needs"));
        if (!needed || needed->content != Content::Property) {
            const QString text =
                needed ? ServiceTexts::tr("the service needs the column %1, which holds no property")
                       : ServiceTexts::tr("the service needs the column %1, and there is none of that name");
            fail(text.arg(quoted(m_needed)));
            return;
        }
        service.needed = needed - service.columns.constData();
    }
}

void ServiceReader::fail(const QString &text)
{
    m_read.problem =
        m_file + (m_line > 0 ? u':' + QString::number(m_line) : QString()) + QStringLiteral(": ") + text;
}

} // namespace

QStringList AssemblyService::properties() const
{
    QStringList names;
    for (const ServiceColumn &column : columns) {
        if (column.content == Content::Property) {
            names << column.text;
        }
    }
    return names;
}

ReadService readAssemblyService(const QByteArray &text, const QString &file)
{
    return ServiceReader(file).read(text);
}
