// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "editors/referencecombobox.h"

#include <QCompleter>
#include <QLineEdit>
#include <QListView>
#include <QSignalBlocker>
#include <QStringListModel>

#include <algorithm>

ReferenceComboBox::ReferenceComboBox(QWidget *parent)
    : QComboBox(parent)
    , m_references(new QStringListModel(this))
{
    setEditable(true);
    setInsertPolicy(NoInsert);
    // Nothing may ask for the width of each of thousands of references.
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(12);
    auto *list = new QListView;
    list->setUniformItemSizes(true);
    setView(list);
    setModel(m_references);
    completer()->setCompletionMode(QCompleter::PopupCompletion);
    connect(lineEdit(), &QLineEdit::editingFinished, this, &ReferenceComboBox::choose);
}

void ReferenceComboBox::setReferences(const QStringList &references, Missing missing)
{
    const QString chosen = currentText();
    if (references == m_references->stringList()) {
        return;
    }
    {
        // The list is empty for a moment.
        const QSignalBlocker blocker(this);
        m_references->setStringList(references);
        setCurrentIndex(-1);
    }
    setEditText(chosen);
    const bool isFirst = row(chosen) < 0 && (chosen.isEmpty() || missing == Missing::ChooseFirst);
    if (isFirst) {
        setCurrentIndex(references.isEmpty() ? -1 : 0);
    } else {
        choose();
    }
}

int ReferenceComboBox::row(const QString &text) const
{
    const QStringList references = m_references->stringList();
    const qsizetype exact = references.indexOf(text);
    if (exact >= 0) {
        return int(exact);
    }
    const QString wanted = text.trimmed();
    const auto found =
        std::find_if(references.begin(), references.end(), [&wanted](const QString &reference) {
            return reference.compare(wanted, Qt::CaseInsensitive) == 0;
        });
    return found == references.end() ? -1 : int(found - references.begin());
}

QString ReferenceComboBox::reference() const
{
    const int shown = row(currentText());
    return shown < 0 ? QString() : itemText(shown);
}

void ReferenceComboBox::choose()
{
    const QString typed = currentText();
    const int shown = row(typed);
    setCurrentIndex(shown);
    if (shown < 0) {
        setEditText(typed);
    }
}
