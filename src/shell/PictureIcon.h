// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>
#include <QString>

namespace qlm {

// The drawing of that name ("NAVBACK") as an icon, sharp at every size. At rest its lines follow the
// palette's text colour with one accent; hovered or pressed all of it takes the accent; disabled it is grey.
// An unknown name is a fault of the program and asserts.
QIcon PictureIcon(const QString& image);

// The program's own icon.
QIcon ProgramIcon();

} // namespace qlm
