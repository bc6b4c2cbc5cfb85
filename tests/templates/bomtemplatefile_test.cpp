// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "templates/bomtemplatefile.h"

#include "templates/bomtemplate.h"
#include "templates/variantxml.h"
#include "tests/templates/templatefixture.h"

#include <QBuffer>
#include <QStringList>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>
#endif

namespace {
using BomTemplateFile = TemplateFixture;

struct Reading
{
    bool ok;
    QVariantMap map;
    QString error;
    qint32 version;
};

Reading readBytes(QByteArray document)
{
    QBuffer device(&document);
    device.open(QIODevice::ReadOnly);
    BOMTemplateFile file(QStringLiteral("f.bomt"));
    QVariantMap map;
    const bool ok = file.readDocument(device, map);
    return {ok, map, file.errorString(), file.version()};
}

Reading readBody(const QByteArray &body)
{
    return readBytes("<BOMTemplate version=\"5\">" + body + "</BOMTemplate>");
}

// The debug and warning lines of its lifetime.
class Lines final
{
public:
    Lines() { s_lines.clear(); }
    ~Lines() { qInstallMessageHandler(m_previous); }
    Lines(const Lines &) = delete;
    Lines &operator=(const Lines &) = delete;
    [[nodiscard]] static QString text() { return s_lines.join(u'\n'); }

private:
    static void take(QtMsgType /*type*/, const QMessageLogContext & /*context*/, const QString &line)
    {
        s_lines << line;
    }

    static inline QStringList s_lines;
    QtMessageHandler m_previous = qInstallMessageHandler(take);
};

TEST_F(BomTemplateFile, DocumentOfTheDefaultsHasTheKnownForm)
{
    BOMTemplate made;
    made.setCss(QStringLiteral("a<b"));
    made.setName(QStringLiteral("Default"));
    ASSERT_TRUE(made.save());
    const QByteArray text = readFile(made.filePath());
    const QByteArray start = R"(<?xml version="1.0" encoding="UTF-8"?>
<BOMTemplate version="5">
    <AlwaysQuoteRefs Type="bool" Value="false"/>
    <AppendNotes Type="bool" Value="false"/>
    <AsciiQuantityWidth Type="int" Value="5"/>
    <AsciiRefWidth Type="int" Value="30"/>
    <CSS Type="QString">a&lt;b</CSS>
    <CaseSensitiveGrouping Type="bool" Value="true"/>
    <DocumentFooter Type="QString"></DocumentFooter>
    <DocumentHeader Type="QString"></DocumentHeader>
    <ExcludeValueField Type="bool" Value="false"/>
    <ManualPrettyLayout Type="bool" Value="false"/>
    <PageFooter Type="QString"></PageFooter>
    <PageHeader Type="QString"></PageHeader>
    <PrettyQuantityWidth Type="int" Value="7"/>
    <PrettyRefWidth Type="int" Value="15"/>
    <categories Type="QVariantList">
        <Element>
            <heading Type="QString">Modules</heading>
            <isMiscCategory Type="bool" Value="false"/>
            <references Type="QStringList">
                <Element Type="QString">M</Element>
            </references>
        </Element>
)";
    const QByteArray end = R"(
            <precision Type="int" Value="2"/>
            <prefix Type="QString"></prefix>
            <propertyName Type="QString">COST</propertyName>
            <suffix Type="QString"></suffix>
        </Element>
    </fields>
    <fullTextOuputs Type="bool" Value="false"/>
    <groupReferences Type="bool" Value="true"/>
    <suppressEmptyCategories Type="bool" Value="false"/>
</BOMTemplate>
)";
    EXPECT_EQ(text.left(start.size()).toStdString(), start.toStdString());
    EXPECT_EQ(text.right(end.size()).toStdString(), end.toStdString());
}

