// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "app/emptypage.h"

#include <QAction>
#include <QCommandLinkButton>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int mostRecent = 5;
constexpr int contentCharacters = 88;
constexpr int leastCharacters = 56;
constexpr qreal headingScale = 1.5;

QLabel *label(const QString &text)
{
    auto *made = new QLabel(text);
    made->setTextFormat(Qt::PlainText);
    made->setWordWrap(true);
    made->setAlignment(Qt::AlignHCenter);
    // Of a page whose height follows from its width QScrollArea shows scroll bars that it does not need.
    made->setMinimumHeight(made->heightForWidth(leastCharacters * made->fontMetrics().averageCharWidth()));
    QSizePolicy policy = made->sizePolicy();
    policy.setHeightForWidth(false);
    made->setSizePolicy(policy);
    return made;
}

/// A folder as people write it.
QString folderText(const QString &path)
{
    const QString folder = QFileInfo(path).path();
    const QString home = QDir::homePath();
    const bool isBelow = folder == home || folder.startsWith(home + u'/');
    return QDir::toNativeSeparators(isBelow ? u'~' + folder.mid(home.size()) : folder);
}

/// What a button shows is not to be taken for a mnemonic.
QString buttonText(QString text)
{
    return text.replace(u'&', QStringLiteral("&&"));
}

} // namespace

EmptyPage::EmptyPage(QAction *open, QWidget *parent)
    : QScrollArea(parent)
{
    setObjectName(QStringLiteral("emptyPage"));
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus);
    auto *heading = new QLabel(tr("No design is open"));
    heading->setAlignment(Qt::AlignHCenter);
    QFont font = heading->font();
    font.setPointSizeF(font.pointSizeF() * headingScale);
    heading->setFont(font);
    m_open = new QPushButton(tr("&Open a Design…"));
    m_open->setObjectName(QStringLiteral("openButton"));
    // Outside of dialogs Return does not press buttons otherwise.
    m_open->setAutoDefault(true);
    connect(m_open, &QPushButton::clicked, open, &QAction::trigger);

    auto *content = new QWidget;
    content->setMinimumWidth(leastCharacters * fontMetrics().averageCharWidth());
    content->setMaximumWidth(contentCharacters * fontMetrics().averageCharWidth());
    auto *column = new QVBoxLayout(content);
    column->addWidget(heading);
    column->addWidget(label(tr("Drop a KiCad schematic (.kicad_sch), a KiCad project (.kicad_pro) or a part "
                               "list (.csv) on this window, or choose one.")));
    column->addSpacing(column->spacing());
    column->addWidget(m_open, 0, Qt::AlignHCenter);
    m_unwritten = addSection(tr("Edits That Are Not Written"), QStringLiteral("unwritten"), column);
    m_recent = addSection(tr("Recent Designs"), QStringLiteral("recent"), column);
    m_examples = addSection(tr("Examples"), QStringLiteral("examples"), column);
    // An alignment would not give the wrapped texts their heights.
    auto *page = new QWidget;
    auto *middle = new QHBoxLayout;
    middle->addStretch(1);
    // As wide as it may be, where there is room.
    middle->addWidget(content, contentCharacters);
    middle->addStretch(1);
    auto *rows = new QVBoxLayout(page);
    rows->addStretch(1);
    rows->addLayout(middle);
    rows->addStretch(2);
    setWidget(page);
}

EmptyPage::Section EmptyPage::addSection(const QString &title, const QString &name, QVBoxLayout *column)
{
    auto *box = new QWidget;
    box->setObjectName(name);
    // Screen readers say to what the entries belong.
    box->setAccessibleName(title);
    auto *layout = new QVBoxLayout(box);
    layout->setContentsMargins(0, column->spacing(), 0, 0);
    layout->setSpacing(0);
    auto *heading = new QLabel(title);
    QFont font = heading->font();
    font.setBold(true);
    heading->setFont(font);
    layout->addWidget(heading);
    column->addWidget(box);
    box->hide();
    return {box, layout};
}

