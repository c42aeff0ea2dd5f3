// SPDX-License-Identifier: MIT
#include "BarePage.h"
#include "Figures.h"

#include <QEventLoop>
#include <stdexcept>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

void BarePage::ShowIn(QSize size) {
    m_view = std::make_unique<QWebEngineView>();
    m_view->setPage(&m_page);
    m_view->resize(size);
    m_view->show();
}

void BarePage::Load(const QUrl& url) {
    QEventLoop loop;
    QObject::connect(&m_page, &QWebEnginePage::loadFinished, &loop, &QEventLoop::quit);
    m_page.load(url);
    loop.exec();
}

QString BarePage::Read(const QString& script) {
    QEventLoop loop;
    QString text;
    bool isThere = false;
    m_page.runJavaScript(script, [&](const QVariant& value) {
        text = value.toString();
        isThere = true;
        loop.quit();
    });
    if (!isThere)
        loop.exec();
    return text;
}

void BarePage::LoadBy(const QString& script) {
    QEventLoop loop;
    QObject::connect(&m_page, &QWebEnginePage::loadFinished, &loop, &QEventLoop::quit);
    m_page.runJavaScript(script);
    loop.exec();
}

QString BarePage::ReadAll() {
    const QString text = Read(u"document.body.innerText"_s);
    const QString markup = Read(u"document.body.innerHTML"_s);
    if (markup.size() < text.size())
        throw std::runtime_error("a page without markup");
    return text;
}

double BarePage::Visit(const QStringList& addresses) {
    const long long start = NowNs();
    for (const QString& address : addresses) {
        Load(QUrl(u"about:blank"_s));
        Load(QUrl(address));
        if (!ReadAll().contains(u"Request Sent!"_s))
            throw std::runtime_error("no confirmation at " + address.toStdString());
    }
    return static_cast<double>(NowNs() - start) / 1e6;
}

} // namespace qlm
