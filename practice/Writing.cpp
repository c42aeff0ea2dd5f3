// SPDX-License-Identifier: MIT
#include "Writing.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace qlm::practice {

using namespace Qt::Literals::StringLiterals;

namespace {

using Way = Answer::Way;

// Where the site has several wordings for one thing, each has its row.
constexpr Answer messageRows[] = {
    {"sent"_L1, Way::Taken},
    {"cannot"_L1, Way::RefusedBefore, 1, u"Sorry, you can't send a message to %1."},
    {"friends-only"_L1, Way::RefusedBefore, 2, u"You must be %1's friend to send them a message."},
    {"only-friends"_L1, Way::RefusedBefore, 1, u"%1 has chosen to only allow messages from friends."},
    {"maintenance"_L1, Way::RefusedBefore, 0,
     u"MailMaintenance: the mail is being sorted. Back in a moment."},
    {"away"_L1, Way::RefusedAfter, 2, u"%1 will not read this now: they have set an away message."},
    {"error"_L1, Way::RefusedAfter, 1, u"An error has occurred trying to send this message."},
    {"process-error"_L1, Way::RefusedAfter, 0, u"An error occurred while trying to process your request."},
    {"captcha"_L1, Way::Captcha, 2},
    {"captcha-home"_L1, Way::CaptchaHome},
    {"home"_L1, Way::Home},
};

constexpr Answer commentRows[] = {
    {"posted"_L1, Way::Taken},
    {"friends-only"_L1, Way::RefusedBefore, 2, u"You must be someone's friend to make comments about them."},
    {"private"_L1, Way::RefusedBefore, 2, u"This profile is set to private."},
    {"flooding"_L1, Way::RefusedBefore, 0, u"It seems like you're flooding comments. Take a break."},
    {"unable"_L1, Way::RefusedAfter, 1, u"Sorry, we are unable to add your comment at this time."},
    {"captcha"_L1, Way::Captcha, 2},
    {"no-html"_L1, Way::NoHtml, 4},
    {"approval"_L1, Way::Approval, 4,
     u"This user requires all comments to be approved. Your comment has been posted!"},
    {"approval-alone"_L1, Way::Approval, 0, u"This user requires all comments to be approved."},
    {"home"_L1, Way::Home},
};

constexpr Answer bulletinRows[] = {
    {"posted"_L1, Way::Taken},
    {"not-yet"_L1, Way::RefusedBefore, 0, u"You can't post bulletins yet, %1. Come back tomorrow."},
    {"flooding"_L1, Way::RefusedAfter, 0, u"You are posting bulletins too quickly. Please wait a while."},
    {"unable"_L1, Way::RefusedAfter, 0, u"An error occurred while trying to process your request."},
    {"captcha"_L1, Way::Captcha},
    {"home"_L1, Way::Home},
};

constexpr Answer statusRows[] = {
    {"posted"_L1, Way::Taken},
    {"flooding"_L1, Way::RefusedAfter, 0, u"You are updating your status too quickly. Please wait a while."},
    {"unable"_L1, Way::RefusedAfter, 0, u"Sorry, we are unable to update your status at this time."},
};

} // namespace

std::span<const Answer> MessageAnswers() {
    return messageRows;
}

std::span<const Answer> CommentAnswers() {
    return commentRows;
}

std::span<const Answer> BulletinAnswers() {
    return bulletinRows;
}

std::span<const Answer> StatusAnswers() {
    return statusRows;
}

QString Quoted(const QString& text) {
    const QString list = QString::fromUtf8(QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact));
    return list.sliced(1, list.size() - 2);
}

} // namespace qlm::practice
