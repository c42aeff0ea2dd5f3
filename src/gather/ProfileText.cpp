// SPDX-License-Identifier: MIT
#include "gather/ProfileText.h"

#include "core/ProductServer.h"
#include "core/Text.h"

#include <QRegularExpression>
#include <QStringList>
#include <optional>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

qsizetype Find(const QString& text, const QString& part, qsizetype from = 0) {
    return text.indexOf(part, from, Qt::CaseInsensitive);
}

// What stands between two positions; "" when one of them is none.
QString Cut(const QString& text, qsizetype start, qsizetype end) {
    return start < 0 || end < start ? QString() : text.mid(start, end - start);
}

QString Behind(const QString& text, const QString& key, const QString& end) {
    const qsizetype at = Find(text, key);
    return at < 0 ? QString() : Cut(text, at + key.size(), Find(text, end, at + key.size())).trimmed();
}

QString AgeOfSpan(const QString& html) {
    qsizetype at = Find(html, u"class=\"age\""_s);
    if (at < 0)
        at = Find(html, u"class=age"_s);
    const qsizetype close = at < 0 ? -1 : html.indexOf(u'>', at);
    return close < 0 ? QString() : Cut(html, close + 1, html.indexOf(u'<', close)).trimmed();
}

QString AgeOfText(const QString& text) {
    const qsizetype at = Find(text, u" years old"_s);
    return at < 0 ? QString() : text.mid(std::max<qsizetype>(at - 2, 0), std::min<qsizetype>(at, 2));
}

QString NewLayoutBlock(const QString& html) {
    qsizetype at = Find(html, u"UserBasicInformation"_s);
    for (int breaks = 0; breaks < 2 && at >= 0; ++breaks)
        at = Find(html, u"<br>"_s, at + 1);
    return at < 0 ? QString() : Cut(html, at, Find(html, u"profile views"_s, at));
}

QString ClassicBlock(const QString& html) {
    const qsizetype info = Find(html, u"profileInfo"_s);
    const qsizetype male = info < 0 ? -1 : Find(html, u"male"_s, info + 10);
    if (male >= 0)
        return Cut(html, male + 10, Find(html, u"last login"_s, male + 10));
    qsizetype start = Find(html, u"profileDemographics"_s);
    if (start < 0)
        return {};
    start += 19;
    const QString block = Cut(html, start, Find(html, u"last login"_s, start));
    return block.isEmpty() ? Cut(html, start, Find(html, u"profileDemographicsEnd"_s, start)) : block;
}

std::optional<qint64> DaysSince(const QDate& today, int year, int month, int day) {
    const QDate date(year, month, day);
    return date.isValid() ? std::optional(date.daysTo(today)) : std::nullopt;
}

} // namespace

QString GetProfileAge(const QString& text, const QString& html) {
    QString age = Behind(html, u"&quot;Age: "_s, u"&quot"_s);
    if (!IsNumeric(age))
        age = Behind(html, u"\"Age: "_s, u","_s);
    if (!IsNumeric(age))
        age = AgeOfSpan(html);
    return IsNumeric(age) ? age : AgeOfText(text);
}

QString GetBasicInfoBlock(const QString& html, bool newLayout) {
    const QString block = newLayout ? NewLayoutBlock(html) : ClassicBlock(html);
    if (!block.isEmpty())
        return block;
    const qsizetype gender = Find(html, u"gender"_s);
    return gender < 0 ? QString() : Cut(html, gender, Find(html, u"/ul"_s, gender));
}

bool HoldsOnePlace(const QString& block, const QString& places) {
    for (const QString& part : places.split(u','))
        if (const QString place = part.trimmed(); !place.isEmpty() && Has(block, place))
            return true;
    return false;
}

// The third test lets a line that begins with a blank and "female" count for men too; that is how it has
// always been.
bool SaysMale(const QString& text, const QString& html) {
    return Has(html, u">Male"_s) || Has(text, u"\n male"_s) || Has(text, u"\n female"_s) ||
           Has(html, u"gender&quot;:&quot;Male"_s) || Has(html, u"gender\":\"Male"_s);
}

bool SaysFemale(const QString& text, const QString& html) {
    return Has(html, u">Female<"_s) || Has(text, u"\n female"_s) || Has(text, u"\nfemale"_s) ||
           Has(html, u"gender&quot;:&quot;Female"_s) || Has(html, u"gender\":\"Female"_s);
}

bool SaysOnline(const QString& html) {
    const qsizetype start = Find(html, u"last login:"_s) - 150;
    // A mark at the very beginning of the page is none.
    if (start < 11)
        return false;
    const qsizetype end = Find(html, u"<a"_s, start);
    return Has(html.mid(start, end < 0 ? -1 : end - start), u"userOnline"_s);
}

QString LastLoginText(const QString& html) {
    const QString key = u"Last Login:"_s;
    qsizetype start = Find(html, key);
    if (start < 0)
        return {};
    start += key.size();
    if (html.mid(start, 6).contains(u'<')) {
        const qsizetype close = html.indexOf(u'>', start);
        start = close < 0 ? start : close + 1;
    }
    qsizetype end = html.indexOf(u'<', start);
    if (end < 0 || end - start > 100)
        end = Find(html, u"<span"_s, start);
    static const QRegularExpression noise(u"[\\t\\r\\n]|&nbsp;|</span>|<LI>"_s,
                                          QRegularExpression::CaseInsensitiveOption);
    return html.mid(start, end < 0 ? -1 : end - start).remove(noise).trimmed();
}

bool LastLoginWithin(const QString& dateText, const QDate& today, int days) {
    static const QRegularExpression parts(u"^(\\d{1,2})[/.-](\\d{1,2})[/.-](\\d{4}|\\d{2})(?:\\s.*)?$"_s);
    const QRegularExpressionMatch match = parts.match(dateText);
    if (!match.hasMatch()) {
        const std::optional<QDate> date = ParseDate(dateText);
        return date && date->daysTo(today) <= days;
    }
    const int first = match.captured(1).toInt();
    const int second = match.captured(2).toInt();
    const int shortYear = match.captured(3).toInt();
    const int year = shortYear < 100 ? 2000 + shortYear : shortYear;
    const std::optional<qint64> monthFirst = DaysSince(today, year, first, second);
    const std::optional<qint64> dayFirst = DaysSince(today, year, second, first);
    return (monthFirst && *monthFirst <= days) || (dayFirst && *dayFirst <= days);
}

} // namespace qlm
