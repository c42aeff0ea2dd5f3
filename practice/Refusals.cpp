// SPDX-License-Identifier: MIT
#include "Refusals.h"

#include <iterator>

namespace qlm::practice {

using namespace Qt::Literals::StringLiterals;

namespace {

// Numbered as the program numbers its classes of pages, so that a test can speak of both. The site's own
// spelling stands.
constexpr Refusal rows[] = {
    {1, u"This profile is undergoing routine maintenance"},
    {2, u"This member is already one of your friends."},
    {3, u"You already have a pending friend request for this person."},
    {4, u"Sorry, you can't send a message to %1."},
    {5, u"Invalid friend ID."},
    {6, u"An application error occurred on the server."},
    {7, u"%1 only accepts add requests from people they know."},
    {8, u"%1 does not accept friend requests from strangers."},
    {9, u"The page you are looking for is currently unavailable."},
    {10, u"Server is too busy."},
    {11, u"This user's profile has been temporarily disabled."},
    {13, u"Sorry, you have exceeded your daily useage."},
    {14, u"This user has exceeded their daily useage."},
    {16, u"This profile is set to private."},
    {17, u"Server Error in '/' Application."},
    {18, u"The page cannot be displayed."},
    {20, u"MailMaintenance: back in a moment."},
    {21, u"An error has occurred trying to send this message."},
    {22, u"You must be %1's friend to send them a message."},
    {23, u"%1 is not in: they have set an away message."},
    {24, u"LinkContent1 ReturnMessage1"},
    {25, u"An error occurred while trying to process your request."},
    {26, u"Invalid user. You cannot send a message."},
    {27, u"%1 does not accept add requests from bands."},
    {28, u"You already sent a request to add friend to this member."},
    {29, u"This program cannot display the webpage."},
    {30, u"The page cannot be found."},
    {31, u"The page you are looking for might have been removed."},
    {33, u"%1 has blocked you and removed you from their friends list."},
    {34, u"Getting Started with MySpaceIM for Web"},
    {35, u"Please enter UserName/Screen Name"},
    {36, u"You have blocked %1 and removed them from your friends list."},
    {37, u"This person is already your friend."},
    {38, u"Sorry, the page you wish to access cannot be found."},
    {39, u"Sorry, we couldn’t locate the page you are looking for."},
    {40, u"The webpage cannot be found."},
    {41, u"Sorry, you cannot add yourself as a friend."},
    {42, u"Sorry, the profile of %1 is only viewable by friends."},
    {43, u"An error occurred and the page you requested is unavailable."},
    {44, u"There is a problem with the resource you are looking for, and it cannot be displayed."},
    {45, u"You already have a pending friend request for %1."},
    {46, u"%1 is already your friend."},
    {47, u"This action is blocked due to age restrictions."},
    {48, u"%1 doesn't accept friend requests from bands."},
    {49, u"What's my email address?"},
    {50, u"You have reached the maximum limit of friend requests for the day."},
};

} // namespace

QList<Refusal> Refusals() {
    return {std::begin(rows), std::end(rows)};
}

QString RefusalText(int number, const QString& name) {
    for (const Refusal& row : rows)
        if (row.number == number) {
            const QString text = QString::fromUtf16(row.text);
            return text.contains(u"%1"_s) ? text.arg(name) : text;
        }
    return {};
}

} // namespace qlm::practice
