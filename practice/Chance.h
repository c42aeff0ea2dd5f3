// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

namespace qlm::practice {

/// Scatters its arguments over 64 bits; the same arguments always give the same number.
constexpr quint64 Mix(quint64 a, quint64 b, quint64 c = 0) {
    quint64 x = a * 0x9E3779B97F4A7C15ULL + b * 0xC2B2AE3D27D4EB4FULL + c * 0x165667B19E3779F9ULL;
    x ^= x >> 30;
    x *= 0xBF58476D1CE4E5B9ULL;
    x ^= x >> 27;
    x *= 0x94D049BB133111EBULL;
    return x ^ (x >> 31);
}

/// A row of numbers that follows from its start value alone, on every platform.
class Draw {
public:
    explicit constexpr Draw(quint64 start) : m_start(start) {}

    /// 0 to `bound` - 1.
    constexpr int Below(int bound) { return static_cast<int>(Next() % static_cast<quint64>(bound)); }

    constexpr bool Percent(int chance) { return Below(100) < chance; }

    template <typename List> const auto& Pick(const List& list) {
        return list[static_cast<std::size_t>(Below(static_cast<int>(std::size(list))))];
    }

private:
    constexpr quint64 Next() { return Mix(m_start, ++m_step); }

    quint64 m_start;
    quint64 m_step = 0;
};

/// The numbers 0 to `size` - 1 in an order that follows from `key`; any place can be asked by itself.
class Shuffle {
public:
    constexpr Shuffle(quint64 key, int size) : m_key(key), m_size(size) {}

    /// What stands at `place`. Steps on until the scattering, which knows only powers of four, lands inside.
    constexpr int At(int place) const {
        int at = Scatter(place);
        while (at >= m_size)
            at = Scatter(at);
        return at;
    }

private:
    // Each round changes one half by the other alone, so no two numbers can meet.
    constexpr int Scatter(int number) const {
        int left = number >> halfBits;
        int right = number & halfMask;
        for (quint64 round = 0; round < 4; ++round) {
            const int mixed =
                left ^ static_cast<int>(Mix(m_key, static_cast<quint64>(right), round) & halfMask);
            left = right;
            right = mixed;
        }
        return left << halfBits | right;
    }

    static constexpr int halfBits = 7;
    static constexpr int halfMask = (1 << halfBits) - 1;

    quint64 m_key;
    int m_size;

public:
    static constexpr int largest = 1 << (2 * halfBits);
};

} // namespace qlm::practice
