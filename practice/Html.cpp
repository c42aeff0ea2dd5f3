// SPDX-License-Identifier: MIT
#include "Html.h"

#include <algorithm>
#include <stdexcept>

namespace qlm::practice {

using namespace Qt::Literals::StringLiterals;

QString Escape(const QString& text) {
    QString safe;
    safe.reserve(text.size() + 16);
    for (const QChar c : text) {
        switch (c.unicode()) {
        case u'&':
            safe += "&amp;"_L1;
            break;
        case u'<':
            safe += "&lt;"_L1;
            break;
        case u'>':
            safe += "&gt;"_L1;
            break;
        case u'"':
            safe += "&quot;"_L1;
            break;
        case u'\'':
            safe += "&#39;"_L1;
            break;
        default:
            safe += c;
        }
    }
    return safe;
}

QString Fill(QStringView page, std::initializer_list<std::pair<QStringView, QString>> values) {
    QString filled;
    qsizetype from = 0;
    for (qsizetype open = page.indexOf(u'{'); open >= 0; open = page.indexOf(u'{', from)) {
        const qsizetype close = page.indexOf(u'}', open);
        if (close < 0)
            throw std::logic_error("placeholder without an end");
        const bool markup = open + 1 < page.size() && page[open + 1] == u'!';
        const QStringView name = page.sliced(open + 1, close - open - 1).sliced(markup ? 1 : 0);
        const auto value =
            std::find_if(values.begin(), values.end(), [&](const auto& pair) { return pair.first == name; });
        if (value == values.end())
            throw std::logic_error("no value for {" + name.toString().toStdString() + "}");
        filled += page.sliced(from, open - from);
        filled += markup ? value->second : Escape(value->second);
        from = close + 1;
    }
    filled += page.sliced(from);
    return filled;
}

} // namespace qlm::practice
