// SPDX-License-Identifier: MIT
#include "CaptchaPages.h"

#include "../Artwork.h"
#include "../Chance.h"
#include "../Frame.h"
#include "../Html.h"

namespace qlm::practice {

namespace {

// Which input holds the answer tells the designs apart.
QString AnswerField(Design design) {
    return design == Design::Newer ? u"ctl00$captcha_text"_s : u"ctl00$captchaResponseTextBox"_s;
}

// What asks for the answer, by kind. The user's own settings may ask too, and then the image says the rest.
QString Demand(CaptchaKind kind) {
    switch (kind) {
    case CaptchaKind::Image:
        return u"Please enter the text from the image:"_s;
    case CaptchaKind::ImageText:
        return u"Please enter the image text:"_s;
    case CaptchaKind::Words:
        return u"Type the two words:"_s;
    case CaptchaKind::Settings:
        return u"This person's Settings require that you solve a CAPTCHA."_s;
    }
    return {};
}

} // namespace

std::optional<QString> SentAnswer(const Visit& visit) {
    for (const Design design : {Design::Newer, Design::Older})
        if (const auto field = visit.form.constFind(AnswerField(design).toLower());
            field != visit.form.constEnd())
            return *field;
    return std::nullopt;
}

QString CaptchaFields(Visit& visit, qint64 target, Design design, bool refused) {
    FriendRequests& requests = visit.world.requests;
    const qint64 asker = visit.account ? visit.account->id : 0;
    requests.ShowCaptcha(asker, target);
    const QString image = u"/captcha/%1-%2.svg"_s.arg(target).arg(requests.CaptchaRound(asker, target));
    return Fill(uR"({!refused}<p>{demand}</p>
<p><img class="captcha" src="{image}" width="260" height="64" alt="letters"></p>
<p><input type="text" name="{field}" id="captchaText" value="" autocomplete="off"></p>)",
                {{u"refused", refused ? u"<p class=\"warn\">Security code does not match</p>"_s : QString()},
                 {u"demand", Demand(requests.KindOfCaptcha(target))},
                 {u"image", Url(Role::SiteRoot, image)},
                 {u"field", AnswerField(design)}});
}

Response CaptchaPage(Visit& visit, qint64 target, Design design, const QString& intro, bool refused) {
    const QString box = Fill(uR"(<div class="box notice"><h2>One more step</h2><div class="in">
<p>{intro}</p><form method="post" action="{action}" id="captchaForm">{!fields}
<p class="go"><input type="submit" class="button" id="addFrdBtn" name="addFrdBtn" value="Continue"></p>
</form></div></div>)",
                             {{u"intro", intro},
                              {u"fields", CaptchaFields(visit, target, design, refused)},
                              {u"action", u"http://"_s + visit.FullAddress()}});
    return Framed(visit, {.title = u"One more step"_s, .main = box, .tab = {}});
}

Response CaptchaImage(Visit& visit) {
    const qint64 asker = visit.account ? visit.account->id : 0;
    const qint64 target = visit.captures.value(0).section(u'-', 0, 0).toLongLong();
    Response image = Svg(CaptchaDrawing(visit.world.requests.CaptchaWord(asker, target),
                                        Mix(visit.world.seed, static_cast<quint64>(target), 8)));
    image.headers = {{u"Cache-Control"_s, u"no-store"_s}};
    return image;
}

std::optional<Response> CaptchaGate(Visit& visit) {
    const qint64 asker = visit.account ? visit.account->id : 0;
    const auto answer = SentAnswer(visit);
    const bool answered = visit.IsPost() && answer && visit.world.requests.CaptchaShown(asker, 0);
    if (answered && visit.world.requests.AnswerCaptcha(asker, 0, *answer))
        return std::nullopt;
    return CaptchaPage(visit, 0, Design::Newer, u"Please show that you are a person."_s, answered);
}

} // namespace qlm::practice
