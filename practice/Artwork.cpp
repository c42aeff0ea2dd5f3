// SPDX-License-Identifier: MIT
#include "Artwork.h"

#include "Chance.h"
#include "Html.h"

#include <algorithm>

namespace qlm::practice {

using namespace Qt::Literals::StringLiterals;

QString LogoDrawing() {
    return uR"-(<svg xmlns="http://www.w3.org/2000/svg" width="214" height="44" viewBox="0 0 214 44">
<g fill="#ffffff"><rect x="2" y="7" width="34" height="26" rx="8"/><path d="M10 30v11l11-9z"/></g>
<g fill="#2a6496"><circle cx="13" cy="18" r="3"/><circle cx="25" cy="18" r="3"/></g>
<path d="M12 24c4 5 10 5 14 0" fill="none" stroke="#f39c2d" stroke-width="3" stroke-linecap="round"/>
<text x="46" y="30" font-family="Verdana, DejaVu Sans, sans-serif" font-size="22" font-weight="bold"
 fill="#ffffff">Practice<tspan fill="#ffd28a">Site</tspan></text>
</svg>
)-"_s;
}

QString IconDrawing() {
    return uR"-(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 32 32">
<rect width="32" height="32" rx="7"
 fill="#2a6496"/><g fill="#fff"><circle cx="11" cy="13" r="3"/><circle cx="21" cy="13" r="3"/></g><path
 d="M9 19c4 6 10 6 14 0" fill="none" stroke="#f39c2d" stroke-width="3" stroke-linecap="round"/></svg>
)-"_s;
}

QString PostDrawing() {
    return uR"-(<svg xmlns="http://www.w3.org/2000/svg" width="128" height="28" viewBox="0 0 128 28">
<rect width="128" height="28" rx="5" fill="#e6861a"/>
<text x="64" y="19" text-anchor="middle" font-family="Verdana, DejaVu Sans, sans-serif" font-size="12"
 font-weight="bold" fill="#fff">Post A Comment</text></svg>
)-"_s;
}

QString InviteDrawing() {
    return uR"-(<svg xmlns="http://www.w3.org/2000/svg" width="128" height="28" viewBox="0 0 128 28">
<rect width="128" height="28" rx="5" fill="#4c7a3b"/>
<text x="64" y="19" text-anchor="middle" font-family="Verdana, DejaVu Sans, sans-serif" font-size="12"
 font-weight="bold" fill="#fff">Invite Others</text></svg>
)-"_s;
}

QString ComedyBadge() {
    return uR"-(<svg xmlns="http://www.w3.org/2000/svg" width="120" height="34" viewBox="0 0 120 34">
<rect width="120" height="34" rx="6" fill="#7a3b69"/><circle cx="18" cy="14" r="7" fill="#ffd28a"/>
<rect x="15" y="20" width="6" height="11" rx="2" fill="#d9d3e0"/>
<text x="34" y="22" font-family="Verdana, DejaVu Sans, sans-serif" font-size="14" fill="#fff">comedy</text>
</svg>
)-"_s;
}

QString FilmBadge() {
    return uR"-(<svg xmlns="http://www.w3.org/2000/svg" width="120" height="34" viewBox="0 0 120 34">
<rect width="120" height="34" rx="6" fill="#23404f"/><g fill="#f4f1e8">
<rect x="8" y="8" width="20" height="18" rx="2"/>
</g><path d="M14 12l9 5-9 5z" fill="#23404f"/>
<text x="38" y="22" font-family="Verdana, DejaVu Sans, sans-serif" font-size="14" fill="#fff">film</text>
</svg>
)-"_s;
}

QString CaptchaDrawing(const QString& word, quint64 look) {
    static constexpr QStringView inks[] = {u"#2a6496", u"#7a3b69", u"#2f6f4f", u"#8a4b1f"};
    Draw draw(look);
    const int stride = std::min(32, 220 / std::max(1, static_cast<int>(word.size())));
    QString letters;
    for (int i = 0; i < word.size(); ++i) {
        const int x = 24 + i * stride;
        const int y = 40 + draw.Below(13);
        const int turn = draw.Below(41) - 20;
        letters += Fill(
            uR"-(<text x="{x}" y="{y}" transform="rotate({turn} {x} {y})" fill="{ink}">{letter}</text>)-",
            {{u"x", QString::number(x)},
             {u"y", QString::number(y)},
             {u"turn", QString::number(turn)},
             {u"ink", draw.Pick(inks).toString()},
             {u"letter", QString(word[i])}});
    }
    QString strokes;
    for (int i = 0; i < 5; ++i)
        strokes += u"<path d=\"M0 %1C60 %2 140 %3 260 %4\"/>"_s.arg(draw.Below(64))
                       .arg(draw.Below(64))
                       .arg(draw.Below(64))
                       .arg(draw.Below(64));
    return Fill(uR"-(<svg xmlns="http://www.w3.org/2000/svg" width="260" height="64" viewBox="0 0 260 64">
<rect width="260" height="64" fill="#eef4f9"/><g fill="none" stroke="#9fb9cf" stroke-width="2">{!strokes}</g>
<g font-family="Georgia, DejaVu Serif, serif" font-size="34" font-weight="bold">{!letters}</g></svg>
)-",
                {{u"strokes", strokes}, {u"letters", letters}});
}

} // namespace qlm::practice
