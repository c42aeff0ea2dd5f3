// SPDX-License-Identifier: MIT
#include "Expect.h"
#include "Arguments.h"

namespace qlm::scenario {

using namespace Qt::Literals::StringLiterals;

namespace {

QString Quoted(QString text) {
    return u'"' + text.replace(u"\n"_s, u"\\n"_s) + u'"';
}

} // namespace

void ExpectText(const QString& what, const QString& expected, const QString& seen) {
    if (seen != expected)
        Fail(u"%1 is %2, expected %3"_s.arg(what, Quoted(seen), Quoted(expected)));
}

void ExpectLines(const QString& what, const QStringList& expected, const QStringList& seen) {
    for (qsizetype i = 0; i < std::max(expected.size(), seen.size()); ++i) {
        if (i >= expected.size())
            Fail(u"%1 has a line more, line %2: %3"_s.arg(what).arg(i + 1).arg(Quoted(seen[i])));
        if (i >= seen.size())
            Fail(u"%1 lacks line %2: %3"_s.arg(what).arg(i + 1).arg(Quoted(expected[i])));
        if (expected[i] != seen[i])
            Fail(u"%1, line %2, is %3, expected %4"_s.arg(what).arg(i + 1).arg(Quoted(seen[i]),
                                                                               Quoted(expected[i])));
    }
}

} // namespace qlm::scenario
