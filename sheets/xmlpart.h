// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QIODevice>
#include <QString>
#include <QXmlStreamReader>

#include <memory>

/// A part of a spreadsheet file, read element by element from the outside in. What no spreadsheet program
/// writes and what could cost much time or memory (declarations of entities, endless texts, depth or lists of
/// attributes) is a problem, after which nothing more is read.
class XmlPart final
{
public:
    explicit XmlPart(std::unique_ptr<QIODevice> device);
    ~XmlPart();
    Q_DISABLE_COPY_MOVE(XmlPart)

    /// Goes to the next element inside the current one, or, before any, to the outermost. False behind the
    /// last, when the current element has ended. One that is not gone into has to be left with skip().
    [[nodiscard]] bool nextChild();
    /// Leaves the current element with all inside.
    void skip();
    /// Goes on by one token: an element that begins or ends, or text. NoToken at the end or a problem.
    QXmlStreamReader::TokenType next();

    /// The name of the current element without its prefix.
    [[nodiscard]] QStringView name() const { return m_reader.name(); }
    /// The current text.
    [[nodiscard]] QStringView text() const { return m_reader.text(); }
    /// An attribute of the element that has just begun, by its name without the prefix; a word out of the
    /// address of its namespace tells those of one name apart. Null when there is none.
    [[nodiscard]] QString attribute(QLatin1String name, QLatin1String space = {}) const;
    /// All text in the current element, which ends with it.
    [[nodiscard]] QString content();

    /// The most characters of one text.
    static constexpr qsizetype MostCharacters = qsizetype(256) * 1024;
    /// Ends reading with a problem, which gives NoToken.
    QXmlStreamReader::TokenType refuse(const QString &problem);
    QXmlStreamReader::TokenType refuseLongText();
    /// Why reading ended; empty while nothing is wrong.
    [[nodiscard]] const QString &problem() const { return m_problem; }

private:
    class Meter;
    [[nodiscard]] bool isModest() const;

    std::unique_ptr<Meter> m_device;
    QXmlStreamReader m_reader;
    /// Of the element that has just begun: asking the reader for them makes a copy.
    QXmlStreamAttributes m_attributes;
    int m_depth = 0;
    qsizetype m_namespaces = 0;
    QString m_problem;
};
