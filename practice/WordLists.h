// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <span>

namespace qlm::practice {

/// A town and the line that stands under it on a profile.
struct Place {
    QLatin1StringView town;
    QLatin1StringView region;
    QLatin1StringView country;
};

// Every text here is plain ASCII, and none of them holds words that a page is recognised by.
using Words = std::span<const QLatin1StringView>;

Words FemaleNames();
Words MaleNames();
Words Surnames();
Words BandFirstWords();
Words BandSecondWords();
Words FilmFirstWords();
Words FilmSecondWords();
Words Genres();
Words Headlines();
Words BandHeadlines();
Words Moods();
Words Interests();
Words CaptchaWords();
std::span<const Place> Places();

} // namespace qlm::practice
