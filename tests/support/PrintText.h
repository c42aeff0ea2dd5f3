// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <ostream>

QT_BEGIN_NAMESPACE

// Failing tests print texts and not their bytes.
inline void PrintTo(const QString& text, std::ostream* stream) {
    *stream << '"' << text.toStdString() << '"';
}

QT_END_NAMESPACE
