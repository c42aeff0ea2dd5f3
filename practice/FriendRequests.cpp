// SPDX-License-Identifier: MIT
#include "FriendRequests.h"

#include "Chance.h"
#include "WordLists.h"

#include <array>

namespace qlm::practice {

using namespace Qt::Literals::StringLiterals;

namespace {

struct OutcomeRow {
    Outcome outcome;
    QLatin1StringView name;
    int percent; // of all profiles, until set otherwise
};

constexpr std::array outcomeRows{
    OutcomeRow{Outcome::Sent, "sent"_L1, 0}, // whatever the others leave
    OutcomeRow{Outcome::Already, "already"_L1, 3},
    OutcomeRow{Outcome::Pending, "pending"_L1, 3},
    OutcomeRow{Outcome::Private, "private"_L1, 3},
    OutcomeRow{Outcome::Band, "band"_L1, 2},
    OutcomeRow{Outcome::Disabled, "disabled"_L1, 2},
    OutcomeRow{Outcome::Limit, "limit"_L1, 0},
    OutcomeRow{Outcome::Captcha, "captcha"_L1, 2},
    OutcomeRow{Outcome::ErrorRedirect, "error-redirect"_L1, 2},
    OutcomeRow{Outcome::ServerError, "server-error"_L1, 1},
    OutcomeRow{Outcome::HomeRedirect, "home"_L1, 0},
    OutcomeRow{Outcome::InboxRedirect, "inbox"_L1, 0},
};

struct KindRow {
    CaptchaKind kind;
    QLatin1StringView name;
};

constexpr std::array kindRows{
    KindRow{CaptchaKind::Image, "image"_L1},
    KindRow{CaptchaKind::ImageText, "image-text"_L1},
    KindRow{CaptchaKind::Words, "words"_L1},
    KindRow{CaptchaKind::Settings, "settings"_L1},
};

} // namespace

QString OutcomeName(Outcome outcome) {
    for (const OutcomeRow& row : outcomeRows)
        if (row.outcome == outcome)
            return row.name;
    return {};
}

std::optional<Outcome> OutcomeNamed(const QString& name) {
    for (const OutcomeRow& row : outcomeRows)
        if (name == row.name)
            return row.outcome;
    return std::nullopt;
}

std::optional<CaptchaKind> CaptchaKindNamed(const QString& name) {
    for (const KindRow& row : kindRows)
        if (name == row.name)
            return row.kind;
    return std::nullopt;
}

FriendRequests::FriendRequests(quint64 seed) : m_seed(seed) {
    for (const OutcomeRow& row : outcomeRows)
        m_shares.insert(row.outcome, row.percent);
}

Outcome FriendRequests::NatureOf(qint64 target) const {
    if (const auto fixed = m_fixed.constFind(target); fixed != m_fixed.constEnd())
        return *fixed;
    int drawn = static_cast<int>(Mix(m_seed, static_cast<quint64>(target), 6) % 100);
    for (const OutcomeRow& row : outcomeRows) {
        drawn -= m_shares.value(row.outcome);
        if (drawn < 0)
            return row.outcome;
    }
    return Outcome::Sent;
}

QString FriendRequests::SetShare(Outcome outcome, int percent) {
    if (outcome == Outcome::Sent) {
        if (percent != 100)
            return u"sent gets what the others leave; only 100 can be set"_s;
        for (int& share : m_shares)
            share = 0;
        return {};
    }
    int others = 0;
    for (auto share = m_shares.constBegin(); share != m_shares.constEnd(); ++share)
        others += share.key() == outcome ? 0 : share.value();
    if (percent < 0 || others + percent > 100)
        return u"shares must stay between 0 and 100 in all"_s;
    m_shares.insert(outcome, percent);
    return {};
}

void FriendRequests::MarkAsked(qint64 asker, qint64 target, QDate day) {
    m_asked.insert({asker, target});
    m_pending[asker].append(target);
    m_captchas.remove({asker, target});
    ++m_askedOn[{asker, day}];
}

QList<qint64> FriendRequests::Pending(qint64 asker) const {
    const QList<qint64> pending = m_pending.value(asker);
    return {pending.rbegin(), pending.rend()};
}

void FriendRequests::SetPending(qint64 asker, const QList<qint64>& targets) {
    for (const qint64 target : m_pending.value(asker))
        m_asked.remove({asker, target});
    for (const qint64 target : targets)
        m_asked.insert({asker, target});
    m_pending.insert(asker, targets);
}

bool FriendRequests::Withdraw(qint64 asker, qint64 target) {
    if (!m_pending[asker].removeOne(target))
        return false;
    m_asked.remove({asker, target});
    return true;
}

void FriendRequests::Settle(qint64 asker, qint64 target) {
    if (m_pending.contains(asker))
        m_pending[asker].removeOne(target);
    m_asked.remove({asker, target});
}

bool FriendRequests::LimitReached(qint64 asker, QDate day) const {
    const std::optional<int> limit = m_limitOf.value(asker, m_dailyLimit);
    return limit && m_askedOn.value({asker, day}) >= *limit;
}

CaptchaKind FriendRequests::KindOfCaptcha(qint64 target) const {
    return m_captchaKind.value_or(kindRows[static_cast<size_t>(target) % kindRows.size()].kind);
}

QString FriendRequests::CaptchaWord(qint64 asker, qint64 target) const {
    if (!m_captchaWord.isEmpty())
        return m_captchaWord;
    const quint64 pair = Mix(static_cast<quint64>(asker), static_cast<quint64>(target), 7);
    Draw draw(Mix(m_seed, pair, static_cast<quint64>(CaptchaRound(asker, target))));
    const QString word = draw.Pick(CaptchaWords());
    return KindOfCaptcha(target) == CaptchaKind::Words ? word + u' ' + draw.Pick(CaptchaWords()) : word;
}

void FriendRequests::ShowCaptcha(qint64 asker, qint64 target) {
    if (!CaptchaShown(asker, target))
        m_captchas.insert({asker, target}, 0);
}

bool FriendRequests::AnswerCaptcha(qint64 asker, qint64 target, const QString& answer) {
    const bool right = answer.simplified().compare(CaptchaWord(asker, target), Qt::CaseInsensitive) == 0;
    if (right)
        m_captchas.remove({asker, target});
    else
        ++m_captchas[{asker, target}];
    return right;
}

} // namespace qlm::practice
