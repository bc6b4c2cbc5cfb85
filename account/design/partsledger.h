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
    /// How many of them are excluded from it by a mark.
    qsizetype excluded = 0;

    /// Whether it may be a mistake: not when all of them are excluded on purpose.
    [[nodiscard]] bool isDoubtful() const { return excluded < places.size(); }
    /// "FILE:LINE: R1 occurs 3 times, also at FILE:LINE, FILE:LINE; 1 of them is in the bill"; of many places
    /// only the first are named.
    [[nodiscard]] QString message() const;
};

/// Whether a reference is empty or ends in the question mark of one that has no number yet.
[[nodiscard]] bool isNotAnnotated(QStringView reference);

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
    /// Such as "excluded on sheet /Power" or "not fitted: marked on the symbol"; empty for a listed
    /// component.
    [[nodiscard]] QString skipReason(qsizetype index) const;

    /// How many components would be listed if the not-fitted choice did not leave them out.
    [[nodiscard]] qsizetype leftOutByChoice() const;
    [[nodiscard]] qsizetype listed() const;
    [[nodiscard]] qsizetype notFitted() const;
    /// How many components are excluded from the bill by a mark, whatever the not-fitted choice.
    [[nodiscard]] qsizetype excluded() const;
    /// Those of them that are not fitted either.
    [[nodiscard]] qsizetype excludedNotFitted() const;
    /// The references of listed components that are not fitted.
    [[nodiscard]] QStringList listedNotFitted() const;
    /// The skipped components by reason, reasons in the order of their first component.
    [[nodiscard]] std::vector<SkippedParts> skipped() const;
    /// References that occur more than once, skipped components included, in the order of first occurrence.
    [[nodiscard]] std::vector<RepeatedReference> repeated() const;
    /// "FILE:LINE: R? is not annotated" for every component whose reference is empty or has no number yet.
    [[nodiscard]] QStringList notAnnotated() const;
    /// The listed components with a text that still holds a variable "${...}".
    [[nodiscard]] QStringList withVariables() const;

private:
    [[nodiscard]] const designs::Component &at(qsizetype index) const;
    [[nodiscard]] QString notFittedText(const designs::Component &component) const;
    [[nodiscard]] QString sheetPath(quint32 sheet) const;
    /// "FILE:LINE", with the sheet where the file serves several.
    [[nodiscard]] QString place(const designs::Component &component) const;

    const LoadedDesign &m_design;
};
