// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "richtext/editor/textsearch.h"

#include <QTimer>
#include <QWidget>

class QCheckBox;
class QKeyEvent;
class QLabel;
class QLineEdit;
class QToolButton;
class TextEdit;

/// A bar that finds texts in a document while they are typed. It marks the hits, selects one of them and says
/// how many there are. Hidden at first.
class FindBar final : public QWidget
{
    Q_OBJECT

public:
    /// The editor is not owned and must outlive the bar.
    explicit FindBar(TextEdit *editor, QWidget *parent = nullptr);

public Q_SLOTS:
    /// Shows the bar with the selected text, or the one of last time, to be typed over.
    void open();
    /// Goes to the next hit behind the cursor, from the last to the first; shows the bar when it has no
    /// text.
    void findNext();
    void findPrevious();
    /// Takes the marks away and gives the focus back to the document.
    void close();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    enum class Direction
    {
        Forwards,
        Backwards
    };

    void build();
    void connectControls();
    QToolButton *addButton(const QString &name, const QString &text, const QString &tip);
    /// Looks for what is typed, from where the search began.
    void search();
    void restart();
    void go(Direction direction);
    void select(qsizetype hit);
    void takeProgress();
    void sayState();
    void markSoon();
    void markVisible();
    /// The index of the hit that is selected, or -1.
    [[nodiscard]] qsizetype selectedHit() const;
    [[nodiscard]] QString countText() const;

    TextEdit *m_editor;
    TextSearch m_search;
    QLineEdit *m_text;
    QToolButton *m_previous = nullptr;
    QToolButton *m_next = nullptr;
    QCheckBox *m_matchCase;
    QLabel *m_state;
    QToolButton *m_close = nullptr;
    /// Runs out when the marks are to be put where the document is shown now.
    QTimer m_marks;
    /// Where the cursor stood when the search began.
    int m_origin = 0;
    /// The hit to be selected has not been found yet.
    bool m_isSeeking = false;
    /// Which end the search went over to come to the selected hit.
    QString m_hint;
};
