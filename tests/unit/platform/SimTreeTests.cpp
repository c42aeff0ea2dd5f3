// SPDX-License-Identifier: MIT
#include "PrintText.h"
#include "platform/sim/SimForms.h"
#include "platform/sim/SimMarkup.h"
#include "platform/sim/SimText.h"
#include "platform/sim/SimTree.h"

#include <gtest/gtest.h>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

QString BodyMarkup(const QString& html) {
    const SimTree tree(html);
    return InnerHTML(tree, tree.Body());
}

} // namespace

TEST(MarkupTests, WritingAndParsingAgainChangesNothing) {
    const QString once =
        BodyMarkup(u"<table><tr><td id=tr7 style='DISPLAY: none'>x&nbsp;<b>y</table><svg><path d='M0'/></svg>"
                   "<select><option selected>a</select><textarea>b<c></textarea>"_s);
    EXPECT_EQ(BodyMarkup(once), once);
}

TEST(TreeTests, AFragmentIsParsedAsItsPlaceDemands) {
    SimTree tree(u"<table><tbody id=rows></tbody></table><select id=pick></select>"_s);
    const int rows = tree.FindById(u"rows"_s);
    tree.SetInnerHTML(rows, u"<tr><td>a</td></tr>"_s);
    EXPECT_EQ(InnerHTML(tree, rows), u"<tr><td>a</td></tr>"_s);
    const int pick = tree.FindById(u"pick"_s);
    tree.AppendHTML(pick, u"<option value=1>one"_s);
    EXPECT_EQ(ValueOf(tree, pick), u"1"_s);
}

TEST(TreeTests, ARemovedNodeKeepsItsNumberAndLeavesThePage) {
    SimTree tree(u"<div id=a><b id=b>x</b></div>"_s);
    const int b = tree.FindById(u"b"_s);
    tree.Remove(b);
    EXPECT_FALSE(tree.IsInPage(b));
    EXPECT_EQ(tree.TextContent(b), u"x"_s);
    EXPECT_EQ(tree.FindById(u"b"_s), 0);
}

TEST(TreeTests, EveryChangeIsCounted) {
    SimTree tree(u"<div id=a>x</div>"_s);
    quint64 changes = tree.Changes();
    auto hasCounted = [&] { return std::exchange(changes, tree.Changes()) != tree.Changes(); };
    const int a = tree.FindById(u"a"_s);
    EXPECT_FALSE(hasCounted());
    tree.SetText(a, u"y"_s);
    EXPECT_TRUE(hasCounted());
    tree.SetAttribute(a, u"class"_s, u"c"_s);
    EXPECT_TRUE(hasCounted());
    tree.SetInnerHTML(a, {});
    EXPECT_TRUE(hasCounted());
    tree.AppendHTML(a, u"<i>z</i>"_s);
    EXPECT_TRUE(hasCounted());
    tree.Remove(a);
    EXPECT_TRUE(hasCounted());
}

TEST(TreeTests, AVeryDeepPageIsRead) {
    const SimTree tree(u"<div>"_s.repeated(3000) + u"<a href=/x>deep</a>"_s);
    EXPECT_EQ(InnerText(tree, tree.Body()), u"deep"_s);
    EXPECT_EQ(tree.Elements(tree.Root(), u"a").size(), 1u);
}

TEST(FormTreeTests, AFormBetweenTableRowsKeepsItsControls) {
    const SimTree tree(u"<form id=first><input name=x></form><table><form id=second action=/go><tr><td>"
                       "<input id=in name=a value=1></td></tr></form></table><input id=out name=b>"_s);
    EXPECT_EQ(FormOf(tree, tree.FindById(u"in"_s)), tree.FindById(u"second"_s));
    EXPECT_EQ(FormOf(tree, tree.FindById(u"out"_s)), 0);
    const std::vector<SimField> fields = FieldsOf(tree, tree.FindById(u"second"_s), 0);
    ASSERT_EQ(fields.size(), 1u);
    EXPECT_EQ(fields[0].name, u"a"_s);
}

TEST(FormTreeTests, AListWithoutAChoiceSendsItsFirst) {
    const SimTree tree(
        u"<form id=f><select name=a><option>x<option>y</select><select name=b size=3><option>z</select>"
        "<select name=c multiple><option selected>1<option selected>2</select></form>"_s);
    EXPECT_EQ(EncodedFields(FieldsOf(tree, tree.FindById(u"f"_s), 0)), u"a=x&c=1&c=2"_s);
}

} // namespace qlm
