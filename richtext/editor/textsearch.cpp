// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/editor/textsearch.h"

#include "richtext/editor/textdocument.h"

#include <QElapsedTimer>
#include <QTextBlock>

namespace {

/// What a step takes, in ms.
constexpr qint64 stepTime = 12;
/// Until more of a document that grows is there.
constexpr int pauseForMore = 50;

/// Places where a word may be broken; nobody types them.
bool isInvisible(QChar c)
{
    constexpr char16_t softHyphen = 0xAD;
    constexpr char16_t zeroWidthSpace = 0x200B;
    return c == softHyphen || c == zeroWidthSpace;
}

/// A text as it is compared, and where each of its characters came from, one more for its end. No places for
/// a text that nothing was left out of.
struct ComparedText
{
    QString text;
    std::vector<int> places;

    [[nodiscard]] int place(qsizetype index) const
    {
        return places.empty() ? int(index) : places[size_t(index)];
    }
};

ComparedText compared(const QString &text)
{
    ComparedText result;
    result.text.reserve(text.size());
    std::vector<int> places;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (!isInvisible(text[i])) {
            result.text += text[i].isSpace() ? QChar(u' ') : text[i];
            places.push_back(int(i));
        }
    }
    if (result.text.size() < text.size()) {
        places.push_back(int(text.size()));
        result.places = std::move(places);
    }
    return result;
}

} // namespace

TextSearch::TextSearch(TextDocument *document, QObject *parent)
    : QObject(parent)
    , m_document(document)
{
    m_idle.setSingleShot(true);
    connect(&m_idle, &QTimer::timeout, this, &TextSearch::readOn);
}

void TextSearch::start(const QString &text, Qt::CaseSensitivity sensitivity)
{
    m_text = compared(text).text;
    m_sensitivity = sensitivity;
    m_hits.clear();
    m_position = 0;
    m_isComplete = m_text.isEmpty();
    if (m_isComplete) {
        m_idle.stop();
    } else {
        m_idle.start(0);
    }
}

void TextSearch::stop()
{
    start({}, m_sensitivity);
}

void TextSearch::readOn()
{
    QElapsedTimer elapsed;
    elapsed.start();
    QTextBlock block = m_document->findBlock(m_position);
    const bool grows = !m_document->isComplete();
    // The last paragraph of a document that grows may get more text.
    while (block.isValid() && !(grows && !block.next().isValid()) && elapsed.elapsed() < stepTime) {
        readBlock(block);
        m_position = block.position() + block.length();
        block = block.next();
    }
    m_isComplete = !block.isValid();
    if (!m_isComplete) {
        m_idle.start(grows && !block.next().isValid() ? pauseForMore : 0);
    }
    Q_EMIT progressed();
}

void TextSearch::readBlock(const QTextBlock &block)
{
    if (block.length() <= m_text.size()) {
        return;
    }
    const ComparedText content = compared(block.text());
    qsizetype at = content.text.indexOf(m_text, 0, m_sensitivity);
    while (at >= 0) {
        const qsizetype end = at + m_text.size();
        // The end of a hit is behind its last character, not behind what was left out there.
        const int start = content.place(at);
        m_hits.push_back({block.position() + start, content.place(end - 1) + 1 - start});
        at = content.text.indexOf(m_text, end, m_sensitivity);
    }
}
