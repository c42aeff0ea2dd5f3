// SPDX-License-Identifier: MIT
#include "core/IdList.h"

#include "core/AnsiText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>
#include <stdexcept>

namespace qlm {

namespace {

constexpr quint64 TextMark = quint64(1) << 63;
constexpr int LengthBits = 31;
constexpr quint64 LengthMask = (quint64(1) << LengthBits) - 1;
constexpr qsizetype MostDigits = 18;
constexpr size_t FirstSlots = 16;
// A usual one, with its line end.
constexpr qsizetype BytesOfAnId = 12;

bool IsNarrow(quint64 number) {
    return number < std::numeric_limits<quint32>::max();
}

} // namespace

template <typename Number> size_t NumberTable<Number>::Home(Number number) const {
    // The upper bits of the product are the well mixed ones.
    return static_cast<size_t>((quint64(number) * 0x9E3779B97F4A7C15ULL) >> 20) & (m_slots.size() - 1);
}

template <typename Number> bool NumberTable<Number>::Contains(Number number) const {
    if (m_slots.empty())
        return false;
    const Number wanted = number + 1;
    for (size_t at = Home(number); m_slots[at] != 0; at = (at + 1) & (m_slots.size() - 1))
        if (m_slots[at] == wanted)
            return true;
    return false;
}

template <typename Number> bool NumberTable<Number>::Insert(Number number) {
    if ((m_taken + 1) * 10 > m_slots.size() * 7)
        Grow();
    const Number wanted = number + 1;
    size_t at = Home(number);
    for (; m_slots[at] != 0; at = (at + 1) & (m_slots.size() - 1))
        if (m_slots[at] == wanted)
            return false;
    m_slots[at] = wanted;
    ++m_taken;
    return true;
}

// What stands behind the gap and would no longer be found moves into it.
template <typename Number> void NumberTable<Number>::Remove(Number number) {
    if (!Contains(number))
        return;
    const size_t mask = m_slots.size() - 1;
    size_t gap = Home(number);
    while (m_slots[gap] != number + 1)
        gap = (gap + 1) & mask;
    for (size_t at = (gap + 1) & mask; m_slots[at] != 0; at = (at + 1) & mask) {
        const size_t home = Home(m_slots[at] - 1);
        if (((at - home) & mask) >= ((at - gap) & mask)) {
            m_slots[gap] = m_slots[at];
            gap = at;
        }
    }
    m_slots[gap] = 0;
    --m_taken;
}

template <typename Number> void NumberTable<Number>::Grow() {
    const std::vector<Number> old = std::move(m_slots);
    m_slots.assign(std::max(FirstSlots, old.size() * 2), 0);
    m_taken = 0;
    for (const Number slot : old)
        if (slot != 0)
            Insert(slot - 1);
}

template class NumberTable<quint32>;
template class NumberTable<quint64>;

IdList::IdList(std::initializer_list<QString> texts) {
    for (const QString& text : texts)
        append(text);
}

IdList::IdList(const QStringList& texts) {
    for (const QString& text : texts)
        append(text);
}

// Only a text that its number gives back exactly: no sign, no leading zero.
std::optional<IdList::Key> IdList::NumberOf(QStringView text) {
    if (text.isEmpty() || text.size() > MostDigits || (text[0] == u'0' && text.size() > 1))
        return std::nullopt;
    Key number = 0;
    for (const QChar c : text) {
        if (c < u'0' || c > u'9')
            return std::nullopt;
        number = number * 10 + (c.unicode() - u'0');
    }
    return number;
}

IdList::Key IdList::KeyOf(const QString& text) {
    if (const std::optional<Key> number = NumberOf(text))
        return *number;
    const QByteArray bytes = text.toUtf8();
    if (quint64(bytes.size()) > LengthMask || quint64(m_texts.size()) >> (63 - LengthBits) != 0)
        throw std::length_error("The list holds too much text");
    const Key key = TextMark | quint64(m_texts.size()) << LengthBits | quint64(bytes.size());
    m_texts += bytes;
    return key;
}

QByteArrayView IdList::BytesOf(Key key) const {
    return QByteArrayView(m_texts).sliced(static_cast<qsizetype>((key & ~TextMark) >> LengthBits),
                                          static_cast<qsizetype>(key & LengthMask));
}

QString IdList::TextOf(Key key) const {
    if ((key & TextMark) == 0)
        return QString::number(key);
    const QByteArrayView bytes = BytesOf(key);
    return bytes.isEmpty() ? QString() : QString::fromUtf8(bytes);
}

bool IdList::IsBlank(qsizetype i) const {
    return (m_keys.at(i) & TextMark) != 0 && (m_keys.at(i) & LengthMask) == 0;
}

void IdList::append(const QString& text) {
    m_keys.append(KeyOf(text));
    Enter(m_keys.constLast());
}

void IdList::Set(qsizetype i, const QString& text) {
    Leave(m_keys.at(i));
    m_keys[i] = KeyOf(text);
    Enter(m_keys.at(i));
}

void IdList::removeAt(qsizetype i) {
    Leave(m_keys.at(i));
    m_keys.removeAt(i);
}

void IdList::resize(qsizetype size) {
    while (m_keys.size() > size)
        removeAt(m_keys.size() - 1);
    while (m_keys.size() < size)
        append({});
}

void IdList::BuildIndex() const {
    m_index.emplace();
    for (const Key key : m_keys)
        Enter(key);
}

void IdList::Enter(Key key) const {
    if (!m_index)
        return;
    if ((key & TextMark) != 0) {
        ++m_index->texts[BytesOf(key).toByteArray()];
        return;
    }
    const bool isNew =
        IsNarrow(key) ? m_index->narrow.Insert(static_cast<quint32>(key)) : m_index->wide.Insert(key);
    if (!isNew)
        ++m_index->repeats[key];
}

void IdList::Leave(Key key) {
    if (!m_index)
        return;
    if ((key & TextMark) != 0) {
        const QByteArray bytes = BytesOf(key).toByteArray();
        if (--m_index->texts[bytes] == 0)
            m_index->texts.remove(bytes);
    } else if (const auto repeats = m_index->repeats.find(key); repeats != m_index->repeats.end()) {
        if (--*repeats == 0)
            m_index->repeats.erase(repeats);
    } else if (IsNarrow(key)) {
        m_index->narrow.Remove(static_cast<quint32>(key));
    } else {
        m_index->wide.Remove(key);
    }
}

bool IdList::contains(const QString& text) const {
    if (!m_index)
        BuildIndex();
    const std::optional<Key> number = NumberOf(text);
    if (!number)
        return m_index->texts.contains(text.toUtf8());
    return IsNarrow(*number) ? m_index->narrow.Contains(static_cast<quint32>(*number))
                             : m_index->wide.Contains(*number);
}

qsizetype IdList::indexOf(const QString& text) const {
    if (const std::optional<Key> number = NumberOf(text))
        return m_keys.indexOf(*number);
    const QByteArray bytes = text.toUtf8();
    const auto found = std::find_if(m_keys.begin(), m_keys.end(),
                                    [&](Key key) { return (key & TextMark) != 0 && BytesOf(key) == bytes; });
    return found == m_keys.end() ? -1 : found - m_keys.begin();
}

QStringList IdList::ToStringList(qsizetype limit) const {
    const qsizetype count = limit < 0 ? size() : std::min(limit, size());
    QStringList texts;
    texts.reserve(count);
    for (qsizetype i = 0; i < count; ++i)
        texts.append(at(i));
    return texts;
}

// The window waits while a list of a million is saved; so no number becomes a text on the way.
QByteArray IdList::Lines(qsizetype first, qsizetype end) const {
    QByteArray lines;
    lines.reserve((end - first) * BytesOfAnId);
    std::array<char, 4096> block{};
    char* to = block.data();
    auto flush = [&] {
        lines.append(block.data(), to - block.data());
        to = block.data();
    };
    for (qsizetype i = first; i < end; ++i) {
        const Key key = m_keys.at(i);
        if (block.data() + block.size() - to < MostDigits + 2)
            flush();
        if ((key & TextMark) == 0) {
            to = std::to_chars(to, to + MostDigits, key).ptr;
        } else {
            flush();
            lines += ToAnsi(TextOf(key));
        }
        *to++ = '\r';
        *to++ = '\n';
    }
    flush();
    return lines;
}

bool IdList::operator==(const QStringList& texts) const {
    if (size() != texts.size())
        return false;
    for (qsizetype i = 0; i < size(); ++i)
        if (at(i) != texts.at(i))
            return false;
    return true;
}

} // namespace qlm
