// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/bompart.h"
#include "designs/formats/designreader.h"
#include "editing/editingbench.h"
#include "editing/editmodel.h"
#include "editors/bomdataview.h"
#include "editors/bomtablewidget.h"
#include "editors/propsfindandreplace.h"
#include "host/framework/hostsettings.h"
#include "support/randominputs.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDragEnterEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QTest>

namespace {

using Key = EditModel::Key;

const QStringList properties{u"VALUE"_s, u"MPN"_s, u"NOTE"_s};
const QStringList texts{u"10k"_s, u"a"_s, u"A"_s, u"it's, so"_s, u"b\u00e4 = 5%"_s};

/// What a BOM-only part is, as parts of the same content cannot be told apart.
QString contentOf(const QString &prefix, QMap<QString, QString> all)
{
    QString content = prefix;
    for (const QString &property : properties) {
        content += u'|' + all.value(property);
    }
    return content;
}

/// A user at the property editor, with another program that changes the files meanwhile; and the model.
class EditingWalk : public EditingBench
{
protected:
    EditingWalk()
    {
        HostSettings::install(&settings);
        BOMTemplate columns;
        BOMFields fields;
        for (const QString &property : properties) {
            BOMField field;
            field.fieldName = field.propertyName = property;
            fields.add(field);
        }
        columns.setFields(fields);
        database.setCurrentTemplate(columns);
        view.setPartsDatabase(&database);
        view.setAssignments(store.get());
        QObject::connect(&database, &BOMPartsDatabase::dataChanged, &view, &BOMDataView::handleBOMDataUpdate);
        view.handleBOMDataUpdate();
        view.resize(900, 700);
        view.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&view));
        makeModel();
    }
    ~EditingWalk() override { HostSettings::install(nullptr); }

    void makeModel()
    {
        const auto add = [this](const char *name, const char *value) {
            const QString reference = QString::fromLatin1(name);
            model.symbols[reference].texts[u"VALUE"_s] = QString::fromLatin1(value);
            model.components[reference] = {reference, reference};
        };
        for (const auto &[name, value] : {std::pair{"R1", "10k"},
                                          {"R2", "22k"},
                                          {"R3", "33k"},
                                          {"C1", "1u"},
                                          {"U1", "TL074"},
                                          {"R10", "1k"},
                                          {"C10", "2u"}}) {
            add(name, value);
        }
        model.symbols[u"R1"_s].texts[u"MPN"_s] = u"A"_s;
        model.symbols[u"R3"_s].isFitted = false;
        model.components[u"R20"_s] = {u"R10"_s, u"R20"_s};
        model.components[u"C20"_s] = {u"C10"_s, u"C20"_s};
        addBOMPart(u"SCR"_s, {{u"VALUE"_s, u"M3"_s}});
        addBOMPart(u"SCR"_s, {{u"VALUE"_s, u"M3"_s}});
        addBOMPart(u"WSH"_s, {{u"VALUE"_s, u"M3"_s}, {u"MPN"_s, u"w"_s}});
    }
    void addBOMPart(const QString &prefix, const QMap<QString, QString> &all)
    {
        const QString name = prefix + u'#' + QString::number(++bomParts);
        model.symbols[name].texts = all;
        model.components[name] = {name, {}};
    }
    [[nodiscard]] static QString prefixOf(const QString &component) { return component.section(u'#', 0, 0); }
    [[nodiscard]] QString modelContent(const QString &component)
    {
        return contentOf(prefixOf(component), model.symbolOf(component).texts);
    }
    [[nodiscard]] QString realContent(const QString &reference) const
    {
        const auto *part = static_cast<const BOMPart *>(database.part(reference));
        QMap<QString, QString> all = part->properties();
        all[u"VALUE"_s] = part->value();
        return contentOf(part->prefix(), all);
    }
    /// Of several with the same content and the same edits any one will do.
    [[nodiscard]] QString componentOf(const QString &reference, const QStringList &others = {})
    {
        const Part *part = database.part(reference);
        for (const auto &[name, component] : model.components) {
            if (!model.isReachable(name) || others.contains(name)) {
                continue;
            }
            if (!part->isBOMPart()) {
                if (component.reference == reference) {
                    return name;
                }
            } else if (component.reference.isEmpty() && modelContent(name) == realContent(reference) &&
                       hasSameEdits(name, reference)) {
                return name;
            }
        }
        ADD_FAILURE() << "no part like " << reference.toStdString();
        return {};
    }
    [[nodiscard]] bool hasSameEdits(const QString &component, const QString &reference)
    {
        return std::ranges::all_of(properties, [&](const QString &property) {
            const PendingEdit *edit = store->edit(reference, property);
            const auto expected = model.pending.find({component, property});
            return edit ? expected != model.pending.end() && expected->second.value == edit->value
                        : expected == model.pending.end();
        });
    }

    // What the user does.
    void act()
    {
        switch (random.below(13)) {
        case 0:
        case 1:
        case 2:
            return type();
        case 3:
            return fill();
        case 4:
        case 5:
            undo->stack().undo();
            return model.undo();
        case 6:
            undo->stack().redo();
            return model.redo();
        case 7:
            return replaceAll();
        case 8:
            return random.flag() ? addPart() : removePart();
        case 9:
        case 10:
            return changeFiles();
        case 11:
            return decide();
        default:
            QTest::mouseClick(view.findChild<QPushButton *>(u"applyPropDefsBtn"_s), Qt::LeftButton);
            return model.apply();
        }
    }
    [[nodiscard]] int columnOf(const QString &property) const
    {
        return 2 + int(properties.indexOf(property));
    }
    [[nodiscard]] Key keyOf(int row, const QString &property)
    {
        return {componentOf(table->item(row, 0)->text()), property};
    }
    /// Only a value cannot be empty.
    [[nodiscard]] QString textFor(const QString &property)
    {
        return property != properties[0] && random.once(4) ? QString() : random.oneOf(texts);
    }
    void type()
    {
        const QString property = random.oneOf(properties);
        const QString text = textFor(property);
        const int row = random.below(table->rowCount());
        model.enter(keyOf(row, property), text);
        model.endAction();
        table->setCurrentCell(row, columnOf(property));
        table->setFocus();
        QTest::keyClick(table, Qt::Key_F2);
        QWidget *editor = QApplication::focusWidget();
        QTest::keyClick(editor, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(editor, Qt::Key_Delete);
        for (const QChar c : text) {
            QTest::sendKeyEvent(QTest::Click, editor, Qt::Key_unknown, QString(c), Qt::NoModifier);
        }
        QTest::keyClick(editor, random.once(8) ? Qt::Key_Tab : Qt::Key_Return);
    }
    void fill()
    {
        const QString property = random.oneOf(properties);
        const QString text = textFor(property);
        const int first = random.below(table->rowCount() - 2);
        table->setCurrentCell(first, columnOf(property));
        QMimeData data;
        data.setText(text);
        const auto at = [&](int row) {
            return table->visualItemRect(table->item(row, columnOf(property))).center();
        };
        table->scrollToItem(table->item(first + 2, 2));
        QDragEnterEvent enter(at(first), Qt::CopyAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(table->viewport(), &enter);
        for (int row = first; row < first + 3; ++row) {
            model.enter(keyOf(row, property), text);
            QDragMoveEvent move(at(row), Qt::CopyAction, &data, Qt::LeftButton, {});
            QCoreApplication::sendEvent(table->viewport(), &move);
        }
        QDropEvent drop(at(first + 2), Qt::CopyAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(table->viewport(), &drop);
        model.endAction();
    }
    void replaceAll()
    {
        const QString property = random.oneOf(properties);
        const QString text = random.oneOf(texts);
        table->setCurrentCell(random.below(table->rowCount()), columnOf(property));
        const QString wanted = table->currentItem()->text();
        view.showReplaceDialogue();
        auto *dialog = view.findChild<PropsFindAndReplace *>();
        auto *isOneColumn = dialog->findChild<QCheckBox *>(u"currentColOnlyCheck"_s);
        isOneColumn->setChecked(random.flag());
        std::vector<Key> found;
        QStringList components;
        for (int row = 0; row < table->rowCount(); ++row) {
            components << componentOf(table->item(row, 0)->text(), components);
            for (const QString &other : properties) {
                const Key key{components.last(), other};
                const bool isSearched = !isOneColumn->isChecked() || other == property;
                if (isSearched && model.shown(key).compare(wanted, Qt::CaseInsensitive) == 0) {
                    found.push_back(key);
                }
            }
        }
        dialog->findChild<QLineEdit *>(u"replaceEdit"_s)->setText(text);
        QTest::mouseClick(dialog->findChild<QPushButton *>(u"replaceAllBtn"_s), Qt::LeftButton);
        QTest::keyClick(dialog, Qt::Key_Escape);
        for (const Key &key : found) {
            model.enter(key, text);
        }
        model.endAction();
    }
    /// Confirms an edit, drops one, or clears all.
    void decide()
    {
        const QList<PendingEdit> edits = store->edits();
        if (edits.isEmpty()) {
            return;
        }
        if (random.once(6)) {
            ui.answer = true;
            QTest::mouseClick(view.findChild<QPushButton *>(u"clearPendingChangesBtn"_s), Qt::LeftButton);
            model.pending.clear();
            return model.endAction();
        }
        const PendingEdit edit = random.oneOf(edits);
        if (edit.conflict != EditConflict::None && edit.conflict != EditConflict::ValueChanged) {
            return;
        }
        const Key key{componentOf(edit.reference), edit.property};
        if (random.flag()) {
            store->retract(edit);
            model.pending.erase(key);
        } else {
            store->confirm(edit, true);
            model.pending[key].isConfirmed = model.isChanged(model.pending[key]);
        }
        model.endAction();
    }
    void addPart()
    {
        const QString value = u"v%1"_s.arg(bomParts);
        if (database.bomParts(u"U1"_s).size() < 6) {
            EXPECT_EQ(store->addBOMParts(u"U1"_s, 2, u"N"_s, value).toStdString(), "");
            addBOMPart(u"N"_s, {{u"VALUE"_s, value}});
            addBOMPart(u"N"_s, {{u"VALUE"_s, value}});
            model.follow();
            model.settle();
        }
    }
    void removePart()
    {
        const QList<BOMPart *> parts = database.bomParts(u"U1"_s);
        if (parts.size() > 2) {
            const QString reference = random.oneOf(parts)->reference();
            model.symbolOf(componentOf(reference)).isThere = false;
            EXPECT_EQ(store->removeBOMPart(u"U1"_s, reference).toStdString(), "");
            model.endHistory();
            model.follow();
            model.settle();
        }
    }

    // What another program does.
    void changeFiles()
    {
        switch (random.below(4)) {
        case 0:
            changeText();
            break;
        case 1:
            swapReferences();
            break;
        case 2:
            changeFitting(random.flag() ? u"R3"_s : u"C1"_s);
            break;
        default:
            removeOrPutBack();
        }
        readAgain();
        model.follow();
        model.settle();
    }
    using Rewrite = std::function<QByteArray(const QByteArray &)>;
    void rewriteSymbol(const QString &file, const QString &symbol, const Rewrite &rewrite)
    {
        QByteArray content = readFile(path(file));
        const qsizetype inside = content.indexOf("(uuid \"uuid-" + symbol.toLatin1() + '"');
        ASSERT_GE(inside, 0) << symbol.toStdString();
        const qsizetype start = content.lastIndexOf("\n  (symbol ", inside);
        const qsizetype end = content.indexOf("\n  )", inside) + 4;
        content.replace(start, end - start, rewrite(content.mid(start, end - start)));
        writeFile(path(file), content);
    }
    void changeText()
    {
        const bool isShared = random.flag();
        const QString symbol = isShared ? u"R10"_s : u"R1"_s;
        const QByteArray text = random.flag() ? "e1" : "a";
        rewriteSymbol(isShared ? u"channel.kicad_sch"_s : u"amp.kicad_sch"_s, symbol, [&](QByteArray block) {
            const QByteArray front = "(property \"MPN\" \"";
            const qsizetype at = block.indexOf(front);
            if (at < 0) {
                return block.replace("\n    (pin ", "\n    " + front + text + "\" (at 1 2 0))\n    (pin ");
            }
            const qsizetype from = at + front.size();
            return block.replace(from, block.indexOf('"', from) - from, text);
        });
        model.symbols[symbol].texts[u"MPN"_s] = QString::fromLatin1(text);
    }
    void swapReferences()
    {
        if (model.symbols[u"R2"_s].isThere) {
            for (const QString &symbol : {u"R1"_s, u"R2"_s}) {
                rewriteSymbol(u"amp.kicad_sch"_s, symbol, [](QByteArray block) {
                    const bool isR1 = block.contains("\"R1\"");
                    return isR1 ? block.replace("\"R1\"", "\"R2\"") : block.replace("\"R2\"", "\"R1\"");
                });
            }
            std::swap(model.components[u"R1"_s].reference, model.components[u"R2"_s].reference);
        }
    }
    void changeFitting(const QString &symbol)
    {
        bool &isFitted = model.symbols[symbol].isFitted;
        rewriteSymbol(u"amp.kicad_sch"_s, symbol, [&isFitted](QByteArray block) {
            return isFitted ? block.replace("(dnp no)", "(dnp yes)") : block.replace("(dnp yes)", "(dnp no)");
        });
        isFitted = !isFitted;
    }
    void removeOrPutBack()
    {
        bool &isThere = model.symbols[u"R2"_s].isThere;
        if (isThere) {
            rewriteSymbol(u"amp.kicad_sch"_s, u"R2"_s, [this](const QByteArray &block) {
                removed = block;
                return QByteArray();
            });
        } else {
            rewriteSymbol(u"amp.kicad_sch"_s, u"R1"_s,
                          [this](const QByteArray &block) { return block + removed; });
        }
        isThere = !isThere;
    }

    // What must be.
    void compare()
    {
        ASSERT_EQ(real(), expected());
        ASSERT_EQ(files(), expectedFiles());
        ASSERT_EQ(std::size_t(undo->stack().index()), model.done());
        ASSERT_EQ(std::size_t(undo->stack().count() - undo->stack().index()), model.undone());
        for (int row = 0; row < table->rowCount(); ++row) {
            for (const QString &property : properties) {
                const QString reference = table->item(row, 0)->text();
                const PendingEdit *edit = store->edit(reference, property);
                const QString text = edit ? edit->value : database.property(reference, property);
                ASSERT_EQ(table->item(row, columnOf(property))->text().toStdString(), text.toStdString());
            }
        }
    }
    using Lines = std::multiset<std::string>;
    [[nodiscard]] Lines real() const
    {
        Lines lines;
        for (const PendingEdit &edit : store->edits()) {
            const bool isGone = edit.conflict == EditConflict::PartGone;
            const bool isBOMOnly = !edit.part.definition.isEmpty();
            const QString part = !isBOMOnly ? edit.reference : isGone ? u"#"_s : realContent(edit.reference);
            const bool isChanged = edit.conflict == EditConflict::ValueChanged;
            lines.insert((part + u' ' + edit.property + u'=' + edit.value + u'!' +
                          QString::number(int(edit.conflict)) +
                          (isChanged && edit.isConfirmed ? u"+"_s : u""_s))
                             .toStdString());
        }
        return lines;
    }
    [[nodiscard]] Lines expected()
    {
        Lines lines;
        for (const auto &[key, edit] : model.pending) {
            const EditModel::Symbol &symbol = model.symbolOf(key.first);
            const QString reference = model.components[key.first].reference;
            const auto conflict = !symbol.isThere         ? EditConflict::PartGone
                                  : !symbol.isFitted      ? EditConflict::PartLeftOut
                                  : model.isChanged(edit) ? EditConflict::ValueChanged
                                                          : EditConflict::None;
            const QString part = !reference.isEmpty() ? reference
                                 : symbol.isThere     ? modelContent(key.first)
                                                      : u"#"_s;
            const bool isConfirmed = conflict == EditConflict::ValueChanged && edit.isConfirmed;
            lines.insert((part + u' ' + key.second + u'=' + edit.value + u'!' +
                          QString::number(int(conflict)) + (isConfirmed ? u"+"_s : u""_s))
                             .toStdString());
        }
        return lines;
    }
    /// As a program finds them that knows nothing of the edits.
    [[nodiscard]] Lines files() const
    {
        Lines lines;
        const designs::ReadResult read = designs::readDesign(path(u"amp.kicad_sch"_s));
        for (const designs::Component &component : read.design->components()) {
            QMap<QString, QString> all{{u"VALUE"_s, QString::fromUtf8(component.value)}};
            for (const designs::Property &property : component.properties) {
                const QString name =
                    QString::fromStdString(std::string(read.design->names().name(property.name)));
                const QString text = QString::fromUtf8(property.value);
                all[name.toUpper()] = text;
                if (name.startsWith(bomPartPropertyStart())) {
                    const BOMPartDefinition definition = readBOMPartDefinition(text).definition;
                    QMap<QString, QString> defined = definition.properties;
                    defined[u"VALUE"_s] = definition.value;
                    for (int part = 0; part < definition.count; ++part) {
                        lines.insert(contentOf(definition.prefix, defined).toStdString());
                    }
                }
            }
            lines.insert(contentOf(QString::fromUtf8(component.reference), all).toStdString());
        }
        return lines;
    }
    [[nodiscard]] Lines expectedFiles()
    {
        Lines lines;
        for (const auto &[name, component] : model.components) {
            const QString front = component.reference.isEmpty() ? prefixOf(name) : component.reference;
            if (model.symbolOf(name).isThere) {
                lines.insert(contentOf(front, model.symbolOf(name).texts).toStdString());
            }
        }
        return lines;
    }

    MemoryHostSettings settings;
    BOMDataView view;
    BOMTableWidget *table = view.findChild<BOMTableWidget *>(u"partsView"_s);
    EditModel model;
    int bomParts = 0;
    QByteArray removed;
    RandomInputs random{20261122};
};

TEST_F(EditingWalk, EndsWhereTheModelEnds)
{
    bool hasSteps = false;
    const int steps = qEnvironmentVariableIntValue("BOM_WALK_STEPS", &hasSteps);
    if (const int seed = qEnvironmentVariableIntValue("BOM_WALK_SEED")) {
        random = RandomInputs(std::uint32_t(seed));
    }
    for (int step = 0; step < (hasSteps ? steps : 2000) && !HasFailure(); ++step) {
        SCOPED_TRACE(step);
        act();
        compare();
    }
}

} // namespace
