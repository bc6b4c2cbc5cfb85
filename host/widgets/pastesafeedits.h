// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QMimeData>
#include <QPlainTextEdit>
#include <QTextEdit>

/// Whether there is anything to paste. Qt 6.4 takes the first of the formats of a clipboard that has none, as
/// one without an owner has, which ends the program.
[[nodiscard]] inline bool canBePasted(const QMimeData *source)
{
    return source && !source->formats().isEmpty();
}

/// Text fields for forms that an empty clipboard does no harm, whether a key, the mouse or a menu pastes it.
class PasteSafeTextEdit : public QTextEdit
{
public:
    using QTextEdit::QTextEdit;

protected:
    void insertFromMimeData(const QMimeData *source) override
    {
        if (canBePasted(source)) {
            QTextEdit::insertFromMimeData(source);
        }
    }
};

class PasteSafePlainTextEdit : public QPlainTextEdit
{
public:
    using QPlainTextEdit::QPlainTextEdit;

protected:
    void insertFromMimeData(const QMimeData *source) override
    {
        if (canBePasted(source)) {
            QPlainTextEdit::insertFromMimeData(source);
        }
    }
};
