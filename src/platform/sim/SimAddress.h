// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace qlm {

// Addresses as a browser writes them: with a scheme, the host in lower case, at least "/" for a path, and
// everything encoded that an address cannot hold. A fragment is kept.
QString CanonicalAddress(const QString& address);

// What a link on the page `base` leads to. Addresses of other kinds ("javascript:", "mailto:") come back as
// they are.
QString ResolveAddress(const QString& base, const QString& reference);

QString WithoutFragment(const QString& address);
// Scheme in lower case without the colon; empty when there is none.
QString SchemeOf(const QString& address);
// Without port; empty for an address that has no host.
QString HostOf(const QString& address);
// Path from the first slash, without query and fragment.
QString PathOf(const QString& address);
// The last part of the path.
QString FileNameOf(const QString& address);

// One name or value of a form as it travels in an address or a body.
QString EncodeFormText(const QString& text);

} // namespace qlm
