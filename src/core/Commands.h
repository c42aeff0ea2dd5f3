// SPDX-License-Identifier: MIT
#pragma once

#include "platform/MessageQueue.h"

#include <QHash>
#include <QString>
#include <functional>

namespace qlm {

// What the user's clicks and keys do: event handlers by name, control + "_" + event
// ("piccmdAddFriends_Click", "frmInteken.lstAccounts_DblClick", "lstFriendIDs_KeyDown"). Families register
// theirs; the window runs them.
class Commands {
public:
    // argument is the key code of a KeyDown, the index of a control array's item, else 0.
    using Handler = std::function<void(int argument)>;

    void Add(const QString& name, const Handler& handler) { m_handlers.insert(name, handler); }
    void Add(const QString& name, std::function<void()> handler) {
        m_handlers.insert(name, [handler = std::move(handler)](int) { handler(); });
    }
    bool Has(const QString& name) const { return m_handlers.contains(name); }
    // False when nothing is registered under that name.
    bool Run(const QString& name, int argument = 0) const {
        const Handler handler = m_handlers.value(name);
        if (!handler)
            return false;
        try {
            handler(argument);
        } catch (const ProgramEnding&) {
            return true;
        }
        return true;
    }

private:
    QHash<QString, Handler> m_handlers;
};

} // namespace qlm
