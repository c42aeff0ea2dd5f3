// SPDX-License-Identifier: MIT
#include "Invitations.h"

#include <QStringList>

namespace qlm::practice {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr InviteDesign rows[] = {
    {u"grid", Gathering::Group, u"ten friends a page, with boxes"},
    {u"frame", Gathering::Group, u"blocks of forty in a frame"},
    {u"boxes", Gathering::Event, u"pictures that are ticked by a click"},
    {u"pager", Gathering::Event, u"pages that are fetched in place"},
    {u"tabs", Gathering::Event, u"everybody on one page, below tabs"},
    {u"frame", Gathering::Event, u"blocks of forty in a frame"},
};

QList<const InviteDesign*> Of(Gathering kind) {
    QList<const InviteDesign*> designs;
    for (const InviteDesign& row : rows)
        if (row.kind == kind)
            designs.append(&row);
    return designs;
}

} // namespace

QString WordOf(Gathering kind) {
    return kind == Gathering::Group ? u"group"_s : u"event"_s;
}

std::span<const InviteDesign> Invitations::Designs() {
    return rows;
}

QString Invitations::NameOf(Gathering kind, qint64 number) {
    static const QStringList groups{u"Hill Walkers"_s, u"Kettle Drums"_s, u"Night: Owls"_s, u"Old Maps"_s};
    static const QStringList events{u"Barn Dance"_s, u"Book Swap"_s, u"Lantern Walk"_s, u"Open Stage"_s};
    const QStringList& names = kind == Gathering::Group ? groups : events;
    return names[number % names.size()];
}

QString Invitations::SetDesign(Gathering kind, qint64 number, const QString& name) {
    for (const InviteDesign* design : Of(kind))
        if (design->name == name) {
            m_designs.insert({kind, number}, name);
            return {};
        }
    return u"unknown page of invitations: "_s + name;
}

const InviteDesign& Invitations::DesignOf(Gathering kind, qint64 number) const {
    const QList<const InviteDesign*> designs = Of(kind);
    const QString wanted = m_designs.value({kind, number});
    for (const InviteDesign* design : designs)
        if (design->name == wanted)
            return *design;
    return *designs[number % designs.size()];
}

} // namespace qlm::practice
