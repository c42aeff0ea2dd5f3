// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace qlm::practice {

struct Person;

// The blocks that stand for one person in the lists of the many designs. What a list is read by differs: the
// class of a block, a word beside a link, the host of a link's address.

QString MediaEntry(const Person& person);        ///< of searches
QString CardEntry(const Person& person);         ///< a visiting card; the number stands in its markup
QString ForumEntry(const Person& person);        ///< a reply in a thread
QString NoticeEntry(const Person& person);       ///< a notification; the number stands in its markup
QString ChartEntry(const Person& person);        ///< an artist; the number stands at the link to add
QString NewFriendEntry(const Person& person);    ///< somebody who has just become a friend
QString NamedEntry(const Person& person);        ///< linked by name or number
QString NumberedEntry(const Person& person);     ///< linked by the old address, which holds the number
QString MiniNumberedEntry(const Person& person); ///< the same as a small profile
QString MailEntry(const Person& person);         ///< a mail; the number stands at the sender's link
QString PendingEntry(const Person& person);      ///< a request that waits for an answer
QString CommentEntry(const Person& person);      ///< a comment with its commands
QString EventEntry(const Person& person);        ///< who comes to an event
QString ImageEntry(const Person& person);        ///< one picture
QString ArtistEntry(const Person& person);       ///< a band with its address written out
QString ChannelEntry(const Person& person);      ///< a video channel

// Hard to read.
QString BareLinkEntry(const Person& person);    ///< beside links without an address
QString NestedEntry(const Person& person);      ///< beside frames within frames
QString StrangeNameEntry(const Person& person); ///< names written from right to left, and such of pictures

/// People beside a list who don't belong to it, in every way in which pages show such people.
QString Neighbours();

} // namespace qlm::practice
