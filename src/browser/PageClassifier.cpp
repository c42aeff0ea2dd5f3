// SPDX-License-Identifier: MIT
#include "browser/PageClassifier.h"

#include "browser/PageClassTable.h"
#include "core/App.h"

#include <algorithm>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

bool PageClassifier::ClassifyErrorPage() {
    RunState& state = m_app.state;
    state.intPageClass = 0;
    const ShownPage page(m_app);
    const auto& table = PageClassTable();
    const auto row = std::find_if(table.begin(), table.end(), [&](const PageClassRow& each) {
        return each.activities.Contains(state.CurrentAction) && page.IsOneOf(each.kinds);
    });
    if (row == table.end())
        return false;

    state.intPageClass = row->pageClass;
    if (row->effect == PageEffect::SkipCurrentID)
        state.blnSkipCurrentID = true;
    if (row->effect == PageEffect::DailyLimit)
        state.blnDailyLimitHit = true;
    if (tracesClasses())
        m_app.diagnostics.DebugForAction(u"MAINTENANCEPAGE: "_s + QString::number(row->pageClass));
    return row->isErrorPage;
}

QString RefusalText(int pageClass) {
    for (const PageClassRow& row : PageClassTable())
        if (row.pageClass == pageClass)
            return QString::fromLatin1(row.refusal);
    return {};
}

} // namespace qlm
