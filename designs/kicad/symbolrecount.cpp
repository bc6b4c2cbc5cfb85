// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/kicad/symbolrecount.h"

#include <QByteArrayList>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>

namespace designs::kicad {

namespace {

/// What one file holds: symbols, how many of them are power symbols, and the files of its sheet symbols.
struct FileCount
{
    qsizetype symbols = 0;
    qsizetype power = 0;
    QStringList sheetFiles;
};

/// Walks a file byte by byte and remembers, per open list, the atoms it began with.
class FileCounter
{
public:
    explicit FileCounter(QByteArray bytes)
        : m_bytes(std::move(bytes))
    {
    }

    FileCount count()
    {
        while (m_at < m_bytes.size()) {
            step();
        }
        return m_count;
    }

private:
    struct List
    {
        QByteArrayList words;
    };

    void step()
    {
        const char c = m_bytes.at(m_at);
        if (c == '(') {
            m_open.append(List());
            ++m_at;
        } else if (c == ')') {
            if (!m_open.isEmpty()) {
                closeList(m_open.takeLast());
            }
            ++m_at;
        } else if (c == '"') {
            addWord(quoted());
        } else if (c == ' ' || c == '\t' || c == '\n' || c == '\r') {
            m_lineHasText = c == '\n' ? false : m_lineHasText;
            ++m_at;
            return;
        } else if (c == '#' && !m_lineHasText) {
            const qsizetype end = m_bytes.indexOf('\n', m_at);
            m_at = end < 0 ? m_bytes.size() : end;
        } else {
            addWord(bare());
        }
        m_lineHasText = true;
    }

    QByteArray quoted()
    {
        QByteArray word;
        for (++m_at; m_at < m_bytes.size() && m_bytes.at(m_at) != '"'; ++m_at) {
            m_at += m_bytes.at(m_at) == '\\' && m_at + 1 < m_bytes.size() ? 1 : 0;
            word += m_bytes.at(m_at);
        }
        ++m_at;
        return word;
    }

    QByteArray bare()
    {
        const qsizetype start = m_at;
        while (m_at < m_bytes.size() && !QByteArrayView(" \t\r\n()\"").contains(m_bytes.at(m_at))) {
            ++m_at;
        }
        return m_bytes.mid(start, m_at - start);
    }

    void addWord(const QByteArray &word)
    {
        if (!m_open.isEmpty() && m_open.last().words.size() < 4) {
            m_open.last().words.append(word);
        }
    }

    QByteArray outer(qsizetype levels) const
    {
        const qsizetype at = m_open.size() - levels;
        return at >= 0 ? m_open.at(at).words.value(0) : QByteArray();
    }

    /// `list` has just been taken off: its parent is the innermost open one.
    void closeList(const List &list)
    {
        const QByteArray word = list.words.value(0);
        const qsizetype depth = m_open.size();
        if (depth == 1 && word == "symbol") {
            ++m_count.symbols;
            m_count.power += m_powerSymbol || m_powerIds.contains(m_libName.isEmpty() ? m_libId : m_libName);
            m_powerSymbol = false;
            m_libId.clear();
            m_libName.clear();
        } else if (depth == 2 && outer(1) == "symbol" && word == "lib_id") {
            m_libId = list.words.value(1);
        } else if (depth == 2 && outer(1) == "symbol" && word == "lib_name") {
            m_libName = list.words.value(1);
        } else if (depth == 2 && outer(1) == "symbol" && word == "property") {
            m_powerSymbol |= list.words.value(1) == "Reference" && list.words.value(2).startsWith('#');
        } else if (depth == 5 && outer(4) == "symbol" && outer(3) == "instances" && word == "reference") {
            m_powerSymbol |= list.words.value(1).startsWith('#');
        } else if (depth == 3 && outer(2) == "lib_symbols" && word == "power") {
            m_powerIds.insert(m_open.last().words.value(1));
        } else if (depth == 3 && outer(2) == "sheet" && word == "id") {
            m_propertyId = list.words.value(1);
        } else if (depth == 2 && outer(1) == "sheet" && word == "property") {
            noteSheetProperty(list);
        }
    }

    void noteSheetProperty(const List &list)
    {
        const QByteArray name = list.words.value(1);
        const bool byName = m_propertyId.isEmpty() && (name == "Sheetfile" || name == "Sheet file");
        if (byName || m_propertyId == "1") {
            m_count.sheetFiles << QString::fromUtf8(list.words.value(2));
        }
        m_propertyId.clear();
    }

    QByteArray m_bytes;
    qsizetype m_at = 0;
    bool m_lineHasText = false;
    QList<List> m_open;
    QByteArray m_libId;
    QByteArray m_libName;
    QByteArray m_propertyId;
    bool m_powerSymbol = false;
    QSet<QByteArray> m_powerIds;
    FileCount m_count;
};

} // namespace

bool SymbolRecount::add(const QString &path, int depth, SymbolCount *sum, Problem *problem)
{
    const QString key = QFileInfo(path).canonicalFilePath();
    if (const auto known = m_sums.constFind(key); known != m_sums.constEnd()) {
        *sum = *known;
        return true;
    }
    QFile file(path);
    if (depth > 200 || !file.open(QIODevice::ReadOnly)) {
        *problem = {path, 0, QStringLiteral("cannot be read again for the count: ") + file.errorString()};
        return false;
    }
    const FileCount counted = FileCounter(file.readAll()).count();
    sum->placed = counted.symbols;
    sum->power = counted.power;
    for (QString name : counted.sheetFiles) {
        name.replace(QLatin1String("${KIPRJMOD}"), m_folder).replace(u'\\', u'/');
        SymbolCount below;
        if (!add(QFileInfo(path).absoluteDir().absoluteFilePath(name), depth + 1, &below, problem)) {
            return false;
        }
        sum->placed += below.placed;
        sum->power += below.power;
    }
    m_sums.insert(key, *sum);
    return true;
}

bool SymbolRecount::count(const QStringList &roots, SymbolCount *count, Problem *problem)
{
    *count = {};
    for (const QString &root : roots) {
        m_folder = QFileInfo(root).absolutePath();
        SymbolCount sum;
        if (!add(root, 0, &sum, problem)) {
            return false;
        }
        count->placed += sum.placed;
        count->power += sum.power;
    }
    return true;
}

} // namespace designs::kicad
