// SPDX-License-Identifier: MIT
#include "core/LineReader.h"

#include <algorithm>
#include <cstring>
#include <fcntl.h>
#include <utility>

namespace qlm {

namespace {
constexpr qint64 ChunkBytes = 1 << 18;
}

LineReader::LineReader(const QString& path) : m_path(path), m_file(path, O_RDONLY), m_left(m_file.Size()) {}

// A CR that ends the chunk tells only with the next whether an LF belongs to it.
qsizetype LineReader::FindEnd() const {
    const qsizetype feed = m_data.indexOf('\n', m_searched);
    const qsizetype until = feed < 0 ? m_data.size() : feed;
    const char* from = m_data.constData() + m_searched;
    const void* found = std::memchr(from, '\r', static_cast<size_t>(until - m_searched));
    const qsizetype end = found ? static_cast<const char*>(found) - m_data.constData() : feed;
    const bool isOpen = found && end + 1 == m_data.size() && m_left > 0;
    return isOpen ? -1 : end;
}

bool LineReader::Refill() {
    m_data.remove(0, m_start);
    m_start = 0;
    if (m_data.size() > LongestLine) {
        m_passedOver += m_isInside ? 0 : 1;
        m_isInside = true;
        m_data = m_data.last(1); // may be the CR of a line end
    }
    // Only what came last can be a line's end that was not told yet.
    m_searched = std::max<qsizetype>(0, m_data.size() - 1);
    const qsizetype held = m_data.size();
    const qint64 wanted = std::min(ChunkBytes, m_left);
    m_data.resize(held + wanted);
    const qint64 got = m_file.Read(m_data.data() + held, wanted);
    m_data.resize(held + got);
    m_left = got < wanted ? 0 : m_left - got;
    if (got > 0 && std::exchange(m_isFirst, false))
        m_start = m_searched = MarkLength(m_data, m_path);
    return got > 0;
}

std::optional<QByteArrayView> LineReader::TakeRest() {
    const QByteArrayView rest = QByteArrayView(m_data).sliced(m_start);
    m_start = m_searched = m_data.size();
    if (m_isInside || rest.isEmpty())
        return std::nullopt;
    return rest;
}

std::optional<QByteArrayView> LineReader::Next() {
    while (true) {
        const qsizetype end = FindEnd();
        if (end < 0) {
            if (!Refill() && FindEnd() < 0)
                return TakeRest();
            continue;
        }
        const QByteArrayView line = QByteArrayView(m_data).sliced(m_start, end - m_start);
        const bool isPair = m_data[end] == '\r' && end + 1 < m_data.size() && m_data[end + 1] == '\n';
        m_start = m_searched = end + (isPair ? 2 : 1);
        if (!std::exchange(m_isInside, false))
            return line;
    }
}

} // namespace qlm
