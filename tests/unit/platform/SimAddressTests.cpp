// SPDX-License-Identifier: MIT
#include "PrintText.h"
#include "platform/sim/SimAddress.h"

#include <gtest/gtest.h>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

TEST(SimAddressTests, AddressesTakeTheirCanonicalForm) {
    EXPECT_EQ(CanonicalAddress(u"www.example.com"_s), u"http://www.example.com/"_s);
    EXPECT_EQ(CanonicalAddress(u" HTTP://WWW.Example.com/Path?Q=A B "_s),
              u"http://www.example.com/Path?Q=A%20B"_s);
    EXPECT_EQ(CanonicalAddress(u"host:8080/x"_s), u"http://host:8080/x"_s);
    EXPECT_EQ(CanonicalAddress(u"http://host?x=1"_s), u"http://host/?x=1"_s);
    EXPECT_EQ(CanonicalAddress(u"http://host/caf\u00e9?\"<>\""_s), u"http://host/caf%C3%A9?%22%3C%3E%22"_s);
    EXPECT_EQ(CanonicalAddress(u"About:Blank"_s), u"about:blank"_s);
    EXPECT_EQ(CanonicalAddress(u"javascript:f(1)"_s), u"javascript:f(1)"_s);
    EXPECT_EQ(CanonicalAddress(u"http://host/a%20b#c"_s), u"http://host/a%20b#c"_s);
}

TEST(SimAddressTests, ReferencesAreResolved) {
    const QString base = u"http://host/a/b/c?q=1#f"_s;
    EXPECT_EQ(ResolveAddress(base, u"x"_s), u"http://host/a/b/x"_s);
    EXPECT_EQ(ResolveAddress(base, u"../x?y=/z"_s), u"http://host/a/x?y=/z"_s);
    EXPECT_EQ(ResolveAddress(base, u"../../../x"_s), u"http://host/x"_s);
    EXPECT_EQ(ResolveAddress(base, u"./"_s), u"http://host/a/b/"_s);
    EXPECT_EQ(ResolveAddress(base, u".."_s), u"http://host/a/"_s);
    EXPECT_EQ(ResolveAddress(base, u"/x/./y"_s), u"http://host/x/y"_s);
    EXPECT_EQ(ResolveAddress(base, u"?z"_s), u"http://host/a/b/c?z"_s);
    EXPECT_EQ(ResolveAddress(base, u"#g"_s), u"http://host/a/b/c?q=1#g"_s);
    EXPECT_EQ(ResolveAddress(base, u"//other/x"_s), u"http://other/x"_s);
    EXPECT_EQ(ResolveAddress(base, QString()), u"http://host/a/b/c?q=1"_s);
    EXPECT_EQ(ResolveAddress(base, u"mailto:a@b"_s), u"mailto:a@b"_s);
    EXPECT_EQ(ResolveAddress(u"http://host"_s, u"x"_s), u"http://host/x"_s);
}

TEST(SimAddressTests, PartsAreTakenApart) {
    EXPECT_EQ(HostOf(u"http://user@Host.example.com:80/x"_s), u"Host.example.com"_s);
    EXPECT_EQ(HostOf(u"javascript:void(0)"_s), QString());
    EXPECT_EQ(FileNameOf(u"http://host/a/pic.gif?x=/y.gif"_s), u"pic.gif"_s);
    EXPECT_EQ(WithoutFragment(u"http://host/#a"_s), u"http://host/"_s);
    EXPECT_EQ(EncodeFormText(u"a b&c=\u20ac\n"_s), u"a+b%26c%3D%E2%82%AC%0D%0A"_s);
}

} // namespace qlm
