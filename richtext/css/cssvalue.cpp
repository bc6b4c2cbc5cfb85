// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/css/cssvalue.h"

#include "richtext/css/csstokenreader.h"

#include <QHash>
#include <QRegularExpression>

#include <cmath>

namespace css {
namespace {

[[nodiscard]] QStringList split(const QString &value, char16_t separator)
{
    QStringList out;
    QString part;
    qsizetype depth = 0;
    TokenReader reader(value);
    const auto take = [&] {
        if (const QString done = part.trimmed(); !done.isEmpty()) {
            out.append(done);
        }
        part.clear();
    };
    while (!reader.atEnd()) {
        const qsizetype begin = reader.pos();
        const Token token = reader.next();
        const char16_t character = token == Token::Other ? reader.character() : u' ';
        depth += character == u'(' ? 1 : character == u')' ? -1 : 0;
        if (depth <= 0 && character == separator) {
            take();
        } else {
            part += token == Token::Other ? value.mid(begin, reader.pos() - begin) : QStringLiteral(" ");
        }
    }
    take();
    return out;
}

[[nodiscard]] std::optional<double> keywordPoints(const QString &name)
{
    static const QHash<QString, double> names{
        {QStringLiteral("thin"), 0.75},   {QStringLiteral("thick"), 3.75}, {QStringLiteral("xx-small"), 7},
        {QStringLiteral("x-small"), 7.5}, {QStringLiteral("small"), 10},   {QStringLiteral("medium"), 12},
        {QStringLiteral("large"), 13.5},  {QStringLiteral("x-large"), 18}, {QStringLiteral("xx-large"), 24},
    };
    const auto found = names.constFind(name);
    return found == names.cend() ? std::nullopt : std::optional(*found);
}

/// A number, or a percentage of `whole`; -1 for neither.
[[nodiscard]] double channel(const QString &text, double whole)
{
    bool ok = false;
    const bool percent = text.endsWith(u'%');
    const double number = (percent ? text.chopped(1) : text).toDouble(&ok);
    if (!ok || !std::isfinite(number)) {
        return -1;
    }
    return qBound(0.0, percent ? number / 100 : number / whole, 1.0);
}

[[nodiscard]] QColor functionColor(const QString &text)
{
    static const QRegularExpression form(QStringLiteral("^rgba?\\(([^()]*)\\)$"));
    static const QRegularExpression gap(QStringLiteral("[\\s,/]+"));
    const QStringList numbers = form.match(text).captured(1).split(gap, Qt::SkipEmptyParts);
    if (numbers.size() != 3 && numbers.size() != 4) {
        return {};
    }
    double channels[4] = {0, 0, 0, 1};
    for (qsizetype i = 0; i < numbers.size(); ++i) {
        channels[i] = channel(numbers.at(i), i < 3 ? 255 : 1);
        if (channels[i] < 0) {
            return {};
        }
    }
    return QColor::fromRgbF(float(channels[0]), float(channels[1]), float(channels[2]), float(channels[3]));
}

/// The opacity stands last, where QColor has it first.
[[nodiscard]] QColor hexColor(QString text)
{
    if (text.size() == 5) {
        QString wide(u'#');
        for (const QChar c : text.mid(1)) {
            wide += QString(2, c);
        }
        text = wide;
    }
    return QColor(text.size() == 9 ? u'#' + text.mid(7) + text.mid(1, 6) : text);
}

} // namespace

QStringList parts(const QString &value)
{
    return split(value, u' ');
}

bool isImportant(const QString &value)
{
    static const QRegularExpression mark(QStringLiteral("!\\s*important\\s*$"),
                                         QRegularExpression::CaseInsensitiveOption);
    return value.contains(mark);
}

QString withoutImportant(const QString &value)
{
    return isImportant(value) ? value.left(value.lastIndexOf(u'!')).trimmed() : value;
}

std::optional<double> points(const QString &length, double em, double whole)
{
    static const QRegularExpression form(QStringLiteral("^([+-]?(?:\\d+\\.?\\d*|\\.\\d+))([a-z]*|%)$"));
    const QHash<QString, double> units{
        {QStringLiteral("pt"), 1},         {QStringLiteral("px"), 0.75},       {QStringLiteral("in"), 72},
        {QStringLiteral("mm"), 72 / 25.4}, {QStringLiteral("cm"), 720 / 25.4}, {QStringLiteral("pc"), 12},
        {QStringLiteral("em"), em},        {QStringLiteral("rem"), em},        {QStringLiteral("ex"), em / 2},
        {QStringLiteral("%"), whole / 100}};
    const QString text = length.trimmed().toLower();
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch()) {
        return keywordPoints(text);
    }
    const double number = match.captured(1).toDouble();
    if (!std::isfinite(number)) {
        return std::nullopt;
    }
    const QString unit = match.captured(2);
    if (unit.isEmpty()) {
        return number == 0 ? std::optional(0.0) : std::nullopt;
    }
    const auto factor = units.constFind(unit);
    return factor == units.cend() ? std::nullopt : std::optional(number * *factor);
}

QString numberText(double value)
{
    QString number = QString::number(value, 'f', 2);
    while (number.endsWith(u'0')) {
        number.chop(1);
    }
    if (number.endsWith(u'.')) {
        number.chop(1);
    }
    return number == QLatin1String("-0") ? QStringLiteral("0") : number;
}

QString inPoints(double points)
{
    return numberText(points) + QStringLiteral("pt");
}

QColor color(const QString &value)
{
    const QString text = value.trimmed().toLower();
    if (text.startsWith(u'#')) {
        const bool known = text.size() == 4 || text.size() == 5 || text.size() == 7 || text.size() == 9;
        return known ? hexColor(text) : QColor();
    }
    if (text.startsWith(QLatin1String("rgb"))) {
        return functionColor(text);
    }
    return QColor::isValidColor(text) ? QColor(text) : QColor();
}

QString colorText(const QColor &color)
{
    if (color.alpha() == 255) {
        return color.name();
    }
    if (color.alpha() == 0) {
        return QStringLiteral("transparent");
    }
    return QStringLiteral("rgba(%1, %2, %3, %4)")
        .arg(QString::number(color.red()), QString::number(color.green()), QString::number(color.blue()),
             QString::number(color.alphaF(), 'g', 3));
}

QString shownFamilies(const QString &value)
{
    QStringList names;
    for (QString name : split(value, u',')) {
        if (name.size() > 1 && (name.startsWith(u'"') || name.startsWith(u'\'')) &&
            name.endsWith(name.front())) {
            name = name.mid(1, name.size() - 2);
        }
        names.append(name);
    }
    return names.join(QStringLiteral(", "));
}

QString writtenFamilies(const QString &names)
{
    static const QRegularExpression plainName(QStringLiteral("^-?[A-Za-z_][A-Za-z0-9_-]*$"));
    static const QRegularExpression unsafe(QStringLiteral("[\"\\\\\\n\\r]"));
    QStringList out;
    for (const QString &part : names.split(u',', Qt::SkipEmptyParts)) {
        QString name = part.simplified();
        name.remove(unsafe);
        if (!name.isEmpty()) {
            out.append(name.contains(plainName) ? name : u'"' + name + u'"');
        }
    }
    return out.join(QStringLiteral(", "));
}

} // namespace css
