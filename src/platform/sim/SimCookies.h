// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <map>
#include <tuple>

namespace qlm {

// The cookies of all simulated browsers, for one session. A cookie with a Domain= goes to that domain and all
// below it, one without goes to its own host alone.
class SimCookies {
public:
    // `header` as in Set-Cookie: "name=value; Domain=.example.com; Path=/; Max-Age=0".
    void Take(const QString& host, const QString& header);
    // The Cookie header for a request to that host; empty when there is none.
    QString For(const QString& host) const;
    void Clear() { m_values.clear(); }

private:
    struct Key {
        QString domain; // with a leading dot when hosts below are meant too
        QString name;
        bool operator<(const Key& other) const {
            return std::tie(domain, name) < std::tie(other.domain, other.name);
        }
    };
    std::map<Key, QString> m_values;
};

} // namespace qlm
