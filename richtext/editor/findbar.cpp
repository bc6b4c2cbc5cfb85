// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/editor/findbar.h"

#include "richtext/editor/textedit.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QScrollBar>
#include <QTextCursor>
#include <QToolButton>

#include <algorithm>

namespace {

/// Of the marks, on paper that is white in every theme.
const QColor markColor(0xff, 0xe0, 0x66);

/// Before and behind the corners of what is shown, in characters: corners may lie between cells.
constexpr int beyondCorners = 3000;
constexpr int mostMarks = 3000;
constexpr int pauseForMarks = 30;

bool isBefore(const TextSearch::Hit &hit, int position)
{
    return hit.position < position;
}

} // namespace

FindBar::FindBar(TextEdit *editor, QWidget *parent)
    : QWidget(parent)
    , m_editor(editor)
    , m_search(editor->document())
    , m_text(new QLineEdit)
    , m_matchCase(new QCheckBox(tr("Match case")))
    , m_state(new QLabel)
{
    setObjectName(QStringLiteral("findBar"));
    build();
    connectControls();
    hide();
}

QToolButton *FindBar::addButton(const QString &name, const QString &text, const QString &tip)
{
    auto *button = new QToolButton;
    button->setObjectName(name);
    button->setText(text);
    button->setToolTip(tip);
    button->setAccessibleName(text);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    layout()->addWidget(button);
    return button;
}

void FindBar::build()
{
    auto *bar = new QHBoxLayout(this);
    const int gap = bar->spacing() / 2;
    bar->setContentsMargins(gap, gap, gap, gap);
    m_text->setObjectName(QStringLiteral("findText"));
    m_text->setPlaceholderText(tr("Find in the report"));
    m_text->setAccessibleName(m_text->placeholderText());
    m_text->setClearButtonEnabled(true);
    m_text->findChild<QToolButton *>()->setAccessibleName(tr("Clear the text"));
    bar->addWidget(m_text, 2);
    m_previous =
        addButton(QStringLiteral("findPreviousButton"), tr("Previous hit"), tr("Previous hit (Shift+F3)"));
    m_previous->setArrowType(Qt::UpArrow);
    m_next = addButton(QStringLiteral("findNextButton"), tr("Next hit"), tr("Next hit (F3)"));
    m_next->setArrowType(Qt::DownArrow);
    m_matchCase->setObjectName(QStringLiteral("matchCase"));
    bar->addWidget(m_matchCase);
    m_state->setObjectName(QStringLiteral("findState"));
    m_state->setTextFormat(Qt::PlainText);
    m_state->setMinimumWidth(1);
    bar->addWidget(m_state, 3);
    m_close = addButton(QStringLiteral("closeFindBar"), tr("Close"), tr("Close the find bar (Esc)"));
}

void FindBar::connectControls()
{
    connect(m_text, &QLineEdit::textChanged, this, &FindBar::search);
    connect(m_matchCase, &QCheckBox::toggled, this, &FindBar::search);
    connect(m_previous, &QToolButton::clicked, this, &FindBar::findPrevious);
    connect(m_next, &QToolButton::clicked, this, &FindBar::findNext);
    connect(m_close, &QToolButton::clicked, this, &FindBar::close);
    connect(&m_search, &TextSearch::progressed, this, &FindBar::takeProgress);
    connect(m_editor->document(), &TextDocument::contentMade, this, &FindBar::restart);
    m_marks.setSingleShot(true);
    m_marks.setInterval(pauseForMarks);
    connect(&m_marks, &QTimer::timeout, this, &FindBar::markVisible);
    connect(m_editor->verticalScrollBar(), &QScrollBar::valueChanged, this, &FindBar::markSoon);
    connect(m_editor->verticalScrollBar(), &QScrollBar::rangeChanged, this, &FindBar::markSoon);
    connect(m_editor, &QTextEdit::selectionChanged, this, [this] {
        if (isVisible()) {
            sayState();
        }
    });
    m_editor->installEventFilter(this);
}

void FindBar::open()
{
    const QString selected = m_editor->textCursor().selectedText();
    show();
    if (!selected.isEmpty() && !selected.contains(QChar::ParagraphSeparator)) {
        m_text->setText(selected);
    }
    m_text->setFocus(Qt::ShortcutFocusReason);
    m_text->selectAll();
    search();
}

void FindBar::close()
{
    hide();
    m_search.stop();
    m_marks.stop();
    m_isSeeking = false;
    m_editor->setExtraSelections({});
    m_editor->setFocus(Qt::OtherFocusReason);
}

void FindBar::search()
{
    m_origin = m_editor->textCursor().selectionStart();
    m_hint.clear();
    m_isSeeking = true;
    restart();
}

/// Also for content that was made anew, which stays where it is. A report that was out of sight makes it when
/// it is shown, before the bar is.
void FindBar::restart()
{
    if (isHidden()) {
        return;
    }
    m_search.start(m_text->text(), m_matchCase->isChecked() ? Qt::CaseSensitive : Qt::CaseInsensitive);
    markSoon();
    sayState();
}

void FindBar::findNext()
{
    go(Direction::Forwards);
}

