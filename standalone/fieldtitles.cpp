// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "standalone/fieldtitles.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace {

/// Nothing that looks for texts to translate reads the table itself.
constexpr std::array<const char *, 34> shippedTitles{
    QT_TRANSLATE_NOOP("FieldMeaning", "maker's part number"),
    QT_TRANSLATE_NOOP("FieldMeaning", "the house's own number"),
    QT_TRANSLATE_NOOP("FieldMeaning", "maker"),
    QT_TRANSLATE_NOOP("FieldMeaning", "supplier"),
    QT_TRANSLATE_NOOP("FieldMeaning", "supplier's part number"),
    QT_TRANSLATE_NOOP("FieldMeaning", "LCSC's number"),
    QT_TRANSLATE_NOOP("FieldMeaning", "DigiKey's number"),
    QT_TRANSLATE_NOOP("FieldMeaning", "Mouser's number"),
    QT_TRANSLATE_NOOP("FieldMeaning", "Farnell's number"),
    QT_TRANSLATE_NOOP("FieldMeaning", "Newark's number"),
    QT_TRANSLATE_NOOP("FieldMeaning", "RS's number"),
    QT_TRANSLATE_NOOP("FieldMeaning", "TME's number"),
    QT_TRANSLATE_NOOP("FieldMeaning", "Arrow's number"),
    QT_TRANSLATE_NOOP("FieldMeaning", "Avnet's number"),
    QT_TRANSLATE_NOOP("FieldMeaning", "Future's number"),
    QT_TRANSLATE_NOOP("FieldMeaning", "Conrad's number"),
    QT_TRANSLATE_NOOP("FieldMeaning", "Reichelt's number"),
    QT_TRANSLATE_NOOP("FieldMeaning", "Distrelec's number"),
    QT_TRANSLATE_NOOP("FieldMeaning", "Bürklin's number"),
    QT_TRANSLATE_NOOP("FieldMeaning", "Rutronik's number"),
    QT_TRANSLATE_NOOP("FieldMeaning", "Verical's number"),
    QT_TRANSLATE_NOOP("FieldMeaning", "TTI's number"),
    QT_TRANSLATE_NOOP("FieldMeaning", "price of one piece"),
    QT_TRANSLATE_NOOP("FieldMeaning", "description"),
    QT_TRANSLATE_NOOP("FieldMeaning", "datasheet"),
    QT_TRANSLATE_NOOP("FieldMeaning", "tolerance"),
    QT_TRANSLATE_NOOP("FieldMeaning", "voltage rating"),
    QT_TRANSLATE_NOOP("FieldMeaning", "current rating"),
    QT_TRANSLATE_NOOP("FieldMeaning", "power rating"),
    QT_TRANSLATE_NOOP("FieldMeaning", "dielectric"),
    QT_TRANSLATE_NOOP("FieldMeaning", "temperature coefficient"),
    QT_TRANSLATE_NOOP("FieldMeaning", "do not fit"),
    QT_TRANSLATE_NOOP("FieldMeaning", "substitute"),
    QT_TRANSLATE_NOOP("FieldMeaning", "no field for people"),
};

} // namespace

QString shownTitle(const FieldMeaning &meaning)
{
    const QByteArray title = meaning.title.toUtf8();
    const auto isTitle = [&title](const char *shipped) { return title == shipped; };
    return std::ranges::any_of(shippedTitles, isTitle)
               ? QCoreApplication::translate("FieldMeaning", title.constData())
               : meaning.title;
}
