// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "host/framework/hostui.h"

#include <QList>
#include <QStringList>
#include <QUrl>

#include <functional>
#include <utility>

/// Installed while it lives: answers as the test says and records what it was asked.
class ScriptedUi final : public HostUi
{
public:
    struct Message
    {
        QString title;
        QString text;

        bool operator==(const Message &) const = default;
    };
    struct FileRequest
    {
        QString caption;
        QString path;
        QString filter;

        bool operator==(const FileRequest &) const = default;
    };

    ScriptedUi() { install(this); }
    ~ScriptedUi() override { install(nullptr); }

    /// The answers; an empty file name is a cancelled dialog.
    bool answer = false;
    SaveAnswer saveAnswer = SaveAnswer::Cancel;
    QString fileName;
    bool opensUrls = true;
    QDateTime clock = QDateTime(QDate(2026, 1, 2), QTime(3, 4, 5), Qt::UTC);
    QLocale numberFormat = QLocale::c();

    /// What the user does while the next question to save stands there.
    std::function<void()> whileAsked;

    /// What was asked.
    QList<Message> informations;
    QList<Message> warnings;
    QList<Message> questions;
    QList<Message> saveQuestions;
    QList<FileRequest> fileRequests;
    QList<QUrl> openedUrls;
    QStringList copiedTexts;

    void information(QWidget *, const QString &title, const QString &text) override
    {
        informations.append({title, text});
    }
    void warning(QWidget *, const QString &title, const QString &text) override
    {
        warnings.append({title, text});
    }
    bool question(QWidget *, const QString &title, const QString &text, bool) override
    {
        questions.append({title, text});
        return answer;
    }
    SaveAnswer saveQuestion(QWidget *, const QString &title, const QString &text, bool withCancel) override
    {
        saveQuestions.append({title, text});
        if (whileAsked) {
            std::exchange(whileAsked, {})();
        }
        return saveAnswer == SaveAnswer::Cancel && !withCancel ? SaveAnswer::Discard : saveAnswer;
    }
    QString saveFileName(QWidget *, const QString &caption, const QString &path,
                         const QString &filter) override
    {
        fileRequests.append({caption, path, filter});
        return fileName;
    }
    QString openFileName(QWidget *, const QString &caption, const QString &path,
                         const QString &filter) override
    {
        fileRequests.append({caption, path, filter});
        return fileName;
    }
    bool openUrl(const QUrl &url) override
    {
        openedUrls.append(url);
        return opensUrls;
    }
    void copyText(const QString &text) override { copiedTexts.append(text); }
    QDateTime now() const override { return clock; }
    QLocale locale() const override { return numberFormat; }
};