void FindBar::findPrevious()
{
    go(Direction::Backwards);
}

void FindBar::go(Direction direction)
{
    if (!isVisible()) {
        open();
        return;
    }
    const std::vector<TextSearch::Hit> &hits = m_search.hits();
    if (hits.empty()) {
        return;
    }
    const QTextCursor cursor = m_editor->textCursor();
    m_isSeeking = false;
    m_hint.clear();
    if (direction == Direction::Forwards) {
        const auto next = std::lower_bound(hits.begin(), hits.end(), cursor.selectionEnd(), isBefore);
        if (next == hits.end()) {
            m_hint = tr("continued from the top");
        }
        select(next == hits.end() ? 0 : next - hits.begin());
    } else {
        const auto next = std::lower_bound(hits.begin(), hits.end(), cursor.selectionStart(), isBefore);
        if (next == hits.begin()) {
            m_hint = tr("continued from the bottom");
        }
        select((next == hits.begin() ? hits.end() : next) - hits.begin() - 1);
    }
}

void FindBar::select(qsizetype hit)
{
    m_isSeeking = false;
    const TextSearch::Hit &found = m_search.hits()[size_t(hit)];
    QTextCursor cursor(m_editor->document());
    cursor.setPosition(found.position);
    cursor.setPosition(found.position + found.length, QTextCursor::KeepAnchor);
    m_editor->setTextCursor(cursor);
    m_editor->showWithSurroundings();
    sayState();
}

void FindBar::takeProgress()
{
    const std::vector<TextSearch::Hit> &hits = m_search.hits();
    if (m_isSeeking && !hits.empty()) {
        const auto first = std::lower_bound(hits.begin(), hits.end(), m_origin, isBefore);
        if (first != hits.end()) {
            select(first - hits.begin());
        } else if (m_search.isComplete()) {
            m_hint = tr("continued from the top");
            select(0);
        }
    }
    markSoon();
    sayState();
}

qsizetype FindBar::selectedHit() const
{
    const std::vector<TextSearch::Hit> &hits = m_search.hits();
    const QTextCursor cursor = m_editor->textCursor();
    const auto found = std::lower_bound(hits.begin(), hits.end(), cursor.selectionStart(), isBefore);
    const bool isSelected =
        found != hits.end() &&
        *found == TextSearch::Hit{cursor.selectionStart(), cursor.selectionEnd() - cursor.selectionStart()};
    return isSelected ? found - hits.begin() : -1;
}

QString FindBar::countText() const
{
    const QLocale locale;
    const QString count = locale.toString(qsizetype(m_search.hits().size()));
    const qsizetype selected = selectedHit();
    const QString hits = m_search.hits().size() == 1 ? tr("1 hit") : tr("%1 hits").arg(count);
    const QString text = selected < 0 ? hits : tr("%1 of %2").arg(locale.toString(selected + 1), count);
    return m_hint.isEmpty() || selected < 0 ? text : text + QStringLiteral(", ") + m_hint;
}

void FindBar::sayState()
{
    QString text;
    if (!m_text->text().isEmpty()) {
        text = !m_search.hits().empty() ? countText()
               : m_search.isComplete()  ? tr("Not found")
                                        : tr("Searching…");
    }
    m_state->setText(text);
    m_state->setToolTip(text);
    m_previous->setEnabled(!m_search.hits().empty());
    m_next->setEnabled(!m_search.hits().empty());
}

/// Not put off by what follows: a document that grows changes all the time.
void FindBar::markSoon()
{
    if (isVisible() && !m_marks.isActive()) {
        m_marks.start();
    }
}

void FindBar::markVisible()
{
    const QRect shown = m_editor->viewport()->rect();
    const std::vector<TextSearch::Hit> &hits = m_search.hits();
    const int top = m_editor->cursorForPosition(shown.topLeft()).position() - beyondCorners;
    const int bottom = m_editor->cursorForPosition(shown.bottomRight()).position() + beyondCorners;
    QList<QTextEdit::ExtraSelection> marks;
    for (auto hit = std::lower_bound(hits.begin(), hits.end(), top, isBefore);
         hit != hits.end() && hit->position <= bottom && marks.size() < mostMarks; ++hit) {
        QTextEdit::ExtraSelection mark;
        mark.cursor = QTextCursor(m_editor->document());
        mark.cursor.setPosition(hit->position);
        mark.cursor.setPosition(hit->position + hit->length, QTextCursor::KeepAnchor);
        mark.format.setBackground(markColor);
        mark.format.setForeground(Qt::black);
        marks.append(mark);
    }
    m_editor->setExtraSelections(marks);
}

void FindBar::keyPressEvent(QKeyEvent *event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (event->key() == Qt::Key_Escape) {
        close();
    } else if (isReturn && m_text->hasFocus()) {
        go(event->modifiers() & Qt::ShiftModifier ? Direction::Backwards : Direction::Forwards);
    } else {
        QWidget::keyPressEvent(event);
    }
}

/// Esc in the document closes the bar, too.
bool FindBar::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::KeyPress && isVisible() &&
        static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape) {
        close();
        return true;
    }
    return QWidget::eventFilter(object, event);
}
