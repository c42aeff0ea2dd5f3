// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>
#include <span>

namespace qlm::practice {

/// One of the boxes in which the home page takes a status update, with the stream below. The first one of a
/// layout is shown until a control says otherwise.
struct StatusDesign {
    QStringView name; ///< in controls and tests
    QStringView says; ///< what is special about it
    bool older = false;
    QStringView hint = u"Share what you're into";
    bool isLate = false;     ///< the box comes a while after the page
    bool hasFilter = true;   ///< the stream can be narrowed down
    bool hasShare = true;    ///< there is a button that posts
    bool hasOthers = false;  ///< there are further buttons, also one of the same caption
    bool isDeletable = true; ///< what was posted can be deleted
};

std::span<const StatusDesign> StatusDesigns();

} // namespace qlm::practice
