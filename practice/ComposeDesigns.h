// SPDX-License-Identifier: MIT
#pragma once

#include "Editors.h"
#include "SiteHosts.h"

#include <QStringView>
#include <span>

namespace qlm::practice {

/// One of the forms in which the site takes a message. The fields' names are what readers of the page know it
/// by; a name is the id as well.
struct ComposeDesign {
    enum class Draft {
        There,
        Late, ///< its button appears a while after the page
        Never,
    };
    enum class Reply {
        Says,   ///< that the message has been sent
        Late,   ///< the same, after a while
        Silent, ///< thanks and nothing else
    };

    QStringView name; ///< in controls and tests
    QStringView says; ///< what is special about it
    bool older;       ///< at the old address; otherwise at the new one
    bool hard = false;
    QStringView subject;
    QStringView body;
    Editor editor = Editor::Plain;
    Breaks breaks = Breaks::Br;
    QStringView buttons = {}; ///< markup; "" for one button "Send"
    Draft draft = Draft::There;
    Reply reply = Reply::Says;
};

std::span<const ComposeDesign> ComposeDesigns();

/// The address at which somebody's page shows it.
inline QString FormAddress(const ComposeDesign& design, qint64 id) {
    const QString old = QStringLiteral("/index.cfm?fuseaction=mail.message&friendID=%1");
    return design.older ? Url(Role::Messaging, old.arg(id))
                        : Url(Role::SiteRoot, QStringLiteral("/my/mail/new?t=%1").arg(id));
}

} // namespace qlm::practice
