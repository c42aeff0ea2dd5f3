// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringView>
#include <initializer_list>
#include <utility>

namespace qlm::practice {

/// Makes any text safe between tags and inside quoted attributes.
QString Escape(const QString& text);

/// Fills a page template: "{name}" becomes the escaped value, "{!name}" the value as markup.
/// A placeholder without a value is a programming error and throws std::logic_error.
QString Fill(QStringView page, std::initializer_list<std::pair<QStringView, QString>> values);

} // namespace qlm::practice
