// SPDX-License-Identifier: MIT
#include "Gatherer.h"
#include "GatheringProgram.h"

namespace qlm {

QString GatherersList() {
    return u"http://www.myspace.example.com/100001/friends"_s;
}

int RunGatherer(const QString& folder) {
    const UsedProgram folders(folder);
    RunningProgram program(folders, GatheringProgram::UsualClockRate);
    WindowDriver& driver = program.driver;
    App& app = program.app;
    driver.Add({u"The login screen"_s, 60, [&] { return driver.Form("frmInteken") != nullptr; },
                [&] { driver.Press("frmInteken", "cmdContinue"); }});
    driver.Add({u"The login"_s, 60, [&] { return app.Status() == u"Login successful!"_s; },
                [&] { app.WebBrowser1().Navigate(GatherersList()); }});
    driver.Add({u"The list"_s, 60,
                [&] {
                    return app.WebBrowser1().LocationURL() == GatherersList() &&
                           app.WebBrowser1().ReadyState() == 4;
                },
                [&] {
                    driver.Press("frmMain", "optScanFollowing");
                    driver.Press("frmMain", "optQuickGather");
                    driver.Press("frmMain", "picScanStart");
                }});
    driver.Add({u"The end of the gather"_s, 60, [&] { return app.Status() == u"Finished gathering ID's"_s; },
                [&] {
                    driver.Choose("mnuExit");
                    driver.End({});
                }});
    return program.Run() ? 0 : 1;
}

} // namespace qlm
