// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QComboBox>
#include <QStringList>

class QStringListModel;

/// A list of references, however long, in which one is found by typing. What is not listed is not chosen.
class ReferenceComboBox final : public QComboBox
{
    Q_OBJECT

public:
    explicit ReferenceComboBox(QWidget *parent = nullptr);

    /// What becomes of a choice that is listed no longer. None leaves its text, so that the user sees what is
    /// missing.
    enum class Missing
    {
        ChooseFirst,
        ChooseNone
    };

    /// Keeps the choice if it is listed again; chooses the first where there was no choice.
    void setReferences(const QStringList &references, Missing missing);
    /// The listed reference that is shown; empty when something else was typed.
    [[nodiscard]] QString reference() const;
    /// Makes what is shown the current one, or none.
    void choose();

private:
    [[nodiscard]] int row(const QString &text) const;

    QStringListModel *m_references;
};
