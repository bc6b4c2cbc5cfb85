// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "templates/bomtemplatefile.h"

#include "support/fulldisk.h"
#include "templates/bomtemplate.h"
#include "templates/templatefixture.h"
#include "templates/variantxml.h"

#include <QBuffer>

namespace {

using BomTemplateFile = TemplateFixture;

struct Reading
{
    std::optional<BOMTemplateDocument> document;
    QString problem;
    /// The debug lines meanwhile.
    QString lines;
};

/// What is written to the debug channel meanwhile.
template<class Action>
QString debugLines(const Action &action)
{
    static QStringList lines;
    lines.clear();
    const auto previous = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext &, const QString &line) { lines << line; });
    action();
    qInstallMessageHandler(previous);
    return lines.join(u'\n');
}

Reading readBytes(QByteArray bytes)
{
    QBuffer device(&bytes);
    EXPECT_TRUE(device.open(QIODevice::ReadOnly));
    Reading reading;
    reading.lines = debugLines(
        [&] { reading.document = BOMTemplateFile(u"f.bomt"_s).readDocument(device, &reading.problem); });
    return reading;
}

Reading readBody(const QByteArray &body)
{
    return readBytes("<BOMTemplate version=\"5\">" + body + "</BOMTemplate>");
}

TEST_F(BomTemplateFile, ValuesReadByTheirTypeName)
{
    struct Case
    {
        const char *element;
        QVariant expected;
    };
    const QVariantMap item{{u"Element"_s, QString()}};
    const QVariantMap itemWithEntry{{u"Element"_s, QString()}, {u"a"_s, 1}};
    const Case cases[] = {
        {"<k Type='bool' Value='true'/>", true},
        {"<k Type='bool' Value='false'/>", false},
        {"<k Type='bool' Value='1'></k>", true},
        {"<k Type='int' Value='-12'/>", -12},
        {"<k Type='int' Value='99999999999'/>", std::numeric_limits<int>::max()},
        {"<k Type='int' Value='-99999999999'/>", std::numeric_limits<int>::min()},
        {"<k Type='int' Value='9e99'/>", 0},
        {"<k Type='int'/>", 0},
        {"<x Type='int' Value='1'><k Type='int' Value='2'/></x>", 2},
        {"<k Type='nonsense' Value='1'/>", QVariant()},
        {"<k Type='QObject*' Value='1'/>", QVariant()},
        {"<k Type='' Value='1'/>", QVariant()},
        {"<k Type='QString'>a &amp; b&#13;&#10;</k>", u"a & b\r\n"_s},
        {"<k>no type</k>", u"no type"_s},
        {"<k/>", QString()},
        {"<k Type='QString'> \n </k>", u" \n "_s},
        {"<k Type='QString'>a<!-- c --><![CDATA[<b>]]>d</k>", u"a<b>d"_s},
        {"<k Type='QStringList'/>", QStringList()},
        {"<k Type='QStringList'><Element>a</Element><Element/><x>y</x><Element> </Element></k>",
         QStringList({u"a"_s, QString(), u" "_s})},
        {"<k Type='QStringList'><Element>a<x>b</x>c</Element><Element>d</Element></k>",
         QStringList({u"a"_s, u"d"_s})},
        // One item that is no text makes the whole list null.
        {"<k Type='QStringList'><Element>a</Element><Element><x>y</x>z</Element><Element>b</Element></k>",
         QVariant()},
        {"<k Type='QVariantMap'><a Type='int' Value='1'/></k>",
         QVariantMap({{u"k"_s, QString()}, {u"a"_s, 1}})},
        {"<k Type='QVariantList'><Element><a Type='int' "
         "Value='1'/></Element><x><Element/></x>t<Element/></k>",
         QVariantList({itemWithEntry, item})},
    };
    for (const Case &example : cases) {
        SCOPED_TRACE(example.element);
        for (const char *space : {"", "\n    "}) {
            const Reading reading =
                readBody(space + QByteArray(example.element) + "<after Type='int' Value='7'/>");
            ASSERT_TRUE(reading.document) << qPrintable(reading.problem);
            const QVariantMap &map = reading.document->map;
            ASSERT_TRUE(map.contains(u"k"_s));
            EXPECT_EQ(map[u"k"_s], example.expected);
            EXPECT_EQ(map[u"k"_s].metaType(), example.expected.metaType());
            EXPECT_EQ(map[u"after"_s], 7);
            EXPECT_EQ(map[u"BOMTemplate"_s], QString::fromLatin1(space));
        }
    }
}

