// SPDX-License-Identifier: MIT
#pragma once

#include "Visit.h"

namespace qlm::practice {

/// The block that stands for one person in lists: picture and name, both linked, and a few facts.
///
/// A list is read by its links, so the block has none but these: whoever has a vanity address gets a button
/// for the message instead of a link, since a link's address would give the number away.
QString MiniProfile(const Person& person);

/// A small linked picture with the name below, for friend spaces and welcome pages.
QString Face(const Person& person);

QString PictureUrl(const Person& person);

/// A run of pages with links to the neighbours; on the last page "Next" is there but dead.
struct Pager {
    QString base; ///< the address of page N is this + N
    int page = 1;
    int pages = 1;
    QString nextCaption;
};
QString PagerMarkup(const Pager& pager);

} // namespace qlm::practice
