// SPDX-License-Identifier: MIT
#pragma once

#include "Editors.h"

#include <QStringView>
#include <span>

namespace qlm::practice {

/// One of the forms in which the site takes a bulletin, with the page of posted bulletins that goes with it.
/// All stand at the same addresses; the first one is shown until a control says otherwise.
struct BulletinDesign {
    enum class Comments { Ticked, Unticked, Missing };
    enum class After {
        Posted,
        Confirm, ///< a page asks for a press of its button
        Silent,  ///< posted, and the page doesn't say so
    };
    /// How the posted ones are chosen for deletion.
    enum class Choice {
        Boxes,
        Late, ///< the list comes a while after the page
        None, ///< there is nothing to choose by
    };

    QStringView name; ///< in controls and tests
    QStringView says; ///< what is special about it
    bool older = false;
    Editor editor = Editor::Views;
    bool hasSubject = true;
    QStringView buttons = {}; ///< markup; "" for one button "Post"
    Comments comments = Comments::Ticked;
    After after = After::Posted;
    Choice choice = Choice::Boxes;
};

std::span<const BulletinDesign> BulletinDesigns();

inline constexpr QStringView bulletinSubject = u"ctl00_ctl00_cpMain_cpMain_BulletinPost_Subject_Textbox";
inline constexpr QStringView bulletinComments =
    u"ctl00_ctl00_cpMain_cpMain_BulletinPost_chkAllowBulletinComments";

/// Name and id of the field that holds the text.
constexpr QStringView BodyOf(const BulletinDesign& design) {
    return design.older ? u"ctl00_ctl00_ctl00_cpMain_cpMain_cpMain_BulletinPostWithRTE_ctl01"
                        : u"ctl00_ctl00_cpMain_cpMain_BulletinPost_ctl00";
}

} // namespace qlm::practice
