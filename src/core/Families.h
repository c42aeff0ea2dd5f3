// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <stdexcept>
#include <utility>
#include <vector>

namespace qlm {

// The families of routines, one object each, found by their type. The roof makes them; who calls one includes
// its header and nothing of the others.
class Families {
public:
    Families() = default;
    Families(const Families&) = delete;
    Families& operator=(const Families&) = delete;
    // The newest goes first.
    ~Families() {
        while (!m_owners.empty())
            m_owners.pop_back();
    }

    template <typename T, typename... Arguments> T& Make(Arguments&&... arguments) {
        auto family = std::make_shared<T>(std::forward<Arguments>(arguments)...);
        m_owners.push_back(family);
        const size_t number = Number<T>();
        if (m_places.size() <= number)
            m_places.resize(number + 1, nullptr);
        m_places[number] = family.get();
        return *family;
    }

    // Throws std::logic_error for one that hasn't been made.
    template <typename T> T& Get() const {
        const size_t number = Number<T>();
        if (number >= m_places.size() || !m_places[number])
            throw std::logic_error("no such family");
        return *static_cast<T*>(m_places[number]);
    }

private:
    static inline size_t m_count = 0;
    template <typename T> static size_t Number() {
        static const size_t number = m_count++;
        return number;
    }

    std::vector<std::shared_ptr<void>> m_owners;
    std::vector<void*> m_places; // by the type's number
};

} // namespace qlm
