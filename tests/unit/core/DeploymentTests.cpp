// SPDX-License-Identifier: MIT
#include "core/Deployment.h"

#include <gtest/gtest.h>

using namespace qlm;
using namespace Qt::Literals::StringLiterals;

TEST(Deployment, RolesAreReplacedWhereverTheyStand) {
    const Deployment deployment(u"[Hosts]\nSiteRootHost=www.a.example\r\nHomeHost = home.a.example \n"_s);
    EXPECT_EQ(deployment.Expand(u"http://{SiteRootHost}/x?y={HomeHost}"_s),
              u"http://www.a.example/x?y=home.a.example"_s);
    EXPECT_EQ(deployment.Expand(u"{Unknown}/{SiteRootHost}"_s), u"{Unknown}/www.a.example"_s);
    EXPECT_EQ(deployment.Expand(u"function(){}"_s), u"function(){}"_s);
}

TEST(Deployment, CommentsAreNoValuesAndMissingRolesAreNamed) {
    const Deployment deployment(u"; SiteDomain=a.example\n# HomeHost=b\nSiteRootHost=www.a.example"_s);
    EXPECT_TRUE(deployment.MissingRoles().contains(u"SiteDomain"_s));
    EXPECT_TRUE(deployment.MissingRoles().contains(u"HomeHost"_s));
    EXPECT_FALSE(deployment.MissingRoles().contains(u"SiteRootHost"_s));
}

TEST(Deployment, OnlyTheWordPracticeMeansTheBundledSite) {
    EXPECT_TRUE(Deployment(u"Proxy=practice"_s).UsesPracticeSite());
    EXPECT_FALSE(Deployment(u"Proxy=127.0.0.1:8080"_s).UsesPracticeSite());
}

TEST(Deployment, APageOfTheSiteStandsOnAHostOfItAndIsWrittenPlainly) {
    const Deployment site(
        u"[Hosts]\nSiteDomain=a.example\nSiteRootHost=www.A.example\nHomeHost=home.a.example\n"
        "WebSearchHost=search.example\nLinkRedirectHost=links.a.example\n"
        "CreativeHost=ads.a.example\nProductServer=http://product.example\n"_s);
    for (const QString& address :
         {u"http://www.a.example/"_s, u"https://home.a.example/x?y=http://b.example/#z"_s,
          u"http://a.example"_s, u"http://www.a.example?x"_s, u"http://www.a.example#x"_s})
        EXPECT_TRUE(site.IsSitePage(address)) << address.toStdString();
    for (const QString& address : {u""_s,
                                   u"about:blank"_s,
                                   u"www.a.example/"_s,
                                   u"http://"_s,
                                   u"http:///www.a.example/"_s,
                                   u"http://b.example/"_s,
                                   u"http://b.example/www.a.example/"_s,
                                   u"http://b.example/?http://www.a.example/"_s,
                                   u"http://www.a.example.b.example/"_s,
                                   u"http://xwww.a.example/"_s,
                                   u"http://other.a.example/"_s,
                                   u"http://www.a.example@b.example/"_s,
                                   u"http://user:pw@www.a.example/"_s,
                                   u"http://www.a.example:8080/"_s,
                                   u"http://www.a.example./"_s,
                                   u"http://www.a.example\\@b.example/"_s,
                                   u"HTTP://www.a.example/"_s,
                                   u"http://www.a.example%2eb.example/"_s,
                                   u"ftp://www.a.example/"_s,
                                   u"file://www.a.example/"_s,
                                   u"javascript://www.a.example/%0aalert(1)"_s,
                                   u"data:text/html,http://www.a.example/"_s,
                                   u"blob:http://www.a.example/1"_s,
                                   u" http://www.a.example/"_s,
                                   u"view-source:http://www.a.example/"_s,
                                   u"http://www.\u0430.example/"_s,
                                   u"http://search.example/"_s,
                                   u"http://links.a.example/"_s,
                                   u"http://ads.a.example/"_s,
                                   u"http://product.example/"_s})
        EXPECT_FALSE(site.IsSitePage(address)) << address.toStdString();
}
