// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/templatelayout.h"

#include "templates/bomtemplate.h"

namespace {

bool takeFieldWidths(const BOMFields &source, BOMTemplate *target)
{
    BOMFields fields = target->fields();
    for (BOMField field : fields.fields()) {
        if (source.contains(field.fieldName)) {
            const BOMField other = source.get(field.fieldName);
            field.manualWidth = other.manualWidth;
            field.asciiWidth = other.asciiWidth;
            fields.set(field);
        }
    }
    if (fields == target->fields()) {
        return false;
    }
    target->setFields(fields);
    return true;
}

} // namespace

bool takeLayout(const BOMTemplate &source, BOMTemplate *target)
{
    bool isChanged = takeFieldWidths(source.fields(), target);
    const auto take = [&](auto getter, auto setter) {
        if ((source.*getter)() != (target->*getter)()) {
            (target->*setter)((source.*getter)());
            isChanged = true;
        }
    };
    take(&BOMTemplate::prettyQuantityWidth, &BOMTemplate::setPrettyQuantityWidth);
    take(&BOMTemplate::prettyRefWidth, &BOMTemplate::setPrettyRefWidth);
    take(&BOMTemplate::asciiQuantityWidth, &BOMTemplate::setAsciiQuantityWidth);
    take(&BOMTemplate::asciiRefWidth, &BOMTemplate::setAsciiRefWidth);
    take(&BOMTemplate::manualPrettyLayout, &BOMTemplate::setManualPrettyLayout);
    take(&BOMTemplate::alwaysQuoteRefs, &BOMTemplate::setAlwaysQuoteRefs);
    take(&BOMTemplate::excludeValueField, &BOMTemplate::setExcludeValueField);
    take(&BOMTemplate::caseSensitiveGrouping, &BOMTemplate::setCaseSensitiveGrouping);
    return isChanged;
}
