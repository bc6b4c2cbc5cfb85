// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "host/richtext/textdocument.h"

#include "support/printtext.h"

#include <gtest/gtest.h>

TEST(TextDocument, KeepsTheTextItLoaded)
{
    const QString source = QStringLiteral("<html><body><p class='x'>one</p></body></html>");
    TextDocument document;
    document.loadHtml(source);
    EXPECT_EQ(document.toPlainText(), QStringLiteral("one"));
    EXPECT_EQ(document.getHtml(), source);
}
