// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QTextDocument;

/// Fills a document with what shownMarkup() made. The font sizes that the style sheet gives headings count;
/// QTextDocument alone would have those that headings have without a style sheet win.
void showMarkup(QTextDocument &document, const QString &markup);
