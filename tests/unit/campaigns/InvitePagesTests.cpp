// SPDX-License-Identifier: MIT
#include "invites/InvitePages.h"

#include <gtest/gtest.h>

namespace qlm {
namespace {

using namespace Qt::Literals::StringLiterals;

TEST(InvitePages, AGroupsNameIsAllButTheDividerBeforeTheSitesWords) {
    EXPECT_EQ(GroupNameIn(u"Night Owls - MySpace Groups"_s), u"Night Owls"_s);
    EXPECT_EQ(GroupNameIn(u"A - myspace groups | x"_s), u"A"_s);
    for (const QString& title : {u"Night Owls"_s, u"MySpace Groups"_s, u" - MySpace Groups"_s, QString()})
        EXPECT_EQ(GroupNameIn(title), QString()) << title.toStdString();
}

TEST(InvitePages, AnEventsNameStandsBeforeTheSitesAndIsNotBeingEdited) {
    EXPECT_EQ(EventNameIn(u"Barn Dance | MySpace"_s), u"Barn Dance"_s);
    EXPECT_EQ(EventNameIn(u"Editing Barn Dance | MySpace | x"_s), u"Barn Dance"_s);
    for (const QString& title : {u"Barn Dance"_s, u" | MySpace"_s, u"Editing  | MySpace"_s, QString()})
        EXPECT_EQ(EventNameIn(title).trimmed(), QString()) << title.toStdString();
}

} // namespace
} // namespace qlm
