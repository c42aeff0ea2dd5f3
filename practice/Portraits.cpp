// SPDX-License-Identifier: MIT
#include "Artwork.h"

#include "Chance.h"
#include "Html.h"
#include "People.h"

namespace qlm::practice {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QStringView grounds[] = {u"#cfe3f2", u"#f7dfc2", u"#d9ecd3", u"#f3d3d8",
                                   u"#e2daf0", u"#fbeec0", u"#cdeae6"};
constexpr QStringView shirts[] = {u"#2a6496", u"#c2553b", u"#3d8361", u"#8a5a9e",
                                  u"#d98b2b", u"#3c4a5a", u"#b8476b"};
constexpr QStringView skins[] = {u"#f6d3b8", u"#eabf98", u"#d9a577", u"#b57f54", u"#8a5a3a", u"#6b4430"};
constexpr QStringView hairs[] = {u"#2e2320", u"#5a3a22", u"#8b5a2b", u"#c98a3d",
                                 u"#e3c26b", u"#a33b20", u"#9a9a9a"};

// Drawn behind the head, "{hair}" being its colour.
constexpr QStringView longHair[] = {
    uR"-(<path d="M30 58c0-28 12-42 30-42s30 14 30 42v36H30z" fill="{hair}"/>)-",
    uR"-(<ellipse cx="60" cy="56" rx="33" ry="38" fill="{hair}"/>)-",
    uR"-(<circle cx="60" cy="17" r="12" fill="{hair}"/>
<path d="M33 58c0-26 11-38 27-38s27 12 27 38z" fill="{hair}"/>)-",
};
constexpr QStringView shortHair[] = {
    uR"-(<path d="M34 56c-2-26 9-38 26-38s28 12 26 38z" fill="{hair}"/>)-",
    uR"-(<g fill="{hair}"><circle cx="42" cy="34" r="12"/><circle cx="56" cy="26" r="13"/>
<circle cx="72" cy="28" r="12"/><circle cx="80" cy="40" r="10"/><circle cx="37" cy="46" r="9"/></g>)-",
    uR"-(<path d="M35 50l4-26 12 6 8-12 10 10 13-6 3 28z" fill="{hair}"/>)-",
};
// Drawn over the forehead.
constexpr QStringView fringes[] = {
    uR"-(<path d="M37 50c2-18 12-25 23-25s21 7 23 25c-8-9-14-12-23-12s-16 3-23 12z" fill="{hair}"/>)-",
    uR"-(<path d="M37 50c0-20 12-27 25-26 12 0 20 8 21 26-6-6-9-9-12-15-8 8-20 12-34 15z" fill="{hair}"/>)-",
};
constexpr QStringView extras[] = {
    u"",
    u"",
    u"",
    uR"-(<g fill="none" stroke="#333c46" stroke-width="2"><circle cx="51" cy="56" r="7"/>
<circle cx="69" cy="56" r="7"/><path d="M58 56h4"/></g>)-",
    uR"-(<g fill="#e2725b" opacity=".35"><circle cx="46" cy="65" r="5"/><circle cx="74" cy="65" r="5"/>
</g>)-",
};
constexpr QStringView beard =
    uR"-(<path d="M38 60c0 18 10 25 22 25s22-7 22-25c-3 8-8 9-22 9s-19-1-22-9z" fill="{hair}"/>)-";

// One scene for each trade; "{ink}" is the shirt colour of the draw.
constexpr QStringView bandScenes[] = {
    uR"-(<circle cx="60" cy="60" r="40" fill="#26282c"/>
<circle cx="60" cy="60" r="30" fill="none" stroke="#44484e" stroke-width="2"/>
<circle cx="60" cy="60" r="22" fill="none" stroke="#44484e" stroke-width="2"/>
<circle cx="60" cy="60" r="14" fill="{ink}"/><circle cx="60" cy="60" r="3" fill="#fff"/>)-",
    uR"-(<g transform="rotate(40 60 60)"><rect x="56" y="4" width="8" height="62" fill="#5a3a22"/>
<path d="M60 58c16-6 26 4 22 16 10 16-4 32-22 32s-32-16-22-32c-4-12 6-22 22-16z" fill="{ink}"/>
<circle cx="60" cy="80" r="9" fill="#2e2320"/><path d="M60 6v92" stroke="#f4f1e8" stroke-width="1.5"/>
</g>)-",
    uR"-(<rect x="18" y="44" width="84" height="40" rx="5" fill="{ink}"/><g fill="#fff">
