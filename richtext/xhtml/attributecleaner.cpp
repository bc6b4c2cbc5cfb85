// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/xhtml/attributecleaner.h"

#include "richtext/css/cssloads.h"
#include "richtext/xhtml/links.h"
#include "richtext/xhtml/xmltext.h"

#include <QRegularExpression>
#include <QXmlStreamAttributes>

#include <algorithm>
#include <optional>

namespace {

using xhtml::Attribute;

constexpr int mostSpanned = 1000;

/// A value for a message.
QString shortened(const QString &value)
{
    constexpr qsizetype most = 40;
    const QString text = value.simplified();
    return text.size() > most ? text.left(most) + QStringLiteral("...") : text;
}

bool matches(const QString &value, const char *pattern)
{
    return QRegularExpression(QRegularExpression::anchoredPattern(QLatin1String(pattern)))
        .match(value)
        .hasMatch();
}

class Cleaner final
{
public:
    Cleaner(const xhtml::Element &element, QSet<QString> &ids)
        : m_element(element)
        , m_ids(ids)
    {
    }

    CleanAttributes run(const QXmlStreamAttributes &attributes)
    {
        for (const QXmlStreamAttribute &attribute : attributes) {
            take(attribute.qualifiedName().toString(), attribute.value().toString());
        }
        m_alternative = attributes.value(QLatin1String("alt")).toString();
        addRequired();
        return m_result;
    }

private:
    void take(const QString &name, const QString &value)
    {
        const auto known = m_element.attributes.constFind(name);
        if (known == m_element.attributes.constEnd()) {
            m_result.isChanged = true;
            if (name.startsWith(QLatin1String("on"), Qt::CaseInsensitive)) {
                m_result.leftOut.append(name);
            }
            return;
        }
        const std::optional<QString> cleaned = this->cleaned(name, *known, value);
        m_result.isChanged = m_result.isChanged || cleaned != value;
        if (cleaned) {
            write(name, *cleaned);
        }
    }

    void write(const QString &name, const QString &value)
    {
        m_names.append(name);
        m_result.text +=
            QStringLiteral(" ") + name + QStringLiteral("=\"") + escapedXmlText(value) + QStringLiteral("\"");
    }

    /// The value as it may stay; nothing when the attribute has to go.
    std::optional<QString> cleaned(const QString &name, const Attribute &attribute, const QString &value)
    {
        switch (attribute.type) {
        case Attribute::Any:
            return css::withSensibleNumbers(value);
        case Attribute::Number:
            return matches(value, "\\d+(\\.\\d+)?(%|px)?") ? std::optional(css::withSensibleNumbers(value))
                                                           : std::nullopt;
        case Attribute::Span:
            return span(name, value);
        case Attribute::Choice:
            return attribute.choices.contains(value.toLower()) ? std::optional(value.toLower())
                                                               : std::nullopt;
        case Attribute::Id:
            return id(value);
        case Attribute::Name:
            return matches(value, "[A-Za-z0-9._:-]+") ? std::optional(value) : std::nullopt;
        case Attribute::Link:
            return link(value);
        case Attribute::Image:
            return image(value);
        case Attribute::Style:
            return style(value);
        }
        return {};
    }

    std::optional<QString> span(const QString &name, const QString &value)
    {
        bool isNumber = false;
        const double number = value.toDouble(&isNumber);
        if (!isNumber || !(number >= 1)) {
            return {};
        }
        const int count = int(std::min<double>(number, mostSpanned));
        (name == QLatin1String("rowspan") ? m_result.span.rows : m_result.span.columns) = count;
        return QString::number(count);
    }

    std::optional<QString> id(const QString &value)
    {
        if (!matches(value, "[A-Za-z_][A-Za-z0-9._:-]*") || m_ids.contains(value)) {
            return {};
        }
        m_ids.insert(value);
        return value;
    }

    std::optional<QString> link(const QString &value)
    {
        if (value.isEmpty() || isOpenableLink(value)) {
            return value;
        }
        m_result.leftOut.append(QStringLiteral("link ") + shortened(value));
        return {};
    }

    std::optional<QString> image(const QString &value)
    {
        if (value.startsWith(QLatin1String("data:image/"), Qt::CaseInsensitive)) {
            return value;
        }
        m_result.leftOut.append(QStringLiteral("image ") + shortened(value));
        return {};
    }

    std::optional<QString> style(const QString &value)
    {
        const QString quiet = css::withoutLoads(value);
        if (quiet != value) {
            m_result.leftOut.append(QStringLiteral("style ") + shortened(value));
        }
        return css::withSensibleNumbers(quiet);
    }

    /// Images need a picture and a text, which stands alone where there is no picture.
    void addRequired()
    {
        if (m_element.name == QLatin1String("img")) {
            m_result.isComplete = m_names.contains(QLatin1String("src"));
            if (!m_result.isComplete) {
                m_result.replacement = m_alternative;
            } else if (!m_names.contains(QLatin1String("alt"))) {
                m_result.isChanged = true;
                write(QStringLiteral("alt"), {});
            }
        } else if (m_element.name == QLatin1String("bdo")) {
            m_result.isComplete = m_names.contains(QLatin1String("dir"));
        }
    }

    const xhtml::Element &m_element;
    QSet<QString> &m_ids;
    QStringList m_names;
    QString m_alternative;
    CleanAttributes m_result;
};

} // namespace

CleanAttributes cleanAttributes(const xhtml::Element &element, const QXmlStreamAttributes &attributes,
                                QSet<QString> &ids)
{
    return Cleaner(element, ids).run(attributes);
}
