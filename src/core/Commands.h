// SPDX-License-Identifier: MIT
#pragma once

#include "core/Diagnostics.h"
#include "platform/MessageQueue.h"

#include <QByteArray>
#include <QHash>
#include <QString>
#include <functional>
#include <type_traits>

namespace qlm {

// What the user's clicks and keys do: event handlers by name, control + "_" + event
// ("piccmdAddFriends_Click", "frmInteken.lstAccounts_DblClick", "lstFriendIDs_KeyDown"). Families register
// theirs; the window runs them. Each runs in a trap.
class Commands {
public:
    explicit Commands(Diagnostics& diagnostics) : m_diagnostics(diagnostics) {}

    // The handler may take the key code of a KeyDown, the index of a control array's item, else 0. An error
    // in it is reported under the procedure's name, which is the command's where none is given.
    template <typename Handler> void Add(const QString& name, const QByteArray& procedure, Handler handler) {
        if constexpr (std::is_invocable_v<Handler, int>)
            Insert(name, procedure, std::move(handler));
        else
            Insert(name, procedure, [handler = std::move(handler)](int) { handler(); });
    }
    template <typename Handler> void Add(const QString& name, Handler handler) {
        Add(name, name.toLatin1(), std::move(handler));
    }
    bool Has(const QString& name) const { return m_handlers.contains(name); }
    // False when nothing is registered under that name.
    bool Run(const QString& name, int argument = 0) const {
        const auto handler = m_handlers.value(name);
        if (!handler)
            return false;
        try {
            handler(argument);
        } catch (const ProgramEnding&) {
            // Thrown to leave the waits below this click; the window is closing already.
            return true;
        }
        return true;
    }

private:
    void Insert(const QString& name, const QByteArray& procedure, std::function<void(int)> handler) {
        m_handlers.insert(name, [this, procedure, handler = std::move(handler)](int argument) {
            m_diagnostics.Trap(procedure.constData(), [&] { handler(argument); });
        });
    }

    Diagnostics& m_diagnostics;
    QHash<QString, std::function<void(int)>> m_handlers;
};

} // namespace qlm
