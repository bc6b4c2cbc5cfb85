// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "standalone/buyerfields.h"

#include "host/framework/hosttext.h"

#include <algorithm>
#include <array>

using designs::NameId;

namespace {

using Kind = BuyerField::Kind;

constexpr std::array fields{
    BuyerField{"maker", Kind::Firm, "Manufacturer"},
    BuyerField{"mpn", Kind::Number, "MPN"},
    BuyerField{"house-number", Kind::Number, nullptr},
    BuyerField{"supplier", Kind::Firm, "Supplier"},
    BuyerField{"supplier-number", Kind::Number, "Supplier Part Number"},
    BuyerField{"lcsc", Kind::Number, "LCSC"},
    BuyerField{"digikey", Kind::Number, "DigiKey"},
    BuyerField{"mouser", Kind::Number, "Mouser"},
    BuyerField{"farnell", Kind::Number, "Farnell"},
    BuyerField{"newark", Kind::Number, "Newark"},
    BuyerField{"rs", Kind::Number, "RS"},
    BuyerField{"tme", Kind::Number, "TME"},
    BuyerField{"arrow", Kind::Number, "Arrow"},
    BuyerField{"avnet", Kind::Number, "Avnet"},
    BuyerField{"future", Kind::Number, "Future"},
    BuyerField{"conrad", Kind::Number, "Conrad"},
    BuyerField{"reichelt", Kind::Number, "Reichelt"},
    BuyerField{"distrelec", Kind::Number, "Distrelec"},
    BuyerField{"buerklin", Kind::Number, "Bürklin"},
    BuyerField{"rutronik", Kind::Number, "Rutronik"},
    BuyerField{"verical", Kind::Number, "Verical"},
    BuyerField{"tti", Kind::Number, "TTI"},
    BuyerField{"description", Kind::Description, "Description"},
    BuyerField{"tolerance", Kind::Rating, "Tolerance"},
    BuyerField{"voltage", Kind::Rating, "Voltage"},
    BuyerField{"current", Kind::Rating, "Current"},
    BuyerField{"power", Kind::Rating, "Power"},
    BuyerField{"dielectric", Kind::Rating, "Dielectric"},
    BuyerField{"temperature-coefficient", Kind::Rating, "Temperature Coefficient"},
    BuyerField{"price", Kind::Price, "Price"},
};

QString nameOf(const LoadedDesign &design, NameId id)
{
    return fromHostText(design.design().names().name(id));
}

bool isMeaning(const FieldNames &names, std::size_t meaning, const BuyerField &field)
{
    const FieldMeaning &known = names.meanings()[meaning];
    return known.key == QLatin1String(field.key) && known.use == FieldMeaning::Use::Read;
}

/// The names of the design for which the function says so, without those that no column is made of.
template<typename Says>
std::vector<NameId> namesThat(const LoadedDesign &design, const Says &says)
{
    std::vector<NameId> found;
    const DesignFields &fields = design.properties().fields();
    for (NameId id = 0; fields.names() != nullptr && id < design.design().names().size(); ++id) {
        const bool isOwn = id == design.design().valueName() || id == design.design().referenceName() ||
                           FieldNames::isOwn(nameOf(design, id));
        if (!isOwn && says(*fields.names(), fields.senseOf(id))) {
            found.push_back(id);
        }
    }
    return found;
}

} // namespace

std::span<const BuyerField> buyerFields()
{
    return fields;
}

std::vector<NameId> namesOf(const LoadedDesign &design, const BuyerField &field)
{
    return namesThat(design, [&field](const FieldNames &names, const FieldSense &sense) {
        return sense.meaning && isMeaning(names, *sense.meaning, field);
    });
}

std::vector<NameId> likelyNamesOf(const LoadedDesign &design, const BuyerField &field)
{
    return namesThat(design, [&field](const FieldNames &names, const FieldSense &sense) {
        return !sense.proposed.empty() && isMeaning(names, sense.proposed.front(), field);
    });
}

QString propertyOf(const LoadedDesign &design, const BuyerField &field, const std::vector<NameId> &names)
{
    // A name that is asked for as it is, such as COST, finds no other one.
    std::vector<NameId> asked;
    std::copy_if(names.begin(), names.end(), std::back_inserter(asked),
                 [&design](NameId id) { return !FieldNames::isExact(nameOf(design, id)); });
    const FieldNames &known = *design.properties().fields().names();
    const QString title = QString::fromUtf8(field.title);
    if (const auto meaning = known.senseOf(title).meaning;
        !asked.empty() && meaning && isMeaning(known, *meaning, field)) {
        return title;
    }
    return nameOf(design, design.properties().fields().commonest(asked.empty() ? names : asked));
}

TellingProperties tellingProperties(const LoadedDesign &design)
{
    TellingProperties telling{{QStringLiteral("PACKAGE")}, {}};
    for (const BuyerField &field : buyerFields()) {
        const std::vector<NameId> names = namesOf(design, field);
        if (names.empty()) {
            continue;
        }
        if (field.kind == Kind::Number) {
            telling.always << propertyOf(design, field, names);
        } else if (field.kind == Kind::Rating) {
            telling.whereFilled << propertyOf(design, field, names);
        }
    }
    return telling;
}
