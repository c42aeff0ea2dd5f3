// SPDX-License-Identifier: MIT
#include "browser/PageClassifier.h"

#include "browser/PageClassTable.h"
#include "browser/PageSigns.h"
#include "core/App.h"

#include <algorithm>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

struct PageUnderTest {
    const RunState& state;
    const QString& text;
    const QString& lower;
    const QString lowerAddress;
};

bool ConditionHolds(PageCondition condition, const PageUnderTest& page) {
    switch (condition) {
    case PageCondition::None:
        return true;
    case PageCondition::WhileRequesting:
        return page.state.CurrentAction == u"FR"_s;
    case PageCondition::NoLastLoginOrCommenting:
        return page.state.CurrentAction == u"COM"_s || !page.lower.contains(u"last login"_s);
    case PageCondition::NotDeletingPending:
        return page.state.CurrentAction != u"DEL PEN"_s;
    case PageCondition::ErrorAddress:
        return page.lowerAddress.contains(u".com/error.aspx"_s);
    }
    return false;
}

bool Matches(const PageClassRow& row, const PageUnderTest& page) {
    const bool anyAlternative =
        row.anyOf.empty() || std::any_of(row.anyOf.begin(), row.anyOf.end(), [&](const auto& allOf) {
            return std::all_of(allOf.begin(), allOf.end(), [&](const QString& marker) {
                return row.exact ? page.text.contains(marker) : page.lower.contains(marker);
            });
        });
    return anyAlternative && ConditionHolds(row.condition, page);
}

} // namespace

bool PageClassifier::ClassifyErrorPage() {
    RunState& state = m_app.state;
    state.intPageClass = 0;
    m_app.WebBrowser1().SetSilent(true);
    m_app.Get<PageSigns>().WaitForDocument();
    const QString text = m_app.WebBrowser1().Document().BodyText();
    const PageUnderTest page{state, text, m_app.Get<PageSigns>().Lowered(text),
                             m_app.Get<PageSigns>().LocationURL().toLower()};
    const auto& table = PageClassTable();
    const auto row =
        std::find_if(table.begin(), table.end(), [&](const PageClassRow& r) { return Matches(r, page); });
    if (row == table.end())
        return false;

    state.intPageClass = row->pageClass;
    if (row->effect == PageEffect::SkipCurrentID)
        state.blnSkipCurrentID = true;
    if (row->effect == PageEffect::DailyLimit)
        state.blnDailyLimitHit = true;
    for (const auto& word : {"SCANNING"_L1, "FR"_L1, "COM"_L1, "MSG"_L1})
        if (state.CurrentAction == word)
            m_app.diagnostics.DebugForAction(u"MAINTENANCEPAGE: "_s + QString::number(row->pageClass));
    return row->isErrorPage;
}

} // namespace qlm
