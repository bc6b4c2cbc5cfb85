// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/editor/grownselection.h"

#include "richtext/editor/growingtable.h"
#include "richtext/paper/pagelayouter.h"

#include <QRegularExpression>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextTable>

#include <set>

namespace {

const QString textFormat = QStringLiteral("text/plain");
const QString htmlFormat = QStringLiteral("text/html");

} // namespace

QStringList GrownSelection::formats() const
{
    return {textFormat, htmlFormat};
}

bool GrownSelection::hasFormat(const QString &format) const
{
    return formats().contains(format);
}

QVariant GrownSelection::retrieveData(const QString &format, QMetaType type) const
{
    Q_UNUSED(type)
    if (format == textFormat) {
        return plainText();
    }
    return format == htmlFormat ? QVariant(markup()) : QVariant();
}

/// Without the empty lines that stand between the pieces.
QString GrownSelection::plainText() const
{
    QTextDocument document;
    document.setUndoRedoEnabled(false);
    QTextCursor(&document).insertFragment(m_selection);
    std::set<int> skipped;
    for (const QTextTable *table : tablesOf(document)) {
        if (GrowingTable::isContinuation(*table)) {
            skipped.insert(table->firstPosition() - 1);
        }
    }
    QString text = document.toPlainText();
    QString joined;
    joined.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (!skipped.contains(int(i))) {
            joined += text[i];
        }
    }
    return joined;
}

QString GrownSelection::markup() const
{
    // Nothing else has margins below 0.
    static const QRegularExpression joint(
        QStringLiteral("</table>\\s*(?:<p [^>]*-qt-paragraph-type:empty[^>]*>(?:<br />)?</p>\\s*)?"
                       "<table [^>]*margin-top:-[^>]*>(?:\\s*<thead>)?"));
    return m_selection.toHtml().remove(joint);
}
