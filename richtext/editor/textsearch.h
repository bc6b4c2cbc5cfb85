// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>
#include <QTimer>

#include <vector>

class QTextBlock;
class TextDocument;

/// Where a text stands in a document: read in small steps, between which the window answers, and to the end
/// of a document that still grows. Soft hyphens and the like are passed over, any blank stands for any other.
class TextSearch final : public QObject
{
    Q_OBJECT

public:
    struct Hit
    {
        int position = 0;
        int length = 0;

        bool operator==(const Hit &) const = default;
    };

    /// The document is not owned and must outlive the search.
    explicit TextSearch(TextDocument *document, QObject *parent = nullptr);

    /// Begins anew, with no hits; an empty text has none.
    void start(const QString &text, Qt::CaseSensitivity sensitivity);
    void stop();

    /// Those found so far, in the order of the document.
    [[nodiscard]] const std::vector<Hit> &hits() const { return m_hits; }
    /// Whether the whole document has been read.
    [[nodiscard]] bool isComplete() const { return m_isComplete; }

Q_SIGNALS:
    /// More of the document has been read, or all of it.
    void progressed();

private:
    void readOn();
    void readBlock(const QTextBlock &block);

    TextDocument *m_document;
    QString m_text;
    Qt::CaseSensitivity m_sensitivity = Qt::CaseInsensitive;
    std::vector<Hit> m_hits;
    /// Where to go on.
    int m_position = 0;
    bool m_isComplete = true;
    QTimer m_idle;
};
