// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "richtext/xhtml/tablesize.h"
#include "richtext/xhtml/xhtmlelements.h"

#include <QSet>
#include <QString>
#include <QStringList>

class QXmlStreamAttributes;

/// The attributes of a start tag that may stay.
struct CleanAttributes
{
    /// As they stand in a tag, with a blank before each.
    QString text;
    /// Whether any is not as it was.
    bool isChanged = false;
    /// False for an image without a picture that may be shown and the like: the tag goes.
    bool isComplete = true;
    /// Text that then stands in its place.
    QString replacement;
    QStringList leftOut;
    CellSpan span;
};

/// `ids` are the identifiers that other elements have; those of this one are added.
[[nodiscard]] CleanAttributes cleanAttributes(const xhtml::Element &element,
                                              const QXmlStreamAttributes &attributes, QSet<QString> &ids);
