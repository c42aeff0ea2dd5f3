// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QString>
#include <algorithm>
#include <utility>

namespace qlm::practice {

/// Lengths of lists and of their pages that a control has set, by the name of the list's design.
class ListSizes {
public:
    static constexpr int longest = 5000;
    static constexpr int widest = 100000;

    void Set(const QString& name, int entries, int perPage) {
        m_sizes.insert(name, {std::min(entries, longest), std::clamp(perPage, 0, widest)});
    }
    int Entries(const QString& name, int otherwise) const {
        return m_sizes.value(name, {otherwise, 0}).first;
    }
    int PerPage(const QString& name, int otherwise) const {
        const int set = m_sizes.value(name).second;
        return set > 0 ? set : otherwise;
    }
    void Clear() { m_sizes.clear(); }

private:
    QHash<QString, std::pair<int, int>> m_sizes;
};

} // namespace qlm::practice
