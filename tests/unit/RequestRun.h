// SPDX-License-Identifier: MIT
#pragma once

#include "BrowserTest.h"
#include "gather/GatheredList.h"

namespace qlm {

// A run of friend requests to 1001, 1002, ... that works on the first.
class RequestRunTest : public BrowserTest {
protected:
    void BeginRequests(qint16 step) {
        using namespace Qt::Literals::StringLiterals;
        if (app->Get<GatheredList>().IsEmpty())
            for (int id = 1001; id <= 1006; ++id)
                app->Get<GatheredList>().Add(QString::number(id), u"test"_s);
        State().CurrentAction = u"FR"_s;
        State().strCurrentID = u"1001"_s;
        State().intCurrentIDIndex = 1;
        State().intFRStep = step;
        State().lngFailedCount = 0;
        State().blnSkipCurrentID = false;
        State().blnNewLayout = true;
        Await(u"Text"_s, u"Request Sent!"_s);
        app->webHide().onZOrder = [this](int position) { covers += position == 0 ? u'+' : u'-'; };
        covers.clear();
    }
    // The run has gone on to the next target.
    bool WentOn() { return State().CurrentAction == u"FR" && State().strCurrentID == u"1002"; }

    QString covers; // + to the front, - to the back
};

} // namespace qlm
