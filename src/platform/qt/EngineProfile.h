// SPDX-License-Identifier: MIT
#pragma once

class QWebEngineProfile;
class QNetworkProxy;
class QObject;

namespace qlm {

// Sets what the engine reads from the environment. To be called in main() before the QApplication is made.
void PrepareEngine();

// Lets the engine open connections to that proxy and to nothing else; where there is none, to everything but
// this machine. It counts for the whole process, and only until the first profile is made.
void ConfineEngine(const QNetworkProxy& proxy);

// The one profile that all browsers of the program share: cookies live as long as the program runs, nothing
// is written to disk, downloads are refused. Must outlive every page on it.
QWebEngineProfile* CreateEngineProfile(QObject* owner);

} // namespace qlm
