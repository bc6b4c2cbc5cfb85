// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "app/exampledesigns.h"
#include "host/netlist/netcache.h"

#include <QList>
#include <QScrollArea>
#include <QStringList>

#include <functional>

class QAction;
class QPushButton;
class QVBoxLayout;

/// What the window shows while no design is open: what can be opened, what was open last, edits that wait to
/// be written, and examples. It scrolls where there is no room.
class EmptyPage final : public QScrollArea
{
    Q_OBJECT

public:
    /// The button triggers the action.
    explicit EmptyPage(QAction *open, QWidget *parent = nullptr);

    /// Of these the first few are offered.
    void setRecentFiles(const QStringList &paths);
    void setUnwrittenEdits(const QList<UNWRITTENEDITS> &designs);
    void setExamples(const QList<ExampleDesign> &examples);

Q_SIGNALS:
    void recentChosen(const QString &path);
    void unwrittenChosen(const QString &path, const QString &variant);
    void exampleChosen(const ExampleDesign &example);

protected:
    void showEvent(QShowEvent *event) override;

private:
    /// A heading with entries below it, hidden without any.
    struct Section
    {
        QWidget *box = nullptr;
        QVBoxLayout *layout = nullptr;
    };
    struct Entry
    {
        QString text;
        /// What stands in front of the folder, which is shortened where there is no room.
        QString note;
        QString folder;
        QString tip;
        std::function<void()> choose;
    };
    [[nodiscard]] Section addSection(const QString &title, const QString &name, QVBoxLayout *column);
    void fill(const Section &section, const QList<Entry> &entries);
    void orderTabs();

    QPushButton *m_open = nullptr;
    Section m_unwritten;
    Section m_recent;
    Section m_examples;
};
