// SPDX-License-Identifier: MIT
#pragma once

#include <QDate>
#include <QHash>
#include <QList>
#include <QMap>
#include <QSet>
#include <QString>
#include <optional>
#include <utility>

namespace qlm::practice {

/// What the site makes of a friend request.
enum class Outcome {
    Sent,
    Already,
    Pending,
    Private,
    Band,
    Disabled,
    Limit,
    Captcha,
    ErrorRedirect,
    ServerError,
    HomeRedirect,
    InboxRedirect,
};

/// The word for an outcome in controls and journal, such as "error-redirect".
QString OutcomeName(Outcome outcome);
std::optional<Outcome> OutcomeNamed(const QString& name);

/// How a CAPTCHA asks for its word.
enum class CaptchaKind { Image, ImageText, Words, Settings };
std::optional<CaptchaKind> CaptchaKindNamed(const QString& name);

/// Who has asked whom, and what the site answers whom. Keyed by the IDs of asker and target.
class FriendRequests {
public:
    explicit FriendRequests(quint64 seed);

    /// A target's own nature, before anybody has asked it: fixed by hand, or drawn by the shares.
    Outcome NatureOf(qint64 target) const;
    void Fix(qint64 target, Outcome outcome) { m_fixed.insert(target, outcome); }

    /// The target answers with that one of the refusals; 0 for none.
    void SetRefusal(qint64 target, int number) { m_refusals.insert(target, number); }
    int RefusalOf(qint64 target) const { return m_refusals.value(target); }

    /// Share of all profiles that answer so, in per cent; what is left over is sent. "Sent" itself takes only
    /// 100, which clears all others. Returns "" or what is wrong.
    QString SetShare(Outcome outcome, int percent);

    bool WasAsked(qint64 asker, qint64 target) const { return m_asked.contains({asker, target}); }
    void MarkAsked(qint64 asker, qint64 target, QDate day);

    /// Whom that account has asked and who hasn't answered, newest first.
    QList<qint64> Pending(qint64 asker) const;
    /// Whether it has ever asked anybody.
    bool HasAskedAnybody(qint64 asker) const { return m_pending.contains(asker); }
    /// In place of those it has asked so far, without a word in the journal.
    void SetPending(qint64 asker, const QList<qint64>& targets);
    /// False when that one isn't pending; afterwards it can be asked again.
    bool Withdraw(qint64 asker, qint64 target);
    /// The target has answered.
    void Settle(qint64 asker, qint64 target);

    /// After so many requests of one account in a day comes the limit page; nothing for no limit.
    void SetDailyLimit(std::optional<int> limit) { m_dailyLimit = limit; }
    /// The same for one account, which goes before it.
    void SetDailyLimitOf(qint64 asker, std::optional<int> limit) { m_limitOf[asker] = limit; }
    bool LimitReached(qint64 asker, QDate day) const;

    /// The word drawn in the image. It stays until a wrong answer; a word set by hand stays for good.
    QString CaptchaWord(qint64 asker, qint64 target) const;
    void SetCaptchaWord(const QString& word) { m_captchaWord = word; }
    /// Nothing lets the target's number decide.
    void SetCaptchaKind(std::optional<CaptchaKind> kind) { m_captchaKind = kind; }
    CaptchaKind KindOfCaptcha(qint64 target) const;
    /// Notes that the image is in front of the user.
    void ShowCaptcha(qint64 asker, qint64 target);
    bool CaptchaShown(qint64 asker, qint64 target) const { return m_captchas.contains({asker, target}); }
    /// Number of wrong answers so far; distinguishes the images of one target.
    int CaptchaRound(qint64 asker, qint64 target) const { return m_captchas.value({asker, target}); }
    /// True for the right word (letter case doesn't matter), which takes the image away.
    bool AnswerCaptcha(qint64 asker, qint64 target, const QString& answer);

private:
    using Pair = std::pair<qint64, qint64>;

    quint64 m_seed;
    QMap<Outcome, int> m_shares;
    QHash<qint64, Outcome> m_fixed;
    QHash<qint64, int> m_refusals;
    QSet<Pair> m_asked;
    QHash<qint64, QList<qint64>> m_pending; // oldest first
    QHash<std::pair<qint64, QDate>, int> m_askedOn;
    std::optional<int> m_dailyLimit;
    QHash<qint64, std::optional<int>> m_limitOf;
    QString m_captchaWord;
    std::optional<CaptchaKind> m_captchaKind = CaptchaKind::Image;
    QHash<Pair, int> m_captchas;
};

} // namespace qlm::practice
