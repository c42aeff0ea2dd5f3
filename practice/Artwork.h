// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace qlm::practice {

struct Person;

/// The site's pictures, all drawn here as SVG.
QString LogoDrawing();
QString IconDrawing();
QString PostDrawing(); ///< an image for a button
QString InviteDrawing(); ///< another one
QString ComedyBadge();
QString FilmBadge();

/// The picture of a profile; follows from `Person::look` alone.
QString Portrait(const Person& person);

/// `word` drawn so that its letters dance; `look` decides how.
QString CaptchaDrawing(const QString& word, quint64 look);

} // namespace qlm::practice