TEST_F(BomTemplateFile, DebugLinesSayWhatWasNotExpected)
{
    struct Case
    {
        const char *document;
        bool isRead;
        const char *lines;
    };
    const Case cases[] = {
        {"<BOMTemplate version='5'><k Type='QStringList'><Element><x/></Element></k></BOMTemplate>", true,
         "BOMTemplate::readXML QXmlStreamReader::Characters expected, got StartElement"},
        {"<BOMTemplate version='5'><k Type='QStringList'><Element><!-- c --></Element></k></BOMTemplate>",
         true, "BOMTemplate::readXML QXmlStreamReader::Characters expected, got Comment"},
        {"<BOMTemplate version='5'><k Type='QString'><x/></k></BOMTemplate>", false,
         "BOMTemplate::readXML QXmlStreamReader::Characters expected got StartElement"},
        {"<BOMTemplate version='5'>", false, "BOMTemplate::readXmlFile errors encountered during parsing"},
        {"<Other version='5'/>", false, ""},
    };
    for (const Case &example : cases) {
        const Reading reading = readBytes(example.document);
        EXPECT_EQ(reading.document.has_value(), example.isRead) << example.document;
        EXPECT_EQ(reading.lines.toStdString(), example.lines);
    }
}

QByteArray nestedMaps(int count)
{
    return QByteArray("<a Type='QVariantMap'>").repeated(count) + QByteArray("</a>").repeated(count);
}

QByteArray nestedLists(int count)
{
    return QByteArray("<a Type='QVariantList'><Element>").repeated(count) +
           QByteArray("</Element></a>").repeated(count);
}

/// A text that grows tenfold nine times.
QByteArray growingEntity()
{
    QByteArray document = "<!DOCTYPE BOMTemplate [<!ENTITY e0 'xxxxxxxxxx'>";
    for (int i = 1; i < 10; ++i) {
        const QByteArray inner = "&e" + QByteArray::number(i - 1) + ";";
        document += "<!ENTITY e" + QByteArray::number(i) + " '" + inner.repeated(10) + "'>";
    }
    return document + "]><BOMTemplate version='5'><a>&e9;</a></BOMTemplate>";
}

TEST_F(BomTemplateFile, MalformedDocumentsAreRefusedWithFileAndLine)
{
    struct Case
    {
        QByteArray document;
        const char *place;
    };
    const QByteArray good = "<BOMTemplate version='5'><a Type='int' Value='1'/></BOMTemplate>";
    const QByteArray root = "<BOMTemplate version='5'>";
    const Case cases[] = {
        {"", "f.bomt:1: "},
        {" \n\n", "f.bomt:1: "},
        {"\177ELF\1", "f.bomt:1: "},
        {root + "\n<a>cut off", "f.bomt:2: "},
        {"\n<Template version='5'/>", "f.bomt:2: "},
        {"<bomtemplate version='5'/>", "f.bomt:1: "},
        {"<BOMTemplate/>", "f.bomt:1: "},
        {"<BOMTemplate version='0'/>", "f.bomt:1: "},
        {"<BOMTemplate version='5x'/>", "f.bomt:1: "},
        {"<BOMTemplate version='99999999999'/>", "f.bomt:1: "},
        {good + "\n" + good, "f.bomt:2: "},
        {good + "\nx", "f.bomt:2: "},
        {root + "<a>\xff\xfe</a></BOMTemplate>", "f.bomt:1: "},
        {root + "<a Type='int' Type='int'/></BOMTemplate>", "f.bomt:1: "},
        {root + "<a>&who;</a></BOMTemplate>", "f.bomt:1: "},
        {root + nestedMaps(100000) + "</BOMTemplate>", "f.bomt:1: "},
        {root + nestedLists(100000) + "</BOMTemplate>", "f.bomt:1: "},
        {growingEntity(), "f.bomt:1: "},
    };
    for (const Case &example : cases) {
        const Reading reading = readBytes(example.document);
        EXPECT_FALSE(reading.document) << example.document.left(100).constData();
        EXPECT_TRUE(reading.problem.startsWith(QLatin1String(example.place))) << qPrintable(reading.problem);
    }
}

