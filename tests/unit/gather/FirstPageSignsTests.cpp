// SPDX-License-Identifier: MIT
#include "SimulatedProgram.h"
#include "gather/Pager.h"

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

class FirstPageSignsTest : public SimulatedProgram {
protected:
    FirstPageSignsTest() {
        StartOn(world.deploymentText + u"SiteDomain=example.com\nSearchServiceHost=search.example.com\n"
                                       "FriendsHost=friends.example.com\n"_s);
    }
    bool Shows(const QString& body, const QString& url = u"http://www.example.com/any"_s) {
        world.web.SetPage(url, u"<html><body>"_s + body + u"</body></html>"_s);
        app->WebBrowser1().Navigate(url);
        platform->Pump().RunFor(1000);
        return app->Get<Pager>().ShowsNextPageSign();
    }
};

TEST_F(FirstPageSignsTest, EachSignAloneIsEnough) {
    for (const QString& body :
         {u"<i onclick='GotoPage(2)'>2</i>"_s, u"<i onclick='javascript:nextpage()'>2</i>"_s,
          u"<i onclick=\"javascript: __msgPostRedirect('Page:2')\">2</i>"_s, u"<p>Next ></p>"_s,
          u"<p>Next ›</p>"_s, u"<p>Next »</p>"_s, u"<a href='javascript:requestlist.GoToPage(2)'>2</a>"_s,
          u"<a href='javascript:gotonextpage()'>2</a>"_s, u"<i class='pageBtn nextBtn'></i>"_s,
          u"<i id=nextPage></i>"_s})
        EXPECT_TRUE(Shows(body)) << body.toStdString();
    for (const QString& body :
         {u"<i title='Next ›'>2</i>"_s, u"<i title='Next »'>2</i>"_s, u"<i onclick='gotonextpage()'>2</i>"_s})
        EXPECT_FALSE(Shows(body)) << body.toStdString();
    EXPECT_FALSE(Shows(u"<p>Next, more</p><a href='http://x/?a&pg=2&p=2'>2</a>"_s));
}

TEST_F(FirstPageSignsTest, SomeCountOnTheirOwnPagesOnly) {
    const QString search = u"http://search.example.com/index.cfm?fuseaction=sitesearch.results&q=x"_s;
    const QString friends = u"http://friends.example.com/index.cfm?fuseaction=user.viewfriends&friendID=7"_s;
    const QString chart = u"http://www.example.com/music/charts/songs"_s;
    EXPECT_TRUE(Shows(u"<a href='http://x/?a&pg=2'>2</a>"_s, search));
    EXPECT_TRUE(Shows(u"<a href='http://x/?a&p=2'>2</a>"_s, friends));
    EXPECT_TRUE(Shows(u"<p>More</p>"_s, chart));
    EXPECT_FALSE(Shows(u"<p title=More>2</p>"_s, chart));
    EXPECT_FALSE(Shows(u"<a href='http://x/?a&p=2'>2</a><p>More &pg=2</p>"_s, search));
    EXPECT_FALSE(Shows(u"<a href='http://x/?a&pg=2'>2</a><p>More &p=2</p>"_s, friends));
}

} // namespace
} // namespace qlm
