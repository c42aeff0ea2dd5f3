// SPDX-License-Identifier: MIT
#include "SiteClient.h"

namespace qlm::practice {
namespace {

QString Address(const QString& end) {
    return u"http://friends.myspace.example.com/index.cfm?fuseaction=user.viewcategories&friendId="_s + end;
}

QStringList Names(const QString& page) {
    QStringList names;
    for (const QString& label : Between(page, u"_categoryNameLabel\">"_s, u"</span>"_s))
        names.append(label);
    return names;
}

TEST(Categories, StandOnTwoPages) {
    SiteClient client;
    client.SignIn();
    const QString first = client.Text(Address(u"900001"_s));
    EXPECT_EQ(Names(first).size(), 4);
    EXPECT_TRUE(first.contains(u"Viewable by:"_s));
    EXPECT_TRUE(first.contains(u"&amp;p=2\">Next"_s));
    const QString second = client.Text(Address(u"900001&p=2"_s));
    EXPECT_EQ(Names(second), (QStringList{u"Pen pals"_s, u"Neighbours &amp; others"_s}));
    EXPECT_FALSE(second.contains(u">Next"_s));
}

TEST(Categories, AreTheReadersOwn) {
    SiteClient client;
    EXPECT_EQ(client.Get(Address(u"900001"_s)).status, 302);
    client.SignIn();
    EXPECT_TRUE(Names(client.Text(Address(u"900002"_s))).isEmpty());
}

} // namespace
} // namespace qlm::practice
