// SPDX-License-Identifier: MIT
#include "platform/qt/EngineProfile.h"

#include "platform/qt/BrowserPage.h"

#include <QCoreApplication>
#include <QNetworkProxy>
#include <QSysInfo>
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

// What leads to this machine and to the cable beside it, as the engine writes it when it has understood it.
constexpr std::array nearHosts = {
    "localhost",
    "localhost.",
    "*.localhost",
    "*.localhost.",
    "localhost.localdomain",
    "ip6-localhost",
    "ip6-loopback",
    "127.???.???.???",
    "0.???.???.???",
    "169.254.???.???",
    "::",
    "::1",
    "::ffff:7f??:*",
    "::ffff:0:*",
    "::ffff:a9fe:*",
    "fe80:*",
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

void AddEngineFlag(const QByteArray& flag) {
    const QByteArray flags = qgetenv("QTWEBENGINE_CHROMIUM_FLAGS") + ' ' + flag;
    qputenv("QTWEBENGINE_CHROMIUM_FLAGS", flags.trimmed());
}

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
    for (const char* flag : engineFlags)
        AddEngineFlag(flag);
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
}

// The engine connects to nothing whose address it hasn't looked up here first, numbers included; so this
// holds for redirects, too, which it follows before it asks anybody. The first rule that fits counts.
void ConfineEngine(const QNetworkProxy& proxy) {
    QByteArray rules;
    if (proxy.type() == QNetworkProxy::HttpProxy) {
        const QByteArray host = proxy.hostName().toLatin1();
        rules = "MAP " + host + ':' + QByteArray::number(proxy.port()) + ' ' + host + ",MAP * ~NOTFOUND";
    } else {
        for (const char* host : nearHosts)
            rules += QByteArray("MAP ") + host + " ~NOTFOUND,";
        rules += "MAP " + QSysInfo::machineHostName().toLatin1() + " ~NOTFOUND";
    }
    AddEngineFlag("--host-resolver-rules=\"" + rules + '"');
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
