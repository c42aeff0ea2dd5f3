// SPDX-License-Identifier: MIT
#include "ControlPages.h"

#include "../ControlLine.h"
#include "../Frame.h"

namespace qlm::practice {

namespace {

Response Lines(const QStringList& lines) {
    return PlainText(lines.isEmpty() ? QString() : lines.join(u'\n') + u'\n');
}

Response OnlyPost() {
    return PlainText(u"This address takes only POST.\n"_s, 405);
}

} // namespace

Response ControlPage(Visit& visit) {
    if (!visit.IsPost())
        return OnlyPost();
    for (const QString& line : QString::fromUtf8(visit.request.body).split(u'\n'))
        if (const QString wrong = RunControl(visit.world, line); !wrong.isEmpty())
            return PlainText(wrong + u'\n', 400);
    return PlainText(u"ok\n"_s);
}

Response JournalPage(Visit& visit) {
    return Lines(visit.world.journal.Lines());
}

Response JournalTake(Visit& visit) {
    return visit.IsPost() ? Lines(visit.world.journal.Take()) : OnlyPost();
}

} // namespace qlm::practice
