// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/bomlinks.h"
#include "core/coredesign.h"

namespace {

using Links = QMap<QString, QString>;
using LinksOfParts = CoreDesign;
using Notes = CoreDesign;

TEST(Links, AreReadItemByItem)
{
    EXPECT_EQ(readBOMLinks(u"DATASHEET=docs%2Fa%2Cb.pdf,none,=x,B=a=b,,C=gr%C3%B6\u00dfe"_s),
              (Links{{u"DATASHEET"_s, u"docs/a,b.pdf"_s}, {u"B"_s, u"a=b"_s}, {u"C"_s, u"größe"_s}}));
}

TEST(Links, AreWrittenSoThatTheyReadTheSame)
{
    const Links links{{u"MPN"_s, u"https://x.org/a,b?c=d&e=%2C#f"_s}, {u"CODE"_s, u"Größe.pdf"_s}};
    const auto text = bomLinksText(links);
    ASSERT_TRUE(text);
    EXPECT_EQ(*text, u"CODE=Gr%C3%B6%C3%9Fe.pdf,MPN=https%3A%2F%2Fx.org%2Fa%2Cb%3Fc%3Dd%26e%3D%252C%23f"_s);
    EXPECT_EQ(readBOMLinks(*text), links);
    EXPECT_EQ(bomLinksText({{u"MPN"_s, QString()}}), QString());
    EXPECT_FALSE(bomLinksText({{u"a,b"_s, u"x"_s}}));
    EXPECT_FALSE(bomLinksText({{u"a=b"_s, u"x"_s}}));
}

TEST_F(LinksOfParts, AreFoundWhateverTheLetterCase)
{
    load({{"U1", "reg", {{"BOMLINKS", "Mpn=a.pdf,MPN=b.pdf"}}}, {"U2", "reg", {{"BOMLINKS", ""}}}});
    EXPECT_EQ(database.link(u"U1"_s, u"MPN"_s), u"b.pdf"_s);
    EXPECT_EQ(database.link(u"U1"_s, u"Mpn"_s), u"a.pdf"_s);
    EXPECT_NE(database.link(u"U1"_s, u"mpn"_s), QString());
    EXPECT_EQ(database.link(u"U1"_s, u"CODE"_s), QString());
    EXPECT_EQ(database.link(u"U2"_s, u"MPN"_s), QString());
    database.setLinks(u"U1"_s, u"no link"_s);
    EXPECT_EQ(database.links(u"U1"_s).size(), 2);
    database.setLinks(u"U1"_s, u"CODE=c"_s);
    EXPECT_EQ(database.links(u"U1"_s), (Links{{u"CODE"_s, u"c"_s}}));
    database.clear();
    EXPECT_TRUE(database.links(u"U1"_s).isEmpty());
}

TEST_F(Notes, AreWrittenIntoTheDesignWhenTheyDiffer)
{
    process.design.attachments["BOMNOTES.TXT"] = u"old"_s;
    database.load();
    takeChanges();
    process.design.attachmentProblem = u"disk full"_s;
    using State = NotesResult::State;
    EXPECT_EQ(database.setNotes(u"old"_s).state, State::Written) << "nothing to write";
    EXPECT_EQ(database.setNotes(u"new"_s), (NotesResult{State::Failed, u"old"_s, u"disk full"_s}));
    EXPECT_EQ(database.notes(), u"old"_s);
    EXPECT_EQ(takeChanges(), 0);
    process.design.attachmentProblem.clear();
    EXPECT_EQ(database.setNotes(u"new"_s), (NotesResult{State::Written, u"new"_s, {}}));
    EXPECT_EQ(process.design.attachments["BOMNOTES.TXT"], u"new"_s);
    EXPECT_EQ(database.notes(), u"new"_s);
    EXPECT_EQ(takeChanges(), 1);
    process.hasDesign = false;
    EXPECT_EQ(database.setNotes(u"x"_s).state, State::Failed);
}

TEST_F(Notes, ThatChangedElsewhereAreDecidedOnByTheUser)
{
    using State = NotesResult::State;
    QString &held = process.design.attachments["BOMNOTES.TXT"];
    QList<NotesConflict> asked;
    const auto set = [&](NotesChoice choice, const QString &theirs) {
        held = u"loaded"_s;
        database.load();
        held = theirs;
        takeChanges();
        return database.setNotes(u"mine"_s, [&asked, choice](const NotesConflict &conflict) {
            asked << conflict;
            return choice;
        });
    };
    EXPECT_EQ(set(NotesChoice::Cancel, u"theirs"_s).state, State::Refused);
    EXPECT_EQ(asked, (QList<NotesConflict>{{u"loaded"_s, u"mine"_s, u"theirs"_s}}));
    EXPECT_EQ(database.setNotes(u"mine"_s).state, State::Refused) << "nobody can be asked";
    EXPECT_EQ(held + database.notes(), u"theirsloaded"_s);
    EXPECT_EQ(takeChanges(), 0);
    EXPECT_EQ(set(NotesChoice::TakeTheirs, u"theirs"_s), (NotesResult{State::TakenOver, u"theirs"_s, {}}));
    EXPECT_EQ(held + database.notes(), u"theirstheirs"_s);
    EXPECT_EQ(takeChanges(), 1);
    EXPECT_EQ(set(NotesChoice::KeepMine, u"theirs"_s), (NotesResult{State::Written, u"mine"_s, {}}));
    EXPECT_EQ(held + database.notes(), u"minemine"_s);
    EXPECT_EQ(set(NotesChoice::Cancel, u"mine"_s).state, State::Written) << "they agree";
    EXPECT_EQ(asked.size(), 3);
}

} // namespace
