// SPDX-License-Identifier: MIT
#pragma once

#include "Exchange.h"

#include <QDateTime>
#include <QStringList>
#include <functional>
#include <memory>

namespace qlm::practice {

struct World;

/// A stand-in for the social network, its product server and its web search, populated by invented people.
/// Request in, response out; all state in memory; the same seed, clock and requests give the same bytes.
/// Not safe for several threads at once: whoever shares it holds a lock around each call.
///
/// The journal tells what was done, in lines that stay as they are:
///
///     signed-in MAIL ID              signed-out MAIL ID           wrong-password MAIL
///     request ASKER TARGET OUTCOME   what a request page answered: sent, already, pending, private, band,
///                                    disabled, limit, captcha, captcha-wrong, error-redirect, server-error,
///                                    home, inbox, refused-N, self, invalid
///     asked ASKER TARGET             a request has come into being, behind its request line
///     asked-again ASKER TARGET       a request page was visited for somebody already asked by that account
///     message SENDER TARGET OUTCOME  what a compose page answered: sent, captcha, captcha-wrong, draft,
///     empty,
///                                    limit, refused-N, no-mail, invalid, self, or the word of an outcome
///                                    below
///     messaged SENDER TARGET "SUBJECT" "TEXT"   a message has arrived, behind its message line; texts as
///     JSON comment SENDER TARGET OUTCOME  the same for comments: posted, confirm, captcha, captcha-wrong,
///     blank, html,
///                                    back, limit, refused-N, invalid, or the word of an outcome below
///     commented SENDER TARGET "TEXT" a comment has arrived, behind its comment line
///     bulletin SENDER OUTCOME        what the form for bulletins answered: posted, confirm, captcha, empty,
///                                    captcha-wrong, discarded, limit, refused-N, or an outcome below
///     posted-bulletin SENDER NUMBER comments|no-comments "SUBJECT" "TEXT"   behind its bulletin line
///     deleted-bulletin SENDER NUMBER "SUBJECT"
///     status SENDER OUTCOME          what the home page answered: posted, empty, limit, refused-N, or an
///                                    outcome below
///     posted-status SENDER NUMBER "TEXT"   behind its status line
///     deleted-status SENDER NUMBER "TEXT"
///     deleted-update SENDER NUMBER "TEXT"  what the stream had told by itself is gone from it
///     accepted ACCOUNT REQUESTER     the two are friends now; "updates" behind it when that box was ticked
///     denied ACCOUNT REQUESTER
///     accept ACCOUNT REQUESTER OUTCOME     accepting has failed: error, stays or never
///     cancelled ASKER TARGET         a request has been taken back
///     mobile-signed-in MAIL ID       mobile-signed-out MAIL ID    mobile-wrong-password MAIL
///     mobile-refused MAIL
///     visit HOST/PATH                every page request, while `journal visits on`
///     shown HOST/PATH ID...          who stood on the list of a delivered page, in its order, and can
///                                    be told by number there; while `journal shown on`
///     shown-by-name HOST/PATH ID...  the same, for whoever is linked by a name alone
///
/// Behind each line stands when, while `journal times on`.
///
/// The controls, one a line:
///
///     seed N                         new people; who was asked is forgotten
///     account MAIL PASSWORD ID       adds or changes an account
///     name ID NAME                   renames somebody; all words up to the end are the name
///     sign-in DESIGN                 ids, splash, names, button, image, link, element or get
///     limit friend-requests N|off [for MAIL]    requests of each account, or of that one, in a day before
///     the
///                                    limit page
///     share OUTCOME PERCENT          how many profiles answer so
///     outcome ID OUTCOME             how one profile answers
///     refuse ID N|off                that profile answers with the Nth of the refusals
///     compose ID|all FORM|off        which form that person's compose pages show, or everybody's
///     comment-form ID|all FORM|off   the same for comments; /sitemap/forms lists the forms
///     message-outcome ID OUTCOME     how one person answers a message: sent, cannot, friends-only,
///     only-friends,
///                                    maintenance, away, error, process-error, captcha, captcha-home, home
///     comment-outcome ID OUTCOME     a comment: posted, friends-only, private, flooding, unable, captcha,
///     no-html,
///                                    approval, approval-alone, home
///     message-share OUTCOME PERCENT, comment-share OUTCOME PERCENT    how many people answer so
///     message-refuse ID N|off, comment-refuse ID N|off    the Nth of the refusals in place of the form
///     message-limit N|off, comment-limit N|off    what one account may write in a day
///     bulletin-form ID|all FORM|off, status-form ID|all FORM|off    which form that account is shown
///     bulletin-outcome ID OUTCOME    how the site answers that account: posted, not-yet, flooding, unable,
///                                    captcha, home
///     status-outcome ID OUTCOME      posted, flooding, unable
///     bulletin-refuse ID N|off, status-refuse ID N|off    as for messages
///     bulletin-limit N|off, status-limit N|off            as for messages
///     bulletins ID COUNT, statuses ID COUNT    what that account has posted so far
///     incoming ID COUNT              so many of the crowd have asked that account
///     accept-outcome REQUESTER OUTCOME     what becomes of accepting them: accepted, slow, error (the
///                                    request is lost), stays (it fails and waits on), never (no answer)
///     accept-share OUTCOME PERCENT   the same for so many
///     request-list ID|all LIST|off   newer, older, older-second, no-buttons, older-no-buttons, no-numbers,
///                                    no-last, older-no-last
///     sent-requests ID COUNT         whom that account has asked so far
///     vanish ID                      the site knows nothing of them any more
///     mobile DESIGN                  open, closed, names or no-next
///     mail ID on|off                 whether that account has set up its mail
///     captcha-word WORD|off          the word of every CAPTCHA image
///     captcha-kind KIND|mixed        image, image-text, words, settings; image at the start
///     friends ID COUNT               length of a friends list
///     list NAME COUNT [PERPAGE]      length of the lists of one design, and of their pages
///     fault ADDRESS KIND [MS] [times N] [for MAIL] | fault ADDRESS off
///                                    ADDRESS is the beginning of an address, or a whole one with "$" behind;
///                                    KIND: slow MS, hang, reset, nobody, error, loggedout, limit, captcha,
///                                    alert, unload, endless, wrong, lost, blank; and what comes between a
///                                    sign-in and the home page: advert, moving, foreign, return, welcome,
///                                    cached, birthday, certificate
///     journal visits|shown|times on|off  logout-all          clear-faults          reset
///
/// Over the wire they stand at the control host: POST /control, GET /journal, POST /journal/take, each with
/// the header "Sec-Practice-Control", which no page can send.
class PracticeSite {
public:
    explicit PracticeSite(
        quint64 seed = 1, std::function<QDateTime()> now = [] { return QDateTime::currentDateTime(); });
    ~PracticeSite();

    Response Answer(const Request& request);

    /// Returns "" or what is wrong with the line, which then has no effect. Blank lines do nothing.
    QString Control(const QString& line);

    QStringList Journal() const;
    /// The lines since the last take.
    QStringList TakeJournal();

    /// The word that the CAPTCHA image of a request now shows, for tests that answer it.
    QString CaptchaWord(qint64 asker, qint64 target) const;

private:
    std::unique_ptr<World> m_world;
};

} // namespace qlm::practice
