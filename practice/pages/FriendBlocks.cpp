// SPDX-License-Identifier: MIT
#include "FriendBlocks.h"

#include "../Frame.h"
#include "../Html.h"

namespace qlm::practice {

namespace {
const QString wordField = u"CAPTCHAResponse"_s;
}

FriendBlocks::FriendBlocks(Visit& visit, Gathering kind, qint64 number) : InviteVisit(visit, kind, number) {
    const QString id = QString::number(number);
    if (kind == Gathering::Group)
        m_design = {.list = u"friends"_s,
                    .select = u"getElementById('friends').selectedIndex = {n};"_s,
                    .form = u"inviteForm"_s,
                    .button = u"Invite"_s,
                    .title = Name() + u" - MySpace Groups"_s,
                    .heading = u"Find a MySpace User to Invite"_s,
                    .frame = u"index.cfm?fuseaction=groups.friendBox&groupID="_s + id,
                    .page = Url(Role::Groups, u"/index.cfm?fuseaction=groups.groupInvite&groupID="_s + id),
                    .done = Url(Role::Groups, u"/index.cfm?fuseaction=groups.grouphome&groupID="_s + id),
                    .asksForWord = true};
    else
        m_design = {.list = u"FriendList"_s,
                    .select = u"getElementById('FriendList').options[{n}].selected"_s,
                    .form = u"createEvent"_s,
                    .button = u"invite & update"_s,
                    .title = u"Editing "_s + Name() + u" | MySpace"_s,
                    .heading = u"Select your friends"_s,
                    .frame = u"/Event/FriendBox/"_s + id,
                    .page = Url(Role::Events, u"/Event/Report/"_s + id),
                    .done = Url(Role::Events, u"/Event/View/"_s + id)};
}

Response FriendBlocks::Respond() {
    QList<qint64>& picked = m_visit.world.invitations.Picked(m_account, m_kind, m_number);
    if (!m_visit.IsPost()) {
        picked.clear();
        return Form(false);
    }
    QList<qint64> ids = picked;
    for (const QString& id : ValuesOf(m_visit.request.body, u"invitedfriends"_s))
        if (!ids.contains(id.toLongLong()))
            ids.append(id.toLongLong());
    if (m_design.asksForWord && !IsWordRight(wordField)) {
        picked = ids;
        return Form(true);
    }
    picked.clear();
    Invite(ids);
    return Redirect(m_design.done);
}

Response FriendBlocks::Form(bool wasWrong) {
    const QString main = Fill(uR"-(<div class="box list"><h2>{heading}</h2><div class="in">
<iframe name="friendBox" id="friendBox" src="{frame}" width="300" height="300"></iframe>
<form method="post" action="{action}" id="{form}" name="{form}" onsubmit="return sendAll(this.invitedfriends)">
<select name="invitedfriends" id="invitedfriends" multiple size="10"></select>
{!word}<p class="go"><input type="submit" class="button" id="inviteButton" value="{button}"></p></form></div></div>{!scripts})-",
                              {{u"heading", m_design.heading},
                               {u"frame", m_design.frame},
                               {u"action", m_design.page},
                               {u"form", m_design.form},
                               {u"word", m_design.asksForWord ? WordField(wordField, wasWrong) : QString()},
                               {u"button", m_design.button},
                               {u"scripts", InviteScripts()}});
    return Framed(m_visit, {.title = m_design.title, .main = main, .tab = {}});
}

QString FriendBlocks::Blocks(int chosen) const {
    QString options;
    for (int first = 0; first < FriendCount(); first += Invitations::perBlock)
        options += Fill(uR"(<option value="{value}"{!chosen}>{value}</option>)",
                        {{u"value", QString::number(first + 1)},
                         {u"chosen", first + 1 == chosen ? u" selected"_s : QString()}});
    return options;
}

// Without scripts whoever is moved goes to the site by itself.
QString FriendBlocks::StandIns(const QList<const Person*>& friends, int blocks) const {
    const QString onScript = u"<i data-on-script=\"{script}\" data-do=\"{acts}\"></i>"_s;
    QString acts;
    for (qsizetype index = 0; index < friends.size(); ++index) {
        const QString id = QString::number(friends[index]->id);
        QString select = m_design.select;
        acts += Fill(onScript, {{u"script", select.replace(u"{n}"_s, QString::number(index))},
                                {u"acts", u"set #picked value "_s + id}});
        acts += Fill(onScript, {{u"script", u"addOption('%1'"_s.arg(id)},
                                {u"acts", u"set #picked value %1; send #pickedForm"_s.arg(id)}});
    }
    for (int block = 0; block < blocks; ++block)
        acts +=
            Fill(onScript, {{u"script", u"getElementById('startrow').selectedIndex = %1;"_s.arg(block)},
                            {u"acts", u"set #startrow value %1"_s.arg(block * Invitations::perBlock + 1)}});
    acts += Fill(onScript, {{u"script", u"parent.move("_s}, {u"acts", u"send #pickedForm"_s}});
    return acts + Fill(onScript, {{u"script", u"friendForm.submit()"_s}, {u"acts", u"submit #addFriends"_s}});
}

Response FriendBlocks::Frame() {
    if (const qint64 picked = m_visit.form.value(u"picked"_s).toLongLong())
        m_visit.world.invitations.Picked(m_account, m_kind, m_number).append(picked);
    const int start = std::max(1, m_visit.form.value(u"startrow"_s, u"1"_s).toInt());
    const QList<const Person*> friends = Friends(start - 1, Invitations::perBlock);
    const int blocks = (FriendCount() + Invitations::perBlock - 1) / Invitations::perBlock;
    QString options;
    for (const Person* person : friends)
        options += Fill(uR"(<option value="{id}">{name}</option>)",
                        {{u"id", QString::number(person->id)}, {u"name", person->name}});
    Response response;
    response.headers.append({u"Cache-Control"_s, u"no-cache"_s});
    response.body = Fill(uR"-(<!DOCTYPE html>
<html lang="en"><head><meta charset="utf-8"><title>Friends</title></head><body>
<form method="post" id="addFriends" name="friendForm"><select name="startrow" id="startrow" onchange="this.form.submit()">{!blocks}</select></form>
<select name="{list}" id="{list}" size="12">{!options}</select>
<form method="post" id="pickedForm"><input type="hidden" name="picked" id="picked" value=""></form>{!acts}</body></html>)-",
                         {{u"blocks", Blocks(start)},
                          {u"list", m_design.list},
                          {u"options", options},
                          {u"acts", StandIns(friends, blocks)}})
                        .toUtf8();
    return response;
}

} // namespace qlm::practice
