// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

/// Reads the references that people name in a command or a table, as the cells of a part list name them. What
/// the design knows as a reference is one, whatever it looks like.
class ReferenceReader final
{
public:
    explicit ReferenceReader(const std::function<bool(const QString &)> &isKnown);
    ~ReferenceReader();
    Q_DISABLE_COPY_MOVE(ReferenceReader)

    /// The most references that a table may name.
    [[nodiscard]] static qsizetype mostReferences();

    /// False, with the reason in `error`, when the text names none or cannot be understood.
    [[nodiscard]] bool read(const QString &text, QString *error);

    /// How many references the last text names, counted without making them.
    [[nodiscard]] qsizetype count() const;
    /// They themselves, each once; they need not be known.
    [[nodiscard]] QStringList references();

private:
    struct Private;
    std::unique_ptr<Private> d;
};
