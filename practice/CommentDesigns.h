// SPDX-License-Identifier: MIT
#pragma once

#include "Editors.h"
#include "SiteHosts.h"

#include <QStringView>
#include <span>

namespace qlm::practice {

/// One of the forms in which the site takes a comment: at the old address a page of its own, at the new one a
/// box above the comments.
struct CommentDesign {
    enum class After {
        Posted,        ///< the comment is there at once
        Confirm,       ///< a page asks for a press of its button
        ConfirmButton, ///< its button is no input
        ConfirmAsleep, ///< its button wakes up after a while
        ConfirmTwice,  ///< there are two such pages
        Back,          ///< the comment is lost, and another form stands there
    };

    QStringView name; ///< in controls and tests
    QStringView says; ///< what is special about it
    bool older;
    bool hard = false;
    QStringView box = u"newComment"; ///< name and id of the field that holds the comment
    QStringView mark = {};           ///< a second field by which the form is known; nothing reads it
    bool lateMark = false;           ///< it appears a while after the page
    Editor editor = Editor::Plain;
    QStringView buttons = {}; ///< markup; "" for the layout's one button; {image} is the image on one
    After after = After::Posted;
    bool growsAtOnce = true; ///< of the box: it takes the focus by itself
};

std::span<const CommentDesign> CommentDesigns();

/// The address at which somebody's page shows it.
inline QString FormAddress(const CommentDesign& design, qint64 id) {
    const QString form = QStringLiteral("/index.cfm?fuseaction=user.viewProfile_commentForm&friendID=%1");
    return design.older ? Url(Role::Comment, form.arg(id))
                        : Url(Role::SiteRoot, QStringLiteral("/%1/comments").arg(id));
}

} // namespace qlm::practice
