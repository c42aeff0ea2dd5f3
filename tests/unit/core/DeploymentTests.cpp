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
