// SPDX-License-Identifier: MIT
#include "InviteVisit.h"

#include "../Html.h"

namespace qlm::practice {

QList<const Person*> InviteVisit::Friends(int first, int count) const {
    return m_visit.world.friends.Slice(m_visit.world.people, m_account, first, count);
}

QList<qint64> InviteVisit::Ticked(const QString& before) const {
    QList<qint64> ids;
    const QStringList earlier = m_visit.form.value(before).split(u',', Qt::SkipEmptyParts);
    for (const QString& id : earlier + ValuesOf(m_visit.request.body, u"friend"_s))
        if (!ids.contains(id.toLongLong()))
            ids.append(id.toLongLong());
    return ids;
}

QString InviteVisit::WordField(const QString& field, bool wasWrong) {
    if (!m_visit.world.invitations.AsksForWord())
        return {};
    FriendRequests& requests = m_visit.world.requests;
    requests.ShowCaptcha(m_account, m_number);
    const QString image =
        u"/captcha/%1-%2.svg"_s.arg(m_number).arg(requests.CaptchaRound(m_account, m_number));
    return Fill(uR"({!wrong}<p>Please enter the text from the image:</p>
<p><img class="captcha" src="{image}" width="260" height="64" alt="letters"></p>
<p><input type="text" name="{field}" id="{field}" value="" autocomplete="off"></p>)",
                {{u"wrong", wasWrong ? u"<p class=\"warn\">Security code does not match</p>"_s : QString()},
                 {u"image", Url(Role::SiteRoot, image)},
                 {u"field", field}});
}

bool InviteVisit::IsWordRight(const QString& field) {
    return !m_visit.world.invitations.AsksForWord() ||
           m_visit.world.requests.AnswerCaptcha(m_account, m_number, m_visit.form.value(field.toLower()));
}

void InviteVisit::Invite(const QList<qint64>& ids) {
    for (const qint64 id : ids)
        m_visit.world.journal.Write(
            u"invited %1 %2 %3 %4"_s.arg(m_account).arg(WordOf(m_kind)).arg(m_number).arg(id));
}

QString InviteVisit::Names(const QList<qint64>& ids) const {
    QString names;
    for (const qint64 id : ids)
        if (const Person* person = m_visit.world.people.Find(id))
            names += Fill(uR"(<li>{name}</li>)", {{u"name", person->name}});
    return names;
}

QString InviteScripts() {
    return Fill(uR"(<script src="{root}/style/invites.js"></script>)", {{u"root", Url(Role::SiteRoot, {})}});
}

QString JoinNumbers(const QList<qint64>& numbers) {
    QStringList texts;
    for (const qint64 number : numbers)
        texts += QString::number(number);
    return texts.join(u',');
}

} // namespace qlm::practice