TEST_F(BomTemplateFile, ScalarsReadByTheirTypeName)
{
    struct Case
    {
        const char *element;
        QVariant expected;
    };
    const Case cases[] = {
        {"<k Type='bool' Value='true'/>", true},
        {"<k Type='bool' Value='false'/>", false},
        {"<k Type='bool' Value='1'></k>", true},
        {"<k Type='int' Value='-12'/>", -12},
        {"<k Type='int' Value='99999999999'/>", 0},
        {"<k Type='int'/>", 0},
        {"<k Type='nonsense' Value='1'/>", QVariant()},
        {"<k Type='QObject*' Value='1'/>", QVariant()},
        {"<k Type='' Value='1'/>", QVariant()},
        {"<k Type='QString'>a &amp; b&#13;&#10;</k>", QStringLiteral("a & b\r\n")},
        {"<k>no type</k>", QStringLiteral("no type")},
        {"<k/>", QString()},
        {"<k Type='QString'> \n </k>", QStringLiteral(" \n ")},
        {"<k Type='QString'>a<!-- c --><![CDATA[<b>]]>d</k>", QStringLiteral("a<b>d")},
        {"<k Type='QStringList'/>", QStringList()},
        {"<k Type='QStringList'><Element>a</Element><Element/><x>y</x><Element> </Element></k>",
         QStringList({QStringLiteral("a"), QString(), QStringLiteral(" ")})},
        {"<k Type='QStringList'><Element>a<x>b</x>c</Element><Element>d</Element></k>",
         QStringList({QStringLiteral("a"), QStringLiteral("d")})},
        {"<k Type='QVariantMap'><a Type='int' Value='1'/></k>",
         QVariantMap({{QStringLiteral("k"), QString()}, {QStringLiteral("a"), 1}})},
        {"<k Type='QVariantList'><Element><a Type='int' "
         "Value='1'/></Element><x><Element/></x>t<Element/></k>",
         QVariantList({QVariantMap({{QStringLiteral("Element"), QString()}, {QStringLiteral("a"), 1}}),
                       QVariantMap({{QStringLiteral("Element"), QString()}})})},
    };
    for (const Case &example : cases) {
        SCOPED_TRACE(example.element);
        for (const char *space : {"", "\n    "}) {
            const Reading reading =
                readBody(space + QByteArray(example.element) + "<after Type='int' Value='7'/>");
            EXPECT_TRUE(reading.ok) << qPrintable(reading.error);
            EXPECT_EQ(reading.map.value(QStringLiteral("k")), example.expected);
            EXPECT_EQ(reading.map.value(QStringLiteral("k")).metaType(), example.expected.metaType());
            EXPECT_EQ(reading.map.value(QStringLiteral("after")), 7);
            EXPECT_EQ(reading.map.value(QStringLiteral("BOMTemplate")), QString::fromLatin1(space));
        }
    }
}

TEST_F(BomTemplateFile, EntriesInsideAScalarBelongToTheSameMap)
{
    const Reading reading =
        readBody("<a Type='int' Value='1'><b Type='int' Value='2'/></a><c Type='int' Value='3'/>");
    ASSERT_TRUE(reading.ok);
    EXPECT_EQ(reading.map.value(QStringLiteral("b")), 2);
    EXPECT_EQ(reading.map.value(QStringLiteral("c")), 3);
}

TEST_F(BomTemplateFile, AListWithAnItemThatIsNoTextIsNull)
{
    for (const char *item : {"<Element><x>y</x>z</Element>", "<Element><!-- c --></Element>"}) {
        const Lines lines;
        const Reading reading = readBody(QByteArray("<k Type='QStringList'><Element>a</Element>") + item +
                                         "<Element>b</Element></k><after Type='int' Value='7'/>");
        ASSERT_TRUE(reading.ok);
        EXPECT_TRUE(reading.map.contains(QStringLiteral("k")));
        EXPECT_FALSE(reading.map.value(QStringLiteral("k")).isValid());
        EXPECT_EQ(reading.map.value(QStringLiteral("after")), 7);
        EXPECT_TRUE(Lines::text().startsWith(
            QLatin1String("BOMTemplate::readXML QXmlStreamReader::Characters expected, got ")));
    }
}