void EmptyPage::fill(const Section &section, const QList<Entry> &entries)
{
    // The click that is being handled may have come from one of these buttons, so they are deleted later.
    for (auto *button :
         section.box->findChildren<QCommandLinkButton *>(QString(), Qt::FindDirectChildrenOnly)) {
        section.layout->removeWidget(button);
        button->hide();
        button->deleteLater();
    }
    const int room = widget()->findChild<QWidget *>()->maximumWidth();
    for (const Entry &entry : entries) {
        auto *button = new QCommandLinkButton(buttonText(entry.text));
        // The picture in front of the texts takes about four characters.
        const int width = room - 12 * fontMetrics().averageCharWidth();
        const QFontMetrics metrics = button->fontMetrics();
        button->setDescription(
            entry.note +
            metrics.elidedText(entry.folder, Qt::ElideMiddle, width - metrics.horizontalAdvance(entry.note)));
        button->setToolTip(QStringLiteral("<qt>") + entry.tip.toHtmlEscaped() + QStringLiteral("</qt>"));
        button->setAccessibleDescription(entry.note + entry.folder);
        button->setAutoDefault(true);
        // A page without room scrolls.
        QSizePolicy policy = button->sizePolicy();
        policy.setVerticalPolicy(QSizePolicy::Fixed);
        policy.setHeightForWidth(false);
        button->setSizePolicy(policy);
        connect(button, &QCommandLinkButton::clicked, this, entry.choose);
        section.layout->addWidget(button);
    }
    section.box->setVisible(!entries.isEmpty());
    orderTabs();
}

/// By their places, whatever was filled last.
void EmptyPage::orderTabs()
{
    QWidget *before = m_open;
    for (const Section &section : {m_unwritten, m_recent, m_examples}) {
        for (int item = 0; section.layout && item < section.layout->count(); ++item) {
            QWidget *widget = section.layout->itemAt(item)->widget();
            if (widget->focusPolicy() != Qt::NoFocus) {
                setTabOrder(before, widget);
                before = widget;
            }
        }
    }
}

void EmptyPage::setRecentFiles(const QStringList &paths)
{
    QList<Entry> entries;
    for (const QString &path : paths.mid(0, mostRecent)) {
        const QString gone = QFileInfo::exists(path) ? QString() : tr("Not there any more:") + u' ';
        entries.append({QFileInfo(path).fileName(), gone, folderText(path), QDir::toNativeSeparators(path),
                        [this, path] { Q_EMIT recentChosen(path); }});
    }
    fill(m_recent, entries);
}

void EmptyPage::setUnwrittenEdits(const QList<UNWRITTENEDITS> &designs)
{
    QList<Entry> entries;
    for (const UNWRITTENEDITS &found : designs.mid(0, mostRecent)) {
        const QFileInfo file(found.file);
        const QString variant =
            found.variant.isEmpty() ? QString() : QStringLiteral(" [") + found.variant + u']';
        QString note = found.edits == 1 ? tr("1 edit") : tr("%1 edits").arg(found.edits);
        note += file.exists() ? QStringLiteral(", ")
                              : QStringLiteral("; ") + tr("the design is not there any more:") + u' ';
        entries.append({file.fileName() + variant, note, folderText(found.file),
                        tr("Opens the design and offers to go on with the edits"),
                        [this, found] { Q_EMIT unwrittenChosen(found.file, found.variant); }});
    }
    fill(m_unwritten, entries);
}

void EmptyPage::setExamples(const QList<ExampleDesign> &examples)
{
    QList<Entry> entries;
    for (const ExampleDesign &example : examples) {
        entries.append({example.name,
                        {},
                        QFileInfo(example.file).fileName(),
                        tr("Opens a copy in your documents, which you may change"),
                        [this, example] { Q_EMIT exampleChosen(example); }});
    }
    fill(m_examples, entries);
}

void EmptyPage::showEvent(QShowEvent *event)
{
    QScrollArea::showEvent(event);
    m_open->setFocus(Qt::OtherFocusReason);
}
