// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringView>
#include <span>
#include <tuple>
#include <utility>

namespace qlm::practice {

/// What one can be invited to.
enum class Gathering { Group, Event };
QString WordOf(Gathering kind);

/// One of the pages on which friends are invited to a group or an event.
struct InviteDesign {
    QStringView name; ///< in controls and tests
    Gathering kind = Gathering::Group;
    QStringView says; ///< what is special about it
};

/// Groups and events: any number is one, and its number decides which page invites to it until a control
/// does.
class Invitations {
public:
    static constexpr int atOnce = 25;   ///< the site takes no more
    static constexpr int perBlock = 40; ///< friends in the frame of an older page

    static std::span<const InviteDesign> Designs();
    static QString NameOf(Gathering kind, qint64 number);

    /// "" or what is wrong.
    QString SetDesign(Gathering kind, qint64 number, const QString& name);
    const InviteDesign& DesignOf(Gathering kind, qint64 number) const;

    /// Whether a word has to be typed before invitations go out.
    void SetAsksForWord(bool asks) { m_asksForWord = asks; }
    bool AsksForWord() const { return m_asksForWord; }
    /// Whether everybody may see the event.
    void SetPublic(qint64 event, bool isPublic) { m_public.insert(event, isPublic); }
    bool IsPublic(qint64 event) const { return m_public.value(event); }

    /// Whom an account has put on a list of the page and not yet sent, for pages that don't keep it
    /// themselves.
    QList<qint64>& Picked(qint64 account, Gathering kind, qint64 number) {
        return m_picked[{account, kind, number}];
    }

private:
    bool m_asksForWord = true;
    QMap<std::pair<Gathering, qint64>, QString> m_designs;
    QHash<qint64, bool> m_public;
    QMap<std::tuple<qint64, Gathering, qint64>, QList<qint64>> m_picked;
};

} // namespace qlm::practice
