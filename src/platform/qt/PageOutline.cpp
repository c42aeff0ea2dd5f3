// SPDX-License-Identifier: MIT
#include "platform/qt/PageOutline.h"

#include <algorithm>
#include <array>
#include <functional>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::array voidElements = {
    "area"_L1,  "base"_L1,  "basefont"_L1, "bgsound"_L1, "br"_L1,    "col"_L1,
    "embed"_L1, "frame"_L1, "hr"_L1,       "img"_L1,     "input"_L1, "keygen"_L1,
    "link"_L1,  "meta"_L1,  "param"_L1,    "source"_L1,  "track"_L1, "wbr"_L1,
};

// Their text is written as it is, "<" and all.
constexpr std::array rawElements = {
    "script"_L1,  "style"_L1,    "xmp"_L1,       "iframe"_L1,
    "noembed"_L1, "noframes"_L1, "plaintext"_L1, "noscript"_L1,
};

bool IsOneOf(QStringView name, const auto& names) {
    return std::any_of(names.begin(), names.end(), [name](QLatin1StringView known) { return name == known; });
}

QString Unescaped(QStringView value) {
    QString text = value.toString();
    if (!text.contains(u'&'))
        return text;
    text.replace(u"&quot;"_s, u"\""_s).replace(u"&nbsp;"_s, QString(QChar(0xa0)));
    text.replace(u"&lt;"_s, u"<"_s).replace(u"&gt;"_s, u">"_s);
    return text.replace(u"&amp;"_s, u"&"_s);
}

// One attribute of an opening tag; at stands past it afterwards. The name may begin with a "=".
struct WrittenAttribute {
    QStringView name;
    QStringView value;
};

std::optional<WrittenAttribute> NextAttribute(QStringView markup, qsizetype& at) {
    if (at + 1 >= markup.size() || markup[at] != u' ')
        return std::nullopt;
    const qsizetype equals = markup.indexOf(u"=\"", at + 2);
    const qsizetype close = equals < 0 ? -1 : markup.indexOf(u'"', equals + 2);
    if (close < 0)
        return std::nullopt;
    const WrittenAttribute attribute{markup.sliced(at + 1, equals - at - 1),
                                     markup.sliced(equals + 2, close - equals - 2)};
    at = close + 1;
    return attribute;
}

} // namespace

// Walks through the markup once. Every tag that is not the engine's own way of writing ends the walk.
class PageOutline::Reader {
public:
    explicit Reader(PageOutline& outline) : m_outline(outline), m_markup(outline.m_markup) {}

    bool Read() {
        do {
            m_at = m_markup.indexOf(u'<', m_at);
            if (m_at < 0 || !ReadTag())
                return false;
        } while (!m_open.empty());
        return m_at == m_markup.size();
    }

private:
    struct Open {
        int place; // -1 inside a template
        QStringView name;
    };

    bool ReadTag() {
        const QStringView rest = m_markup.sliced(m_at);
        if (rest.startsWith(u"<!--"))
            return SkipTo(u"-->", 4);
        if (rest.startsWith(u"<?"))
            return SkipTo(u">", 2);
        return rest.startsWith(u"</") ? CloseElement() : OpenElement();
    }

    bool SkipTo(QStringView end, qsizetype from) {
        const qsizetype found = m_markup.indexOf(end, m_at + from);
        m_at = found + end.size();
        return found >= 0;
    }

    bool CloseElement() {
        const qsizetype end = m_markup.indexOf(u'>', m_at);
        if (end < 0 || m_open.empty() || m_markup.sliced(m_at + 2, end - m_at - 2) != m_open.back().name)
            return false;
        const Open closed = m_open.back();
        m_open.pop_back();
        if (closed.name == u"template")
            --m_templates;
        if (closed.place >= 0) {
            Part& part = m_outline.m_elements[static_cast<size_t>(closed.place)];
            part.innerEnd = static_cast<int>(m_at);
            part.end = static_cast<int>(end) + 1;
        }
        m_at = end + 1;
        return true;
    }

    bool OpenElement() {
        qsizetype at = m_at + 1;
        while (at < m_markup.size() && m_markup[at] != u' ' && m_markup[at] != u'>')
            ++at;
        const QStringView name = m_markup.sliced(m_at + 1, at - m_at - 1);
        const qsizetype nameEnd = at;
        while (NextAttribute(m_markup, at)) {
        }
        if (name.isEmpty() || at >= m_markup.size() || m_markup[at] != u'>')
            return false;
        ++at;
        const int place = m_templates > 0 ? -1 : static_cast<int>(m_outline.m_elements.size());
        if (place >= 0)
            m_outline.m_elements.push_back({m_open.empty() ? -1 : m_open.back().place, static_cast<int>(m_at),
                                            static_cast<int>(nameEnd), static_cast<int>(at),
                                            static_cast<int>(at), static_cast<int>(at)});
        m_at = at;
        if (IsOneOf(name, voidElements))
            return true;
        m_open.push_back({place, name});
        if (name == u"template")
            ++m_templates;
        if (IsOneOf(name, rawElements))
            m_at = m_markup.indexOf(u"</%1>"_s.arg(name), m_at);
        return m_at >= 0;
    }

    PageOutline& m_outline;
    const QStringView m_markup;
    qsizetype m_at = 0;
    std::vector<Open> m_open;
    int m_templates = 0;
};

PageOutline::PageOutline(QString markup) : m_markup(std::move(markup)) {
    m_isSound = Reader(*this).Read();
}

QStringView PageOutline::Name(const Part& part) const {
    return QStringView(m_markup).sliced(part.start + 1, part.nameEnd - part.start - 1);
}

QString PageOutline::Outer(int place) const {
    const Part& part = At(place);
    return m_markup.mid(part.start, part.end - part.start);
}

QString PageOutline::Inner(int place) const {
    const Part& part = At(place);
    return m_markup.mid(part.innerStart, part.innerEnd - part.innerStart);
}

std::optional<QString> PageOutline::Attribute(int place, const QString& name) const {
    const Part& part = At(place);
    const QStringView tag = QStringView(m_markup).first(part.innerStart);
    qsizetype at = part.nameEnd;
    while (const auto attribute = NextAttribute(tag, at))
        if (attribute->name.compare(name, Qt::CaseInsensitive) == 0)
            return Unescaped(attribute->value);
    return std::nullopt;
}

int PageOutline::WithId(const QString& id) {
    if (!m_ids) {
        m_ids.emplace();
        for (int place = 0; place < static_cast<int>(Count()); ++place)
            if (const auto own = Attribute(place, u"id"_s); own && !m_ids->contains(*own))
                m_ids->insert(*own, place);
    }
    return id.isEmpty() ? -1 : m_ids->value(id, -1);
}

} // namespace qlm
