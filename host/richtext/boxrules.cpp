// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "host/richtext/boxrules.h"

#include "host/richtext/pagegeometry.h"
#include "host/richtext/stylesheet.h"

#include <QRegularExpression>

namespace {

bool isBoxProperty(const QString &property)
{
    return property.startsWith(QLatin1String("padding")) || property.startsWith(QLatin1String("border"));
}

/// The class of "p.name" and "h1.name", else empty.
QString paragraphClass(const QString &selector)
{
    static const QRegularExpression pattern(QStringLiteral("^(?:p|h[1-6])\\.([\\w-]+)$"));
    return pattern.match(selector).captured(1);
}

QString cellDeclarations(const StyleSheet::Rule &rule, bool *isBoxed)
{
    QString text;
    for (const StyleSheet::Declaration &declaration : rule.declarations) {
        const bool isBox = isBoxProperty(declaration.property);
        *isBoxed = *isBoxed || isBox;
        if (isBox || declaration.property == QLatin1String("vertical-align")) {
            text += declaration.property + QStringLiteral(": ") + declaration.value + QStringLiteral("; ");
        }
    }
    return text;
}

} // namespace

BoxRules::BoxRules(const StyleSheet &css)
{
    for (const StyleSheet::Rule &rule : css.rules()) {
        const QString name = paragraphClass(rule.selector);
        if (name.isEmpty()) {
            continue;
        }
        bool isBoxed = false;
        const QString declarations = cellDeclarations(rule, &isBoxed);
        if (isBoxed) {
            m_boxes.insert(name, declarations);
            m_cellRules += QStringLiteral("\ntd.") + name + QStringLiteral(", th.") + name +
                           QStringLiteral(" { ") + declarations + QStringLiteral("}");
        }
        if (const double margin = marginsInPoints(css, rule.selector).top(); margin > 0) {
            m_marginsAbove.insert(name, margin);
        }
    }
}

double BoxRules::marginAbove(QStringView className) const
{
    return m_marginsAbove.value(className.toString());
}

QString BoxRules::cellRules() const
{
    return m_cellRules;
}