TEST_F(BomTemplateFile, NestingIsReadUpToTheLimit)
{
    EXPECT_TRUE(readBody(nestedMaps(MaximumXmlNesting - 1)).document);
    EXPECT_FALSE(readBody(nestedMaps(MaximumXmlNesting)).document);
    EXPECT_TRUE(readBody(nestedLists(MaximumXmlNesting - 1)).document);
    EXPECT_FALSE(readBody(nestedLists(MaximumXmlNesting)).document);
    // Plain elements need no stack of ours.
    const int count = 100000;
    const QByteArray elements = QByteArray("<a Type='int'>").repeated(count);
    EXPECT_TRUE(readBody(elements + QByteArray("</a>").repeated(count)).document);
}

TEST_F(BomTemplateFile, AFileThatIsMissingOrTooLargeIsNamed)
{
    QString problem;
    EXPECT_FALSE(BOMTemplateFile(path(u"missing"_s)).readXmlFile(&problem));
    EXPECT_TRUE(problem.startsWith(path(u"missing: "_s)));
    const QString large = write(u"large.bomt"_s, "<BOMTemplate version='5'/>");
    ASSERT_TRUE(QFile::resize(large, BOMTemplateFile::MaximumSize + 1));
    EXPECT_FALSE(BOMTemplateFile(large).readXmlFile(&problem));
    EXPECT_EQ(problem, large + u": the file is too large for a template"_s);
    QByteArray attributes;
    for (int i = 0; i < 500; ++i) {
        attributes += " a" + QByteArray::number(i) + "=''";
    }
    EXPECT_FALSE(readBody("<a" + attributes + "/>").document);
}

TEST_F(BomTemplateFile, AValueThatIsNoTextIsLeftOutAlone)
{
    const BOMTemplateFile file(path(u"v.bomt"_s));
    const QVariantMap map{{u"a"_s, QVariant::fromValue<QObject *>(nullptr)}, {u"b"_s, 2.5}};
    QString problem;
    EXPECT_EQ(debugLines([&] { EXPECT_TRUE(file.writeXmlFile(map, &problem)); }),
              u"BOMTemplate::writeXML unkown variant type: QObject*"_s);
    const auto read = file.readXmlFile(&problem);
    ASSERT_TRUE(read);
    EXPECT_EQ(read->map.keys().join(u','), u"BOMTemplate,b"_s);
    EXPECT_EQ(read->map[u"b"_s], 2.5);
}

TEST_F(BomTemplateFile, AnUnwritablePlaceIsRefused)
{
    write(u"file"_s, "x");
    QDir(m_folder.path()).mkdir(u"folder.bomt"_s);
    for (const char *place : {"missing/a.bomt", "file/a.bomt", "folder.bomt"}) {
        BOMTemplate made;
        made.setFilePath(path(QLatin1String(place)));
        EXPECT_FALSE(made.save());
        EXPECT_TRUE(m_messages.last().detail.startsWith(made.filePath() + u": "_s)) << place;
    }
    EXPECT_EQ(readFile(path(u"file"_s)), "x");
    EXPECT_EQ(m_messages.size(), 3);
}

TEST_F(BomTemplateFile, AWriteThatBreaksOffKeepsTheOldFile)
{
    BOMTemplate made;
    made.setName(u"full"_s);
    ASSERT_TRUE(made.save());
    const QByteArray before = readFile(made.filePath());
    for (const int more : {0, 100000}) {
        made.setDocumentHeader(QString(more, u'x'));
        const FullDisk full(100);
        EXPECT_FALSE(made.save()) << more;
    }
    EXPECT_EQ(m_messages.size(), 2);
    EXPECT_EQ(readFile(made.filePath()), before);
    EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::Files).size(), 1);
}

} // namespace
