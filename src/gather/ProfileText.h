// SPDX-License-Identifier: MIT
#pragma once

#include <QDate>
#include <QString>

namespace qlm {

// What a profile's page says about the person, cut out of its text and markup.

// The age as it stands there; a text that is no number when the page gives none.
QString GetProfileAge(const QString& text, const QString& html);
// The piece of the markup that holds the location.
QString GetBasicInfoBlock(const QString& html, bool newLayout);
// One of the places, separated by commas, stands in the block.
bool HoldsOnePlace(const QString& block, const QString& places);
// The gender as one of the site's layouts writes it.
bool SaysMale(const QString& text, const QString& html);
bool SaysFemale(const QString& text, const QString& html);
// The mark of an online user stands in front of the last login.
bool SaysOnline(const QString& html);
// The text of the last login date; "" when there is none.
QString LastLoginText(const QString& html);
// Read month first or day first, the date is not longer ago than so many days. False when the text is no
// date.
bool LastLoginWithin(const QString& dateText, const QDate& today, int days);

} // namespace qlm