<rect x="24" y="56" width="10" height="24"/><rect x="36" y="56" width="10" height="24"/>
<rect x="48" y="56" width="10" height="24"/><rect x="60" y="56" width="10" height="24"/>
<rect x="72" y="56" width="10" height="24"/><rect x="84" y="56" width="10" height="24"/></g>
<g fill="#26282c"><rect x="31" y="56" width="7" height="14"/><rect x="43" y="56" width="7" height="14"/>
<rect x="67" y="56" width="7" height="14"/><rect x="79" y="56" width="7" height="14"/></g>)-",
    uR"-(<ellipse cx="60" cy="52" rx="36" ry="12" fill="#f4f1e8"/>
<path d="M24 52v32c0 8 16 14 36 14s36-6 36-14V52c0 8-16 13-36 13s-36-5-36-13z" fill="{ink}"/>
<path d="M20 24l36 26M100 24L64 50" stroke="#8b5a2b" stroke-width="5" stroke-linecap="round"/>)-",
};
constexpr QStringView comedianScene =
    uR"-(<path d="M0 0h24c0 50-8 90-24 120zM120 0H96c0 50 8 90 24 120z" fill="{ink}"/>
<circle cx="60" cy="42" r="17" fill="#44484e"/>
<path d="M47 34h26M45 42h30M47 50h26" stroke="#8d939b" stroke-width="2"/>
<path d="M53 58h14l-3 44h-8z" fill="#26282c"/>)-";
constexpr QStringView filmScene = uR"-(<rect x="20" y="48" width="80" height="50" rx="5" fill="#26282c"/>
<g transform="rotate(-12 20 46)"><rect x="20" y="30" width="80" height="14" rx="3" fill="#26282c"/>
<path d="M30 30h12l-8 14H22zM54 30h12l-8 14H46zM78 30h12l-8 14H70z" fill="#f4f1e8"/></g>
<path d="M52 60l22 13-22 13z" fill="{ink}"/>)-";

QString Head(const Person& person, Draw& draw) {
    const QString skin = draw.Pick(skins).toString();
    const QString hair = draw.Pick(hairs).toString();
    const QStringView back = person.male ? draw.Pick(shortHair) : draw.Pick(longHair);
    const QStringView fringe = draw.Pick(fringes);
    const QStringView extra = draw.Pick(extras);
    const bool bearded = person.male && draw.Percent(35);
    return Fill(uR"-({!back}<path d="M14 122c0-24 20-34 46-34s46 10 46 34z" fill="{shirt}"/>
<rect x="51" y="72" width="18" height="22" rx="9" fill="{skin}"/>
<ellipse cx="60" cy="56" rx="23" ry="27" fill="{skin}"/>
{!beard}{!fringe}<g fill="#26282c"><circle cx="51" cy="56" r="2.6"/><circle cx="69" cy="56" r="2.6"/></g>
<path d="M51 69c5 6 13 6 18 0" fill="none" stroke="#7a2f2a" stroke-width="2.4"
 stroke-linecap="round"/>{!extra})-",
                {{u"back", Fill(back, {{u"hair", hair}})},
                 {u"shirt", draw.Pick(shirts).toString()},
                 {u"skin", skin},
                 {u"beard", bearded ? Fill(beard, {{u"hair", hair}}) : QString()},
                 {u"fringe", Fill(fringe, {{u"hair", hair}})},
                 {u"extra", extra.toString()}});
}

QString Scene(const Person& person, Draw& draw) {
    const QString ink = draw.Pick(shirts).toString();
    if (person.kind == Person::Kind::Band)
        return Fill(draw.Pick(bandScenes), {{u"ink", ink}});
    return Fill(person.kind == Person::Kind::Film ? filmScene : comedianScene, {{u"ink", ink}});
}

} // namespace

QString Portrait(const Person& person) {
    Draw draw(person.look);
    const QString ground = draw.Pick(grounds).toString();
    return Fill(uR"-(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 120 120">
<rect width="120" height="120"
 fill="{ground}"/><circle cx="60" cy="66" r="52" fill="#fff" opacity=".35"/>{!scene}</svg>
)-",
                {{u"ground", ground},
                 {u"scene", person.kind == Person::Kind::Person ? Head(person, draw) : Scene(person, draw)}});
}

} // namespace qlm::practice
