// SPDX-License-Identifier: MIT
#include "browser/ScriptValues.h"

#include "core/Text.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

// A null text when the mark isn't there.
QString Behind(const QString& text, const QString& mark, QChar end) {
    const qsizetype found = text.indexOf(mark, 0, Qt::CaseInsensitive);
    if (found < 0)
        return {};
    const qsizetype start = found + mark.size();
    const qsizetype stop = text.indexOf(end, start);
    return text.mid(start, stop < 0 ? -1 : stop - start);
}

} // namespace

QString ValueBehindFirstKey(const QString& script, const QString& key) {
    if (!Has(script, key + u':') && !Has(script, key + u"\":"_s))
        return {};
    return Behind(script, key, u',').remove(u':').remove(u'"').trimmed();
}

QString ReportedUserId(const QString& html) {
    return Behind(html, u"reportedUserId="_s, u'&').trimmed();
}

QString UserIdInPage(const QString& html) {
    return Behind(html, u"UserId:"_s, u',').remove(u'"').trimmed();
}

} // namespace qlm
