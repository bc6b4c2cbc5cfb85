// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/editor/textedit.h"
#include "views/bomhtmlview.h"
#include "views/viewfixture.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <functional>

using namespace Qt::StringLiterals;
using testing::ElementsAre;

namespace {

class Html : public ViewFixture
{
protected:
    Html() { view.setPartsDatabase(&database); }

    /// The document between its heading and its time stamp.
    [[nodiscard]] QString body()
    {
        const QString html = view.html();
        const qsizetype start = html.indexOf("<h1"_L1);
        return html.mid(start, html.indexOf("\n<p class='timestamp'>"_L1) - start);
    }
    [[nodiscard]] QString categoriesTable()
    {
        const QString text = body();
        return text.mid(text.indexOf("<table class='categoriesTable'>"_L1));
    }
    /// Every text that matches, first group.
    [[nodiscard]] QStringList all(const QString &pattern)
    {
        QStringList found;
        for (const QRegularExpressionMatch &match : QRegularExpression(pattern).globalMatch(view.html())) {
            found.append(match.captured(1));
        }
        return found;
    }
    /// The cells of the report's lines.
    [[nodiscard]] QStringList fields() { return all(u"<p class='(?:odd|even)field'>(.*?)</p>"_s); }

    BOMHTMLView view;
};

TEST_F(Html, IsThatDocumentLineByLine)
{
    process.design.info = {
        {"TITLE", u"Amp <1>"_s}, {"AUTHOR", u"R&D"_s}, {"REV", u"B"_s}, {"WL_CDATE", u"2026-01-01"_s}};
    netlist.add("R1", "10k", {{"COST", "0.5"}});
    netlist.add("R3", "10k", {{"COST", "0.5"}});
    netlist.add("C1", "1n");
    netlist.add("R2", "1k", {{"CODE", "S-1"}});
    database.load();
    changeTemplate([](BOMTemplate &settings) {
        settings.setCss(u"p { margin: 0pt; }\n"_s);
        settings.setSuppressEmptyCategories(true);
        settings.setDocumentHeader(u"<p class='DocHeader'>head</p>"_s);
        settings.setDocumentFooter(u"<p class='DocFooter'>foot</p>"_s);
    });
    const QString headings =
        u"<tr><th><p class='fieldHeading'>Quantity</p></th><th><p class='fieldHeading'>References</p></th>"
        "<th><p class='fieldHeading'>Value</p></th><th><p class='fieldHeading'>Stock Code</p></th>"
        "<th><p class='fieldHeading'>Unit Cost</p></th></tr>"_s;
    const QString expected =
        u"<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
        "   <!DOCTYPE html PUBLIC \"-//W3C//DTD XHTML 1.0 Transitional//EN\" "
        "\"http://www.w3.org/TR/xhtml1/DTD/xhtml1-transitional.dtd\">\n"
        "      <html>\n"
        "\t      <head>\n"
        "\t         <meta http-equiv=\"Content-Type\" content=\"text/html; charset=UTF-8\" />\n"
        "\t         <title>Bill Of Materials for Amp &lt;1&gt;</title>\n"
        "\t         <style type=\"text/css\">\n"
        "p { margin: 0pt; }\n"
        "\n"
        "\t         </style>\t      </head>\n"
        "\t   <body>\n"
        "<p class='DocHeader'>head</p>\n"
        "<h1 class='mainTitle'>Bill Of Materials for Amp &lt;1&gt;</h1>\n"
        "<table class='headerTable'>\n"
        "<tbody>"
        "<tr><td><p class='headerTitle'>Design Title</p></td><td><p class='headerValue'>Amp "
        "&lt;1&gt;</p></td></tr>\n"
        "<tr><td><p class='headerTitle'>Author</p></td><td><p class='headerValue'>R&amp;D</p></td></tr>\n"
        "<tr><td><p class='headerTitle'>Document Number</p></td><td><p class='headerValue'></p></td></tr>\n"
        "<tr><td><p class='headerTitle'>Revision</p></td><td><p class='headerValue'>B</p></td></tr>\n"
        "<tr><td><p class='headerTitle'>Design Created</p></td><td><p "
        "class='headerValue'>2026-01-01</p></td></tr>\n"
        "<tr><td><p class='headerTitle'>Design Last Modified</p></td><td><p "
        "class='headerValue'></p></td></tr>\n"
        "<tr><td><p class='headerTitle'>Total Parts In Design</p></td><td><p "
        "class='headerValue'>4</p></td></tr>\n"
        "</tbody></table><p></p>\n"
        "\n"
        "\n"
        "<table class='categoriesTable'>\n"
        "<tbody>\n"
        "<tr><th colspan='5'><p class='sectionTitle' >1 Capacitors</p></th></tr>\n"_s +
        headings +
        u"<tr><td><p class='oddfield'>1</p></td><td><p class='oddfield'>C1</p></td><td><p "
        u"class='oddfield'>1n</p></td>"
        "<td><p class='oddfield'></p></td><td><p class='oddfield'></p></td></tr>\n"
        "<tr><td colspan='2'><p class='subtotal'>Sub-totals:</p></td><td><p class='subtotal'></p></td>"
        "<td><p class='subtotal'></p></td><td><p class='subtotal'>0.00</p></td></tr>\n"
        "</tbody>\n"
        "<tbody>\n"
        "<tr><th colspan='5'><p class='sectionTitle' >3 Resistors</p></th></tr>\n"_s +
        headings +
        u"<tr><td><p class='oddfield'>2</p></td><td><p class='oddfield'>R1,&shy;&#8203;R3</p></td>"
        "<td><p class='oddfield'>10k</p></td><td><p class='oddfield'></p></td><td><p "
        "class='oddfield'>0.50</p></td></tr>\n"
        "<tr><td><p class='evenfield'>1</p></td><td><p class='evenfield'>R2</p></td><td><p "
        "class='evenfield'>1k</p></td>"
        "<td><p class='evenfield'>S-1</p></td><td><p class='evenfield'></p></td></tr>\n"
        "<tr><td colspan='2'><p class='subtotal'>Sub-totals:</p></td><td><p class='subtotal'></p></td>"
        "<td><p class='subtotal'></p></td><td><p class='subtotal'>1.00</p></td></tr>\n"
        "</tbody>\n"
        "<tbody>\n"
        "<tr><td colspan=\"5\"><p class='horizLine'>&nbsp; </p></td></tr>\n"
        "<tr><td><p class='total'>Totals:</p></td><td><p class='total'></p></td><td><p "
        "class='total'></p></td>"
        "<td><p class='total'></p></td><td><p class='total'>1.00</p></td></tr>\n"
        "</tbody>\n"
        "</table>\n"
        "<p></p>\n"
        "\n"
        "<p class='DocFooter'>foot</p>\n"
        "<p class='timestamp'>Friday, 2 January 2026 03:04:05 UTC</p>\n"
        "</body>\n"
        "</html>"_s;
    EXPECT_EQ(view.html(), expected);
}

TEST_F(Html, NamesTheVariantFifthAndRepeatsHeadingsInEveryCategory)
{
    process.design.properties.insert("VARIANT", "Lite");
    const QStringList labels = all(u"<p class='headerTitle'>(.*?)</p>"_s);
    ASSERT_EQ(labels.size(), 8);
    EXPECT_EQ(labels[4], u"Assembly Variant"_s);
    EXPECT_EQ(all(u"<p class='headerValue'>(.*?)</p>"_s)[4], u"Lite"_s);
    const qsizetype categories = database.categoryNames().size();
    EXPECT_EQ(all(u"(<tr><th><p class='fieldHeading'>Quantity)"_s).size(), categories);
    EXPECT_EQ(all(u"(Sub-totals:)"_s).size(), categories);
}

TEST_F(Html, GivesManualWidthsByPositionAndNoneBeyondAHundredPercent)
{
    const auto widthsWith = [this](const QList<int> &fieldWidths) {
        changeTemplate([&fieldWidths](BOMTemplate &settings) {
            settings.setManualPrettyLayout(true);
            settings.setPrettyQuantityWidth(10);
            settings.setPrettyRefWidth(30);
            BOMFields fields;
            for (qsizetype i = 0; i < fieldWidths.size(); ++i) {
                BOMField field;
                field.fieldName = i == 0 ? u"Value"_s : u"F"_s + QString::number(i);
                field.propertyName = i == 0 ? u"VALUE"_s : field.fieldName;
                field.manualWidth = fieldWidths[i];
                fields.add(field);
            }
            settings.setFields(fields);
            settings.setCategories(settings.categories().mid(settings.categories().size() - 1));
        });
        return all(u"<th( style='width:.*?')?><p class='fieldHeading'>"_s);
    };
    const auto style = [](int width) { return u" style='width:"_s + QString::number(width) + u"%'"_s; };
    EXPECT_THAT(widthsWith({20, 0, 30, 20}),
                ElementsAre(style(10), style(30), style(20), style(30), QString(), QString()));
    // What was left out counts all the same.
    EXPECT_THAT(widthsWith({70, 10}), ElementsAre(style(10), style(30), QString(), QString()));
    EXPECT_THAT(widthsWith({2000000000, 2000000000, 5}),
                ElementsAre(style(10), style(30), QString(), QString(), QString()));
}

TEST_F(Html, ShowsNotesWithTheirLinesAndBlanks)
{
    const auto notesOf = [this](const QString &text) {
        process.design.attachments.insert("BOMNOTES.TXT", text);
        database.reload();
        return all(u"<h3 class='NotesTitle'>Notes</h3><p class='bomNotes'>(.*?)</p>\n"_s).value(0, u"none"_s);
    };
    EXPECT_EQ(notesOf(u"a  b"_s), u"a&nbsp; b"_s);
    EXPECT_EQ(notesOf(u"one\ntwo"_s), u"one<br/>two"_s);
    EXPECT_EQ(notesOf(u"one\r\n\r\ntwo\n"_s), u"one<br/><br/>two<br/>"_s);
    EXPECT_EQ(notesOf(u"\tx"_s), u"&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;&nbsp; x"_s);
    EXPECT_EQ(notesOf(u"<b>R&D</b> \u0001"_s), u"&lt;b&gt;R&amp;D&lt;/b&gt; \ufffd"_s);
    EXPECT_EQ(notesOf(QString()), u"none"_s);
}

TEST_F(Html, EscapesEveryTextAndShortensBeforeIt)
{
    netlist.add("R1", "<script>alert('1')</script>", {{"CODE", "&&&&&&&&"}});
    netlist.add("R2", "5%1 %L2", {{"CODE", "\"]]>"}});
    netlist.add("R<3", "\xd7\xa9\xd7\x9c \x01\xff");
    database.load();
    changeField(u"Stock Code"_s, [](BOMField &field) { field.fieldWidth = 6; });
    const QStringList cells = fields();
    EXPECT_TRUE(cells.contains(u"&lt;script&gt;alert('1')&lt;/script&gt;"_s));
    EXPECT_TRUE(cells.contains(u"&amp;&amp;&amp;..."_s));
    EXPECT_TRUE(cells.contains(u"5%1 %L2"_s));
    EXPECT_TRUE(cells.contains(u"&quot;]]&gt;"_s));
    EXPECT_TRUE(cells.contains(u"R&lt;3"_s));
    EXPECT_TRUE(cells.contains(u"\u05e9\u05dc \ufffd\ufffd"_s));
}

TEST_F(Html, ListsAllReferencesOfALine)
{
    QStringList references;
    for (int i = 0; i < 20000; i += 2) {
        references.append(u"R"_s + QString::number(i + 1));
        netlist.add(references.last().toUtf8(), "10k");
    }
    database.load();
    EXPECT_TRUE(fields().contains(references.join(u",&shy;&#8203;"_s)));
    const QStringList row = view.categoryRows(u"Resistors"_s, true, BOMView::UnlimitedWidth, 1).value(0);
    EXPECT_EQ(row.value(1), references.join(u",&shy;&#8203;"_s));
}

TEST_F(Html, LinksCellsWhoseFieldAndPartHaveALink)
{
    netlist.add("U1", "LM<358>",
                {{"CODE", "S-1"}, {"BOMLINKS", "VALUE=docs%2Flm%26358.pdf,CODE=javascript:alert(1)"}});
    netlist.add("U2", "", {{"BOMLINKS", "VALUE=https://x"}});
    database.load();
    EXPECT_TRUE(fields().contains(u"LM&lt;358&gt;"_s));
    changeField(u"Value"_s, [](BOMField &field) { field.enableLinks = true; });
    changeField(u"Stock Code"_s, [](BOMField &field) { field.enableLinks = true; });
    const QStringList cells = fields();
    EXPECT_TRUE(cells.contains(u"<a href=\"docs/lm&amp;358.pdf\">LM&lt;358&gt;</a>"_s));
    EXPECT_TRUE(cells.contains(u"S-1"_s));
    EXPECT_EQ(cells.filter(u"href"_s).size(), 1);
    EXPECT_EQ(view.fieldValue(u"U1"_s, u"Value"_s, false), u"LM<358>"_s);
}

TEST_F(Html, OpensLinksThatAreFilesOrAddresses)
{
    process.design.info.insert("FILENAME", u"/designs/amp/amp.kicad_sch"_s);
    for (const QString &link :
         {u"docs/a#1 100%.pdf"_s, u"https://example.com/x?y=1"_s, u"mailto:a@b.c"_s, u"/data/x.pdf"_s,
          u"javascript:alert(1)"_s, u" java\tscript:alert(1)"_s, u"data:text/html,x"_s, u""_s}) {
        view.onLinkActivated(link);
    }
    EXPECT_THAT(ui.openedUrls, ElementsAre(QUrl::fromLocalFile(u"/designs/amp/docs/a#1 100%.pdf"_s),
                                           QUrl(u"https://example.com/x?y=1"_s), QUrl(u"mailto:a@b.c"_s),
                                           QUrl::fromLocalFile(u"/data/x.pdf"_s)));
}

TEST_F(Html, ShowsTheDocumentOnlyWhenItsTabIsVisible)
{
    netlist.add("R1", "10k");
    database.load();
    view.handleBOMDataUpdate();
    EXPECT_EQ(view.textEdit()->toPlainText(), QString());
    EXPECT_EQ(view.textEdit()->document()->getHtml(), view.html());
    view.show();
    EXPECT_TRUE(view.textEdit()->toPlainText().contains(u"10k"_s));
    EXPECT_EQ(view.textEdit()->document()->getHtml(), view.html());
    EXPECT_EQ(view.textEdit()->focusPolicy(), Qt::WheelFocus);
}

TEST_F(Html, SavesWhatItShowsAndKeepsTheOldFileOnFailure)
{
    const QTemporaryDir folder;
    netlist.add("R1", "\xce\xa9");
    database.load();
    view.handleBOMDataUpdate();
    view.saveHTML();
    EXPECT_TRUE(ui.openedUrls.isEmpty());
    ui.fileName = folder.filePath(u"a#b%20.html"_s);
    view.saveHTML();
    QFile file(ui.fileName);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(QString::fromUtf8(file.readAll()), view.html());
    EXPECT_EQ(view.property("ExportFileName").toString(), ui.fileName);
    EXPECT_THAT(ui.openedUrls, ElementsAre(QUrl::fromLocalFile(ui.fileName)));
    ui.fileName = folder.filePath(u"none/x.html"_s);
    view.saveHTML();
    EXPECT_EQ(ui.warnings.size(), 1);
    EXPECT_EQ(ui.openedUrls.size(), 1);
}

TEST_F(Html, IsNothingWithoutADatabase)
{
    view.setPartsDatabase(nullptr);
    for (const std::function<void()> &operation : std::initializer_list<std::function<void()>>{
             [this] { view.handleBOMDataUpdate(); }, [this] { view.saveHTML(); },
             [this] { view.generatePDF(); }, [this] { view.print(); }, [this] { view.setPageSize(); },
             [this] { view.editStyleTemplate(); }, [this] { view.editTemplate(); },
             [this] { view.onLinkActivated(u"https://x"_s); }}) {
        operation();
    }
    EXPECT_EQ(view.html(), QString());
    EXPECT_EQ(view.pdf(), QByteArray());
    EXPECT_TRUE(ui.fileRequests.isEmpty() && ui.openedUrls.isEmpty());
}

} // namespace