TEST_F(BomTemplateFile, AStringWithoutTextStopsTheReading)
{
    const Lines lines;
    EXPECT_FALSE(readBody("<k Type='QString'><x/></k>").ok);
    EXPECT_EQ(Lines::text(), QStringLiteral("BOMTemplate::readXML QXmlStreamReader::Characters expected got "
                                            "StartElement"));
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

TEST_F(BomTemplateFile, MalformedDocumentsAreRefusedWithFileAndLine)
{
    struct Case
    {
        const char *name;
        QByteArray document;
        const char *place;
    };
    const QByteArray good = "<BOMTemplate version='5'><a Type='int' Value='1'/></BOMTemplate>";
    const QByteArray root = "<BOMTemplate version='5'>";
    const Case cases[] = {
        {"empty", "", "f.bomt:1: "},
        {"white space", " \n\n", "f.bomt:1: "},
        {"no XML",
         "\x7f"
         "ELF\x01",
         "f.bomt:1: "},
        {"truncated in a text", root + "\n<a>text", "f.bomt:2: "},
        {"truncated in a tag", root + "\n<a Type=", "f.bomt:2: "},
        {"truncated in a list", root + "<a Type='QVariantList'><Element>", "f.bomt:1: "},
        {"truncated in a string list", root + "<a Type='QStringList'><Element>", "f.bomt:1: "},
        {"truncated behind the root's start", root, "f.bomt:1: "},
        {"wrong root", "\n<Template version='5'/>", "f.bomt:2: "},
        {"root in another case", "<bomtemplate version='5'/>", "f.bomt:1: "},
        {"no version", "<BOMTemplate/>", "f.bomt:1: "},
        {"version 0", "<BOMTemplate version='0'/>", "f.bomt:1: "},
        {"version no number", "<BOMTemplate version='5x'/>", "f.bomt:1: "},
        {"version too large", "<BOMTemplate version='99999999999'/>", "f.bomt:1: "},
        {"second root", good + "\n" + good, "f.bomt:2: "},
        {"text behind the root", good + "\nx", "f.bomt:2: "},
        {"not UTF-8", root + "<a>\xff\xfe</a></BOMTemplate>", "f.bomt:1: "},
        {"repeated attribute", root + "<a Type='int' Type='int'/></BOMTemplate>", "f.bomt:1: "},
        {"unknown entity", root + "<a>&who;</a></BOMTemplate>", "f.bomt:1: "},
        {"maps too deep", root + nestedMaps(100000) + "</BOMTemplate>", "f.bomt:1: "},
        {"lists too deep", root + nestedLists(100000) + "</BOMTemplate>", "f.bomt:1: "},
    };
    for (const Case &example : cases) {
        SCOPED_TRACE(example.name);
        const Lines lines;
        const Reading reading = readBytes(example.document);
        EXPECT_FALSE(reading.ok);
        EXPECT_TRUE(reading.error.startsWith(QLatin1String(example.place))) << qPrintable(reading.error);
    }
}

TEST_F(BomTemplateFile, NestingIsReadUpToTheLimit)
{
    const Lines lines;
    EXPECT_TRUE(readBody(nestedMaps(MaximumXmlNesting - 1)).ok);
    EXPECT_FALSE(readBody(nestedMaps(MaximumXmlNesting)).ok);
    EXPECT_TRUE(readBody(nestedLists(MaximumXmlNesting - 1)).ok);
    EXPECT_FALSE(readBody(nestedLists(MaximumXmlNesting)).ok);
    // Plain elements need no stack of ours.
    const int count = 100000;
    EXPECT_TRUE(
        readBody(QByteArray("<a Type='int'>").repeated(count) + QByteArray("</a>").repeated(count)).ok);
}

TEST_F(BomTemplateFile, AnEntityThatGrowsIsRefused)
{
    QByteArray document = "<!DOCTYPE BOMTemplate [<!ENTITY e0 'xxxxxxxxxx'>";
    for (int i = 1; i < 10; ++i) {
        const QByteArray inner = "&e" + QByteArray::number(i - 1) + ";";
        document += "<!ENTITY e" + QByteArray::number(i) + " '" + inner.repeated(10) + "'>";
    }
    const Lines lines;
    EXPECT_FALSE(readBytes(document + "]><BOMTemplate version='5'><a>&e9;</a></BOMTemplate>").ok);
}

TEST_F(BomTemplateFile, ParsingErrorsAndOnlyTheyGiveTheParsingLine)
{
    const Lines lines;
    EXPECT_FALSE(readBytes("<Other version='5'/>").ok);
    EXPECT_EQ(Lines::text(), QString());
    EXPECT_FALSE(readBytes("<BOMTemplate version='5'>").ok);
    EXPECT_EQ(Lines::text(), QStringLiteral("BOMTemplate::readXmlFile errors encountered during parsing"));
}

TEST_F(BomTemplateFile, ANewerVersionIsReadForWhatIsKnown)
{
    const QString file = write(QStringLiteral("new.bomt"),
                               "<BOMTemplate version='6'><AlwaysQuoteRefs Type='bool' Value='true'/>"
                               "<Future Type='QVariantMap'><x Type='int' Value='1'/></Future></BOMTemplate>");
    const BOMTemplate read(QStringLiteral("new"), file);
    EXPECT_TRUE(read.alwaysQuoteRefs());
    EXPECT_EQ(read.version(), 5);
    EXPECT_TRUE(m_messages.isEmpty());
}

TEST_F(BomTemplateFile, AMissingFileIsNamed)
{
    const QString path = TemplateFixture::path(QStringLiteral("missing.bomt"));
    BOMTemplateFile file(path);
    QVariantMap map;
    EXPECT_FALSE(file.readXmlFile(map));
    EXPECT_TRUE(file.errorString().startsWith(path + QStringLiteral(": ")));
}

TEST_F(BomTemplateFile, AFileThatIsTooLargeIsRefusedUnread)
{
    const QString path = write(QStringLiteral("large.bomt"), "<BOMTemplate version='5'/>");
    ASSERT_TRUE(QFile::resize(path, BOMTemplateFile::MaximumSize + 1));
    BOMTemplateFile file(path);
    QVariantMap map;
    EXPECT_FALSE(file.readXmlFile(map));
    EXPECT_TRUE(file.errorString().contains(QLatin1String("too large")));
}

TEST_F(BomTemplateFile, CharactersThatXmlLacksAreRefusedAndTheOldFileStays)
{
    BOMTemplate made;
    made.setName(QStringLiteral("x"));
    ASSERT_TRUE(made.save());
    const QByteArray before = readFile(made.filePath());
    for (const ushort code : {0x0, 0x1, 0x1b, 0xd800, 0xdc00, 0xfffe, 0xffff}) {
        SCOPED_TRACE(code);
        made.setDocumentHeader(QLatin1Char('a') + QString(QChar(code)) + QLatin1Char('b'));
        EXPECT_FALSE(made.save());
        EXPECT_EQ(readFile(made.filePath()), before);
    }
    ASSERT_EQ(m_messages.size(), 7);
    EXPECT_EQ(m_messages.last().title, QStringLiteral("BOM Template Save Failed"));
    EXPECT_EQ(m_messages.last().text,
              QStringLiteral("The BOM template 'x' was not saved.  An unknown error occurred."));
    EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::Files).size(), 1);
}

