// SPDX-License-Identifier: MIT
#include "MiniProfile.h"

#include "Html.h"

#include <algorithm>

namespace qlm::practice {

namespace {

QString MessageAction(const Person& person) {
    if (person.vanity.isEmpty())
        return Fill(
            uR"-(<p class="act"><a href="{url}{id}">Send Message</a></p>)-",
            {{u"url", Url(Role::SiteRoot, u"/my/mail/new?t="_s)}, {u"id", QString::number(person.id)}});
    return Fill(
        uR"-(<form class="act" action="{url}" method="get"><input type="hidden" name="t" value="{id}">)-"
        uR"-(<button type="submit">Send Message</button></form>)-",
        {{u"url", Url(Role::SiteRoot, u"/my/mail/new"_s)}, {u"id", QString::number(person.id)}});
}

QString Facts(const Person& person) {
    if (person.kind == Person::Kind::Person)
        return Fill(u"{gender}, Age: {age}", {{u"gender", person.male ? u"Male"_s : u"Female"_s},
                                              {u"age", QString::number(person.age)}});
    if (person.kind == Person::Kind::Band)
        return Escape(u"Band, "_s + person.genre);
    return person.kind == Person::Kind::Film ? u"Film"_s : u"Comedian"_s;
}

QString PageLink(const Pager& pager, int page) {
    if (page == pager.page)
        return u"<li class=\"here\">%1</li>"_s.arg(page);
    return Fill(uR"-(<li><a href="{base}{n}" title="page {n}">{n}</a></li>)-",
                {{u"base", pager.base}, {u"n", QString::number(page)}});
}

QString Gap(int before, int behind) {
    return behind > before + 1 ? u"<li class=\"gap\">&hellip;</li>"_s : QString();
}

} // namespace

QString MiniProfile(const Person& person) {
    return Fill(uR"-(<div class="miniProfile">
<div class="pic"><a href="{url}"><img src="{picture}" width="72" height="72" alt=""></a></div>
<div class="who"><a href="{url}">{name}</a><p>{!facts}</p><p>{town}, {region}</p>{!online}{!message}</div>
</div>
)-",
                {{u"url", ProfileUrl(person)},
                 {u"picture", PictureUrl(person)},
                 {u"name", person.name},
                 {u"facts", Facts(person)},
                 {u"town", person.town},
                 {u"region", person.region},
                 {u"online", person.online ? u"<p class=\"on\">Online Now!</p>"_s : QString()},
                 {u"message", MessageAction(person)}});
}

QString Face(const Person& person) {
    return Fill(
        uR"-(<div class="face"><a href="{url}"><img src="{picture}" width="72" height="72" alt="">
<span>{name}</span></a></div>
)-",
        {{u"url", ProfileUrl(person)}, {u"picture", PictureUrl(person)}, {u"name", FirstName(person)}});
}

QString PictureUrl(const Person& person) {
    return Url(Role::SiteRoot, u"/pictures/%1.svg"_s.arg(person.id));
}

QString PagerMarkup(const Pager& pager) {
    QString links;
    if (pager.page > 1)
        links += Fill(uR"-(<li><a class="pageBtn" href="{base}{n}" title="previous page">Previous</a></li>)-",
                      {{u"base", pager.base}, {u"n", QString::number(pager.page - 1)}});
    const int first = std::max(1, pager.page - 3);
    const int last = std::min(pager.pages, pager.page + 3);
    if (first > 1)
        links += PageLink(pager, 1) + Gap(1, first);
    for (int page = first; page <= last; ++page)
        links += PageLink(pager, page);
    if (last < pager.pages)
        links += Gap(last, pager.pages) + PageLink(pager, pager.pages);
    if (pager.page < pager.pages)
        links +=
            Fill(uR"-(<li><a class="pageBtn nextBtn" href="{base}{n}" title="next page">{caption}</a></li>)-",
                 {{u"base", pager.base},
                  {u"n", QString::number(pager.page + 1)},
                  {u"caption", pager.nextCaption}});
    else
        links += Fill(uR"-(<li><a class="pageBtn nextBtn disabled disablePaging" href="javascript:void(0)" )-"
                      uR"-(title="next page">{caption}</a></li>)-",
                      {{u"caption", pager.nextCaption}});
    return u"<div class=\"pager\"><ul>"_s + links + u"</ul></div>\n"_s;
}

} // namespace qlm::practice
