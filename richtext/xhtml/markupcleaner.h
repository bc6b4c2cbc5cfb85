// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "richtext/xhtml/markuplimits.h"

#include <QSet>
#include <QString>
#include <QStringList>

/// A fragment of markup that came from outside as it may stand in a document of ours.
struct CleanMarkup
{
    /// XHTML that is valid between the tags of a body. Empty with a problem.
    QString xhtml;
    /// Why none of it can be shown: nested too deeply, too many elements, not to be mended.
    QString problem;
    /// What was left out because it would run, fetch something or lead somewhere that is not opened:
    /// "script", "onclick", "image logo.png". Each once.
    QStringList leftOut;

    bool operator==(const CleanMarkup &) const = default;
};

/// Makes markup that travels with templates safe for the documents of one report: only what shows something
/// stays. A harmless and valid fragment stays as it is, every other one goes through HTML Tidy and is written
/// anew. One cleaner sees all fragments of a document, because no identifier may stand in it twice.
class MarkupCleaner final
{
public:
    /// What stands once in a document. What is laid out for every page anew has to be small.
    static constexpr MarkupLimits ofDocument{20'000, 20'000};
    static constexpr MarkupLimits ofPage{100, 2'000};

    explicit MarkupCleaner(const MarkupLimits &limits = ofDocument)
        : m_limits(limits)
    {
    }

    [[nodiscard]] CleanMarkup clean(const QString &fragment);

private:
    MarkupLimits m_limits;
    QSet<QString> m_ids;
};