TEST_F(BomTemplateFile, AValueThatIsNoTextIsLeftOutAlone)
{
    BOMTemplateFile file(path(QStringLiteral("v.bomt")));
    file.setVersion(5);
    QVariantMap map{{QStringLiteral("a"), QVariant::fromValue<QObject *>(nullptr)},
                    {QStringLiteral("b"), 2.5}};
    {
        const Lines lines;
        ASSERT_TRUE(file.writeXmlFile(map));
        EXPECT_EQ(Lines::text(), QStringLiteral("BOMTemplate::writeXML unkown variant type: QObject*"));
    }
    QVariantMap read;
    ASSERT_TRUE(file.readXmlFile(read));
    EXPECT_FALSE(read.contains(QStringLiteral("a")));
    EXPECT_EQ(read.value(QStringLiteral("b")), 2.5);
}

TEST_F(BomTemplateFile, AnUnwritablePlaceIsRefused)
{
    write(QStringLiteral("file"), "x");
    QDir(m_folder.path()).mkdir(QStringLiteral("folder.bomt"));
    BOMTemplate made;
    for (const char *place : {"missing/a.bomt", "file/a.bomt", "folder.bomt"}) {
        SCOPED_TRACE(place);
        made.setFilePath(path(QString::fromLatin1(place)));
        EXPECT_FALSE(made.save());
        EXPECT_TRUE(m_messages.last().detail.startsWith(made.filePath() + QStringLiteral(": ")));
    }
    EXPECT_EQ(readFile(path(QStringLiteral("file"))), "x");
    EXPECT_EQ(m_messages.size(), 3);
}

#ifdef Q_OS_UNIX
TEST_F(BomTemplateFile, AWriteThatBreaksOffKeepsTheOldFile)
{
    BOMTemplate made;
    made.setName(QStringLiteral("full"));
    ASSERT_TRUE(made.save());
    const QByteArray before = readFile(made.filePath());
    made.setDocumentHeader(QString(100000, u'x'));

    // A limit on the size of files stands for a full disk.
    rlimit old{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &old), 0);
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit small{50000, old.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
    const bool saved = made.save();
    setrlimit(RLIMIT_FSIZE, &old);
    std::signal(SIGXFSZ, handler);

    EXPECT_FALSE(saved);
    EXPECT_EQ(m_messages.size(), 1);
    EXPECT_EQ(readFile(made.filePath()), before);
    EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::Files).size(), 1);
}
#endif
} // namespace
