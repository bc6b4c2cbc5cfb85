// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "richtext/xhtml/documentmarkup.h"

#include <QString>
#include <QStringView>

class ShownStyle;

/// The body of an XHTML document in the terms of QTextDocument: boxes and margins of paragraphs go to cells
/// and tables, long paragraphs become several, and for pages the sections of a table become tables.
[[nodiscard]] QString markupFor(Medium medium, QStringView body, const ShownStyle &style);
