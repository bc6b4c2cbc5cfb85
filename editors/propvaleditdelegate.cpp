// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "editors/propvaleditdelegate.h"

#include "core/bompartsdatabase.h"
#include "host/widgets/blankingdoublespinbox.h"
#include "host/widgets/blankingspinbox.h"
#include "host/widgets/keywordvalueeditor.h"

#include <QLineEdit>

namespace {

QWidget *statesEditor(const QString &upper, const QString &lower, QWidget *parent)
{
    auto *editor = new KeywordValueEditor({upper, lower}, parent);
    editor->addAlias(QStringLiteral("1"), upper);
    editor->addAlias(QStringLiteral("0"), lower);
    return editor;
}

/// Null for a type whose texts are lines.
QWidget *typedEditor(PropType type, QWidget *parent)
{
    switch (type) {
    case PropType::YesNo:
    case PropType::Boolean:
        return statesEditor(QStringLiteral("Yes"), QStringLiteral("No"), parent);
    case PropType::TrueFalse:
        return statesEditor(QStringLiteral("True"), QStringLiteral("False"), parent);
    case PropType::HighLow:
        return statesEditor(QStringLiteral("High"), QStringLiteral("Low"), parent);
    case PropType::Int:
        return new BlankingSpinBox(parent);
    case PropType::Float:
        return new BlankingDoubleSpinBox(parent);
    case PropType::String:
    case PropType::Text:
        break;
    }
    return nullptr;
}

} // namespace

void PropValEditDelegate::setPartsDatabase(const BOMPartsDatabase *database)
{
    m_database = database;
}

QWidget *PropValEditDelegate::makeEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                         const QModelIndex &index) const
{
    const QAbstractItemModel &model = *index.model();
    const QString property = model.headerData(index.column(), Qt::Horizontal, PropertyRole).toString();
    if (property.isEmpty() || !model.headerData(index.column(), Qt::Horizontal, IsEditableRole).toBool()) {
        return nullptr;
    }
    const auto type = m_database ? m_database->propertyTypes().type(property) : std::nullopt;
    QWidget *editor = type ? typedEditor(*type, parent) : nullptr;
    const QStringList keywords = m_database ? m_database->propertyTypes().keywords(property) : QStringList();
    if (!editor && !keywords.isEmpty()) {
        editor = new KeywordValueEditor(keywords, parent);
    }
    if (!editor) {
        editor = StyledItemDelegate::makeEditor(parent, option, index);
    }
    // What stands in the cell is no text of it where its parts differ.
    const QString text = index.data(Qt::EditRole).toString();
    const QString shown = index.data(Qt::DisplayRole).toString();
    auto *line = qobject_cast<QLineEdit *>(editor);
    if (line = line ? line : editor->findChild<QLineEdit *>(); line && text != shown) {
        line->setPlaceholderText(shown);
    }
    return editor;
}
