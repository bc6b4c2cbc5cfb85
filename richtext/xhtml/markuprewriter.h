// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "richtext/xhtml/markuplimits.h"

#include <QSet>
#include <QString>
#include <QStringList>

/// What rewriteMarkup() made of a fragment.
struct RewrittenMarkup
{
    QString xhtml;
    /// Why it could not be read; the rest then says nothing.
    QString problem;
    /// The problem is its size or depth.
    bool isTooLarge = false;
    /// Whether anything had to be other than it was.
    bool isChanged = false;
    QStringList leftOut;
    /// The identifiers that are taken now.
    QSet<QString> ids;
};

/// Writes a well-formed fragment with the elements and attributes of xhtmlelements.h only, each where the
/// document type allows it. `ids` are taken by other fragments of the document.
[[nodiscard]] RewrittenMarkup rewriteMarkup(const QString &fragment, const QSet<QString> &ids,
                                            const MarkupLimits &limits);
