// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "host/widgets/valueeditor.h"

#include <QComboBox>
#include <QHash>
#include <QStringList>

/// Edits a value that is one of a list of keywords, or blank. What is typed is completed, whatever its letter
/// case, and takes the spelling of the list; the beginning of one keyword alone is enough. Keys that lead to
/// no keyword have no effect. Down, Up, F4 and the arrow open the list, whose first entry is blank.
class KeywordValueEditor : public QComboBox, public ValueEditor
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged USER true)

public:
    explicit KeywordValueEditor(QWidget *parent = nullptr);
    explicit KeywordValueEditor(const QStringList &keywords, QWidget *parent = nullptr);

    void setKeywords(const QStringList &keywords);
    [[nodiscard]] QStringList keywords() const;

    /// Has another text stand for a keyword, such as the stored form of a value for the one that people see.
    void addAlias(const QString &text, const QString &keyword);

    /// Whether other texts than the keywords are values, too; at first they are not.
    void setOthersAllowed(bool areAllowed) { m_areOthersAllowed = areAllowed; }
    [[nodiscard]] bool areOthersAllowed() const { return m_areOthersAllowed; }

    void selectText() override;
    void showPopup() override;
    void hidePopup() override;

Q_SIGNALS:
    void textChanged(const QString &text);
    /// An entry was taken from the open list.
    void chosen();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    /// Without focus the wheel scrolls what is around the editor.
    void wheelEvent(QWheelEvent *event) override;

    [[nodiscard]] QString shownText() const override { return currentText(); }
    void showText(const QString &text) override { setEditText(text); }
    [[nodiscard]] std::optional<QString> valueOf(const QString &text) const override;
    [[nodiscard]] std::optional<QString> typedValueOf(const QString &text) const override;

private:
    class Validator;

    /// The keywords that begin with the text, or have an alias that does.
    [[nodiscard]] QStringList completionsOf(const QString &text) const;

    QHash<QString, QString> m_aliases;
    bool m_areOthersAllowed = false;
    bool m_wasListOpen = false;
};
