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

bool meansField(const LoadedDesign &design, const QString &name, const BuyerField &field)
{
    const FieldNames *names = design.properties().fields().names();
    const auto meaning = names && !FieldNames::isOwn(name) ? names->senseOf(name).meaning : std::nullopt;
    return meaning && isMeaning(*names, *meaning, field);
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
    if (!asked.empty() && meansField(design, QString::fromUtf8(field.title), field)) {
        return QString::fromUtf8(field.title);
    }
    return nameOf(design, design.properties().fields().commonest(asked.empty() ? names : asked));
}

QStringList definedNames(const LoadedDesign &design)
{
    QStringList names;
    const PROPPREFIX definition("BOMPART");
    for (const designs::Component &component : design.design().components()) {
        for (const PROPERTY &property : design.properties().startingWith(component, definition)) {
            for (const QString &field : fromHostText(property.value).split(u',')) {
                const qsizetype sign = field.indexOf(u'=');
                QString name = field.left(std::max<qsizetype>(sign, 0));
                name.remove(u'\'').remove(u'"');
                names << name.trimmed();
            }
        }
    }
    names.removeAll(QString());
    names.removeDuplicates();
    return names;
}

std::optional<QString> definedProperty(const LoadedDesign &design, const BuyerField &field,
                                       const QStringList &definedNames)
{
    const auto found = std::find_if(definedNames.begin(), definedNames.end(),
                                    [&](const QString &name) { return meansField(design, name, field); });
    if (found == definedNames.end()) {
        return std::nullopt;
    }
    const QString title = QString::fromUtf8(field.title);
    return !FieldNames::isExact(*found) && meansField(design, title, field) ? title : *found;
}

TellingProperties tellingProperties(const LoadedDesign &design)
{
    // A design can have any number of names, and each is compared on every part.
    constexpr qsizetype mostFurther = 50;
    TellingProperties telling{{QStringLiteral("PACKAGE")}, {}};
    const QStringList defined = definedNames(design);
    for (const BuyerField &field : buyerFields()) {
        const bool isNumber = field.kind == Kind::Number;
        if (!isNumber && field.kind != Kind::Rating) {
            continue;
        }
        std::vector<NameId> further = namesOf(design, field);
        const auto main = further.empty() ? definedProperty(design, field, defined)
                                          : std::optional(propertyOf(design, field, further));
        if (main) {
            (isNumber ? telling.always : telling.whereFilled) << *main;
        }
        if (further.size() == 1) {
            further.clear();
        }
        const std::vector<NameId> likely = likelyNamesOf(design, field);
        further.insert(further.end(), likely.begin(), likely.end());
        for (const NameId id : further) {
            if (telling.whereFilled.size() < mostFurther && nameOf(design, id) != main) {
                telling.whereFilled << nameOf(design, id);
            }
        }
    }
    return telling;
}
