// SPDX-License-Identifier: MIT
#pragma once

#include <QLatin1StringView>
#include <QString>
#include <array>
#include <optional>

namespace qlm::practice {

/// What the mobile pages are like.
enum class MobileDesign {
    Open,
    Closed, ///< nobody can sign in
    Names,  ///< sent requests are linked by names
    NoNext, ///< no link to the next page
};

inline std::optional<MobileDesign> MobileDesignNamed(const QString& name) {
    constexpr std::array<QLatin1StringView, 4> names{QLatin1StringView("open"), QLatin1StringView("closed"),
                                                     QLatin1StringView("names"),
                                                     QLatin1StringView("no-next")};
    for (std::size_t i = 0; i < names.size(); ++i)
        if (name == names[i])
            return static_cast<MobileDesign>(i);
    return std::nullopt;
}

} // namespace qlm::practice
