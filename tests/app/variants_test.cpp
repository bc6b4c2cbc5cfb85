// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "tests/app/workbenchfixture.h"

namespace {

QByteArray amplifier(const QByteArray &variants)
{
    return R"((kicad_sch (version 20260306) (generator "eeschema")
  (uuid "root") (paper "A4") (lib_symbols)
  (symbol (lib_id "Device:R") (at 0 0 0) (unit 1) (in_bom yes) (on_board yes) (dnp no) (uuid "s1")
    (property "Reference" "R1" (at 0 0 0)) (property "Value" "10k" (at 0 0 0))
    (instances (project "amp" (path "/root" (reference "R1") (unit 1) )" +
           variants + R"()))))
)";
}

QByteArray variant(const QByteArray &name, const QByteArray &value)
{
    return "(variant (name \"" + name + "\") (field (name \"Value\") (value \"" + value + "\")))";
}

} // namespace

TEST_F(WorkbenchTest, ShowsTheVariantThatIsChosen)
{
    const QString name = QStringLiteral("amp.kicad_sch");
    ASSERT_TRUE(bench->open(partList()));
    EXPECT_FALSE(action(QStringLiteral("&Variant"))->isVisible());
    ASSERT_TRUE(bench->open(write(name, amplifier(variant("R&D [*]", "22k") + variant("Lite", "33k")))));
    EXPECT_TRUE(isReported("10k"));
    action(QStringLiteral("R&&D [*]"))->trigger();
    EXPECT_TRUE(isReported("22k"));
    EXPECT_TRUE(action(QStringLiteral("R&&D [*]"))->isChecked());
    action(QStringLiteral("Lite"))->trigger();
    EXPECT_TRUE(isReported("33k"));
    EXPECT_EQ(bench->window().windowTitle(), QStringLiteral("amp [Lite] \u2013 Bill of Materials Viewer"));

    // It stays the variant that is shown, as long as there is one.
    EXPECT_TRUE(
        waitFor([&] { write(name, amplifier(variant("Lite", "47k"))); }, [&] { return isReported("47k"); }));
    EXPECT_TRUE(waitFor([&] { write(name, amplifier({})); }, [&] { return !notes().problem().isEmpty(); }));
    EXPECT_TRUE(notes().problem().contains(QStringLiteral("Lite")));
    EXPECT_TRUE(isReported("47k"));
    action(QStringLiteral("&As Drawn"))->trigger();
    EXPECT_TRUE(isReported("10k"));
    EXPECT_TRUE(notes().problem().isEmpty());
    EXPECT_FALSE(action(QStringLiteral("&Variant"))->isVisible());
}
