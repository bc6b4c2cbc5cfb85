// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "host/widgets/keywordvalueeditor.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QValidator>
#include <QWheelEvent>

#include <algorithm>
#include <utility>

/// Says which texts are values.
class KeywordValueEditor::Validator final : public QValidator
{
public:
    explicit Validator(KeywordValueEditor *editor)
        : QValidator(editor)
        , m_editor(*editor)
    {
    }

    State validate(QString &input, int &) const override
    {
        if (m_editor.m_areOthersAllowed || input == m_editor.heldText() || m_editor.valueOf(input) == input) {
            return Acceptable;
        }
        // Other texts are refused as a whole: without the keys that do not fit they would become keywords
        // that nobody typed.
        return Intermediate;
    }
    void fixup(QString &input) const override { input = m_editor.text(); }

private:
    const KeywordValueEditor &m_editor;
};

KeywordValueEditor::KeywordValueEditor(QWidget *parent)
    : QComboBox(parent)
{
    setEditable(true);
    setInsertPolicy(NoInsert);
    setFocusPolicy(Qt::StrongFocus);
    setValidator(new Validator(this));
    connect(this, &QComboBox::editTextChanged, this, &KeywordValueEditor::textChanged);
    // The base would spell what is stored like the list when editing ends or the list opens.
    disconnect(lineEdit(), &QLineEdit::editingFinished, this, nullptr);
    disconnect(lineEdit(), &QLineEdit::returnPressed, this, nullptr);
    // It is also sent when the wheel turns.
    connect(this, &QComboBox::activated, this, [this] {
        if (m_wasListOpen) {
            Q_EMIT chosen();
        }
    });
    setKeywords({});
}

KeywordValueEditor::KeywordValueEditor(const QStringList &keywords, QWidget *parent)
    : KeywordValueEditor(parent)
{
    setKeywords(keywords);
}

void KeywordValueEditor::setKeywords(const QStringList &keywords)
{
    const QString shown = currentText();
    clear();
    addItem(QString());
    addItems(keywords);
    setEditText(shown);
}

QStringList KeywordValueEditor::keywords() const
{
    QStringList keywords;
    for (int i = 1; i < count(); ++i) {
        keywords.append(itemText(i));
    }
    return keywords;
}

void KeywordValueEditor::addAlias(const QString &text, const QString &keyword)
{
    m_aliases.insert(text.toCaseFolded(), keyword);
}

void KeywordValueEditor::selectText()
{
    lineEdit()->selectAll();
}

void KeywordValueEditor::showPopup()
{
    // The list opens on the value's entry; the text stays as it is until an entry is taken.
    const QString shown = currentText();
    setCurrentIndex(findText(text(), Qt::MatchFixedString));
    setEditText(shown);
    // A cell may be narrower than the keywords.
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, view());
    view()->setMinimumWidth(view()->sizeHintForColumn(0) + (count() > maxVisibleItems() ? bar : 0));
    QComboBox::showPopup();
    m_wasListOpen = true;
}

void KeywordValueEditor::hidePopup()
{
    QComboBox::hidePopup();
    // What was taken from the list is told behind this, within the same event.
    QMetaObject::invokeMethod(
        this, [this] { m_wasListOpen = false; }, Qt::QueuedConnection);
}

void KeywordValueEditor::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Down || event->key() == Qt::Key_Up) {
        showPopup();
        return;
    }
    QComboBox::keyPressEvent(event);
}

void KeywordValueEditor::wheelEvent(QWheelEvent *event)
{
    if (hasFocus()) {
        QComboBox::wheelEvent(event);
    } else {
        event->ignore();
    }
}

std::optional<QString> KeywordValueEditor::valueOf(const QString &text) const
{
    const QString trimmed = text.trimmed();
    if (const auto alias = m_aliases.constFind(trimmed.toCaseFolded()); alias != m_aliases.constEnd()) {
        return *alias;
    }
    // Two keywords may differ in letter case only.
    for (const Qt::MatchFlags match :
         {Qt::MatchFixedString | Qt::MatchCaseSensitive, Qt::MatchFlags(Qt::MatchFixedString)}) {
        if (const int index = findText(trimmed, match); index >= 0) {
            return itemText(index);
        }
    }
    return m_areOthersAllowed ? std::optional(text) : std::nullopt;
}

std::optional<QString> KeywordValueEditor::typedValueOf(const QString &text) const
{
    const std::optional<QString> value = valueOf(text);
    if (value) {
        return value;
    }
    const QStringList found = completionsOf(text);
    return found.size() == 1 ? std::optional(found.first()) : std::nullopt;
}

QStringList KeywordValueEditor::completionsOf(const QString &text) const
{
    const QString start = text.trimmed();
    QStringList found = keywords();
    found.removeIf(
        [&start](const QString &keyword) { return !keyword.startsWith(start, Qt::CaseInsensitive); });
    for (const auto &[alias, keyword] : m_aliases.asKeyValueRange()) {
        if (alias.startsWith(start.toCaseFolded()) && !found.contains(keyword)) {
            found.append(keyword);
        }
    }
    return found;
}
