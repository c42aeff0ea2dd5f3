// SPDX-License-Identifier: MIT
#include "platform/qt/EngineProfile.h"

#include "platform/qt/BrowserPage.h"

#include <QCoreApplication>
#include <QWebEngineDownloadRequest>
#include <QWebEngineProfile>
#include <QWebEngineSettings>
#include <array>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

// Nothing is fetched that no page asked for; hidden pages run at full speed, since activities work in them; a
// page that was left is not kept alive behind the present one.
constexpr std::array engineFlags = {
    "--disable-background-networking",
    "--disable-component-update",
    "--disable-domain-reliability",
    "--disable-sync",
    "--disable-default-apps",
    "--no-pings",
    "--no-first-run",
    "--disable-background-timer-throttling",
    "--disable-backgrounding-occluded-windows",
    "--disable-renderer-backgrounding",
    // A page's calls to others would go past the proxy, from every address of the machine.
    "--force-webrtc-ip-handling-policy=disable_non_proxied_udp",
    "--disable-features=WebTransport,BackForwardCache,TranslateUI,OptimizationHints,MediaRouter",
};

struct Setting {
    QWebEngineSettings::WebAttribute attribute;
    bool isOn;
};

constexpr std::array settings = {
    Setting{QWebEngineSettings::ErrorPageEnabled, false},
    Setting{QWebEngineSettings::AutoLoadIconsForPage, false},
    Setting{QWebEngineSettings::FocusOnNavigationEnabled, false},
    Setting{QWebEngineSettings::FullScreenSupportEnabled, false},
    Setting{QWebEngineSettings::ScreenCaptureEnabled, false},
    Setting{QWebEngineSettings::PluginsEnabled, false},
    Setting{QWebEngineSettings::PdfViewerEnabled, false},
    Setting{QWebEngineSettings::DnsPrefetchEnabled, false},
    Setting{QWebEngineSettings::HyperlinkAuditingEnabled, false},
    Setting{QWebEngineSettings::JavascriptCanOpenWindows, true},
    Setting{QWebEngineSettings::JavascriptCanAccessClipboard, false},
    Setting{QWebEngineSettings::LocalContentCanAccessRemoteUrls, false},
    Setting{QWebEngineSettings::AllowWindowActivationFromJavaScript, false},
};

void Refuse(QWebEngineDownloadRequest* download) {
    const QString name = download->downloadFileName();
    download->cancel();
    if (auto* page = qobject_cast<BrowserPage*>(download->page()))
        page->Notice(u"A download was refused: "_s + name);
}

} // namespace

void PrepareEngine() {
    // With the other event dispatcher, a call into a page made from a nested loop may never come back.
    qputenv("QT_NO_GLIB", "1");
    QByteArray flags = qgetenv("QTWEBENGINE_CHROMIUM_FLAGS");
    for (const char* flag : engineFlags)
        flags.append(' ').append(flag);
    qputenv("QTWEBENGINE_CHROMIUM_FLAGS", flags.trimmed());
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
}

QWebEngineProfile* CreateEngineProfile(QObject* owner) {
    auto* profile = new QWebEngineProfile(owner);
    profile->setHttpCacheType(QWebEngineProfile::MemoryHttpCache);
    // Without a limit it keeps every page of a long run.
    profile->setHttpCacheMaximumSize(8 * 1024 * 1024);
    for (const Setting& setting : settings)
        profile->settings()->setAttribute(setting.attribute, setting.isOn);
    // Mail and telephone numbers would start other programs.
    profile->settings()->setUnknownUrlSchemePolicy(QWebEngineSettings::DisallowUnknownUrlSchemes);
    QObject::connect(profile, &QWebEngineProfile::downloadRequested, profile, &Refuse);
    return profile;
}

} // namespace qlm
