// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/xhtml/xhtmlruns.h"

#include "richtext/xhtml/xmltext.h"

#include <QList>
#include <QTextBlock>
#include <QTextFragment>
#include <QTextImageFormat>

namespace {

constexpr int tabWidth = 8;

/// Text in one format.
struct Run
{
    /// The attributes of the link or anchor around it.
    QString anchor;
    QString style;
    QString text;
    /// An image, in place of text.
    QString markup;
};

QString dimension(double value)
{
    return value > 0 ? QString::number(qRound(value)) : QString();
}

QString imageMarkup(const QTextImageFormat &image)
{
    const QString alternative = image.stringProperty(QTextFormat::ImageAltText);
    return QStringLiteral("<img") + xmlAttribute(QStringLiteral("src"), image.name()) +
           QStringLiteral(" alt=\"") + escapedXmlText(alternative) + QStringLiteral("\"") +
           xmlAttribute(QStringLiteral("title"), image.stringProperty(QTextFormat::ImageTitle)) +
           xmlAttribute(QStringLiteral("width"), dimension(image.width())) +
           xmlAttribute(QStringLiteral("height"), dimension(image.height())) + QStringLiteral(" />");
}

QString anchorAttributes(const QTextCharFormat &format, const UsualLook &usual)
{
    if (!format.isAnchor()) {
        return {};
    }
    const QStringList names = format.anchorNames();
    // Elements inside a link cannot take its underline away, so the link itself does.
    const bool isPlain = !format.anchorHref().isEmpty() && isUnderlined(usual.link) && !isUnderlined(format);
    return xmlAttribute(QStringLiteral("href"), format.anchorHref()) +
           xmlAttribute(QStringLiteral("name"), names.isEmpty() ? QString() : names.first()) +
           xmlAttribute(QStringLiteral("style"),
                        isPlain ? QStringLiteral("text-decoration:none;") : QString());
}

void append(QList<Run> &runs, const Run &run)
{
    const bool continues = !runs.isEmpty() && run.markup.isEmpty() && runs.last().markup.isEmpty() &&
                           runs.last().anchor == run.anchor && runs.last().style == run.style;
    if (continues) {
        runs.last().text += run.text;
    } else {
        runs.append(run);
    }
}

bool isBreak(QChar unit)
{
    return unit == QChar(QChar::LineSeparator);
}

/// A blank that HTML takes for any other: an em space and the like.
bool isSpecialBlank(QChar unit)
{
    return unit.isSpace() && unit != u' ' && unit != QChar(QChar::Nbsp) && !isBreak(unit);
}

enum class Kind
{
    Text,
    Break,
    SpecialBlank
};

Kind kindOf(QChar unit)
{
    if (isBreak(unit)) {
        return Kind::Break;
    }
    return isSpecialBlank(unit) ? Kind::SpecialBlank : Kind::Text;
}

/// Line breaks take the format of the text before them, because QTextDocument gives them that when it reads
/// them; special blanks stand in a span that keeps them.
void appendText(QList<Run> &runs, const Run &format, const QString &text)
{
    qsizetype at = 0;
    while (at < text.size()) {
        const Kind kind = kindOf(text[at]);
        qsizetype end = at;
        while (end < text.size() && kindOf(text[end]) == kind) {
            ++end;
        }
        const bool followsText = !runs.isEmpty() && runs.last().markup.isEmpty();
        Run run = kind == Kind::Break ? (followsText ? runs.last() : Run()) : format;
        if (kind == Kind::SpecialBlank) {
            run.style += run.style.isEmpty() ? QString() : QStringLiteral(" ");
            run.style += QStringLiteral("white-space:pre-wrap;");
        }
        run.text = text.mid(at, end - at);
        append(runs, run);
        at = end;
    }
}

QList<Run> runsOf(const QTextBlock &block, const UsualLook &usual, const Surroundings &surroundings)
{
    QList<Run> runs;
    for (auto at = block.begin(); !at.atEnd(); ++at) {
        const QTextFragment fragment = at.fragment();
        const QTextCharFormat format = fragment.charFormat();
        const QString anchor = anchorAttributes(format, usual);
        if (format.isImageFormat()) {
            const QString image = imageMarkup(format.toImageFormat());
            for (int i = 0; i < fragment.length(); ++i) {
                append(runs, {anchor, {}, {}, image});
            }
            continue;
        }
        QString text = fragment.text();
        text.replace(u'\t', QString(tabWidth, QChar(QChar::Nbsp)));
        appendText(runs, {anchor, textStyle(format, usual, surroundings), {}, {}}, text);
    }
    return runs;
}

/// Makes the blanks non-breaking that stand before another one or at an end of a line.
class BlankKeeper final
{
public:
    explicit BlankKeeper(QList<Run> &runs)
        : m_runs(runs)
    {
    }

    void run()
    {
        m_isLineStart = true;
        for (Run &run : m_runs) {
            if (!run.markup.isEmpty()) {
                meet(QChar(QChar::ObjectReplacementCharacter));
            }
            for (QChar &unit : run.text) {
                meet(unit);
                if (unit == u' ' && m_isLineStart) {
                    unit = QChar::Nbsp;
                }
                m_blank = unit == u' ' ? &unit : nullptr;
                m_isLineStart = isBreak(unit) || (m_isLineStart && unit == QChar(QChar::Nbsp));
            }
        }
        meet(QChar(QChar::LineSeparator));
    }

private:
    /// The blank before `next` stays one only when something visible follows.
    void meet(QChar next)
    {
        if (m_blank != nullptr && (next == u' ' || isBreak(next))) {
            *m_blank = QChar::Nbsp;
        }
        m_blank = nullptr;
        if (next == QChar(QChar::ObjectReplacementCharacter)) {
            m_isLineStart = false;
        }
    }

    QList<Run> &m_runs;
    QChar *m_blank = nullptr;
    bool m_isLineStart = true;
};

QString textMarkup(const QString &text)
{
    QString result = escapedXmlText(text);
    result.replace(QChar(QChar::Nbsp), QStringLiteral("&#160;"));
    result.replace(QChar(QChar::LineSeparator), QStringLiteral("<br />"));
    return result;
}

QString runMarkup(const Run &run)
{
    if (!run.markup.isEmpty()) {
        return run.markup;
    }
    const QString text = textMarkup(run.text);
    return run.style.isEmpty() ? text
                               : QStringLiteral("<span") + xmlAttribute(QStringLiteral("style"), run.style) +
                                     QStringLiteral(">") + text + QStringLiteral("</span>");
}

} // namespace

QString xhtmlRuns(const QTextBlock &block, const UsualLook &usual, const Surroundings &surroundings)
{
    QList<Run> runs = runsOf(block, usual, surroundings);
    BlankKeeper(runs).run();
    QString result;
    QString anchor;
    const auto changeAnchor = [&](const QString &next) {
        if (next != anchor) {
            result += anchor.isEmpty() ? QString() : QStringLiteral("</a>");
            result += next.isEmpty() ? QString() : QStringLiteral("<a") + next + QStringLiteral(">");
            anchor = next;
        }
    };
    for (const Run &run : runs) {
        changeAnchor(run.anchor);
        result += runMarkup(run);
    }
    changeAnchor({});
    return result;
}
