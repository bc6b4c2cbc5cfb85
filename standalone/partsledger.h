// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

class LoadedDesign;

namespace designs {
struct Component;
}

/// Components that are left out for the same reason, in design order.
struct SkippedParts
{
    QString reason;
    QStringList references;
};

/// A reference that several components have.
struct RepeatedReference
{
    QString reference;
    /// Where they stand, "FILE:LINE", in design order.
    QStringList places;
    /// How many of them are in the bill.
    qsizetype listed = 0;

    /// "FILE:LINE: R1 occurs 3 times, also at FILE:LINE, FILE:LINE"; of many places only the first are named.
    [[nodiscard]] QString message() const;
};

/// Where every component of a design stays: in the bill of materials, or why not. Components are counted as
/// in LoadedDesign::components(). The design must outlive the ledger.
class PartsLedger final
{
public:
    explicit PartsLedger(const LoadedDesign &design);

    [[nodiscard]] qsizetype components() const;
    [[nodiscard]] QString reference(qsizetype index) const;
    [[nodiscard]] bool isListed(qsizetype index) const;
    [[nodiscard]] bool isFitted(qsizetype index) const;
    /// Such as "in_bom no on sheet /Power" or "not fitted (symbol)"; empty for a listed component.
    [[nodiscard]] QString skipReason(qsizetype index) const;

    /// How many components would be listed if the not-fitted choice did not leave them out.
    [[nodiscard]] qsizetype leftOutByChoice() const;
    [[nodiscard]] qsizetype listed() const;
    [[nodiscard]] qsizetype notFitted() const;
    /// The references of listed components that are not fitted.
    [[nodiscard]] QStringList listedNotFitted() const;
    /// The skipped components by reason, reasons in the order of their first component.
    [[nodiscard]] std::vector<SkippedParts> skipped() const;
    /// References that occur more than once, skipped components included, in the order of first occurrence.
    [[nodiscard]] std::vector<RepeatedReference> repeated() const;

private:
    [[nodiscard]] const designs::Component &at(qsizetype index) const;
    [[nodiscard]] QString notFittedText(const designs::Component &component) const;
    [[nodiscard]] QString sheetPath(quint32 sheet) const;
    [[nodiscard]] QString place(const designs::Component &component) const;

    const LoadedDesign &m_design;
};
