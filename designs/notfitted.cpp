// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/notfitted.h"

#include <QString>

#include <algorithm>
#include <array>

namespace designs {

bool saysNotFitted(std::string_view text)
{
    static constexpr std::array<QLatin1String, 6> fitted{QLatin1String(""),      QLatin1String("0"),
                                                         QLatin1String("no"),    QLatin1String("n"),
                                                         QLatin1String("false"), QLatin1String("~")};
    const QString word = QString::fromUtf8(text.data(), qsizetype(text.size())).trimmed();
    return std::none_of(fitted.begin(), fitted.end(), [&word](QLatin1String known) {
        return word.compare(known, Qt::CaseInsensitive) == 0;
    });
}

void markNotFittedByProperty(std::vector<Component> *components, const PropertyNames &names)
{
    const std::vector<NameId> ids = names.candidates("DNP");
    if (ids.empty()) {
        return;
    }
    for (Component &component : *components) {
        const auto says = [&component](NameId id) {
            const auto value = component.stored(id);
            return value && saysNotFitted(*value);
        };
        if (component.notFitted == MarkedBy::Nothing && std::any_of(ids.begin(), ids.end(), says)) {
            component.notFitted = MarkedBy::Property;
        }
    }
}

} // namespace designs
