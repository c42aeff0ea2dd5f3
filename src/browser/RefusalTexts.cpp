// SPDX-License-Identifier: MIT
#include "browser/PageClassifier.h"

#include <vector>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

struct RefusalRow {
    int pageClass;
    const char* text;
};

// In the program's own words: a report is read by a person who wants to know what to do about it.
const std::vector<RefusalRow>& RefusalRows() {
    static const std::vector<RefusalRow> rows{
        {1, "The profile is under maintenance"},
        {2, "Is already one of your friends"},
        {3, "A request to this person is pending already"},
        {4, "Messages to this person are not allowed"},
        {5, "There is no profile with this ID"},
        {6, "The site had an application error"},
        {7, "Takes requests only from people known to them"},
        {8, "Doesn't take friend requests from your kind of profile"},
        {9, "The page is currently unavailable"},
        {10, "The site was too busy"},
        {11, "The profile is temporarily disabled"},
        {13, "The site says that your daily usage is exceeded"},
        {14, "The site says that this user's daily usage is exceeded"},
        {16, "The profile is private"},
        {17, "The site had a server error"},
        {18, "The page could not be displayed"},
        {20, "The site's mail is under maintenance"},
        {21, "The site could not send"},
        {22, "Only friends may write to this person"},
        {23, "Has an away message"},
        {24, "The site showed a page in place of the request"},
        {25, "The site could not process the request"},
        {26, "The site does not know this user"},
        {27, "Doesn't take requests from bands"},
        {28, "You have sent a request to this member before"},
        {29, "The page could not be displayed"},
        {30, "The page was not found"},
        {31, "The page may have been removed"},
        {32, "The site answered with its error page, although the request went out"},
        {33, "Has blocked you"},
        {34, "The site showed its chat page"},
        {35, "The site showed its sign-in page"},
        {36, "You have blocked this person"},
        {37, "Is already your friend"},
        {38, "The page was not found"},
        {39, "The page was not found"},
        {40, "The page was not found"},
        {41, "That is you"},
        {42, "The profile is only for friends"},
        {43, "The page is unavailable"},
        {44, "The page could not be displayed"},
        {45, "A request to this person is pending already"},
        {46, "Is already your friend"},
        {47, "Not allowed due to age restrictions"},
        {48, "Doesn't take requests from bands"},
        {49, "Wants to know their e-mail address first"},
        {50, "The site's daily limit of friend requests"},
    };
    return rows;
}

} // namespace

QString RefusalText(int pageClass) {
    for (const RefusalRow& row : RefusalRows())
        if (row.pageClass == pageClass)
            return QString::fromLatin1(row.text);
    return {};
}

} // namespace qlm
