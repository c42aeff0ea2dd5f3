// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>
#include <span>

namespace qlm::practice {

/// One of the pages on which an account answers those who have asked it. The first one of a layout is shown
/// until a control says otherwise.
struct RequestListDesign {
    QStringView name; ///< in controls and tests
    QStringView says; ///< what is special about it
    bool older = false;
    bool isSecond = false;   ///< of the older ones: the address leads on to the second version of the page
    bool hasButtons = true;  ///< requests can be accepted
    bool hasNumbers = true;  ///< the boxes of the newer page give the number away
    bool hasLastLink = true; ///< the pager has a link to the last page
};

std::span<const RequestListDesign> RequestListDesigns();

} // namespace qlm::practice
