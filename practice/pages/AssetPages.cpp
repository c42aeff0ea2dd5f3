// SPDX-License-Identifier: MIT
#include "AssetPages.h"

#include "../Artwork.h"
#include "../Frame.h"
#include "NoticePages.h"

#include <QFile>
#include <stdexcept>

namespace qlm::practice {

namespace {

Response Asset(const QString& name, const QString& type) {
    QFile file(u":/practice/"_s + name);
    if (!file.open(QIODevice::ReadOnly))
        throw std::logic_error(name.toStdString() + " is not compiled in");
    Response response;
    response.contentType = type + u"; charset=utf-8"_s;
    response.headers.append({u"Cache-Control"_s, u"max-age=3600"_s});
    response.body = file.readAll();
    return response;
}

} // namespace

Response StyleSheet(Visit&) {
    return Asset(u"site.css"_s, u"text/css"_s);
}

Response FormScript(Visit&) {
    return Asset(u"forms.js"_s, u"text/javascript"_s);
}

Response RequestScript(Visit&) {
    return Asset(u"requests.js"_s, u"text/javascript"_s);
}

Response InviteScript(Visit&) {
    return Asset(u"invites.js"_s, u"text/javascript"_s);
}

Response Logo(Visit&) {
    return Svg(LogoDrawing());
}

Response PostButton(Visit&) {
    return Svg(PostDrawing());
}

Response Icon(Visit&) {
    return Svg(IconDrawing());
}

Response ProfilePicture(Visit& visit) {
    const Person* person = visit.world.people.Find(visit.captures.value(0).toLongLong());
    return person ? Svg(Portrait(*person)) : NotFound(visit);
}

Response BadgeImage(Visit& visit) {
    const QString file = visit.captures.value(0);
    if (file == u"comedy/mscomedy.gif")
        return Svg(ComedyBadge());
    if (file == u"button_invite_others.gif")
        return Svg(InviteDrawing());
    return file == u"film_logo.gif" ? Svg(FilmBadge()) : NotFound(visit);
}

} // namespace qlm::practice
