// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "standalone/referencereader.h"

#include "designs/csv/referencecell.h"
#include "designs/utf8.h"
#include "standalone/texts.h"

#include <string>

struct ReferenceReader::Private
{
    explicit Private(designs::ReferenceCell::IsName isName)
        : cell(arena, std::move(isName))
    {
    }

    designs::TextArena arena;
    std::string text;
    designs::ReferenceCell cell;
};

ReferenceReader::ReferenceReader(const std::function<bool(const QString &)> &isKnown)
    : d(std::make_unique<Private>(
          [isKnown](std::string_view text) { return isKnown(designs::fromUtf8(text)); }))
{
}

ReferenceReader::~ReferenceReader() = default;

qsizetype ReferenceReader::mostReferences()
{
    return qsizetype(designs::mostTableReferences);
}

bool ReferenceReader::read(const QString &text, QString *error)
{
    d->text = text.trimmed().toStdString();
    if (!d->cell.read(d->text)) {
        *error = d->cell.error();
        return false;
    }
    if (d->cell.count() == 0) {
        *error = SessionTexts::tr("no reference is named");
    }
    return d->cell.count() > 0;
}

qsizetype ReferenceReader::count() const
{
    return qsizetype(d->cell.count());
}

QStringList ReferenceReader::references()
{
    QStringList references;
    references.reserve(count());
    for (const std::string_view reference : d->cell.references()) {
        references << designs::fromUtf8(reference);
    }
    references.removeDuplicates();
    return references;
}
