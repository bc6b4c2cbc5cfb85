// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QTextDocument;

/// The content of a document, which people may have edited, as XHTML 1.0 Transitional, without html, head and
/// body. Paragraphs get the class, if any is given; only what differs from the look that the document's
/// default style sheet and `css` give them is written as style. Blanks that HTML would drop become
/// non-breaking ones, a tab eight of them; tab stops are lost.
[[nodiscard]] QString toXhtml(const QTextDocument &document, const QString &paragraphClass,
                              const QString &css = {});
