// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/joinedlines.h"

#include "core/bompartsdatabase.h"
#include "core/propertyquery.h"
#include "core/referenceformat.h"

#include <QCoreApplication>
#include <QHash>

#include <algorithm>
#include <limits>
#include <vector>

namespace {

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(JoinedLine)
};

QString meantText(const Part &part, const PropertyQuery &property)
{
    const QString text = part.property(property).trimmed();
    return text == QLatin1String("~") ? QString() : text;
}

/// Finds the lines that differ in one property.
class Comparer
{
public:
    Comparer(const QString &property, bool isEmptyAny, const BOMPartsDatabase &database)
        : m_query(property, &database.propertyTypes())
        , m_isEmptyAny(isEmptyAny)
        , m_caseRule(database.currentTemplate().caseSensitiveGrouping() ? Qt::CaseSensitive
                                                                        : Qt::CaseInsensitive)
    {
    }

    void compare(const QString &category, BomLine line, QList<JoinedLine> *found) const
    {
        if (line.size() < 2 || haveOneStoredText(line)) {
            return;
        }
        JoinedLine joined{category, m_query.name(), {}};
        QHash<QString, qsizetype> places;
        qsizetype filled = 0;
        for (const Part *part : line) {
            const QString text = meantText(*part, m_query);
            const QString key = m_caseRule == Qt::CaseSensitive ? text : text.toCaseFolded();
            const auto known = places.constFind(key);
            const qsizetype place = known == places.cend() ? joined.texts.size() : *known;
            if (known == places.cend()) {
                places.insert(key, place);
                joined.texts.append({text, {}});
                filled += text.isEmpty() ? 0 : 1;
            }
            joined.texts[place].references << part->reference();
        }
        if ((m_isEmptyAny ? filled : joined.texts.size()) > 1) {
            found->append(joined);
        }
    }

private:
    [[nodiscard]] bool haveOneStoredText(BomLine line) const
    {
        if (std::any_of(line.begin(), line.end(), [](const Part *part) { return part->isBOMPart(); })) {
            return false;
        }
        const QByteArrayView first = m_query.hostText(line.front()->component());
        return std::all_of(line.begin() + 1, line.end(),
                           [&](const Part *part) { return m_query.hostText(part->component()) == first; });
    }

    PropertyQuery m_query;
    bool m_isEmptyAny;
    Qt::CaseSensitivity m_caseRule;
};

/// Lines differ in no property that a column shows.
bool isShown(const BOMPartsDatabase &database, const QString &property)
{
    const QList<BOMField> fields = database.currentTemplate().fields().fields();
    return std::any_of(fields.begin(), fields.end(), [&property](const BOMField &field) {
        return field.propertyName.compare(property, Qt::CaseInsensitive) == 0;
    });
}

template<typename Visit>
void forEachLine(const BOMPartsDatabase &database, const Visit &visit)
{
    for (const QString &category : database.categoryNames()) {
        const GroupedLines *lines = database.categories().groupedLines(category);
        for (size_t i = 0; lines && i < lines->lineCount(); ++i) {
            visit(category, lines->line(i));
        }
    }
}

QString allReferences(const QStringList &references)
{
    ReferenceStyle style;
    style.width = std::numeric_limits<int>::max();
    return formatReferences(references, style);
}

} // namespace

QList<JoinedLine> joinedLines(const BOMPartsDatabase &database, const QStringList &always,
                              const QStringList &whereFilled)
{
    std::vector<Comparer> comparers;
    const auto add = [&](const QStringList &properties, bool isEmptyAny) {
        for (const QString &property : properties) {
            if (!isShown(database, property)) {
                comparers.emplace_back(property, isEmptyAny, database);
            }
        }
    };
    add(always, false);
    add(whereFilled, true);
    QList<JoinedLine> found;
    if (!comparers.empty()) {
        forEachLine(database, [&](const QString &category, BomLine line) {
            for (const Comparer &comparer : comparers) {
                comparer.compare(category, line, &found);
            }
        });
    }
    return found;
}

QString joinedLineText(const JoinedLine &line, qsizetype mostTexts)
{
    QStringList references;
    QStringList texts;
    for (const JoinedLine::Text &text : line.texts) {
        references += text.references;
        if (texts.size() == mostTexts) {
            continue;
        }
        const QString where = allReferences(text.references);
        texts << (text.text.isEmpty() ? Texts::tr("none on %1").arg(where)
                                      : Texts::tr("\"%1\" on %2").arg(text.text, where));
    }
    QString differing = texts.join(QStringLiteral(", "));
    if (const qsizetype more = line.texts.size() - mostTexts; more > 0) {
        differing = Texts::tr("%1 and %2 more texts").arg(differing, QString::number(more));
    }
    return Texts::tr("%1 are one line and differ in %2: %3")
        .arg(allReferences(references), line.property, differing);
}

QList<EmptyColumn> emptyColumns(const BOMPartsDatabase &database)
{
    QList<EmptyColumn> empty;
    for (const BOMField &field : database.currentTemplate().fields().fields()) {
        const PropertyQuery property(field.propertyName, &database.propertyTypes());
        const auto hasText = [&property](const Part *part) { return !meantText(*part, property).isEmpty(); };
        const auto parts = database.parts();
        if (!parts.empty() && std::none_of(parts.begin(), parts.end(), hasText)) {
            empty.append({field.fieldName, field.propertyName});
        }
    }
    return empty;
}
