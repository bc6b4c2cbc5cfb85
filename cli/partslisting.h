// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>

class OpenDesign;

/// One part with all its properties.
struct ListedPart
{
    struct Property
    {
        QString name;
        QString value;
    };

    QString reference;
    QString value;
    QString name;
    QString placed;
    QString category;
    /// The placed part that a BOM-only part belongs to; empty for a component.
    QString bomPartOf;
    QList<Property> properties;
    /// Why it is not in the bill; empty when it is.
    QString reason;
};

/// Every component of a design once, each list in reference order.
struct PartsListing
{
    QList<ListedPart> parts;
    QList<ListedPart> skipped;
    /// Components whose reference another one had before them.
    QList<ListedPart> duplicates;
};

[[nodiscard]] PartsListing listParts(OpenDesign &design);
